// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

/// Alarm records on disk. A record named NAME is, inside the history folder,
///   * the folder NAME with the pictures "F1.JPG", "F2.JPG", "F3.JPG", "Alarm.JPG", "L1.JPG",
///     "L2.JPG", "L3.JPG", oldest first, and
///   * the file NAME + ".ini": one line of UTF-8 without a line end, "36.2,34.0,0.97": maximum
///     temperature, alarm threshold, emissivity. Despite its name it is not an INI file.
/// NAME is the local time as "yyyyMMddhhmmss", in Latin digits; a second record of the same second
/// is NAME-2, and so on. A record is made in the hidden folder ".making" and gets its name when it
/// is made.
///
/// Others may have put anything there: only regular files, and links to them, are opened, and no
/// more of them than below. Nothing is reported; what cannot be read is empty. Any thread; several
/// programs may write into one folder.
namespace live {

constexpr int recordPictures = 7; ///< pictures of one record

/// Writes a record of exactly recordPictures pictures. The text comes last and only with seven
/// whole pictures: a record with read-outs is a whole record. Pictures that were saved before a
/// disk filled up stay as evidence, without a text. What programs that were killed have left behind
/// goes first.
/// Returns the record's name; empty when the pictures are not seven, the history folder cannot be
/// entered, or the record is not whole.
QString writeRecord(const QString& historyFolder, const QDateTime& time,
                    const QList<QImage>& pictures, const QString& text);

/// The names of the records, in the order of the file system: every folder whose name begins with
/// "20" and has at least 14 characters.
QStringList recordNames(const QString& historyFolder);

/// The read-outs of a record as they were shown.
struct RecordReadings
{
    QString maximum;
    QString threshold;
    QString emissivity;
};

/// The three parts of the last line in the first 4 KB of the record's text; missing parts are
/// empty.
RecordReadings recordReadings(const QString& historyFolder, const QString& name);

/// The paths of the record's pictures (png, jpg, bmp in either case), sorted by name; the first 64.
QStringList recordPicturePaths(const QString& historyFolder, const QString& name);

} // namespace live
