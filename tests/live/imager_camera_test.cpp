// SPDX-License-Identifier: MIT
#include "live/imager_camera.h"
#include "simulator/simulated_camera.h"
#include "tests/support/test_run.h"

namespace {

const QString imagerName = QStringLiteral("\\\\?\\usb#vid_1d6b&pid_0102&mi_00#7&1#{guid}");
const QString imagerDescription = QStringLiteral("UVC Camera");

} // namespace

class ImagerCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { simulator::SimulatedCamera::instance().unplug(); }

    void matchRule_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("matches");
        const auto row = [](const char* title, const char* name, const char* description,
                            bool matches) {
            QTest::newRow(title) << QString::fromLatin1(name) << QString::fromLatin1(description)
                                 << matches;
        };
        row("imager", "\\\\?\\usb#vid_1d6b&pid_0102&mi_00#7", "UVC Camera", true);
        row("the shortest name", "usb#vid_1d6bpid_0102", "UVC Camera", true);
        row("in any order", "pid_0102 usb#vid_1d6b", "UVC Camera", true);
        row("vendor in capitals", "\\\\?\\USB#VID_1D6B&PID_0102", "UVC Camera", false);
        row("vendor's letter in capitals", "usb#vid_1D6B&pid_0102", "UVC Camera", false);
        row("product in capitals", "usb#vid_1d6b&PID_0102", "UVC Camera", false);
        row("another product", "usb#vid_1d6b&pid_0103", "UVC Camera", false);
        row("another vendor", "usb#vid_046d&pid_0102", "UVC Camera", false);
        row("no bus", "vid_1d6b&pid_0102", "UVC Camera", false);
        row("blank behind", "usb#vid_1d6b&pid_0102", "UVC Camera ", false);
        row("another case", "usb#vid_1d6b&pid_0102", "UVC camera", false);
        row("more text", "usb#vid_1d6b&pid_0102", "USB UVC Camera", false);
        row("nothing", "", "", false);
    }
    void matchRule()
    {
        QFETCH(QString, name);
        QFETCH(QString, description);
        QFETCH(bool, matches);
        QCOMPARE(live::isImager(name, description), matches);
    }

    void findsTheFirstImager()
    {
        auto& cameras = simulator::SimulatedCamera::instance();
        QVERIFY(!live::findImager());
        cameras.plug({imagerName, QStringLiteral("UVC Camera ")});
        QVERIFY(!live::findImager());
        cameras.plug({imagerName + QStringLiteral("first"), imagerDescription});
        cameras.plug({imagerName + QStringLiteral("second"), imagerDescription});
        QVERIFY(live::findImager());
        QCOMPARE(live::findImager()->deviceName(), imagerName + QStringLiteral("first"));
        QVERIFY(live::isImager(*live::findImager()));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ImagerCameraTest>(argc, argv);
}

#include "imager_camera_test.moc"
