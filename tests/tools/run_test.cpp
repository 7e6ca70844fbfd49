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

} // namespace

/// The program as a program: files it looks for, what it says and how it ends.
class RunTest : public QObject
{
    Q_OBJECT

private slots:
    void linksNoWidgets();
    void folders();
    void recursive();
    void linkedFoldersAreNotFollowed();
    void folderWithoutPhotographs();
    void missing();
    void onlyFilesArePhotographs();
    void withoutThreads();
    void controlCharacters();
    void anyLocale();
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
};

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

/// A pipe without a writer would be waited for until the end of days.
void RunTest::onlyFilesArePhotographs()
{
    const Folder folder;
    folder.write("in/1.bmp", photograph());
    QCOMPARE(mkfifo(qPrintable(folder / "in/pipe.bmp"), 0600), 0);
    QVERIFY(QFile::link(folder / "in/pipe.bmp", folder / "in/link.bmp"));
    QVERIFY(QFile::link("/dev/zero", folder / "in/zero.bmp"));
    QVERIFY(QFile::link(folder / "nowhere", folder / "in/nowhere.bmp"));
    const Ended listed = thermaphoto({"info", "--json", "in"}, folder.path());
    QCOMPARE(filesOf(listed), QStringList("in/1.bmp"));
    QCOMPARE(
        listed.errors,
        QByteArray("thermaphoto: in/nowhere.bmp: cannot be read: No such file or directory\n"));

    for (const char* name : {"in/pipe.bmp", "in/link.bmp", "in/zero.bmp"}) {
        const Ended named = thermaphoto({"info", name}, folder.path());
        QCOMPARE(named.status, 1);
        QCOMPARE(named.errors, QByteArray("thermaphoto: ") + name + ": is not a regular file\n");
    }
    const Ended tools =
        thermaphoto({"measure", "--tools", "in/pipe.bmp", "in/1.bmp"}, folder.path());
    QCOMPARE(tools.status, 2);
    QVERIFY(tools.errors.contains("in/pipe.bmp: is not a regular file"));
}

/// Where a user may start no more of them: here, no thread finds room for its stack.
void RunTest::withoutThreads()
{
    const Folder folder;
    for (int i = 0; i < 5; ++i)
        folder.write(QStringLiteral("in/%1.bmp").arg(i), photograph());
    for (const char* command :
         {"info --json", "export --jobs 3 --format png -o out", "report -o out"}) {
        const Ended ended = testing::shell(QStringLiteral("ulimit -s 200000000000 && "
                                                          "exec \"$thermaphoto\" %1 in")
                                               .arg(QLatin1String(command)),
                                           folder.path());
        QCOMPARE(ended.output, QByteArray());
        QCOMPARE(ended.errors, QByteArray("thermaphoto: no thread can be started\n"));
        QCOMPARE(ended.status, 1);
    }
    QCOMPARE(folder.files().filter("out/"), QStringList());
}

/// A name can hold what would move the cursor, or make a terminal answer.
void RunTest::controlCharacters()
{
    const Folder folder;
    const QString name = QStringLiteral("a\x1b[31m\x7f\u009b.bmp");
    folder.write("in/" + name, photograph());
    folder.write("tools.json", R"({"points": [[1, 2]]})");
    const QString shown = QStringLiteral("in/a?[31m??.bmp");
    const QStringList measure{"measure", "--tools", "tools.json", "--format"};
    const Ended info = thermaphoto({"info", "in"}, folder.path());
    QVERIFY(info.output.startsWith(shown.toUtf8() + '\n'));
    const Ended table = thermaphoto(measure + QStringList{"table", "in"}, folder.path());
    QVERIFY(table.output.startsWith(shown.toUtf8() + " ("));

    for (const QStringList& command :
         {QStringList{"info", "--json"}, measure + QStringList("json")}) {
        const Ended json = thermaphoto(command + QStringList("in"), folder.path());
        QCOMPARE(filesOf(json), QStringList("in/" + name));
        QVERIFY(json.output.contains("a\\u001b[31m\\u007f\\u009b.bmp"));
    }

    const Ended csv = thermaphoto(measure + QStringList{"csv", "in"}, folder.path());
    QVERIFY(csv.output.contains("in/" + name.toUtf8() + ','));
    const Ended onTerminal =
        testing::shell("script --quiet --return --command "
                       "'\"$thermaphoto\" measure --tools tools.json --format csv in' /dev/null",
                       folder.path());
    QVERIFY(onTerminal.output.contains(shown.toUtf8() + ','));
}

/// Digits, points and order are the same wherever a job runs; here the system's own are Arabic.
void RunTest::anyLocale()
{
    const Folder folder;
    for (const char* name : {"in/1.bmp", "in/2.bmp"})
        folder.write(name, testing::samples()[0].bytes());
    folder.write("tools.json", R"({"points": [[1, 2]], "circles": [[99, 99, 9]]})");
    for (const char* command :
         {"info in", "info --json in", "measure --tools tools.json in",
          "measure --tools tools.json --format csv in",
          "measure --tools tools.json --format json in",
          "export --format csv --header -o $LC_ALL in; cat $LC_ALL/*.csv",
          "report --tools tools.json -o $LC_ALL in; pdftotext $LC_ALL/1.pdf -"}) {
        const auto in = [&](const char* locale) {
            return testing::shell(QStringLiteral("export LC_ALL=%1; \"$thermaphoto\" %2")
                                      .arg(QLatin1String(locale), QLatin1String(command)),
                                  folder.path());
        };
        const Ended plain = in("C");
        QVERIFY(plain.output.size() > 30);
        for (const char* locale : {"ar_EG.UTF-8", "fa_IR.UTF-8", "de_DE.UTF-8"}) {
            const Ended ended = in(locale);
            QCOMPARE(ended.output, plain.output);
            QCOMPARE(ended.errors, plain.errors);
        }
    }
}

void RunTest::oddNames_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"with blanks .bmp", "热像 №1 — üß.bmp", "%1 %2 %%.bmp",
                             "'quoted\" $HOME `x`.bmp", "a\nb.bmp", "-o.bmp", "*.bmp",
                             "back\\slash.bmp", "no suffix", "two.dots.bmp", "😀.bmp", ":night.bmp"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

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

int main(int argc, char** argv)
{
    return testing::run<RunTest>(argc, argv);
}

#include "run_test.moc"
