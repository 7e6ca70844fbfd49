// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/photographs.h"
#include "tests/tools/thermaphoto.h"

using testing::anyPhotograph;
using testing::Ended;
using testing::Folder;
using testing::thermaphoto;

/// The program as a program: threads, places, what it says and how it ends.
class RunTest : public QObject
{
    Q_OBJECT

private slots:
    void linksNoWidgets();
    void withoutThreads();
    void anyLocale();
    void anyNumberOfJobs_data();
    void anyNumberOfJobs();
    void outputToFullDisk();
    void pipeClosedEarly();
    void errorPipeClosedEarly();
    void progressBar();
};

/// Reports are painted, too, and still the system loads no widgets.
void RunTest::linksNoWidgets()
{
    const Ended ended = testing::shell(QStringLiteral("ldd \"$thermaphoto\""), {});
    QCOMPARE(ended.status, 0);
    QVERIFY(ended.output.contains("libQt5Gui"));
    QVERIFY(!ended.output.contains("libQt5Widgets"));
    QVERIFY(!ended.output.contains("libQt5Multimedia"));
}

/// Where a user may start no more of them: here, no thread finds room for its stack.
void RunTest::withoutThreads()
{
    const Folder folder;
    for (int i = 0; i < 5; ++i)
        folder.write(QStringLiteral("in/%1.bmp").arg(i), anyPhotograph());
    for (const char* command : {"info --json", "export --jobs 3 --format png -o out",
                                "report -o out", "find --above 1"}) {
        const Ended ended = testing::shell(QStringLiteral("ulimit -s 200000000000 && "
                                                          "exec \"$thermaphoto\" %1 in")
                                               .arg(QLatin1String(command)),
                                           folder.path());
        QCOMPARE(ended.output, QByteArray());
        QCOMPARE(ended.errors, QByteArray("thermaphoto: no thread can be started\n"));
        QCOMPARE(ended.status, QByteArray(command).startsWith("find") ? 2 : 1);
    }
    QCOMPARE(folder.files().filter("out/"), QStringList());
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
          "measure --more --delta C0-21.5 --tools tools.json --format ndjson in",
          "histogram --width 0.5 --format csv in", "spots --distance 2.5 in",
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

void RunTest::anyNumberOfJobs_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("errorLines");
    QTest::newRow("info") << "info --json" << 1 << 4;
    QTest::newRow("measure") << "measure --tools tools.json" << 1 << 4;
    QTest::newRow("measure more")
        << "measure --more --tools tools.json --limit C0>1 --format ndjson" << 3 << 40;
    QTest::newRow("spots") << "spots" << 1 << 4;
    QTest::newRow("find") << "find --above 40" << 2 << 4;
    QTest::newRow("export") << "export --format csv --force -o out" << 1 << 4;
}

/// Same bytes in the same order from one, some and more jobs than photographs, errors included.
void RunTest::anyNumberOfJobs()
{
    QFETCH(QString, command);
    QFETCH(int, status);
    QFETCH(int, errorLines);
    const Folder folder;
    folder.write(QStringLiteral("tools.json"), R"({"points": [[1, 2]], "circles": [[99, 99, 9]]})");
    for (int i = 0; i < 40; ++i) {
        const testing::Sample& sample = testing::samples()[std::size_t(i) % 8];
        folder.write(QStringLiteral("in/%1.bmp").arg(i),
                     i % 9 == 4 ? QByteArray("broken") : sample.bytes());
    }
    const auto run = [&](const char* jobs) {
        Ended ended =
            thermaphoto(command.split(' ') + QStringList{"in", "--jobs", jobs}, folder.path());
        for (const QString& file : folder.files().filter(QStringLiteral("out/")))
            ended.output += file.toUtf8() + folder.read(file);
        return ended;
    };
    const Ended one = run("1");
    QCOMPARE(one.status, status);
    QCOMPARE(one.errorLines().size(), errorLines);
    for (const char* jobs : {"2", "7", "100"}) {
        const Ended many = run(jobs);
        QCOMPARE(many.status, status);
        QVERIFY(many.output == one.output);
        QCOMPARE(many.errors, one.errors);
    }
}

void RunTest::outputToFullDisk()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), anyPhotograph());
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
    folder.write(QStringLiteral("1.bmp"), anyPhotograph());
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
        folder.write(QStringLiteral("%1.bmp").arg(i), i % 2 == 0 ? anyPhotograph() : "broken");
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
        folder.write(QStringLiteral("%1.bmp").arg(i), anyPhotograph());
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
