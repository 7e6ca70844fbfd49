// SPDX-License-Identifier: MIT
#include "analysis/photograph/file_buffer.h"
#include "analysis/photograph/photograph.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QFile>

#include <cmath>
#include <cstring>
#include <memory>
#include <random>

using analysis::FileBuffer;
using analysis::Photograph;
using testing::photographBytes;
using testing::Shot;

namespace {

int slope(int x, int y)
{
    return (x * 7 + y * 3) % 256;
}

/// A file buffer's worth of bytes: the file, then zeros.
QByteArray buffered(const QByteArray& file)
{
    return file + QByteArray(FileBuffer::size - file.size(), '\0');
}

const uchar* unsignedBytes(const QByteArray& bytes)
{
    return reinterpret_cast<const uchar*>(bytes.constData());
}

bool readFrom(const QByteArray& file, int modelIndex, Photograph& photograph)
{
    return analysis::read(unsignedBytes(buffered(file)), file.size(), modelIndex, photograph);
}

float temperatureAt(const Photograph& photograph, int x, int y)
{
    return photograph.temperatures[std::size_t(x * 320 + y)];
}

/// The temperature of one pixel, each step in the precision it is meant to have.
float expectedTemperature(int maximum10, int minimum10, int grayMaximum, int grayMinimum, int gray)
{
    const double span = maximum10 / 10.0 - minimum10 / 10.0;
    const float ratio = (float(grayMaximum) - float(gray)) / float(grayMaximum - grayMinimum);
    return float(maximum10 / 10.0 - double(ratio) * span);
}

quint32 bitsOf(float value)
{
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

bool sameValue(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

class PhotographTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Photograph> photograph;

private slots:
    void init()
    {
        testing::profile().reset();
        photograph = std::make_unique<Photograph>();
    }

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

    void aNewBufferIsZero()
    {
        const FileBuffer buffer;
        QVERIFY(std::all_of(buffer.bytes(), buffer.bytes() + FileBuffer::size,
                            [](uchar byte) { return byte == 0; }));
    }

    void aShortFileLeavesTheRestOfTheBuffer()
    {
        FileBuffer buffer;
        QCOMPARE(buffer.read(file(QStringLiteral("long"), "abcdefgh")), 8);
        QCOMPARE(buffer.read(file(QStringLiteral("short"), "xyz")), 3);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(buffer.bytes()), 10),
                 QByteArray("xyzdefgh\0\0", 10));
        QCOMPARE(buffer.read(file(QStringLiteral("empty"), "")), 0);
        QCOMPARE(int(buffer.bytes()[0]), int('x'));
        buffer.clear();
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(buffer.bytes()), 10),
                 QByteArray(10, '\0'));
    }

    void noMoreThanTwoMillionBytesAreRead_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::newRow("exactly") << Q_INT64_C(2000000);
        QTest::newRow("one more") << Q_INT64_C(2000001);
        QTest::newRow("4 GB") << (Q_INT64_C(1) << 32);
    }
    void noMoreThanTwoMillionBytesAreRead()
    {
        QFETCH(qint64, size);
        const QString path = file(QStringLiteral("large"), "abc");
        QFile large(path);
        QVERIFY(large.open(QIODevice::ReadWrite));
        QVERIFY(large.resize(size)); // sparse: takes no room
        large.close();
        FileBuffer buffer;
        QCOMPARE(buffer.read(path), 2000000);
        QCOMPARE(int(buffer.bytes()[2]), int('c'));
        QVERIFY(large.remove());
    }

    void whatCannotBeReadCountsMinusOne()
    {
        FileBuffer buffer;
        const QString home = testing::profile().home();
        QCOMPARE(buffer.read(home + QStringLiteral("/missing.bmp")), -1);
        QCOMPARE(buffer.read(QString()), -1);
        const QString folder = home + QStringLiteral("/folder.bmp");
        QVERIFY(QDir().mkpath(folder));
        QCOMPARE(buffer.read(folder), -1);
        if (!testing::onWindows()) { // where a link is an ordinary file
            const QString dangling = home + QStringLiteral("/dangling.bmp");
            QFile::remove(dangling);
            QVERIFY(QFile::link(home + QStringLiteral("/nowhere"), dangling));
            QCOMPARE(buffer.read(dangling), -1);
        }
        QVERIFY(std::all_of(buffer.bytes(), buffer.bytes() + FileBuffer::size,
                            [](uchar byte) { return byte == 0; }));
    }

    void unusualFileNames_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"热像.bmp", "Снимок №1.bmp", "사진.bmp", "a#b.bmp", "100%.bmp",
                                 "%41.bmp", "blank .bmp ", " .bmp", "a&b.bmp"})
            QTest::newRow(name) << QString::fromUtf8(name);
        if (!testing::onWindows()) // where no name may hold them
            QTest::newRow("a?b\\c.bmp") << QStringLiteral("a?b\\c.bmp");
    }
    void unusualFileNames()
    {
        QFETCH(QString, name);
        FileBuffer buffer;
        QCOMPARE(buffer.read(file(name, "abc")), 3);
    }

    void cutPhotographs_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<bool>("raw");
        QTest::newRow("model index 0") << 0 << false;
        QTest::newRow("model index 0 with a raw image") << 0 << true;
        QTest::newRow("model index 1") << 1 << false;
    }
    void cutPhotographs()
    {
        QFETCH(int, model);
        QFETCH(bool, raw);
        Shot shot;
        shot.model = model;
        shot.gray = slope;
        shot.maximum10 = 0x0123;
        shot.minimum10 = 0x0102;
        shot.grayMaximum = 0x83;
        shot.grayMinimum = 0x11;
        if (raw)
            shot.raw = [](int row, int) {
                return 4500 + row;
            };
        const QByteArray file = photographBytes(shot);

        const int gray = model == 1 ? 153657 : 230454;
        const int block = model == 1 ? 230969 : 307766;
        QVector<int> lengths{gray, gray + 76800, block, 307792, 406096, file.size()};
        const QVector<int> borders = lengths;
        for (const int border : borders)
            lengths << border - 1 << border + 1;
        for (int i = 0; i <= 44; ++i)
            lengths << block + i;
        for (int length = 0; length < file.size(); length += 97)
            lengths << length;

        // What is cut off counts as zero in a new buffer. Only the tail changes from one length to
        // the next, so one buffer serves them all.
        std::sort(lengths.begin(), lengths.end(), std::greater<>());
        QByteArray bytes = buffered(file);
        int filled = file.size();
        for (int length : lengths) {
            if (length > file.size())
                continue;
            std::fill(bytes.begin() + length, bytes.begin() + filled, '\0');
            filled = length;
            const bool accepted = analysis::read(unsignedBytes(bytes), length, model, *photograph);
            QCOMPARE(accepted, length > block + 10);
            if (!accepted)
                continue;
            if (length == 406096)
                QVERIFY(temperatureAt(*photograph, 0, 319) == float(4755 * 0.0625 - 273.15));
            else
                QVERIFY(temperatureAt(*photograph, 0, 319) ==
                        expectedTemperature(0x0123, 0x0102, 0x83, 0x11, slope(0, 319)));
        }
    }

    void aCutPhotographShowsWhatTheBufferHeldBefore()
    {
        const QString path = file(QStringLiteral("whole.bmp"), photographBytes(Shot()));
        FileBuffer buffer;
        int count = buffer.read(path);
        QVERIFY(analysis::read(buffer.bytes(), count, 0, *photograph));
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        const int lastGray = 230454 + 76800 - 240;
        count = buffer.read(file(QStringLiteral("cut.bmp"), photographBytes(shot).left(lastGray)));
        QCOMPARE(count, lastGray);
        QVERIFY(analysis::read(buffer.bytes(), count, 0, *photograph));
        QVERIFY(temperatureAt(*photograph, 7, 318) == 50.0F);
        QVERIFY(temperatureAt(*photograph, 7, 319) == 20.0F);

        // The missing file leaves everything as it was and still counts as read.
        count = buffer.read(QStringLiteral("missing.bmp"));
        QCOMPARE(count, -1);
        QVERIFY(analysis::read(buffer.bytes(), count, 0, *photograph));
    }

    void mutatedPhotographs()
    {
        std::mt19937 random(20240229);
        const auto upTo = [&random](int end) {
            return std::uniform_int_distribution<int>(0, end - 1)(random);
        };
        std::array<QByteArray, 3> files;
        for (int kind = 0; kind < 3; ++kind) {
            Shot shot;
            shot.model = kind == 1 ? 1 : 0;
            shot.gray = slope;
            if (kind == 2)
                shot.raw = [](int row, int column) {
                    return row * 250 + column;
                };
            files[std::size_t(kind)] = buffered(photographBytes(shot));
        }
        const int rounds = testing::isLongRun() ? 100'000 : 5'000;
        for (int round = 0; round < rounds; ++round) {
            const int modelIndex = upTo(4) - 1;
            QByteArray& bytes = files[std::size_t(upTo(3))];
            const int block = modelIndex == 1 ? 230969 : 307766;
            // Mostly where a byte decides something, sometimes anywhere.
            for (int i = upTo(6); i >= 0; --i)
                bytes[upTo(4) != 0 ? block + upTo(44) : upTo(410000)] = char(upTo(256));
            if (upTo(8) == 0)
                testing::put(bytes, block + 10, quint32(5 + upTo(2)), 4);
            const int count = upTo(4) == 0 ? 406096 : upTo(2'000'001) - 1;

            const uchar* p = unsignedBytes(bytes) + block;
            const bool supported = (p[10] == 5 || p[10] == 6) && !p[11] && !p[12] && !p[13];
            if (analysis::read(unsignedBytes(bytes), count, modelIndex, *photograph) != supported)
                QFAIL(qPrintable(QStringLiteral("machine in round %1").arg(round)));
            if (!supported)
                continue;
            const int x = upTo(240);
            const int y = upTo(320);
            const uchar* raw = unsignedBytes(bytes) + 307792 + 2 * (4 * y / 5 * 192 + 4 * x / 5);
            const float expected =
                count == 406096
                    ? float((raw[0] + 256 * raw[1]) * 0.0625 - 273.15)
                    : expectedTemperature(qint16(p[1] + 256 * p[2]), qint16(p[3] + 256 * p[4]),
                                          p[5], p[6], photograph->gray[std::size_t(y * 240 + x)]);
            if (!sameValue(temperatureAt(*photograph, x, y), expected))
                QFAIL(qPrintable(QStringLiteral("temperature in round %1").arg(round)));
        }
    }

private:
    static QString file(const QString& name, const QByteArray& bytes)
    {
        const QString path = testing::profile().home() + QLatin1Char('/') + name;
        testing::putFile(path, bytes);
        return path;
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotographTest>(argc, argv);
}

#include "photograph_test.moc"
