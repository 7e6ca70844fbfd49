// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractVideoSurface>
#include <QCameraControl>
#include <QPointer>
#include <QString>

namespace simulator {

/// One QCamera's use of one simulated camera: the camera's state and where its frames go.
/// Belongs to the media service of that QCamera.
class CameraSession final : public QCameraControl
{
public:
    explicit CameraSession(QObject* parent);
    ~CameraSession() override;

    QCamera::State state() const override { return m_state; }
    void setState(QCamera::State state) override;
    QCamera::Status status() const override;
    QCamera::CaptureModes captureMode() const override { return m_captureMode; }
    void setCaptureMode(QCamera::CaptureModes mode) override;
    bool isCaptureModeSupported(QCamera::CaptureModes) const override { return true; }
    bool canChangeProperty(PropertyChangeType, QCamera::Status) const override { return true; }

    bool isActive() const { return m_state == QCamera::ActiveState; }

    /// Which device this session uses; empty before one was chosen.
    QString deviceName() const { return m_deviceName; }
    void setDeviceName(const QString& deviceName);

    /// Where frames go; not owned, may be null and may be deleted at any time.
    QAbstractVideoSurface* surface() const { return m_surface; }
    void setSurface(QAbstractVideoSurface* surface);

    /// Starts the surface if need be and hands it the frame. False without a surface or when it
    /// refuses.
    bool present(const QVideoFrame& frame);

    /// Reports QCamera::CameraError and unloads the camera.
    void fail(const QString& reason);

private:
    void enter(QCamera::State state);
    void stopSurface();

    QCamera::State m_state = QCamera::UnloadedState;
    QCamera::CaptureModes m_captureMode = QCamera::CaptureViewfinder;
    QString m_deviceName;
    QPointer<QAbstractVideoSurface> m_surface;
};

} // namespace simulator
