// SPDX-License-Identifier: MIT
#include "analysis/photograph/units.h"
#include "analysis/report/information.h"
#include "tests/support/test_run.h"

#include <cstring>
#include <limits>

using analysis::Conversion;
using analysis::conversionFor;

namespace {

/// A pair that no rule sets, so that "unchanged" shows.
constexpr Conversion before{3.0F, 7.0F};

QString nameOf(const Conversion& pair)
{
    if (pair.scale == before.scale && pair.offset == before.offset)
        return QStringLiteral("unchanged");
    if (pair.scale == 10.0F && pair.offset == 0.0F)
        return QStringLiteral("identity");
    if (pair.scale == 5.556F && pair.offset == 32.0F)
        return QStringLiteral("to F");
    if (pair.scale == 18.0F && pair.offset == -17.78F)
        return QStringLiteral("to C");
    return QStringLiteral("other");
}

float fromBits(quint32 bits)
{
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

QString text(float temperature, const Conversion& conversion)
{
    return analysis::oneDecimal(double(analysis::shown(temperature, conversion)));
}

} // namespace

class UnitsTest : public QObject
{
    Q_OBJECT

private slots:
    void table_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("unit");
        QTest::addColumn<bool>("raw");
        QTest::addColumn<QString>("index0");
        QTest::addColumn<QString>("index1");
        const auto row = [](const char* name, int state, int unit, bool raw, const char* index0,
                            const char* index1) {
            QTest::newRow(name) << state << unit << raw << index0 << index1;
        };
        row("Celsius", 0, 0, false, "identity", "to F");
        row("Celsius, raw", 0, 0, true, "identity", "to F");
        row("Fahrenheit", 0, 1, false, "to C", "identity");
        row("Fahrenheit, raw", 0, 1, true, "identity", "to F");
        row("unit 2", 0, 2, false, "unchanged", "unchanged");
        row("unit 2, raw", 0, 2, true, "identity", "to F");
        row("unit 255", 0, 255, false, "unchanged", "unchanged");
        row("state 1, Celsius", 1, 0, false, "identity", "to F");
        row("state 1, Fahrenheit", 1, 1, false, "identity", "to F");
        row("state 1, unit 2", 1, 2, false, "identity", "to F");
        row("state 1, raw", 1, 1, true, "identity", "to F");
        row("before a load", -1, 0, false, "unchanged", "unchanged");
        row("before a load, Fahrenheit", -1, 1, false, "unchanged", "unchanged");
        row("before a load, raw", -1, 0, true, "identity", "to F");
        row("state 2", 2, 1, false, "unchanged", "unchanged");
        row("state 2, raw", 2, 1, true, "identity", "to F");
    }
    void table()
    {
        QFETCH(int, state);
        QFETCH(int, unit);
        QFETCH(bool, raw);
        QFETCH(QString, index0);
        QFETCH(QString, index1);
        QCOMPARE(nameOf(conversionFor(0, state, unit, raw, before)), index0);
        QCOMPARE(nameOf(conversionFor(1, state, unit, raw, before)), index1);
        for (int other : {-1, 2, 100})
            QCOMPARE(nameOf(conversionFor(other, state, unit, raw, before)),
                     QStringLiteral("unchanged"));
    }

    void aPairBeforeAnyLoadIsTheIdentity()
    {
        QCOMPARE(nameOf(Conversion()), QStringLiteral("identity"));
    }

    void knownTemperatures()
    {
        QCOMPARE(text(25.0F, analysis::toFahrenheit), QStringLiteral("77.0"));
        QCOMPARE(text(212.0F, analysis::toCelsius), QStringLiteral("100.0"));
        QCOMPARE(text(32.0F, analysis::toCelsius), QStringLiteral("-0.0"));
        QCOMPARE(text(-40.0F, analysis::toFahrenheit), QStringLiteral("-40.0"));
        QCOMPARE(text(30.25F, analysis::unchanged), QStringLiteral("30.3"));
        QCOMPARE(text(-30.25F, analysis::unchanged), QStringLiteral("-30.3"));
        QCOMPARE(text(0.0F, analysis::unchanged), QStringLiteral("0.0"));
    }

    void exactNumbersHaveThreeDecimals()
    {
        QCOMPARE(analysis::threeDecimals(27.06149), QStringLiteral("27.061"));
        QCOMPARE(analysis::threeDecimals(-3.0), QStringLiteral("-3.000"));
        QCOMPARE(analysis::threeDecimals(std::numeric_limits<double>::quiet_NaN()),
                 QStringLiteral("nan"));
    }

    // Values at which double precision would show the other digit.
    void everyStepIsRoundedToSinglePrecision_data()
    {
        QTest::addColumn<quint32>("bits");
        QTest::addColumn<QString>("expected");
        QTest::newRow("295.16") << 0x439394CDU << QStringLiteral("563.3");
        QTest::newRow("381.73") << 0x43BEDCCDU << QStringLiteral("719.0");
        QTest::newRow("555.35") << 0x440AD666U << QStringLiteral("1031.6");
        QTest::newRow("642.41") << 0x44209A66U << QStringLiteral("1188.3");
        QTest::newRow("902.10") << 0x44618666U << QStringLiteral("1655.7");
        QTest::newRow("1162.29") << 0x44914933U << QStringLiteral("2123.9");
    }
    void everyStepIsRoundedToSinglePrecision()
    {
        QFETCH(quint32, bits);
        QFETCH(QString, expected);
        QCOMPARE(text(fromBits(bits), analysis::toFahrenheit), expected);
    }

