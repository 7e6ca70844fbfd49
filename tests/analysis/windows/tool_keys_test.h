// SPDX-License-Identifier: MIT
#pragma once

#include "tests/analysis/windows/analysis_window_test.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace testing {

/// The analysis window as somebody at the keyboard has it, and its context menus.
class ToolKeysTest : public AnalysisWindowTest
{
    Q_OBJECT

protected:
    /// The picture has the focus, as after opening a photograph.
    void begin()
    {
        QVERIFY(load(flat(100)));
        show();
        QApplication::setActiveWindow(window.get());
        window->setFocus(-1);
        QTRY_VERIFY(label().hasFocus());
    }
    /// Pressed where the focus is.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window->focusWidget(), key, modifiers);
    }
    void undo() const { key(Qt::Key_Z, Qt::ControlModifier); }
    void redo() const { key(Qt::Key_Y, Qt::ControlModifier); }
    /// What a right click opens; null where nothing does.
    static QMenu* rightClick(QWidget& widget, const QPoint& place)
    {
        QTest::mousePress(&widget, Qt::RightButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
        return openMenu();
    }
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static QAction* entryOf(const QMenu& menu, const char* text)
    {
        for (QAction* action : menu.actions()) {
            if (action->text() == QString::fromUtf8(text))
                return action;
        }
        return nullptr;
    }
    /// As a click on the entry does.
    static void choose(QMenu* menu, const char* text)
    {
        QAction* entry = entryOf(*menu, text);
        QVERIFY2(entry, text);
        QVERIFY2(entry->isEnabled(), text);
        menu->close();
        entry->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// The entries that are not possible now.
    static QString greyed(const QMenu& menu)
    {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator() && !action->isEnabled())
                texts.append(action->text());
        }
        return texts.join(QLatin1Char(' '));
    }
    /// As the table lists them.
    QString names() const
    {
        QStringList names;
        for (int row = 0; row < tools().rowCount(); ++row)
            names.append(toolRow(row).first());
        return names.join(QLatin1Char(' '));
    }
    /// The tool that is marked in the table.
    QString marked() const
    {
        const auto items = tools().selectedItems();
        return items.isEmpty() ? QString() : items.first()->text();
    }
    /// A tool of each kind, the circle selected, the mode as at first.
    void drawOneOfEach()
    {
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(50, 60));
        click("pushButton_7");
        drag(at(10, 200), at(100, 250));
        click("pushButton_6");
        drag(at(100, 10), at(200, 60));
        click("pushButton_5");
        drag(at(150, 100), at(170, 100));
        click("pushButton_9");
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QCOMPARE(marked(), QStringLiteral("C0"));
    }
};

} // namespace testing
