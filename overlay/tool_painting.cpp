// SPDX-License-Identifier: MIT
#include "overlay/tool_painting.h"

#include "overlay/tool_rules.h"

#include <QPainter>

#include <cmath>

namespace overlay {
namespace {

/// Extents of what is drawn, in image pixels.
constexpr int nameSize = 9;
constexpr int spotSize = 4;
constexpr int reticleSize = 13;
constexpr int reticleCircleSize = 10;

/// Names stand on that side of their tool which leads away from the picture's edge.
constexpr int middleColumn = imageColumns / 2;
constexpr int middleRow = imageRows / 2;

/// Where a text begins; it may reach further, so nothing is cut to it. Widget pixels.
constexpr QSize nameBox(60, 30);

bool hasPicture(const Geometry& geometry)
{
    return geometry.imageWidth > 0 && geometry.imageHeight > 0;
}

QSize pixelsOf(const QSize& size, qreal ratio)
{
    if (size.isEmpty())
        return {};
    return {int(std::ceil(size.width() * ratio)), int(std::ceil(size.height() * ratio))};
}

bool hasReticle(const Spots& spots)
{
    return spots.markerC.x != 0 && spots.markerC.y != 0;
}

QFont labelFont(int weight, double pixelSize)
{
    QFont font(QStringLiteral("Microsoft YaHei"));
    font.setWeight(weight);
    if (pixelSize >= 1.0)
        font.setPixelSize(int(pixelSize));
    return font;
}

/// A painter with what drawing on one sheet needs throughout.
class Canvas
{
public:
    Canvas(QPainter& painter, const Geometry& geometry)
        : m_painter(painter), m_geometry(geometry), m_penWidth(geometry.imageHeight / 500 + 1),
          m_nameExtent(onSheet(0, 0, nameSize).w)
    {
        painter.setRenderHint(QPainter::Antialiasing);
    }

