// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

#include <QJsonObject>

using testing::Across;
using testing::Ended;

/// Temperatures along lines.
class ProfileCommandTest : public QObject
{
    Q_OBJECT

private slots:
    /// Three to the right and one down; other tools are passed over.
    void csv()
    {
        const Across folder(
            R"({"points": [[5, 5]], "lines": [[10, 20, 13, 21], [239, 0, 240, 0]]})");
        const Ended ended = folder.run("profile --tools tools.json --format csv a.bmp");
        QCOMPARE(ended.output, QByteArray("file,unit,name,distance,x,y,temperature\n"
                                          "a.bmp,C,L0,0.000,10,20,21.000\n"
                                          "a.bmp,C,L0,1.054,11,20,21.100\n"
                                          "a.bmp,C,L0,2.108,12,21,21.200\n"
                                          "a.bmp,C,L0,3.162,13,21,21.300\n"
                                          "a.bmp,C,L1,0.000,239,0,43.900\n"));
        QCOMPARE(ended.errors, QByteArray());
        QCOMPARE(ended.status, 0);
    }

    void otherFormats()
    {
        const Across folder(R"({"lines": [[10, 20, 10, 19]]})");
        QCOMPARE(folder.run("profile --tools tools.json a.bmp").output,
                 QByteArray("a.bmp (°C)\n"
                            "name  distance    x    y temperature\n"
                            "L0       0.000   10   20      21.000\n"
                            "L0       1.000   10   19      21.000\n"));
        const QJsonObject photograph =
            folder.run("profile --tools tools.json --format json --unit F a.bmp")
                .json()[0]
                .toObject();
        QCOMPARE(photograph["unit"], QJsonValue("F"));
        // 210 / 5.556 + 32 = 69.797
        const QJsonObject expected{
            {"name", "L0"}, {"distance", 1}, {"x", 10}, {"y", 19}, {"temperature", 69.797}};
        QCOMPARE(photograph["pixels"].toArray().size(), 2);
        QCOMPARE(photograph["pixels"].toArray()[1].toObject(), expected);
        QCOMPARE(
            folder.run("profile --tools tools.json --format ndjson a.bmp a.bmp").output.count('\n'),
            2);
    }

    void withoutLines()
    {
        const Ended ended =
            Across(R"({"points": [[5, 5]]})").run("profile --tools tools.json a.bmp");
        QCOMPARE(ended.status, 2);
        QVERIFY(ended.errors.contains("--tools has no line"));
        const Ended missing = Across("{}").run("profile a.bmp");
        QCOMPARE(missing.status, 2);
        QVERIFY(missing.errors.contains("--tools is missing"));
    }

    /// A photograph without temperatures has pixels without one.
    void withoutReadings()
    {
        const Across folder(R"({"lines": [[10, 20, 11, 20]]})", testing::withoutReadings());
        QVERIFY(folder.run("profile --tools tools.json --format csv a.bmp")
                    .output.endsWith("a.bmp,C,L0,1.000,11,20,nan\n"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ProfileCommandTest>(argc, argv);
}

#include "profile_command_test.moc"
