#include "live/camer_window.h"

#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "files/picture_file.h"
#include "live/alarm_records.h"
#include "live/imager_camera.h"
#include "live/qt_camera_capture.h"

#include "ui_camer_window.h"

#include <QBuffer>
#include <QCamera>
#include <QCameraInfo>
#include <QDateTime>
#include <QDebug>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMediaPlayer>
#include <QMouseEvent>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int blinkInterval = 500;  // ms
constexpr int healthInterval = 300; // ms
constexpr int parked = 9;           // overCount behind the record
constexpr int countOfRecord = 8;

const QString belowStyle = QStringLiteral("background-color: rgb(255, 255, 255);\n"
                                          " color: rgb(80, 180, 50);");
const QString aboveStyle = QStringLiteral("background-color: rgb(255, 255, 255);\n"
                                          " color: rgb(255, 0, 0);");
const QString blinkOnStyle = QStringLiteral("background-color: rgb(255, 0, 0);\n"
                                            "color: rgb(255, 255, 0);");
const QString blinkOffStyle = QStringLiteral("background-color: rgb(255, 255, 255);\n"
                                             "color: rgb(255, 0, 0);");
/// Russian titles are longer: tabs 150 wide instead of the form's 85.
const QString wideTabStyle =
    QStringLiteral("QTabWidget#tabWidget{border-color:rgb(255,0,0);}"
                   "QTabBar::tab {color: rgb(255, 255, 255); border-top-left-radius: 5px;"
                   "border-top-right-radius: 5px;padding: 5px;margin-right:10;width: 150;}"
                   "QTabBar::tab:!selected {background-color: #929697;}"
                   "QTabBar::tab:selected {background-color:#303030;}");

