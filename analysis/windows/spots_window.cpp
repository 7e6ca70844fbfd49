// SPDX-License-Identifier: MIT
#include "analysis/windows/spots_window.h"

#include "analysis/export/details_text.h"
#include "analysis/windows/area_box.h"
#include "analysis/windows/text_table.h"
#include "analysis/windows/tool_commands.h"
#include "analysis/windows/view_export.h"
#include "dialogs/dialogs.h"
#include "plots/plot.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>

#include <algorithm>

namespace analysis {
namespace {

constexpr int mostOfAKind = 100;

/// The entries of what is listed.
enum Kinds
{
    HotAndCold,
    Hot,
    Cold
};

QSpinBox* numberBox(const char* name, int first, int last, int value)
{
    auto* box = new QSpinBox;
    box->setObjectName(QLatin1String(name));
    box->setLocale(QLocale::c()); // the digits of the table
    box->setRange(first, last);
    box->setValue(value);
    return box;
}

void addLine(QGridLayout& grid, const QString& caption, QWidget* widget)
{
    auto* label = new QLabel(caption);
    label->setBuddy(widget);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(widget, row, 1);
}

} // namespace

void SpotsWindow::addTo(ToolCommands& commands)
{
    commands.add({ToolCommands::Group::Looking,
                  tr("热点和冷点..."),
                  [&commands] {
                      commands.takeMarkedRow();
                      open<SpotsWindow>(commands.viewed());
                  },
                  {QKeySequence::fromString(QStringLiteral("Ctrl+Shift+I"))}});
}

SpotsWindow::SpotsWindow(ViewedPhotograph& viewed)
    : BesideWindow(viewed, tr("热点和冷点")), m_area(new AreaBox({tr("整幅图像")})),
      m_kinds(new QComboBox), m_count(numberBox("count", 1, mostOfAKind, usualExtremes)),
      m_distance(numberBox("distance", 0, format::rows, int(usualDistance))),
      m_table(new TextTable(tr("热点和冷点")))
{
    m_table->setObjectName(QStringLiteral("spots"));
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setMinimumSize(m_table->fontMetrics().height() * 22,
                            m_table->fontMetrics().height() * 18);
    connect(m_table, &QTableWidget::currentCellChanged, this, &SpotsWindow::showMarks);
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this,
            &SpotsWindow::copy);

    auto* grid = new QGridLayout(this);
    addChoices(*grid);
    const int row = grid->rowCount();
    grid->addWidget(m_table, row, 0, 1, 2);
    grid->setRowStretch(row, 1);
    addButtons(*grid);
    chooseSelectedTool();
    m_table->setFocus();
}

void SpotsWindow::addChoices(QGridLayout& grid)
{
    m_area->setObjectName(QStringLiteral("area"));
    m_kinds->setObjectName(QStringLiteral("kinds"));
    m_kinds->addItems({tr("热点和冷点"), tr("热点"), tr("冷点")});
    m_distance->setSuffix(tr(" 像素"));
    for (QComboBox* box : {static_cast<QComboBox*>(m_area), m_kinds})
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &SpotsWindow::refresh);
    for (QSpinBox* box : {m_count, m_distance})
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &SpotsWindow::refresh);
    addLine(grid, tr("区域:"), m_area);
    addLine(grid, tr("显示:"), m_kinds);
    addLine(grid, tr("每种个数:"), m_count);
    addLine(grid, tr("最小间距:"), m_distance);
}

void SpotsWindow::addButtons(QGridLayout& grid)
{
    auto* row = new QHBoxLayout;
    m_place = button("place", tr("放置为点"), &SpotsWindow::placePoints);
    row->addWidget(m_place);
    row->addWidget(button("save", tr("保存..."), &SpotsWindow::save));
    row->addWidget(button("copy", tr("复制表格"), &SpotsWindow::copy));
    grid.addLayout(row, grid.rowCount(), 0, 1, 2);
}

QPushButton* SpotsWindow::button(const char* name, const QString& text,
                                 void (SpotsWindow::*pressed)())
{
    auto* made = new QPushButton(text);
    made->setObjectName(QLatin1String(name));
    connect(made, &QPushButton::clicked, this, pressed);
    return made;
}

/// A point has no spots.
void SpotsWindow::chooseSelectedTool()
{
    const overlay::Tools tools = viewed().tools();
    m_area->list(tools);
    const std::optional<overlay::ToolKind> kind = overlay::selectedKind(tools);
    if (kind && *kind != overlay::ToolKind::Point)
        overlay::visitTool(tools, *kind, tools.selectedIndex,
                           [this](const auto& tool) { m_area->choose(tool.name); });
}

