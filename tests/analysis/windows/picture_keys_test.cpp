// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/tool_keys_test.h"

/// Plain keys in the analysis window, on the picture and beside it.
class PictureKeysTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void arrowsMoveTheSelectedTool()
    {
        begin();
        drawOneOfEach();
        const overlay::CircleTool drawn = label().circleList.first();
        key(Qt::Key_Left);
        key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(label().circleList.first().cx, drawn.cx - 1);
        QCOMPARE(label().circleList.first().cy, drawn.cy + 10);
        QCOMPARE(label().circleList.first().radius, drawn.radius);
        key(Qt::Key_Right, Qt::AltModifier);
        key(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(label().circleList.first().radius, drawn.radius + 1 - 10);
        QCOMPARE(marked(), QStringLiteral("C0"));
        for (int presses = 0; presses < 4; ++presses)
            undo();
        QVERIFY(label().circleList.first() == drawn);
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
    }

    void aKeyThatIsHeldIsOneStep()
    {
        begin();
        drawOneOfEach();
        const int drawn = label().circleList.first().cx;
        QTest::keyPress(window->focusWidget(), Qt::Key_Left);
        for (int repeats = 0; repeats < 5; ++repeats) {
            QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Left, {}, {}, true);
            QCoreApplication::sendEvent(window->focusWidget(), &repeat);
        }
        QTest::keyRelease(window->focusWidget(), Qt::Key_Left);
        key(Qt::Key_Right);
        QCOMPARE(label().circleList.first().cx, drawn - 5);
        undo();
        QCOMPARE(label().circleList.first().cx, drawn - 6);
        undo();
        QCOMPARE(label().circleList.first().cx, drawn);
        redo();
        QCOMPARE(label().circleList.first().cx, drawn - 6);
    }

    void pageKeysWalkThroughTheTools()
    {
        begin();
        drawOneOfEach();
        for (const char* name : {"P0", "L0", "R0", "C0", "P0"}) {
            key(Qt::Key_PageDown);
            QCOMPARE(marked(), QString::fromLatin1(name));
        }
        key(Qt::Key_PageUp);
        QCOMPARE(marked(), QStringLiteral("C0"));
        QCOMPARE(label().currentType, QStringLiteral("C"));
        // Walking is no step to undo.
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
    }

    void digitsChooseTheToolAndEscapeGoesBack()
    {
        begin();
        const char* const buttons[] = {"pushButton_9", "pushButton_8", "pushButton_7",
                                       "pushButton_6", "pushButton_5"};
        for (int mode = 5; mode >= 1; --mode) {
            key(Qt::Key(Qt::Key_0 + mode));
            QCOMPARE(label().toolMode, mode);
            QCOMPARE(window->currentTool, mode);
            QVERIFY(child<QPushButton>(buttons[mode - 1]).hasFocus());
        }
        key(Qt::Key_3);
        key(Qt::Key_6);
        key(Qt::Key_0);
        QCOMPARE(label().toolMode, 3);
        key(Qt::Key_Escape);
        QCOMPARE(label().toolMode, 1);
        QVERIFY(child<QPushButton>("pushButton_9").hasFocus());
        for (const char* elsewhere : {"tableWidget", "tableWidget_2", "comboBox", "pushButton_4"}) {
            key(Qt::Key_3);
            child<QWidget>(elsewhere).setFocus();
            key(Qt::Key_Escape);
            QCOMPARE(label().toolMode, 1);
        }
    }

    void whoCameByTabulatorFindsTheButtonsOwnKeys()
    {
        begin();
        drawOneOfEach();
        const auto drawn = static_cast<const overlay::Tools&>(label());
        child<QPushButton>("pushButton_8").setFocus(Qt::TabFocusReason);
        key(Qt::Key_Right);
        QVERIFY(child<QPushButton>("pushButton_7").hasFocus());
        key(Qt::Key_PageDown);
        QVERIFY(label() == drawn);
        // Who goes on to work on the picture has its keys again.
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(150, 100));
        key(Qt::Key_Right);
        QVERIFY(child<QPushButton>("pushButton_9").hasFocus());
        QCOMPARE(label().circleList.first().cx, drawn.circleList.first().cx + 1);
    }

    void aClickOnAButtonFindsItsOwnKeys()
    {
        begin();
        drawOneOfEach();
        QTest::mouseClick(&child<QPushButton>("pushButton_9"), Qt::LeftButton);
        key(Qt::Key_Right);
        QVERIFY(child<QPushButton>("pushButton_8").hasFocus());
    }

    void tablesAndUnitBoxKeepTheirKeys()
    {
        begin();
        drawOneOfEach();
        const auto drawn = static_cast<const overlay::Tools&>(label());
        tools().setFocus(Qt::TabFocusReason);
        QCOMPARE(tools().currentRow(), 3);
        key(Qt::Key_Up);
        QCOMPARE(tools().currentRow(), 2);
        key(Qt::Key_PageUp);
        QCOMPARE(tools().currentRow(), 0);
        tools().setCurrentCell(0, 2);
        key(Qt::Key_4); // looks for a temperature
        QCOMPARE(label().toolMode, 1);
        unit().setFocus(Qt::TabFocusReason);
        key(Qt::Key_Down);
        QCOMPARE(unit().currentIndex(), 1);
        key(Qt::Key_PageUp);
        QCOMPARE(unit().currentIndex(), 0);
        key(Qt::Key_2);
        QCOMPARE(label().toolMode, 1);
        QVERIFY(label() == drawn);
    }

    void withoutASelectionTheArrowsAreTheButtons()
    {
        begin();
        key(Qt::Key_1);
        key(Qt::Key_Right);
        QVERIFY(child<QPushButton>("pushButton_8").hasFocus());
    }
};

int main(int argc, char** argv)
{
    return testing::run<PictureKeysTest>(argc, argv);
}

#include "picture_keys_test.moc"
