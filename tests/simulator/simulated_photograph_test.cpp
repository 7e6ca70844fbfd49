// SPDX-License-Identifier: MIT
#include "simulator/photograph.h"
#include "tests/support/test_run.h"

#include <cmath>

using simulator::Field;
using simulator::PhotographSettings;

namespace {

/// A slope with a hot spot of 60 °C at (30, 40) and a cold one of −20 °C at (200, 300). The centre
/// (120, 160) has 22.5 °C.
Field slope()
{
    Field field;
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x)
            field.push_back(-5 + float(y) / 8 + float(x) / 16);
    }
    field[40 * 240 + 30] = 60;
    field[300 * 240 + 200] = -20;
    return field;
}

int u8(const QByteArray& file, int at)
{
    return uchar(file.at(at));
}

int u16(const QByteArray& file, int at)
{
    return u8(file, at) + 256 * u8(file, at + 1);
}

int i16(const QByteArray& file, int at)
{
    const int value = u16(file, at);
    return value < 32768 ? value : value - 65536;
}

QPoint point(const QByteArray& file, int at)
{
    return {u16(file, at), u16(file, at + 2)};
}

PhotographSettings ofModel(int modelIndex)
{
    PhotographSettings settings;
    settings.modelIndex = modelIndex;
    return settings;
}

/// Every pixel of the bitmap in front shows its gray value through the palette behind, upright.
void compareBitmap(const QByteArray& file, int grayAt, bool isReversed, int paletteAt,
                   int tolerance)
{
    QImage image;
    QVERIFY(image.loadFromData(file, "bmp"));
    QCOMPARE(image.size(), QSize(240, 320));
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x) {
            const int at = y * 240 + x;
            const int entry =
                u16(file, paletteAt + 2 * u8(file, grayAt + (isReversed ? 76799 - at : at)));
            const QRgb shown = image.pixel(x, y);
            QVERIFY(std::abs(qRed(shown) - (entry >> 11) * 8) <= tolerance);
            QVERIFY(std::abs(qGreen(shown) - (entry >> 5 & 63) * 4) <= tolerance);
            QVERIFY(std::abs(qBlue(shown) - (entry & 31) * 8) <= tolerance);
        }
    }
}

} // namespace

class SimulatedPhotographTest : public QObject
{
    Q_OBJECT

private slots:
    void modelZero();
    void modelOne();
    void rawVariant();
    void fahrenheit();
    void machineIds();
    void paletteIsKept();
    void emissivityAndFirmware();
};

void SimulatedPhotographTest::modelZero()
{
    const QByteArray file = simulator::photograph(slope(), ofModel(0));
    QCOMPARE(file.size(), 307792);
    compareBitmap(file, 230454, false, 307254, 8);

    QCOMPARE(u8(file, 307766), 0);
    QCOMPARE(i16(file, 307767), 600);
    QCOMPARE(i16(file, 307769), -200);
    const int grayMaximum = u8(file, 307771);
    const int grayMinimum = u8(file, 307772);
    QCOMPARE(i16(file, 307773), 225);
    QCOMPARE(u8(file, 307775), 95);
    QCOMPARE(point(file, 307780), QPoint(200, 300));
    QCOMPARE(point(file, 307784), QPoint(30, 40));
    QCOMPARE(point(file, 307788), QPoint(121, 161));

    QCOMPARE(u8(file, 230454 + 40 * 240 + 30), grayMaximum);
    QCOMPARE(u8(file, 230454 + 300 * 240 + 200), grayMinimum);
    const Field field = slope();
    const double halfStep = 80.0 / (grayMaximum - grayMinimum) / 2 + 0.001;
    for (int i = 0; i < 76800; ++i) {
        const double ratio =
            double(grayMaximum - u8(file, 230454 + i)) / (grayMaximum - grayMinimum);
        QVERIFY(std::abs(60.0 - ratio * 80.0 - double(field[std::size_t(i)])) <= halfStep);
    }
}

void SimulatedPhotographTest::modelOne()
{
    const QByteArray file = simulator::photograph(slope(), ofModel(1));
    QCOMPARE(file.size(), 231013);
    QCOMPARE(file.mid(153654, 3), QByteArray(3, '\0'));
    compareBitmap(file, 153657, true, 230457, 12);

    QCOMPARE(i16(file, 230970), 600);
    QCOMPARE(i16(file, 230972), -200);
    QCOMPARE(i16(file, 230976), 225);
    QCOMPARE(point(file, 230983), QPoint(39, 19));
    QCOMPARE(point(file, 230987), QPoint(209, 279));
    QCOMPARE(point(file, 230991), QPoint(119, 159));
    QCOMPARE(u16(file, 231011), 12);
    QCOMPARE(u8(file, 153657 + 76799 - (40 * 240 + 30)), u8(file, 230974));
    QCOMPARE(u8(file, 153657 + 76799 - (300 * 240 + 200)), u8(file, 230975));
}

