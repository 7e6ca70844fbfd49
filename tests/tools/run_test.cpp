#include "tests/analysis/photograph_writer.h"
#include "tests/support/test_run.h"
#include "tests/tools/thermaphoto.h"

#include <QJsonObject>

#include <csignal>
#include <sys/ioctl.h>
#include <sys/stat.h>

using testing::Ended;
using testing::Folder;
using testing::Shot;
using testing::thermaphoto;

namespace {

QByteArray photograph()
{
    Shot shot;
    shot.gray = [](int x, int y) {
        return (x * y) % 256;
    };
    return photographBytes(shot);
}

QStringList filesOf(const Ended& ended)
{
    QStringList files;
    for (const QJsonValue value : ended.json())
        files.append(value[QStringLiteral("file")].toString());
    return files;
}

/// Whether a process still waits for a signal, as the system tells.
bool catches(qint64 process, int signal)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = status.readAll();
    const QByteArray mask = text.mid(text.indexOf("SigCgt:") + 7, 20).trimmed().left(16);
    return (mask.toULongLong(nullptr, 16) >> (signal - 1) & 1) != 0;
}

/// An export that waits: nobody reads its error output, and every second photograph has more to
/// complain about than a pipe holds. By then others are written, and some are begun.
class Stalled : public Folder
{
public:
    /// `shellWords` come before the program in the shell.
    explicit Stalled(const QString& shellWords)
    {
        const QString good = write(QStringLiteral("good"), photograph());
        QStringList names;
        for (int i = 0; i < pairs; ++i) {
            const QString number = QString::number(i);
            names.append(write(number + QString(200, QLatin1Char('x')), "broken"));
            names.append(*this / number);
            QFile::link(good, names.last());
        }
        mkfifo(qPrintable(*this / QStringLiteral("errors")), 0600);
        process.setProcessEnvironment(testing::bareEnvironment());
        process.setWorkingDirectory(path());
        const QString command =
            shellWords + QStringLiteral(R"(exec "$thermaphoto" export --format npy --jobs 2 )"
                                        R"(-o out "$@" 2> errors)");
        process.start(QStringLiteral("sh"), QStringList{"-c", command, "sh"} + names);
        // Opening one end of a pipe waits for the other: the program starts now.
        reader.setFileName(*this / QStringLiteral("errors"));
        isWaiting = reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
                    QTest::qWaitFor([this] { return unread() > 60000; }, 60000);
    }
    ~Stalled()
    {
        process.kill();
        process.waitForFinished();
    }
    Stalled(const Stalled&) = delete;
    Stalled& operator=(const Stalled&) = delete;

    /// Reads the error output until the program has ended.
    QList<QByteArray> goOn()
    {
        QList<QByteArray> lines = reader.readAll().trimmed().split('\n');
        process.waitForFinished();
        return lines;
    }

    QStringList written() const { return files().filter(QStringLiteral("out/")); }

    static constexpr int pairs = 300;
    QProcess process;
    bool isWaiting = false;

private:
    int unread() const
    {
        int bytes = 0;
        return ioctl(reader.handle(), FIONREAD, &bytes) == 0 ? bytes : 0;
    }

    QFile reader;
};

} // namespace

/// The program as a program: arguments, files it looks for, what it says and how it ends.
class RunTest : public QObject
{
    Q_OBJECT

private slots:
    void usage_data();
    void usage();
    void theFirstFaultIsTold();
    void help_data();
    void help();
    void version();
    void linksNoWidgets();
    void folders();
    void recursive();
    void linkedFoldersAreNotFollowed();
    void folderWithoutPhotographs();
    void missing();
    void oddNames_data();
    void oddNames();
    void longestName();
    void nameThatIsNoText();
    void anyNumberOfJobs_data();
    void anyNumberOfJobs();
    void outputToFullDisk();
    void pipeClosedEarly();
    void errorPipeClosedEarly();
    void progressBar();
    void interrupted_data();
    void interrupted();
    void ignoredRequestStaysIgnored();
};

