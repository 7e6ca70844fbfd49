// SPDX-License-Identifier: MIT
#include "plots/chart.h"
#include "plots/plot_files.h"
#include "tests/plots/sample_plots.h"
#include "tests/support/test_run.h"

#include <memory>

using namespace plots;

class PlotFilesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Chart> chart;

    static int countOf(const QImage& picture, QRgb colour)
    {
        int count = 0;
        const int width = picture.width();
        for (int pixel = 0; pixel < width * picture.height(); ++pixel)
            count += picture.pixel(pixel % width, pixel / width) == colour ? 1 : 0;
        return count;
    }

private slots:
    void init()
    {
        chart = std::make_unique<Chart>();
        chart->resize(640, 400);
        chart->setPlot(testing::twoCurves());
        chart->grab();
    }
    void cleanup() { chart.reset(); }

    void aPictureIsTwiceAsFineAndHasTheCurves()
    {
        const QImage picture = pictureOf(*chart);
        QCOMPARE(picture.size(), QSize(1280, 800));
        QCOMPARE(picture.pixel(2, 2), QColor(Qt::white).rgb());
        QVERIFY(countOf(picture, colourOf(0).rgb()) > 1000);
        QVERIFY(countOf(picture, colourOf(1).rgb()) > 1000);
        // Of the same at the same place: half way up both curves cross.
        const QPoint middle =
            2 * chart->canvas()->mapTo(chart.get(), chart->toCanvas({5, 30}).toPoint());
        int curves = 0;
        for (int x = -12; x <= 12; ++x)
            curves += picture.pixel(middle + QPoint(x, 0)) == colourOf(1).rgb() ? 1 : 0;
        QVERIFY(curves > 0);
    }

    void theCursorIsNotPartOfAPictureAndStaysWhereItWas()
    {
        const QImage without = pictureOf(*chart);
        chart->setCursor(Place{0, 4});
        QCOMPARE(pictureOf(*chart), without);
        QVERIFY((chart->cursor() == Place{0, 4}));
    }

    void limitsArePartOfAPicture()
    {
        const QImage without = pictureOf(*chart);
        chart->setLimits(Limits{3, 6, 1});
        QVERIFY(pictureOf(*chart) != without);
    }

    void whatIsZoomedToIsWhatIsSaved()
    {
        const QImage whole = pictureOf(*chart);
        chart->setRange(QRectF(2, 22, 2, 4));
        const QImage part = pictureOf(*chart);
        QVERIFY(part != whole);
        QVERIFY(countOf(part, colourOf(1).rgb()) < countOf(whole, colourOf(1).rgb()) / 4);
    }

    void aPageHasLinesAndLettersThatAreNoPixels()
    {
        const QByteArray page = pdfOf(*chart);
        QVERIFY(page.startsWith("%PDF-"));
        QVERIFY(page.contains("%%EOF"));
        QCOMPARE(page.count("/Type /Page\n"), 1);
        QVERIFY(page.contains("/FontFile"));
        QVERIFY(!page.contains("/Subtype /Image"));
        // Its size is the plot's: 640 × 400 pixels in 72ths of an inch.
        const double points = 72.0 / chart->logicalDpiX();
        const QByteArray box = "/MediaBox [0 0 " + QByteArray::number(qRound(640 * points)) +
                               ".000000 " + QByteArray::number(qRound(400 * points));
        QVERIFY2(page.contains(box), box.constData());
    }

    void aPlotWithoutRoomIsEmpty()
    {
        chart->setMinimumSize(0, 0);
        chart->resize(0, 0);
        QVERIFY(pictureOf(*chart).isNull());
        QCOMPARE(pdfOf(*chart), QByteArray());
    }
};

int main(int argc, char** argv)
{
    return testing::run<PlotFilesTest>(argc, argv);
}

#include "plot_files_test.moc"
