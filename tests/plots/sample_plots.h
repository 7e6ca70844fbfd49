// SPDX-License-Identifier: MIT
#pragma once

#include "plots/plot.h"

#include <cmath>

namespace testing {

/// A rising and a falling line of eleven points, x 0 … 10, y 20 … 40; both cross at (5, 30).
inline plots::Plot twoCurves()
{
    plots::Plot plot;
    plot.title = QStringLiteral("IMG001.bmp");
    plot.x = {QStringLiteral("距离"), QStringLiteral("px"), 1};
    plot.y = {QStringLiteral("温度"), QStringLiteral("°C"), 1};
    plots::Curve up{QStringLiteral("L0"), plots::colourOf(0), {}};
    plots::Curve down{QStringLiteral("L1"), plots::colourOf(1), {}};
    plot.table.captions =
        QStringList{QStringLiteral("name"), QStringLiteral("x"), QStringLiteral("y")};
    for (int x = 0; x <= 10; ++x) {
        up.points.emplace_back(x, 20 + 2 * x);
        down.points.emplace_back(x, 40 - 2 * x);
        plot.table.rows.push_back(
            {up.name, plots::numberText(x, 1), plots::numberText(20 + 2 * x, 1)});
    }
    plot.curves = {up, down};
    return plot;
}

/// Ten bars, each 2 wide, from 20 on; their heights are 1, 10, 100, 1000, 0, 5, 6, 7, 8, 9.
inline plots::Plot tenBars()
{
    plots::Plot plot;
    plot.x = {QStringLiteral("温度"), QStringLiteral("°C"), 1};
    plot.y = {QStringLiteral("像素"), {}, 0};
    plots::Bars bars{QStringLiteral("R0"), plots::colourOf(0), {}};
    const double heights[] = {1, 10, 100, 1000, 0, 5, 6, 7, 8, 9};
    double from = 20;
    for (const double height : heights) {
        bars.bars.push_back({from, from + 2, height});
        from += 2;
    }
    plot.bars = {bars};
    return plot;
}

/// A wave of so many points.
inline plots::Plot wave(int points)
{
    plots::Plot plot = twoCurves();
    plot.curves.resize(1);
    plot.curves.front().points.clear();
    for (int x = 0; x < points; ++x)
        plot.curves.front().points.emplace_back(x, 30 + 10 * std::sin(x / 20.0));
    return plot;
}

} // namespace testing
