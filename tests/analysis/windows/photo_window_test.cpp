#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/photo_window.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "platform/removable_drives.h"
#include "resources/resources.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/accessible.h"
#include "tests/support/test_run.h"

#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableWidget>
#include <QTextDocumentFragment>

#include <memory>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using testing::photographBytes;
using testing::Shot;

/// Stands in for the main window.
class Owner : public QObject
{
    Q_OBJECT

public:
    QStringList entered;

public slots:
    void Photo_itemEntered(QListWidgetItem* item) { entered.append(item->text()); }
};

class PhotoWindowTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> disks;
    QStringList drives;
    std::unique_ptr<photo_window> window;

    /// A drive's root, ending in "/", with the given folder on it.
    QString addDrive(const QString& name, const QString& folder = QStringLiteral("DCIM_100"))
    {
        const QString root = disks->filePath(name) + QLatin1Char('/');
        QDir().mkpath(root + folder);
        drives.append(root);
        return root;
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile out(path);
        if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
            qFatal("%s", qPrintable(path));
    }

    static void addPhotographs(const QString& root, const QStringList& names,
                               const Shot& shot = Shot())
    {
        const QByteArray bytes = photographBytes(shot);
        for (const QString& name : names)
            write(root + QStringLiteral("DCIM_100/") + name, bytes);
    }

    void openWindow(QObject* owner = nullptr)
    {
        window = std::make_unique<photo_window>(owner);
        window->resize(1080, 680);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    template<typename T>
    T& child(const char* name) const
    {
        auto* found = window->findChild<T*>(QLatin1String(name));
        if (!found)
            qFatal("no child named %s", name);
        return *found;
    }
    QListWidget& driveList() const { return child<QListWidget>("listWidget"); }
    QTabWidget& tabs() const { return child<QTabWidget>("tabWidget"); }
    /// On the first tab; the analysis window on the second has buttons of the same names.
    void click(const char* button) const
    {
        child<QWidget>("tab").findChild<QPushButton*>(QLatin1String(button))->click();
    }

    /// The list of thumbnails, null while the table is shown.
    QListWidget* list() const
    {
        for (QListWidget* found : window->findChildren<QListWidget*>()) {
            if (found != &driveList())
                return found;
        }
        return nullptr;
    }
    QTableWidget* table() const { return child<QWidget>("tab").findChild<QTableWidget*>(); }
    Analysis_Widget* opened() const
    {
        return child<QWidget>("tab_2").findChild<Analysis_Widget*>();
    }
    QMessageBox* message() const { return window->findChild<QMessageBox*>(); }

    QStringList shownNames() const
    {
        QStringList names;
        for (int i = 0; i < list()->count(); ++i)
            names.append(list()->item(i)->text());
        return names;
    }
    int readThumbnails() const
    {
        return int(std::count_if(window->thumbnails.begin(), window->thumbnails.end(),
                                 [](const QPixmap& pixmap) { return !pixmap.isNull(); }));
    }

    static QStringList names(int count)
    {
        QStringList list;
        for (int i = 0; i < count; ++i)
            list.append(QStringLiteral("IMG%1.bmp").arg(i, 5, 10, QLatin1Char('0')));
        return list;
    }

private slots:
    void initTestCase() { resources::load(); }
    void init()
    {
        testing::profile().reset();
        disks = std::make_unique<QTemporaryDir>();
        drives.clear();
        platform::setDriveProvider([this] { return drives; });
    }
    void cleanup()
    {
        window.reset();
        platform::setDriveProvider({});
    }

    void slotsStandInTheirOrder()
    {
        const QMetaObject& meta = photo_window::staticMetaObject;
        QStringList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        QCOMPARE(signatures,
                 QStringList({QStringLiteral("on_pushButton_3_clicked()"),
                              QStringLiteral("on_pushButton_4_clicked()"),
                              QStringLiteral("table_item_doubleclicked(QTableWidgetItem*)"),
                              QStringLiteral("list_item_doubleclicked(QListWidgetItem*)"),
                              QStringLiteral("on_listWidget_currentRowChanged(int)"),
                              QStringLiteral("on_pushButton_clicked()")}));
    }

    void theForm()
    {
        openWindow();
        QCOMPARE(window->windowTitle(), QStringLiteral("Therma Desk"));
        QCOMPARE(tabs().count(), 2);
        QCOMPARE(tabs().tabText(0), QStringLiteral("移动磁盘"));
        QCOMPARE(tabs().tabText(1), QStringLiteral("图片信息"));
        QCOMPARE(tabs().currentIndex(), 0);
        for (const char* name : {"pushButton", "pushButton_3", "pushButton_4"}) {
            const auto& button = child<QPushButton>(name);
            QVERIFY(!button.icon().pixmap(24).isNull());
            QVERIFY(!button.toolTip().isEmpty());
            QCOMPARE(button.accessibleName(), button.toolTip());
            QVERIFY(button.focusPolicy() & Qt::TabFocus);
        }
        QVERIFY(window->minimumSizeHint().width() <= 1090);
        QVERIFY(window->minimumSizeHint().height() <= 690);
    }

    void iconsAreThoseOfTheResources()
    {
        addDrive(QStringLiteral("disk"));
        openWindow();
        const auto resource = [](const char* name) {
            return QPixmap(QStringLiteral(":/photo/%1.png").arg(QLatin1String(name)));
        };
        const QVector<std::pair<const char*, const char*>> icons{
            {"pushButton", "reroad"}, {"pushButton_3", "list1"}, {"pushButton_4", "list2"}};
        for (const auto& [button, name] : icons)
            QCOMPARE(child<QPushButton>(button).icon().pixmap(24).toImage(),
                     QIcon(resource(name)).pixmap(24).toImage());
        QCOMPARE(driveList().item(0)->icon().pixmap(32).toImage(),
                 resource("save")
                     .scaled(32, 32, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                     .toImage());
    }

    void whatTheSheetsSay()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        QCOMPARE(driveList().styleSheet(), QStringLiteral("border:2px solid rgb(200,200,200);\n"));
        QVERIFY(child<QPushButton>("pushButton").styleSheet().contains("border-radius"));
        for (const char* rule :
             {"QListWidget::item{\nbackground-color: rgb(255, 255, 255);padding:0;border-radius: "
              "8px;\n}",
              "QListWidget::item::hover{\nbackground-color: rgb(91, 91, 91);\ncolor: rgb(255, 255, "
              "255);padding:8;border-radius: 8px;\n}",
              "QListWidget::item::Focus{\ncolor: rgb(255, 255, 255);background-color:  rgb(50, 50, "
              "50);border-radius: 8px;\n}"})
            QVERIFY2(list()->styleSheet().contains(QLatin1String(rule)), rule);
        click("pushButton_3");
        for (const char* rule :
             {"QTableWidget{\nselection-color: rgb(255, 255, 255);\nselection-background-color:  "
              "rgb(91, 91, 91);\n}",
              "QTableWidget::item::hover{\ncolor: rgb(255, 255, 255);background-color: rgb(91, 91, "
              "91);border-radius: 5px;\n}",
              "QHeaderView::section{\nborder:1px groove white;color: rgb(255, 255, "
              "255);background-color: rgb(52, 52, 52);\n}"})
            QVERIFY2(table()->styleSheet().contains(QLatin1String(rule)), rule);
    }

    void withoutADriveNothingIsListed()
    {
        // Not even what the working directory may hold.
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(disks->path()));
        write(QStringLiteral("a.bmp"), "x");
        openWindow();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(driveList().count(), 0);
        QCOMPARE(window->imageFolder, QString());
        QCOMPARE(window->modelIndex, -1);
        QCOMPARE(window->fileNames, QStringList());
        QCOMPARE(list()->count(), 0);
    }

    void aVolumeNameIsNoMarkUp()
    {
        const QString plain = addDrive(QStringLiteral("plain"));
        const QString root = addDrive(QStringLiteral("<b>hot"));
        openWindow();
        QCOMPARE(driveList().item(0)->toolTip(), plain);
        const QString tip = driveList().item(1)->toolTip();
        QCOMPARE(driveList().item(1)->text(), root);
        QVERIFY(tip.contains(QLatin1String("&lt;b&gt;hot")));
    }

    void drivesAreListedInOrder()
    {
        const QString b = addDrive(QStringLiteral("b"));
        const QString a = addDrive(QStringLiteral("a"));
        openWindow();
        QCOMPARE(driveList().count(), 2);
        QCOMPARE(driveList().item(0)->text(), b);
        QCOMPARE(driveList().item(1)->text(), a);
        QVERIFY(!driveList().item(0)->icon().isNull());
        QCOMPARE(driveList().currentRow(), 0);
        QCOMPARE(window->listDrives(), QStringList({b, a}));
    }

    void onlyPhotographsAreListedByName()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        const QString folder = root + QStringLiteral("DCIM_100/");
        addPhotographs(root, {QStringLiteral("b.bmp"), QStringLiteral("a.bmp"),
                              QStringLiteral("C.BMP"), QStringLiteral("10.bmp")});
        for (const char* other : {"a.jpg", "bmp", "a.bmp.txt", "a.bmpx"})
            write(folder + QLatin1String(other), "x");
        QVERIFY(QDir().mkpath(folder + QStringLiteral("folder.bmp")));
        testing::LogRecorder log;
        openWindow();
        QCOMPARE(window->imageFolder, root + QStringLiteral("DCIM_100"));
        QCOMPARE(window->modelIndex, 0);
        const QStringList expected{QStringLiteral("10.bmp"), QStringLiteral("C.BMP"),
                                   QStringLiteral("a.bmp"), QStringLiteral("b.bmp")};
        QCOMPARE(window->fileNames, expected);
        QCOMPARE(shownNames(), expected);
        QCOMPARE(window->fileSizes,
                 QStringList(QVector<QString>(4, QStringLiteral("300.7")).toList()));
        QCOMPARE(window->fileDates.size(), 4);
        QCOMPARE(window->thumbnails.size(), 4);
        const QFileInfo file(folder + QStringLiteral("a.bmp"));
        const QDateTime birth = file.birthTime();
        QCOMPARE(window->fileDates.at(2),
                 QLocale::c().toString(birth.isValid() ? birth : file.metadataChangeTime(),
                                       QStringLiteral("yyyy/MM/dd HH:mm")));
        QVERIFY(log.contains(QStringLiteral("所含文件夹: (\"DCIM_100\")")) ||
                log.contains(QStringLiteral("所含文件夹: (DCIM_100)")));
        QVERIFY(log.contains(QStringLiteral("图片地址 ") + window->imageFolder));
        QVERIFY(log.contains(QStringLiteral("闪退测试——————photo_window::get_image_information")));
    }

