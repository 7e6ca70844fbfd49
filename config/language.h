// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace config {

/// A language of the program. Whatever depends on the language stands in its row: start-up, the
/// settings, the alarm's sound, tabs, reports and thermaphoto ask here and know no code.
struct Language
{
    QString code;         ///< in the configuration record, case-sensitive
    QString title;        ///< its entry in the settings, the same in every language
    QString catalogue;    ///< of the program's own texts; empty for the one they are written in
    QString qtCatalogue;  ///< of Qt's own texts, looked for in qtFolder
    QString qtFolder;     ///< empty: the catalogue's name says it
    QString sound;        ///< URL of the spoken alarm
    bool hasWideCaptions; ///< tabs and the report make room for longer words
    QString font;         ///< family in reports where the established one is not installed
};

/// All languages, in the order of the settings' entries; the first is the one that the texts are
/// written in.
const std::vector<Language>& languages();

/// The row of a code; null for a code that there is not.
const Language* findLanguage(const QString& code);

/// The same, but a code that there is not reads as the first language's.
const Language& languageOf(const QString& code);

} // namespace config
