// SPDX-License-Identifier: MIT
#include "analysis/export/npy.h"

#include "analysis/export/little_endian.h"
#include "analysis/photograph/layouts.h"

#include <QString>

namespace analysis {

using namespace format;

QByteArray npyOf(const std::vector<float>& values)
{
    // Length field, description and its line end fill up to a multiple of 64 bytes.
    constexpr int headerSize = 128;
    QByteArray npy;
    npy.reserve(headerSize + grayBytes * int(sizeof(float)));
    npy.append("\x93NUMPY\x01\x00", 8);
    QByteArray description =
        QStringLiteral("{'descr': '<f4', 'fortran_order': False, 'shape': (%1, %2), }")
            .arg(rows)
            .arg(columns)
            .toLatin1();
    const auto length = quint16(headerSize - npy.size() - 2);
    description = description.leftJustified(length - 1, ' ') + '\n';
    appendNumber(npy, length);
    npy += description;
    npy.resize(headerSize + grayBytes * int(sizeof(float)));
    qToLittleEndian<float>(values.data(), grayBytes, npy.data() + headerSize);
    return npy;
}

} // namespace analysis
