// SPDX-License-Identifier: MIT
#include "plots/chart.h"

#include "plots/plot_scale.h"

#include <QPen>
#include <qwt_graphic.h>
#include <qwt_legend.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_symbol.h>
#include <qwt_text_label.h>

#include <algorithm>
#include <cmath>

namespace plots {
namespace {

constexpr QRgb gridColour = 0xffd9d9d9;
constexpr double fewestCounts = 0.5; ///< where a logarithmic axis of counts begins

/// Whatever the desktop's colours: black on white.
QPalette paper()
{
    QPalette palette(Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(role, Qt::black);
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base})
        palette.setColor(role, Qt::white);
    return palette;
}

/// Names come from files of strangers: they are no mark-up.
QwtText plainText(const QString& text)
{
    QwtText plain(text, QwtText::PlainText);
    plain.setRenderFlags(int(Qt::AlignCenter) | int(Qt::TextDontClip)); // descenders need room
    return plain;
}

QString withUnit(const QString& number, const Axis& axis)
{
    return axis.unit.isEmpty() ? number : number + QLatin1Char(' ') + axis.unit;
}

/// In the legend, an outline has the colour of its line.
class Histogram : public QwtPlotHistogram
{
public:
    QwtGraphic legendIcon(int index, const QSizeF& size) const override
    {
        return style() == Outline ? defaultIcon(pen().color(), size)
                                  : QwtPlotHistogram::legendIcon(index, size);
    }
};

/// Makes as many items as there are values; those that stay keep their place in the legend.
template<typename Made, typename Item>
void setCount(std::vector<std::unique_ptr<Item>>& items, std::size_t count, QwtPlot* plot)
{
    while (items.size() > count)
        items.pop_back();
    while (items.size() < count) {
        items.push_back(std::make_unique<Made>());
        items.back()->setRenderHint(QwtPlotItem::RenderAntialiased);
        items.back()->attach(plot);
    }
}

} // namespace

Chart::Chart(QWidget* parent) : QwtPlot(parent), m_limits(*this)
{
    setAutoDelete(false); // the items are members
    setAutoReplot(false);
    setPalette(paper());
    setAutoFillBackground(true);
    setContentsMargins(6, 6, 12, 6);
    auto* canvas = new QwtPlotCanvas;
    canvas->setObjectName(QStringLiteral("canvas"));
    canvas->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    canvas->setLineWidth(1);
    canvas->setFocusPolicy(Qt::NoFocus);
    canvas->setMouseTracking(true);
    setCanvas(canvas);
    setCanvasBackground(Qt::white);
    for (const int axis : {int(xBottom), int(yLeft)})
        setAxisScaleDraw(axis, new PlainScale);
    // Longer numbers of a narrower range do not push the canvas about.
    axisScaleDraw(yLeft)->setMinimumExtent(
        fontMetrics().horizontalAdvance(QStringLiteral("-00.00")));
    plotLayout()->setAlignCanvasToScales(true);
    axisScaleEngine(xBottom)->setAttribute(QwtScaleEngine::Floating);

    m_grid.setPen(QColor::fromRgb(gridColour), 0, Qt::SolidLine);
    m_grid.attach(this);
    m_cursorMark.setSymbol(
        new QwtSymbol(QwtSymbol::Ellipse, Qt::white, QPen(Qt::black, 1.5), QSize(9, 9)));
    m_cursorMark.setLineStyle(QwtPlotMarker::VLine);
    m_cursorMark.setLinePen(Qt::black, 0, Qt::DotLine);
    m_cursorMark.setSpacing(8);
    m_cursorMark.setZ(40);
    m_cursorMark.hide();
    m_cursorMark.attach(this);
}

void Chart::setPlot(const Plot& plot)
{
    const bool otherScale = plot.y.isLogarithmic != m_plot.y.isLogarithmic;
    m_plot = plot;
    if (otherScale) {
        if (m_plot.y.isLogarithmic) {
            setAxisScaleEngine(yLeft, new QwtLogScaleEngine);
            axisScaleEngine(yLeft)->setAttribute(QwtScaleEngine::Floating);
            axisScaleEngine(yLeft)->setMargins(0, 0.1); // decades
        } else
            setAxisScaleEngine(yLeft, new QwtLinearScaleEngine);
        m_range.reset(); // 0 can be within one and not within the other
    }
    takeSeries();
    takeAxes();
    takeLegend();
    applyRange();
    setCursor(m_cursor); // draws all of it
}

