// SPDX-License-Identifier: MIT
#include "live/alarm_records.h"

#include "files/paths.h"
#include "files/picture_file.h"
#include "files/reading.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>

#include <memory>

namespace live {
namespace {

const char* const pictureNames[recordPictures] = {"F1.JPG", "F2.JPG", "F3.JPG", "Alarm.JPG",
                                                  "L1.JPG", "L2.JPG", "L3.JPG"};

/// Inside the history folder: records in the making, which move out when they are made. A program
/// that dies meanwhile leaves no part of a record among the others.
const QString makingFolder = QStringLiteral(".making");
/// The text of a record in the making.
const QString makingText = QStringLiteral("text");
const QString lockSuffix = QStringLiteral(".lock");

/// Of a record that somebody else has put there.
constexpr qint64 mostTextBytes = 4096;
constexpr int mostPictures = 64;

QString textName(const QString& name)
{
    return name + QStringLiteral(".ini");
}

QDir makingIn(const QDir& history)
{
    return QDir(history.filePath(makingFolder));
}

/// Held while the record is in the making. A program that is gone holds nothing; one on another
/// computer is believed to be gone after half a minute.
std::unique_ptr<QLockFile> lockOf(const QDir& history, const QString& name)
{
    return std::make_unique<QLockFile>(makingIn(history).filePath(name + lockSuffix));
}

bool giveName(QDir& history, const QString& name)
{
    return history.rename(makingFolder + QLatin1Char('/') + name, name);
}

/// Takes away what a record in the making may consist of, and nothing else.
void discard(const QDir& history, const QString& name)
{
    QDir record(makingIn(history).filePath(name));
    for (const char* const picture : pictureNames)
        record.remove(QLatin1String(picture));
    record.remove(makingText);
    makingIn(history).rmdir(name);
}

/// What programs that died have left behind: a record whose text has its name already is whole and
/// gets its own; everything else goes.
void settleLeftOvers(QDir& history)
{
    const QStringList entries = makingIn(history).entryList(
        QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (QString name : entries) {
        if (name.endsWith(lockSuffix))
            name.chop(lockSuffix.size());
        const auto lock = lockOf(history, name);
        if (!lock->tryLock(0))
            continue;
        if (!history.exists(textName(name)) || !giveName(history, name))
            discard(history, name);
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

/// A record in the making.
class Making
{
public:
    /// Finds a free name for a record of that time. Without a name the disk refuses.
    Making(QDir& history, const QString& time) : m_history(history)
    {
        for (int number = 1; m_name.isEmpty(); ++number) {
            const QString name =
                number == 1 ? time : time + QLatin1Char('-') + QString::number(number);
            if (m_history.exists(name) || m_history.exists(textName(name)))
                continue;
            if (!lock(name))
                continue;
            if (!makingIn(m_history).mkdir(name))
                return;
            m_name = name;
        }
    }
    ~Making()
    {
        m_lock.reset();
        m_history.rmdir(makingFolder);
    }
    Making(const Making&) = delete;
    Making& operator=(const Making&) = delete;

    const QString& name() const { return m_name; }

    /// How many of the pictures could be saved.
    int save(const QList<QImage>& pictures) const
    {
        int saved = 0;
        for (int i = 0; i < recordPictures; ++i) {
            const QByteArray bytes = files::encoded(pictures[i], "jpg");
            if (!bytes.isEmpty() && writeWhole(path(QLatin1String(pictureNames[i])), bytes))
                ++saved;
        }
        return saved;
    }
    /// Puts the text beside the record to be.
    bool save(const QString& text) const
    {
        if (writeWhole(path(makingText), text.toUtf8()) &&
            QFile::rename(path(makingText), m_history.filePath(textName(m_name))))
            return true;
        QFile::remove(path(makingText));
        return false;
    }

private:
    /// False when somebody else is making a record of that name. Without room for a lock it is made
    /// all the same.
    bool lock(const QString& name)
    {
        m_lock = lockOf(m_history, name);
        // Another program takes the folder away when it is done and finds it empty.
        while (m_history.mkdir(makingFolder) || m_history.exists(makingFolder)) {
            if (m_lock->tryLock(0))
                return true;
            if (m_lock->error() == QLockFile::LockFailedError)
                return false;
            if (m_history.exists(makingFolder))
                return true;
        }
        return true;
    }
    QString path(const QString& file) const
    {
        return makingIn(m_history).filePath(m_name + QLatin1Char('/') + file);
    }

    QDir& m_history;
    QString m_name;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace

QString writeRecord(const QString& historyFolder, const QDateTime& time,
                    const QList<QImage>& pictures, const QString& text)
{
    QDir history;
    if (pictures.size() != recordPictures || historyFolder.isEmpty() || !history.cd(historyFolder))
        return {};
    settleLeftOvers(history);
    // Latin digits, whatever the system's own look like: only such names are listed.
    const Making record(history, QLocale::c().toString(time, QStringLiteral("yyyyMMddhhmmss")));
    if (record.name().isEmpty())
        return {};
    const int saved = record.save(pictures);
    if (saved == 0) {
        discard(history, record.name());
        return {};
    }
    const bool whole = saved == recordPictures && record.save(text);
    const bool named = giveName(history, record.name());
    return whole && named ? record.name() : QString();
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
    QFile file(files::pathIn(historyFolder, textName(name)));
    if (!files::openForReading(file).isGood())
        return {};
    QByteArray text = file.read(mostTextBytes);
    for (const char end : {'\n', '\r'}) {
        if (text.endsWith(end))
            text.chop(1);
    }
    const QByteArray last = text.mid(text.lastIndexOf('\n') + 1);
    const QStringList parts = QString::fromUtf8(last).split(QLatin1Char(','));
    return {parts.value(0), parts.value(1), parts.value(2)};
}

QStringList recordPicturePaths(const QString& historyFolder, const QString& name)
{
    const QString folder = files::pathIn(historyFolder, name);
    QStringList paths;
    for (const QString& file : QDir(folder).entryList(
             {QStringLiteral("*.png"), QStringLiteral("*.jpg"), QStringLiteral("*.bmp")},
             QDir::Files, QDir::Name)) {
        const QString path = files::pathIn(folder, file);
        // Links to pipes and the like are listed, too.
        if (QFileInfo(path).isFile())
            paths.append(path);
        if (paths.size() == mostPictures)
            break;
    }
    return paths;
}

} // namespace live
