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
#include <QScreen>
#include <QStyleOptionButton>
#include <QTest>
#include <QTimer>

#include <cstdio>
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

bool Walk::await(const QString& what, const std::function<bool()>& condition, int milliseconds)
{
    m_lastWait = what;
    return QTest::qWaitFor(condition, milliseconds);
}

bool Walk::awaitMode(int mode, const QString& what)
{
    return await(what, [this, mode] { return m_window.mode() == mode; });
}

bool Walk::click(QWidget* widget)
{
    if (!await(QStringLiteral("%1 can be clicked").arg(widget->objectName()), [widget] {
            return widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty();
        }))
        return false;
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, target(*widget));
    return true;
}

bool Walk::doubleClick(QWidget* widget)
{
    if (!click(widget))
        return false;
    QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, target(*widget));
    return true;
}

bool Walk::clickItem(QWidget* viewport, const QRect& item)
{
    if (!await(QStringLiteral("an entry of a list is in view"),
               [&] { return viewport->isVisible() && viewport->rect().contains(item.center()); }))
        return false;
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, item.center());
    return true;
}

bool Walk::doubleClickItem(QWidget* viewport, const QRect& item)
{
    QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, item.center());
    return true;
}

bool Walk::drag(QWidget* widget, QPoint from, QPoint to)
{
    constexpr int steps = 12;
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= steps; ++step) {
        const QPoint place = from + (to - from) * step / steps;
        // Not QTest::mouseMove, which moves the pointer without a button held down.
        QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &move);
        QCoreApplication::processEvents();
    }
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
    return true;
}

bool Walk::press(QWidget* widget, Qt::Key key)
{
    QTest::keyClick(widget, key);
    return true;
}

bool Walk::openMenu(int menu)
{
    QMenuBar* bar = m_window.menuBar();
    QAction* action = bar->actions().at(menu);
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(action).center());
    return await(QStringLiteral("the menu opens"),
                 [action] { return action->menu()->isVisible(); });
}

bool Walk::chooseEntry(int menu, int entry)
{
    QMenu* opened = m_window.menuBar()->actions().at(menu)->menu();
    QAction* action = opened->actions().at(entry);
    if (!await(QStringLiteral("the menu entry %1 is enabled").arg(action->text()),
               [=] { return opened->isVisible() && action->isEnabled(); }))
        return false;
    QTest::mouseClick(opened, Qt::LeftButton, Qt::NoModifier,
                      opened->actionGeometry(action).center());
    return await(QStringLiteral("the menu closes"), [opened] { return !opened->isVisible(); });
}

bool Walk::answerDialogs(const QString& what, const std::function<bool()>& open,
                         const std::vector<std::function<bool(QDialog&)>>& answers)
{
    std::size_t answered = 0;
    bool isAnswering = false;
    bool isGood = true;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (isAnswering || dialog == nullptr || !dialog->isVisible())
            return;
        isAnswering = true;
        isGood = isGood && answered < answers.size() && answers[answered](*dialog);
        ++answered;
        if (!isGood)
            dialog->reject();
        isAnswering = false;
    });
    timer.start(glance);
    const bool isDone = open() && isGood && answered == answers.size();
    m_lastWait = what;
    return isDone;
}

QString Walk::pathOf(const QString& name) const
{
    return QStringLiteral("%1/%2-%3").arg(m_folder, m_language, name);
}

bool Walk::shoot(const QString& name)
{
    QTest::qWait(glance);
    QRect shown;
    for (const QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible())
            shown |= widget->frameGeometry();
    QScreen* screen = QGuiApplication::primaryScreen();
    shown &= screen->geometry();
    const QString path =
        pathOf(QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name));
    m_lastWait = QStringLiteral("%1 is written").arg(path);
    const QPixmap picture =
        screen->grabWindow(0, shown.x(), shown.y(), shown.width(), shown.height());
    if (picture.isNull() || !picture.save(path))
        return false;
    std::puts(qPrintable(path));
    std::fflush(stdout);
    return true;
}

} // namespace tour
