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

/// Selecting, releasing, deleting and clearing.
class MyLabelSelectionTest : public QObject
{
    Q_OBJECT

private slots:
    // Selecting

    void theLastHitWinsAndEveryHitIsTold()
    {
        ShownLabel label;
        draw(label, 2, onLabel(100, 100), onLabel(100, 100));
        draw(label, 2, onLabel(101, 101), onLabel(101, 101));
        draw(label, 3, onLabel(80, 80), onLabel(120, 120));
        draw(label, 4, onLabel(90, 90), onLabel(110, 110));
        draw(label, 4, onLabel(10, 10), onLabel(20, 20)); // elsewhere
        draw(label, 5, onLabel(100, 100), onLabel(120, 100));
        label.setToolMode(1);
        QSignalSpy selected(&label, &MyLabel::Set_Select);
        testing::LogRecorder log;
        Mouse mouse(label);
        mouse.press(onLabel(99, 99));
        QCOMPARE(integers(selected), (QList<int>{0, 1, 2, 3, 5}));
        QCOMPARE(log.messages(),
                 QStringList({"您点击了第0个点工具", "您点击了第1个点工具", "您点击了第0个线工具",
                              "您点击了第0个矩形工具", "您点击了第0个圆工具"}));
        QCOMPARE(label.currentType, QStringLiteral("C"));
        QCOMPARE(label.selectedIndex, 0);
        mouse.release(onLabel(99, 99));
        QCOMPARE(integers(selected), (QList<int>{0, 1, 2, 3, 5, 5}));
    }

    void aPressOnNothingSelectsNothing()
    {
        ShownLabel label;
        draw(label, 2, onLabel(100, 100), onLabel(100, 100));
        label.setToolMode(1);
        QSignalSpy selected(&label, &MyLabel::Set_Select);
        Mouse(label).click(onLabel(10, 10));
        QCOMPARE(label.currentType, QStringLiteral("null"));
        QCOMPARE(label.selectedIndex, 0);
        QVERIFY(selected.isEmpty());
    }

