// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/photographs.h"
#include "tests/tools/thermaphoto.h"

#include <QJsonObject>

using testing::anyPhotograph;
using testing::Ended;
using testing::Folder;
using testing::thermaphoto;

/// What the program takes for an answer, and the help it gives.
class UsageTest : public QObject
{
    Q_OBJECT

private slots:
    void usage_data();
    void usage();
    void theFirstFaultIsTold();
    void help_data();
    void help();
    void helpShowsAnOrderThatIsTaken_data();
    void helpShowsAnOrderThatIsTaken();
    void whatIsMissing_data();
    void whatIsMissing();
    void wrongToolFile();
    void version();
};

void UsageTest::usage_data()
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
    row("help of what is not", "help paint");
    row("replaced and passed over", "export --format csv --force --skip-existing a.bmp");
    row("options before the command", "--layout 0 info a.bmp");
    row("measure format", "measure --tools tools.json --format xml a.bmp");
    row("profile format", "profile --tools tools.json --format npy a.bmp");
    row("spots unit", "spots --unit K a.bmp");
    row("find layout", "find --above 1 --layout 2 a.bmp");
}

void UsageTest::usage()
{
    QFETCH(QStringList, arguments);
    const Folder folder;
    folder.write(QStringLiteral("a.bmp"), anyPhotograph());
    folder.write(QStringLiteral("tools.json"), "{}");
    const Ended ended = thermaphoto(arguments, folder.path());
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.startsWith("thermaphoto: "));
    QCOMPARE(folder.files(), (QStringList{"a.bmp", "tools.json"}));
}

void UsageTest::theFirstFaultIsTold()
{
    const Folder folder;
    folder.write(QStringLiteral("a.bmp"), anyPhotograph());
    const Ended ended =
        thermaphoto({"info", "--layout", "2", "--jobs", "0", "a.bmp"}, folder.path());
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("--jobs")); // looked at first, wherever it stands
    QVERIFY(!ended.errors.contains("--layout"));
}

void UsageTest::help_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("mentions");
    QTest::newRow("program") << QStringList("--help") << QByteArray("measure");
    QTest::newRow("short") << QStringList("-h") << QByteArray("export");
    QTest::newRow("info") << QStringList{"info", "--help"} << QByteArray("--json");
    QTest::newRow("export") << QStringList{"export", "-h"} << QByteArray("--span");
    QTest::newRow("measure") << QStringList{"measure", "--help"} << QByteArray("--tools");
    QTest::newRow("profile") << QStringList{"profile", "--help"} << QByteArray("--format");
    QTest::newRow("histogram") << QStringList{"histogram", "--help"} << QByteArray("--width");
    QTest::newRow("spots") << QStringList{"spots", "--help"} << QByteArray("--distance");
    QTest::newRow("find") << QStringList{"find", "--help"} << QByteArray("--above");
    QTest::newRow("report") << QStringList{"report", "--help"} << QByteArray("--language");
    QTest::newRow("tools") << QStringList{"tools", "--help"} << QByteArray("--mirror");
    QTest::newRow("help") << QStringList("help") << QByteArray("measure");
    QTest::newRow("help with a command") << QStringList{"help", "export"} << QByteArray("--span");
    QTest::newRow("help with tools") << QStringList{"help", "tools"} << QByteArray("combine");
    QTest::newRow("help with report") << QStringList{"help", "report"} << QByteArray("--language");
}

void UsageTest::help()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, mentions);
    const Ended ended = thermaphoto(arguments);
    QCOMPARE(ended.status, 0);
    QVERIFY(ended.output.contains("Usage: "));
    QVERIFY(ended.output.contains(mentions));
    QCOMPARE(ended.errors, QByteArray());
}

void UsageTest::helpShowsAnOrderThatIsTaken_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("info") << "info" << QStringList("--json");
    QTest::newRow("export") << "export" << QStringList{"--format", "npy"};
    QTest::newRow("measure") << "measure" << QStringList{"--tools", "tools.json"};
    QTest::newRow("profile") << "profile" << QStringList{"--tools", "line.json"};
    QTest::newRow("histogram") << "histogram" << QStringList{"--bins", "9"};
    QTest::newRow("spots") << "spots" << QStringList{"--count", "2"};
    QTest::newRow("find") << "find" << QStringList{"--below", "9999"};
    QTest::newRow("report") << "report" << QStringList{"-o", "out"};
}

void UsageTest::helpShowsAnOrderThatIsTaken()
{
    QFETCH(QString, command);
    QFETCH(QStringList, options);
    const QByteArray help = thermaphoto({command, "--help"}).output;
    const QString usage = QString::fromUtf8(help.left(help.indexOf('\n')));
    QCOMPARE(usage, QStringLiteral("Usage: thermaphoto %1 [options] PATH…").arg(command));
    const Folder folder;
    folder.write("a.bmp", anyPhotograph());
    folder.write("tools.json", "{}");
    folder.write("line.json", R"({"lines": [[1, 2, 3, 4]]})");
    const Ended ended =
        thermaphoto(QStringList(command) + options + QStringList("a.bmp"), folder.path());
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
}

void UsageTest::whatIsMissing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("missing");
    QTest::newRow("export") << QStringList{"export", "a.bmp"} << QByteArray("--format");
    QTest::newRow("measure") << QStringList{"measure", "a.bmp"} << QByteArray("--tools");
    QTest::newRow("profile") << QStringList{"profile", "a.bmp"} << QByteArray("--tools");
    QTest::newRow("find") << QStringList{"find", "a.bmp"} << QByteArray("--above or --below");
    QTest::newRow("report") << QStringList{"report", "a.bmp"} << QByteArray("--output");
}

void UsageTest::whatIsMissing()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, missing);
    const Ended ended = thermaphoto(arguments);
    QCOMPARE(ended.status, 2);
    QVERIFY2(ended.errors.contains(": " + missing + " is missing"), ended.errors.constData());
}

/// The line tells which tool of which file is wrong.
void UsageTest::wrongToolFile()
{
    const Folder folder;
    folder.write("a.bmp", anyPhotograph());
    folder.write("tools.json", R"({"circles": [[50, 50, 9], [120, 160, 500]]})");
    folder.write("large.json", QByteArray(10'000'001, ' '));
    for (const QStringList& command :
         {QStringList("measure"), QStringList{"report", "-o", "out"}}) {
        const auto told = [&](const char* file) {
            const Ended ended =
                thermaphoto(command + QStringList{"--tools", file, "a.bmp"}, folder.path());
            return ended.status == 2 ? ended.errors : QByteArray();
        };
        QVERIFY(told("tools.json").contains(": tools.json: \"circles\", number 2 is not wholly"));
        QVERIFY(told("large.json").contains(": large.json: too large: 10000001/10000000 bytes"));
    }
    QCOMPARE(folder.files(), (QStringList{"a.bmp", "large.json", "tools.json"}));
}

void UsageTest::version()
{
    for (const char* option : {"--version", "-v"}) {
        const Ended ended = thermaphoto({option});
        QCOMPARE(ended.status, 0);
        QVERIFY(ended.output.startsWith("thermaphoto "));
        QCOMPARE(ended.output.split('.').size(), 3);
    }
}

int main(int argc, char** argv)
{
    return testing::run<UsageTest>(argc, argv);
}

#include "usage_test.moc"
