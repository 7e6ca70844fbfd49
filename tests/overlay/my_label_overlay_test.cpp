// SPDX-License-Identifier: MIT
#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/painted_description.h"
#include "tests/support/test_run.h"

#include <QPainter>

#include <array>
#include <cmath>

using namespace testing;

/// What a paint leaves in `overlay`, and how the label is drawn off the screen.
class MyLabelOverlayTest : public QObject
{
    Q_OBJECT

private slots:
    void theOverlayIsKept()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        placeTools(label);
        label.repaint();
        const double ratio = label.devicePixelRatioF();
        QCOMPARE(label.overlay.size(),
                 QSize(int(std::ceil(520 * ratio)), int(std::ceil(640 * ratio))));
        QCOMPARE(label.overlay.devicePixelRatio(), ratio);
        QImage image = label.overlay.toImage();
        QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2).alpha(), 0);
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white)); // a margin
    }

    void aLabelWithoutRoomHasNoOverlay_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("no width") << QSize(0, 960);
        QTest::newRow("no height") << QSize(721, 0);
    }
    void aLabelWithoutRoomHasNoOverlay()
    {
        QFETCH(QSize, size);
        MyLabel label;
        prepare(label, {300, 330}, {240, 320});
        placeTools(label);
        label.repaint();
        QVERIFY(!label.overlay.isNull());
        label.frozenGeometry = true;
        label.labelWidth = size.width();
        label.labelHeight = size.height();
        QPixmap elsewhere(10, 10);
        label.render(&elsewhere);
        QVERIFY(label.overlay.isNull());
    }

    /// As the report asks for it: three times the picture, one pixel wider, whatever the label's
    /// size and the screen.
    void frozenForAReport()
    {
        MyLabel label;
        prepare(label, {300, 330}, {240, 320});
        placeTools(label);
        label.frozenGeometry = true;
        label.labelWidth = 721;
        label.imageWidth = 720;
        label.labelHeight = 960;
        label.imageHeight = 960;
        QPixmap elsewhere(10, 10);
        label.render(&elsewhere);
        const QPixmap report = label.overlay;
        QCOMPARE(label.labelWidth, 721);
        label.frozenGeometry = false;
        label.repaint();
        QCOMPARE(label.labelWidth, 300);
        QCOMPARE(label.overlay.devicePixelRatio(), label.devicePixelRatioF());

        QCOMPARE(report.size(), QSize(721, 960));
        QCOMPARE(report.devicePixelRatio(), 1.0);
        QImage image(report.size(), QImage::Format_RGB32);
        image.fill(background);
        QPainter(&image).drawPixmap(0, 0, report);
        Description description;
        description.picture = QRect(0, 0, 721, 960);
        // x is 3x + 0.5 + 0.5, y is 3y; 9 image pixels are 27, arms of 13
        const QPointF centre(151, 180);
        for (const QPointF& arm : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
            description.strokes.push_back({{centre + 13 * arm, centre + 2 * arm}, red});
        description.strokes.push_back({{61, 600, 271, 750}, blue});
        addRect(description, {421, 60, 180, 240}, red);
        description.rings.push_back({{511, 660}, 90, blue});
        compare(image, 1.0, description);
    }

    void aHiddenLabelRendersItsOverlayToo()
    {
        MyLabel label;
        label.resize(300, 330);
        label.setPixmap(plainPicture({240, 320}));
        QPixmap elsewhere(10, 10);
        label.render(&elsewhere);
        QCOMPARE(label.overlay.isNull(), false);
    }
};

int main(int argc, char** argv)
{
    return testing::run<MyLabelOverlayTest>(argc, argv);
}

#include "my_label_overlay_test.moc"
