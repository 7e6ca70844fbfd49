// SPDX-License-Identifier: MIT
#include "files/table_text.h"

#include <algorithm>

namespace files {

QString tabSeparated(const TextRows& rows)
{
    QString text;
    for (const QStringList& row : rows) {
        for (const QString& cell : row) {
            if (&cell != &row.front())
                text += QLatin1Char('\t');
            text += cell.simplified();
        }
        text += QLatin1Char('\n');
    }
    return text;
}

QString htmlTable(const TextRows& rows, bool header)
{
    // Mail programs and word processors would take any other encoding for granted.
    QString html = QStringLiteral("<meta charset=\"utf-8\"><table border=\"1\">\n");
    for (const QStringList& row : rows) {
        const bool isHeader = header && &row == &rows.front();
        const QString cellForm =
            isHeader ? QStringLiteral("<th>%1</th>") : QStringLiteral("<td>%1</td>");
        html += QStringLiteral("<tr>");
        for (const QString& cell : row)
            html += cellForm.arg(cell.simplified().toHtmlEscaped());
        html += QStringLiteral("</tr>\n");
    }
    return html + QStringLiteral("</table>\n");
}

QString csvField(QString text)
{
    const QLatin1String special(",\"\r\n");
    const bool isPlain = std::none_of(text.begin(), text.end(),
                                      [&](QChar character) { return special.contains(character); });
    if (isPlain)
        return text;
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QString csvLine(const QStringList& row)
{
    QStringList fields;
    for (const QString& field : row)
        fields.append(csvField(field));
    return fields.join(QLatin1Char(',')) + QLatin1Char('\n');
}

} // namespace files
