// SPDX-License-Identifier: MIT
#pragma once

#include "files/outcome.h"

namespace analysis {

/// Why something with a file did not succeed, for a user, in the installed language; empty when it
/// did.
QString outcomeText(const files::Outcome& outcome);

} // namespace analysis
