// SPDX-License-Identifier: MIT
#include "simulator/simulated_camera.h"
#include "tests/simulator/recording_surface.h"
#include "tests/support/test_run.h"

#include <QCamera>
#include <QCameraInfo>

#include <memory>

using simulator::CameraIdentity;
using simulator::SimulatedCamera;
using testing::RecordingSurface;

namespace {

const CameraIdentity webcam{QStringLiteral("\\\\?\\usb#vid_046d&pid_0825#1"),
                            QStringLiteral("Webcam")};

SimulatedCamera& simulated()
{
    return SimulatedCamera::instance();
}

QCameraInfo infoOf(const CameraIdentity& identity)
{
    return QCameraInfo(identity.deviceName.toUtf8());
}

/// A camera as a user opens one, started.
std::unique_ptr<QCamera> startedCamera(QAbstractVideoSurface* surface,
                                       const CameraIdentity& identity = simulator::imagerIdentity())
{
    auto camera = std::make_unique<QCamera>(infoOf(identity));
    camera->setViewfinder(surface);
    camera->start();
    return camera;
}

int countOf(const CameraIdentity& identity)
{
    int count = 0;
    for (const QCameraInfo& info : QCameraInfo::availableCameras())
        count +=
            info.deviceName() == identity.deviceName && info.description() == identity.description
                ? 1
                : 0;
    return count;
}

} // namespace

class SimulatedCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_realCameras = QCameraInfo::availableCameras().size(); }
    void cleanup() { simulated().unplug(); }

    void imagerIsKnownByItsIdentity();
    void plugAndUnplugAreSeenAtOnce();
    void severalCamerasAreListedInOrder();
    void deliversExactlyTheBytes();
    void deliversNothingUnlessActive();
    void surfaceIsStartedAndStopped();
    void stopAndStartAgain();
    void startTwiceIsHarmless();
    void unplugWhileRunningIsAnError();
    void unpluggingAnotherCameraIsNoError();
    void reportedErrorEndsTheFrames();
    void startingAnUnpluggedCameraFails();
    void aDeviceServesOneCameraAtATime();
    void twoDevicesRunSideBySide();
    void camerasAndSurfacesMayGoInAnyOrder_data();
    void camerasAndSurfacesMayGoInAnyOrder();
    void aSurfaceOfAnotherFormatGetsNothing();
    void slotsMayDeleteTheCamera();
    void runningIsTold();

private:
    int m_realCameras = 0;
};

void SimulatedCameraTest::imagerIsKnownByItsIdentity()
{
    const CameraIdentity identity = simulator::imagerIdentity();
    QVERIFY(identity.deviceName.contains(QStringLiteral("usb#vid_1d6b")));
    QVERIFY(identity.deviceName.contains(QStringLiteral("pid_0102")));
    QCOMPARE(identity.description, QStringLiteral("UVC Camera"));
}

void SimulatedCameraTest::plugAndUnplugAreSeenAtOnce()
{
    QCOMPARE(countOf(simulator::imagerIdentity()), 0);
    QVERIFY(!simulated().isPlugged());
    for (int round = 0; round < 3; ++round) {
        simulated().plug();
        QVERIFY(simulated().isPlugged());
        QCOMPARE(countOf(simulator::imagerIdentity()), 1);
        simulated().unplug();
        QVERIFY(!simulated().isPlugged());
        QCOMPARE(countOf(simulator::imagerIdentity()), 0);
    }
    simulated().plug();
    simulated().plug();
    QCOMPARE(countOf(simulator::imagerIdentity()), 1);
    QCOMPARE(QCameraInfo::availableCameras().size(), m_realCameras + 1);
}

void SimulatedCameraTest::severalCamerasAreListedInOrder()
{
    simulated().plug(webcam);
    simulated().plug();
    QCOMPARE(countOf(webcam), 1);
    QCOMPARE(countOf(simulator::imagerIdentity()), 1);
    QCOMPARE(simulated().plugged().first().deviceName, webcam.deviceName);

    CameraIdentity renamed = webcam;
    renamed.description = QStringLiteral("UVC Camera ");
    simulated().plug(renamed);
    QCOMPARE(countOf(webcam), 0);
    QCOMPARE(countOf(renamed), 1);
    QCOMPARE(simulated().plugged().first().description, renamed.description);

    simulated().unplug(webcam);
    QCOMPARE(countOf(renamed), 0);
    QVERIFY(simulated().isPlugged());
    QVERIFY(!simulated().isPlugged(webcam));
    QVERIFY(simulated().isPlugged(simulator::imagerIdentity()));
}

void SimulatedCameraTest::deliversExactlyTheBytes()
{
    simulated().plug();
    RecordingSurface surface;
    const auto camera = startedCamera(&surface);
    QCOMPARE(camera->error(), QCamera::NoError);
    QCOMPARE(camera->state(), QCamera::ActiveState);
    QCOMPARE(camera->status(), QCamera::ActiveStatus);

    QByteArray frame(153606, '\0');
    for (int i = 0; i < frame.size(); ++i)
        frame[i] = char(i * 31 + i / 251);
    QVERIFY(simulated().deliver(frame));
    QCOMPARE(surface.pictures, QList<QByteArray>{frame});
    QCOMPARE(surface.lastSize, QSize(240, 320));
    QCOMPARE(surface.lastBytesPerLine, 480);
    QCOMPARE(surface.lastFormat, QVideoFrame::Format_YUYV);

    QVERIFY(simulated().deliver(frame.left(1000)));
    QCOMPARE(surface.pictures.last(), frame.left(1000));
    QVERIFY(!simulated().deliver(QByteArray()));
    QCOMPARE(surface.pictures.size(), 3);
    QVERIFY(!surface.lastWasValid);
}

