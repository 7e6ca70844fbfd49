// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace analysis {

/// The folder with photographs on one of the imager's disks, and what is in it. Whatever the disk
/// does meanwhile, at worst names of files stand here that are gone.
class ImagerFolder
{
public:
    QString imageFolder; ///< where the photographs are, whether or not it exists
    int modelIndex = -1; ///< file layout for Analysis_Widget::set_Image_addr()
    /// One entry for each photograph, by name.
    QStringList fileNames;
    QStringList fileDates; ///< of creation, "yyyy/MM/dd HH:mm"
    QStringList fileSizes; ///< kilobytes, one decimal

    /// The names of the folders on the disk at `root`, which ends in "/".
    static QStringList folderNames(const QString& root);
    /// True when folders of both kinds of imagers seem to be there, so that the user is to choose.
    static bool isAmbiguous(const QStringList& folderNames);

    /// Takes the folder that is there, given the names of the folders at `root`. Where none is,
    /// that of the first layout is taken all the same, and modelIndex stays as it was.
    void takeFound(const QString& root, const QStringList& folderNames);
    /// Takes the folder that the imagers with this layout make.
    void take(const QString& root, int layoutIndex);

    /// Fills the lists: regular files and links to them, whose name ends in ".bmp".
    void listPhotographs();

    /// The path of a photograph, whatever its name begins with.
    QString pathOf(const QString& name) const;
};

} // namespace analysis
