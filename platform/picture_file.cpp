#include "platform/picture_file.h"

#include <QImageReader>

namespace platform {

QPixmap pictureInFile(const QString& path)
{
    QImageReader reader(path);
    const QSize size = reader.size(); // of the header; nothing is unfolded yet
    if (size.isEmpty() || qint64(size.width()) * size.height() > mostPicturePixels)
        return {};
    return QPixmap::fromImageReader(&reader);
}

} // namespace platform
