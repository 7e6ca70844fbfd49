// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/file_buffer.h"
#include "analysis/photograph/photograph.h"
#include "tests/analysis/photograph_writer.h"

/// Photographs of known fields, and what is read from their bytes.
namespace testing {

/// A gray picture in which every neighbour differs.
inline int slope(int x, int y)
{
    return (x * 7 + y * 3) % 256;
}

/// A file buffer's worth of bytes: the file, then zeros.
inline QByteArray buffered(const QByteArray& file)
{
    return file + QByteArray(analysis::FileBuffer::size - file.size(), '\0');
}

inline const uchar* unsignedBytes(const QByteArray& bytes)
{
    return reinterpret_cast<const uchar*>(bytes.constData());
}

inline bool readFrom(const QByteArray& file, int modelIndex, analysis::Photograph& photograph)
{
    return analysis::read(unsignedBytes(buffered(file)), file.size(), modelIndex, photograph);
}

inline float temperatureAt(const analysis::Photograph& photograph, int x, int y)
{
    return photograph.temperatures[std::size_t(x * 320 + y)];
}

/// The temperature of one pixel, each step in the precision it is meant to have.
inline float expectedTemperature(int maximum10, int minimum10, int grayMaximum, int grayMinimum,
                                 int gray)
{
    const double span = maximum10 / 10.0 - minimum10 / 10.0;
    const float ratio = (float(grayMaximum) - float(gray)) / float(grayMaximum - grayMinimum);
    return float(maximum10 / 10.0 - double(ratio) * span);
}

} // namespace testing
