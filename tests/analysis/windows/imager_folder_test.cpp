// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/browser_test.h"

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

/// Which folder of the disk, and which of its files are photographs, as the browser lists them.
class ImagerFolderTest : public testing::BrowserTest
{
    Q_OBJECT

private slots:
    void withoutADriveNothingIsListed()
    {
        // Not even what the working directory may hold.
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(disks->path()));
        testing::putFile(QStringLiteral("a.bmp"), "x");
        openWindow();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(driveList().count(), 0);
        QCOMPARE(window->imageFolder, QString());
        QCOMPARE(window->modelIndex, -1);
        QCOMPARE(window->fileNames, QStringList());
        QCOMPARE(list()->count(), 0);
    }

    void aVolumeNameIsNoMarkUp()
    {
        const QString plain = addDrive(QStringLiteral("plain"));
        const QString root = addDrive(QStringLiteral("<b>hot"));
        openWindow();
        QCOMPARE(driveList().item(0)->toolTip(), plain);
        const QString tip = driveList().item(1)->toolTip();
        QCOMPARE(driveList().item(1)->text(), root);
        QVERIFY(tip.contains(QLatin1String("&lt;b&gt;hot")));
    }

    void drivesAreListedInOrder()
    {
        const QString b = addDrive(QStringLiteral("b"));
        const QString a = addDrive(QStringLiteral("a"));
        openWindow();
        QCOMPARE(driveList().count(), 2);
        QCOMPARE(driveList().item(0)->text(), b);
        QCOMPARE(driveList().item(1)->text(), a);
        QVERIFY(!driveList().item(0)->icon().isNull());
        QCOMPARE(driveList().currentRow(), 0);
        QCOMPARE(window->listDrives(), QStringList({b, a}));
    }

    void onlyPhotographsAreListedByName()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        const QString folder = root + QStringLiteral("DCIM_100/");
        addPhotographs(root, {QStringLiteral("b.bmp"), QStringLiteral("a.bmp"),
                              QStringLiteral("C.BMP"), QStringLiteral("10.bmp")});
        for (const char* other : {"a.jpg", "bmp", "a.bmp.txt", "a.bmpx"})
            testing::putFile(folder + QLatin1String(other), "x");
        QVERIFY(QDir().mkpath(folder + QStringLiteral("folder.bmp")));
        testing::LogRecorder log;
        openWindow();
        QCOMPARE(window->imageFolder, root + QStringLiteral("DCIM_100"));
        QCOMPARE(window->modelIndex, 0);
        const QStringList expected{QStringLiteral("10.bmp"), QStringLiteral("C.BMP"),
                                   QStringLiteral("a.bmp"), QStringLiteral("b.bmp")};
        QCOMPARE(window->fileNames, expected);
        QCOMPARE(shownNames(), expected);
        QCOMPARE(window->fileSizes,
                 QStringList(QVector<QString>(4, QStringLiteral("300.7")).toList()));
        QCOMPARE(window->fileDates.size(), 4);
        QCOMPARE(window->thumbnails.size(), 4);
        const QFileInfo file(folder + QStringLiteral("a.bmp"));
        const QDateTime birth = file.birthTime();
        QCOMPARE(window->fileDates.at(2),
                 QLocale::c().toString(birth.isValid() ? birth : file.metadataChangeTime(),
                                       QStringLiteral("yyyy/MM/dd HH:mm")));
        QVERIFY(log.contains(QStringLiteral("所含文件夹: (\"DCIM_100\")")) ||
                log.contains(QStringLiteral("所含文件夹: (DCIM_100)")));
        QVERIFY(log.contains(QStringLiteral("图片地址 ") + window->imageFolder));
        QVERIFY(log.contains(QStringLiteral("闪退测试——————photo_window::get_image_information")));
    }

