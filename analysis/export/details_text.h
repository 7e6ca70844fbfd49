// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/details.h"
#include "analysis/photograph/tool_statistics.h"

#include <QCoreApplication>
#include <QStringList>

namespace analysis {

/// The details of an area as texts, a row for each of them. Numbers have a decimal point whatever
/// the locale; temperatures, and shares in percent, have two decimals. Captions are in the language
/// of the installed translators. Any thread.
class DetailsText
{
    Q_DECLARE_TR_FUNCTIONS(DetailsText)

public:
    /// The rows. Figures come first and in their order.
    enum Row
    {
        High,
        Low,
        Average,
        Deviation,
        Median,
        Pixels,
        Above,
        Below,
        Difference,
        rowCount
    };

    static QString captionOf(Figure figure);
    /// In the order of the rows. `sign` is that of the unit.
    static QStringList captions(const QString& sign, double threshold);
    /// In the same order; empty where there is no such number. `details` are those of the area.
    static QStringList values(const Area& area, const std::optional<Details>& details,
                              double threshold, const std::optional<double>& difference);

    /// What the tool table says otherwise of this area, and why: a sentence for each.
    static QStringList otherInTable(const ToolRow& table, const Area& area,
                                    const std::optional<Details>& details);

    static QString number(double value);
};

} // namespace analysis
