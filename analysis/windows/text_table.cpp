// SPDX-License-Identifier: MIT
#include "analysis/windows/text_table.h"

#include "analysis/windows/view_export.h"

#include <QHeaderView>

namespace analysis {

TextTable::TextTable(const QString& name)
{
    setAccessibleName(name);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
}

void TextTable::setTexts(const QStringList& captions, const files::TextRows& rows)
{
    setColumnCount(captions.size());
    setHorizontalHeaderLabels(captions);
    setRowCount(int(rows.size()));
    for (int row = 0; row < rowCount(); ++row) {
        const QStringList& texts = rows[std::size_t(row)];
        for (int column = 0; column < columnCount(); ++column) {
            if (!item(row, column)) {
                auto* made = new QTableWidgetItem;
                const Qt::Alignment side = column == 0 ? Qt::AlignLeft : Qt::AlignRight;
                made->setTextAlignment(int(side | Qt::AlignVCenter));
                setItem(row, column, made);
            }
            item(row, column)->setText(texts.value(column));
        }
    }
}

files::TextRows TextTable::texts() const
{
    files::TextRows rows{QStringList()};
    for (int column = 0; column < columnCount(); ++column)
        rows.front().append(horizontalHeaderItem(column)->text());
    for (int row = 0; row < rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < columnCount(); ++column)
            texts.append(item(row, column)->text());
        rows.push_back(texts);
    }
    return rows;
}

void TextTable::copy() const
{
    ViewExport::copyTable(texts(), true);
}

} // namespace analysis
