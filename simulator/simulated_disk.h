// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QObject>
#include <QTemporaryDir>

namespace simulator {

/// A removable disk without hardware: a folder that platform::removableDrives() names while the
/// disk is plugged in.
///
/// As long as any such disk exists, plugged in or not, the drive list holds the plugged ones and
/// nothing else, in the order of their plugging in; when the last one is destroyed, the system
/// answers again. GUI thread only.
class SimulatedDisk : public QObject
{
    Q_OBJECT

public:
    /// A disk of its own in a temporary folder, which goes with the object. It holds an empty
    /// "DCIM_100". Unplugged.
    explicit SimulatedDisk(QObject* parent = nullptr);
    ~SimulatedDisk() override;

    /// The drive's root as the drive list names it, ending in "/". Always the same.
    QString root() const { return m_root; }

    bool isPlugged() const { return m_plugged; }
    void plug();
    /// Takes the disk out of the drive list. Its files become unreachable, as with a real one,
    /// until it is plugged in again.
    void unplug();

    /// Stores a photograph under the name an imager gives it ("20260318_101502.bmp"; a taken name
    /// gets "_2", "_3" … behind). Returns its path; empty when the disk is out or cannot be
    /// written.
    QString store(const QByteArray& photograph, int modelIndex,
                  const QDateTime& takenAt = QDateTime::currentDateTime());

signals:
    void pluggedChanged(bool plugged);

private:
    QTemporaryDir m_temporary;
    QString m_root;
    bool m_plugged = false;
};

} // namespace simulator
