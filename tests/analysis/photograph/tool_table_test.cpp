// SPDX-License-Identifier: MIT
#include "analysis/photograph/tool_statistics.h"
#include "tests/analysis/photograph/placed_tools.h"
#include "tests/support/test_run.h"

#include <QSet>

#include <limits>
#include <memory>

using analysis::Temperatures;
using overlay::Tools;
using testing::circle;
using testing::line;
using testing::point;
using testing::rect;

namespace {

QStringList texts(const analysis::ToolRow& row)
{
    return {row.high, row.low, row.average};
}

} // namespace

/// The rows and texts of the tool table.
class ToolTableTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Temperatures> temperatures = std::make_unique<Temperatures>();

    void fill(float value) { temperatures->fill(value); }
    float& at(int x, int y) { return (*temperatures)[std::size_t(x * 320 + y)]; }
    std::vector<analysis::ToolRow> rows(const Tools& tools, analysis::Conversion conversion = {})
    {
        return analysis::toolRows(tools, *temperatures, conversion);
    }

private slots:
    void init() { fill(20.0F); }

    void everyKindHasACaptionOfItsOwn()
    {
        QSet<QString> captions;
        for (const overlay::KindRow& row : overlay::toolKinds)
            captions.insert(analysis::kindCaption(row.kind));
        QCOMPARE(captions.size(), int(overlay::toolKinds.size()));
        QVERIFY(!captions.contains(QString()));
    }

    void notANumberChangesNoExtreme()
    {
        const float nothing = std::numeric_limits<float>::quiet_NaN();
        fill(nothing);
        const Tools tools{
            {point(1, 1)}, {line(0, 0, 0, 5)}, {rect(0, 0, 100, 100)}, {circle(50, 50, 20)}};
        const auto table = rows(tools);
        QCOMPARE(texts(table[0]), QStringList({QStringLiteral("nan"), QStringLiteral("nan"),
                                               QStringLiteral("nan")}));
        QCOMPARE(texts(table[1]), QStringList({QStringLiteral("-10.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("nan")}));
        QCOMPARE(texts(table[2]), QStringList({QStringLiteral("-10.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("nan")}));
        QCOMPARE(texts(table[3]), QStringList({QStringLiteral("-50.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("nan")}));
    }

    void infiniteTemperatures()
    {
        fill(std::numeric_limits<float>::infinity());
        const Tools tools{{}, {}, {rect(0, 0, 3, 3)}, {}};
        QCOMPARE(
            texts(rows(tools).front()),
            QStringList({QStringLiteral("inf"), QStringLiteral("2000.0"), QStringLiteral("inf")}));
        at(0, 0) = -std::numeric_limits<float>::infinity();
        QCOMPARE(
            texts(rows(tools).front()),
            QStringList({QStringLiteral("inf"), QStringLiteral("-inf"), QStringLiteral("nan")}));
    }

    void pointsShowOneTemperatureThreeTimes()
    {
        at(30, 200) = 25.0F;
        const Tools tools{{point(30, 200)}, {}, {}, {}};
        QCOMPARE(
            texts(rows(tools).front()),
            QStringList({QStringLiteral("25.0"), QStringLiteral("25.0"), QStringLiteral("25.0")}));
        QCOMPARE(
            texts(rows(tools, analysis::toFahrenheit).front()),
            QStringList({QStringLiteral("77.0"), QStringLiteral("77.0"), QStringLiteral("77.0")}));
    }

    void pointsOnTheFarEdgeTakeTheNearestPixel()
    {
        at(239, 319) = 31.0F;
        at(100, 319) = 32.0F;
        at(101, 0) = 99.0F; // next in the matrix after (100, 319)
        const auto table = rows({{point(240, 320), point(100, 320), point(240, 319)}, {}, {}, {}});
        QCOMPARE(table[0].high, QStringLiteral("31.0"));
        QCOMPARE(table[1].high, QStringLiteral("32.0"));
        QCOMPARE(table[2].high, QStringLiteral("31.0"));
    }

    void rowsComeByKindAndUnplacedToolsAreLeftOut()
    {
        Tools tools{{point(1, 1), point(-1, -1), point(2, 2)},
                    {line(-1, -1, -1, -1), line(0, 0, 5, 5)},
                    {rect(0, 0, 5, 5), rect(-1, 3, 4, 4)},
                    {circle(9, 9, -1), circle(-1, -1, -1)}};
        tools.pointList[2].name = QStringLiteral("P2");
        const auto table = rows(tools);
        QStringList names;
        for (const auto& row : table)
            names.append(row.name);
        QCOMPARE(names,
                 QStringList({QStringLiteral("P0"), QStringLiteral("P2"), QStringLiteral("L0"),
                              QStringLiteral("R0"), QStringLiteral("C0")}));
        QVERIFY(table[0].kind == overlay::ToolKind::Point);
        QVERIFY(table[2].kind == overlay::ToolKind::Line);
        QVERIFY(table[3].kind == overlay::ToolKind::Rect);
        QVERIFY(table[4].kind == overlay::ToolKind::Circle);
        // Just pressed, not dragged: nothing measured yet.
        QCOMPARE(texts(table[4]), QStringList({QStringLiteral("-50.0"), QStringLiteral("2000.0"),
                                               QStringLiteral("0.0")}));
    }

    void sentinelsAreConvertedToo()
    {
        const Tools tools{{}, {line(4, 4, 4, 4)}, {}, {circle(9, 9, -1)}};
        const auto table = rows(tools, analysis::toFahrenheit);
        QCOMPARE(texts(table[0]), QStringList({QStringLiteral("14.0"), QStringLiteral("3631.7"),
                                               QStringLiteral("32.0")}));
        QCOMPARE(texts(table[1]), QStringList({QStringLiteral("-58.0"), QStringLiteral("3631.7"),
                                               QStringLiteral("32.0")}));
    }

    void noToolsNoRows() { QVERIFY(rows({}).empty()); }
};

int main(int argc, char** argv)
{
    return testing::run<ToolTableTest>(argc, argv);
}

#include "tool_table_test.moc"
