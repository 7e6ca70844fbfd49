// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QBoxLayout;

namespace plots {
class PlotView;
}

namespace analysis {

/// Adds what every window with a plot has: buttons that copy and save it.
void addPlotButtons(QBoxLayout& layout, plots::PlotView& view);

/// What a file of a plot is called, without its suffix: "IMG001-profile".
QString plotFileName(const QString& photograph, const QString& subject);

} // namespace analysis
