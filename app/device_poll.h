// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

/// What one look at the computer's cameras and drives means for the main window: the thinking half
/// of its device detection, without a device and without a widget.
namespace device_poll {

/// Device states; 0 never comes.
constexpr int otherCameras = -2; ///< waiting; there are cameras, but none is the imager
constexpr int waiting = -1;
constexpr int disk = 1;
constexpr int liveCamera = 2;

/// Modes: what the main window shows.
constexpr int noMode = -1;
constexpr int liveMode = 1;
constexpr int diskMode = 2;

enum class Action
{
    None,
    LeaveAndWait, ///< end the mode, wait for the next look
    EnterLive,
    EnterDisk,
    CheckFolders, ///< a drive beside live mode: does it hold the imager's photographs?
    Wait,         ///< show that nothing is there
};

struct Decision
{
    Action action;
    int deviceState; ///< the state after this look, before the action
};

/// `cameraIsImager` holds an entry for every camera, in the system's order; `removableDrives`
/// counts the drives. An imager that vanishes without a drive coming up changes nothing: the live
/// page notices the loss of its camera itself.
Decision decide(int deviceState, int mode, const std::vector<bool>& cameraIsImager,
                int removableDrives);

} // namespace device_poll
