// SPDX-License-Identifier: MIT
#include "analysis/windows/tool_commands.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/dialogs.h"

#include <QColorDialog>
#include <QPointer>
#include <QSignalSpy>

/// Undo and redo, keys and context menus of the analysis window.
class ToolCommandsTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void eachGestureIsOneStep()
    {
        begin();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(50, 60));
        QCOMPARE(names(), QStringLiteral("P0"));
        click("pushButton_7");
        drag(at(10, 200), at(100, 250));
        click("pushButton_6");
        drag(at(100, 10), at(200, 60));
        click("pushButton_5");
        drag(at(150, 100), at(170, 100));
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        click("pushButton_9");
        drag(at(48, 58), at(80, 90)); // moves the point
        QCOMPARE(label().pointList.first().x, 80);
        click("pushButton_2");
        QCOMPARE(names(), QString());

        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QCOMPARE(label().pointList.first().x, 80);
        undo();
        QCOMPARE(label().pointList.first().x, 50);
        for (const char* left : {"P0 L0 R0", "P0 L0", "P0", "", ""}) {
            undo();
            QCOMPARE(names(), QString::fromLatin1(left));
        }
        for (const char* there : {"P0", "P0 L0", "P0 L0 R0", "P0 L0 R0 C0"}) {
            redo();
            QCOMPARE(names(), QString::fromLatin1(there));
        }
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(label().pointList.first().x, 80);
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(names(), QString());
        redo();
        QCOMPARE(names(), QString());
    }

    void deletingIsAStepWhoeverDeletes()
    {
        begin();
        drawOneOfEach();
        key(Qt::Key_Delete);
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
        QCOMPARE(marked(), QString());
        key(Qt::Key_Delete); // nothing is selected
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QCOMPARE(marked(), QStringLiteral("C0"));
        key(Qt::Key_PageUp);
        const QSignalSpy changed(&window->commands(), &analysis::ToolCommands::changed);
        click("pushButton_3");
        QCOMPARE(changed.count(), 1);
        QCOMPARE(names(), QStringLiteral("P0 L0 C0"));
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QCOMPARE(marked(), QStringLiteral("R0"));
        QCOMPARE(label().currentType, QStringLiteral("R"));
        redo();
        QCOMPARE(names(), QStringLiteral("P0 L0 C0"));
    }

    void deletingByKeyKeepsTheToolInHand()
    {
        begin();
        drawOneOfEach();
        key(Qt::Key_2);
        key(Qt::Key_Delete);
        QVERIFY(child<QPushButton>("pushButton_8").hasFocus());
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 30));
        QCOMPARE(names(), QStringLiteral("P0 P1 L0 R0"));
    }

    void theColourOfNewToolsIsAStep()
    {
        begin();
        const testing::Answer<QColorDialog> blue([](QColorDialog& dialog) {
            dialog.setCurrentColor(Qt::blue);
            dialog.accept();
        });
        const QSignalSpy changed(&window->commands(), &analysis::ToolCommands::changed);
        click("pushButton_4");
        QVERIFY(blue.wasAsked());
        QCOMPARE(changed.count(), 1);
        QApplication::setActiveWindow(window.get());
        QVERIFY(label().toolColor == QColor(Qt::blue));
        window->setFocus(-1);
        undo();
        QVERIFY(label().toolColor == QColor(Qt::red));
        redo();
        QVERIFY(label().toolColor == QColor(Qt::blue));
    }

    void aPressThatPlacesNothingIsNoStep()
    {
        begin();
        drawOneOfEach();
        click("pushButton_7");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 30)); // no line without a drag
        click("pushButton_9");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(150, 30)); // selects
        QCOMPARE(marked(), QStringLiteral("R0"));
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
        redo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QCOMPARE(marked(), QStringLiteral("R0"));
    }

    void inAModeThatPlacesToolsOneStandsPreparedAfterUndo()
    {
        begin();
        drawOneOfEach();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 30));
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(40, 50));
        QCOMPARE(names(), QStringLiteral("P0 P1 L0 R0 C0"));
        QCOMPARE(marked(), QStringLiteral("P1"));
        QCOMPARE(label().pointList.at(0).x, 50);
        QCOMPARE(label().pointList.at(1).x, 40);
    }

    void whileAButtonIsHeldNothingElseChangesTools()
    {
        begin();
        drawOneOfEach();
        click("pushButton_6");
        QTest::mousePress(&label(), Qt::LeftButton, {}, at(10, 100));
        QMouseEvent move(QEvent::MouseMove, at(60, 150), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&label(), &move);
        undo();
        key(Qt::Key_Delete);
        key(Qt::Key_Left);
        key(Qt::Key_PageUp);
        key(Qt::Key_Escape);
        QCOMPARE(label().toolMode, 4);
        QVERIFY(label().drawing);
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, at(60, 150));
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 R1 C0"));
        QCOMPARE(label().rectList.at(1).x2, 60);
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
    }

    void theMenuOfThePictureOpensInSelectModeOnly()
    {
        begin();
        drawOneOfEach();
        QMenu* menu = rightClick(label(), at(150, 30));
        QVERIFY(menu);
        // The press itself has selected, as ever.
        QCOMPARE(marked(), QStringLiteral("R0"));
        QVERIFY(greyed(*menu).contains(QStringLiteral("重做")));
        QVERIFY(!greyed(*menu).contains(QStringLiteral("撤销")));
        choose(menu, "删除所选工具");
        QCOMPARE(names(), QStringLiteral("P0 L0 C0"));
        undo();
        for (const char* button :
             {"pushButton_8", "pushButton_7", "pushButton_6", "pushButton_5"}) {
            click(button);
            QVERIFY(!rightClick(label(), at(20, 30)));
            QTest::mouseRelease(&label(), Qt::RightButton, {}, at(20, 30));
        }
        QCOMPARE(names(), QStringLiteral("P0 P1 L0 R0 C0")); // the right button places tools, too
    }

    void theMenuOfThePictureOpensByKeyAsWell()
    {
        begin();
        drawOneOfEach();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&child<QPushButton>("pushButton_9"), &event);
        QVERIFY(openMenu());
        QVERIFY(entryOf(*openMenu(), "上一张照片"));
        openMenu()->close();
    }

    void anEmptyWindowHasNothingToUndoOrDelete()
    {
        begin();
        QMenu* menu = rightClick(label(), at(150, 30));
        for (const char* entry : {"删除所选工具", "撤销 重做", "保存测量..."})
            QVERIFY2(greyed(*menu).contains(QString::fromUtf8(entry)), entry);
        menu->close();
        // What was not possible in the menu works by key once it is.
        drawOneOfEach();
        key(Qt::Key_Delete);
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
    }

    void theMenuOfTheTableMeansTheMarkedRow()
    {
        begin();
        drawOneOfEach();
        tools().setFocus(Qt::MouseFocusReason);
        const QPoint row = tools().visualItemRect(tools().item(1, 0)).center();
        QMenu* menu = rightClick(*tools().viewport(), row);
        QVERIFY(menu);
        QVERIFY(!entryOf(*menu, "上一张照片"));
        choose(menu, "删除所选工具");
        QCOMPARE(names(), QStringLiteral("P0 R0 C0"));
        // And so does the key.
        tools().selectRow(1);
        key(Qt::Key_Delete);
        QCOMPARE(names(), QStringLiteral("P0 C0"));
        undo();
        QCOMPARE(names(), QStringLiteral("P0 R0 C0"));
        QCOMPARE(marked(), QStringLiteral("R0"));
    }

    void theRowThatIsMarkedIsCountedWithoutTheToolInPreparation()
    {
        begin();
        drawOneOfEach();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 30));
        tools().setFocus(Qt::MouseFocusReason);
        tools().selectRow(0);
        key(Qt::Key_Delete); // P0: the next to be placed stands first in the list
        QCOMPARE(names(), QStringLiteral("P1 L0 R0 C0"));
        tools().selectRow(0);
        key(Qt::Key_Delete);
        QCOMPARE(names(), QStringLiteral("L0 R0 C0"));
    }

    void whoHangsInIsToldOfEachChange()
    {
        begin();
        QSignalSpy changed(&window->commands(), &analysis::ToolCommands::changed);
        drawOneOfEach();
        QCOMPARE(changed.count(), 4);
        undo();
        QCOMPARE(changed.count(), 5);
        key(Qt::Key_Left);
        QCOMPARE(changed.count(), 6);
        window->commands().record();
        undo();
        undo();
        QCOMPARE(changed.count(), 8);
    }

    void theWindowMayGoWhileItsMenuIsOpen()
    {
        begin();
        const QPointer<QMenu> menu = rightClick(label(), at(150, 30));
        QVERIFY(menu);
        window.reset();
        QVERIFY(!menu);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolCommandsTest>(argc, argv);
}

#include "tool_commands_test.moc"
