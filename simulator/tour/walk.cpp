// SPDX-License-Identifier: MIT
#include "simulator/tour/walk.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPixmap>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyleOptionButton>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <utility>

namespace tour {
namespace {

/// Menus fade in, window managers draw their frames: what a person sees before they look.
constexpr int glance = 250; // ms

/// Where a person aims: a tick box is hit at its box, for its text may end before its middle.
QPoint target(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(box);
        return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
    }
    return widget.rect().center();
}

} // namespace

Walk::Walk(QString language, QString folder)
    : m_language(std::move(language)), m_folder(std::move(folder)), m_panel(m_imager)
{
    m_window.show();
}

void Walk::await(const char* what, const std::function<bool()>& condition)
{
    constexpr int patience = 15000; // ms
    if (QTest::qWaitFor(condition, patience))
        return;
    shoot("failed");
    throw std::runtime_error(what);
}

void Walk::awaitMode(int mode)
{
    await("the program changes its mode", [this, mode] { return m_window.mode() == mode; });
}

void Walk::click(QWidget& widget, const QRect& entry)
{
    const auto place = [&] {
        return entry.isNull() ? target(widget) : entry.center();
    };
    await(qPrintable(QStringLiteral("%1 can be clicked").arg(widget.objectName())), [&] {
        return widget.isVisible() && widget.isEnabled() && widget.visibleRegion().contains(place());
    });
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place());
}

void Walk::doubleClick(QWidget& widget, const QRect& entry)
{
    click(widget, entry);
    QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier,
                       entry.isNull() ? target(widget) : entry.center());
}

void Walk::drag(QWidget& widget, QPoint from, QPoint to)
{
    constexpr int steps = 12;
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= steps; ++step) {
        const QPoint place = from + (to - from) * step / steps;
        // Not QTest::mouseMove, which moves the pointer without a button held down.
        QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &move);
        QCoreApplication::processEvents();
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, to);
}

void Walk::openMenu(int menu)
{
    QMenuBar* bar = m_window.menuBar();
    QAction* action = bar->actions().at(menu);
    click(*bar, bar->actionGeometry(action));
    await("the menu opens", [action] { return action->menu()->isVisible(); });
}

void Walk::chooseEntry(int menu, int entry)
{
    QMenu* opened = m_window.menuBar()->actions().at(menu)->menu();
    QAction* action = opened->actions().at(entry);
    await("the menu's entry is enabled", [action] { return action->isEnabled(); });
    click(*opened, opened->actionGeometry(action));
    await("the menu closes", [opened] { return !opened->isVisible(); });
}

void Walk::answerDialogs(const std::function<void()>& open,
                         const std::vector<std::function<void(QDialog&)>>& answers)
{
    std::size_t answered = 0;
    bool isAnswering = false;
    std::exception_ptr failure; // not through Qt's event loop
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (isAnswering || dialog == nullptr || !dialog->isVisible())
            return;
        const QScopedValueRollback<bool> answering(isAnswering, true);
        try {
            answers.at(answered++)(*dialog);
        } catch (...) {
            failure = std::current_exception();
            dialog->reject();
        }
    });
    timer.start(glance);
    open();
    if (failure)
        std::rethrow_exception(failure);
    await("every dialog came", [&] { return answered == answers.size(); });
}

QString Walk::pathOf(const QString& name) const
{
    return QStringLiteral("%1/%2-%3").arg(m_folder, m_language, name);
}

void Walk::shoot(const char* name)
{
    QTest::qWait(glance);
    QRect shown;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            shown |= widget->frameGeometry();
    }
    QScreen* screen = QGuiApplication::primaryScreen();
    shown &= screen->geometry();
    const QString path = pathOf(QStringLiteral("%1-%2.png")
                                    .arg(++m_pictures, 2, 10, QLatin1Char('0'))
                                    .arg(QLatin1String(name)));
    const QPixmap picture =
        screen->grabWindow(0, shown.x(), shown.y(), shown.width(), shown.height());
    if (picture.isNull() || !picture.save(path))
        throw std::runtime_error(qPrintable(path + QStringLiteral(" is written")));
    std::puts(qPrintable(path));
    std::fflush(stdout);
}

} // namespace tour
