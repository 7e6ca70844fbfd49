// SPDX-License-Identifier: MIT
#include "overlay/tool_editing.h"
#include "tests/support/test_run.h"

#include <limits>

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

/// One finished tool of each kind, the one of this kind selected.
ToolEditing oneOfEach(ToolKind selected)
{
    Hand hand;
    hand.draw(ToolMode::Point, 30, 40, 0, 0);
    hand.draw(ToolMode::Line, 30, 60, 20, 50);
    hand.draw(ToolMode::Rect, 100, 120, 60, 20);
    hand.draw(ToolMode::Circle, 120, 160, 123, 164);
    setMode(hand.tools, int(ToolMode::Select));
    select(hand.tools, selected, 0);
    return hand.tools;
}

QString numbersOf(const ToolEditing& tools)
{
    const PointTool& point = tools.pointList.at(0);
    const LineTool& line = tools.lineList.at(0);
    const RectTool& rect = tools.rectList.at(0);
    const CircleTool& circle = tools.circleList.at(0);
    switch (*selectedKind(tools)) {
    case ToolKind::Point:
        return QStringLiteral("%1 %2").arg(point.x).arg(point.y);
    case ToolKind::Line:
        return QStringLiteral("%1 %2 %3 %4").arg(line.x1).arg(line.y1).arg(line.x2).arg(line.y2);
    case ToolKind::Rect:
        return QStringLiteral("%1 %2 %3 %4").arg(rect.x1).arg(rect.y1).arg(rect.x2).arg(rect.y2);
    case ToolKind::Circle:
        return QStringLiteral("%1 %2 %3").arg(circle.cx).arg(circle.cy).arg(circle.radius);
    }
    return {};
}

/// Rows of {name, kind, step, numbers afterwards}.
struct KeyboardRow
{
    const char* name;
    ToolKind kind;
    int dx;
    int dy;
    const char* numbers;
};

void addRows(std::initializer_list<KeyboardRow> rows)
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("dy");
    QTest::addColumn<QString>("numbers");
    for (const KeyboardRow& row : rows)
        QTest::newRow(row.name) << int(row.kind) << row.dx << row.dy << QString(row.numbers);
}

