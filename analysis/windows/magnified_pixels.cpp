// SPDX-License-Identifier: MIT
#include "analysis/windows/magnified_pixels.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace analysis {
namespace {

constexpr int smallestText = 7;   ///< pixels; what is smaller cannot be read
constexpr double textShare = 0.4; ///< of a cell's height, at most
constexpr int textMargin = 2;     ///< on either side

/// Light as the eye takes it, 0 … 1.
double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}

bool operator==(const MagnifiedPixels::Cell& a, const MagnifiedPixels::Cell& b)
{
    return a.colour == b.colour && a.text == b.text;
}

bool isSame(const MagnifiedPixels::Content& a, const MagnifiedPixels::Content& b)
{
    return a.size == b.size && a.longestText == b.longestText &&
           std::equal(a.cells.begin(), a.cells.end(), b.cells.begin(), b.cells.end(),
                      [](const auto& one, const auto& other) { return one == other; });
}

/// Dark outside and light inside, so that it shows on every colour.
void drawFrame(QPainter& painter, const QRect& cell)
{
    const int width = std::clamp(cell.width() / 12, 1, 3);
    const auto draw = [&](const QColor& colour, int inset) {
        QPen pen(colour, width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        const double middle = inset * width + width / 2.0;
        painter.drawRect(QRectF(cell).adjusted(middle, middle, -middle, -middle));
    };
    painter.setBrush(Qt::NoBrush);
    draw(Qt::black, -1);
    draw(Qt::white, 0);
}

} // namespace

QColor inkOn(const QColor& ground)
{
    // Where the contrasts with black and white are equal: (l + 0.05)² = 0.05 × 1.05.
    static const double border = std::sqrt(0.05 * 1.05) - 0.05;
    return luminance(ground) > border ? Qt::black : Qt::white;
}

MagnifiedPixels::MagnifiedPixels(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MagnifiedPixels::show(const Content& content)
{
    if (isSame(content, m_content))
        return;
    m_content = content;
    update();
}

QRect MagnifiedPixels::placeOf(int column, int row) const
{
    if (m_content.size <= 0)
        return {};
    const int side = std::min(width(), height()) / m_content.size;
    const int left = (width() - side * m_content.size) / 2;
    const int top = (height() - side * m_content.size) / 2;
    return {left + column * side, top + row * side, side, side};
}

int MagnifiedPixels::textSize() const
{
    const int side = placeOf(0, 0).width();
    constexpr int tried = 100;
    const double wide = QFontMetricsF(sized(font(), tried))
                            .horizontalAdvance(QString(m_content.longestText, QLatin1Char('8')));
    const double fitting = wide > 0 ? tried * (side - 2 * textMargin) / wide : side;
    const int size = int(std::min(fitting, side * textShare));
    return size < smallestText ? 0 : size;
}

QSize MagnifiedPixels::sizeHint() const
{
    return {528, 528};
}

QSize MagnifiedPixels::minimumSizeHint() const
{
    return {164, 164};
}

void MagnifiedPixels::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const int size = textSize();
    if (size > 0)
        painter.setFont(sized(font(), size));
    auto cell = m_content.cells.begin();
    for (int row = 0; row < m_content.size; ++row) {
        for (int column = 0; column < m_content.size; ++column, ++cell) {
            const QRect place = placeOf(column, row);
            if (!cell->colour.isValid()) {
                painter.fillRect(place, QColor(200, 200, 200));
                painter.fillRect(place, QBrush(QColor(150, 150, 150), Qt::BDiagPattern));
                continue;
            }
            painter.fillRect(place, cell->colour);
            if (size > 0) {
                painter.setPen(inkOn(cell->colour));
                painter.drawText(place, Qt::AlignCenter, cell->text);
            }
        }
    }
    if (m_content.size > 0)
        drawFrame(painter, placeOf(m_content.size / 2, m_content.size / 2));
}

} // namespace analysis
