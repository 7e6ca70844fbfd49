// SPDX-License-Identifier: MIT
#include "tests/analysis/photograph/read_photograph.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <cstring>
#include <memory>

using analysis::Photograph;
using testing::expectedTemperature;
using testing::photographBytes;
using testing::readFrom;
using testing::Shot;
using testing::slope;
using testing::temperatureAt;

namespace {

quint32 bitsOf(float value)
{
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

/// The temperatures of a photograph, to the bit: from its gray picture or from its raw image.
class PhotographTemperaturesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Photograph> photograph;

private slots:
    void init() { photograph = std::make_unique<Photograph>(); }

    void grayPathGivesTheKnownField_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<int>("modelIndex");
        QTest::newRow("model index 0") << 0 << 0;
        QTest::newRow("model index 1") << 1 << 1;
    }
    void grayPathGivesTheKnownField()
    {
        QFETCH(int, model);
        QFETCH(int, modelIndex);
        Shot shot;
        shot.model = model;
        shot.gray = slope;
        shot.maximum10 = 1234;
        shot.minimum10 = -87;
        shot.grayMaximum = 200;
        shot.grayMinimum = 20;
        QVERIFY(readFrom(photographBytes(shot), modelIndex, *photograph));
        double sum = 0;
        for (int y = 0; y < 320; ++y) {
            for (int x = 0; x < 240; ++x) {
                const float expected = expectedTemperature(1234, -87, 200, 20, slope(x, y));
                sum += double(expected);
                if (int(photograph->gray[std::size_t(y * 240 + x)]) != slope(x, y))
                    QFAIL(qPrintable(QStringLiteral("gray at %1, %2").arg(x).arg(y)));
                if (temperatureAt(*photograph, x, y) != expected)
                    QFAIL(qPrintable(QStringLiteral("temperature at %1, %2").arg(x).arg(y)));
            }
        }
        QCOMPARE(photograph->mean, sum / 76800.0);
    }

    void endsOfTheGrayScale()
    {
        Shot shot;
        shot.maximum10 = 1234;
        shot.minimum10 = -87;
        shot.grayMaximum = 200;
        shot.grayMinimum = 20;
        shot.gray = [](int x, int) {
            return x == 5 ? 200 : 20;
        };
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QVERIFY(temperatureAt(*photograph, 5, 300) == 123.4F);
        QVERIFY(temperatureAt(*photograph, 6, 300) == -8.7F);
    }

    // Worked out with single and double precision numbers of another language; in each row a
    // computation all in single or all in double precision gives another value.
    void everyStepHasItsPrecision_data()
    {
        QTest::addColumn<int>("maximum10");
        QTest::addColumn<int>("minimum10");
        QTest::addColumn<int>("grayMaximum");
        QTest::addColumn<int>("grayMinimum");
        QTest::addColumn<int>("gray");
        QTest::addColumn<quint32>("bits");
        QTest::newRow("44.306") << 1991 << 268 << 221 << 34 << 53 << 0x423139C6U;
        QTest::newRow("112.499") << 3054 << -255 << 232 << 9 << 102 << 0x42E0FF4FU;
        QTest::newRow("-13.183") << 739 << -306 << 195 << 3 << 35 << 0xC152EEEDU;
        QTest::newRow("95.180") << 2778 << 333 << 183 << 21 << 62 << 0x42BE5BF9U;
        QTest::newRow("-3.982") << 427 << -363 << 252 << 32 << 122 << 0xC07ED613U;
        QTest::newRow("15.663") << 574 << 167 << 192 << 35 << 31 << 0x417A9BE5U;
        QTest::newRow("29.848") << 1224 << -121 << 214 << 12 << 75 << 0x41EEC8BEU;
        QTest::newRow("-4.892") << 1818 << 163 << 203 << 39 << 18 << 0xC09C8BDCU;
        QTest::newRow("1.701") << 138 << -261 << 185 << 30 << 138 << 0x3FD9C3DFU;
        QTest::newRow("-17.674") << 618 << -245 << 214 << 37 << 51 << 0xC18D6461U;
    }
    void everyStepHasItsPrecision()
    {
        QFETCH(int, maximum10);
        QFETCH(int, minimum10);
        QFETCH(int, grayMaximum);
        QFETCH(int, grayMinimum);
        QFETCH(int, gray);
        QFETCH(quint32, bits);
        Shot shot;
        shot.gray = [gray](int, int) {
            return gray;
        };
        shot.maximum10 = maximum10;
        shot.minimum10 = minimum10;
        shot.grayMaximum = grayMaximum;
        shot.grayMinimum = grayMinimum;
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QCOMPARE(bitsOf(temperatureAt(*photograph, 239, 319)), bits);
    }

