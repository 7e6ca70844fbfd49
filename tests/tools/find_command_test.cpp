// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

using testing::Across;
using testing::Ended;

/// Names of photographs by what is in them: "across" has 20.0 to 43.9 °C, "cold" 20 °C below.
class FindCommandTest : public QObject
{
    Q_OBJECT

    const Across folder{R"({"points": [[100, 50]], "rectangles": [[10, 0, 20, 9]]})"};

private slots:
    void initTestCase()
    {
        testing::Shot shot;
        shot.gray = [](int x, int) {
            return x;
        };
        shot.maximum10 = 240;
        shot.minimum10 = 0;
        shot.grayMaximum = 240;
        shot.grayMinimum = 0;
        folder.write("cold.bmp", photographBytes(shot));
        folder.write("none.bmp", testing::withoutReadings());
    }

    void find_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("names");
        QTest::newRow("hotter") << "--above 30" << QByteArray("a.bmp\n");
        QTest::newRow("just not hotter") << "--above 43.9" << QByteArray();
        QTest::newRow("just hotter") << "--above 43.85" << QByteArray("a.bmp\n");
        QTest::newRow("both") << "--above 20" << QByteArray("a.bmp\ncold.bmp\n");
        QTest::newRow("colder") << "--below 0.1" << QByteArray("cold.bmp\n");
        QTest::newRow("just not colder") << "--below 0" << QByteArray();
        QTest::newRow("between") << "--above 23.95 --below 30" << QByteArray("a.bmp\n");
        QTest::newRow("between two readings") << "--above 24.01 --below 24.09" << QByteArray();
        QTest::newRow("below zero") << "--above -5 --below 1" << QByteArray("cold.bmp\n");
        QTest::newRow("in Fahrenheit") << "--above 111 --unit F" << QByteArray("a.bmp\n");
        QTest::newRow("under the tools")
            << "--above 29.9 --tools tools.json" << QByteArray("a.bmp\n");
        QTest::newRow("not under the tools") << "--above 30.1 --tools tools.json" << QByteArray();
        QTest::newRow("under another tool")
            << "--below 1.5 --tools tools.json" << QByteArray("cold.bmp\n");
    }
    /// As programs do that search: 0 when there is one, 1 when there is none.
    void find()
    {
        QFETCH(QString, options);
        QFETCH(QByteArray, names);
        const Ended ended = folder.run("find a.bmp cold.bmp none.bmp " + options);
        QCOMPARE(ended.output, names);
        QCOMPARE(ended.errors, QByteArray());
        QCOMPARE(ended.status, names.isEmpty() ? 1 : 0);
    }

    void whatFailed()
    {
        const Ended ended = folder.run("find --above 30 missing.bmp a.bmp");
        QCOMPARE(ended.output, QByteArray("a.bmp\n"));
        QCOMPARE(ended.errorLines().size(), 1);
        QVERIFY(ended.errors.startsWith("thermaphoto: missing.bmp: cannot be read"));
        QCOMPARE(ended.status, 2);
        QCOMPARE(folder.run("find --above 99 missing.bmp a.bmp").status, 2);
    }

    void zeroBytes()
    {
        QCOMPARE(folder.run("find --null --above 20 a.bmp cold.bmp").output,
                 QByteArray("a.bmp\0cold.bmp\0", 15));
    }

    void wrong_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("nothing asked") << "";
        QTest::newRow("no number") << " --above hot";
        QTest::newRow("no finite number") << " --above inf";
        QTest::newRow("nothing in between") << " --above 30 --below 30";
        QTest::newRow("tools not there") << " --above 30 --tools nowhere.json";
    }
    void wrong()
    {
        QFETCH(QString, options);
        const Ended ended = folder.run("find a.bmp" + options);
        QCOMPARE(ended.status, 2);
        QCOMPARE(ended.output, QByteArray());
        QCOMPARE(ended.errorLines().size(), 1);
    }
};

int main(int argc, char** argv)
{
    return testing::run<FindCommandTest>(argc, argv);
}

#include "find_command_test.moc"
