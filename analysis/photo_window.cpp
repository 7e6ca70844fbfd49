#include "analysis/photo_window.h"

#include "analysis/analysis_widget.h"
#include "analysis/browser_menu.h"
#include "analysis/information.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "files/paths.h"
#include "files/picture_file.h"
#include "platform/removable_drives.h"

#include "ui_photo_window.h"

#include <QContextMenuEvent>
#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTableWidget>

#include <algorithm>

namespace {

const QString photographFolder = QStringLiteral("DCIM_100");
const QString otherFolder = QStringLiteral("Images");
constexpr int otherModel = 1;

/// The shape of a photograph, and small enough that the name finds room below it, also within the
/// wider padding of an item under the mouse.
constexpr QSize thumbnailSize(132, 176);
constexpr int thumbnailRadius = 15;
constexpr QSize itemSize(165, 220);
/// Between the padding of an item under the mouse.
constexpr int nameWidth = 165 - 2 * 8 - 8;
/// More than the largest screens show at once; about 24 MB.
constexpr int keptThumbnails = 256;
/// Reading thumbnails goes on for so long, in milliseconds, before other events have their turn.
constexpr int readingTime = 12;

enum Column
{
    NumberColumn,
    PictureColumn,
    NameColumn,
    DateColumn,
    SizeColumn
};

/// Without the second rule, the name of a selected photograph other than the current one would be
/// white on white.
const QString listSheet = QStringLiteral(
    "QListWidget::item{\nbackground-color: rgb(255, 255, 255);padding:0;border-radius: 8px;\n}"
    "QListWidget::item::selected{\ncolor: rgb(255, 255, 255);background-color: rgb(91, 91, "
    "91);border-radius: 8px;\n}"
    "QListWidget::item::hover{\nbackground-color: rgb(91, 91, 91);\ncolor: rgb(255, 255, "
    "255);padding:8;border-radius: 8px;\n}"
    "QListWidget::item::Focus{\ncolor: rgb(255, 255, 255);background-color:  rgb(50, 50, "
    "50);border-radius: 8px;\n}");

const QString tableSheet = QStringLiteral(
    "QTableWidget{\nselection-color: rgb(255, 255, 255);\nselection-background-color:  rgb(91, 91, "
    "91);\n}"
    "QTableWidget::item::hover{\ncolor: rgb(255, 255, 255);background-color: rgb(91, 91, "
    "91);border-radius: 5px;\n}"
    "QHeaderView::section{\nborder:1px groove white;color: rgb(255, 255, 255);background-color: "
    "rgb(52, 52, 52);\n}");

const QPixmap& emptyThumbnail()
{
    static const QPixmap empty = [] {
        QPixmap grey(thumbnailSize);
        grey.fill(QColor(238, 238, 238));
        return photo_window::roundedThumbnail(grey, thumbnailSize, thumbnailRadius);
    }();
    return empty;
}

/// Names are set narrower when they are longer than an item is wide, down to three quarters; the
/// imager's own fit then in any font. What is longer still loses its middle.
class NameDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
        const int width = option->fontMetrics.horizontalAdvance(option->text);
        if (width <= nameWidth)
            return;
        option->font.setStretch(std::max(100 * nameWidth / width, 75));
        option->fontMetrics = QFontMetrics(option->font);
    }
};

/// A list or table item whose picture is asked for when it is painted.
template<typename Item>
class PhotographItem : public Item
{
public:
    PhotographItem(photo_window& window, int index) : m_window(window), m_index(index) {}

    QVariant data(int role) const override
    {
        if (role == Qt::DecorationRole)
            return m_window.shownThumbnail(m_index);
        return role == Qt::ToolTipRole ? files::toolTipOf(m_window.fileNames.at(m_index))
                                       : Item::data(role);
    }

private:
    photo_window& m_window;
    int m_index;
};

} // namespace

