// SPDX-License-Identifier: MIT
#include "live/alarm_records.h"
#include "tests/live/camera.h"
#include "tests/support/dialogs.h"
#include "tests/support/full_disk.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QListWidget>
#include <QPushButton>

using testing::Page;

namespace {

const QDir::Filters everything = QDir::AllEntries | QDir::NoDotAndDotDot;

constexpr int diskBytes = 8000; // between a plain picture's file and a busy one's

/// A frame whose picture is plain, or so busy that its file is large.
QByteArray frame(bool busy, int maximumTenths)
{
    QByteArray bytes = testing::grayFrame(100, maximumTenths, 400, 95);
    unsigned state = 7;
    for (int i = 0; busy && i < 240 * 320 * 2; i += 2)
        bytes[i] = char((state = state * 1664525U + 1013904223U) >> 24);
    return bytes;
}

bool deliver(bool busy, int maximumTenths)
{
    return testing::camera().deliver(frame(busy, maximumTenths));
}

/// Eight frames above and one below; the pictures from `firstBusy` on are busy.
void excursion(int firstBusy = 9)
{
    for (int i = 1; i <= 8; ++i)
        QVERIFY(deliver(i >= firstBusy, 500 + i));
    QVERIFY(deliver(false, 300));
}

/// The live picture and its numbers go on.
void verifyAlive(const Page& page)
{
    const qint64 before = page->currentPixmap.cacheKey();
    QVERIFY(deliver(false, 321));
    QVERIFY(page->currentPixmap.cacheKey() != before);
    QCOMPARE(page.text("label_6"), QStringLiteral("32.1"));
    QVERIFY(page->camera && page->isOpen());
}

} // namespace

