// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_keys.h"

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/tool_commands.h"

#include "ui_analysis_widget.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

namespace analysis {
namespace {

using overlay::ToolEditing;
using overlay::ToolMode;

constexpr int longStep = 10; ///< image pixels

} // namespace

QWidgetList pictureWidgets(const Ui::Analysis_Widget& form)
{
    return {form.label,        form.pushButton_9, form.pushButton_8,
            form.pushButton_7, form.pushButton_6, form.pushButton_5};
}

std::optional<QPoint> wayOfArrow(const QKeyEvent& event)
{
    const int step = event.modifiers() & Qt::ShiftModifier ? longStep : 1;
    switch (event.key()) {
    case Qt::Key_Left:
        return QPoint(-step, 0);
    case Qt::Key_Right:
        return QPoint(step, 0);
    case Qt::Key_Up:
        return QPoint(0, -step);
    case Qt::Key_Down:
        return QPoint(0, step);
    default:
        return std::nullopt;
    }
}

PictureKeys::PictureKeys(ToolCommands& commands, const Ui::Analysis_Widget& form)
    : m_commands(commands), m_form(form), m_picture(pictureWidgets(form))
{
    QWidgetList watched = m_picture;
    watched << form.pushButton_3 << form.pushButton_2 << form.pushButton_4 << form.pushButton
            << form.tableWidget << form.tableWidget_2 << form.comboBox;
    for (QWidget* widget : qAsConst(watched))
        widget->installEventFilter(this);
}

bool PictureKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        focusCame(watched, static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut:
        m_commands.record();
        break;
    case QEvent::MouseButtonPress:
        m_handIsOnPicture = watched == m_form.label;
        break;
    case QEvent::KeyPress:
        if (press(watched, *static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::KeyRelease:
        // All that a key does while it is held is one step.
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
            m_commands.record();
        break;
    case QEvent::ContextMenu:
        if (watched != m_form.label && isOnPicture(watched) &&
            static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
            m_commands.showPictureMenu(m_form.label->rect().center());
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool PictureKeys::isOnPicture(const QObject* widget) const
{
    if (widget == m_form.label)
        return true;
    const auto isWidget = [widget](const QWidget* each) {
        return each == widget;
    };
    return m_handIsOnPicture && std::any_of(m_picture.begin(), m_picture.end(), isWidget);
}

/// The window itself gives the focus for other reasons than those of keyboard and mouse. When it
/// comes back from another window or a menu, all is as before.
void PictureKeys::focusCame(const QObject* widget, Qt::FocusReason reason)
{
    switch (reason) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return;
    default:
        m_handIsOnPicture = widget == m_form.label || reason == Qt::OtherFocusReason;
    }
}

bool PictureKeys::press(const QObject* widget, const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (isOnPicture(widget) && !(modifiers & ~(Qt::ShiftModifier | Qt::AltModifier)) &&
        moveTool(event))
        return true;
    if (modifiers != Qt::NoModifier)
        return false;
    return (isOnPicture(widget) && selectTool(event.key())) || chooseMode(widget, event.key());
}

/// Without a selected tool the arrows are nobody's.
bool PictureKeys::moveTool(const QKeyEvent& event)
{
    const std::optional<QPoint> way = wayOfArrow(event);
    if (!way || !m_commands.hasSelection())
        return false;
    if (!event.isAutoRepeat())
        m_commands.record();
    const bool endOnly = event.modifiers() & Qt::AltModifier;
    m_commands.edit([&](ToolEditing& tools) {
        if (endOnly)
            overlay::moveSelectedEnd(tools, way->x(), way->y());
        else
            overlay::moveSelected(tools, way->x(), way->y());
    });
    return true;
}

bool PictureKeys::selectTool(int key)
{
    if (key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    const int step = key == Qt::Key_PageDown ? 1 : -1;
    m_commands.change([step](ToolEditing& tools) { overlay::selectNext(tools, step); });
    return true;
}

bool PictureKeys::chooseMode(const QObject* widget, int key)
{
    const auto* button = qobject_cast<const QPushButton*>(widget);
    if (m_commands.isHeld() || (button && button->isDown()))
        return false;
    int mode = int(ToolMode::Select);
    if (key != Qt::Key_Escape) {
        mode = key - Qt::Key_0;
        if (!(button || widget == m_form.label) || mode < int(ToolMode::Select) ||
            mode > int(ToolMode::Circle))
            return false;
    }
    m_commands.window().setFocus(mode);
    m_handIsOnPicture = true;
    return true;
}

} // namespace analysis
