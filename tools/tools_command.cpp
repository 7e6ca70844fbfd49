// SPDX-License-Identifier: MIT
#include "files/whole_file.h"
#include "overlay/tool_file.h"
#include "overlay/tool_rules.h"
#include "tools/command_line.h"
#include "tools/commands.h"
#include "tools/messages.h"
#include "tools/texts.h"
#include "tools/tool_files.h"

#include <QPoint>

#include <algorithm>

using overlay::Tools;

namespace tools {
namespace {

constexpr const char* names = "check, print, convert, combine or transform";

QByteArray checked(const QString& file, const Tools& tools)
{
    return QStringLiteral("%1: good, tools: %2\n").arg(file).arg(countOf(tools)).toUtf8();
}

QByteArray table(const QString& file, const Tools& tools)
{
    QString lines = file + QLatin1Char('\n');
    const auto line = [&](const QString& name, const QString& type, const QString& numbers,
                          const QString& colour) {
        lines += QStringLiteral("%1 %2 %3 %4\n")
                     .arg(name, -5)
                     .arg(type, -9)
                     .arg(numbers, -18)
                     .arg(colour);
    };
    line(QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("numbers"),
         QStringLiteral("colour"));
    forEachTool(tools, [&](const auto& tool) {
        const overlay::KindRow& kind = overlay::rowOf(tool.kind);
        const overlay::ToolNumbers numbers = numbersOf(tool);
        QStringList texts;
        for (int i = 0; i < kind.numbers; ++i)
            texts.append(QString::number(numbers.at(std::size_t(i))));
        line(tool.name, QLatin1String(kind.name), texts.join(QLatin1String(", ")),
             overlay::hexOf(tool.colour));
    });
    return lines.toUtf8();
}

struct Action
{
    const char* name;
    QByteArray (*text)(const QString&, const Tools&); ///< of each file; none: a file is made
    bool takesMany;                                   ///< files
    bool transforms = false;
    bool converts = false;
};

constexpr Action actions[] = {{"check", checked, true},
                              {"print", table, true},
                              {"convert", nullptr, false, false, true},
                              {"combine", nullptr, true},
                              {"transform", nullptr, false, true}};

/// The row of the action named first; of an unknown one, which is refused, the first row.
const Action& readAction(CommandLine& line)
{
    const QString name = line.paths().first();
    for (const Action& action : actions) {
        if (name == QLatin1String(action.name))
            return action;
    }
    line.refuse(QStringLiteral("%1 is none of %2").arg(name, QLatin1String(names)));
    return actions[0];
}

/// What --mirror and --move ask for; the picture is mirrored first.
struct Transformation
{
    bool mirrors = false;
    QPoint step;

