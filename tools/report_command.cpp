// SPDX-License-Identifier: MIT
#include "analysis/export/photograph_export.h"
#include "analysis/report/photograph_report.h"
#include "config/configuration_record.h"
#include "config/language.h"
#include "platform/console.h"
#include "resources/resources.h"
#include "tools/commands.h"
#include "tools/measuring_options.h"
#include "tools/messages.h"
#include "tools/photograph_run.h"
#include "tools/target_files.h"

#include <QGuiApplication>
#include <QTranslator>

using analysis::PhotographReader;
using analysis::Unit;

namespace tools {
namespace {

QStringList languageCodes()
{
    QStringList codes;
    for (const config::Language& language : config::languages())
        codes.append(language.code);
    return codes;
}

/// The language that the windows speak.
QString configuredLanguage()
{
    if (!config::exists())
        return QStringLiteral("EN");
    return config::languageOf(config::read().language).code;
}

} // namespace

std::unique_ptr<QCoreApplication> drawingApplication(int& argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", platform::invisiblePlatform());
    return std::make_unique<QGuiApplication>(argc, argv);
}

int reportCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("report"),
                     QStringLiteral("Writes a PDF report of each photograph, as the save button of "
                                    "its window does."));
    addMeasuringOptions(line, QStringLiteral("Measure and draw these tools; see thermaphoto "
                                             "measure --help."));
    line.add({QStringLiteral("language")},
             QStringLiteral("Language of the report. Default: the one that ThermaDesk is set to."),
             languageCodes().join(QLatin1Char('|')), configuredLanguage());
    addTargetOptions(line, {});
    if (!line.parse(arguments))
        return line.status();

    const std::optional<int> modelIndex = line.modelIndex();
    const std::optional<Unit> unit = readUnit(line);
    const TargetRules rules = readTargetRules(line);
    const QString language = line.value(QStringLiteral("language"));
    if (!config::findLanguage(language))
        line.refuse(QStringLiteral("--language is one of %1")
                        .arg(languageCodes().join(QStringLiteral(", "))));
    const overlay::Tools tools = readTools(line);
    if (!line.isGood())
        return line.status();

    PhotographRun photographs(line);
    if (!prepareTargets(line, QStringLiteral("pdf"), photographs.entries))
        return status::someFailed;

    resources::load();
    QTranslator translator;
    if (translator.load(config::languageOf(language).catalogue))
        QCoreApplication::installTranslator(&translator);
    photographs.writesFiles = true;
    photographs.work = [&](const Entry& entry, PhotographReader& reader) {
        const auto pdf = [&] {
            return reportPdf(photographReport(entry.path, reader, unit, tools, language));
        };
        return targetResult(
            analysis::fileOf(entry.path, modelIndex, reader, entry.target, rules.existing, pdf),
            entry.target, rules);
    };
    return run(photographs);
}

} // namespace tools
