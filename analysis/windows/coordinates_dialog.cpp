// SPDX-License-Identifier: MIT
#include "analysis/windows/coordinates_dialog.h"

#include "analysis/photograph/tool_statistics.h"
#include "overlay/tool_coordinates.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

using overlay::KindRow;
using overlay::ToolKind;
using overlay::ToolNumbers;

CoordinatesDialog::CoordinatesDialog(const overlay::Tools& tools, Of of, ToolKind kindOfNew,
                                     const QColor& colourOfNew, QWidget* parent)
    : QDialog(parent), m_before(tools), m_colour(colourOfNew), m_kind(kindOfNew), m_tools(tools),
      m_kinds(new QComboBox), m_problem(new QLabel),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("坐标"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    ToolNumbers numbers = overlay::numbersOfNew(kindOfNew);
    const std::optional<ToolKind> selected = selectedKind(tools);
    if (of == Of::Selection && selected)
        visitTool(tools, *selected, tools.selectedIndex, [&](const auto& tool) {
            if (isUnfinished(tool))
                return;
            m_kind = *selected;
            m_index = tools.selectedIndex;
            numbers = numbersOf(tool);
            setWindowTitle(tr("坐标 - %1").arg(tool.name));
        });

    auto* grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    addKinds();
    grid->addWidget(new QLabel(tr("类型:")), 0, 0);
    grid->addWidget(m_kinds, 0, 1, 1, 2);
    addNumbers(*grid);
    m_problem->setText(tr("这些数值不能构成图像内的工具。"));
    QSizePolicy policy = m_problem->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the dialog keeps still while somebody types
    m_problem->setSizePolicy(policy);
    grid->addWidget(m_problem, grid->rowCount(), 0, 1, 3);
    grid->addWidget(m_buttons, grid->rowCount(), 0, 1, 3);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showNumbers(numbers);
    showLimits(numbers, isPossible(m_kind, numbers));
    m_lines.front().box->setFocus();
    m_lines.front().box->selectAll();
}

/// A tool that exists keeps its kind.
void CoordinatesDialog::addKinds()
{
    m_kinds->setObjectName(QStringLiteral("kind"));
    m_kinds->setAccessibleName(tr("类型"));
    for (const KindRow& row : overlay::toolKinds)
        m_kinds->addItem(analysis::kindCaption(row.kind));
    m_kinds->setCurrentIndex(int(m_kind));
    m_kinds->setEnabled(isForNewTool());
    connect(m_kinds, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CoordinatesDialog::takeKind);
}

void CoordinatesDialog::addNumbers(QGridLayout& grid)
{
    for (std::size_t number = 0; number < m_lines.size(); ++number) {
        NumberLine& line = m_lines[number];
        line = {new QLabel, new QSpinBox, new QLabel};
        line.caption->setBuddy(line.box);
        line.box->setLocale(QLocale::c()); // the digits of limits and tables
        line.box->setObjectName(QStringLiteral("number%1").arg(number + 1));
        line.limits->setObjectName(QStringLiteral("limits%1").arg(number + 1));
        const int row = grid.rowCount();
        grid.addWidget(line.caption, row, 0);
        grid.addWidget(line.box, row, 1);
        grid.addWidget(line.limits, row, 2);
        connect(line.box, qOverload<int>(&QSpinBox::valueChanged), this,
                &CoordinatesDialog::takeNumbers);
    }
}

void CoordinatesDialog::takeKind(int row)
{
    m_kind = overlay::toolKinds[std::size_t(row)].kind;
    showNumbers(overlay::numbersOfNew(m_kind));
    takeNumbers();
}

void CoordinatesDialog::showNumbers(const ToolNumbers& numbers)
{
    const auto used = std::size_t(rowOf(m_kind).numbers);
    for (std::size_t number = 0; number < m_lines.size(); ++number) {
        const NumberLine& line = m_lines[number];
        const QSignalBlocker quiet(line.box);
        const bool isUsed = number < used;
        for (QWidget* widget :
             {static_cast<QWidget*>(line.caption), static_cast<QWidget*>(line.box),
              static_cast<QWidget*>(line.limits)})
            widget->setVisible(isUsed);
        if (!isUsed)
            continue;
        const QString caption = analysis::numberCaption(m_kind, int(number));
        line.caption->setText(caption);
        line.box->setAccessibleName(caption);
        line.box->setRange(0, std::max(overlay::largestTyped(int(number)), numbers[number]));
        line.box->setValue(numbers[number]);
    }
}

ToolNumbers CoordinatesDialog::typedNumbers() const
{
    ToolNumbers numbers{};
    for (int number = 0; number < rowOf(m_kind).numbers; ++number)
        numbers[std::size_t(number)] = m_lines[std::size_t(number)].box->value();
    return numbers;
}

/// While the numbers make no tool, the picture stays as it was: somebody is typing.
void CoordinatesDialog::takeNumbers()
{
    const ToolNumbers numbers = typedNumbers();
    const bool possible = isPossible(m_kind, numbers);
    showLimits(numbers, possible);
    if (!possible)
        return;
    overlay::Tools edited = m_before;
    if (isForNewTool())
        addTool(edited, m_kind, numbers, m_colour);
    else
        visitTool(edited, m_kind, m_index, [&](auto& tool) {
            if (numbersOf(tool) != numbers) // a circle's drag point says more than its radius
                setNumbers(tool, numbers);
        });
    announce(edited);
}

void CoordinatesDialog::showLimits(const ToolNumbers& numbers, bool possible)
{
    for (int number = 0; number < rowOf(m_kind).numbers; ++number) {
        const auto limits = limitsOf(m_kind, numbers, number);
        const NumberLine& line = m_lines[std::size_t(number)];
        line.limits->setText(limits ? tr("%1 … %2").arg(limits->first).arg(limits->last)
                                    : QString());
        line.box->setAccessibleDescription(line.limits->text());
    }
    m_problem->setVisible(!possible);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(possible);
}

void CoordinatesDialog::announce(const overlay::Tools& tools)
{
    if (tools == m_tools)
        return;
    m_tools = tools;
    emit changed(m_tools);
}

/// Now somebody listens.
void CoordinatesDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (isForNewTool() && !event->spontaneous())
        takeNumbers();
}

void CoordinatesDialog::done(int result)
{
    if (result == QDialog::Rejected)
        announce(m_before);
    QDialog::done(result);
}
