// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/analysis_window_test.h"
#include "tests/support/paint_counter.h"

#include <QSet>

using testing::flat;
using testing::Shot;

/// The picture in the analysis window: its colours, and that painting comes to rest.
class AnalysisRenderingTest : public testing::AnalysisWindowTest
{
    Q_OBJECT

private slots:
    void theGrayPictureIsSetWhenLoaded()
    {
        label().resize(600, 700);
        QVERIFY(load(flat(255)));
        const QImage picture = label().pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(picture.size(), QSize(525, 700));
        QCOMPARE(picture.pixel(100, 100), qRgb(255, 255, 255));
        QCOMPARE(window->grayImage.size(), QSize(240, 320));
        QCOMPARE(window->grayImage.constBits(), window->photograph.gray.data());
        QCOMPARE(window->grayMatrix.data, window->photograph.gray.data());
    }

    void colours()
    {
        Shot shot;
        shot.gray = [](int x, int y) {
            return y < 160 ? (x < 120 ? 0 : 100) : 255;
        };
        shot.palette = [](int v) {
            return v == 0 ? 0xF800 : v == 100 ? 0x07E0 : 0x001F;
        };
        QVERIFY(load(shot));
        show();
        QCOMPARE(shownColour(50, 50), qRgb(248, 0, 0));
        QCOMPARE(shownColour(200, 50), qRgb(0, 252, 0));
        QCOMPARE(shownColour(100, 300), qRgb(0, 0, 248));
        QCOMPARE(window->falseColourImage.format(), QImage::Format_RGB888);
        QCOMPARE(window->falseColourImage.size(), QSize(240, 320));
        QCOMPARE(window->colourStrip.size(), QSize(30, 256));
        // Another photograph in the same window shows at once.
        shot.palette = [](int) {
            return 0xFFFF;
        };
        QVERIFY(load(shot));
        QCoreApplication::processEvents();
        QCOMPARE(shownColour(50, 50), qRgb(248, 252, 248));
    }

    /// Between two colours, smooth scaling makes a third.
    void thePictureIsScaledSmoothly()
    {
        Shot shot;
        shot.gray = [](int x, int) {
            return x < 120 ? 0 : 255;
        };
        shot.palette = [](int v) {
            return v == 0 ? 0xF800 : 0x001F;
        };
        label().resize(611, 777);
        QVERIFY(load(shot));
        const auto mixed = [this] {
            const QImage picture = label().pixmap(Qt::ReturnByValue).toImage();
            QSet<QRgb> colours;
            for (int x = 0; x < picture.width(); ++x)
                colours.insert(picture.pixel(x, picture.height() / 2));
            return colours.size();
        };
        QVERIFY(mixed() > 2); // the gray picture
        show();
        QVERIFY(mixed() > 2);
    }

    void draggingAMarkerOfTheColourBarRendersAtOnce()
    {
        Shot shot = flat(200);
        shot.palette = [](int v) {
            return v == 200 ? 0xF800 : 0x001F;
        };
        QVERIFY(load(shot));
        show();
        QCOMPARE(shownColour(100, 100), qRgb(248, 0, 0));
        QTest::mousePress(&bar(), Qt::LeftButton, {}, bar().startMarker + QPoint(5, 0));
        QMouseEvent move(QEvent::MouseMove, QPoint(30, bar().height() / 2), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(&bar(), &move);
        QVERIFY(bar().startValue > 100);
        QCoreApplication::processEvents();
        QCOMPARE(shownColour(100, 100), qRgb(0, 0, 248));
    }

    void anIdleWindowPaintsNothing()
    {
        QVERIFY(load(flat(200)));
        show();
        QTest::mouseMove(&label(), at(30, 30));
        testing::PaintCounter paints(*window, testing::PaintCounter::Of::WidgetAndParts);
        // Come to rest first: no paint in a whole round of events.
        QTRY_VERIFY([&paints] {
            paints.count = 0;
            QTest::qWait(50);
            return paints.count == 0;
        }());
        QTest::qWait(1000);
        QCOMPARE(paints.count, 0);
        // A single paint of the whole window comes to rest as well.
        window->update();
        QTest::qWait(200);
        const int widgets = window->findChildren<QWidget*>().size();
        QVERIFY2(paints.count > 0 && paints.count < 2 * widgets,
                 qPrintable(QString::number(paints.count)));
    }

    void aCursorMoveDoesNotRenderAgain()
    {
        QVERIFY(load(flat(200)));
        show();
        const qint64 before = label().pixmap(Qt::ReturnByValue).cacheKey();
        emit label().Point_XY(5, 6);
        QCoreApplication::processEvents();
        QCOMPARE(label().pixmap(Qt::ReturnByValue).cacheKey(), before);
        window->resize(window->size() + QSize(0, 30));
        QCoreApplication::processEvents();
        QVERIFY(label().pixmap(Qt::ReturnByValue).cacheKey() != before);
    }

    void aWindowWithoutAPhotographShowsBlack()
    {
        show();
        QCOMPARE(shownColour(100, 100), qRgb(0, 0, 0));
        QTest::mouseMove(&label(), QPoint(100, 100));
        QTest::mouseClick(&label(), Qt::LeftButton, {}, QPoint(100, 100));
    }
};

int main(int argc, char** argv)
{
    return testing::run<AnalysisRenderingTest>(argc, argv);
}

#include "analysis_rendering_test.moc"
