// SPDX-License-Identifier: MIT
#include "overlay/tool_file.h"

#include "overlay/tool_rules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace overlay {
namespace {

QString keyOf(const KindRow& kind)
{
    return QLatin1String(kind.name) + QLatin1Char('s');
}

/// The keys of all kinds, as a sentence has them.
QString knownKeys()
{
    QString keys;
    for (const KindRow& kind : toolKinds) {
        if (&kind != &toolKinds.front())
            keys += &kind == &toolKinds.back() ? QStringLiteral(" and ") : QStringLiteral(", ");
        keys += QStringLiteral("\"%1\"").arg(keyOf(kind));
    }
    return keys;
}

/// Nothing, or what keeps the window from holding this tool.
template<typename Tool>
QString wrongWith(const Tool& tool)
{
    if (isPlaced(tool) && isUnfinished(tool))
        return QStringLiteral("has no extent");
    if (isInside(tool))
        return {};
    return rowOf(tool.kind).isDragged ? QStringLiteral("is not wholly inside the picture")
                                      : QStringLiteral("is outside the picture");
}

bool readNumbers(const QJsonValue& value, int count, ToolNumbers& numbers)
{
    const QJsonArray array = value.toArray();
    if (!value.isArray() || array.size() != count)
        return false;
    for (int i = 0; i < count; ++i) {
        const double number = array[i].toDouble(NAN);
        // Far more than any picture has, and safe to convert.
        if (!(std::abs(number) < 1e6) || number != std::floor(number))
            return false;
        numbers[std::size_t(i)] = int(number);
    }
    return true;
}

/// Appends the tools of one kind and returns what is wrong with them.
template<typename Tool>
QString readKind(const QJsonObject& object, QVector<Tool>& tools)
{
    const KindRow& kind = rowOf(Tool::kind);
    const QString key = keyOf(kind);
    const QJsonValue list = object.value(key);
    if (!list.isArray() && !list.isUndefined())
        return QStringLiteral("\"%1\" is not a list").arg(key);
    for (const QJsonValue value : list.toArray()) {
        const QString where = QStringLiteral("\"%1\", number %2 ").arg(key).arg(tools.size() + 1);
        ToolNumbers numbers{};
        if (!readNumbers(value, kind.numbers, numbers))
            return where + QStringLiteral("is not a list of %1 whole numbers").arg(kind.numbers);
        Tool tool;
        setNumbers(tool, numbers);
        tool.name = QLatin1Char(kind.letter) + QString::number(tools.size());
        const QString wrong = wrongWith(tool);
        if (!wrong.isEmpty())
            return where + wrong;
        tools.append(tool);
    }
    return {};
}

QString readTools(const QJsonObject& object, Tools& tools)
{
    for (const QString& key : object.keys()) {
        const auto isKey = [&](const KindRow& kind) {
            return key == keyOf(kind);
        };
        if (std::none_of(toolKinds.begin(), toolKinds.end(), isKey))
            return QStringLiteral("\"%1\" is none of %2").arg(key, knownKeys());
    }
    QString wrong;
    forEachList(tools, [&](auto& list) {
        if (wrong.isEmpty())
            wrong = readKind(object, list);
    });
    return wrong;
}

} // namespace

QString toolsFromJson(const QByteArray& json, Tools& tools)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("byte %1: %2").arg(error.offset).arg(error.errorString());
    if (!document.isObject())
        return QStringLiteral("not a JSON object");
    return readTools(document.object(), tools);
}

} // namespace overlay
