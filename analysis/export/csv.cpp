// SPDX-License-Identifier: MIT
#include "analysis/export/csv.h"

#include <charconv>
#include <cmath>
#include <cstring>

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

} // namespace

QByteArray csvOf(const std::vector<float>& values, const ShownUnit& unit, const CsvOptions& options)
{
    QByteArray csv;
    csv.reserve(grayBytes * 12);
    if (options.header)
        csv += QStringLiteral("# unit=%1 columns=%2 rows=%3\n")
                   .arg(letterOf(unit.unit))
                   .arg(columns)
                   .arg(rows)
                   .toLatin1();
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

} // namespace analysis
