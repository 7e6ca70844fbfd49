// SPDX-License-Identifier: MIT
#include "tests/overlay/overlay_host.h"
#include "tests/overlay/shown_label.h"
#include "tests/support/test_run.h"

#include <QAccessible>
#include <QMetaMethod>

using testing::draw;
using testing::Mouse;
using testing::onLabel;
using testing::ShownLabel;

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
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                found.append(QString::fromLatin1(meta.method(i).methodSignature()) + ' ' +
                             QString::fromLatin1(meta.method(i).parameterNames().join(',')));
        }
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

    // People

    void keyboardFocusChangesNothing()
    {
        ShownLabel label;
        draw(label, 4, onLabel(10, 10), onLabel(50, 50));
        label.setFocus(Qt::OtherFocusReason);
        for (const int key : {Qt::Key_Delete, Qt::Key_Space, Qt::Key_Return, Qt::Key_Left})
            QTest::keyClick(&label, Qt::Key(key));
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
