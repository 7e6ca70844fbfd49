// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/simulated_camera.h"
#include "tests/live/page.h"

namespace testing {

/// The simulated camera that a page meets.
inline simulator::SimulatedCamera& camera()
{
    return simulator::SimulatedCamera::instance();
}

/// Lets it deliver a frame of one gray level; true when somebody took it.
inline bool deliver(int luma = 100, int maximumTenths = 362)
{
    return camera().deliver(grayFrame(luma, maximumTenths, 340, 97));
}

/// The page meets an imager.
class CameraPageTest : public PageTest
{
protected:
    void init() override
    {
        PageTest::init();
        camera().plug();
    }
    void cleanup() override { camera().unplug(); }
};

} // namespace testing
