// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/csv.h"
#include "analysis/photograph/correction.h"
#include "analysis/photograph/photograph_reader.h"
#include "files/whole_file.h"

#include <QByteArray>

#include <functional>
#include <vector>

/// Photographs as files that other programs open: the temperatures as numbers, or the picture.
namespace analysis {

enum class ExportFormat
{
    Csv,  ///< text, a row of the picture on each line
    Tiff, ///< one sample of 32-bit float
    Npy,  ///< NumPy's own format: little-endian 32-bit float, shape (320, 240)
    Png   ///< the false-colour picture, 240 × 320
};

/// "csv", "tiff", "npy" or "png": also what the files' names end in.
QString suffixOf(ExportFormat format);

/// What the file made of a photograph is called: the photograph's name, without its ".bmp", with
/// another suffix.
QString exportName(const QString& photograph, const QString& suffix);

struct ExportOptions
{
    ExportFormat format = ExportFormat::Csv;
    std::optional<int> modelIndex; ///< as PhotographReader::read() takes it
    files::Existing existing = files::Existing::Refuse;

    // Temperatures: all but Png.
    std::optional<Unit> unit; ///< nothing: the one the photograph opens with

    CsvOptions csv;

    // Png: the two values of the colour bar, 0 … 255, steps of the palette from its hot end.
    int startValue = 0;
    int endValue = 255;
};

/// The temperatures as seen: 320 rows of 240 values from the top left corner on, each the single
/// precision number that the cursor read-out of the analysis window rounds to one decimal.
std::vector<float> shownRows(const Photograph& photograph, Conversion conversion);

/// The bytes of a file with the temperatures as seen; `format` is not Png. `correction` is what
/// made the photograph's temperatures, if that was not the imager alone.
QByteArray temperatureFile(const Photograph& photograph, const ShownUnit& unit, ExportFormat format,
                           const CsvOptions& csv = {},
                           const std::optional<Correction>& correction = {});

/// Reads a photograph and writes one file that `make` makes of it, complete or absent; both are
/// left undone where the target is refused. The target's folder must exist. `modelIndex` is as
/// PhotographReader::read() takes it.
files::Outcome fileOf(const QString& photographPath, std::optional<int> modelIndex,
                      PhotographReader& reader, const QString& targetPath, files::Existing existing,
                      const std::function<QByteArray()>& make);

/// Writes a photograph in one of the formats.
files::Outcome exportPhotograph(const QString& photographPath, PhotographReader& reader,
                                const QString& targetPath, const ExportOptions& options);

} // namespace analysis
