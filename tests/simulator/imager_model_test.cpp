// SPDX-License-Identifier: MIT
#include "simulator/imager_model.h"
#include "tests/support/test_run.h"

#include <cmath>

using simulator::Field;
using simulator::Palette;

namespace {

/// 20.0 °C at the left edge to 43.9 °C at the right, 0.1 a column.
Field ramp()
{
    Field field;
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x)
            field.push_back(20.0F + 0.1F * float(x));
    }
    return field;
}

int byteAt(const QByteArray& bytes, int at)
{
    return uchar(bytes.at(at));
}

} // namespace

class ImagerModelTest : public QObject
{
    Q_OBJECT

private slots:
    void flatSceneIsOneColourAndThreeWords();
    void wordsTakeTheNearestTheyCanHold();
    void neighboursShareTheMeanOfTheirColours();
    void grayIsLinearBetweenTheExtremes();
    void grayTellsTheTemperatureAgain();
    void grayMayRunBackwards();
    void flatSceneHasOneGray();
    void frameShowsThePalette_data();
    void frameShowsThePalette();
    void palettesGrowBrighter_data() { frameShowsThePalette_data(); }
    void palettesGrowBrighter();
};

void ImagerModelTest::flatSceneIsOneColourAndThreeWords()
{
    const QByteArray frame =
        simulator::liveFrame(Field(76800, 36.2F), Palette::WhiteHot, 34.0, 0.97);
    QCOMPARE(frame.size(), 153606);
    // Gray 247 of 255 is 30 of 31 and 61 of 63, both 246 of 255; a colourless pixel has U = V =
    // 128.
    QCOMPARE(frame.left(153600), QByteArray::fromHex("f680f680").repeated(38400));
    // 362, 340 and 97, low byte first.
    QCOMPARE(frame.mid(153600), QByteArray::fromHex("6a0154016100"));
}

void ImagerModelTest::wordsTakeTheNearestTheyCanHold()
{
    const QByteArray gray(76800, '\0');
    const auto& palette = simulator::paletteTable(Palette::Iron);
    QCOMPARE(simulator::liveFrame(gray, palette, {-12.0, 7000.0, 0.955}).mid(153600),
             QByteArray::fromHex("0000ffff6000"));
    QCOMPARE(simulator::liveFrame(gray, palette, {6553.5, 0.04, 1.0}).mid(153600),
             QByteArray::fromHex("ffff00006400"));
}

void ImagerModelTest::neighboursShareTheMeanOfTheirColours()
{
    simulator::PaletteTable palette{};
    palette[1] = 0xF800; // red: Y 76, U 128 − 44, V 128 + 130; black adds nothing to either
    const QByteArray frame =
        simulator::liveFrame(QByteArray("\1\0", 2).repeated(38400), palette, {});
    QCOMPARE(byteAt(frame, 0), 76);
    QCOMPARE(byteAt(frame, 1), 128 - 22);
    QCOMPARE(byteAt(frame, 2), 0);
    QCOMPARE(byteAt(frame, 3), 128 + 65);
}

void ImagerModelTest::grayIsLinearBetweenTheExtremes()
{
    const auto picture = simulator::grayPicture(ramp());
    QCOMPARE(picture.maximum10, 439);
    QCOMPARE(picture.minimum10, 200);
    QCOMPARE(int(picture.grayMaximum), 247);
    QCOMPARE(int(picture.grayMinimum), 8);
    QCOMPARE(picture.coldest, QPoint(0, 0));
    QCOMPARE(picture.hottest, QPoint(239, 0));
    // 239 columns and 239 gray values: one a column.
    for (int x = 0; x < 240; ++x) {
        QCOMPARE(byteAt(picture.gray, x), 8 + x);
        QCOMPARE(byteAt(picture.gray, 319 * 240 + x), 8 + x);
    }
}

