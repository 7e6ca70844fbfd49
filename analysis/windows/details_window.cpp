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
    grid->addWidget(m_table, 1, 0, 1, 4, Qt::AlignLeft);
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

    QString tool;
    const overlay::Tools selected = selectedOf(tools);
    overlay::forEachTool(selected, [&](const auto& only) {
        tool = only.name;
        m_subject->setText(tr("%1 - %2").arg(tool, kindCaption(only.kind)));
    });
    if (tool.isEmpty())
        m_subject->setText(tr("整幅图像"));
    std::vector<Measured> sets{measured(tool, viewed().photograph().temperatures)};
    if (const auto corrected = viewed().corrected())
        sets.push_back(measured(tool, *corrected));
    showNumbers(sets);
    showNotes(sets.front());
    showMarks(sets.front().details);
}

DetailsWindow::Measured DetailsWindow::measured(const QString& tool,
                                                const Temperatures& temperatures) const
{
    const auto areaOfTool = [&](const QString& name) {
        return areaNamed(name, viewed().tools(), temperatures, viewed().unit().conversion)
            .value_or(Area());
    };
    Measured set{areaOfTool(tool), std::nullopt, std::nullopt};
    set.details = detailsOf(set.area);
    const Figure figure = figureIn(*m_figure);
    if (m_other->currentIndex() == Typed)
        set.difference = differenceOf(set.details, figure, m_reference->value());
    else if (m_other->currentIndex() != None)
        set.difference = differenceOf(set.details, figure, detailsOf(areaOfTool(m_other->tool())),
                                      figureIn(*m_otherFigure));
    return set;
}

/// Each set of readings has its own places: a pixel can lose its reading by a correction.
void DetailsWindow::showNumbers(const std::vector<Measured>& sets)
{
    const double threshold = m_threshold->value();
    QStringList header{tr("项目")};
    files::TextRows rows;
    for (const QString& caption : DetailsText::captions(signOf(viewed().unit().unit), threshold))
        rows.push_back({caption});
    for (const Measured& set : sets) {
        const QString name = &set == &sets.front() ? tr("存储的读数") : viewed().correctionName();
        header << name << QStringLiteral("X") << QStringLiteral("Y");
        int row = 0;
        for (const QString& text :
             DetailsText::values(set.area, set.details, threshold, set.difference))
            rows[std::size_t(row++)] << text << QString() << QString();
        if (!set.details)
            continue;
        for (const int extreme : {DetailsText::High, DetailsText::Low}) {
            const Reading& place =
                extreme == DetailsText::High ? set.details->high : set.details->low;
            QStringList& texts = rows[std::size_t(extreme)];
            texts[texts.size() - 2] = QString::number(place.x);
            texts[texts.size() - 1] = QString::number(place.y);
        }
    }
    const bool isOther = m_table->columnCount() != header.size();
    m_table->setTexts(header, rows);
    if (isOther)
        adjustSize();
}

/// Only a tool stands in the tool table.
void DetailsWindow::showNotes(const Measured& stored)
{
    const std::vector<ToolRow> table =
        toolRows(selectedOf(viewed().tools()), viewed().photograph().temperatures,
                 viewed().unit().conversion);
    const QStringList notes =
        table.empty() ? QStringList()
                      : DetailsText::otherInTable(table.front(), stored.area, stored.details);
    m_notes->setText(notes.join(QLatin1Char('\n')));
    m_notes->setVisible(!notes.isEmpty());
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