void SimulatedPhotographTest::rawVariant()
{
    PhotographSettings settings = ofModel(0);
    const QByteArray plain = simulator::photograph(slope(), settings);
    settings.raw = true;
    const QByteArray file = simulator::photograph(slope(), settings);
    QCOMPARE(file.size(), 406096);
    // The same file but for its length, which the bitmap's header tells.
    QCOMPARE(file.mid(6, 307786), plain.mid(6));
    QCOMPARE(u16(file, 2) + 65536 * u16(file, 4), 406096);

    const auto raw = [&file](int row, int column) {
        return u16(file, 307792 + 2 * (192 * row + column));
    };
    QCOMPARE(raw(32, 24), 5330);   // (60 + 273.15) · 16 = 5330.4
    QCOMPARE(raw(240, 160), 4050); // (−20 + 273.15) · 16 = 4050.4
    QCOMPARE(raw(128, 96), 4730);  // (22.5 + 273.15) · 16 = 4730.4
    QCOMPARE(raw(1, 1), 4296);     // first shown at (2, 2): (−4.625 + 273.15) · 16 = 4296.4
    const Field field = slope();
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x) {
            const double celsius = raw(4 * y / 5, 4 * x / 5) * 0.0625 - 273.15;
            const double there = double(field[std::size_t(y) * 240 + std::size_t(x)]);
            // One pixel of the slope and half a step; the two spots fill up to four pixels.
            const bool isAtSpot = (std::abs(x - 30) < 2 && std::abs(y - 40) < 2) ||
                                  (std::abs(x - 200) < 2 && std::abs(y - 300) < 2);
            QVERIFY(isAtSpot || std::abs(celsius - there) <= 0.1875 + 0.04);
        }
    }

    settings.modelIndex = 1;
    const QByteArray turned = simulator::photograph(slope(), settings);
    QCOMPARE(turned.size(), 406096);
    QCOMPARE(turned.mid(307792), file.mid(307792));
}

void SimulatedPhotographTest::fahrenheit()
{
    PhotographSettings settings = ofModel(0);
    settings.raw = true;
    const QByteArray celsius = simulator::photograph(slope(), settings);
    settings.fahrenheit = true;
    const QByteArray file = simulator::photograph(slope(), settings);
    QCOMPARE(u8(file, 307766), 1);
    QCOMPARE(i16(file, 307767), 1400);
    QCOMPARE(i16(file, 307769), -40);
    QCOMPARE(i16(file, 307773), 725);
    QCOMPARE(file.mid(307792), celsius.mid(307792));
}

void SimulatedPhotographTest::machineIds()
{
    for (const quint32 id : {5U, 6U, 7U, 0x01020305U}) {
        PhotographSettings settings = ofModel(0);
        settings.machineId = id;
        const QByteArray file = simulator::photograph(slope(), settings);
        QCOMPARE(quint32(u16(file, 307776)) + 65536U * quint32(u16(file, 307778)), id);
        settings.modelIndex = 1;
        const QByteArray turned = simulator::photograph(slope(), settings);
        QCOMPARE(quint32(u16(turned, 230979)) + 65536U * quint32(u16(turned, 230981)), id);
    }
}

void SimulatedPhotographTest::paletteIsKept()
{
    for (const auto palette :
         {simulator::Palette::Iron, simulator::Palette::Rainbow, simulator::Palette::WhiteHot}) {
        PhotographSettings settings = ofModel(0);
        settings.palette = palette;
        const QByteArray file = simulator::photograph(slope(), settings);
        for (int i = 0; i < 256; ++i)
            QCOMPARE(u16(file, 307254 + 2 * i),
                     int(simulator::paletteTable(palette)[std::size_t(i)]));
    }
}

void SimulatedPhotographTest::emissivityAndFirmware()
{
    PhotographSettings settings = ofModel(1);
    settings.emissivity = 0.57;
    settings.firmware10 = 345;
    const QByteArray file = simulator::photograph(slope(), settings);
    QCOMPARE(u8(file, 230978), 57);
    QCOMPARE(u16(file, 231011), 345);
}

int main(int argc, char** argv)
{
    return testing::run<SimulatedPhotographTest>(argc, argv);
}

#include "simulated_photograph_test.moc"
