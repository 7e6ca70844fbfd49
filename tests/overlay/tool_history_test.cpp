// SPDX-License-Identifier: MIT
#include "overlay/tool_history.h"
#include "tests/support/test_run.h"

using namespace overlay;

namespace {

/// Points at (1, 1), (2, 2) … as many as asked for, the last one selected.
ToolsState points(int count)
{
    ToolsState state;
    for (int i = 0; i < count; ++i)
        state.tools.pointList.append({QStringLiteral("P%1").arg(i), i + 1, i + 1});
    if (count > 0)
        select(state.tools, ToolKind::Point, count - 1);
    return state;
}

/// P0, P1 and P3 are placed, P2 is prepared in between; P3 is selected.
ToolEditing withAPreparedPoint()
{
    ToolEditing tools;
    static_cast<Tools&>(tools) = points(4).tools;
    tools.pointList.removeAt(2);
    tools.selectedIndex = 2;
    restore(tools, stateOf(tools));
    setMode(tools, int(ToolMode::Point));
    select(tools, ToolKind::Point, 3);
    return tools;
}

} // namespace

class ToolHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void aFreshHistoryHasNoSteps()
    {
        ToolHistory history;
        QVERIFY(!history.canUndo());
        QVERIFY(!history.canRedo());
        QVERIFY(history.undo() == ToolsState());
        QVERIFY(history.redo() == ToolsState());
    }

    void stepsAreTakenBackAndBroughtBack()
    {
        ToolHistory history;
        for (int count = 1; count <= 3; ++count)
            history.record(points(count));
        for (int count = 2; count >= 0; --count)
            QVERIFY(history.undo() == points(count));
        QVERIFY(!history.canUndo());
        QVERIFY(history.undo() == points(0));
        for (int count = 1; count <= 3; ++count) {
            QVERIFY(history.canRedo());
            QVERIFY(history.redo() == points(count));
        }
        QVERIFY(!history.canRedo());
        QVERIFY(history.redo() == points(3));
    }

    void aNewStepEndsRedo()
    {
        ToolHistory history;
        history.record(points(1));
        history.record(points(2));
        history.undo();
        history.record(points(5));
        QVERIFY(!history.canRedo());
        QVERIFY(history.undo() == points(1));
    }

    void theColourIsAStep()
    {
        ToolHistory history;
        ToolsState blue;
        blue.colour = Qt::blue;
        history.record(blue);
        QVERIFY(history.canUndo());
        QCOMPARE(history.undo().colour, QColor(255, 0, 0, 255));
        QCOMPARE(history.redo().colour, QColor(Qt::blue));
    }

    void selectingIsNoStepButComesBack()
    {
        ToolHistory history;
        history.record(points(3));
        ToolsState other = points(3);
        select(other.tools, ToolKind::Point, 0);
        history.record(other);
        QVERIFY(history.canUndo());
        history.undo();
        QVERIFY(!history.canUndo());
        QVERIFY(history.redo() == other);
    }

    void selectingKeepsWhatCanBeRedone()
    {
        ToolHistory history;
        history.record(points(2));
        history.record(points(3));
        history.undo();
        ToolsState other = points(2);
        select(other.tools, ToolKind::Point, 0);
        history.record(other);
        QVERIFY(history.canRedo());
        QVERIFY(history.redo() == points(3));
    }

    void preparedToolsAreNoStep()
    {
        ToolHistory history;
        ToolEditing tools = withAPreparedPoint();
        history.restart(stateOf(tools));
        setMode(tools, int(ToolMode::Circle));
        history.record({static_cast<const Tools&>(tools), tools.toolColor});
        press(tools, {50, 50}, [] {}); // pressed, not dragged
        history.record({static_cast<const Tools&>(tools), tools.toolColor});
        QVERIFY(!history.canUndo());
    }

    void theSelectionStaysOnItsTool()
    {
        ToolEditing tools = withAPreparedPoint();
        QCOMPARE(tools.newIndex, 2);
        const ToolsState state = stateOf(tools);
        QCOMPARE(state.tools.pointList.size(), 3);
        QCOMPARE(state.tools.pointList.at(state.tools.selectedIndex).name, QStringLiteral("P3"));
        tools.pointList.clear();
        restore(tools, state);
        QCOMPARE(tools.toolMode, int(ToolMode::Point));
        QCOMPARE(tools.pointList.size(), 4);
        QCOMPARE(tools.pointList.at(2).x, -1);
        QCOMPARE(tools.selectedIndex, 3);
    }

    void onAPreparedToolThereIsNoSelection()
    {
        ToolEditing tools = withAPreparedPoint();
        for (const int nowhere : {2, 9, -1}) {
            tools.selectedIndex = nowhere;
            const Tools kept = stateOf(tools).tools;
            QCOMPARE(kept.currentType, QStringLiteral("null"));
            QCOMPARE(kept.selectedIndex, -1);
        }
    }

    void goingBackEndsADrag()
    {
        ToolEditing tools;
        setMode(tools, int(ToolMode::Line));
        press(tools, {50, 50}, [] {});
        QVERIFY(tools.drawing);
        restore(tools, points(2));
        QVERIFY(!tools.drawing);
        dragTo(tools, 70, 70);
        QVERIFY(stateOf(tools) == points(2));
    }

    void theOldestStepsGo()
    {
        ToolHistory history;
        for (int count = 1; count <= 250; ++count)
            history.record(points(count));
        for (int count = 249; count >= 50; --count)
            QVERIFY(history.undo() == points(count));
        QVERIFY(!history.canUndo());
    }

    void restartingForgets()
    {
        ToolHistory history;
        history.record(points(1));
        history.record(points(2));
        history.undo();
        history.restart(points(7));
        QVERIFY(!history.canUndo());
        QVERIFY(!history.canRedo());
        QVERIFY(history.undo() == points(7));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolHistoryTest>(argc, argv);
}

#include "tool_history_test.moc"
