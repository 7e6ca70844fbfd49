// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_view.h"

#include "analysis/photograph/layouts.h"
#include "overlay/tool_painting.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace analysis {
namespace {

constexpr int scrollStep = 24; ///< widget pixels, of an arrow key

/// A margin of one pixel on each side, without which positions on the sheet are rounded otherwise.
constexpr int margin = 1;

bool isSame(const overlay::Marker& a, const overlay::Marker& b)
{
    return a.x == b.x && a.y == b.y;
}

bool isSame(const PictureView::Content& a, const PictureView::Content& b)
{
    return a.tools == b.tools && isSame(a.spots.markerA, b.spots.markerA) &&
           isSame(a.spots.markerB, b.spots.markerB) && isSame(a.spots.markerC, b.spots.markerC) &&
           a.colours == b.colours;
}

QSize scaled(const QSize& size, qreal ratio)
{
    return {int(std::ceil(size.width() * ratio)), int(std::ceil(size.height() * ratio))};
}

/// A part of the sheet in the screen's pixels; rounding does not lead out of the sheet.
QRect scaled(const QRect& part, qreal ratio, const QSize& sheet)
{
    const QSize size = scaled(part.size(), ratio);
    const QSize room = sheet - size;
    return {QPoint(std::clamp(int(std::lround(part.left() * ratio)), 0, room.width()),
                   std::clamp(int(std::lround(part.top() * ratio)), 0, room.height())),
            size};
}

} // namespace

PictureView::PictureView(QWidget* parent) : QAbstractScrollArea(parent)
{
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setFrameShape(QFrame::NoFrame);
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()})
        bar->setSingleStep(scrollStep);
}

void PictureView::show(const Content& content)
{
    if (isSame(content, m_content))
        return;
    m_content = content;
    viewport()->update();
}

void PictureView::fit()
{
    m_zoom.setPlace(maximumViewportSize());
    m_zoom.fit();
    follow();
}

void PictureView::zoomBy(int steps)
{
    m_zoom.zoomBy(steps, viewport()->rect().center());
    follow();
}

void PictureView::zoomBy(int steps, const QPoint& pixel)
{
    m_zoom.zoomBy(steps, viewport()->rect().center());
    m_zoom.centreOn(pixel);
    follow();
    m_zoom.centreOn(pixel); // the bars may have come or gone
    follow();
}

void PictureView::follow()
{
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    const QPoint offset = m_zoom.offset();
    const QPoint farthest = m_zoom.farthest();
    horizontalScrollBar()->setPageStep(viewport()->width());
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setRange(0, farthest.x());
    verticalScrollBar()->setRange(0, farthest.y());
    horizontalScrollBar()->setValue(offset.x());
    verticalScrollBar()->setValue(offset.y());
    showHand();
    viewport()->update();
    emit zoomed();
    tellPixel();
}

/// While it is fitted, without the bars, which it does not need.
void PictureView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    m_zoom.setPlace(m_zoom.isFitted() ? maximumViewportSize() : viewport()->size());
    follow();
}

void PictureView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    if (m_isFollowing)
        return;
    m_zoom.moveTo({horizontalScrollBar()->value(), verticalScrollBar()->value()});
    viewport()->update();
    tellPixel();
}

QImage PictureView::seen() const
{
    const QRect part = m_zoom.visible();
    const QSize size = m_zoom.sheet();
    if (part.isEmpty() || m_content.colours.isNull())
        return {};
    const qreal ratio = viewport()->devicePixelRatioF();
    const QSize pixels = scaled(size, ratio);
    QImage picture =
        enlarged(m_content.colours, pixels, scaled(part, ratio, pixels), m_zoom.isSharp());
    picture.setDevicePixelRatio(ratio);
    const overlay::Sheet sheet{
        {size.width() + 2 * margin, size.width(), size.height(), size.height()}, ratio};
    QPainter(&picture).drawImage(
        0, 0,
        overlay::paintedTools(m_content.tools, m_content.spots, sheet, part.translated(margin, 0)));
    return picture;
}

void PictureView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
    painter.drawImage(m_zoom.visible().topLeft() - m_zoom.offset(), seen());
}

bool PictureView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave) {
        m_mouse.reset();
        tellPixel();
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void PictureView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    m_zoom.zoomBy(m_wheel.take(*event), event->position().toPoint());
    follow();
    event->accept();
}

void PictureView::mousePressEvent(QMouseEvent* event)
{
    m_isDragged = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    m_mouse = event->pos();
    showHand();
}

void PictureView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint before = m_mouse.value_or(event->pos());
    m_mouse = event->pos();
    if (m_isDragged) {
        m_zoom.moveTo(m_zoom.offset() + before - event->pos());
        follow();
    } else {
        tellPixel();
    }
}

void PictureView::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_isDragged = false;
    showHand();
}

void PictureView::tellPixel()
{
    emit pointed(m_mouse ? m_zoom.pixelAt(*m_mouse) : std::nullopt);
}

void PictureView::showHand()
{
    const bool canMove = !m_zoom.farthest().isNull();
    viewport()->setCursor(!canMove      ? Qt::CrossCursor
                          : m_isDragged ? Qt::ClosedHandCursor
                                        : Qt::OpenHandCursor);
}

QSize PictureView::sizeHint() const
{
    return {2 * format::columns + format::columns / 2, 2 * format::rows + format::rows / 2};
}

QSize PictureView::minimumSizeHint() const
{
    return {format::columns / 2, format::rows / 2};
}

} // namespace analysis
