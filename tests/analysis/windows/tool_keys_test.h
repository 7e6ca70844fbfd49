// SPDX-License-Identifier: MIT
#pragma once

#include "tests/analysis/windows/analysis_window_test.h"

namespace testing {

/// The analysis window as somebody at the keyboard has it.
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
