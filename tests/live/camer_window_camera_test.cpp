// SPDX-License-Identifier: MIT
// The live page and its camera: frames that come, cameras that come and go.
#include "tests/live/camera.h"
#include "tests/support/test_run.h"

#include <QLabel>

using testing::camera;
using testing::deliver;
using testing::Page;
using testing::PaintCounter;

class CamerWindowCameraTest : public testing::CameraPageTest
{
    Q_OBJECT

private slots:
    void showsTheFrames();
    void pictureIsScaledSmoothly();
    void pictureIsScaledOncePerFrame();
    void frameRepaintsThePictureAlone();
    void keepsSevenPictures();
    void unusableFramesKeepThePicture();
    void opensOnlyTheImager();
    void opensTheFirstImager();
    void withoutImager();
    void cameraErrorStopsTheCamera();
    void reopensTheCamera();
    void reopeningWithoutImager();
    void reopeningFindsNoImagerAnyMore();
};

void CamerWindowCameraTest::showsTheFrames()
{
    const Page page;
    page->show();
    QVERIFY(camera().deliver(testing::grayFrame(200, 362, 340, 97)));
    QCOMPARE(page->currentPixmap.size(), QSize(240, 320));
    const auto* const label = page.get<QLabel>("label_17");
    const QPixmap shown = *label->pixmap();
    QCOMPARE(shown.size(), QSize(240, 320).scaled(label->size(), Qt::KeepAspectRatio));
    QCOMPARE(shown.toImage().pixelColor(5, 5), QColor(200, 200, 200));
    QCOMPARE(page.text("label_6"), QStringLiteral("36.2"));
    QCOMPARE(page.text("label_7"), QStringLiteral("34.0"));
    QCOMPARE(page.text("label_8"), QStringLiteral("0.97"));
}

void CamerWindowCameraTest::pictureIsScaledSmoothly()
{
    const Page page;
    page->show();
    QImage stripes(240, 320, QImage::Format_RGB888);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    }
    page->display_cap(stripes);
    const QImage shown = page.get<QLabel>("label_17")->pixmap()->toImage();
    QVERIFY(shown.width() != 240);
    int between = 0;
    for (int x = 0; x < shown.width(); ++x) {
        const int gray = shown.pixelColor(x, shown.height() / 2).red();
        between += gray > 60 && gray < 195;
    }
    QVERIFY(between > shown.width() / 10);
}

void CamerWindowCameraTest::pictureIsScaledOncePerFrame()
{
    const Page page;
    page->show();
    QVERIFY(deliver());
    const auto* const label = page.get<QLabel>("label_17");
    const qint64 shown = label->pixmap()->cacheKey();
    page->grab();
    page->repaint();
    QCoreApplication::processEvents();
    QCOMPARE(label->pixmap()->cacheKey(), shown);
    QVERIFY(deliver());
    QVERIFY(label->pixmap()->cacheKey() != shown);
}

void CamerWindowCameraTest::frameRepaintsThePictureAlone()
{
    const Page page;
    const PaintCounter ofPage(page.window());
    const PaintCounter ofPicture(*page.get<QLabel>("label_17"));
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(&page.window()));
    QVERIFY(deliver());
    QTRY_VERIFY(ofPage.count > 0 && ofPicture.count > 0);
    for (int round = 0; round < 50; ++round)
        QCoreApplication::processEvents();
    const int before = ofPage.count;
    const int beforeOfPicture = ofPicture.count;
    QVERIFY(deliver());
    QTRY_COMPARE(ofPicture.count, beforeOfPicture + 1);
    QCOMPARE(ofPage.count, before);
}

void CamerWindowCameraTest::keepsSevenPictures()
{
    const Page page;
    for (int i = 1; i <= 10; ++i) {
        QVERIFY(deliver(20 * i));
        QCOMPARE(page->recentFrames.size(), qMin(i, 7));
    }
    for (int i = 0; i < 7; ++i)
        QCOMPARE(page->recentFrames[i].pixelColor(0, 0).red(), 20 * (i + 4));
}

void CamerWindowCameraTest::unusableFramesKeepThePicture()
{
    const Page page;
    QVERIFY(deliver(50));
    const qint64 shown = page->currentPixmap.cacheKey();
    camera().deliver(QByteArray());
    camera().deliver(testing::grayFrame(90, 1, 2, 3).left(153605));
    QCOMPARE(page->currentPixmap.cacheKey(), shown);
    QCOMPARE(page.text("label_6"), QStringLiteral("36.2"));
    QCOMPARE(page->recentFrames.size(), 1);
}

void CamerWindowCameraTest::opensOnlyTheImager()
{
    const simulator::CameraIdentity imager = simulator::imagerIdentity();
    camera().unplug();
    camera().plug({imager.deviceName, QStringLiteral("uvc camera")});
    camera().plug({imager.deviceName.toUpper(), imager.description});
    const Page page;
    QVERIFY(!page->camera);
    QVERIFY(!deliver());
}

void CamerWindowCameraTest::opensTheFirstImager()
{
    const simulator::CameraIdentity imager = simulator::imagerIdentity();
    camera().plug({imager.deviceName + QStringLiteral("second"), imager.description});
    const Page page;
    QVERIFY(camera().isRunning());
    camera().unplug({imager.deviceName + QStringLiteral("second"), imager.description});
    QVERIFY(deliver());
}

void CamerWindowCameraTest::withoutImager()
{
    camera().unplug();
    const Page page;
    page->show();
    QVERIFY(!page->camera);
    page->timeout_connect();
    QVERIFY(!page->cameraRunning);
    QVERIFY(!page.get<QLabel>("label_17")->pixmap());
    page->close();
}

void CamerWindowCameraTest::cameraErrorStopsTheCamera()
{
    const Page page;
    QCOMPARE(page->healthTimer->interval(), 300);
    QTRY_VERIFY(page->cameraRunning); // the health poll runs by itself
    QVERIFY(deliver(70));
    camera().reportError();
    QTRY_VERIFY(!page->cameraRunning);
    QVERIFY(!deliver(80));
    QCOMPARE(page->currentPixmap.toImage().pixelColor(0, 0), QColor(70, 70, 70));
    QVERIFY(page->isOpen());
}

void CamerWindowCameraTest::reopensTheCamera()
{
    camera().plug({QStringLiteral("webcam"), QStringLiteral("A webcam")});
    const Page page;
    camera().unplug(simulator::imagerIdentity());
    QTRY_VERIFY(!page->cameraRunning);
    camera().plug();
    const testing::LogRecorder log;
    page->reopenCamera();
    QVERIFY(log.contains(QStringLiteral("可用相机: A webcam")));
    QVERIFY(log.contains(QStringLiteral("可用相机: UVC Camera")));
    QVERIFY(deliver());
    page->timeout_connect();
    QVERIFY(page->cameraRunning);
}

void CamerWindowCameraTest::reopeningWithoutImager()
{
    camera().unplug();
    const Page page;
    page->reopenCamera();
    QVERIFY(!page->camera);

    camera().plug();
    page->reopenCamera();
    camera().unplug();
    page->reopenCamera();
    QVERIFY(page->camera);
    QVERIFY(!deliver());
}

/// The camera there was goes on, whatever it calls itself now.
void CamerWindowCameraTest::reopeningFindsNoImagerAnyMore()
{
    const Page page;
    QVERIFY(deliver());
    camera().plug({simulator::imagerIdentity().deviceName, QStringLiteral("Another camera")});
    page->reopenCamera();
    QVERIFY(deliver());
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowCameraTest>(argc, argv);
}

#include "camer_window_camera_test.moc"
