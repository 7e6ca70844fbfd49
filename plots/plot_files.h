// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

namespace plots {

class Chart;

/// What files and clipboard get of a plot: as it is shown, without the cursor. GUI thread only.

/// Twice as fine as on the screen, so that it can be printed.
QImage pictureOf(Chart& chart);

/// A page of the plot's size whose lines and letters are no pixels; empty when there is no room for
/// a plot.
QByteArray pdfOf(Chart& chart);

} // namespace plots
