// SPDX-License-Identifier: MIT
#include "tests/overlay/painting_scene.h"

#include <QPainter>

#include <cmath>
#include <functional>

namespace testing {
namespace {

using overlay::CircleTool;
using overlay::LineTool;
using overlay::Marker;
using overlay::PointTool;
using overlay::RectTool;

double x(const overlay::Geometry& g, int column)
{
    const double place = column * double(g.imageWidth) / 240;
    return std::trunc(g.labelWidth > g.imageWidth
                          ? place + (g.labelWidth - g.imageWidth) * 0.5 + 0.5
                          : place + 0.5);
}

double y(const overlay::Geometry& g, int row)
{
    const double place = row * double(g.imageHeight) / 320;
    return std::trunc(g.labelHeight > g.imageHeight
                          ? place + (g.labelHeight - g.imageHeight) * 0.5 + 0.5
                          : place);
}

/// One drawing of one scene.
class Drawing
{
public:
    Drawing(const PaintingScene& scene, QPainter& painter)
        : m_scene(scene), m_g(scene.geometry), m_painter(painter),
          m_pen(scene.geometry.imageHeight / 500 + 1), m_name(across(9))
    {
        painter.setRenderHint(QPainter::Antialiasing);
    }

    /// Of the tools counted over all kinds, those from `begin` to before `end`.
    void tools(int begin, int end)
    {
        font(50, 0.9 * m_name);
        int place = 0;
        const auto each = [&](const auto& list, const char* kind, const auto& draw) {
            for (int i = 0; i < list.size(); ++i, ++place) {
                if (place < begin || place >= end)
                    continue;
                const bool selected =
                    m_scene.currentType == QLatin1String(kind) && m_scene.selectedIndex == i;
                pen(selected ? QColor(0, 255, 0) : list[i].colour);
                draw(list[i]);
            }
        };
        each(m_scene.pointList, "P", [&](const PointTool& t) { point(t); });
        each(m_scene.lineList, "L", [&](const LineTool& t) { line(t); });
        each(m_scene.rectList, "R", [&](const RectTool& t) { rect(t); });
        each(m_scene.circleList, "C", [&](const CircleTool& t) { circle(t); });
    }

    void spot(const Marker& marker, const QColor& colour, const QString& letter)
    {
        pen(colour);
        const int cx = int(x(m_g, marker.x));
        const int cy = int(y(m_g, marker.y));
        const int m = across(4);
        for (const int side : {-m_pen, m_pen}) {
            m_painter.drawLine(cx - m / 2, cy + side, cx - m_pen, cy + side);
            m_painter.drawLine(cx + m / 2, cy + side, cx + m_pen, cy + side);
            m_painter.drawLine(cx + side, cy - m / 2, cx + side, cy - m_pen);
            m_painter.drawLine(cx + side, cy + m / 2, cx + side, cy + m_pen);
        }
        const int size = int(2.6 * m);
        font(75, size);
        text(marker.x > 120 ? cx - size : cx + m + 2, cy - 2, letter);
    }

    void reticle(const Marker& marker)
    {
        if (marker.x == 0 || marker.y == 0)
            return;
        pen(Qt::white);
        const int cx = int(x(m_g, marker.x));
        const int cy = int(y(m_g, marker.y));
        cross(cx, cy, across(13) / 2, across(13) / 4);
        pen(QColor(220, 220, 220));
        const int size = across(10);
        m_painter.drawEllipse(cx - size / 2, cy - size / 2, size, size);
    }

private:
    int across(int columns) const
    {
        return int(std::trunc(double(m_g.imageWidth) * columns / 240 + 0.5));
    }

