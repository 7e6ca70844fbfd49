#include "resources/resources.h"
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

#include <chrono>
#include <filesystem>

using testing::Page;
using testing::PaintCounter;

namespace {

const QString first = QStringLiteral("20240101120000");
const QString second = QStringLiteral("20240202120000");

/// A click as the list reports it.
void open(const Page& page, const QString& name)
{
    auto* const list = page.get<QListWidget>("listWidget_2");
    const QList<QListWidgetItem*> items = list->findItems(name, Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    emit list->itemClicked(items.first());
}

QStringList readings(const Page& page)
{
    return {page.text("label_12"), page.text("label_14"), page.text("label_16")};
}

/// The colour in the middle of the history picture, black when there is none.
QColor shown(const Page& page)
{
    const QPixmap* const pixmap = page.get<QLabel>("label_18")->pixmap();
    if (!pixmap || pixmap->isNull())
        return Qt::black;
    return pixmap->toImage().pixelColor(pixmap->rect().center());
}

} // namespace

class CamerWindowHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { resources::load(); }
    void init()
    {
        testing::profile().reset();
        m_folder = testing::makeFolder();
        testing::configure(QStringLiteral("EN"), m_folder);
    }

    void listsRecordsInBothTabs();
    void refreshFollowsTheDisk();
    void refreshKeepsTheSelection();
    void aNewRecordIsListedWithoutReadingTheFolder();
    void whatOthersChangeComesWithTheNextRecord();
    void anotherFolder();
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
    void clickOnTheFirstTabDoesNothing();
    void doubleClickOpensTheFirstRecord();
    void doubleClickWithoutRecords();
    void fiveThousandRecords();

private:
    QString path(const QString& name) const { return m_folder + QLatin1Char('/') + name; }
    void putRecord(const QString& name, const QByteArray& text,
                   const QMap<QString, QColor>& pictures) const
    {
        QDir(m_folder).mkpath(name);
        testing::putFile(path(name + QStringLiteral(".ini")), text);
        for (auto it = pictures.begin(); it != pictures.end(); ++it) {
            QImage picture(240, 320, QImage::Format_RGB888);
            picture.fill(it.value());
            QVERIFY(picture.save(path(name + QLatin1Char('/') + it.key()), "png"));
        }
    }
    QString m_folder;
};

void CamerWindowHistoryTest::listsRecordsInBothTabs()
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

void CamerWindowHistoryTest::refreshFollowsTheDisk()
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

void CamerWindowHistoryTest::refreshKeepsTheSelection()
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

void CamerWindowHistoryTest::aNewRecordIsListedWithoutReadingTheFolder()
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

void CamerWindowHistoryTest::whatOthersChangeComesWithTheNextRecord()
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

void CamerWindowHistoryTest::anotherFolder()
{
    putRecord(first, "1,2,3", {});
    const Page page;
    const QString other = testing::makeFolder(QStringLiteral("тревоги, 경보"));
    QDir(other).mkdir(second);
    page->setAlarmFolder(other);
    QCOMPARE(page->historyFolder, other);
    QCOMPARE(page.rows("listWidget"), QStringList({second}));
    testing::putFile(other + QLatin1Char('/') + second + QStringLiteral(".ini"), "7,8,9");
    open(page, second);
    QCOMPARE(readings(page), QStringList({"7", "8", "9"}));
    page->setAlarmFolder(QString());
    QCOMPARE(page.rows("listWidget"), QStringList());
}

void CamerWindowHistoryTest::showsARecord()
{
    putRecord(first, "36.2,34.0,0.97", {{"a.png", Qt::red}, {"b.png", Qt::green}});
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    open(page, first);
    QCOMPARE(readings(page), QStringList({"36.2", "34.0", "0.97"}));
    QCOMPARE(page.rows("listWidget_3"), QStringList({"a.png", "b.png"}));
    QVERIFY(!page.get<QListWidget>("listWidget_3")->item(0)->icon().isNull());
    QCOMPARE(page.get<QListWidget>("listWidget_3")->currentRow(), 0);
    QCOMPARE(page->historyRow, 0);
    QCOMPARE(page->historyPixmaps.size(), 2);
    QCOMPARE(page->historyPixmaps[0].size(), QSize(240, 320));
    QCOMPARE(shown(page), QColor(Qt::red));
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
    open(page, first);
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
    open(page, first);
    page.get<QListWidget>("listWidget_3")->setCurrentRow(1);
    QCOMPARE(page->historyRow, 1);
    QCOMPARE(shown(page), QColor(Qt::green));
    page.get<QListWidget>("listWidget_3")->setCurrentRow(0);
    QCOMPARE(shown(page), QColor(Qt::red));
}

void CamerWindowHistoryTest::negativeRowShowsTheFirst()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}, {"b.png", Qt::green}});
    const Page page;
    page->show();
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    open(page, first);
    page.get<QListWidget>("listWidget_3")->setCurrentRow(1);
    page.get<QListWidget>("listWidget_3")->setCurrentRow(-1);
    QCOMPARE(page->historyRow, -1);
    QCOMPARE(shown(page), QColor(Qt::red));
    page->grab();
    QCOMPARE(shown(page), QColor(Qt::red));
    page->on_listWidget_3_currentRowChanged(1000);
    QCOMPARE(shown(page), QColor(Qt::black));
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
    open(page, first);
    QCOMPARE(readings(page), parts);
}