#ifndef Q_OS_WIN
    void onlyRegularFilesArePhotographs()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        const QString folder = root + QStringLiteral("DCIM_100/");
        const QString pipe = disks->filePath(QStringLiteral("pipe"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QCOMPARE(::mkfifo(QFile::encodeName(folder + "pipe.bmp").constData(), 0600), 0);
        addPhotographs(root, {QStringLiteral("b.bmp")});
        QVERIFY(QFile::link(pipe, folder + QStringLiteral("a.bmp")));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), folder + QStringLiteral("c.bmp")));
        QVERIFY(QFile::link(disks->path(), folder + QStringLiteral("d.bmp")));
        QVERIFY(QFile::link(QStringLiteral("b.bmp"), folder + QStringLiteral("e.bmp")));
        openWindow();
        const QStringList expected{QStringLiteral("b.bmp"), QStringLiteral("e.bmp")};
        QCOMPARE(window->fileNames, expected);
        QTRY_VERIFY(!window->thumbnails.at(1).isNull());
        window->list_item_doubleclicked(list()->item(1));
        QVERIFY(opened());
    }
#endif

    void aDriveWithoutTheFolderListsNothing_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("none") << QString();
        if (!testing::onWindows()) // where names differ in more than case
            QTest::newRow("another case") << QStringLiteral("dcim_100");
        QTest::newRow("longer") << QStringLiteral("DCIM_1000");
        QTest::newRow("the other model's") << QStringLiteral("Images");
    }
    void aDriveWithoutTheFolderListsNothing()
    {
        QFETCH(QString, folder);
        const QString root = addDrive(QStringLiteral("disk"), folder);
        write(root + folder + QStringLiteral("/a.bmp"), "x");
        openWindow();
        QCOMPARE(window->imageFolder, root + QStringLiteral("DCIM_100"));
        QCOMPARE(window->modelIndex, -1);
        QCOMPARE(list()->count(), 0);
    }

    // --- thumbnails ----------------------------------------------------------------------------

    void thumbnailsInViewAreRead()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        Shot shot;
        shot.gray = [](int, int) {
            return 200;
        };
        addPhotographs(root, names(40), shot);
        openWindow();
        QTRY_VERIFY(!window->thumbnails.first().isNull());
        const QPixmap shown = window->thumbnails.first();
        QCOMPARE(shown.toImage().pixelColor(shown.width() / 2, shown.height() / 2),
                 QColor(0, 0, 200)); // as the file's bitmap has it
        QVERIFY(window->thumbnails.last().isNull());
        QVERIFY(readThumbnails() < 40);
        QCOMPARE(list()->item(0)->icon().pixmap(195, 195).toImage(), shown.toImage());

        list()->scrollToBottom();
        QTRY_VERIFY(!window->thumbnails.last().isNull());
    }

    void theThumbnailList()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, names(2));
        openWindow();
        QVERIFY(list()->hasMouseTracking());
        QVERIFY(list()->contextMenuPolicy() == Qt::CustomContextMenu);
        QVERIFY(list()->viewMode() == QListView::IconMode);
        QVERIFY(list()->selectionMode() == QAbstractItemView::ExtendedSelection);
        QVERIFY(list()->frameShape() == QFrame::NoFrame);
        QVERIFY(!list()->dragEnabled());
        QCOMPARE(list()->iconSize(), QSize(195, 195));
        QVERIFY(list()->uniformItemSizes());
        QCOMPARE(list()->spacing(), 13);
        QCOMPARE(list()->font().pixelSize(), 15);
        const QListWidgetItem* item = list()->item(0);
        QCOMPARE(item->sizeHint(), QSize(165, 220));
        QVERIFY(item->textAlignment() == int(Qt::AlignHCenter | Qt::AlignBottom));
        QVERIFY(!(item->flags() & Qt::ItemIsEditable));
    }

    void roundedThumbnails()
    {
        QPixmap picture(240, 320);
        picture.fill(Qt::red);
        const QImage rounded =
            photo_window::roundedThumbnail(picture, QSize(195, 195), 15).toImage();
        QCOMPARE(rounded.size(), QSize(195, 195));
        for (const QPoint& corner :
             {QPoint(0, 0), QPoint(194, 0), QPoint(0, 194), QPoint(194, 194)})
            QCOMPARE(rounded.pixelColor(corner).alpha(), 0);
        QCOMPARE(rounded.pixelColor(97, 0), QColor(Qt::red));
        QCOMPARE(rounded.pixelColor(5, 5), QColor(Qt::red));
        QVERIFY(photo_window::roundedThumbnail(QPixmap(), QSize(195, 195), 15).isNull());
    }

    /// What an item with this name shows, its picture apart.
    QImage shownName(const QString& name)
    {
        addPhotographs(addDrive(name), {name});
        openWindow();
        driveList().setCurrentRow(drives.size() - 1);
        list()->clearSelection();
        const QRect item = list()->visualItemRect(list()->item(0));
        return list()->viewport()->grab(item).toImage().copy(0, 190, item.width(), 30);
    }

    /// A name that loses a part shows the same as another one that differs only there.
    void theImagersNamesAreShownWhole()
    {
        const QString name = QStringLiteral("M26112109301500.bmp"); // 19 characters, wide ones
        const QImage shown = shownName(name);
        for (int i = 0; i < name.size(); ++i) {
            QString other = name;
            other[i] = name.at(i) == QLatin1Char('8') ? QLatin1Char('9') : QLatin1Char('8');
            if (!other.endsWith(QLatin1String(".bmp")))
                continue;
            QVERIFY2(shownName(other) != shown, qPrintable(other));
        }
    }

    void namesHaveToolTips()
    {
        const QString name = testing::onWindows() // where no name may look like mark-up
                                 ? QStringLiteral("a name that is too long to be shown.bmp")
                                 : QStringLiteral("a name that is too long, <b>and mark-up.bmp");
        addPhotographs(addDrive(QStringLiteral("disk")), {name, QStringLiteral("plain.bmp")});
        openWindow();
        const auto plain = [](const QString& tip) {
            return QTextDocumentFragment::fromHtml(tip).toPlainText();
        };
        QCOMPARE(plain(list()->item(0)->toolTip()), name);
        QCOMPARE(list()->item(1)->toolTip(), QStringLiteral("plain.bmp"));
        click("pushButton_3");
        QCOMPARE(plain(table()->item(0, 2)->toolTip()), name);
        QCOMPARE(table()->item(1, 2)->toolTip(), QStringLiteral("plain.bmp"));
    }

    /// A corner of radius 15: what is 16 from its centre is transparent, what is 14 away is not.
    void thumbnailsAreSmoothAndRound()
    {
        Shot stripes;
        stripes.gray = [](int x, int) {
            return x % 2 == 0 ? 0 : 255;
        };
        addPhotographs(addDrive(QStringLiteral("disk")), names(1), stripes);
        openWindow();
        QTRY_VERIFY(!window->thumbnails.first().isNull());
        const QImage shown = window->thumbnails.first().toImage();
        for (const auto& [x, y] : {std::pair(3, 3), std::pair(0, 8), std::pair(128, 172)})
            QVERIFY2(qAlpha(shown.pixel(x, y)) < 64, qPrintable(QStringLiteral("%1").arg(x)));
        for (const auto& [x, y] : {std::pair(5, 5), std::pair(1, 14), std::pair(126, 170)})
            QVERIFY2(qAlpha(shown.pixel(x, y)) > 192, qPrintable(QStringLiteral("%1").arg(x)));
        // 240 stripes on 132 pixels: taken one by one they would be black or blue.
        for (int x = 20; x < 110; ++x) {
            const int blue = qRed(shown.pixel(x, 88)) + qBlue(shown.pixel(x, 88));
            QVERIFY2(blue > 40 && blue < 215, qPrintable(QString::number(blue)));
        }
    }

    void selectedNamesAreLegible()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(3));
        openWindow();
        list()->setCurrentRow(1);
        list()->item(2)->setSelected(true);
        const QImage shown = list()->viewport()->grab().toImage();
        const auto ground = [&](int row) {
            const QRect place = list()->visualItemRect(list()->item(row));
            return shown.pixelColor(place.left() + 6, place.center().y());
        };
        QCOMPARE(ground(0), QColor(Qt::white));
        QVERIFY(ground(1).lightness() < 128); // names of selected photographs are white
        QVERIFY(ground(2).lightness() < 128);
    }

    void memoryDoesNotGrowWithThePhotographs()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, {QStringLiteral("0.bmp")});
        const QString folder = root + QStringLiteral("DCIM_100/");
        const auto multiply = testing::onWindows()
                                  ? qOverload<const QString&, const QString&>(&QFile::copy)
                                  : qOverload<const QString&, const QString&>(&QFile::link);
        for (int i = 1; i < 700; ++i)
            QVERIFY(multiply(folder + QStringLiteral("0.bmp"),
                             folder + QStringLiteral("%1.bmp").arg(i)));
        openWindow();
        QCOMPARE(window->thumbnails.size(), 700);
        for (int i = 0; i < 700; i += 8) {
            list()->scrollToItem(list()->item(i));
            QTRY_VERIFY(!window->thumbnails.at(i).isNull());
        }
        QCOMPARE(readThumbnails(), 256);
        // What was dropped is read again.
        list()->scrollToTop();
        QTRY_VERIFY(!window->thumbnails.first().isNull());
    }

    void aThumbnailIsNotMadeOfAnEndlessPicture()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        QByteArray bytes = photographBytes(Shot());
        testing::put(bytes, 18, 16000, 4);
        testing::put(bytes, 22, 16000, 4);
        write(root + QStringLiteral("DCIM_100/a.bmp"), bytes);
        addPhotographs(root, {QStringLiteral("b.bmp")});
        openWindow();
        QTRY_VERIFY(!window->thumbnails.at(1).isNull());
        QVERIFY(window->thumbnails.at(0).isNull());
    }

    void damagedPicturesHaveNoThumbnail()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        const QString folder = root + QStringLiteral("DCIM_100/");
        write(folder + QStringLiteral("a.bmp"), "no picture");
        write(folder + QStringLiteral("b.bmp"), {});
        write(folder + QStringLiteral("c.bmp"), photographBytes(Shot()).left(3000));
        QFile huge(folder + QStringLiteral("d.bmp"));
        QVERIFY(huge.open(QIODevice::WriteOnly));
        QVERIFY(huge.resize(Q_INT64_C(1) << 32));
        addPhotographs(root, {QStringLiteral("e.bmp")});
        openWindow();
        QCOMPARE(list()->count(), 5);
        QCOMPARE(window->fileSizes.at(3), QStringLiteral("4194304.0"));
        QTRY_VERIFY(!window->thumbnails.at(4).isNull());
        QVERIFY(window->thumbnails.at(0).isNull());
        QVERIFY(window->thumbnails.at(1).isNull());
        QVERIFY(window->thumbnails.at(3).isNull());
        QTRY_VERIFY(list()->item(0)->icon().isNull());
        click("pushButton_3");
        QTRY_VERIFY(table()->item(4, 1)->icon().pixmap(44).toImage().pixelColor(16, 22) ==
                    QColor(0, 0, 0));
    }

    void theDiskMayGoWhileThumbnailsAreRead()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, names(30));
        openWindow();
        QVERIFY(QDir(root).removeRecursively());
        list()->scrollToBottom();
        QTRY_VERIFY(list()->item(29)->icon().isNull());
        QVERIFY(window->thumbnails.at(29).isNull());
        window.reset();
    }

    void theWindowMayGoWhileThumbnailsAreRead()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(30));
        openWindow();
        window->grab();
        window.reset();
        QCoreApplication::processEvents();
    }

    // --- the table -----------------------------------------------------------------------------

    void theTable()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, names(3));
        openWindow();
        click("pushButton_3");
        QVERIFY(!list());
        QCOMPARE(table()->rowCount(), 3);
        QStringList titles;
        for (int i = 0; i < table()->columnCount(); ++i)
            titles.append(table()->horizontalHeaderItem(i)->text());
        QCOMPARE(titles, QStringList({QStringLiteral("编号"), QStringLiteral("图像"),
                                      QStringLiteral("名称"), QStringLiteral("时间"),
                                      QStringLiteral("大小")}));
        QCOMPARE(table()->item(1, 0)->text(), QStringLiteral("2"));
        QCOMPARE(table()->item(1, 2)->text(), QStringLiteral("IMG00001.bmp"));
        QCOMPARE(table()->item(1, 3)->text(), window->fileDates.at(1));
        QCOMPARE(table()->item(1, 4)->text(), QStringLiteral("300.7"));
        for (int column = 0; column < 5; ++column) {
            QVERIFY(!(table()->item(1, column)->flags() & Qt::ItemIsEditable));
            QVERIFY(table()->item(1, column)->textAlignment() & Qt::AlignVCenter);
        }
        QCOMPARE(table()->rowHeight(1), 50);
        QCOMPARE(table()->font().pixelSize(), 13);
        QVERIFY(table()->selectionBehavior() == QAbstractItemView::SelectRows);
        QVERIFY(table()->horizontalHeader()->stretchLastSection());
        QVERIFY(table()->horizontalHeader()->sectionResizeMode(0) == QHeaderView::Fixed);
        QTRY_VERIFY(!window->thumbnails.at(1).isNull());
        QVERIFY(!table()->item(1, 1)->icon().isNull());
        click("pushButton_4");
        QVERIFY(!table());
        QCOMPARE(list()->count(), 3);
    }

    void russianNeedsMoreRoom()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        click("pushButton_3");
        QVector<int> widths;
        for (int column = 0; column < 4; ++column)
            widths.append(table()->columnWidth(column));
        QVERIFY(tabs().tabBar()->tabRect(0).width() < 150);

        config::create(QStringLiteral("RU"));
        openWindow();
        click("pushButton_3");
        for (int column = 0; column < 4; ++column)
            QVERIFY(table()->columnWidth(column) > widths.at(column));
        QVERIFY(tabs().tabBar()->tabRect(0).width() >= 150);
        QCOMPARE(tabs().styleSheet(),
                 QStringLiteral("QTabWidget#tabWidget{border-color:rgb(255,0,0);}"));
    }

    void tabsShowFocus_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("source") << QStringLiteral("CH");
        QTest::newRow("Russian") << QStringLiteral("RU");
    }
    void tabsShowFocus()
    {
        QFETCH(QString, language);
        config::create(language);
        openWindow();
        QApplication::setActiveWindow(window.get());
        const auto framePixels = [this] {
            const QImage bar = tabs().tabBar()->grab().toImage();
            int count = 0;
            for (int x = 0; x < bar.width(); ++x)
                count += bar.pixelColor(x, 0) == QColor(85, 170, 255) ? 1 : 0;
            return count;
        };
        // The frame takes nothing away from the text.
        const auto whitePixels = [this] {
            const QImage bar = tabs().tabBar()->grab(tabs().tabBar()->tabRect(0)).toImage();
            int count = 0;
            for (int y = 3; y < bar.height() - 3; ++y)
                for (int x = 0; x < bar.width(); ++x)
                    count += bar.pixelColor(x, y).lightness() > 200 ? 1 : 0;
            return count;
        };
        driveList().setFocus();
        QTRY_VERIFY(driveList().hasFocus());
        QCOMPARE(framePixels(), 0);
        const int textPixels = whitePixels();
        tabs().tabBar()->setFocus();
        QTRY_VERIFY(tabs().tabBar()->hasFocus());
        QVERIFY(framePixels() > 30);
        if (language ==
            QLatin1String("CH")) // the words of this test, which Russian has no room for
            QCOMPARE(whitePixels(), textPixels);
    }

    void theTabsOfEachLanguage()
    {
        openWindow();
        QVERIFY(tabs().styleSheet().contains(QLatin1String("color: rgb(255, 255, 255)")));
        QVERIFY(tabs().styleSheet().contains(QLatin1String("border-top-left-radius: 5px")));
        config::create(QStringLiteral("RU"));
        openWindow();
        QCOMPARE(
            tabs().tabBar()->styleSheet(),
            QStringLiteral("QTabBar::tab {color: rgb(255, 255, 255); border-top-left-radius: "
                           "5px;border-top-right-radius: 5px;padding: 5px;margin-right:10;width: "
                           "150;}QTabBar::tab:!selected {background-color: "
                           "#929697;}QTabBar::tab:selected {background-color:#303030;}"));
    }

    void aPhotographDoesNotWidenASmallWindow()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        window->resize(window->minimumSizeHint());
        const QSize before = window->minimumSizeHint();
        QVERIFY(before.width() < 500);
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(opened());
        QTRY_VERIFY(opened()->isVisible());
        QCOMPARE(window->minimumSizeHint().width(), before.width());
        QCOMPARE(window->width(), before.width());
        // All of it can still be reached.
        auto* area = opened()->findChild<QScrollArea*>();
        QVERIFY(area->horizontalScrollBar()->maximum() > 0);
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        auto* selector = opened()->findChild<QWidget*>(QStringLiteral("comboBox"));
        QVERIFY(selector->width() >= 76);
        QVERIFY(!selector->visibleRegion().isEmpty() ||
                area->widget()->rect().contains(selector->geometry().center()));
    }

    void whatAScreenReaderTells()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        QCOMPARE(testing::namelessWidgets(window.get()).join(QLatin1Char(',')), QString());
        QVERIFY(driveList().accessibleName() != list()->accessibleName());
        click("pushButton_3");
        QCOMPARE(testing::namelessWidgets(window.get()).join(QLatin1Char(',')), QString());
        QVERIFY(driveList().accessibleName() != table()->accessibleName());
        emit table()->itemDoubleClicked(table()->item(0, 0));
        QVERIFY(opened());
        QTRY_VERIFY(opened()->isVisible());
        QCOMPARE(testing::namelessWidgets(window.get()).join(QLatin1Char(',')), QString());
    }

    void hoveringTellsTheOwner()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(3));
        Owner owner;
        openWindow(&owner);
        emit list()->itemEntered(list()->item(1));
        QCOMPARE(owner.entered, QStringList({QStringLiteral("IMG00001.bmp")}));
        // Also in the list made anew.
        click("pushButton_3");
        click("pushButton_4");
        emit list()->itemEntered(list()->item(2));
        QCOMPARE(owner.entered.size(), 2);
    }

    // --- drives --------------------------------------------------------------------------------

    void choosingADriveListsItsPhotographs()
    {
        addPhotographs(addDrive(QStringLiteral("one")), {QStringLiteral("a.bmp")});
        const QString two = addDrive(QStringLiteral("two"));
        addPhotographs(two, {QStringLiteral("b.bmp"), QStringLiteral("c.bmp")});
        addDrive(QStringLiteral("three"), QString());
        openWindow();
        QCOMPARE(shownNames(), QStringList({QStringLiteral("a.bmp")}));
        click("pushButton_3");
        driveList().setCurrentRow(1);
        QCOMPARE(window->driveIndex, 1);
        QCOMPARE(window->imageFolder, two + QStringLiteral("DCIM_100"));
        QCOMPARE(shownNames(), QStringList({QStringLiteral("b.bmp"), QStringLiteral("c.bmp")}));
        QCOMPARE(driveList().count(), 3);
        QCOMPARE(driveList().currentRow(), 1);
        // The layout found before is kept on a drive without photographs.
        driveList().setCurrentRow(2);
        QCOMPARE(list()->count(), 0);
        QCOMPARE(window->modelIndex, 0);
    }

    void choosingADriveByMouse()
    {
        addPhotographs(addDrive(QStringLiteral("one")), {QStringLiteral("a.bmp")});
        addPhotographs(addDrive(QStringLiteral("two")), {QStringLiteral("b.bmp")});
        openWindow();
        const QRect place = driveList().visualItemRect(driveList().item(1));
        QTest::mouseClick(driveList().viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(shownNames(), QStringList({QStringLiteral("b.bmp")}));
    }

    void theSameRowDoesNothing()
    {
        const QString root = addDrive(QStringLiteral("one"));
        addPhotographs(root, {QStringLiteral("a.bmp")});
        openWindow();
        addPhotographs(root, {QStringLiteral("b.bmp")});
        const QPointer<QListWidget> shown = list();
        window->on_listWidget_currentRowChanged(0);
        window->on_listWidget_currentRowChanged(-1);
        QCOMPARE(list(), shown.data());
        QCOMPARE(window->driveIndex, 0);
        QCOMPARE(window->fileNames.size(), 1);
    }

    void reloadLooksAtTheDrivesButKeepsTheThumbnails()
    {
        const QString root = addDrive(QStringLiteral("one"));
        addPhotographs(root, {QStringLiteral("a.bmp")});
        openWindow();
        const QPointer<QListWidget> shown = list();
        addPhotographs(root, {QStringLiteral("b.bmp")});
        addDrive(QStringLiteral("two"));
        testing::LogRecorder log;
        click("pushButton");
        QVERIFY(log.contains(QStringLiteral("图片地址")));
        QCOMPARE(driveList().count(), 2);
        QCOMPARE(list(), shown.data());
        QCOMPARE(shownNames(), QStringList({QStringLiteral("a.bmp")}));
    }

    void theDriveInUseMayBeGoneAtReload()
    {
        addPhotographs(addDrive(QStringLiteral("one")), {QStringLiteral("a.bmp")});
        const QString two = addDrive(QStringLiteral("two"));
        addPhotographs(two, {QStringLiteral("b.bmp")});
        openWindow();
        driveList().setCurrentRow(1);
        drives.removeLast();
        click("pushButton");
        QCOMPARE(driveList().count(), 1);
        QCOMPARE(window->imageFolder, two + QStringLiteral("DCIM_100"));
        driveList().setCurrentRow(0);
        QCOMPARE(shownNames(), QStringList({QStringLiteral("a.bmp")}));
        drives.clear();
        click("pushButton");
        QCOMPARE(driveList().count(), 0);
    }

    // --- the question --------------------------------------------------------------------------

    void bothKindsOfFolders_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<int>("model");
        QTest::addColumn<QString>("logged");
        QTest::newRow("K4710") << true << QStringLiteral("E:/Images") << 1
                               << QStringLiteral("用户选择了“K4710”");
        QTest::newRow("K4715") << false << QStringLiteral("E:/DCIM_100") << 0
                               << QStringLiteral("用户选择了“K4715”");
    }
    void bothKindsOfFolders()
    {
        QFETCH(bool, yes);
        QFETCH(QString, folder);
        QFETCH(int, model);
        QFETCH(QString, logged);
        openWindow();
        QString text;
        bool isQuestion = false;
        QTimer::singleShot(0, window.get(), [&] {
            text = message()->windowTitle() + QLatin1Char('|') + message()->text();
            isQuestion = message()->icon() == QMessageBox::Question && message()->isModal();
            auto* button = message()->button(yes ? QMessageBox::Yes : QMessageBox::No);
            text += QLatin1Char('|') + button->text();
            button->click();
        });
        testing::LogRecorder log;
        QVERIFY(window->chooseFolder(
            QStringLiteral("E:/"),
            {QStringLiteral("DCIM_100"), QStringLiteral("Images"), QStringLiteral("DCIM_100")}));
        QCOMPARE(text,
                 QStringLiteral("提示|检查到U盘中同时含有K4710和K4715的文件\n请选择打开哪一项？|") +
                     (yes ? QStringLiteral("K4710") : QStringLiteral("K4715")));
        QVERIFY(isQuestion);
        QCOMPARE(window->imageFolder, folder);
        QCOMPARE(window->modelIndex, model);
        QVERIFY(log.contains(logged));
        QVERIFY(!message());
    }

    void noQuestionOnAnOrdinaryDisk()
    {
        openWindow();
        QVERIFY(window->chooseFolder(QStringLiteral("E:/"),
                                     {QStringLiteral("Images"), QStringLiteral("DCIM_100")}));
        QCOMPARE(window->imageFolder, QStringLiteral("E:/DCIM_100"));
        QCOMPARE(window->modelIndex, 0);
    }

    void theWindowMayEndWhileTheQuestionIsUp()
    {
        openWindow();
        const QPointer<photo_window> page = window.release();
        QTimer::singleShot(0, this, [page] { dialogs::end(page); });
        QVERIFY(!page->chooseFolder(QStringLiteral("E:/"),
                                    {QStringLiteral("DCIM_100"), QStringLiteral("DCIM_100")}));
        QTRY_VERIFY(!page);
    }

    // --- opening -------------------------------------------------------------------------------

    void aDoubleClickOpensThePhotograph()
    {
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        addPhotographs(addDrive(QStringLiteral("disk")), names(3), shot);
        openWindow();
        const QRect place = list()->visualItemRect(list()->item(1));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(tabs().currentIndex(), 1);
        QVERIFY(opened());
        QCOMPARE(opened()->path, window->imageFolder + QStringLiteral("/IMG00001.bmp"));
        QCOMPARE(opened()->photograph.mean, 50.0);
        QTRY_VERIFY(opened()->isVisible());

        // Another one takes its place.
        const QPointer<Analysis_Widget> first = opened();
        tabs().setCurrentIndex(0);
        click("pushButton_3");
        emit table()->itemDoubleClicked(table()->item(2, 4));
        QCOMPARE(opened()->fileName, QStringLiteral("IMG00002.bmp"));
        QVERIFY(!first);
        QCOMPARE(window->findChildren<Analysis_Widget*>().size(), 1);
    }

    void theKeyboardOpensThePhotograph_data()
    {
        QTest::addColumn<bool>("asTable");
        QTest::newRow("thumbnails") << false;
        QTest::newRow("table") << true;
    }
    void theKeyboardOpensThePhotograph()
    {
        QFETCH(bool, asTable);
        addPhotographs(addDrive(QStringLiteral("disk")), names(3));
        openWindow();
        QApplication::setActiveWindow(window.get());
        if (asTable)
            click("pushButton_3");
        QAbstractItemView* view = asTable ? static_cast<QAbstractItemView*>(table()) : list();
        view->setFocus();
        QTRY_VERIFY(view->hasFocus());
        view->setCurrentIndex(view->model()->index(0, 0));
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Return);
        QVERIFY(opened());
    }

    void theModelPicksTheLayout()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        Shot shot;
        shot.model = 1;
        addPhotographs(root, {QStringLiteral("a.bmp")}, shot);
        openWindow();
        window->modelIndex = 1;
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(opened());
        QCOMPARE(opened()->photograph.mean, 20.0);
    }

    void whatCannotBeOpenedIsReported_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"another machine", "deleted meanwhile", "empty", "cut"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
        if (!testing::onWindows())
            QTest::newRow("pipe meanwhile") << QStringLiteral("pipe meanwhile");
    }
    void whatCannotBeOpenedIsReported()
    {
        QFETCH(QString, kind);
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, {QStringLiteral("good.bmp"), QStringLiteral("bad.bmp")});
        const QString bad = root + QStringLiteral("DCIM_100/bad.bmp");
        Shot other;
        other.machineId = 7;
        if (kind == QLatin1String("another machine"))
            write(bad, photographBytes(other));
        else if (kind == QLatin1String("empty"))
            write(bad, {});
        else if (kind == QLatin1String("cut"))
            write(bad, photographBytes(Shot()).left(307766));
        openWindow();
        window->list_item_doubleclicked(list()->item(1));
        QVERIFY(opened());
        const QPointer<Analysis_Widget> first = opened();
        tabs().setCurrentIndex(0);
        if (kind.endsWith(QLatin1String("meanwhile")))
            QVERIFY(QFile::remove(bad));
