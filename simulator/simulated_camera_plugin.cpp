// SPDX-License-Identifier: MIT
#include "simulator/simulated_camera_plugin.h"

#include "simulator/simulated_camera.h"
#include "simulator/simulated_camera_session.h"

#include <QMediaService>
#include <QVideoDeviceSelectorControl>
#include <QVideoRendererControl>

namespace simulator {
namespace {

class RendererControl final : public QVideoRendererControl
{
public:
    explicit RendererControl(CameraSession& session, QObject* parent)
        : QVideoRendererControl(parent), m_session(session)
    {
    }
    QAbstractVideoSurface* surface() const override { return m_session.surface(); }
    void setSurface(QAbstractVideoSurface* surface) override { m_session.setSurface(surface); }

private:
    CameraSession& m_session;
};

/// Positions in the list of plugged cameras; the session itself remembers its device by name, which
/// plugging and unplugging do not shift.
class DeviceSelector final : public QVideoDeviceSelectorControl
{
public:
    explicit DeviceSelector(CameraSession& session, QObject* parent)
        : QVideoDeviceSelectorControl(parent), m_session(session)
    {
    }
    int deviceCount() const override { return cameras().size(); }
    QString deviceName(int index) const override { return cameras().value(index).deviceName; }
    QString deviceDescription(int index) const override
    {
        return cameras().value(index).description;
    }
    int defaultDevice() const override { return cameras().isEmpty() ? -1 : 0; }
    int selectedDevice() const override
    {
        for (int i = 0; i < deviceCount(); ++i) {
            if (deviceName(i) == m_session.deviceName())
                return i;
        }
        return -1;
    }
    void setSelectedDevice(int index) override
    {
        m_session.setDeviceName(deviceName(index));
        emit selectedDeviceChanged(index);
        emit selectedDeviceChanged(m_session.deviceName());
    }

private:
    static const QList<CameraIdentity>& cameras() { return SimulatedCamera::instance().plugged(); }

    CameraSession& m_session;
};

class CameraService final : public QMediaService
{
public:
    CameraService()
        : QMediaService(nullptr), m_session(this), m_renderer(m_session, this),
          m_selector(m_session, this)
    {
    }

    QMediaControl* requestControl(const char* name) override
    {
        if (qstrcmp(name, QCameraControl_iid) == 0)
            return &m_session;
        if (qstrcmp(name, QVideoRendererControl_iid) == 0)
            return &m_renderer;
        if (qstrcmp(name, QVideoDeviceSelectorControl_iid) == 0)
            return &m_selector;
        return nullptr;
    }
    void releaseControl(QMediaControl*) override {}

private:
    CameraSession m_session;
    RendererControl m_renderer;
    DeviceSelector m_selector;
};

} // namespace
} // namespace simulator

QMediaService* SimulatedCameraPlugin::create(const QString& key)
{
    return key == QLatin1String(Q_MEDIASERVICE_CAMERA) ? new simulator::CameraService : nullptr;
}

void SimulatedCameraPlugin::release(QMediaService* service)
{
    delete service;
}

QList<QByteArray> SimulatedCameraPlugin::devices(const QByteArray& service) const
{
    QList<QByteArray> names;
    if (service == Q_MEDIASERVICE_CAMERA) {
        for (const simulator::CameraIdentity& camera :
             simulator::SimulatedCamera::instance().plugged())
            names.append(camera.deviceName.toUtf8());
    }
    return names;
}

QString SimulatedCameraPlugin::deviceDescription(const QByteArray& service,
                                                 const QByteArray& device)
{
    if (service == Q_MEDIASERVICE_CAMERA) {
        for (const simulator::CameraIdentity& camera :
             simulator::SimulatedCamera::instance().plugged()) {
            if (camera.deviceName.toUtf8() == device)
                return camera.description;
        }
    }
    return {};
}
