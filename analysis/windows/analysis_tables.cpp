// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_tables.h"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

namespace analysis {

void prepareInformationTable(QTableWidget& table)
{
    QFont captionFont = table.font();
    captionFont.setPixelSize(12);
    for (int row = 0; row < informationRows; ++row) {
        auto* caption = new QTableWidgetItem(table.verticalHeaderItem(row)->text());
        caption->setFont(captionFont);
        table.setItem(row, 0, caption);
        auto* value = new QTableWidgetItem;
        value->setFont(table.font());
        if (row > 0)
            value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table.setItem(row, 1, value);
    }
    table.horizontalHeader()->setStretchLastSection(true);
    table.setColumnWidth(0, 100);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setMouseTracking(true);
    // Captions longer than the column take a second line, in whichever language; all rows show.
    table.resizeRowsToContents();
    table.setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
}

void showInformation(QTableWidget& table, const std::array<QString, informationRows>& texts)
{
    for (int row = 0; row < informationRows; ++row)
        table.item(row, 1)->setText(texts[std::size_t(row)]);
}

std::array<QString, informationRows> shownInformation(const QTableWidget& table)
{
    std::array<QString, informationRows> texts;
    for (int row = 0; row < informationRows; ++row)
        texts[std::size_t(row)] = table.item(row, 1)->text();
    return texts;
}

void prepareToolTable(QTableWidget& table)
{
    table.horizontalHeader()->setStretchLastSection(true);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setColumnWidth(0, 50);
    int kindWidth = 70;
    for (const overlay::KindRow& row : overlay::toolKinds) {
        const QString text = kindCaption(row.kind);
        kindWidth = std::max(kindWidth, table.fontMetrics().horizontalAdvance(text) + 12);
    }
    table.setColumnWidth(1, kindWidth);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
}

void showTools(QTableWidget& table, const std::vector<ToolRow>& rows)
{
    table.setRowCount(0);
    table.setRowCount(int(rows.size()));
    for (int row = 0; row < table.rowCount(); ++row) {
        int column = 0;
        for (const QString& text : toolCells(rows[std::size_t(row)])) {
            auto* item = new QTableWidgetItem(text);
            item->setTextAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
            table.setItem(row, column++, item);
        }
    }
}

std::vector<ToolCells> shownTools(const QTableWidget& table)
{
    std::vector<ToolCells> rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        ToolCells cells;
        for (std::size_t column = 0; column < cells.size(); ++column)
            cells[column] = table.item(row, int(column))->text();
        rows.push_back(cells);
    }
    return rows;
}

int rowOfSelection(const overlay::Tools& tools)
{
    const int place = overlay::selectedPlace(tools);
    return place >= 0 ? place : overlay::countOf(tools);
}

} // namespace analysis
