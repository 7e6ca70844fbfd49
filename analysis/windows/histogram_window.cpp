// SPDX-License-Identifier: MIT
#include "analysis/windows/histogram_window.h"

#include "analysis/windows/area_box.h"
#include "analysis/windows/plot_bar.h"
#include "analysis/windows/temperature_box.h"
#include "analysis/windows/tool_commands.h"
#include "plots/plot_view.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace analysis {
namespace {

constexpr int mostBins = 100; ///< of those that suit an area; as many as thermaphoto's

QString percentOf(double share)
{
    return oneDecimal(100 * share) + QStringLiteral(" %");
}

} // namespace

void HistogramWindow::addTo(ToolCommands& commands)
{
    commands.add({ToolCommands::Group::Looking, tr("直方图..."), [&commands] {
                      open<HistogramWindow>(commands.viewed());
                  }});
}

HistogramWindow::HistogramWindow(ViewedPhotograph& viewed)
    : BesideWindow(viewed, tr("直方图")), m_areas(new AreaBox({tr("所选工具"), tr("整幅图像")})),
      m_logarithmic(new QCheckBox(tr("对数坐标"))), m_automatic(new QCheckBox(tr("自动分组"))),
      m_from(new TemperatureBox(tr("范围起点"))), m_to(new TemperatureBox(tr("范围终点"))),
      m_width(new QDoubleSpinBox), m_view(new plots::PlotView),
      m_lower(new TemperatureBox(tr("下限"))), m_upper(new TemperatureBox(tr("上限"))),
      m_share(new QLabel), m_unit(viewed.unit().unit)
{
    m_areas->setObjectName(QStringLiteral("area"));
    m_areas->setAccessibleName(tr("区域"));
    m_logarithmic->setObjectName(QStringLiteral("logarithmic"));
    connect(m_areas, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &HistogramWindow::refresh);
    connect(m_logarithmic, &QCheckBox::toggled, this, &HistogramWindow::refresh);
    for (TemperatureBox* box : {m_from, m_to, m_lower, m_upper})
        box->setUnit(m_unit);

    auto* top = new QHBoxLayout;
    top->addWidget(m_areas);
    top->addWidget(m_logarithmic);
    top->addStretch();
    addPlotButtons(*top, *m_view);
    auto* bins = new QHBoxLayout;
    addBins(*bins);
    auto* limits = new QHBoxLayout;
    addLimits(*limits);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(bins);
    layout->addWidget(m_view, 1);
    layout->addLayout(limits);
    m_view->setFocus();
}

void HistogramWindow::addBins(QBoxLayout& layout)
{
    m_automatic->setObjectName(QStringLiteral("automatic"));
    m_automatic->setChecked(true);
    m_from->setObjectName(QStringLiteral("from"));
    m_to->setObjectName(QStringLiteral("to"));
    m_width->setObjectName(QStringLiteral("width"));
    m_width->setAccessibleName(tr("组距"));
    m_width->setLocale(QLocale::c());
    m_width->setDecimals(3);
    m_width->setRange(0.001, 1000);
    m_width->setSingleStep(0.1);
    connect(m_automatic, &QCheckBox::toggled, this, &HistogramWindow::refresh);
    for (QDoubleSpinBox* box :
         {static_cast<QDoubleSpinBox*>(m_from), static_cast<QDoubleSpinBox*>(m_to), m_width})
        connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this, [this] {
            if (!m_automatic->isChecked()) // otherwise they only tell
                refresh();
        });
    layout.addWidget(m_automatic);
    layout.addWidget(new QLabel(tr("范围:")));
    layout.addWidget(m_from);
    layout.addWidget(new QLabel(QStringLiteral("…")));
    layout.addWidget(m_to);
    layout.addWidget(new QLabel(tr("组距:")));
    layout.addWidget(m_width);
    layout.addStretch();
}

void HistogramWindow::addLimits(QBoxLayout& layout)
{
    m_lower->setObjectName(QStringLiteral("lower"));
    m_upper->setObjectName(QStringLiteral("upper"));
    m_share->setObjectName(QStringLiteral("share"));
    for (TemperatureBox* box : {m_lower, m_upper})
        connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &HistogramWindow::takeLimits);
    connect(m_view, &plots::PlotView::limitsMoved, this, [this](const plots::Limits& limits) {
        m_lower->setValue(limits.lower);
        m_upper->setValue(limits.upper);
    });
    layout.addWidget(new QLabel(tr("界限:")));
    layout.addWidget(m_lower);
    layout.addWidget(new QLabel(QStringLiteral("…")));
    layout.addWidget(m_upper);
    layout.addWidget(m_share);
    layout.addStretch();
}