void RunTest::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char* name, const char* arguments) {
        QTest::newRow(name) << QString::fromUtf8(arguments).split(QLatin1Char(' '),
                                                                  Qt::SkipEmptyParts);
    };
    row("nothing", "");
    row("unknown command", "paint a.bmp");
    row("no photograph", "info");
    row("unknown option", "info --colour a.bmp");
    row("layout 2", "info --layout 2 a.bmp");
    row("no jobs", "info --jobs 0 a.bmp");
    row("half a job", "info --jobs 1.5 a.bmp");
    row("export without format", "export a.bmp");
    row("unknown format", "export --format bmp a.bmp");
    row("unknown unit", "export --format csv --unit K a.bmp");
    row("too many decimals", "export --format csv --decimals 10 a.bmp");
    row("fewer than no decimals", "export --format csv --decimals=-1 a.bmp");
    row("point between numbers", "export --format csv --separator . a.bmp");
    row("minus between numbers", "export --format csv --separator=- a.bmp");
    row("plus between numbers", "export --format csv --separator + a.bmp");
    row("digit between numbers", "export --format csv --separator 1 a.bmp");
    row("two separators", "export --format csv --separator ;; a.bmp");
    row("quote between numbers", "export --format csv --separator \" a.bmp");
    row("separator beyond ASCII", "export --format csv --separator ü a.bmp");
    row("unseen separator", "export --format csv --separator \x01 a.bmp");
    row("decimals of a TIFF", "export --format tiff --decimals 1 a.bmp");
    row("header of a NumPy file", "export --format npy --header a.bmp");
    row("span of numbers", "export --format csv --span 0:255 a.bmp");
    row("half a span", "export --format png --span 10 a.bmp");
    row("three ends", "export --format png --span 1:2:3 a.bmp");
    row("span off the bar", "export --format png --span 0:256 a.bmp");
    row("span before the bar", "export --format png --span=-1:5 a.bmp");
    row("span from a word", "export --format png --span hot:5 a.bmp");
    row("span to a word", "export --format png --span 5:cold a.bmp");
    row("two faults, one line", "export --format png --jobs 0 --unit K a.bmp");
    row("tools missing", "measure a.bmp");
    row("tools not there", "measure --tools nowhere.json a.bmp");
    row("measure unit", "measure --tools tools.json --unit K a.bmp");
    row("report without folder", "report a.bmp");
    row("report language", "report --language en -o out a.bmp");
    row("measure format", "measure --tools tools.json --format xml a.bmp");
}

void RunTest::usage()
{
    QFETCH(QStringList, arguments);
    const Folder folder;
    folder.write(QStringLiteral("a.bmp"), photograph());
    folder.write(QStringLiteral("tools.json"), "{}");
    const Ended ended = thermaphoto(arguments, folder.path());
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.startsWith("thermaphoto: "));
    QCOMPARE(folder.files(), (QStringList{"a.bmp", "tools.json"}));
}

void RunTest::theFirstFaultIsTold()
{
    const Folder folder;
    folder.write(QStringLiteral("a.bmp"), photograph());
    const Ended ended =
        thermaphoto({"info", "--layout", "2", "--jobs", "0", "a.bmp"}, folder.path());
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("--jobs")); // looked at first, wherever it stands
    QVERIFY(!ended.errors.contains("--layout"));
}

void RunTest::help_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("mentions");
    QTest::newRow("program") << QStringList("--help") << QByteArray("measure");
    QTest::newRow("short") << QStringList("-h") << QByteArray("export");
    QTest::newRow("info") << QStringList{"info", "--help"} << QByteArray("--json");
    QTest::newRow("export") << QStringList{"export", "-h"} << QByteArray("--span");
    QTest::newRow("measure") << QStringList{"measure", "--help"} << QByteArray("--tools");
    QTest::newRow("report") << QStringList{"report", "--help"} << QByteArray("--language");
}

void RunTest::help()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, mentions);
    const Ended ended = thermaphoto(arguments);
    QCOMPARE(ended.status, 0);
    QVERIFY(ended.output.contains("Usage: "));
    QVERIFY(ended.output.contains(mentions));
    QCOMPARE(ended.errors, QByteArray());
}

void RunTest::version()
{
    for (const char* option : {"--version", "-v"}) {
        const Ended ended = thermaphoto({option});
        QCOMPARE(ended.status, 0);
        QVERIFY(ended.output.startsWith("thermaphoto "));
        QCOMPARE(ended.output.split('.').size(), 3);
    }
}

