// SPDX-License-Identifier: MIT
// The lists of records.
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QListWidget>
#include <QTabWidget>

#include <chrono>
#include <filesystem>

using testing::Page;

namespace {

const QString first = QStringLiteral("20240101120000");
const QString second = QStringLiteral("20240202120000");

} // namespace

class AlarmHistoryTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    void listsRecordsInBothTabs();
    void refreshFollowsTheDisk();
    void refreshKeepsTheSelection();
#ifndef Q_OS_WIN // where the library cannot set a folder's time of change
    void aNewRecordIsListedWithoutReadingTheFolder();
    void whatOthersChangeComesWithTheNextRecord();
#endif
    void anotherFolder();
    void clickOnTheFirstTabDoesNothing();
    void doubleClickOpensTheFirstRecord();
    void doubleClickWithoutRecords();
    void fiveThousandRecords();
};

void AlarmHistoryTest::listsRecordsInBothTabs()
{
    for (const char* name : {"20240101120000", "20240101120000x", "2023", "backup"})
        QDir(m_folder).mkdir(QLatin1String(name));
    testing::putFile(path(second), "a file");
    const Page page;
    QStringList rows = page.rows("listWidget");
    QCOMPARE(page.rows("listWidget_2"), rows);
    rows.sort();
    QCOMPARE(rows, QStringList({first, first + QLatin1Char('x')}));
    const QListWidgetItem* const item = page.get<QListWidget>("listWidget")->item(0);
    QCOMPARE(item->icon().actualSize({100, 100}), QSize(20, 20));
    QCOMPARE(page.get<QListWidget>("listWidget_2")->item(0)->icon().actualSize({100, 100}),
             QSize(30, 30));
}

void AlarmHistoryTest::refreshFollowsTheDisk()
{
    const Page page;
    for (int i = 10; i < 60; ++i)
        QDir(m_folder).mkdir(QStringLiteral("202401011200%1").arg(i));
    const auto onDisk = [this] {
        return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    };
    page->refreshHistory();
    QCOMPARE(page.rows("listWidget"), onDisk());
    for (const int i : {10, 33, 59})
        QVERIFY(QDir(m_folder).rmdir(QStringLiteral("202401011200%1").arg(i)));
    QDir(m_folder).mkdir(second);
    page->refreshHistory();
    QCOMPARE(page.rows("listWidget").size(), 48);
    QCOMPARE(page.rows("listWidget"), onDisk());
    QCOMPARE(page.rows("listWidget_2"), onDisk());
    QVERIFY(QDir(m_folder).removeRecursively());
    page->refreshHistory();
    QCOMPARE(page.rows("listWidget"), QStringList());
}

void AlarmHistoryTest::refreshKeepsTheSelection()
{
    putRecord(first, "1,2,3", {});
    const Page page;
    auto* const list = page.get<QListWidget>("listWidget_2");
    list->setCurrentRow(0);
    for (int i = 10; i < 40; ++i)
        QDir(m_folder).mkdir(QStringLiteral("202403011200%1").arg(i));
    page->refreshHistory();
    QCOMPARE(list->count(), 31);
    QCOMPARE(list->currentItem()->text(), first);
}

#ifndef Q_OS_WIN
void AlarmHistoryTest::aNewRecordIsListedWithoutReadingTheFolder()
{
    const Page page;
    page.frames(7, 20);
    page->saveAlarmRecord();
    const QStringList one = page.rows("listWidget");
    QCOMPARE(one.size(), 1);
    // A folder that claims that nobody has touched it since.
    const std::filesystem::path folder(m_folder.toStdString());
    const auto time = std::filesystem::last_write_time(folder);
    QVERIFY(QDir(m_folder).mkdir(first));
    std::filesystem::last_write_time(folder, time);
    page->saveAlarmRecord();
    QStringList rows = page.rows("listWidget");
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.first(), one.first());
    QVERIFY(!rows.contains(first));
    QCOMPARE(page.rows("listWidget_2"), rows);
    QCOMPARE(page.get<QListWidget>("listWidget")->item(1)->icon().actualSize({100, 100}),
             QSize(20, 20));
    QCOMPARE(page.get<QListWidget>("listWidget_2")->item(1)->icon().actualSize({100, 100}),
             QSize(30, 30));
    page->refreshHistory();
    QVERIFY(page.rows("listWidget").contains(first));
}

