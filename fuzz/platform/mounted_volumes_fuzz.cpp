// SPDX-License-Identifier: MIT
/// What the system says is mounted: volumes carry the names that strangers gave them. The input is
/// the text of mountinfo; "8:16" is a USB disk, "8:17" its partition, "8:1" is built in.

#include "fuzz/support/surroundings.h"
#include "fuzz/support/target.h"
#include "platform/mounted_volumes_linux.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>
#include <QSet>

namespace {

using fuzz::mustHold;

QString& devices()
{
    static QString folder;
    return folder;
}

void addDevice(const QString& number, const QString& place, bool removable)
{
    const QString home = testing::profile().home();
    const QString folder = home + QStringLiteral("/sys/devices/") + place;
    QDir().mkpath(folder);
    fuzz::putFile(folder + QStringLiteral("/removable"), removable ? "1\n" : "0\n");
    QFile::link(folder, devices() + QLatin1Char('/') + number);
}

} // namespace

int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::prepare();
    devices() = testing::profile().home() + QStringLiteral("/sys/dev/block");
    QDir().mkpath(devices());
    addDevice(QStringLiteral("8:16"), QStringLiteral("pci0/usb1/1-1/block/sdb"), true);
    addDevice(QStringLiteral("8:17"), QStringLiteral("pci0/usb1/1-1/block/sdb/sdb1"), false);
    addDevice(QStringLiteral("8:1"), QStringLiteral("pci0/ata1/block/sda"), false);
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(bytes), int(size));
    const QStringList roots = platform::removableMountPoints(text, devices());
    QSet<QByteArray> usbDevices;
    for (const QByteArray& line : text.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() >= 5 && fields.at(2) != "8:1")
            usbDevices.insert(fields.at(2));
    }
    mustHold(roots.size() <= usbDevices.size(), "a device counts once, a built-in one never");
    for (const QString& root : roots)
        mustHold(root.endsWith(QLatin1Char('/')), "a root ends in a slash");
    return 0;
}
