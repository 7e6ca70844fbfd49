// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/across.h"

#include <QJsonObject>

using testing::Across;
using testing::Ended;
using testing::Shot;

namespace {

/// 30 °C with three hot and one cold pixel; 0.1 °C for each gray value.
QByteArray spotted()
{
    Shot shot;
    shot.gray = [](int x, int y) {
        if (y == 60 && (x == 100 || x == 120 || x == 108))
            return x == 100 ? 220 : x == 120 ? 200 : 210;
        return x == 7 && y == 300 ? 20 : 100;
    };
    shot.maximum10 = 440;
    shot.minimum10 = 200;
    shot.grayMaximum = 240;
    shot.grayMinimum = 0;
    return photographBytes(shot);
}

} // namespace

/// The hottest and the coldest spots.
class SpotsCommandTest : public QObject
{
    Q_OBJECT

    const Across folder{R"({"rectangles": [[105, 50, 130, 70]], "lines": [[240, 1, 240, 9]]})",
                        spotted()};

private slots:
    /// The one at 108 is too near to the hottest.
    void thePicture()
    {
        const Ended ended = folder.run("spots --format csv a.bmp");
        QCOMPARE(ended.output, QByteArray("file,unit,name,type,x,y,temperature\n"
                                          "a.bmp,C,picture,hot,100,60,42.000\n"
                                          "a.bmp,C,picture,hot,120,60,40.000\n"
                                          "a.bmp,C,picture,cold,7,300,22.000\n"));
        QCOMPARE(ended.errors, QByteArray());
        QCOMPARE(ended.status, 0);
    }

    void countAndDistance()
    {
        const auto spots = [&](const QString& options) {
            const QByteArray output = folder.run("spots --format csv a.bmp " + options).output;
            return output.count(",hot,");
        };
        QCOMPARE(spots("--distance 7.9"), 3);
        QCOMPARE(spots("--distance 8"), 2);
        QCOMPARE(spots("--distance 0"), 3);
        QCOMPARE(spots("--distance 20"), 1);
        QCOMPARE(spots("--count 2 --distance 0"), 2);
        QCOMPARE(spots("--count 1"), 1);
    }

    /// In an area its own neighbours count; one without pixels has no spots.
    void areas()
    {
        QCOMPARE(folder.run("spots --tools tools.json --unit F a.bmp").output,
                 QByteArray("a.bmp (°F)\n"
                            "name    type    x    y temperature\n"
                            "R0      hot   108   60     105.794\n"
                            "R0      hot   120   60     103.994\n"
                            "R0      cold  118   60      85.996\n"));
    }

    void json()
    {
        const QJsonArray spots = folder.run("spots --count 1 --format json a.bmp")
                                     .json()[0]
                                     .toObject()["spots"]
                                     .toArray();
        QCOMPARE(spots.size(), 2);
        QCOMPARE(
            spots[1].toObject(),
            (QJsonObject{
                {"name", "picture"}, {"type", "cold"}, {"x", 7}, {"y", 300}, {"temperature", 22}}));
        QCOMPARE(folder.run("spots --format ndjson a.bmp a.bmp").output.count('\n'), 2);
    }

    void wrong()
    {
        for (const char* option :
             {"--count 0", "--count 10001", "--distance=-1", "--distance far", "--distance inf"}) {
            const Ended ended = folder.run(QLatin1String("spots a.bmp ") + QLatin1String(option));
            QCOMPARE(ended.status, 2);
            QCOMPARE(ended.errorLines().size(), 1);
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<SpotsCommandTest>(argc, argv);
}

#include "spots_command_test.moc"
