// SPDX-License-Identifier: MIT
#include "simulator/simulated_imager.h"

#include "simulator/simulated_camera.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace simulator {

SimulatedImager::SimulatedImager(QObject* parent) : QObject(parent)
{
    setScene(SceneKind::CableJoint);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SimulatedImager::sendFrame);
    const SimulatedCamera& camera = SimulatedCamera::instance();
    connect(&camera, &SimulatedCamera::runningChanged, this, &SimulatedImager::runTimer);
    connect(&camera, &SimulatedCamera::pluggedChanged, this, &SimulatedImager::changed);
    connect(&m_disk, &SimulatedDisk::pluggedChanged, this, &SimulatedImager::changed);
    runTimer();
}

SimulatedImager::~SimulatedImager()
{
    SimulatedCamera::instance().disconnect(this);
    SimulatedCamera::instance().unplug(imagerIdentity());
}

bool SimulatedImager::isCameraPlugged() const
{
    return SimulatedCamera::instance().isPlugged(imagerIdentity());
}

void SimulatedImager::setCameraPlugged(bool plugged)
{
    if (plugged == isCameraPlugged())
        return;
    if (plugged)
        SimulatedCamera::instance().plug();
    else
        SimulatedCamera::instance().unplug(imagerIdentity());
}

void SimulatedImager::setDiskPlugged(bool plugged)
{
    if (plugged)
        m_disk.plug();
    else
        m_disk.unplug();
}

void SimulatedImager::reportCameraError()
{
    SimulatedCamera::instance().reportError();
}

void SimulatedImager::setScene(SceneKind scene)
{
    if (m_scene && m_scene->kind() == scene)
        return;
    m_scene = std::make_unique<Scene>(scene);
    m_hotSpot = m_scene->usualHotSpot();
    settle();
    emit changed();
}

void SimulatedImager::setHotSpot(double celsius)
{
    m_hotSpot = celsius;
    emit changed();
}

void SimulatedImager::setThreshold(double celsius)
{
    m_threshold = celsius;
    emit changed();
}

void SimulatedImager::setFrameRate(int framesPerSecond)
{
    m_frameRate = std::max(0, framesPerSecond);
    runTimer();
    emit changed();
}

void SimulatedImager::setPhotographSettings(const PhotographSettings& settings)
{
    m_photograph = settings;
    emit changed();
}

bool SimulatedImager::sendFrame()
{
    pass(1.0 / (m_frameRate > 0 ? m_frameRate : usualFrameRate));
    const bool isSent = SimulatedCamera::instance().isRunning() &&
                        SimulatedCamera::instance().deliver(liveFrame(
                            field(), m_photograph.palette, m_threshold, m_photograph.emissivity));
    if (isSent)
        emit frameSent();
    return isSent;
}

QString SimulatedImager::takePhotograph()
{
    QString path = m_disk.store(photograph(field(), m_photograph), m_photograph.modelIndex);
    pass(1);
    if (!path.isEmpty())
        emit photographTaken(path);
    return path;
}

void SimulatedImager::takeSamplePhotographs()
{
    using Sample = std::pair<SceneKind, PhotographSettings>;
    const std::array<Sample, 5> samples{
        {{SceneKind::CableJoint, {0, false, false, 5, Palette::Iron}},
         {SceneKind::Motor, {0, true, false, 6, Palette::Rainbow}},
         {SceneKind::Window, {0, false, false, 5, Palette::Rainbow}},
         {SceneKind::Person, {0, true, false, 6, Palette::Iron}},
         {SceneKind::Motor, {0, false, true, 5, Palette::WhiteHot}}}};
    QDateTime takenAt = QDateTime::currentDateTime().addSecs(-3600);
    for (const auto& [kind, settings] : samples) {
        const Scene scene(kind);
        const QString path =
            m_disk.store(photograph(scene.field(1, scene.usualHotSpot()), settings),
                         settings.modelIndex, takenAt);
        if (!path.isEmpty())
            emit photographTaken(path);
        takenAt = takenAt.addSecs(617);
    }
}

void SimulatedImager::pass(double seconds)
{
    m_seconds += seconds;
    m_reachedHotSpot += (m_hotSpot - m_reachedHotSpot) * (1 - std::exp2(-seconds));
}

/// Nobody looks, nothing is rendered.
void SimulatedImager::runTimer()
{
    if (SimulatedCamera::instance().isRunning() && m_frameRate > 0)
        m_timer.start(1000 / m_frameRate);
    else
        m_timer.stop();
}

} // namespace simulator
