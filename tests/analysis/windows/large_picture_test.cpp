// SPDX-License-Identifier: MIT
#include "analysis/windows/large_picture.h"
#include "analysis/windows/picture_view.h"
#include "tests/analysis/windows/looking_test.h"
#include "tests/support/paint_counter.h"

#include <QCheckBox>
#include <QClipboard>
#include <QPointer>

using analysis::LargePicture;
using analysis::PictureView;

class LargePictureTest : public testing::LookingTest
{
    Q_OBJECT

private slots:
    void opensFromThePicturesMenu()
    {
        open();
        QCOMPARE(large()->windowTitle(), QStringLiteral("大图 - shot.bmp"));
        QVERIFY(view().zoom().isFitted());
        QVERIFY(view().hasFocus());
        QTest::keyClick(&view(), Qt::Key_Escape);
        QTRY_VERIFY(!large());
    }

    /// At the pixel under the mouse; the wheel alone does what it did.
    void opensByTheWheelOverThePicture()
    {
        beginOn(testing::slope());
        wheelAt(label(), at(100, 150), 120);
        QVERIFY(!large());
        wheelAt(label(), at(100, 150), 60, Qt::ControlModifier);
        QVERIFY(!large()); // half a step
        wheelAt(label(), at(100, 150), 60, Qt::ControlModifier);
        QVERIFY(large() && large()->isVisible());
        const double first = view().zoom().factor();
        QVERIFY(!view().zoom().isFitted());
        for (int step = 0; step < 3; ++step)
            wheelAt(label(), at(100, 150), 120, Qt::ControlModifier);
        QVERIFY(view().zoom().factor() > first);
        const QPoint middle = view().viewport()->rect().center();
        const QPoint off = view().zoom().pixelAt(middle).value() - QPoint(100, 150);
        QVERIFY(off.manhattanLength() <= 2);
    }

    /// What the analysis window says when the mouse is there, in both units.
    void readsOutThePixels()
    {
        open();
        pressIn(Qt::Key_0);
        const QRect seen(-view().zoom().offset(), view().zoom().sheet());
        for (const int index : {0, 1}) {
            unit().setCurrentIndex(index);
            QCoreApplication::processEvents();
            for (int y = index; y < 320; y += 3) {
                for (int x = y % 5; x < 240; x += 5) {
                    const QPoint place = seen.topLeft() + QPoint((2 * x + 1) * seen.width() / 480,
                                                                 (2 * y + 1) * seen.height() / 640);
                    pointIn(place);
                    const QString expected =
                        QStringLiteral("X: %1  Y: %2  %3").arg(x).arg(y).arg(reading(x, y));
                    if (readOutOfLarge() != expected)
                        QCOMPARE(readOutOfLarge(), expected);
                }
            }
        }
        pointIn({0, 0});
        QVERIFY(seen.contains(0, 0) || readOutOfLarge().isEmpty());
    }

    void zoomsByKeys()
    {
        open();
        const double fitted = view().zoom().factor();
        pressIn(Qt::Key_Plus);
        const double larger = view().zoom().factor();
        QVERIFY(larger > fitted);
        QCOMPARE(testing::part<QLabel>(large(), "zoom")->text(),
                 QStringLiteral("%1 %").arg(100 * larger));
        pressIn(Qt::Key_Equal);
        QVERIFY(view().zoom().factor() > larger);
        pressIn(Qt::Key_Minus);
        QCOMPARE(view().zoom().factor(), larger);
        const QPoint before = view().zoom().offset();
        for (int step = 0; step < 3; ++step)
            pressIn(Qt::Key_Plus);
        pressIn(Qt::Key_Down);
        QVERIFY(view().zoom().offset() != before);
        pressIn(Qt::Key_0);
        QVERIFY(view().zoom().isFitted());
        QCOMPARE(view().zoom().factor(), fitted);
    }

