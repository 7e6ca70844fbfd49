// SPDX-License-Identifier: MIT
#pragma once

#include "tests/analysis/photograph_writer.h"

/// Photographs for tests that need to know what is in them.
namespace testing {

/// 20.0 °C at gray 0, 0.1 °C more with each gray value: 40.0 °C at gray 200.
inline Shot tenths()
{
    Shot shot;
    shot.gray = [](int x, int y) {
        return (x + y) % 201;
    };
    shot.maximum10 = 400;
    shot.minimum10 = 200;
    shot.grayMaximum = 200;
    shot.grayMinimum = 0;
    shot.centre10 = 279;
    shot.emissivity100 = 87;
    shot.markers = {10, 20, 30, 40, 121, 161};
    return shot;
}

/// One of which it only counts that it is one.
inline QByteArray anyPhotograph()
{
    Shot shot;
    shot.gray = [](int x, int y) {
        return (x * y) % 256;
    };
    return photographBytes(shot);
}

} // namespace testing
