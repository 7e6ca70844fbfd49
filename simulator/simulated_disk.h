// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QObject>
#include <QTemporaryDir>

namespace simulator {

/// A removable disk without hardware: an ordinary folder that platform::removableDrives() names
/// while the disk is plugged in.
///
/// As long as any such disk exists, plugged in or not, the drive list holds the plugged ones and
/// nothing else, in the order of their plugging in; when the last one is destroyed, the system
/// answers again. GUI thread only.
class SimulatedDisk : public QObject
{
    Q_OBJECT

public:
    /// Names of the folders in which the imager keeps its photographs, per model index.
    static QString photographFolderName(int modelIndex);

    enum class Content
    {
        ImagerFolders, ///< an empty "DCIM_100"
        Nothing        ///< a plain USB stick
    };
    /// A disk of its own in a temporary folder, which goes with the object. Unplugged.
    explicit SimulatedDisk(Content content = Content::ImagerFolders, QObject* parent = nullptr);
    /// A disk that is the given folder, whatever it holds; nothing is made in it. Unplugged.
    explicit SimulatedDisk(const QString& folder, QObject* parent = nullptr);
    ~SimulatedDisk() override;

    /// The drive's root as the drive list names it, ending in "/". Always the same.
    QString root() const { return m_root; }

    bool isPlugged() const { return m_plugged; }
    void plug();
    /// Takes the disk out of the drive list. The files of a temporary disk become unreachable, as
    /// with a real one, until it is plugged in again; the given folder of the other constructor is
    /// left as it is.
    void unplug();

    /// Stores a photograph under the name an imager gives it ("20260318_101502.bmp"; a taken name
    /// gets "_2", "_3" … behind). Returns its path; empty when the disk is out or cannot be
    /// written.
    QString store(const QByteArray& photograph, int modelIndex,
                  const QDateTime& takenAt = QDateTime::currentDateTime());

signals:
    void pluggedChanged(bool plugged);

private:
    void enterDriveList();

    QTemporaryDir m_temporary;
    QString m_root;
    bool m_isTemporary = false;
    bool m_plugged = false;
};

} // namespace simulator