    void followsThePicture()
    {
        open();
        QImage before = view().seen();
        const auto changes = [&] {
            const bool isOther = QTest::qWaitFor([&] { return view().seen() != before; }, 5000);
            before = view().seen();
            return isOther;
        };
        drawOneOfEach();
        QVERIFY(changes());
        window->commands().change([](overlay::ToolEditing& tools) {
            overlay::select(tools, overlay::ToolKind::Rect, 0);
        });
        QVERIFY(changes());
        bar().endValue = 90;
        bar().update();
        QVERIFY(changes());
        QVERIFY(load(testing::flat(33)));
        QVERIFY(changes());
    }

    /// The same picture that the analysis window shows and copies, at another size.
    void copiesWhatIsSeen()
    {
        open();
        drawOneOfEach();
        for (int step = 0; step < 5; ++step)
            pressIn(Qt::Key_Plus);
        QCoreApplication::processEvents();
        pressIn(Qt::Key_C, Qt::ControlModifier);
        const QImage copied = QGuiApplication::clipboard()->image();
        QCOMPARE(copied.size(), view().viewport()->size());
        QCOMPARE(copied.convertToFormat(QImage::Format_RGB32),
                 view().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32));
    }

    /// Its keys are not the picture's, and what is done in it changes no tool.
    void changesNothing()
    {
        open();
        drawOneOfEach();
        const auto before = window->commands().state();
        for (const Qt::Key pressed : {Qt::Key_Delete, Qt::Key_Left, Qt::Key_2, Qt::Key_PageUp})
            pressIn(pressed);
        pressIn(Qt::Key_Z, Qt::ControlModifier);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, {100, 100});
        QTest::mouseClick(view().viewport(), Qt::RightButton, {}, {100, 100});
        QVERIFY(window->commands().state() == before);
    }

    void offersTheCorrectedSet()
    {
        open();
        analysis::ViewedPhotograph& viewed = window->commands().viewed();
        auto& box = *testing::part<QCheckBox>(large(), "corrected");
        QVERIFY(!box.isVisible());
        viewed.setCorrection(analysis::Correction{0.95, 0.6, 20});
        QTRY_VERIFY(box.isVisible());
        const QPoint middle = view().viewport()->rect().center();
        const QPoint pixel = view().zoom().pixelAt(middle).value();
        pointIn(middle);
        QVERIFY(readOutOfLarge().endsWith(reading(pixel.x(), pixel.y())));
        box.click();
        const auto index = std::size_t(pixel.x() * 320 + pixel.y());
        QVERIFY(readOutOfLarge().endsWith(
            QStringLiteral(" %1°C").arg(double((*viewed.corrected())[index]), 0, 'f', 1)));
    }

    void idlePaintsNothing()
    {
        open();
        const testing::PaintCounter paints(*large(), testing::PaintCounter::Of::WidgetAndParts);
        QVERIFY(testing::comeToRest(paints));
        const int before = paints.count;
        QTest::qWait(300);
        QCOMPARE(paints.count, before);
        // Another pixel under the mouse of the analysis window is none of its business.
        point(50, 60);
        QVERIFY(testing::comeToRest(paints));
        QCOMPARE(paints.count, before);
    }

    void goesWithThePhotograph()
    {
        open();
        const QPointer<LargePicture> open = large();
        window.reset();
        QVERIFY(!open);
    }

private:
    void open()
    {
        beginOn(testing::slope());
        choose(rightClick(label(), at(50, 60)), "大图");
        QTest::mouseRelease(&label(), Qt::RightButton, {}, at(50, 60));
        QVERIFY(large() && large()->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(large()));
        QApplication::setActiveWindow(large());
    }
    LargePicture* large() const { return window->findChild<LargePicture*>(); }
    PictureView& view() const { return large()->view(); }
    QString readOutOfLarge() const { return testing::part<QLabel>(large(), "readOut")->text(); }
    void pressIn(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QApplication::setActiveWindow(large());
        QTest::keyClick(&view(), key, modifiers);
    }
    void pointIn(const QPoint& place) const
    {
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(view().viewport(), &move);
    }
};

int main(int argc, char** argv)
{
    return testing::run<LargePictureTest>(argc, argv);
}

#include "large_picture_test.moc"