    void pen(const QColor& colour)
    {
        m_painter.setPen(QPen(colour, m_pen, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    }

    void font(int weight, double size)
    {
        QFont font(QStringLiteral("Microsoft YaHei"));
        font.setWeight(weight);
        if (size >= 1)
            font.setPixelSize(int(size));
        m_painter.setFont(font);
    }

    void text(int left, int top, const QString& text)
    {
        m_painter.drawText(QRect(left, top, 60, 30), Qt::TextDontClip, text);
    }

    /// Left of and above its place when that lies in the right or the lower half.
    void name(const QPoint& at, bool right, bool below, const QPoint& otherwise,
              const QString& name)
    {
        text(at.x() + (right ? -6 - m_name : otherwise.x()),
             at.y() + (below ? -3 - m_name : otherwise.y()), name);
    }

    void cross(int cx, int cy, int from, int to)
    {
        m_painter.drawLine(cx - from, cy, cx - to, cy);
        m_painter.drawLine(cx + from, cy, cx + to, cy);
        m_painter.drawLine(cx, cy - from, cx, cy - to);
        m_painter.drawLine(cx, cy + from, cx, cy + to);
    }

    QPoint at(int column, int row) const { return {int(x(m_g, column)), int(y(m_g, row))}; }
    bool isRight(const QPoint& place) const { return place.x() > m_g.labelWidth / 2; }
    bool isBelow(const QPoint& place) const { return place.y() > m_g.labelHeight / 2; }

    void point(const PointTool& t)
    {
        if (t.x < 0)
            return;
        const QPoint centre = at(t.x, t.y);
        cross(centre.x(), centre.y(), across(t.size) / 2, m_pen);
        name(centre, t.x > 120, t.y > 160, {3, 2}, t.name);
    }

    void line(const LineTool& t)
    {
        if (t.x1 < 0)
            return;
        m_painter.drawLine(at(t.x1, t.y1), at(t.x2, t.y2));
        name(at(t.x2, t.y2), t.x2 > 120, t.y2 > 160, {0, 0}, t.name);
    }

    void rect(const RectTool& t)
    {
        if (t.x1 < 0)
            return;
        const QPoint press = at(t.x1, t.y1);
        const QPoint drag = at(t.x2, t.y2);
        m_painter.drawRect(std::min(press.x(), drag.x()), std::min(press.y(), drag.y()),
                           std::abs(press.x() - drag.x()), std::abs(press.y() - drag.y()));
        name(drag, isRight(drag), isBelow(drag), {4, 4}, t.name);
    }

    void circle(const CircleTool& t)
    {
        if (t.cx < 0)
            return;
        const QPoint centre = at(t.cx, t.cy);
        const int radius = int(std::trunc(double(m_g.imageHeight) * t.radius / 320 + 0.5));
        if (t.radius >= 0)
            m_painter.drawEllipse(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
        name(centre, isRight(centre), isBelow(centre), {4, 4}, t.name);
    }

    const PaintingScene& m_scene;
    const overlay::Geometry& m_g;
    QPainter& m_painter;
    const int m_pen;
    const int m_name;
};

/// The selected tool's place over all kinds; −1 for none.
int selectedPlace(const PaintingScene& s)
{
    int before = 0;
    const auto found = [&](const char* kind, int count) {
        const bool is =
            s.currentType == QLatin1String(kind) && s.selectedIndex >= 0 && s.selectedIndex < count;
        if (!is)
            before += count;
        return is;
    };
    const bool any = found("P", s.pointList.size()) || found("L", s.lineList.size()) ||
                     found("R", s.rectList.size()) || found("C", s.circleList.size());
    return any ? before + s.selectedIndex : -1;
}

void drawMargins(QPainter& painter, const overlay::Geometry& g)
{
    const QRect picture(g.labelWidth / 2 - g.imageWidth / 2, g.labelHeight / 2 - g.imageHeight / 2,
                        g.imageWidth, g.imageHeight);
    const QRect label(0, 0, g.labelWidth, g.labelHeight);
    const auto white = [&](const QPoint& from, const QPoint& to) {
        painter.fillRect(QRect(from, QSize(to.x() - from.x(), to.y() - from.y())), Qt::white);
    };
    if (g.labelWidth > g.imageWidth) {
        white({0, 0}, {picture.x(), g.labelHeight});
        white({picture.x() + g.imageWidth, 0}, {g.labelWidth, g.labelHeight});
    }
    if (g.labelHeight > g.imageHeight) {
        white({0, 0}, {g.labelWidth, picture.y()});
        white({0, picture.y() + g.imageHeight}, {g.labelWidth, g.labelHeight});
    }
}

} // namespace

/// What lies over the selected tool is drawn by itself first and then laid over it: where smoothed
/// edges cross, that rounds differently from drawing everything in a row.
QImage drawnByDescription(const PaintingScene& scene, double ratio, bool margins)
{
    const overlay::Geometry& g = scene.geometry;
    const auto drawn = [&](const std::function<void(QPainter&)>& draw) {
        QImage image(int(std::ceil(g.labelWidth * ratio)), int(std::ceil(g.labelHeight * ratio)),
                     QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        draw(painter);
        return image;
    };
    const auto tools = [&](int begin, int end) {
        return drawn([&](QPainter& painter) { Drawing(scene, painter).tools(begin, end); });
    };
    return drawn([&](QPainter& painter) {
        if (g.imageWidth > 0 && g.imageHeight > 0) {
            constexpr int all = 1000;
            Drawing drawing(scene, painter);
            const int selected = selectedPlace(scene);
            painter.drawImage(0, 0, tools(0, selected >= 0 ? selected : all));
            if (selected >= 0) {
                drawing.tools(selected, selected + 1);
                painter.drawImage(0, 0, tools(selected + 1, all));
            }
            drawing.spot(scene.markerA, QColor(0, 255, 0), QStringLiteral("L"));
            drawing.spot(scene.markerB, QColor(255, 0, 0), QStringLiteral("H"));
            drawing.reticle(scene.markerC);
        }
        if (margins)
            drawMargins(painter, g);
    });
}

} // namespace testing
