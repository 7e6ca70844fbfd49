#include "app/device_poll.h"
#include "simulator/tour/walk.h"

namespace tour {
namespace {

bool changeToTheDisk(Walk& walk)
{
    walk.imager().setCameraPlugged(false);
    walk.imager().setDiskPlugged(true);
    walk.imager().takeSamplePhotographs();
    return walk.awaitMode(device_poll::diskMode,
                          QStringLiteral("USB-disk mode starts by itself")) &&
           walk.shoot(QStringLiteral("disk"));
}

bool changeBackToTheCamera(Walk& walk)
{
    walk.imager().setDiskPlugged(false);
    walk.imager().setCameraPlugged(true);
    return walk.awaitMode(device_poll::liveMode, QStringLiteral("live mode follows the disk")) &&
           walk.shoot(QStringLiteral("live-again"));
}

} // namespace

std::vector<Step> diskSteps()
{
    return {{"change to the disk", changeToTheDisk},
            {"change back to the camera", changeBackToTheCamera}};
}

} // namespace tour
