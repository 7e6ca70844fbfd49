// SPDX-License-Identifier: MIT
#include "overlay/tools.h"

#include "overlay/tool_rules.h"

#include <algorithm>

namespace overlay {
namespace {

/// The lowest number that no tool of the list, which is in number order, carries in its name.
template<typename Tool>
int lowestFreeNumber(const QVector<Tool>& list)
{
    int number = 0;
    for (const Tool& tool : list) {
        bool isNumber = false;
        if (tool.name.midRef(1).toInt(&isNumber) == number && isNumber)
            ++number;
    }
    return number;
}

/// Both lists in number order, those of `more` with the numbers that are free.
/// `follow` is an index in `list`, and becomes the same tool's.
template<typename Tool>
void mergeInto(QVector<Tool>& list, const QVector<Tool>& more, int& follow)
{
    QVector<Tool> merged;
    merged.reserve(list.size() + more.size());
    const int followed = follow;
    int taken = 0;
    int number = 0;
    const auto take = [&] {
        if (taken == followed)
            follow = merged.size();
        merged.append(list.at(taken++));
    };
    for (Tool tool : more) {
        for (; taken < list.size() && numberIn(list.at(taken).name, Tool::kind) <= number; take())
            number = std::max(number, numberIn(list.at(taken).name, Tool::kind).value_or(-1) + 1);
        tool.name = nameOf(Tool::kind, number++);
        merged.append(tool);
    }
    while (taken < list.size())
        take();
    list = merged;
}

} // namespace

bool operator==(const Tools& left, const Tools& right)
{
    return listsOf(left) == listsOf(right) && left.currentType == right.currentType &&
           left.selectedIndex == right.selectedIndex;
}

int countOf(const Tools& tools)
{
    int count = 0;
    forEachList(tools, [&](const auto& list) { count += list.size(); });
    return count;
}

std::optional<ToolKind> selectedKind(const Tools& tools)
{
    for (const KindRow& row : toolKinds) {
        if (tools.currentType == QLatin1Char(row.letter))
            return row.kind;
    }
    return std::nullopt;
}

void select(Tools& tools, ToolKind kind, int index)
{
    tools.currentType = QLatin1Char(rowOf(kind).letter);
    tools.selectedIndex = index;
}

int overallSelection(const Tools& tools)
{
    const std::optional<ToolKind> selected = selectedKind(tools);
    int place = tools.selectedIndex;
    forEachList(tools, [&](const auto& list) {
        if (selected && kindOf(list) < *selected)
            place += list.size();
    });
    return place;
}

int selectedPlace(const Tools& tools)
{
    const std::optional<ToolKind> kind = selectedKind(tools);
    const bool exists = kind && visitTool(tools, *kind, tools.selectedIndex, [](const auto&) {});
    return exists ? overallSelection(tools) : -1;
}

void prune(Tools& tools)
{
    forEachList(tools, [](auto& list) {
        list.erase(std::remove_if(list.begin(), list.end(),
                                  [](const auto& tool) { return isUnfinished(tool); }),
                   list.end());
    });
}

int insertNew(Tools& tools, ToolKind kind, const QColor& colour)
{
    int index = 0;
    forEachList(tools, [&](auto& list) {
        if (kindOf(list) != kind)
            return;
        const int number = lowestFreeNumber(list);
        index = std::min(number, list.size());
        typename std::decay_t<decltype(list)>::value_type tool;
        tool.name = nameOf(kind, number);
        tool.colour = colour;
        list.insert(index, tool);
    });
    return index;
}

void add(Tools& tools, const Tools& more)
{
    const std::optional<ToolKind> selected = selectedKind(tools);
    forEachList(tools, [&](auto& list) {
        using List = std::decay_t<decltype(list)>;
        int none = -1;
        mergeInto(list, std::get<const List&>(listsOf(more)),
                  selected == kindOf(list) ? tools.selectedIndex : none);
    });
}

std::optional<int> numberIn(const QString& name, ToolKind kind)
{
    const int number = name.midRef(1).toInt(); // 0 for no number
    return number >= 0 && name == nameOf(kind, number) ? std::optional<int>(number) : std::nullopt;
}

QString nameOf(ToolKind kind, int number)
{
    return QLatin1Char(rowOf(kind).letter) + QString::number(number);
}

void removeSelected(Tools& tools)
{
    const std::optional<ToolKind> kind = selectedKind(tools);
    forEachList(tools, [&](auto& list) {
        if (kind == kindOf(list) && tools.selectedIndex >= 0 && tools.selectedIndex < list.size())
            list.removeAt(tools.selectedIndex);
    });
}

} // namespace overlay
