// SPDX-License-Identifier: MIT
#include "live/live_frame.h"

#include <QtEndian>

namespace live {

Readings readings(const uchar* frame)
{
    const auto word = [frame](int offset) {
        return float(qFromLittleEndian<quint16>(frame + offset));
    };
    return {word(maximumOffset) / 10.0F, word(thresholdOffset) / 10.0F,
            word(emissivityOffset) / 100.0F};
}

} // namespace live
