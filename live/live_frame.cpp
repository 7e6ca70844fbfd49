// SPDX-License-Identifier: MIT
#include "live/live_frame.h"

#include "live/frame_kernels.h"

#include <QtEndian>

namespace live {

void convertPicture(const uchar* frame, uchar* rgb)
{
    static_assert(picturePixels % pixelsAtOnce == 0);
    convertPixels(frame, picturePixels, rgb);
}

Readings readings(const uchar* frame)
{
    const auto word = [frame](int offset) {
        return float(qFromLittleEndian<quint16>(frame + offset));
    };
    return {word(maximumOffset) / 10.0F, word(thresholdOffset) / 10.0F,
            word(emissivityOffset) / 100.0F};
}

} // namespace live
