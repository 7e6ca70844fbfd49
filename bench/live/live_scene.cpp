// SPDX-License-Identifier: MIT
#include "bench/live/live_scene.h"

#include "live/live_frame.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace bench {

QByteArray liveFrame(int maximumTenths)
{
    QByteArray bytes(live::frameBytes, '\0');
    unsigned state = 1;
    for (int y = 0; y < live::frameRows; ++y) {
        for (int x = 0; x < live::frameColumns; ++x) {
            const double warm = std::exp(-(std::pow(x - 120, 2) + std::pow(y - 150, 2)) / 3000.0);
            const int noise = int((state = state * 1664525U + 1013904223U) >> 30);
            const int at = (y * live::frameColumns + x) * 2;
            bytes[at] = char(30 + noise + int(200 * warm));
            bytes[at + 1] = char(x % 2 == 1 ? 128 + int(90 * warm) : 170 - int(120 * warm));
        }
    }
    bytes[live::maximumOffset] = char(maximumTenths & 0xFF);
    bytes[live::maximumOffset + 1] = char(maximumTenths >> 8);
    return bytes;
}

QImage livePictureOf(const QByteArray& frame)
{
    QImage picture(live::frameColumns, live::frameRows, QImage::Format_RGB888);
    live::convertPixels(reinterpret_cast<const uchar*>(frame.constData()), live::picturePixels,
                        picture.bits());
    return picture;
}

void fitLivePicture(QWidget& window)
{
    QCoreApplication::processEvents();
    const auto* const label = window.findChild<QLabel*>(QStringLiteral("label_17"));
    window.resize(window.size() + livePicture - label->size());
    QCoreApplication::processEvents();
    if (label->size() != livePicture)
        qFatal("the picture is %d x %d", label->width(), label->height());
}

LiveFloor::LiveFloor(QSize windowSize) : m_label(&m_window)
{
    m_window.resize(windowSize);
    m_label.resize(livePicture);
    m_window.show();
    QCoreApplication::processEvents();
}

void LiveFloor::show(const QImage& picture)
{
    // Painting can leave the processor's vector registers in a state in which the scaling takes
    // more than twice its time. Decoding a frame ends it on the page; a few pixels end it here.
    std::array<uchar, 3 * live::pixelsAtOnce> pixels{};
    live::convertPixels(std::array<uchar, 2 * live::pixelsAtOnce>{}.data(), live::pixelsAtOnce,
                        pixels.data());
    m_label.setPixmap(QPixmap::fromImage(picture).scaled(m_label.size(), Qt::KeepAspectRatio,
                                                         Qt::SmoothTransformation));
}

} // namespace bench
