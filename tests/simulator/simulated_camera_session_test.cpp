// SPDX-License-Identifier: MIT
#include "tests/simulator/recording_surface.h"
#include "tests/simulator/started_camera.h"
#include "tests/support/test_run.h"

using testing::RecordingSurface;
using testing::simulated;
using testing::startedCamera;
using testing::webcam;

/// A started camera's life: stopped and started anew, unplugged, broken, beside another one, and
/// deleted at any moment.
class SimulatedCameraSessionTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { simulated().unplug(); }

    void surfaceIsStartedAndStopped()
    {
        simulated().plug();
        RecordingSurface surface;
        auto camera = startedCamera(&surface);
        QVERIFY(simulated().deliver("frame"));
        QVERIFY(surface.isActive());
        QCOMPARE(surface.surfaceFormat().frameSize(), QSize(240, 320));
        QCOMPARE(surface.surfaceFormat().pixelFormat(), QVideoFrame::Format_YUYV);
        camera->stop();
        QVERIFY(!surface.isActive());
        camera->start();
        QVERIFY(simulated().deliver("frame"));
        camera.reset();
        QVERIFY(!surface.isActive());
    }

    void stopAndStartAgain()
    {
        simulated().plug();
        RecordingSurface surface;
        const auto camera = startedCamera(&surface);
        camera->stop();
        QVERIFY(!simulated().isRunning());
        QVERIFY(!simulated().deliver("frame"));
        camera->start();
        QVERIFY(simulated().deliver("frame"));
        camera->unload();
        QVERIFY(!simulated().isRunning());
        camera->start();
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(camera->error(), QCamera::NoError);
    }

    void startTwiceIsHarmless()
    {
        simulated().plug();
        RecordingSurface surface;
        const auto camera = startedCamera(&surface);
        camera->start();
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(surface.pictures.size(), 1);
        QCOMPARE(camera->error(), QCamera::NoError);
    }

    void unplugWhileRunningIsAnError()
    {
        simulated().plug();
        RecordingSurface surface;
        const auto camera = startedCamera(&surface);
        QVERIFY(simulated().deliver("frame"));
        simulated().unplug();
        QCOMPARE(camera->error(), QCamera::CameraError);
        QCOMPARE(camera->state(), QCamera::UnloadedState);
        QCOMPARE(camera->status(), QCamera::UnavailableStatus);
        QVERIFY(!simulated().isRunning());
        QVERIFY(!simulated().deliver("frame"));
        QVERIFY(!surface.isActive());
        camera->stop();

        // The same object works again once the camera is back.
        simulated().plug();
        camera->start();
        QCOMPARE(camera->error(), QCamera::NoError);
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(surface.pictures.size(), 2);
    }

    void unpluggingAnotherCameraIsNoError()
    {
        simulated().plug(webcam);
        simulated().plug();
        RecordingSurface surface;
        const auto camera = startedCamera(&surface);
        simulated().unplug(webcam);
        QCOMPARE(camera->error(), QCamera::NoError);
        QVERIFY(simulated().deliver("frame"));
    }

    void reportedErrorEndsTheFrames()
    {
        simulated().plug();
        RecordingSurface surface;
        const auto camera = startedCamera(&surface);
        simulated().reportError();
        QCOMPARE(camera->error(), QCamera::CameraError);
        QVERIFY(!simulated().deliver("frame"));
        QVERIFY(simulated().isPlugged());
        QCOMPARE(testing::countOf(simulator::imagerIdentity()), 1);
        camera->start();
        QCOMPARE(camera->error(), QCamera::NoError);
        QVERIFY(simulated().deliver("frame"));
    }

    void startingAnUnpluggedCameraFails()
    {
        simulated().plug();
        QCamera camera(testing::infoOf(simulator::imagerIdentity()));
        simulated().unplug();
        camera.start();
        QCOMPARE(camera.error(), QCamera::CameraError);
        QCOMPARE(camera.state(), QCamera::UnloadedState);
        QVERIFY(!simulated().isRunning());
    }

    void aDeviceServesOneCameraAtATime()
    {
        simulated().plug();
        RecordingSurface firstSurface;
        RecordingSurface secondSurface;
        auto first = startedCamera(&firstSurface);
        const auto second = startedCamera(&secondSurface);
        QCOMPARE(second->error(), QCamera::CameraError);
        QCOMPARE(first->error(), QCamera::NoError);
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(firstSurface.pictures.size(), 1);
        QCOMPARE(secondSurface.pictures.size(), 0);

        first->stop();
        second->start();
        QCOMPARE(second->error(), QCamera::NoError);
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(firstSurface.pictures.size(), 1);
        QCOMPARE(secondSurface.pictures.size(), 1);
        first.reset();
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(secondSurface.pictures.size(), 2);
    }

    void twoDevicesRunSideBySide()
    {
        simulated().plug(webcam);
        simulated().plug();
        RecordingSurface imagerSurface;
        RecordingSurface webcamSurface;
        const auto imager = startedCamera(&imagerSurface);
        const auto other = startedCamera(&webcamSurface, webcam);
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(imagerSurface.pictures.size(), 1);
        QCOMPARE(webcamSurface.pictures.size(), 1);
        simulated().unplug(webcam);
        QCOMPARE(other->error(), QCamera::CameraError);
        QVERIFY(simulated().isRunning());
        QVERIFY(simulated().deliver("frame"));
        QCOMPARE(imagerSurface.pictures.size(), 2);
        QCOMPARE(webcamSurface.pictures.size(), 1);
    }

    void camerasAndSurfacesMayGoInAnyOrder_data()
    {
        QTest::addColumn<QString>("order");
        // c deletes the camera, s the surface, x stops the surface, u unplugs, e reports an error
        for (const char* order : {"cs", "sc", "xsc", "xcs", "ucs", "usc", "csu", "scu", "cus",
                                  "suc", "ecs", "esc", "eucs", "uesc", "xusc", "sexcu"})
            QTest::newRow(order) << QString::fromLatin1(order);
    }
    void camerasAndSurfacesMayGoInAnyOrder()
    {
        QFETCH(QString, order);
        simulated().plug();
        auto surface = std::make_unique<RecordingSurface>();
        auto camera = startedCamera(surface.get());
        QVERIFY(simulated().deliver("frame"));
        for (const QChar step : order) {
            if (step == QLatin1Char('c'))
                camera.reset();
            else if (step == QLatin1Char('s'))
                surface.reset();
            else if (step == QLatin1Char('x') && surface)
                surface->stop();
            else if (step == QLatin1Char('u'))
                simulated().unplug();
            else if (step == QLatin1Char('e'))
                simulated().reportError();
            simulated().deliver("frame");
            QCoreApplication::processEvents();
        }
        QVERIFY(!simulated().isRunning());
        QVERIFY(!simulated().deliver("frame"));
    }

    void slotsMayDeleteTheCamera()
    {
        simulated().plug();
        RecordingSurface surface;
        auto camera = startedCamera(&surface);
        connect(camera.get(), QOverload<QCamera::Error>::of(&QCamera::error), this,
                [&camera] { camera->deleteLater(); });
        surface.onPresent = [] {
            simulated().unplug();
        };
        simulated().deliver("frame");
        QCOMPARE(surface.pictures.size(), 1);
        QVERIFY(!simulated().isRunning());
        QSignalSpy destroyed(camera.release(), &QObject::destroyed);
        QVERIFY(destroyed.wait());
    }
};

int main(int argc, char** argv)
{
    return testing::run<SimulatedCameraSessionTest>(argc, argv);
}

#include "simulated_camera_session_test.moc"
