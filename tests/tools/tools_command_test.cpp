// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/joints.h"
#include "tests/tools/thermaphoto.h"

using testing::Ended;
using testing::Folder;
using testing::joints;
using testing::jointsTable;
using testing::thermaphoto;

/// `thermaphoto tools`: work on files of measurement tools.
class ToolsCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void check();
    void print();
    void combine();
    void transform_data();
    void transform();
    void whatLeavesThePictureIsNotWritten();
    void aWrongFileIsToldAndNothingIsWritten();
    void filesThatAreThereStay();
    void usage_data();
    void usage();
};

void ToolsCommandTest::check()
{
    const Folder folder;
    folder.write("joints.json", joints);
    folder.write("joints.CSV", jointsTable);
    folder.write("wrong.json", R"({"points": [[7, 9], [241, 9]]})");
    folder.write("empty.json", "{}");
    const Ended good =
        thermaphoto({"tools", "check", "joints.json", "joints.CSV", "empty.json"}, folder.path());
    QCOMPARE(good.status, 0);
    QCOMPARE(good.output, QByteArray("joints.json: good, tools: 5\n"
                                     "joints.CSV: good, tools: 5\n"
                                     "empty.json: good, tools: 0\n"));
    QCOMPARE(good.errors, QByteArray());
    const Ended wrong = thermaphoto(
        {"tools", "check", "wrong.json", "nowhere.json", ".", "joints.json"}, folder.path());
    QCOMPARE(wrong.status, 1);
    QCOMPARE(wrong.output, QByteArray("joints.json: good, tools: 5\n"));
    QCOMPARE(wrong.errorLines().value(0), QByteArray("thermaphoto: wrong.json: \"points\", number "
                                                     "2 is outside the picture"));
    QVERIFY(wrong.errorLines().value(1).startsWith("thermaphoto: nowhere.json: cannot be read"));
    QCOMPARE(wrong.errorLines().value(2), QByteArray("thermaphoto: .: is not a regular file"));
    QCOMPARE(wrong.errorLines().size(), 3);
}

void ToolsCommandTest::print()
{
    const Folder folder;
    folder.write("joints.json", joints);
    const Ended ended = thermaphoto({"tools", "print", "joints.json"}, folder.path());
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.output, QByteArray("joints.json\n"
                                      "name  type      numbers            colour\n"
                                      "P0    point     7, 9               #ff0000\n"
                                      "P3    point     120, 160           #0000ff\n"
                                      "L0    line      10, 300, 200, 20   #ff0000\n"
                                      "R1    rectangle 100, 99, 30, 60    #ff0000\n"
                                      "C0    circle    150, 200, 40       #80ffffff\n"));
}

void ToolsCommandTest::combine()
{
    const Folder folder;
    folder.write("joints.json", joints);
    folder.write("more.json", R"({"points": [[1, 2], [3, 4], [5, 6]], "lines": [[1, 2, 3, 4]],
                                  "colours": {"P1": "#00ff00"}})");
    const Ended ended =
        thermaphoto({"tools", "combine", "joints.json", "more.json"}, folder.path());
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.output, QByteArray(R"({
    "version": 1,
    "points": [[7, 9], [1, 2], [3, 4], [120, 160], [5, 6]],
    "lines": [[10, 300, 200, 20], [1, 2, 3, 4]],
    "rectangles": [[100, 99, 30, 60]],
    "circles": [[150, 200, 40]],
    "names": ["P0", "P1", "P2", "P3", "P4", "L0", "L1", "R1", "C0"],
    "colours": {"P2": "#00ff00", "P3": "#0000ff", "C0": "#80ffffff"}
}
)"));
    const Ended alone = thermaphoto({"tools", "combine", "joints.json"}, folder.path());
    QCOMPARE(alone.output, QByteArray(joints));
}

void ToolsCommandTest::transform_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("numbers");
    QTest::newRow("mirrored") << QStringList("--mirror")
                              << QByteArray("[[232, 9], [0, 5]] [[229, 300, 39, 20]] "
                                            "[[139, 99, 209, 60]] [[89, 200, 40]]");
    QTest::newRow("moved") << QStringList{"--move", "-7,19"}
                           << QByteArray("[[0, 28], [233, 24]] [[3, 319, 193, 39]] "
                                         "[[93, 118, 23, 79]] [[143, 219, 40]]");
    QTest::newRow("mirrored, then moved")
        << QStringList{"--move", "5,-5", "--mirror"}
        << QByteArray("[[237, 4], [5, 0]] [[234, 295, 44, 15]] [[144, 94, 214, 55]] "
                      "[[94, 195, 40]]");
    QTest::newRow("nowhere") << QStringList{"--move", "0,0"}
                             << QByteArray("[[7, 9], [240, 5]] [[10, 300, 200, 20]] "
                                           "[[100, 99, 30, 60]] [[150, 200, 40]]");
}

void ToolsCommandTest::transform()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, numbers);
    const Folder folder;
    folder.write("joints.json", QByteArray(joints).replace("[120, 160]", "[240, 5]"));
    const Ended ended =
        thermaphoto(QStringList{"tools", "transform", "joints.json"} + options, folder.path());
    QCOMPARE(ended.errors, QByteArray());
    QByteArray found;
    for (const QByteArray& line : ended.output.split('\n')) {
        if (line.contains("[["))
            found += ' ' + line.mid(line.indexOf("[[")).replace("]],", "]]");
    }
    QCOMPARE(found.trimmed(), numbers);
    QVERIFY(ended.output.endsWith(R"(    "names": ["P0", "P3", "L0", "R1", "C0"],
    "colours": {"P3": "#0000ff", "C0": "#80ffffff"}
}
)"));
}

