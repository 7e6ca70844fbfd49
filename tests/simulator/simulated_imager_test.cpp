// SPDX-License-Identifier: MIT
#include "platform/removable_drives.h"
#include "simulator/simulated_camera.h"
#include "simulator/simulated_imager.h"
#include "tests/simulator/recording_surface.h"
#include "tests/support/test_run.h"

#include <QCamera>
#include <QCameraInfo>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <memory>

using simulator::SimulatedCamera;
using simulator::SimulatedImager;
using testing::RecordingSurface;

namespace {

int word(const QByteArray& frame, int at)
{
    return uchar(frame.at(at)) + 256 * uchar(frame.at(at + 1));
}

int maximum10(const QByteArray& frame)
{
    return word(frame, 153600);
}

/// The imager with its camera plugged in and somebody looking; frames only when asked for.
struct Cast
{
    Cast()
    {
        imager.setFrameRate(0);
        imager.setCameraPlugged(true);
        camera =
            std::make_unique<QCamera>(QCameraInfo(simulator::imagerIdentity().deviceName.toUtf8()));
        camera->setViewfinder(&surface);
        camera->start();
    }

    SimulatedImager imager;
    RecordingSurface surface;
    std::unique_ptr<QCamera> camera;
};

} // namespace

class SimulatedImagerTest : public QObject
{
    Q_OBJECT

private slots:
    void castsItsScene();
    void wordsFollowTheSettings();
    void hotSpotWarmsUpAndCoolsDown();
    void heatsPastTheThreshold();
    void sendsByItselfWhileSomebodyLooks();
    void sameCallsSamePictures();
    void cameraErrorEndsTheCast();
    void cameraComesAndGoes();
    void diskComesAndGoes();
    void photographShowsTheLiveScene();
    void samplesShowEveryScene();
    void everythingIsPulledOutInTheEnd();
};

void SimulatedImagerTest::castsItsScene()
{
    Cast cast;
    QSignalSpy sent(&cast.imager, &SimulatedImager::frameSent);
    QVERIFY(cast.imager.sendFrame());
    QVERIFY(cast.imager.sendFrame());
    QCOMPARE(sent.size(), 2);
    QCOMPARE(cast.surface.pictures.size(), 2);
    QCOMPARE(cast.surface.pictures.first().size(), 153606);
    QVERIFY(cast.surface.pictures.first() != cast.surface.pictures.last());
    for (const auto scene : {simulator::SceneKind::Window, simulator::SceneKind::Person,
                             simulator::SceneKind::Motor, simulator::SceneKind::CableJoint}) {
        cast.imager.setScene(scene);
        QVERIFY(cast.imager.sendFrame());
        QVERIFY(std::abs(maximum10(cast.surface.pictures.last()) - 10 * cast.imager.hotSpot()) <=
                3);
    }
}

void SimulatedImagerTest::wordsFollowTheSettings()
{
    Cast cast;
    cast.imager.setThreshold(81.3);
    simulator::PhotographSettings settings;
    settings.emissivity = 0.62;
    cast.imager.setPhotographSettings(settings);
    cast.imager.sendFrame();
    QCOMPARE(word(cast.surface.pictures.last(), 153602), 813);
    QCOMPARE(word(cast.surface.pictures.last(), 153604), 62);
}

void SimulatedImagerTest::hotSpotWarmsUpAndCoolsDown()
{
    Cast cast;
    cast.imager.setHotSpot(40);
    cast.imager.settle();
    cast.imager.setHotSpot(80);
    // Half of the way in a second, that is 25 frames.
    for (int frame = 0; frame < 25; ++frame)
        cast.imager.sendFrame();
    QVERIFY(std::abs(cast.imager.reachedHotSpot() - 60) < 0.001);
    QVERIFY(std::abs(maximum10(cast.surface.pictures.last()) - 600) <= 3);
    for (int frame = 1; frame < 25; ++frame)
        QVERIFY(maximum10(cast.surface.pictures.at(frame)) >
                maximum10(cast.surface.pictures.at(frame - 1)));
    cast.imager.setHotSpot(40);
    for (int frame = 0; frame < 25; ++frame)
        cast.imager.sendFrame();
    QVERIFY(std::abs(cast.imager.reachedHotSpot() - 50) < 0.001);
}

void SimulatedImagerTest::heatsPastTheThreshold()
{
    Cast cast;
    cast.imager.setThreshold(70);
    const auto isOver = [&cast] {
        cast.imager.sendFrame();
        const QByteArray& frame = cast.surface.pictures.last();
        return maximum10(frame) >= word(frame, 153602);
    };
    QVERIFY(!isOver());
    cast.imager.heatPastThreshold();
    int frames = 1;
    while (!isOver() && frames < 250)
        ++frames;
    QVERIFY2(frames > 2 && frames < 100, qPrintable(QString::number(frames)));
    cast.imager.coolBelowThreshold();
    cast.imager.settle();
    QVERIFY(!isOver());
}

void SimulatedImagerTest::sendsByItselfWhileSomebodyLooks()
{
    Cast cast;
    cast.imager.setFrameRate(50);
    QTRY_VERIFY(cast.surface.pictures.size() >= 5);
    cast.camera->stop();
    const int before = cast.surface.pictures.size();
    cast.camera->start();
    QTRY_VERIFY(cast.surface.pictures.size() >= before + 3);
    cast.imager.setFrameRate(0);
    QVERIFY(cast.imager.sendFrame());
}

