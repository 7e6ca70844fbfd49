// SPDX-License-Identifier: MIT
#include "simulator/scene.h"
#include "tests/support/test_run.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

using simulator::Field;
using simulator::Scene;
using simulator::SceneKind;

Q_DECLARE_METATYPE(SceneKind)

class SceneTest : public QObject
{
    Q_OBJECT

private slots:
    void hotSpotIsTheHottestPlace_data() { kinds(); }
    void hotSpotIsTheHottestPlace();
    void temperaturesArePlausible_data() { kinds(); }
    void temperaturesArePlausible();
    void sameMomentSameField_data() { kinds(); }
    void sameMomentSameField();
    void itMoves_data() { kinds(); }
    void itMoves();
    void sensorNoiseIsSmall_data() { kinds(); }
    void sensorNoiseIsSmall();

private:
    static void kinds()
    {
        QTest::addColumn<SceneKind>("kind");
        QTest::newRow("cable joint") << SceneKind::CableJoint;
        QTest::newRow("window") << SceneKind::Window;
        QTest::newRow("person") << SceneKind::Person;
        QTest::newRow("motor") << SceneKind::Motor;
    }
};

void SceneTest::hotSpotIsTheHottestPlace()
{
    QFETCH(SceneKind, kind);
    const Scene scene(kind);
    for (const double hotSpot : {30.0, scene.usualHotSpot(), 150.0}) {
        for (const double seconds : {0.0, 0.7, 3.3, 61.4, 3600.0}) {
            const Field field = scene.field(seconds, hotSpot);
            QCOMPARE(field.size(), std::size_t(76800));
            const double hottest = double(*std::max_element(field.begin(), field.end()));
            QVERIFY2(std::abs(hottest - hotSpot) < 0.3,
                     qPrintable(QStringLiteral("%1 instead of %2").arg(hottest).arg(hotSpot)));
        }
    }
}

void SceneTest::temperaturesArePlausible()
{
    QFETCH(SceneKind, kind);
    const Scene scene(kind);
    const Field field = scene.field(2, scene.usualHotSpot());
    const double coldest = double(*std::min_element(field.begin(), field.end()));
    QVERIFY2(coldest > 0 && coldest < 24, qPrintable(QString::number(coldest)));
    double sum = 0;
    for (const float celsius : field)
        sum += double(celsius);
    const double mean = sum / 76800;
    QVERIFY2(mean > 12 && mean < 40, qPrintable(QString::number(mean)));
}

void SceneTest::sameMomentSameField()
{
    QFETCH(SceneKind, kind);
    const Field field = Scene(kind, 7).field(12.34, 50);
    QVERIFY(Scene(kind, 7).field(12.34, 50) == field);
    QVERIFY(Scene(kind, 8).field(12.34, 50) != field);
}

void SceneTest::itMoves()
{
    QFETCH(SceneKind, kind);
    const Scene scene(kind);
    const Field before = scene.field(1, scene.usualHotSpot());
    const Field after = scene.field(2.5, scene.usualHotSpot());
    const auto moved =
        std::inner_product(before.begin(), before.end(), after.begin(), 0, std::plus<>(),
                           [](float a, float b) { return std::abs(a - b) > 0.5F ? 1 : 0; });
    QVERIFY2(moved > 500, qPrintable(QString::number(moved)));
}

void SceneTest::sensorNoiseIsSmall()
{
    QFETCH(SceneKind, kind);
    const Field one = Scene(kind, 1).field(5, 40);
    const Field other = Scene(kind, 2).field(5, 40);
    double squares = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        squares += std::pow(double(one[i] - other[i]), 2);
    const double deviation = std::sqrt(squares / 76800);
    QVERIFY2(deviation > 0.02 && deviation < 0.12, qPrintable(QString::number(deviation)));
}

int main(int argc, char** argv)
{
    return testing::run<SceneTest>(argc, argv);
}

#include "scene_test.moc"
