// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>

#include <optional>

class Analysis_Widget;
class QKeyEvent;

namespace Ui {
class Analysis_Widget;
}

namespace analysis {

class ToolCommands;

/// The picture, and the five buttons that choose a tool: one of them has the focus while tools are
/// drawn.
QWidgetList pictureWidgets(const Ui::Analysis_Widget& form);

/// How far an arrow key moves things in the picture: a pixel, with Shift ten. Nothing for other
/// keys.
std::optional<QPoint> wayOfArrow(const QKeyEvent& event);

/// What plain keys do in an analysis window. Arrows move the selected tool, with Alt its end, with
/// Shift ten pixels at a time; Page Up and Page Down select the tool before and the next. They are
/// the picture's keys while it has the focus, or while a button that chooses a tool has it because
/// somebody works on the picture; who goes to such a button by tabulator or click finds its own
/// keys. 1 to 5 choose a tool, Escape goes back to selecting. Everything else, and the keys of
/// tables and unit box, stays as it is. GUI thread only.
class PictureKeys : public QObject
{
    Q_OBJECT

public:
    PictureKeys(ToolCommands& commands, const Ui::Analysis_Widget& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOnPicture(const QObject* widget) const;
    void focusCame(const QObject* widget, Qt::FocusReason reason);
    bool press(const QObject* widget, const QKeyEvent& event);
    bool moveTool(const QKeyEvent& event);
    bool selectTool(int key);
    bool chooseMode(const QObject* widget, int key);

    ToolCommands& m_commands;
    const Ui::Analysis_Widget& m_form;
    const QWidgetList m_picture;
    bool m_handIsOnPicture = false;
};

} // namespace analysis
