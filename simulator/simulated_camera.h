// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

namespace simulator {

class CameraSession;

/// What the operating system would say about a camera.
struct CameraIdentity
{
    QString deviceName;  ///< QCameraInfo::deviceName(); no two plugged cameras share one
    QString description; ///< QCameraInfo::description()
};

/// The imager's own identity: a Windows device path with the imager's vendor and product, and
/// "UVC Camera".
CameraIdentity imagerIdentity();

/// Cameras that can be plugged in, used and pulled out without hardware.
///
/// They reach the program through Qt's own doors: a media-service plugin, linked statically, lists
/// them in QCameraInfo::availableCameras() beside the machine's real cameras, and a QCamera opened
/// on one hands the delivered frames to its viewfinder surface. Nothing is needed besides linking
/// thermadesk_simulator_camera and calling instance().
///
/// A device serves one QCamera at a time, like a real one: while a QCamera on it is active,
/// starting another one ends in QCamera::CameraError. A stopped camera leaves the device free.
/// After any error a QCamera is unloaded and stays so until it is started again.
///
/// GUI thread only. Every call takes effect before it returns, and the slots it runs may delete
/// cameras and surfaces, plug and unplug.
class SimulatedCamera : public QObject
{
    Q_OBJECT

public:
    static SimulatedCamera& instance();

    /// Plugs a camera in behind those already there. A camera of the same device name is replaced
    /// in its place, without an error for whoever uses it.
    void plug(const CameraIdentity& identity = imagerIdentity());
    /// Pulls every camera out. Every QCamera that is active gets QCamera::CameraError.
    void unplug();
    /// Pulls out one camera, known by its device name; the others stay.
    void unplug(const CameraIdentity& identity);
    /// Whether any camera is plugged in.
    bool isPlugged() const { return !m_plugged.isEmpty(); }
    bool isPlugged(const CameraIdentity& identity) const;
    /// The plugged cameras in the order of their plugging in.
    const QList<CameraIdentity>& plugged() const { return m_plugged; }

    /// Every active QCamera gets QCamera::CameraError; the devices stay plugged in.
    void reportError();

    /// Hands exactly these bytes, as one 240 × 320 frame of Format_YUYV, to the viewfinder surface
    /// of every active QCamera. A short or overlong frame is delivered as it is, no bytes as an
    /// invalid frame. True when at least one surface took it; false when no camera is active.
    bool deliver(const QByteArray& frameBytes);

    /// Whether any QCamera is active on a simulated camera.
    bool isRunning() const { return m_running; }

signals:
    /// A camera was plugged in or pulled out.
    void pluggedChanged();
    /// The first QCamera became active, or the last one ceased to be.
    void runningChanged(bool running);

private:
    friend class CameraSession;

    SimulatedCamera() = default;
    int indexOf(const QString& deviceName) const;
    bool isInUse(const QString& deviceName) const;
    void updateRunning();
    QList<QPointer<CameraSession>> activeSessions() const;

    QList<CameraIdentity> m_plugged;
    QList<CameraSession*>
        m_sessions; ///< owned by their media services; each enters and leaves itself
    bool m_running = false;
};

} // namespace simulator
