// SPDX-License-Identifier: MIT
#include "overlay/label_geometry.h"
#include "tests/support/test_run.h"

#include <array>
#include <limits>
#include <vector>

using overlay::Box;
using overlay::Geometry;

namespace {

const std::vector<int> sizes{1,   2,   3,   7,   10,  19,  20,   21,   64,   119,  120, 121, 239,
                             240, 241, 319, 320, 321, 479, 480,  599,  600,  601,  640, 719, 720,
                             721, 800, 959, 960, 961, 999, 1000, 1337, 1500, 1999, 2000};

/// The shown picture: as large as the label allows in the shape 3 : 4, at least one pixel.
QSize fitted(int width, int height)
{
    const QSize size = QSize(240, 320).scaled(width, height, Qt::KeepAspectRatio);
    return size.expandedTo({1, 1});
}

/// True when q is n / d cut off toward zero; by multiplication, for n ≥ 0 and d > 0.
bool isQuotient(qint64 q, qint64 n, qint64 d)
{
    return q * d <= n && n < (q + 1) * d;
}

/// Half the even part, so that no division cuts anything off.
int halfOf(int value)
{
    return (value - (value & 1)) / 2;
}

/// One coordinate across margins: position, its result, label, picture, pixels of the frame.
bool acrossIsRight(int at, int result, int label, int image, int count)
{
    const int begin = halfOf(label) - halfOf(image);
    const int end = halfOf(label) + halfOf(image);
    if (at < begin)
        return result == 0;
    if (at > end)
        return result == count - 1;
    return isQuotient(result, qint64(at - begin) * count, image);
}

bool alongIsRight(int at, int result, int image, int count)
{
    if (at < 0)
        return result == 0;
    if (qint64(at) * count >= qint64(image) * count)
        return result == count - 1;
    return isQuotient(result, qint64(at) * count, image);
}

/// numerator / denominator cut off toward zero, in integers.
qint64 cutOff(qint64 numerator, qint64 denominator)
{
    return numerator < 0 ? -((-numerator) / denominator) : numerator / denominator;
}

constexpr Box before{-77, 1234, 5, 6};

} // namespace

class LabelGeometryTest : public QObject
{
    Q_OBJECT

private slots:
    void widgetToImageOverAllSizes()
    {
        for (const int width : sizes) {
            for (const int height : sizes) {
                for (const QSize& image :
                     {fitted(width, height), QSize(width, height), QSize(240, 320)})
                    checkToImage({width, image.width(), height, image.height()});
            }
        }
    }

    void imageToWidgetOverAllSizes()
    {
        for (const int width : sizes) {
            for (const int height : sizes) {
                for (const QSize& image :
                     {fitted(width, height), QSize(width, height), QSize(240, 320)})
                    checkToWidget({width, image.width(), height, image.height()});
            }
        }
    }

    void spotsWorkedOutByHand_data()
    {
        QTest::addColumn<QPoint>("widget");
        QTest::addColumn<QPoint>("image");
        QTest::newRow("left margin") << QPoint(19, 0) << QPoint(0, 0);
        QTest::newRow("first column") << QPoint(20, 1) << QPoint(0, 0);
        QTest::newRow("still the first") << QPoint(21, 2) << QPoint(0, 1);
        QTest::newRow("second column") << QPoint(22, 3) << QPoint(1, 1);
        QTest::newRow("centre") << QPoint(260, 320) << QPoint(120, 160);
        QTest::newRow("last column") << QPoint(499, 639) << QPoint(239, 319);
        QTest::newRow("right edge") << QPoint(500, 640) << QPoint(240, 319);
        QTest::newRow("right margin") << QPoint(501, 9000) << QPoint(239, 319);
        QTest::newRow("outside") << QPoint(-30, -30) << QPoint(0, 0);
    }

    /// A picture of twice the frame's size, 20 pixels of margin left and right.
    void spotsWorkedOutByHand()
    {
        QFETCH(QPoint, widget);
        QFETCH(QPoint, image);
        const Box result =
            overlay::toImage({520, 480, 640, 640}, {widget.x(), widget.y(), 12, 16}, before);
        QCOMPARE(QPoint(result.x, result.y), image);
        QCOMPARE(result.w, 6);
        QCOMPARE(result.h, 8);
    }

    void anOddPictureNeverReachesTheColumnBehindTheLast()
    {
        const Geometry geometry{521, 479, 640, 640};
        for (int x = 0; x <= 521; ++x)
            QVERIFY(overlay::toImage(geometry, {x, 0, 0, 0}, before).x < 240);
    }

    void theBottomEdgeReachesTheRowBehindTheLast()
    {
        const Geometry geometry{480, 480, 700, 640};
        QCOMPARE(overlay::toImage(geometry, {0, 30 + 640, 0, 0}, before).y, 320);
        QCOMPARE(overlay::toImage(geometry, {0, 30 + 641, 0, 0}, before).y, 319);
        QCOMPARE(overlay::toImage(geometry, {0, 29, 0, 0}, before).y, 0);
    }

    /// With margins all round the second rule has the last word, for x too.
    void marginsAllRound()
    {
        const Box result = overlay::toImage({340, 240, 420, 320}, {100, 60, 0, 0}, before);
        QCOMPARE(result.x, 100); // not 50: the left margin is not taken off
        QCOMPARE(result.y, 10);
    }

    void withoutMarginsThePreviousPositionStays()
    {
        const Box result = overlay::toImage({480, 480, 640, 640}, {100, 60, 12, 16}, before);
        QVERIFY((result == Box{before.x, before.y, 6, 8}));
    }

    void aPictureLargerThanTheLabelKeepsThePreviousPositionToo()
    {
        const Box result = overlay::toImage({100, 480, 100, 640}, {50, 60, 0, 0}, before);
        QCOMPARE(QPoint(result.x, result.y), QPoint(before.x, before.y));
    }

