// SPDX-License-Identifier: MIT
#include "analysis/windows/coordinates_menu.h"
#include "analysis/windows/tool_commands.h"
#include "dialogs/dialogs.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QSignalSpy>
#include <QSpinBox>

/// Exact coordinates, from the keyboard and the menus of the analysis window.
class CoordinatesMenuTest : public testing::ToolKeysTest
{
    Q_OBJECT

    CoordinatesDialog* dialog() const { return window->findChild<CoordinatesDialog*>(); }
    void type(const char* number, int value) const
    {
        testing::part<QSpinBox>(dialog(), number)->setValue(value);
    }
    void comeBack() const
    {
        QTRY_VERIFY(!dialog());
        QApplication::setActiveWindow(window.get()); // as a window manager does
    }
    void accept() const
    {
        dialog()->accept();
        comeBack();
    }
    void cancel() const
    {
        dialog()->reject();
        comeBack();
    }

private slots:
    void theKeysOpenIt_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("inTable");
        for (const bool inTable : {false, true}) {
            const char* place = inTable ? "table" : "picture";
            QTest::addRow("F2, %s", place) << int(Qt::Key_F2) << inTable;
            QTest::addRow("Return, %s", place) << int(Qt::Key_Return) << inTable;
            QTest::addRow("Enter, %s", place) << int(Qt::Key_Enter) << inTable;
        }
    }
    void theKeysOpenIt()
    {
        QFETCH(const int, key);
        QFETCH(const bool, inTable);
        begin();
        drawOneOfEach();
        window->setFocus(-1);
        if (inTable) {
            tools().setFocus();
            tools().selectRow(1);
        }
        QTest::keyClick(window->focusWidget(), Qt::Key(key));
        QVERIFY(dialog() && dialog()->isVisible());
        QVERIFY(dialog()->windowTitle().endsWith(inTable ? QStringLiteral("L0")
                                                         : QStringLiteral("C0")));
        cancel();
    }

    /// The picture and the table follow each number; all of them are one step.
    void allThatIsTypedIsOneStep()
    {
        begin();
        drawOneOfEach();
        window->setFocus(-1);
        const QSignalSpy told(&window->commands(), &analysis::ToolCommands::changed);
        key(Qt::Key_F2);
        type("number1", 50);
        QCOMPARE(label().circleList.first().cx, 50);
        type("number3", 7);
        QCOMPARE(label().circleList.first().radius, 7);
        QCOMPARE(told.size(), 0);
        accept();
        QCOMPARE(told.size(), 1);
        QCOMPARE(marked(), QStringLiteral("C0"));
        undo();
        QCOMPARE(label().circleList.first().cx, 150);
        QCOMPARE(label().circleList.first().radius, 20);
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        redo();
        QCOMPARE(label().circleList.first().cx, 50);
        QCOMPARE(label().circleList.first().radius, 7);
    }

    void cancelledIsNoStep()
    {
        begin();
        drawOneOfEach();
        window->setFocus(-1);
        const overlay::ToolsState before = window->commands().state();
        const QSignalSpy told(&window->commands(), &analysis::ToolCommands::changed);
        key(Qt::Key_F2);
        type("number1", 50);
        cancel();
        QVERIFY(window->commands().state() == before);
        QCOMPARE(told.size(), 0);
        key(Qt::Key_Insert);
        QCOMPARE(label().pointList.size(), 2);
        QCOMPARE(tools().rowCount(), 5);
        cancel();
        QVERIFY(window->commands().state() == before);
        QCOMPARE(told.size(), 0);
        undo(); // the circle, and nothing before it
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
    }

    /// Without a selection, and of the kind that the mouse would place.
    void aNewToolOfThePresentMode()
    {
        begin();
        key(Qt::Key_4);
        key(Qt::Key_F2);
        QVERIFY(dialog()->isForNewTool());
        QCOMPARE(label().rectList.size(), 2); // and the one that is prepared for the mouse
        type("number1", 11);
        accept();
        QCOMPARE(names(), QStringLiteral("R0"));
        QCOMPARE(label().rectList.first().x1, 11);
        QCOMPARE(label().toolMode, 4);
        drag(at(100, 10), at(200, 60)); // the mouse places the next one
        QCOMPARE(names(), QStringLiteral("R0 R1"));
        undo();
        QCOMPARE(names(), QStringLiteral("R0"));
        undo();
        QCOMPARE(names(), QString());
    }

    /// Shortcuts of a page that a dialog stands before are nobody's, but code may call.
    void undoWaitsForTheDialog()
    {
        begin();
        drawOneOfEach();
        window->setFocus(-1);
        key(Qt::Key_F2);
        type("number1", 50);
        for (QAction* action : window->actions()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Undo))
                action->trigger();
        }
        QCOMPARE(label().circleList.first().cx, 50);
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        cancel();
        QCOMPARE(label().circleList.first().cx, 150);
    }

    void whileAToolIsDrawnNothingOpens()
    {
        begin();
        drawOneOfEach();
        window->setFocus(-1);
        click("pushButton_7");
        QTest::mousePress(&label(), Qt::LeftButton, {}, at(10, 10));
        key(Qt::Key_F2);
        QVERIFY(!dialog());
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, at(30, 30));
    }

    void aPageThatEndsTakesItAlong()
    {
        begin();
        drawOneOfEach();
        window->setFocus(-1);
        key(Qt::Key_F2);
        type("number1", 50);
        dialogs::end(window.release());
    }
};

int main(int argc, char** argv)
{
    return testing::run<CoordinatesMenuTest>(argc, argv);
}

#include "coordinates_menu_test.moc"
