#include "overlay/my_color_slider.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/paint_counter.h"
#include "tests/support/test_run.h"

#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QPainter>

#include <algorithm>
#include <limits>
#include <memory>

using testing::Mouse;

namespace {

/// The eleven temperatures, top first.
QList<QLabel*> scaleOf(const My_ColorSlider& bar)
{
    QList<QLabel*> labels;
    for (QLabel* label : bar.findChildren<QLabel*>())
        if (label->objectName().startsWith(QLatin1String("scaleLabel")))
            labels.append(label);
    std::sort(labels.begin(), labels.end(),
              [](const QLabel* a, const QLabel* b) { return a->y() < b->y(); });
    return labels;
}

QStringList textsOf(const My_ColorSlider& bar)
{
    QStringList texts;
    for (const QLabel* label : scaleOf(bar))
        texts.append(label->text());
    return texts;
}

QLabel& stripOf(const My_ColorSlider& bar)
{
    return *bar.findChild<QLabel*>(QStringLiteral("label"));
}

/// 30 × 256: from white at the top to black, made anew at each call.
QPixmap grayStrip()
{
    QPixmap strip(30, 256);
    QPainter painter(&strip);
    for (int i = 0; i < 256; ++i) {
        painter.setPen(QColor(i, i, i));
        painter.drawLine(0, 255 - i, 30, 255 - i);
    }
    return strip;
}

/// A spot on a marker that a hand would take.
QPoint gripOf(const QPoint& marker)
{
    return marker + QPoint(8, 0);
}

} // namespace

class MyColorSliderTest : public QObject
{
    Q_OBJECT

private slots:
    /// A bar of 120 × 620: a travel of 600 pixels.
    void init()
    {
        window = std::make_unique<QWidget>();
        window->resize(200, 700);
        bar = new My_ColorSlider(window.get());
        for (int step = 0; step < 256; ++step)
            bar->paletteTable[std::size_t(step)] = {uchar(255 - step), 40, uchar(step)};
        bar->resize(120, 620);
        testing::showAndPaint(*window);
    }

    void cleanup() { window.reset(); }

    void startsWithTheWholeSpan()
    {
        const My_ColorSlider fresh;
        QCOMPARE(fresh.startValue, 0);
        QCOMPARE(fresh.endValue, 255);
        QCOMPARE(fresh.dragMarker, -1);
        QVERIFY(!fresh.dragging);
        QCOMPARE(fresh.startMarker, QPoint(-1, -1));
        QCOMPARE(fresh.endMarker, QPoint(-1, -1));
        QCOMPARE(textsOf(fresh).count(QStringLiteral("00.0")), 11);
        for (const char* layout : {"verticalLayout", "verticalLayout_2", "verticalLayout_3"})
            QVERIFY(fresh.findChild<QLayout*>(QString::fromLatin1(layout)));
    }

    /// Ticks and spacers, too: whoever looks a part of the form up by its name finds a plain label.
    void everyLabelOfTheFormIsThere()
    {
        QStringList missing;
        for (int number = 2; number <= 67; ++number) {
            const QString name = QStringLiteral("label_%1").arg(number);
            const QLabel* label = bar->findChild<QLabel*>(name);
            if (!label || label->metaObject() != &QLabel::staticMetaObject ||
                !label->text().isEmpty())
                missing.append(name);
        }
        QCOMPARE(missing, QStringList());
    }

    void tellsNothing()
    {
        const QMetaObject& meta = My_ColorSlider::staticMetaObject;
        QCOMPARE(meta.methodCount(), meta.methodOffset());
    }

    // Scale

    void temperaturesStandTopFirst()
    {
        bar->topTemperature = 50.0F;
        bar->bottomTemperature = 20.0F;
        bar->updateScale();
        QCOMPARE(textsOf(*bar), QStringList({"50.0", "47.0", "44.0", "41.0", "38.0", "35.0", "32.0",
                                             "29.0", "26.0", "23.0", "20.0"}));
    }

    void temperaturesOfAllKinds()
    {
        bar->topTemperature = 1234.56F;
        bar->bottomTemperature = -0.04F;
        bar->updateScale();
        QCOMPARE(textsOf(*bar).first(), QStringLiteral("1234.6"));
        QCOMPARE(textsOf(*bar).last(), QStringLiteral("-0.0"));
        bar->topTemperature = bar->bottomTemperature = std::numeric_limits<float>::infinity();
        bar->updateScale();
        QCOMPARE(textsOf(*bar).last(), QStringLiteral("inf"));
        QCOMPARE(textsOf(*bar).first(), QStringLiteral("nan"));
    }

    /// Each temperature stands at the height of its share of the strip, and has room for long ones.
    void temperaturesStandBesideTheirColours()
    {
        for (const int height : {240, 333, 620, 690}) {
            bar->resize(bar->minimumSizeHint().width(), height);
            testing::comeToRest(testing::PaintCounter(*bar));
            const QList<QLabel*> labels = scaleOf(*bar);
            QCOMPARE(labels.size(), 11);
            for (int k = 0; k <= 10; ++k) {
                const QRect place = labels.at(k)->geometry();
                const double centre = place.y() + place.height() / 2.0;
                QVERIFY(std::abs(centre - (10 + k * (height - 20) / 10.0)) <= 1.5);
                QVERIFY(place.width() >=
                        labels.at(k)->fontMetrics().horizontalAdvance(QStringLiteral("-1234.5")));
                QVERIFY(place.x() > bar->startMarker.x() + 15);
                QVERIFY(bar->rect().contains(place));
            }
            QCOMPARE(stripOf(*bar).y(), 10);
            QCOMPARE(stripOf(*bar).height(), height - 20);
        }
    }

