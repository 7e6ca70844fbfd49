// SPDX-License-Identifier: MIT
/// Live frames: the video surface on frames of any size and content, and the conversion loop with
/// every instruction set on short pictures.
///
/// Input: a byte that says which; then either
///   * the frame's size (u8 choice, u24), pixel format (u8), what mapping it does (u8), the three
///     words, and a piece of picture that fills the frame by being repeated; or
///   * where the picture lies in memory (u8), then the picture.

#include "fuzz/support/input.h"
#include "fuzz/support/surroundings.h"
#include "fuzz/support/target.h"
#include "live/live_frame.h"
#include "live/qt_camera_capture.h"
#include "tests/live/instruction_sets.h"

#include <QAbstractVideoBuffer>

#include <array>
#include <memory>
#include <vector>

namespace {

using fuzz::mustHold;

constexpr int pairBytes = 4; ///< Y0, U, Y1, V
constexpr int pairRgb = 6;

uchar channel(double value)
{
    return uchar(std::clamp(int(value), 0, 255));
}

/// The formula as it stands in the header, for a whole number of pixel pairs.
std::vector<uchar> converted(const uchar* yuyv, int pairs)
{
    std::vector<uchar> rgb;
    rgb.reserve(std::size_t(pairs) * pairRgb);
    for (; pairs > 0; --pairs, yuyv += pairBytes) {
        const double u = yuyv[1] - 128;
        const double v = yuyv[3] - 128;
        for (const double y : {double(yuyv[0]), double(yuyv[2])}) {
            rgb.push_back(channel(y + 1.370705 * v));
            rgb.push_back(channel(y - 0.698001 * v - 0.337633 * u));
            rgb.push_back(channel(y + 1.732446 * u));
        }
    }
    return rgb;
}

/// Bytes with nothing of ours in front of or behind them, so that the sanitizer sees every step
/// outside, at any distance from an aligned address.
class Exactly
{
public:
    Exactly(std::size_t size, std::size_t shift)
        : m_bytes(new uchar[shift + size]), m_shift(shift), m_size(size)
    {
    }
    uchar* data() { return m_bytes.get() + m_shift; }
    std::size_t size() const { return m_size; }

private:
    std::unique_ptr<uchar[]> m_bytes;
    std::size_t m_shift;
    std::size_t m_size;
};

void tryKernels(fuzz::Input& input)
{
    const std::size_t shift = input.byte() % 32;
    constexpr int multiple = live::pixelsAtOnce;
    const QByteArray picture = input.rest();
    const int pixels = picture.size() / 2 / multiple * multiple;
    Exactly yuyv(std::size_t(pixels) * 2, shift);
    std::copy_n(picture.begin(), yuyv.size(), yuyv.data());
    const std::vector<uchar> expected = converted(yuyv.data(), pixels / 2);
    for (const std::int64_t set : testing::instructionSets()) {
        const testing::UsedInstructionSet used(set);
        Exactly rgb(std::size_t(pixels) * 3, shift / 2);
        live::convertPixels(yuyv.data(), pixels, rgb.data());
        mustHold(std::equal(expected.begin(), expected.end(), rgb.data()), hwy::TargetName(set));
    }
}

struct Frame
{
    std::vector<uchar> bytes;
    bool mappable;
    int mapped = 0; ///< maps less unmaps
};

class Buffer : public QAbstractVideoBuffer
{
public:
    explicit Buffer(Frame& frame) : QAbstractVideoBuffer(NoHandle), m_frame(frame) {}
    MapMode mapMode() const override { return m_frame.mapped > 0 ? ReadOnly : NotMapped; }
    uchar* map(MapMode, int* numBytes, int* bytesPerLine) override
    {
        if (!m_frame.mappable || m_frame.bytes.empty())
            return nullptr;
        ++m_frame.mapped;
        *numBytes = int(m_frame.bytes.size());
        *bytesPerLine = 480;
        return m_frame.bytes.data();
    }
    void unmap() override { --m_frame.mapped; }

private:
    Frame& m_frame;
};

int frameSize(fuzz::Input& input)
{
    const int choice = input.byte();
    const int low = input.number<quint16>();
    const int any = low + input.byte() * 65536;
    switch (choice % 4) {
    case 0:
        return live::frameBytes;
    case 1:
        return live::frameBytes - 1 - any % 8;
    case 2:
        return live::frameBytes + any % 480;
    default:
        return any % (2 * live::frameBytes);
    }
}

/// What the surface published.
struct Published
{
    int pictures = 0;
    int readings = 0;
    QImage picture;
    live::Readings values{};
};

struct Surface
{
    QtCameraCapture capture;
    Published published;

