// SPDX-License-Identifier: MIT
#include "overlay/tool_rules.h"
#include "tests/support/test_run.h"

using namespace overlay;

namespace {

LineTool line(int x1, int y1, int x2, int y2)
{
    return {QStringLiteral("L0"), x1, y1, x2, y2, Qt::red};
}

RectTool rect(int x1, int y1, int x2, int y2)
{
    return {QStringLiteral("R0"), x1, y1, x2, y2, Qt::red};
}

CircleTool circle(int cx, int cy, int radius)
{
    return {QStringLiteral("C0"), cx, cy, cx + radius, cy, radius, Qt::red};
}

} // namespace

class ToolRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void pointsAreHitInABoxTwoPixelsUpAndLeft_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<bool>("hit");
        QTest::newRow("on it") << QPoint(100, 100) << true;
        QTest::newRow("two up and left") << QPoint(98, 98) << true;
        QTest::newRow("leftmost") << QPoint(95, 98) << true;
        QTest::newRow("too far left") << QPoint(94, 98) << false;
        QTest::newRow("rightmost") << QPoint(101, 98) << true;
        QTest::newRow("too far right") << QPoint(102, 98) << false;
        QTest::newRow("topmost") << QPoint(98, 94) << true;
        QTest::newRow("too high") << QPoint(98, 93) << false;
        QTest::newRow("lowest") << QPoint(98, 102) << true;
        QTest::newRow("too low") << QPoint(98, 103) << false;
    }

    /// Tolerances 7 and 9: half of them, cut off, is 3 and 4 to either side.
    void pointsAreHitInABoxTwoPixelsUpAndLeft()
    {
        QFETCH(QPoint, press);
        QFETCH(bool, hit);
        const PointTool point{QStringLiteral("P0"), 100, 100, 9, Qt::red};
        QCOMPARE(hits(point, {press.x(), press.y(), 7, 9}), hit);
    }

    void linesAreHitUpToTwoPixelsAwayInsideTheirBox_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<bool>("hit");
        QTest::newRow("start") << QPoint(10, 10) << true;
        QTest::newRow("end") << QPoint(50, 50) << true;
        QTest::newRow("on it") << QPoint(30, 30) << true;
        // foot of (32, 28) is (30, 30): √8 = 2.83 → 2
        QTest::newRow("2.83 away") << QPoint(32, 28) << true;
        // foot of (33, 28) is (30.5, 30.5) → (30, 30): √13 = 3.61 → 3
        QTest::newRow("3.61 away") << QPoint(33, 28) << false;
        // foot of (28, 33) is (30, 30) likewise
        QTest::newRow("on the other side") << QPoint(28, 33) << false;
        QTest::newRow("beyond the end") << QPoint(51, 51) << false;
        QTest::newRow("before the start") << QPoint(9, 10) << false;
    }

    void linesAreHitUpToTwoPixelsAwayInsideTheirBox()
    {
        QFETCH(QPoint, press);
        QFETCH(bool, hit);
        QCOMPARE(hits(line(10, 10, 50, 50), {press.x(), press.y()}), hit);
    }

    void uprightLinesAreOnePixelWide()
    {
        QVERIFY(hits(line(10, 20, 10, 40), {10, 30}));
        QVERIFY(!hits(line(10, 20, 10, 40), {11, 30}));
        QVERIFY(hits(line(10, 40, 10, 20), {10, 20}));
    }

    void aLineWithoutDirectionIsNotHit()
    {
        QVERIFY(!hits(line(10, 10, 10, 10), {10, 10}));
        QVERIFY(!squaredDistance(line(10, 10, 10, 10), 10, 10));
    }

    /// The foot is cut off toward the start, so the two ends are not alike.
    void theFootIsCutOffTowardTheStart()
    {
        // (2, 0): along = 10/26, foot (trunc 1.92, 0) = (1, 0)
        QCOMPARE(squaredDistance(line(0, 0, 5, 1), 2, 0).value(), 1.0);
        // (3, 3) from (0, 0)–(5, 1): along = 18/26, foot (3, 0)
        QCOMPARE(squaredDistance(line(0, 0, 5, 1), 3, 3).value(), 9.0);
        // the same line from its other end: along = 8/26, foot (5 − 1, 1 − 0) = (4, 1)
        QCOMPARE(squaredDistance(line(5, 1, 0, 0), 3, 3).value(), 5.0);
    }

    void rectanglesAreHitStrictlyInside_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<bool>("hit");
        QTest::newRow("inside") << QPoint(20, 20) << true;
        QTest::newRow("just inside") << QPoint(11, 29) << true;
        QTest::newRow("left border") << QPoint(10, 20) << false;
        QTest::newRow("right border") << QPoint(40, 20) << false;
        QTest::newRow("top border") << QPoint(20, 15) << false;
        QTest::newRow("bottom border") << QPoint(20, 30) << false;
        QTest::newRow("outside") << QPoint(50, 20) << false;
    }

    void rectanglesAreHitStrictlyInside()
    {
        QFETCH(QPoint, press);
        QFETCH(bool, hit);
        QCOMPARE(hits(rect(10, 15, 40, 30), {press.x(), press.y()}), hit);
        QCOMPARE(hits(rect(40, 30, 10, 15), {press.x(), press.y()}), hit);
    }

    void circlesAreHitByTheTruncatedDistance()
    {
        QVERIFY(hits(circle(100, 100, 10), {110, 100}));
        QVERIFY(hits(circle(100, 100, 10), {110, 104}));  // √116 = 10.77 → 10
        QVERIFY(!hits(circle(100, 100, 10), {110, 105})); // √125 = 11.18
        QVERIFY(!hits(circle(100, 100, 10), {111, 100}));
        QVERIFY(hits(circle(100, 100, 1), {101, 101})); // √2 → 1
        QVERIFY(!hits(circle(100, 100, -1), {100, 100}));
    }

    void theFirstColumnIsAPlace()
    {
        QVERIFY(isPlaced(PointTool{{}, 0, 0}) && !isPlaced(PointTool{}));
        QVERIFY(isPlaced(line(0, 0, 9, 9)) && !isPlaced(LineTool{}));
        QVERIFY(isPlaced(rect(0, 0, 9, 9)) && !isPlaced(RectTool{}));
        QVERIFY(isPlaced(circle(0, 0, 9)) && !isPlaced(CircleTool{}));
    }

    void numbersMakeTools()
    {
        PointTool point;
        setNumbers(point, {3, 4, 0, 0});
        QVERIFY((point == PointTool{QString(), 3, 4}));
        LineTool line;
        setNumbers(line, {3, 4, 5, 6});
        QVERIFY((line == LineTool{QString(), 3, 4, 5, 6}));
        RectTool rect;
        setNumbers(rect, {300, 4, 5, -6});
        QVERIFY((rect == RectTool{QString(), 300, 4, 5, -6}));
        CircleTool circle;
        setNumbers(circle, {120, 160, 30});
        QVERIFY((circle == CircleTool{QString(), 120, 160, 150, 160, 30}));
        QVERIFY(isInside(circle) && !isUnfinished(circle));
        setNumbers(circle, {120, 160, -30});
        QVERIFY(isUnfinished(circle));
    }

    void whatIsInsideThePicture()
    {
        QVERIFY(isInside(PointTool{{}, 0, 0}) && isInside(PointTool{{}, 240, 320}));
        for (const QPoint& out : {QPoint(-1, 5), QPoint(241, 5), QPoint(5, -1), QPoint(5, 321)}) {
            QVERIFY(!isInside(PointTool{{}, out.x(), out.y()}));
            QVERIFY(!isInside(line(out.x(), out.y(), 9, 9)) &&
                    !isInside(line(9, 9, out.x(), out.y())));
            QVERIFY(!isInside(rect(out.x(), out.y(), 9, 9)) &&
                    !isInside(rect(9, 9, out.x(), out.y())));
        }
        QVERIFY(isInside(line(240, 0, 0, 320)) && isInside(rect(240, 0, 0, 320)));
        QVERIFY(isInside(circle(50, 160, 49)) && !isInside(circle(50, 160, 50)));
        QVERIFY(!isInside(circle(120, 160, 500)));
    }

    void draggedCirclesStayInThePicture()
    {
        QCOMPARE(draggedRadius(120, 160, 123, 164).value(), 5);
        QCOMPARE(draggedRadius(120, 160, 120, 160).value(), 0);
        QCOMPARE(draggedRadius(120, 160, 122, 162).value(), 2);  // 2.83, cut off
        QCOMPARE(draggedRadius(200, 160, 239, 160).value(), 39); // touches column 239
        QVERIFY(!draggedRadius(200, 160, 240, 160));
        QCOMPARE(draggedRadius(40, 160, 79, 160).value(), 39); // leaves column 0 free
        QVERIFY(!draggedRadius(40, 160, 80, 160));
        QCOMPARE(draggedRadius(120, 280, 120, 319).value(), 39);
        QVERIFY(!draggedRadius(120, 280, 120, 240));
        QCOMPARE(draggedRadius(120, 40, 120, 79).value(), 39);
        QVERIFY(!draggedRadius(120, 40, 120, 0));
        QVERIFY(!draggedRadius(0, 0, 0, 0));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolRulesTest>(argc, argv);
}

#include "tool_rules_test.moc"
