// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace overlay {

/// A spot that the photograph itself carries, in image coordinates. The file's words are unsigned;
/// they are kept modulo 2^16, so a spot can lie outside the picture.
struct Marker
{
    qint16 x = -1;
    qint16 y = -1;
};

struct Spots
{
    Marker markerA; ///< the marked spots, shown as "L" and "H"
    Marker markerB;
    Marker markerC; ///< the reticle; not shown where its x or y is 0
};

} // namespace overlay
