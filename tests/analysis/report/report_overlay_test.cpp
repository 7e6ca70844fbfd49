// SPDX-License-Identifier: MIT
#include "analysis/report/report_overlay.h"
#include "overlay/my_label.h"
#include "tests/analysis/sample_report.h"
#include "tests/support/test_run.h"

class ReportOverlayTest : public QObject
{
    Q_OBJECT

private slots:
    void threeTimesThePicture()
    {
        const testing::SampleTools tools;
        const QImage overlay = analysis::reportOverlay(tools, tools, {240, 320});
        QCOMPARE(overlay.size(), QSize(721, 960));
        QCOMPARE(overlay.devicePixelRatio(), 1.0);

        // The point (120, 190): x 120 × 720 / 240 + half of the one pixel more + a half, y 190 × 3;
        // 27 pixels across, with a gap of 2 on each side of the centre.
        const QRgb red = qRgb(255, 0, 0);
        QCOMPARE(overlay.pixel(361 - 8, 570), red);
        QCOMPARE(overlay.pixel(361 + 8, 570), red);
        QCOMPARE(overlay.pixel(361, 570 + 8), red);
        QCOMPARE(qAlpha(overlay.pixel(361 - 20, 570)), 0);
        // The rectangle from (140, 200) to (200, 260), the circle of 30 around (80, 240).
        QCOMPARE(overlay.pixel(500, 600), red);
        QCOMPARE(overlay.pixel(421, 700), red);
        QCOMPARE(overlay.pixel(601, 700), red);
        QCOMPARE(overlay.pixel(241, 720 - 90), red);
        // Around all this there is nothing, no white margins either.
        for (const QPoint corner : {QPoint(0, 0), QPoint(720, 0), QPoint(0, 959), QPoint(720, 959)})
            QCOMPARE(qAlpha(overlay.pixel(corner)), 0);
    }

    /// What a host gets that has the label drawn off the screen.
    void theSameAsAFrozenLabel()
    {
        const testing::SampleTools tools;
        MyLabel label;
        const overlay::Spots& spots = tools;
        label.pointList = tools.pointList;
        label.lineList = tools.lineList;
        label.rectList = tools.rectList;
        label.circleList = tools.circleList;
        static_cast<overlay::Spots&>(label) = spots;
        label.frozenGeometry = true;
        label.labelWidth = 721;
        label.imageWidth = 720;
        label.labelHeight = label.imageHeight = 960;
        label.grab();
        QVERIFY(analysis::reportOverlay(tools, tools, {240, 320}) == label.overlay.toImage());
        QVERIFY(analysis::reportOverlay(label, label, {240, 320}) == label.overlay.toImage());
    }

    void theSelectedToolIsGreen()
    {
        testing::SampleTools tools;
        overlay::select(tools, overlay::ToolKind::Point, 0);
        const QImage overlay = analysis::reportOverlay(tools, tools, {240, 320});
        QCOMPARE(overlay.pixel(361 - 8, 570), qRgb(0, 255, 0));
    }

    void withoutAPictureThereIsNone()
    {
        testing::LogRecorder log;
        QVERIFY(analysis::reportOverlay({}, {}, {}).isNull());
        QCOMPARE(log.messages(), QStringList());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ReportOverlayTest>(argc, argv);
}
#include "report_overlay_test.moc"
