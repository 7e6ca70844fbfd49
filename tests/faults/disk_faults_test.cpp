// SPDX-License-Identifier: MIT
#include "analysis/windows/photo_window.h"
#include "tests/faults/disk_test.h"

#include <QDir>

#include <chrono>
#include <thread>

/// A disk that goes in the middle of listing and opening, answers with errors, late or not at all.
/// The program goes on, tells what it has to tell, and leaves nothing half done.
class DiskFaultsTest : public testing::DiskTest
{
    Q_OBJECT

private slots:
    void pulledOutWhileListing_data()
    {
        disks({Kind::Folder, Kind::Fat, Kind::Ext2, Kind::Faulty});
    }
    void pulledOutWhileListing()
    {
        pullOutDuring([this] { leaveAndEnter(); });
    }

    void pulledOutWhileThumbnailsAreRead_data()
    {
        disks({Kind::Folder, Kind::Fat, Kind::Ext2, Kind::Faulty});
    }
    void pulledOutWhileThumbnailsAreRead()
    {
        pullOutDuring([this] {
            m_window->browser()->get_image_information();
            QTest::qWait(5 + int(m_random() % 20));
        });
    }

    void pulledOutWhileReading_data()
    {
        disks({Kind::Folder, Kind::Fat, Kind::Ext2, Kind::Faulty});
    }
    void pulledOutWhileReading()
    {
        pullOutDuring([this] {
            for (int i = 0; i < 4; ++i)
                open(name(i));
        });
    }

    void pulledOutWhileExporting_data()
    {
        disks({Kind::Folder, Kind::Fat, Kind::Ext2, Kind::Faulty});
    }
    void pulledOutWhileExporting()
    {
        const QString target = testing::profile().home() + QStringLiteral("/target");
        pullOutDuring([this, target] {
            QDir(target).removeRecursively();
            QDir().mkpath(target);
            const QString text = exportSelection(anyTask(), target);
            QVERIFY(!text.isEmpty());
        });
    }

    void errorsOfTheDisk_data() { disks({Kind::Faulty}); }
    void errorsOfTheDisk()
    {
        if (!begin())
            return;
        open(name(0));
        const QString target = testing::profile().home() + QStringLiteral("/target");
        useEverythingOnce();
        repeat([&](testing::Pulse&) {
            QDir(target).removeRecursively();
            QDir().mkpath(target);

            m_disk->setFault("list");
            leaveAndEnter();
            QCOMPARE(m_window->browser()->fileNames, QStringList());

            m_disk->setFault("");
            leaveAndEnter();
            QCOMPARE(m_window->browser()->fileNames.size(), photographs);

            for (const char* fault : {"open", "read"}) {
                m_disk->setFault(fault);
                m_window->browser()->get_image_information();
                QTest::qWait(1);
                QCOMPARE(open(anyName()), warningText);
                const QString text = exportSelection(anyTask(), target);
                QVERIFY2(text.contains(QStringLiteral("没有写入任何文件")), qPrintable(text));
                QCOMPARE(testing::everything(target), QStringList());
            }
            m_disk->setFault("middle");
            open(anyName());
            const QString text = exportSelection(anyTask(), target);
            QVERIFY2(text.contains(QStringLiteral("没有写入任何文件")), qPrintable(text));

            m_disk->setFault("");
            QCOMPARE(open(anyName()), QString());
            leaveAndEnter();
        });
    }

    void theDriverDies_data() { disks({Kind::Fat, Kind::Faulty}); }
    void theDriverDies()
    {
        if (!begin())
            return;
        testing::Pulse pulse;
        open(name(0));
        m_disk->killDriver();
        pulse.skip();
        QCOMPARE(open(name(1)), warningText);
        QTest::qWait(20);
        leaveAndEnter();
        QCOMPARE(m_window->browser()->fileNames, QStringList());
        QVERIFY(pulse.longestGap() < testing::hang);
    }

    /// The one thing that does hold the program up: there is one thread, and it waits for the disk.
    void aDiskThatAnswersLate_data() { disks({Kind::Faulty}); }
    void aDiskThatAnswersLate()
    {
        if (!begin())
            return;
        const testing::Pulse pulse;
        m_disk->setFault("stall");
        open(name(0));
        m_disk->setFault("");
        qInfo("while each read takes 1.5 s, opening a photograph holds the program up for %.1f s",
              pulse.longestGap());
        QCOMPARE(open(name(1)), QString());
    }

private:
    const QString warningText = QStringLiteral("该图片解析失败，请确认型号是否正确!");

    /// While the user does something, the disk is pulled out at a random moment; then it comes
    /// back.
    void pullOutDuring(const std::function<void()>& work)
    {
        if (!begin())
            return;
        open(name(0));
        useEverythingOnce();
        repeat([&](testing::Pulse& pulse) {
            QCOMPARE(open(name(0)), QString());
            const auto moment = std::chrono::microseconds(m_random() % 40'000);
            std::thread hand([this, moment] {
                std::this_thread::sleep_for(moment);
                m_disk->pullOut();
            });
            work();
            QTest::qWait(1);
            hand.join();
            open(anyName());
            pulse.skip();
            m_disk->settle();
            m_disk->plug();
            pulse.skip();
            leaveAndEnter();
            QCOMPARE(m_window->browser()->fileNames.size(), photographs);
        });
        QCOMPARE(open(name(0)), QString());
    }
};

int main(int argc, char** argv)
{
    return testing::runOnDisks<DiskFaultsTest>(argc, argv);
}

#include "disk_faults_test.moc"
