// SPDX-License-Identifier: MIT
#include "platform/console.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/photograph_run.h"
#include "tools/texts.h"

#include <algorithm>

using analysis::Area;
using analysis::asReading;
using analysis::PhotographReader;
using analysis::Reading;

namespace tools {
namespace {

/// What a program expects that searches: 2 says that the arguments made no sense as well.
namespace found {
constexpr int some = 0;
constexpr int none = 1;
constexpr int someFailed = 2;
} // namespace found

struct Wanted
{
    Measuring measuring;
    std::optional<double> above;
    std::optional<double> below;

    bool isIn(const Area& area) const
    {
        return std::any_of(area.readings.begin(), area.readings.end(), [this](const Reading& one) {
            return one.isNumber() && (!above || one.value > asReading(*above)) &&
                   (!below || one.value < asReading(*below));
        });
    }
};

void addOptions(CommandLine& line)
{
    addMeasuringOptions(line,
                        QStringLiteral("Where to look: under any of these tools; in the whole "
                                       "picture by default. See thermaphoto measure --help."));
    addCorrectionOptions(line);
    line.add({QStringLiteral("above")}, QStringLiteral("A pixel must be hotter than this."),
             QStringLiteral("TEMPERATURE"));
    line.add({QStringLiteral("below")},
             QStringLiteral("A pixel must be colder than this; with --above, the same pixel."),
             QStringLiteral("TEMPERATURE"));
    line.add({QStringLiteral("null")},
             QStringLiteral("End each name with a zero byte instead of a line end, as xargs -0 "
                            "takes them."));
}

Wanted readWanted(CommandLine& line)
{
    Wanted wanted;
    wanted.measuring = readMeasuring(line);
    wanted.above = line.real(QStringLiteral("above"));
    wanted.below = line.real(QStringLiteral("below"));
    if (!line.isSet(QStringLiteral("above")) && !line.isSet(QStringLiteral("below")))
        line.refuse(QStringLiteral("--above or --below is missing"));
    if (wanted.above && wanted.below && *wanted.above >= *wanted.below)
        line.refuse(QStringLiteral("--above is less than --below where both are given"));
    return wanted;
}

} // namespace

int findCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("find"),
                     QStringLiteral("Prints the names of photographs in which a pixel is hotter or "
                                    "colder than something. Ends with 0 when there is one, 1 when "
                                    "there is none, 2 when something failed."));
    addOptions(line);
    if (!line.parse(arguments))
        return line.status();
    const Wanted wanted = readWanted(line);
    if (!line.isGood())
        return line.status();

    const char end = line.isSet(QStringLiteral("null")) ? '\0' : '\n';
    const bool isShown = end == '\n' && platform::isTerminal(stdout);
    PhotographRun photographs(line);
    photographs.status = [](bool someFailed, bool someFound) {
        if (someFailed)
            return found::someFailed;
        return someFound ? found::some : found::none;
    };
    photographs.work = [&](const Entry& entry, PhotographReader& reader) {
        return measured(entry, reader, wanted.measuring, [&](const MeasuredPhotograph& photograph) {
            const std::vector<Area> areas = photograph.areas(wanted.measuring);
            Result result;
            result.isFound = std::any_of(areas.begin(), areas.end(),
                                         [&](const Area& area) { return wanted.isIn(area); });
            if (result.isFound)
                result.output = (isShown ? printable(entry.path) : entry.path).toUtf8() + end;
            return result;
        });
    };
    return run(photographs);
}

} // namespace tools
