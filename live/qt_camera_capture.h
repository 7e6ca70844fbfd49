// SPDX-License-Identifier: MIT
#pragma once

#include "live/live_frame.h"

#include <QAbstractVideoSurface>
#include <QImage>
#include <QVideoFrame>

#include <array>
#include <cstdint>

/// The video surface on which the imager's frames arrive. It decodes each frame and publishes the
/// picture and the three numbers; it keeps nothing from one frame to the next.
///
/// present() runs on the thread on which the multimedia backend delivers; what the signals carry is
/// the receiver's own.
class QtCameraCapture : public QAbstractVideoSurface
{
    Q_OBJECT

public:
    /// The names of the video frame formats, for those who ask the meta-object. The values are
    /// QVideoFrame's; the decoding knows YUYV alone, whatever was negotiated.
    enum PixelFormat
    {
        Format_Invalid,
        Format_ARGB32,
        Format_ARGB32_Premultiplied,
        Format_RGB32,
        Format_RGB24,
        Format_RGB565,
        Format_RGB555,
        Format_ARGB8565_Premultiplied,
        Format_BGRA32,
        Format_BGRA32_Premultiplied,
        Format_BGR32,
        Format_BGR24,
        Format_BGR565,
        Format_BGR555,
        Format_BGRA5658_Premultiplied,
        Format_AYUV444,
        Format_AYUV444_Premultiplied,
        Format_YUV444,
        Format_YUV420P,
        Format_YV12,
        Format_UYVY,
        Format_YUYV,
        Format_NV12,
        Format_NV21,
        Format_IMC1,
        Format_IMC2,
        Format_IMC3,
        Format_IMC4,
        Format_Y8,
        Format_Y16,
        Format_Jpeg,
        Format_CameraRaw,
        Format_AdobeDng,
        NPixelFormats,
        Format_User = QVideoFrame::Format_User
    };
    Q_ENUM(PixelFormat)

    explicit QtCameraCapture(QObject* parent = nullptr);

    /// Every format from Format_ARGB32 (1) to Format_AdobeDng (32), ascending; the handle type is
    /// not looked at. Formats that later versions of the library added are not offered.
    QList<QVideoFrame::PixelFormat>
    supportedPixelFormats(QAbstractVideoBuffer::HandleType type) const override;

    /// Decodes a frame and emits display_Qimage(), then Send_MaxTemp(). False, and no signal, for
    /// an invalid frame. A valid one that cannot be mapped or holds fewer than live::frameBytes
    /// bytes is skipped: true, and no signal.
    bool present(const QVideoFrame& frame) override;

signals:
    void frameAvailable(QImage image, const uint16_t* gray, const float* temp); ///< never emitted
    void frameAvailableX(QVideoFrame frame);                                    ///< never emitted
    /// The picture: 240 × 320, Format_RGB888.
    void display_Qimage(QImage pho);
    /// Maximum temperature, alarm threshold (both in degrees of the imager's scale), emissivity.
    void Send_MaxTemp(float maxTem, float warn, float fsl);

private:
    /// The picture just decoded, R, G, B. The image that is sent out is a copy.
    std::array<uchar, live::rgbBytes> m_rgb{};
};
