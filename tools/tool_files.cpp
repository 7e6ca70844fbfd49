// SPDX-License-Identifier: MIT
#include "tools/tool_files.h"

#include "files/reading.h"
#include "overlay/tool_file.h"
#include "overlay/tool_rules.h"
#include "tools/messages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using overlay::KindRow;
using overlay::ToolKind;
using overlay::Tools;

namespace tools {
namespace {

enum Column
{
    Name,
    Type,
    X1,
    Y1,
    X2,
    Y2,
    Radius,
    Colour
};

const QStringList titles{QStringLiteral("name"),   QStringLiteral("type"),  QStringLiteral("x1"),
                         QStringLiteral("y1"),     QStringLiteral("x2"),    QStringLiteral("y2"),
                         QStringLiteral("radius"), QStringLiteral("colour")};

/// Where the numbers of a kind stand: two ends as far as there are any, or a centre and a radius.
std::vector<Column> columnsOf(ToolKind kind)
{
    const int count = overlay::rowOf(kind).numbers;
    std::vector<Column> columns{X1, Y1, X2, Y2};
    if (count == 3)
        return {X1, Y1, Radius};
    columns.resize(std::size_t(count));
    return columns;
}

const KindRow* kindNamed(const QString& name)
{
    const auto* row =
        std::find_if(overlay::toolKinds.begin(), overlay::toolKinds.end(),
                     [&](const KindRow& kind) { return name == QLatin1String(kind.name); });
    return row == overlay::toolKinds.end() ? nullptr : row;
}

/// The fields without blanks and quotes around them, as many as there are titles or more.
QStringList fieldsOf(const QString& line, QChar separator)
{
    QStringList fields = line.split(separator);
    for (QString& field : fields) {
        field = field.trimmed();
        if (field.size() >= 2 && field.startsWith(QLatin1Char('"')) &&
            field.endsWith(QLatin1Char('"')))
            field = field.mid(1, field.size() - 2);
    }
    while (fields.size() < titles.size())
        fields.append(QString());
    return fields;
}

/// What separates the titles of the first line; null when it does not have them.
QChar separatorIn(const QString& firstLine)
{
    for (const char separator : {',', ';', '\t'}) {
        if (fieldsOf(firstLine, QLatin1Char(separator)) == titles)
            return QLatin1Char(separator);
    }
    return {};
}

/// One line as a file of its own: there stand the rules for what it may hold.
QString readLine(const QStringList& fields, Tools& tools)
{
    const KindRow* kind = kindNamed(fields.at(Type));
    if (!kind)
        return QStringLiteral("\"%1\" is no type of tool").arg(fields.at(Type));
    QStringList unused = fields;
    for (const Column column : {Name, Type, Colour})
        unused[column].clear();
    QJsonArray numbers;
    for (const Column column : columnsOf(kind->kind)) {
        bool isNumber = false;
        const int number = unused[column].toInt(&isNumber);
        numbers.append(isNumber ? QJsonValue(number) : QJsonValue());
        unused[column].clear();
    }
    const QString left = unused.join(QLatin1Char(' ')).trimmed();
    if (!left.isEmpty())
        return QStringLiteral("\"%1\" is more than a %2 has").arg(left, fields.at(Type));
    const QString& name = fields.at(Name);
    QJsonObject object{{QLatin1String(kind->name) + QLatin1Char('s'), QJsonArray{numbers}},
                       {QStringLiteral("names"), QJsonArray{name}}};
    if (!fields.at(Colour).isEmpty())
        object.insert(QStringLiteral("colours"), QJsonObject{{name, fields.at(Colour)}});
    return toolsFromJson(QJsonDocument(object).toJson(), tools);
}

/// Into number order, which files have. Returns the name that two have, empty if there is none.
QString sort(Tools& tools)
{
    QString twice;
    forEachList(tools, [&](auto& list) {
        const auto isBefore = [](const auto& left, const auto& right) {
            return overlay::numberIn(left.name, left.kind) <
                   overlay::numberIn(right.name, right.kind);
        };
        std::sort(list.begin(), list.end(), isBefore);
        const auto found =
            std::adjacent_find(list.begin(), list.end(), [](const auto& left, const auto& right) {
                return left.name == right.name;
            });
        if (found != list.end())
            twice = found->name;
    });
    return twice;
}

} // namespace

bool isCsv(const QString& path)
{
    return path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

QString readToolFile(const QString& path, Tools& tools)
{
    constexpr qint64 mostBytes = 10'000'000;
    QByteArray bytes;
    const files::Outcome reading = files::readWhole(path, mostBytes, bytes);
    if (!reading.isGood())
        return reason(reading);
    return isCsv(path) ? toolsFromCsv(bytes, tools) : toolsFromJson(bytes, tools);
}

QByteArray toolsToCsv(const Tools& tools)
{
    QString csv = titles.join(QLatin1Char(',')) + QLatin1Char('\n');
    forEachTool(tools, [&](const auto& tool) {
        QStringList fields = fieldsOf(tool.name, QLatin1Char(','));
        fields[Type] = QLatin1String(overlay::rowOf(tool.kind).name);
        fields[Colour] = overlay::hexOf(tool.colour);
        const overlay::ToolNumbers numbers = numbersOf(tool);
        std::size_t at = 0;
        for (const Column column : columnsOf(tool.kind))
            fields[column] = QString::number(numbers.at(at++));
        csv += fields.join(QLatin1Char(',')) + QLatin1Char('\n');
    });
    return csv.toUtf8();
}

QString toolsFromCsv(const QByteArray& csv, Tools& tools)
{
    QString text = QString::fromUtf8(csv);
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    const QStringList lines = text.split(QLatin1Char('\n'));
    const QChar separator = separatorIn(lines.first());
    if (separator.isNull())
        return QStringLiteral("line 1 is not \"%1\"").arg(titles.join(QLatin1Char(',')));
    Tools read;
    for (int i = 1; i < lines.size(); ++i) {
        const QStringList fields = fieldsOf(lines.at(i), separator);
        if (fields.join(QString()).isEmpty())
            continue;
        Tools one;
        const QString wrong = fields.size() > titles.size()
                                  ? QStringLiteral("there are more fields than titles")
                                  : readLine(fields, one);
        if (!wrong.isEmpty())
            return QStringLiteral("line %1: %2").arg(i + 1).arg(wrong);
        forEachList(read, [&](auto& list) {
            list += std::get<const std::decay_t<decltype(list)>&>(listsOf(std::as_const(one)));
        });
    }
    const QString twice = sort(read);
    if (!twice.isEmpty())
        return QStringLiteral("there are two tools \"%1\"").arg(twice);
    tools = read;
    return {};
}

} // namespace tools
