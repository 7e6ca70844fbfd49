// SPDX-License-Identifier: MIT
#include "analysis/windows/photograph_views.h"

#include "analysis/windows/imager_folder.h"
#include "analysis/windows/thumbnails.h"
#include "files/paths.h"

#include <QHeaderView>
#include <QListWidget>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include <algorithm>
#include <array>

namespace analysis {
namespace {

constexpr QSize itemSize(165, 220);
/// Between the padding of an item under the mouse.
constexpr int nameWidth = 165 - 2 * 8 - 8;

/// Without the second rule, the name of a selected photograph other than the current one would be
/// white on white.
const QString listSheet = QStringLiteral(
    "QListWidget::item{\nbackground-color: rgb(255, 255, 255);padding:0;border-radius: 8px;\n}"
    "QListWidget::item::selected{\ncolor: rgb(255, 255, 255);background-color: rgb(91, 91, "
    "91);border-radius: 8px;\n}"
    "QListWidget::item::hover{\nbackground-color: rgb(91, 91, 91);\ncolor: rgb(255, 255, "
    "255);padding:8;border-radius: 8px;\n}"
    "QListWidget::item::Focus{\ncolor: rgb(255, 255, 255);background-color:  rgb(50, 50, "
    "50);border-radius: 8px;\n}");

const QString tableSheet = QStringLiteral(
    "QTableWidget{\nselection-color: rgb(255, 255, 255);\nselection-background-color:  rgb(91, 91, "
    "91);\n}"
    "QTableWidget::item::hover{\ncolor: rgb(255, 255, 255);background-color: rgb(91, 91, "
    "91);border-radius: 5px;\n}"
    "QHeaderView::section{\nborder:1px groove white;color: rgb(255, 255, 255);background-color: "
    "rgb(52, 52, 52);\n}");

/// Names are set narrower when they are longer than an item is wide, down to three quarters; the
/// imager's own fit then in any font. What is longer still loses its middle.
class NameDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
        const int width = option->fontMetrics.horizontalAdvance(option->text);
        if (width <= nameWidth)
            return;
        option->font.setStretch(std::max(100 * nameWidth / width, 75));
        option->fontMetrics = QFontMetrics(option->font);
    }
};

/// A list or table item whose picture is asked for when it is painted.
template<typename Item>
class PhotographItem : public Item
{
public:
    PhotographItem(Thumbnails& thumbnails, int index) : m_thumbnails(thumbnails), m_index(index) {}

    QVariant data(int role) const override
    {
        return role == Qt::DecorationRole ? m_thumbnails.shown(m_index) : Item::data(role);
    }

private:
    Thumbnails& m_thumbnails;
    int m_index;
};

/// An item without a tool tip of its own shows its whole text as one.
class NamedItem : public PhotographItem<QListWidgetItem>
{
public:
    using PhotographItem::PhotographItem;

    QVariant data(int role) const override
    {
        return role == Qt::ToolTipRole ? files::toolTipOf(text()) : PhotographItem::data(role);
    }
};

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}

void putCell(QTableWidget& table, int row, int column, QTableWidgetItem* item)
{
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    item->setTextAlignment(Qt::AlignCenter);
    table.setItem(row, column, item);
}

void setUp(QTableWidget& table, bool wide)
{
    table.setContextMenuPolicy(Qt::CustomContextMenu);
    table.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setHighlightSections(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(50);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setIconSize({44, 44});
    table.setTabKeyNavigation(false);
    table.setFont(sized(table.font(), 13));
    table.setStyleSheet(tableSheet);
    const auto widths =
        wide ? std::array<int, 4>{80, 150, 260, 200} : std::array<int, 4>{70, 110, 240, 180};
    for (int column = 0; column < int(widths.size()); ++column)
        table.setColumnWidth(column, widths[std::size_t(column)]);
}

} // namespace

QListWidget* photographList(const ImagerFolder& folder, Thumbnails& thumbnails, QWidget* parent)
{
    auto* list = new QListWidget(parent);
    list->setMouseTracking(true);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    list->setViewMode(QListView::IconMode);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setFrameShape(QFrame::NoFrame);
    list->setMovement(QListView::Static);
    list->setDragEnabled(false);
    list->setIconSize({195, 195});
    list->setUniformItemSizes(true);
    list->setResizeMode(QListView::Adjust);
    list->setSpacing(13);
    list->setFont(sized(list->font(), 15));
    list->setStyleSheet(listSheet);
    list->setItemDelegate(new NameDelegate(list));
    for (int i = 0; i < folder.fileNames.size(); ++i) {
        auto* item = new NamedItem(thumbnails, i);
        item->setText(folder.fileNames.at(i));
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        item->setSizeHint(itemSize);
        list->addItem(item);
    }
    return list;
}

QTableWidget* photographTable(const ImagerFolder& folder, Thumbnails& thumbnails, bool wide,
                              QWidget* parent)
{
    auto* table = new QTableWidget(folder.fileNames.size(), PhotographColumns, parent);
    setUp(*table, wide);
    for (int row = 0; row < folder.fileNames.size(); ++row) {
        const QString& name = folder.fileNames.at(row);
        putCell(*table, row, NumberColumn, new QTableWidgetItem(QString::number(row + 1)));
        putCell(*table, row, PictureColumn, new PhotographItem<QTableWidgetItem>(thumbnails, row));
        putCell(*table, row, NameColumn, new QTableWidgetItem(name));
        table->item(row, NameColumn)->setToolTip(files::toolTipOf(name));
        putCell(*table, row, DateColumn, new QTableWidgetItem(folder.fileDates.at(row)));
        putCell(*table, row, SizeColumn, new QTableWidgetItem(folder.fileSizes.at(row)));
    }
    return table;
}

} // namespace analysis
