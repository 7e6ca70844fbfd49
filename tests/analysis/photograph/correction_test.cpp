// SPDX-License-Identifier: MIT
#include "analysis/photograph/correction.h"
#include "tests/analysis/photograph/band_emission.h"
#include "tests/support/test_run.h"

#include <cmath>
#include <limits>
#include <memory>

using namespace analysis;

namespace {

constexpr float nothing = std::numeric_limits<float>::quiet_NaN();

double planck(double celsius)
{
    return testing::bandEmission(celsius);
}

std::unique_ptr<Temperatures> everywhere(float temperature)
{
    auto temperatures = std::make_unique<Temperatures>();
    temperatures->fill(temperature);
    return temperatures;
}

QByteArray bytesOf(const Temperatures& temperatures)
{
    return {reinterpret_cast<const char*>(temperatures.data()), int(sizeof temperatures)};
}

/// The pages' tables, by the word before each: how one of its numbers is worked out from its row
/// and column.
double told(const QString& table, double reading, const QString& column)
{
    const auto corrected = [&](double emissivity, double surroundings) {
        return testing::explained(reading, 0.95, emissivity, surroundings, planck);
    };
    if (table == QLatin1String("emissivity"))
        return corrected(column.toDouble(), 20);
    if (table == QLatin1String("typed"))
        return corrected(0.6, 20) - corrected(column.toDouble(), 20);
    if (table == QLatin1String("surroundings"))
        return corrected(0.6, 20) - corrected(0.6, column.toDouble());
    if (table == QLatin1String("transmission")) {
        const double through = column.toDouble();
        return reading - testing::whereIs(planck(reading), [&](double temperature) {
                   return through * planck(temperature) + (1 - through) * planck(20);
               });
    }
    if (column == QLatin1String("power"))
        return testing::explained(reading, 0.95, 0.6, 20,
                                  [](double celsius) { return std::pow(celsius + 273.15, 4); }) -
               corrected(0.6, 20);
    const QStringList ends = column.split(QLatin1Char('-'));
    const testing::Band band{ends[0].toDouble() * 1e-6, ends[1].toDouble() * 1e-6};
    return corrected(0.6, 20) - testing::explained(reading, 0.95, 0.6, 20, [band](double celsius) {
               return testing::bandEmission(celsius, band);
           });
}

QStringList cellsOf(const QString& line)
{
    QStringList cells = line.split(QLatin1Char('|'));
    for (QString& cell : cells)
        cell = cell.trimmed();
    return cells.mid(1, cells.size() - 2);
}

} // namespace

class CorrectionTest : public QObject
{
    Q_OBJECT

private slots:
    void whatTheOtherEmissivityExplains_data()
    {
        QTest::addColumn<double>("stored");
        QTest::addColumn<double>("emissivity");
        QTest::addColumn<double>("surroundings");
        for (const double stored : {1.0, 0.95, 0.6, 0.1}) {
            for (const double emissivity : {1.0, 0.98, 0.6, 0.3, 0.1}) {
                for (const double surroundings : {-40.0, 0.0, 20.0, 300.0})
                    QTest::addRow("%g to %g in %g °C", stored, emissivity, surroundings)
                        << stored << emissivity << surroundings;
            }
        }
    }
    // Wherever reading and corrected reading lie from −40 to 1,000 °C.
    void whatTheOtherEmissivityExplains()
    {
        QFETCH(double, stored);
        QFETCH(double, emissivity);
        QFETCH(double, surroundings);
        const Corrector corrector({stored, emissivity, surroundings});
        int compared = 0;
        double before = -HUGE_VAL;
        for (const double reading : testing::steps(-40, 1000, 9.1)) {
            const double expected =
                testing::explained(reading, stored, emissivity, surroundings, planck);
            if (expected < -40 || expected > 1000)
                continue;
            const CorrectedReading found = corrector.corrected(reading);
            QCOMPARE(found.problem, ReadingProblem::None);
            QVERIFY2(std::abs(found.celsius - expected) < 0.01,
                     qPrintable(QStringLiteral("%1: %2, not %3")
                                    .arg(reading)
                                    .arg(found.celsius)
                                    .arg(expected)));
            QVERIFY(found.celsius > before);
            before = found.celsius;
            ++compared;
        }
        QVERIFY(compared > 5);
    }

    void theStoredEmissivityChangesNoBit()
    {
        const auto stored = everywhere(21.37F);
        (*stored)[1] = nothing;
        (*stored)[2] = std::numeric_limits<float>::infinity();
        (*stored)[3] = -300.0F;
        (*stored)[4] = -0.0F;
        for (const Unit scale : {Unit::Celsius, Unit::Fahrenheit}) {
            const auto same = correctedTemperatures(*stored, scale, {0.95, 0.95, 20});
            QVERIFY(bytesOf(*same.temperatures) == bytesOf(*stored));
            QCOMPARE(same.belowSurroundings, 0);
            QCOMPARE(same.outsideTable, 0);
        }
        const CorrectedReading far = Corrector({0.5, 0.5, 20}).corrected(9000);
        QCOMPARE(far.celsius, 9000.0);
        QCOMPARE(far.problem, ReadingProblem::None);
    }

    void everyPixelInTheStoredScale()
    {
        const auto celsius = everywhere(60.0F);
        const auto fahrenheit = everywhere(140.0F);
        (*celsius)[temperatureIndex(239, 319)] = 100.0F;
        (*fahrenheit)[temperatureIndex(239, 319)] = 212.0F;
        const Correction correction{0.95, 0.6, 20};
        const auto c = correctedTemperatures(*celsius, Unit::Celsius, correction);
        const auto f = correctedTemperatures(*fahrenheit, Unit::Fahrenheit, correction);
        for (const std::size_t index : {std::size_t(0), temperatureIndex(239, 319)}) {
            const double expected =
                testing::explained(double((*celsius)[index]), 0.95, 0.6, 20, planck);
            QVERIFY(std::abs(double((*c.temperatures)[index]) - expected) < 0.001);
            QVERIFY(std::abs(double((*f.temperatures)[index]) - (expected * 1.8 + 32)) < 0.002);
        }
        QVERIFY((*c.temperatures)[0] == (*c.temperatures)[76798]);
        QCOMPARE(c.belowSurroundings + c.outsideTable + f.belowSurroundings + f.outsideTable, 0);
    }

