// SPDX-License-Identifier: MIT
#include "overlay/tool_editing.h"
#include "overlay/tool_file.h"
#include "tests/support/test_run.h"

#include <random>

using overlay::ToolKind;
using overlay::Tools;
using overlay::toolsFromJson;
using overlay::toolsToJson;

/// Files of tools hold what the window can hold.
class ToolFileTest : public QObject
{
    Q_OBJECT

private slots:
    void taken();
    void whatItSaysTakesThePlaceOfWhatWasThere();
    void namesAndColours();
    void whatTheWindowHolds_data();
    void whatTheWindowHolds();
    void wrongTools_data();
    void wrongTools();
    void written();
    void writtenAndReadItIsTheSame();
    void whatNoFileCanHoldIsLeftOut();
    void namesThatAreNoneAreNumbersAgain();
};

void ToolFileTest::taken()
{
    Tools tools;
    QCOMPARE(toolsFromJson(R"({"points": [[7, 9], [120, 160]], "lines": [[10, 300, 200, 20]],
                               "rectangles": [[100, 99, 30, 60]], "circles": [[150, 200, 40]]})",
                           tools),
             QString());
    Tools expected;
    expected.pointList = {{"P0", 7, 9}, {"P1", 120, 160}};
    expected.lineList = {{"L0", 10, 300, 200, 20}};
    expected.rectList = {{"R0", 100, 99, 30, 60}};
    expected.circleList = {{"C0", 150, 200, 190, 200, 40}};
    QVERIFY(tools == expected);
}

void ToolFileTest::whatItSaysTakesThePlaceOfWhatWasThere()
{
    Tools tools;
    tools.pointList = {{"P0", 1, 1}};
    select(tools, ToolKind::Point, 0);
    const Tools before = tools;
    QVERIFY(!toolsFromJson(R"({"points": [[5, 6]], "lines": [[1, 2, 1, 2]]})", tools).isEmpty());
    QVERIFY(tools == before);
    QCOMPARE(toolsFromJson(R"({"points": [[5, 6]]})", tools), QString());
    Tools expected;
    expected.pointList = {{"P0", 5, 6}};
    QVERIFY(tools == expected);
}

void ToolFileTest::namesAndColours()
{
    Tools tools;
    QCOMPARE(toolsFromJson(R"({"version": 1, "points": [[7, 9], [120, 160]],
                               "circles": [[150, 200, 40]], "names": ["P0", "P3", "C12"],
                               "colours": {"P3": "#0a0B0c", "C12": "#80ffffff"}})",
                           tools),
             QString());
    Tools expected;
    expected.pointList = {{"P0", 7, 9}, {"P3", 120, 160, 9, QColor(10, 11, 12)}};
    expected.circleList = {{"C12", 150, 200, 190, 200, 40, QColor(255, 255, 255, 128)}};
    QVERIFY(tools == expected);
}

void ToolFileTest::whatTheWindowHolds_data()
{
    QTest::addColumn<QByteArray>("file");
    const auto row = [](const char* name, const char* file) {
        QTest::newRow(name) << QByteArray(file);
    };
    row("corners", R"({"points": [[0, 0], [240, 0], [0, 320], [240, 320]]})");
    row("lines from edge to edge", R"({"lines": [[0, 0, 240, 320], [240, 5, 0, 5]]})");
    row("upright and level", R"({"rectangles": [[1, 2, 1, 3], [1, 2, 3, 2], [240, 320, 0, 0]]})");
    row("circles at the edges",
        R"({"circles": [[2, 2, 1], [238, 318, 1], [120, 160, 119], [50, 160, 49]]})");
}

void ToolFileTest::whatTheWindowHolds()
{
    QFETCH(QByteArray, file);
    Tools tools;
    QCOMPARE(toolsFromJson(file, tools), QString());
    QVERIFY(countOf(tools) > 0);
}

