// SPDX-License-Identifier: MIT
#include "analysis/photograph/looking_texts.h"
#include "tests/support/test_run.h"
#include "tests/support/translation.h"

#include <QSet>

using namespace analysis;
using Side = Isotherm::Side;

class LookingTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { resources::load(); }

    void correctedReadingsAreNamedAsSuch_data()
    {
        QTest::addColumn<QString>("catalogue");
        QTest::addColumn<QString>("name");
        QTest::newRow("Chinese") << QString()
                                 << QStringLiteral("已校正: ε 0.95 → 0.60, 反射温度 20.0 °C");
        QTest::newRow("English") << QStringLiteral(":/Demo_EN.qm")
                                 << QStringLiteral("corrected: ε 0.95 → 0.60, reflected 20.0 °C");
        QTest::newRow("Russian") << QStringLiteral(":/Demo_RU.qm")
                                 << QStringLiteral("исправлено: ε 0.95 → 0.60, отражение 20.0 °C");
        QTest::newRow("Korean") << QStringLiteral(":/Demo_KO.qm")
                                << QStringLiteral("보정됨: ε 0.95 → 0.60, 반사 온도 20.0 °C");
    }
    void correctedReadingsAreNamedAsSuch()
    {
        QFETCH(QString, catalogue);
        QFETCH(QString, name);
        const testing::Translation translation(catalogue);
        QCOMPARE(LookingTexts::nameOf(Correction{0.95, 0.6, 20}, Unit::Celsius), name);
    }

    void theReflectedTemperatureIsInTheShownUnit()
    {
        const testing::Translation english(QStringLiteral(":/Demo_EN.qm"));
        QCOMPARE(LookingTexts::nameOf(Correction{0.955, 0.1, -40}, Unit::Fahrenheit),
                 QStringLiteral("corrected: ε 0.955 → 0.10, reflected -40.0 °F"));
        QCOMPARE(
            LookingTexts::reasonOf(CorrectionProblem::Reflected, Unit::Fahrenheit),
            QStringLiteral("The reflected temperature has to be from -238.0 °F to 7232.0 °F."));
        QCOMPARE(LookingTexts::reasonOf(ReadingProblem::OutsideTable, Unit::Celsius),
                 QStringLiteral("No temperature: outside -150.0 °C to 4000.0 °C."));
    }

    void emissivitiesAreNotShortened()
    {
        QCOMPARE(LookingTexts::emissivity(1), QStringLiteral("1.00"));
        QCOMPARE(LookingTexts::emissivity(0.3), QStringLiteral("0.30"));
        QCOMPARE(LookingTexts::emissivity(0.875), QStringLiteral("0.875"));
        QCOMPARE(LookingTexts::emissivity(1.0 / 3), QStringLiteral("0.333333"));
    }

    void eachSideHasItsName()
    {
        const testing::Translation english(QStringLiteral(":/Demo_EN.qm"));
        Isotherm isotherm;
        isotherm.from = 20;
        isotherm.to = 60.25;
        isotherm.unit = Unit::Fahrenheit;
        const auto name = [&isotherm](Side side) {
            isotherm.side = side;
            return LookingTexts::nameOf(isotherm);
        };
        QCOMPARE(name(Side::Above), QStringLiteral("Isotherm: above 20.0 °F"));
        QCOMPARE(name(Side::Below), QStringLiteral("Isotherm: below 60.3 °F"));
        QCOMPARE(name(Side::Inside), QStringLiteral("Isotherm: 20.0 °F to 60.3 °F"));
        QCOMPARE(name(Side::Outside), QStringLiteral("Isotherm: outside 20.0 °F to 60.3 °F"));
    }

    void eachProblemHasItsReason()
    {
        using P = CorrectionProblem;
        const QVector<QString> reasons{
            LookingTexts::reasonOf(P::StoredEmissivity, Unit::Celsius),
            LookingTexts::reasonOf(P::Emissivity, Unit::Celsius),
            LookingTexts::reasonOf(P::Reflected, Unit::Celsius),
            LookingTexts::reasonOf(ReadingProblem::BelowSurroundings, Unit::Celsius),
            LookingTexts::reasonOf(ReadingProblem::OutsideTable, Unit::Celsius),
            LookingTexts::reasonOf(IsothermProblem::NotANumber),
            LookingTexts::reasonOf(IsothermProblem::Crossed),
            LookingTexts::unknownScale()};
        QSet<QString> others;
        for (const QString& reason : reasons) {
            QVERIFY(!reason.isEmpty());
            others.insert(reason);
        }
        QCOMPARE(others.size(), reasons.size());
        QVERIFY(LookingTexts::reasonOf(P::None, Unit::Celsius).isEmpty());
        QVERIFY(LookingTexts::reasonOf(ReadingProblem::None, Unit::Celsius).isEmpty());
        QVERIFY(LookingTexts::reasonOf(IsothermProblem::None).isEmpty());
    }
};

int main(int argc, char** argv)
{
    return testing::run<LookingTextsTest>(argc, argv);
}

#include "looking_texts_test.moc"