    Tools operator()(Tools tools) const
    {
        forEachTool(tools, [&](auto& tool) {
            overlay::ToolNumbers numbers = numbersOf(tool);
            for (std::size_t x = 0; x + 1 < std::size_t(overlay::rowOf(tool.kind).numbers);
                 x += 2) {
                // The right edge, one past the last pixel, goes to the first.
                if (mirrors)
                    numbers.at(x) = std::max(overlay::imageColumns - 1 - numbers.at(x), 0);
                numbers.at(x) += step.x();
                numbers.at(x + 1) += step.y();
            }
            setNumbers(tool, numbers);
        });
        return tools;
    }
};

Transformation readTransformation(CommandLine& line, const Action& action)
{
    const QString mirror = QStringLiteral("mirror");
    const QString move = QStringLiteral("move");
    line.refuseUnless(action.transforms, {mirror, move}, QStringLiteral("is for transform"));
    if (action.transforms && !line.isSet(mirror) && !line.isSet(move))
        line.refuse(QStringLiteral("transform takes --mirror or --move"));
    Transformation read{line.isSet(mirror), {}};
    if (!line.isSet(move))
        return read;
    // Further, nothing is left of any tool.
    constexpr int most = overlay::imageRows;
    const QStringList numbers = line.value(move).split(QLatin1Char(','));
    bool isX = false;
    bool isY = false;
    read.step = {numbers.value(0).toInt(&isX), numbers.value(1).toInt(&isY)};
    const auto isNear = [](int pixels) {
        return pixels >= -most && pixels <= most;
    };
    if (numbers.size() != 2 || !isX || !isY || !isNear(read.step.x()) || !isNear(read.step.y()))
        line.refuse(QStringLiteral("--move is two whole numbers, as in 5,-3, to %1").arg(most));
    return read;
}

/// Checks or prints each file, and goes on behind a wrong one.
int show(const QStringList& files, QByteArray (*text)(const QString&, const Tools&))
{
    int status = status::good;
    bool canPrint = true;
    for (const QString& file : files) {
        Tools tools;
        const QString wrong = readToolFile(file, tools);
        if (wrong.isEmpty()) {
            canPrint = canPrint && print(text(printable(file), tools));
            continue;
        }
        printError(file + QStringLiteral(": ") + wrong);
        status = status::someFailed;
    }
    if (canPrint && flushOutput())
        return status;
    printOutputError();
    return status::someFailed;
}

/// The tools of all files, those of the first with their names; false, after error lines, when one
/// is wrong.
bool readAll(const QStringList& files, Tools& tools)
{
    bool areGood = true;
    for (const QString& file : files) {
        Tools more;
        const QString wrong = readToolFile(file, more);
        if (!wrong.isEmpty())
            printError(file + QStringLiteral(": ") + wrong);
        areGood &= wrong.isEmpty();
        if (&file == &files.first())
            tools = more;
        else
            add(tools, more);
    }
    return areGood;
}

int write(const CommandLine& line, const QByteArray& bytes)
{
    const QString target = line.value(QStringLiteral("output"));
    if (!line.isSet(QStringLiteral("output"))) {
        if (print(bytes) && flushOutput())
            return status::good;
        printOutputError();
        return status::someFailed;
    }
    const auto existing =
        line.isSet(QStringLiteral("force")) ? files::Existing::Replace : files::Existing::Refuse;
    const files::Outcome outcome = files::writeWholeFile(target, bytes, existing);
    if (outcome.isGood())
        return status::good;
    printError(target + QLatin1Char(' ') + reason(outcome));
    return status::someFailed;
}

void addOptions(CommandLine& line)
{
    line.add({QStringLiteral("mirror")},
             QStringLiteral("transform: as if the picture were mirrored, left to right."));
    line.add({QStringLiteral("move")},
             QStringLiteral("transform: so many pixels to the right and down, after --mirror."),
             QStringLiteral("DX,DY"));
    line.add({QStringLiteral("format")},
             QStringLiteral("What to write. Default: json; of convert: what the file is not."),
             QStringLiteral("json|csv"));
    line.add({QStringLiteral("o"), QStringLiteral("output")},
             QStringLiteral("The file to write. Default: the standard output."),
             QStringLiteral("FILE"));
    line.add({QStringLiteral("f"), QStringLiteral("force")},
             QStringLiteral("Replace the file if it is there already."));
}

using Writer = QByteArray (*)(const Tools&);

Writer readWriter(CommandLine& line, const Action& action, const QString& file)
{
    const QString format = QStringLiteral("format");
    line.refuseUnless(!action.text, {format, QStringLiteral("output"), QStringLiteral("force")},
                      QStringLiteral("is for convert, combine and transform"));
    if (line.isSet(format))
        return line.choice<Writer>(format, {{"json", overlay::toolsToJson}, {"csv", toolsToCsv}});
    return action.converts && !isCsv(file) ? toolsToCsv : overlay::toolsToJson;
}

} // namespace

int toolsCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("tools"),
        QStringLiteral("Works on files of measurement tools, as --tools takes them and the window "
                       "saves them: JSON, or a table (*.csv)."),
        {{QStringLiteral("ACTION"),
          QStringLiteral("check: tell what is wrong with files; print: show the tools; convert: "
                         "make a table of JSON, or JSON of a table; combine: put the tools of "
                         "several files together; transform: mirror or move them.")},
         {QStringLiteral("FILE"), QStringLiteral("A file of tools.")}},
        QStringLiteral("an action (%1) and a file must be named").arg(QLatin1String(names)));
    addOptions(line);
    if (!line.parse(arguments))
        return line.status();

    const Action& action = readAction(line);
    const QStringList files = line.paths().mid(1);
    const Transformation transformed = readTransformation(line, action);
    const Writer written = readWriter(line, action, files.first());
    if (!action.takesMany && files.size() > 1)
        line.refuse(QStringLiteral("%1 takes one file").arg(QLatin1String(action.name)));
    if (!line.isGood())
        return line.status();

    if (action.text)
        return show(files, action.text);
    Tools tools;
    if (!readAll(files, tools))
        return status::someFailed;
    tools = transformed(tools);
    const QString wrong = wrongWith(tools);
    if (wrong.isEmpty())
        return write(line, written(tools));
    printError(QStringLiteral("%1: afterwards, %2").arg(files.first(), wrong));
    return status::someFailed;
}

} // namespace tools
