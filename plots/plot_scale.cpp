// SPDX-License-Identifier: MIT
#include "plots/plot_scale.h"

#include <QLocale>

#include <cmath>

namespace plots {

QwtText PlainScale::label(double value) const
{
    // Steps of 0.1 add up to 5.5e-17 where 0 is meant.
    const QwtScaleDiv& scale = scaleDiv();
    if (std::abs(value) < 1e-9 * std::abs(scale.range()))
        value = 0;
    return {QLocale::c().toString(value, 'g', 8), QwtText::PlainText};
}

} // namespace plots
