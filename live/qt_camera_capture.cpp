#include "live/qt_camera_capture.h"

#include "live/live_frame.h"

static_assert(live::rgbRowBytes % 4 == 0, "QImage pads its rows to 4 bytes");
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
    QImage picture(live::frameColumns, live::frameRows, QImage::Format_RGB888);
    live::convertPicture(bits, picture.bits());
    const live::Readings readings = live::readings(bits);
    mapped.unmap();

    emit display_Qimage(picture);
    emit Send_MaxTemp(readings.maximum, readings.threshold, readings.emissivity);
    return true;
}
