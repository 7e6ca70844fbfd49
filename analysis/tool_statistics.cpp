#include "analysis/tool_statistics.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>
#include <numeric>

namespace analysis {
namespace {

using namespace format;

constexpr float lowBeforeAll = 2000.0F;
constexpr float highBeforeAll = -10.0F;
constexpr float highBeforeAllInCircles = -50.0F;

/// Pixels of one column, one below the other: consecutive in the temperature matrix.
struct Run
{
    const float* first;
    int count;
};

/// One tool's pixels.
struct Area
{
    std::size_t firstRun;
    std::size_t endRun;
    float startHigh;
    int pixels;
};

/// The pixels of all tools that have an area, as runs from left to right, top to bottom.
class Areas
{
public:
    explicit Areas(const Temperatures& temperatures) : m_temperatures(temperatures) {}

    void add(const overlay::LineTool& line);
    void add(const overlay::RectTool& rect);
    void add(const overlay::CircleTool& circle);

    const std::vector<Area>& areas() const { return m_areas; }
    const std::vector<Run>& runs() const { return m_runs; }

private:
    void begin(float startHigh) { m_areas.push_back({m_runs.size(), m_runs.size(), startHigh, 0}); }
    /// Adds column x from y1 to y2, both inclusive, to the area begun last. `x` is inside.
    void addRun(int x, int y1, int y2);

    const Temperatures& m_temperatures;
    std::vector<Run> m_runs;
    std::vector<Area> m_areas;
};

void Areas::addRun(int x, int y1, int y2)
{
    const int top = std::max(y1, 0);
    const int count = std::min(y2, rows - 1) - top + 1;
    if (count <= 0)
        return;
    m_runs.push_back({m_temperatures.data() + temperatureIndex(x, top), count});
    m_areas.back().endRun = m_runs.size();
    m_areas.back().pixels += count;
}

/// The columns of a tool that are in the picture.
struct Columns
{
    Columns(int x1, int x2) : first(std::max(x1, 0)), last(std::min(x2, columns - 1)) {}
    int first;
    int last;
};

/// Whether a pixel lies less than two whole pixels from a line with two distinct ends. The foot of
/// the perpendicular is truncated towards the line's start in either coordinate; the distance, too,
/// is truncated, and trunc(√d) < 2 is d < 4.
class NearLine
{
public:
    explicit NearLine(const overlay::LineTool& line)
        : m_line(line), m_dx(line.x2 - line.x1), m_dy(line.y2 - line.y1),
          m_square(double(m_dx) * m_dx + double(m_dy) * m_dy)
    {
    }

    bool operator()(int x, int y) const
    {
        const double along =
            (double(y - m_line.y1) * m_dy + double(x - m_line.x1) * m_dx) / m_square;
        const int fromFootX = x - (m_line.x1 + int(m_dx * along));
        const int fromFootY = y - (m_line.y1 + int(m_dy * along));
        return fromFootX * fromFootX + fromFootY * fromFootY < 4;
    }

private:
    overlay::LineTool m_line;
    int m_dx;
    int m_dy;
    double m_square;
};

void Areas::add(const overlay::LineTool& line)
{
    begin(highBeforeAll);
    const int dx = line.x2 - line.x1;
    const int dy = line.y2 - line.y1;
    if (dx == 0 && dy == 0)
        return;
    const NearLine isNear(line);
    const auto [top, bottom] = std::minmax(line.y1, line.y2);
    // A pixel that counts is at most 1 from the truncated foot in x and in y, so less than 2 from
    // the true foot in both. Along a column of the box that leaves at most `reach` pixels above and
    // below the line, with a pixel to spare for rounding.
    const double longer = std::max(std::abs(dx), std::abs(dy));
    const double square = double(dx) * dx + double(dy) * dy;
    const double reach = dx == 0 ? std::numeric_limits<double>::infinity()
                                 : 2 * square / (longer * std::abs(dx)) + 1;
    const double slope = dx == 0 ? 0 : double(dy) / dx;
    const Columns inside(std::min(line.x1, line.x2), std::max(line.x1, line.x2));
    for (int x = inside.first; x <= inside.last; ++x) {
        const double centre = line.y1 + slope * (x - line.x1);
        int y = std::max({top, 0, int(std::floor(std::max(centre - reach, -1.0)))});
        const int last =
            std::min({bottom, rows - 1, int(std::ceil(std::min(centre + reach, double(rows))))});
        while (y <= last) {
            if (!isNear(x, y)) {
                ++y;
                continue;
            }
            const int first = y;
            while (y <= last && isNear(x, y))
                ++y;
            addRun(x, first, y - 1);
        }
    }
}

void Areas::add(const overlay::RectTool& rect)
{
    begin(highBeforeAll);
    const auto [top, bottom] = std::minmax(rect.y1, rect.y2);
    const Columns inside(std::min(rect.x1, rect.x2), std::max(rect.x1, rect.x2));
    for (int x = inside.first; x <= inside.last; ++x)
        addRun(x, top, bottom);
}

void Areas::add(const overlay::CircleTool& circle)
{
    begin(highBeforeAllInCircles);
    const int radius = circle.radius;
    if (radius < 0)
        return;
    // trunc(√d) ≤ r is d < (r + 1)².
    const qint64 limit = (qint64(radius) + 1) * (radius + 1);
    const Columns inside(circle.cx - radius, circle.cx + radius);
    int half = 0; // grows and shrinks by little from column to column
    for (int x = inside.first; x <= inside.last; ++x) {
        const qint64 squareX = qint64(x - circle.cx) * (x - circle.cx);
        const auto covers = [&](qint64 y) {
            return squareX + y * y < limit;
        };
        while (half < radius && covers(half + 1))
            ++half;
        while (!covers(half))
            --half;
        addRun(x, circle.cy - half, circle.cy + half);
    }
}

/// The highest and lowest of many runs. A value that compares false, as not-a-number always does,
/// changes neither. The order of comparisons is free, so every place in a run has extremes of its
/// own, and whole runs are compared at once.
class Extremes
{
public:
    explicit Extremes(float highBefore) : m_highBefore(highBefore) {}

