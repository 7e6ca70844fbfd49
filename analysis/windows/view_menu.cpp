// SPDX-License-Identifier: MIT
#include "analysis/windows/view_menu.h"

#include "analysis/windows/analysis_tables.h"
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/tool_commands.h"
#include "analysis/windows/view_export.h"
#include "analysis/windows/viewed_photograph.h"

#include "ui_analysis_widget.h"

namespace analysis {
namespace {

using Form = Ui::Analysis_Widget;

ShownPicture seen(const ToolCommands& commands, const Form& form)
{
    ShownPicture shown =
        shownPicture(commands.window().photograph, commands.viewed().unit(), commands.state().tools,
                     form.widget->startValue, form.widget->endValue);
    shown.language = commands.window().configurationField;
    const ViewedPhotograph& viewed = commands.viewed();
    if (viewed.isotherm())
        addIsotherm(shown, *viewed.isotherm(), viewed.photograph().temperatures, viewed.unit());
    if (viewed.corrected())
        addCorrected(shown, viewed.correctionName(), *viewed.corrected(), viewed.unit().conversion);
    return shown;
}

void saveCorrected(const ToolCommands& commands)
{
    const ViewedPhotograph& viewed = commands.viewed();
    if (!viewed.corrected())
        return;
    const auto corrected = std::make_unique<Photograph>(viewed.photograph());
    corrected->temperatures = *viewed.corrected();
    ViewExport::saveTemperatures(*corrected, viewed.unit(), viewed.name(), &viewed.window(),
                                 viewed.correction());
}

QStringList textsOf(const ToolCells& cells)
{
    return QStringList(cells.begin(), cells.end());
}

files::TextRows wholeTable(const Form& form)
{
    files::TextRows rows{textsOf(toolCaptions())};
    for (const ToolCells& tool : shownTools(*form.tableWidget))
        rows.push_back(textsOf(tool));
    return rows;
}

files::TextRows chosenRows(const Form& form)
{
    const std::vector<ToolCells> all = shownTools(*form.tableWidget);
    files::TextRows rows;
    for (const QModelIndex& index : form.tableWidget->selectionModel()->selectedRows())
        rows.push_back(textsOf(all[std::size_t(index.row())]));
    return rows;
}

} // namespace

void ViewMenu::addTo(ToolCommands& commands, const Form& form)
{
    using Group = ToolCommands::Group;
    using Focus = ToolCommands::Focus;
    using Menus = ToolCommands::Menus;
    const QKeySequence copy(QKeySequence::Copy);
    const auto hasRows = [&form] {
        return form.tableWidget->rowCount() > 0;
    };
    commands.add({Group::Copies,
                  tr("复制图片"),
                  [&] { ViewExport::copyPicture(seen(commands, form), *form.label); },
                  {copy},
                  Focus::Picture,
                  Menus::Picture});
    commands.add({Group::Copies,
                  tr("复制表格"),
                  [&, hasRows] {
                      if (hasRows())
                          ViewExport::copyTable(wholeTable(form), true);
                  },
                  {copy},
                  Focus::Table,
                  Menus::Table,
                  hasRows});
    commands.add({Group::Copies,
                  tr("复制所选行"),
                  [&] { ViewExport::copyTable(chosenRows(form), false); },
                  {},
                  Focus::Table,
                  Menus::Table,
                  [&form] {
                      return form.tableWidget->selectionModel()->hasSelection();
                  }});
    addSaving(commands, form);
}

void ViewMenu::addSaving(ToolCommands& commands, const Form& form)
{
    using Group = ToolCommands::Group;
    using Focus = ToolCommands::Focus;
    using Menus = ToolCommands::Menus;
    commands.add({Group::Copies,
                  tr("保存图片..."),
                  [&] {
                      ViewExport::savePicture(seen(commands, form), commands.window().fileName,
                                              &commands.window());
                  },
                  {},
                  Focus::Window,
                  Menus::Picture});
    commands.add({Group::Copies,
                  tr("保存温度..."),
                  [&] {
                      ViewExport::saveTemperatures(commands.window().photograph,
                                                   commands.viewed().unit(),
                                                   commands.window().fileName, &commands.window());
                  },
                  {},
                  Focus::Window,
                  Menus::Picture});
    commands.add({Group::Copies,
                  tr("保存校正后的温度..."),
                  [&] { saveCorrected(commands); },
                  {},
                  Focus::Window,
                  Menus::Picture,
                  [&commands] {
                      return commands.viewed().corrected() != nullptr;
                  }});
}

} // namespace analysis
