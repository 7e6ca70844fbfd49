// SPDX-License-Identifier: MIT
#include "analysis/photograph/picture_zoom.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <random>

using analysis::enlarged;
using analysis::PictureZoom;

namespace {

PictureZoom zoomOf(const QSize& place)
{
    PictureZoom zoom;
    zoom.setPlace(place);
    return zoom;
}

/// Says of each pixel where it is.
QImage numbered()
{
    QImage picture(240, 320, QImage::Format_RGB888);
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x)
            picture.setPixel(x, y, qRgb(x, y % 256, y / 256));
    }
    return picture;
}

} // namespace

class PictureZoomTest : public QObject
{
    Q_OBJECT

private slots:
    void fitsAndStaysFitted()
    {
        PictureZoom zoom = zoomOf({600, 800});
        QVERIFY(zoom.isFitted());
        QCOMPARE(zoom.factor(), 2.5);
        QCOMPARE(zoom.offset(), QPoint(0, 0));
        zoom.setPlace({600, 600});
        QCOMPARE(zoom.sheet(), QSize(450, 600));
        QCOMPARE(zoom.offset(), QPoint(-75, 0));
        QCOMPARE(zoom.visible(), QRect(0, 0, 450, 600));
        QVERIFY(zoom.farthest().isNull());
        QVERIFY(!zoom.pixelAt({74, 0}));
        QCOMPARE(zoom.pixelAt({75, 0}).value(), QPoint(0, 0));
        QCOMPARE(zoom.pixelAt({524, 599}).value(), QPoint(239, 319));
        QVERIFY(!zoom.pixelAt({525, 599}));
        zoom.zoomBy(1, {0, 0}); // from 1.875: 2 would hardly be seen
        QVERIFY(!zoom.isFitted());
        QCOMPARE(zoom.factor(), 3.0);
        zoom.setPlace({480, 640});
        QCOMPARE(zoom.factor(), 3.0);
        zoom.fit();
        QVERIFY(zoom.isFitted());
        QCOMPARE(zoom.factor(), 2.0);
    }

    void goesByARowOfFactorsToItsEnds()
    {
        PictureZoom zoom = zoomOf({240, 320});
        QVector<double> row;
        for (int step = 0; step < 12; ++step) {
            row.append(zoom.factor());
            zoom.zoomBy(1, {});
        }
        QCOMPARE(row, (QVector<double>{1, 1.5, 2, 3, 4, 6, 8, 12, 16, 24, 32, 32}));
        zoom.zoomBy(-3, {});
        QCOMPARE(zoom.factor(), 12.0);
        zoom.zoomBy(-1000, {});
        QCOMPARE(zoom.factor(), 0.5);
        zoom.zoomBy(1000, {});
        QCOMPARE(zoom.factor(), 32.0);
        QCOMPARE(zoom.sheet(), QSize(7680, 10240));
    }

    void smallDifferencesAreNoSteps()
    {
        PictureZoom zoom = zoomOf({252, 336}); // 1.05
        zoom.zoomBy(-1, {});
        QCOMPARE(zoom.factor(), 0.75);
        zoom = zoomOf({7440, 9920}); // 31
        zoom.zoomBy(1, {});
        QCOMPARE(zoom.factor(), 32.0);
        zoom = zoomOf({125, 167}); // 0.52
        zoom.zoomBy(-1, {});
        QCOMPARE(zoom.factor(), 0.5);
    }

    void isSharpAboveFour()
    {
        PictureZoom zoom = zoomOf({960, 1280});
        QCOMPARE(zoom.factor(), 4.0);
        QVERIFY(!zoom.isSharp());
        zoom.zoomBy(1, {});
        QVERIFY(zoom.isSharp());
    }

