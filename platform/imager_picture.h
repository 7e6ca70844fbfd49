// SPDX-License-Identifier: MIT
#pragma once

/// The size of all pictures that the imager makes, live or stored: upright, in pixels.
namespace platform {

constexpr int pictureColumns = 240;
constexpr int pictureRows = 320;

} // namespace platform
