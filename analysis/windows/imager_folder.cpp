// SPDX-License-Identifier: MIT
#include "analysis/windows/imager_folder.h"

#include "analysis/photograph/layouts.h"
#include "analysis/report/information.h"
#include "files/paths.h"

#include <QDir>

#include <algorithm>

namespace analysis {
namespace {

using format::layouts;

QString folderOf(const format::Layout& layout)
{
    return QString::fromLatin1(layout.folder);
}

} // namespace

QStringList ImagerFolder::folderNames(const QString& root)
{
    return QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
}

/// On an ordinary disk no name stands twice: the two kinds have never been told apart otherwise.
bool ImagerFolder::isAmbiguous(const QStringList& folderNames)
{
    return folderNames.count(folderOf(layouts.front())) == 2;
}

void ImagerFolder::takeFound(const QString& root, const QStringList& folderNames)
{
    const auto* const found =
        std::find_if(layouts.begin(), layouts.end(), [&](const format::Layout& layout) {
            return layout.isLookedFor && folderNames.contains(folderOf(layout));
        });
    if (found == layouts.end())
        imageFolder = root + folderOf(layouts.front());
    else
        take(root, found->modelIndex);
}

void ImagerFolder::take(const QString& root, int layoutIndex)
{
    imageFolder = root + folderOf(format::layoutOf(layoutIndex));
    modelIndex = layoutIndex;
}

void ImagerFolder::listPhotographs()
{
    fileNames.clear();
    fileDates.clear();
    fileSizes.clear();
    // Without a drive there is no folder yet, and a nameless one would be the working directory.
    if (imageFolder.isEmpty())
        return;
    const QFileInfoList files =
        QDir(imageFolder).entryInfoList({QStringLiteral("*.bmp")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        if (!file.isFile()) // links to folders, pipes and devices are listed, too
            continue;
        fileNames.append(file.fileName());
        fileDates.append(createdText(file));
        fileSizes.append(kilobytes(file.size()));
    }
}

QString ImagerFolder::pathOf(const QString& name) const
{
    return files::pathIn(imageFolder, name);
}

} // namespace analysis