void AlarmHistoryTest::whatOthersChangeComesWithTheNextRecord()
{
    const Page page;
    page.frames(7, 20);
    page->saveAlarmRecord();
    const QString gone = page.rows("listWidget").value(0);
    QVERIFY(QDir(path(gone)).removeRecursively());
    QVERIFY(QDir(m_folder).mkdir(first));
    const std::filesystem::path folder(m_folder.toStdString());
    std::filesystem::last_write_time(folder, std::filesystem::last_write_time(folder) +
                                                 std::chrono::seconds(2));
    page->saveAlarmRecord();
    QCOMPARE(page.rows("listWidget").size(), 2);
    QVERIFY(page.rows("listWidget").contains(first));
    QVERIFY(!page.rows("listWidget").contains(gone));
}
#endif

void AlarmHistoryTest::anotherFolder()
{
    putRecord(first, "1,2,3", {});
    const Page page;
    const QString other = testing::makeFolder(QStringLiteral("тревоги, 경보"));
    QDir(other).mkdir(second);
    page->setAlarmFolder(other);
    QCOMPARE(page->historyFolder, other);
    QCOMPARE(page.rows("listWidget"), QStringList({second}));
    testing::putFile(other + QLatin1Char('/') + second + QStringLiteral(".ini"), "7,8,9");
    page.openRecord(second);
    QCOMPARE(page.readings(), QStringList({"7", "8", "9"}));
    page->setAlarmFolder(QString());
    QCOMPARE(page.rows("listWidget"), QStringList());
}

void AlarmHistoryTest::clickOnTheFirstTabDoesNothing()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    const Page page;
    auto* const list = page.get<QListWidget>("listWidget");
    emit list->itemClicked(list->item(0));
    QCOMPARE(page.get<QTabWidget>("tabWidget")->currentIndex(), 0);
    QCOMPARE(page.readings(), QStringList({"36.9", "35.2", "0.95"}));
    QVERIFY(page->historyPixmaps.isEmpty());
}

void AlarmHistoryTest::doubleClickOpensTheFirstRecord()
{
    putRecord(first, "1,1,1", {{"a.png", Qt::red}});
    putRecord(second, "2,2,2", {{"b.png", Qt::green}});
    const Page page;
    page->show();
    auto* const list = page.get<QListWidget>("listWidget");
    const QString top = page.rows("listWidget_2").first();
    const QString part = top == first ? QStringLiteral("1") : QStringLiteral("2");
    const QPoint lower = list->visualItemRect(list->item(1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, lower);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, lower);
    QCOMPARE(page.get<QTabWidget>("tabWidget")->currentIndex(), 1);
    QCOMPARE(page.get<QListWidget>("listWidget_2")->currentRow(), 0);
    QCOMPARE(page.readings(), QStringList({part, part, part}));
    QCOMPARE(page->historyPixmaps.size(), 1);
}

void AlarmHistoryTest::doubleClickWithoutRecords()
{
    putRecord(first, "1,1,1", {});
    const Page page;
    auto* const list = page.get<QListWidget>("listWidget");
    page.get<QListWidget>("listWidget_2")->clear();
    emit list->itemDoubleClicked(list->item(0));
    QCOMPARE(page.get<QTabWidget>("tabWidget")->currentIndex(), 1);
    QCOMPARE(page.readings(), QStringList({"36.9", "35.2", "0.95"}));
}

void AlarmHistoryTest::fiveThousandRecords()
{
    const QDir folder(m_folder);
    for (int i = 0; i < 5000; ++i)
        QVERIFY(folder.mkdir(QStringLiteral("2024010112%1").arg(i, 4, 10, QLatin1Char('0'))));
    const Page page;
    page->show();
    QCOMPARE(page.get<QListWidget>("listWidget")->count(), 5000);
    QCOMPARE(page.get<QListWidget>("listWidget_2")->count(), 5000);
    page.openRecord(QStringLiteral("20240101124999"));
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    page->grab();
    QVERIFY(folder.mkdir(QStringLiteral("20240101125000")));
    page->refreshHistory();
    QCOMPARE(page.get<QListWidget>("listWidget_2")->count(), 5001);
}

int main(int argc, char** argv)
{
    return testing::run<AlarmHistoryTest>(argc, argv);
}

#include "alarm_history_test.moc"
