// SPDX-License-Identifier: MIT
#include "analysis/windows/details_window.h"

#include "analysis/export/details_text.h"
#include "analysis/windows/area_box.h"
#include "analysis/windows/temperature_box.h"
#include "analysis/windows/text_table.h"
#include "analysis/windows/tool_commands.h"

#include "ui_analysis_widget.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include <cmath>

namespace analysis {
namespace {

/// The fixed entries of what is compared with.
enum Reference
{
    None,
    Typed,
    WholePicture
};

/// The single numbers that a difference is made of.
constexpr std::array<Figure, 3> compared{Figure::High, Figure::Average, Figure::Low};

Figure figureIn(const QComboBox& box)
{
    return compared[std::size_t(box.currentIndex())];
}

/// The selected tool alone, as the lists have it.
overlay::Tools selectedOf(const overlay::Tools& tools)
{
    overlay::Tools only;
    const std::optional<overlay::ToolKind> kind = overlay::selectedKind(tools);
    if (kind)
        overlay::visitTool(tools, *kind, tools.selectedIndex, [&only](const auto& tool) {
            using List = QVector<std::decay_t<decltype(tool)>>;
            std::get<List&>(overlay::listsOf(only)) = {tool};
        });
    return only;
}

} // namespace

void DetailsWindow::addTo(ToolCommands& commands, const Ui::Analysis_Widget& form)
{
    const auto show = [&commands] {
        open<DetailsWindow>(commands.viewed());
    };
    commands.add({ToolCommands::Group::Looking,
                  tr("详细数据..."),
                  [&commands, show] {
                      commands.takeMarkedRow();
                      show();
                  },
                  {QKeySequence::fromString(QStringLiteral("Ctrl+I"))}});
    // The first of its two clicks has selected the tool.
    connect(form.tableWidget, &QTableWidget::itemDoubleClicked, &commands, show);
}

DetailsWindow::DetailsWindow(ViewedPhotograph& viewed)
    : BesideWindow(viewed, tr("详细数据")), m_subject(new QLabel),
      m_table(new TextTable(tr("详细数据"))), m_threshold(new TemperatureBox(tr("阈值"))),
      m_figure(figureBox(tr("此区域的数值"))),
      m_other(new AreaBox({tr("无"), tr("输入的温度"), tr("整幅图像")})),
      m_otherFigure(figureBox(tr("另一区域的数值"))),
      m_reference(new TemperatureBox(tr("参考温度"))), m_notes(new QLabel)
{
    m_subject->setObjectName(QStringLiteral("subject"));
    m_table->setObjectName(QStringLiteral("numbers"));
    m_table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_notes->setObjectName(QStringLiteral("notes"));
    m_notes->setWordWrap(true);
    auto* copy = new QPushButton(tr("复制表格"));
    copy->setObjectName(QStringLiteral("copy"));
    connect(copy, &QPushButton::clicked, m_table, &TextTable::copy);
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, m_table,
            &TextTable::copy);

    auto* grid = new QGridLayout(this);
    grid->addWidget(m_subject, 0, 0, 1, 4);
    grid->addWidget(m_table, 1, 0, 1, 4);
    grid->addWidget(m_notes, 2, 0, 1, 4);
    addThreshold(*grid);
    addComparison(*grid);
    grid->addWidget(copy, 5, 3, Qt::AlignRight);
    grid->setRowStretch(1, 1);
    m_table->setFocus();
}

/// At first what halves the picture, roughly.
void DetailsWindow::addThreshold(QGridLayout& grid)
{
    m_threshold->setObjectName(QStringLiteral("threshold"));
    m_threshold->setUnit(viewed().unit().unit);
    const std::optional<Details> details =
        detailsOf(wholePicture(viewed().photograph().temperatures, viewed().unit().conversion));
    if (details)
        m_threshold->setValue(std::round(details->mean));
    connect(m_threshold, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &DetailsWindow::refresh);
    auto* caption = new QLabel(tr("阈值:"));
    caption->setBuddy(m_threshold);
    grid.addWidget(caption, 3, 0);
    grid.addWidget(m_threshold, 3, 1);
}

