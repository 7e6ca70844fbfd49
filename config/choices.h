// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the user has chosen once for all photographs: "choices.json", a text of its own beside the
/// configuration record, which keeps its bytes.
///
/// Every function opens the file anew. A choice that is missing, or a file that is missing or
/// damaged, reads as the usual. GUI thread.
namespace config {

QString choicesPath();

/// Whether measurements are remembered with each photograph. Usually not.
bool keepMeasurements();

/// Changes this choice alone, and makes folder and file where they are missing. False if it cannot
/// be written; then the file is as it was.
bool setKeepMeasurements(bool isOn);

} // namespace config