QIcon folderIcon(const QPixmap& folder, const QSize& size)
{
    return folder.isNull()
               ? QIcon()
               : QIcon(folder.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void configureList(QListWidget* list)
{
    list->setDragEnabled(false);
    list->setMovement(QListView::Static);
    list->setResizeMode(QListView::Adjust);
}

/// Makes the list show `names` with the fewest changes, so that what the user has selected stays
/// selected and nothing jumps when a record comes in.
void showNames(QListWidget* list, const QStringList& names, const QSet<QString>& known,
               const QIcon& icon)
{
    int row = 0;
    for (const QString& name : names) {
        while (row < list->count() && !known.contains(list->item(row)->text()))
            delete list->takeItem(row);
        if (row == list->count() || list->item(row)->text() != name)
            list->insertItem(row, new QListWidgetItem(icon, name));
        ++row;
    }
    while (list->count() > row)
        delete list->takeItem(row);
}

void showScaled(QLabel* label, const QPixmap& picture)
{
    if (picture.isNull() || label->size().isEmpty())
        label->clear();
    else
        label->setPixmap(
            picture.scaled(label->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

/// The bytes of a picture file; empty when there is no such format.
QByteArray encoded(const QPixmap& picture, const QByteArray& format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, format.constData()) ? bytes : QByteArray();
}

/// Leaves the whole file, or what was there before.
void writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        file.commit();
}

} // namespace

camer_window::camer_window(QWidget* parent)
    : QWidget(parent), lastAlarmText(QStringLiteral("36.2,34.0,0.97")),
      player(std::make_unique<QMediaPlayer>())
{
    ui = std::make_unique<Ui::camer_window>();
    setFocus(Qt::OtherFocusReason);
    ui->setupUi(this);
    ui->pushButton->setIcon(QIcon(QStringLiteral(":/photo/camaer.png")));
    ui->pushButton->setIconSize({20, 20});
    ui->pushButton_2->setIcon(QIcon(QStringLiteral(":/photo/stop.png")));

    readConfiguration();

    warnTimer = std::make_unique<QTimer>();
    connect(warnTimer.get(), &QTimer::timeout, this, &camer_window::timeout_warn);
    ui->checkBox_2->setEnabled(false);
    ui->checkBox_3->setEnabled(false);
    ui->label_17->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    ui->label_18->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);

    ui->pictureArea->installEventFilter(this);

    capture = std::make_unique<QtCameraCapture>();
    connect(capture.get(), &QtCameraCapture::display_Qimage, this, &camer_window::display_cap);
    connect(capture.get(), &QtCameraCapture::Send_MaxTemp, this, &camer_window::updat_temp);
    if (const auto imager = live::findImager())
        openCamera(*imager);

    healthTimer = std::make_unique<QTimer>();
    connect(healthTimer.get(), &QTimer::timeout, this, &camer_window::timeout_connect);
    healthTimer->start(healthInterval);

    for (QListWidget* list : {ui->listWidget, ui->listWidget_2, ui->listWidget_3})
        configureList(list);
    ui->listWidget->setUniformItemSizes(true);
    ui->listWidget->setIconSize({20, 20});
    ui->listWidget_2->setUniformItemSizes(true);
    ui->listWidget_2->setIconSize({30, 30});
    ui->listWidget_3->setViewMode(QListView::IconMode);
    ui->listWidget_3->setIconSize({70, 70});
    ui->listWidget_3->setSpacing(30);
    const QPixmap folder(QStringLiteral("://photo/folder.png"));
    m_smallFolder = folderIcon(folder, ui->listWidget->iconSize());
    m_largeFolder = folderIcon(folder, ui->listWidget_2->iconSize());
    refreshHistory();
}

camer_window::~camer_window()
{
    // A frame or a tick on the way meets a closed page.
    ui.reset();
    stopEverything();
}

void camer_window::readConfiguration()
{
    const config::Record record = config::read();
    languageCode = record.language;
    historyFolder = record.alarmFolder;
    if (languageCode == QLatin1String("RU"))
        ui->tabWidget->setStyleSheet(wideTabStyle);
}

void camer_window::openCamera(const QCameraInfo& imager)
{
    camera = std::make_unique<QCamera>(imager);
    camera->setViewfinder(capture.get());
    camera->start();
}

void camer_window::reopenCamera()
{
    if (!ui)
        return;
    if (camera)
        camera->stop();
    const QList<QCameraInfo> cameras = QCameraInfo::availableCameras();
    for (const QCameraInfo& info : cameras) {
        qDebug().noquote() << QStringLiteral("可用相机:") << info.description();
        if (live::isImager(info)) {
            openCamera(info);
            break;
        }
    }
    if (camera)
        camera->start();
}

void camer_window::stopEverything()
{
    healthTimer->stop();
    warnTimer->stop();
    player->stop();
    if (camera)
        camera->stop();
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
    showScaled(ui->label_17, currentPixmap);
    if (recentFrames.size() >= live::recordPictures)
        recentFrames.removeFirst();
    recentFrames.append(cap_image);
}

void camer_window::timeout_connect()
{
    if (!ui || !camera)
        return;
    cameraRunning = camera->error() == QCamera::NoError;
    if (!cameraRunning)
        camera->stop();
}

void camer_window::on_pushButton_clicked()
{
    if (!ui || currentPixmap.isNull())
        return;
    const QPixmap picture =
        currentPixmap.scaled(480, 640, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const dialogs::Waiting waiting(this);
    QFileDialog dialog(this, tr("保存的文件"), historyFolder + QStringLiteral("/cap.png"),
                       QStringLiteral("Items files(*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QStringLiteral("png"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    // The name is the user's; one whose suffix names no picture format gets a PNG all the same.
    const QString name = dialog.selectedFiles().value(0);
    QByteArray bytes = encoded(picture, QFileInfo(name).suffix().toLatin1());
    if (bytes.isEmpty())
        bytes = encoded(picture, "PNG");
    writeWhole(name, bytes);
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
    if (maxTem >= warn) { // false for NaN
        if (alarmEnabled && !alarmSilenced) {
            if (!warnTimer->isActive())
                warnTimer->start(blinkInterval);
            if (alarmFilesEnabled) {
                if (overCount < countOfRecord)
                    ++overCount;
                if (overCount == countOfRecord) {
                    // Parked first: one record per excursion, whatever comes of it.
                    overCount = parked;
                    saveAlarmRecord();
                }
            }
        } else if (!alarmEnabled) {
            warnTimer->stop();
            setReadoutStyle(aboveStyle);
        }
    } else {
        warnTimer->stop();
        player->stop();
        overCount = 0;
        alarmSilenced = false;
        setReadoutStyle(belowStyle);
    }
    ui->label_6->setText(QString::number(double(maxTem), 'f', 1));
    ui->label_7->setText(QString::number(double(warn), 'f', 1));
    ui->label_8->setText(QString::number(double(fsl), 'f', 2));
}

void camer_window::timeout_warn()
{
    if (!ui)
        return;
    setReadoutStyle(blinkPhase ? blinkOnStyle : blinkOffStyle);
    blinkPhase = !blinkPhase;
    if (soundEnabled)
        playAlarm();
    else
        player->stop();
}

void camer_window::setReadoutStyle(const QString& style)
{
    // Setting a style sheet is dear, and most frames change nothing.
    if (ui->label_6->styleSheet() != style)
        ui->label_6->setStyleSheet(style);
}

void camer_window::playAlarm()
{
    // Not restarted while it plays: each tick starts it again only once it has ended.
    if (player->state() == QMediaPlayer::PlayingState)
        return;
    for (const char* code : {"CH", "EN", "KO", "RU"}) {
        const QUrl sound(QStringLiteral("qrc:/Sound/%1/Alarm.wav").arg(QLatin1String(code)));
        // Loaded once: where there is no audio device, each loading complains.
        if (languageCode == QLatin1String(code) && player->media().request().url() != sound)
            player->setMedia(sound);
    }
    player->play();
}

void camer_window::on_checkBox_stateChanged(int arg1)
{
    if (!ui)
        return;
    alarmEnabled = arg1 == Qt::Checked;
    alarmSilenced = false;
    if (!alarmEnabled) {
        ui->checkBox_2->setChecked(false);
        ui->checkBox_3->setChecked(false);
        overCount = 0;
    }
    ui->checkBox_2->setEnabled(alarmEnabled);
    ui->checkBox_3->setEnabled(alarmEnabled);
}

void camer_window::on_checkBox_2_stateChanged(int arg1)
{
    if (ui)
        soundEnabled = arg1 == Qt::Checked;
}

void camer_window::on_checkBox_3_stateChanged(int arg1)
{
    if (!ui)
        return;
    alarmFilesEnabled = arg1 == Qt::Checked;
    if (!alarmFilesEnabled)
        overCount = 0;
}

void camer_window::on_pushButton_2_clicked()
{
    if (!ui)
        return;
    alarmSilenced = true;
    setReadoutStyle(blinkOffStyle);
    player->stop();
    warnTimer->stop();
}

void camer_window::saveAlarmRecord()
{
    if (!ui || recentFrames.size() != live::recordPictures)
        return;
    lastAlarmText = ui->label_6->text() + QLatin1Char(',') + ui->label_7->text() +
                    QLatin1Char(',') + ui->label_8->text();
    const QString name =
        live::writeRecord(historyFolder, QDateTime::currentDateTime(), recentFrames, lastAlarmText);
    if (!name.isEmpty())
        refreshHistory();
}

void camer_window::refreshHistory()
{
    if (!ui)
        return;
    const QStringList names = live::recordNames(historyFolder);
    const QSet<QString> known(names.begin(), names.end());
    showNames(ui->listWidget, names, known, m_smallFolder);
    showNames(ui->listWidget_2, names, known, m_largeFolder);
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
    if (!ui || !item)
        return;
    const live::RecordReadings readings = live::recordReadings(historyFolder, item->text());
    ui->label_12->setText(readings.maximum);
    ui->label_14->setText(readings.threshold);
    ui->label_16->setText(readings.emissivity);

    historyPixmaps.clear();
    ui->listWidget_3->clear();
    for (const QString& path : live::recordPicturePaths(historyFolder, item->text())) {
        const QPixmap picture = files::pictureInFile(path);
        historyPixmaps.append(picture);
        ui->listWidget_3->addItem(new QListWidgetItem(QIcon(picture), QFileInfo(path).fileName()));
    }
    ui->listWidget_3->setCurrentRow(0);
    if (historyPixmaps.isEmpty())
        on_listWidget_3_currentRowChanged(-1);
}

void camer_window::on_listWidget_3_currentRowChanged(int currentRow)
{
    if (!ui)
        return;
    historyRow = currentRow;
    showHistoryPicture(qMax(currentRow, 0));
}

void camer_window::showHistoryPicture(int row)
{
    const QPixmap picture = historyPixmaps.value(row);
    const QSize size = ui->label_18->size();
    if (picture.cacheKey() == m_shownKey && size == m_shownSize)
        return;
    m_shownKey = picture.cacheKey();
    m_shownSize = size;
    showScaled(ui->label_18, picture);
}

void camer_window::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    // The picture follows its label's size. Setting it while painting asks for another paint, so
    // nothing is set that is shown already.
    if (ui && historyRow != -1)
        showHistoryPicture(historyRow);
}
