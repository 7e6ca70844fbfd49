// SPDX-License-Identifier: MIT
#include "simulator/simulated_camera.h"

#include "live/live_frame.h"
#include "simulator/simulated_camera_session.h"

#include <QVideoFrame>
#include <QtPlugin>

#include <algorithm>
#include <cstring>

// Stands in the file that every user of SimulatedCamera links, so that the linker cannot drop it.
Q_IMPORT_PLUGIN(SimulatedCameraPlugin)

namespace simulator {

CameraIdentity imagerIdentity()
{
    return {QStringLiteral("\\\\?\\usb#vid_1d6b&pid_0102&mi_00#simulated#{global}"),
            QStringLiteral("UVC Camera")};
}

SimulatedCamera& SimulatedCamera::instance()
{
    static SimulatedCamera camera;
    return camera;
}

void SimulatedCamera::plug(const CameraIdentity& identity)
{
    const int index = indexOf(identity.deviceName);
    if (index >= 0)
        m_plugged[index] = identity;
    else
        m_plugged.append(identity);
    emit pluggedChanged();
}

void SimulatedCamera::unplug()
{
    const QList<CameraIdentity> identities = m_plugged;
    for (const CameraIdentity& identity : identities)
        unplug(identity);
}

void SimulatedCamera::unplug(const CameraIdentity& identity)
{
    const int index = indexOf(identity.deviceName);
    if (index < 0)
        return;
    const QString deviceName = identity.deviceName;
    m_plugged.removeAt(index);
    for (const QPointer<CameraSession>& session : activeSessions()) {
        if (session && session->deviceName() == deviceName)
            session->fail(QStringLiteral("The camera was pulled out."));
    }
    emit pluggedChanged();
}

bool SimulatedCamera::isPlugged(const CameraIdentity& identity) const
{
    return indexOf(identity.deviceName) >= 0;
}

void SimulatedCamera::reportError()
{
    for (const QPointer<CameraSession>& session : activeSessions()) {
        if (session)
            session->fail(QStringLiteral("The camera reported an error."));
    }
}

bool SimulatedCamera::deliver(const QByteArray& frameBytes)
{
    const QList<QPointer<CameraSession>> sessions = activeSessions();
    if (sessions.isEmpty())
        return false;
    QVideoFrame frame(frameBytes.size(), QSize(live::frameColumns, live::frameRows),
                      live::frameColumns * 2, QVideoFrame::Format_YUYV);
    if (frame.map(QAbstractVideoBuffer::WriteOnly)) {
        std::memcpy(frame.bits(), frameBytes.constData(), std::size_t(frameBytes.size()));
        frame.unmap();
    }
    bool taken = false;
    for (const QPointer<CameraSession>& session : sessions)
        taken = (session && session->present(frame)) || taken;
    return taken;
}

int SimulatedCamera::indexOf(const QString& deviceName) const
{
    const auto found = std::find_if(m_plugged.begin(), m_plugged.end(),
                                    [&deviceName](const CameraIdentity& identity) {
                                        return identity.deviceName == deviceName;
                                    });
    return found == m_plugged.end() ? -1 : found - m_plugged.begin();
}

bool SimulatedCamera::isInUse(const QString& deviceName) const
{
    return std::any_of(m_sessions.begin(), m_sessions.end(), [&deviceName](CameraSession* session) {
        return session->isActive() && session->deviceName() == deviceName;
    });
}

void SimulatedCamera::updateRunning()
{
    const bool running = std::any_of(m_sessions.begin(), m_sessions.end(),
                                     [](CameraSession* session) { return session->isActive(); });
    if (running == m_running)
        return;
    m_running = running;
    emit runningChanged(running);
}

QList<QPointer<CameraSession>> SimulatedCamera::activeSessions() const
{
    QList<QPointer<CameraSession>> active;
    for (CameraSession* session : m_sessions) {
        if (session->isActive())
            active.append(session);
    }
    return active;
}

} // namespace simulator
