// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineParser>

#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace tools {

/// What a program ends with.
namespace status {
constexpr int good = 0;
constexpr int someFailed = 1;
constexpr int badUsage = 2;
constexpr int limitPassed = 3;
} // namespace status

/// What a command works on, as its help names it.
struct Operand
{
    QString name;
    QString description;
};

/// The arguments of one command: its own options, and those that all commands on photographs take
/// (layout, folders, jobs, help). Values that make no sense are remembered while options are read,
/// so that a command can read them all and then ask isGood() once.
class CommandLine
{
public:
    /// A command that works on photographs.
    CommandLine(const QString& command, const QString& summary);
    /// A command that works on something else, and takes no option of the others but --help.
    /// `missing` is told when there are not as many operands; of the last there may be more.
    CommandLine(const QString& command, const QString& summary,
                const std::vector<Operand>& operands, const QString& missing);

    /// `valueName` is empty for a switch.
    void add(const QStringList& names, const QString& description, const QString& valueName = {},
             const QString& defaultValue = {});

    /// `arguments` start with the program and the command; options and paths may be mixed after
    /// them. False when the command ends here with
    /// status(): help was asked for and printed, or there are errors and they were.
    bool parse(const QStringList& arguments);

    bool isSet(const QString& option) const { return m_parser.isSet(option); }
    QString value(const QString& option) const { return m_parser.value(option); }
    QStringList values(const QString& option) const { return m_parser.values(option); }

    /// The value's meaning; one of `choices`.
    template<typename T>
    T choice(const QString& option, const std::vector<std::pair<const char*, T>>& choices)
    {
        QStringList names;
        for (const auto& [name, meaning] : choices) {
            if (value(option) == QLatin1String(name))
                return meaning;
            names += QLatin1String(name);
        }
        refuse(QStringLiteral("--%1 is one of %2").arg(option, names.join(QStringLiteral(", "))));
        return choices.front().second;
    }

    /// The value as a whole number; nothing when the option is not given.
    std::optional<int> number(const QString& option, int least, int most);

    /// The value as a number with or without a decimal point, not below `least`; nothing when the
    /// option is not given.
    std::optional<double> real(const QString& option,
                               double least = std::numeric_limits<double>::lowest());

    /// Refuses arguments that give this option no value.
    void require(const QString& option);

    /// Remembers what is wrong with the arguments; the first of several counts.
    void refuse(const QString& error);

    /// Options that make sense with one value of another option only.
    void refuseUnless(bool makesSense, const QStringList& options, const QString& why);

    /// False, after printing it, when something was refused; the command then ends with status().
    bool isGood();
    int status() const { return m_status; }

    QStringList paths() const { return m_parser.positionalArguments(); }
    bool isRecursive() const { return isSet(QStringLiteral("recursive")); }
    /// 0 or 1; nothing for "auto".
    std::optional<int> modelIndex();
    int jobs() const { return m_jobs; }

private:
    QByteArray help() const;

    QString m_command;
    QString m_operands; ///< as the usage line has them
    int m_least;        ///< number of operands
    QString m_missing;
    QCommandLineParser m_parser;
    QString m_error;
    bool m_takesJobs = false;
    int m_jobs = 1;
    int m_status = status::good;
};

} // namespace tools