void Chart::takeSeries()
{
    setCount<QwtPlotCurve>(m_curves, m_plot.curves.size(), this);
    setCount<Histogram>(m_bars, m_plot.bars.size(), this);
    m_drawn.assign(m_curves.size(), {});
    for (std::size_t number = 0; number < m_curves.size(); ++number)
        takeCurve(number);
    for (std::size_t number = 0; number < m_bars.size(); ++number)
        takeBars(number);
}

void Chart::takeCurve(std::size_t number)
{
    const Curve& curve = m_plot.curves[number];
    QVector<QPointF> points;
    for (std::size_t point = 0; point < curve.points.size(); ++point) {
        if (isDrawn(curve.points[point])) {
            points.append(curve.points[point]);
            m_drawn[number].push_back(int(point));
        }
    }
    QwtPlotCurve& item = *m_curves[number];
    item.setTitle(plainText(curve.name));
    item.setPen(curve.colour, 2, curve.isDashed ? Qt::DashLine : Qt::SolidLine);
    item.setLegendAttribute(QwtPlotCurve::LegendShowLine);
    item.setLegendIconSize({28, 10}); // enough for dashes
    item.setSamples(points);
}

void Chart::takeBars(std::size_t number)
{
    const Bars& bars = m_plot.bars[number];
    QwtPlotHistogram& item = *m_bars[number];
    const double base = m_plot.y.isLogarithmic ? fewestCounts : 0;
    QVector<QwtIntervalSample> samples;
    for (const Bar& bar : bars.bars)
        samples.append({std::max(bar.height, base), bar.from, bar.to});
    item.setTitle(plainText(bars.name));
    item.setBaseline(base);
    item.setStyle(bars.isOutline ? QwtPlotHistogram::Outline : QwtPlotHistogram::Columns);
    item.setPen(bars.isOutline ? QPen(bars.colour, 2) : QPen(Qt::NoPen));
    item.setBrush(bars.isOutline ? QBrush() : QBrush(bars.colour));
    item.setSamples(samples);
}

bool Chart::isDrawn(const QPointF& point) const
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) &&
           (!m_plot.y.isLogarithmic || point.y() > 0);
}

void Chart::takeAxes()
{
    QwtText title = plainText(m_plot.title);
    QFont bold = axisFont(xBottom);
    bold.setBold(true);
    title.setFont(bold);
    titleLabel()->setMargin(QFontMetrics(bold).descent() + 1); // or it cuts underscores off
    setTitle(title);
    setAxisTitle(xBottom, plainText(captionOf(m_plot.x)));
    setAxisTitle(yLeft, plainText(captionOf(m_plot.y)));
}

/// A single series needs none: the title names it.
void Chart::takeLegend()
{
    if (seriesCount() > 1 && !legend())
        insertLegend(new QwtLegend, BottomLegend);
    if (seriesCount() <= 1 && legend())
        insertLegend(nullptr);
}

void Chart::setRange(const std::optional<QRectF>& range)
{
    m_range = range;
    applyRange();
    showCursor();
    replot();
}

void Chart::applyRange()
{
    for (const int axis : {int(xBottom), int(yLeft)})
        setAxisAutoScale(axis);
    updateAxes();
    const auto shown = [this](int axis) {
        return axisScaleDiv(axis);
    };
    m_wholeRange = QRectF(QPointF(shown(xBottom).lowerBound(), shown(yLeft).lowerBound()),
                          QPointF(shown(xBottom).upperBound(), shown(yLeft).upperBound()));
    if (m_range) {
        setAxisScale(xBottom, m_range->left(), m_range->right());
        setAxisScale(yLeft, m_range->top(), m_range->bottom());
        updateAxes();
    }
}

QRectF Chart::range() const
{
    return m_range.value_or(m_wholeRange);
}

