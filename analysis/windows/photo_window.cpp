// SPDX-License-Identifier: MIT
#include "analysis/windows/photo_window.h"

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/browser_menu.h"
#include "analysis/windows/measurement_keeping.h"
#include "analysis/windows/photograph_views.h"
#include "analysis/windows/tool_commands.h"
#include "config/configuration_record.h"
#include "config/language.h"
#include "dialogs/dialogs.h"
#include "files/paths.h"
#include "platform/removable_drives.h"
#include "windows/ui_photo_window.h"

#include <QContextMenuEvent>
#include <QDebug>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTableWidget>

#include <algorithm>

using namespace analysis;

namespace {

/// The layouts that the two answers to the question about the model stand for.
constexpr int modelOfYes = 1;
constexpr int modelOfNo = 0;

template<typename Function>
void onReturn(QAbstractItemView* view, Function function)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, view, nullptr, nullptr, Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, view, function);
    }
}

} // namespace

photo_window::photo_window(QObject* owner, QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::photo_window>()), m_owner(owner),
      m_thumbnails(thumbnails, [this](int index) { return isInView(index); })
{
    ui->setupUi(this);
    connect(&m_thumbnails, &Thumbnails::changed, this,
            [this](int index) { m_view->update(m_view->model()->index(index, m_pictureColumn)); });
    m_hasWideCaptions = config::languageOf(config::read().language).hasWideCaptions;
    if (m_hasWideCaptions)
        widenTabs();

    ui->listWidget->setResizeMode(QListView::Adjust);
    ui->listWidget->setMovement(QListView::Static);
    ui->listWidget->setDragEnabled(false);
    findImageFolder();
    get_image_information();
}

photo_window::~photo_window() = default;

void photo_window::widenTabs()
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
    const QStringList names = folderNames(root);
    qDebug().noquote() << QStringLiteral("所含文件夹:") << names;
    return chooseFolder(root, names);
}

bool photo_window::chooseFolder(const QString& root, const QStringList& folderNames)
{
    if (isAmbiguous(folderNames)) {
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
        take(root, other ? modelOfYes : modelOfNo);
    } else {
        takeFound(root, folderNames);
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
    listPhotographs();
    QStringList paths;
    for (const QString& name : qAsConst(fileNames))
        paths.append(pathOf(name));
    m_thumbnails.begin(paths);
    qDebug().noquote() << QStringLiteral("闪退测试——————photo_window::get_image_information");
    on_pushButton_4_clicked();
}

void photo_window::showView(QAbstractItemView* view, int pictureColumn)
{
    m_thumbnails.forgetRequests();
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
    auto* list = photographList(*this, m_thumbnails, this);
    connect(list, &QListWidget::itemDoubleClicked, this, &photo_window::list_item_doubleclicked);
    onReturn(list, [this, list] {
        if (list->currentItem())
            list_item_doubleclicked(list->currentItem());
    });
    if (m_owner)
        connect(list, SIGNAL(itemEntered(QListWidgetItem*)), m_owner,
                SLOT(Photo_itemEntered(QListWidgetItem*)));
    showView(list, 0);
}

void photo_window::on_pushButton_3_clicked()
{
    auto* table = photographTable(*this, m_thumbnails, m_hasWideCaptions, this);
    table->setHorizontalHeaderLabels({tr("编号"), tr("图像"), tr("名称"), tr("时间"), tr("大小")});
    connect(table, &QTableWidget::itemDoubleClicked, this, &photo_window::table_item_doubleclicked);
    onReturn(table, [this, table] {
        if (table->currentItem())
            table_item_doubleclicked(table->currentItem());
    });
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
    m_asked = pathOf(name);
    auto analysis = std::make_unique<Analysis_Widget>();
    if (!analysis->set_Image_addr(m_asked, modelIndex)) {
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
    analysis->commands().keeping().bringBack();
    connect(&analysis->commands(), &ToolCommands::stepRequested, this, &photo_window::step,
            Qt::QueuedConnection);
    ui->verticalLayout_5->addWidget(analysis.get());
    analysis.release()->setFocus(-1); // so that its keys are at hand
}

/// At the ends, and when another folder is listed meanwhile, nothing happens.
void photo_window::step(int count)
{
    for (int index = 0; index < fileNames.size(); ++index) {
        if (pathOf(fileNames.at(index)) != m_asked)
            continue;
        const int next = index + count;
        if (next >= 0 && next < fileNames.size())
            open(fileNames.at(next));
        return;
    }
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
    return Thumbnails::rounded(picture, size, radius);
}

bool photo_window::isInView(int index) const
{
    const QRect place = m_view->visualRect(m_view->model()->index(index, m_pictureColumn));
    return m_view->isVisible() && place.intersects(m_view->viewport()->rect());
}