/// A program of everything but the reports: it links, it runs, and the system loads no widgets.
void RunTest::linksNoWidgets()
{
    const Folder folder;
    folder.write(QStringLiteral("a.bmp"), photograph());
    const Ended info = testing::shell(QStringLiteral(WITHOUT_WIDGETS " info a.bmp"), folder.path());
    QCOMPARE(info.status, 0);
    QVERIFY(info.output.startsWith("a.bmp\n"));
    const Ended ended = testing::shell(QStringLiteral("ldd " WITHOUT_WIDGETS), {});
    QCOMPARE(ended.status, 0);
    QVERIFY(ended.output.contains("libQt5Core"));
    QVERIFY(!ended.output.contains("libQt5Widgets"));
}

/// What the browser lists, in its order: "*.bmp" in any letter case, capitals first.
void RunTest::folders()
{
    const Folder folder;
    for (const char* name : {"c.bmp", "B.BMP", "a.Bmp", ".hidden.bmp", "a.txt", "bmp", "sub/d.bmp"})
        folder.write(QLatin1String(name), photograph());
    QDir(folder.path()).mkdir(QStringLiteral("folder.bmp"));
    const Ended ended = thermaphoto({"info", "--json", "."}, folder.path());
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(filesOf(ended), (QStringList{"./B.BMP", "./a.Bmp", "./c.bmp"}));
}

void RunTest::recursive()
{
    const Folder folder;
    for (const char* name : {"z.bmp", "b/2.bmp", "b/1.bmp", "a/x/3.bmp", ".hidden/4.bmp"})
        folder.write(QLatin1String(name), photograph());
    const QStringList expected{"z.bmp", "a/x/3.bmp", "b/1.bmp", "b/2.bmp"};
    for (const char* option : {"--recursive", "-r"}) {
        const Ended ended =
            thermaphoto({"info", "--json", option, folder.path() + '/'}, folder.path());
        QStringList files = filesOf(ended);
        files.replaceInStrings(folder.path() + '/', QString());
        QCOMPARE(files, expected);
        QCOMPARE(ended.status, 0);
    }
}

void RunTest::linkedFoldersAreNotFollowed()
{
    const Folder folder;
    folder.write(QStringLiteral("a/1.bmp"), photograph());
    QVERIFY(QFile::link(folder.path(), folder / QStringLiteral("a/up")));
    QVERIFY(QFile::link(folder / QStringLiteral("a/1.bmp"), folder / QStringLiteral("2.bmp")));
    const Ended ended = thermaphoto({"info", "--json", "-r", "."}, folder.path());
    QCOMPARE(filesOf(ended), (QStringList{"./2.bmp", "./a/1.bmp"}));
}

void RunTest::folderWithoutPhotographs()
{
    const Folder folder;
    folder.write(QStringLiteral("sub/1.bmp"), photograph());
    const Ended ended = thermaphoto({"info", "--json", "."}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.output, QByteArray("[]\n"));
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("no photographs"));
}

