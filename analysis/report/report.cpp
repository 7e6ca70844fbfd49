// SPDX-License-Identifier: MIT
#include "analysis/report/report.h"

#include "analysis/report/pdf_glyph_names.h"
#include "analysis/report/report_font.h"
#include "analysis/report/report_sheets.h"
#include "files/whole_file.h"

#include <QBuffer>
#include <QPdfWriter>

namespace analysis {
namespace {

constexpr int resolution = 1200;
constexpr qreal marginPoints = 10;

} // namespace

QByteArray reportPdf(const Report& report)
{
    QByteArray pdf;
    QString written;
    {
        QBuffer buffer(&pdf);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(resolution);
        writer.setPageLayout(
            QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                        QMarginsF(marginPoints, marginPoints, marginPoints, marginPoints)));
        writer.setTitle(report.information[std::size_t(InformationRow::FileName)]);
        writer.setCreator(QStringLiteral("Therma Desk"));
        written = paintReport(report, writer);
    }
    nameGlyphsAsWritten(pdf, written, reportFont(reportTextSize, QFont::Normal, report.language));
    return pdf;
}

bool writeReport(const Report& report, const QString& path)
{
    files::WholeFile file(path, files::Existing::Replace);
    return file.open().isGood() && file.write(reportPdf(report)).isGood() && file.finish().isGood();
}

} // namespace analysis
