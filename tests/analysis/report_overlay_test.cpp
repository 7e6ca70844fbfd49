#include "analysis/report_overlay.h"
#include "overlay/my_label.h"
#include "tests/analysis/sample_report.h"
#include "tests/support/test_run.h"

class ReportOverlayTest : public QObject
{
    Q_OBJECT

private slots:
    void threeTimesThePicture()
    {
        MyLabel label;
        testing::placeSampleTools(label);
        const QImage overlay = analysis::reportOverlay(label, {240, 320});
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

    void theSameForShownAndHiddenLabels()
    {
        MyLabel label;
        testing::placeSampleTools(label);
        const QImage hidden = analysis::reportOverlay(label, {240, 320});
        label.resize(500, 400);
        QPixmap picture(300, 400);
        picture.fill(Qt::blue);
        label.setPixmap(picture);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        QTRY_COMPARE(label.imageWidth, 300);
        QVERIFY(analysis::reportOverlay(label, {240, 320}) == hidden);
        label.hide();
        QVERIFY(analysis::reportOverlay(label, {240, 320}) == hidden);
    }

    void theSelectedToolIsGreen()
    {
        MyLabel label;
        testing::placeSampleTools(label);
        label.currentType = QStringLiteral("P");
        label.selectedIndex = 0;
        const QImage overlay = analysis::reportOverlay(label, {240, 320});
        QCOMPARE(overlay.pixel(361 - 8, 570), qRgb(0, 255, 0));
    }

    void theLabelIsLeftAsItWas()
    {
        MyLabel label;
        testing::placeSampleTools(label);
        label.resize(500, 400);
        QPixmap picture(300, 400);
        picture.fill(Qt::blue);
        label.setPixmap(picture);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        QTRY_COMPARE(label.overlay.size(), QSize(500, 400));
        const QImage before = label.overlay.toImage();
        const QImage shown = label.grab().toImage();

        QVERIFY(!analysis::reportOverlay(label, {240, 320}).isNull());
        QVERIFY(!label.frozenGeometry);
        QCOMPARE(label.labelWidth, 500);
        QCOMPARE(label.imageWidth, 300);
        QCOMPARE(label.labelHeight, 400);
        QCOMPARE(label.imageHeight, 400);
        QVERIFY(label.overlay.toImage() == before);
        QVERIFY(label.grab().toImage() == shown);
    }

    void withoutAPictureThereIsNone()
    {
        testing::LogRecorder log;
        MyLabel label;
        QVERIFY(analysis::reportOverlay(label, {}).isNull());
        QVERIFY(!label.frozenGeometry);
        QCOMPARE(log.messages(), QStringList());
    }

    void aLabelWithoutExtentHasItsTools()
    {
        testing::LogRecorder log;
        MyLabel label;
        testing::placeSampleTools(label);
        const QImage overlay = analysis::reportOverlay(label, {240, 320});
        label.setMinimumSize(0, 0);
        label.resize(0, 0);
        QVERIFY(analysis::reportOverlay(label, {240, 320}) == overlay);
        QCOMPARE(log.messages(), QStringList());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ReportOverlayTest>(argc, argv);
}
#include "report_overlay_test.moc"
