// SPDX-License-Identifier: MIT
#include "analysis/photograph/picture_zoom.h"

#include "analysis/photograph/layouts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace analysis {
namespace {

constexpr std::array<double, 13> factors{
    PictureZoom::smallest, 0.75, 1, 1.5, 2, 3, 4, 6, 8, 12, 16, 24, PictureZoom::largest};

/// The next factor of the row in this direction; at its end, or beyond it, the factor itself. One
/// that is hardly other is passed: a step should be seen.
double nextFactor(double factor, bool isUp)
{
    constexpr double hardlyOther = 1.1;
    if (isUp) {
        const auto* next = std::upper_bound(factors.begin(), factors.end(), factor * hardlyOther);
        return next == factors.end() ? std::max(factor, PictureZoom::largest) : *next;
    }
    const auto* next = std::lower_bound(factors.begin(), factors.end(), factor / hardlyOther);
    return next == factors.begin() ? std::min(factor, PictureZoom::smallest) : *(next - 1);
}

/// The picture's pixel under the middle of the sheet's.
int sourceOf(int position, int sheet, int count)
{
    return std::min(int((2 * qint64(position) + 1) * count / (2 * qint64(sheet))), count - 1);
}

} // namespace

QSize PictureZoom::sheet() const
{
    return {std::max(1, int(std::lround(m_factor * format::columns))),
            std::max(1, int(std::lround(m_factor * format::rows)))};
}

QPoint PictureZoom::farthest() const
{
    return {std::max(0, sheet().width() - m_place.width()),
            std::max(0, sheet().height() - m_place.height())};
}

QRect PictureZoom::visible() const
{
    return QRect(m_offset, m_place) & QRect(QPoint(), sheet());
}

std::optional<QPoint> PictureZoom::pixelAt(const QPoint& place) const
{
    const QPoint position = place + m_offset;
    if (!QRect(QPoint(), sheet()).contains(position))
        return std::nullopt;
    return QPoint(sourceOf(position.x(), sheet().width(), format::columns),
                  sourceOf(position.y(), sheet().height(), format::rows));
}

void PictureZoom::setPlace(const QSize& place)
{
    m_place = place.expandedTo({1, 1});
    if (m_isFitted)
        fit();
    else
        moveTo(m_offset);
}

void PictureZoom::fit()
{
    m_isFitted = true;
    m_factor = std::clamp(std::min(m_place.width() / double(format::columns),
                                   m_place.height() / double(format::rows)),
                          smallest, largest);
    moveTo({});
}

void PictureZoom::zoomBy(int steps, const QPoint& at)
{
    double factor = m_factor;
    for (int step = std::min(std::abs(steps), int(factors.size())); step > 0; --step)
        factor = nextFactor(factor, steps > 0);
    if (factor != m_factor)
        zoomTo(factor, at);
}

void PictureZoom::zoomTo(double factor, const QPoint& at)
{
    const QPointF before = (QPointF(at + m_offset) + QPointF(0.5, 0.5)) / m_factor;
    m_isFitted = false;
    m_factor = factor;
    const QPointF now = before * factor - QPointF(at) - QPointF(0.5, 0.5);
    moveTo({int(std::lround(now.x())), int(std::lround(now.y()))});
}

void PictureZoom::moveTo(const QPoint& offset)
{
    const auto held = [](int wanted, int length, int room) {
        return length <= room ? -((room - length) / 2) : std::clamp(wanted, 0, length - room);
    };
    m_offset = {held(offset.x(), sheet().width(), m_place.width()),
                held(offset.y(), sheet().height(), m_place.height())};
}

void PictureZoom::centreOn(const QPoint& pixel)
{
    moveTo({int((pixel.x() + 0.5) * m_factor) - m_place.width() / 2,
            int((pixel.y() + 0.5) * m_factor) - m_place.height() / 2});
}

QImage enlarged(const QImage& picture, const QSize& sheet, const QRect& part, bool isSharp)
{
    if (!isSharp)
        return picture.scaled(sheet, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .copy(part)
            .convertToFormat(QImage::Format_RGB32);
    const QImage source = picture.convertToFormat(QImage::Format_RGB32);
    QImage cells(part.size(), QImage::Format_RGB32);
    std::vector<int> columns;
    columns.reserve(std::size_t(part.width()));
    for (int x = part.left(); x <= part.right(); ++x)
        columns.push_back(sourceOf(x, sheet.width(), source.width()));
    int before = -1;
    for (int y = 0; y < part.height(); ++y) {
        const int row = sourceOf(part.top() + y, sheet.height(), source.height());
        auto* line = reinterpret_cast<QRgb*>(cells.scanLine(y));
        if (row == before) {
            std::memcpy(line, cells.constScanLine(y - 1), std::size_t(cells.bytesPerLine()));
            continue;
        }
        before = row;
        const auto* from = reinterpret_cast<const QRgb*>(source.constScanLine(row));
        for (const int column : columns)
            *line++ = from[column];
    }
    return cells;
}

} // namespace analysis
