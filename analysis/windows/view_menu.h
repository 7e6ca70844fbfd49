// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

namespace Ui {
class Analysis_Widget;
}

namespace analysis {

class ToolCommands;

/// What is seen in an analysis window, on its way to the clipboard and to files: these entries of
/// the context menus. In the table they copy rows, on the picture the picture. GUI thread only.
class ViewMenu
{
    Q_DECLARE_TR_FUNCTIONS(ViewMenu)

public:
    static void addTo(ToolCommands& commands, const Ui::Analysis_Widget& form);

private:
    static void addSaving(ToolCommands& commands, const Ui::Analysis_Widget& form);
};

} // namespace analysis
