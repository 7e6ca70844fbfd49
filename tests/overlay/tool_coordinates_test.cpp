// SPDX-License-Identifier: MIT
#include "overlay/tool_coordinates.h"
#include "tests/support/test_run.h"

Q_DECLARE_METATYPE(overlay::ToolKind)

using namespace overlay;

namespace {

QString textOf(const std::optional<Limits>& limits)
{
    return limits ? QStringLiteral("%1 %2").arg(limits->first).arg(limits->last)
                  : QStringLiteral("none");
}

} // namespace

class ToolCoordinatesTest : public QObject
{
    Q_OBJECT

private slots:
    void limitsKeepAToolInsideThePicture_data()
    {
        QTest::addColumn<ToolKind>("kind");
        QTest::addColumn<QVector<int>>("numbers");
        QTest::addColumn<QStringList>("limits");
        const auto row = [](const char* name, ToolKind kind, const QVector<int>& numbers,
                            const QStringList& limits) {
            QTest::newRow(name) << kind << numbers << limits;
        };
        row("point", ToolKind::Point, {7, 9}, {"0 239", "0 319"});
        row("point on the picture's last edge", ToolKind::Point, {240, 320}, {"0 240", "0 320"});
        row("line", ToolKind::Line, {10, 20, 30, 40}, {"0 239", "0 319", "0 239", "0 319"});
        row("line without extent at the edge", ToolKind::Line, {0, 20, 30, 20},
            {"0 239", "0 319", "1 239", "0 319"});
        row("rectangle", ToolKind::Rect, {200, 300, 100, 50}, {"0 239", "0 319", "0 239", "0 319"});
        // A circle may touch the last column and row, but not the first.
        row("circle in the middle", ToolKind::Circle, {120, 160, 40},
            {"41 199", "41 279", "1 119"});
        row("circle that fills the picture", ToolKind::Circle, {120, 160, 119},
            {"120 120", "120 200", "1 119"});
        row("circle near a corner", ToolKind::Circle, {5, 8, 4}, {"5 235", "5 315", "1 4"});
        row("circle too large for any place", ToolKind::Circle, {120, 160, 150},
            {"none", "none", "1 119"});
    }
    void limitsKeepAToolInsideThePicture()
    {
        QFETCH(const ToolKind, kind);
        QFETCH(const QVector<int>, numbers);
        QFETCH(const QStringList, limits);
        ToolNumbers all{};
        std::copy(numbers.begin(), numbers.end(), all.begin());
        for (int number = 0; number < limits.size(); ++number)
            QCOMPARE(textOf(limitsOf(kind, all, number)), limits.at(number));
    }

    void possibleIsWhatTheMouseCanLeave()
    {
        QVERIFY(isPossible(ToolKind::Point, {240, 320}));
        QVERIFY(!isPossible(ToolKind::Point, {-1, 5}));
        QVERIFY(!isPossible(ToolKind::Point, {5, 321}));
        QVERIFY(!isPossible(ToolKind::Line, {5, 5, 5, 5}));
        QVERIFY(isPossible(ToolKind::Line, {5, 5, 6, 5}));
        QVERIFY(!isPossible(ToolKind::Rect, {5, 5, 5, 5}));
        QVERIFY(isPossible(ToolKind::Rect, {5, 5, 4, 5}));
        QVERIFY(!isPossible(ToolKind::Circle, {120, 160, 0}));
        QVERIFY(!isPossible(ToolKind::Circle, {120, 160, -1}));
        QVERIFY(!isPossible(ToolKind::Circle, {40, 160, 40}));
        QVERIFY(isPossible(ToolKind::Circle, {41, 160, 40}));
    }

    void numbersMakeTheSameToolAgain()
    {
        for (const KindRow& row : toolKinds) {
            Tools tools;
            const ToolNumbers numbers = numbersOfNew(row.kind);
            QVERIFY(isPossible(row.kind, numbers));
            addTool(tools, row.kind, numbers, Qt::blue);
            QVERIFY(visitTool(tools, row.kind, 0, [&](auto& tool) {
                QCOMPARE(numbersOf(tool), numbers);
                QCOMPARE(tool.colour, QColor(Qt::blue));
                auto again = tool;
                setNumbers(again, numbersOf(tool));
                QCOMPARE(again, tool);
            }));
        }
    }

    void aNewToolTakesTheLowestFreeNumberAndTheSelection()
    {
        Tools tools;
        for (int i = 0; i < 3; ++i)
            addTool(tools, ToolKind::Rect, {i, 0, 50, 60}, Qt::red);
        select(tools, ToolKind::Rect, 1);
        removeSelected(tools);
        insertNew(tools, ToolKind::Point, Qt::red); // prepared for the mouse
        addTool(tools, ToolKind::Rect, {9, 8, 7, 6}, Qt::green);
        QCOMPARE(tools.rectList.size(), 3);
        QCOMPARE(tools.rectList.at(1).name, QStringLiteral("R1"));
        QCOMPARE(tools.rectList.at(1).x1, 9);
        QCOMPARE(tools.currentType, QStringLiteral("R"));
        QCOMPARE(tools.selectedIndex, 1);
        QVERIFY(tools.pointList.isEmpty());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolCoordinatesTest>(argc, argv);
}

#include "tool_coordinates_test.moc"