    void take(const Run& run)
    {
        for (; m_used < run.count; ++m_used) {
            m_high[std::size_t(m_used)] = m_highBefore;
            m_low[std::size_t(m_used)] = lowBeforeAll;
        }
        float* high = m_high.data();
        float* low = m_low.data();
        for (int i = 0; i < run.count; ++i) {
            const float value = run.first[i];
            high[i] = value > high[i] ? value : high[i];
            low[i] = value < low[i] ? value : low[i];
        }
    }

    float high() const
    {
        return std::accumulate(m_high.begin(), m_high.begin() + m_used, m_highBefore,
                               [](float a, float b) { return std::max(a, b); });
    }
    float low() const
    {
        return std::accumulate(m_low.begin(), m_low.begin() + m_used, lowBeforeAll,
                               [](float a, float b) { return std::min(a, b); });
    }

private:
    float m_highBefore;
    int m_used = 0; ///< the longest run so far
    std::array<float, rows> m_high;
    std::array<float, rows> m_low;
};

/// Sums in single precision depend on their order, so one area's additions must wait for each
/// other. Eight areas are therefore added up side by side, each in its own order.
class Adder
{
public:
    explicit Adder(const Areas& areas)
        : m_areas(areas.areas()), m_runs(areas.runs()), m_sums(m_areas.size())
    {
        for (Lane& lane : m_lanes)
            refill(lane);
    }

    std::vector<float> sums()
    {
        while (m_busy > 0)
            step();
        return std::move(m_sums);
    }

private:
    static constexpr std::size_t lanes = 8;
    static constexpr std::size_t nowhere = std::size_t(-1);

    struct Lane
    {
        const float* next = nullptr;
        int left = 0;
        std::size_t area = nowhere;
        std::size_t run = 0;
    };

    /// The lane's next run, or the next area's first one; zeros once all areas are taken.
    void refill(Lane& lane)
    {
        if (lane.area != nowhere && ++lane.run < m_areas[lane.area].endRun) {
            enter(lane);
            return;
        }
        if (lane.area != nowhere) {
            m_sums[lane.area] = sumOf(lane);
            --m_busy;
        }
        while (m_nextArea < m_areas.size() && m_areas[m_nextArea].pixels == 0)
            ++m_nextArea;
        sumOf(lane) = 0.0F;
        if (m_nextArea == m_areas.size()) {
            lane = {idle.data(), rows, nowhere, 0};
            return;
        }
        lane.area = m_nextArea++;
        lane.run = m_areas[lane.area].firstRun;
        ++m_busy;
        enter(lane);
    }

    void enter(Lane& lane) const
    {
        const Run& run = m_runs[lane.run];
        lane.next = run.first;
        lane.left = run.count;
    }