    Surface()
    {
        QObject::connect(&capture, &QtCameraCapture::display_Qimage, [this](const QImage& picture) {
            published.picture = picture;
            ++published.pictures;
        });
        QObject::connect(&capture, &QtCameraCapture::Send_MaxTemp,
                         [this](float maximum, float threshold, float emissivity) {
                             published.values = {maximum, threshold, emissivity};
                             ++published.readings;
                         });
    }
};

void mustBePicture(const QImage& picture, const std::vector<uchar>& expectedTile)
{
    mustHold(picture.size() == QSize(live::frameColumns, live::frameRows) &&
                 picture.format() == QImage::Format_RGB888 &&
                 picture.sizeInBytes() == live::rgbBytes,
             "the picture is 240 × 320");
    const uchar* const rgb = picture.constBits();
    for (std::size_t at = 0; at < std::size_t(live::rgbBytes); at += expectedTile.size()) {
        const std::size_t count = std::min(expectedTile.size(), live::rgbBytes - at);
        mustHold(std::memcmp(rgb + at, expectedTile.data(), count) == 0,
                 "the picture is that of the formula");
    }
}

void tryFrame(fuzz::Input& input)
{
    static Surface surface;
    surface.published = {};

    const int size = frameSize(input);
    const auto format = QVideoFrame::PixelFormat(input.byte() % (QVideoFrame::NPixelFormats + 1));
    const bool mappable = input.byte() % 16 != 15;
    const std::array<quint16, 3> words{input.number<quint16>(), input.number<quint16>(),
                                       input.number<quint16>()};
    QByteArray tile = input.rest();
    tile.append(pairBytes - tile.size() % pairBytes, '\x80');

    Frame frame{std::vector<uchar>(std::size_t(size)), mappable};
    for (std::size_t at = 0; at < frame.bytes.size(); at += std::size_t(tile.size()))
        std::copy_n(tile.begin(), std::min(std::size_t(tile.size()), frame.bytes.size() - at),
                    frame.bytes.begin() + std::ptrdiff_t(at));
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::size_t at = std::size_t(live::pictureBytes) + 2 * i;
        for (std::size_t k = 0; k < 2 && at + k < frame.bytes.size(); ++k)
            frame.bytes[at + k] = uchar(words[i] >> (8 * k));
    }

    const QVideoFrame delivered(new Buffer(frame), QSize(live::frameColumns, live::frameRows),
                                format);
    mustHold(surface.capture.present(delivered) == delivered.isValid(), "valid is what it says");
    mustHold(frame.mapped == 0, "the frame is let go of");

    const Published& published = surface.published;
    const bool whole = delivered.isValid() && mappable && size >= live::frameBytes;
    mustHold(published.pictures == int(whole) && published.readings == int(whole),
             "whole frames are published once, others are not");
    if (!whole)
        return;
    mustBePicture(published.picture, converted(reinterpret_cast<const uchar*>(tile.constData()),
                                               tile.size() / pairBytes));
    mustHold(published.values.maximum == float(words[0]) / 10.0F &&
                 published.values.threshold == float(words[1]) / 10.0F &&
                 published.values.emissivity == float(words[2]) / 100.0F,
             "the three words are tenths, tenths and hundredths");
}

} // namespace

int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::prepare();
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    fuzz::Input input(bytes, size);
    if (input.byte() % 2 == 0)
        tryFrame(input);
    else
        tryKernels(input);
    return 0;
}