void RunTest::missing()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photograph());
    const Ended ended =
        thermaphoto({"info", "--json", "nowhere", "1.bmp", "gone.bmp"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(filesOf(ended), QStringList("1.bmp"));
    QCOMPARE(ended.errors,
             QByteArray("thermaphoto: nowhere: cannot be read: No such file or directory\n"
                        "thermaphoto: gone.bmp: cannot be read: No such file or directory\n"));
}

void RunTest::oddNames_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"with blanks .bmp", "热像 №1 — üß.bmp", "%1 %2 %%.bmp", "'quoted\" $HOME `x`.bmp",
          "a\nb.bmp", "-o.bmp", "*.bmp", "back\\slash.bmp", "no suffix", "two.dots.bmp", "😀.bmp"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

/// Named, or found in a folder: always this file, and one line if it fails.
void RunTest::oddNames()
{
    QFETCH(QString, name);
    const Folder folder;
    folder.write(QStringLiteral("in/") + name, photograph());
    const QString in = folder / QStringLiteral("in");
    const Ended named = thermaphoto({"info", "--json", "--", name}, in);
    QCOMPARE(named.status, 0);
    QCOMPARE(filesOf(named), QStringList(name));

    QString base = name;
    base.remove(QStringLiteral(".bmp"));
    const QString out = folder / QStringLiteral("out");
    QCOMPARE(thermaphoto({"export", "--format", "npy", "-o", out, "--", name}, in).status, 0);
    QCOMPARE(QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList(base + QStringLiteral(".npy")));
    if (name.endsWith(QStringLiteral(".bmp")))
        QCOMPARE(filesOf(thermaphoto({"info", "--json", "."}, in)), QStringList("./" + name));

    folder.write(QStringLiteral("in/") + name, "broken");
    const Ended broken = thermaphoto({"info", "--", name}, in);
    QCOMPARE(broken.status, 1);
    QCOMPARE(broken.errors.count('\n'), 1);
}

/// 255 bytes are the most a name can have; the file that is made is one longer.
void RunTest::longestName()
{
    const Folder folder;
    const QString base(251, QLatin1Char('x'));
    folder.write(base + QStringLiteral(".bmp"), photograph());
    QCOMPARE(thermaphoto({"export", "--format", "csv", "."}, folder.path()).status, 0);
    const Ended tooLong = thermaphoto({"export", "--format", "tiff", "."}, folder.path());
    QCOMPARE(tooLong.status, 1);
    QVERIFY(tooLong.errors.contains("File name too long"));
    QCOMPARE(folder.files(), (QStringList{base + ".bmp", base + ".csv"}));
}

/// Old disks have names in other encodings. They are not passed over in silence.
void RunTest::nameThatIsNoText()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photograph());
    QCOMPARE(
        testing::shell(QStringLiteral("cp 1.bmp \"$(printf '\\344\\366.bmp')\""), folder.path())
            .status,
        0);
    const Ended ended = thermaphoto({"info", "--json", "."}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(filesOf(ended), QStringList("./1.bmp"));
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("its name is not in UTF-8"));
    testing::shell(QStringLiteral("rm ?[!.]*.bmp"), folder.path()); // Qt cannot
}

void RunTest::anyNumberOfJobs_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("info") << QStringList{"info", "--json"};
    QTest::newRow("measure") << QStringList{"measure", "--tools", "tools.json"};
    QTest::newRow("export") << QStringList{"export", "--format", "csv", "--force", "-o", "out"};
}

/// Same bytes in the same order from one, some and more jobs than photographs, errors included.
void RunTest::anyNumberOfJobs()
{
    QFETCH(QStringList, command);
    const Folder folder;
    folder.write(QStringLiteral("tools.json"), R"({"points": [[1, 2]], "circles": [[99, 99, 9]]})");
    for (int i = 0; i < 40; ++i) {
        const testing::Sample& sample = testing::samples()[std::size_t(i) % 8];
        folder.write(QStringLiteral("in/%1.bmp").arg(i),
                     i % 9 == 4 ? QByteArray("broken") : sample.bytes());
    }
    const auto run = [&](const char* jobs) {
        Ended ended = thermaphoto(command + QStringList{"in", "--jobs", jobs}, folder.path());
        for (const QString& file : folder.files().filter(QStringLiteral("out/")))
            ended.output += file.toUtf8() + folder.read(file);
        return ended;
    };
    const Ended one = run("1");
    QCOMPARE(one.status, 1);
    QCOMPARE(one.errorLines().size(), 4);
    for (const char* jobs : {"2", "7", "100"}) {
        const Ended many = run(jobs);
        QCOMPARE(many.status, 1);
        QVERIFY(many.output == one.output);
        QCOMPARE(many.errors, one.errors);
    }
}

void RunTest::outputToFullDisk()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photograph());
    for (const char* command :
         {"info 1.bmp", "info --json 1.bmp", "--help", "--version",
          // More than is kept back before it is written.
          "info $(yes 1.bmp | head -n 100)", "info --json $(yes 1.bmp | head -n 100)"}) {
        const Ended ended = testing::shell(
            QStringLiteral("\"$thermaphoto\" %1 > /dev/full").arg(QLatin1String(command)),
            folder.path());
        QCOMPARE(ended.status, 1);
    }
    const Ended ended =
        testing::shell(QStringLiteral("\"$thermaphoto\" info 1.bmp > /dev/full"), folder.path());
    QVERIFY(ended.errors.contains("No space left on device"));
}

/// Whoever reads has read enough: no more work, no complaint.
void RunTest::pipeClosedEarly()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photograph());
    // Far more output than a pipe holds.
    const Ended ended =
        testing::shell(QStringLiteral("\"$thermaphoto\" info --json $(yes 1.bmp | head -n 1000) | "
                                      "head -c 1"),
                       folder.path());
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.output, QByteArray("["));
    QCOMPARE(ended.errors, QByteArray());
}

