// SPDX-License-Identifier: MIT
#include "analysis/photograph/correction.h"

#include "analysis/photograph/radiance.h"

#include <cmath>
#include <limits>

namespace analysis {
namespace {

bool isEmissivity(double value)
{
    return value >= lowestEmissivity && value <= highestEmissivity;
}

} // namespace

CorrectionProblem problemOf(const Correction& correction)
{
    if (!isEmissivity(correction.storedEmissivity))
        return CorrectionProblem::StoredEmissivity;
    if (!isEmissivity(correction.emissivity))
        return CorrectionProblem::Emissivity;
    if (!(correction.reflected >= radiance::lowest && correction.reflected <= radiance::highest))
        return CorrectionProblem::Reflected;
    return CorrectionProblem::None;
}

Corrector::Corrector(const Correction& correction)
    : m_ratio(correction.storedEmissivity / correction.emissivity),
      m_offset((correction.emissivity - correction.storedEmissivity) / correction.emissivity *
               radiance::of(correction.reflected)),
      m_changesAnything(correction.emissivity != correction.storedEmissivity)
{
}

/// The equation of the two sums, solved for the radiance that is asked for.
CorrectedReading Corrector::corrected(double celsius) const
{
    constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
    if (!m_changesAnything || std::isnan(celsius))
        return {celsius, ReadingProblem::None};
    const double radiance = m_ratio * radiance::of(celsius) + m_offset;
    if (radiance <= 0)
        return {nothing, ReadingProblem::BelowSurroundings};
    const double temperature = radiance::temperatureOf(radiance);
    return {temperature,
            std::isnan(temperature) ? ReadingProblem::OutsideTable : ReadingProblem::None};
}

CorrectedTemperatures correctedTemperatures(const Temperatures& stored, Unit scale,
                                            const Correction& correction)
{
    if (problemOf(correction) != CorrectionProblem::None)
        return {};
    CorrectedTemperatures result;
    const auto temperatures = std::make_shared<Temperatures>(stored);
    result.temperatures = temperatures;
    if (correction.emissivity == correction.storedEmissivity)
        return result;
    const Corrector corrector(correction);
    for (float& temperature : *temperatures) {
        const CorrectedReading reading = corrector.corrected(celsiusOf(double(temperature), scale));
        result.belowSurroundings += reading.problem == ReadingProblem::BelowSurroundings;
        result.outsideTable += reading.problem == ReadingProblem::OutsideTable;
        temperature = float(inUnit(reading.celsius, scale));
    }
    return result;
}

} // namespace analysis
