#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/overlay_host.h"
#include "tests/support/test_run.h"

#include <QAccessible>
#include <QMetaMethod>
#include <QSignalSpy>

using testing::Mouse;

namespace {

/// A shown label with a gray picture of the given size, painted once.
class ShownLabel : public MyLabel
{
public:
    explicit ShownLabel(const QSize& label = {520, 640}, const QSize& picture = {480, 640})
    {
        resize(label);
        if (!picture.isEmpty()) {
            QPixmap pixmap(picture);
            pixmap.fill(Qt::gray);
            setPixmap(pixmap);
        }
        testing::showAndPaint(*this);
    }
};

/// Where an image position lies on the label of 520 × 640 with a picture of 480 × 640: two pixels
/// each, and 20 pixels of margin on the left.
QPoint onLabel(int x, int y)
{
    return {20 + 2 * x, 2 * y};
}

/// Presses, drags and releases with a tool of the mode prepared.
void draw(MyLabel& label, int mode, const QPoint& from, const QPoint& to)
{
    label.setToolMode(mode);
    Mouse(label).drag(from, to);
}

QStringList namesOf(const QVector<overlay::PointTool>& points)
{
    QStringList names;
    for (const overlay::PointTool& point : points)
        names.append(point.name);
    return names;
}

QList<int> integers(const QSignalSpy& spy)
{
    QList<int> values;
    for (const QList<QVariant>& arguments : spy)
        values.append(arguments.at(0).toInt());
    return values;
}

} // namespace

class MyLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty()
    {
        const MyLabel label;
        QCOMPARE(label.toolMode, 1);
        QVERIFY(label.pointList.isEmpty() && label.lineList.isEmpty() && label.rectList.isEmpty() &&
                label.circleList.isEmpty());
        QCOMPARE(label.currentType, QStringLiteral("null"));
        QCOMPARE(label.selectedIndex, -1);
        for (const overlay::Marker& marker : {label.markerA, label.markerB, label.markerC})
            QVERIFY(marker.x == -1 && marker.y == -1);
        QVERIFY(!label.drawing);
        QVERIFY(!label.frozenGeometry);
        QCOMPARE(label.selectColor, QColor(0, 255, 0, 255));
        QCOMPARE(label.toolColor, QColor(255, 0, 0, 255));
        QVERIFY(label.hasMouseTracking());
        QVERIFY(label.overlay.isNull());
    }

    void signalsStandInTheirOrder()
    {
        const QMetaObject& meta = MyLabel::staticMetaObject;
        QStringList found;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                found.append(QString::fromLatin1(meta.method(i).methodSignature()) + ' ' +
                             QString::fromLatin1(meta.method(i).parameterNames().join(',')));
        QCOMPARE(found, QStringList({"Point_XY(int,int) px,py", "updat_Tool() ",
                                     "Focus_idev(int) bt_st", "Set_Select(int) dev"}));
    }

    void theOwnerHearsEverySignalOnce()
    {
        testing::OverlayHost owner;
        owner.rearms = false;
        owner.heard.clear();
        emit owner.label->Point_XY(3, 4);
        emit owner.label->updat_Tool();
        emit owner.label->Focus_idev(5);
        emit owner.label->Set_Select(6);
        QCOMPARE(owner.heard, QStringList({"XY 3 4", "tool", "focus 5", "select 6"}));
    }

    void anOwnerThatIsNoneOrHasNoSlotsDoesNoHarm()
    {
        testing::LogRecorder log;
        MyLabel label;
        label.setOwner(nullptr);
        QObject stranger;
        label.setOwner(&stranger);
        label.clearTools();
    }

    // Cursor read-out

    void movesTellThePositionWithAndWithoutAButton()
    {
        ShownLabel label;
        QSignalSpy spy(&label, &MyLabel::Point_XY);
        Mouse mouse(label);
        mouse.move(onLabel(10, 20));
        QCOMPARE(spy.takeLast(), (QList<QVariant>{10, 20}));
        mouse.press(onLabel(10, 20), Qt::RightButton);
        mouse.move(onLabel(30, 40));
        QCOMPARE(spy.takeLast(), (QList<QVariant>{30, 40}));
        QCOMPARE(label.mousePos, onLabel(30, 40));
        mouse.release(onLabel(30, 41), Qt::RightButton);
        QCOMPARE(label.mousePos, onLabel(30, 41));
    }

    void marginsCountAsTheNearestColumn()
    {
        ShownLabel label;
        label.setToolMode(2);
        QSignalSpy spy(&label, &MyLabel::Point_XY);
        Mouse mouse(label);
        mouse.press({5, 100});
        QCOMPARE(label.pointList.at(0).x, 0);
        QCOMPARE(label.pointList.at(0).y, 50);
        mouse.move({515, 100});
        QCOMPARE(spy.takeLast(), (QList<QVariant>{239, 50}));
        mouse.move({501, 100});
        QCOMPARE(spy.takeLast(), (QList<QVariant>{239, 50}));
        mouse.release({501, 100});
    }

    void theRightEdgeOfAnEvenPictureIsColumn240()
    {
        ShownLabel label;
        label.setToolMode(2);
        Mouse(label).click({500, 100});
        QCOMPARE(label.pointList.at(0).x, 240);
    }

    void theRightEdgeOfAnOddPictureIsColumn239()
    {
        ShownLabel label({520, 640}, {479, 640});
        label.setToolMode(2);
        // edges 260 ∓ 239; (499 − 21) × 240 / 479 = 239.4
        Mouse(label).click({499, 100});
        QCOMPARE(label.pointList.at(0).x, 239);
    }

    void marginsAboveAndBelow()
    {
        ShownLabel label({480, 700}, {480, 640});
        QSignalSpy spy(&label, &MyLabel::Point_XY);
        Mouse mouse(label);
        mouse.move({100, 10});
        QCOMPARE(spy.takeLast(), (QList<QVariant>{50, 0}));
        mouse.move({100, 30 + 640});
        QCOMPARE(spy.takeLast(), (QList<QVariant>{50, 320}));
        mouse.move({100, 30 + 641});
        QCOMPARE(spy.takeLast(), (QList<QVariant>{50, 319}));
    }

    /// With no margin there is nothing to convert by: what the last paint left is told, and that is
    /// where on the label the reticle stands.
    void aPictureOfExactlyTheLabelsShapeKeepsTheLastConversion()
    {
        ShownLabel label({480, 640});
        label.markerC = {100, 50};
        label.repaint();
        QSignalSpy spy(&label, &MyLabel::Point_XY);
        Mouse(label).move({300, 300});
        QCOMPARE(spy.takeLast(), (QList<QVariant>{200, 100}));
    }

    void withoutAPictureNothingIsConverted()
    {
        ShownLabel label({520, 640}, QSize());
        QSignalSpy spy(&label, &MyLabel::Point_XY);
        label.setToolMode(3);
        Mouse(label).drag({10, 10}, {200, 200});
        QCOMPARE(spy.takeLast(), (QList<QVariant>{0, 0}));
        label.setToolMode(1);
        Mouse(label).click({10, 10});
    }

    void theFirstPaintNeedNotHaveCome()
    {
        MyLabel label;
        label.resize(520, 640);
        QPixmap pixmap(480, 640);
        pixmap.fill(Qt::gray);
        label.setPixmap(pixmap);
        QSignalSpy spy(&label, &MyLabel::Point_XY);
        testing::sendMouse(label, QEvent::MouseMove, onLabel(7, 9), Qt::NoButton, Qt::NoButton);
        QCOMPARE(spy.takeLast(), (QList<QVariant>{7, 9}));
    }

    void labelsWithoutWidthOrHeight_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("no width") << QSize(0, 100);
        QTest::newRow("no height") << QSize(100, 0);
        QTest::newRow("nothing") << QSize(0, 0);
        QTest::newRow("one pixel") << QSize(1, 1);
    }

    void labelsWithoutWidthOrHeight()
    {
        QFETCH(QSize, size);
        QWidget window;
        window.resize(200, 200);
        auto* label = new MyLabel(&window);
        QPixmap pixmap(60, 80);
        pixmap.fill(Qt::gray);
        label->setPixmap(pixmap);
        label->resize(size);
        testing::showAndPaint(window);
        for (int mode = 1; mode <= 5; ++mode) {
            label->setToolMode(mode);
            testing::sendMouse(*label, QEvent::MouseButtonPress, {0, 0}, Qt::LeftButton,
                               Qt::LeftButton);
            testing::sendMouse(*label, QEvent::MouseMove, {1, 1}, Qt::NoButton, Qt::LeftButton);
            QImage image(20, 20, QImage::Format_RGB32);
            label->render(&image);
        }
    }

    void positionsAreRoundedHalfAwayFromZero()
    {
        ShownLabel label;
        testing::sendMouse(label, QEvent::MouseButtonPress, {10.5, 11.49}, Qt::LeftButton,
                           Qt::LeftButton);
        QCOMPARE(label.pressPos, QPoint(11, 11));
        testing::sendMouse(label, QEvent::MouseMove, {-0.5, -1.5}, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(label.mousePos, QPoint(-1, -2));
        testing::sendMouse(label, QEvent::MouseButtonRelease, {2.5, -0.49}, Qt::LeftButton,
                           Qt::NoButton);
        QCOMPARE(label.mousePos, QPoint(3, 0));
    }

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

    // People

    void keyboardFocusChangesNothing()
    {
        ShownLabel label;
        draw(label, 4, onLabel(10, 10), onLabel(50, 50));
        label.setFocus(Qt::OtherFocusReason);
        for (const int key : {Qt::Key_Delete, Qt::Key_Space, Qt::Key_Return, Qt::Key_Left})
            QTest::keyClick(&label, static_cast<Qt::Key>(key));
        QCOMPARE(label.rectList.size(), 1);
        QCOMPARE(label.currentType, QStringLiteral("R"));
    }

    void hasANameForScreenReaders()
    {
        MyLabel label;
        QVERIFY(!label.accessibleName().isEmpty());
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&label);
        QVERIFY(interface);
        QCOMPARE(interface->text(QAccessible::Name), label.accessibleName());
    }

    /// The host scales the picture to the label; a label that asked for the picture's size could
    /// only grow.
    void thePictureDoesNotDecideTheLabelsSize()
    {
        MyLabel label;
        const QSize hint = label.sizeHint();
        const QSize minimum = label.minimumSizeHint();
        label.setPixmap(QPixmap(3000, 4000));
        QCOMPARE(label.sizeHint(), hint);
        QCOMPARE(label.minimumSizeHint(), minimum);
        QVERIFY(hint.width() * 320 > hint.height() * 240); // never exactly the picture's shape
    }
};

int main(int argc, char** argv)
{
    return testing::run<MyLabelTest>(argc, argv);
}

#include "my_label_test.moc"
