// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"

#include <QPoint>
#include <QString>

class QRect;

namespace analysis {

/// The readings of a picture pixel by pixel, as a window writes them. Positions are image
/// coordinates inside the picture.
class ReadingTexts
{
public:
    /// `corrected` names a second set of readings and is empty for the stored ones. The
    /// temperatures must outlive this.
    ReadingTexts(const Temperatures& temperatures, const ShownUnit& unit,
                 const QString& corrected = {});

    /// "36.5": what stands beside the picture while the mouse is there, without its unit. "–" where
    /// a corrected set has no reading.
    QString at(int x, int y) const;
    /// "X: 120  Y: 160  36.5°C"
    QString readOut(const QPoint& pixel) const;
    /// Letters of the longest text that at() gives for any pixel, or somewhat more.
    int longest() const;
    /// A matrix for spreadsheets: lines of tab-separated cells, the columns' x in the first line
    /// and the rows' y in front, the unit, and what is not stored, in the corner.
    QString matrix(const QRect& pixels) const;

private:
    const Temperatures& m_temperatures;
    const ShownUnit m_unit;
    const QString m_corrected;
};

} // namespace analysis
