// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

namespace analysis {

class ToolCommands;

/// Other ways to see a photograph: its isotherm and its corrected readings. These entries of the
/// context menus are checked while there is one. GUI thread only.
class LookingMenu
{
    Q_DECLARE_TR_FUNCTIONS(LookingMenu)

public:
    static void addTo(ToolCommands& commands);
};

} // namespace analysis
