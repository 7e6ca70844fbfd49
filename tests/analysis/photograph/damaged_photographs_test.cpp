// SPDX-License-Identifier: MIT
#include "tests/analysis/photograph/read_photograph.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <random>

using analysis::FileBuffer;
using analysis::Photograph;
using testing::buffered;
using testing::expectedTemperature;
using testing::photographBytes;
using testing::Shot;
using testing::slope;
using testing::temperatureAt;
using testing::unsignedBytes;

namespace {

bool sameValue(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

/// Photographs that are cut off, or whose bytes are any: what is there is read, nothing else is.
class DamagedPhotographsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Photograph> photograph;

private slots:
    void init() { photograph = std::make_unique<Photograph>(); }

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
        const testing::Folder folder;
        const QString path = folder.write(QStringLiteral("whole.bmp"), photographBytes(Shot()));
        FileBuffer buffer;
        int count = buffer.read(path);
        QVERIFY(analysis::read(buffer.bytes(), count, 0, *photograph));
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        const int lastGray = 230454 + 76800 - 240;
        count = buffer.read(
            folder.write(QStringLiteral("cut.bmp"), photographBytes(shot).left(lastGray)));
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
};

int main(int argc, char** argv)
{
    return testing::run<DamagedPhotographsTest>(argc, argv);
}

#include "damaged_photographs_test.moc"
