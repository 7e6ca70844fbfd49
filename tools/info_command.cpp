// SPDX-License-Identifier: MIT
#include "analysis/photograph/photograph_reader.h"
#include "tools/command_line.h"
#include "tools/commands.h"
#include "tools/messages.h"
#include "tools/photograph_run.h"
#include "tools/texts.h"

#include <QJsonArray>
#include <QJsonObject>

using analysis::Parameters;
using analysis::PhotographReader;
using files::Outcome;
using files::Problem;
using overlay::Marker;

namespace tools {
namespace {

QString sourceOf(const PhotographReader& reader)
{
    return reader.isRaw() ? QStringLiteral("raw") : QStringLiteral("gray");
}

QString unitOf(const PhotographReader& reader)
{
    const int fileUnit = reader.photograph().parameters.unit;
    return analysis::letterOf(analysis::shownUnit(std::nullopt, fileUnit, reader.isRaw()).unit);
}

/// What a photograph of another make does not tell is null, as is a mean that is not a number.
QByteArray json(const QString& file, const PhotographReader& reader, bool isAccepted)
{
    const Parameters& p = reader.photograph().parameters;
    const auto ifAccepted = [isAccepted](const QJsonValue& value) {
        return isAccepted ? value : QJsonValue();
    };
    const auto position = [&](const Marker& marker) {
        return ifAccepted(QJsonArray{marker.x, marker.y});
    };
    const QJsonObject object{{QStringLiteral("file"), file},
                             {QStringLiteral("bytes"), reader.readCount()},
                             {QStringLiteral("layout"), reader.modelIndex()},
                             {QStringLiteral("source"), sourceOf(reader)},
                             {QStringLiteral("machineId"), qint64(p.machineId)},
                             {QStringLiteral("accepted"), isAccepted},
                             {QStringLiteral("unit"), unitOf(reader)},
                             {QStringLiteral("maximum"), p.maximum10 / 10.0},
                             {QStringLiteral("minimum"), p.minimum10 / 10.0},
                             {QStringLiteral("centre"), p.centre10 / 10.0},
                             {QStringLiteral("grayMaximum"), p.grayMaximum},
                             {QStringLiteral("grayMinimum"), p.grayMinimum},
                             {QStringLiteral("emissivity"), p.emissivity100 / 100.0},
                             {QStringLiteral("markerA"), position(reader.photograph().markerA)},
                             {QStringLiteral("markerB"), position(reader.photograph().markerB)},
                             {QStringLiteral("markerC"), position(reader.photograph().markerC)},
                             {QStringLiteral("mean"), ifAccepted(reader.photograph().mean)}};
    return jsonLine(object);
}

QByteArray text(const QString& file, const PhotographReader& reader, bool isAccepted)
{
    const Parameters& p = reader.photograph().parameters;
    const QString unit = QStringLiteral(" °") + unitOf(reader);
    const auto tenths = [&unit](qint16 value) {
        return analysis::oneDecimal(value / 10.0) + unit;
    };
    QString text = printable(file) + QLatin1Char('\n');
    const auto line = [&text](const char* title, const QString& value) {
        text += QStringLiteral("  %1 %2\n").arg(QLatin1String(title), -12).arg(value);
    };
    const auto marker = [&line](const char* title, const Marker& position) {
        line(title, QStringLiteral("%1, %2").arg(position.x).arg(position.y));
    };
    line("bytes", QString::number(reader.readCount()));
    line("layout", QString::number(reader.modelIndex()));
    line("source", sourceOf(reader));
    line("machine ID",
         QStringLiteral("%1, %2")
             .arg(p.machineId)
             .arg(isAccepted ? QStringLiteral("accepted") : QStringLiteral("not accepted")));
    line("unit", unit.trimmed());
    line("maximum", tenths(p.maximum10) + QStringLiteral(" at gray %1").arg(p.grayMaximum));
    line("minimum", tenths(p.minimum10) + QStringLiteral(" at gray %1").arg(p.grayMinimum));
    line("centre", tenths(p.centre10));
    line("emissivity", QString::number(p.emissivity100 / 100.0, 'f', 2));
    if (isAccepted) {
        marker("marker A", reader.photograph().markerA);
        marker("marker B", reader.photograph().markerB);
        marker("marker C", reader.photograph().markerC);
        // The raw image has a scale of its own.
        line("mean", analysis::oneDecimal(reader.photograph().mean) +
                         (reader.isRaw() ? QStringLiteral(" °C") : unit));
    }
    return text.toUtf8();
}

} // namespace

int infoCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("info"),
                     QStringLiteral("Tells what stands in photographs, in the degrees of the "
                                    "file."));
    line.add({QStringLiteral("json")}, QStringLiteral("Print a JSON array of objects."));
    if (!line.parse(arguments))
        return line.status();
    const bool asJson = line.isSet(QStringLiteral("json"));
    const std::optional<int> modelIndex = line.modelIndex();
    if (!line.isGood())
        return line.status();

    PhotographRun photographs(line);
    photographs.work = [&](const Entry& entry, PhotographReader& reader) -> Result {
        const Outcome outcome = reader.read(entry.path, modelIndex);
        // Who names the layout wants to see what stands there.
        if (!outcome.isGood() && outcome.problem != Problem::OtherImager)
            return {{}, reason(outcome)};
        return {(asJson ? json : text)(entry.path, reader, outcome.isGood()), {}};
    };
    if (asJson) {
        photographs.before = "[";
        photographs.between = ",\n ";
        photographs.after = "]\n";
    }
    return run(photographs);
}

} // namespace tools
