// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QCamera;
class QtCameraCapture;

namespace live {

/// The imager's camera and the surface that its frames arrive on. GUI thread only.
class LiveCamera
{
public:
    LiveCamera();
    ~LiveCamera();
    LiveCamera(const LiveCamera&) = delete;
    LiveCamera& operator=(const LiveCamera&) = delete;

    std::unique_ptr<QtCameraCapture> capture; ///< outlives the camera, which uses it
    std::unique_ptr<QCamera> camera;          ///< null while no imager was found
    bool cameraRunning = false;               ///< as of the last look at its health

protected:
    /// Opens and starts the first imager there is. Without one nothing happens.
    void open();
    /// Stops the camera, opens the first imager there is now, and starts what there is then.
    void reopen();
    /// A camera with an error is stopped, and stays so until it is opened again.
    void checkHealth();
    void stopCamera();
};

} // namespace live
