// SPDX-License-Identifier: MIT
#include "live/live_frame.h"
#include "tests/live/instruction_sets.h"
#include "tests/support/test_run.h"

#include <array>
#include <cstring>
#include <vector>

namespace {

using Colour = std::array<int, 3>;

int clamped(double value)
{
    const int whole = int(value); // toward zero
    return whole < 0 ? 0 : whole >= 256 ? 255 : whole;
}

/// The formula as one would write it down.
Colour formula(int luma, int chromaU, int chromaV)
{
    const double u = chromaU - 128;
    const double v = chromaV - 128;
    return {clamped(luma + 1.370705 * v), clamped(luma - 0.698001 * v - 0.337633 * u),
            clamped(luma + 1.732446 * u)};
}

std::vector<uchar> frameOf(int y0, int u, int y1, int v)
{
    std::vector<uchar> frame(live::frameBytes, 0);
    for (std::size_t i = 0; i < std::size_t(live::pictureBytes); i += 4) {
        frame[i] = uchar(y0);
        frame[i + 1] = uchar(u);
        frame[i + 2] = uchar(y1);
        frame[i + 3] = uchar(v);
    }
    return frame;
}

std::vector<uchar> converted(const std::vector<uchar>& frame)
{
    std::vector<uchar> rgb(live::rgbBytes);
    live::convertPixels(frame.data(), live::picturePixels, rgb.data());
    return rgb;
}

} // namespace

class LiveFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void everyColourWithEveryInstructionSet()
    {
        // For one pair of chroma values, 256 pixels hold every luma once.
        constexpr int pixels = 256;
        std::array<uchar, pixels * 2> yuyv{};
        std::array<uchar, pixels * 3> expected{};
        std::array<uchar, pixels * 3> actual{};
        const std::vector<std::int64_t> sets = testing::instructionSets();
        QVERIFY(!sets.empty());
        for (int u = 0; u < 256; ++u) {
            for (int v = 0; v < 256; ++v) {
                for (int luma = 0; luma < pixels; ++luma) {
                    const auto at = std::size_t(luma);
                    yuyv[2 * at] = uchar(luma);
                    yuyv[2 * at + 1] = uchar(luma % 2 == 0 ? u : v);
                    const Colour colour = formula(luma, u, v);
                    for (std::size_t channel = 0; channel < 3; ++channel)
                        expected[3 * at + channel] = uchar(colour[channel]);
                }
                for (const std::int64_t set : sets) {
                    const testing::UsedInstructionSet used(set);
                    actual.fill(0x5A);
                    live::convertPixels(yuyv.data(), pixels, actual.data());
                    if (actual != expected)
                        QFAIL(qPrintable(QStringLiteral("%1 differs for U = %2, V = %3")
                                             .arg(QLatin1String(hwy::TargetName(set)))
                                             .arg(u)
                                             .arg(v)));
                }
            }
        }
    }

    void knownColours_data()
    {
        QTest::addColumn<int>("luma");
        QTest::addColumn<int>("u");
        QTest::addColumn<int>("v");
        QTest::addColumn<QList<int>>("colour");
        QTest::newRow("black") << 0 << 128 << 128 << QList<int>{0, 0, 0};
        QTest::newRow("white") << 255 << 128 << 128 << QList<int>{255, 255, 255};
        QTest::newRow("red above the range") << 255 << 128 << 255 << QList<int>{255, 166, 255};
        QTest::newRow("red below the range") << 0 << 128 << 0 << QList<int>{0, 89, 0};
        // 101.370705, 99.301999, 100
        QTest::newRow("truncated, not rounded") << 100 << 128 << 129 << QList<int>{101, 99, 100};
        // 98.629295, 100.698001: rounding would give 99 and 101
        QTest::newRow("truncated below") << 100 << 128 << 127 << QList<int>{98, 100, 100};
        // Just below zero: -0.370705 is 0, and so is -1.370705
        QTest::newRow("toward zero") << 1 << 128 << 127 << QList<int>{0, 1, 1};
        // 35 + 1.732446 * 127 = 255.020642; 255 - 0.337633 * 127 = 212.120609
        QTest::newRow("blue at its end") << 35 << 255 << 128 << QList<int>{35, 0, 255};
        QTest::newRow("green mixes both") << 255 << 255 << 128 << QList<int>{255, 212, 255};
    }
    void knownColours()
    {
        QFETCH(int, luma);
        QFETCH(int, u);
        QFETCH(int, v);
        QFETCH(QList<int>, colour);
        const std::vector<uchar> rgb = converted(frameOf(luma, u, luma, v));
        for (std::size_t i = 0; i < rgb.size(); ++i)
            QCOMPARE(int(rgb[i]), colour[int(i % 3)]);
    }

    void twoPixelsShareTheirChroma()
    {
        // 20 + 1.370705 * 40 = 74.8282, 20 - 27.92004 - 10.12899 < 0, 20 + 51.97338 = 71.97338
        // 200: 254.8282, 161.95097, 251.97338
        const std::vector<uchar> rgb = converted(frameOf(20, 158, 200, 168));
        const std::vector<uchar> pair{74, 0, 71, 254, 161, 251};
        for (std::size_t i = 0; i < rgb.size(); ++i)
            QCOMPARE(int(rgb[i]), int(pair[i % 6]));
    }

    void everyPixelKeepsItsPlace()
    {
        std::vector<uchar> frame = frameOf(0, 128, 0, 128);
        const auto luma = [](int x, int y) {
            return uchar((x * 7 + y * 13 + x * y) & 0xFF);
        };
        for (int y = 0; y < live::frameRows; ++y) {
            for (int x = 0; x < live::frameColumns; ++x)
                frame[std::size_t(y * 480 + x * 2)] = luma(x, y);
        }
        const std::vector<uchar> rgb = converted(frame);
        for (int y = 0; y < live::frameRows; ++y) {
            for (int x = 0; x < live::frameColumns; ++x) {
                for (int channel = 0; channel < 3; ++channel)
                    QCOMPARE(int(rgb[std::size_t(y * 720 + x * 3 + channel)]), int(luma(x, y)));
            }
        }
    }

    void stopsAtTheEndOfThePicture()
    {
        const std::vector<uchar> frame = frameOf(200, 128, 200, 128);
        for (const std::int64_t set : testing::instructionSets()) {
            const testing::UsedInstructionSet used(set);
            // One byte in, so that nothing is aligned.
            std::vector<uchar> rgb(live::rgbBytes + 65, 0x5A);
            std::vector<uchar> shifted(frame.size() + 1);
            std::memcpy(shifted.data() + 1, frame.data(), frame.size());
            live::convertPixels(shifted.data() + 1, live::picturePixels, rgb.data() + 1);
            QCOMPARE(int(rgb.front()), 0x5A);
            for (std::size_t i = 0; i < 64; ++i)
                QCOMPARE(int(rgb[rgb.size() - 1 - i]), 0x5A);
            QCOMPARE(int(rgb[live::rgbBytes]), 200);
        }
    }

    void readsThreeWords_data()
    {
        QTest::addColumn<QByteArray>("words");
        QTest::addColumn<float>("maximum");
        QTest::addColumn<float>("threshold");
        QTest::addColumn<float>("emissivity");
        QTest::newRow("362, 340, 97")
            << QByteArray::fromHex("6a0154016100") << 36.2F << 34.0F << 0.97F;
        QTest::newRow("unsigned") << QByteArray::fromHex("ffff00800080") << 6553.5F << 3276.8F
                                  << 327.68F;
        QTest::newRow("zero") << QByteArray(6, '\0') << 0.0F << 0.0F << 0.0F;
    }
    void readsThreeWords()
    {
        QFETCH(QByteArray, words);
        QFETCH(float, maximum);
        QFETCH(float, threshold);
        QFETCH(float, emissivity);
        std::vector<uchar> frame = frameOf(1, 2, 3, 4);
        std::memcpy(frame.data() + 153600, words.constData(), 6);
        const live::Readings readings = live::readings(frame.data());
        QVERIFY(readings.maximum == maximum);
        QVERIFY(readings.threshold == threshold);
        QVERIFY(readings.emissivity == emissivity);
    }

    /// The nearest single precision number to the quotient, which a product of tenths is not.
    void everyWordIsDividedExactly()
    {
        std::vector<uchar> frame = frameOf(1, 2, 3, 4);
        for (int word = 0; word < 65536; ++word) {
            for (std::size_t place = 153600; place < 153606; place += 2) {
                frame[place] = uchar(word & 255);
                frame[place + 1] = uchar(word >> 8);
            }
            const live::Readings readings = live::readings(frame.data());
            if (readings.maximum != float(word / 10.0) || readings.threshold != readings.maximum ||
                readings.emissivity != float(word / 100.0))
                QFAIL(qPrintable(QString::number(word)));
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<LiveFrameTest>(argc, argv);
}

#include "live_frame_test.moc"