    void whatIsUnderTheMouseStays()
    {
        std::mt19937 random(3);
        for (int times = 0; times < 200; ++times) {
            PictureZoom zoom = zoomOf({400, 300});
            zoom.zoomBy(20, {});
            zoom.zoomBy(-int(random() % 5), {}); // down to 8: no edge is near then
            zoom.centreOn({100 + int(random() % 40), 140 + int(random() % 40)});
            const QPoint at(int(random() % 400), int(random() % 300));
            const QPoint pixel = zoom.pixelAt(at).value();
            for (const int step : {1, -1}) {
                zoom.zoomBy(step, at);
                const QPoint now = zoom.pixelAt(at).value();
                // Where two pixels meet, rounding may take the other one.
                QVERIFY(std::abs(now.x() - pixel.x()) <= 1 && std::abs(now.y() - pixel.y()) <= 1);
            }
        }
    }

    void showsNothingBeyondTheEdges()
    {
        PictureZoom zoom = zoomOf({240, 320});
        zoom.zoomBy(2, {120, 160}); // 480 × 640
        // Its middle, (120.5, 160.5), is (241, 321) now.
        QCOMPARE(zoom.offset(), QPoint(121, 161));
        QCOMPARE(zoom.farthest(), QPoint(240, 320));
        zoom.moveTo({-5, 1000});
        QCOMPARE(zoom.offset(), QPoint(0, 320));
        QCOMPARE(zoom.visible(), QRect(0, 320, 240, 320));
        zoom.centreOn({239, 0});
        QCOMPARE(zoom.offset(), QPoint(240, 0));
        zoom.centreOn({100, 100});
        QCOMPARE(zoom.offset(), QPoint(201 - 120, 201 - 160));
        zoom.setPlace({1000, 500}); // wider than the picture
        QCOMPARE(zoom.offset(), QPoint(-260, 41));
        zoom.setPlace({0, 0});
        QVERIFY(zoom.visible().size() == QSize(1, 1));
    }

    /// At any size, every position has the colour of the pixel that is told for it.
    void cellsAreThePixelsThatAreTold()
    {
        const QImage picture = numbered();
        for (const double wanted : {6.0, 8.0, 12.0, 32.0}) {
            PictureZoom zoom = zoomOf({301, 203});
            while (zoom.factor() < wanted)
                zoom.zoomBy(1, {150, 100});
            for (const QPoint& pixel : {QPoint(0, 0), QPoint(120, 160), QPoint(239, 319)}) {
                zoom.centreOn(pixel);
                const QImage seen = enlarged(picture, zoom.sheet(), zoom.visible(), true);
                QCOMPARE(seen.size(), zoom.visible().size());
                for (int y = 0; y < seen.height(); ++y) {
                    for (int x = 0; x < seen.width(); ++x) {
                        const QPoint told = zoom.pixelAt({x, y}).value();
                        if (seen.pixel(x, y) == picture.pixel(told))
                            continue;
                        QFAIL(qPrintable(QStringLiteral("%1, %2 at %3").arg(x).arg(y).arg(wanted)));
                    }
                }
            }
        }
    }

    /// By the definition: a cell of the sheet that is no whole number of pixels wide, too.
    void cellsLieWhereTheyShould()
    {
        const QImage picture = numbered();
        const QRect part(333, 444, 200, 100);
        const QImage seen = enlarged(picture, {1001, 1501}, part, true);
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x) {
                const int column = int(std::floor((333 + x + 0.5) * 240.0 / 1001));
                const int row = int(std::floor((444 + y + 0.5) * 320.0 / 1501));
                QCOMPARE(seen.pixel(x, y), picture.pixel(column, row));
            }
        }
    }

    void smoothIsAsInTheAnalysisWindow()
    {
        const QImage picture = numbered();
        const QImage whole =
            picture.scaled(600, 800, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QImage part = enlarged(picture, {600, 800}, {50, 60, 70, 80}, false);
        QCOMPARE(part.size(), QSize(70, 80));
        for (int y = 0; y < 80; ++y) {
            for (int x = 0; x < 70; ++x)
                QCOMPARE(part.pixel(x, y), whole.pixel(50 + x, 60 + y));
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<PictureZoomTest>(argc, argv);
}

#include "picture_zoom_test.moc"