photo_window::photo_window(QObject* owner, QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::photo_window>()), m_owner(owner)
{
    connect(&m_reading, &QTimer::timeout, this, &photo_window::readRequested);
    ui->setupUi(this);
    m_russian = config::read().language == QLatin1String("RU");
    if (m_russian)
        applyRussianTabs();

    ui->listWidget->setResizeMode(QListView::Adjust);
    ui->listWidget->setMovement(QListView::Static);
    ui->listWidget->setDragEnabled(false);
    findImageFolder();
    get_image_information();
}

photo_window::~photo_window() = default;

void photo_window::applyRussianTabs()
{
    ui->tabWidget->setStyleSheet(
        QStringLiteral("QTabWidget#tabWidget{border-color:rgb(255,0,0);}"));
    ui->tabWidget->tabBar()->setStyleSheet(
        QStringLiteral("QTabBar::tab {color: rgb(255, 255, 255); border-top-left-radius: "
                       "5px;border-top-right-radius: 5px;padding: 5px;margin-right:10;width: 150;}"
                       "QTabBar::tab:!selected {background-color: #929697;}"
                       "QTabBar::tab:selected {background-color:#303030;}"));
}

// --- drives and folders ------------------------------------------------------------------------

QStringList photo_window::listDrives()
{
    const QStringList roots = platform::removableDrives();
    ui->listWidget->clear();
    const QPixmap drive(QStringLiteral(":/photo/save.png"));
    const QIcon icon(drive.isNull()
                         ? drive
                         : drive.scaled(32, 32, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    for (const QString& root : roots) {
        auto* item = new QListWidgetItem(icon, root, ui->listWidget);
        item->setToolTip(files::toolTipOf(root));
    }
    return roots;
}

bool photo_window::findImageFolder()
{
    const QStringList roots = listDrives();
    if (driveIndex >= roots.size())
        return true;
    // The list was made anew; the row in use is marked again, which changes nothing.
    ui->listWidget->setCurrentRow(driveIndex);
    const QString& root = roots.at(driveIndex);
    const QStringList names =
        QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    qDebug().noquote() << QStringLiteral("所含文件夹:") << names;
    return chooseFolder(root, names);
}

bool photo_window::chooseFolder(const QString& root, const QStringList& folderNames)
{
    int found = 0;
    for (const QString& name : folderNames) {
        if (name != photographFolder)
            continue;
        imageFolder = root + photographFolder;
        modelIndex = 0;
        ++found;
    }
    if (found == 2) {
        const dialogs::Waiting waiting(this);
        QMessageBox box(QMessageBox::Question, tr("提示"),
                        tr("检查到U盘中同时含有K4710和K4715的文件\n请选择打开哪一项？"),
                        QMessageBox::Yes | QMessageBox::No, this);
        box.button(QMessageBox::Yes)->setText(QStringLiteral("K4710"));
        box.button(QMessageBox::No)->setText(QStringLiteral("K4715"));
        const int answer = box.exec();
        if (answer == QDialog::Rejected)
            return false; // not by the user, whose way out answers No
        const bool other = answer == QMessageBox::Yes;
        qDebug().noquote() << (other ? QStringLiteral("用户选择了“K4710”")
                                     : QStringLiteral("用户选择了“K4715”"));
        imageFolder = root + (other ? otherFolder : photographFolder);
        modelIndex = other ? otherModel : 0;
    } else {
        imageFolder = root + photographFolder;
    }
    qDebug().noquote() << QStringLiteral("图片地址") << imageFolder;
    return true;
}

void photo_window::on_listWidget_currentRowChanged(int currentRow)
{
    if (currentRow < 0 || currentRow == driveIndex)
        return;
    driveIndex = currentRow;
    if (findImageFolder())
        get_image_information();
}

void photo_window::on_pushButton_clicked()
{
    findImageFolder();
}

// --- photographs -------------------------------------------------------------------------------

void photo_window::get_image_information()
{
    fileNames.clear();
    fileDates.clear();
    fileSizes.clear();
    thumbnails.clear();
    m_kept.clear();
    // Without a drive there is no folder yet, and a nameless one would be the working directory.
    QFileInfoList files;
    if (!imageFolder.isEmpty())
        files = QDir(imageFolder).entryInfoList({QStringLiteral("*.bmp")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        if (!file.isFile()) // links to folders, pipes and devices are listed, too
            continue;
        fileNames.append(file.fileName());
        fileDates.append(analysis::createdText(file));
        fileSizes.append(analysis::kilobytes(file.size()));
        thumbnails.append(QPixmap());
    }
    m_read.fill(false, fileNames.size());
    qDebug().noquote() << QStringLiteral("闪退测试——————photo_window::get_image_information");
    on_pushButton_4_clicked();
}

void photo_window::showView(QAbstractItemView* view, int pictureColumn)
{
    m_requested.clear();
    delete m_view;
    m_view = view;
    m_pictureColumn = pictureColumn;
    ui->verticalLayout_4->addWidget(view);
    connect(view, &QWidget::customContextMenuRequested, this, &photo_window::showMenu);
    view->installEventFilter(this);
    view->setAccessibleName(tr("照片"));
}

void photo_window::on_pushButton_4_clicked()
{
    auto* list = new QListWidget(this);
    list->setMouseTracking(true);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    list->setViewMode(QListView::IconMode);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setFrameShape(QFrame::NoFrame);
    list->setMovement(QListView::Static);
    list->setDragEnabled(false);
    list->setIconSize({195, 195});
    list->setUniformItemSizes(true);
    list->setResizeMode(QListView::Adjust);
    list->setSpacing(13);
    QFont font = list->font();
    font.setPixelSize(15);
    list->setFont(font);
    list->setStyleSheet(listSheet);
    list->setItemDelegate(new NameDelegate(list));

    for (int i = 0; i < fileNames.size(); ++i) {
        auto* item = new PhotographItem<QListWidgetItem>(*this, i);
        item->setText(fileNames.at(i));
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        item->setSizeHint(itemSize);
        list->addItem(item);
    }

    connect(list, &QListWidget::itemDoubleClicked, this, &photo_window::list_item_doubleclicked);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, list, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, list] {
            if (list->currentItem())
                list_item_doubleclicked(list->currentItem());
        });
    }
    if (m_owner)
        connect(list, SIGNAL(itemEntered(QListWidgetItem*)), m_owner,
                SLOT(Photo_itemEntered(QListWidgetItem*)));
    showView(list, 0);
}

