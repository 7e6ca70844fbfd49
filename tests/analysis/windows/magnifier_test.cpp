// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/magnifier_test.h"

#include "tests/support/paint_counter.h"

#include <QPointer>

#include <algorithm>

using analysis::Magnifier;

class MagnifierTest : public testing::MagnifierFixture
{
    Q_OBJECT

private slots:
    void opensAndClosesByItsKey()
    {
        beginOn(testing::slope());
        QVERIFY(!magnifier());
        press(Qt::Key_F8);
        QVERIFY(magnifier() && magnifier()->isVisible());
        QCOMPARE(magnifier()->windowTitle(), QStringLiteral("放大镜 - shot.bmp"));
        // In its own window, and in that of the picture.
        pressIn(Qt::Key_F8);
        QTRY_VERIFY(!magnifier());
        press(Qt::Key_F8);
        QVERIFY(magnifier());
        press(Qt::Key_F8);
        QTRY_VERIFY(!magnifier());
    }

    void opensFromThePicturesMenu()
    {
        beginOn(testing::slope());
        QMenu* menu = rightClick(label(), at(50, 60));
        QVERIFY(greyed(*menu).contains(QStringLiteral("定格放大镜")));
        choose(menu, "放大镜");
        QVERIFY(magnifier() && magnifier()->isVisible());
        QTest::mouseRelease(&label(), Qt::RightButton, {}, at(50, 60));
        choose(rightClick(label(), at(50, 60)), "定格放大镜");
        QVERIFY(isFrozen());
    }

    /// However it was closed.
    void theMenuTellsWhetherItIsOpen()
    {
        beginOn(testing::slope());
        const auto isTicked = [this] {
            QMenu* menu = rightClick(label(), at(50, 60));
            const bool ticked = entryOf(*menu, "放大镜")->isChecked();
            menu->close();
            QTest::mouseRelease(&label(), Qt::RightButton, {}, at(50, 60));
            return ticked;
        };
        QVERIFY(!isTicked());
        for (const Qt::Key closing : {Qt::Key_Escape, Qt::Key_F8}) {
            press(Qt::Key_F8);
            QVERIFY(isTicked());
            pressIn(closing);
            QTRY_VERIFY(!magnifier());
            QVERIFY(!isTicked());
        }
        press(Qt::Key_F8);
        press(Qt::Key_F8);
        QTRY_VERIFY(!magnifier());
        QVERIFY(!isTicked());
    }

    void beginsWhereTheMouseIs()
    {
        beginOn(testing::slope());
        press(Qt::Key_F8);
        QCOMPARE(readOutOfMagnifier().section(QLatin1String("  "), 0, 1),
                 QStringLiteral("X: 120  Y: 160"));
        pressIn(Qt::Key_F8);
        QTRY_VERIFY(!magnifier());
        point(30, 40);
        press(Qt::Key_F8);
        QCOMPARE(middle(), QPoint(30, 40));
    }

    void followsTheMouse()
    {
        open();
        for (const QPoint& pixel : {QPoint(17, 201), QPoint(239, 319), QPoint(0, 0)}) {
            point(pixel.x(), pixel.y());
            QCOMPARE(middle(), pixel);
            QCOMPARE(readOutOfMagnifier().split(QStringLiteral("  ")).join(QLatin1Char('|')),
                     readOut());
        }
    }

    void zoomsByWheelAndKeysWithinItsLimits()
    {
        open();
        QCOMPARE(size(), 11);
        turn(1);
        QCOMPARE(size(), 9);
        turn(-1);
        QCOMPARE(size(), 11);
        for (int step = 0; step < 4; ++step)
            turn(1);
        QCOMPARE(size(), 5);
        turn(-30);
        QCOMPARE(size(), 41);
        pressIn(Qt::Key_Plus);
        QCOMPARE(size(), 39);
        pressIn(Qt::Key_Equal);
        QCOMPARE(size(), 37);
        pressIn(Qt::Key_Minus);
        QCOMPARE(size(), 39);
        QCOMPARE(testing::part<QLabel>(magnifier(), "size")->text(), QStringLiteral("39 × 39"));
    }

    /// A touchpad turns by less than a step at a time.
    void smallTurnsAddUp()
    {
        open();
        for (int part = 0; part < 3; ++part)
            wheel(40);
        QCOMPARE(size(), 9);
        for (int part = 0; part < 2; ++part)
            wheel(-40);
        QCOMPARE(size(), 9);
        wheel(-40);
        QCOMPARE(size(), 11);
    }

