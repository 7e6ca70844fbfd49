// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/spots.h"
#include "overlay/tools.h"

#include <QImage>
#include <QSize>

namespace analysis {

/// The tools and spots at three times a picture's size, on a transparent ground, for the report.
/// `picture` is the size of the thermal picture (240 × 320); the result is one pixel wider than
/// three times that. Null for an empty size. May be called in several threads at once.
QImage reportOverlay(const overlay::Tools& tools, const overlay::Spots& spots,
                     const QSize& picture);

} // namespace analysis
