#include "analysis/photo_window.h"
#include "app/main_window.h"
#include "config/configuration_record.h"
#include "platform/removable_drives.h"
#include "simulator/photograph.h"
#include "tests/support/test_run.h"
#include "tests/support/wine_drive.h"

#include <QDir>
#include <QFile>
#include <QLabel>

using testing::WineDrive;

/// The imager's disk as Windows shows it: a real drive letter, asked for by GetDriveTypeW(), that
/// comes and goes under the running main window.
class WindowsDriveTest : public QObject
{
    Q_OBJECT

    WineDrive m_drive{'F'};

    /// A disk with one photograph of a slope from 20 to 40 °C, hottest at the bottom.
    static QString makeDisk()
    {
        const QString folder = testing::profile().home() + QStringLiteral("/диск 磁盘");
        QDir(folder).removeRecursively();
        QDir().mkpath(folder + QStringLiteral("/DCIM_100"));
        simulator::Field field;
        for (int y = 0; y < 320; ++y)
            field.insert(field.end(), 240, 20 + 20 * float(y) / 319);
        QFile file(folder + QStringLiteral("/DCIM_100/Снимок 热像.bmp"));
        if (file.open(QIODevice::WriteOnly))
            file.write(simulator::photograph(field, {}));
        return folder;
    }

private slots:
    void init()
    {
        testing::profile().reset();
        config::create(QStringLiteral("EN"));
    }

    void cleanup() { m_drive.unplug(); }

    void onlyRemovableDrivesCount_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QStringList>("drives");
        QTest::newRow("removable")
            << int(WineDrive::Kind::Removable) << QStringList(QStringLiteral("F:/"));
        QTest::newRow("fixed") << int(WineDrive::Kind::Fixed) << QStringList();
        QTest::newRow("CD-ROM") << int(WineDrive::Kind::CdRom) << QStringList();
        QTest::newRow("network") << int(WineDrive::Kind::Network) << QStringList();
    }
    void onlyRemovableDrivesCount()
    {
        QFETCH(int, kind);
        QFETCH(QStringList, drives);
        QCOMPARE(platform::removableDrives(), QStringList());
        QVERIFY(m_drive.plug(makeDisk(), WineDrive::Kind(kind)));
        QVERIFY(QDir::drives().contains(QFileInfo(m_drive.root())));
        QCOMPARE(platform::removableDrives(), drives);
        m_drive.unplug();
        QCOMPARE(platform::removableDrives(), QStringList());
    }

    void fromTheDiskToTheReport()
    {
        MainWindow window;
        window.show();
        const auto* status = window.findChild<QLabel*>(QStringLiteral("label"));
        QCOMPARE(status->text(), QStringLiteral("正在等待连接..."));
        QVERIFY(m_drive.plug(makeDisk()));
        QTRY_COMPARE(status->text(), QStringLiteral("U盘模式"));
        const photo_window& browser = *window.browser();
        QCOMPARE(browser.imageFolder, QStringLiteral("F:/DCIM_100"));
        QCOMPARE(browser.fileNames, QStringList(QStringLiteral("Снимок 热像.bmp")));

        auto* list = browser.findChild<QListWidget*>(QStringLiteral("photographs"));
        QVERIFY(list);
        emit list->itemDoubleClicked(list->item(0));
        auto* analysis = browser.findChild<Analysis_Widget*>();
        QVERIFY(analysis);
        QCOMPARE(analysis->path, QStringLiteral("F:/DCIM_100/Снимок 热像.bmp"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<WindowsDriveTest>(argc, argv);
}

#include "windows_drive_test.moc"
