// SPDX-License-Identifier: MIT
#include "live/qt_camera_capture.h"

static_assert(int(QtCameraCapture::Format_YUYV) == int(QVideoFrame::Format_YUYV));
static_assert(int(QtCameraCapture::Format_AdobeDng) == int(QVideoFrame::Format_AdobeDng));

QtCameraCapture::QtCameraCapture(QObject* parent) : QAbstractVideoSurface(parent)
{
    qRegisterMetaType<QVideoFrame>();
}

QList<QVideoFrame::PixelFormat>
QtCameraCapture::supportedPixelFormats(QAbstractVideoBuffer::HandleType) const
{
    QList<QVideoFrame::PixelFormat> formats;
    for (int format = Format_ARGB32; format <= Format_AdobeDng; ++format)
        formats.append(QVideoFrame::PixelFormat(format));
    return formats;
}

bool QtCameraCapture::present(const QVideoFrame& frame)
{
    if (!frame.isValid())
        return false;
    QVideoFrame mapped(frame);
    if (!mapped.map(QAbstractVideoBuffer::ReadOnly))
        return true;
    const uchar* const bits = mapped.bits();
    if (!bits || mapped.mappedBytes() < live::frameBytes) {
        mapped.unmap();
        return true;
    }
    live::convertPixels(bits, live::picturePixels, m_rgb.data());
    const live::Readings readings = live::readings(bits);
    mapped.unmap();

    const QImage picture(m_rgb.data(), live::frameColumns, live::frameRows, live::rgbRowBytes,
                         QImage::Format_RGB888);
    emit display_Qimage(picture.copy());
    emit Send_MaxTemp(readings.maximum, readings.threshold, readings.emissivity);
    return true;
}