void CamerWindowHistoryTest::textsAreNoMarkUp()
{
    putRecord(first, "<b>1</b>,<i>2</i>,<s>3</s>", {});
    const Page page;
    open(page, first);
    QCOMPARE(readings(page), QStringList({"<b>1</b>", "<i>2</i>", "<s>3</s>"}));
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
    open(page, first);
    QCOMPARE(shown(page), QColor(Qt::red));
    open(page, second);
    QCOMPARE(readings(page), QStringList({"4", "5", "6"}));
    QCOMPARE(page.rows("listWidget_3"), QStringList());
    QVERIFY(page->historyPixmaps.isEmpty());
    QCOMPARE(shown(page), QColor(Qt::black)); // not the record before
    page->grab();
    open(page, first);
    QCOMPARE(shown(page), QColor(Qt::red));
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
    open(page, first);
    QCOMPARE(page.rows("listWidget_3"), QStringList({"a.png", "b.png", "c.jpg", "d.png"}));
    QCOMPARE(page->historyPixmaps.size(), 4);
    QVERIFY(page->historyPixmaps.at(3).isNull());
    QCOMPARE(shown(page), QColor(Qt::black));
    page.get<QListWidget>("listWidget_3")->setCurrentRow(1);
    QCOMPARE(shown(page), QColor(Qt::green));
    page.get<QListWidget>("listWidget_3")->setCurrentRow(2);
    QCOMPARE(shown(page), QColor(Qt::black));
    page->grab();
    QVERIFY(!log.contains(QStringLiteral("null pixmap")));
}

void CamerWindowHistoryTest::recordDeletedWhileListed()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    const Page page;
    open(page, first);
    QVERIFY(QDir(path(first)).removeRecursively());
    QVERIFY(QFile::remove(path(first + QStringLiteral(".ini"))));
    QCOMPARE(page->historyPixmaps.size(), 1); // what is open stays
    open(page, first);
    QCOMPARE(readings(page), QStringList({"", "", ""}));
    QCOMPARE(page.rows("listWidget_3"), QStringList());
    QVERIFY(page->historyPixmaps.isEmpty());
}

void CamerWindowHistoryTest::pictureFollowsTheLabel()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    const Page page;
    page->resize(900, 640);
    page->show();
    open(page, first); // while its tab is behind
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
    open(page, first);
    QVERIFY(QTest::qWaitForWindowExposed(&page.window()));
    page->grab();
    const qint64 key = page.get<QLabel>("label_18")->pixmap()->cacheKey();
    const PaintCounter counter(&page.window());
    page->update();
    QTRY_VERIFY(counter.paints > 0);
    // Whatever one paint asks for is due now; a page that paints for ever would go on.
    for (int round = 0; round < 50; ++round)
        QCoreApplication::processEvents();
    QVERIFY(counter.paints <= 2);
    QCOMPARE(page.get<QLabel>("label_18")->pixmap()->cacheKey(), key);
}

void CamerWindowHistoryTest::clickOnTheFirstTabDoesNothing()
{
    putRecord(first, "1,2,3", {{"a.png", Qt::red}});
    const Page page;
    auto* const list = page.get<QListWidget>("listWidget");
    emit list->itemClicked(list->item(0));
    QCOMPARE(page.get<QTabWidget>("tabWidget")->currentIndex(), 0);
    QCOMPARE(readings(page), QStringList({"36.9", "35.2", "0.95"}));
    QVERIFY(page->historyPixmaps.isEmpty());
}

void CamerWindowHistoryTest::doubleClickOpensTheFirstRecord()
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
    QCOMPARE(readings(page), QStringList({part, part, part}));
    QCOMPARE(page->historyPixmaps.size(), 1);
}

void CamerWindowHistoryTest::doubleClickWithoutRecords()
{
    putRecord(first, "1,1,1", {});
    const Page page;
    auto* const list = page.get<QListWidget>("listWidget");
    page.get<QListWidget>("listWidget_2")->clear();
    emit list->itemDoubleClicked(list->item(0));
    QCOMPARE(page.get<QTabWidget>("tabWidget")->currentIndex(), 1);
    QCOMPARE(readings(page), QStringList({"36.9", "35.2", "0.95"}));
}

void CamerWindowHistoryTest::fiveThousandRecords()
{
    const QDir folder(m_folder);
    for (int i = 0; i < 5000; ++i)
        QVERIFY(folder.mkdir(QStringLiteral("2024010112%1").arg(i, 4, 10, QLatin1Char('0'))));
    const Page page;
    page->show();
    QCOMPARE(page.get<QListWidget>("listWidget")->count(), 5000);
    QCOMPARE(page.get<QListWidget>("listWidget_2")->count(), 5000);
    open(page, QStringLiteral("20240101124999"));
    page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    page->grab();
    QVERIFY(folder.mkdir(QStringLiteral("20240101125000")));
    page->refreshHistory();
    QCOMPARE(page.get<QListWidget>("listWidget_2")->count(), 5001);
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowHistoryTest>(argc, argv);
}

#include "camer_window_history_test.moc"
