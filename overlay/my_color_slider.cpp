// SPDX-License-Identifier: MIT
#include "overlay/my_color_slider.h"

#include "ui_my_color_slider.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <cmath>

namespace {

/// The triangle reaches this far to the right of its tip, and this far above and below it.
constexpr int triangleWidth = 15;
constexpr int triangleHalfHeight = 10;
/// The hit area is a box: it reaches further up and down than the triangle, for fingers and
/// impatience, but neither the tip's own column nor the outline's upright side belongs to it.
constexpr int hitWidth = 14;
constexpr int hitHalfHeight = 14;

constexpr int startMarkerNumber = 1;
constexpr int endMarkerNumber = 2;

/// The longest text a scale label must have room for.
const QLatin1String widestTemperature("-8888.8");

QPoint roundedPosition(const QMouseEvent& event)
{
    const QPointF position = event.localPos();
    return {int(std::round(position.x())), int(std::round(position.y()))};
}

bool hits(const QPoint& marker, const QPoint& press)
{
    return marker.x() < press.x() && press.x() <= marker.x() + hitWidth &&
           std::abs(press.y() - marker.y()) <= hitHalfHeight;
}

QPolygon triangle(const QPoint& tip)
{
    return QPolygon({tip, tip + QPoint(triangleWidth, -triangleHalfHeight),
                     tip + QPoint(triangleWidth, triangleHalfHeight)});
}

std::array<QLabel*, overlay::scaleLabels> scaleLabels(const Ui::My_ColorSlider& form)
{
    return {form.scaleLabel,   form.scaleLabel_2,  form.scaleLabel_3, form.scaleLabel_4,
            form.scaleLabel_5, form.scaleLabel_6,  form.scaleLabel_7, form.scaleLabel_8,
            form.scaleLabel_9, form.scaleLabel_10, form.scaleLabel_11};
}

} // namespace

My_ColorSlider::My_ColorSlider(QWidget* parent)
    : QWidget(parent), ui(std::make_unique<Ui::My_ColorSlider>())
{
    ui->setupUi(this);
    for (QLabel* label : scaleLabels(*ui))
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widestTemperature));
    setAccessibleName(tr("色标"));
}

My_ColorSlider::~My_ColorSlider() = default;

void My_ColorSlider::setPalettePixmap(const QPixmap& pixmap)
{
    paletteStrip = pixmap;
    showStrip();
}

void My_ColorSlider::updateScale()
{
    const auto temperatures = overlay::scaleTemperatures(topTemperature, bottomTemperature);
    const auto labels = scaleLabels(*ui);
    for (std::size_t k = 0; k < labels.size(); ++k)
        labels[k]->setText(QString::number(double(temperatures[k]), 'f', 1));
    setAccessibleName(
        tr("色标，最高 %1，最低 %2").arg(labels.front()->text(), labels.back()->text()));
}

void My_ColorSlider::mousePressEvent(QMouseEvent* event)
{
    pressPos = roundedPosition(*event);
    dragMarker = -1;
    if (hits(startMarker, pressPos)) {
        qDebug().noquote() << QStringLiteral("您点击了起点");
        dragMarker = startMarkerNumber;
    }
    // Where both are hit, the end marker wins.
    if (hits(endMarker, pressPos)) {
        qDebug().noquote() << QStringLiteral("您点击了终点");
        dragMarker = endMarkerNumber;
    }
}

void My_ColorSlider::mouseMoveEvent(QMouseEvent* event)
{
    mousePos = roundedPosition(*event);
    const int y = mousePos.y();
    const bool onTravel = y >= overlay::scaleMargin && y <= height() - overlay::scaleMargin;
    if (dragMarker == startMarkerNumber && onTravel && y <= endMarker.y())
        startMarker.setY(y);
    if (dragMarker == endMarkerNumber && onTravel && y >= startMarker.y())
        endMarker.setY(y);
    // Both, whichever is held: on a bar lower than the palette has steps, a value can shift by one.
    if (startMarker.y() > 0)
        startValue = overlay::valueAt(startMarker.y(), height()).value_or(startValue);
    if (endMarker.y() > 0)
        endValue = overlay::valueAt(endMarker.y(), height()).value_or(endValue);
    dragging = true;
    update();
}

void My_ColorSlider::mouseReleaseEvent(QMouseEvent* event)
{
    mousePos = roundedPosition(*event);
    dragging = false;
    update();
}

void My_ColorSlider::paintEvent(QPaintEvent* event)
{
    showStrip();
    placeMarkers();
    QWidget::paintEvent(event);
    {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        for (const QPoint& marker : {startMarker, endMarker}) {
            const QPolygon outline = triangle(marker);
            painter.drawLine(outline[0], outline[1]);
            painter.drawLine(outline[0], outline[2]);
            painter.drawLine(outline[1], outline[2]);
        }
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto fill = [&](const QPoint& marker, int value) {
        const auto& colour = paletteTable[std::size_t(overlay::paletteStep(value))];
        painter.setBrush(QColor(colour[0], colour[1], colour[2]));
        painter.drawPolygon(triangle(marker));
    };
    fill(startMarker, startValue);
    fill(endMarker, endValue);
}

void My_ColorSlider::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showStrip();
}

/// The host hands in a freshly made strip at every render, so the pixels are compared, not the
/// pixmaps. Until there is one, the form's own picture stays.
void My_ColorSlider::showStrip()
{
    if (paletteStrip.isNull() || size().isEmpty())
        return;
    const QImage strip = paletteStrip.toImage();
    if (m_shownSize == size() && m_shownStrip == strip)
        return;
    m_shownStrip = strip;
    m_shownSize = size();
    ui->label->setPixmap(
        paletteStrip.scaled(size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

/// Across, the markers are placed once; up and down they follow their values, or the mouse.
void My_ColorSlider::placeMarkers()
{
    const QRect strip = ui->label->geometry();
    const int right = strip.x() + strip.width();
    if (startMarker.x() < 0)
        startMarker = {right, strip.y()};
    if (endMarker.x() < 0)
        endMarker = {right, strip.y() + strip.height()};
    if (!dragging) {
        startMarker.setY(overlay::markerY(startValue, height()));
        endMarker.setY(overlay::markerY(endValue, height()));
    }
}
