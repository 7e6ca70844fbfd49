// SPDX-License-Identifier: MIT
#include "analysis/export/tiff.h"

#include "analysis/photograph/looking_texts.h"

#include <QDataStream>
#include <QtEndian>

namespace analysis {

using namespace format;

namespace {

/// Two decimals, or as many more as it has.
QByteArray emissivity(double value)
{
    return LookingTexts::emissivity(value).toLatin1();
}

QByteArray emissivities(const Parameters& parameters, const std::optional<Correction>& correction)
{
    if (!correction)
        return " emissivity=" + emissivity(parameters.emissivity100 / 100.0);
    return " corrected emissivity=" + emissivity(correction->emissivity) +
           " stored_emissivity=" + emissivity(correction->storedEmissivity) +
           " reflected_celsius=" + oneDecimal(correction->reflected).toLatin1();
}

} // namespace

QByteArray tiffOf(const std::vector<float>& values, const ShownUnit& unit,
                  const Parameters& parameters, const std::optional<Correction>& correction)
{
    const QByteArray description =
        "unit=" + letterOf(unit.unit).toLatin1() + emissivities(parameters, correction) + '\0';
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

    QByteArray pixels(stripBytes, Qt::Uninitialized);
    qToLittleEndian<float>(values.data(), grayBytes, pixels.data());
    const QByteArray texts =
        (description + software).leftJustified(directory - descriptionPlace, '\0');
    QByteArray tiff;
    QDataStream stream(&tiff, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("II*\0", 4);
    stream << quint32(directory);
    stream.writeRawData(pixels.constData(), pixels.size());
    stream.writeRawData(texts.constData(), texts.size());
    stream << quint16(std::size(entries));
    for (const Entry& entry : entries)
        stream << entry.tag << quint16(entry.type) << quint32(entry.count) << quint32(entry.value);
    stream << quint32(0); // no further directory
    return tiff;
}

} // namespace analysis
