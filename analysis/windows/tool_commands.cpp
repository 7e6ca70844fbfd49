// SPDX-License-Identifier: MIT
#include "analysis/windows/tool_commands.h"

#include "analysis/windows/analysis_tables.h"
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/beside_window.h"
#include "analysis/windows/coordinates_menu.h"
#include "analysis/windows/details_window.h"
#include "analysis/windows/histogram_window.h"
#include "analysis/windows/large_picture.h"
#include "analysis/windows/looking_menu.h"
#include "analysis/windows/magnifier.h"
#include "analysis/windows/measurement_keeping.h"
#include "analysis/windows/measurement_menu.h"
#include "analysis/windows/picture_keys.h"
#include "analysis/windows/profile_window.h"
#include "analysis/windows/spots_window.h"
#include "analysis/windows/view_menu.h"
#include "analysis/windows/viewed_photograph.h"

#include "ui_analysis_widget.h"

#include <QMouseEvent>

namespace analysis {

using overlay::ToolEditing;

ToolCommands::ToolCommands(Analysis_Widget& window, const Ui::Analysis_Widget& form)
    : m_window(window), m_form(form), m_viewed(std::make_unique<ViewedPhotograph>(window, form)),
      m_keys(std::make_unique<PictureKeys>(*this, form))
{
    CoordinatesMenu::addTo(*this);
    addOwnEntries();
    DetailsWindow::addTo(*this, form);
    ProfileWindow::addTo(*this);
    HistogramWindow::addTo(*this);
    LookingMenu::addTo(*this);
    Magnifier::addTo(*this);
    SpotsWindow::addTo(*this);
    LargePicture::addTo(*this, form);
    MeasurementMenu::addTo(*this);
    ViewMenu::addTo(*this, form);
    m_keeping = std::make_unique<MeasurementKeeping>(*this, form);
    m_history.restart(state());
    m_told = state();
    // After the window, which has heard of each of these before.
    connect(form.label, &MyLabel::updat_Tool, this, &ToolCommands::record);
    for (const QPushButton* button : {form.pushButton_3, form.pushButton_4})
        connect(button, &QPushButton::clicked, this, &ToolCommands::record);
    connect(form.tableWidget, &QTableWidget::itemClicked, this, &ToolCommands::record);

    form.label->installEventFilter(this);
    for (QWidget* widget : {static_cast<QWidget*>(form.label), //
                            static_cast<QWidget*>(form.tableWidget)})
        widget->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(form.label, &QWidget::customContextMenuRequested, this, &ToolCommands::showPictureMenu);
    connect(form.tableWidget, &QWidget::customContextMenuRequested, this,
            &ToolCommands::showTableMenu);
}

/// Whatever closes the photograph, its tools are not lost. The windows beside it go before what
/// they look at.
ToolCommands::~ToolCommands()
{
    qDeleteAll(m_window.findChildren<BesideWindow*>(QString(), Qt::FindDirectChildrenOnly));
    MeasurementMenu::remember(state().tools);
}

void ToolCommands::addOwnEntries()
{
    add({Group::Tool,
         tr("删除所选工具"),
         [this] { change([](ToolEditing& tools) { overlay::removeSelectedTool(tools); }); },
         {QKeySequence(Qt::Key_Delete)},
         Focus::PictureOrTable,
         Menus::Both,
         [this] {
             return hasSelection();
         }});
    add({Group::History,
         tr("撤销"),
         [this] { goTo(&overlay::ToolHistory::undo); },
         {QKeySequence::fromString(QStringLiteral("Ctrl+Z"))},
         Focus::Window,
         Menus::Both,
         [this] {
             return m_history.canUndo();
         }});
    add({Group::History,
         tr("重做"),
         [this] { goTo(&overlay::ToolHistory::redo); },
         {QKeySequence::fromString(QStringLiteral("Ctrl+Shift+Z")),
          QKeySequence::fromString(QStringLiteral("Ctrl+Y"))},
         Focus::Window,
         Menus::Both,
         [this] {
             return m_history.canRedo();
         }});
    add({Group::Photographs,
         tr("上一张照片"),
         [this] { emit stepRequested(-1); },
         {QKeySequence::fromString(QStringLiteral("Ctrl+PgUp"))},
         Focus::Window,
         Menus::Picture});
    add({Group::Photographs,
         tr("下一张照片"),
         [this] { emit stepRequested(1); },
         {QKeySequence::fromString(QStringLiteral("Ctrl+PgDown"))},
         Focus::Window,
         Menus::Picture});
}

QAction* ToolCommands::add(const Entry& entry)
{
    auto* action = new QAction(entry.text, this);
    action->setShortcuts(entry.shortcuts);
    connect(action, &QAction::triggered, this, [this, entry] {
        if (entry.group == Group::Tool)
            takeMarkedRow();
        record();
        entry.run();
    });
    listen(action, entry.focus);
    m_entries.push_back({entry, action});
    return action;
}

void ToolCommands::listen(QAction* action, Focus focus)
{
    action->setShortcutContext(focus == Focus::Window ? Qt::WidgetWithChildrenShortcut
                                                      : Qt::WidgetShortcut);
    if (focus == Focus::Window)
        m_window.addAction(action);
    if (focus == Focus::Table || focus == Focus::PictureOrTable)
        m_form.tableWidget->addAction(action);
    if (focus == Focus::Picture || focus == Focus::PictureOrTable) {
        for (QWidget* widget : pictureWidgets(m_form))
            widget->addAction(action);
    }
}

// --- tools and history -------------------------------------------------------------------------

overlay::ToolsState ToolCommands::state() const
{
    return overlay::stateOf(*m_form.label);
}

bool ToolCommands::hasTools() const
{
    return overlay::countOf(state().tools) > 0;
}

bool ToolCommands::hasSelection() const
{
    return overlay::selectedPlace(state().tools) >= 0;
}

void ToolCommands::change(const std::function<void(ToolEditing&)>& editing)
{
    record();
    edit(editing);
    record();
}

void ToolCommands::edit(const std::function<void(ToolEditing&)>& editing)
{
    if (m_isHeld)
        return;
    // The tool that stands prepared to be placed is in nobody's way meanwhile.
    static_cast<overlay::Tools&>(*m_form.label) = state().tools;
    editing(*m_form.label);
    overlay::restore(*m_form.label, state());
    show();
}

void ToolCommands::goTo(const overlay::ToolsState& (overlay::ToolHistory::*step)())
{
    if (m_isHeld || m_isStepOpen)
        return;
    overlay::restore(*m_form.label, (m_history.*step)());
    show();
    tell();
}

/// As after a release of the mouse.
void ToolCommands::show()
{
    m_form.label->update();
    m_window.selectedRow = rowOfSelection(state().tools);
    m_window.updat_Tool_Temp();
    m_viewed->look();
}

void ToolCommands::record()
{
    if (m_isHeld || m_isStepOpen)
        return; // the gesture is not over
    m_history.record(state());
    tell();
}

void ToolCommands::beginStep()
{
    record();
    m_isStepOpen = true;
}

void ToolCommands::endStep()
{
    m_isStepOpen = false;
    record();
}

void ToolCommands::restart(const overlay::ToolsState& state)
{
    overlay::restore(*m_form.label, state);
    show();
    m_told = this->state();
    m_history.restart(m_told);
}

void ToolCommands::tell()
{
    overlay::ToolsState now = state();
    if (now == m_told)
        return;
    m_told = std::move(now);
    m_viewed->look();
    emit changed();
}

bool ToolCommands::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        record();
        [[fallthrough]];
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        m_isHeld = static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

// --- the context menus -------------------------------------------------------------------------

void ToolCommands::showPictureMenu(const QPoint& place)
{
    if (m_form.label->toolMode == int(overlay::ToolMode::Select))
        popUp(Menus::Picture, m_form.label->mapToGlobal(place));
}

void ToolCommands::showTableMenu(const QPoint& place)
{
    selectMarkedRow();
    popUp(Menus::Table, m_form.tableWidget->viewport()->mapToGlobal(place));
}

/// The menu is not waited for, so the window can go while it is open.
void ToolCommands::popUp(Menus menus, const QPoint& globalPlace)
{
    m_isHeld = false; // the release of the button that opens it goes to the menu
    record();
    m_menu = new QMenu(&m_window);
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int group = int(Group::Tool); group <= int(Group::Photographs); ++group) {
        m_menu->addSeparator(); // at the ends, and one after the other, they do not show
        for (const Hung& hung : m_entries) {
            if (int(hung.entry.group) != group ||
                (hung.entry.menus != menus && hung.entry.menus != Menus::Both))
                continue;
            hung.action->setEnabled(!hung.entry.isPossible || hung.entry.isPossible());
            m_menu->addAction(hung.action);
        }
    }
    // What is possible changes without a word; shortcuts are asked again each time.
    connect(m_menu, &QMenu::aboutToHide, this, [this] {
        for (const Hung& hung : m_entries)
            hung.action->setEnabled(true);
    });
    m_menu->popup(globalPlace);
}

/// A shortcut pressed in the table means the row that is marked there; a menu that was opened on
/// the picture means the selected tool.
void ToolCommands::takeMarkedRow()
{
    if (!m_menu && m_window.focusWidget() == m_form.tableWidget)
        selectMarkedRow();
}

/// The keyboard moves the mark in the table without selecting the tool, and so does a right click.
void ToolCommands::selectMarkedRow()
{
    const QModelIndexList rows = m_form.tableWidget->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    edit([&](ToolEditing& tools) {
        tools.currentType = QStringLiteral("null");
        overlay::selectNext(tools, rows.first().row() + 1);
    });
}

} // namespace analysis
