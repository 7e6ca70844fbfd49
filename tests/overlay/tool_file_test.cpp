// SPDX-License-Identifier: MIT
#include "overlay/tool_file.h"
#include "tests/support/test_run.h"

using overlay::Tools;
using overlay::toolsFromJson;

/// Files of tools hold what the window can hold.
class ToolFileTest : public QObject
{
    Q_OBJECT

private slots:
    void taken();
    void whatTheWindowHolds_data();
    void whatTheWindowHolds();
    void wrongTools_data();
    void wrongTools();
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

int main(int argc, char** argv)
{
    return testing::run<ToolFileTest>(argc, argv);
}

#include "tool_file_test.moc"