    float& sumOf(const Lane& lane) { return m_running[std::size_t(&lane - m_lanes.data())]; }

    /// As many additions in every lane as the shortest run has left.
    void step()
    {
        int count = rows;
        for (const Lane& lane : m_lanes)
            count = std::min(count, lane.left);
        std::array<const float*, lanes> next;
        for (std::size_t i = 0; i < lanes; ++i)
            next[i] = m_lanes[i].next;
        std::array<float, lanes> sum = m_running;
        for (int k = 0; k < count; ++k) {
            for (std::size_t i = 0; i < lanes; ++i)
                sum[i] += next[i][k];
        }
        m_running = sum;
        for (Lane& lane : m_lanes) {
            lane.next += count;
            lane.left -= count;
            if (lane.left == 0)
                refill(lane);
        }
    }

    static constexpr std::array<float, rows> idle{};

    const std::vector<Area>& m_areas;
    const std::vector<Run>& m_runs;
    std::vector<float> m_sums; ///< one for each area
    std::array<Lane, lanes> m_lanes;
    std::array<float, lanes> m_running{};
    std::size_t m_nextArea = 0;
    int m_busy = 0; ///< lanes with an area
};

std::vector<AreaStatistics> measured(const Areas& areas)
{
    const std::vector<float> sums = Adder(areas).sums();
    std::vector<AreaStatistics> statistics;
    statistics.reserve(sums.size());
    for (const Area& area : areas.areas()) {
        Extremes extremes(area.startHigh);
        for (std::size_t run = area.firstRun; run < area.endRun; ++run)
            extremes.take(areas.runs()[run]);
        const float sum = sums[statistics.size()];
        const float average = area.pixels > 0 ? sum / float(area.pixels) : 0.0F;
        statistics.push_back({extremes.high(), extremes.low(), average, area.pixels});
    }
    return statistics;
}

bool isPlaced(const overlay::PointTool& point)
{
    return point.x >= 0;
}
bool isPlaced(const overlay::LineTool& line)
{
    return line.x1 >= 0;
}
bool isPlaced(const overlay::RectTool& rect)
{
    return rect.x1 >= 0;
}
bool isPlaced(const overlay::CircleTool& circle)
{
    return circle.cx >= 0;
}

template<typename Tool>
void addPlaced(const QVector<Tool>& tools, Areas& areas)
{
    for (const Tool& tool : tools) {
        if (isPlaced(tool))
            areas.add(tool);
    }
}

} // namespace

std::vector<AreaStatistics> measureAreas(const ToolLists& tools, const Temperatures& temperatures)
{
    Areas areas(temperatures);
    addPlaced(tools.lines, areas);
    addPlaced(tools.rects, areas);
    addPlaced(tools.circles, areas);
    return measured(areas);
}

std::vector<ToolRow> toolRows(const ToolLists& tools, const Temperatures& temperatures,
                              Conversion conversion)
{
    const auto text = [conversion](float temperature) {
        return oneDecimal(double(shown(temperature, conversion)));
    };
    std::vector<ToolRow> table;
    for (const overlay::PointTool& point : tools.points) {
        if (!isPlaced(point))
            continue;
        const QString value = text(nearestTemperature(temperatures, point.x, point.y));
        table.push_back({point.name, ToolKind::Point, value, value, value});
    }

    const std::vector<AreaStatistics> measured = measureAreas(tools, temperatures);
    auto next = measured.begin();
    const auto append = [&](const auto& list, ToolKind kind) {
        for (const auto& tool : list) {
            if (!isPlaced(tool))
                continue;
            table.push_back(
                {tool.name, kind, text(next->high), text(next->low), text(next->average)});
            ++next;
        }
    };
    append(tools.lines, ToolKind::Line);
    append(tools.rects, ToolKind::Rect);
    append(tools.circles, ToolKind::Circle);
    return table;
}

ToolCells toolCells(const ToolRow& row)
{
    static constexpr std::array<const char*, 4> types{
        QT_TRANSLATE_NOOP("Analysis_Widget", "点"), QT_TRANSLATE_NOOP("Analysis_Widget", "线"),
        QT_TRANSLATE_NOOP("Analysis_Widget", "矩形"), QT_TRANSLATE_NOOP("Analysis_Widget", "圆")};
    const QString type =
        QCoreApplication::translate("Analysis_Widget", types[std::size_t(row.kind)]);
    return {row.name, type, row.high, row.low, row.average};
}

} // namespace analysis
