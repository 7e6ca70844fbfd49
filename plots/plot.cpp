// SPDX-License-Identifier: MIT
#include "plots/plot.h"

#include <algorithm>
#include <array>

namespace plots {

Limits moved(const Limits& limits, Limit which, double value)
{
    Limits other = limits;
    if (which == Limit::Lower)
        other.lower = std::min(value, limits.upper);
    else
        other.upper = std::max(value, limits.lower);
    return other;
}

QColor colourOf(int series)
{
    // Told apart with each kind of colour blindness; none is too light for white paper.
    static constexpr std::array<QRgb, 7> colours{0xff0072b2, 0xffd55e00, 0xff009e73, 0xffcc79a7,
                                                 0xffe69f00, 0xff56b4e9, 0xff000000};
    return QColor::fromRgb(colours[std::size_t(series) % colours.size()]);
}

QString captionOf(const Axis& axis)
{
    return axis.unit.isEmpty() ? axis.title : QStringLiteral("%1 (%2)").arg(axis.title, axis.unit);
}

QString numberText(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QByteArray csvOf(const Table& table)
{
    QString text;
    for (const QStringList& row : rowsOf(table))
        text += files::csvLine(row);
    return text.toUtf8();
}

files::TextRows rowsOf(const Table& table)
{
    files::TextRows rows{table.captions};
    rows.insert(rows.end(), table.rows.begin(), table.rows.end());
    return rows;
}

} // namespace plots
