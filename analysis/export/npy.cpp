// SPDX-License-Identifier: MIT
#include "analysis/export/npy.h"

#include "analysis/photograph/layouts.h"

#include <QString>
#include <QtEndian>

namespace analysis {

using namespace format;

QByteArray npyOf(const std::vector<float>& values)
{
    // Magic, version and length field, then a description that fills up to 128 bytes.
    QByteArray npy("\x93NUMPY\x01\x00\x76\x00", 10);
    npy += QStringLiteral("{'descr': '<f4', 'fortran_order': False, 'shape': (%1, %2), }")
               .arg(rows)
               .arg(columns)
               .toLatin1()
               .leftJustified(117, ' ') +
           '\n';
    const int header = npy.size();
    npy.resize(header + grayBytes * int(sizeof(float)));
    qToLittleEndian<float>(values.data(), grayBytes, npy.data() + header);
    return npy;
}

} // namespace analysis