void DetailsWindow::addComparison(QGridLayout& grid)
{
    m_figure->setObjectName(QStringLiteral("figure"));
    m_other->setObjectName(QStringLiteral("other"));
    m_other->setAccessibleName(tr("比较对象"));
    m_otherFigure->setObjectName(QStringLiteral("otherFigure"));
    m_reference->setObjectName(QStringLiteral("reference"));
    m_reference->setUnit(viewed().unit().unit);
    m_reference->setValue(m_threshold->value());
    connect(m_other, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &DetailsWindow::refresh);
    connect(m_reference, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &DetailsWindow::refresh);
    auto* caption = new QLabel(tr("温差:"));
    caption->setBuddy(m_figure);
    grid.addWidget(caption, 4, 0);
    grid.addWidget(m_figure, 4, 1);
    grid.addWidget(m_other, 4, 2);
    grid.addWidget(m_otherFigure, 4, 3);
    grid.addWidget(m_reference, 4, 3);
}

QComboBox* DetailsWindow::figureBox(const QString& name)
{
    auto* box = new QComboBox;
    box->setAccessibleName(name);
    for (const Figure figure : compared)
        box->addItem(DetailsText::captionOf(figure));
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &DetailsWindow::refresh);
    return box;
}

void DetailsWindow::refresh()
{
    const Unit unit = viewed().unit().unit;
    m_threshold->setUnit(unit);
    m_reference->setUnit(unit);
    const overlay::Tools tools = viewed().tools();
    m_other->list(tools);
    m_reference->setVisible(m_other->currentIndex() == Typed);
    m_otherFigure->setVisible(!m_reference->isVisibleTo(this));
    m_otherFigure->setEnabled(m_other->currentIndex() != None);

    const Temperatures& temperatures = viewed().photograph().temperatures;
    const Conversion conversion = viewed().unit().conversion;
    const std::vector<ToolRow> selected = toolRows(selectedOf(tools), temperatures, conversion);
    const ToolRow* table = selected.empty() ? nullptr : &selected.front();
    const std::optional<Area> area =
        areaNamed(table ? table->name : QString(), tools, temperatures, conversion);
    m_subject->setText(table ? tr("%1 - %2").arg(table->name, kindCaption(table->kind))
                             : tr("整幅图像"));
    const std::optional<Details> details = detailsOf(*area);
    const QStringList notes =
        table ? DetailsText::otherInTable(*table, *area, details) : QStringList();
    m_notes->setText(notes.join(QLatin1Char('\n')));
    m_notes->setVisible(!notes.isEmpty());
    showNumbers(*area, details);
    showMarks(details);
}

void DetailsWindow::showNumbers(const Area& area, const std::optional<Details>& details)
{
    const double threshold = m_threshold->value();
    const QStringList captions = DetailsText::captions(signOf(viewed().unit().unit), threshold);
    const QStringList values = DetailsText::values(
        area, details, threshold, differenceIn(details, viewed().photograph().temperatures));
    TextRows rows;
    for (int row = 0; row < captions.size(); ++row) {
        rows.push_back({captions.at(row), values.at(row)});
        if (!details || row > DetailsText::Low)
            continue;
        const Reading& place = row == DetailsText::High ? details->high : details->low;
        rows.back() << QString::number(place.x) << QString::number(place.y);
    }
    m_table->setTexts({tr("项目"), tr("数值"), QStringLiteral("X"), QStringLiteral("Y")}, rows);
}

std::optional<double> DetailsWindow::differenceIn(const std::optional<Details>& details,
                                                  const Temperatures& temperatures) const
{
    if (m_other->currentIndex() == None)
        return std::nullopt;
    const Figure figure = figureIn(*m_figure);
    if (m_other->currentIndex() == Typed)
        return differenceOf(details, figure, m_reference->value());
    const std::optional<Area> other =
        areaNamed(m_other->tool(), viewed().tools(), temperatures, viewed().unit().conversion);
    return other ? differenceOf(details, figure, detailsOf(*other), figureIn(*m_otherFigure))
                 : std::nullopt;
}

/// Not called H and L, as the imager's own.
void DetailsWindow::showMarks(const std::optional<Details>& details)
{
    std::vector<PictureMark> marks;
    const auto add = [&marks](const Reading& place, const QColor& colour, Figure figure) {
        marks.push_back({QRect(place.x, place.y, 1, 1), colour, DetailsText::captionOf(figure)});
    };
    if (details)
        add(details->high, QColor(255, 70, 70), Figure::High);
    if (details && details->pixels > 1)
        add(details->low, QColor(90, 170, 255), Figure::Low);
    viewed().mark(*this, marks);
}

} // namespace analysis
