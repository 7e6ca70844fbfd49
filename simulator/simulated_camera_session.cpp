// SPDX-License-Identifier: MIT
#include "simulator/simulated_camera_session.h"

#include "live/live_frame.h"
#include "simulator/simulated_camera.h"

#include <QVideoSurfaceFormat>

namespace simulator {

CameraSession::CameraSession(QObject* parent) : QCameraControl(parent)
{
    SimulatedCamera::instance().m_sessions.append(this);
}

CameraSession::~CameraSession()
{
    stopSurface();
    SimulatedCamera& camera = SimulatedCamera::instance();
    camera.m_sessions.removeOne(this);
    camera.updateRunning();
}

void CameraSession::setState(QCamera::State state)
{
    if (state == m_state)
        return;
    const SimulatedCamera& camera = SimulatedCamera::instance();
    if (state == QCamera::ActiveState && camera.indexOf(m_deviceName) < 0)
        fail(QStringLiteral("There is no such camera."));
    else if (state == QCamera::ActiveState && camera.isInUse(m_deviceName))
        fail(QStringLiteral("The camera is in use."));
    else
        enter(state);
}

QCamera::Status CameraSession::status() const
{
    if (SimulatedCamera::instance().indexOf(m_deviceName) < 0)
        return QCamera::UnavailableStatus;
    switch (m_state) {
    case QCamera::ActiveState:
        return QCamera::ActiveStatus;
    case QCamera::LoadedState:
        return QCamera::LoadedStatus;
    case QCamera::UnloadedState:
        break;
    }
    return QCamera::UnloadedStatus;
}

void CameraSession::setCaptureMode(QCamera::CaptureModes mode)
{
    if (mode == m_captureMode)
        return;
    m_captureMode = mode;
    emit captureModeChanged(mode);
}

void CameraSession::setDeviceName(const QString& deviceName)
{
    if (deviceName == m_deviceName)
        return;
    if (m_state != QCamera::UnloadedState)
        enter(QCamera::UnloadedState);
    m_deviceName = deviceName;
}

void CameraSession::setSurface(QAbstractVideoSurface* surface)
{
    if (surface == m_surface)
        return;
    stopSurface();
    m_surface = surface;
}

bool CameraSession::present(const QVideoFrame& frame)
{
    if (!isActive() || !m_surface)
        return false;
    if (!m_surface->isActive()) {
        const QVideoSurfaceFormat format(QSize(live::frameColumns, live::frameRows),
                                         QVideoFrame::Format_YUYV);
        if (!m_surface->isFormatSupported(format) || !m_surface->start(format))
            return false;
    }
    // Starting may have run slots that took the surface away or stopped the camera.
    return isActive() && m_surface && m_surface->present(frame);
}

void CameraSession::fail(const QString& reason)
{
    const QPointer<CameraSession> self(this);
    emit error(QCamera::CameraError, reason);
    if (self)
        enter(QCamera::UnloadedState);
}

/// Announces the state even when it is the old one: after a failed start QCamera believes in a
/// state that was never reached.
void CameraSession::enter(QCamera::State state)
{
    const QPointer<CameraSession> self(this);
    m_state = state;
    if (!isActive())
        stopSurface();
    if (self)
        emit statusChanged(status());
    if (self)
        emit stateChanged(m_state);
    SimulatedCamera::instance().updateRunning();
}

void CameraSession::stopSurface()
{
    if (m_surface && m_surface->isActive())
        m_surface->stop();
}

} // namespace simulator
