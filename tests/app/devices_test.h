// SPDX-License-Identifier: MIT
#pragma once

#include "app/main_window.h"
#include "config/configuration_record.h"
#include "live/camer_window.h"
#include "platform/removable_drives.h"
#include "simulator/simulated_camera.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>

namespace testing {

/// The main window with a simulated camera and made-up drives, looked at poll by poll: its timer is
/// too slow to come in between, and where it must run by itself the test waits for the outcome.
class DevicesTest : public QObject
{
    Q_OBJECT

protected:
    enum Entry
    {
        Connect,
        Disconnect,
        Options,
        Close
    };

    QStringList drives;

    static simulator::SimulatedCamera& camera() { return simulator::SimulatedCamera::instance(); }

    static QString makeDrive(const QString& name)
    {
        const QString root = profile().home() + QLatin1Char('/') + name;
        QDir().mkpath(root);
        return root + QLatin1Char('/');
    }
    /// From the next poll on.
    void plugDrive() { drives.append(makeDrive(QStringLiteral("imager"))); }

    /// Shown, with its live page.
    static camer_window* becomeLive(MainWindow& window)
    {
        window.show();
        camera().plug();
        window.timeout_connect();
        return window.liveWindow();
    }

    static QString statusText(const MainWindow& window)
    {
        return part<QLabel>(&window, "label")->text();
    }
    static QString pathText(const MainWindow& window)
    {
        return part<QLabel>(&window, "label_2")->text();
    }
    static QLayout* modeArea(const MainWindow& window)
    {
        return part<QLayout>(&window, "horizontalLayout");
    }
    static QAction* fileAction(const MainWindow& window, Entry entry)
    {
        return window.menuBar()->actions().at(0)->menu()->actions().at(entry);
    }

    const QString waitingText = QStringLiteral("正在等待连接...");
    const QString liveText = QStringLiteral("投屏模式");
    const QString diskText = QStringLiteral("U盘模式");
    const QString disconnectedText = QStringLiteral("已断开连接");

private slots:
    void init()
    {
        profile().reset();
        config::create(QStringLiteral("CH"));
        drives.clear();
        platform::setDriveProvider([this] { return drives; });
        camera().unplug();
    }

    void cleanup()
    {
        camera().unplug();
        platform::setDriveProvider({});
    }
};

} // namespace testing
