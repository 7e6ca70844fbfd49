// SPDX-License-Identifier: MIT
#include "overlay/tools.h"
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

Tools pointsNamed(const QStringList& names)
{
    Tools tools;
    for (const QString& name : names)
        tools.pointList.append({name, 1, 1, 9, Qt::red});
    return tools;
}

/// Two points, three lines, a rectangle, two circles.
Tools someOfEach()
{
    Tools tools;
    tools.pointList = {{"P0", 1, 2, 9, {}}, {"P1", 3, 4, 9, {}}};
    tools.lineList = {line(1, 1, 5, 5), line(2, 2, 6, 6), line(3, 3, 7, 7)};
    tools.rectList = {rect(1, 1, 9, 9)};
    tools.circleList = {circle(50, 60, 3), circle(70, 80, 4)};
    return tools;
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

class ToolsTest : public QObject
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
        Tools tools = pointsNamed(names);
        const int index = insertNew(tools, ToolKind::Point, Qt::blue);
        QCOMPARE(index, std::min(number, names.size()));
        const QVector<PointTool>& points = tools.pointList;
        QCOMPARE(points.size(), names.size() + 1);
        QCOMPARE(points.at(index).name, QStringLiteral("P%1").arg(number));
        QCOMPARE(points.at(index).x, -1);
        QCOMPARE(points.at(index).colour, QColor(Qt::blue));
    }

    void aGapIsFilledInItsPlace()
    {
        Tools tools = pointsNamed({"P0", "P2"});
        QCOMPARE(insertNew(tools, ToolKind::Point, Qt::red), 1);
        const QVector<PointTool>& points = tools.pointList;
        QCOMPARE(points.at(0).name, QStringLiteral("P0"));
        QCOMPARE(points.at(1).name, QStringLiteral("P1"));
        QCOMPARE(points.at(2).name, QStringLiteral("P2"));
    }

    void everyKindHasARow()
    {
        Tools tools;
        QStringList names;
        for (const KindRow& row : toolKinds) {
            QVERIFY(&rowOf(row.kind) == &row);
            QCOMPARE(int(row.mode), int(row.kind) + 2); // hosts know the numbers
            QCOMPARE(insertNew(tools, row.kind, Qt::blue), 0);
        }
        int kind = 0;
        forEachList(tools, [&](const auto& list) { QCOMPARE(int(kindOf(list)), kind++); });
        forEachTool(tools, [&](const auto& tool) { names.append(tool.name); });
        QCOMPARE(names, QStringList({"P0", "L0", "R0", "C0"}));
        QCOMPARE(kind, int(toolKinds.size()));
    }

    void pruningRemovesWhatHasNoPlaceOrNoExtent()
    {
        Tools tools;
        tools.pointList = {{"P0", 0, 0, 9, {}}, {"P1", -1, -1, 9, {}}, {"P2", 5, 5, 9, {}}};
        tools.lineList = {line(-1, -1, -1, -1), line(3, 4, 3, 4), line(3, 4, 3, 5),
                          line(3, 4, 4, 4), line(-1, 0, 5, 5)};
        tools.rectList = {rect(-1, -1, -1, -1), rect(3, 4, 3, 4), rect(0, 0, 1, 0)};
        const CircleTool draggedDown{QStringLiteral("C0"), 3, 4, 3, 5, 1, Qt::red};
        tools.circleList = {circle(-1, -1, 0), circle(3, 4, 0), circle(3, 4, 1), draggedDown};
        prune(tools);
        QCOMPARE(tools.pointList.size(), 2);
        QCOMPARE(tools.pointList.at(1).name, QStringLiteral("P2"));
        QCOMPARE(tools.lineList.size(), 2);
        QCOMPARE(tools.rectList.size(), 1);
        QCOMPARE(tools.circleList.size(), 2);
    }

    void toolsAreTheSameOnlyWithTheSameSelection()
    {
        const Tools tools = someOfEach();
        Tools other = tools;
        QVERIFY(tools == other);
        other.selectedIndex = 0;
        QVERIFY(!(tools == other));
        other = tools;
        other.currentType = QStringLiteral("P");
        QVERIFY(!(tools == other));
        forEachList(other, [&](auto& list) {
            other = tools;
            list.removeLast();
            QVERIFY(!(tools == other));
        });
    }

    void theSelection_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("overall");
        QTest::addColumn<int>("place");
        QTest::newRow("point") << "P" << 1 << 1 << 1;
        QTest::newRow("line") << "L" << 2 << 4 << 4;
        QTest::newRow("rectangle") << "R" << 0 << 5 << 5;
        QTest::newRow("circle") << "C" << 1 << 7 << 7;
        QTest::newRow("one that has gone") << "R" << 1 << 6 << -1;
        QTest::newRow("before the first") << "C" << -1 << 5 << -1;
        QTest::newRow("none") << "null" << 0 << 0 << -1;
        QTest::newRow("no kind") << "X" << 3 << 3 << -1;
        QTest::newRow("no text") << "" << 2 << 2 << -1;
        QTest::newRow("more than a letter") << "PL" << 1 << 1 << -1;
    }

    /// Two points, three lines and one rectangle come before a circle.
    void theSelection()
    {
        QFETCH(QString, type);
        QFETCH(int, index);
        QFETCH(int, overall);
        QFETCH(int, place);
        Tools tools = someOfEach();
        QCOMPARE(countOf(tools), 8);
        tools.currentType = type;
        tools.selectedIndex = index;
        QCOMPARE(overallSelection(tools), overall);
        QCOMPARE(selectedPlace(tools), place);
        const Tools before = tools;
        removeSelected(tools);
        QCOMPARE(countOf(tools), place < 0 ? 8 : 7);
        QCOMPARE(tools.currentType, before.currentType);
        QCOMPARE(tools.selectedIndex, before.selectedIndex);
    }

    void selectingNamesTheKind()
    {
        Tools tools;
        QVERIFY(!selectedKind(tools));
        for (const KindRow& row : toolKinds) {
            select(tools, row.kind, 3);
            QCOMPARE(tools.currentType, QString(QLatin1Char(row.letter)));
            QCOMPARE(tools.selectedIndex, 3);
            QVERIFY(selectedKind(tools) == row.kind);
        }
    }

    void visitingAToolThatIsNotThere()
    {
        const Tools tools = someOfEach();
        const auto visited = [&](ToolKind kind, int index) {
            QString name;
            const bool found =
                visitTool(tools, kind, index, [&](const auto& tool) { name = tool.name; });
            return found == !name.isEmpty() ? name : QStringLiteral("?");
        };
        QCOMPARE(visited(ToolKind::Point, 1), QStringLiteral("P1"));
        QCOMPARE(visited(ToolKind::Point, 2), QString());
        QCOMPARE(visited(ToolKind::Rect, -1), QString());
        QCOMPARE(visited(ToolKind::Circle, 0), QStringLiteral("C0"));
    }

    void addedToolsTakeTheFreeNumbers()
    {
        Tools tools = pointsNamed({"P1", "P2", "P5"});
        select(tools, ToolKind::Point, 2);
        Tools more = pointsNamed({"P0", "P2", "P9", "P10"});
        more.lineList = {line(4, 4, 8, 8)};
        for (PointTool& point : more.pointList)
            point.colour = Qt::blue;
        add(tools, more);
        QStringList names;
        QStringList added;
        for (const PointTool& point : tools.pointList)
            (point.colour == QColor(Qt::blue) ? added : names).append(point.name);
        QCOMPARE(names, QStringList({"P1", "P2", "P5"}));
        QCOMPARE(added, QStringList({"P0", "P3", "P4", "P6"}));
        QCOMPARE(tools.pointList.at(5).name, QStringLiteral("P5"));
        QCOMPARE(tools.selectedIndex, 5);
        QVERIFY((tools.lineList == QVector<LineTool>{line(4, 4, 8, 8)}));
    }

    void addedToNothingTheyAreNumberedFromZero()
    {
        Tools tools;
        add(tools, someOfEach());
        Tools expected = someOfEach();
        for (int i = 0; i < 3; ++i)
            expected.lineList[i].name = QStringLiteral("L%1").arg(i);
        expected.circleList[1].name = QStringLiteral("C1");
        QVERIFY(tools == expected);
        add(tools, {});
        QVERIFY(tools == expected);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolsTest>(argc, argv);
}

#include "tools_test.moc"
