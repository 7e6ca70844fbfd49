// SPDX-License-Identifier: MIT
#include "analysis/export/photograph_export.h"
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/browser_menu.h"
#include "analysis/windows/photo_window.h"
#include "analysis/windows/selection_job.h"
#include "config/configuration_record.h"
#include "platform/removable_drives.h"
#include "tests/analysis/pdf_reader.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QContextMenuEvent>
#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include <csignal>
#include <memory>
#include <sys/resource.h>

using analysis::ExportFormat;
using testing::photographBytes;
using testing::Shot;

namespace {

enum Entry
{
    Open,
    Csv,
    Tiff,
    Png,
    Report,
    Copy,
    Show
};

} // namespace

class BrowserMenuTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> folders;
    QString root;                   ///< of the imager's disk
    QString target;                 ///< the folder to export to
    std::unique_ptr<QWidget> frame; ///< stands in for the main window
    QPointer<photo_window> page;
    QList<QUrl> shownUrls;

    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    QString photograph(const QString& name) const
    {
        return root + QStringLiteral("DCIM_100/") + name;
    }
    void write(const QString& name, const QByteArray& bytes) const
    {
        testing::putFile(photograph(name), bytes);
    }
    static QString name(int index)
    {
        return QStringLiteral("IMG%1.bmp").arg(index, 3, 10, QLatin1Char('0'));
    }
    /// All different, some in °F.
    void addPhotographs(int count) const
    {
        for (int i = 0; i < count; ++i) {
            Shot shot;
            shot.gray = [i](int x, int y) {
                return (x + 2 * y + 7 * i) % 256;
            };
            shot.unit = i % 2;
            shot.markers = {10, 20, 30, 40, 121, 161};
            write(name(i), photographBytes(shot));
        }
    }

    void openBrowser(bool asTable = false)
    {
        page = new photo_window(nullptr, frame.get());
        page->resize(1080, 680);
        frame->resize(1080, 680);
        frame->show();
        QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
        if (asTable)
            page->findChild<QWidget*>(QStringLiteral("tab"))
                ->findChild<QPushButton*>(QStringLiteral("pushButton_3"))
                ->click();
        QCoreApplication::processEvents(); // lays the view out
    }
    QAbstractItemView& view() const
    {
        for (auto* found :
             page->findChild<QWidget*>(QStringLiteral("tab"))->findChildren<QAbstractItemView*>()) {
            if (found->objectName() != QLatin1String("listWidget"))
                return *found;
        }
        qFatal("no view");
    }
    QPoint placeOf(int row) const
    {
        return view().visualRect(view().model()->index(row, 0)).center();
    }
    void choose(const QVector<int>& rows) const
    {
        view().clearSelection();
        for (const int row : rows)
            view().selectionModel()->select(view().model()->index(row, 0),
                                            QItemSelectionModel::Select |
                                                QItemSelectionModel::Rows);
    }
    /// As the mouse would ask for it.
    BrowserMenu* menu(const QPoint& place = {5, 5}) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                view().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view().viewport(), &event);
        return page->findChild<BrowserMenu*>();
    }
    static QList<QAction*> entries(const QMenu& menu)
    {
        QList<QAction*> found;
        for (QAction* action : menu.actions()) {
            if (!action->isSeparator())
                found.append(action);
        }
        return found;
    }
    static QString enabledEntries(const QMenu& menu)
    {
        QString text;
        for (const QAction* action : entries(menu))
            text += QLatin1Char(action->isEnabled() ? '1' : '0');
        return text;
    }
    /// Chooses an entry, and in the dialog that follows a folder.
    void start(Entry entry, const QString& folder)
    {
        BrowserMenu* shown = menu();
        QVERIFY(shown);
        entries(*shown).at(entry)->trigger();
        shown->close();
        auto* dialog = frame->findChild<QFileDialog*>();
        QVERIFY(dialog);
        QVERIFY(dialog->isModal());
        QVERIFY(dialog->fileMode() == QFileDialog::Directory);
        dialog->findChild<QLineEdit*>()->setText(folder);
        QMetaObject::invokeMethod(dialog, "accept");
    }
    void start(Entry entry) { start(entry, target); }
    /// Starts it for all photographs and lets it write some files, but not all.
    void startAndStopHalfWay(Entry entry)
    {
        addPhotographs(40);
        openBrowser();
        view().selectAll();
        start(entry);
        const QDeadlineTimer deadline(30000);
        while (written().size() < 3 && !deadline.hasExpired())
            QCoreApplication::processEvents();
        QVERIFY(written().size() >= 3);
        QVERIFY(written().size() < 40);
    }
    SelectionJob* job() const { return frame->findChild<SelectionJob*>(); }
    QMessageBox* message() const { return frame->findChild<QMessageBox*>(); }
    /// The message at the end, which is confirmed.
    QString messageText()
    {
        if (!QTest::qWaitFor([this] { return message() && message()->isVisible(); }, 60000))
            return QStringLiteral("no message");
        const QString text = message()->text();
        message()->button(QMessageBox::Ok)->click();
        const bool isOver = QTest::qWaitFor([this] { return !message() && !job(); });
        return isOver ? text : QStringLiteral("not over");
    }
    QStringList written() const
    {
        return QDir(target).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QString successText(int count) const
    {
        return QStringLiteral("已在文件夹“") + QDir::toNativeSeparators(target) +
               QStringLiteral("”中写入 %1 个文件。").arg(count);
    }

public slots:
    void show(const QUrl& url) { shownUrls.append(url); }

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "show"); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    void init()
    {
        testing::profile().reset();
        shownUrls.clear();
        folders = std::make_unique<QTemporaryDir>();
        root = folders->filePath(QStringLiteral("disk/"));
        target = folders->filePath(QStringLiteral("導出 %1 out"));
        QVERIFY(QDir().mkpath(root + QStringLiteral("DCIM_100")));
        QVERIFY(QDir().mkpath(target));
        platform::setDriveProvider([this] { return QStringList(root); });
        frame = std::make_unique<QWidget>();
    }
    void cleanup()
    {
        frame.reset();
        platform::setDriveProvider({});
    }

    // --- the menu ------------------------------------------------------------------------------

    void theEntries()
    {
        openBrowser();
        QStringList texts;
        for (const QAction* action : entries(*menu()))
            texts.append(action->text());
        QCOMPARE(
            texts,
            QStringList({QStringLiteral("打开"), QStringLiteral("导出温度 (CSV)..."),
                         QStringLiteral("导出温度 (TIFF)..."), QStringLiteral("导出图片 (PNG)..."),
                         QStringLiteral("导出报告 (PDF)..."), QStringLiteral("复制到文件夹..."),
                         QStringLiteral("在文件管理器中显示")}));
    }

    void whatCanBeChosen_data()
    {
        QTest::addColumn<bool>("asTable");
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<QString>("enabled");
        for (const bool asTable : {false, true}) {
            const char* kind = asTable ? "table" : "thumbnails";
            QTest::addRow("%s, none", kind) << asTable << QVector<int>() << "0000001";
            QTest::addRow("%s, one", kind) << asTable << QVector<int>{1} << "1111111";
            QTest::addRow("%s, many", kind) << asTable << QVector<int>{0, 2} << "0111111";
        }
    }
    void whatCanBeChosen()
    {
        QFETCH(bool, asTable);
        QFETCH(QVector<int>, rows);
        QFETCH(QString, enabled);
        addPhotographs(3);
        openBrowser(asTable);
        choose(rows);
        QPointer<BrowserMenu> shown = menu();
        QVERIFY(shown && shown->isVisible());
        QCOMPARE(enabledEntries(*shown), enabled);
        shown->close();
        QTRY_VERIFY(!shown);
    }

    void withoutADiskNothingCanBeChosen()
    {
        platform::setDriveProvider([] { return QStringList(); });
        openBrowser();
        QCOMPARE(enabledEntries(*menu()), QStringLiteral("0000000"));
    }

    void theTableSelectsAsTheThumbnailsDo()
    {
        addPhotographs(4);
        openBrowser(true);
        QVERIFY(view().selectionMode() == QAbstractItemView::ExtendedSelection);
        QVERIFY(view().selectionBehavior() == QAbstractItemView::SelectRows);
        QVERIFY(view().contextMenuPolicy() == Qt::CustomContextMenu);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, placeOf(0));
        QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf(2));
        QCOMPARE(view().selectionModel()->selectedRows().size(), 2);
        // The right button keeps a selection that it meets, and takes what it meets otherwise.
        QTest::mousePress(view().viewport(), Qt::RightButton, {}, placeOf(2));
        QCOMPARE(view().selectionModel()->selectedRows().size(), 2);
        QTest::mouseRelease(view().viewport(), Qt::RightButton, {}, placeOf(2));
        QTest::mousePress(view().viewport(), Qt::RightButton, {}, placeOf(3));
        QCOMPARE(view().selectionModel()->selectedRows().size(), 1);
    }

    void theMenuKeyOpensItOnTheCurrentPhotograph_data()
    {
        QTest::addColumn<bool>("asTable");
        QTest::newRow("thumbnails") << false;
        QTest::newRow("table") << true;
    }
    void theMenuKeyOpensItOnTheCurrentPhotograph()
    {
        QFETCH(bool, asTable);
        addPhotographs(3);
        openBrowser(asTable);
        view().setCurrentIndex(view().model()->index(1, 0));
        QContextMenuEvent event(QContextMenuEvent::Keyboard, view().rect().center());
        QCoreApplication::sendEvent(&view(), &event);
        auto* shown = page->findChild<BrowserMenu*>();
        QVERIFY(shown);
        QCOMPARE(page->findChildren<BrowserMenu*>().size(), 1);
        QCOMPARE(enabledEntries(*shown), QStringLiteral("1111111"));
        QCOMPARE(shown->pos(), view().viewport()->mapToGlobal(placeOf(1)));
    }

    void theMenuKeyOpensItWithoutPhotographs()
    {
        openBrowser();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
        QCoreApplication::sendEvent(&view(), &event);
        auto* shown = page->findChild<BrowserMenu*>();
        QVERIFY(shown);
        QCOMPARE(enabledEntries(*shown), QStringLiteral("0000001"));
    }

    void openShowsThePhotograph()
    {
        addPhotographs(3);
        openBrowser();
        choose({2});
        entries(*menu()).at(Open)->trigger();
        const auto* opened = page->findChild<Analysis_Widget*>();
        QVERIFY(opened);
        QCOMPARE(opened->fileName, name(2));
    }

    void theFolderIsShown()
    {
        openBrowser();
        entries(*menu()).at(Show)->trigger();
        QCOMPARE(shownUrls, QList<QUrl>({QUrl::fromLocalFile(root + QStringLiteral("DCIM_100"))}));
        QVERIFY(QDir(root).removeRecursively());
        QPointer<BrowserMenu>(page->findChild<BrowserMenu*>())->close();
        QTRY_VERIFY(!page->findChild<BrowserMenu*>());
        entries(*menu()).at(Show)->trigger();
        QCOMPARE(messageText(), QStringLiteral("无法打开文件夹“%1”。")
                                    .arg(QDir::toNativeSeparators(page->imageFolder)));
        QCOMPARE(shownUrls.size(), 1);
    }

    // --- what is written -----------------------------------------------------------------------

    void temperaturesAndPictures_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("modelIndex");
        QTest::newRow("csv") << int(Csv) << int(ExportFormat::Csv) << 0;
        QTest::newRow("tiff") << int(Tiff) << int(ExportFormat::Tiff) << 0;
        QTest::newRow("png") << int(Png) << int(ExportFormat::Png) << 0;
        QTest::newRow("csv, other layout") << int(Csv) << int(ExportFormat::Csv) << 1;
        QTest::newRow("csv, no layout") << int(Csv) << int(ExportFormat::Csv) << -1;
    }
    void temperaturesAndPictures()
    {
        QFETCH(int, entry);
        QFETCH(int, format);
        QFETCH(int, modelIndex);
        addPhotographs(4);
        if (modelIndex == 1) {
            for (int i = 0; i < 4; ++i) {
                Shot shot;
                shot.model = 1;
                shot.gray = [](int x, int) {
                    return x;
                };
                write(name(i), photographBytes(shot));
            }
        }
        openBrowser(true);
        page->modelIndex = modelIndex;
        choose({0, 1, 3});
        start(Entry(entry));
        QCOMPARE(messageText(), successText(3));

        analysis::ExportOptions options;
        options.format = ExportFormat(format);
        options.modelIndex = modelIndex == 1 ? 1 : 0;
        analysis::PhotographReader reader;
        const QString suffix = analysis::suffixOf(options.format);
        QStringList expected;
        for (const int i : {0, 1, 3}) {
            const QString file = QStringLiteral("IMG00%1.").arg(i) + suffix;
            expected.append(file);
            const QString alone = folders->filePath(file);
            QVERIFY(exportPhotograph(photograph(name(i)), reader, alone, options).isGood());
            QCOMPARE(contents(target + QLatin1Char('/') + file), contents(alone));
        }
        QCOMPARE(written(), expected);
    }

    /// What the file says, in the unit that it says it in.
    void everyPhotographInItsOwnUnit()
    {
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        write(QStringLiteral("c.bmp"), photographBytes(shot));
        shot.unit = 1;
        write(QStringLiteral("f.bmp"), photographBytes(shot));
        openBrowser();
        choose({0, 1});
        start(Csv);
        QCOMPARE(messageText(), successText(2));
        QVERIFY(contents(target + QStringLiteral("/c.csv")).startsWith("50,50,"));
        QVERIFY(contents(target + QStringLiteral("/f.csv")).startsWith("50,50,"));
    }

    void reports()
    {
        addPhotographs(2);
        openBrowser();
        choose({0, 1});
        start(Report);
        QCOMPARE(messageText(), successText(2));
        QCOMPARE(written(),
                 QStringList({QStringLiteral("IMG000.pdf"), QStringLiteral("IMG001.pdf")}));
        for (const QString& file : written()) {
            const QByteArray pdf = contents(target + QLatin1Char('/') + file);
            QVERIFY(pdf.startsWith("%PDF-"));
            QVERIFY(pdf.contains("/Count 2"));
        }
    }

    /// Russian captions are longer, so their values stand further right.
    void reportsInTheConfiguredLanguage()
    {
        addPhotographs(2);
        openBrowser();
        choose({0});
        start(Report);
        QCOMPARE(messageText(), successText(1));
        config::create(QStringLiteral("RU"));
        choose({1});
        start(Report);
        QCOMPARE(messageText(), successText(1));
        const auto placeOfName = [this](int index) {
            const QString report =
                target + QStringLiteral("/IMG%1.pdf").arg(index, 3, 10, QLatin1Char('0'));
            for (const testing::PdfWord& word : testing::pdfWords(report).value(0)) {
                if (word.text == name(index))
                    return word.box.x();
            }
            return -1.0;
        };
        QVERIFY(placeOfName(0) > 0);
        QVERIFY(placeOfName(1) > placeOfName(0));
    }

    void copiesKeepBytesAndTime()
    {
        addPhotographs(2);
        const QString odd = QStringLiteral("Снимок №1 %1&.BMP");
        write(odd, QByteArray("any bytes\0\r\n", 12));
        const QDateTime changed(QDate(2021, 2, 3), QTime(4, 5, 6), Qt::UTC);
        {
            QFile file(photograph(odd));
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(changed, QFileDevice::FileModificationTime));
        }
        openBrowser();
        choose({0, 1, 2});
        start(Copy);
        QCOMPARE(messageText(), successText(3));
        QCOMPARE(written().size(), 3);
        for (const QString& file : {name(0), name(1), odd})
            QCOMPARE(contents(target + QLatin1Char('/') + file), contents(photograph(file)));
        QCOMPARE(QFileInfo(target + QLatin1Char('/') + odd).lastModified().toUTC(), changed);
    }

    /// A path that begins with a colon is something built into the program; a name may.
    void aNameMayBeginWithAColon_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("file");
        QTest::newRow("csv") << int(Csv) << QStringLiteral(":night.csv");
        QTest::newRow("tiff") << int(Tiff) << QStringLiteral(":night.tiff");
        QTest::newRow("png") << int(Png) << QStringLiteral(":night.png");
        QTest::newRow("report") << int(Report) << QStringLiteral(":night.pdf");
        QTest::newRow("copy") << int(Copy) << QStringLiteral(":night.bmp");
    }
    void aNameMayBeginWithAColon()
    {
        QFETCH(int, entry);
        QFETCH(QString, file);
        write(QStringLiteral(":night.bmp"), photographBytes(Shot()));
        openBrowser();
        choose({0});
        start(Entry(entry));
        QCOMPARE(messageText(), successText(1));
        QCOMPARE(written(), QStringList({file}));
        QVERIFY(QFileInfo(target + QLatin1Char('/') + file).size() > 100);
    }

    /// Other events have their turn all the time, and a copy that is stopped leaves nothing.
    void aLargeFileIsCopiedInPieces_data()
    {
        QTest::addColumn<bool>("stopped");
        QTest::newRow("to its end") << false;
        QTest::newRow("stopped") << true;
    }
    void aLargeFileIsCopiedInPieces()
    {
        QFETCH(bool, stopped);
        constexpr qint64 size = 100'000'000;
        QFile large(photograph(name(0)));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(size));
        openBrowser();
        choose({0});
        int rounds = 0;
        QTimer idle;
        connect(&idle, &QTimer::timeout, this, [&] {
            if (++rounds == 20 && stopped)
                job()->reject();
        });
        start(Copy);
        idle.start(0);
        const QString text = messageText();
        QVERIFY2(rounds >= 20, qPrintable(QString::number(rounds)));
        if (stopped) {
            QVERIFY(text.startsWith(QStringLiteral("没有写入任何文件。")));
            QCOMPARE(written(), QStringList());
        } else {
            QCOMPARE(text, successText(1));
            QCOMPARE(QFileInfo(target + QLatin1Char('/') + name(0)).size(), size);
        }
    }

    void noFolderNoWork()
    {
        addPhotographs(1);
        openBrowser();
        choose({0});
        entries(*menu()).at(Csv)->trigger();
        frame->findChild<QFileDialog*>()->reject();
        QTRY_VERIFY(!frame->findChild<QFileDialog*>());
        QVERIFY(!job());
        QVERIFY(!message());
    }

    // --- what goes wrong -----------------------------------------------------------------------

    void badPhotographsAmongGoodOnes()
    {
        addPhotographs(6);
        Shot other;
        other.machineId = 7;
        write(name(1), photographBytes(other));
        write(name(2), photographBytes(Shot()).left(1000));
        openBrowser();
        QVERIFY(QFile::remove(photograph(name(4))));
        choose({0, 1, 2, 3, 4, 5});
        start(Csv);
        QTRY_VERIFY(message());
        QVERIFY(message()->icon() == QMessageBox::Warning);
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines.at(0), successText(3));
        QCOMPARE(lines.at(1), QStringLiteral("3 张照片未能处理："));
        QCOMPARE(lines.at(2), QStringLiteral("IMG001.bmp：不是受支持设备的照片（机器ID 7）"));
        QCOMPARE(lines.at(3), QStringLiteral("IMG002.bmp：文件不完整（1000/307792 字节）"));
        QVERIFY(lines.at(4).startsWith(QStringLiteral("IMG004.bmp：无法读取（")));
        QCOMPARE(written(), QStringList({QStringLiteral("IMG000.csv"), QStringLiteral("IMG003.csv"),
                                         QStringLiteral("IMG005.csv")}));
    }

    void badPhotographsAmongReportsAndCopies_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("reports") << int(Report) << QStringLiteral(".pdf");
        QTest::newRow("copies") << int(Copy) << QStringLiteral(".bmp");
    }
    void badPhotographsAmongReportsAndCopies()
    {
        QFETCH(int, entry);
        QFETCH(QString, suffix);
        addPhotographs(3);
        openBrowser();
        QVERIFY(QFile::remove(photograph(name(1))));
        choose({0, 1, 2});
        start(Entry(entry));
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(0), successText(2));
        QVERIFY(lines.at(2).startsWith(QStringLiteral("IMG001.bmp：无法读取（")));
        QCOMPARE(written(), QStringList({QStringLiteral("IMG000") + suffix,
                                         QStringLiteral("IMG002") + suffix}));
    }

    void whatIsThereStays_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("file");
        QTest::newRow("csv") << int(Csv) << "IMG001.csv";
        QTest::newRow("report") << int(Report) << "IMG001.pdf";
        QTest::newRow("copy") << int(Copy) << "IMG001.bmp";
    }
    void whatIsThereStays()
    {
        QFETCH(int, entry);
        QFETCH(QString, file);
        addPhotographs(2);
        QFile there(target + QLatin1Char('/') + file);
        QVERIFY(there.open(QIODevice::WriteOnly));
        there.write("mine");
        there.close();
        openBrowser();
        choose({0, 1});
        start(Entry(entry));
        QCOMPARE(messageText(),
                 successText(1) + QStringLiteral("\n1 张照片未能处理：\n"
                                                 "IMG001.bmp：目标文件夹中已有同名文件"));
        QCOMPARE(contents(there.fileName()), QByteArray("mine"));
        QCOMPARE(written().size(), 2);
    }

    void manyFailuresFillTheDetails()
    {
        addPhotographs(11);
        openBrowser();
        QVERIFY(QDir(root + QStringLiteral("DCIM_100")).removeRecursively());
        view().selectAll();
        start(Csv);
        QTRY_VERIFY(message());
        QCOMPARE(message()->detailedText().split(QLatin1Char('\n')).size(), 11);
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 2 + 8 + 1);
        QCOMPARE(lines.first(), QStringLiteral("没有写入任何文件。"));
        QCOMPARE(lines.last(), QStringLiteral("另有 3 张，见详细信息。"));
    }

    void cancellingLeavesWholeFilesOnly_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::newRow("by the button") << true;
        QTest::newRow("by closing the dialog") << false;
    }
    void cancellingLeavesWholeFilesOnly()
    {
        QFETCH(bool, byButton);
        startAndStopHalfWay(Csv);
        QPointer<SelectionJob> running = job();
        QVERIFY(running);
        if (byButton)
            running->findChild<QPushButton*>()->click();
        else
            running->close();
        const int count = written().size();
        const QString text = messageText();
        QVERIFY(!running);
        QCOMPARE(text, successText(count) +
                           QStringLiteral("\n操作已取消，还有 %1 张照片未处理。").arg(40 - count));
        QCOMPARE(written().size(), count);
        for (const QString& file : written()) {
            QVERIFY(file.endsWith(QLatin1String(".csv")));
            QCOMPARE(contents(target + QLatin1Char('/') + file).count('\n'), 320);
        }
    }

    void progressIsShownWhenItTakesAWhile()
    {
        // One file under many names, more than any computer gets done in the meantime.
        constexpr int count = 2000;
        addPhotographs(1);
        for (int i = 1; i < count; ++i)
            QVERIFY(QFile::link(photograph(name(0)), photograph(name(i))));
        openBrowser();
        view().selectAll();
        start(Report);
        QPointer<SelectionJob> running = job();
        QVERIFY(running);
        QVERIFY(!running->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(running && running->isVisible(), 30000);
        QVERIFY(running->isModal());
        const auto* bar = running->findChild<QProgressBar*>();
        QCOMPARE(bar->maximum(), count);
        QCOMPARE(bar->value(), written().size());
        QCOMPARE(running->findChild<QLabel*>()->text(), page->fileNames.at(bar->value()));
        QTest::keyClick(running, Qt::Key_Escape);
        QVERIFY(messageText().contains(QStringLiteral("操作已取消")));
    }

    /// The photographs go, and with them the page; work, progress and message go on without it.
    void theDiskMayBePulledOutHalfWay()
    {
        startAndStopHalfWay(Csv);
        QVERIFY(QDir(root).removeRecursively());
        delete page;
        const int count = written().size();
        QTRY_VERIFY(message());
        QCOMPARE(message()->detailedText().split(QLatin1Char('\n')).size(), 40 - count);
        QVERIFY(messageText().startsWith(successText(count)));
        QCOMPARE(written().size(), count);
    }

    void thePageMayGoWhileTheMenuIsUp()
    {
        openBrowser();
        const QPointer<BrowserMenu> shown = menu();
        delete page;
        QVERIFY(!shown);
    }

    void thePageMayGoWhileTheFolderIsAskedFor()
    {
        addPhotographs(1);
        openBrowser();
        choose({0});
        entries(*menu()).at(Csv)->trigger();
        QVERIFY(frame->findChild<QFileDialog*>()->isVisible());
        delete page;
        QTRY_VERIFY(!frame->findChild<QFileDialog*>());
        QVERIFY(!job());
    }

    /// A box that nobody waits for must not be the page's own: whoever ends a page waits for those.
    void thePageMayGoWhileAWarningIsUp()
    {
        write(name(0), "x");
        openBrowser();
        choose({0});
        entries(*menu()).at(Open)->trigger();
        QVERIFY(message() && message()->isVisible());
        QCOMPARE(message()->text(), QStringLiteral("该图片解析失败，请确认型号是否正确!"));
        QCOMPARE(message()->parentWidget(), frame.get());
        delete page;
        QTRY_VERIFY(!message());
    }

    void theWindowMayGoHalfWay()
    {
        startAndStopHalfWay(Csv);
        const int count = written().size();
        frame.reset();
        QCoreApplication::processEvents();
        QCOMPARE(written().size(), count);
    }

    void aTargetThatGoesAway()
    {
        startAndStopHalfWay(Copy);
        const int count = written().size();
        QVERIFY(QDir(target).removeRecursively());
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.at(0), successText(count));
        QCOMPARE(lines.at(1), QStringLiteral("%1 张照片未能处理：").arg(40 - count));
        QVERIFY(lines.at(2).startsWith(name(count) + QStringLiteral("：无法写入（")));
        QVERIFY(!QDir(target).exists());
    }

    void aFullDisk()
    {
        addPhotographs(3);
        openBrowser();
        choose({0, 1, 2});
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = before;
        limit.rlim_cur = 100'000;
        setrlimit(RLIMIT_FSIZE, &limit);
        start(Tiff);
        const QString text = messageText();
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
        QVERIFY(text.startsWith(QStringLiteral("没有写入任何文件。\n3 张照片未能处理：\n"
                                               "IMG000.bmp：无法写入（")));
        QCOMPARE(written(), QStringList());
    }

    /// Exporting leaves the imager's disk as it was.
    void nothingIsWrittenToTheDisk()
    {
        addPhotographs(2);
        const auto listing = [this] {
            return QDir(root + QStringLiteral("DCIM_100"))
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
        };
        const QStringList before = listing();
        openBrowser();
        for (const Entry entry : {Csv, Tiff, Png, Report, Copy}) {
            choose({0, 1});
            start(entry);
            QCOMPARE(messageText(), successText(2));
        }
        QCOMPARE(written().size(), 10);
        QCOMPARE(listing(), before);
    }
};

int main(int argc, char** argv)
{
    return testing::run<BrowserMenuTest>(argc, argv);
}

#include "browser_menu_test.moc"