class AlarmFaultsTest : public testing::CameraPageTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        CameraPageTest::init();
        m_working = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_working->path()));
    }
    void cleanup() override
    {
        CameraPageTest::cleanup();
        // Whatever went wrong, nothing is left where the program was started.
        QCOMPARE(QDir::current().entryList(everything), QStringList());
    }

    void noRecordIntoFoldersThatRefuse_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("missing") << testing::profile().home() + QStringLiteral("/missing");
        QTest::newRow("a file") << QCoreApplication::applicationFilePath();
        // Nobody can make anything there, not even root.
        QTest::newRow("read-only") << QStringLiteral("/proc/self");
        QTest::newRow("none") << QString();
    }
    void noRecordIntoFoldersThatRefuse()
    {
        QFETCH(QString, folder);
        const Page page;
        page.enableAlarm();
        page->setAlarmFolder(folder);
        excursion();
        excursion();
        QCOMPARE(page.rows("listWidget"), QStringList());
        QVERIFY(!QFile::exists(testing::profile().home() + QStringLiteral("/missing")));
        verifyAlive(page);
    }

    void removedWhileRunning()
    {
        const Page page;
        page.enableAlarm();
        excursion();
        QCOMPARE(page.rows("listWidget").size(), 1);
        QVERIFY(QDir(m_folder).removeRecursively());
        excursion();
        QVERIFY(!QFile::exists(m_folder));
        emit page.get<QListWidget>("listWidget_2")
            ->itemClicked(page.get<QListWidget>("listWidget_2")->item(0));
        QCOMPARE(page.text("label_12"), QString());
        verifyAlive(page);
        QVERIFY(QDir().mkpath(m_folder)); // the drive is back
        excursion();
        QCOMPARE(page.rows("listWidget").size(), 1);
        QCOMPARE(live::recordPicturePaths(m_folder, page.rows("listWidget")[0]).size(), 7);
    }

    void diskFillsUpBehindThreePictures()
    {
        const Page page;
        page.enableAlarm();
        excursion();
        const QString whole = page.rows("listWidget").value(0);
        {
            const testing::FullDisk full(diskBytes);
            excursion(5); // the ring holds frames 2 to 8: three plain pictures, four busy ones
            verifyAlive(page);
        }
        page->refreshHistory();
        QStringList names = page.rows("listWidget_2");
        QCOMPARE(names.size(), 2);
        names.removeOne(whole);
        // What could be saved is there, whole; without read-outs nobody takes it for a whole
        // record.
        auto* const list = page.get<QListWidget>("listWidget_2");
        emit list->itemClicked(list->findItems(names[0], Qt::MatchExactly).first());
        QCOMPARE(page.rows("listWidget_3"), QStringList({"F1.JPG", "F2.JPG", "F3.JPG"}));
        for (const QPixmap& picture : page->historyPixmaps)
            QCOMPARE(picture.size(), QSize(240, 320));
        QCOMPARE(page.text("label_12") + page.text("label_14") + page.text("label_16"), QString());
        // The record before is untouched.
        emit list->itemClicked(list->findItems(whole, Qt::MatchExactly).first());
        QCOMPARE(page->historyPixmaps.size(), 7);
        QCOMPARE(page.text("label_12"), QStringLiteral("50.7"));
    }

    void fullDiskLeavesNothing()
    {
        const Page page;
        page.enableAlarm();
        {
            const testing::FullDisk full(diskBytes);
            excursion(1);
            verifyAlive(page);
        }
        QCOMPARE(QDir(m_folder).entryList(everything), QStringList());
        excursion(1); // space again
        QCOMPARE(page.rows("listWidget").size(), 1);
    }

    void aPictureThatDoesNotFitLeavesWhatWasThere()
    {
        const Page page;
        QVERIFY(deliver(true, 300));
        const QString path = m_folder + QStringLiteral("/cap.png");
        testing::putFile(path, "before");
        const testing::Answer<QFileDialog> answer([&path](QFileDialog& dialog) {
            dialog.selectFile(path);
            static_cast<QDialog&>(dialog).done(QDialog::Accepted);
        });
        {
            const testing::FullDisk full(diskBytes);
            page.get<QPushButton>("pushButton")->click();
        }
        QVERIFY(answer.wasAsked());
        QCOMPARE(QDir(m_folder).entryList(everything), QStringList(QStringLiteral("cap.png")));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("before"));
    }

    void aCommaCutsTheConfiguredFolder()
    {
        const QString whole = testing::makeFolder(QStringLiteral("alarms,cut"));
        testing::configure(QStringLiteral("EN"), whole);
        const Page page;
        page.enableAlarm();
        QCOMPARE(page->historyFolder, m_folder);
        excursion();
        QCOMPARE(live::recordNames(m_folder).size(), 1);
        QCOMPARE(QDir(whole).entryList(everything), QStringList());
        page->setAlarmFolder(whole); // told, not read: whole
        excursion();
        QCOMPARE(live::recordNames(whole).size(), 1);
        QCOMPARE(page.rows("listWidget"), live::recordNames(whole));
    }

    void configuredFolderOfAnyScript_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("Chinese") << QStringLiteral("报警历史");
        QTest::newRow("Russian") << QStringLiteral("История тревог");
        QTest::newRow("Korean") << QStringLiteral("경보 기록");
    }
    void configuredFolderOfAnyScript()
    {
        QFETCH(QString, name);
        const QString folder = testing::makeFolder(name);
        testing::configure(QStringLiteral("EN"), folder);
        const Page page;
        page.enableAlarm();
        excursion();
        QCOMPARE(page.rows("listWidget").size(), 1);
        auto* const list = page.get<QListWidget>("listWidget_2");
        emit list->itemClicked(list->item(0));
        QCOMPARE(page->historyPixmaps.size(), 7);
        QCOMPARE(page.text("label_12"), QStringLiteral("50.7"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_working;
};

int main(int argc, char** argv)
{
    return testing::run<AlarmFaultsTest>(argc, argv);
}

#include "alarm_faults_test.moc"
