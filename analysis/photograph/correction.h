// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph.h"
#include "analysis/photograph/units.h"

#include <memory>

/// What a photograph would read had the imager reckoned with another emissivity. docs/correction.md
/// has the model, what it assumes and what a wrong assumption costs. Any thread.
namespace analysis {

/// The imager is taken to have reckoned with the stored emissivity and the reflected temperature:
/// what it received is  stored ε · L(reading) + (1 − stored ε) · L(reflected),  L being the
/// radiance of radiance.h. The corrected reading is the one that is the same with the other
/// emissivity.
struct Correction
{
    double storedEmissivity = 1.0;
    double emissivity = 1.0;
    double reflected = 20.0; ///< of the surroundings, °C

    friend bool operator==(const Correction& a, const Correction& b)
    {
        return a.storedEmissivity == b.storedEmissivity && a.emissivity == b.emissivity &&
               a.reflected == b.reflected;
    }
    friend bool operator!=(const Correction& a, const Correction& b) { return !(a == b); }
};

/// Below it, what is read is hardly more than the surroundings.
constexpr double lowestEmissivity = 0.1;
constexpr double highestEmissivity = 1.0;

/// What makes no sense in a correction; the first of these.
enum class CorrectionProblem
{
    None,
    StoredEmissivity, ///< outside lowestEmissivity … highestEmissivity; not-a-number is outside,
                      ///< too
    Emissivity,
    Reflected ///< outside the table of radiance.h
};
CorrectionProblem problemOf(const Correction& correction);

/// Why a reading has no corrected one.
enum class ReadingProblem
{
    None,
    BelowSurroundings, ///< less came from there than the surroundings alone make it reflect
    OutsideTable       ///< of radiance.h: the reading or the corrected one
};

struct CorrectedReading
{
    double celsius; ///< not-a-number with a problem
    ReadingProblem problem;
};

/// One correction, ready for many readings.
class Corrector
{
public:
    /// The correction must have no problem.
    explicit Corrector(const Correction& correction);

    /// Readings are in °C. Not-a-number stays what it is, without a problem; with the stored
    /// emissivity every reading does.
    CorrectedReading corrected(double celsius) const;

private:
    double m_ratio;  ///< stored emissivity / emissivity
    double m_offset; ///< what comes from the surroundings, once it is divided by emissivity
    bool m_changesAnything;
};

/// A whole picture corrected.
struct CorrectedTemperatures
{
    /// In the scale of the stored ones, not-a-number where there is none. Null when the correction
    /// has a problem.
    std::shared_ptr<const Temperatures> temperatures;
    int belowSurroundings = 0; ///< pixels that have lost their temperature, by reason
    int outsideTable = 0;
};

/// `scale` is that of the stored temperatures: storedUnit(). With the stored emissivity they stay
/// bit for bit.
CorrectedTemperatures correctedTemperatures(const Temperatures& stored, Unit scale,
                                            const Correction& correction);

} // namespace analysis
