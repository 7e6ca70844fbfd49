// SPDX-License-Identifier: MIT
#include "plots/plot_view.h"

#include "plots/chart.h"
#include "plots/plot_files.h"
#include "plots/plot_saving.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QVBoxLayout>
#include <qwt_picker_machine.h>
#include <qwt_plot_picker.h>

#include <algorithm>
#include <cmath>

namespace plots {
namespace {

constexpr double zoomStep = 1.25;      ///< of a notch of the wheel, or a key
constexpr double notch = 120;          ///< eighths of a degree
constexpr double smallestBand = 4;     ///< pixels; less is a click
constexpr double deepestZoom = 100000; ///< times; numbers would run out of digits

} // namespace

PlotView::PlotView(QWidget* parent) : QWidget(parent), m_chart(new Chart)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_chart);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 160);
    auto* band = new QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, QwtPicker::RectRubberBand,
                                   QwtPicker::AlwaysOff, m_chart->canvas());
    band->setStateMachine(new QwtPickerDragRectMachine);
    band->setRubberBandPen(QPen(Qt::black, 0, Qt::DashLine));
    connect(band, qOverload<const QRectF&>(&QwtPlotPicker::selected), this, &PlotView::zoomTo);
    m_chart->canvas()->installEventFilter(this); // after the band's: hears everything first
    addCommands();
}

PlotView::~PlotView() = default;

void PlotView::addCommands()
{
    const auto add = [this](const QString& name, const QString& text,
                            const QList<QKeySequence>& keys, void (PlotView::*run)()) {
        auto* action = new QAction(text, this);
        action->setObjectName(name);
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
    };
    add(QStringLiteral("showAll"), tr("显示全部"), {}, &PlotView::showAll);
    add(QStringLiteral("copy"), tr("复制"), {QKeySequence(QKeySequence::Copy)}, &PlotView::copy);
    add(QStringLiteral("save"), tr("保存..."), {QKeySequence(QKeySequence::Save)}, &PlotView::save);
}

void PlotView::setPlot(const Plot& plot)
{
    const bool hadCursor = m_chart->cursor().has_value();
    m_chart->setPlot(plot);
    setAccessibleName(plot.title);
    if (hadCursor)
        tellCursor();
}

const Plot& PlotView::plot() const
{
    return m_chart->plot();
}

void PlotView::setLimits(const std::optional<Limits>& limits)
{
    if (!(limits == m_chart->limits().shown()))
        m_chart->setLimits(limits);
}

const std::optional<Limits>& PlotView::limits() const
{
    return m_chart->limits().shown();
}

void PlotView::setCursor(const std::optional<Place>& place)
{
    if (place == m_chart->cursor())
        return;
    const std::optional<Place> before = m_chart->cursor();
    m_chart->setCursor(place);
    if (!(m_chart->cursor() == before))
        tellCursor();
}

void PlotView::tellCursor()
{
    setAccessibleDescription(m_chart->cursorText());
    emit pointed(m_chart->cursor());
}

const std::optional<Place>& PlotView::cursor() const
{
    return m_chart->cursor();
}

// --- zoom --------------------------------------------------------------------------------------

QRectF PlotView::range() const
{
    return m_chart->range();
}

bool PlotView::isZoomed() const
{
    return m_chart->isZoomed();
}

void PlotView::zoomTo(const QRectF& range)
{
    const QRectF shown = range.normalized();
    const QPointF from = m_chart->toCanvas(shown.topLeft());
    const QPointF to = m_chart->toCanvas(shown.bottomRight());
    const QRectF& whole = m_chart->wholeRange();
    if (std::abs(to.x() - from.x()) < smallestBand || std::abs(to.y() - from.y()) < smallestBand ||
        shown.width() < whole.width() / deepestZoom ||
        shown.height() < whole.height() / deepestZoom)
        return;
    m_chart->setRange(shown);
}

void PlotView::showAll()
{
    if (isZoomed())
        m_chart->setRange({});
}

/// What lies under the place stays there. Nothing beyond the whole is shown.
void PlotView::zoomAround(const QPointF& onCanvas, double factor)
{
    const QRectF shown(m_chart->toCanvas(range().topLeft()),
                       m_chart->toCanvas(range().bottomRight()));
    const auto drawnIn = [&](const QPointF& corner) {
        return m_chart->toValue(onCanvas + (corner - onCanvas) / factor);
    };
    const QRectF& whole = m_chart->wholeRange();
    const QRectF wanted = QRectF(drawnIn(shown.topLeft()), drawnIn(shown.bottomRight())) & whole;
    if (wanted.contains(whole))
        showAll();
    else
        zoomTo(wanted);
}

QPoint PlotView::pixelOf(const QPointF& value) const
{
    return m_chart->canvas()->mapTo(this, m_chart->toCanvas(value).toPoint());
}

// --- files and clipboard -----------------------------------------------------------------------

