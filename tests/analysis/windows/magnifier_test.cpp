// SPDX-License-Identifier: MIT
#include "analysis/windows/magnified_pixels.h"
#include "analysis/windows/magnifier.h"
#include "tests/analysis/windows/looking_test.h"
#include "tests/support/paint_counter.h"

#include <QCheckBox>
#include <QClipboard>
#include <QPointer>

using analysis::MagnifiedPixels;
using analysis::Magnifier;

class MagnifierTest : public testing::LookingTest
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

    /// In both units, what the analysis window says when the mouse is there.
    void everyNumberIsTheReadOut()
    {
        open();
        turn(-15);
        for (const int index : {0, 1}) {
            unit().setCurrentIndex(index);
            QCoreApplication::processEvents();
            int compared = 0;
            for (int top = 20; top < 340; top += 41) {
                for (int left = 20; left < 260; left += 41) {
                    point(std::min(left, 239), std::min(top, 319));
                    compared += compareCells();
                }
            }
            QVERIFY(compared >= 240 * 320);
        }
    }

    void outsideThePictureIsNothing()
    {
        open();
        for (const QPoint& pixel :
             {QPoint(0, 0), QPoint(239, 319), QPoint(0, 319), QPoint(239, 0), QPoint(2, 160)}) {
            point(pixel.x(), pixel.y());
            QVERIFY(compareCells() < 121);
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
        QVERIFY(load(testing::flat(33)));
        QTRY_COMPARE(readOutOfMagnifier().section(QLatin1Char(' '), -1), reading(100, 100));
        QTRY_COMPARE(colours(), expected());
    }

    void copiesItsNumbers()
    {
        open();
        point(238, 1);
        turn(3);
        pressIn(Qt::Key_C, Qt::ControlModifier);
        // gray = (7x + 13y) mod 256, and −30 °C … 50 °C over 255 gray values; by hand:
        // (236, 0): 1652 mod 256 = 116, and 116 × 80 / 255 − 30 = 6.392
        const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 6);
        QCOMPARE(lines.at(0), QStringLiteral("y \\ x (°C)\t236\t237\t238\t239"));
        QCOMPARE(lines.at(1), QStringLiteral("0\t6.4\t8.6\t10.8\t13.0"));
        QCOMPARE(lines.at(4), QStringLiteral("3\t18.6\t20.8\t23.0\t25.2"));
        QCOMPARE(lines.at(5), QString());
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

private:
    void open()
    {
        beginOn(testing::slope());
        press(Qt::Key_F8);
        QVERIFY(magnifier());
        QVERIFY(QTest::qWaitForWindowExposed(magnifier()));
    }
    Magnifier* magnifier() const { return window->findChild<Magnifier*>(); }
    MagnifiedPixels& pixels() const
    {
        return *testing::part<MagnifiedPixels>(magnifier(), "pixels");
    }
    QString readOutOfMagnifier() const
    {
        return testing::part<QLabel>(magnifier(), "readOut")->text();
    }
    bool isFrozen() const { return testing::part<QCheckBox>(magnifier(), "frozen")->isChecked(); }
    int size() const { return pixels().content().size; }
    /// As it says itself.
    QPoint middle() const
    {
        const QStringList words = readOutOfMagnifier().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return {words.at(1).toInt(), words.at(3).toInt()};
    }
    void pressIn(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QApplication::setActiveWindow(magnifier());
        QTest::keyClick(&pixels(), key, modifiers);
    }
    /// Where the pixels leave it to, as they do with whatever they do not want.
    void wheel(int angle) const { testing::LookingTest::wheel(*magnifier(), angle); }
    void turn(int steps) const { wheel(120 * steps); }
    /// Compares every cell with the read-out of the window; how many lie inside the picture.
    int compareCells()
    {
        const MagnifiedPixels::Content& content = pixels().content();
        const QString sign = unit().currentText();
        const QPoint centre = middle();
        int inside = 0;
        for (int row = 0; row < content.size; ++row) {
            for (int column = 0; column < content.size; ++column) {
                const auto& cell = content.cells[std::size_t(row * content.size + column)];
                const int x = centre.x() + column - content.size / 2;
                const int y = centre.y() + row - content.size / 2;
                const bool isInside = x >= 0 && x < 240 && y >= 0 && y < 320;
                const bool isRight =
                    isInside ? cell.text + sign == reading(x, y) && cell.colour.isValid()
                             : cell.text.isEmpty() && !cell.colour.isValid();
                if (!isRight) {
                    QTest::qFail(
                        qPrintable(QStringLiteral("%1, %2: %3").arg(x).arg(y).arg(cell.text)),
                        __FILE__, __LINE__);
                    return inside;
                }
                inside += int(isInside);
            }
        }
        return inside;
    }
};

int main(int argc, char** argv)
{
    return testing::run<MagnifierTest>(argc, argv);
}

#include "magnifier_test.moc"
