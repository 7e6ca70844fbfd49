// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tool_rules.h"
#include "overlay/tools.h"

#include <QColor>
#include <QDialog>

#include <array>

class QComboBox;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QSpinBox;

/// The numbers of a tool for exact work: position, ends, corners, or centre and radius, in pixels
/// of the picture, each with what it may be while the others stay.
///
/// It works on a value: whoever opens it shows what changed() brings, a new tool at once, and takes
/// the last as one step when the dialog is accepted. When it is rejected, the last is what was
/// there before. Opened with dialogs::open(). GUI thread only.
class CoordinatesDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Of
    {
        Selection, ///< a new tool where none is selected
        NewTool
    };

    /// A new tool is one of `kindOfNew`, which can be changed in the dialog, with `colourOfNew`.
    CoordinatesDialog(const overlay::Tools& tools, Of of, overlay::ToolKind kindOfNew,
                      const QColor& colourOfNew, QWidget* parent);

    bool isForNewTool() const { return m_index < 0; }
    /// What was announced last; at first what the dialog was opened with.
    const overlay::Tools& tools() const { return m_tools; }

    void done(int result) override;

signals:
    /// The tools with the edit in them, the edited one selected; only ever possible ones.
    void changed(const overlay::Tools& tools);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addKinds();
    void addNumbers(QGridLayout& grid);
    void takeKind(int row);
    void showNumbers(const overlay::ToolNumbers& numbers);
    overlay::ToolNumbers typedNumbers() const;
    void takeNumbers();
    void showLimits(const overlay::ToolNumbers& numbers, bool possible);
    void announce(const overlay::Tools& tools);

    const overlay::Tools m_before;
    const QColor m_colour; ///< of a new tool
    overlay::ToolKind m_kind;
    int m_index = -1; ///< of the edited tool among those of its kind; −1: a new one
    overlay::Tools m_tools;

    /// A line of the form for each number.
    struct NumberLine
    {
        QLabel* caption;
        QSpinBox* box;
        QLabel* limits;
    };
    std::array<NumberLine, std::tuple_size_v<overlay::ToolNumbers>> m_lines{};
    QComboBox* m_kinds;
    QLabel* m_problem;
    QDialogButtonBox* m_buttons;
};
