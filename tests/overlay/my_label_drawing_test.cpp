// SPDX-License-Identifier: MIT
#include "tests/overlay/overlay_host.h"
#include "tests/overlay/shown_label.h"
#include "tests/support/test_run.h"

using testing::draw;
using testing::integers;
using testing::Mouse;
using testing::namesOf;
using testing::onLabel;
using testing::ShownLabel;

/// Making tools with the mouse, and moving them.
class MyLabelDrawingTest : public QObject
{
    Q_OBJECT

private slots:
    // Making tools

    void numbersFillTheirGaps()
    {
        ShownLabel label;
        for (int i = 0; i < 3; ++i)
            draw(label, 2, onLabel(50 + 50 * i, 50), onLabel(50 + 50 * i, 50));
        QCOMPARE(namesOf(label.pointList), QStringList({"P0", "P1", "P2"}));
        label.currentType = QStringLiteral("P");
        label.selectedIndex = 1;
        label.deleteSelected();
        QCOMPARE(namesOf(label.pointList), QStringList({"P0", "P2"}));
        label.setToolMode(2);
        QCOMPARE(label.newIndex, 1);
        QCOMPARE(namesOf(label.pointList), QStringList({"P0", "P1", "P2"}));
        QCOMPARE(label.pointList.at(1).x, -1);
    }

    void newToolsTakeTheToolColour()
    {
        MyLabel label;
        label.toolColor = QColor(1, 2, 3);
        for (int mode = 2; mode <= 5; ++mode)
            label.setToolMode(mode);
        QCOMPARE(label.circleList.at(0).colour, QColor(1, 2, 3));
        // each mode pruned what the one before prepared
        QVERIFY(label.pointList.isEmpty() && label.lineList.isEmpty() && label.rectList.isEmpty());
        label.setToolMode(1);
        QVERIFY(label.circleList.isEmpty());
        label.setToolMode(0);
        QCOMPARE(label.toolMode, 0);
        QCOMPARE(label.newIndex, 0);
        label.pointList = {{QStringLiteral("P0"), 5, 5, 9, Qt::red}};
        label.setToolMode(2);
        QCOMPARE(label.newIndex, 1);
        label.setToolMode(1);
        QCOMPARE(label.newIndex, 0);
    }

    void aPressPlacesAPointAndSelectsIt()
    {
        ShownLabel label;
        QSignalSpy selected(&label, &MyLabel::Set_Select);
        label.setToolMode(2);
        Mouse mouse(label);
        mouse.press(onLabel(30, 40));
        QCOMPARE(label.pointList.at(0).x, 30);
        QCOMPARE(label.pointList.at(0).y, 40);
        QCOMPARE(label.currentType, QStringLiteral("P"));
        QCOMPARE(label.selectedIndex, 0);
        QVERIFY(selected.isEmpty()); // only the release tells
        mouse.release(onLabel(30, 40));
        QCOMPARE(integers(selected), QList<int>{0});
    }

    void aPointJustPlacedIsNotDragged()
    {
        ShownLabel label;
        draw(label, 2, onLabel(30, 40), onLabel(90, 90));
        QCOMPARE(label.pointList.at(0).x, 30);
        QCOMPARE(label.pointList.at(0).y, 40);
    }

    void lines()
    {
        ShownLabel label;
        label.setToolMode(3);
        Mouse mouse(label);
        mouse.press(onLabel(30, 40));
        QVERIFY(label.drawing);
        QVERIFY((label.lineList.at(0) ==
                 overlay::LineTool{QStringLiteral("L0"), 30, 40, 30, 40, Qt::red}));
        mouse.move(onLabel(10, 200));
        mouse.release(onLabel(10, 200));
        QVERIFY((label.lineList.at(0) ==
                 overlay::LineTool{QStringLiteral("L0"), 30, 40, 10, 200, Qt::red}));
        QVERIFY(!label.drawing);
        QCOMPARE(label.currentType, QStringLiteral("L"));
    }

    void rectanglesKeepTheirCornersAsDragged()
    {
        ShownLabel label;
        draw(label, 4, onLabel(100, 120), onLabel(60, 20));
        QVERIFY((label.rectList.at(0) ==
                 overlay::RectTool{QStringLiteral("R0"), 100, 120, 60, 20, Qt::red}));
        QCOMPARE(label.currentType, QStringLiteral("R"));
    }

