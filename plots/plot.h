// SPDX-License-Identifier: MIT
#pragma once

#include "files/table_text.h"

#include <QColor>
#include <QPointF>
#include <QString>
#include <QStringList>

#include <vector>

/// Plots of any numbers: what is plotted is a value, which a PlotView shows. Nothing here knows
/// what the numbers are of.
namespace plots {

/// The words of an axis, and how its numbers are written.
struct Axis
{
    QString title;
    QString unit;               ///< behind the title in brackets; may be empty
    int decimals = 1;           ///< of the value at the cursor
    bool isLogarithmic = false; ///< of the y axis alone; what is not above 0 is not drawn then
};

/// A line through points. Points that are no numbers are left out.
struct Curve
{
    QString name;
    QColor colour;
    std::vector<QPointF> points; ///< in the order in which the line goes through them
    bool isDashed = false;       ///< set apart from a curve of the same colour
};

struct Bar
{
    double from;
    double to;
    double height;
};

/// A histogram.
struct Bars
{
    QString name;
    QColor colour;
    std::vector<Bar> bars;  ///< from left to right
    bool isOutline = false; ///< its contour alone, over filled ones
};

/// The numbers behind a plot, for files and spreadsheets.
struct Table
{
    QStringList captions;
    std::vector<QStringList> rows;
};

/// Curves come first; bars are counted behind them.
struct Plot
{
    QString title;
    Axis x;
    Axis y;
    std::vector<Curve> curves;
    std::vector<Bars> bars;
    Table table;
};

/// One point of a curve, or one bar, by numbers from 0; bars are behind the curves.
struct Place
{
    int series;
    int point;
    friend bool operator==(const Place& a, const Place& b)
    {
        return a.series == b.series && a.point == b.point;
    }
};

/// Two values on the x axis, and what lies between them.
struct Limits
{
    double lower;
    double upper; ///< never below `lower`
    double step;  ///< what a key moves one of them by
    friend bool operator==(const Limits& a, const Limits& b)
    {
        return a.lower == b.lower && a.upper == b.upper && a.step == b.step;
    }
};

enum class Limit
{
    Lower,
    Upper
};

/// The limits with one of them moved to a value; it stops at the other one.
Limits moved(const Limits& limits, Limit which, double value);

/// Light colours that differ, also to colour-blind eyes and on paper; they come round again.
QColor colourOf(int series);

/// The caption of an axis: "Temperature (°C)".
QString captionOf(const Axis& axis);

/// The digits that the whole program writes, whatever the computer's language.
QString numberText(double value, int decimals);

/// Lines end with a line feed, fields are separated by commas and quoted where they have to be;
/// UTF-8.
QByteArray csvOf(const Table& table);

/// The captions, then the rows.
files::TextRows rowsOf(const Table& table);

} // namespace plots