/// The name of a tool; empty for the whole picture.
QString HistogramWindow::wanted(const overlay::Tools& tools) const
{
    const std::optional<overlay::ToolKind> kind = overlay::selectedKind(tools);
    if (m_areas->currentIndex() != SelectedTool || !kind)
        return m_areas->tool();
    QString name;
    overlay::visitTool(tools, *kind, tools.selectedIndex,
                       [&name](const auto& tool) { name = tool.name; });
    return name;
}

void HistogramWindow::takeAreas()
{
    const overlay::Tools tools = viewed().tools();
    m_areas->list(tools);
    const QString name = wanted(tools);
    const Conversion conversion = viewed().unit().conversion;
    m_stored = areaNamed(name, tools, viewed().photograph().temperatures, conversion)
                   .value_or(Area{name, {}});
    const auto corrected = viewed().corrected();
    m_corrected.reset();
    if (corrected)
        m_corrected = areaNamed(name, tools, *corrected, conversion);
}

/// What is typed stays the same range in another unit.
void HistogramWindow::takeUnit()
{
    const Unit unit = viewed().unit().unit;
    for (TemperatureBox* box : {m_from, m_to, m_lower, m_upper})
        box->setUnit(unit);
    m_width->setSuffix(QLatin1Char(' ') + signOf(unit));
    if (unit == m_unit)
        return;
    const QSignalBlocker quiet(m_width);
    const double degree = inUnit(1, unit) - inUnit(0, unit);
    const double before = inUnit(1, m_unit) - inUnit(0, m_unit);
    m_width->setValue(m_width->value() * degree / before);
    m_unit = unit;
}

std::optional<Bins> HistogramWindow::suitingBoth() const
{
    if (!m_corrected)
        return suitingBins(m_stored, mostBins);
    Area both = m_stored;
    both.readings.insert(both.readings.end(), m_corrected->readings.begin(),
                         m_corrected->readings.end());
    return suitingBins(both, mostBins);
}

/// Automatic ones are shown in the boxes, from where somebody can go on.
std::optional<Bins> HistogramWindow::chosenBins()
{
    for (QWidget* box : {static_cast<QWidget*>(m_from), static_cast<QWidget*>(m_to),
                         static_cast<QWidget*>(m_width)})
        box->setEnabled(!m_automatic->isChecked());
    if (!m_automatic->isChecked())
        return binsByWidth(m_from->value(), m_to->value(), m_width->value());
    const std::optional<Bins> bins = suitingBoth();
    if (bins) {
        m_from->setValue(bins->from);
        m_to->setValue(bins->to);
        m_width->setValue(bins->width());
    }
    return bins;
}

void HistogramWindow::refresh()
{
    takeUnit();
    takeAreas();
    m_bins = chosenBins();
    plots::Plot plot;
    if (m_bins)
        plot = histogramPlot(
            {m_stored, m_corrected, *m_bins, !m_automatic->isChecked(), m_logarithmic->isChecked()},
            {viewed().name(), viewed().unit(), viewed().photograph().temperatures, nullptr,
             viewed().correctionName()});
    else
        plot.title = tr("没有可显示的直方图：请检查区域、范围和组距。");
    m_view->setPlot(plot);
    m_view->setFileName(plotFileName(viewed().name(), QStringLiteral("histogram")));
    if (m_bins && !m_hasLimits) {
        m_hasLimits = true;
        m_lower->setValue(m_bins->from + (m_bins->to - m_bins->from) / 4);
        m_upper->setValue(m_bins->to - (m_bins->to - m_bins->from) / 4);
    }
    takeLimits();
}

void HistogramWindow::takeLimits()
{
    const auto [lower, upper] = std::minmax({m_lower->value(), m_upper->value()});
    std::optional<plots::Limits> limits;
    if (m_bins)
        limits = plots::Limits{lower, upper, m_bins->width()};
    m_view->setLimits(limits);
    QString share = tr("其间: %1").arg(percentOf(shareBetween(m_stored, lower, upper)));
    if (m_corrected)
        share += QStringLiteral(" - ") + viewed().correctionName() + QStringLiteral(": ") +
                 percentOf(shareBetween(*m_corrected, lower, upper));
    m_share->setText(share);
}

} // namespace analysis
