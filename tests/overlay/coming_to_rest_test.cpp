// SPDX-License-Identifier: MIT
#include "tests/overlay/mouse.h"
#include "tests/overlay/overlay_host.h"
#include "tests/support/paint_counter.h"
#include "tests/support/test_run.h"

#include <memory>

using testing::comeToRest;
using testing::Mouse;
using testing::OverlayHost;
using testing::PaintCounter;

/// A host that renders in every paint, setting the label's pixmap twice, must not keep itself
/// painting, and must still follow the colour bar, which tells it nothing.
class ComingToRestTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        host = std::make_unique<OverlayHost>();
        host->resize(700, 660);
        ofHost = std::make_unique<PaintCounter>(*host);
        ofLabel = std::make_unique<PaintCounter>(*host->label);
        ofBar = std::make_unique<PaintCounter>(*host->bar);
        testing::showAndPaint(*host);
        QVERIFY(comeToRest(*ofHost) && comeToRest(*ofLabel));
        QVERIFY(ofLabel->count > 0);
        startCounting();
    }

    void cleanup() { host.reset(); }

    void anIdleSecondPaintsNothing()
    {
        QTest::qWait(1000);
        QCOMPARE(ofHost->count, 0);
        QCOMPARE(ofLabel->count, 0);
        QCOMPARE(ofBar->count, 0);
    }

    void theMouseOverTheLabelPaintsTheLabelAlone()
    {
        host->label->setToolMode(4);
        Mouse mouse(*host->label);
        mouse.press({100, 100});
        mouse.move({200, 200});
        mouse.release({200, 200});
        QVERIFY(comeToRest(*ofLabel));
        QVERIFY(ofLabel->count > 0);
        QCOMPARE(ofHost->count, 0);
        QCOMPARE(ofBar->count, 0);
    }

    void deletingAndClearingShowAtOnce()
    {
        MyLabel& label = *host->label;
        label.rectList = {{QStringLiteral("R0"), 10, 10, 100, 100, Qt::red}};
        label.currentType = QStringLiteral("R");
        label.selectedIndex = 0;
        label.deleteSelected();
        QVERIFY(comeToRest(*ofLabel));
        QVERIFY(ofLabel->count > 0);
        startCounting();
        label.clearTools();
        QVERIFY(comeToRest(*ofLabel));
        QVERIFY(ofLabel->count > 0);
        QCOMPARE(ofHost->count, 0);
    }

    /// Every step of the drag brings one rendering, which the label shows.
    void draggingAMarkerRendersAtOnce()
    {
        My_ColorSlider& bar = *host->bar;
        const QImage before = host->label->grab().toImage();
        Mouse mouse(bar);
        const QPoint grip(bar.startMarker.x() + 8, bar.startMarker.y());
        mouse.press(grip);
        QVERIFY(comeToRest(*ofHost));
        startCounting();
        for (int step = 1; step <= 5; ++step) {
            mouse.move(grip + QPoint(0, 60 * step));
            QTRY_VERIFY(ofHost->count >= step);
            QVERIFY(comeToRest(*ofHost));
            QVERIFY(ofLabel->count >= step);
        }
        QVERIFY(ofHost->count <= 10);
        QVERIFY(bar.startValue > 100);
        mouse.release(grip + QPoint(0, 300));
        QVERIFY(comeToRest(*ofHost) && comeToRest(*ofLabel));
        const QImage after = host->label->grab().toImage();
        QVERIFY(before != after);
        startCounting();
        anIdleSecondPaintsNothing();
    }

    void resizingComesToRest()
    {
        for (const QSize& size : {QSize(900, 500), QSize(420, 800), QSize(700, 660)}) {
            host->resize(size);
            QVERIFY(comeToRest(*ofHost) && comeToRest(*ofLabel));
        }
        startCounting();
        anIdleSecondPaintsNothing();
    }

    /// The picture's size must not reach the layout: that would make the window grow with itself.
    void theLayoutStaysAsItIs()
    {
        const QRect label = host->label->geometry();
        const QRect bar = host->bar->geometry();
        for (int i = 0; i < 5; ++i) {
            host->repaint();
            QCoreApplication::processEvents();
        }
        QCOMPARE(host->label->geometry(), label);
        QCOMPARE(host->bar->geometry(), bar);
    }

    void styleSheetsDoNotDisturbTheRest()
    {
        host->setStyleSheet(QStringLiteral("QWidget { background: rgb(232, 232, 232); }"
                                           "QLabel { border: 1px solid black; }"));
        QVERIFY(comeToRest(*ofHost) && comeToRest(*ofLabel));
        startCounting();
        anIdleSecondPaintsNothing();
    }

private:
    void startCounting() { ofHost->count = ofLabel->count = ofBar->count = 0; }

    std::unique_ptr<OverlayHost> host;
    std::unique_ptr<PaintCounter> ofHost;
    std::unique_ptr<PaintCounter> ofLabel;
    std::unique_ptr<PaintCounter> ofBar;
};

int main(int argc, char** argv)
{
    return testing::run<ComingToRestTest>(argc, argv);
}

#include "coming_to_rest_test.moc"