    void tenthsAreDividedInSinglePrecision_data()
    {
        QTest::addColumn<int>("tenths");
        QTest::addColumn<QString>("fahrenheit");
        QTest::newRow("3470") << 3470 << QStringLiteral("656.5");
        QTest::newRow("4859") << 4859 << QStringLiteral("906.5");
        QTest::newRow("13188") << 13188 << QStringLiteral("2405.6");
        QTest::newRow("15971") << 15971 << QStringLiteral("2906.5");
        QTest::newRow("0") << 0 << QStringLiteral("32.0");
        QTest::newRow("1000") << 1000 << QStringLiteral("212.0");
    }
    void tenthsAreDividedInSinglePrecision()
    {
        QFETCH(int, tenths);
        QFETCH(QString, fahrenheit);
        QCOMPARE(analysis::oneDecimal(
                     double(analysis::shownTenths(qint16(tenths), analysis::toFahrenheit))),
                 fahrenheit);
    }

    void meaninglessTemperaturesAreNamed()
    {
        constexpr float infinity = std::numeric_limits<float>::infinity();
        const float nothing = std::numeric_limits<float>::quiet_NaN();
        for (const Conversion& pair :
             {analysis::unchanged, analysis::toFahrenheit, analysis::toCelsius}) {
            QCOMPARE(text(infinity, pair), QStringLiteral("inf"));
            QCOMPARE(text(-infinity, pair), QStringLiteral("-inf"));
            QCOMPARE(text(nothing, pair), QStringLiteral("nan"));
            QCOMPARE(text(-nothing, pair), QStringLiteral("nan"));
        }
    }

    void fileSizes_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("unreadable") << Q_INT64_C(-1) << QStringLiteral("-0.0");
        QTest::newRow("empty") << Q_INT64_C(0) << QStringLiteral("0.0");
        QTest::newRow("a tie goes up") << Q_INT64_C(308480) << QStringLiteral("301.3");
        QTest::newRow("raw") << Q_INT64_C(406096) << QStringLiteral("396.6");
        QTest::newRow("4 GB") << (Q_INT64_C(1) << 32) << QStringLiteral("4194304.0");
    }
    void fileSizes()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, expected);
        QCOMPARE(analysis::kilobytes(bytes), expected);
    }

    void informationRowByRow()
    {
        analysis::Parameters p;
        p.emissivity100 = 95;
        p.centre10 = 351;
        p.maximum10 = 1000;
        p.minimum10 = -55;
        const auto texts = [&p](int unitIndex, const Conversion& pair, double mean) {
            return analysis::informationTexts(QStringLiteral("a.bmp"),
                                              QStringLiteral("2024/02/29 12:34"), 308480, p, mean,
                                              unitIndex, pair);
        };
        using Texts = std::array<QString, 10>;
        const Texts celsius = texts(0, analysis::unchanged, 24.25);
        const Texts expected{
            QStringLiteral("a.bmp"), QStringLiteral("301.3 KB"), QStringLiteral("2024/02/29 12:34"),
            QStringLiteral("0.95"),  QStringLiteral("240×320"),  QStringLiteral("°C"),
            QStringLiteral("35.1"),  QStringLiteral("100.0"),    QStringLiteral("-5.5"),
            QStringLiteral("24.3")};
        QCOMPARE(celsius, expected);
        const Texts fahrenheit = texts(1, analysis::toFahrenheit, 25.0);
        QCOMPARE(fahrenheit[5], QStringLiteral("°F"));
        QCOMPARE(fahrenheit[6], QStringLiteral("95.2"));
        QCOMPARE(fahrenheit[7], QStringLiteral("212.0"));
        QCOMPARE(fahrenheit[8], QStringLiteral("22.1"));
        QCOMPARE(fahrenheit[9], QStringLiteral("77.0"));
        // Anything but Fahrenheit counts as Celsius, a selector without a choice, too.
        QCOMPARE(texts(-1, analysis::unchanged, 25.0)[5], QStringLiteral("°C"));
        QCOMPARE(texts(2, analysis::unchanged, 25.0)[5], QStringLiteral("°C"));
        // Neither all in single precision nor with constants in double precision: both show 20.0.
        QCOMPARE(texts(1, analysis::toFahrenheit, -28.8634203)[9], QStringLiteral("-19.9"));
        QCOMPARE(texts(0, analysis::toCelsius, -3.365998999999995)[9], QStringLiteral("-19.7"));
    }

    void emissivityHasTwoDecimals()
    {
        analysis::Parameters p;
        const auto emissivity = [&p](int value) {
            p.emissivity100 = quint8(value);
            return analysis::informationTexts({}, {}, 0, p, 0, 0, {})[3];
        };
        QCOMPARE(emissivity(0), QStringLiteral("0.00"));
        QCOMPARE(emissivity(5), QStringLiteral("0.05"));
        QCOMPARE(emissivity(100), QStringLiteral("1.00"));
        QCOMPARE(emissivity(255), QStringLiteral("2.55"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<UnitsTest>(argc, argv);
}

#include "units_test.moc"