void SpotsWindow::refresh()
{
    const overlay::Tools tools = viewed().tools();
    m_area->list(tools);
    const std::optional<Area> area = areaNamed(
        m_area->tool(), tools, viewed().photograph().temperatures, viewed().unit().conversion);
    const Extremes extremes =
        area ? extremesOf(*area, m_count->value(), m_distance->value()) : Extremes();
    m_corrected = viewed().corrected();
    m_spots.clear();
    const auto add = [this](bool areHot, const std::vector<Reading>& readings) {
        int rank = 0;
        for (const Reading& reading : readings)
            m_spots.push_back({areHot, ++rank, reading});
    };
    if (m_kinds->currentIndex() != Cold)
        add(true, extremes.hottest);
    if (m_kinds->currentIndex() != Hot)
        add(false, extremes.coldest);

    showRows();
    m_place->setEnabled(!m_spots.empty());
    showMarks();
}

void SpotsWindow::showRows()
{
    QStringList captions{tr("类型"), tr("序号"), QStringLiteral("X"), QStringLiteral("Y"),
                         tr("温度 (%1)").arg(signOf(viewed().unit().unit))};
    if (m_corrected)
        captions.append(viewed().correctionName());
    files::TextRows rows;
    for (const Spot& spot : m_spots) {
        rows.push_back({spot.isHot ? tr("热点") : tr("冷点"), QString::number(spot.rank),
                        QString::number(spot.reading.x), QString::number(spot.reading.y),
                        DetailsText::number(spot.reading.value)});
        if (m_corrected)
            rows.back().append(correctedText(spot, DetailsText::number));
    }
    m_table->setTexts(captions, rows);
}

/// Empty where the correction leaves no reading.
QString SpotsWindow::correctedText(const Spot& spot, QString (*text)(double)) const
{
    const Reading corrected =
        readingAt(spot.reading.x, spot.reading.y, *m_corrected, viewed().unit().conversion);
    return corrected.isNumber() ? text(corrected.value) : QString();
}

/// Each has its number; the current one tells its temperature, too.
void SpotsWindow::showMarks()
{
    const QString sign = signOf(viewed().unit().unit);
    std::vector<PictureMark> marks;
    for (std::size_t row = 0; row < m_spots.size(); ++row) {
        const Spot& spot = m_spots[row];
        PictureMark mark{QRect(spot.reading.x, spot.reading.y, 1, 1),
                         spot.isHot ? QColor(255, 70, 70) : QColor(90, 170, 255),
                         QString::number(spot.rank)};
        if (int(row) == m_table->currentRow()) {
            mark.colour = Qt::yellow;
            mark.caption = QStringLiteral("%1: %2 %3")
                               .arg(mark.caption, DetailsText::number(spot.reading.value), sign);
        }
        marks.push_back(mark);
    }
    viewed().mark(*this, marks);
}

/// One step to undo. Where a point stands already, none is added.
void SpotsWindow::placePoints()
{
    const overlay::ToolsState now = page().commands().state();
    overlay::Tools points;
    for (const Spot& spot : m_spots) {
        const auto isHere = [&spot](const overlay::PointTool& point) {
            return point.x == spot.reading.x && point.y == spot.reading.y;
        };
        if (std::any_of(now.tools.pointList.begin(), now.tools.pointList.end(), isHere))
            continue;
        overlay::PointTool point;
        setNumbers(point, {spot.reading.x, spot.reading.y});
        point.colour = now.colour;
        points.pointList.append(point);
    }
    const int count = overlay::countOf(now.tools) + overlay::countOf(points);
    if (count > ToolCommands::mostTools) {
        dialogs::warn(tr("工具过多：%1（最多 %2）").arg(count).arg(ToolCommands::mostTools),
                      page().window(), this);
        return;
    }
    page().commands().change(
        [&points](overlay::ToolEditing& edited) { overlay::add(edited, points); });
}

/// As `thermaphoto spots` prints them; corrected readings are a column more.
void SpotsWindow::save()
{
    const QString area = m_area->tool().isEmpty() ? QLatin1String(pictureInFiles) : m_area->tool();
    plots::Table table;
    for (const char* caption : {"file", "unit", "name", "type", "x", "y", "temperature"})
        table.captions.append(QLatin1String(caption));
    if (m_corrected)
        table.captions.append(QStringLiteral("corrected"));
    for (const Spot& spot : m_spots) {
        table.rows.push_back({viewed().name(), letterOf(viewed().unit().unit), area,
                              spot.isHot ? QStringLiteral("hot") : QStringLiteral("cold"),
                              QString::number(spot.reading.x), QString::number(spot.reading.y),
                              threeDecimals(spot.reading.value)});
        if (m_corrected)
            table.rows.back().append(correctedText(spot, threeDecimals));
    }
    ViewExport::saveTable(plots::csvOf(table), tr("保存热点和冷点"),
                          exportName(viewed().name(), QStringLiteral("spots.csv")), page().window(),
                          this);
}

void SpotsWindow::copy()
{
    m_table->copy();
}

} // namespace analysis