void photo_window::on_pushButton_3_clicked()
{
    auto* table = new QTableWidget(fileNames.size(), 5, this);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setHorizontalHeaderLabels({tr("编号"), tr("图像"), tr("名称"), tr("时间"), tr("大小")});
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(50);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setIconSize({44, 44});
    table->setTabKeyNavigation(false);
    QFont font = table->font();
    font.setPixelSize(13);
    table->setFont(font);
    table->setStyleSheet(tableSheet);

    const auto widths =
        m_russian ? std::array<int, 4>{80, 150, 260, 200} : std::array<int, 4>{70, 110, 240, 180};
    for (int column = 0; column < int(widths.size()); ++column)
        table->setColumnWidth(column, widths[std::size_t(column)]);

    const auto put = [table](int row, int column, QTableWidgetItem* item) {
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        item->setTextAlignment(Qt::AlignCenter);
        table->setItem(row, column, item);
    };
    for (int row = 0; row < fileNames.size(); ++row) {
        put(row, NumberColumn, new QTableWidgetItem(QString::number(row + 1)));
        put(row, PictureColumn, new PhotographItem<QTableWidgetItem>(*this, row));
        put(row, NameColumn, new QTableWidgetItem(fileNames.at(row)));
        table->item(row, NameColumn)->setToolTip(files::toolTipOf(fileNames.at(row)));
        put(row, DateColumn, new QTableWidgetItem(fileDates.at(row)));
        put(row, SizeColumn, new QTableWidgetItem(fileSizes.at(row)));
    }

    connect(table, &QTableWidget::itemDoubleClicked, this, &photo_window::table_item_doubleclicked);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, table, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, table] {
            if (table->currentItem())
                table_item_doubleclicked(table->currentItem());
        });
    }
    showView(table, PictureColumn);
}

void photo_window::list_item_doubleclicked(QListWidgetItem* item)
{
    open(item->text());
}

