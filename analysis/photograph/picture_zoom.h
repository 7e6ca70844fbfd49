// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace analysis {

/// Which part of an enlarged picture a window shows. The *place* is the window's own pixels, the
/// *sheet* the whole picture at this size, in pixels of the same extent; image pixels are 240 ×
/// 320. The picture stands in the middle where the window is larger.
class PictureZoom
{
public:
    /// Sheet pixels along an image pixel.
    static constexpr double smallest = 0.5;
    static constexpr double largest = 32.0;
    /// Up to here the picture is smooth, as in the analysis window; above, each pixel is a sharp
    /// cell: so large, one looks at pixels.
    static constexpr double largestSmooth = 4.0;

    double factor() const { return m_factor; }
    bool isSharp() const { return m_factor > largestSmooth; }
    /// The whole picture is as large as the place has room for, and stays so when that changes.
    bool isFitted() const { return m_isFitted; }

    QSize sheet() const;
    /// The place's upper left corner on the sheet; negative where there are margins.
    QPoint offset() const { return m_offset; }
    /// How far the offset can go; null where nothing is hidden.
    QPoint farthest() const;
    /// The part of the sheet that is seen.
    QRect visible() const;
    /// The image pixel at a position of the place; nothing beside the picture.
    std::optional<QPoint> pixelAt(const QPoint& place) const;

    void setPlace(const QSize& place);
    void fit();
    /// The next factors of a fixed row: 1, 1.5, 2, 3, 4, 6 … What is at this position stays there,
    /// if the edges of the picture allow it.
    void zoomBy(int steps, const QPoint& at);
    void moveTo(const QPoint& offset);
    /// As near to the middle of the place as the edges allow.
    void centreOn(const QPoint& pixel);

private:
    void zoomTo(double factor, const QPoint& at);

    QSize m_place{1, 1};
    double m_factor = 1.0;
    bool m_isFitted = true;
    QPoint m_offset;
};

/// A part of a picture that is enlarged to the size of a sheet, in the sheet's pixels. Smooth as
/// QImage::scaled() makes it; or sharp, each of the picture's pixels a cell: then only the part is
/// made, however large the sheet.
QImage enlarged(const QImage& picture, const QSize& sheet, const QRect& part, bool isSharp);

} // namespace analysis
