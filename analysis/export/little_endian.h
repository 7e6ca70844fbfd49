// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtEndian>

namespace analysis {

template<typename T>
void appendNumber(QByteArray& bytes, T number)
{
    const T littleEndian = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&littleEndian), int(sizeof littleEndian));
}

} // namespace analysis