void ToolFileTest::wrongTools_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* name, const char* file, const char* complaint) {
        QTest::newRow(name) << QByteArray(file) << QByteArray(complaint);
    };
    row("no JSON", "points", "byte 1");
    row("cut off", R"({"points": [[1, 2])", "byte");
    row("a list", "[]", "not a JSON object");
    row("unknown kind", R"({"rects": []})", "\"rects\"");
    row("no list", R"({"points": 5})", "\"points\" is not a list");
    row("no list of lists", R"({"points": [1, 2]})", "\"points\", number 1");
    row("one number short", R"({"lines": [[1, 2, 3, 4], [1, 2, 3]]})", "\"lines\", number 2");
    row("one number more", R"({"circles": [[1, 2, 3, 4]]})", "list of 3 whole numbers");
    row("half a pixel", R"({"points": [[1.5, 2]]})", "whole numbers");
    row("a text", R"({"points": [["1", 2]]})", "whole numbers");
    row("a huge number", R"({"points": [[1e300, 2]]})", "whole numbers");
    row("left of the picture", R"({"points": [[-1, 2]]})", "outside the picture");
    row("right of the picture", R"({"points": [[241, 2]]})", "outside the picture");
    row("above the picture", R"({"points": [[2, -1]]})", "outside the picture");
    row("under the picture", R"({"points": [[2, 321]]})", "outside the picture");
    row("line from outside", R"({"lines": [[-1, 2, 3, 4]]})", "not wholly inside");
    row("rectangle from outside", R"({"rectangles": [[1, 321, 3, 4]]})", "not wholly inside");
    row("line leaving it", R"({"lines": [[1, 2, 3, 321]]})", "not wholly inside");
    row("line of no length", R"({"lines": [[1, 2, 1, 2]]})", "\"lines\", number 1 has no extent");
    row("rectangle of no extent", R"({"rectangles": [[1, 2, 3, 4], [1, 2, 1, 2]]})",
        "\"rectangles\", number 2 has no extent");
    row("rectangle leaving it", R"({"rectangles": [[1, 2, -3, 4]]})", "not wholly inside");
    row("centre outside", R"({"circles": [[-1, 2, 30]]})", "\"circles\", number 1 is not wholly");
    row("negative radius", R"({"circles": [[1, 2, -3]]})", "no extent");
    row("no radius", R"({"circles": [[50, 50, 0]]})", "\"circles\", number 1 has no extent");
    row("the whole picture", R"({"circles": [[120, 160, 500]]})", "not wholly inside");
    row("over the left edge", R"({"circles": [[50, 160, 50]]})", "not wholly inside");
    row("over the right edge", R"({"circles": [[189, 160, 51]]})", "not wholly inside");
    row("over the upper edge", R"({"circles": [[120, 50, 50]]})", "not wholly inside");
    row("a later version", R"({"version": 2, "ovals": []})", "\"version\" is not 1");
    row("a version in words", R"({"version": "1"})", "\"version\" is not 1");
    row("no list of names", R"({"names": "P0", "points": [[1, 2]]})",
        "\"names\" is not a list of 1");
    row("too few names", R"({"names": ["P0"], "points": [[1, 2], [3, 4]]})",
        "a list of 2, one for");
    row("too many names", R"({"names": ["P0", "P1"], "points": [[1, 2]]})", "\"names\"");
    row("a foreign name", R"({"names": ["L0"], "points": [[1, 2]]})", "\"names\", number 1");
    row("a name of no text", R"({"names": [0], "points": [[1, 2]]})", "\"names\", number 1");
    row("a negative name", R"({"names": ["P-1"], "points": [[1, 2]]})", "\"names\", number 1");
    row("needless zeros", R"({"names": ["P01"], "points": [[1, 2]]})", "\"names\", number 1");
    row("a number too long", R"({"names": ["P9999999999"], "points": [[1, 2]]})", "number 1");
    row("a name twice", R"({"names": ["P1", "P1"], "points": [[1, 2], [3, 4]]})",
        "\"names\", number 2 is not \"P\" with a number above the one before");
    row("no order", R"({"names": ["P2", "P1"], "points": [[1, 2], [3, 4]]})", "number 2");
    row("no object of colours", R"({"colours": []})", "\"colours\" is not an object");
    row("a colour's name", R"({"colours": {"P0": "red"}, "points": [[1, 2]]})",
        "\"colours\", \"P0\" is not \"#rrggbb\"");
    row("a short colour", R"({"colours": {"P0": "#fff"}, "points": [[1, 2]]})", "#rrggbb");
    row("a number as colour", R"({"colours": {"P0": 255}, "points": [[1, 2]]})", "#rrggbb");
    row("a colour of none", R"({"colours": {"P1": "#0000ff"}, "points": [[1, 2]]})",
        "\"colours\": there is no \"P1\"");
    row("over the lower edge", R"({"circles": [[120, 270, 50]]})", "not wholly inside");
}

/// Tools that measure nothing would fill spreadsheets with temperatures that nobody measured.
void ToolFileTest::wrongTools()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, complaint);
    Tools tools;
    const QByteArray told = toolsFromJson(file, tools).toUtf8();
    QVERIFY2(told.contains(complaint), told.constData());
}

