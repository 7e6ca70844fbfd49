// SPDX-License-Identifier: MIT
#include "platform/device_tree_linux.h"
#include "platform/mounted_volumes_linux.h"
#include "platform/removable_drives.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>

/// The questions to the system, asked of a made-up /sys.
class LinuxDevicesTest : public QObject
{
    Q_OBJECT

    QString m_sys;

    void addDisk(const QString& device, const QString& number, const QByteArray& removable)
    {
        testing::putFile(
            m_sys + QStringLiteral("/devices/") + device + QStringLiteral("/removable"), removable);
        addNumber(device, number);
    }

    void addNumber(const QString& device, const QString& number)
    {
        QDir().mkpath(m_sys + QStringLiteral("/devices/") + device);
        QDir().mkpath(m_sys + QStringLiteral("/block"));
        QVERIFY(QFile::link(m_sys + QStringLiteral("/devices/") + device,
                            m_sys + QStringLiteral("/block/") + number));
    }

    QStringList mountPoints(const QByteArray& mountInfo) const
    {
        return platform::removableMountPoints(mountInfo, m_sys + QStringLiteral("/block"));
    }

private slots:
    void init()
    {
        m_sys = testing::profile().home() + QStringLiteral("/sys");
        QDir(m_sys).removeRecursively();
        addDisk(QStringLiteral("pci0/ata1/sda"), QStringLiteral("8:0"), "0\n");
        addNumber(QStringLiteral("pci0/ata1/sda/sda1"), QStringLiteral("8:1"));
        addDisk(QStringLiteral("pci0/usb1/1-1/sdb"), QStringLiteral("8:16"), "0\n");
        addNumber(QStringLiteral("pci0/usb1/1-1/sdb/sdb1"), QStringLiteral("8:17"));
        addDisk(QStringLiteral("pci0/mmc0/mmcblk0"), QStringLiteral("179:0"), "1\n");
        addNumber(QStringLiteral("pci0/mmc0/mmcblk0/mmcblk0p1"), QStringLiteral("179:1"));
    }

    void keepsRemovableAndUsbVolumesInOrder()
    {
        QCOMPARE(mountPoints("21 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                             "22 21 0:5 / /proc rw - proc proc rw\n"
                             "30 21 179:1 / /media/card rw - vfat /dev/mmcblk0p1 rw\n"
                             "31 21 8:17 / /media/imager rw shared:5 - vfat /dev/sdb1 rw\n"),
                 QStringList({QStringLiteral("/media/card/"), QStringLiteral("/media/imager/")}));
    }

    void aWholeDiskWithoutPartitionsCounts()
    {
        QCOMPARE(mountPoints("31 21 179:0 / /media/x rw - vfat /dev/mmcblk0 rw\n"),
                 QStringList(QStringLiteral("/media/x/")));
    }

    void theSystemsOwnVolumesDoNotCount()
    {
        QCOMPARE(mountPoints("1 0 8:17 / / rw - ext4 /dev/sdb1 rw\n"
                             "3 1 8:17 / /boot rw - ext4 /dev/sdb1 rw\n"
                             "2 1 179:1 / /boot/efi rw - vfat /dev/mmcblk0p1 rw\n"),
                 QStringList());
        QCOMPARE(mountPoints("1 0 8:17 / /boot rw - ext4 /dev/sdb1 rw\n"), QStringList());
        QCOMPARE(mountPoints("1 0 8:17 / /bootstick rw - vfat /dev/sdb1 rw\n"),
                 QStringList(QStringLiteral("/bootstick/")));
    }

    void aVolumeMountedTwiceCountsOnce()
    {
        QCOMPARE(mountPoints("1 0 8:17 / /media/a rw - vfat /dev/sdb1 rw\n"
                             "2 0 8:17 / /media/b rw - vfat /dev/sdb1 rw\n"),
                 QStringList(QStringLiteral("/media/a/")));
    }

