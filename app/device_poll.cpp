// SPDX-License-Identifier: MIT
#include "app/device_poll.h"

#include <algorithm>

namespace device_poll {

Decision decide(int deviceState, int mode, const std::vector<bool>& cameraIsImager,
                int removableDrives)
{
    const bool imagerIsCamera =
        std::find(cameraIsImager.begin(), cameraIsImager.end(), true) != cameraIsImager.end();
    if (imagerIsCamera) {
        if (deviceState == disk)
            return {Action::LeaveAndWait, waiting};
        if (deviceState >= 0)
            return {Action::None, deviceState};
        return {Action::EnterLive, liveCamera};
    }
    if (deviceState >= 0) {
        if (removableDrives == 0)
            return {Action::None, deviceState};
        if (deviceState == liveCamera)
            return {Action::LeaveAndWait, waiting};
        return {mode == liveMode ? Action::CheckFolders : Action::None, deviceState};
    }
    if (removableDrives > 0)
        return {Action::EnterDisk, disk};
    return {Action::Wait, cameraIsImager.empty() ? waiting : otherCameras};
}

} // namespace device_poll
