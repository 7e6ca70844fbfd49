// SPDX-License-Identifier: MIT
#include "overlay/my_label.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

QPoint roundedPosition(const QMouseEvent& event)
{
    const QPointF position = event.localPos();
    return {int(std::round(position.x())), int(std::round(position.y()))};
}

} // namespace

MyLabel::MyLabel(QWidget* parent) : QLabel(parent)
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
    overlay::setMode(*this, mode);
    update();
}

void MyLabel::deleteSelected()
{
    overlay::removeSelectedTool(*this);
    update();
}

void MyLabel::clearTools()
{
    static_cast<overlay::Tools&>(*this) = {};
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
    const overlay::Box at = toImage(pressPos);
    overlay::press(*this, {at.x, at.y, at.w, at.h}, [this] { emitSelection(); });
    update();
}

void MyLabel::mouseMoveEvent(QMouseEvent* event)
{
    mousePos = roundedPosition(*event);
    const overlay::Box at = toImage(mousePos);
    emit Point_XY(at.x, at.y);
    if (event->buttons().testFlag(Qt::LeftButton))
        overlay::dragTo(*this, at.x, at.y);
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

/// The position in the picture, with the tolerance that a point is hit within.
overlay::Box MyLabel::toImage(const QPoint& position)
{
    // Before the first paint there is no geometry yet.
    if (!frozenGeometry && (imageWidth <= 0 || imageHeight <= 0))
        refreshGeometry();
    m_scratch = overlay::toImage(
        *this,
        {position.x(), position.y(), overlay::pointToleranceWidth, overlay::pointToleranceHeight},
        m_scratch);
    return m_scratch;
}

void MyLabel::emitSelection()
{
    if (currentType != QLatin1String("null") && !currentType.isEmpty())
        emit Set_Select(overlay::overallSelection(*this));
}

void MyLabel::drawOverlay()
{
    // As fine as the screen, but for a report as large as was asked for.
    const qreal ratio = frozenGeometry ? 1.0 : devicePixelRatioF();
    const overlay::Geometry& shown = *this;
    const overlay::Sheet sheet{shown, ratio, selectColor, !frozenGeometry};
    if (sheet.pixels().isEmpty()) {
        overlay = QPixmap();
        return;
    }
    if (overlay.size() != sheet.pixels())
        overlay = QPixmap(sheet.pixels());
    overlay.setDevicePixelRatio(ratio);
    overlay.fill(Qt::transparent);
    QPainter painter(&overlay);
    m_layers.paint(painter, *this, *this, sheet);
    if (imageWidth > 0 && imageHeight > 0)
        m_scratch = overlay::lastDrawn(*this, *this);
}
