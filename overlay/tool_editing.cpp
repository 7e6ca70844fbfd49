// SPDX-License-Identifier: MIT
#include "overlay/tool_editing.h"

#include <QDebug>

namespace overlay {
namespace {

bool isIn(const ToolEditing& tools, ToolMode mode)
{
    return tools.toolMode == int(mode);
}

/// By index, and read anew each time: whoever hears of a selection may change the list.
void selectAt(ToolEditing& tools, const Press& press, const std::function<void()>& selected)
{
    tools.currentType = QStringLiteral("null");
    tools.selectedIndex = 0;
    forEachList(tools, [&](const auto& list) {
        const KindRow& row = rowOf(kindOf(list));
        for (int index = 0; index < list.size(); ++index) {
            if (!hits(list.at(index), press))
                continue;
            qDebug().noquote() << QString::fromUtf8(row.hit).arg(index);
            select(tools, row.kind, index);
            selected();
        }
    });
}

template<typename Change>
bool changeSelected(ToolEditing& tools, Change&& change)
{
    const std::optional<ToolKind> kind = selectedKind(tools);
    bool isChanged = false;
    if (!kind)
        return false;
    visitTool(tools, *kind, tools.selectedIndex, [&](auto& tool) {
        if (isUnfinished(tool))
            return;
        const auto before = tool;
        change(tool);
        isChanged = !(tool == before);
    });
    return isChanged;
}

} // namespace

void setMode(ToolEditing& tools, int mode)
{
    tools.toolMode = mode;
    tools.newIndex = 0;
    prune(tools);
    for (const KindRow& row : toolKinds) {
        if (isIn(tools, row.mode))
            tools.newIndex = insertNew(tools, row.kind, tools.toolColor);
    }
}

void press(ToolEditing& tools, const Press& press, const std::function<void()>& selected)
{
    tools.drawing = false;
    if (isIn(tools, ToolMode::Select)) {
        selectAt(tools, press, selected);
        return;
    }
    for (const KindRow& row : toolKinds) {
        // The prepared tool may have been pruned in the meantime; then there is none to place.
        if (isIn(tools, row.mode) && visitTool(tools, row.kind, tools.newIndex, [&](auto& tool) {
                place(tool, press.x, press.y);
            })) {
            tools.drawing = row.isDragged;
            select(tools, row.kind, tools.newIndex);
        }
    }
}

void dragTo(ToolEditing& tools, int x, int y)
{
    const std::optional<ToolKind> kind = selectedKind(tools);
    if (!kind)
        return;
    const KindRow& row = rowOf(*kind);
    const bool follows = tools.drawing ? row.isDragged && isIn(tools, row.mode)
                                       : !row.isDragged && isIn(tools, ToolMode::Select);
    if (follows)
        visitTool(tools, *kind, tools.selectedIndex, [&](auto& tool) { drag(tool, x, y); });
}

void removeSelectedTool(ToolEditing& tools)
{
    prune(tools);
    removeSelected(tools);
}

bool moveSelected(ToolEditing& tools, int dx, int dy)
{
    return changeSelected(tools, [&](auto& tool) { shift(tool, dx, dy); });
}

bool moveSelectedEnd(ToolEditing& tools, int dx, int dy)
{
    return changeSelected(tools, [&](auto& tool) { shiftEnd(tool, dx, dy); });
}

void selectNext(ToolEditing& tools, int step)
{
    QVector<std::pair<ToolKind, int>> finished;
    int place = -1;
    const std::optional<ToolKind> kind = selectedKind(tools);
    forEachList(tools, [&](const auto& list) {
        for (int index = 0; index < list.size(); ++index) {
            if (isUnfinished(list.at(index)))
                continue;
            if (kind == kindOf(list) && index == tools.selectedIndex)
                place = finished.size();
            finished.append({kindOf(list), index});
        }
    });
    const int count = finished.size();
    if (count == 0 || step == 0)
        return;
    if (place < 0)
        place = step > 0 ? -1 : count;
    const int next = (place + step % count + 2 * count) % count;
    select(tools, finished.at(next).first, finished.at(next).second);
}

} // namespace overlay
