// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/photograph_export.h"
#include "files/file_copy.h"

#include <QImage>
#include <QStringList>

#include <vector>

namespace analysis {

/// What is made of each chosen photograph.
enum class SelectionTask
{
    Csv,
    Tiff,
    Png,
    Report, ///< PDF, without tools
    Copy    ///< the file itself
};

/// What is to be done with which photographs.
struct SelectionOrder
{
    SelectionTask task = SelectionTask::Csv;
    QString folder;     ///< where the photographs are
    QStringList names;  ///< of the photographs in it
    int modelIndex = 0; ///< file layout: 1, or 0 and any other
    QString target;     ///< the folder to write to; must exist
    QString language;   ///< of the configuration record: some set reports in their own way;
                        ///< the words themselves are the installed translators'
};

/// A photograph of which no file could be made.
struct SelectionFailure
{
    QString name;
    files::Outcome outcome; ///< never good
};

/// Carries out an order step by step, so that whoever calls decides what happens in between and
/// when to stop. Files are complete or absent, and a file that is there already is never replaced:
/// its photograph counts as failed. Writes nothing outside the target folder.
///
/// Temperatures are in each photograph's own unit, reports and pictures as the analysis window
/// shows a photograph that it has just opened. A photograph that has lost its end is refused.
class SelectionExport
{
public:
    explicit SelectionExport(SelectionOrder order);

    /// Deals with the next photograph, or with a piece of it where it is copied; there must be one.
    /// Takes up to a tenth of a second.
    void step();

    const SelectionOrder& order() const { return m_order; }
    int done() const { return m_done; } ///< photographs dealt with
    bool isDone() const { return m_done == m_order.names.size(); }
    const QString& nextName() const { return m_order.names.at(m_done); } ///< only unless isDone()
    int written() const { return m_done - int(m_failures.size()); }
    const std::vector<SelectionFailure>& failures() const { return m_failures; }

private:
    bool copyPiece();
    files::Outcome writeFileOf(const QString& name);

    const SelectionOrder m_order;
    PhotographReader m_reader;
    std::optional<files::FileCopy> m_copy; ///< while one is being made
    int m_done = 0;
    std::vector<SelectionFailure> m_failures;
};

} // namespace analysis
