#include "analysis/export/photograph_export.h"

#include "analysis/photograph/false_colour.h"
#include "files/paths.h"

#include <QBuffer>
#include <QFileInfo>
#include <QtEndian>

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

using files::Outcome;
using files::Problem;

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

template<typename T>
void appendNumber(QByteArray& bytes, T number)
{
    const T littleEndian = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&littleEndian), int(sizeof littleEndian));
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
    appendNumber(npy, length);
    npy += description;
    npy.resize(headerSize + grayBytes * int(sizeof(float)));
    qToLittleEndian<float>(values.data(), grayBytes, npy.data() + headerSize);
    return npy;
}

/// A baseline TIFF with everything in its plainest form: a header, the values as one strip, texts,
/// one directory. All numbers are little-endian.
QByteArray tiffOf(const std::vector<float>& values, const ShownUnit& unit,
                  const Parameters& parameters)
{
    const QByteArray description =
        "unit=" + unit.letter().toLatin1() +
        " emissivity=" + QByteArray::number(parameters.emissivity100 / 100.0, 'f', 2) + '\0';
    const QByteArray software("ThermaDesk\0", 11);
    constexpr int strip = 8;
    constexpr int stripBytes = grayBytes * int(sizeof(float));
    constexpr int descriptionPlace = strip + stripBytes;
    const int softwarePlace = descriptionPlace + description.size();
    const int textsEnd = softwarePlace + software.size();
    const int directory = textsEnd + textsEnd % 2; // begins at an even byte

    enum Type : quint16
    {
        Text = 2,
        Short = 3,
        Long = 4
    };
    struct Entry
    {
        quint16 tag;
        Type type;
        int count;
        int value; ///< or the place of a text
    };
    const Entry entries[]{{256, Long, 1, columns},
                          {257, Long, 1, rows},
                          {258, Short, 1, 32}, // bits a sample
                          {259, Short, 1, 1},  // not compressed
                          {262, Short, 1, 1},  // the least value is black
                          {270, Text, description.size(), descriptionPlace},
                          {273, Long, 1, strip},
                          {277, Short, 1, 1},   // sample a pixel
                          {278, Long, 1, rows}, // in the strip
                          {279, Long, 1, stripBytes},
                          {305, Text, software.size(), softwarePlace},
                          {339, Short, 1, 3}}; // floating point

    QByteArray tiff("II*\0", 4);
    tiff.reserve(directory + 200);
    appendNumber(tiff, quint32(directory));
    tiff.resize(descriptionPlace);
    qToLittleEndian<float>(values.data(), grayBytes, tiff.data() + strip);
    tiff += description + software;
    tiff.resize(directory);
    appendNumber(tiff, quint16(std::size(entries)));
    for (const Entry& entry : entries) {
        appendNumber(tiff, entry.tag);
        appendNumber(tiff, quint16(entry.type));
        appendNumber(tiff, quint32(entry.count));
        appendNumber(tiff, quint32(entry.value));
    }
    appendNumber(tiff, quint32(0)); // no further directory
    return tiff;
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
    const std::vector<float> values = shownRows(photograph, unit.conversion);
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

QString exportName(const QString& photograph, const QString& suffix)
{
    QString name = QFileInfo(files::localPath(photograph)).fileName();
    if (name.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive))
        name.chop(4);
    return name + QLatin1Char('.') + suffix;
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
    if (isRefused(targetPath, m_options.existing))
        return {Problem::AlreadyThere, {}};
    const Outcome reading = m_reader.read(photographPath, m_options.modelIndex);
    if (!reading.isGood())
        return reading;
    return writeWholeFile(targetPath, exported(m_reader, m_options), m_options.existing);
}

} // namespace analysis
