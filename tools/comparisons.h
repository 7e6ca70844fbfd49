// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/details.h"
#include "overlay/tools.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <variant>

/// Numbers of tools as users write them on the command line, and what they ask of them. All are in
/// the unit that is shown.
namespace tools {

class CommandLine;

/// The details of each tool by its name.
using DetailsOfTools = QHash<QString, std::optional<analysis::Details>>;

/// "R0.average"; a name alone means its highest.
struct Term
{
    QString tool;
    analysis::Figure figure = analysis::usuallyCompared;
};

/// "R0", "R0-R1", "R0.high-R1.average" or "R0-20".
struct Comparison
{
    Term term;
    std::variant<std::monostate, Term, double> subtrahend;

    /// Nothing where a tool has no reading.
    std::optional<double> value(const DetailsOfTools& details) const;
};

/// A Comparison that subtracts.
struct Delta
{
    QString text; ///< as it was written
    Comparison comparison;
};

/// "R0.high>70" or "R0-R1>=10".
struct Limit
{
    QString text; ///< as it was written
    Comparison comparison;
    std::function<bool(double, double)> isPassed; ///< of a number as it is told, and `value`
    double value = 0.0;
};

/// What --delta and --limit say; a text that makes no sense, or names a tool that is not there, is
/// refused.
std::vector<Delta> readDeltas(CommandLine& line, const overlay::Tools& tools);
std::vector<Limit> readLimits(CommandLine& line, const overlay::Tools& tools);

} // namespace tools
