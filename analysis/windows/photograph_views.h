// SPDX-License-Identifier: MIT
#pragma once

class QListWidget;
class QTableWidget;
class QWidget;

namespace analysis {

class ImagerFolder;
class Thumbnails;

enum PhotographColumn
{
    NumberColumn,
    PictureColumn,
    NameColumn,
    DateColumn,
    SizeColumn,
    PhotographColumns
};

/// The photographs of a folder as a list of thumbnails with names. Folder and thumbnails must
/// outlive what is returned, which belongs to `parent`.
QListWidget* photographList(const ImagerFolder& folder, Thumbnails& thumbnails, QWidget* parent);

/// The same as a table, without titles. `wide` makes room for longer ones.
QTableWidget* photographTable(const ImagerFolder& folder, Thumbnails& thumbnails, bool wide,
                              QWidget* parent);

} // namespace analysis
