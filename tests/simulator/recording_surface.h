// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractVideoSurface>
#include <QVideoFrame>
#include <QVideoSurfaceFormat>

#include <functional>

namespace testing {

/// A viewfinder that keeps what it is shown.
class RecordingSurface : public QAbstractVideoSurface
{
public:
    explicit RecordingSurface(QVideoFrame::PixelFormat format = QVideoFrame::Format_YUYV)
        : m_format(format)
    {
    }

    QList<QVideoFrame::PixelFormat>
    supportedPixelFormats(QAbstractVideoBuffer::HandleType) const override
    {
        return {m_format};
    }
    bool present(const QVideoFrame& shown) override
    {
        QVideoFrame frame(shown);
        frame.map(QAbstractVideoBuffer::ReadOnly);
        pictures.append(
            QByteArray(reinterpret_cast<const char*>(frame.bits()), frame.mappedBytes()));
        lastSize = frame.size();
        lastBytesPerLine = frame.bytesPerLine();
        frame.unmap();
        lastFormat = frame.pixelFormat();
        lastWasValid = shown.isValid();
        if (onPresent)
            onPresent();
        return lastWasValid;
    }

    QList<QByteArray> pictures;
    QSize lastSize;
    int lastBytesPerLine = 0;
    QVideoFrame::PixelFormat lastFormat = QVideoFrame::Format_Invalid;
    bool lastWasValid = false;
    std::function<void()> onPresent;

private:
    QVideoFrame::PixelFormat m_format;
};

} // namespace testing
