#include "overlay/my_label.h"

#include "overlay/tool_rules.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

constexpr int selectMode = 1;
constexpr int pointMode = 2;
constexpr int lineMode = 3;
constexpr int rectMode = 4;
constexpr int circleMode = 5;

/// Extents of what is drawn, in image pixels.
constexpr int nameSize = 9;
constexpr int spotSize = 4;
constexpr int reticleSize = 13;
constexpr int reticleCircleSize = 10;

/// Names stand on that side of their tool which leads away from the picture's edge.
constexpr int middleColumn = overlay::imageColumns / 2;
constexpr int middleRow = overlay::imageRows / 2;

/// Where a text begins; it may reach further, so nothing is cut to it. Widget pixels.
const QSize nameBox(60, 30);

QPoint roundedPosition(const QMouseEvent& event)
{
    const QPointF position = event.localPos();
    return {static_cast<int>(std::round(position.x())), static_cast<int>(std::round(position.y()))};
}

template<typename Tool>
bool holds(const QVector<Tool>& list, int index)
{
    return index >= 0 && index < list.size();
}

template<typename Tool>
void removeAt(QVector<Tool>& list, int index)
{
    if (holds(list, index))
        list.removeAt(index);
}

QFont labelFont(int weight, double pixelSize)
{
    QFont font(QStringLiteral("Microsoft YaHei"));
    font.setWeight(weight);
    if (pixelSize >= 1.0)
        font.setPixelSize(static_cast<int>(pixelSize));
    return font;
}

} // namespace

/// What drawing one overlay needs throughout.
struct MyLabel::Canvas
{
    QPainter& painter;
    int penWidth;
    int nameExtent; ///< nameSize in widget pixels

