// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

namespace analysis {

constexpr int reportTextSize = 150; ///< in pixels, of all texts but those beside the picture

/// What a report is set in, in the language of a code: the established family, or one that covers
/// all four languages where that is missing. Shaping would only swap digits for others of the same
/// look, which no search finds any more.
QFont reportFont(int pixelSize, int weight, const QString& language);

} // namespace analysis
