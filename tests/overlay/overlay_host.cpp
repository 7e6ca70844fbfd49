// SPDX-License-Identifier: MIT
#include "tests/overlay/overlay_host.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace testing {
namespace {

struct Spot
{
    double x;
    double y;
    double extent;
    double height;
};

} // namespace

QImage grayPicture()
{
    constexpr std::array<Spot, 4> spots{
        {{120, 190, 90, 120}, {85, 110, 18, 110}, {170, 230, 12, 90}, {20, 20, 40, -40}}};
    QImage picture(overlay::imageColumns, overlay::imageRows, QImage::Format_Grayscale8);
    for (int y = 0; y < picture.height(); ++y) {
        uchar* line = picture.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            double value = 45;
            for (const Spot& spot : spots)
                value +=
                    spot.height * std::exp(-(std::pow(x - spot.x, 2) + std::pow(y - spot.y, 2)) /
                                           (2 * spot.extent * spot.extent));
            line[x] = uchar(std::clamp(value, 0.0, 255.0));
        }
    }
    return picture;
}

std::array<QRgb, 256> ironPalette()
{
    struct Stop
    {
        int at, red, green, blue;
    };
    constexpr std::array<Stop, 6> stops{{{0, 0, 0, 20},
                                         {60, 90, 0, 150},
                                         {130, 210, 40, 90},
                                         {190, 250, 140, 0},
                                         {235, 255, 225, 60},
                                         {255, 255, 255, 245}}};
    std::array<QRgb, 256> palette{};
    for (std::size_t k = 0; k + 1 < stops.size(); ++k) {
        for (int i = stops[k].at; i <= stops[k + 1].at; ++i) {
            const auto mix = [&](int from, int to) {
                return from + (to - from) * (i - stops[k].at) / (stops[k + 1].at - stops[k].at);
            };
            palette[std::size_t(i)] =
                qRgb(mix(stops[k].red, stops[k + 1].red), mix(stops[k].green, stops[k + 1].green),
                     mix(stops[k].blue, stops[k + 1].blue));
        }
    }
    return palette;
}

OverlayHost::OverlayHost(QWidget* parent)
    : QWidget(parent), label(new MyLabel(this)), bar(new My_ColorSlider(this)),
      m_gray(grayPicture()), m_palette(ironPalette())
{
    auto* row = new QHBoxLayout(this);
    row->addWidget(label, 1);
    row->addWidget(bar);
    label->setOwner(this);
    for (std::size_t step = 0; step < m_palette.size(); ++step) {
        const QRgb colour = m_palette[255 - step];
        bar->paletteTable[step] = {uchar(qRed(colour)), uchar(qGreen(colour)),
                                   uchar(qBlue(colour))};
    }
    bar->topTemperature = 50.0F;
    bar->bottomTemperature = 20.0F;
    bar->updateScale();
}

void OverlayHost::updat_XY_Temp(int x, int y)
{
    heard.append(QStringLiteral("XY %1 %2").arg(x).arg(y));
}

void OverlayHost::updat_Tool_Temp()
{
    heard.append(QStringLiteral("tool"));
}

void OverlayHost::setFocus(int number)
{
    heard.append(QStringLiteral("focus %1").arg(number));
    if (rearms)
        label->setToolMode(number);
}

void OverlayHost::Set_Select(int row)
{
    heard.append(QStringLiteral("select %1").arg(row));
}

void OverlayHost::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    ++paints;
    label->setPixmap(pictureForLabel(m_gray));
    render();
}

QPixmap OverlayHost::pictureForLabel(const QImage& picture) const
{
    const qreal ratio = pixmapRatio > 0 ? pixmapRatio : label->devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(
        picture.scaled(label->size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

void OverlayHost::render()
{
    const auto entry = [this](int index) {
        return m_palette[std::size_t(std::clamp(index, 0, 255))];
    };
    const int hot = 255 - overlay::paletteStep(bar->startValue);
    const int cold = 255 - overlay::paletteStep(bar->endValue);
    QVector<QRgb> colours(256);
    QPixmap strip(30, 256);
    strip.fill(Qt::transparent);
    QPainter painter(&strip);
    for (int i = 0; i < 256; ++i) {
        colours[i] = entry(i > hot ? hot : std::max(i, cold));
        painter.setPen(QColor(entry(i)));
        painter.drawLine(0, 255 - i, 30, 255 - i);
    }
    painter.end();
    bar->setPalettePixmap(strip);
    QImage picture(m_gray.bits(), m_gray.width(), m_gray.height(), m_gray.bytesPerLine(),
                   QImage::Format_Indexed8);
    picture.setColorTable(colours);
    label->setPixmap(pictureForLabel(picture.convertToFormat(QImage::Format_RGB888)));
}

} // namespace testing
