#include "config/configuration_record.h"

#include <QDataStream>
#include <QDebug>
#include <QDir>
#include <QFile>
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

void writeText(const QString& text)
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
    QDir(documentsPath()).mkdir(folderName);
    qDebug().noquote() << QStringLiteral("文件夹创建成功");
    writeText(joined({QStringLiteral("000"), language, folderPath()}));
}

QString replaceLanguage(const QString& language)
{
    if (!exists())
        return {};
    Record record = read();
    record.language = language;
    writeText(joined(record));
    return joined(record);
}

void replaceAlarmFolder(const QString& folder)
{
    if (!exists())
        return;
    Record record = read();
    record.alarmFolder = folder;
    writeText(joined(record));
}

} // namespace config
