#include "analysis/photograph_export.h"

#include "analysis/false_colour.h"
#include "analysis/whole_file.h"

#include <QBuffer>
#include <QFileInfo>
#include <QtEndian>

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <new>
#include <tiffio.h>

namespace analysis {
namespace {

using namespace format;

/// The texts of the temperatures seen last. A photograph has few different ones, and writing a
/// number down takes longer than finding it again.
class NumberTexts
{
public:
    explicit NumberTexts(std::optional<int> decimals) : m_entries(1U << bits), m_decimals(decimals)
    {
    }

    struct Text
    {
        const char* begin;
        std::size_t size;
    };

    Text of(float value)
    {
        quint32 key = 0;
        std::memcpy(&key, &value, sizeof key);
        Entry& entry = m_entries[key * 2654435761U >> (32 - bits)];
        if (entry.size == 0 || entry.key != key) {
            entry.key = key;
            entry.size = quint32(write(value, entry.text));
        }
        return {entry.text, entry.size};
    }

private:
    static constexpr unsigned bits = 10;

    struct Entry
    {
        quint32 key = 0;
        quint32 size = 0; ///< 0: never used
        char text[24] = {};
    };

    std::size_t write(float value, char (&text)[24]) const
    {
        if (std::isfinite(value) && !m_decimals) {
            const auto end =
                std::to_chars(text, std::end(text), value, std::chars_format::general, 9);
            return std::size_t(end.ptr - text);
        }
        // Halves away from zero, "nan" without a sign: as everywhere on the screen.
        const QByteArray number = QByteArray::number(double(value), 'f', m_decimals.value_or(0));
        const auto size = std::min(std::size_t(number.size()), sizeof text);
        std::memcpy(text, number.constData(), size);
        return size;
    }

    std::vector<Entry> m_entries;
    std::optional<int> m_decimals;
};

QByteArray csvOf(const std::vector<float>& values, const ShownUnit& unit,
                 const ExportOptions& options)
{
    QByteArray csv;
    csv.reserve(grayBytes * 12);
    if (options.header)
        csv += "# unit=" + unit.letter().toLatin1() + " columns=240 rows=320\n";
    NumberTexts texts(options.decimals);
    int column = 0;
    for (const float value : values) {
        const NumberTexts::Text text = texts.of(value);
        csv.append(text.begin, int(text.size));
        const bool isLast = ++column == columns;
        csv += isLast ? '\n' : options.separator;
        if (isLast)
            column = 0;
    }
    return csv;
}

QByteArray npyOf(const std::vector<float>& values)
{
    // Length field, description and its line end fill up to a multiple of 64 bytes.
    constexpr int headerSize = 128;
    QByteArray npy;
    npy.reserve(headerSize + grayBytes * int(sizeof(float)));
    npy.append("\x93NUMPY\x01\x00", 8);
    QByteArray description("{'descr': '<f4', 'fortran_order': False, 'shape': (320, 240), }");
    const auto length = quint16(headerSize - npy.size() - 2);
    description = description.leftJustified(length - 1, ' ') + '\n';
    npy += char(length & 0xFF);
    npy += char(length >> 8);
    npy += description;
    npy.resize(headerSize + grayBytes * int(sizeof(float)));
    qToLittleEndian<float>(values.data(), grayBytes, npy.data() + headerSize);
    return npy;
}

/// libtiff's window on a QBuffer.
namespace memory {

QBuffer& buffer(thandle_t handle)
{
    return *static_cast<QBuffer*>(handle);
}
tmsize_t read(thandle_t handle, void* bytes, tmsize_t size)
{
    return tmsize_t(buffer(handle).read(static_cast<char*>(bytes), size));
}
tmsize_t write(thandle_t handle, void* bytes, tmsize_t size)
{
    return tmsize_t(buffer(handle).write(static_cast<const char*>(bytes), size));
}
toff_t size(thandle_t handle)
{
    return toff_t(buffer(handle).size());
}
toff_t seek(thandle_t handle, toff_t offset, int from)
{
    const qint64 base = from == SEEK_CUR   ? buffer(handle).pos()
                        : from == SEEK_END ? buffer(handle).size()
                                           : 0;
    buffer(handle).seek(base + qint64(offset));
    return toff_t(buffer(handle).pos());
}
int close(thandle_t)
{
    return 0;
}

} // namespace memory

QByteArray tiffOf(std::vector<float>& values, const ShownUnit& unit, const Parameters& parameters)
{
    QByteArray bytes;
    bytes.reserve(grayBytes * int(sizeof(float)) + 4096);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadWrite);
    struct Close
    {
        void operator()(TIFF* tiff) const { TIFFClose(tiff); }
    };
    std::unique_ptr<TIFF, Close> tiff(TIFFClientOpen("temperatures", "wl", &buffer, memory::read,
                                                     memory::write, memory::seek, memory::close,
                                                     memory::size, nullptr, nullptr));
    if (!tiff)
        throw std::bad_alloc();
    const QByteArray description = "unit=" + unit.letter().toLatin1() + " emissivity=" +
                                   QByteArray::number(parameters.emissivity100 / 100.0, 'f', 2);
    TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, quint32(columns));
    TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, quint32(rows));
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 32);
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_IEEEFP);
    TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
    TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    TIFFSetField(tiff.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, quint32(rows));
    TIFFSetField(tiff.get(), TIFFTAG_IMAGEDESCRIPTION, description.constData());
    TIFFSetField(tiff.get(), TIFFTAG_SOFTWARE, "ThermaDesk");
    TIFFWriteEncodedStrip(tiff.get(), 0, values.data(), tmsize_t(values.size() * sizeof(float)));
    tiff.reset();
    return bytes;
}

