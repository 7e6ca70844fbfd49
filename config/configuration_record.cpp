// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"

#include <QDataStream>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStringList>
#include <QtEndian>

namespace config {
namespace {

const QString folderName = QStringLiteral("Tepla Imaging Suite");
constexpr QIODevice::OpenMode fileMode = QIODevice::ReadWrite | QIODevice::Text;

/// Reads the serialised text. The byte count is checked against what the file can hold before
/// anything is allocated, so a damaged count costs nothing.
QString readText()
{
    QFile file(filePath());
    if (!exists() || !file.open(fileMode))
        return {};
    QByteArray bytes = file.read(sizeof(quint32));
    if (bytes.size() != int(sizeof(quint32)))
        return {};
    const auto count = qFromBigEndian<quint32>(bytes.constData());
    if (qint64(count) > file.size())
        return {};
    bytes += file.read(count);
    QString text;
    QDataStream stream(bytes);
    stream >> text;
    return text;
}

/// Over what the file holds. The tail of a longer record stays behind it.
void rewrite(const QString& text)
{
    QFile file(filePath());
    if (!file.open(fileMode))
        return;
    QDataStream stream(&file);
    stream << text;
}

QString joined(const Record& record)
{
    return record.reserved + QLatin1Char(',') + record.language + QLatin1Char(',') +
           record.alarmFolder;
}

} // namespace

QString documentsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString folderPath()
{
    return documentsPath() + QLatin1Char('/') + folderName;
}

QString filePath()
{
    return folderPath() + QStringLiteral("/cofnig.ini");
}

bool exists()
{
    return QFile::exists(filePath());
}

Record read()
{
    const QStringList fields = readText().split(QLatin1Char(','));
    return {fields.value(0), fields.value(1), fields.value(2)};
}

void create(const QString& language)
{
    QDir().mkpath(folderPath());
    qDebug().noquote() << QStringLiteral("文件夹创建成功");
    // The whole record or no file: an empty one would count as there ever after.
    QSaveFile file(filePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    QDataStream stream(&file);
    stream << joined({QStringLiteral("000"), language, folderPath()});
    if (file.flush()) // what commit() flushes by itself may be lost without a word
        file.commit();
}

QString replaceLanguage(const QString& language)
{
    if (!exists())
        return {};
    Record record = read();
    record.language = language;
    rewrite(joined(record));
    return joined(record);
}

void replaceAlarmFolder(const QString& folder)
{
    if (!exists())
        return;
    Record record = read();
    record.alarmFolder = folder;
    rewrite(joined(record));
}

QString usedFolder(const QString& alarmFolder)
{
    QString folder = alarmFolder;
    if (QDir::separator() == QLatin1Char('/'))
        folder.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return folder;
}

} // namespace config
