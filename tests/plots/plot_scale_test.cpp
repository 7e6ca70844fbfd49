// SPDX-License-Identifier: MIT
#include "plots/plot_scale.h"
#include "tests/support/test_run.h"

#include <qwt_scale_div.h>

/// Runs with digits of another language, too.
class PlotScaleTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersHavePlainDigitsAndNoMoreOfThemThanTheyNeed()
    {
        plots::PlainScale scale;
        scale.setScaleDiv(QwtScaleDiv(-50, 150));
        QCOMPARE(scale.label(36.5).text(), QStringLiteral("36.5"));
        QCOMPARE(scale.label(-12).text(), QStringLiteral("-12"));
        QCOMPARE(scale.label(100000).text(), QStringLiteral("100000"));
    }

    void whatSumsUpToAlmostNothingIsZero()
    {
        plots::PlainScale scale;
        scale.setScaleDiv(QwtScaleDiv(-1, 1));
        QCOMPARE(scale.label(5.5e-17).text(), QStringLiteral("0"));
        QCOMPARE(scale.label(-5.5e-17).text(), QStringLiteral("0"));
        scale.setScaleDiv(QwtScaleDiv(0, 1e-6));
        QCOMPARE(scale.label(5e-7).text(), QStringLiteral("5e-07"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<PlotScaleTest>(argc, argv);
}

#include "plot_scale_test.moc"