#ifndef Q_OS_WIN
        if (kind.startsWith(QLatin1String("pipe")))
            QCOMPARE(::mkfifo(QFile::encodeName(bad).constData(), 0600), 0); // waits for ever
#endif

        window->list_item_doubleclicked(list()->item(0));
        QTRY_VERIFY(message() && message()->isVisible());
        QVERIFY(message()->isModal());
        QCOMPARE(message()->windowTitle(), QStringLiteral("警告"));
        QCOMPARE(message()->text(), QStringLiteral("该图片解析失败，请确认型号是否正确!"));
        QVERIFY(message()->icon() == QMessageBox::Information);
        message()->button(QMessageBox::Ok)->click();
        QTRY_VERIFY(!message());
        QCOMPARE(tabs().currentIndex(), 0);
        QCOMPARE(opened(), first.data());
        QCOMPARE(window->findChildren<Analysis_Widget*>().size(), 1);
    }

    void theWindowMayGoWhileTheWarningIsUp()
    {
        write(addDrive(QStringLiteral("disk")) + QStringLiteral("DCIM_100/a.bmp"), "x");
        openWindow();
        const QRect place = list()->visualItemRect(list()->item(0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QTRY_VERIFY(message());
        const QPointer<QMessageBox> box = message();
        window.reset();
        QVERIFY(!box);
    }

    void theDiskMayGoWhileAPhotographIsOpen()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        addPhotographs(root, names(2), shot);
        openWindow();
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(QDir(root).removeRecursively());
        drives.clear();
        QCoreApplication::processEvents();
        opened()->updat_XY_Temp(3, 4);
        QCOMPARE(opened()->findChild<QLabel*>(QStringLiteral("label_4"))->text(),
                 QStringLiteral("50.0°C"));
        window.reset();
        QCoreApplication::processEvents();
    }

    void unusualNames_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"热像.bmp", "Снимок №1.bmp", "사진.bmp", "a#b.bmp", "100%.bmp",
                                 "%41.bmp", " blanks .bmp", "a&b.bmp"})
            QTest::newRow(name) << QString::fromUtf8(name);
        if (!testing::onWindows()) { // where no name may hold it
            for (const char* name : {"?.bmp", ":night.bmp", "line\nbreak.bmp", "<b>.bmp"})
                QTest::newRow(name) << QString::fromUtf8(name);
        }
    }
    void unusualNames()
    {
        QFETCH(QString, name);
        addPhotographs(addDrive(QStringLiteral("диск #1 50%")), {name});
        openWindow();
        QCOMPARE(shownNames(), QStringList({name}));
        QTRY_VERIFY(!window->thumbnails.first().isNull());
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(opened());
        QCOMPARE(opened()->fileName, name);
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotoWindowTest>(argc, argv);
}

#include "photo_window_test.moc"
