// SPDX-License-Identifier: MIT
#include "analysis/export/photograph_export.h"

#include "analysis/export/npy.h"
#include "analysis/export/picture_export.h"
#include "analysis/export/tiff.h"
#include "analysis/photograph/false_colour.h"
#include "files/paths.h"
#include "files/picture_file.h"

#include <QFileInfo>

#include <array>

using files::Outcome;
using files::Problem;

namespace analysis {
namespace {

using namespace format;

QByteArray exported(const PhotographReader& reader, const ExportOptions& options)
{
    const Photograph& photograph = reader.photograph();
    if (options.format == ExportFormat::Png)
        return files::encoded(falseColourPicture(photograph, options.startValue, options.endValue),
                              "png");

    const ShownUnit unit = shownUnit(options.unit, photograph.parameters.unit, reader.isRaw());
    return temperatureFile(photograph, unit, options.format, options.csv);
}

} // namespace

QString suffixOf(ExportFormat format)
{
    constexpr std::array<const char*, 4> suffixes{"csv", "tiff", "npy", "png"};
    return QLatin1String(suffixes.at(std::size_t(format)));
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
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < columns; ++x)
            values.push_back(shown(photograph.temperatures[temperatureIndex(x, y)], conversion));
    }
    return values;
}

QByteArray temperatureFile(const Photograph& photograph, const ShownUnit& unit, ExportFormat format,
                           const CsvOptions& csv, const std::optional<Correction>& correction)
{
    const std::vector<float> values = shownRows(photograph, unit.conversion);
    if (format == ExportFormat::Npy)
        return npyOf(values);
    if (format == ExportFormat::Tiff)
        return tiffOf(values, unit, photograph.parameters, correction);
    return csvOf(values, unit, csv);
}

Outcome fileOf(const QString& photographPath, std::optional<int> modelIndex,
               PhotographReader& reader, const QString& targetPath, files::Existing existing,
               const std::function<QByteArray()>& make)
{
    if (isRefused(targetPath, existing))
        return {Problem::AlreadyThere, {}};
    const Outcome reading = reader.read(photographPath, modelIndex);
    return reading.isGood() ? writeWholeFile(targetPath, make(), existing) : reading;
}

Outcome exportPhotograph(const QString& photographPath, PhotographReader& reader,
                         const QString& targetPath, const ExportOptions& options)
{
    return fileOf(photographPath, options.modelIndex, reader, targetPath, options.existing,
                  [&] { return exported(reader, options); });
}

} // namespace analysis
