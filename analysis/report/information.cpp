// SPDX-License-Identifier: MIT
#include "analysis/report/information.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace analysis {

QString kilobytes(qint64 bytes)
{
    return oneDecimal(double(bytes) * 0.0009765625);
}

QString createdText(const QFileInfo& file)
{
    const QDateTime birth = file.birthTime();
    // Not in the digits of the computer's language: dates look the same on all of them.
    return QLocale::c().toString(birth.isValid() ? birth : file.metadataChangeTime(),
                                 QStringLiteral("yyyy/MM/dd HH:mm"));
}

std::array<QString, informationRows> informationTexts(const QString& fileName,
                                                      const QString& created, int readCount,
                                                      const Parameters& parameters, double mean,
                                                      int unitIndex, Conversion conversion)
{
    const auto tenths = [conversion](qint16 value) {
        return oneDecimal(double(shownTenths(value, conversion)));
    };
    // The mean alone is converted in double precision, by the same single precision constants.
    const double shownMean = 10.0 * mean / double(conversion.scale) + double(conversion.offset);
    return {fileName,
            kilobytes(readCount) + QStringLiteral(" KB"),
            created,
            QString::number(parameters.emissivity100 / 100.0, 'f', 2),
            QStringLiteral("%1×%2").arg(format::columns).arg(format::rows),
            signOf(unitAt(unitIndex).value_or(Unit::Celsius)),
            tenths(parameters.centre10),
            tenths(parameters.maximum10),
            tenths(parameters.minimum10),
            oneDecimal(shownMean)};
}

} // namespace analysis
