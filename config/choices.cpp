// SPDX-License-Identifier: MIT
#include "config/choices.h"

#include "config/configuration_record.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace config {
namespace {

struct Choice
{
    const char* key;
    bool usual;
};

constexpr Choice keeping{"keepMeasurements", false};

/// Far more than all choices together.
constexpr qint64 mostBytes = 100000;

QJsonObject readChoices()
{
    QFile file(choicesPath());
    // A pipe would make the program wait for ever.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.read(mostBytes)).object();
}

bool read(const Choice& choice)
{
    return readChoices().value(QLatin1String(choice.key)).toBool(choice.usual);
}

/// What other versions have put there stays.
bool write(const Choice& choice, bool isOn)
{
    QJsonObject choices = readChoices();
    choices.insert(QLatin1String(choice.key), isOn);
    QDir().mkpath(folderPath());
    QSaveFile file(choicesPath());
    const QByteArray bytes = QJsonDocument(choices).toJson();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           file.commit();
}

} // namespace

QString choicesPath()
{
    return folderPath() + QStringLiteral("/choices.json");
}

bool keepMeasurements()
{
    return read(keeping);
}

bool setKeepMeasurements(bool isOn)
{
    return write(keeping, isOn);
}

} // namespace config
