// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/joints.h"
#include "tests/tools/thermaphoto.h"

using testing::Ended;
using testing::Folder;
using testing::joints;
using testing::jointsTable;
using testing::thermaphoto;

/// Files of tools as JSON and as tables.
class ToolFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void convert();
    void anyTableIsRead_data();
    void anyTableIsRead();
    void wrongTables_data();
    void wrongTables();
    void tablesMeasureToo();
};

void ToolFilesTest::convert()
{
    const Folder folder;
    folder.write("joints.json", joints);
    QCOMPARE(thermaphoto({"tools", "convert", "joints.json"}, folder.path()).output,
             QByteArray(jointsTable));
    const Ended there =
        thermaphoto({"tools", "convert", "-o", "joints.csv", "joints.json"}, folder.path());
    QCOMPARE(there.status, 0);
    QCOMPARE(there.output, QByteArray());
    QCOMPARE(folder.read("joints.csv"), QByteArray(jointsTable));
    const Ended back = thermaphoto({"tools", "convert", "joints.csv"}, folder.path());
    QCOMPARE(back.status, 0);
    QCOMPARE(back.output, QByteArray(joints));
    for (const char* file : {"joints.json", "joints.csv"}) {
        const auto as = [&](const char* format) {
            return thermaphoto({"tools", "convert", "--format", format, file}, folder.path())
                .output;
        };
        QCOMPARE(as("csv"), QByteArray(jointsTable));
        QCOMPARE(as("json"), QByteArray(joints));
    }
}

void ToolFilesTest::anyTableIsRead_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::newRow("as written") << QByteArray(jointsTable);
    QTest::newRow("semicolons") << QByteArray(jointsTable).replace(',', ';');
    QTest::newRow("tabs") << QByteArray(jointsTable).replace(',', '\t');
    QTest::newRow("of Windows") << "\xEF\xBB\xBF" + QByteArray(jointsTable).replace('\n', "\r\n");
    QTest::newRow("quoted") << QByteArray(jointsTable).replace("P3,point", "\"P3\",\"point\"");
    QTest::newRow("blanks") << QByteArray(jointsTable).replace("7,9,", " 7 , 9 ,");
    QTest::newRow("no last line break") << QByteArray(jointsTable).trimmed();
    QTest::newRow("empty lines") << QByteArray(jointsTable).replace("L0", "\n,,,,,,,\nL0");
    QTest::newRow("no colour said") << QByteArray(jointsTable).replace(",,,,#ff0000", "");
    QTest::newRow("another order")
        << QByteArray(jointsTable).replace("P0,point,7,9,,,,#ff0000\n", "") +
               "P0,point,7,9,,,,#ff0000\n";
}

void ToolFilesTest::anyTableIsRead()
{
    QFETCH(QByteArray, table);
    const Folder folder;
    folder.write("joints.csv", table);
    const Ended ended = thermaphoto({"tools", "convert", "joints.csv"}, folder.path());
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.output, QByteArray(joints));
}

void ToolFilesTest::wrongTables_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* name, const char* from, const char* to, const char* complaint) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QByteArray(complaint);
    };
    row("JSON", jointsTable, joints, "line 1 is not \"name,type,x1,y1,x2,y2,radius,colour\"");
    row("empty", jointsTable, "", "line 1 is not");
    row("other titles", "x1,y1", "y1,x1", "line 1 is not");
    row("unknown type", "P3,point", "P3,oval", "line 3: \"oval\" is no type of tool");
    row("no number", "120,160", "120,here", "line 3: \"points\", number 1 is not a list of 2");
    row("half a pixel", "120,160", "120.5,160", "line 3: \"points\", number 1 is not a list of 2");
    row("a number missing", "10,300,200,20", "10,300,200,", "line 4: \"lines\", number 1");
    row("a number too many", "120,160,,,", "120,160,7,,", "line 3: \"7\" is more than a point has");
    row("a radius too many", "30,60,,", "30,60,5,", "line 5: \"5\" is more than a rectangle has");
    row("fields too many", "#0000ff", "#0000ff,x", "line 3: there are more fields than titles");
    row("outside", "120,160", "120,321", "line 3: \"points\", number 1 is outside the picture");
    row("no name", "P3", "", "line 3: \"names\", number 1 is not \"P\"");
    row("a name of another kind", "P3", "L3", "line 3: \"names\", number 1 is not \"P\"");
    row("a name twice", "P3", "P0", "there are two tools \"P0\"");
    row("no colour", "#0000ff", "blue", "line 3: \"colours\", \"P3\" is not");
}

void ToolFilesTest::wrongTables()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QByteArray, complaint);
    const Folder folder;
    const QByteArray table = QByteArray(jointsTable).replace(from, to);
    QVERIFY(table != jointsTable);
    folder.write("joints.csv", table);
    const Ended ended = thermaphoto({"tools", "convert", "joints.csv"}, folder.path());
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errorLines().size(), 1);
    QVERIFY2(ended.errors.contains("joints.csv: " + complaint), ended.errors.constData());
}

void ToolFilesTest::tablesMeasureToo()
{
    const Folder folder;
    folder.write("joints.json", joints);
    folder.write("joints.csv", jointsTable);
    folder.write("a.bmp", testing::samples().front().bytes());
    const auto measured = [&](const char* tools) {
        return thermaphoto({"measure", "--tools", tools, "a.bmp"}, folder.path()).output;
    };
    QVERIFY(measured("joints.csv").contains("P3"));
    QCOMPARE(measured("joints.csv"), measured("joints.json"));
}

int main(int argc, char** argv)
{
    return testing::run<ToolFilesTest>(argc, argv);
}

#include "tool_files_test.moc"
