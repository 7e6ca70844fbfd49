// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/coordinates_dialog.h"

#include <QCoreApplication>

namespace analysis {

class ToolCommands;

/// Exact coordinates of the selected tool, or of a new one: these entries of the context menus. The
/// picture follows what is typed; all of it is one step, and none when it is cancelled. GUI thread
/// only.
class CoordinatesMenu
{
    Q_DECLARE_TR_FUNCTIONS(CoordinatesMenu)

public:
    static void addTo(ToolCommands& commands);

private:
    static void open(ToolCommands& commands, CoordinatesDialog::Of of);
};

} // namespace analysis