/// To the byte: other programs, and people, read it too.
void ToolFileTest::written()
{
    Tools tools;
    QCOMPARE(toolsToJson(tools), QByteArray("{\n    \"version\": 1\n}\n"));
    tools.pointList = {{"P0", 7, 9}, {"P1", 240, 320, 9, QColor(0, 0, 255)}};
    tools.circleList = {{"C0", 120, 160, 123, 164, 5, QColor(1, 2, 3, 4)}};
    QCOMPARE(toolsToJson(tools), QByteArray(R"({
    "version": 1,
    "points": [[7, 9], [240, 320]],
    "circles": [[120, 160, 5]],
    "colours": {"P1": "#0000ff", "C0": "#04010203"}
}
)"));
    tools.pointList[1].name = QStringLiteral("P4");
    tools.lineList = {{"L0", 1, 2, 3, 4}};
    tools.rectList = {{"R0", 9, 8, 7, 6}};
    QCOMPARE(toolsToJson(tools), QByteArray(R"({
    "version": 1,
    "points": [[7, 9], [240, 320]],
    "lines": [[1, 2, 3, 4]],
    "rectangles": [[9, 8, 7, 6]],
    "circles": [[120, 160, 5]],
    "names": ["P0", "P4", "L0", "R0", "C0"],
    "colours": {"P4": "#0000ff", "C0": "#04010203"}
}
)"));
}

void ToolFileTest::writtenAndReadItIsTheSame()
{
    std::mt19937 random(15);
    const auto upTo = [&](unsigned count) {
        return int(random() % count);
    };
    for (int round = 0; round < 500; ++round) {
        overlay::ToolEditing hand;
        for (int gestures = upTo(40); gestures > 0; --gestures) {
            setMode(hand, 2 + upTo(4));
            press(hand, {upTo(241), upTo(321)}, [] {});
            dragTo(hand, upTo(241), upTo(321));
            hand.selectedIndex = upTo(4);
            if (upTo(3) == 0)
                removeSelectedTool(hand);
            if (upTo(3) == 0)
                hand.toolColor = QColor(upTo(256), upTo(256), upTo(256), 128 + upTo(128));
        }
        setMode(hand, 1);
        const QByteArray bytes = toolsToJson(hand);
        Tools read;
        QCOMPARE(toolsFromJson(bytes, read), QString());
        QCOMPARE(toolsToJson(read), bytes);
        QVERIFY(read.pointList == hand.pointList && read.lineList == hand.lineList &&
                read.rectList == hand.rectList);
        // Which way a circle was dragged is not kept.
        for (overlay::CircleTool& circle : hand.circleList)
            setNumbers(circle, numbersOf(circle));
        QVERIFY(read.circleList == hand.circleList);
    }
}

void ToolFileTest::whatNoFileCanHoldIsLeftOut()
{
    Tools tools;
    tools.pointList = {{"P0", 1, 2}, {"P1", 241, 2}, {"P2", -1, -1}, {"P3", 3, 4, 9, QColor()}};
    tools.lineList = {{"L0", 5, 5, 5, 5}};
    tools.circleList = {{"C0", 5, 5, 50, 5, 45}};
    QVERIFY(wrongWith(tools).contains("\"points\", number 2 is outside the picture"));
    Tools read;
    QCOMPARE(toolsFromJson(toolsToJson(tools), read), QString());
    Tools expected;
    expected.pointList = {{"P0", 1, 2}, {"P3", 3, 4}};
    QVERIFY(read == expected);
    QCOMPARE(wrongWith(read), QString());
}

void ToolFileTest::namesThatAreNoneAreNumbersAgain()
{
    Tools tools;
    tools.pointList = {{"the left bearing", 1, 2}, {"P7", 3, 4}};
    tools.lineList = {{"L2", 1, 2, 3, 4}, {"L1", 5, 6, 7, 8}};
    tools.rectList = {{"R2", 1, 2, 3, 4}};
    Tools read;
    QCOMPARE(toolsFromJson(toolsToJson(tools), read), QString());
    Tools expected;
    expected.pointList = {{"P0", 1, 2}, {"P1", 3, 4}};
    expected.lineList = {{"L0", 1, 2, 3, 4}, {"L1", 5, 6, 7, 8}};
    expected.rectList = {{"R2", 1, 2, 3, 4}};
    QVERIFY(read == expected);
}

int main(int argc, char** argv)
{
    return testing::run<ToolFileTest>(argc, argv);
}

#include "tool_file_test.moc"