void SimulatedCameraTest::deliversNothingUnlessActive()
{
    const QByteArray frame(153606, 'x');
    QVERIFY(!simulated().deliver(frame));
    simulated().plug();
    QVERIFY(!simulated().deliver(frame));

    RecordingSurface surface;
    QCamera camera(infoOf(simulator::imagerIdentity()));
    camera.setViewfinder(&surface);
    QVERIFY(!simulated().deliver(frame));
    camera.load();
    QCOMPARE(camera.status(), QCamera::LoadedStatus);
    QVERIFY(!simulated().deliver(frame));
    camera.start();
    QVERIFY(simulated().deliver(frame));
    camera.setViewfinder(static_cast<QAbstractVideoSurface*>(nullptr));
    QVERIFY(!simulated().deliver(frame));
    QCOMPARE(surface.pictures.size(), 1);
}

void SimulatedCameraTest::surfaceIsStartedAndStopped()
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

void SimulatedCameraTest::stopAndStartAgain()
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

void SimulatedCameraTest::startTwiceIsHarmless()
{
    simulated().plug();
    RecordingSurface surface;
    const auto camera = startedCamera(&surface);
    camera->start();
    QVERIFY(simulated().deliver("frame"));
    QCOMPARE(surface.pictures.size(), 1);
    QCOMPARE(camera->error(), QCamera::NoError);
}

void SimulatedCameraTest::unplugWhileRunningIsAnError()
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

void SimulatedCameraTest::unpluggingAnotherCameraIsNoError()
{
    simulated().plug(webcam);
    simulated().plug();
    RecordingSurface surface;
    const auto camera = startedCamera(&surface);
    simulated().unplug(webcam);
    QCOMPARE(camera->error(), QCamera::NoError);
    QVERIFY(simulated().deliver("frame"));
}

void SimulatedCameraTest::reportedErrorEndsTheFrames()
{
    simulated().plug();
    RecordingSurface surface;
    const auto camera = startedCamera(&surface);
    simulated().reportError();
    QCOMPARE(camera->error(), QCamera::CameraError);
    QVERIFY(!simulated().deliver("frame"));
    QVERIFY(simulated().isPlugged());
    QCOMPARE(countOf(simulator::imagerIdentity()), 1);
    camera->start();
    QCOMPARE(camera->error(), QCamera::NoError);
    QVERIFY(simulated().deliver("frame"));
}

void SimulatedCameraTest::startingAnUnpluggedCameraFails()
{
    simulated().plug();
    QCamera camera(infoOf(simulator::imagerIdentity()));
    simulated().unplug();
    camera.start();
    QCOMPARE(camera.error(), QCamera::CameraError);
    QCOMPARE(camera.state(), QCamera::UnloadedState);
    QVERIFY(!simulated().isRunning());
}

void SimulatedCameraTest::aDeviceServesOneCameraAtATime()
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

void SimulatedCameraTest::twoDevicesRunSideBySide()
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

void SimulatedCameraTest::camerasAndSurfacesMayGoInAnyOrder_data()
{
    QTest::addColumn<QString>("order");
    // c deletes the camera, s the surface, x stops the surface, u unplugs, e reports an error
    for (const char* order : {"cs", "sc", "xsc", "xcs", "ucs", "usc", "csu", "scu", "cus", "suc",
                              "ecs", "esc", "eucs", "uesc", "xusc", "sexcu"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void SimulatedCameraTest::camerasAndSurfacesMayGoInAnyOrder()
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

void SimulatedCameraTest::aSurfaceOfAnotherFormatGetsNothing()
{
    simulated().plug();
    RecordingSurface surface(QVideoFrame::Format_RGB32);
    const auto camera = startedCamera(&surface);
    QVERIFY(!simulated().deliver("frame"));
    QVERIFY(surface.pictures.isEmpty());
}

void SimulatedCameraTest::slotsMayDeleteTheCamera()
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

void SimulatedCameraTest::runningIsTold()
{
    QSignalSpy running(&simulated(), &SimulatedCamera::runningChanged);
    QSignalSpy plugged(&simulated(), &SimulatedCamera::pluggedChanged);
    simulated().plug();
    QCOMPARE(plugged.size(), 1);
    RecordingSurface surface;
    auto camera = startedCamera(&surface);
    QVERIFY(simulated().isRunning());
    QCOMPARE(running.takeFirst(), QVariantList{true});
    camera->stop();
    QCOMPARE(running.takeFirst(), QVariantList{false});
    camera->start();
    QCOMPARE(running.takeFirst(), QVariantList{true});
    camera.reset();
    QCOMPARE(running.takeFirst(), QVariantList{false});
    QVERIFY(running.isEmpty());
    simulated().unplug();
    QCOMPARE(plugged.size(), 2);
}

int main(int argc, char** argv)
{
    return testing::run<SimulatedCameraTest>(argc, argv);
}

#include "simulated_camera_test.moc"
