// SPDX-License-Identifier: MIT
#include "app/main_window.h"

#include "analysis/photograph/layouts.h"
#include "analysis/windows/photo_window.h"
#include "app/device_poll.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "live/camer_window.h"
#include "live/imager_camera.h"
#include "platform/removable_drives.h"

#include "ui_main_window.h"

#include <QCameraInfo>
#include <QCloseEvent>
#include <QDebug>
#include <QDir>
#include <QListWidgetItem>
#include <QMenu>
#include <QShortcut>

#include <algorithm>

namespace {

constexpr int pollInterval = 300; // ms

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), ui(std::make_unique<Ui::MainWindow>())
{
    ui->setupUi(this);
    connect(&m_pollTimer, &QTimer::timeout, this, &MainWindow::timeout_connect);
    readConfiguration();
    m_pollTimer.start(pollInterval);
    buildMenuBar();
}

MainWindow::~MainWindow()
{
    config::replaceAlarmFolder(m_alarmFolder);
    // A page in full screen is nobody's child.
    delete m_liveWindow;
}

camer_window* MainWindow::liveWindow() const
{
    return m_liveWindow;
}

photo_window* MainWindow::browser() const
{
    return m_browserWindow;
}

void MainWindow::readConfiguration()
{
    if (config::exists()) {
        m_alarmFolder = config::read().alarmFolder;
        return;
    }
    // Start-up has made the file; it is gone only if somebody removed it since.
    m_alarmFolder = config::folderPath();
    config::create(QStringLiteral("CH"));
    config::replaceAlarmFolder(m_alarmFolder);
}

void MainWindow::buildMenuBar()
{
    m_fileMenu = ui->menuBar->addMenu(tr("文件"));
    const auto add = [this](QMenu* menu, const char* icon, const QString& text, auto slot,
                            const QKeySequence& shortcut) {
        return menu->addAction(QIcon(QStringLiteral(":/photo/%1.png").arg(QLatin1String(icon))),
                               text, this, slot, shortcut);
    };
    add(m_fileMenu, "connect", tr("连接"), &MainWindow::Action_connect, QStringLiteral("Ctrl+K"));
    add(m_fileMenu, "Disconnect", tr("断开"), &MainWindow::Action_Disconnect,
        QStringLiteral("Ctrl+D"))
        ->setEnabled(false);
    add(m_fileMenu, "setting", tr("选项"), &MainWindow::Action_chose, QStringLiteral("Ctrl+,"));
    add(m_fileMenu, "colse", tr("关闭"), &MainWindow::Action_Close, QStringLiteral("Ctrl+Q"));
    add(ui->menuBar->addMenu(tr("帮助")), "doc", tr("用户手册"), &MainWindow::Action_Doc,
        Qt::Key_F1);
    // The texts have no letters underlined, in no language: F10 opens the first menu.
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this,
            [this] { ui->menuBar->setActiveAction(m_fileMenu->menuAction()); });
}

void MainWindow::Get_Addr(QString str)
{
    m_alarmFolder = str;
    config::replaceAlarmFolder(str);
    if (m_settingsDialog)
        m_settingsDialog->setFolder(str);
    if (m_mode == device_poll::liveMode && m_liveWindow)
        m_liveWindow->setAlarmFolder(str);
}

void MainWindow::Action_photo()
{
    if (!ui)
        return;
    m_deviceState = device_poll::disk;
    auto page = std::make_unique<photo_window>(this);
    qDebug().noquote() << QStringLiteral("按下了图片分析按键-------MainWindow::Action_photo");
    clearModeArea();
    // A live page in full screen has left the mode area, but ends with its mode all the same.
    if (m_liveWindow)
        endPage(m_liveWindow);
    m_browserWindow = page.get();
    enterMode(device_poll::diskMode, page.release(), tr("U盘模式"));
}

void MainWindow::Action_camer()
{
    if (!ui)
        return;
    m_deviceState = device_poll::liveCamera;
    // A camera serves one page at a time: the one before lets go of it first, wherever it is shown.
    if (m_liveWindow)
        endPage(m_liveWindow);
    auto page = std::make_unique<camer_window>();
    page->setAlarmFolder(m_alarmFolder);
    page->refreshHistory();
    clearModeArea();
    m_liveWindow = page.get();
    page->setOwner(this);
    qDebug().noquote() << QStringLiteral("按下了投屏按键------MainWindow::Action_camer");
    enterMode(device_poll::liveMode, page.release(), tr("投屏模式"));
    ui->label_2->clear();
}

void MainWindow::Action_chose()
{
    dropOldSettingsDialogs();
    m_settingsDialogs.push_back(std::make_unique<seting>());
    m_settingsDialog = m_settingsDialogs.back().get();
    m_settingsDialog->setFolder(m_alarmFolder);
    m_settingsDialog->setOwner(this);
    m_settingsDialog->setWindowTitle(tr("选项"));
    m_settingsDialog->setWindowModality(Qt::ApplicationModal);
    m_settingsDialog->show();
}