void ImagerModelTest::grayTellsTheTemperatureAgain()
{
    Field field = ramp();
    field[1000] = -31.4F;
    field[2000] = 118.6F;
    const auto picture = simulator::grayPicture(field, 16, 235);
    QCOMPARE(picture.maximum10, 1186);
    QCOMPARE(picture.minimum10, -314);
    QCOMPARE(byteAt(picture.gray, 2000), 235);
    QCOMPARE(byteAt(picture.gray, 1000), 16);
    const double halfStep = 150.0 / 219 / 2 + 0.001;
    for (int i = 0; i < 76800; ++i) {
        const double celsius = 118.6 - (235 - byteAt(picture.gray, i)) / 219.0 * 150.0;
        QVERIFY(std::abs(celsius - double(field[std::size_t(i)])) <= halfStep);
    }
}

void ImagerModelTest::grayMayRunBackwards()
{
    const auto picture = simulator::grayPicture(ramp(), 239, 0);
    for (int x = 0; x < 240; ++x)
        QCOMPARE(byteAt(picture.gray, x), 239 - x);
}

void ImagerModelTest::flatSceneHasOneGray()
{
    const auto picture = simulator::grayPicture(Field(76800, -5.02F));
    QCOMPARE(picture.maximum10, -50);
    QCOMPARE(picture.minimum10, -50);
    QCOMPARE(picture.gray, QByteArray(76800, char(247)));
}

void ImagerModelTest::frameShowsThePalette_data()
{
    QTest::addColumn<int>("palette");
    QTest::newRow("iron") << int(Palette::Iron);
    QTest::newRow("rainbow") << int(Palette::Rainbow);
    QTest::newRow("white hot") << int(Palette::WhiteHot);
}

void ImagerModelTest::frameShowsThePalette()
{
    QFETCH(int, palette);
    const auto& table = simulator::paletteTable(Palette(palette));
    QByteArray gray;
    for (int i = 0; i < 76800; ++i)
        gray.append(char(i / 2));
    const QByteArray frame = simulator::liveFrame(gray, table, {});
    const QImage image = simulator::falseColour(gray, table);
    QCOMPARE(image.size(), QSize(240, 320));
    for (int pair = 0; pair < 256; ++pair) {
        const int red = (table[std::size_t(pair)] >> 11) * 255 / 31;
        const int green = (table[std::size_t(pair)] >> 5 & 63) * 255 / 63;
        const int blue = (table[std::size_t(pair)] & 31) * 255 / 31;
        QCOMPARE(image.pixel(2 * pair % 240, 2 * pair / 240), qRgb(red, green, blue));

        const int y = byteAt(frame, 4 * pair);
        const int u = byteAt(frame, 4 * pair + 1) - 128;
        const int v = byteAt(frame, 4 * pair + 3) - 128;
        QCOMPARE(byteAt(frame, 4 * pair + 2), y);
        QVERIFY(std::abs(y + 1.370705 * v - red) < 2.5);
        QVERIFY(std::abs(y - 0.698001 * v - 0.337633 * u - green) < 2.5);
        QVERIFY(std::abs(y + 1.732446 * u - blue) < 2.5);
    }
}

void ImagerModelTest::palettesGrowBrighter()
{
    QFETCH(int, palette);
    const auto& table = simulator::paletteTable(Palette(palette));
    const auto brightness = [&table](std::size_t i) {
        return 3 * (table[i] >> 11) * 2 + 6 * (table[i] >> 5 & 63) + (table[i] & 31) * 2;
    };
    QVERIFY(brightness(255) > 550);
    QVERIFY(brightness(0) < 60);
    // Neighbours differ by little: no band that is not in the scene.
    for (std::size_t i = 1; i < 256; ++i)
        QVERIFY(std::abs(brightness(i) - brightness(i - 1)) < 24);
}

int main(int argc, char** argv)
{
    return testing::run<ImagerModelTest>(argc, argv);
}

#include "imager_model_test.moc"
