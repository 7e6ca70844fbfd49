// SPDX-License-Identifier: MIT
#include "tools/correction_options.h"

#include "analysis/photograph/looking_texts.h"
#include "analysis/photograph/radiance.h"
#include "tools/command_line.h"

namespace tools {
namespace {

using analysis::Correction;
using analysis::CorrectionProblem;
using analysis::Unit;

const QString emissivityOption = QStringLiteral("emissivity");
const QString storedOption = QStringLiteral("stored-emissivity");
const QString reflectedOption = QStringLiteral("reflected");

QString emissivities()
{
    return QStringLiteral("from %1 to %2")
        .arg(analysis::lowestEmissivity)
        .arg(analysis::highestEmissivity);
}

std::optional<double> readEmissivity(CommandLine& line, const QString& option)
{
    const std::optional<double> value = line.real(option);
    line.refuseUnless(
        !value || (*value >= analysis::lowestEmissivity && *value <= analysis::highestEmissivity),
        {option}, QStringLiteral("is ") + emissivities());
    return value;
}

} // namespace

Correction WantedCorrection::of(const analysis::Photograph& photograph, Unit shown) const
{
    Correction correction;
    correction.storedEmissivity = stored.value_or(photograph.parameters.emissivity100 / 100.0);
    correction.emissivity = emissivity;
    if (reflected)
        correction.reflected = celsiusOf(*reflected, shown);
    return correction;
}

void addCorrectionOptions(CommandLine& line)
{
    line.add({emissivityOption},
             QStringLiteral("Correct the readings: as if the imager had been set to this "
                            "emissivity, %1.")
                 .arg(emissivities()),
             QStringLiteral("E"));
    line.add({storedOption},
             QStringLiteral("What the imager was set to. Default: what the photograph says."),
             QStringLiteral("E"));
    line.add({reflectedOption},
             QStringLiteral("The temperature that the surroundings reflect, in the unit of the "
                            "temperatures. Default: 20 °C."),
             QStringLiteral("TEMPERATURE"));
}

std::optional<WantedCorrection> readCorrection(CommandLine& line)
{
    WantedCorrection wanted;
    const std::optional<double> emissivity = readEmissivity(line, emissivityOption);
    wanted.stored = readEmissivity(line, storedOption);
    wanted.reflected = line.real(reflectedOption);
    line.refuseUnless(line.isSet(emissivityOption), {storedOption, reflectedOption},
                      QStringLiteral("goes with --emissivity"));
    if (!emissivity)
        return std::nullopt;
    wanted.emissivity = *emissivity;
    return wanted;
}

QString reasonAgainst(const Correction& correction, std::optional<Unit> scale)
{
    if (!scale)
        return QStringLiteral("does not say in which unit its temperatures are");
    switch (problemOf(correction)) {
    case CorrectionProblem::None:
        break;
    case CorrectionProblem::StoredEmissivity:
        return QStringLiteral("stores an emissivity that is not %1; --stored-emissivity says "
                              "another")
            .arg(emissivities());
    case CorrectionProblem::Emissivity:
        return QStringLiteral("cannot be corrected for an emissivity that is not ") +
               emissivities();
    case CorrectionProblem::Reflected:
        return QStringLiteral("cannot be corrected with a reflected temperature that is not "
                              "from %1 to %2 °C")
            .arg(analysis::radiance::lowest)
            .arg(analysis::radiance::highest);
    }
    return {};
}

std::vector<Column> correctionColumns()
{
    return {{QStringLiteral("corrected_emissivity"), 20},
            {QStringLiteral("stored_emissivity"), 17},
            {QStringLiteral("reflected"), 9}};
}

Row correctionCells(const Correction& correction, Unit shown)
{
    return {analysis::LookingTexts::emissivity(correction.emissivity),
            analysis::LookingTexts::emissivity(correction.storedEmissivity),
            analysis::oneDecimal(inUnit(correction.reflected, shown))};
}

} // namespace tools
