// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QVector>

#include <array>
#include <optional>
#include <tuple>

/// The measurement tools that a user places on a photograph, as a value: what the label edits, the
/// statistics measure, and label and report paint.
///
/// All coordinates are image coordinates of the thermal frame: x 0 … 239 across, y 0 … 319 down,
/// never label pixels. −1 means "made, but not placed yet"; such records are painted and measured
/// by nobody. 240 and 320 can occur (see the conversions of the label), so whoever reads a
/// temperature at a tool's position guards the read.
namespace overlay {

/// In the order in which tools are counted, drawn and listed.
enum class ToolKind
{
    Point,
    Line,
    Rect,
    Circle
};

/// What a press on the picture does: select, or place a tool of one kind. Hosts know the numbers.
enum class ToolMode
{
    Select = 1,
    Point,
    Line,
    Rect,
    Circle
};

/// What there is to know about a kind before any tool of it exists.
struct KindRow
{
    ToolKind kind;
    ToolMode mode;
    char letter;      ///< begins the names of its tools, and stands for it in `currentType`
    const char* name; ///< English, for files and commands; lists of it end in "s"
    int numbers;      ///< how many a file keeps of each tool
    bool isDragged;   ///< has an extent, which a drag gives it; the others are placed by a press
                      ///< and can be moved later
    const char* hit;  ///< what is logged when one was hit; %1 is its index
};

inline constexpr std::array<KindRow, 4> toolKinds{{
    {ToolKind::Point, ToolMode::Point, 'P', "point", 2, false, "您点击了第%1个点工具"},
    {ToolKind::Line, ToolMode::Line, 'L', "line", 4, true, "您点击了第%1个线工具"},
    {ToolKind::Rect, ToolMode::Rect, 'R', "rectangle", 4, true, "您点击了第%1个矩形工具"},
    {ToolKind::Circle, ToolMode::Circle, 'C', "circle", 3, true, "您点击了第%1个圆工具"},
}};

constexpr const KindRow& rowOf(ToolKind kind)
{
    return toolKinds[std::size_t(kind)];
}

struct PointTool
{
    static constexpr ToolKind kind = ToolKind::Point;
    QString name; ///< its kind's letter and a number, as all names
    int x = -1;
    int y = -1;
    int size = 9; ///< extent of the drawn cross, image pixels
    QColor colour = QColor(255, 0, 0, 255);

    auto members() const { return std::tie(name, x, y, size, colour); }
};

struct LineTool
{
    static constexpr ToolKind kind = ToolKind::Line;
    QString name;
    int x1 = -1; ///< start: where the press was
    int y1 = -1;
    int x2 = -1; ///< end: where the drag is
    int y2 = -1;
    QColor colour = QColor(255, 0, 0, 255);

    auto members() const { return std::tie(name, x1, y1, x2, y2, colour); }
};

/// Corners stay as the user dragged them: x2 may be less than x1, y2 less than y1.
struct RectTool
{
    static constexpr ToolKind kind = ToolKind::Rect;
    QString name;
    int x1 = -1; ///< press corner
    int y1 = -1;
    int x2 = -1; ///< drag corner
    int y2 = -1;
    QColor colour = QColor(255, 0, 0, 255);

    auto members() const { return std::tie(name, x1, y1, x2, y2, colour); }
};

struct CircleTool
{
    static constexpr ToolKind kind = ToolKind::Circle;
    QString name;
    int cx = -1; ///< centre: where the press was
    int cy = -1;
    int x2 = -1; ///< last accepted drag point
    int y2 = -1;
    int radius = -1; ///< image pixels; negative until dragged
    QColor colour = QColor(255, 0, 0, 255);

    auto members() const { return std::tie(name, cx, cy, x2, y2, radius, colour); }
};

template<typename Tool>
auto operator==(const Tool& left, const Tool& right) -> decltype(left.members() == right.members())
{
    return left.members() == right.members();
}

/// All tools of a picture and which of them is selected. The lists are in number order, "P0" before
/// "P2".
struct Tools
{
    QVector<PointTool> pointList;
    QVector<LineTool> lineList;
    QVector<RectTool> rectList;
    QVector<CircleTool> circleList;
    QString currentType = QStringLiteral("null"); ///< a kind's letter, or "null" for none
    int selectedIndex = -1; ///< within the list of `currentType`; may be one that no tool has
};

/// The list of each kind, in the order of the kinds.
template<typename AnyTools>
auto listsOf(AnyTools& tools)
{
    return std::tie(tools.pointList, tools.lineList, tools.rectList, tools.circleList);
}

bool operator==(const Tools& left, const Tools& right);

/// Calls `visit` with the list of each kind, in the order of the kinds.
template<typename AnyTools, typename Visit>
void forEachList(AnyTools& tools, Visit&& visit)
{
    std::apply([&](auto&... lists) { (visit(lists), ...); }, listsOf(tools));
}

/// Calls `visit` with each tool, in the order of the kinds and of their lists.
template<typename AnyTools, typename Visit>
void forEachTool(AnyTools& tools, Visit&& visit)
{
    forEachList(tools, [&](auto& list) {
        for (auto& tool : list)
            visit(tool);
    });
}

template<typename List>
constexpr ToolKind kindOf(const List&)
{
    return List::value_type::kind;
}

/// Calls `visit` with the tool at this place in the list of its kind; does nothing and returns
/// false where there is none.
template<typename AnyTools, typename Visit>
bool visitTool(AnyTools& tools, ToolKind kind, int index, Visit&& visit)
{
    bool exists = false;
    forEachList(tools, [&](auto& list) {
        if (kindOf(list) != kind || index < 0 || index >= list.size())
            return;
        exists = true;
        visit(list[index]);
    });
    return exists;
}

int countOf(const Tools& tools);

/// The selected kind, whether or not it has a tool at `selectedIndex`; nothing for "null" and for
/// any other text that is no kind's letter.
std::optional<ToolKind> selectedKind(const Tools& tools);

void select(Tools& tools, ToolKind kind, int index);

/// `selectedIndex` counted over all tools: points first, then lines, rectangles and circles. Where
/// no kind is selected, `selectedIndex` itself.
int overallSelection(const Tools& tools);

/// The selected tool counted over all tools; −1 when the selection names none that there is.
int selectedPlace(const Tools& tools);

/// Removes the tools that were never placed, and those of a dragged kind without an extent.
void prune(Tools& tools);

/// Makes an unplaced tool with the lowest free number of its kind and puts it where its number
/// belongs. Returns its index.
int insertNew(Tools& tools, ToolKind kind, const QColor& colour);

/// Adds tools, each with the lowest free number of its kind, where that belongs. The selection
/// stays on its tool.
void add(Tools& tools, const Tools& more);

/// The number in a tool's name, which is the kind's letter and this number without needless zeros;
/// nothing for any other text.
std::optional<int> numberIn(const QString& name, ToolKind kind);

/// "P0" for the first point.
QString nameOf(ToolKind kind, int number);

/// Removes the selected tool if there is one. The selection stays, on the tool that moves up.
void removeSelected(Tools& tools);

} // namespace overlay