#ifndef Q_OS_WIN
    void onlyRegularFilesArePhotographs()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        const QString folder = root + QStringLiteral("DCIM_100/");
        const QString pipe = disks->filePath(QStringLiteral("pipe"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QCOMPARE(::mkfifo(QFile::encodeName(folder + "pipe.bmp").constData(), 0600), 0);
        addPhotographs(root, {QStringLiteral("b.bmp")});
        QVERIFY(QFile::link(pipe, folder + QStringLiteral("a.bmp")));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), folder + QStringLiteral("c.bmp")));
        QVERIFY(QFile::link(disks->path(), folder + QStringLiteral("d.bmp")));
        QVERIFY(QFile::link(QStringLiteral("b.bmp"), folder + QStringLiteral("e.bmp")));
        openWindow();
        const QStringList expected{QStringLiteral("b.bmp"), QStringLiteral("e.bmp")};
        QCOMPARE(window->fileNames, expected);
        QTRY_VERIFY(!window->thumbnails.at(1).isNull());
        window->list_item_doubleclicked(list()->item(1));
        QVERIFY(opened());
    }
#endif

    void aDriveWithoutTheFolderListsNothing_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("none") << QString();
        if (!testing::onWindows()) // where names differ in more than case
            QTest::newRow("another case") << QStringLiteral("dcim_100");
        QTest::newRow("longer") << QStringLiteral("DCIM_1000");
        QTest::newRow("the other model's") << QStringLiteral("Images");
    }
    void aDriveWithoutTheFolderListsNothing()
    {
        QFETCH(QString, folder);
        const QString root = addDrive(QStringLiteral("disk"), folder);
        testing::putFile(root + folder + QStringLiteral("/a.bmp"), "x");
        openWindow();
        QCOMPARE(window->imageFolder, root + QStringLiteral("DCIM_100"));
        QCOMPARE(window->modelIndex, -1);
        QCOMPARE(list()->count(), 0);
    }

    void choosingADriveListsItsPhotographs()
    {
        addPhotographs(addDrive(QStringLiteral("one")), {QStringLiteral("a.bmp")});
        const QString two = addDrive(QStringLiteral("two"));
        addPhotographs(two, {QStringLiteral("b.bmp"), QStringLiteral("c.bmp")});
        addDrive(QStringLiteral("three"), QString());
        openWindow();
        QCOMPARE(shownNames(), QStringList({QStringLiteral("a.bmp")}));
        click("pushButton_3");
        driveList().setCurrentRow(1);
        QCOMPARE(window->driveIndex, 1);
        QCOMPARE(window->imageFolder, two + QStringLiteral("DCIM_100"));
        QCOMPARE(shownNames(), QStringList({QStringLiteral("b.bmp"), QStringLiteral("c.bmp")}));
        QCOMPARE(driveList().count(), 3);
        QCOMPARE(driveList().currentRow(), 1);
        // The layout found before is kept on a drive without photographs.
        driveList().setCurrentRow(2);
        QCOMPARE(list()->count(), 0);
        QCOMPARE(window->modelIndex, 0);
    }

    void unusualNames_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"热像.bmp", "Снимок №1.bmp", "사진.bmp", "a#b.bmp", "100%.bmp",
                                 "%41.bmp", " blanks .bmp", "a&b.bmp"})
            QTest::newRow(name) << QString::fromUtf8(name);
        if (!testing::onWindows()) { // where no name may hold it
            for (const char* name : {"?.bmp", ":night.bmp", "line\nbreak.bmp", "<b>.bmp"})
                QTest::newRow(name) << QString::fromUtf8(name);
        }
    }
    void unusualNames()
    {
        QFETCH(QString, name);
        addPhotographs(addDrive(QStringLiteral("диск #1 50%")), {name});
        openWindow();
        QCOMPARE(shownNames(), QStringList({name}));
        QTRY_VERIFY(!window->thumbnails.first().isNull());
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(opened());
        QCOMPARE(opened()->fileName, name);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ImagerFolderTest>(argc, argv);
}

#include "imager_folder_test.moc"
