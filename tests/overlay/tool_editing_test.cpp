// SPDX-License-Identifier: MIT
#include "overlay/tool_editing.h"
#include "tests/support/test_run.h"

using namespace overlay;

namespace {

/// What a hand does, in image positions, and how often it was told of a selection.
struct Hand
{
    ToolEditing tools;
    QList<int> selected;

    void press(int x, int y)
    {
        overlay::press(tools, {x, y, 6, 8}, [this] { selected.append(overallSelection(tools)); });
    }
    void draw(ToolMode mode, int x1, int y1, int x2, int y2)
    {
        setMode(tools, int(mode));
        press(x1, y1);
        dragTo(tools, x2, y2);
        tools.drawing = false;
    }
};

} // namespace

/// The same as on the label, where every detail is tested with a real mouse, but without one.
class ToolEditingTest : public QObject
{
    Q_OBJECT

private slots:
    void everyKindIsPlacedByItsMode()
    {
        Hand hand;
        hand.draw(ToolMode::Point, 30, 40, 90, 90);
        QVERIFY((hand.tools.pointList == QVector<PointTool>{{"P0", 30, 40, 9, Qt::red}}));
        hand.draw(ToolMode::Line, 30, 40, 10, 200);
        QVERIFY((hand.tools.lineList == QVector<LineTool>{{"L0", 30, 40, 10, 200, Qt::red}}));
        hand.draw(ToolMode::Rect, 100, 120, 60, 20);
        QVERIFY((hand.tools.rectList == QVector<RectTool>{{"R0", 100, 120, 60, 20, Qt::red}}));
        hand.draw(ToolMode::Circle, 40, 160, 43, 164);
        QVERIFY(
            (hand.tools.circleList == QVector<CircleTool>{{"C0", 40, 160, 43, 164, 5, Qt::red}}));
        QVERIFY(hand.selected.isEmpty());
        QCOMPARE(hand.tools.currentType, QStringLiteral("C"));
    }

    void onlyKindsWithAnExtentAreDrawn()
    {
        for (const KindRow& row : toolKinds) {
            Hand hand;
            setMode(hand.tools, int(row.mode));
            hand.press(100, 100);
            QCOMPARE(hand.tools.drawing, row.isDragged);
            QCOMPARE(hand.tools.currentType, QString(QLatin1Char(row.letter)));
        }
    }

    void aModeThatIsNoneMakesNothing()
    {
        Hand hand;
        for (const int mode : {0, 1, 6, -3}) {
            setMode(hand.tools, mode);
            hand.press(5, 5);
            dragTo(hand.tools, 6, 6);
            QCOMPARE(countOf(hand.tools), 0);
            QCOMPARE(hand.tools.toolMode, mode);
            QVERIFY(!hand.tools.drawing);
        }
    }

    void everyHitIsToldAndTheLastOneStays()
    {
        Hand hand;
        hand.draw(ToolMode::Point, 100, 100, 0, 0);
        hand.draw(ToolMode::Rect, 90, 90, 110, 110);
        hand.draw(ToolMode::Circle, 100, 100, 120, 100);
        setMode(hand.tools, int(ToolMode::Select));
        testing::LogRecorder log;
        hand.press(99, 99);
        QCOMPARE(hand.selected, (QList<int>{0, 1, 2}));
        QCOMPARE(log.messages(), QStringList({"您点击了第0个点工具", "您点击了第0个矩形工具",
                                              "您点击了第0个圆工具"}));
        hand.press(10, 10);
        QCOMPARE(hand.tools.currentType, QStringLiteral("null"));
        QCOMPARE(hand.tools.selectedIndex, 0);
    }

    void whoHearsOfASelectionMayChangeTheTools()
    {
        ToolEditing tools;
        for (int i = 0; i < 4; ++i)
            tools.pointList.append({QStringLiteral("P%1").arg(i), 50, 50, 9, Qt::red});
        int heard = 0;
        testing::LogRecorder log;
        press(tools, {50, 50, 6, 8}, [&] {
            ++heard;
            tools.pointList.clear();
        });
        QCOMPARE(heard, 1);
    }

    void onlyPointsMoveAndOnlyInSelectMode()
    {
        Hand hand;
        hand.draw(ToolMode::Point, 50, 50, 0, 0);
        hand.draw(ToolMode::Line, 10, 10, 20, 20);
        const LineTool line = hand.tools.lineList.at(0);
        dragTo(hand.tools, 90, 90); // the line is finished
        setMode(hand.tools, int(ToolMode::Select));
        dragTo(hand.tools, 80, 80); // the line is selected
        QVERIFY(hand.tools.lineList.at(0) == line);
        select(hand.tools, ToolKind::Point, 0);
        dragTo(hand.tools, 70, 200);
        QCOMPARE(hand.tools.pointList.at(0).x, 70);
        QCOMPARE(hand.tools.pointList.at(0).y, 200);
        // another selection in the middle of a drag
        setMode(hand.tools, int(ToolMode::Line));
        hand.press(30, 30);
        select(hand.tools, ToolKind::Point, 0);
        dragTo(hand.tools, 5, 5);
        QCOMPARE(hand.tools.pointList.at(0).x, 70);
        QCOMPARE(hand.tools.lineList.at(1).x2, 30);
    }

    void removingPrunesFirst()
    {
        Hand hand;
        hand.draw(ToolMode::Line, 10, 10, 60, 60);
        setMode(hand.tools, int(ToolMode::Line));
        select(hand.tools, ToolKind::Line, 1);
        removeSelectedTool(hand.tools);
        QCOMPARE(hand.tools.lineList.size(), 1);
        select(hand.tools, ToolKind::Line, 0);
        removeSelectedTool(hand.tools);
        QCOMPARE(countOf(hand.tools), 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolEditingTest>(argc, argv);
}

#include "tool_editing_test.moc"
