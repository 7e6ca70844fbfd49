// SPDX-License-Identifier: MIT
#include "analysis/report/photograph_report.h"

#include "analysis/photograph/false_colour.h"
#include "analysis/report/report_overlay.h"
#include "files/paths.h"

#include <QFileInfo>

namespace analysis {

Report photographReport(const QString& path, const PhotographReader& reader,
                        std::optional<Unit> unit, const overlay::Tools& tools,
                        const QString& language)
{
    const Photograph& photograph = reader.photograph();
    const Parameters& parameters = photograph.parameters;
    const ShownUnit shown = shownUnit(unit, parameters.unit, reader.isRaw());
    Report report;
    const QFileInfo file(files::localPath(path));
    report.information =
        informationTexts(file.fileName(), createdText(file), reader.readCount(), parameters,
                         photograph.mean, int(shown.unit), shown.conversion);
    report.picture = falseColourPicture(photograph, 0, format::paletteEntries - 1);
    report.overlay = reportOverlay(tools, photograph, report.picture.size());
    report.colourStrip = colourStrip(photograph.palette);
    report.maximum10 = parameters.maximum10;
    report.minimum10 = parameters.minimum10;
    report.conversion = shown.conversion;
    report.unitIndex = int(shown.unit);
    for (const ToolRow& row : toolRows(tools, photograph.temperatures, shown.conversion))
        report.tools.push_back(toolCells(row));
    report.language = language;
    return report;
}

} // namespace analysis