QByteArray pngOf(const Photograph& photograph, int startValue, int endValue)
{
    QBuffer buffer;
    falseColourPicture(photograph, startValue, endValue).save(&buffer, "png");
    return buffer.data();
}

QByteArray exported(const PhotographReader& reader, const ExportOptions& options)
{
    const Photograph& photograph = reader.photograph();
    if (options.format == ExportFormat::Png)
        return pngOf(photograph, options.startValue, options.endValue);

    const ShownUnit unit = shownUnit(options.unit, photograph.parameters.unit, reader.isRaw());
    std::vector<float> values = shownRows(photograph, unit.conversion);
    if (options.format == ExportFormat::Npy)
        return npyOf(values);
    if (options.format == ExportFormat::Tiff)
        return tiffOf(values, unit, photograph.parameters);
    return csvOf(values, unit, options);
}

} // namespace

QString suffixOf(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Csv:
        return QStringLiteral("csv");
    case ExportFormat::Tiff:
        return QStringLiteral("tiff");
    case ExportFormat::Npy:
        return QStringLiteral("npy");
    case ExportFormat::Png:
        return QStringLiteral("png");
    }
    return {};
}

std::vector<float> shownRows(const Photograph& photograph, Conversion conversion)
{
    // Stored column by column. Turning bands of rows keeps what is written to in the cache.
    constexpr int band = 16;
    static_assert(rows % band == 0);
    std::vector<float> values(photograph.temperatures.size());
    for (int top = 0; top < rows; top += band) {
        for (int x = 0; x < columns; ++x) {
            const float* stored = &photograph.temperatures[std::size_t(temperatureIndex(x, top))];
            std::array<float, band> column;
            for (std::size_t y = 0; y < band; ++y)
                column[y] = shown(stored[y], conversion);
            for (std::size_t y = 0; y < band; ++y)
                values[(std::size_t(top) + y) * std::size_t(columns) + std::size_t(x)] = column[y];
        }
    }
    return values;
}

Outcome PhotographExporter::run(const QString& photographPath, const QString& targetPath)
{
    if (!m_options.overwrite && QFileInfo(targetPath).exists())
        return {Problem::AlreadyThere, {}};
    const Outcome reading = m_reader.read(photographPath, m_options.modelIndex);
    if (!reading.isGood())
        return reading;
    return writeWholeFile(targetPath, exported(m_reader, m_options), m_options.overwrite);
}

} // namespace analysis
