// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/exported.h"

using testing::Ended;
using testing::Folder;
using testing::Shot;
using testing::slope;
using testing::thermaphoto;

/// Where files are written, and what becomes of those that are there.
class TargetFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void existingFilesStay();
    void forceReplaces();
    void aFolderInTheWay();
    void folderIsMade();
    void folderThatCannotBeMade();
    void subfolderThatCannotBeMade();
    void folderWithoutPhotographs();
    void subfoldersAreKept();
    void sameNameTwice();
    void neverOverAPhotograph();
    void fullDisk();
    void failedPhotographLeavesNothing();
    void namesWithAColon_data();
    void namesWithAColon();
    void skipExisting_data();
    void skipExisting();
    void leftOversAreInNobodysWay();
};

void TargetFilesTest::existingFilesStay()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("2.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("1.csv"), "mine");
    const Ended ended = thermaphoto({"export", "--format", "csv", "."}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("1.csv"));
    QCOMPARE(folder.read(QStringLiteral("1.csv")), QByteArray("mine"));
    QCOMPARE(folder.files(), (QStringList{"1.bmp", "1.csv", "2.bmp", "2.csv"}));
}

void TargetFilesTest::forceReplaces()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("1.csv"), "mine");
    QCOMPARE(thermaphoto({"export", "--format", "csv", "--force", "1.bmp"}, folder.path()).status,
             0);
    QVERIFY(folder.read(QStringLiteral("1.csv")).startsWith("20,"));
    QCOMPARE(folder.files(), (QStringList{"1.bmp", "1.csv"}));
}

void TargetFilesTest::aFolderInTheWay()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("1.csv/mine"), "mine");
    const Ended ended =
        thermaphoto({"export", "--format", "csv", "--force", "1.bmp"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 1);
    QCOMPARE(folder.files(), (QStringList{"1.bmp", "1.csv/mine"}));
}

void TargetFilesTest::folderIsMade()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()));
    const QString output = QStringLiteral("out 100%1/über/d");
    QCOMPARE(
        thermaphoto({"export", "--format", "npy", "-o", output, "1.bmp"}, folder.path()).status, 0);
    QCOMPARE(folder.files(), (QStringList{"1.bmp", output + "/1.npy"}));
}

void TargetFilesTest::folderThatCannotBeMade()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("file"), "mine");
    for (const QStringList& command : {QStringList{"export", "--format", "npy"}, {"report"}}) {
        const Ended ended =
            thermaphoto(command + QStringList{"-o", "file/x", "1.bmp"}, folder.path());
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.errorLines().size(), 1);
        QVERIFY(ended.errors.contains("file/x: this folder cannot be made: Not a directory"));
        QCOMPARE(folder.files(), (QStringList{"1.bmp", "file"}));
    }
}

/// A file has the name that one of the folders needs: the others are made.
void TargetFilesTest::subfolderThatCannotBeMade()
{
    const Folder folder;
    for (const char* name : {"in/a/1.bmp", "in/b/2.bmp"})
        folder.write(QLatin1String(name), photographBytes(slope()));
    folder.write(QStringLiteral("out/a"), "mine");
    const Ended ended =
        thermaphoto({"export", "--format", "npy", "-o", "out", "-r", "in"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(
        ended.errors.contains("in/a/1.bmp: out/a: this folder cannot be made: Not a directory"));
    QCOMPARE(folder.files().filter(QStringLiteral("out/")), (QStringList{"out/a", "out/b/2.npy"}));
}

void TargetFilesTest::folderWithoutPhotographs()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()));
    QDir(folder.path()).mkdir(QStringLiteral("none"));
    const Ended ended =
        thermaphoto({"export", "--format", "npy", "-o", "out", "none", "1.bmp"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("none: no photographs"));
    QCOMPARE(folder.files(), (QStringList{"1.bmp", "out/1.npy"}));
}

void TargetFilesTest::subfoldersAreKept()
{
    const Folder folder;
    for (const char* name : {"in/1.bmp", "in/b/1.bmp", "in/a/c/1.bmp"})
        folder.write(QLatin1String(name), photographBytes(slope()));
    QCOMPARE(
        thermaphoto({"export", "--format", "npy", "-o", "out", "-r", "in/"}, folder.path()).status,
        0);
    QCOMPARE(folder.files().filter(QStringLiteral("out/")),
             (QStringList{"out/1.npy", "out/a/c/1.npy", "out/b/1.npy"}));
}

