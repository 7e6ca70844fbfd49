// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/tool_statistics.h"
#include "analysis/photograph/units.h"
#include "analysis/report/information.h"

#include <QImage>
#include <QString>

#include <array>
#include <vector>

/// The report of one photograph: its data and picture on the first page, the tool table on the
/// second and, when there are many tools, on further ones. Captions are translated in the context
/// of the analysis window, by the translators that the application has installed. Fonts need a
/// QGuiApplication, nothing here needs a widget.
namespace analysis {

/// Everything a report shows. Texts are final: converted, formatted, translated.
struct Report
{
    /// The information table; the file name is also the document's title.
    std::array<QString, informationRows> information;
    QImage picture;       ///< the false-colour picture, 240 × 320
    QImage overlay;       ///< the tools on it, at three times its size; may be null
    QImage colourStrip;   ///< hottest at the top
    qint16 maximum10 = 0; ///< ends of the scale beside the strip: tenths of a degree as stored,
    qint16 minimum10 = 0; ///< shown through `conversion`
    Conversion conversion;
    int unitIndex = 0; ///< of the unit selector: 0 °C, anything else °F
    std::vector<ToolCells> tools;
    QString language; ///< a code of config/language.h
};

/// The report as the bytes of a PDF file with embedded fonts. The text stays searchable, characters
/// that share their shape with others included.
QByteArray reportPdf(const Report& report);

/// Writes the report as a PDF file.
///
/// The file is made beside its final place and moved there when it is whole. Until then, and when
/// anything fails, a file that stands at `path` stays as it is and nothing else is left. False when
/// the path cannot be written (empty, a folder or device, no permission, disk full); the question
/// whether it can be opened comes before any painting.
bool writeReport(const Report& report, const QString& path);

} // namespace analysis
