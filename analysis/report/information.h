// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph.h"
#include "analysis/photograph/units.h"

#include <QString>

#include <array>

class QFileInfo;

namespace analysis {

/// The rows of the information table, top to bottom.
enum class InformationRow
{
    FileName,
    FileSize,
    Created,
    Emissivity,
    Resolution,
    Unit,
    Centre,
    Maximum,
    Minimum,
    Mean
};
constexpr int informationRows = 10;

/// Bytes in kilobytes with one decimal, without a unit. A file that could not be read has −1 bytes
/// and gives "-0.0".
QString kilobytes(qint64 bytes);

/// When a file was made, "yyyy/MM/dd HH:mm" in local time; where the file system does not keep
/// that, the last change of its entry.
QString createdText(const QFileInfo& file);

/// The values of the information table. `unitIndex` is what the unit selector shows; `conversion`
/// applies to the four temperatures.
std::array<QString, informationRows> informationTexts(const QString& fileName,
                                                      const QString& created, int readCount,
                                                      const Parameters& parameters, double mean,
                                                      int unitIndex, Conversion conversion);

} // namespace analysis