void Chart::setLimits(const std::optional<Limits>& limits)
{
    m_limits.show(limits);
    replot();
}

// --- places ------------------------------------------------------------------------------------

int Chart::countOf(int series) const
{
    const int curves = int(m_plot.curves.size());
    if (series < 0 || series >= seriesCount())
        return 0;
    return series < curves ? int(m_plot.curves[std::size_t(series)].points.size())
                           : int(m_plot.bars[std::size_t(series - curves)].bars.size());
}

QPointF Chart::valueAt(const Place& place) const
{
    const int curves = int(m_plot.curves.size());
    const auto point = std::size_t(place.point);
    if (place.series < curves)
        return m_plot.curves[std::size_t(place.series)].points[point];
    const Bar& bar = m_plot.bars[std::size_t(place.series - curves)].bars[point];
    return {(bar.from + bar.to) / 2, bar.height};
}

std::optional<Place> Chart::nearest(const QPoint& onCanvas) const
{
    std::optional<Place> nearest;
    double shortest = 0;
    for (std::size_t number = 0; number < m_curves.size(); ++number) {
        double distance = 0;
        const int drawn = m_curves[number]->closestPoint(onCanvas, &distance);
        if (drawn < 0 || (nearest && distance >= shortest))
            continue;
        shortest = distance;
        nearest = Place{int(number), m_drawn[number][std::size_t(drawn)]};
    }
    if (nearest || m_plot.bars.empty())
        return nearest;
    const double x = toValue(onCanvas).x();
    const std::vector<Bar>& bars = m_plot.bars.front().bars;
    for (std::size_t number = 0; number < bars.size(); ++number) {
        if (x >= bars[number].from && x < bars[number].to)
            return Place{int(m_curves.size()), int(number)};
    }
    return {};
}

QPointF Chart::toCanvas(const QPointF& value) const
{
    return {canvasMap(xBottom).transform(value.x()), canvasMap(yLeft).transform(value.y())};
}

QPointF Chart::toValue(const QPointF& onCanvas) const
{
    return {canvasMap(xBottom).invTransform(onCanvas.x()),
            canvasMap(yLeft).invTransform(onCanvas.y())};
}

// --- the cursor --------------------------------------------------------------------------------

void Chart::setCursor(std::optional<Place> place)
{
    if (place &&
        (place->point < 0 || place->point >= countOf(place->series) || !isDrawn(valueAt(*place))))
        place.reset();
    m_cursor = place;
    showCursor();
    replot();
}

QString Chart::cursorText() const
{
    if (!m_cursor)
        return {};
    const QPointF value = valueAt(*m_cursor);
    const QString y = withUnit(numberText(value.y(), m_plot.y.decimals), m_plot.y);
    const int bars = m_cursor->series - int(m_plot.curves.size());
    if (bars < 0)
        return QStringLiteral("%1: %2, %3")
            .arg(m_plot.curves[std::size_t(m_cursor->series)].name,
                 withUnit(numberText(value.x(), m_plot.x.decimals), m_plot.x), y);
    const Bars& all = m_plot.bars[std::size_t(bars)];
    const Bar& bar = all.bars[std::size_t(m_cursor->point)];
    const QString span = numberText(bar.from, m_plot.x.decimals) + QStringLiteral(" … ") +
                         numberText(bar.to, m_plot.x.decimals);
    return QStringLiteral("%1: %2, %3").arg(all.name, withUnit(span, m_plot.x), y);
}

void Chart::showCursor()
{
    m_cursorMark.setVisible(m_cursor.has_value());
    if (!m_cursor)
        return;
    const QPointF value = valueAt(*m_cursor);
    m_cursorMark.setValue(value);
    QwtText label = plainText(cursorText());
    label.setColor(Qt::black);
    label.setBackgroundBrush(QColor(255, 255, 255, 220));
    m_cursorMark.setLabel(label);
    // Toward the middle, where there is room.
    const QPointF middle = range().center();
    m_cursorMark.setLabelAlignment((value.x() < middle.x() ? Qt::AlignRight : Qt::AlignLeft) |
                                   (value.y() < middle.y() ? Qt::AlignTop : Qt::AlignBottom));
}

} // namespace plots