    void aGrayScaleUpsideDownIsTakenAsItIs()
    {
        Shot shot;
        shot.grayMaximum = 10;
        shot.grayMinimum = 250;
        shot.gray = [](int, int) {
            return 10;
        };
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QVERIFY(temperatureAt(*photograph, 0, 0) == 50.0F);
    }

    void withoutAGrayScaleTemperaturesAreInfiniteOrNone()
    {
        Shot shot;
        shot.grayMaximum = shot.grayMinimum = 100;
        shot.gray = [](int x, int) {
            return 99 + x % 3;
        };
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QVERIFY(temperatureAt(*photograph, 0, 0) == -INFINITY);
        QVERIFY(std::isnan(temperatureAt(*photograph, 1, 0)));
        QVERIFY(temperatureAt(*photograph, 2, 0) == INFINITY);
        QVERIFY(std::isnan(photograph->mean));
    }

    void rawImageCountsAtItsExactSize()
    {
        Shot shot;
        shot.gray = slope;
        shot.raw = [](int row, int column) {
            return 4000 + row * 5 + column;
        };
        const QByteArray file = photographBytes(shot);
        QCOMPARE(file.size(), 406096);
        QVERIFY(readFrom(file, 0, *photograph));
        double sum = 0;
        for (int i = 0; i < 320; ++i) {
            for (int j = 0; j < 240; ++j) {
                const int value = 4000 + (4 * i / 5) * 5 + 4 * j / 5;
                const float expected = float(double(value) * 0.0625 - 273.15);
                sum += double(expected);
                if (temperatureAt(*photograph, j, i) != expected)
                    QFAIL(qPrintable(QStringLiteral("temperature at %1, %2").arg(j).arg(i)));
            }
        }
        QCOMPARE(photograph->mean, sum / 76800.0);
        QCOMPARE(photograph->parameters.maximum10, qint16(500));

        for (const QByteArray& other : {file + 'x', file.left(406095)}) {
            QVERIFY(readFrom(other, 0, *photograph));
            QVERIFY(temperatureAt(*photograph, 3, 4) ==
                    expectedTemperature(500, 200, 255, 0, slope(3, 4)));
        }
    }

    void rawValues_data()
    {
        QTest::addColumn<int>("sixteenths");
        QTest::addColumn<quint32>("bits");
        QTest::newRow("absolute zero") << 0 << 0xC3889333U;
        QTest::newRow("below freezing") << 4369 << 0xBDB33333U;
        QTest::newRow("room") << 4770 << 0x41C7CCCDU;
        QTest::newRow("largest") << 65535 << 0x456EEC9AU;
    }
    void rawValues()
    {
        QFETCH(int, sixteenths);
        QFETCH(quint32, bits);
        Shot shot;
        shot.raw = [sixteenths](int, int) {
            return sixteenths;
        };
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QCOMPARE(bitsOf(temperatureAt(*photograph, 120, 160)), bits);
    }

    void modelIndexOneTakesTheRawImageToo()
    {
        Shot shot;
        shot.model = 1;
        shot.gray = slope;
        QByteArray file = photographBytes(shot);
        file.append(QByteArray(406096 - file.size(), '\0'));
        testing::put(file, 307792 + 2 * (255 * 192 + 191), 4770, 2);
        QVERIFY(readFrom(file, 1, *photograph));
        QCOMPARE(bitsOf(temperatureAt(*photograph, 239, 319)), 0x41C7CCCDU);
        QCOMPARE(bitsOf(temperatureAt(*photograph, 238, 318)), 0xC3889333U);
    }

    void meanOfAFlatPicture()
    {
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        shot.maximum10 = 250;
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        QCOMPARE(photograph->mean, 25.0);
    }

    void theNearestPixelAnswersOutsideThePicture()
    {
        Shot shot;
        shot.gray = [](int x, int y) {
            return x == 239 && y == 319 ? 255 : 0;
        };
        QVERIFY(readFrom(photographBytes(shot), 0, *photograph));
        const analysis::Temperatures& t = photograph->temperatures;
        QVERIFY(analysis::nearestTemperature(t, 239, 319) == 50.0F);
        QVERIFY(analysis::nearestTemperature(t, 240, 320) == 50.0F);
        QVERIFY(analysis::nearestTemperature(t, 100000, 100000) == 50.0F);
        QVERIFY(analysis::nearestTemperature(t, -1, 320) == 20.0F);
        QVERIFY(analysis::nearestTemperature(t, 239, -100000) == 20.0F);
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotographTemperaturesTest>(argc, argv);
}

#include "photograph_temperatures_test.moc"
