// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

class QListWidgetItem;
class camer_window;
class photo_window;
class seting;

namespace Ui {
class MainWindow;
}

/// The frame of the program: looks for the imager every 300 ms and shows the page of the mode it is
/// in, live view for a camera, image browser for a disk. Everything runs on the GUI thread.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    /// Writes the alarm folder back into the configuration record.
    ~MainWindow() override;

    int deviceState() const { return m_deviceState; }           ///< see device_poll
    int mode() const { return m_mode; }                         ///< see device_poll
    bool isPolling() const { return m_pollTimer.isActive(); }   ///< looks for the imager by itself
    QString alarmFolder() const { return m_alarmFolder; }       ///< as known to this window
    seting* settingsDialog() const { return m_settingsDialog; } ///< the last one opened, or none
    camer_window* liveWindow() const;                           ///< none outside live mode
    photo_window* browser() const;                              ///< none outside USB-disk mode

public slots:
    /// A new alarm folder from the settings dialog: stored, written, passed on.
    void Get_Addr(QString str);
    /// Enters USB-disk mode.
    void Action_photo();
    /// Enters live mode.
    void Action_camer();
    /// Opens a new settings dialog.
    void Action_chose();
    /// Looks for the imager again.
    void Action_connect();
    /// Ends the mode and stops looking until Action_connect().
    void Action_Disconnect();
    void Action_Close();
    /// The user manual: only logged, nothing opens.
    void Action_Doc();
    /// Shows the path of the photograph under the mouse; "?" clears it.
    void Photo_itemEntered(QListWidgetItem* item);
    /// Takes the live page back in when it leaves full screen; `sta` is not used.
    void fullscr(bool sta);
    /// One look at cameras and drives.
    void timeout_connect();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void readConfiguration();
    void buildMenuBar();
    void dropOldSettingsDialogs();
    void clearModeArea();
    void endPage(QWidget* page);
    void enterMode(int mode, QWidget* page, const QString& status);
    void leaveAndWait();
    void showWaiting();
    void checkFolders();

    QMenu* m_fileMenu = nullptr; ///< owned by the menu bar; entries 0 and 1 follow the mode
    int m_deviceState = -1;
    /// The last one, which is m_settingsDialog, and the one before.
    std::vector<std::unique_ptr<seting>> m_settingsDialogs;
    seting* m_settingsDialog = nullptr;
    /// Deleted with the mode area or by endPage(), whoever comes first.
    QPointer<camer_window> m_liveWindow;
    QPointer<photo_window> m_browserWindow;
    QTimer m_pollTimer;
    int m_mode = -1;
    QString m_alarmFolder;
    /// Released by Action_Close() before the window is: slots that come later do nothing.
    std::unique_ptr<Ui::MainWindow> ui;
};
