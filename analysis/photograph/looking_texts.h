// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/correction.h"
#include "analysis/photograph/isotherm.h"

#include <QCoreApplication>

/// What corrections and isotherms are called wherever they show, in the language of the installed
/// translators; units are those shown. Any thread.
namespace analysis {

class LookingTexts
{
    Q_DECLARE_TR_FUNCTIONS(LookingTexts)

public:
    /// The name of corrected readings: "corrected: ε 0.95 → 0.60, reflected 20.0 °C".
    static QString nameOf(const Correction& correction, Unit shown);
    /// Why there is no correction, and why a reading has no corrected one; empty without a problem.
    static QString reasonOf(CorrectionProblem problem, Unit shown);
    static QString reasonOf(ReadingProblem problem, Unit shown);
    static QString unknownScale();

    /// "Isotherm: above 60.0 °C", with limits in the isotherm's unit.
    static QString nameOf(const Isotherm& isotherm);
    /// Empty without a problem.
    static QString reasonOf(IsothermProblem problem);

    /// Two decimals, or as many more as it has.
    static QString emissivity(double value);
};

} // namespace analysis
