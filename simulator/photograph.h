// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/imager_model.h"

#include <QByteArray>

namespace simulator {

/// How the imager keeps a photograph.
struct PhotographSettings
{
    int modelIndex = 0; ///< which of analysis::format::layouts
    /// With the raw image at its end, the file then has analysis::format::rawFileBytes.
    bool raw = false;
    bool fahrenheit = false; ///< of the parameter block; the raw image is in kelvin always
    quint32 machineId = 5;   ///< 5 and 6 are known to the analysis, others are refused
    Palette palette = Palette::Iron;
    double emissivity = 0.95;
    int firmware10 = 12; ///< version × 10; kept where the layout has it
};

/// A photograph of a field as the bytes of its file: a bitmap that any viewer opens, then the
/// imager's blocks. Marker A stands on the coldest spot, B on the hottest, C in the centre.
QByteArray photograph(const Field& celsius, const PhotographSettings& settings);

} // namespace simulator
