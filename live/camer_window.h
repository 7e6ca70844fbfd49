// SPDX-License-Identifier: MIT
#pragma once

#include "live/alarm.h"
#include "live/alarm_history.h"
#include "live/live_camera.h"

#include <QImage>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

class QListWidgetItem;
class QMediaPlayer;
class QTimer;

namespace Ui {
class camer_window;
}

/// The live page: the imager's picture with its three read-outs, the temperature alarm, and the
/// history of alarm records. The main window embeds it; a double-click on the picture takes it out
/// of its parent to fill the screen, another one, Escape or a request to close it brings it back.
///
/// It opens the imager's camera when it is made and lets go of it when it is closed or destroyed,
/// whichever comes first and in whatever state it is. After a close every slot does nothing.
///
/// GUI thread only. Device and file problems are not reported: the picture and the lists show what
/// there is.
class camer_window : public QWidget,
                     public live::AlarmState,
                     public live::HistoryState,
                     public live::LiveCamera
{
    Q_OBJECT

public:
    /// Reads language and alarm folder from the configuration record, opens the first imager there
    /// is, and lists the records. Without an imager there is no picture; nothing is reported.
    explicit camer_window(QWidget* parent = nullptr);
    ~camer_window() override;

    /// The folder with the alarm records. Another folder than before is listed at once.
    void setAlarmFolder(const QString& folder);
    /// Brings both lists of records up to date with the disk.
    void refreshHistory();
    /// Makes `owner` hear of this page: fullscr(bool) reaches its slot fullscr(bool), dis() its
    /// slot Action_Disconnect(). Both must exist; the owner does not become the parent.
    void setOwner(QObject* owner);
    /// True until the page is closed.
    bool isOpen() const { return ui != nullptr; }
    /// Stops the camera, looks for an imager anew, and starts what there is then.
    void reopenCamera();
    /// `full` is the state to leave: false takes the page out of its parent to the whole screen,
    /// true brings it back and tells so by fullscr(false); taking it in again is up to the hearer.
    void toggleFullScreen(bool full);
    /// Writes the last seven pictures and the read-outs as they stand as a record of this moment.
    void saveAlarmRecord();

    std::unique_ptr<Ui::camer_window> ui; ///< null once closed

    QPixmap currentPixmap; ///< last live picture, 240 × 320; null before the first
    bool isFull = false;   ///< out of its parent, on the whole screen
    QString languageCode;

    std::unique_ptr<QMediaPlayer> player;
    std::unique_ptr<QTimer> warnTimer;   ///< 500 ms: blink and sound
    std::unique_ptr<QTimer> healthTimer; ///< 300 ms: camera errors

signals:
    void fullscr(bool sta); ///< left the whole screen; always false
    void dis();             ///< never emitted

public slots:
    void display_cap(QImage cap_image);
    void updat_temp(float maxTem, float warn, float fsl);
    void timeout_warn();
    void timeout_connect();
    void on_pushButton_clicked();
    void on_checkBox_stateChanged(int arg1);
    void on_pushButton_2_clicked();
    void on_checkBox_3_stateChanged(int arg1);
    void on_listWidget_itemClicked(QListWidgetItem* item);
    void on_listWidget_2_itemClicked(QListWidgetItem* item);
    void on_listWidget_3_currentRowChanged(int currentRow);
    void on_checkBox_2_stateChanged(int arg1);
    void on_listWidget_itemDoubleClicked(QListWidgetItem* item);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void stopEverything();
    void carryOut(const live::AlarmActions& actions);
    void playAlarm();

    std::unique_ptr<live::AlarmHistory> m_history;
};
