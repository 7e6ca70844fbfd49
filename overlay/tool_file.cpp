// SPDX-License-Identifier: MIT
#include "overlay/tool_file.h"

#include "overlay/tool_rules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace overlay {
namespace {

constexpr int formatVersion = 1;
const QString versionKey = QStringLiteral("version");
const QString namesKey = QStringLiteral("names");
const QColor usual = PointTool().colour;
const QString coloursKey = QStringLiteral("colours");

QString keyOf(const KindRow& kind)
{
    return QLatin1String(kind.name) + QLatin1Char('s');
}

QStringList knownKeys()
{
    QStringList keys{versionKey};
    for (const KindRow& kind : toolKinds)
        keys.append(keyOf(kind));
    return keys << namesKey << coloursKey;
}

QString quoted(const QString& text)
{
    return QStringLiteral("\"%1\"").arg(text);
}

/// As a sentence has them: "a", "b" and "c".
QString listed(QStringList keys)
{
    std::transform(keys.begin(), keys.end(), keys.begin(), quoted);
    const QString last = keys.takeLast();
    return keys.join(QLatin1String(", ")) + QStringLiteral(" and ") + last;
}

/// Nothing, or what keeps the window from holding this tool.
template<typename Tool>
QString faultOf(const Tool& tool)
{
    if (isPlaced(tool) && isUnfinished(tool))
        return QStringLiteral("has no extent");
    if (isInside(tool))
        return {};
    return rowOf(tool.kind).isDragged ? QStringLiteral("is not wholly inside the picture")
                                      : QStringLiteral("is outside the picture");
}

/// The place of a list's entry, with which what is wrong with it begins.
QString entry(const QString& key, int index)
{
    return QStringLiteral("\"%1\", number %2 ").arg(key).arg(index + 1);
}

// Reading

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
        ToolNumbers numbers{};
        if (!readNumbers(value, kind.numbers, numbers))
            return entry(key, tools.size()) +
                   QStringLiteral("is not a list of %1 whole numbers").arg(kind.numbers);
        Tool tool;
        setNumbers(tool, numbers);
        tool.name = nameOf(kind.kind, tools.size());
        tools.append(tool);
    }
    return {};
}

QString readNames(const QJsonValue& value, Tools& tools)
{
    const QJsonArray names = value.toArray();
    if (value.isUndefined())
        return {};
    if (!value.isArray() || names.size() != countOf(tools))
        return QStringLiteral("\"%1\" is not a list of %2, one for each tool")
            .arg(namesKey)
            .arg(countOf(tools));
    QString wrong;
    int place = 0;
    forEachList(tools, [&](auto& list) {
        int before = -1;
        for (auto& tool : list) {
            tool.name = names.at(place).toString();
            const int number = numberIn(tool.name, tool.kind).value_or(-1);
            if (number <= before && wrong.isEmpty())
                wrong = entry(namesKey, place) +
                        QStringLiteral("is not \"%1\" with a number above the one before")
                            .arg(QLatin1Char(rowOf(tool.kind).letter));
            before = number;
            ++place;
        }
    });
    return wrong;
}