/// Nobody reads the errors, but the files are to be written.
void RunTest::errorPipeClosedEarly()
{
    const Folder folder;
    for (int i = 0; i < 20; ++i)
        folder.write(QStringLiteral("%1.bmp").arg(i), i % 2 == 0 ? photograph() : "broken");
    const Ended ended = testing::shell(
        QStringLiteral("\"$thermaphoto\" export --format npy -o out . 2>&1 | true"), folder.path());
    QCOMPARE(ended.status, 0);
    const QStringList files = folder.files().filter(QStringLiteral("out/"));
    QCOMPARE(files.size(), 10);
    QCOMPARE(files.filter(QStringLiteral(".npy")).size(), 10);
}

/// On a terminal a bar that leaves nothing behind; elsewhere none.
void RunTest::progressBar()
{
    const Folder folder;
    for (int i = 0; i < 3; ++i)
        folder.write(QStringLiteral("%1.bmp").arg(i), photograph());
    const QString command = QStringLiteral("\"$thermaphoto\" export --format npy --force .");
    const Ended piped = testing::shell(command, folder.path());
    QCOMPARE(piped.output + piped.errors, QByteArray());

    const Ended onTerminal = testing::shell(
        QStringLiteral("script --quiet --return --command '%1' /dev/null").arg(command),
        folder.path());
    QCOMPARE(onTerminal.status, 0);
    QVERIFY(onTerminal.output.startsWith("\r[##########--------------------] 1/3"));
    QVERIFY(onTerminal.output.endsWith("\r\x1b[K"));

    const Ended listing =
        testing::shell(QStringLiteral("script --quiet --return --command "
                                      "'\"$thermaphoto\" info --json .' /dev/null"),
                       folder.path());
    QVERIFY(listing.output.startsWith('['));
    QVERIFY(!listing.output.contains("###"));

    const Ended kept =
        testing::shell(QStringLiteral("script --quiet --return --command "
                                      "'\"$thermaphoto\" info --json . > kept' /dev/null"),
                       folder.path());
    QVERIFY(kept.output.startsWith("\r[##########--------------------] 1/3"));
    QVERIFY(folder.read(QStringLiteral("kept")).startsWith('['));
}

void RunTest::interrupted_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("asked to end") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
}

/// What was begun is finished, nothing else is, no file is half there, and what is told of is what
/// is on the disk.
void RunTest::interrupted()
{
    QFETCH(int, signal);
    Stalled stalled{QString()};
    QVERIFY(stalled.isWaiting);
    QVERIFY(catches(stalled.process.processId(), signal));
    QCOMPARE(kill(pid_t(stalled.process.processId()), signal), 0);
    QTRY_VERIFY(
        !catches(stalled.process.processId(), signal)); // the second one would end it at once
    const QList<QByteArray> errors = stalled.goOn();
    QCOMPARE(stalled.process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(stalled.process.exitCode(), signal);
    const QStringList written = stalled.written();
    QVERIFY(!written.isEmpty() && written.size() < Stalled::pairs);
    QCOMPARE(errors.last(), "thermaphoto: interrupted: " + QByteArray::number(written.size()) +
                                " of 600 files are written");
    // Those of the broken photographs before the last one written, and perhaps of one behind it.
    QVERIFY(qAbs(errors.size() - 1 - written.size()) <= 2);
    for (const QString& file : written)
        QCOMPARE(stalled.read(file).size(), 128 + 240 * 320 * 4);
}

/// As under nohup: the terminal may be closed, the work goes on.
void RunTest::ignoredRequestStaysIgnored()
{
    Stalled stalled(QStringLiteral("trap '' HUP; "));
    QVERIFY(stalled.isWaiting);
    QVERIFY(!catches(stalled.process.processId(), SIGHUP));
    QCOMPARE(kill(pid_t(stalled.process.processId()), SIGHUP), 0);
    QCOMPARE(stalled.goOn().size(), Stalled::pairs);
    QCOMPARE(stalled.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(stalled.process.exitCode(), 1);
    QCOMPARE(stalled.written().size(), Stalled::pairs);
}

int main(int argc, char** argv)
{
    return testing::run<RunTest>(argc, argv);
}

#include "run_test.moc"
