// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/selection_export.h"
#include "app/main_window.h"
#include "tests/faults/endurance.h"
#include "tests/faults/mounted_disk.h"

#include <QUrl>

#include <functional>
#include <memory>
#include <random>

namespace testing {

/// The imager's disk, really mounted, under the whole program: what the tests share that do
/// something to it over and over.
///
/// Where mounting is not allowed, the rows that need it are skipped with the reason, and the rows
/// of the ordinary folder remain.
class DiskTest : public QObject
{
    Q_OBJECT

protected:
    using Kind = MountedDisk::Kind;

    static constexpr int photographs = 24; ///< on the disk, of about 300 to 500 KB

    std::mt19937 m_random;
    std::unique_ptr<MountedDisk> m_disk;
    std::unique_ptr<MainWindow> m_window;

    static QString name(int i)
    {
        return QStringLiteral("IMG%1.bmp").arg(i, 3, 10, QLatin1Char('0'));
    }
    QString anyName() { return name(int(m_random() % photographs)); }
    analysis::SelectionTask anyTask() { return analysis::SelectionTask(m_random() % 5); }

    /// A row for each kind.
    static void disks(std::initializer_list<Kind> kinds);
    /// The row's disk with photographs on it, unplugged. False when it was skipped.
    bool prepare();
    /// The same, plugged in and shown by the program.
    bool begin();
    void show();
    void leaveAndEnter();

    /// Does it as often as the test's scale says, and a few times before that, until Qt and the
    /// heap have what they keep. Nothing may be left over, grow or hang. What the test itself waits
    /// for is taken out with skip().
    static void repeat(const std::function<void(Pulse&)>& once);

    /// Opens a photograph; returns the message that came instead, if one did.
    QString open(const QString& photograph);
    /// True when the program says that the report was written.
    bool saveReport(const QString& path);
    /// Exports some of the photographs; returns the message in the end.
    QString exportSelection(analysis::SelectionTask task, const QString& target);
    /// For the threads and caches that Qt makes with the first dialog and the first report.
    void useEverythingOnce();

public slots:
    void openReport(const QUrl&) {} ///< in a viewer's place

private slots:
    void initTestCase();
    void init();
    void cleanup();

private:
    void prepareDisk();

    QList<QByteArray> m_photographs;
};

/// Names of all that a folder holds, hidden ones too.
QStringList everything(const QString& folder);

/// Takes the process to where nobody else sees what it mounts, if it may mount.
void goWhereMountsArePrivate();

/// runScaled() of such a test.
template<typename T>
int runOnDisks(int argc, char** argv)
{
    goWhereMountsArePrivate(); // before any thread starts
    return runScaled<T>(argc, argv, 6);
}

} // namespace testing
