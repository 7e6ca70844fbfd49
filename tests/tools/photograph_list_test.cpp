// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/photographs.h"
#include "tests/tools/thermaphoto.h"

#include <QJsonObject>

#include <sys/stat.h>

using testing::anyPhotograph;
using testing::Ended;
using testing::Folder;
using testing::thermaphoto;

namespace {

QStringList filesOf(const Ended& ended)
{
    QStringList files;
    for (const QJsonValue value : ended.json())
        files.append(value[QStringLiteral("file")].toString());
    return files;
}

} // namespace

/// Which files are photographs, and that any name will do.
class PhotographListTest : public QObject
{
    Q_OBJECT

private slots:
    void folders();
    void recursive();
    void linkedFoldersAreNotFollowed();
    void folderWithoutPhotographs();
    void missing();
    void onlyFilesArePhotographs();
    void controlCharacters();
    void oddNames_data();
    void oddNames();
    void longestName();
    void nameThatIsNoText();
};

/// What the browser lists, in its order: "*.bmp" in any letter case, capitals first.
void PhotographListTest::folders()
{
    const Folder folder;
    for (const char* name : {"c.bmp", "B.BMP", "a.Bmp", ".hidden.bmp", "a.txt", "bmp", "sub/d.bmp"})
        folder.write(QLatin1String(name), anyPhotograph());
    QDir(folder.path()).mkdir(QStringLiteral("folder.bmp"));
    const Ended ended = thermaphoto({"info", "--json", "."}, folder.path());
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(filesOf(ended), (QStringList{"./B.BMP", "./a.Bmp", "./c.bmp"}));
}

void PhotographListTest::recursive()
{
    const Folder folder;
    for (const char* name : {"z.bmp", "b/2.bmp", "b/1.bmp", "a/x/3.bmp", ".hidden/4.bmp"})
        folder.write(QLatin1String(name), anyPhotograph());
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

void PhotographListTest::linkedFoldersAreNotFollowed()
{
    const Folder folder;
    folder.write(QStringLiteral("a/1.bmp"), anyPhotograph());
    QVERIFY(QFile::link(folder.path(), folder / QStringLiteral("a/up")));
    QVERIFY(QFile::link(folder / QStringLiteral("a/1.bmp"), folder / QStringLiteral("2.bmp")));
    const Ended ended = thermaphoto({"info", "--json", "-r", "."}, folder.path());
    QCOMPARE(filesOf(ended), (QStringList{"./2.bmp", "./a/1.bmp"}));
}

void PhotographListTest::folderWithoutPhotographs()
{
    const Folder folder;
    folder.write(QStringLiteral("sub/1.bmp"), anyPhotograph());
    const Ended ended = thermaphoto({"info", "--json", "."}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.output, QByteArray("[]\n"));
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY(ended.errors.contains("no photographs"));
}

void PhotographListTest::missing()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), anyPhotograph());
    const Ended ended =
        thermaphoto({"info", "--json", "nowhere", "1.bmp", "gone.bmp"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(filesOf(ended), QStringList("1.bmp"));
    QCOMPARE(ended.errors,
             QByteArray("thermaphoto: nowhere: cannot be read: No such file or directory\n"
                        "thermaphoto: gone.bmp: cannot be read: No such file or directory\n"));
}

/// A pipe without a writer would be waited for until the end of days.
void PhotographListTest::onlyFilesArePhotographs()
{
    const Folder folder;
    folder.write("in/1.bmp", anyPhotograph());
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

/// A name can hold what would move the cursor, or make a terminal answer.
void PhotographListTest::controlCharacters()
{
    const Folder folder;
    const QString name = QStringLiteral("a\x1b[31m\x7f\u009b.bmp");
    folder.write("in/" + name, anyPhotograph());
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

void PhotographListTest::oddNames_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"with blanks .bmp", "热像 №1 — üß.bmp", "%1 %2 %%.bmp",
                             "'quoted\" $HOME `x`.bmp", "a\nb.bmp", "-o.bmp", "*.bmp",
                             "back\\slash.bmp", "no suffix", "two.dots.bmp", "😀.bmp", ":night.bmp"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

/// Named, or found in a folder: always this file, and one line if it fails.
void PhotographListTest::oddNames()
{
    QFETCH(QString, name);
    const Folder folder;
    folder.write(QStringLiteral("in/") + name, anyPhotograph());
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
void PhotographListTest::longestName()
{
    const Folder folder;
    const QString base(251, QLatin1Char('x'));
    folder.write(base + QStringLiteral(".bmp"), anyPhotograph());
    QCOMPARE(thermaphoto({"export", "--format", "csv", "."}, folder.path()).status, 0);
    const Ended tooLong = thermaphoto({"export", "--format", "tiff", "."}, folder.path());
    QCOMPARE(tooLong.status, 1);
    QVERIFY(tooLong.errors.contains("File name too long"));
    QCOMPARE(folder.files(), (QStringList{base + ".bmp", base + ".csv"}));
}

/// Old disks have names in other encodings. They are not passed over in silence.
void PhotographListTest::nameThatIsNoText()
{
    const Folder folder;
    folder.write(QStringLiteral("1.bmp"), anyPhotograph());
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

int main(int argc, char** argv)
{
    return testing::run<PhotographListTest>(argc, argv);
}

#include "photograph_list_test.moc"