    void circlesNeverLeaveThePicture()
    {
        ShownLabel label;
        label.setToolMode(5);
        Mouse mouse(label);
        mouse.press(onLabel(40, 160));
        QCOMPARE(label.circleList.at(0).radius, -1);
        mouse.move(onLabel(60, 160));
        QCOMPARE(label.circleList.at(0).radius, 20);
        mouse.move(onLabel(80, 160)); // radius 40 would touch column 0
        QCOMPARE(label.circleList.at(0).radius, 20);
        QCOMPARE(label.circleList.at(0).x2, 60);
        mouse.move(onLabel(79, 160));
        QCOMPARE(label.circleList.at(0).radius, 39);
        mouse.move(onLabel(43, 164));
        mouse.release(onLabel(43, 164));
        QVERIFY((label.circleList.at(0) ==
                 overlay::CircleTool{QStringLiteral("C0"), 40, 160, 43, 164, 5, Qt::red}));
        QCOMPARE(label.currentType, QStringLiteral("C"));
    }

    void onlyTheLeftButtonDrags()
    {
        ShownLabel label;
        label.setToolMode(3);
        Mouse mouse(label);
        mouse.press(onLabel(30, 40), Qt::RightButton);
        QVERIFY(label.drawing); // any button places
        mouse.move(onLabel(100, 100));
        mouse.release(onLabel(100, 100), Qt::RightButton);
        QCOMPARE(label.lineList.at(0).x2, 30);
    }

    void withNoToolPreparedAPressDoesNothing_data()
    {
        QTest::addColumn<int>("mode");
        for (int mode = 2; mode <= 7; ++mode)
            QTest::addRow("%d", mode) << mode;
    }

    void withNoToolPreparedAPressDoesNothing()
    {
        QFETCH(int, mode);
        ShownLabel label;
        label.toolMode = mode;
        Mouse(label).drag(onLabel(30, 40), onLabel(50, 60));
        QCOMPARE(label.currentType, QStringLiteral("null"));
        QVERIFY(!label.drawing);
    }

    /// Delete prunes the prepared tool but leaves the mode; the next press finds none.
    void aPrunedToolIsNotPlaced_data() { withNoToolPreparedAPressDoesNothing_data(); }
    void aPrunedToolIsNotPlaced()
    {
        QFETCH(int, mode);
        ShownLabel label;
        if (mode <= 5)
            draw(label, mode, onLabel(50, 50), onLabel(70, 70));
        label.setToolMode(mode);
        label.currentType = QStringLiteral("null");
        label.deleteSelected();
        Mouse(label).drag(onLabel(100, 100), onLabel(120, 120));
        QCOMPARE(label.currentType, QStringLiteral("null"));
    }

    /// The same with a gap before later tools: then the press moves the one that closed the gap.
    void aPrunedToolBeforeOthersLetsThePressMoveTheNext()
    {
        ShownLabel label;
        for (int i = 0; i < 3; ++i)
            draw(label, 2, onLabel(50 + 50 * i, 50), onLabel(50 + 50 * i, 50));
        label.currentType = QStringLiteral("P");
        label.selectedIndex = 0;
        label.deleteSelected();
        label.setToolMode(2); // P0, at index 0
        label.currentType = QStringLiteral("null");
        label.deleteSelected();
        Mouse(label).click(onLabel(200, 200));
        QCOMPARE(namesOf(label.pointList), QStringList({"P1", "P2"}));
        QCOMPARE(label.pointList.at(0).x, 200);
    }

    void aQuickSecondClickPlacesATool()
    {
        ShownLabel label;
        label.setToolMode(2);
        testing::sendMouse(label, QEvent::MouseButtonDblClick, onLabel(30, 40), Qt::LeftButton,
                           Qt::LeftButton);
        QCOMPARE(label.pointList.at(0).x, 30);
    }

    /// A press belongs to the label, or a style that drags windows by their empty parts takes it.
    void pressesDoNotReachTheWindowBehind()
    {
        struct Window : QWidget
        {
            int presses = 0;
            void mousePressEvent(QMouseEvent*) override { ++presses; }
        };
        Window window;
        window.resize(300, 300);
        MyLabel label(&window);
        label.resize(200, 200);
        testing::showAndPaint(window);
        Mouse(label).click({50, 50});
        QCOMPARE(window.presses, 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<MyLabelDrawingTest>(argc, argv);
}

#include "my_label_drawing_test.moc"
