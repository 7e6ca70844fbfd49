// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The configuration record: everything the program remembers between two runs.
///
/// It is one text of three fields joined by ",", kept as a single serialised QString (32-bit
/// big-endian byte count, UTF-16 big-endian) in "cofnig.ini". The file is opened in *text mode*
/// although it is binary, because existing files were written that way: on Windows 0x0A is stored
/// as 0x0D 0x0A, and every reader on every system drops 0x0D bytes, in the byte count too. It is
/// never truncated, so the tail of a longer, older record may follow the current one.
///
/// Every function opens the file anew; nothing is cached and nothing is reported. A missing,
/// unreadable, short or damaged file yields empty fields. GUI thread or any other, but one at a
/// time.
namespace config {

struct Record
{
    QString reserved;    ///< field 0, always "000"; carried along, read by nobody
    QString language;    ///< field 1: a code of language.h, case-sensitive
    QString alarmFolder; ///< field 2: folder of the alarm records; a comma in it cuts it short
};

/// The documents location, under which folderPath() lies. Asked from the system on every call.
QString documentsPath();
/// The folder of the configuration file; also the first alarm folder. Forward slashes.
QString folderPath();
/// The configuration file itself.
QString filePath();

/// True when the configuration file exists, whatever it holds.
bool exists();

/// The record as it stands in the file; missing fields are empty.
Record read();

/// Makes the folder, the documents location too where it is missing, and the file with the given
/// language and folderPath() as the alarm folder. Logs the folder's creation. Without the right or
/// the room to write there is no file afterwards.
void create(const QString& language);

/// Rewrites the record with another language. Nothing is written when the file does not exist.
/// Returns the text that was written, empty if none was.
QString replaceLanguage(const QString& language);

/// Rewrites the record with another alarm folder. Nothing is written when the file does not exist.
void replaceAlarmFolder(const QString& folder);

/// Where an alarm folder is on this disk. A folder that was chosen in the settings is kept with
/// back-slashes on every system; where folders are separated by "/", these are no separators and
/// become some. Whoever reads or writes in the folder goes through this; shown and stored is the
/// text as it stands.
QString usedFolder(const QString& alarmFolder);

} // namespace config
