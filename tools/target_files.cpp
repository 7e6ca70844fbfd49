#include "tools/target_files.h"

#include "analysis/photograph_export.h"
#include "tools/command_line.h"
#include "tools/messages.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

using files::Outcome;
using files::Problem;

namespace tools {
namespace {

/// Photographs that have the suffix of what is written: the only ones in danger.
QSet<QString> photographsWithSuffix(const std::vector<Entry>& entries, const QString& suffix)
{
    QSet<QString> paths;
    for (const Entry& entry : entries) {
        if (entry.path.endsWith(QLatin1Char('.') + suffix))
            paths.insert(QFileInfo(entry.path).canonicalFilePath());
    }
    return paths;
}

} // namespace

void addTargetOptions(CommandLine& line)
{
    line.add({QStringLiteral("o"), QStringLiteral("output")},
             QStringLiteral("The folder to write to; made if it is not there. Default: the current "
                            "one."),
             QStringLiteral("DIR"), QStringLiteral("."));
    line.add({QStringLiteral("f"), QStringLiteral("force")},
             QStringLiteral("Replace files that are there already."));
}

files::Existing existing(const CommandLine& line)
{
    return line.isSet(QStringLiteral("force")) ? files::Existing::Replace : files::Existing::Refuse;
}

std::optional<QStringList> prepareTargets(const CommandLine& line, const QString& suffix,
                                          std::vector<Entry>& entries)
{
    const QString output = line.value(QStringLiteral("output"));
    if (!QDir().mkpath(output)) {
        printError(QStringLiteral("%1: this folder cannot be made").arg(output));
        return std::nullopt;
    }
    const QSet<QString> photographs = photographsWithSuffix(entries, suffix);
    QHash<QString, QString> photographOf;
    QSet<QString> made{QString()};
    QStringList targets;
    for (Entry& entry : entries) {
        const QDir folder(entry.subfolder.isEmpty() ? output
                                                    : output + QLatin1Char('/') + entry.subfolder);
        const QString target = folder.filePath(analysis::exportName(entry.path, suffix));
        targets.append(target);
        if (!entry.failure.isEmpty())
            continue;
        const auto earlier = photographOf.constFind(target);
        if (earlier != photographOf.constEnd())
            entry.failure = QStringLiteral("%1 is made of %2 already").arg(target, *earlier);
        else if (!photographs.isEmpty() &&
                 photographs.contains(QFileInfo(target).canonicalFilePath()))
            entry.failure = QStringLiteral("%1 is a photograph itself").arg(target);
        else if (!made.contains(entry.subfolder) && !folder.mkpath(QStringLiteral(".")))
            entry.failure = QStringLiteral("%1: this folder cannot be made").arg(folder.path());
        else {
            made.insert(entry.subfolder);
            photographOf.insert(target, entry.path);
        }
    }
    return targets;
}

QString targetReason(const Outcome& outcome, const QString& target)
{
    const bool isAboutTarget =
        outcome.problem == Problem::AlreadyThere || outcome.problem == Problem::CannotWrite;
    return (isAboutTarget ? target + QLatin1Char(' ') : QString()) + reason(outcome);
}

} // namespace tools