    // Strip

    void theStripIsScaledToTheBar()
    {
        bar->setPalettePixmap(grayStrip());
        QCOMPARE(bar->paletteStrip.size(), QSize(30, 256));
        QCOMPARE(stripOf(*bar).pixmap()->size(), QSize(72, 620)); // 30 × 620 / 256 = 72.65
        bar->resize(60, 620);
        QCOMPARE(stripOf(*bar).pixmap()->size(), QSize(60, 512));
        bar->resize(120, 620);
        const QImage image = bar->grab().toImage();
        const double ratio = bar->devicePixelRatioF();
        const auto grayAt = [&](int y) {
            return qGray(image.pixel(static_cast<int>(15 * ratio), static_cast<int>(y * ratio)));
        };
        // the whole palette over the whole travel: hottest at 10, coldest at h − 10
        QVERIFY(grayAt(11) > 250);
        QVERIFY(grayAt(608) < 5);
        QVERIFY(std::abs(grayAt(310) - 128) <= 3);
    }

    void withoutAStripNothingIsShownAndNothingSaid()
    {
        testing::LogRecorder log;
        bar->setPalettePixmap(QPixmap());
        bar->resize(100, 400);
        bar->repaint();
        QCOMPARE(log.messages(), QStringList());
    }

    void theSameStripAgainPaintsNothing()
    {
        bar->setPalettePixmap(grayStrip());
        testing::PaintCounter paints(*bar);
        QVERIFY(testing::comeToRest(paints));
        paints.count = 0;
        for (int i = 0; i < 3; ++i)
            bar->setPalettePixmap(grayStrip());
        QVERIFY(testing::comeToRest(paints));
        QCOMPARE(paints.count, 0);
        QPixmap other = grayStrip();
        other.fill(Qt::red);
        bar->setPalettePixmap(other);
        QVERIFY(testing::comeToRest(paints));
        QVERIFY(paints.count > 0);
    }

    // Markers

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
            return image.pixelColor(static_cast<int>((position.x() + 0.5) * ratio),
                                    static_cast<int>((position.y() + 0.5) * ratio));
        };
        for (const QPoint& inside : {QPoint(5, 0), QPoint(13, 0), QPoint(13, 6), QPoint(13, -7)}) {
            QCOMPARE(at(bar->startMarker + inside), QColor(204, 40, 51));
            QCOMPARE(at(bar->endMarker + inside), QColor(51, 40, 204));
        }
        // outside the triangle, and the outline's upright side
        const QColor background = at({bar->startMarker.x() + 3, bar->startMarker.y() - 8});
        QCOMPARE(background, bar->palette().color(QPalette::Window));
        int darkest = 255;
        const int end = static_cast<int>((bar->startMarker.x() + 16.5) * ratio);
        for (int x = static_cast<int>((bar->startMarker.x() + 14.5) * ratio); x < end; ++x)
            darkest =
                std::min(darkest, image.pixelColor(x, static_cast<int>(130.5 * ratio)).lightness());
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
            for (double dy = -1; dy <= 1; dy += 0.5 / ratio)
                for (double dx = -1; dx <= 1; dx += 0.5 / ratio)
                    darkest = std::min(
                        darkest, image
                                     .pixelColor(static_cast<int>((position.x() + dx) * ratio),
                                                 static_cast<int>((position.y() + dy) * ratio))
                                     .lightness());
            return darkest;
        };
        for (const QPoint& tip : {bar->startMarker, bar->endMarker})
            for (const QPointF& middle : {QPointF(7.5, -5), QPointF(7.5, 5), QPointF(15, 0)})
                QVERIFY2(darkestNear(tip + middle + QPointF(0.5, 0.5)) < 160,
                         qPrintable(QStringLiteral("%1, %2: %3")
                                        .arg(middle.x())
                                        .arg(middle.y())
                                        .arg(darkestNear(tip + middle + QPointF(0.5, 0.5)))));
    }

    void screenReadersHearTheTemperatures()
    {
        const QString before = bar->accessibleName();
        QVERIFY(!before.isEmpty());
        bar->topTemperature = 50.04F;
        bar->bottomTemperature = -20.5F;
        bar->updateScale();
        QVERIFY(bar->accessibleName().startsWith(before));
        QVERIFY(bar->accessibleName().contains(QStringLiteral("50.0")));
        QVERIFY(bar->accessibleName().contains(QStringLiteral("-20.5")));
    }

    void keyboardFocusChangesNothing()
    {
        bar->setFocus();
        for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Space})
            QTest::keyClick(bar, static_cast<Qt::Key>(key));
        QCOMPARE(bar->startValue, 0);
        QCOMPARE(bar->endValue, 255);
    }

private:
    std::unique_ptr<QWidget> window;
    My_ColorSlider* bar = nullptr; ///< owned by the window
};

int main(int argc, char** argv)
{
    return testing::run<MyColorSliderTest>(argc, argv);
}

#include "my_color_slider_test.moc"
