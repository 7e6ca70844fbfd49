// SPDX-License-Identifier: MIT
#include "tools/command_line.h"

#include "analysis/photograph/layouts.h"
#include "tools/messages.h"

#include <QThread>

#include <cmath>

namespace tools {

CommandLine::CommandLine(const QString& command, const QString& summary)
    : CommandLine(
          command, summary,
          {{QStringLiteral("PATH"), QStringLiteral("A photograph, or a folder of them (*.bmp).")}},
          QStringLiteral("no photographs are named"))
{
    add({QStringLiteral("layout")},
        QStringLiteral("File layout: 0, 1, or auto (default): the one in which the machine ID of a "
                       "known imager stands."),
        QStringLiteral("0|1|auto"), QStringLiteral("auto"));
    add({QStringLiteral("r"), QStringLiteral("recursive")},
        QStringLiteral("Take the sub-folders of folders, too."));
    add({QStringLiteral("j"), QStringLiteral("jobs")},
        QStringLiteral("Photographs worked on at the same time. Default: one for each core."),
        QStringLiteral("N"));
    m_takesJobs = true;
}

CommandLine::CommandLine(const QString& command, const QString& summary,
                         const std::vector<Operand>& operands, const QString& missing)
    : m_command(command), m_least(int(operands.size())), m_missing(missing)
{
    m_parser.setApplicationDescription(summary);
    for (const Operand& operand : operands) {
        m_operands += QLatin1Char(' ') + operand.name;
        m_parser.addPositionalArgument(operand.name, operand.description);
    }
    add({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
}

void CommandLine::add(const QStringList& names, const QString& description,
                      const QString& valueName, const QString& defaultValue)
{
    m_parser.addOption({names, description, valueName, defaultValue});
}

bool CommandLine::parse(const QStringList& arguments)
{
    QStringList own = arguments;
    own.removeAt(1);
    if (!m_parser.parse(own))
        refuse(m_parser.errorText());
    else if (isSet(QStringLiteral("help"))) {
        m_status = print(help()) && flushOutput() ? status::good : status::someFailed;
        return false;
    } else if (paths().size() < m_least)
        refuse(m_missing);
    constexpr int mostJobs = 1024;
    if (m_takesJobs)
        m_jobs = number(QStringLiteral("jobs"), 1, mostJobs).value_or(QThread::idealThreadCount());
    return isGood();
}

std::optional<int> CommandLine::number(const QString& option, int least, int most)
{
    if (!isSet(option))
        return std::nullopt;
    bool isNumber = false;
    const int number = value(option).toInt(&isNumber);
    if (isNumber && number >= least && number <= most)
        return number;
    refuse(QStringLiteral("--%1 is a whole number from %2 to %3").arg(option).arg(least).arg(most));
    return std::nullopt;
}

std::optional<double> CommandLine::real(const QString& option, double least)
{
    if (!isSet(option))
        return std::nullopt;
    bool isNumber = false;
    const double number = value(option).toDouble(&isNumber);
    if (isNumber && std::isfinite(number) && number >= least)
        return number;
    const bool isLimited = least > std::numeric_limits<double>::lowest();
    refuse(QStringLiteral("--%1 is a number%2")
               .arg(option, isLimited ? QStringLiteral(" from %1").arg(least) : QString()));
    return std::nullopt;
}

void CommandLine::require(const QString& option)
{
    if (value(option).isEmpty())
        refuse(QStringLiteral("--%1 is missing").arg(option));
}

/// Qt's text knows of no commands: the first line is ours.
QByteArray CommandLine::help() const
{
    const QString text = m_parser.helpText();
    const QString usage =
        QStringLiteral("Usage: thermaphoto %1 [options]%2…").arg(m_command, m_operands);
    return (usage + text.mid(text.indexOf(QLatin1Char('\n')))).toUtf8();
}

void CommandLine::refuse(const QString& error)
{
    if (m_error.isEmpty())
        m_error = error;
}

void CommandLine::refuseUnless(bool makesSense, const QStringList& options, const QString& why)
{
    for (const QString& option : options) {
        if (!makesSense && isSet(option))
            refuse(QStringLiteral("--%1 %2").arg(option, why));
    }
}

bool CommandLine::isGood()
{
    if (m_error.isEmpty())
        return true;
    printError(QStringLiteral("%1: %2 (see thermaphoto %1 --help)").arg(m_command, m_error));
    m_status = status::badUsage;
    return false;
}

std::optional<int> CommandLine::modelIndex()
{
    std::vector<std::pair<const char*, std::optional<int>>> names{{"auto", std::nullopt}};
    for (const auto& layout : analysis::format::layouts)
        names.emplace_back(layout.name, layout.modelIndex);
    return choice(QStringLiteral("layout"), names);
}

} // namespace tools