    void use(const QColor& colour) const
    {
        painter.setPen(QPen(colour, penWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    }

    void name(int x, int y, const QString& text) const
    {
        painter.drawText(QRect(QPoint(x, y), nameBox), Qt::TextDontClip, text);
    }

    int beside(bool before, int otherwise) const { return before ? -6 - nameExtent : otherwise; }
    int above(bool before, int otherwise) const { return before ? -3 - nameExtent : otherwise; }
};

/// Everything that the drawing of the tools depends on, but for the selected tool itself.
struct MyLabel::Scene
{
    overlay::Geometry geometry;
    QSize size;
    qreal ratio = 0.0;
    QVector<overlay::PointTool> points;
    QVector<overlay::LineTool> lines;
    QVector<overlay::RectTool> rects;
    QVector<overlay::CircleTool> circles;
    int active = -1; ///< the selected tool over all tools, −1 for none

    void forget(const QString& type, int index)
    {
        if (active < 0)
            return;
        if (type == QLatin1String("P"))
            points[index] = {};
        else if (type == QLatin1String("L"))
            lines[index] = {};
        else if (type == QLatin1String("R"))
            rects[index] = {};
        else if (type == QLatin1String("C"))
            circles[index] = {};
    }

    bool operator==(const Scene& other) const
    {
        return geometry == other.geometry && size == other.size && ratio == other.ratio &&
               active == other.active && points == other.points && lines == other.lines &&
               rects == other.rects && circles == other.circles;
    }
};

struct MyLabel::Layers
{
    Scene scene;
    QPixmap under;
    QPixmap over;
};

MyLabel::MyLabel(QWidget* parent) : QLabel(parent), m_layers(std::make_unique<Layers>())
{
    setMouseTracking(true);
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("热像图与测温工具"));
}

MyLabel::~MyLabel() = default;

void MyLabel::setOwner(QObject* window)
{
    m_owner = window;
    if (!m_owner)
        return;
    connect(this, SIGNAL(Point_XY(int, int)), m_owner, SLOT(updat_XY_Temp(int, int)));
    connect(this, SIGNAL(updat_Tool()), m_owner, SLOT(updat_Tool_Temp()));
    connect(this, SIGNAL(Focus_idev(int)), m_owner, SLOT(setFocus(int)));
    connect(this, SIGNAL(Set_Select(int)), m_owner, SLOT(Set_Select(int)));
}

void MyLabel::setToolMode(int mode)
{
    toolMode = mode;
    newIndex = 0;
    pruneUnplaced();
    switch (mode) {
    case pointMode:
        newIndex = overlay::insertNew(pointList, toolColor);
        break;
    case lineMode:
        newIndex = overlay::insertNew(lineList, toolColor);
        break;
    case rectMode:
        newIndex = overlay::insertNew(rectList, toolColor);
        break;
    case circleMode:
        newIndex = overlay::insertNew(circleList, toolColor);
        break;
    default:
        break;
    }
    update();
}

void MyLabel::deleteSelected()
{
    pruneUnplaced();
    if (currentType == QLatin1String("P"))
        removeAt(pointList, selectedIndex);
    else if (currentType == QLatin1String("L"))
        removeAt(lineList, selectedIndex);
    else if (currentType == QLatin1String("R"))
        removeAt(rectList, selectedIndex);
    else if (currentType == QLatin1String("C"))
        removeAt(circleList, selectedIndex);
    update();
}

void MyLabel::clearTools()
{
    pointList.clear();
    lineList.clear();
    rectList.clear();
    circleList.clear();
    currentType = QStringLiteral("null");
    selectedIndex = -1;
    update();
    emit updat_Tool();
}

/// Twice the thermal picture, and somewhat wider: exactly the picture's shape leaves no margin, and
/// without any the conversion has nothing to tell positions by.
QSize MyLabel::sizeHint() const
{
    return {2 * overlay::imageColumns + 20, 2 * overlay::imageRows};
}

QSize MyLabel::minimumSizeHint() const
{
    return {overlay::imageColumns / 2, overlay::imageRows / 2};
}

void MyLabel::mousePressEvent(QMouseEvent* event)
{
    QLabel::mousePressEvent(event);
    event->accept(); // a press here is nobody else's, and styles that drag windows must not take it
    pressPos = roundedPosition(*event);
    drawing = false;
    toImage(pressPos.x(), pressPos.y(), 0, 0);
    const int x = m_scratch.x;
    const int y = m_scratch.y;
    // The prepared tool may have been pruned in the meantime; then there is none to place.
    switch (toolMode) {
    case selectMode:
        selectAt(pressPos);
        break;
    case pointMode:
        if (holds(pointList, newIndex)) {
            pointList[newIndex].x = x;
            pointList[newIndex].y = y;
            select(QLatin1Char('P'), newIndex);
        }
        break;
    case lineMode:
        if (holds(lineList, newIndex)) {
            overlay::LineTool& line = lineList[newIndex];
            line.x1 = line.x2 = x;
            line.y1 = line.y2 = y;
            drawing = true;
            select(QLatin1Char('L'), newIndex);
        }
        break;
    case rectMode:
        if (holds(rectList, newIndex)) {
            overlay::RectTool& rect = rectList[newIndex];
            rect.x1 = rect.x2 = x;
            rect.y1 = rect.y2 = y;
            drawing = true;
            select(QLatin1Char('R'), newIndex);
        }
        break;
    case circleMode:
        if (holds(circleList, newIndex)) {
            overlay::CircleTool& circle = circleList[newIndex];
            circle.cx = circle.x2 = x;
            circle.cy = circle.y2 = y;
            drawing = true;
            select(QLatin1Char('C'), newIndex);
        }
        break;
    default:
        break;
    }
    update();
}

void MyLabel::mouseMoveEvent(QMouseEvent* event)
{
    mousePos = roundedPosition(*event);
    toImage(mousePos.x(), mousePos.y(), 0, 0);
    const int x = m_scratch.x;
    const int y = m_scratch.y;
    emit Point_XY(x, y);
    if (event->buttons().testFlag(Qt::LeftButton)) {
        if (!drawing) {
            if (toolMode == selectMode && currentType == QLatin1String("P") &&
                holds(pointList, selectedIndex)) {
                pointList[selectedIndex].x = x;
                pointList[selectedIndex].y = y;
            }
        } else if (toolMode == lineMode && currentType == QLatin1String("L") &&
                   holds(lineList, selectedIndex)) {
            lineList[selectedIndex].x2 = x;
            lineList[selectedIndex].y2 = y;
        } else if (toolMode == rectMode && currentType == QLatin1String("R") &&
                   holds(rectList, selectedIndex)) {
            rectList[selectedIndex].x2 = x;
            rectList[selectedIndex].y2 = y;
        } else if (toolMode == circleMode && currentType == QLatin1String("C") &&
                   holds(circleList, selectedIndex)) {
            overlay::CircleTool& circle = circleList[selectedIndex];
            if (const auto radius = overlay::draggedRadius(circle.cx, circle.cy, x, y)) {
                circle.x2 = x;
                circle.y2 = y;
                circle.radius = *radius;
            }
        }
    }
    update();
}

void MyLabel::mouseReleaseEvent(QMouseEvent* event)
{
    mousePos = roundedPosition(*event);
    emit Focus_idev(toolMode); // the host prepares the next tool in here, which can move the others
    emitSelection();
    drawing = false;
    emit updat_Tool();
    update();
}

void MyLabel::paintEvent(QPaintEvent* event)
{
    if (!frozenGeometry)
        refreshGeometry();
    QPainter(this).fillRect(rect(), Qt::white);
    QLabel::paintEvent(event);
    drawOverlay();
    if (!overlay.isNull())
        QPainter(this).drawPixmap(0, 0, overlay);
}

void MyLabel::refreshGeometry()
{
    labelWidth = contentsRect().width();
    labelHeight = contentsRect().height();
    QSize image(0, 0);
    if (const QPixmap* shown = pixmap())
        image = shown->size() / shown->devicePixelRatio();
    imageWidth = image.width();
    imageHeight = image.height();
}

void MyLabel::toImage(int x, int y, int w, int h)
{
    // Before the first paint there is no geometry yet.
    if (!frozenGeometry && (imageWidth <= 0 || imageHeight <= 0))
        refreshGeometry();
    m_scratch = overlay::toImage({labelWidth, imageWidth, labelHeight, imageHeight}, {x, y, w, h},
                                 m_scratch);
}

void MyLabel::toWidget(int x, int y, int w, int h)
{
    m_scratch = overlay::toWidget({labelWidth, imageWidth, labelHeight, imageHeight}, {x, y, w, h});
}

void MyLabel::pruneUnplaced()
{
    overlay::prune(pointList);
    overlay::prune(lineList);
    overlay::prune(rectList);
    overlay::prune(circleList);
}

bool MyLabel::isSelected(QChar letter, int index) const
{
    return index == selectedIndex && currentType == letter;
}

void MyLabel::select(QChar letter, int index)
{
    currentType = letter;
    selectedIndex = index;
}

int MyLabel::overallSelection() const
{
    return overlay::overallIndex(currentType.at(0), selectedIndex,
                                 {pointList.size(), lineList.size(), rectList.size()});
}

/// The selected tool over all tools; −1 when the selection names none that there is.
int MyLabel::activeTool() const
{
    const bool exists = (currentType == QLatin1String("P") && holds(pointList, selectedIndex)) ||
                        (currentType == QLatin1String("L") && holds(lineList, selectedIndex)) ||
                        (currentType == QLatin1String("R") && holds(rectList, selectedIndex)) ||
                        (currentType == QLatin1String("C") && holds(circleList, selectedIndex));
    return exists ? overallSelection() : -1;
}

void MyLabel::emitSelection()
{
    if (currentType != QLatin1String("null") && !currentType.isEmpty())
        emit Set_Select(overallSelection());
}

/// Every tool under the press becomes the selection in turn, so the last one stays it.
void MyLabel::selectAt(const QPoint& position)
{
    const int x = m_scratch.x;
    const int y = m_scratch.y;
    toImage(position.x(), position.y(), overlay::pointToleranceWidth,
            overlay::pointToleranceHeight);
    const int toleranceX = m_scratch.w;
    const int toleranceY = m_scratch.h;
    currentType = QStringLiteral("null");
    selectedIndex = 0;
    selectHits(pointList, QStringLiteral("您点击了第%1个点工具"), [=](const auto& point) {
        return overlay::hits(point, x, y, toleranceX, toleranceY);
    });
    const auto isHit = [=](const auto& tool) {
        return overlay::hits(tool, x, y);
    };
    selectHits(lineList, QStringLiteral("您点击了第%1个线工具"), isHit);
    selectHits(rectList, QStringLiteral("您点击了第%1个矩形工具"), isHit);
    selectHits(circleList, QStringLiteral("您点击了第%1个圆工具"), isHit);
}

/// By index, and read anew each time: whoever hears of a selection may change the list.
template<typename Tool, typename IsHit>
void MyLabel::selectHits(const QVector<Tool>& list, const QString& message, IsHit isHit)
{
    for (int index = 0; index < list.size(); ++index) {
        if (!isHit(list.at(index)))
            continue;
        qDebug().noquote() << message.arg(index);
        select(overlay::letterOf(list.at(index)), index);
        emitSelection();
    }
}

/// Many tools are slow to draw antialiased, and of them all only the selected one follows the
/// mouse. So what lies under it and what lies over it are drawn once and kept until either changes.
void MyLabel::drawOverlay()
{
    if (labelWidth <= 0 || labelHeight <= 0) {
        overlay = QPixmap();
        return;
    }
    // As fine as the screen, but for a report as large as was asked for.
    const qreal ratio = frozenGeometry ? 1.0 : devicePixelRatioF();
    const QSize size(static_cast<int>(std::ceil(labelWidth * ratio)),
                     static_cast<int>(std::ceil(labelHeight * ratio)));
    if (overlay.size() != size)
        overlay = QPixmap(size);
    overlay.setDevicePixelRatio(ratio);
    overlay.fill(Qt::transparent);

    QPainter painter(&overlay);
    painter.setRenderHint(QPainter::Antialiasing);
    if (imageWidth > 0 && imageHeight > 0) {
        const int active = activeTool();
        updateLayers(active);
        painter.drawPixmap(0, 0, m_layers->under);
        if (active >= 0) {
            const Canvas canvas = canvasOn(painter);
            drawTools(canvas, active, active + 1);
            painter.drawPixmap(0, 0, m_layers->over);
        }
        const Canvas canvas = canvasOn(painter);
        drawSpot(canvas, markerA, QColor(0, 255, 0), QStringLiteral("L"));
        drawSpot(canvas, markerB, QColor(255, 0, 0), QStringLiteral("H"));
        drawReticle(canvas);
    }
    if (!frozenGeometry)
        drawMargins(painter);
}

void MyLabel::updateLayers(int active)
{
    Scene scene{{labelWidth, imageWidth, labelHeight, imageHeight},
                overlay.size(),
                overlay.devicePixelRatio(),
                pointList,
                lineList,
                rectList,
                circleList,
                active};
    scene.forget(currentType, selectedIndex);
    if (m_layers->scene == scene)
        return;
    const int count = pointList.size() + lineList.size() + rectList.size() + circleList.size();
    const auto draw = [&](QPixmap& layer, int begin, int end) {
        if (layer.size() != overlay.size())
            layer = QPixmap(overlay.size());
        layer.setDevicePixelRatio(overlay.devicePixelRatio());
        layer.fill(Qt::transparent);
        QPainter painter(&layer);
        painter.setRenderHint(QPainter::Antialiasing);
        drawTools(canvasOn(painter), begin, end);
    };
    draw(m_layers->under, 0, active >= 0 ? active : count);
    if (active >= 0)
        draw(m_layers->over, active + 1, count);
    m_layers->scene = scene;
}

/// Sets the painter up for tools.
MyLabel::Canvas MyLabel::canvasOn(QPainter& painter)
{
    toWidget(0, 0, nameSize, nameSize);
    const Canvas canvas{painter, imageHeight / 500 + 1, m_scratch.w};
    painter.setFont(labelFont(QFont::Normal, 0.9 * canvas.nameExtent));
    return canvas;
}

/// The tools from `begin` to before `end`, counted over all kinds.
void MyLabel::drawTools(const Canvas& canvas, int begin, int end)
{
    int offset = 0;
    const auto draw = [&](const auto& list) {
        const int last = std::min(end - offset, list.size());
        for (int index = std::max(begin - offset, 0); index < last; ++index) {
            const auto& tool = list.at(index);
            if (!overlay::isPlaced(tool))
                continue;
            canvas.use(isSelected(letterOf(tool), index) ? selectColor : tool.colour);
            drawTool(canvas, tool);
        }
        offset += list.size();
    };
    draw(pointList);
    draw(lineList);
    draw(rectList);
    draw(circleList);
}

void MyLabel::drawTool(const Canvas& canvas, const overlay::PointTool& point)
{
    toWidget(point.x, point.y, point.size, point.size);
    const auto [cx, cy, m, mHeight] = m_scratch;
    const int arm = m / 2;
    const int gap = canvas.penWidth;
    canvas.painter.drawLine(cx - arm, cy, cx - gap, cy);
    canvas.painter.drawLine(cx + arm, cy, cx + gap, cy);
    canvas.painter.drawLine(cx, cy - arm, cx, cy - gap);
    canvas.painter.drawLine(cx, cy + arm, cx, cy + gap);
    canvas.name(cx + canvas.beside(point.x > middleColumn, 3),
                cy + canvas.above(point.y > middleRow, 2), point.name);
}

void MyLabel::drawTool(const Canvas& canvas, const overlay::LineTool& line)
{
    toWidget(line.x1, line.y1, 0, 0);
    const QPoint start(m_scratch.x, m_scratch.y);
    toWidget(line.x2, line.y2, 0, 0);
    const QPoint end(m_scratch.x, m_scratch.y);
    canvas.painter.drawLine(start, end);
    canvas.name(end.x() + canvas.beside(line.x2 > middleColumn, 0),
                end.y() + canvas.above(line.y2 > middleRow, 0), line.name);
}

/// The name stands at the drag corner, where the hand was last.
void MyLabel::drawTool(const Canvas& canvas, const overlay::RectTool& rect)
{
    toWidget(rect.x1, rect.y1, 0, 0);
    const QPoint press(m_scratch.x, m_scratch.y);
    toWidget(rect.x2, rect.y2, 0, 0);
    const QPoint drag(m_scratch.x, m_scratch.y);
    canvas.painter.drawRect(std::min(press.x(), drag.x()), std::min(press.y(), drag.y()),
                            std::abs(drag.x() - press.x()), std::abs(drag.y() - press.y()));
    canvas.name(drag.x() + canvas.beside(drag.x() > labelWidth / 2, 4),
                drag.y() + canvas.above(drag.y() > labelHeight / 2, 4), rect.name);
}

void MyLabel::drawTool(const Canvas& canvas, const overlay::CircleTool& circle)
{
    toWidget(circle.cx, circle.cy, circle.radius, circle.radius);
    const auto [cx, cy, width, radius] = m_scratch;
    if (circle.radius >= 0) // before the drag, only the name shows where it will be
        canvas.painter.drawEllipse(cx - radius, cy - radius, 2 * radius, 2 * radius);
    canvas.name(cx + canvas.beside(cx > labelWidth / 2, 4),
                cy + canvas.above(cy > labelHeight / 2, 4), circle.name);
}

/// A cross of double strokes that leaves its centre free, with a large letter beside it.
void MyLabel::drawSpot(const Canvas& canvas, const overlay::Marker& marker, const QColor& colour,
                       const QString& letter)
{
    toWidget(marker.x, marker.y, spotSize, spotSize);
    const auto [cx, cy, m, mHeight] = m_scratch;
    const int arm = m / 2;
    const int gap = canvas.penWidth;
    QPainter& painter = canvas.painter;
    canvas.use(colour);
    for (const int side : {-gap, gap}) {
        painter.drawLine(cx - arm, cy + side, cx - gap, cy + side);
        painter.drawLine(cx + arm, cy + side, cx + gap, cy + side);
        painter.drawLine(cx + side, cy - arm, cx + side, cy - gap);
        painter.drawLine(cx + side, cy + arm, cx + side, cy + gap);
    }
    const int textSize = static_cast<int>(2.6 * m);
    painter.setFont(labelFont(QFont::Bold, textSize));
    canvas.name(cx + (marker.x > middleColumn ? -textSize : m + 2), cy - 2, letter);
}

void MyLabel::drawReticle(const Canvas& canvas)
{
    if (markerC.x == 0 || markerC.y == 0)
        return;
    toWidget(markerC.x, markerC.y, reticleSize, reticleSize);
    const int arm = m_scratch.w / 2;
    const int gap = m_scratch.w / 4;
    toWidget(markerC.x, markerC.y, reticleCircleSize, reticleCircleSize);
    const auto [cx, cy, diameter, height] = m_scratch;
    QPainter& painter = canvas.painter;
    canvas.use(QColor(255, 255, 255));
    painter.drawLine(cx - arm, cy, cx - gap, cy);
    painter.drawLine(cx + arm, cy, cx + gap, cy);
    painter.drawLine(cx, cy - arm, cx, cy - gap);
    painter.drawLine(cx, cy + arm, cx, cy + gap);
    canvas.use(QColor(220, 220, 220));
    painter.drawEllipse(cx - diameter / 2, cy - diameter / 2, diameter, diameter);
}

/// Hides what reaches beyond the picture. Where the picture lies is how QLabel centres it.
void MyLabel::drawMargins(QPainter& painter) const
{
    const int left = labelWidth / 2 - imageWidth / 2;
    const int right = left + imageWidth;
    const int top = labelHeight / 2 - imageHeight / 2;
    const int bottom = top + imageHeight;
    if (labelWidth > imageWidth) {
        painter.fillRect(0, 0, left, labelHeight, Qt::white);
        painter.fillRect(right, 0, labelWidth - right, labelHeight, Qt::white);
    }
    if (labelHeight > imageHeight) {
        painter.fillRect(0, 0, labelWidth, top, Qt::white);
        painter.fillRect(0, bottom, labelWidth, labelHeight - bottom, Qt::white);
    }
}
