// SPDX-License-Identifier: MIT
#include "analysis/windows/plot_bar.h"
#include "plots/plot_view.h"
#include "tests/plots/sample_plots.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QHBoxLayout>
#include <QPushButton>

class PlotBarTest : public QObject
{
    Q_OBJECT

private slots:
    void aButtonForEachThingThatAPlotCanDo()
    {
        QWidget window;
        auto* layout = new QHBoxLayout(&window);
        auto* view = new plots::PlotView;
        layout->addWidget(view);
        analysis::addPlotButtons(*layout, *view);
        QCOMPARE(window.findChildren<QPushButton*>().size(), 3);
        view->setPlot(testing::twoCurves());
        view->resize(640, 400);
        view->grab();
        view->zoomTo(QRectF(2, 22, 4, 10));
        QVERIFY(view->isZoomed());
        testing::part<QPushButton>(&window, "showAll")->click();
        QVERIFY(!view->isZoomed());
    }

    void aFileIsCalledAfterThePhotograph()
    {
        QCOMPARE(analysis::plotFileName(QStringLiteral("IMG001.bmp"), QStringLiteral("profile")),
                 QStringLiteral("IMG001-profile"));
        QCOMPARE(analysis::plotFileName(QStringLiteral("a.b.BMP"), QStringLiteral("histogram")),
                 QStringLiteral("a.b-histogram"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<PlotBarTest>(argc, argv);
}

#include "plot_bar_test.moc"
