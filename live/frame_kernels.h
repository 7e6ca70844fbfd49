// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace live {

/// As many pixels as any machine converts at once.
constexpr int pixelsAtOnce = 64;

/// The loop behind convertPicture(): `pixels` pixels of YUYV, a multiple of pixelsAtOnce, to R, G,
/// B bytes, with the widest vectors that the machine at hand has. Any alignment; any thread.
void convertPixels(const uchar* yuyv, int pixels, uchar* rgb);

} // namespace live