    /// 12 × 16 pixels of the label are 6 × 8 of the picture here: three and four to either side of
    /// a spot two pixels up and left.
    void aPointIsHitTwoPixelsUpAndLeftAsReadily_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<bool>("hit");
        QTest::newRow("on it") << QPoint(100, 100) << true;
        QTest::newRow("up and left") << QPoint(98, 98) << true;
        QTest::newRow("corner") << QPoint(95, 94) << true;
        QTest::newRow("left of it") << QPoint(94, 98) << false;
        QTest::newRow("above it") << QPoint(98, 93) << false;
        QTest::newRow("other corner") << QPoint(101, 102) << true;
        QTest::newRow("right of it") << QPoint(102, 98) << false;
        QTest::newRow("below it") << QPoint(98, 103) << false;
    }

    void aPointIsHitTwoPixelsUpAndLeftAsReadily()
    {
        QFETCH(QPoint, press);
        QFETCH(bool, hit);
        ShownLabel label;
        draw(label, 2, onLabel(100, 100), onLabel(100, 100));
        label.setToolMode(1);
        Mouse(label).click(onLabel(press.x(), press.y()));
        QCOMPARE(label.currentType, hit ? QStringLiteral("P") : QStringLiteral("null"));
    }

    void aRectanglesBorderIsNoHit()
    {
        ShownLabel label;
        draw(label, 4, onLabel(100, 120), onLabel(60, 20));
        label.setToolMode(1);
        Mouse mouse(label);
        for (const QPoint& border :
             {QPoint(60, 60), QPoint(100, 60), QPoint(80, 20), QPoint(80, 120)}) {
            mouse.click(onLabel(border.x(), border.y()));
            QCOMPARE(label.currentType, QStringLiteral("null"));
        }
        mouse.click(onLabel(61, 21));
        QCOMPARE(label.currentType, QStringLiteral("R"));
    }

    void onlyPointsMoveAndOnlyWhenSelecting()
    {
        ShownLabel label;
        draw(label, 2, onLabel(50, 50), onLabel(50, 50));
        draw(label, 4, onLabel(100, 100), onLabel(140, 140));
        label.setToolMode(1);
        Mouse mouse(label);
        mouse.drag(onLabel(50, 50), onLabel(70, 200));
        QCOMPARE(label.pointList.at(0).x, 70);
        QCOMPARE(label.pointList.at(0).y, 200);
        const overlay::RectTool before = label.rectList.at(0);
        mouse.drag(onLabel(120, 120), onLabel(20, 20));
        QVERIFY(label.rectList.at(0) == before);
        mouse.press(onLabel(70, 200));
        mouse.release(onLabel(70, 200));
        mouse.press(onLabel(70, 200), Qt::RightButton);
        mouse.move(onLabel(10, 10));
        mouse.release(onLabel(10, 10), Qt::RightButton);
        QCOMPARE(label.pointList.at(0).x, 70);
    }

    // Releasing, deleting, clearing

    void theReleaseTellsInItsOrder()
    {
        testing::OverlayHost host;
        host.resize(700, 660);
        testing::showAndPaint(host);
        MyLabel& label = *host.label;
        label.setToolMode(3);
        Mouse mouse(label);
        mouse.press({100, 100});
        mouse.move({200, 200});
        host.heard.clear();
        bool drawingWhenSelected = false;
        connect(&label, &MyLabel::Set_Select, this, [&] { drawingWhenSelected = label.drawing; });
        bool drawingWhenMeasured = true;
        connect(&label, &MyLabel::updat_Tool, this, [&] { drawingWhenMeasured = label.drawing; });
        mouse.release({200, 200});
        QCOMPARE(host.heard, QStringList({"focus 3", "select 0", "tool"}));
        QVERIFY(drawingWhenSelected);
        QVERIFY(!drawingWhenMeasured);
        QVERIFY(!label.drawing);
        // the next line was prepared meanwhile
        QCOMPARE(label.lineList.size(), 2);
        QCOMPARE(label.newIndex, 1);
    }

    /// The host prunes and prepares inside the release, so the index told is that of afterwards.
    void aToolPreparedDuringTheReleaseMovesTheSelection()
    {
        testing::OverlayHost host;
        host.resize(700, 660);
        testing::showAndPaint(host);
        MyLabel& label = *host.label;
        label.pointList = {{QStringLiteral("P0"), 5, 5, 9, Qt::red},
                           {QStringLiteral("P2"), 50, 50, 9, Qt::red}};
        label.setToolMode(3);
        Mouse mouse(label);
        mouse.press({100, 100});
        mouse.move({200, 200});
        label.toolMode = 2; // as if the mode had been changed by keyboard
        host.heard.clear();
        mouse.release({200, 200});
        QCOMPARE(host.heard, QStringList({"focus 2", "select 3", "tool"}));
        QCOMPARE(namesOf(label.pointList), QStringList({"P0", "P1", "P2"}));
    }

    void withNothingSelectedTheReleaseTellsOfNoSelection()
    {
        testing::OverlayHost host;
        host.resize(700, 660);
        testing::showAndPaint(host);
        Mouse mouse(*host.label);
        mouse.press({100, 100});
        host.heard.clear();
        mouse.release({100, 100});
        QCOMPARE(host.heard, QStringList({"focus 1", "tool"}));
    }

    void overallIndicesCountAllKinds()
    {
        ShownLabel label;
        QSignalSpy selected(&label, &MyLabel::Set_Select);
        draw(label, 5, onLabel(100, 100), onLabel(110, 100));
        draw(label, 4, onLabel(10, 10), onLabel(20, 20));
        draw(label, 3, onLabel(10, 30), onLabel(20, 40));
        draw(label, 2, onLabel(10, 60), onLabel(10, 60));
        QCOMPARE(integers(selected), (QList<int>{0, 0, 0, 0}));
        label.setToolMode(1);
        selected.clear();
        Mouse(label).click(onLabel(103, 103));
        QCOMPARE(integers(selected), (QList<int>{3, 3}));
    }

    void deletingIsSilentAndKeepsTheSelection()
    {
        ShownLabel label;
        for (int i = 0; i < 3; ++i)
            draw(label, 2, onLabel(50 + 50 * i, 50), onLabel(50 + 50 * i, 50));
        label.setToolMode(1);
        Mouse(label).click(onLabel(50, 50));
        QSignalSpy selected(&label, &MyLabel::Set_Select);
        QSignalSpy changed(&label, &MyLabel::updat_Tool);
        label.deleteSelected();
        QCOMPARE(namesOf(label.pointList), QStringList({"P1", "P2"}));
        QCOMPARE(label.currentType, QStringLiteral("P"));
        QCOMPARE(label.selectedIndex, 0);
        label.deleteSelected();
        QCOMPARE(namesOf(label.pointList), QStringList({"P2"}));
        label.deleteSelected();
        label.deleteSelected();
        QVERIFY(label.pointList.isEmpty());
        QVERIFY(selected.isEmpty() && changed.isEmpty());
    }

    void deletingWorksForEveryKind()
    {
        ShownLabel label;
        draw(label, 3, onLabel(10, 10), onLabel(50, 50));
        draw(label, 4, onLabel(10, 10), onLabel(50, 50));
        draw(label, 5, onLabel(100, 100), onLabel(120, 100));
        for (const char* kind : {"L", "R", "C"}) {
            label.currentType = QString::fromLatin1(kind);
            label.selectedIndex = 1;
            label.deleteSelected();
            label.selectedIndex = -1;
            label.deleteSelected();
        }
        QCOMPARE(label.lineList.size() + label.rectList.size() + label.circleList.size(), 3);
        for (const char* kind : {"L", "R", "C", "X", "", "null"}) {
            label.currentType = QString::fromLatin1(kind);
            label.selectedIndex = 0;
            label.deleteSelected();
        }
        QVERIFY(label.lineList.isEmpty() && label.rectList.isEmpty() && label.circleList.isEmpty());
    }

    void deletingPrunesFirst()
    {
        ShownLabel label;
        draw(label, 3, onLabel(10, 10), onLabel(10, 10)); // without extent
        draw(label, 3, onLabel(10, 10), onLabel(60, 60));
        QCOMPARE(label.lineList.size(), 1);
        label.setToolMode(3);
        QCOMPARE(label.lineList.size(), 2);
        label.currentType = QStringLiteral("L");
        label.selectedIndex = 1; // the prepared one, which goes first
        label.deleteSelected();
        QCOMPARE(label.lineList.size(), 1);
        QCOMPARE(label.lineList.at(0).x2, 60);
    }

    void clearingStartsAnew()
    {
        ShownLabel label;
        for (int mode = 2; mode <= 5; ++mode)
            draw(label, mode, onLabel(100, 100), onLabel(110, 110));
        QSignalSpy changed(&label, &MyLabel::updat_Tool);
        label.clearTools();
        QVERIFY(label.pointList.isEmpty() && label.lineList.isEmpty() && label.rectList.isEmpty() &&
                label.circleList.isEmpty());
        QCOMPARE(label.currentType, QStringLiteral("null"));
        QCOMPARE(label.selectedIndex, -1);
        QCOMPARE(changed.size(), 1);
    }

    void toolsDeletedWhileTheyAreDraggedDoNoHarm()
    {
        ShownLabel label;
        for (int mode = 3; mode <= 5; ++mode) {
            label.setToolMode(mode);
            Mouse mouse(label);
            mouse.press(onLabel(100, 100));
            mouse.move(onLabel(110, 110));
            label.clearTools();
            mouse.move(onLabel(120, 120));
            label.currentType = QStringLiteral("LRC").mid(mode - 3, 1);
            label.selectedIndex = 7;
            mouse.move(onLabel(125, 125));
            mouse.release(onLabel(125, 125));
        }
        QVERIFY(label.lineList.isEmpty());
    }
};

int main(int argc, char** argv)
{
    return testing::run<MyLabelSelectionTest>(argc, argv);
}

#include "my_label_selection_test.moc"