    void standsStillWhileFrozen()
    {
        open();
        point(100, 100);
        pressIn(Qt::Key_Space);
        QVERIFY(isFrozen());
        point(50, 60);
        QCOMPARE(middle(), QPoint(100, 100));
        pressIn(Qt::Key_Right);
        pressIn(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(middle(), QPoint(101, 110));
        pressIn(Qt::Key_Left, Qt::ShiftModifier);
        pressIn(Qt::Key_Up);
        QCOMPARE(middle(), QPoint(91, 109));
        for (int step = 0; step < 20; ++step)
            pressIn(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(middle(), QPoint(0, 109));
        pressIn(Qt::Key_Space);
        QVERIFY(!isFrozen());
        pressIn(Qt::Key_Right);
        QCOMPARE(middle(), QPoint(0, 109));
        point(50, 60);
        QCOMPARE(middle(), QPoint(50, 60));
    }

    /// By a click, and by a key of the picture's window.
    void isFrozenFromElsewhere()
    {
        open();
        auto& box = *testing::part<QCheckBox>(magnifier(), "frozen");
        QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
        QVERIFY(isFrozen());
        press(Qt::Key_F8, Qt::ShiftModifier);
        QVERIFY(!isFrozen());
        QTest::keyClick(magnifier(), Qt::Key_Escape);
        QTRY_VERIFY(!magnifier());
        press(Qt::Key_F8, Qt::ShiftModifier); // does nothing
    }

    void framesItsPartInThePicture()
    {
        beginOn(testing::flat(100));
        const QImage before = label().grab().toImage();
        press(Qt::Key_F8);
        point(100, 200);
        QRect changed = difference(before, label().grab().toImage());
        QRect part(at(95, 195), at(105, 205));
        QVERIFY(changed.contains(part));
        QVERIFY(part.adjusted(-6, -6, 6, 6).contains(changed));
        // At the edge, only what is inside.
        point(0, 0);
        changed = difference(before, label().grab().toImage());
        part = QRect(at(0, 0), at(5, 5));
        QVERIFY(part.adjusted(-6, -6, 6, 6).contains(changed));
        pressIn(Qt::Key_Escape);
        QTRY_VERIFY(!magnifier());
        QCOMPARE(label().grab().toImage(), before);
    }

    void hasTheColoursOfThePicture()
    {
        open();
        point(100, 100);
        const auto colours = [this] {
            std::vector<QRgb> found;
            for (const auto& cell : pixels().content().cells)
                found.push_back(cell.colour.rgb());
            return found;
        };
        const auto expected = [this] {
            std::vector<QRgb> found;
            for (int y = 95; y <= 105; ++y) {
                for (int x = 95; x <= 105; ++x)
                    found.push_back(window->falseColourImage.pixel(x, y));
            }
            return found;
        };
        const std::vector<QRgb> whole = colours();
        QCOMPARE(whole, expected());
        bar().startValue = 60;
        bar().endValue = 120;
        bar().update();
        QTRY_VERIFY(colours() != whole);
        QCOMPARE(colours(), expected());
        const std::vector<QRgb> narrow = colours();
        analysis::Isotherm isotherm;
        isotherm.from = 20;
        window->commands().viewed().setIsotherm(isotherm);
        QTRY_VERIFY(colours() != narrow);
        QCOMPARE(colours(), expected());
        const std::vector<QRgb> over = colours();
        QVERIFY(std::find(over.begin(), over.end(), isotherm.colour.rgb()) != over.end());
        QVERIFY(load(testing::flat(33)));
        QTRY_COMPARE(readOutOfMagnifier().section(QLatin1Char(' '), -1), reading(100, 100));
        QTRY_COMPARE(colours(), expected());
    }

    void idlePaintsNothing()
    {
        open();
        point(100, 100);
        const testing::PaintCounter paints(*magnifier(), testing::PaintCounter::Of::WidgetAndParts);
        QVERIFY(testing::comeToRest(paints));
        const int before = paints.count;
        QTest::qWait(300);
        QCOMPARE(paints.count, before);
        point(100, 100); // the same pixel
        QVERIFY(testing::comeToRest(paints));
        QCOMPARE(paints.count, before);
        point(101, 100);
        QTRY_VERIFY(paints.count > before);
    }

    void goesWithThePhotograph()
    {
        open();
        const QPointer<Magnifier> open = magnifier();
        window.reset();
        QVERIFY(!open);
    }
};

int main(int argc, char** argv)
{
    return testing::run<MagnifierTest>(argc, argv);
}

#include "magnifier_test.moc"