/// Two photographs whose files would have the same name: the first gets it, also with --force.
void TargetFilesTest::sameNameTwice()
{
    const Folder folder;
    folder.write(QStringLiteral("a/1.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("b/1.bmp"), photographBytes(slope(0, 1)));
    folder.write(QStringLiteral("b/2.bmp"), photographBytes(slope()));
    const Ended ended =
        thermaphoto({"export", "--format", "csv", "--force", "--header", "a", "b"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("b/1.bmp"));
    QVERIFY(ended.errors.contains("a/1.bmp"));
    QVERIFY(folder.read(QStringLiteral("1.csv")).startsWith("# unit=C"));
    QVERIFY(folder.files().contains(QStringLiteral("2.csv")));
}

void TargetFilesTest::neverOverAPhotograph()
{
    const Folder folder;
    const QByteArray photograph = photographBytes(slope());
    folder.write(QStringLiteral("1.bmp"), photograph);
    folder.write(QStringLiteral("1.png"), photograph);
    const Ended ended =
        thermaphoto({"export", "--format", "png", "--force", "1.bmp", "1.png"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 1);
    QCOMPARE(folder.read(QStringLiteral("1.png")), photograph);
    QVERIFY(folder.read(QStringLiteral("1.png.png")).startsWith("\x89PNG"));
}

/// No file may grow beyond 150 KB here: what is written first fits, the rest does not.
void TargetFilesTest::fullDisk()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("2.bmp"), photographBytes(slope()));
    folder.write(QStringLiteral("out/1.npy"), "mine");
    const Ended ended = testing::shell(
        // What counts the lines that tests execute would complain, too.
        QStringLiteral("LLVM_PROFILE_FILE=/dev/null; trap '' XFSZ; ulimit -f 300; "
                       "exec \"$thermaphoto\" export --format npy --force -o out 1.bmp 2.bmp"),
        folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 2);
    QVERIFY(ended.errorLines()[0].contains("out/1.npy cannot be written: File too large"));
    QCOMPARE(folder.read(QStringLiteral("out/1.npy")), QByteArray("mine"));
    QCOMPARE(folder.files(), (QStringList{"1.bmp", "2.bmp", "out/1.npy"}));
}

void TargetFilesTest::failedPhotographLeavesNothing()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), photographBytes(slope()).left(300000));
    Shot foreign = slope();
    foreign.machineId = 7;
    folder.write(QStringLiteral("2.bmp"), photographBytes(foreign));
    folder.write(QStringLiteral("3.bmp"), photographBytes(slope()));
    const Ended ended = thermaphoto(
        {"export", "--format", "tiff", "-o", "out", "--layout", "0", "."}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 2);
    QVERIFY(ended.errorLines()[0].contains("too short"));
    QVERIFY(ended.errorLines()[1].contains("machine ID 7"));
    QCOMPARE(folder.files().filter(QStringLiteral("out/")), QStringList{"out/3.tiff"});
}

void TargetFilesTest::namesWithAColon_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("export") << QStringList{"export", "--format", "csv"} << "csv";
    QTest::newRow("report") << QStringList{"report", "--language", "EN"} << "pdf";
}

/// Nothing is written, or replaced, anywhere but in the folder that was named.
void TargetFilesTest::namesWithAColon()
{
    QFETCH(QStringList, command);
    QFETCH(QString, suffix);
    const Folder folder;
    folder.write(":night.bmp", photographBytes(slope()));
    folder.write("in/:sub/:night.bmp", photographBytes(slope()));
    folder.write(":night." + suffix, "mine");
    const QStringList rest{"--force", "-r", "-o", ":out", ":night.bmp", "in"};
    const Ended ended = thermaphoto(command + rest, folder.path());
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
    QCOMPARE(folder.read(":night." + suffix), QByteArray("mine"));
    QCOMPARE(folder.files().filter("out/"),
             (QStringList{":out/:night." + suffix, ":out/:sub/:night." + suffix}));
    if (suffix == "pdf") {
        const Ended text = testing::shell("pdftotext ./:out/:night.pdf -", folder.path());
        QVERIFY(text.output.contains(":night.bmp"));
        QVERIFY(text.output.contains(
            QLocale::c().toString(QDate::currentDate(), "yyyy/MM/").toLatin1()));
    }
}

void TargetFilesTest::skipExisting_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("export") << QStringList{"export", "--format", "npy"} << "npy";
    QTest::newRow("report") << QStringList{"report"} << "pdf";
}

/// A job that comes again every night ends well and says nothing; what is wrong it still tells.
void TargetFilesTest::skipExisting()
{
    QFETCH(QStringList, command);
    QFETCH(QString, suffix);
    const Folder folder;
    folder.write("in/1.bmp", photographBytes(slope()));
    folder.write("in/2.bmp", photographBytes(slope()));
    folder.write("out/1." + suffix, "mine");
    const auto run = [&] {
        return thermaphoto(command + QStringList{"--skip-existing", "-o", "out", "in"},
                           folder.path());
    };
    for (int night = 0; night < 2; ++night) {
        const Ended ended = run();
        QCOMPARE(ended.output + ended.errors, QByteArray());
        QCOMPARE(ended.status, 0);
        QCOMPARE(folder.read("out/1." + suffix), QByteArray("mine"));
        QVERIFY(folder.read("out/2." + suffix).size() > 1000);
    }
    folder.write("in/3.bmp", "broken");
    const Ended ended = run();
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("in/3.bmp: too short"));
}

/// Parts that killed programs left behind, under every number that ours could have.
void TargetFilesTest::leftOversAreInNobodysWay()
{
    const Folder folder;
    folder.write("1.bmp", photographBytes(slope()));
    const Ended ended =
        testing::shell(R"(for i in 0 1 2 3 4 5 6 7 8 9; do : > .thermadesk-$$-$i.part; done; )"
                       R"(exec "$thermaphoto" export --format npy 1.bmp)",
                       folder.path());
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
    QCOMPARE(folder.files().size(), 12);
}

int main(int argc, char** argv)
{
    return testing::run<TargetFilesTest>(argc, argv);
}

#include "target_files_test.moc"
