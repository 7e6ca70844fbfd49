// SPDX-License-Identifier: MIT
#include "live/camer_window.h"

#include "config/configuration_record.h"
#include "config/language.h"
#include "dialogs/dialogs.h"
#include "files/paths.h"
#include "live/alarm_records.h"
#include "live/qt_camera_capture.h"
#include "live/saved_picture.h"

#include "ui_camer_window.h"

#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMediaPlayer>
#include <QMouseEvent>
#include <QNetworkRequest>
#include <QTabBar>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int blinkInterval = 500;  // ms
constexpr int healthInterval = 300; // ms

/// For wide captions: tabs 150 wide instead of the form's 85.
const QString wideTabStyle =
    QStringLiteral("QTabWidget#tabWidget{border-color:rgb(255,0,0);}"
                   "QTabBar::tab {color: rgb(255, 255, 255); border-top-left-radius: 5px;"
                   "border-top-right-radius: 5px;padding: 5px;margin-right:10;width: 150;}"
                   "QTabBar::tab:!selected {background-color: #929697;}"
                   "QTabBar::tab:selected {background-color:#303030;}");

/// In every language: a line below the title. With the padding it is as high as no line.
const QString focusedTabStyle =
    QStringLiteral("QTabBar::tab:focus{border-bottom: 2px solid rgb(85, 170, 255);"
                   "padding-bottom: 3px;}");

/// The dialog takes a name that begins with a colon for a whole path.
QString chosenPath(const QFileDialog& dialog)
{
    const QString chosen = dialog.selectedFiles().value(0);
    return chosen.startsWith(QLatin1Char(':')) ? files::pathIn(dialog.directory().path(), chosen)
                                               : chosen;
}

} // namespace

camer_window::camer_window(QWidget* parent)
    : QWidget(parent), player(std::make_unique<QMediaPlayer>())
{
    ui = std::make_unique<Ui::camer_window>();
    setFocus(Qt::OtherFocusReason);
    ui->setupUi(this);
    ui->pushButton->setIcon(QIcon(QStringLiteral(":/photo/camaer.png")));
    ui->pushButton_2->setIcon(QIcon(QStringLiteral(":/photo/stop.png")));

    const config::Record record = config::read();
    languageCode = record.language;
    historyFolder = record.alarmFolder;
    if (config::languageOf(languageCode).hasWideCaptions)
        ui->tabWidget->setStyleSheet(wideTabStyle);
    ui->tabWidget->tabBar()->setStyleSheet(focusedTabStyle);

    warnTimer = std::make_unique<QTimer>();
    connect(warnTimer.get(), &QTimer::timeout, this, &camer_window::timeout_warn);
    ui->pictureArea->installEventFilter(this);
    connect(capture.get(), &QtCameraCapture::display_Qimage, this, &camer_window::display_cap);
    connect(capture.get(), &QtCameraCapture::Send_MaxTemp, this, &camer_window::updat_temp);
    open();

    healthTimer = std::make_unique<QTimer>();
    connect(healthTimer.get(), &QTimer::timeout, this, &camer_window::timeout_connect);
    healthTimer->start(healthInterval);

    m_history = std::make_unique<live::AlarmHistory>(
        *this, live::AlarmHistory::View{ui->listWidget, ui->listWidget_2, ui->listWidget_3,
                                        ui->label_18, ui->label_12, ui->label_14, ui->label_16});
    m_history->refresh();
}

camer_window::~camer_window()
{
    // A frame or a tick on the way meets a closed page.
    ui.reset();
    stopEverything();
}

void camer_window::reopenCamera()
{
    if (ui)
        reopen();
}

void camer_window::stopEverything()
{
    healthTimer->stop();
    warnTimer->stop();
    player->stop();
    stopCamera();
}

void camer_window::setAlarmFolder(const QString& folder)
{
    if (folder == historyFolder)
        return;
    historyFolder = folder;
    refreshHistory();
}

void camer_window::setOwner(QObject* owner)
{
    // By name: this room does not know the main window's class.
    connect(this, SIGNAL(fullscr(bool)), owner, SLOT(fullscr(bool)));
    connect(this, SIGNAL(dis()), owner, SLOT(Action_Disconnect()));
}

void camer_window::display_cap(QImage cap_image) // NOLINT(performance-unnecessary-value-param)
{
    if (!ui)
        return;
    currentPixmap = QPixmap::fromImage(cap_image);
    live::showScaled(*ui->label_17, currentPixmap);
    onPicture(cap_image);
}

void camer_window::timeout_connect()
{
    if (ui)
        checkHealth();
}

