// SPDX-License-Identifier: MIT
#include "app/device_poll.h"
#include "tests/support/test_run.h"

using device_poll::Action;

Q_DECLARE_METATYPE(std::vector<bool>)
Q_DECLARE_METATYPE(device_poll::Action)

/// The detection table, row by row.
class DevicePollTest : public QObject
{
    Q_OBJECT

private slots:
    void table_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("mode");
        QTest::addColumn<std::vector<bool>>("cameras");
        QTest::addColumn<int>("drives");
        QTest::addColumn<Action>("action");
        QTest::addColumn<int>("nextState");

        const std::vector<bool> none;
        const std::vector<bool> other{false};
        const std::vector<bool> imager{true};
        const std::vector<bool> otherThenImager{false, true};
        const std::vector<bool> imagerThenOther{true, false};

        QTest::newRow("nothing there") << -1 << -1 << none << 0 << Action::Wait << -1;
        QTest::newRow("nothing there any more") << -2 << -1 << none << 0 << Action::Wait << -1;
        QTest::newRow("another camera") << -1 << -1 << other << 0 << Action::Wait << -2;
        QTest::newRow("still another camera") << -2 << -1 << other << 0 << Action::Wait << -2;

        QTest::newRow("imager") << -1 << -1 << imager << 0 << Action::EnterLive << 2;
        QTest::newRow("imager, -2") << -2 << -1 << imager << 0 << Action::EnterLive << 2;
        QTest::newRow("imager last") << -1 << -1 << otherThenImager << 0 << Action::EnterLive << 2;
        QTest::newRow("imager first") << -1 << -1 << imagerThenOther << 0 << Action::EnterLive << 2;
        QTest::newRow("imager beside a drive") << -1 << -1 << imager << 1 << Action::EnterLive << 2;

        QTest::newRow("drive") << -1 << -1 << none << 1 << Action::EnterDisk << 1;
        QTest::newRow("drive, -2") << -2 << -1 << other << 2 << Action::EnterDisk << 1;

        QTest::newRow("live goes on") << 2 << 1 << imager << 0 << Action::None << 2;
        QTest::newRow("live beside a drive") << 2 << 1 << imager << 3 << Action::None << 2;
        QTest::newRow("camera to disk") << 2 << 1 << none << 1 << Action::LeaveAndWait << -1;
        QTest::newRow("camera gone") << 2 << 1 << none << 0 << Action::None << 2;
        QTest::newRow("camera gone, other") << 2 << 1 << other << 0 << Action::None << 2;

        QTest::newRow("disk to camera") << 1 << 2 << imager << 0 << Action::LeaveAndWait << -1;
        QTest::newRow("disk and camera") << 1 << 2 << imager << 1 << Action::LeaveAndWait << -1;
        QTest::newRow("disk goes on") << 1 << 2 << none << 1 << Action::None << 1;
        QTest::newRow("disk beside live mode") << 1 << 1 << none << 1 << Action::CheckFolders << 1;
        QTest::newRow("disk removed") << 1 << 2 << none << 0 << Action::None << 1;
        QTest::newRow("disk removed, other") << 1 << 2 << other << 0 << Action::None << 1;
    }

    void table()
    {
        QFETCH(int, state);
        QFETCH(int, mode);
        QFETCH(std::vector<bool>, cameras);
        QFETCH(int, drives);
        const auto decision = device_poll::decide(state, mode, cameras, drives);
        QTEST(decision.action, "action");
        QTEST(decision.deviceState, "nextState");
    }
};

int main(int argc, char** argv)
{
    return testing::run<DevicePollTest>(argc, argv);
}

#include "device_poll_test.moc"
