// SPDX-License-Identifier: MIT
#include "analysis/photograph/tool_statistics.h"

#include "overlay/tool_coordinates.h"
#include "overlay/tool_rules.h"

#include <QCoreApplication>

#include <algorithm>

namespace analysis {
namespace {

using namespace format;
using overlay::PointTool;

constexpr float lowBeforeAll = 2000.0F;

constexpr float highBeforeAll(overlay::ToolKind kind)
{
    return kind == overlay::ToolKind::Circle ? -50.0F : -10.0F;
}

/// What users read of a kind. The captions of its numbers are as many as its row in
/// overlay::toolKinds tells.
struct KindCaptions
{
    const char* kind;
    std::array<const char*, std::tuple_size_v<overlay::ToolNumbers>> numbers;
};

const KindCaptions& captionsOf(overlay::ToolKind kind)
{
    static constexpr std::array<KindCaptions, overlay::toolKinds.size()> captions{{
        {QT_TRANSLATE_NOOP("Analysis_Widget", "点"), {"X:", "Y:"}},
        {QT_TRANSLATE_NOOP("Analysis_Widget", "线"),
         {QT_TRANSLATE_NOOP("CoordinatesDialog", "起点 X:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "起点 Y:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "终点 X:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "终点 Y:")}},
        {QT_TRANSLATE_NOOP("Analysis_Widget", "矩形"),
         {QT_TRANSLATE_NOOP("CoordinatesDialog", "第一角 X:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "第一角 Y:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "对角 X:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "对角 Y:")}},
        {QT_TRANSLATE_NOOP("Analysis_Widget", "圆"),
         {QT_TRANSLATE_NOOP("CoordinatesDialog", "圆心 X:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "圆心 Y:"),
          QT_TRANSLATE_NOOP("CoordinatesDialog", "半径:")}},
    }};
    return captions[std::size_t(kind)];
}

/// Sums in single precision depend on their order: column after column, and down each.
template<typename Tool>
AreaStatistics measured(const Tool& tool, const Temperatures& temperatures)
{
    float high = highBeforeAll(Tool::kind);
    float low = lowBeforeAll;
    float sum = 0.0F;
    int pixels = 0;
    overlay::forEachPixel(tool, [&](int x, int y) {
        const float temperature = temperatures[temperatureIndex(x, y)];
        // As comparisons, so that not-a-number changes neither.
        high = temperature > high ? temperature : high;
        low = temperature < low ? temperature : low;
        sum += temperature;
        ++pixels;
    });
    return {high, low, pixels > 0 ? sum / float(pixels) : 0.0F, pixels};
}

/// A point has no area: its one temperature stands for all three.
AreaStatistics measured(const PointTool& point, const Temperatures& temperatures)
{
    const float temperature = nearestTemperature(temperatures, point.x, point.y);
    return {temperature, temperature, temperature, 1};
}

template<typename Take>
void measurePlaced(const overlay::Tools& tools, const Temperatures& temperatures, Take take)
{
    overlay::forEachTool(tools, [&](const auto& tool) {
        if (overlay::isPlaced(tool))
            take(tool, measured(tool, temperatures));
    });
}

} // namespace

std::vector<AreaStatistics> measureAreas(const overlay::Tools& tools,
                                         const Temperatures& temperatures)
{
    std::vector<AreaStatistics> areas;
    measurePlaced(tools, temperatures, [&](const auto& tool, const AreaStatistics& area) {
        if (tool.kind != overlay::ToolKind::Point)
            areas.push_back(area);
    });
    return areas;
}

std::vector<ToolRow> toolRows(const overlay::Tools& tools, const Temperatures& temperatures,
                              Conversion conversion)
{
    const auto text = [conversion](float temperature) {
        return oneDecimal(double(shown(temperature, conversion)));
    };
    std::vector<ToolRow> table;
    measurePlaced(tools, temperatures, [&](const auto& tool, const AreaStatistics& area) {
        table.push_back(
            {tool.name, tool.kind, text(area.high), text(area.low), text(area.average)});
    });
    return table;
}

QString kindCaption(overlay::ToolKind kind)
{
    return QCoreApplication::translate("Analysis_Widget", captionsOf(kind).kind);
}

QString numberCaption(overlay::ToolKind kind, int number)
{
    return QCoreApplication::translate("CoordinatesDialog",
                                       captionsOf(kind).numbers[std::size_t(number)]);
}

ToolCells toolCaptions()
{
    static constexpr std::array<const char*, std::tuple_size_v<ToolCells>> captions{
        QT_TRANSLATE_NOOP("Analysis_Widget", "名称"), QT_TRANSLATE_NOOP("Analysis_Widget", "类型"),
        QT_TRANSLATE_NOOP("Analysis_Widget", "高"), QT_TRANSLATE_NOOP("Analysis_Widget", "低"),
        QT_TRANSLATE_NOOP("Analysis_Widget", "平均")};
    ToolCells texts;
    std::transform(captions.begin(), captions.end(), texts.begin(), [](const char* caption) {
        return QCoreApplication::translate("Analysis_Widget", caption);
    });
    return texts;
}

ToolCells toolCells(const ToolRow& row)
{
    return {row.name, kindCaption(row.kind), row.high, row.low, row.average};
}

} // namespace analysis
