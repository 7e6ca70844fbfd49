// SPDX-License-Identifier: MIT
#include "tools/target_files.h"

#include "analysis/export/photograph_export.h"
#include "files/paths.h"
#include "tools/command_line.h"
#include "tools/messages.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

using files::Existing;
using files::Outcome;
using files::Problem;

namespace tools {
namespace {

/// Empty when there is no such file.
QString canonical(const QString& path)
{
    return QFileInfo(files::localPath(path)).canonicalFilePath();
}

/// Photographs that have the suffix of what is written: the only ones in danger.
QSet<QString> photographsWithSuffix(const std::vector<Entry>& entries, const QString& suffix)
{
    QSet<QString> paths;
    for (const Entry& entry : entries) {
        if (entry.path.endsWith(QLatin1Char('.') + suffix))
            paths.insert(canonical(entry.path));
    }
    return paths;
}

QString cannotBeMade(const QString& folder, const Outcome& outcome)
{
    return QStringLiteral("%1: this folder cannot be made: %2").arg(folder, outcome.detail);
}

} // namespace

void addTargetOptions(CommandLine& line, const QString& defaultFolder)
{
    const QString folder = QStringLiteral("The folder to write to; made if it is not there.");
    line.add({QStringLiteral("o"), QStringLiteral("output")},
             defaultFolder.isEmpty() ? folder
                                     : folder + QStringLiteral(" Default: the current one."),
             QStringLiteral("DIR"), defaultFolder);
    line.add({QStringLiteral("f"), QStringLiteral("force")},
             QStringLiteral("Replace files that are there already."));
    line.add(
        {QStringLiteral("skip-existing")},
        QStringLiteral("Pass over photographs whose files are there already, without a word."));
}

TargetRules readTargetRules(CommandLine& line)
{
    line.require(QStringLiteral("output"));
    TargetRules rules;
    if (line.isSet(QStringLiteral("force")))
        rules.existing = Existing::Replace;
    rules.skipsExisting = line.isSet(QStringLiteral("skip-existing"));
    line.refuseUnless(rules.existing == Existing::Refuse, {QStringLiteral("skip-existing")},
                      QStringLiteral("does not go with --force"));
    return rules;
}

bool prepareTargets(const CommandLine& line, const QString& suffix, std::vector<Entry>& entries)
{
    const QString output = line.value(QStringLiteral("output"));
    const Outcome made = files::makeFolder(output);
    if (!made.isGood()) {
        printError(cannotBeMade(output, made));
        return false;
    }
    const QSet<QString> photographs = photographsWithSuffix(entries, suffix);
    QHash<QString, QString> photographOf;
    QHash<QString, Outcome> folders;
    for (Entry& entry : entries) {
        const QString folder =
            entry.subfolder.isEmpty() ? output : files::pathIn(output, entry.subfolder);
        entry.target = files::pathIn(folder, analysis::exportName(entry.path, suffix));
        if (!entry.failure.isEmpty())
            continue;
        if (!folders.contains(folder))
            folders.insert(folder, files::makeFolder(folder));
        const QString earlier = photographOf.value(entry.target);
        if (!earlier.isEmpty())
            entry.failure = QStringLiteral("%1 is made of %2 already").arg(entry.target, earlier);
        else if (photographs.contains(canonical(entry.target)))
            entry.failure = QStringLiteral("%1 is a photograph itself").arg(entry.target);
        else if (!folders[folder].isGood())
            entry.failure = cannotBeMade(folder, folders[folder]);
        else
            photographOf.insert(entry.target, entry.path);
    }
    return true;
}

Result targetResult(const Outcome& outcome, const QString& target, const TargetRules& rules)
{
    if (outcome.problem == Problem::AlreadyThere && rules.skipsExisting)
        return {{}, {}, true};
    const bool isAboutTarget =
        outcome.problem == Problem::AlreadyThere || outcome.problem == Problem::CannotWrite;
    return {{}, (isAboutTarget ? target + QLatin1Char(' ') : QString()) + reason(outcome)};
}

} // namespace tools