QString readColours(const QJsonValue& value, Tools& tools)
{
    if (!value.isObject() && !value.isUndefined())
        return QStringLiteral("\"%1\" is not an object").arg(coloursKey);
    static const QRegularExpression form(QStringLiteral("^#([0-9a-f]{6}|[0-9a-f]{8})\\z"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QJsonObject colours = value.toObject();
    QString wrong;
    QSet<QString> names;
    forEachTool(tools, [&](auto& tool) {
        const QJsonValue colour = colours.value(tool.name);
        names.insert(tool.name);
        if (colour.isUndefined())
            return;
        tool.colour = QColor(colour.toString());
        if (!form.match(colour.toString()).hasMatch() && wrong.isEmpty())
            wrong = QStringLiteral("\"%1\", \"%2\" is not \"#rrggbb\"").arg(coloursKey, tool.name);
    });
    for (const QString& name : colours.keys()) {
        if (wrong.isEmpty() && !names.contains(name))
            wrong = QStringLiteral("\"%1\": there is no \"%2\"").arg(coloursKey, name);
    }
    return wrong;
}

QString readTools(const QJsonObject& object, Tools& tools)
{
    const QJsonValue version = object.value(versionKey);
    if (!version.isUndefined() && version != formatVersion)
        return QStringLiteral("\"%1\" is not %2").arg(versionKey).arg(formatVersion);
    for (const QString& key : object.keys()) {
        if (!knownKeys().contains(key))
            return QStringLiteral("\"%1\" is none of %2").arg(key, listed(knownKeys()));
    }
    QString wrong;
    forEachList(tools, [&](auto& list) {
        if (wrong.isEmpty())
            wrong = readKind(object, list);
    });
    if (wrong.isEmpty())
        wrong = wrongWith(tools);
    if (wrong.isEmpty())
        wrong = readNames(object.value(namesKey), tools);
    return wrong.isEmpty() ? readColours(object.value(coloursKey), tools) : wrong;
}

// Writing

/// What a file can hold of a list, under names that it can hold.
template<typename Tool>
void makeWritable(QVector<Tool>& list)
{
    list.erase(std::remove_if(list.begin(), list.end(),
                              [](const Tool& tool) { return !faultOf(tool).isEmpty(); }),
               list.end());
    const auto misnamed =
        std::adjacent_find(list.begin(), list.end(), [](const Tool& left, const Tool& right) {
            return numberIn(left.name, left.kind) >= numberIn(right.name, right.kind);
        });
    const bool areNumbered =
        list.isEmpty() || (numberIn(list.first().name, Tool::kind) && misnamed == list.end());
    for (int index = 0; index < list.size() && !areNumbered; ++index)
        list[index].name = nameOf(Tool::kind, index);
}

template<typename Tool>
QString numbersText(const Tool& tool)
{
    const ToolNumbers numbers = numbersOf(tool);
    QStringList texts;
    for (int i = 0; i < rowOf(tool.kind).numbers; ++i)
        texts.append(QString::number(numbers[std::size_t(i)]));
    return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
}

QString member(const QString& key, const QStringList& values, const QString& brackets)
{
    return QStringLiteral("\"%1\": ").arg(key) + brackets.at(0) + values.join(QLatin1String(", ")) +
           brackets.at(1);
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
    Tools read;
    const QString wrong = readTools(document.object(), read);
    if (wrong.isEmpty())
        tools = read;
    return wrong;
}

QByteArray toolsToJson(const Tools& tools)
{
    Tools written = tools;
    forEachList(written, [](auto& list) { makeWritable(list); });
    const QString square = QStringLiteral("[]");
    QStringList members{QStringLiteral("\"%1\": %2").arg(versionKey).arg(formatVersion)};
    QStringList names;
    QStringList colours;
    bool areNumberedFromZero = true;
    forEachList(written, [&](const auto& list) {
        QStringList numbers;
        for (const auto& tool : list) {
            areNumberedFromZero &= tool.name == nameOf(tool.kind, numbers.size());
            numbers.append(numbersText(tool));
            names.append(quoted(tool.name));
            if (tool.colour.isValid() && tool.colour.rgba() != usual.rgba())
                colours.append(QStringLiteral("\"%1\": \"%2\"").arg(tool.name, hexOf(tool.colour)));
        }
        if (!numbers.isEmpty())
            members.append(member(keyOf(rowOf(kindOf(list))), numbers, square));
    });
    if (!areNumberedFromZero)
        members.append(member(namesKey, names, square));
    if (!colours.isEmpty())
        members.append(member(coloursKey, colours, QStringLiteral("{}")));
    return QStringLiteral("{\n    %1\n}\n").arg(members.join(QLatin1String(",\n    "))).toUtf8();
}

QString wrongWith(const Tools& tools)
{
    QString wrong;
    forEachList(tools, [&](const auto& list) {
        for (int index = 0; index < list.size() && wrong.isEmpty(); ++index) {
            const QString fault = faultOf(list.at(index));
            if (!fault.isEmpty())
                wrong = entry(keyOf(rowOf(kindOf(list))), index) + fault;
        }
    });
    return wrong;
}

QString hexOf(const QColor& colour)
{
    return colour.name(colour.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

} // namespace overlay