    /// The tools from `begin` to before `end`, counted over all kinds.
    void drawTools(const Tools& tools, const QColor& selectColor, int begin, int end) const;
    void drawSpots(const Spots& spots) const;
    void drawMargins() const;

private:
    Box onSheet(int x, int y, int extent) const
    {
        return toWidget(m_geometry, {x, y, extent, extent});
    }
    void use(const QColor& colour) const
    {
        m_painter.setPen(QPen(colour, m_penWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    }
    void text(int x, int y, const QString& text) const
    {
        m_painter.drawText(QRect(QPoint(x, y), nameBox), Qt::TextDontClip, text);
    }
    int beside(bool before, int otherwise) const { return before ? -6 - m_nameExtent : otherwise; }
    int above(bool before, int otherwise) const { return before ? -3 - m_nameExtent : otherwise; }
    /// A name beside what has its place on the sheet at (x, y).
    void nameBeside(int x, int y, const QString& name) const
    {
        text(x + beside(x > m_geometry.labelWidth / 2, 4),
             y + above(y > m_geometry.labelHeight / 2, 4), name);
    }
    void drawCross(int cx, int cy, int arm, int gap) const;
    /// A cross of double strokes that leaves its centre free, with a large letter beside it.
    void drawSpot(const Marker& marker, const QColor& colour, const QString& letter) const;
    void drawReticle(const Marker& marker) const;
    void draw(const PointTool& point) const;
    void draw(const LineTool& line) const;
    void draw(const RectTool& rect) const;
    void draw(const CircleTool& circle) const;

    QPainter& m_painter;
    const Geometry m_geometry;
    const int m_penWidth;
    const int m_nameExtent; ///< nameSize in widget pixels
};

void Canvas::drawTools(const Tools& tools, const QColor& selectColor, int begin, int end) const
{
    m_painter.setFont(labelFont(QFont::Normal, 0.9 * m_nameExtent));
    const int selected = selectedPlace(tools);
    int place = 0;
    forEachTool(tools, [&](const auto& tool) {
        if (place >= begin && place < end && isPlaced(tool)) {
            use(place == selected ? selectColor : tool.colour);
            draw(tool);
        }
        ++place;
    });
}

void Canvas::drawCross(int cx, int cy, int arm, int gap) const
{
    m_painter.drawLine(cx - arm, cy, cx - gap, cy);
    m_painter.drawLine(cx + arm, cy, cx + gap, cy);
    m_painter.drawLine(cx, cy - arm, cx, cy - gap);
    m_painter.drawLine(cx, cy + arm, cx, cy + gap);
}

void Canvas::draw(const PointTool& point) const
{
    const auto [cx, cy, m, mHeight] = onSheet(point.x, point.y, point.size);
    drawCross(cx, cy, m / 2, m_penWidth);
    text(cx + beside(point.x > middleColumn, 3), cy + above(point.y > middleRow, 2), point.name);
}

void Canvas::draw(const LineTool& line) const
{
    const Box start = onSheet(line.x1, line.y1, 0);
    const Box end = onSheet(line.x2, line.y2, 0);
    m_painter.drawLine(start.x, start.y, end.x, end.y);
    text(end.x + beside(line.x2 > middleColumn, 0), end.y + above(line.y2 > middleRow, 0),
         line.name);
}

/// The name stands at the drag corner, where the hand was last.
void Canvas::draw(const RectTool& rect) const
{
    const Box press = onSheet(rect.x1, rect.y1, 0);
    const Box drag = onSheet(rect.x2, rect.y2, 0);
    m_painter.drawRect(std::min(press.x, drag.x), std::min(press.y, drag.y),
                       std::abs(drag.x - press.x), std::abs(drag.y - press.y));
    nameBeside(drag.x, drag.y, rect.name);
}

/// Circles follow the vertical scale.
void Canvas::draw(const CircleTool& circle) const
{
    const auto [cx, cy, width, radius] = onSheet(circle.cx, circle.cy, circle.radius);
    if (circle.radius >= 0) // before the drag, only the name shows where it will be
        m_painter.drawEllipse(cx - radius, cy - radius, 2 * radius, 2 * radius);
    nameBeside(cx, cy, circle.name);
}

void Canvas::drawSpots(const Spots& spots) const
{
    drawSpot(spots.markerA, QColor(0, 255, 0), QStringLiteral("L"));
    drawSpot(spots.markerB, QColor(255, 0, 0), QStringLiteral("H"));
    if (hasReticle(spots))
        drawReticle(spots.markerC);
}

void Canvas::drawSpot(const Marker& marker, const QColor& colour, const QString& letter) const
{
    const auto [cx, cy, m, mHeight] = onSheet(marker.x, marker.y, spotSize);
    const int arm = m / 2;
    const int gap = m_penWidth;
    use(colour);
    for (const int side : {-gap, gap}) {
        m_painter.drawLine(cx - arm, cy + side, cx - gap, cy + side);
        m_painter.drawLine(cx + arm, cy + side, cx + gap, cy + side);
        m_painter.drawLine(cx + side, cy - arm, cx + side, cy - gap);
        m_painter.drawLine(cx + side, cy + arm, cx + side, cy + gap);
    }
    const int textSize = int(2.6 * m);
    m_painter.setFont(labelFont(QFont::Bold, textSize));
    text(cx + (marker.x > middleColumn ? -textSize : m + 2), cy - 2, letter);
}

void Canvas::drawReticle(const Marker& marker) const
{
    const auto [cx, cy, extent, height] = onSheet(marker.x, marker.y, reticleSize);
    use(QColor(255, 255, 255));
    drawCross(cx, cy, extent / 2, extent / 4);
    const int diameter = onSheet(marker.x, marker.y, reticleCircleSize).w;
    use(QColor(220, 220, 220));
    m_painter.drawEllipse(cx - diameter / 2, cy - diameter / 2, diameter, diameter);
}

/// Where the picture lies is how QLabel centres it.
void Canvas::drawMargins() const
{
    const auto [labelWidth, imageWidth, labelHeight, imageHeight] = m_geometry;
    const int left = labelWidth / 2 - imageWidth / 2;
    const int right = left + imageWidth;
    const int top = labelHeight / 2 - imageHeight / 2;
    const int bottom = top + imageHeight;
    if (labelWidth > imageWidth) {
        m_painter.fillRect(0, 0, left, labelHeight, Qt::white);
        m_painter.fillRect(right, 0, labelWidth - right, labelHeight, Qt::white);
    }
    if (labelHeight > imageHeight) {
        m_painter.fillRect(0, 0, labelWidth, top, Qt::white);
        m_painter.fillRect(0, bottom, labelWidth, labelHeight - bottom, Qt::white);
    }
}

QRect wholeOf(const Sheet& sheet)
{
    return {0, 0, sheet.geometry.labelWidth, sheet.geometry.labelHeight};
}

QImage transparent(const Sheet& sheet, const QRect& part)
{
    QImage image(pixelsOf(part.size(), sheet.ratio), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(sheet.ratio);
    image.fill(Qt::transparent);
    return image;
}

bool isSame(const Sheet& left, const Sheet& right)
{
    return left.geometry == right.geometry && left.ratio == right.ratio;
}

/// Tools of their own layer: laid over others, smoothed edges come out a little different from
/// tools that are drawn after them.
QImage layerOf(const Tools& tools, const Sheet& sheet, const QRect& part, int begin, int end)
{
    QImage image = transparent(sheet, part);
    QPainter painter(&image);
    painter.translate(-part.topLeft());
    Canvas(painter, sheet.geometry).drawTools(tools, sheet.selectColor, begin, end);
    return image;
}

/// The tools as their layers show them: without the selection, and without the selected tool.
Tools withoutSelected(Tools tools)
{
    if (const std::optional<ToolKind> kind = selectedKind(tools))
        visitTool(tools, *kind, tools.selectedIndex, [](auto& tool) { tool = {}; });
    tools.currentType.clear();
    tools.selectedIndex = -1;
    return tools;
}

} // namespace

QSize Sheet::pixels() const
{
    return pixelsOf(wholeOf(*this).size(), ratio);
}

QImage paintedTools(const Tools& tools, const Spots& spots, const Sheet& sheet)
{
    return paintedTools(tools, spots, sheet, wholeOf(sheet));
}

QImage paintedTools(const Tools& tools, const Spots& spots, const Sheet& sheet, const QRect& part)
{
    if (part.isEmpty())
        return {};
    QImage image = transparent(sheet, part);
    QPainter painter(&image);
    painter.translate(-part.topLeft());
    const Canvas canvas(painter, sheet.geometry);
    if (hasPicture(sheet.geometry)) {
        const int selected = selectedPlace(tools);
        const int count = countOf(tools);
        const int first = selected < 0 ? count : selected + 1;
        canvas.drawTools(tools, sheet.selectColor, 0, first);
        if (first < count)
            painter.drawImage(part.topLeft(), layerOf(tools, sheet, part, first, count));
        canvas.drawSpots(spots);
    }
    if (sheet.whiteMargins)
        canvas.drawMargins();
    return image;
}

void ToolLayers::paint(QPainter& painter, const Tools& tools, const Spots& spots,
                       const Sheet& sheet)
{
    const Canvas canvas(painter, sheet.geometry);
    if (hasPicture(sheet.geometry)) {
        const int selected = selectedPlace(tools);
        update(tools, sheet, selected);
        painter.drawImage(0, 0, m_under);
        if (selected >= 0) {
            canvas.drawTools(tools, sheet.selectColor, selected, selected + 1);
            painter.drawImage(0, 0, m_over);
        }
        canvas.drawSpots(spots);
    }
    if (sheet.whiteMargins)
        canvas.drawMargins();
}

void ToolLayers::update(const Tools& tools, const Sheet& sheet, int selected)
{
    const Tools shown = withoutSelected(tools);
    if (m_tools == shown && isSame(m_sheet, sheet) && m_selected == selected && !m_under.isNull())
        return;
    const int count = countOf(tools);
    m_under = layerOf(shown, sheet, wholeOf(sheet), 0, selected >= 0 ? selected : count);
    m_over = selected >= 0 ? layerOf(shown, sheet, wholeOf(sheet), selected + 1, count) : QImage();
    m_tools = shown;
    m_sheet = sheet;
    m_selected = selected;
}

Box lastDrawn(const Spots& spots, const Geometry& geometry)
{
    const Marker& last = hasReticle(spots) ? spots.markerC : spots.markerB;
    const int extent = hasReticle(spots) ? reticleCircleSize : spotSize;
    return toWidget(geometry, {last.x, last.y, extent, extent});
}

} // namespace overlay
