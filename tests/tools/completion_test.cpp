// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/thermaphoto.h"

#include <QRegularExpression>

using testing::Ended;
using testing::Folder;
using testing::thermaphoto;

namespace {

/// Commands of each shell: take in the completions; make `thermaphoto` note its arguments instead
/// of running; tell what is offered behind "thermaphoto COMMAND $offered".
struct Shell
{
    const char* name;
    const char* start; ///< for a person, without anybody's settings
    const char* load;
    const char* note;
    const char* offer;
};

const std::vector<Shell> shells{
    {"bash", "bash --norc -i", "source $completions/thermaphoto.bash",
     R"(thermaphoto() { printf "%s\n" "$@" > noted; })",
     R"(bash -c 'source $completions/thermaphoto.bash; COMP_WORDS=(thermaphoto "$@");
        COMP_CWORD=$#; _thermaphoto; printf "%s\n" "${COMPREPLY[@]}"' bash )"},
    {"zsh", "zsh -f -i", "fpath=($completions $fpath); autoload -Uz compinit; compinit -u -D",
     R"(thermaphoto() { printf "%s\n" "$@" > noted; })",
     // What zsh would be given to choose from.
     R"(zsh -fc 'fpath=($completions $fpath); autoload -Uz compinit _thermaphoto; compinit -u -D;
        function _arguments { print -rl -- "$@" }; words=(thermaphoto "$@"); CURRENT=$(($# + 1));
        _thermaphoto' zsh )"},
    {"fish", "fish -N -i", "source $completions/thermaphoto.fish",
     R"(function thermaphoto; printf "%s\n" $argv > noted; end)",
     R"(fish -N -c 'source $completions/thermaphoto.fish; complete -C "thermaphoto $argv"' )"},
};

/// As testing::shell(), with $completions.
Ended run(const QString& command, const Folder& folder)
{
    return testing::shell(QStringLiteral("export completions='" COMPLETIONS "' HOME=\"$PWD\"; ") +
                              command,
                          folder.path());
}

QStringList longOptions(const QByteArray& text)
{
    QStringList options;
    auto match = QRegularExpression("--[a-z-]{2,}").globalMatch(QString::fromUtf8(text));
    while (match.hasNext())
        options.append(match.next().captured());
    options.removeDuplicates();
    options.sort();
    return options;
}

/// The lines of a command's help that begin with an option.
QList<QByteArray> optionLines(const QString& command)
{
    QList<QByteArray> lines;
    for (const QByteArray& line : thermaphoto({command, "--help"}).output.split('\n')) {
        if (line.startsWith("  -"))
            lines.append(line.left(line.indexOf("  ", 2)));
    }
    return lines;
}

const QStringList commands{"info",  "export", "measure", "profile", "histogram",
                           "spots", "find",   "report",  "tools"};

} // namespace

/// What the Tab key gives in bash, zsh and fish.
class CompletionTest : public QObject
{
    Q_OBJECT

private slots:
    void typed_data()
    {
        QTest::addColumn<int>("shell");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("arguments");
        const auto row = [](const char* name, const char* keys, const char* arguments) {
            for (std::size_t i = 0; i < shells.size(); ++i)
                QTest::addRow("%s in %s", name, shells[i].name)
                    << int(i) << QString(keys) << QString(arguments);
        };
        row("export", "ex\t--form\tcs\tI\t", "export --format csv IR_1.bmp");
        row("tools and unit", "me\t--to\tjo\t--un\tF\tI\t",
            "measure --tools joints.json --unit F IR_1.bmp");
        row("folders", "rep\t--lang\tK\t--skip\t-o ou\t IR\t",
            "report --language KO --skip-existing -o out IR_1.bmp");
        row("in capitals, further down", "in\t--js\tsub/\t", "info --json sub/IR_2.BMP");
        row("with an equals sign", "info --layout=au\t I\t", "info --layout auto IR_1.bmp");
        row("actions and files of tools", "to\tcomb\tjo\tlim\t",
            "tools combine joints.json limits.csv");
        row("a histogram", "his\t--too\tjo\t--form\tnd\tI\t",
            "histogram --tools joints.json --format ndjson IR_1.bmp");
        row("finding", "fi\t--ab\t80 I\t", "find --above 80 IR_1.bmp");
        row("help", "he\tmea\t", "help measure");
    }
    /// A person types this at a terminal, and the program is started with that.
    void typed()
    {
        QFETCH(int, shell);
        QFETCH(QString, keys);
        QFETCH(QString, arguments);
        const Shell& used = shells[std::size_t(shell)];
        const Folder folder;
        for (const char* name :
             {"IR_1.bmp", "joints.json", "limits.csv", "sub/IR_2.BMP", "out/x", "notes.txt"})
            folder.write(name, {});
        folder.write("keys", QStringLiteral("%1\n%2\nthermaphoto %3\nexit\n")
                                 .arg(used.load, used.note, keys)
                                 .toUtf8());
        const Ended ended =
            run(QStringLiteral("TERM=xterm timeout 60 script -qec '%1' /dev/null < keys")
                    .arg(used.start),
                folder);
        // Some shells write "--format=csv" for "--format csv", and folders without their slash.
        QByteArray noted = folder.read("noted").trimmed();
        noted.replace('\n', ' ').replace('=', ' ').replace("out/", "out");
        QVERIFY2(noted == arguments.toUtf8(), (noted + '\n' + ended.output).constData());
    }

    void everyOption_data()
    {
        QTest::addColumn<int>("shell");
        QTest::addColumn<QString>("command");
        for (std::size_t i = 0; i < shells.size(); ++i) {
            for (const QString& command : commands)
                QTest::addRow("%s in %s", qPrintable(command), shells[i].name) << int(i) << command;
        }
    }
    /// What is offered is what the command's help tells of, no less and no more.
    void everyOption()
    {
        QFETCH(int, shell);
        QFETCH(QString, command);
        const Folder folder;
        const Ended ended = run(shells[std::size_t(shell)].offer + command + " --", folder);
        QCOMPARE(longOptions(ended.output), longOptions(optionLines(command).join('\n')));
    }

    void everyChoice_data() { everyOption_data(); }
    /// "<csv|json>" in the help are the words that are offered.
    void everyChoice()
    {
        QFETCH(int, shell);
        QFETCH(QString, command);
        const Folder folder;
        int found = 0;
        for (const QByteArray& line : optionLines(command)) {
            const auto match = QRegularExpression("(--[a-z]+) <(\\w+(?:\\|\\w+)+)>")
                                   .match(QString::fromUtf8(line));
            if (!match.hasMatch())
                continue;
            ++found;
            QStringList expected = match.captured(2).split('|');
            expected.sort();
            const QString option = match.captured(1);
            const Ended ended =
                run(shells[std::size_t(shell)].offer + command + ' ' + option + " ''", folder);
            QStringList offered;
            if (QByteArray(shells[std::size_t(shell)].name) == "zsh") {
                const auto words = QRegularExpression("^" + option + "=\\[.*\\((.*)\\)$",
                                                      QRegularExpression::MultilineOption)
                                       .match(QString::fromUtf8(ended.output));
                offered = words.captured(1).split(' ');
            } else {
                for (const QByteArray& offer : ended.output.trimmed().split('\n'))
                    offered.append(QString::fromUtf8(offer.split('\t').first()));
            }
            offered.sort();
            QCOMPARE(offered, expected);
        }
        QVERIFY(found > 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<CompletionTest>(argc, argv);
}

#include "completion_test.moc"
