// SPDX-License-Identifier: MIT
#pragma once

#include <QMediaServiceProviderPlugin>

/// Offers the plugged simulated cameras to Qt's multimedia module. Global and of this name because
/// Q_IMPORT_PLUGIN asks for it so.
class SimulatedCameraPlugin final : public QMediaServiceProviderPlugin,
                                    public QMediaServiceSupportedDevicesInterface
{
    Q_OBJECT
    Q_INTERFACES(QMediaServiceSupportedDevicesInterface)
    Q_PLUGIN_METADATA(IID QMediaServiceProviderFactoryInterface_iid FILE "simulated_camera.json")

public:
    /// A new service of one QCamera; the caller gives it back through release().
    QMediaService* create(const QString& key) override;
    void release(QMediaService* service) override;
    QList<QByteArray> devices(const QByteArray& service) const override;
    QString deviceDescription(const QByteArray& service, const QByteArray& device) override;
};
