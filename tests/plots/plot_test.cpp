// SPDX-License-Identifier: MIT
#include "plots/plot.h"
#include "tests/support/test_run.h"

#include <set>

using namespace plots;

class PlotTest : public QObject
{
    Q_OBJECT

private slots:
    void aTableBecomesLinesOfFields()
    {
        const Table table{{QStringLiteral("tool"), QStringLiteral("value")},
                          {{QStringLiteral("L0"), QStringLiteral("36.5")},
                           {QStringLiteral("热点"), QStringLiteral("-1.0")}}};
        QCOMPARE(csvOf(table), QByteArray("tool,value\nL0,36.5\n\xe7\x83\xad\xe7\x82\xb9,-1.0\n"));
        QCOMPARE(files::tabSeparated(rowsOf(table)),
                 QStringLiteral("tool\tvalue\nL0\t36.5\n热点\t-1.0\n"));
    }

    /// Names come from files of strangers.
    void whatWouldBreakALineIsQuotedOrReplaced()
    {
        const Table table{{QStringLiteral("a,b")},
                          {{QStringLiteral("say \"no\"")}, {QStringLiteral("two\nlines\tmore")}}};
        QCOMPARE(csvOf(table), QByteArray("\"a,b\"\n\"say \"\"no\"\"\"\n\"two\nlines\tmore\"\n"));
        QCOMPARE(files::tabSeparated(rowsOf(table)),
                 QStringLiteral("a,b\nsay \"no\"\ntwo lines more\n"));
    }

    void anEmptyTableIsAnEmptyLine() { QCOMPARE(csvOf({}), QByteArray("\n")); }

    void captionsNameTheUnit()
    {
        QCOMPARE(captionOf({QStringLiteral("温度"), QStringLiteral("°C")}),
                 QStringLiteral("温度 (°C)"));
        QCOMPARE(captionOf({QStringLiteral("像素"), {}}), QStringLiteral("像素"));
    }

    void numbersHaveAsManyDecimalsAsAsked()
    {
        QCOMPARE(numberText(76800, 0), QStringLiteral("76800"));
        QCOMPARE(numberText(-2.25, 1), QStringLiteral("-2.3"));
        QCOMPARE(numberText(36.55, 2), QStringLiteral("36.55"));
    }

    void aMovedLimitStopsAtTheOther()
    {
        const Limits limits{20, 30, 1};
        QVERIFY((plots::moved(limits, Limit::Lower, 25) == Limits{25, 30, 1}));
        QVERIFY((plots::moved(limits, Limit::Lower, 35) == Limits{30, 30, 1}));
        QVERIFY((plots::moved(limits, Limit::Upper, 25) == Limits{20, 25, 1}));
        QVERIFY((plots::moved(limits, Limit::Upper, 15) == Limits{20, 20, 1}));
    }

    void sevenSeriesHaveColoursOfTheirOwnThatPaperShows()
    {
        std::set<QRgb> colours;
        for (int series = 0; series < 7; ++series) {
            colours.insert(colourOf(series).rgb());
            QVERIFY(qGray(colourOf(series).rgb()) < 190);
        }
        QCOMPARE(colours.size(), std::size_t(7));
        QCOMPARE(colourOf(7), colourOf(0));
    }
};

int main(int argc, char** argv)
{
    return testing::run<PlotTest>(argc, argv);
}

#include "plot_test.moc"
