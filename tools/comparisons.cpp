// SPDX-License-Identifier: MIT
#include "tools/comparisons.h"

#include "tools/command_line.h"

#include <QRegularExpression>

namespace tools {
namespace {

/// The text of a term with two places for what was found: tool and figure.
QString termPattern()
{
    QStringList names;
    for (const analysis::FigureRow& row : analysis::figures)
        names += QLatin1String(row.name);
    return QStringLiteral("([A-Z][0-9]+)(?:\\.(%1))?").arg(names.join(QLatin1Char('|')));
}

QString numberPattern()
{
    return QStringLiteral("([-+]?[0-9]+(?:\\.[0-9]+)?)");
}

bool isThere(const QString& name, const overlay::Tools& tools)
{
    bool isThere = false;
    forEachTool(tools, [&](const auto& tool) { isThere = isThere || tool.name == name; });
    return isThere;
}

/// Takes a text apart into the pieces of a pattern. Blanks do not count.
class Pieces
{
public:
    Pieces(const QString& text, const QString& pattern)
        : m_match(QRegularExpression(QRegularExpression::anchoredPattern(pattern))
                      .match(QString(text).remove(QLatin1Char(' '))))
    {
    }

    bool areThere() const { return m_match.hasMatch(); }
    QString piece(int place) const { return m_match.captured(place); }

    Term term(int place) const
    {
        Term term{piece(place)};
        for (const analysis::FigureRow& row : analysis::figures) {
            if (piece(place + 1) == QLatin1String(row.name))
                term.figure = row.figure;
        }
        return term;
    }

    /// Of a term at place 1, one subtracted at place 3, or a number at place 5.
    Comparison comparison() const
    {
        if (!piece(3).isEmpty())
            return {term(1), term(3)};
        if (!piece(5).isEmpty())
            return {term(1), piece(5).toDouble()};
        return {term(1), {}};
    }

    /// The first tool that is named but not there; empty when all are.
    QString missing(const overlay::Tools& tools) const
    {
        for (const int place : {1, 3}) {
            if (!piece(place).isEmpty() && !isThere(piece(place), tools))
                return piece(place);
        }
        return {};
    }

private:
    QRegularExpressionMatch m_match;
};

QString comparisonPattern()
{
    return termPattern() + QStringLiteral("(?:-(?:%1|%2))").arg(termPattern(), numberPattern());
}

/// Hands over the pieces of each value of the option that makes sense.
template<typename Take>
void readEach(CommandLine& line, const QString& option, const QString& pattern,
              const QString& example, const overlay::Tools& tools, Take take)
{
    for (const QString& text : line.values(option)) {
        const Pieces pieces(text, pattern);
        const QString missing = pieces.missing(tools);
        if (!pieces.areThere())
            line.refuse(QStringLiteral("--%1 is written like %2").arg(option, example));
        else if (!missing.isEmpty())
            line.refuse(QStringLiteral("--%1 %2: there is no tool %3").arg(option, text, missing));
        else
            take(text, pieces);
    }
}

} // namespace

std::optional<double> Comparison::value(const DetailsOfTools& details) const
{
    const auto minuend = details.value(term.tool);
    if (const auto* const other = std::get_if<Term>(&subtrahend))
        return differenceOf(minuend, term.figure, details.value(other->tool), other->figure);
    const auto* const reference = std::get_if<double>(&subtrahend);
    return differenceOf(minuend, term.figure, reference != nullptr ? *reference : 0.0);
}

std::vector<Delta> readDeltas(CommandLine& line, const overlay::Tools& tools)
{
    std::vector<Delta> deltas;
    readEach(line, QStringLiteral("delta"), comparisonPattern(),
             QStringLiteral("R0-R1, R0.high-R1.average or R0-20"), tools,
             [&](const QString& text, const Pieces& pieces) {
                 deltas.push_back({text, pieces.comparison()});
             });
    return deltas;
}

std::vector<Limit> readLimits(CommandLine& line, const overlay::Tools& tools)
{
    const QString pattern = comparisonPattern() + QStringLiteral("?([<>]=?)") + numberPattern();
    std::vector<Limit> limits;
    readEach(line, QStringLiteral("limit"), pattern,
             QStringLiteral("\"R0.high>70\" or \"R0-R1>=10\""), tools,
             [&](const QString& text, const Pieces& pieces) {
                 static const QHash<QString, std::function<bool(double, double)>> signs{
                     {QStringLiteral(">"), std::greater<>()},
                     {QStringLiteral(">="), std::greater_equal<>()},
                     {QStringLiteral("<"), std::less<>()},
                     {QStringLiteral("<="), std::less_equal<>()}};
                 limits.push_back({text, pieces.comparison(), signs[pieces.piece(6)],
                                   pieces.piece(7).toDouble()});
             });
    return limits;
}

} // namespace tools
