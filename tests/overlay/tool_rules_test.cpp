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

QVector<PointTool> pointsNamed(const QStringList& names)
{
    QVector<PointTool> points;
    for (const QString& name : names)
        points.append({name, 1, 1, 9, Qt::red});
    return points;
}

template<typename Tool>
void everyEndCounts()
{
    const QString name = QStringLiteral("X1");
    const Tool tool{name, 1, 2, 3, 4, Qt::red};
    for (const Tool& other : {Tool{QString(), 1, 2, 3, 4, Qt::red},
                              {name, 0, 2, 3, 4, Qt::red},
                              {name, 1, 0, 3, 4, Qt::red},
                              {name, 1, 2, 0, 4, Qt::red},
                              {name, 1, 2, 3, 0, Qt::red},
                              {name, 1, 2, 3, 4, Qt::blue}})
        QVERIFY(!(tool == other));
}

} // namespace

class ToolRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void newToolsAreRedAndUnplaced()
    {
        const QColor red(255, 0, 0, 255);
        QVERIFY((PointTool() == PointTool{QString(), -1, -1, 9, red}));
        QVERIFY((LineTool() == LineTool{QString(), -1, -1, -1, -1, red}));
        QVERIFY((RectTool() == RectTool{QString(), -1, -1, -1, -1, red}));
        QVERIFY((CircleTool() == CircleTool{QString(), -1, -1, -1, -1, -1, red}));
    }

    void toolsDifferByEveryProperty()
    {
        const QString name = QStringLiteral("X1");
        const PointTool point{name, 1, 2, 9, Qt::red};
        for (const PointTool& other : {PointTool{QString(), 1, 2, 9, Qt::red},
                                       {name, 0, 2, 9, Qt::red},
                                       {name, 1, 0, 9, Qt::red},
                                       {name, 1, 2, 0, Qt::red},
                                       {name, 1, 2, 9, Qt::blue}})
            QVERIFY(!(point == other));
        everyEndCounts<LineTool>();
        everyEndCounts<RectTool>();
        const CircleTool circle{name, 1, 2, 3, 4, 5, Qt::red};
        for (const CircleTool& other : {CircleTool{QString(), 1, 2, 3, 4, 5, Qt::red},
                                        {name, 0, 2, 3, 4, 5, Qt::red},
                                        {name, 1, 0, 3, 4, 5, Qt::red},
                                        {name, 1, 2, 0, 4, 5, Qt::red},
                                        {name, 1, 2, 3, 0, 5, Qt::red},
                                        {name, 1, 2, 3, 4, 0, Qt::red},
                                        {name, 1, 2, 3, 4, 5, Qt::blue}})
            QVERIFY(!(circle == other));
    }

    void theLowestFreeNumber_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<int>("number");
        QTest::newRow("none") << QStringList() << 0;
        QTest::newRow("first free") << QStringList{"P1", "P2"} << 0;
        QTest::newRow("gap") << QStringList{"P0", "P2"} << 1;
        QTest::newRow("next") << QStringList{"P0", "P1", "P2"} << 3;
        QTest::newRow("two digits")
            << QStringList{"P0", "P1", "P2", "P3", "P4", "P5", "P6", "P7", "P8", "P9", "P10"} << 11;
        QTest::newRow("foreign names count for nothing") << QStringList{"P", "Px"} << 0;
    }

    void theLowestFreeNumber()
    {
        QFETCH(QStringList, names);
        QFETCH(int, number);
        QVector<PointTool> points = pointsNamed(names);
        QCOMPARE(lowestFreeNumber(points), number);
        const int index = insertNew(points, Qt::blue);
        QVERIFY(index <= names.size());
        QCOMPARE(points.at(index).name, QStringLiteral("P%1").arg(number));
        QCOMPARE(points.at(index).x, -1);
        QCOMPARE(points.at(index).colour, QColor(Qt::blue));
    }

    void aGapIsFilledInItsPlace()
    {
        QVector<PointTool> points = pointsNamed({"P0", "P2"});
        QCOMPARE(insertNew(points, Qt::red), 1);
        QCOMPARE(points.at(0).name, QStringLiteral("P0"));
        QCOMPARE(points.at(1).name, QStringLiteral("P1"));
        QCOMPARE(points.at(2).name, QStringLiteral("P2"));
    }

    void everyKindHasItsLetter()
    {
        QVector<LineTool> lines;
        QVector<RectTool> rects;
        QVector<CircleTool> circles;
        insertNew(lines, Qt::red);
        insertNew(rects, Qt::red);
        insertNew(circles, Qt::red);
        QCOMPARE(lines.at(0).name, QStringLiteral("L0"));
        QCOMPARE(rects.at(0).name, QStringLiteral("R0"));
        QCOMPARE(circles.at(0).name, QStringLiteral("C0"));
    }

    void pruningRemovesWhatHasNoPlaceOrNoExtent()
    {
        QVector<PointTool> points{{"P0", 0, 0, 9, {}}, {"P1", -1, -1, 9, {}}, {"P2", 5, 5, 9, {}}};
        prune(points);
        QCOMPARE(points.size(), 2);
        QCOMPARE(points.at(1).name, QStringLiteral("P2"));

        QVector<LineTool> lines{line(-1, -1, -1, -1), line(3, 4, 3, 4), line(3, 4, 3, 5),
                                line(3, 4, 4, 4), line(-1, 0, 5, 5)};
        prune(lines);
        QCOMPARE(lines.size(), 2);
        QVector<RectTool> rects{rect(-1, -1, -1, -1), rect(3, 4, 3, 4), rect(0, 0, 1, 0)};
        prune(rects);
        QCOMPARE(rects.size(), 1);
        const CircleTool draggedDown{QStringLiteral("C0"), 3, 4, 3, 5, 1, Qt::red};
        QVector<CircleTool> circles{circle(-1, -1, 0), circle(3, 4, 0), circle(3, 4, 1),
                                    draggedDown};
        prune(circles);
        QCOMPARE(circles.size(), 2);
    }

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
        QCOMPARE(hits(point, press.x(), press.y(), 7, 9), hit);
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
        QCOMPARE(hits(line(10, 10, 50, 50), press.x(), press.y()), hit);
    }

    void uprightLinesAreOnePixelWide()
    {
        QVERIFY(hits(line(10, 20, 10, 40), 10, 30));
        QVERIFY(!hits(line(10, 20, 10, 40), 11, 30));
        QVERIFY(hits(line(10, 40, 10, 20), 10, 20));
    }

    void aLineWithoutDirectionIsNotHit()
    {
        QVERIFY(!hits(line(10, 10, 10, 10), 10, 10));
        QVERIFY(!truncatedDistance(line(10, 10, 10, 10), 10, 10));
    }

    /// The foot is cut off toward the start, so the two ends are not alike.
    void theFootIsCutOffTowardTheStart()
    {
        // (2, 0): along = 10/26, foot (trunc 1.92, 0) = (1, 0)
        QCOMPARE(truncatedDistance(line(0, 0, 5, 1), 2, 0).value(), 1);
        // (3, 3) from (0, 0)–(5, 1): along = 18/26, foot (3, 0)
        QCOMPARE(truncatedDistance(line(0, 0, 5, 1), 3, 3).value(), 3);
        // the same line from its other end: along = 8/26, foot (5 − 1, 1 − 0) = (4, 1), √5 → 2
        QCOMPARE(truncatedDistance(line(5, 1, 0, 0), 3, 3).value(), 2);
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
        QCOMPARE(hits(rect(10, 15, 40, 30), press.x(), press.y()), hit);
        QCOMPARE(hits(rect(40, 30, 10, 15), press.x(), press.y()), hit);
    }

    void circlesAreHitByTheTruncatedDistance()
    {
        QVERIFY(hits(circle(100, 100, 10), 110, 100));
        QVERIFY(hits(circle(100, 100, 10), 110, 104));  // √116 = 10.77 → 10
        QVERIFY(!hits(circle(100, 100, 10), 110, 105)); // √125 = 11.18
        QVERIFY(!hits(circle(100, 100, 10), 111, 100));
        QVERIFY(hits(circle(100, 100, 1), 101, 101)); // √2 → 1
        QVERIFY(!hits(circle(100, 100, -1), 100, 100));
    }

    void draggedCirclesStayInThePicture()
    {
        QCOMPARE(draggedRadius(120, 160, 123, 164).value(), 5);
        QCOMPARE(draggedRadius(120, 160, 120, 160).value(), 0);
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

    void overallIndexCountsTheListsBefore()
    {
        const ToolCounts counts{2, 3, 4};
        QCOMPARE(overallIndex(QLatin1Char('P'), 1, counts), 1);
        QCOMPARE(overallIndex(QLatin1Char('L'), 1, counts), 3);
        QCOMPARE(overallIndex(QLatin1Char('R'), 1, counts), 6);
        QCOMPARE(overallIndex(QLatin1Char('C'), 1, counts), 10);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolRulesTest>(argc, argv);
}

#include "tool_rules_test.moc"