void PlotView::copy()
{
    auto* contents = new QMimeData;
    contents->setImageData(pictureOf(*m_chart));
    contents->setText(files::tabSeparated(rowsOf(plot().table)));
    QGuiApplication::clipboard()->setMimeData(contents);
}

void PlotView::save()
{
    PlotSaving::ask(*m_chart, m_fileName, this);
}

// --- events ------------------------------------------------------------------------------------

bool PlotView::eventFilter(QObject* watched, QEvent* event)
{
    return filterMouse(*event) || QWidget::eventFilter(watched, event);
}

/// Whether the rubber band is to hear nothing of it.
bool PlotView::filterMouse(QEvent& event)
{
    if (event.type() == QEvent::Leave) {
        setCursor(std::optional<Place>());
        return false;
    }
    if (event.type() == QEvent::Wheel) {
        const auto& wheel = static_cast<QWheelEvent&>(event);
        zoomAround(wheel.position(), std::pow(zoomStep, wheel.angleDelta().y() / notch));
        return true;
    }
    if (event.type() < QEvent::MouseButtonPress || event.type() > QEvent::MouseMove)
        return false;
    const auto& mouse = static_cast<QMouseEvent&>(event);
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return mouse.button() == Qt::LeftButton && beginLimit(mouse.pos());
    case QEvent::MouseMove:
        if (m_held)
            moveLimit(mouse.pos());
        else if (mouse.buttons() == Qt::NoButton) {
            m_chart->canvas()->setCursor(m_chart->limits().at(mouse.pos().x()) ? Qt::SplitHCursor
                                                                               : Qt::CrossCursor);
            setCursor(m_chart->nearest(mouse.pos()));
        }
        return m_held.has_value();
    case QEvent::MouseButtonRelease: {
        const bool wasHeld = m_held.has_value();
        m_held.reset();
        return wasHeld;
    }
    default: // a double click
        showAll();
        return true;
    }
}

bool PlotView::beginLimit(const QPoint& onCanvas)
{
    m_held = m_chart->limits().at(onCanvas.x());
    if (m_held)
        setFocus(Qt::MouseFocusReason);
    return m_held.has_value();
}

void PlotView::moveLimit(const QPoint& onCanvas)
{
    setLimit(*m_held, m_chart->toValue(onCanvas).x());
}

/// Limits stay within what is plotted.
void PlotView::setLimit(Limit which, double value)
{
    const QRectF& whole = m_chart->wholeRange();
    const Limits other = moved(*limits(), which, std::clamp(value, whole.left(), whole.right()));
    if (other == *limits())
        return;
    m_chart->setLimits(other);
    emit limitsMoved(other);
}

/// Esc belongs to the plot as long as there is something to go back from.
bool PlotView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isZoomed() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void PlotView::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) {
        if (moveLimitByKey(*event))
            return;
    }
    const QPointF middle = m_chart->toCanvas(range().center());
    if ((key == Qt::Key_Escape || key == Qt::Key_Backspace) && isZoomed())
        showAll();
    else if (key == Qt::Key_Plus || key == Qt::Key_Equal)
        zoomAround(middle, zoomStep);
    else if (key == Qt::Key_Minus)
        zoomAround(middle, 1 / zoomStep);
    else if (!walk(key))
        QWidget::keyPressEvent(event);
}

bool PlotView::moveLimitByKey(const QKeyEvent& event)
{
    const bool isLeft = event.key() == Qt::Key_Left;
    if (!limits() || (!isLeft && event.key() != Qt::Key_Right))
        return false;
    const bool isLower = event.modifiers() & Qt::ControlModifier;
    const double from = isLower ? limits()->lower : limits()->upper;
    setLimit(isLower ? Limit::Lower : Limit::Upper,
             from + (isLeft ? -limits()->step : limits()->step));
    return true;
}

/// Moves the cursor; whether the key is one of those that do. Without a cursor, any of them places
/// it on the first point.
bool PlotView::walk(int key)
{
    Place place = cursor().value_or(Place{0, 0});
    const auto points = [&] {
        return m_chart->countOf(place.series);
    };
    const int step = cursor() ? 1 : 0;
    switch (key) {
    case Qt::Key_Left:
        place.point = std::max(place.point - step, 0);
        break;
    case Qt::Key_Right:
        place.point = std::min(place.point + step, points() - 1);
        break;
    case Qt::Key_Home:
        place.point = 0;
        break;
    case Qt::Key_End:
        place.point = points() - 1;
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        place.series += key == Qt::Key_Down ? step : -step;
        place.series = std::clamp(place.series, 0, std::max(m_chart->seriesCount() - 1, 0));
        place.point = std::min(place.point, points() - 1);
        break;
    default:
        return false;
    }
    setCursor(place);
    return true;
}

void PlotView::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    actions().constFirst()->setEnabled(isZoomed());
    connect(menu, &QMenu::aboutToHide, this, [this] { actions().constFirst()->setEnabled(true); });
    menu->popup(event->globalPos());
}

} // namespace plots
