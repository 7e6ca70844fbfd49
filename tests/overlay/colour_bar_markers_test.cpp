// SPDX-License-Identifier: MIT
#include "tests/overlay/shown_bar.h"
#include "tests/support/test_run.h"

#include <algorithm>
#include <memory>

using testing::grayStrip;
using testing::gripOf;
using testing::Mouse;
using testing::stripOf;

/// The two triangles beside the strip: where they stand, how they are dragged and drawn.
class ColourBarMarkersTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_shown = std::make_unique<testing::ShownBar>();
        bar = &m_shown->bar;
    }
    void cleanup() { m_shown.reset(); }

    void markersStandAtTheStripsRightEdge()
    {
        const int right = stripOf(*bar).x() + stripOf(*bar).width();
        QCOMPARE(bar->startMarker, QPoint(right, 10));
        QCOMPARE(bar->endMarker, QPoint(right, 610));
    }

    /// y = 10 + value × 600 / 255, rounded.
    void markersFollowTheirValues()
    {
        bar->startValue = 51;
        bar->endValue = 204;
        bar->repaint();
        QCOMPARE(bar->startMarker.y(), 130);
        QCOMPARE(bar->endMarker.y(), 490);
        const int x = bar->startMarker.x();
        bar->resize(150, 320); // a travel of 300
        bar->repaint();
        QCOMPARE(bar->startMarker, QPoint(x, 70));
        QCOMPARE(bar->endMarker, QPoint(x, 250));
    }

    void draggingTheStartMarker()
    {
        testing::LogRecorder log;
        Mouse mouse(*bar);
        const QPoint grip = gripOf(bar->startMarker);
        mouse.press(grip);
        QCOMPARE(bar->dragMarker, 1);
        QCOMPARE(bar->pressPos, grip);
        QCOMPARE(log.messages(), QStringList{QStringLiteral("您点击了起点")});
        mouse.move(grip + QPoint(30, 120)); // only the height matters
        QVERIFY(bar->dragging);
        QCOMPARE(bar->startMarker.y(), 130);
        QCOMPARE(bar->startValue, 51);
        QCOMPARE(bar->endValue, 255);
        mouse.release({5, 130});
        QVERIFY(!bar->dragging);
        QCOMPARE(bar->mousePos, QPoint(5, 130));
        QCOMPARE(bar->dragMarker, 1); // until the next press
        QCOMPARE(bar->startValue, 51);
        mouse.press({5, 300});
        QCOMPARE(bar->dragMarker, -1);
    }

    void draggingTheEndMarker()
    {
        testing::LogRecorder log;
        Mouse mouse(*bar);
        const QPoint grip = gripOf(bar->endMarker);
        mouse.press(grip);
        QCOMPARE(bar->dragMarker, 2);
        QCOMPARE(log.messages(), QStringList{QStringLiteral("您点击了终点")});
        mouse.move(grip - QPoint(0, 300));
        mouse.release(grip - QPoint(0, 300));
        QCOMPARE(bar->endValue, 128); // 300 × 255 / 600 = 127.5, rounded up
        QCOMPARE(bar->startValue, 0);
    }

    void markersNeverCrossButMayMeet()
    {
        bar->startValue = 51;
        bar->endValue = 204;
        bar->repaint();
        Mouse mouse(*bar);
        mouse.press(gripOf(bar->startMarker));
        mouse.move({60, 491});
        QCOMPARE(bar->startMarker.y(), 130);
        mouse.move({60, 490});
        QCOMPARE(bar->startMarker.y(), 490);
        QCOMPARE(bar->startValue, 204);
        mouse.move({60, 130});
        mouse.release({60, 130});
        bar->repaint();
        mouse.press(gripOf(bar->endMarker));
        mouse.move({60, 129});
        QCOMPARE(bar->endMarker.y(), 490);
        mouse.move({60, 130});
        QCOMPARE(bar->endMarker.y(), 130);
        QCOMPARE(bar->endValue, 51);
        mouse.release({60, 130});
    }

    void whereBothAreHitTheEndMarkerWins()
    {
        bar->startValue = 100;
        bar->endValue = 104;
        bar->repaint();
        testing::LogRecorder log;
        Mouse mouse(*bar);
        mouse.click(gripOf(bar->startMarker));
        QCOMPARE(log.messages(), QStringList({"您点击了起点", "您点击了终点"}));
        QCOMPARE(bar->dragMarker, 2);
    }

    void movesBeyondTheTravelAreIgnored()
    {
        Mouse mouse(*bar);
        bar->startValue = 51;
        bar->repaint();
        mouse.press(gripOf(bar->startMarker));
        mouse.move({60, 9});
        QCOMPARE(bar->startValue, 51);
        mouse.move({60, -100});
        QCOMPARE(bar->startValue, 51);
        mouse.move({60, 10});
        QCOMPARE(bar->startValue, 0);
        mouse.release({60, 10});
        bar->endValue = 204;
        bar->repaint();
        mouse.press(gripOf(bar->endMarker));
        mouse.move({60, 611});
        QCOMPARE(bar->endValue, 204);
        mouse.move({60, 9000});
        QCOMPARE(bar->endValue, 204);
        mouse.move({60, 610});
        QCOMPARE(bar->endValue, 255);
        mouse.release({60, 610});
    }

    void whereAMarkerIsHit_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("hit");
        QTest::newRow("tip") << QPoint(0, 0) << false;
        QTest::newRow("first") << QPoint(1, 0) << true;
        QTest::newRow("last") << QPoint(14, 0) << true;
        QTest::newRow("right of it") << QPoint(15, 0) << false;
        QTest::newRow("top") << QPoint(8, -14) << true;
        QTest::newRow("above") << QPoint(8, -15) << false;
        QTest::newRow("bottom") << QPoint(8, 14) << true;
        QTest::newRow("below") << QPoint(8, 15) << false;
    }

    void whereAMarkerIsHit()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, hit);
        bar->startValue = bar->endValue = 128;
        bar->repaint();
        Mouse mouse(*bar);
        mouse.click(bar->startMarker + offset);
        QCOMPARE(bar->dragMarker, hit ? 2 : -1);
        bar->endValue = 255;
        bar->repaint();
        mouse.click(bar->startMarker + offset);
        QCOMPARE(bar->dragMarker, hit ? 1 : -1);
    }

    /// On a bar lower than the palette has steps, a drag that holds no marker rounds both values.
    void aStrayDragRoundsTheValuesOfALowBar()
    {
        bar->resize(120, 220); // a travel of 200
        int shifted = 0;
        for (int value = 1; value < 255; ++value) {
            bar->startValue = value;
            bar->endValue = 255;
            bar->repaint();
            Mouse mouse(*bar);
            mouse.press({5, 100});
            mouse.move({5, 101});
            mouse.release({5, 101});
            const int y = (2 * value * 200 + 255) / 510; // rounded
            QCOMPARE(bar->startValue, (2 * y * 255 + 200) / 400);
            shifted += bar->startValue != value;
        }
        QVERIFY(shifted > 0);
    }

    void positionsAreRoundedHalfAwayFromZero()
    {
        testing::sendMouse(*bar, QEvent::MouseButtonPress, {60.5, 11.49}, Qt::LeftButton,
                           Qt::LeftButton);
        QCOMPARE(bar->pressPos, QPoint(61, 11));
        testing::sendMouse(*bar, QEvent::MouseMove, {-0.5, -1.5}, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(bar->mousePos, QPoint(-1, -2));
    }

    // Awkward sizes

    void aBarWithoutTravelKeepsItsValues_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize& size : {QSize(0, 0), QSize(120, 0), QSize(0, 100), QSize(120, 1),
                                  QSize(120, 10), QSize(120, 19), QSize(120, 20)})
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }

    void aBarWithoutTravelKeepsItsValues()
    {
        QFETCH(QSize, size);
        bar->startValue = 30;
        bar->endValue = 200;
        bar->setPalettePixmap(grayStrip());
        bar->resize(size);
        bar->repaint();
        testing::sendMouse(*bar, QEvent::MouseButtonPress, {40, 10}, Qt::LeftButton,
                           Qt::LeftButton);
        testing::sendMouse(*bar, QEvent::MouseMove, {40, 10}, Qt::NoButton, Qt::LeftButton);
        bar->repaint();
        testing::sendMouse(*bar, QEvent::MouseButtonRelease, {40, 10}, Qt::LeftButton,
                           Qt::NoButton);
        QImage image(50, 50, QImage::Format_RGB32);
        bar->render(&image);
        if (size.height() <= 20) {
            QCOMPARE(bar->startValue, 30);
            QCOMPARE(bar->endValue, 200);
        }
    }

    /// A move between a resize and the paint after it: the markers still stand where they stood.
    void aBarThatShrinksUnderTheMouseStaysSafe()
    {
        Mouse mouse(*bar);
        mouse.press(gripOf(bar->startMarker));
        bar->resize(120, 100);
        testing::sendMouse(*bar, QEvent::MouseMove, {60, 50}, Qt::NoButton, Qt::LeftButton);
        QVERIFY(bar->endValue > 255);
        bar->grab(); // indexes the palette with it
        mouse.release({60, 50});
    }

    void aMoveBeforeTheFirstPaint()
    {
        My_ColorSlider fresh;
        fresh.resize(120, 300);
        testing::sendMouse(fresh, QEvent::MouseMove, {60, 50}, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(fresh.startValue, 0);
        QCOMPARE(fresh.endValue, 255);
        fresh.grab();
        testing::sendMouse(fresh, QEvent::MouseMove, {60, 50}, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(overlay::paletteStep(fresh.startValue), 0);
        QCOMPARE(overlay::paletteStep(fresh.endValue), 255);
    }

    // Painting

    void markersAreFilledWithTheirColours()
    {
        bar->startValue = 51;
        bar->endValue = 204;
        bar->repaint();
        const QImage image = bar->grab().toImage();
        const double ratio = bar->devicePixelRatioF();
        const auto at = [&](const QPoint& position) {
            return image.pixelColor(int((position.x() + 0.5) * ratio),
                                    int((position.y() + 0.5) * ratio));
        };
        for (const QPoint& inside : {QPoint(5, 0), QPoint(13, 0), QPoint(13, 6), QPoint(13, -7)}) {
            QCOMPARE(at(bar->startMarker + inside), QColor(204, 40, 51));
            QCOMPARE(at(bar->endMarker + inside), QColor(51, 40, 204));
        }
        // outside the triangle, and the outline's upright side
        const QColor background = at({bar->startMarker.x() + 3, bar->startMarker.y() - 8});
        QCOMPARE(background, bar->palette().color(QPalette::Window));
        int darkest = 255;
        const int end = int((bar->startMarker.x() + 16.5) * ratio);
        for (int x = int((bar->startMarker.x() + 14.5) * ratio); x < end; ++x)
            darkest = std::min(darkest, image.pixelColor(x, int(130.5 * ratio)).lightness());
        QVERIFY(darkest < 160);
        QCOMPARE(at(bar->startMarker + QPoint(17, -9)), background);
    }

    /// The outline is a stroke of black on each of the three sides, one pixel wide; the fill lies
    /// over its inner half.
    void trianglesAreOutlinedInBlack()
    {
        bar->paletteTable.fill({255, 255, 255});
        bar->startValue = 51;
        bar->endValue = 204;
        bar->repaint();
        const QImage image = bar->grab().toImage();
        const double ratio = bar->devicePixelRatioF();
        const auto darkestNear = [&](const QPointF& position) {
            int darkest = 255;
            // A pixel to either side, in steps of half a device pixel.
            const int steps = static_cast<int>(4 * ratio);
            for (int row = 0; row <= steps; ++row) {
                for (int column = 0; column <= steps; ++column) {
                    const QPointF place =
                        position + QPointF(column, row) / (2 * ratio) - QPointF(1, 1);
                    darkest = std::min(darkest, image
                                                    .pixelColor(static_cast<int>(place.x() * ratio),
                                                                static_cast<int>(place.y() * ratio))
                                                    .lightness());
                }
            }
            return darkest;
        };
        for (const QPoint& tip : {bar->startMarker, bar->endMarker}) {
            for (const QPointF& middle : {QPointF(7.5, -5), QPointF(7.5, 5), QPointF(15, 0)})
                QVERIFY2(darkestNear(tip + middle + QPointF(0.5, 0.5)) < 160,
                         qPrintable(QStringLiteral("%1, %2: %3")
                                        .arg(middle.x())
                                        .arg(middle.y())
                                        .arg(darkestNear(tip + middle + QPointF(0.5, 0.5)))));
        }
    }

private:
    std::unique_ptr<testing::ShownBar> m_shown;
    My_ColorSlider* bar = nullptr; ///< the shown one
};

int main(int argc, char** argv)
{
    return testing::run<ColourBarMarkersTest>(argc, argv);
}

#include "colour_bar_markers_test.moc"