void camer_window::on_pushButton_clicked()
{
    if (!ui)
        return;
    const QImage picture = currentPixmap.toImage(); // of the press
    const dialogs::Waiting waiting(this);
    QFileDialog dialog(this, tr("保存的文件"),
                       config::usedFolder(historyFolder) + QStringLiteral("/cap.png"),
                       QStringLiteral("Items files(*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QStringLiteral("png"));
    if (dialog.exec() == QDialog::Accepted && !picture.isNull())
        live::savePicture(chosenPath(dialog),
                          picture.scaled(480, 640, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void camer_window::mouseDoubleClickEvent(QMouseEvent* event)
{
    QWidget::mouseDoubleClickEvent(event);
    if (!ui || ui->tabWidget->currentWidget() != ui->tab)
        return;
    const int x = qRound(event->localPos().x());
    const int y = qRound(event->localPos().y());
    const QRect picture(ui->label_17->mapTo(this, QPoint(0, 0)), ui->label_17->size());
    if (x > picture.x() && x < picture.x() + picture.width() && y > picture.y() &&
        y < picture.y() + picture.height())
        toggleFullScreen(isFullScreen());
}

void camer_window::toggleFullScreen(bool full)
{
    if (full) {
        setWindowFlag(Qt::SubWindow);
        showNormal();
        emit fullscr(false);
        isFull = false;
    } else {
        setParent(nullptr);
        showFullScreen();
        isFull = true;
        setFocus(Qt::OtherFocusReason); // so that Escape is heard
    }
}

void camer_window::keyPressEvent(QKeyEvent* event)
{
    QWidget::keyPressEvent(event);
    if (!ui || event->key() != Qt::Key_Escape)
        return;
    qDebug().noquote() << QStringLiteral("您按下了ESC");
    if (isFull)
        toggleFullScreen(true);
}

void camer_window::closeEvent(QCloseEvent* event)
{
    // The window manager asks: the user has had enough of the whole screen, not of the page. Not in
    // the middle of the event, whose window goes with it.
    if (isFull && event->spontaneous()) {
        event->ignore();
        QTimer::singleShot(0, this, [this] {
            if (isFull)
                toggleFullScreen(true);
        });
        return;
    }
    QWidget::closeEvent(event);
    ui.reset();
    stopEverything();
}

bool camer_window::eventFilter(QObject* watched, QEvent* event)
{
    // A frame paints its picture and the read-outs that changed, nothing else. So the picture lies
    // in no layout (each new pixmap would have the whole page laid out and painted), the read-outs
    // have fixed sizes, and opaque areas lie under both.
    if (ui && watched == ui->pictureArea && event->type() == QEvent::Resize)
        ui->label_17->resize(ui->pictureArea->size());
    return QWidget::eventFilter(watched, event);
}

void camer_window::updat_temp(float maxTem, float warn, float fsl)
{
    if (!ui)
        return;
    carryOut(onFrame(maxTem, warn)); // a record has the read-outs of the frame before
    ui->label_6->setText(QString::number(double(maxTem), 'f', 1));
    ui->label_7->setText(QString::number(double(warn), 'f', 1));
    ui->label_8->setText(QString::number(double(fsl), 'f', 2));
}

void camer_window::timeout_warn()
{
    if (!ui)
        return;
    carryOut(onTick());
}

void camer_window::carryOut(const live::AlarmActions& actions)
{
    if (actions.blinking == live::Change::Stop)
        warnTimer->stop();
    else if (actions.blinking == live::Change::Start && !warnTimer->isActive())
        warnTimer->start(blinkInterval);
    if (actions.sound == live::Change::Stop)
        player->stop();
    else if (actions.sound == live::Change::Start)
        playAlarm();
    if (actions.writesRecord)
        saveAlarmRecord();
    // Setting a style sheet is dear, and most frames change nothing.
    const QString style = live::styleSheetOf(actions.look);
    if (!style.isEmpty() && ui->label_6->styleSheet() != style)
        ui->label_6->setStyleSheet(style);
}

void camer_window::playAlarm()
{
    // Not restarted while it plays: each tick starts it again only once it has ended.
    if (player->state() == QMediaPlayer::PlayingState)
        return;
    if (const config::Language* language = config::findLanguage(languageCode)) {
        // Loaded once: where there is no audio device, each loading complains.
        const QUrl sound(language->sound);
        if (player->media().request().url() != sound)
            player->setMedia(sound);
    }
    player->play();
}

void camer_window::on_checkBox_stateChanged(int arg1)
{
    if (!ui)
        return;
    onAlarmEnabled(arg1 == Qt::Checked);
    if (!alarmEnabled) {
        ui->checkBox_2->setChecked(false);
        ui->checkBox_3->setChecked(false);
    }
    ui->checkBox_2->setEnabled(alarmEnabled);
    ui->checkBox_3->setEnabled(alarmEnabled);
}

void camer_window::on_checkBox_2_stateChanged(int arg1)
{
    if (ui)
        onSoundEnabled(arg1 == Qt::Checked);
}

void camer_window::on_checkBox_3_stateChanged(int arg1)
{
    if (ui)
        onFilesEnabled(arg1 == Qt::Checked);
}

void camer_window::on_pushButton_2_clicked()
{
    if (ui)
        carryOut(onStop());
}

void camer_window::saveAlarmRecord()
{
    if (!ui || recentFrames.size() != live::recordPictures)
        return;
    lastAlarmText = ui->label_6->text() + QLatin1Char(',') + ui->label_7->text() +
                    QLatin1Char(',') + ui->label_8->text();
    m_history->save(recentFrames, lastAlarmText);
}

void camer_window::refreshHistory()
{
    if (ui)
        m_history->refresh();
}

void camer_window::on_listWidget_itemClicked(QListWidgetItem*) {}

void camer_window::on_listWidget_itemDoubleClicked(QListWidgetItem*)
{
    if (!ui)
        return;
    // The list beside the picture is only a way into the history: always to its first record.
    ui->tabWidget->setCurrentIndex(1);
    if (ui->listWidget_2->count() == 0)
        return;
    ui->listWidget_2->setCurrentRow(0);
    on_listWidget_2_itemClicked(ui->listWidget_2->item(0));
}

void camer_window::on_listWidget_2_itemClicked(QListWidgetItem* item)
{
    if (ui && item)
        m_history->open(item->text());
}

void camer_window::on_listWidget_3_currentRowChanged(int currentRow)
{
    if (ui)
        m_history->showPicture(currentRow);
}

void camer_window::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (ui)
        m_history->fitPicture(); // it follows its label's size
}