/// The last dialog lives on behind the next one. Those before it are closed and nobody's, except
/// one that waits for an answer to a dialog of its own.
void MainWindow::dropOldSettingsDialogs()
{
    if (m_settingsDialogs.empty())
        return;
    const auto last = m_settingsDialogs.end() - 1;
    m_settingsDialogs.erase(std::remove_if(m_settingsDialogs.begin(), last,
                                           [](const std::unique_ptr<seting>& dialog) {
                                               return !dialog->isVisible() &&
                                                      !dialogs::isWaiting(dialog.get());
                                           }),
                            last);
}

void MainWindow::Action_connect()
{
    m_deviceState = device_poll::waiting;
    m_pollTimer.start(pollInterval);
}

void MainWindow::Action_Disconnect()
{
    if (!ui)
        return;
    m_pollTimer.stop();
    clearModeArea();
    if (m_liveWindow)
        endPage(m_liveWindow); // out of the mode area, in full screen
    ui->label->setText(tr("已断开连接"));
    m_fileMenu->actions().at(0)->setEnabled(true);
    m_fileMenu->actions().at(1)->setEnabled(false);
    m_deviceState = device_poll::waiting;
    m_mode = device_poll::noMode;
}

void MainWindow::Action_Close()
{
    m_pollTimer.stop();
    ui.reset();
    close();
}

void MainWindow::Action_Doc()
{
    qDebug().noquote() << QStringLiteral("点击了用户手册");
}

void MainWindow::Photo_itemEntered(QListWidgetItem* item)
{
    if (!ui || !item)
        return;
    if (item->text() == QLatin1String("?"))
        ui->label_2->clear();
    else if (m_browserWindow)
        ui->label_2->setText(m_browserWindow->imageFolder + QLatin1Char('/') + item->text());
}

void MainWindow::fullscr(bool /*sta*/)
{
    if (!ui || !m_liveWindow || m_mode != device_poll::liveMode)
        return;
    ui->horizontalLayout->addWidget(m_liveWindow);
    m_liveWindow->show();
}

void MainWindow::timeout_connect()
{
    if (!ui)
        return;
    std::vector<bool> cameraIsImager;
    const QList<QCameraInfo> cameras = QCameraInfo::availableCameras();
    for (const QCameraInfo& camera : cameras)
        cameraIsImager.push_back(live::isImager(camera));
    const auto [action, state] = device_poll::decide(m_deviceState, m_mode, cameraIsImager,
                                                     platform::removableDrives().size());
    m_deviceState = state;
    switch (action) {
    case device_poll::Action::None:
        break;
    case device_poll::Action::LeaveAndWait:
        leaveAndWait();
        break;
    case device_poll::Action::EnterLive:
        // One page for every imager among the cameras, each in the place of the one before.
        for (const bool isImager : cameraIsImager) {
            if (isImager)
                Action_camer();
        }
        break;
    case device_poll::Action::EnterDisk:
        Action_photo();
        if (m_deviceState == device_poll::liveCamera)
            leaveAndWait();
        break;
    case device_poll::Action::CheckFolders:
        checkFolders();
        break;
    case device_poll::Action::Wait:
        showWaiting();
        break;
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    m_pollTimer.stop();
    if (m_liveWindow && m_liveWindow->isWindow())
        m_liveWindow->close();
}

/// The mode area holds one page at most; it goes.
void MainWindow::clearModeArea()
{
    if (ui->horizontalLayout->count() != 1)
        return;
    QWidget* page = ui->horizontalLayout->itemAt(0)->widget();
    ui->horizontalLayout->removeWidget(page);
    endPage(page);
}

void MainWindow::endPage(QWidget* page)
{
    if (page == m_liveWindow)
        m_liveWindow.clear();
    if (page == m_browserWindow)
        m_browserWindow.clear();
    dialogs::end(page);
}

void MainWindow::enterMode(int mode, QWidget* page, const QString& status)
{
    ui->horizontalLayout->addWidget(page);
    m_mode = mode;
    ui->label->setText(status);
    m_fileMenu->actions().at(0)->setEnabled(false);
    m_fileMenu->actions().at(1)->setEnabled(true);
}

void MainWindow::leaveAndWait()
{
    Action_Disconnect();
    Action_connect();
    showWaiting();
}

void MainWindow::showWaiting()
{
    ui->label->setText(tr("正在等待连接..."));
    clearModeArea();
    if (m_mode == device_poll::liveMode && m_liveWindow && m_liveWindow->isOpen()) {
        m_liveWindow->close();
        Action_connect();
    }
}

void MainWindow::checkFolders()
{
    const QFileInfoList folders =
        QDir(platform::removableDrives().value(0)).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& folder : folders) {
        for (const auto& layout : analysis::format::layouts) {
            if (folder.fileName() == QLatin1String(layout.folder))
                Action_photo();
        }
    }
}