/// With the step of the test's row; the other tools stay as they are.
void verifyMove(bool (*move)(ToolEditing&, int, int))
{
    QFETCH(int, kind);
    QFETCH(int, dx);
    QFETCH(int, dy);
    QFETCH(QString, numbers);
    const ToolEditing before = oneOfEach(ToolKind(kind));
    ToolEditing tools = before;
    const bool isMoved = move(tools, dx, dy);
    QCOMPARE(numbersOf(tools), numbers);
    QCOMPARE(isMoved, numbersOf(before) != numbers);
    QCOMPARE(isMoved, !(static_cast<Tools&>(tools) == before));
    for (const KindRow& other : toolKinds) {
        ToolEditing was = before;
        select(was, other.kind, 0);
        select(tools, other.kind, 0);
        if (int(other.kind) != kind)
            QCOMPARE(numbersOf(tools), numbersOf(was));
    }
}

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

    void theSelectedToolMoves_data()
    {
        constexpr auto p = ToolKind::Point, l = ToolKind::Line, r = ToolKind::Rect;
        constexpr auto c = ToolKind::Circle;
        constexpr int most = std::numeric_limits<int>::max();
        constexpr int least = std::numeric_limits<int>::min();
        addRows({{"point right", p, 1, 0, "31 40"},
                 {"point up", p, 0, -10, "30 30"},
                 {"point to the corner", p, 1000, 1000, "239 319"},
                 {"point to the origin", p, -30, -41, "0 0"},
                 {"point, far", p, least, most, "0 319"},
                 {"line", l, -5, 7, "25 67 15 57"},
                 {"line, both edges", l, -1000, -1000, "10 10 0 0"},
                 {"line, other edges", l, 1000, 1000, "239 319 229 309"},
                 {"rectangle", r, 3, -4, "103 116 63 16"},
                 {"rectangle, edges", r, 1000, -21, "239 100 199 0"},
                 {"circle", c, -3, 4, "117 164 5"},
                 {"circle, first edges", c, -1000, -1000, "6 6 5"},
                 {"circle, last edges", c, 1000, 1000, "234 314 5"},
                 {"circle, far", c, most, least, "234 6 5"},
                 {"nowhere", c, 0, 0, "120 160 5"}});
    }
    void theSelectedToolMoves() { verifyMove(moveSelected); }

    void itsEndMoves_data()
    {
        constexpr auto l = ToolKind::Line, r = ToolKind::Rect, c = ToolKind::Circle;
        constexpr int most = std::numeric_limits<int>::max();
        constexpr int least = std::numeric_limits<int>::min();
        addRows({{"point", ToolKind::Point, 5, 5, "30 40"},
                 {"line", l, -5, 7, "30 60 15 57"},
                 {"line, edges", l, -21, -1000, "30 60 0 0"},
                 {"line, other edges", l, most, most, "30 60 239 319"},
                 {"line onto its start", l, 10, 10, "30 60 20 50"},
                 {"rectangle", r, 1, 2, "100 120 61 22"},
                 {"rectangle onto its start", r, 40, 100, "100 120 60 20"},
                 {"circle wider", c, 1, 0, "120 160 6"},
                 {"circle wider, down", c, 0, 10, "120 160 15"},
                 {"circle narrower", c, -2, 0, "120 160 3"},
                 {"circle narrower, up", c, 0, -1, "120 160 4"},
                 {"circle, least", c, -5, 0, "120 160 1"},
                 {"circle, most", c, 1000, 0, "120 160 119"},
                 {"circle, far", c, most, most, "120 160 119"},
                 {"circle, near", c, least, least, "120 160 1"}});
    }
    void itsEndMoves() { verifyMove(moveSelectedEnd); }

    /// Of every centre, the widest circle is the one that a drag still takes.
    void circlesGrowAsWideAsADrag()
    {
        for (const QPoint centre : {QPoint(2, 160), {30, 200}, {238, 9}, {120, 3}, {100, 318}}) {
            Hand hand;
            hand.draw(ToolMode::Circle, centre.x(), centre.y(), centre.x() + 1, centre.y());
            moveSelectedEnd(hand.tools, 500, 0);
            const CircleTool circle = hand.tools.circleList.at(0);
            QVERIFY(isInside(circle));
            QVERIFY(!draggedRadius(circle.cx, circle.cy, circle.cx + circle.radius + 1, circle.cy));
        }
    }

    /// The mouse can leave tools one past the last pixel.
    void beyondTheLastPixelThereIsOnlyAWayBack()
    {
        Hand hand;
        hand.draw(ToolMode::Point, 240, 320, 0, 0);
        QVERIFY(!moveSelected(hand.tools, 1, 1));
        QVERIFY(moveSelected(hand.tools, -1, 0));
        QVERIFY((hand.tools.pointList == QVector<PointTool>{{"P0", 239, 320}}));
        hand.draw(ToolMode::Line, 240, 5, 200, 320);
        QVERIFY(!moveSelected(hand.tools, 10, 10));
        QVERIFY(moveSelectedEnd(hand.tools, 100, -1));
        QVERIFY((hand.tools.lineList == QVector<LineTool>{{"L0", 240, 5, 239, 319}}));
    }

    void withoutAFinishedToolNothingMoves()
    {
        Hand hand;
        QVERIFY(!moveSelected(hand.tools, 1, 1));
        hand.draw(ToolMode::Line, 10, 10, 10, 10);
        select(hand.tools, ToolKind::Line, 0);
        QVERIFY(!moveSelected(hand.tools, 1, 1));
        QVERIFY(!moveSelectedEnd(hand.tools, 1, 1));
        setMode(hand.tools, int(ToolMode::Point));
        select(hand.tools, ToolKind::Point, 0);
        QVERIFY(!moveSelected(hand.tools, 1, 1));
        select(hand.tools, ToolKind::Point, 4);
        QVERIFY(!moveSelected(hand.tools, 1, 1));
    }

    void theSelectionWalksOverFinishedTools()
    {
        ToolEditing tools = oneOfEach(ToolKind::Circle);
        setMode(tools, int(ToolMode::Rect)); // R1 is prepared
        const auto next = [&](int step) {
            selectNext(tools, step);
            return tools.currentType + QString::number(tools.selectedIndex);
        };
        QCOMPARE(next(1), QStringLiteral("P0"));
        QCOMPARE(next(1), QStringLiteral("L0"));
        QCOMPARE(next(1), QStringLiteral("R0"));
        QCOMPARE(next(1), QStringLiteral("C0"));
        QCOMPARE(next(-1), QStringLiteral("R0"));
        QCOMPARE(next(-3), QStringLiteral("C0"));
        QCOMPARE(next(0), QStringLiteral("C0"));
        QCOMPARE(next(std::numeric_limits<int>::min()), QStringLiteral("C0"));
        tools.currentType = QStringLiteral("null");
        QCOMPARE(next(1), QStringLiteral("P0"));
        tools.currentType = QStringLiteral("null");
        QCOMPARE(next(-1), QStringLiteral("C0"));
        select(tools, ToolKind::Rect, 1); // the prepared one
        QCOMPARE(next(1), QStringLiteral("P0"));
    }

    void withoutFinishedToolsTheSelectionStays()
    {
        ToolEditing tools;
        setMode(tools, int(ToolMode::Point));
        selectNext(tools, 1);
        QCOMPARE(tools.currentType, QStringLiteral("null"));
        QCOMPARE(tools.selectedIndex, -1);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolEditingTest>(argc, argv);
}

#include "tool_editing_test.moc"