    void escapedMountPointsAreReadable()
    {
        QCOMPARE(mountPoints("1 0 8:17 / /media/MY\\040DISK\\134 rw - vfat /dev/sdb1 rw\n"),
                 QStringList(QStringLiteral("/media/MY DISK\\/")));
        QCOMPARE(mountPoints("1 0 8:17 / /media/тепло rw - vfat /dev/sdb1 rw\n"),
                 QStringList(QStringLiteral("/media/тепло/")));
    }

    void whatIsNoEscapeStaysAsItIs()
    {
        QCOMPARE(mountPoints("1 0 8:17 / /media/a\\09z rw - vfat /dev/sdb1 rw\n"),
                 QStringList(QStringLiteral("/media/a\\09z/")));
        QCOMPARE(mountPoints("1 0 8:17 / /media/cut\\04"),
                 QStringList(QStringLiteral("/media/cut\\04/")));
    }

    void aDeviceThatDoesNotSayIsNotRemovable()
    {
        addNumber(QStringLiteral("virtual/zram0"), QStringLiteral("252:0"));
        QCOMPARE(mountPoints("1 0 252:0 / /media/a rw - ext4 /dev/zram0 rw\n"), QStringList());
    }

    void linesWithoutSenseArePassedOver()
    {
        QCOMPARE(mountPoints("\n1 2 3\nx\n1 0 99:99 / /media/a rw - vfat /dev/x rw\n\\04"),
                 QStringList());
        QCOMPARE(mountPoints(QByteArray()), QStringList());
    }

    void identityOfAUsbCamera()
    {
        const QString device = m_sys + QStringLiteral("/devices/pci0/usb1/1-4");
        testing::putFile(device + QStringLiteral("/idVendor"), "1d6b\n");
        testing::putFile(device + QStringLiteral("/idProduct"), "0102\n");
        QDir().mkpath(device + QStringLiteral("/1-4:1.0"));
        // Half an identity is none.
        testing::putFile(device + QStringLiteral("/1-4:1.0/idVendor"), "ffff\n");
        QDir().mkpath(m_sys + QStringLiteral("/video/video0"));
        QVERIFY(QFile::link(device + QStringLiteral("/1-4:1.0"),
                            m_sys + QStringLiteral("/video/video0/device")));
        const QString identity = platform::usbIdentityOfVideoDevice(
            QStringLiteral("video0"), m_sys + QStringLiteral("/video"));
        QVERIFY(identity.contains(QStringLiteral("usb#vid_1d6b")));
        QVERIFY(identity.contains(QStringLiteral("pid_0102")));
        QCOMPARE(identity, QStringLiteral("\\\\?\\usb#vid_1d6b&pid_0102#1-4"));
    }

    void aCameraThatIsNotUsbHasNoIdentity()
    {
        QDir().mkpath(m_sys + QStringLiteral("/devices/platform/isp"));
        QDir().mkpath(m_sys + QStringLiteral("/video/video1"));
        QVERIFY(QFile::link(m_sys + QStringLiteral("/devices/platform/isp"),
                            m_sys + QStringLiteral("/video/video1/device")));
        QCOMPARE(platform::usbIdentityOfVideoDevice(QStringLiteral("video1"),
                                                    m_sys + QStringLiteral("/video")),
                 QString());
        QCOMPARE(platform::usbIdentityOfVideoDevice(QStringLiteral("video7"),
                                                    m_sys + QStringLiteral("/video")),
                 QString());
    }

    void aProviderTakesTheSystemsPlace()
    {
        platform::setDriveProvider([] { return QStringList(QStringLiteral("/simulated/")); });
        QCOMPARE(platform::removableDrives(), QStringList(QStringLiteral("/simulated/")));
        platform::setDriveProvider({});
        QCOMPARE(platform::removableDrives(), platform::systemRemovableDrives());
    }
};

int main(int argc, char** argv)
{
    return testing::run<LinuxDevicesTest>(argc, argv);
}

#include "linux_devices_test.moc"
