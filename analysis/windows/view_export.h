// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/photograph_export.h"
#include "analysis/export/picture_export.h"
#include "files/table_text.h"

#include <QCoreApplication>
#include <QString>

class QWidget;

/// What the analysis window hands to the clipboard and to files of what it shows.
///
/// Nothing here waits for the user: dialogs belong to the window around `page` and end with the
/// page. They keep what they need, so the photograph may be replaced while they are open. Files go
/// where the user chooses, into the documents folder unless he chooses another, and are complete or
/// absent; a message tells when one could not be written. GUI thread only.
class ViewExport
{
    Q_DECLARE_TR_FUNCTIONS(ViewExport)

public:
    /// The picture with its tools, as large as it is shown.
    static void copyPicture(const analysis::ShownPicture& shown, const overlay::Geometry& geometry);

    /// Rows of a table, as text for spreadsheets and as a table for documents. With `header`, the
    /// first row holds the captions.
    static void copyTable(const files::TextRows& rows, bool header);

    /// Asks how and where, then writes a PNG file. `photograph` is the name or path of the
    /// photograph's file, after which the new one is called.
    static void savePicture(const analysis::ShownPicture& shown, const QString& photograph,
                            QWidget* page);

    /// Asks where, then writes the temperatures in the unit shown; the name that is chosen, or else
    /// the chosen kind of file, says in which format. `correction` is what made the temperatures of
    /// `shown`, if that was not the imager alone; title and proposed name then say so.
    static void saveTemperatures(const analysis::Photograph& shown, const analysis::ShownUnit& unit,
                                 const QString& photograph, QWidget* page,
                                 const std::optional<analysis::Correction>& correction = {});

    /// Asks where, then writes a CSV file, `name` if no other is chosen. The dialog belongs to
    /// `window` and ends with `page`.
    static void saveTable(const QByteArray& csv, const QString& title, const QString& name,
                          QWidget* window, const QWidget* page);

    /// Writes a whole file; one that is there already is replaced, as the dialog has asked. Tells
    /// in a message, above `window`, when it could not be written.
    static void write(const QString& path, const QByteArray& bytes, QWidget* window);
};
