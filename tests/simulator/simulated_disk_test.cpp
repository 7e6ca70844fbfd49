// SPDX-License-Identifier: MIT
#include "platform/removable_drives.h"
#include "simulator/simulated_disk.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>

#include <memory>

using platform::removableDrives;
using simulator::SimulatedDisk;

class SimulatedDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void isADriveWhilePlugged();
    void filesGoWithTheDisk();
    void severalDisksInOrder();
    void theSystemAnswersAgain();
    void photographsAreNamedByTime();
    void nothingIsStoredWhileOut();
};

void SimulatedDiskTest::isADriveWhilePlugged()
{
    SimulatedDisk disk;
    QSignalSpy told(&disk, &SimulatedDisk::pluggedChanged);
    QCOMPARE(removableDrives(), QStringList());
    for (int round = 0; round < 2; ++round) {
        disk.plug();
        disk.plug();
        QVERIFY(disk.isPlugged());
        QCOMPARE(removableDrives(), QStringList{disk.root()});
        QVERIFY(disk.root().endsWith(QLatin1Char('/')));
        QCOMPARE(QDir(disk.root()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{QStringLiteral("DCIM_100")});
        disk.unplug();
        disk.unplug();
        QCOMPARE(removableDrives(), QStringList());
    }
    QCOMPARE(told.size(), 4);
}

void SimulatedDiskTest::filesGoWithTheDisk()
{
    SimulatedDisk disk;
    disk.plug();
    const QString path = disk.store("photograph", 0);
    QVERIFY(QFile::exists(path));
    disk.unplug();
    QVERIFY(!QFile::exists(path));
    QVERIFY(!QFile::exists(disk.root()));
    disk.plug();
    QVERIFY(QFile::exists(path));
}

void SimulatedDiskTest::severalDisksInOrder()
{
    SimulatedDisk imager;
    SimulatedDisk stick;
    stick.plug();
    imager.plug();
    QCOMPARE(removableDrives(), QStringList({stick.root(), imager.root()}));
    stick.unplug();
    QCOMPARE(removableDrives(), QStringList{imager.root()});
    stick.plug();
    QCOMPARE(removableDrives(), QStringList({imager.root(), stick.root()}));
}

void SimulatedDiskTest::theSystemAnswersAgain()
{
    auto first = std::make_unique<SimulatedDisk>();
    auto second = std::make_unique<SimulatedDisk>();
    const QString root = second->root();
    first->plug();
    second->plug();
    first.reset();
    QCOMPARE(removableDrives(), QStringList{root});
    second.reset();
    QCOMPARE(removableDrives(), platform::systemRemovableDrives());
    QVERIFY(!QFile::exists(root));
}

void SimulatedDiskTest::photographsAreNamedByTime()
{
    SimulatedDisk disk;
    disk.plug();
    const QDateTime moment(QDate(2026, 3, 18), QTime(10, 15, 2));
    QCOMPARE(disk.store("first", 0, moment), disk.root() + "DCIM_100/20260318_101502.bmp");
    QCOMPARE(disk.store("second", 0, moment), disk.root() + "DCIM_100/20260318_101502_2.bmp");
    QCOMPARE(disk.store("third", 0, moment), disk.root() + "DCIM_100/20260318_101502_3.bmp");
    QCOMPARE(disk.store("other", 1, moment), disk.root() + "Images/20260318_101502.bmp");
    QFile file(disk.root() + "DCIM_100/20260318_101502_2.bmp");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("second"));
}

void SimulatedDiskTest::nothingIsStoredWhileOut()
{
    SimulatedDisk disk;
    QCOMPARE(disk.store("photograph", 0), QString());
    QVERIFY(!QFile::exists(disk.root()));
    disk.plug();
    QVERIFY(QDir(disk.root() + "DCIM_100").isEmpty());
}

int main(int argc, char** argv)
{
    return testing::run<SimulatedDiskTest>(argc, argv);
}

#include "simulated_disk_test.moc"
