// SPDX-License-Identifier: MIT
#include "analysis/windows/profile_window.h"

#include "analysis/windows/plot_bar.h"
#include "analysis/windows/tool_commands.h"
#include "plots/plot_view.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <numeric>

namespace analysis {

void ProfileWindow::addTo(ToolCommands& commands)
{
    commands.add({ToolCommands::Group::Looking,
                  tr("温度曲线..."),
                  [&commands] { open<ProfileWindow>(commands.viewed()); },
                  {},
                  ToolCommands::Focus::Window,
                  ToolCommands::Menus::Both,
                  [&commands] {
                      return !commands.state().tools.lineList.isEmpty();
                  }});
}

ProfileWindow::ProfileWindow(ViewedPhotograph& viewed)
    : BesideWindow(viewed, tr("温度曲线")), m_lines(new QComboBox), m_view(new plots::PlotView)
{
    m_lines->setObjectName(QStringLiteral("lines"));
    m_lines->setAccessibleName(tr("直线"));
    m_lines->addItems({tr("所选直线"), tr("全部直线")});
    connect(m_lines, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ProfileWindow::refresh);
    connect(m_view, &plots::PlotView::pointed, this, &ProfileWindow::showMark);

    auto* line = new QHBoxLayout;
    line->addWidget(m_lines);
    line->addStretch();
    addPlotButtons(*line, *m_view);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(line);
    layout->addWidget(m_view, 1);
    m_view->setFocus();
}

std::vector<int> ProfileWindow::wanted(const overlay::Tools& tools) const
{
    const int selected = tools.selectedIndex;
    if (m_lines->currentIndex() == SelectedLine &&
        overlay::selectedKind(tools) == overlay::ToolKind::Line && selected >= 0 &&
        selected < tools.lineList.size())
        return {selected};
    std::vector<int> all(std::size_t(tools.lineList.size()));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

void ProfileWindow::refresh()
{
    const overlay::Tools tools = viewed().tools();
    const auto corrected = viewed().corrected();
    m_shown = profilePlot(tools.lineList, wanted(tools),
                          {viewed().name(), viewed().unit(), viewed().photograph().temperatures,
                           corrected.get(), viewed().correctionName()});
    if (m_shown.plot.curves.empty())
        m_shown.plot.title = tr("没有直线：请在图像上画一条。");
    m_view->setPlot(m_shown.plot);
    m_view->setFileName(plotFileName(viewed().name(), QStringLiteral("profile")));
}

void ProfileWindow::showMark(const std::optional<plots::Place>& place)
{
    std::vector<PictureMark> marks;
    if (place) {
        const auto curve = std::size_t(place->series);
        const ProfilePoint& pixel = m_shown.pixels[curve][std::size_t(place->point)];
        marks.push_back(
            {QRect(pixel.x, pixel.y, 1, 1), Qt::white,
             oneDecimal(pixel.value) + QLatin1Char(' ') + signOf(viewed().unit().unit)});
    }
    viewed().mark(*this, marks);
}

} // namespace analysis
