// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/analysis_window_test.h"
#include "tests/support/translation.h"

using testing::flat;
using testing::placedPoint;
using testing::Shot;

/// Measurement tools in the analysis window, from the mouse to the table.
class AnalysisToolsTest : public testing::AnalysisWindowTest
{
    Q_OBJECT

private slots:
    void kindsOfToolsAreTranslated()
    {
        const testing::Translation english(QStringLiteral(":/Demo_EN.qm"));
        QVERIFY(english.isLoaded());
        QVERIFY(load(flat(255)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        overlay::LineTool line;
        line.x1 = line.y1 = 1;
        line.x2 = line.y2 = 9;
        label().lineList = {line};
        overlay::RectTool rect;
        rect.x1 = rect.y1 = 1;
        rect.x2 = rect.y2 = 9;
        label().rectList = {rect};
        overlay::CircleTool circle;
        circle.cx = circle.cy = 50;
        circle.radius = 5;
        label().circleList = {circle};
        window->updat_Tool_Temp();
        QStringList kinds;
        for (int row = 0; row < 4; ++row)
            kinds.append(toolRow(row).at(1));
        QCOMPARE(kinds.join(QLatin1Char(' ')), QStringLiteral("Point Line Rectangle Circle"));
    }

    void toolsPlacedByMouseAppearInTheTable()
    {
        Shot shot;
        shot.gray = [](int x, int y) {
            return x >= 100 && y >= 100 ? 255 : 0;
        };
        QVERIFY(load(shot));
        show();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(50, 60));
        click("pushButton_7");
        drag(at(10, 200), at(200, 200));
        const overlay::LineTool line = label().lineList.first();
        QCOMPARE(QVector<int>({line.x1, line.y1, line.x2, line.y2}),
                 QVector<int>({10, 200, 200, 200}));
        click("pushButton_6");
        drag(at(110, 110), at(150, 160));
        click("pushButton_5");
        drag(at(60, 60), at(80, 60));
        QCOMPARE(tools().rowCount(), 4);
        const auto row = [](const char* name, const char* kind, const char* high, const char* low,
                            const char* average) {
            return QStringList({QString::fromUtf8(name), QString::fromUtf8(kind),
                                QString::fromUtf8(high), QString::fromUtf8(low),
                                QString::fromUtf8(average)});
        };
        QCOMPARE(toolRow(0), row("P0", "点", "20.0", "20.0", "20.0"));
        QCOMPARE(toolRow(1), row("L0", "线", "50.0", "20.0", "35.9")); // 90 cold, 101 hot
        QCOMPARE(toolRow(2), row("R0", "矩形", "50.0", "50.0", "50.0"));
        QCOMPARE(toolRow(3), row("C0", "圆", "20.0", "20.0", "20.0"));
        QVERIFY(tools().item(3, 4)->textAlignment() == int(Qt::AlignHCenter | Qt::AlignVCenter));
        // The tool drawn last stays selected.
        QCOMPARE(window->selectedRow, 3);
        QCOMPARE(tools().selectedItems().size(), 5);
        QCOMPARE(tools().selectedItems().first()->row(), 3);
        click("pushButton_3");
        QCOMPARE(label().circleList.size(), 0);
        QCOMPARE(tools().rowCount(), 3);
        click("pushButton_2");
        QCOMPARE(tools().rowCount(), 0);
    }

    void afterDeletingTheTableListsWhatIsLeft()
    {
        QVERIFY(load(flat(255)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4),
                             placedPoint(QStringLiteral("P1"), 5, 6),
                             placedPoint(QStringLiteral("P2"), 7, 8)};
        window->updat_Tool_Temp();
        window->Set_Select(0);
        const auto marked = [this] {
            const auto items = tools().selectedItems();
            return items.isEmpty() ? QString() : items.first()->text();
        };
        emit tools().itemClicked(tools().item(1, 0));
        click("pushButton_3");
        QCOMPARE(tools().rowCount(), 2);
        QCOMPARE(toolRow(0).first(), QStringLiteral("P0"));
        QCOMPARE(toolRow(1).first(), QStringLiteral("P2"));
        // The tool that moved up is the one that goes next, and the table says so.
        QCOMPARE(marked(), QStringLiteral("P2"));
        click("pushButton_3");
        QCOMPARE(tools().rowCount(), 1);
        QCOMPARE(toolRow(0).first(), QStringLiteral("P0"));
        // None has moved up now, so none is marked, and deleting again removes nothing.
        QCOMPARE(marked(), QString());
        click("pushButton_3");
        QCOMPARE(label().pointList.size(), 1);
        QCOMPARE(tools().rowCount(), 1);
    }

    void theMarkedRowIsThatOfTheToolThatMovedUp()
    {
        QVERIFY(load(flat(255)));
        overlay::CircleTool circle;
        circle.cx = circle.cy = 50;
        circle.radius = 5;
        circle.name = QStringLiteral("C0");
        label().circleList = {circle};
        circle.name = QStringLiteral("C1");
        label().circleList.append(circle);
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        window->updat_Tool_Temp();
        emit tools().itemClicked(tools().item(1, 0)); // C0
        click("pushButton_3");
        QCOMPARE(tools().selectedItems().value(0)->text(), QStringLiteral("C1"));
        QCOMPARE(window->selectedRow, 1);
    }

    void selectingARowThatIsNotThereKeepsTheSelection()
    {
        QVERIFY(load(flat(255)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4),
                             placedPoint(QStringLiteral("P1"), 5, 6)};
        window->updat_Tool_Temp();
        window->Set_Select(1);
        QCOMPARE(tools().currentRow(), 1);
        window->Set_Select(2);
        QCOMPARE(window->selectedRow, 2);
        QCOMPARE(tools().currentRow(), 1);
        QCOMPARE(tools().selectedItems().size(), 5);
        window->Set_Select(99);
        QCOMPARE(window->selectedRow, 99);
        QCOMPARE(tools().currentRow(), 1);
        // Refilled, nothing of the old selection is left.
        window->updat_Tool_Temp();
        QCOMPARE(tools().selectedItems().size(), 0);
    }

    void aClickInTheTableSelectsTheTool()
    {
        QVERIFY(load(flat(255)));
        overlay::RectTool rect;
        rect.name = QStringLiteral("R0");
        rect.x1 = rect.y1 = 1;
        rect.x2 = rect.y2 = 9;
        label().rectList = {rect, rect};
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4),
                             placedPoint(QStringLiteral("P1"), -1, -1),
                             placedPoint(QStringLiteral("P2"), 5, 6)};
        window->updat_Tool_Temp();
        QCOMPARE(tools().rowCount(), 4);
        emit tools().itemClicked(tools().item(3, 2));
        QCOMPARE(label().currentType, QStringLiteral("R"));
        QCOMPARE(label().selectedIndex, 1);
        // Rows are counted, and the unplaced tool has none; deleting prunes it first.
        emit tools().itemClicked(tools().item(1, 0));
        QCOMPARE(label().currentType, QStringLiteral("P"));
        QCOMPARE(label().selectedIndex, 1);
        click("pushButton_3");
        QCOMPARE(label().pointList.size(), 1);
        QCOMPARE(label().pointList.first().name, QStringLiteral("P0"));
    }

    void deletingWithNothingSelectedGoesBackToTheCursor()
    {
        click("pushButton_6");
        click("pushButton_3");
        QCOMPARE(window->currentTool, 1);
        QCOMPARE(label().toolMode, 1);
        QCOMPARE(label().rectList.size(), 0);
        QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("pushButton_9"));
    }

    void deletingASelectedToolKeepsTheTool()
    {
        click("pushButton_6");
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        label().currentType = QStringLiteral("P");
        label().selectedIndex = 0;
        click("pushButton_3");
        QCOMPARE(label().pointList.size(), 0);
        QCOMPARE(window->currentTool, 4);
        QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("pushButton_9"));
        // The prepared tool was pruned; a press must not reach for it.
        QVERIFY(load(flat(255)));
        show();
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(50, 60));
    }

    void clearingPreparesTheCurrentToolAgain()
    {
        click("pushButton_2");
        QCOMPARE(window->currentTool, 0);
        click("pushButton_8");
        label().pointList.append(placedPoint(QStringLiteral("P1"), 3, 4));
        click("pushButton_2");
        QCOMPARE(label().pointList.size(), 1);
        QCOMPARE(label().pointList.first().x, -1);
        QCOMPARE(label().currentType, QStringLiteral("null"));
        QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("pushButton_8"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<AnalysisToolsTest>(argc, argv);
}

#include "analysis_tools_test.moc"