void SimulatedImagerTest::sameCallsSamePictures()
{
    QList<QByteArray> pictures[2];
    for (auto& recorded : pictures) {
        Cast cast;
        cast.imager.setScene(simulator::SceneKind::Motor);
        cast.imager.setHotSpot(95);
        for (int frame = 0; frame < 4; ++frame)
            cast.imager.sendFrame();
        recorded = cast.surface.pictures;
    }
    QCOMPARE(pictures[0].size(), 4);
    QVERIFY(pictures[0] == pictures[1]);
}

void SimulatedImagerTest::cameraErrorEndsTheCast()
{
    Cast cast;
    cast.imager.sendFrame();
    cast.imager.reportCameraError();
    QVERIFY(cast.camera->error() != QCamera::NoError);
    QVERIFY(!cast.imager.sendFrame());
    QVERIFY(cast.imager.isCameraPlugged());
    QCOMPARE(cast.surface.pictures.size(), 1);
}

void SimulatedImagerTest::cameraComesAndGoes()
{
    SimulatedImager imager;
    QSignalSpy changed(&imager, &SimulatedImager::changed);
    QVERIFY(!imager.isCameraPlugged());
    imager.setCameraPlugged(true);
    imager.setCameraPlugged(true);
    QVERIFY(imager.isCameraPlugged());
    QCOMPARE(changed.size(), 1);
    imager.setCameraPlugged(false);
    QVERIFY(!imager.isCameraPlugged());
    QCOMPARE(changed.size(), 2);
    QVERIFY(!imager.sendFrame());

    // Another camera is none of its business.
    const simulator::CameraIdentity other{QStringLiteral("other"), QStringLiteral("Other")};
    SimulatedCamera::instance().plug(other);
    QVERIFY(!imager.isCameraPlugged());
    imager.setCameraPlugged(true);
    imager.setCameraPlugged(false);
    QVERIFY(SimulatedCamera::instance().isPlugged(other));
    SimulatedCamera::instance().unplug();
}

void SimulatedImagerTest::diskComesAndGoes()
{
    SimulatedImager imager;
    QSignalSpy changed(&imager, &SimulatedImager::changed);
    imager.setDiskPlugged(true);
    QCOMPARE(platform::removableDrives(), QStringList{imager.disk().root()});
    QCOMPARE(changed.size(), 1);
    imager.setDiskPlugged(false);
    QCOMPARE(platform::removableDrives(), QStringList());
    QCOMPARE(imager.takePhotograph(), QString());
}

void SimulatedImagerTest::photographShowsTheLiveScene()
{
    SimulatedImager imager;
    imager.setScene(simulator::SceneKind::Person);
    imager.setDiskPlugged(true);
    QSignalSpy taken(&imager, &SimulatedImager::photographTaken);
    simulator::PhotographSettings settings;
    settings.raw = true;
    settings.machineId = 6;
    imager.setPhotographSettings(settings);
    const QByteArray expected = simulator::photograph(imager.field(), settings);
    const QString path = imager.takePhotograph();
    QCOMPARE(taken.value(0).value(0).toString(), path);
    QCOMPARE(QFileInfo(path).path(), imager.disk().root() + QStringLiteral("DCIM_100"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), expected);
    const QString next = imager.takePhotograph();
    QFile nextFile(next);
    QVERIFY(nextFile.open(QIODevice::ReadOnly));
    QVERIFY(nextFile.readAll() != expected);
}

void SimulatedImagerTest::samplesShowEveryScene()
{
    SimulatedImager imager;
    QSignalSpy taken(&imager, &SimulatedImager::photographTaken);
    imager.takeSamplePhotographs();
    QVERIFY(taken.isEmpty());
    imager.setDiskPlugged(true);
    imager.takeSamplePhotographs();
    const QFileInfoList files =
        QDir(imager.disk().root() + QStringLiteral("DCIM_100")).entryInfoList(QDir::Files);
    QCOMPARE(files.size(), 5);
    QCOMPARE(taken.size(), 5);
    int withRawImage = 0;
    for (const QFileInfo& file : files) {
        withRawImage += file.size() == 406096 ? 1 : 0;
        QVERIFY(QImage(file.filePath()).size() == QSize(240, 320));
    }
    QCOMPARE(withRawImage, 2);
    QCOMPARE(imager.scene(), simulator::SceneKind::CableJoint);
}

void SimulatedImagerTest::everythingIsPulledOutInTheEnd()
{
    RecordingSurface surface;
    std::unique_ptr<QCamera> camera;
    {
        Cast cast;
        cast.imager.setDiskPlugged(true);
        cast.camera->stop();
        camera = std::move(cast.camera);
        camera->setViewfinder(&surface);
        camera->start();
        QVERIFY(cast.imager.sendFrame());
    }
    QVERIFY(camera->error() != QCamera::NoError);
    QVERIFY(!SimulatedCamera::instance().isPlugged());
    QCOMPARE(platform::removableDrives(), platform::systemRemovableDrives());
}

int main(int argc, char** argv)
{
    return testing::run<SimulatedImagerTest>(argc, argv);
}

#include "simulated_imager_test.moc"
