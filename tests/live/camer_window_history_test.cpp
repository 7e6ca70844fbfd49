// SPDX-License-Identifier: MIT
// The record that is open.
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

using testing::Page;
using testing::PaintCounter;

namespace {

const QString first = QStringLiteral("20240101120000");
const QString second = QStringLiteral("20240202120000");

} // namespace

class CamerWindowHistoryTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    void showsARecord();
    void picturesSortedByName();
    void rowChanges();
    void negativeRowShowsTheFirst();
    void shortTexts_data();
    void shortTexts();
    void textsAreNoMarkUp();
    void recordWithoutPictures();
    void filesThatAreNoPictures();
    void recordDeletedWhileListed();
    void pictureFollowsTheLabel();
    void openRecordComesToRest();
};

void CamerWindowHistoryTest::showsARecord()
{
    putRecord(first, "36.2,34.0,0.97", {{"a.png", Qt::red}, {"b.png", Qt::green}});
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    page.openRecord(first);
    QCOMPARE(page.readings(), QStringList({"36.2", "34.0", "0.97"}));
    QCOMPARE(page.rows("listWidget_3"), QStringList({"a.png", "b.png"}));
    QVERIFY(!page.get<QListWidget>("listWidget_3")->item(0)->icon().isNull());
    QCOMPARE(page.get<QListWidget>("listWidget_3")->currentRow(), 0);
    QCOMPARE(page->historyRow, 0);
    QCOMPARE(page->historyPixmaps.size(), 2);
    QCOMPARE(page->historyPixmaps[0].size(), QSize(240, 320));
    QCOMPARE(page.shownRecordColour(), QColor(Qt::red));
}

void CamerWindowHistoryTest::picturesSortedByName()
{
    putRecord(first, "1,2,3",
              {{"F1.JPG", Qt::red},
               {"L1.JPG", Qt::green},
               {"Alarm.JPG", Qt::blue},
               {"x.png", Qt::white},
               {"M.BMP", Qt::yellow}});
    testing::putFile(path(first + QStringLiteral("/notes.txt")), "not shown");
    const Page page;
    page.openRecord(first);
    QCOMPARE(page.rows("listWidget_3"),
             QStringList({"Alarm.JPG", "F1.JPG", "L1.JPG", "M.BMP", "x.png"}));
    QCOMPARE(page->historyPixmaps[1].toImage().pixelColor(0, 0), QColor(Qt::red));
}

void CamerWindowHistoryTest::rowChanges()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}, {"b.png", Qt::green}});
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    page.openRecord(first);
    page.get<QListWidget>("listWidget_3")->setCurrentRow(1);
    QCOMPARE(page->historyRow, 1);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::green));
    page.get<QListWidget>("listWidget_3")->setCurrentRow(0);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::red));
}

void CamerWindowHistoryTest::negativeRowShowsTheFirst()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}, {"b.png", Qt::green}});
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    page.openRecord(first);
    page.get<QListWidget>("listWidget_3")->setCurrentRow(1);
    page.get<QListWidget>("listWidget_3")->setCurrentRow(-1);
    QCOMPARE(page->historyRow, -1);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::red));
    page->grab();
    QCOMPARE(page.shownRecordColour(), QColor(Qt::red));
    page->on_listWidget_3_currentRowChanged(1000);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::black));
    page->grab();
}

void CamerWindowHistoryTest::shortTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("parts");
    QTest::newRow("two parts") << QByteArray("36.2,34.0") << QStringList({"36.2", "34.0", ""});
    QTest::newRow("empty") << QByteArray() << QStringList({"", "", ""});
    QTest::newRow("last line") << QByteArray("1,2,3\r\n4,5,6") << QStringList({"4", "5", "6"});
}

void CamerWindowHistoryTest::shortTexts()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, parts);
    putRecord(first, text, {});
    const Page page;
    page.openRecord(first);
    QCOMPARE(page.readings(), parts);
}