void ToolsCommandTest::whatLeavesThePictureIsNotWritten()
{
    const Folder folder;
    folder.write("joints.json", joints);
    folder.write("edge.json", R"({"circles": [[238, 100, 1]]})");
    const Ended moved = thermaphoto(
        {"tools", "transform", "--move=0,21", "-o", "out.json", "joints.json"}, folder.path());
    QCOMPARE(moved.status, 1);
    QCOMPARE(moved.errors, QByteArray("thermaphoto: joints.json: afterwards, \"lines\", number 1 "
                                      "is not wholly inside the picture\n"));
    // A circle may touch the last column, but not the first.
    const Ended mirrored =
        thermaphoto({"tools", "transform", "--mirror", "edge.json"}, folder.path());
    QCOMPARE(mirrored.status, 1);
    QVERIFY(mirrored.errors.contains("\"circles\", number 1 is not wholly inside"));
    QCOMPARE(mirrored.output, QByteArray());
    QCOMPARE(folder.files(), (QStringList{"edge.json", "joints.json"}));
}

void ToolsCommandTest::aWrongFileIsToldAndNothingIsWritten()
{
    const Folder folder;
    folder.write("a.json", joints);
    folder.write("b.json", R"({"ovals": []})");
    folder.write("c.json", "{");
    const Ended ended = thermaphoto(
        {"tools", "combine", "-o", "out.json", "a.json", "b.json", "c.json"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 2);
    QVERIFY(ended.errorLines()[0].startsWith("thermaphoto: b.json: \"ovals\" is none of "));
    QVERIFY(ended.errorLines()[1].startsWith("thermaphoto: c.json: byte "));
    QCOMPARE(folder.files(), (QStringList{"a.json", "b.json", "c.json"}));
}

void ToolsCommandTest::filesThatAreThereStay()
{
    const Folder folder;
    folder.write("a.json", joints);
    folder.write("out.json", "mine");
    const QStringList order{"tools", "transform", "--move", "1,1", "-o", "out.json", "a.json"};
    const Ended refused = thermaphoto(order, folder.path());
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors,
             QByteArray("thermaphoto: out.json is already there (--force replaces it)\n"));
    QCOMPARE(folder.read("out.json"), QByteArray("mine"));
    QCOMPARE(thermaphoto(order + QStringList("--force"), folder.path()).status, 0);
    QVERIFY(folder.read("out.json").contains("[[8, 10], [121, 161]]"));
    // over itself, too
    const QStringList itself{"tools", "transform", "--mirror", "-f", "-o", "a.json", "a.json"};
    QCOMPARE(thermaphoto(itself, folder.path()).status, 0);
    QCOMPARE(thermaphoto(itself, folder.path()).status, 0);
    QCOMPARE(folder.read("a.json"), QByteArray(joints));
    const Ended nowhere =
        thermaphoto({"tools", "combine", "-o", "no/out.json", "a.json"}, folder.path());
    QCOMPARE(nowhere.status, 1);
    QVERIFY(nowhere.errors.contains("no/out.json cannot be written: "));
}

void ToolsCommandTest::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* arguments, const char* complaint) {
        QTest::newRow(arguments) << QString(arguments).split(' ', Qt::SkipEmptyParts)
                                 << QByteArray(complaint);
    };
    row("", "an action (check, print, convert, combine or transform) and a file must be named");
    row("check", "an action (check, print, convert, combine or transform) and a file");
    row("paint a.json", "paint is none of check, print, convert, combine or transform");
    row("convert a.json a.json", "convert takes one file");
    row("transform --mirror a.json a.json", "transform takes one file");
    row("transform a.json", "transform takes --mirror or --move");
    row("combine --mirror a.json", "--mirror is for transform");
    row("print --move 1,1 a.json", "--move is for transform");
    row("check --format csv a.json", "--format is for convert, combine and transform");
    row("check -o b.json a.json", "--output is for convert");
    row("print --force a.json", "--force is for convert");
    row("combine --format xml a.json", "--format is one of json, csv");
    row("transform --move 1 a.json", "--move is two whole numbers");
    row("transform --move 1,2,3 a.json", "--move is two whole numbers");
    row("transform --move 1,b a.json", "--move is two whole numbers");
    row("transform --move 1.5,2 a.json", "--move is two whole numbers");
    row("transform --move 0,321 a.json", "--move is two whole numbers, as in 5,-3, to 320");
    row("transform --move -2147483648,0 a.json", "--move is two whole numbers");
    row("check --layout 0 a.json", "layout");
}

void ToolsCommandTest::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, complaint);
    const Folder folder;
    folder.write("a.json", joints);
    const Ended ended = thermaphoto(QStringList("tools") + arguments, folder.path());
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY2(ended.errors.contains(complaint), ended.errors.constData());
    QCOMPARE(folder.files(), QStringList("a.json"));
}

int main(int argc, char** argv)
{
    return testing::run<ToolsCommandTest>(argc, argv);
}

#include "tools_command_test.moc"
