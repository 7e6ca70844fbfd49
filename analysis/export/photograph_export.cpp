// SPDX-License-Identifier: MIT
#include "analysis/export/photograph_export.h"

#include "analysis/export/npy.h"
#include "analysis/export/picture_export.h"
#include "analysis/export/tiff.h"
#include "analysis/photograph/false_colour.h"
#include "files/paths.h"

#include <QFileInfo>

using files::Outcome;
using files::Problem;

namespace analysis {
namespace {

using namespace format;

QByteArray exported(const PhotographReader& reader, const ExportOptions& options)
{
    const Photograph& photograph = reader.photograph();
    if (options.format == ExportFormat::Png)
        return pngOf(falseColourPicture(photograph, options.startValue, options.endValue));

    const ShownUnit unit = shownUnit(options.unit, photograph.parameters.unit, reader.isRaw());
    return temperatureFile(photograph, unit, options.format, options.csv);
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
    std::vector<float> values;
    values.reserve(photograph.temperatures.size());
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < columns; ++x)
            values.push_back(shown(photograph.temperatures[temperatureIndex(x, y)], conversion));
    return values;
}

QByteArray temperatureFile(const Photograph& photograph, const ShownUnit& unit, ExportFormat format,
                           const CsvOptions& csv)
{
    const std::vector<float> values = shownRows(photograph, unit.conversion);
    if (format == ExportFormat::Npy)
        return npyOf(values);
    if (format == ExportFormat::Tiff)
        return tiffOf(values, unit, photograph.parameters);
    return csvOf(values, unit, csv);
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
