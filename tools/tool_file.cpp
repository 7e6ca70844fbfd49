#include "tools/tool_file.h"

#include "files/reading.h"
#include "overlay/label_geometry.h"
#include "overlay/tool_rules.h"
#include "tools/messages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>

namespace tools {
namespace {

const QLatin1String pointsKey("points");
const QLatin1String linesKey("lines");
const QLatin1String rectanglesKey("rectangles");
const QLatin1String circlesKey("circles");

/// Numbers of one tool. The last column and row that the label can give are 240 and 320.
using Numbers = std::array<int, 4>;

bool isInPicture(int x, int y)
{
    return x >= 0 && x <= overlay::imageColumns && y >= 0 && y <= overlay::imageRows;
}

QString wrongWith(const overlay::PointTool& point)
{
    return isInPicture(point.x, point.y) ? QString() : QStringLiteral("is outside the picture");
}

/// Lines and rectangles.
template<typename Tool>
QString wrongWith(const Tool& tool)
{
    if (!isInPicture(tool.x1, tool.y1) || !isInPicture(tool.x2, tool.y2))
        return QStringLiteral("is not wholly inside the picture");
    return isUnfinished(tool) ? QStringLiteral("has no extent") : QString();
}

QString wrongWith(const overlay::CircleTool& circle)
{
    if (circle.radius < 1)
        return QStringLiteral("has no extent");
    const bool canBeDragged =
        overlay::draggedRadius(circle.cx, circle.cy, circle.x2, circle.y2) == circle.radius;
    return canBeDragged ? QString() : QStringLiteral("is not wholly inside the picture");
}

void place(overlay::PointTool& point, const Numbers& n)
{
    point.x = n[0];
    point.y = n[1];
}

void place(overlay::CircleTool& circle, const Numbers& n)
{
    circle.cx = n[0];
    circle.cy = n[1];
    circle.radius = n[2];
    circle.x2 = n[0] + n[2];
    circle.y2 = n[1];
}

template<typename Tool>
void place(Tool& tool, const Numbers& n)
{
    tool.x1 = n[0];
    tool.y1 = n[1];
    tool.x2 = n[2];
    tool.y2 = n[3];
}

bool readNumbers(const QJsonValue& value, int count, Numbers& numbers)
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
QString readKind(const QJsonObject& object, QLatin1String key, int count, QVector<Tool>& tools)
{
    const QJsonValue list = object.value(key);
    if (!list.isArray() && !list.isUndefined())
        return QStringLiteral("\"%1\" is not a list").arg(key);
    for (const QJsonValue value : list.toArray()) {
        const QString where = QStringLiteral("\"%1\", number %2 ").arg(key).arg(tools.size() + 1);
        Numbers numbers{};
        if (!readNumbers(value, count, numbers))
            return where + QStringLiteral("is not a list of %1 whole numbers").arg(count);
        Tool tool;
        place(tool, numbers);
        tool.name = QLatin1Char(overlay::rowOf(tool.kind).letter) + QString::number(tools.size());
        const QString wrong = wrongWith(tool);
        if (!wrong.isEmpty())
            return where + wrong;
        tools.append(tool);
    }
    return {};
}

QString readTools(const QJsonObject& object, overlay::Tools& tools)
{
    for (const QString& key : object.keys()) {
        if (key != pointsKey && key != linesKey && key != rectanglesKey && key != circlesKey)
            return QStringLiteral("\"%1\" is none of \"points\", \"lines\", \"rectangles\" and "
                                  "\"circles\"")
                .arg(key);
    }
    for (const QString& wrong : {readKind(object, pointsKey, 2, tools.pointList),
                                 readKind(object, linesKey, 4, tools.lineList),
                                 readKind(object, rectanglesKey, 4, tools.rectList),
                                 readKind(object, circlesKey, 3, tools.circleList)}) {
        if (!wrong.isEmpty())
            return wrong;
    }
    return {};
}

} // namespace

QString readToolFile(const QString& path, overlay::Tools& tools)
{
    constexpr qint64 mostBytes = 10'000'000;
    QByteArray bytes;
    const files::Outcome reading = files::readWhole(path, mostBytes, bytes);
    if (!reading.isGood())
        return reason(reading);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("byte %1: %2").arg(error.offset).arg(error.errorString());
    if (!document.isObject())
        return QStringLiteral("not a JSON object");
    return readTools(document.object(), tools);
}

} // namespace tools
