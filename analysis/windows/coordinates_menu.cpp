// SPDX-License-Identifier: MIT
#include "analysis/windows/coordinates_menu.h"

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/tool_commands.h"
#include "dialogs/dialogs.h"

namespace analysis {
namespace {

using overlay::ToolEditing;
using overlay::Tools;

/// What the mouse would place, or else a point.
overlay::ToolKind kindOfMode(int mode)
{
    for (const overlay::KindRow& row : overlay::toolKinds) {
        if (int(row.mode) == mode)
            return row.kind;
    }
    return overlay::ToolKind::Point;
}

} // namespace

void CoordinatesMenu::addTo(ToolCommands& commands)
{
    using Of = CoordinatesDialog::Of;
    commands.add(
        {ToolCommands::Group::Tool,
         tr("坐标..."),
         [&commands] { open(commands, Of::Selection); },
         {QKeySequence(Qt::Key_F2), QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)},
         ToolCommands::Focus::PictureOrTable});
    commands.add({ToolCommands::Group::Tool,
                  tr("按坐标新建..."),
                  [&commands] { open(commands, Of::NewTool); },
                  {QKeySequence(Qt::Key_Insert)},
                  ToolCommands::Focus::PictureOrTable});
}

void CoordinatesMenu::open(ToolCommands& commands, CoordinatesDialog::Of of)
{
    if (commands.isHeld())
        return;
    Analysis_Widget& window = commands.window();
    const overlay::ToolsState now = commands.state();
    auto* dialog = new CoordinatesDialog(now.tools, of, kindOfMode(window.currentTool), now.colour,
                                         window.window());
    // Beside the picture, which follows what is typed.
    constexpr int margin = 40;
    dialog->move(
        window.mapToGlobal({window.width() - dialog->sizeHint().width() - margin, 2 * margin}));
    commands.beginStep();
    QObject::connect(
        dialog, &CoordinatesDialog::changed, &commands, [&commands](const Tools& tools) {
            commands.edit([&tools](ToolEditing& edited) { static_cast<Tools&>(edited) = tools; });
        });
    QObject::connect(dialog, &QDialog::finished, &commands, [&commands] { commands.endStep(); });
    dialogs::open(dialog, &window);
}

} // namespace analysis
