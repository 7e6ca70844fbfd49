// SPDX-License-Identifier: MIT
#include "analysis/windows/measurement_menu.h"

#include "analysis/export/photograph_export.h"
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/outcome_text.h"
#include "analysis/windows/tool_commands.h"
#include "analysis/windows/view_export.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "files/paths.h"
#include "files/reading.h"
#include "overlay/tool_coordinates.h"
#include "overlay/tool_file.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>

namespace analysis {
namespace {

using overlay::ToolEditing;
using overlay::Tools;

constexpr qint64 mostBytes = 10'000'000;
const QString suffix = QStringLiteral("json");

Tools& lastTools()
{
    static Tools tools;
    return tools;
}

bool hasLastTools()
{
    return overlay::countOf(lastTools()) > 0;
}

QFileDialog* fileDialog(const ToolCommands& commands, const QString& title)
{
    auto* dialog = new QFileDialog(commands.window().window(), title, config::documentsPath());
    dialog->setNameFilter(QStringLiteral("JSON (*.json)"));
    return dialog;
}

void replaceBy(ToolCommands& commands, const Tools& tools)
{
    commands.change([&tools](ToolEditing& edited) { static_cast<Tools&>(edited) = tools; });
}

} // namespace

void MeasurementMenu::addTo(ToolCommands& commands)
{
    using Group = ToolCommands::Group;
    using Focus = ToolCommands::Focus;
    using Menus = ToolCommands::Menus;
    const auto hasTools = [&commands] {
        return commands.hasTools();
    };
    const auto hasText = [] {
        return !QGuiApplication::clipboard()->text().isEmpty();
    };
    commands.add({Group::Measurements,
                  tr("保存测量..."),
                  [&commands] { save(commands); },
                  {},
                  Focus::Window,
                  Menus::Both,
                  hasTools});
    commands.add({Group::Measurements, tr("加载测量..."), [&commands] {
                      load(commands);
                  }});
    commands.add({Group::Measurements,
                  tr("应用上次的测量"),
                  [&commands] { applyLast(commands); },
                  {},
                  Focus::Window,
                  Menus::Both,
                  hasLastTools});
    commands.add({Group::Measurements,
                  tr("复制测量"),
                  [&commands] { copy(commands); },
                  {QKeySequence::fromString(QStringLiteral("Ctrl+Shift+C"))},
                  Focus::Window,
                  Menus::Both,
                  hasTools});
    commands.add({Group::Measurements,
                  tr("粘贴"),
                  [&commands] { paste(commands); },
                  {QKeySequence::fromString(QStringLiteral("Ctrl+V"))},
                  Focus::Window,
                  Menus::Both,
                  hasText});
}

void MeasurementMenu::remember(const Tools& tools)
{
    if (overlay::countOf(tools) > 0)
        lastTools() = tools;
}

void MeasurementMenu::save(ToolCommands& commands)
{
    QFileDialog* dialog = fileDialog(commands, tr("保存测量"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(suffix);
    dialog->selectFile(
        files::pathIn(config::documentsPath(), exportName(commands.window().fileName, suffix)));
    QObject::connect(dialog, &QFileDialog::fileSelected, &commands,
                     [&commands](const QString& path) {
                         ViewExport::write(path, overlay::toolsToJson(commands.state().tools),
                                           commands.window().window());
                     });
    dialogs::open(dialog, &commands.window());
}

void MeasurementMenu::load(ToolCommands& commands)
{
    QFileDialog* dialog = fileDialog(commands, tr("加载测量"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    QObject::connect(dialog, &QFileDialog::fileSelected, &commands,
                     [&commands](const QString& path) { read(commands, path); });
    dialogs::open(dialog, &commands.window());
}

void MeasurementMenu::read(ToolCommands& commands, const QString& path)
{
    QByteArray json;
    Tools tools;
    const files::Outcome outcome = files::readWhole(path, mostBytes, json);
    const QString wrong = outcome.isGood() ? parse(json, tools) : outcomeText(outcome);
    if (wrong.isEmpty())
        replaceBy(commands, tools);
    else
        dialogs::warn(tr("未能从文件“%1”加载测量，现有工具保持不变。\n%2")
                          .arg(QDir::toNativeSeparators(path), wrong),
                      commands.window().window());
}

void MeasurementMenu::applyLast(ToolCommands& commands)
{
    if (hasLastTools())
        replaceBy(commands, lastTools());
}

void MeasurementMenu::copy(const ToolCommands& commands)
{
    if (commands.hasTools())
        QGuiApplication::clipboard()->setText(
            QString::fromUtf8(overlay::toolsToJson(commands.state().tools)));
}

void MeasurementMenu::paste(ToolCommands& commands)
{
    Tools tools;
    const QString wrong = parse(QGuiApplication::clipboard()->text().toUtf8(), tools);
    if (!wrong.isEmpty()) {
        dialogs::warn(tr("剪贴板中没有测量数据。\n%1").arg(wrong), commands.window().window());
        return;
    }
    commands.change([&tools](ToolEditing& edited) {
        overlay::forEachTool(tools, [&edited](const auto& tool) {
            overlay::addTool(edited, tool.kind, overlay::numbersOf(tool), tool.colour);
        });
    });
}

/// What the reader says is in English, as in `thermaphoto`.
QString MeasurementMenu::parse(const QByteArray& json, Tools& tools)
{
    Tools read;
    const QString wrong = overlay::toolsFromJson(json, read);
    if (!wrong.isEmpty())
        return wrong;
    const int count = overlay::countOf(read);
    if (count > ToolCommands::mostTools)
        return tr("工具过多：%1（最多 %2）").arg(count).arg(ToolCommands::mostTools);
    tools = read;
    return {};
}

} // namespace analysis