void photo_window::table_item_doubleclicked(QTableWidgetItem* item)
{
    open(fileNames.at(item->row()));
}

void photo_window::open(const QString& name)
{
    auto analysis = std::make_unique<Analysis_Widget>();
    if (!analysis->set_Image_addr(files::pathIn(imageFolder, name), modelIndex)) {
        dialogs::open(new QMessageBox(QMessageBox::Information, tr("警告"),
                                      tr("该图片解析失败，请确认型号是否正确!"), QMessageBox::Ok,
                                      window()),
                      this);
        return;
    }
    ui->tabWidget->setCurrentIndex(1);
    if (QLayoutItem* shown = ui->verticalLayout_5->itemAt(0)) {
        QWidget* previous = shown->widget();
        ui->verticalLayout_5->removeWidget(previous);
        dialogs::end(previous);
    }
    ui->verticalLayout_5->addWidget(analysis.release());
}

// --- the context menu --------------------------------------------------------------------------

QStringList photo_window::chosenNames() const
{
    QModelIndexList chosen = m_view->selectionModel()->selectedRows();
    std::sort(chosen.begin(), chosen.end());
    QStringList names;
    for (const QModelIndex& index : chosen)
        names.append(fileNames.at(index.row()));
    return names;
}

/// `place` is in the coordinates of the view's contents. The menu is not waited for, so this window
/// can go while it is open.
void photo_window::showMenu(const QPoint& place)
{
    auto* menu = new BrowserMenu(imageFolder, chosenNames(), modelIndex, this);
    connect(menu, &BrowserMenu::openRequested, this, &photo_window::open);
    menu->popup(m_view->viewport()->mapToGlobal(place));
}

/// The menu key opens the menu on the current photograph, not in the middle of the view.
bool photo_window::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_view || event->type() != QEvent::ContextMenu ||
        static_cast<QContextMenuEvent*>(event)->reason() != QContextMenuEvent::Keyboard)
        return QWidget::eventFilter(watched, event);
    const QRect content = m_view->viewport()->rect();
    const QRect current = m_view->visualRect(m_view->currentIndex()) & content;
    showMenu((current.isEmpty() ? content : current).center());
    return true;
}

// --- thumbnails --------------------------------------------------------------------------------

QPixmap photo_window::roundedThumbnail(const QPixmap& picture, const QSize& size, int radius)
{
    if (picture.isNull())
        return picture;
    const QPixmap scaled = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmap rounded(size);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRect(QPoint(), size), radius, radius, Qt::AbsoluteSize);
    painter.setClipPath(outline);
    painter.drawPixmap(0, 0, scaled);
    return rounded;
}

QIcon photo_window::shownThumbnail(int index)
{
    if (m_read.at(index))
        return QIcon(thumbnails.at(index));
    m_requested.append(index);
    if (!m_reading.isActive())
        m_reading.start(0);
    return QIcon(emptyThumbnail());
}

bool photo_window::isInView(int index) const
{
    const QRect place = m_view->visualRect(m_view->model()->index(index, m_pictureColumn));
    return m_view->isVisible() && place.intersects(m_view->viewport()->rect());
}

/// Wanted is what was painted, but the user may have scrolled on since.
void photo_window::readRequested()
{
    QElapsedTimer time;
    time.start();
    while (!m_requested.isEmpty() && !time.hasExpired(readingTime)) {
        const int index = m_requested.takeFirst();
        if (!m_read.at(index) && isInView(index))
            readThumbnail(index);
    }
    if (m_requested.isEmpty())
        m_reading.stop();
}

void photo_window::readThumbnail(int index)
{
    const QPixmap picture = files::pictureInFile(files::pathIn(imageFolder, fileNames.at(index)));
    thumbnails[index] = roundedThumbnail(picture, thumbnailSize, thumbnailRadius);
    m_read[index] = true;
    m_kept.enqueue(index);
    if (m_kept.size() > keptThumbnails) {
        const int oldest = m_kept.dequeue();
        thumbnails[oldest] = QPixmap();
        m_read[oldest] = false;
    }
    m_view->update(m_view->model()->index(index, m_pictureColumn));
}
