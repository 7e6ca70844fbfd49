// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/tool_history.h"

#include <QKeySequence>
#include <QMenu>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

class Analysis_Widget;

namespace Ui {
class Analysis_Widget;
}

namespace analysis {

class MeasurementKeeping;
class PictureKeys;
class ViewedPhotograph;

/// What can be done in an analysis window beside its own buttons: undo and redo, and the entries of
/// two context menus, with their shortcuts. Whoever offers more hangs it in here.
///
/// Stands beside the window and changes the tools of its label. While a mouse button is held on the
/// picture, no command changes them. GUI thread only.
class ToolCommands : public QObject
{
    Q_OBJECT

public:
    /// Each is a group of its own in the menus, in this order.
    enum class Group
    {
        Tool,    ///< the selected tool
        Looking, ///< windows beside the picture, and other ways to see it
        History,
        Copies,       ///< pictures, temperatures and tables, copied or saved
        Measurements, ///< all tools, copied or saved
        Keeping,      ///< what happens by itself
        Photographs   ///< other photographs
    };
    enum class Menus
    {
        Both,
        Picture,
        Table
    };
    /// Where the focus has to be for an entry's shortcuts. Those of the picture are also those of
    /// the five buttons that choose a tool: one of them has the focus while tools are drawn.
    enum class Focus
    {
        Window,
        Picture,
        Table,
        PictureOrTable
    };
    struct Entry
    {
        Group group;
        QString text;
        std::function<void()> run; ///< also by shortcut when the entry is not possible
        QList<QKeySequence> shortcuts = {};
        Focus focus = Focus::Window;
        Menus menus = Menus::Both;
        std::function<bool()> isPossible =
            {}; ///< asked when a menu opens; always, if there is none
    };

    /// Far more tools than anybody places on a picture, and no more than table and history bear.
    /// Who adds many at once keeps to it.
    static constexpr int mostTools = 1000;

    /// The form is the window's, set up already. Both must outlive the commands.
    ToolCommands(Analysis_Widget& window, const Ui::Analysis_Widget& form);
    ~ToolCommands() override;

    /// Adds an entry at the end of its group. The action belongs to the commands; it may be made
    /// checkable.
    QAction* add(const Entry& entry);

    Analysis_Widget& window() const { return m_window; }
    /// The finished tools, the selection and the colour of new tools, as they are now.
    overlay::ToolsState state() const;
    bool hasTools() const;
    bool hasSelection() const;
    /// While it is true, nothing changes the tools but the mouse.
    bool isHeld() const { return m_isHeld; }

    /// Changes tools or selection and shows them; one step to undo.
    void change(const std::function<void(overlay::ToolEditing&)>& editing);
    /// The same, but a step only when record() is called, or before the next command.
    void edit(const std::function<void(overlay::ToolEditing&)>& editing);
    /// Makes a step of what is other than after the last one.
    void record();

    /// Whatever edit() does from beginStep() on is one step, which endStep() makes; nobody is told
    /// before.
    void beginStep();
    void endStep();
    /// Shows other tools, before which there is nothing to undo, and tells nobody.
    void restart(const overlay::ToolsState& state);

    MeasurementKeeping& keeping() { return *m_keeping; }
    ViewedPhotograph& viewed() const { return *m_viewed; }

    /// Selects the tool that is marked in the table, if the table has the focus: the keyboard moves
    /// the mark without selecting.
    void takeMarkedRow();

    /// Opens the picture's menu in select mode; in the other modes a press places a tool. The place
    /// is in the label's pixels.
    void showPictureMenu(const QPoint& place);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Tools, selection or colour are other than they were told before.
    void changed();
    /// The photograph so many places further in the folder is to be opened in place of this one,
    /// whose window may end with it: to be connected queued.
    void stepRequested(int step);

private:
    struct Hung
    {
        Entry entry;
        QAction* action;
    };

    void addOwnEntries();
    void listen(QAction* action, Focus focus);
    void goTo(const overlay::ToolsState& (overlay::ToolHistory::*step)());
    void show();
    void tell();
    void showTableMenu(const QPoint& place);
    void popUp(Menus menus, const QPoint& globalPlace);
    void selectMarkedRow();

    Analysis_Widget& m_window;
    const Ui::Analysis_Widget& m_form;
    const std::unique_ptr<ViewedPhotograph> m_viewed;
    const std::unique_ptr<PictureKeys> m_keys;
    std::vector<Hung> m_entries;
    overlay::ToolHistory m_history;
    overlay::ToolsState m_told;
    QPointer<QMenu> m_menu; ///< while one is open, and until what it triggered is done
    bool m_isHeld = false;
    bool m_isStepOpen = false;
    std::unique_ptr<MeasurementKeeping> m_keeping; ///< goes first: it keeps what there is
};

} // namespace analysis
