#include "live/alarm_records.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace live {
namespace {

const char* const pictureNames[recordPictures] = {"F1.JPG", "F2.JPG", "F3.JPG", "Alarm.JPG",
                                                  "L1.JPG", "L2.JPG", "L3.JPG"};

QString textName(const QString& name)
{
    return name + QStringLiteral(".ini");
}

/// Makes the folder of a new record and returns its name, empty when the disk refuses.
QString claimName(const QDir& history, const QString& time)
{
    for (int number = 1;; ++number) {
        QString name = number == 1 ? time : time + QLatin1Char('-') + QString::number(number);
        const bool taken = history.exists(textName(name));
        if (!taken && history.mkdir(name))
            return name;
        if (!taken && !history.exists(name))
            return {};
    }
}

/// Leaves a whole file or none. Unbuffered, so that a full disk shows here and not on closing.
bool writeWhole(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    if (file.write(bytes) == bytes.size())
        return true;
    file.remove();
    return false;
}

QByteArray jpeg(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "jpg");
    return bytes;
}

} // namespace

QString writeRecord(const QString& historyFolder, const QDateTime& time,
                    const QList<QImage>& pictures, const QString& text)
{
    QDir history;
    if (pictures.size() != recordPictures || historyFolder.isEmpty() || !history.cd(historyFolder))
        return {};
    QString name = claimName(history, time.toString(QStringLiteral("yyyyMMddhhmmss")));
    if (name.isEmpty())
        return {};

    const QDir folder(history.filePath(name));
    int saved = 0;
    for (int i = 0; i < recordPictures; ++i) {
        const QByteArray bytes = jpeg(pictures[i]);
        if (!bytes.isEmpty() && writeWhole(folder.filePath(QLatin1String(pictureNames[i])), bytes))
            ++saved;
    }
    if (saved == recordPictures && writeWhole(history.filePath(textName(name)), text.toUtf8()))
        return name;
    if (saved == 0)
        history.rmdir(name);
    return {};
}

QStringList recordNames(const QString& historyFolder)
{
    QStringList names;
    if (historyFolder.isEmpty())
        return names;
    QDirIterator folders(historyFolder, QDir::Dirs | QDir::NoDotAndDotDot);
    while (folders.hasNext()) {
        folders.next();
        const QString name = folders.fileName();
        if (name.startsWith(QLatin1String("20")) && name.size() >= 14)
            names.append(name);
    }
    return names;
}

RecordReadings recordReadings(const QString& historyFolder, const QString& name)
{
    QFile file(historyFolder + QLatin1Char('/') + textName(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QByteArray last;
    // A disk that fails, or a file that shrinks meanwhile, never gets to the end.
    for (qint64 before = -1; !file.atEnd() && file.pos() > before;) {
        before = file.pos();
        last = file.readLine();
    }
    if (last.endsWith('\n'))
        last.chop(1);
    const QStringList parts = QString::fromUtf8(last).split(QLatin1Char(','));
    return {parts.value(0), parts.value(1), parts.value(2)};
}

QStringList recordPicturePaths(const QString& historyFolder, const QString& name)
{
    const QDir folder(historyFolder + QLatin1Char('/') + name);
    QStringList paths;
    // Put together by hand: filePath() takes a name that begins with a colon for a whole path.
    for (const QString& file : folder.entryList(
             {QStringLiteral("*.png"), QStringLiteral("*.jpg"), QStringLiteral("*.bmp")},
             QDir::Files, QDir::Name))
        paths.append(folder.path() + QLatin1Char('/') + file);
    return paths;
}

} // namespace live
