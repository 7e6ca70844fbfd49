// SPDX-License-Identifier: MIT
#include "tests/analysis/photograph/read_photograph.h"
#include "tests/support/test_run.h"

#include <memory>

using analysis::Photograph;
using testing::photographBytes;
using testing::readFrom;
using testing::Shot;
using testing::temperatureAt;

/// What a photograph's bytes mean, but for its temperatures: palette, parameters, machine, markers.
class PhotographTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Photograph> photograph;

private slots:
    void init() { photograph = std::make_unique<Photograph>(); }

    void paletteEntriesKeepTheirLowBitsZero_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("red");
        QTest::addColumn<int>("green");
        QTest::addColumn<int>("blue");
        QTest::newRow("white") << 0xFFFF << 248 << 252 << 248;
        QTest::newRow("red") << 0xF800 << 248 << 0 << 0;
        QTest::newRow("green") << 0x07E0 << 0 << 252 << 0;
        QTest::newRow("blue") << 0x001F << 0 << 0 << 248;
        QTest::newRow("darkest of each") << 0x0821 << 8 << 4 << 8;
        QTest::newRow("mixed") << 0x1234 << 16 << 68 << 160;
    }
    void paletteEntriesKeepTheirLowBitsZero()
    {
        QFETCH(int, entry);
        QFETCH(int, red);
        QFETCH(int, green);
        QFETCH(int, blue);
        for (int model : {0, 1}) {
            Shot shot;
            shot.model = model;
            shot.palette = [entry](int v) {
                return v == 37 ? entry : 0;
            };
            QVERIFY(readFrom(photographBytes(shot), model, *photograph));
            const analysis::Rgb expected{uchar(red), uchar(green), uchar(blue)};
            QVERIFY(photograph->palette[37] == expected);
            QVERIFY(photograph->palette[36] == analysis::Rgb{});
            QVERIFY(photograph->palette[38] == analysis::Rgb{});
        }
    }

    void parametersHaveTheirWidthsAndSigns()
    {
        for (int model : {0, 1}) {
            Shot shot;
            shot.model = model;
            shot.unit = 200;
            shot.maximum10 = -1;
            shot.minimum10 = -32768;
            shot.grayMaximum = 255;
            shot.grayMinimum = 128;
            shot.centre10 = -273;
            shot.emissivity100 = 250;
            shot.machineId = 6;
            shot.firmware10 = 65535;
            QByteArray bytes = photographBytes(shot);
            if (model == 0)
                testing::put(bytes, 307766 + 42, 65535, 2); // no version there
            QVERIFY(readFrom(bytes, model, *photograph));
            const analysis::Parameters& p = photograph->parameters;
            QCOMPARE(int(p.unit), 200);
            QCOMPARE(int(p.maximum10), -1);
            QCOMPARE(int(p.minimum10), -32768);
            QCOMPARE(int(p.grayMaximum), 255);
            QCOMPARE(int(p.grayMinimum), 128);
            QCOMPARE(int(p.centre10), -273);
            QCOMPARE(int(p.emissivity100), 250);
            QCOMPARE(p.machineId, 6U);
            QCOMPARE(int(p.firmware10), model == 1 ? 65535 : 0);
        }
    }

    void onlyTwoMachinesAreSupported_data()
    {
        QTest::addColumn<quint32>("machineId");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("5") << 5U << true;
        QTest::newRow("6") << 6U << true;
        QTest::newRow("4") << 4U << false;
        QTest::newRow("7") << 7U << false;
        QTest::newRow("0") << 0U << false;
        QTest::newRow("5 in the low byte") << 0x105U << false;
        QTest::newRow("5 in the low half") << 0x10005U << false;
        QTest::newRow("6 with the top bit") << 0x80000006U << false;
    }
    void onlyTwoMachinesAreSupported()
    {
        QFETCH(quint32, machineId);
        QFETCH(bool, accepted);
        for (int model : {0, 1}) {
            Shot shot;
            shot.model = model;
            shot.machineId = machineId;
            QCOMPARE(readFrom(photographBytes(shot), model, *photograph), accepted);
        }
    }

    void aRejectedPhotographReplacesWhatComesBeforeTheMachine()
    {
        Shot good;
        good.gray = [](int, int) {
            return 255;
        };
        good.markers = {1, 2, 3, 4, 5, 6};
        QVERIFY(readFrom(photographBytes(good), 0, *photograph));
        Shot bad = good;
        bad.machineId = 9;
        bad.gray = [](int, int) {
            return 7;
        };
        bad.palette = [](int) {
            return 0xFFFF;
        };
        bad.maximum10 = 999;
        bad.markers = {11, 12, 13, 14, 15, 16};
        QVERIFY(!readFrom(photographBytes(bad), 0, *photograph));
        QCOMPARE(int(photograph->gray[0]), 7);
        QCOMPARE(int(photograph->palette[0].red), 248);
        QCOMPARE(int(photograph->parameters.maximum10), 999);
        QCOMPARE(int(photograph->markerA.x), 1);
        QVERIFY(temperatureAt(*photograph, 0, 0) == 50.0F);
        QCOMPARE(photograph->mean, 50.0);
    }

    void markersOfModelIndexZero()
    {
        Shot shot;
        shot.markers = {10, 20, 30, 40, 50, 60};
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QCOMPARE(int(photograph->markerA.x), 10);
        QCOMPARE(int(photograph->markerA.y), 20);
        QCOMPARE(int(photograph->markerB.x), 30);
        QCOMPARE(int(photograph->markerB.y), 40);
        QCOMPARE(int(photograph->markerC.x), 49);
        QCOMPARE(int(photograph->markerC.y), 59);
    }

    void markersOfModelIndexOneAreTurned()
    {
        Shot shot;
        shot.model = 1;
        shot.markers = {10, 20, 30, 40, 50, 60};
        QVERIFY(readFrom(photographBytes(shot), 1, *photograph));
        QCOMPARE(int(photograph->markerA.x), 229);
        QCOMPARE(int(photograph->markerA.y), 299);
        QCOMPARE(int(photograph->markerB.x), 209);
        QCOMPARE(int(photograph->markerB.y), 279);
        // A pure turn of the zero-based point (49, 59) would be (190, 260).
        QCOMPARE(int(photograph->markerC.x), 189);
        QCOMPARE(int(photograph->markerC.y), 259);
    }

    void markersOutOfRangeWrapAround()
    {
        Shot shot;
        shot.markers = {40000, 65535, 0, 32768, 0, 1};
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QCOMPARE(int(photograph->markerA.x), -25536);
        QCOMPARE(int(photograph->markerA.y), -1);
        QCOMPARE(int(photograph->markerB.y), -32768);
        QCOMPARE(int(photograph->markerC.x), -1);
        QCOMPARE(int(photograph->markerC.y), 0);
        shot.model = 1;
        QVERIFY(readFrom(photographBytes(shot), 1, *photograph));
        QCOMPARE(int(photograph->markerA.x), 239 - 40000 + 65536);
        QCOMPARE(int(photograph->markerB.y), 319 - 32768);
        QCOMPARE(int(photograph->markerC.x), 239);
        QCOMPARE(int(photograph->markerC.y), 318);
    }

    void anyOtherModelIndexKeepsTheGrayImage()
    {
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        shot.gray = [](int, int) {
            return 10;
        };
        shot.maximum10 = 1000;
        shot.markers = {1, 2, 3, 4, 5, 6};
        shot.palette = [](int) {
            return 0xF800;
        };
        for (int modelIndex : {-1, 2}) {
            *photograph = Photograph();
            photograph->gray.fill(255);
            QVERIFY(readFrom(photographBytes(shot), modelIndex, *photograph));
            QCOMPARE(int(photograph->gray[0]), 255);
            QVERIFY(temperatureAt(*photograph, 0, 0) == 100.0F);
            QCOMPARE(int(photograph->palette[0].red), 248);
            QCOMPARE(int(photograph->markerC.y), 5);
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotographTest>(argc, argv);
}

#include "photograph_test.moc"
