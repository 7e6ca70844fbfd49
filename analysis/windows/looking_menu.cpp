// SPDX-License-Identifier: MIT
#include "analysis/windows/looking_menu.h"

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/correction_dialog.h"
#include "analysis/windows/isotherm_dialog.h"
#include "analysis/windows/tool_commands.h"
#include "dialogs/dialogs.h"

namespace analysis {
namespace {

/// Beside the picture, which follows what is chosen.
template<typename Dialog>
void open(ToolCommands& commands)
{
    Analysis_Widget& window = commands.window();
    auto* dialog = new Dialog(commands.viewed(), window.window());
    constexpr int margin = 40;
    dialog->move(
        window.mapToGlobal({window.width() - dialog->sizeHint().width() - margin, 2 * margin}));
    dialogs::open(dialog, &window);
}

/// An entry that opens such a dialog, checked while `isOn`: choosing it alone changes nothing.
template<typename Dialog, typename IsOn>
void add(ToolCommands& commands, const QString& text, ToolCommands::Menus menus, IsOn isOn)
{
    QAction* entry = commands.add({ToolCommands::Group::Looking,
                                   text,
                                   [&commands] { open<Dialog>(commands); },
                                   {},
                                   ToolCommands::Focus::Window,
                                   menus});
    entry->setCheckable(true);
    const auto check = [entry, isOn] {
        entry->setChecked(isOn());
    };
    QObject::connect(entry, &QAction::triggered, entry, check);
    QObject::connect(&commands.viewed(), &ViewedPhotograph::changed, entry, check);
}

} // namespace

void LookingMenu::addTo(ToolCommands& commands)
{
    const ViewedPhotograph& viewed = commands.viewed();
    add<IsothermDialog>(commands, tr("等温线..."), ToolCommands::Menus::Picture,
                        [&viewed] { return viewed.isotherm().has_value(); });
    add<CorrectionDialog>(commands, tr("校正发射率..."), ToolCommands::Menus::Both,
                          [&viewed] { return viewed.correction().has_value(); });
}

} // namespace analysis
