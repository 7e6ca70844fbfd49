// SPDX-License-Identifier: MIT
#pragma once

#include "files/table_text.h"

#include <QTableWidget>

namespace analysis {

/// A table of texts in a window beside the picture: looked at, walked through by mouse and
/// keyboard, and copied as a whole. The first column is text, the others are numbers. GUI thread
/// only.
class TextTable : public QTableWidget
{
    Q_OBJECT

public:
    /// `name` is for screen readers.
    explicit TextTable(const QString& name);

    /// Replaces all texts. The current row stays the current one if it still exists.
    void setTexts(const QStringList& captions, const files::TextRows& rows);
    /// With the captions as first row.
    files::TextRows texts() const;
    /// To the clipboard, for spreadsheets and documents.
    void copy() const;
};

} // namespace analysis
