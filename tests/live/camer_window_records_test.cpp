// SPDX-License-Identifier: MIT
// The records that alarms leave.
#include "simulator/simulated_camera.h"
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QDir>

using testing::Page;

namespace {

constexpr float over = 50.0F;
constexpr float below = 39.9F;

} // namespace

class CamerWindowRecordsTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    void recordOnTheEighthFrame();
    void oneFrameBelowStartsAnew();
    void countsOnlyWhileRecordsAreWanted();
    void filesBoxAloneDoesNotCount();
    void recheckingTheFilesBoxStartsAnew();
    void ringThatIsNotFullMakesNoRecord();
    void textHoldsTheReadOutsOfTheFrameBefore();
    void picturesAreTheLastSeven();
    void throughTheCamera();
    void everyRecordIsKept();

private:
    QStringList recordsOnDisk() const
    {
        return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    }
};

void CamerWindowRecordsTest::recordOnTheEighthFrame()
{
    const Page page;
    page.enableAlarm();
    for (int i = 1; i <= 7; ++i) {
        page.frame(over);
        QCOMPARE(page->overCount, i);
        QCOMPARE(recordsOnDisk(), QStringList());
    }
    page.frame(over);
    QCOMPARE(page->overCount, 9);
    QCOMPARE(recordsOnDisk().size(), 1);
    page.frames(30, over);
    QCOMPARE(page->overCount, 9);
    QCOMPARE(recordsOnDisk().size(), 1);
    QCOMPARE(page.rows("listWidget"), recordsOnDisk());
    QCOMPARE(page.rows("listWidget_2"), recordsOnDisk());
    QVERIFY(QRegularExpression(QStringLiteral("^20\\d{12}$")).match(recordsOnDisk()[0]).hasMatch());
}

void CamerWindowRecordsTest::oneFrameBelowStartsAnew()
{
    const Page page;
    page.enableAlarm();
    page.frames(7, over);
    page.frame(below);
    page.frames(7, over);
    QCOMPARE(recordsOnDisk(), QStringList());
    page.frame(over);
    QCOMPARE(recordsOnDisk().size(), 1);
}

void CamerWindowRecordsTest::countsOnlyWhileRecordsAreWanted()
{
    const Page page;
    page.check("checkBox");
    page.frames(10, over);
    QCOMPARE(page->overCount, 0);
    page.check("checkBox_3");
    page.frames(7, over);
    QCOMPARE(recordsOnDisk(), QStringList());
    page.frame(over);
    QCOMPARE(recordsOnDisk().size(), 1);
}

void CamerWindowRecordsTest::filesBoxAloneDoesNotCount()
{
    const Page page;
    page.check("checkBox_3"); // by code; a user finds it disabled
    page.frames(10, over);
    QCOMPARE(page->overCount, 0);
    QCOMPARE(recordsOnDisk(), QStringList());
}

void CamerWindowRecordsTest::recheckingTheFilesBoxStartsAnew()
{
    const Page page;
    page.enableAlarm();
    page.frames(8, over);
    page.check("checkBox_3", false);
    QCOMPARE(page->overCount, 0);
    page.check("checkBox_3");
    page.frames(7, over);
    QCOMPARE(recordsOnDisk().size(), 1);
    page.frame(over);
    QCOMPARE(recordsOnDisk().size(), 2);
}

void CamerWindowRecordsTest::ringThatIsNotFullMakesNoRecord()
{
    const Page page;
    page.enableAlarm();
    page.frames(6, over);
    for (int i = 0; i < 2; ++i)
        page->updat_temp(over, 40, 1); // numbers without a picture
    QCOMPARE(page->recentFrames.size(), 6);
    QCOMPARE(page->overCount, 9);
    page.frames(20, over);
    QCOMPARE(recordsOnDisk(), QStringList());
    QCOMPARE(page->lastAlarmText, QStringLiteral("36.2,34.0,0.97"));
}

void CamerWindowRecordsTest::textHoldsTheReadOutsOfTheFrameBefore()
{
    const Page page;
    page.enableAlarm();
    for (int i = 1; i <= 9; ++i)
        page.frame(50.0F + float(i), 40.0F + float(i), 0.9F + 0.01F * float(i));
    QCOMPARE(page->lastAlarmText, QStringLiteral("57.0,47.0,0.97"));
    QCOMPARE(testing::fileBytes(m_folder + QLatin1Char('/') + recordsOnDisk()[0] +
                                QStringLiteral(".ini")),
             QByteArray("57.0,47.0,0.97"));
}

void CamerWindowRecordsTest::picturesAreTheLastSeven()
{
    const Page page;
    page.enableAlarm();
    page.frame(below, 40, 1, 250);
    for (int i = 1; i <= 9; ++i)
        page.frame(over, 40, 1, 20 * i);
    const QString record = m_folder + QLatin1Char('/') + recordsOnDisk()[0] + QLatin1Char('/');
    const QStringList oldestFirst{"F1", "F2", "F3", "Alarm", "L1", "L2", "L3"};
    for (int i = 0; i < 7; ++i) {
        const QImage picture(record + oldestFirst[i] + QStringLiteral(".JPG"));
        QCOMPARE(picture.size(), QSize(240, 320));
        QVERIFY(qAbs(picture.pixelColor(9, 9).red() - 20 * (i + 2)) <= 2);
    }
}

void CamerWindowRecordsTest::throughTheCamera()
{
    auto& camera = simulator::SimulatedCamera::instance();
    camera.plug();
    const Page page;
    page.enableAlarm();
    for (int i = 1; i <= 8; ++i) {
        QCOMPARE(recordsOnDisk(), QStringList());
        QVERIFY(camera.deliver(testing::grayFrame(20 * i, 700 + i, 600, 95)));
    }
    QCOMPARE(recordsOnDisk().size(), 1);
    QCOMPARE(page->lastAlarmText, QStringLiteral("70.7,60.0,0.95"));
    // The picture of the eighth frame is in the record, its numbers are not.
    const QImage last(m_folder + QLatin1Char('/') + recordsOnDisk()[0] + QStringLiteral("/L3.JPG"));
    QVERIFY(qAbs(last.pixelColor(9, 9).red() - 160) <= 2);
    QCOMPARE(page.text("label_6"), QStringLiteral("70.8"));
    camera.unplug();
}

void CamerWindowRecordsTest::everyRecordIsKept()
{
    const Page page;
    page.enableAlarm();
    for (int excursion = 1; excursion <= 5; ++excursion) {
        page.frames(8, 50.0F + float(excursion));
        page.frame(below);
    }
    QCOMPARE(recordsOnDisk().size(), 5);
    QSet<QByteArray> texts;
    for (const QString& name : recordsOnDisk()) {
        texts.insert(
            testing::fileBytes(m_folder + QLatin1Char('/') + name + QStringLiteral(".ini")));
        QCOMPARE(QDir(m_folder + QLatin1Char('/') + name).entryList(QDir::Files).size(), 7);
    }
    QCOMPARE(texts, QSet<QByteArray>({"51.0,40.0,0.95", "52.0,40.0,0.95", "53.0,40.0,0.95",
                                      "54.0,40.0,0.95", "55.0,40.0,0.95"}));
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowRecordsTest>(argc, argv);
}

#include "camer_window_records_test.moc"