    void pixelsWithoutATemperatureAreLeftOutAndCounted()
    {
        const auto stored = everywhere(60.0F);
        for (std::size_t i = 0; i < 5; ++i)
            (*stored)[i] = -20.0F; // 0.95 · L(−20) < (0.95 − 0.30) · L(20)
        (*stored)[5] = 3990.0F;    // would be beyond the table
        (*stored)[6] = 4500.0F;    // is
        (*stored)[7] = std::numeric_limits<float>::infinity();
        (*stored)[8] = nothing; // was none before
        const auto corrected = correctedTemperatures(*stored, Unit::Celsius, {0.95, 0.3, 20});
        QCOMPARE(corrected.belowSurroundings, 5);
        QCOMPARE(corrected.outsideTable, 3);
        for (std::size_t i = 0; i < 9; ++i)
            QVERIFY(std::isnan((*corrected.temperatures)[i]));
        QVERIFY(!std::isnan((*corrected.temperatures)[9]));
    }

    // Where exactly that begins: at 1 · L(T) = 0.5 · L(20).
    void theSurroundingsAloneAreTheLimit()
    {
        const double limit = testing::whereIs(0.5 * planck(20), planck);
        const Corrector corrector({1.0, 0.5, 20});
        QCOMPARE(corrector.corrected(limit - 0.01).problem, ReadingProblem::BelowSurroundings);
        QCOMPARE(corrector.corrected(limit + 0.01).problem, ReadingProblem::OutsideTable);
        QCOMPARE(corrector.corrected(limit + 1).problem, ReadingProblem::None);
    }

    void whatMakesNoSense_data()
    {
        QTest::addColumn<double>("stored");
        QTest::addColumn<double>("emissivity");
        QTest::addColumn<double>("surroundings");
        QTest::addColumn<int>("problem");
        const auto row = [](const char* name, double stored, double emissivity, double surroundings,
                            CorrectionProblem problem) {
            QTest::newRow(name) << stored << emissivity << surroundings << int(problem);
        };
        using P = CorrectionProblem;
        const double none = std::nan("");
        row("good", 0.95, 0.6, 20, P::None);
        row("the least", 0.1, 0.1, -150, P::None);
        row("the most", 1.0, 1.0, 4000, P::None);
        row("stored nothing", 0, 0.6, 20, P::StoredEmissivity);
        row("stored below", 0.0999, 0.6, 20, P::StoredEmissivity);
        row("stored above", 2.55, 0.6, 20, P::StoredEmissivity);
        row("stored not-a-number", none, 0.6, 20, P::StoredEmissivity);
        row("below", 0.95, 0.0999, 20, P::Emissivity);
        row("above", 0.95, 1.001, 20, P::Emissivity);
        row("not-a-number", 0.95, none, 20, P::Emissivity);
        row("colder", 0.95, 0.6, -150.1, P::Reflected);
        row("hotter", 0.95, 0.6, 4000.1, P::Reflected);
        row("of no temperature", 0.95, 0.6, none, P::Reflected);
        row("nothing good", 7, 7, none, P::StoredEmissivity);
    }
    void whatMakesNoSense()
    {
        QFETCH(double, stored);
        QFETCH(double, emissivity);
        QFETCH(double, surroundings);
        QFETCH(int, problem);
        const Correction correction{stored, emissivity, surroundings};
        QCOMPARE(int(problemOf(correction)), problem);
        const auto corrected = correctedTemperatures(*everywhere(60), Unit::Celsius, correction);
        QCOMPARE(bool(corrected.temperatures), problem == 0);
    }

    void thePageTellsTheTruth()
    {
        QFile page(QStringLiteral(CORRECTION_PAGE));
        QVERIFY(page.open(QIODevice::ReadOnly | QIODevice::Text));
        QString table;
        QStringList columns;
        QMap<QString, int> checked;
        for (const QString& line : QString::fromUtf8(page.readAll()).split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String("<!-- "))) {
                table = line.mid(5).section(QLatin1Char(' '), 0, 0);
            } else if (table.isEmpty() || line.startsWith(QLatin1String("|---"))) {
                continue;
            } else if (line.startsWith(QLatin1String("| reading"))) {
                columns = cellsOf(line);
            } else if (!line.startsWith(QLatin1Char('|'))) {
                table.clear();
            } else {
                const QStringList cells = cellsOf(line);
                QCOMPARE(cells.size(), columns.size());
                for (int i = 1; i < cells.size(); ++i) {
                    const double number = told(table, cells[0].toDouble(), columns[i]);
                    QVERIFY2(std::abs(number - cells[i].toDouble()) < 0.0501,
                             qPrintable(QStringLiteral("%1, %2, %3: %4 is %5")
                                            .arg(table, cells[0], columns[i], cells[i])
                                            .arg(number)));
                    ++checked[table];
                }
            }
        }
        QCOMPARE(checked, (QMap<QString, int>{{"emissivity", 35},
                                              {"typed", 16},
                                              {"surroundings", 20},
                                              {"transmission", 24},
                                              {"band", 21}}));
    }
};

int main(int argc, char** argv)
{
    return testing::run<CorrectionTest>(argc, argv);
}

#include "correction_test.moc"
