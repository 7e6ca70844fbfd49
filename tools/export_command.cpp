// SPDX-License-Identifier: MIT
#include "analysis/export/photograph_export.h"
#include "tools/command_line.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/messages.h"
#include "tools/photograph_run.h"
#include "tools/target_files.h"

using analysis::ExportFormat;
using analysis::ExportOptions;
using analysis::PhotographReader;

namespace tools {
namespace {

void addOptions(CommandLine& line)
{
    line.add(
        {QStringLiteral("format")},
        QStringLiteral("csv: text. tiff: one sample of 32-bit float. npy: NumPy, float32. png: "
                       "the picture in false colour."),
        QStringLiteral("csv|tiff|npy|png"));
    line.add({QStringLiteral("unit")},
             QStringLiteral("Unit of the temperatures. Default: file, the photograph's own."),
             QStringLiteral("C|F|file"), QStringLiteral("file"));
    addTargetOptions(line, QStringLiteral("."));
    line.add({QStringLiteral("separator")},
             QStringLiteral("csv: what stands between two numbers, one character or tab. Default: "
                            "a comma."),
             QStringLiteral("CHARACTER"), QStringLiteral(","));
    line.add({QStringLiteral("decimals")},
             QStringLiteral("csv: digits behind the point. Default: as many as it takes for the "
                            "exact number."),
             QStringLiteral("N"));
    line.add({QStringLiteral("header")},
             QStringLiteral("csv: begin with a line that names unit and size."));
    line.add({QStringLiteral("span")},
             QStringLiteral("png: the two values of the colour bar, 0 … 255 from its hot end. "
                            "Default: 0:255."),
             QStringLiteral("START:END"), QStringLiteral("0:255"));
}

char separatorFrom(CommandLine& line)
{
    const QString text = line.value(QStringLiteral("separator"));
    if (text == QLatin1String("tab") || text == QLatin1String("\\t"))
        return '\t';
    const QChar character = text.size() == 1 ? text.front() : QChar();
    const bool isInNumbers =
        character.isLetterOrNumber() || QStringLiteral("+-.").contains(character);
    if (character == QLatin1Char('\t') ||
        (character >= QLatin1Char(' ') && character <= QLatin1Char('~') && !isInNumbers &&
         character != QLatin1Char('"')))
        return character.toLatin1();
    line.refuse(QStringLiteral("--separator is one character that no number has, or tab"));
    return ',';
}

void readSpan(CommandLine& line, ExportOptions& options)
{
    const QStringList ends = line.value(QStringLiteral("span")).split(QLatin1Char(':'));
    bool isStart = false;
    bool isEnd = false;
    options.startValue = ends.value(0).toInt(&isStart);
    options.endValue = ends.value(1).toInt(&isEnd);
    const auto isOnBar = [](int value) {
        return value >= 0 && value <= 255;
    };
    if (ends.size() != 2 || !isStart || !isEnd || !isOnBar(options.startValue) ||
        !isOnBar(options.endValue))
        line.refuse(QStringLiteral("--span is START:END, two whole numbers from 0 to 255"));
}

ExportOptions readOptions(CommandLine& line)
{
    ExportOptions options;
    line.require(QStringLiteral("format"));
    options.format =
        line.choice<ExportFormat>(QStringLiteral("format"), {{"csv", ExportFormat::Csv},
                                                             {"tiff", ExportFormat::Tiff},
                                                             {"npy", ExportFormat::Npy},
                                                             {"png", ExportFormat::Png}});
    options.modelIndex = line.modelIndex();
    auto units = unitNames();
    units.emplace_back("file", std::nullopt);
    options.unit = line.choice(QStringLiteral("unit"), units);
    options.csv.separator = separatorFrom(line);
    options.csv.decimals =
        line.number(QStringLiteral("decimals"), 0, analysis::CsvOptions::maximumDecimals);
    options.csv.header = line.isSet(QStringLiteral("header"));
    readSpan(line, options);
    line.refuseUnless(
        options.format == ExportFormat::Csv,
        {QStringLiteral("separator"), QStringLiteral("decimals"), QStringLiteral("header")},
        QStringLiteral("goes with --format csv only"));
    line.refuseUnless(options.format == ExportFormat::Png, {QStringLiteral("span")},
                      QStringLiteral("goes with --format png only"));
    return options;
}

} // namespace

int exportCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("export"),
                     QStringLiteral("Writes temperatures or pictures as files for other programs, "
                                    "one for each photograph: 320 rows of 240 columns, top left "
                                    "first."));
    addOptions(line);
    if (!line.parse(arguments))
        return line.status();
    ExportOptions options = readOptions(line);
    const TargetRules rules = readTargetRules(line);
    options.existing = rules.existing;
    if (!line.isGood())
        return line.status();

    PhotographRun photographs(line);
    if (!prepareTargets(line, suffixOf(options.format), photographs.entries))
        return status::someFailed;
    photographs.writesFiles = true;
    photographs.work = [&](const Entry& entry, PhotographReader& reader) {
        return targetResult(exportPhotograph(entry.path, reader, entry.target, options),
                            entry.target, rules);
    };
    return run(photographs);
}

} // namespace tools
