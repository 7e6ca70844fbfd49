// SPDX-License-Identifier: MIT
#include "analysis/photograph/false_colour.h"
#include "tests/support/test_run.h"

using analysis::lookupFor;
using analysis::Palette;
using analysis::Rgb;

namespace {

Palette someColours()
{
    Palette palette;
    for (int i = 0; i < 256; ++i)
        palette[std::size_t(i)] = {uchar(i), uchar(255 - i), uchar(i * 5)};
    return palette;
}

/// Which palette index stands at each of a few gray values.
QVector<int> sources(const Palette& lookup, const QVector<int>& grays)
{
    QVector<int> indices;
    for (int gray : grays)
        indices.append(lookup[std::size_t(gray)].red);
    return indices;
}

} // namespace

class FalseColourTest : public QObject
{
    Q_OBJECT

private slots:
    void theWholeSpanIsThePaletteItself()
    {
        QVERIFY(lookupFor(someColours(), 0, 255) == someColours());
    }

    void beyondTheSpanTheEdgeColourStands()
    {
        // Hot edge at 255 − 55 = 200, cold edge at 255 − 205 = 50.
        const Palette lookup = lookupFor(someColours(), 55, 205);
        QCOMPARE(sources(lookup, {0, 49, 50, 51, 199, 200, 201, 255}),
                 (QVector<int>{50, 50, 50, 51, 199, 200, 200, 200}));
    }

    void oneColourBelowAndOneAboveWhenTheMarkersMeet()
    {
        const Palette lookup = lookupFor(someColours(), 100, 100);
        QCOMPARE(sources(lookup, {0, 154, 155, 156, 255}), (QVector<int>{155, 155, 155, 155, 155}));
    }

    void crossedMarkers()
    {
        // Hot edge 55, cold edge 205.
        const Palette lookup = lookupFor(someColours(), 200, 50);
        QCOMPARE(sources(lookup, {0, 54, 55, 56, 204, 205, 255}),
                 (QVector<int>{205, 205, 205, 55, 55, 55, 55}));
    }

    void markersOutOfRangeAreTakenAsTheNearest()
    {
        QVERIFY(lookupFor(someColours(), -5, 262) == someColours());
        QVERIFY(lookupFor(someColours(), 300, 300) == lookupFor(someColours(), 255, 255));
    }

    void theStripIsHottestAtTheTop()
    {
        const QImage strip = analysis::colourStrip(someColours());
        QCOMPARE(strip.size(), QSize(30, 256));
        for (int x : {0, 29}) {
            QCOMPARE(strip.pixel(x, 0), qRgb(255, 0, uchar(255 * 5)));
            QCOMPARE(strip.pixel(x, 1), qRgb(254, 1, uchar(254 * 5)));
            QCOMPARE(strip.pixel(x, 255), qRgb(0, 255, 0));
        }
    }

    void coloursComeInTheOrderRedGreenBlue()
    {
        cv::Mat gray(2, 2, CV_8UC1);
        gray.at<uchar>(0, 0) = 0;
        gray.at<uchar>(0, 1) = 10;
        gray.at<uchar>(1, 0) = 200;
        gray.at<uchar>(1, 1) = 255;
        cv::Mat colours;
        analysis::mapColours(gray, someColours(), colours);
        QCOMPARE(colours.type(), CV_8UC3);
        QCOMPARE(colours.rows, 2);
        const auto at = [&colours](int row, int column) {
            const uchar* p = colours.ptr(row) + 3 * column;
            return Rgb{p[0], p[1], p[2]};
        };
        QVERIFY(at(0, 0) == (Rgb{0, 255, 0}));
        QVERIFY(at(0, 1) == (Rgb{10, 245, 50}));
        QVERIFY(at(1, 0) == (Rgb{200, 55, uchar(1000)}));
        QVERIFY(at(1, 1) == (Rgb{255, 0, uchar(1275)}));
    }

    void aPictureBeforeAnyPhotographIsBlack()
    {
        const cv::Mat gray = cv::Mat::zeros(320, 240, CV_8UC1);
        cv::Mat colours;
        analysis::mapColours(gray, lookupFor(Palette{}, 0, 255), colours);
        QCOMPARE(cv::countNonZero(colours.reshape(1)), 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<FalseColourTest>(argc, argv);
}

#include "false_colour_test.moc"
