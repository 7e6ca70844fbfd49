// SPDX-License-Identifier: MIT
#include "analysis/photograph/false_colour.h"

#include <opencv2/core/utility.hpp>
#include <opencv2/imgproc.hpp>

namespace analysis {

Palette lookupFor(const Palette& palette, int startValue, int endValue)
{
    constexpr int last = format::paletteEntries - 1;
    const int hot = last - std::clamp(startValue, 0, last);
    const int cold = last - std::clamp(endValue, 0, last);
    Palette lookup;
    for (int i = 0; i <= last; ++i)
        lookup[std::size_t(i)] = palette[std::size_t(i > hot ? hot : i >= cold ? i : cold)];
    return lookup;
}

QImage colourStrip(const Palette& palette)
{
    QImage strip(30, format::paletteEntries, QImage::Format_RGB32);
    for (int y = 0; y < strip.height(); ++y) {
        const Rgb& colour = palette[std::size_t(format::paletteEntries - 1 - y)];
        std::fill_n(reinterpret_cast<QRgb*>(strip.scanLine(y)), strip.width(),
                    qRgb(colour.red, colour.green, colour.blue));
    }
    return strip;
}

void mapColours(const cv::Mat& gray, const Palette& lookup, cv::Mat& colours)
{
    // Threads of its own would take longer to wake than these pictures take.
    [[maybe_unused]] static const bool isSerial = [] {
        cv::setNumThreads(1);
        return true;
    }();
    // OpenCV takes tables as matrices it may write to, but only reads this one.
    const cv::Mat table(format::paletteEntries, 1, CV_8UC3, const_cast<Rgb*>(lookup.data()));
    cv::applyColorMap(gray, colours, table);
}

QImage falseColourPicture(const Photograph& photograph, int startValue, int endValue)
{
    // OpenCV wants to be able to write to what it only reads here.
    const cv::Mat gray(format::rows, format::columns, CV_8UC1,
                       const_cast<uchar*>(photograph.gray.data()));
    QImage picture(format::columns, format::rows, QImage::Format_RGB888);
    cv::Mat colours(format::rows, format::columns, CV_8UC3, picture.bits(),
                    std::size_t(picture.bytesPerLine()));
    mapColours(gray, lookupFor(photograph.palette, startValue, endValue), colours);
    return picture;
}

} // namespace analysis
