// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/photo_window.h"
#include "app/main_window.h"
#include "config/configuration_record.h"
#include "overlay/my_label.h"
#include "platform/removable_drives.h"
#include "simulator/photograph.h"
#include "tests/support/dialogs.h"
#include "tests/support/test_run.h"
#include "tests/support/wine_drive.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

#include <cmath>

using testing::WineDrive;

/// The imager's disk as Windows shows it: a real drive letter, asked for by GetDriveTypeW(), that
/// comes and goes under the running main window.
class WindowsDriveTest : public QObject
{
    Q_OBJECT

    WineDrive m_drive{'F'};
    QList<QUrl> m_opened;

    static QListWidget* thumbnails(const photo_window& browser)
    {
        for (auto* list : browser.findChildren<QListWidget*>()) {
            if (list->objectName() != QLatin1String("listWidget")) // the drives
                return list;
        }
        return nullptr;
    }

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

public slots:
    void open(const QUrl& url) { m_opened.append(url); }

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    void init()
    {
        m_opened.clear();
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

        auto* list = thumbnails(browser);
        QVERIFY(list);
        emit list->itemDoubleClicked(list->item(0));
        auto* analysis = browser.findChild<Analysis_Widget*>();
        QVERIFY(analysis);
        QCOMPARE(analysis->path, QStringLiteral("F:/DCIM_100/Снимок 热像.bmp"));

        // A point in the last but 80th row: 20 + 20 × 239 / 319 °C.
        auto* label = analysis->findChild<MyLabel*>();
        label->setToolMode(2);
        label->pointList[0].x = 120;
        label->pointList[0].y = 239;
        analysis->updat_Tool_Temp();
        const auto* tools = analysis->findChild<QTableWidget*>(QStringLiteral("tableWidget"));
        const double measured = tools->item(0, 2)->text().toDouble();
        QVERIFY2(std::abs(measured - 34.98) < 0.15, qPrintable(tools->item(0, 2)->text()));

        // Into a folder beside the photographs, named with back-slashes.
        const QString report = QStringLiteral("F:/отчёты 报告/one.pdf");
        QVERIFY(QDir().mkpath(QFileInfo(report).path()));
        testing::Answer<QFileDialog> file([&report](QFileDialog& dialog) {
            testing::choose(dialog, QDir::toNativeSeparators(report));
        });
        testing::Answer<QMessageBox> message([](QMessageBox& box) { box.accept(); });
        analysis->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
        QVERIFY(message.wasAsked());
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(report)});
        QFile pdf(report);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF-1.4"));
        QVERIFY(bytes.trimmed().endsWith("%%EOF"));
    }

    void theDiskIsTakenAwayAndComesBack()
    {
        MainWindow window;
        window.show();
        const QString disk = makeDisk();
        QVERIFY(m_drive.plug(disk));
        QTRY_COMPARE(window.mode(), 2);
        auto* list = thumbnails(*window.browser());
        QCOMPARE(list->count(), 1);

        m_drive.unplug();
        emit list->itemDoubleClicked(list->item(0)); // shows what can be read: nothing
        window.timeout_connect();
        QCOMPARE(window.mode(), 2);
        QVERIFY(window.browser());

        QVERIFY(m_drive.plug(disk));
        list = thumbnails(*window.browser());
        emit list->itemDoubleClicked(list->item(0));
        const auto* analysis = window.browser()->findChild<Analysis_Widget*>();
        QVERIFY(analysis);
        QVERIFY(analysis->readCount > 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<WindowsDriveTest>(argc, argv);
}

#include "windows_drive_test.moc"
