// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QLabel>
#include <QSize>
#include <QWidget>

namespace bench {

constexpr QSize livePicture(600, 800);

/// A frame of a warm spot with sensor noise and this maximum, in tenths of a degree.
QByteArray liveFrame(int maximumTenths = 362);

/// The frame's picture.
QImage livePictureOf(const QByteArray& frame);

/// Resizes a window, which is visible, until its label "label_17" has the size livePicture.
void fitLivePicture(QWidget& window);

/// The least that showing pictures takes: pixmap, smooth scaling, painting; in a window as large as
/// the one it is compared with, since rows that lie further apart in memory cost more.
class LiveFloor
{
public:
    explicit LiveFloor(QSize windowSize);
    /// What is left to do is done by the event loop.
    void show(const QImage& picture);

private:
    QWidget m_window;
    QLabel m_label;
};

} // namespace bench
