// SPDX-License-Identifier: MIT
#include "analysis/photograph/kept_measurements.h"

#include "files/paths.h"
#include "files/reading.h"
#include "files/whole_file.h"
#include "overlay/tool_file.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>
#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace analysis {
namespace {

constexpr int formatVersion = 1;
constexpr int lastEntry = 255; // of a palette
constexpr qint64 mostBytes = 10000000;
constexpr std::size_t keyLength = 64;
const QString suffix = QStringLiteral(".json");

bool isSpan(const QJsonArray& span)
{
    const int start = span.at(0).toInt(-1);
    const int end = span.at(1).toInt(-1);
    return span.size() == 2 && start >= 0 && start <= end && end <= lastEntry;
}

const UnitRow* unitOf(const QString& letter)
{
    const auto* row = std::find_if(units.begin(), units.end(), [&](const UnitRow& unit) {
        return letter == QLatin1String(unit.letter);
    });
    return row == units.end() ? nullptr : row;
}

/// The files of photographs, and nobody else's.
std::vector<fs::path> keptFiles(const QString& folder)
{
    std::vector<fs::path> kept;
    std::error_code error;
    for (fs::directory_iterator entry(files::nativePath(folder), error), end;
         !error && entry != end; entry.increment(error)) {
        const fs::path name = entry->path().filename();
        if (name.stem().u8string().size() == keyLength && name.extension() == ".json")
            kept.push_back(entry->path());
    }
    return kept;
}

} // namespace

bool operator==(const Measurements& left, const Measurements& right)
{
    return left.tools == right.tools && left.startValue == right.startValue &&
           left.endValue == right.endValue && left.unit == right.unit;
}

QByteArray measurementsToJson(const Measurements& measurements)
{
    const QString tools = QString::fromUtf8(toolsToJson(measurements.tools).trimmed());
    return QStringLiteral("{\n"
                          "    \"version\": %1,\n"
                          "    \"span\": [%2, %3],\n"
                          "    \"unit\": \"%4\",\n"
                          "    \"tools\": %5\n"
                          "}\n")
        .arg(formatVersion)
        .arg(measurements.startValue)
        .arg(measurements.endValue)
        .arg(letterOf(measurements.unit))
        .arg(QString(tools).replace(QLatin1Char('\n'), QLatin1String("\n    ")))
        .toUtf8();
}

std::optional<Measurements> measurementsFromJson(const QByteArray& json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const QJsonArray span = object.value(QLatin1String("span")).toArray();
    const UnitRow* unit = unitOf(object.value(QLatin1String("unit")).toString());
    const QJsonValue tools = object.value(QLatin1String("tools"));
    Measurements measurements;
    if (object.value(QLatin1String("version")) != formatVersion || !isSpan(span) || !unit ||
        !tools.isObject() ||
        !overlay::toolsFromJson(QJsonDocument(tools.toObject()).toJson(), measurements.tools)
             .isEmpty())
        return std::nullopt;
    measurements.startValue = span.at(0).toInt();
    measurements.endValue = span.at(1).toInt();
    measurements.unit = unit->unit;
    return measurements;
}

KeptMeasurements::KeptMeasurements(QString folder, int most)
    : m_folder(std::move(folder)), m_most(most)
{
}

QString KeptMeasurements::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/thermadesk/measurements");
}

QString KeptMeasurements::keyOf(const uchar* photograph, int bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(reinterpret_cast<const char*>(photograph), std::max(bytes, 0));
    return QString::fromLatin1(hash.result().toHex());
}

std::optional<Measurements> KeptMeasurements::find(const QString& key) const
{
    QByteArray json;
    if (!files::readWhole(pathOf(key), mostBytes, json).isGood())
        return std::nullopt;
    return measurementsFromJson(json);
}

files::Outcome KeptMeasurements::keep(const QString& key, const Measurements& measurements) const
{
    const QString path = pathOf(key);
    const bool isNew = !QFileInfo::exists(path);
    files::Outcome outcome = files::makeFolder(m_folder);
    if (outcome.isGood())
        outcome =
            files::writeWholeFile(path, measurementsToJson(measurements), files::Existing::Replace);
    if (outcome.isGood() && isNew)
        removeOldest(key + suffix);
    return outcome;
}

QString KeptMeasurements::pathOf(const QString& key) const
{
    return files::pathIn(m_folder, key + suffix);
}

/// Whatever the clock says of the one that has just been written, it is not the oldest.
void KeptMeasurements::removeOldest(const QString& spared) const
{
    const std::vector<fs::path> kept = keptFiles(m_folder);
    const auto tooMany = std::ptrdiff_t(kept.size()) - m_most;
    if (tooMany <= 0)
        return;
    std::error_code error;
    std::vector<std::pair<fs::file_time_type, fs::path>> oldestFirst;
    for (const fs::path& file : kept) {
        if (file.filename() != spared.toStdString())
            oldestFirst.emplace_back(fs::last_write_time(file, error), file);
    }
    std::sort(oldestFirst.begin(), oldestFirst.end());
    const auto last = std::min(tooMany, std::ptrdiff_t(oldestFirst.size()));
    std::for_each_n(oldestFirst.begin(), last,
                    [&](const auto& file) { fs::remove(file.second, error); });
}

} // namespace analysis
