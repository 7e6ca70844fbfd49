// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/photograph.h"
#include "simulator/simulated_disk.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace simulator {

/// The whole imager without hardware: it looks at a scene, casts it through the simulated camera
/// while somebody has the camera running, and keeps photographs on the simulated disk. Camera and
/// disk are plugged apart from each other; a real imager shows one or the other, whichever its user
/// chose.
///
/// Its time passes only with the frames it sends and the photographs it takes, so the same calls
/// lead to the same pictures at any speed of the machine. GUI thread only; at most one at a time.
class SimulatedImager : public QObject
{
    Q_OBJECT

public:
    explicit SimulatedImager(QObject* parent = nullptr);
    /// Pulls camera and disk out.
    ~SimulatedImager() override;

    bool isCameraPlugged() const;
    void setCameraPlugged(bool plugged);
    bool isDiskPlugged() const { return m_disk.isPlugged(); }
    void setDiskPlugged(bool plugged);
    SimulatedDisk& disk() { return m_disk; }
    /// The running camera fails; it stays plugged in.
    void reportCameraError();

    SceneKind scene() const { return m_scene->kind(); }
    /// Another scene starts with its usual hot spot, settled.
    void setScene(SceneKind scene);

    /// The temperature the hot spot is on its way to, °C; half of the way takes a second.
    double hotSpot() const { return m_hotSpot; }
    void setHotSpot(double celsius);
    /// The temperature it has reached.
    double reachedHotSpot() const { return m_reachedHotSpot; }
    /// The hot spot is there at once.
    void settle() { m_reachedHotSpot = m_hotSpot; }
    /// Sends the hot spot well above the alarm threshold, or well below it.
    void heatPastThreshold() { setHotSpot(m_threshold + 8); }
    void coolBelowThreshold() { setHotSpot(m_threshold - 8); }

    double threshold() const { return m_threshold; } ///< °C
    void setThreshold(double celsius);

    static constexpr int usualFrameRate = 25;
    int frameRate() const { return m_frameRate; } ///< frames per second
    /// 0 stops the timer; frames then come from sendFrame() alone.
    void setFrameRate(int framesPerSecond);

    /// Palette and emissivity hold for the live picture, too.
    const PhotographSettings& photographSettings() const { return m_photograph; }
    void setPhotographSettings(const PhotographSettings& settings);

    /// The scene as it is now.
    Field field() const { return m_scene->field(m_seconds, m_reachedHotSpot); }

    /// Lets the time of one frame pass and sends it, as the timer does. False when no camera runs.
    bool sendFrame();

    /// Stores a photograph of the scene on the disk and lets a second pass. Returns its path; empty
    /// when the disk is out or full.
    QString takePhotograph();
    /// Fills the disk, which must be in, with one photograph of every scene, as if they had been
    /// taken in the course of the last hour: plain and with the raw image, in °C and °F, in every
    /// palette. The scene and all settings are afterwards as they were.
    void takeSamplePhotographs();

signals:
    /// A setting, or something plugged in or out.
    void changed();
    void frameSent();
    void photographTaken(const QString& path);

private:
    void pass(double seconds);
    void runTimer();

    std::unique_ptr<Scene> m_scene;
    SimulatedDisk m_disk;
    PhotographSettings m_photograph;
    double m_seconds = 0;
    double m_hotSpot = 0;
    double m_reachedHotSpot = 0;
    double m_threshold = 75;
    int m_frameRate = usualFrameRate;
    QTimer m_timer;
};

} // namespace simulator
