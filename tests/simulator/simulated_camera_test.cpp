// SPDX-License-Identifier: MIT
#include "tests/simulator/recording_surface.h"
#include "tests/simulator/started_camera.h"
#include "tests/support/test_run.h"

using simulator::CameraIdentity;
using simulator::SimulatedCamera;
using testing::countOf;
using testing::RecordingSurface;
using testing::simulated;
using testing::startedCamera;
using testing::webcam;

/// What the simulated camera shows of itself: devices in the list, frames, and that it runs.
class SimulatedCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_realCameras = QCameraInfo::availableCameras().size(); }
    void cleanup() { simulated().unplug(); }

    void imagerIsKnownByItsIdentity()
    {
        const CameraIdentity identity = simulator::imagerIdentity();
        QVERIFY(identity.deviceName.contains(QStringLiteral("usb#vid_1d6b")));
        QVERIFY(identity.deviceName.contains(QStringLiteral("pid_0102")));
        QCOMPARE(identity.description, QStringLiteral("UVC Camera"));
    }

    void plugAndUnplugAreSeenAtOnce()
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

    void severalCamerasAreListedInOrder()
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

    void deliversExactlyTheBytes()
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

    void deliversNothingUnlessActive()
    {
        const QByteArray frame(153606, 'x');
        QVERIFY(!simulated().deliver(frame));
        simulated().plug();
        QVERIFY(!simulated().deliver(frame));

        RecordingSurface surface;
        QCamera camera(testing::infoOf(simulator::imagerIdentity()));
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

    void aSurfaceOfAnotherFormatGetsNothing()
    {
        simulated().plug();
        RecordingSurface surface(QVideoFrame::Format_RGB32);
        const auto camera = startedCamera(&surface);
        QVERIFY(!simulated().deliver("frame"));
        QVERIFY(surface.pictures.isEmpty());
    }

    void runningIsTold()
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

private:
    int m_realCameras = 0;
};

int main(int argc, char** argv)
{
    return testing::run<SimulatedCameraTest>(argc, argv);
}

#include "simulated_camera_test.moc"