    void withoutAPictureNothingChanges_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("no width") << 0 << 320;
        QTest::newRow("no height") << 240 << 0;
        QTest::newRow("negative") << -3 << -4;
    }

    void withoutAPictureNothingChanges()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QVERIFY(overlay::toImage({600, width, 800, height}, {10, 10, 12, 16}, before) == before);
    }

    /// y lacks the half that x has, unless there are margins above and below.
    void theHalfIsMissingFromYWithoutMargins()
    {
        // 1 × 100 / 240 + 0.5 = 0.916…, 2 × 100 / 240 + 0.5 = 1.33…
        QCOMPARE(overlay::toWidget({100, 100, 100, 100}, {2, 0, 0, 0}).x, 1);
        // 7 × 133 / 320 = 2.909…: 2, where rounding would give 3
        QCOMPARE(overlay::toWidget({100, 100, 133, 133}, {0, 7, 0, 0}).y, 2);
        // with one pixel of margin: 2.909… + 0.5 + 0.5 = 3.909…
        QCOMPARE(overlay::toWidget({100, 100, 134, 133}, {0, 7, 0, 0}).y, 3);
    }

    void unplacedCoordinatesAreCutOffTowardZero()
    {
        const Box result = overlay::toWidget({480, 480, 640, 640}, {-1, -1, 9, -1});
        QCOMPARE(result.x, -1); // −2 + 0.5
        QCOMPARE(result.y, -2);
        QCOMPARE(result.w, 18);
        QCOMPARE(result.h, -1); // −2 + 0.5
    }

    void farAwayCoordinatesEndAtTheRange()
    {
        constexpr int most = std::numeric_limits<int>::max();
        constexpr int least = std::numeric_limits<int>::min();
        const Geometry huge{most, most, most, most};
        const Box result = overlay::toWidget(huge, {most, least, most, most});
        QCOMPARE(result.x, most);
        QCOMPARE(result.y, least);
        QCOMPARE(overlay::toImage({most, 240, 100, 100}, {least, most, 0, 0}, before).x, 0);
        QCOMPARE(overlay::toImage({most, 240, 100, 100}, {least, most, 0, 0}, before).y, 319);
    }

private:
    static void checkToImage(const Geometry& g)
    {
        const std::array<int, 13> xs{-5,
                                     -1,
                                     0,
                                     1,
                                     g.labelWidth / 3,
                                     g.labelWidth / 2,
                                     halfOf(g.labelWidth) - halfOf(g.imageWidth) - 1,
                                     halfOf(g.labelWidth) - halfOf(g.imageWidth),
                                     halfOf(g.labelWidth) + halfOf(g.imageWidth),
                                     halfOf(g.labelWidth) + halfOf(g.imageWidth) + 1,
                                     g.labelWidth - 1,
                                     g.labelWidth,
                                     g.labelWidth + 9};
        for (const int x : xs) {
            for (const double part : {-0.1, 0.0, 0.21, 0.5, 0.77, 0.999, 1.0, 1.2}) {
                const int y = int(part * g.labelHeight);
                const Box result = overlay::toImage(g, {x, y, 12, 16}, before);
                bool right = isQuotient(result.w, 12 * 240, g.imageWidth) &&
                             isQuotient(result.h, 16 * 320, g.imageHeight);
                if (g.labelHeight > g.imageHeight)
                    right = right && alongIsRight(x, result.x, g.imageWidth, 240) &&
                            acrossIsRight(y, result.y, g.labelHeight, g.imageHeight, 320);
                else if (g.labelWidth > g.imageWidth)
                    right = right && acrossIsRight(x, result.x, g.labelWidth, g.imageWidth, 240) &&
                            alongIsRight(y, result.y, g.imageHeight, 320);
                else
                    right = right && result.x == before.x && result.y == before.y;
                if (!right)
                    QFAIL(qPrintable(describe(g, x, y, result)));
            }
        }
    }

    static void checkToWidget(const Geometry& g)
    {
        for (const int x : {-1, 0, 1, 2, 59, 119, 120, 121, 200, 239, 240}) {
            for (const int y : {-1, 0, 1, 3, 77, 160, 161, 300, 319, 320}) {
                const Box result = overlay::toWidget(g, {x, y, 9, 13});
                const int marginX = std::max(g.labelWidth - g.imageWidth, 0);
                const int marginY = std::max(g.labelHeight - g.imageHeight, 0);
                const qint64 halfY = marginY > 0 ? 320 : 0;
                const bool right =
                    result.x == cutOff(qint64(2) * x * g.imageWidth + 240 * (marginX + 1), 480) &&
                    result.y ==
                        cutOff(qint64(2) * y * g.imageHeight + 320 * marginY + halfY, 640) &&
                    result.w == cutOff(2 * 9 * g.imageWidth + 240, 480) &&
                    result.h == cutOff(2 * 13 * g.imageHeight + 320, 640);
                if (!right)
                    QFAIL(qPrintable(describe(g, x, y, result)));
            }
        }
    }

    static QString describe(const Geometry& g, int x, int y, const Box& result)
    {
        return QStringLiteral("label %1×%2, picture %3×%4: (%5, %6) became (%7, %8, %9, %10)")
            .arg(g.labelWidth)
            .arg(g.labelHeight)
            .arg(g.imageWidth)
            .arg(g.imageHeight)
            .arg(x)
            .arg(y)
            .arg(result.x)
            .arg(result.y)
            .arg(result.w)
            .arg(result.h);
    }
};

int main(int argc, char** argv)
{
    return testing::run<LabelGeometryTest>(argc, argv);
}

#include "label_geometry_test.moc"