void CamerWindowHistoryTest::textsAreNoMarkUp()
{
    putRecord(first, "<b>1</b>,<i>2</i>,<s>3</s>", {});
    const Page page;
    page.openRecord(first);
    QCOMPARE(page.readings(), QStringList({"<b>1</b>", "<i>2</i>", "<s>3</s>"}));
    for (const char* label : {"label_12", "label_14", "label_16"})
        QCOMPARE(page.get<QLabel>(label)->textFormat(), Qt::PlainText);
}

void CamerWindowHistoryTest::recordWithoutPictures()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    putRecord(second, "4,5,6", {});
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    page.openRecord(first);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::red));
    page.openRecord(second);
    QCOMPARE(page.readings(), QStringList({"4", "5", "6"}));
    QCOMPARE(page.rows("listWidget_3"), QStringList());
    QVERIFY(page->historyPixmaps.isEmpty());
    QCOMPARE(page.shownRecordColour(), QColor(Qt::black)); // not the record before
    page->grab();
    page.openRecord(first);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::red));
}

void CamerWindowHistoryTest::filesThatAreNoPictures()
{
    putRecord(first, "1,2,3", {{"b.png", Qt::green}});
    testing::putFile(path(first + QStringLiteral("/a.png")), "not a picture");
    testing::putFile(path(first + QStringLiteral("/c.jpg")), QByteArray());
    QImage endless(5000, 5000, QImage::Format_Mono);
    endless.fill(1);
    QVERIFY(endless.save(path(first + QStringLiteral("/d.png"))));
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    const testing::LogRecorder log;
    page.openRecord(first);
    QCOMPARE(page.rows("listWidget_3"), QStringList({"a.png", "b.png", "c.jpg", "d.png"}));
    QCOMPARE(page->historyPixmaps.size(), 4);
    QVERIFY(page->historyPixmaps.at(3).isNull());
    QCOMPARE(page.shownRecordColour(), QColor(Qt::black));
    page.get<QListWidget>("listWidget_3")->setCurrentRow(1);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::green));
    page.get<QListWidget>("listWidget_3")->setCurrentRow(2);
    QCOMPARE(page.shownRecordColour(), QColor(Qt::black));
    page->grab();
    QVERIFY(!log.contains(QStringLiteral("null pixmap")));
}

void CamerWindowHistoryTest::recordDeletedWhileListed()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    const Page page;
    page.openRecord(first);
    QVERIFY(QDir(path(first)).removeRecursively());
    QVERIFY(QFile::remove(path(first + QStringLiteral(".ini"))));
    QCOMPARE(page->historyPixmaps.size(), 1); // what is open stays
    page.openRecord(first);
    QCOMPARE(page.readings(), QStringList({"", "", ""}));
    QCOMPARE(page.rows("listWidget_3"), QStringList());
    QVERIFY(page->historyPixmaps.isEmpty());
}

void CamerWindowHistoryTest::pictureFollowsTheLabel()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    const Page page;
    page->resize(900, 640);
    page->show();
    page.openRecord(first); // while its tab is behind
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    const auto* const label = page.get<QLabel>("label_18");
    const auto fits = [label] {
        return label->pixmap() && label->pixmap()->size() ==
                                      QSize(240, 320).scaled(label->size(), Qt::KeepAspectRatio);
    };
    QTRY_VERIFY(fits());
    const QSize before = label->pixmap()->size();
    page->resize(1200, 900);
    QTRY_VERIFY(label->pixmap()->size() != before);
    QTRY_VERIFY(fits());
}

void CamerWindowHistoryTest::openRecordComesToRest()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    page.openRecord(first);
    QVERIFY(QTest::qWaitForWindowExposed(&page.window()));
    page->grab();
    const qint64 key = page.get<QLabel>("label_18")->pixmap()->cacheKey();
    const PaintCounter counter(page.window());
    page->update();
    QTRY_VERIFY(counter.count > 0);
    // Whatever one paint asks for is due now; a page that paints for ever would go on.
    for (int round = 0; round < 50; ++round)
        QCoreApplication::processEvents();
    QVERIFY(counter.count <= 2);
    QCOMPARE(page.get<QLabel>("label_18")->pixmap()->cacheKey(), key);
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowHistoryTest>(argc, argv);
}

#include "camer_window_history_test.moc"
