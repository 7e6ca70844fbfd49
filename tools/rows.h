// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/units.h"

#include <QStringList>

#include <vector>

/// What commands measure in a photograph, printed in rows.
namespace tools {

class CommandLine;
struct PhotographRun;

enum class RowFormat
{
    Table, ///< for eyes
    Csv,
    Json,  ///< one array of an object for each photograph
    Ndjson ///< such an object on each line
};

/// --format, a table by default.
void addRowFormat(CommandLine& line);
RowFormat readRowFormat(CommandLine& line);

struct Column
{
    QString name;
    int width;           ///< of the table; negative: aligned to the left
    bool isText = false; ///< otherwise a number
};

/// A text for each column. Empty where the row has nothing to say; a number may be "nan" or "inf",
/// which is null in JSON.
using Row = QStringList;

class RowPrinter
{
public:
    /// `key` is that of the list of rows in JSON.
    RowPrinter(RowFormat format, const QString& key, std::vector<Column> columns);

    /// What stands around and between the photographs.
    void frame(PhotographRun& photographs) const;
    QByteArray text(const QString& file, analysis::Unit unit, const std::vector<Row>& rows) const;

private:
    QByteArray json(const QString& file, const QString& unit, const std::vector<Row>& rows) const;
    QByteArray csv(const QString& file, const QString& unit, const std::vector<Row>& rows) const;
    QByteArray table(const QString& file, const QString& unit, const std::vector<Row>& rows) const;

    RowFormat m_format;
    QString m_key;
    std::vector<Column> m_columns;
    bool m_isForEyes; ///< a program gets names as they are
};

} // namespace tools
