// SPDX-License-Identifier: MIT
#include "live/saved_picture.h"

#include "files/picture_file.h"
#include "files/whole_file.h"

#include <QFileInfo>
#include <QMimeDatabase>

namespace live {
namespace {

bool namesPictureFormat(const QString& path)
{
    return QMimeDatabase()
        .mimeTypeForFile(path, QMimeDatabase::MatchExtension)
        .name()
        .startsWith(QLatin1String("image/"));
}

QString freePngName(const QString& path)
{
    QString name = path + QStringLiteral(".png");
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = path + QLatin1Char('-') + QString::number(number) + QStringLiteral(".png");
    return name;
}

} // namespace

QString savePicture(const QString& path, const QImage& picture)
{
    QString name = path;
    QByteArray bytes = files::encoded(picture, QFileInfo(path).suffix().toLatin1().constData());
    if (bytes.isEmpty()) {
        bytes = files::encoded(picture, "PNG");
        if (namesPictureFormat(path))
            name = freePngName(path);
    }
    if (bytes.isEmpty())
        return {};
    return files::writeWholeFile(name, bytes, files::Existing::Replace).isGood() ? name : QString();
}

} // namespace live
