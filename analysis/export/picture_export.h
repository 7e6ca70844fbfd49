// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/isotherm.h"
#include "analysis/photograph/photograph.h"
#include "analysis/photograph/photograph_reader.h"
#include "analysis/photograph/tool_statistics.h"
#include "overlay/label_geometry.h"
#include "overlay/spots.h"
#include "overlay/tools.h"

#include <QImage>

#include <vector>

/// A photograph with what was measured in it, as one picture for others to see. Fonts need a
/// QGuiApplication, nothing here needs a widget; several threads may work at once.
namespace analysis {

/// Everything that such a picture can show, independent of the photograph it was taken from.
struct ShownPicture
{
    QImage falseColours; ///< 240 × 320
    overlay::Tools tools;
    overlay::Spots spots;
    QImage colourStrip; ///< hottest at the top
    int startValue = 0; ///< of the colour bar's markers, palette steps from the top
    int endValue = 255;
    float topTemperature = 0.0F; ///< beside the strip, in the unit shown
    float bottomTemperature = 0.0F;
    Unit unit = Unit::Celsius;
    std::vector<ToolCells> measured;  ///< rows of the tool table
    QString correctionName;           ///< what stands above the next; empty without a correction
    std::vector<ToolCells> corrected; ///< the same tools by corrected temperatures
    QString isothermName;             ///< empty without an isotherm
    QColor isothermColour;
    QString language; ///< a code of config/language.h, for the choice of the font
};

/// A photograph as the analysis window shows it with these tools, this unit and the markers of the
/// colour bar at these values. Captions are in the language of the installed translators.
ShownPicture shownPicture(const Photograph& photograph, const ShownUnit& unit,
                          const overlay::Tools& tools, int startValue, int endValue);

/// Colours it over its false colours, and names it beside the colour bar.
void addIsotherm(ShownPicture& shown, const Isotherm& isotherm, const Temperatures& temperatures,
                 const ShownUnit& unit);

/// Measures the tools once more, by corrected temperatures and, unlike the tool table, exactly: "-"
/// stands where no pixel has a temperature.
void addCorrected(ShownPicture& shown, const QString& correctionName, const Temperatures& corrected,
                  Conversion conversion);

/// The picture with tools and spots, exactly as large and drawn as a label of this geometry shows
/// it, without the margins. Null where the geometry has no picture.
QImage pictureWithTools(const ShownPicture& shown, const overlay::Geometry& geometry);

struct PictureOptions
{
    static constexpr int largestScale = 4;
    int scale = 2;            ///< 1 … largestScale, others are taken as the nearest of these
    bool hasColourBar = true; ///< with its temperatures, to the right; below, the isotherm's name
    bool hasValues = false;   ///< the tool table, below the picture; none without tools
};

/// The picture at a multiple of its own size, on white, with what was asked for round it.
QImage exportedPicture(const ShownPicture& shown, const PictureOptions& options);

/// How large that will be, without painting it.
QSize exportedSize(const ShownPicture& shown, const PictureOptions& options);

} // namespace analysis
