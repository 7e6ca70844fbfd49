// SPDX-License-Identifier: MIT
#include "analysis/windows/beside_window.h"

#include <QAbstractSpinBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace analysis {

BesideWindow::BesideWindow(ViewedPhotograph& viewed, const QString& title)
    : QWidget(&viewed.window(), Qt::Window), m_viewed(viewed), m_title(title)
{
    setAttribute(Qt::WA_DeleteOnClose);
    connect(&viewed, &ViewedPhotograph::changed, this, [this] {
        if (isVisible())
            take();
    });
}

void BesideWindow::take()
{
    setWindowTitle(QStringLiteral("%1 - %2").arg(m_title, m_viewed.name()));
    refresh();
}

void BesideWindow::showEvent(QShowEvent* event)
{
    take();
    QWidget::showEvent(event);
}

/// At the right edge of the picture's window, beside it where the screen has room; each further one
/// a little lower and further left.
void BesideWindow::appear()
{
    constexpr int step = 32;
    int others = 0;
    for (const QObject* sibling : page().children())
        others += qobject_cast<const BesideWindow*>(sibling) ? 1 : 0;
    const QRect around = page().window()->frameGeometry();
    const QScreen* screen = QGuiApplication::screenAt(around.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    take(); // tells how large it wants to be
    adjustSize();
    // A spin box waits in its context menu; nothing may end below that.
    for (QAbstractSpinBox* box : findChildren<QAbstractSpinBox*>())
        box->setContextMenuPolicy(Qt::NoContextMenu);
    const int down = step * (others - 1); // this one is among them
    const int x = std::min(around.right(), room.right() - width()) - down;
    const int y = std::min(around.top() + step, room.bottom() - height()) + down;
    move(std::max(x, room.left()), std::max(std::min(y, room.bottom() - step), room.top()));
    show();
}

void BesideWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace analysis
