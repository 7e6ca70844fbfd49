// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/csv.h"
#include "analysis/photograph/photograph_reader.h"
#include "files/whole_file.h"

#include <QByteArray>

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

/// The bytes of a file with the temperatures as seen; `format` is not Png.
QByteArray temperatureFile(const Photograph& photograph, const ShownUnit& unit, ExportFormat format,
                           const CsvOptions& csv = {});

/// Writes photographs as files, one after another, all with the same options. A few megabytes; one
/// for each thread.
class PhotographExporter
{
public:
    explicit PhotographExporter(const ExportOptions& options) : m_options(options) {}

    /// Reads one photograph and writes one file, complete or absent. The target's folder must
    /// exist.
    files::Outcome run(const QString& photographPath, const QString& targetPath);

private:
    ExportOptions m_options;
    PhotographReader m_reader;
};

} // namespace analysis
