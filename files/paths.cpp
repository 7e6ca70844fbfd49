// SPDX-License-Identifier: MIT
#include "files/paths.h"

#include <QTextDocument>

namespace files {

QString localPath(const QString& path)
{
    return path.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + path : path;
}

std::filesystem::path nativePath(const QString& path)
{
    return std::filesystem::u8path(path.toUtf8().constData());
}

QString pathIn(const QString& folder, const QString& name)
{
    if (folder.isEmpty())
        return localPath(name);
    const bool isClosed = folder.endsWith(QLatin1Char('/'));
    return localPath(isClosed ? folder + name : folder + QLatin1Char('/') + name);
}

QString toolTipOf(const QString& name)
{
    return Qt::mightBeRichText(name) ? Qt::convertFromPlainText(name) : name;
}

} // namespace files
