// SPDX-License-Identifier: MIT
#include "analysis/photograph/photograph.h"
#include "simulator/photograph.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <memory>

/// What the imager saw is what the program reads: the two know nothing of each other but the
/// format.
class PhotographRoundTripTest : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatTheImagerSaw_data();
    void readsWhatTheImagerSaw();
};

void PhotographRoundTripTest::readsWhatTheImagerSaw_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<int>("modelIndex");
    QTest::addColumn<bool>("raw");
    QTest::addColumn<bool>("fahrenheit");
    QTest::addColumn<uint>("machineId");
    for (int scene = 0; scene < 4; ++scene) {
        for (int variant = 0; variant < 5; ++variant) {
            const bool raw = variant == 1;
            const bool fahrenheit = variant == 2 || variant == 4;
            const int modelIndex = variant >= 3 ? 1 : 0;
            QTest::addRow("scene %d, model %d%s%s", scene, modelIndex, raw ? ", raw" : "",
                          fahrenheit ? ", °F" : "")
                << scene << modelIndex << raw << fahrenheit << uint(5 + variant % 2);
        }
    }
}

void PhotographRoundTripTest::readsWhatTheImagerSaw()
{
    QFETCH(int, scene);
    QFETCH(int, modelIndex);
    QFETCH(bool, raw);
    QFETCH(bool, fahrenheit);
    QFETCH(uint, machineId);
    const simulator::Scene seen{simulator::SceneKind(scene)};
    const simulator::Field field = seen.field(3, seen.usualHotSpot());
    simulator::PhotographSettings settings;
    settings.modelIndex = modelIndex;
    settings.raw = raw;
    settings.fahrenheit = fahrenheit;
    settings.machineId = machineId;
    settings.emissivity = 0.88;

    QByteArray bytes = simulator::photograph(field, settings);
    const int readCount = bytes.size();
    bytes.append(2000000 - bytes.size(), '\0');
    const auto read = std::make_unique<analysis::Photograph>();
    QVERIFY(analysis::read(reinterpret_cast<const uchar*>(bytes.constData()), readCount, modelIndex,
                           *read));

    const auto inFile = [&](float celsius) {
        return fahrenheit && !raw ? double(celsius) * 1.8 + 32 : double(celsius);
    };
    // Half a gray step, or half a sixteenth of a kelvin; the scene's extremes round to tenths.
    const double span = (read->parameters.maximum10 - read->parameters.minimum10) / 10.0;
    const double tolerance =
        0.06 +
        (raw ? 0.03125 : span / (read->parameters.grayMaximum - read->parameters.grayMinimum) / 2);
    double hottest = -1000;
    QPoint hottestPlace;
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x) {
            const float celsius = field[simulator::fieldIndex(x, y)];
            if (double(celsius) > hottest) {
                hottest = double(celsius);
                hottestPlace = {x, y};
            }
            // The raw image has four pixels for five; the fifth shows its neighbour's.
            if (raw && (x % 5 == 1 || y % 5 == 1))
                continue;
            const double got = double(analysis::nearestTemperature(read->temperatures, x, y));
            QVERIFY2(std::abs(got - inFile(celsius)) <= tolerance,
                     qPrintable(QStringLiteral("%1 instead of %2 at %3, %4")
                                    .arg(got)
                                    .arg(inFile(celsius))
                                    .arg(x)
                                    .arg(y)));
        }
    }
    QCOMPARE(QPoint(read->markerB.x, read->markerB.y), hottestPlace);
    QCOMPARE(QPoint(read->markerC.x, read->markerC.y), QPoint(120, 160));
    QCOMPARE(int(read->parameters.emissivity100), 88);
    QCOMPARE(read->parameters.machineId, machineId);
    QCOMPARE(int(read->parameters.unit), fahrenheit ? 1 : 0);
}

int main(int argc, char** argv)
{
    return testing::run<PhotographRoundTripTest>(argc, argv);
}

#include "photograph_round_trip_test.moc"
