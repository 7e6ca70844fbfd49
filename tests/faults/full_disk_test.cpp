// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "simulator/simulated_imager.h"
#include "tests/faults/disk_test.h"
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"

#include <QCheckBox>
#include <QDir>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace {

/// Fills the disk up, except for so many bytes.
void fill(const QString& root, qint64 left)
{
    const QString path = root + QStringLiteral("filling");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qFatal("cannot fill %s", qPrintable(path));
    QByteArray block(64 * 1024, 'x');
    while (!block.isEmpty()) {
        if (file.write(block) != block.size())
            block.chop((block.size() + 1) / 2);
    }
    file.resize(std::max(file.size() - left, qint64(0)));
}

} // namespace

/// A disk that is full, nearly so, or read-only: everything that users can save onto it is whole or
/// not there, what was there before stays, and the program tells what it has to tell.
class FullDiskTest : public testing::DiskTest
{
    Q_OBJECT

private slots:
    /// Everything the user can save, onto a disk that is full or nearly so.
    void fullDisk_data() { disks({Kind::ExFat, Kind::Ext2}); }
    void fullDisk()
    {
        if (!begin())
            return;
        const QString folder = m_disk->root() + QStringLiteral("out");
        QVERIFY(QDir().mkpath(folder));
        open(name(0));
        useEverythingOnce();
        int written = 0;
        int refused = 0;
        repeat([&](testing::Pulse& pulse) {
            const QString report = folder + QStringLiteral("/report.pdf");
            testing::putFile(report, "old"); // must stay whole, whichever it is
            fill(m_disk->root(), qint64(m_random() % 600'000));
            pulse.skip();

            const bool told = saveReport(report);
            const QByteArray bytes = testing::fileBytes(report);
            QVERIFY(told ? bytes.startsWith("%PDF") && bytes.contains("%%EOF") : bytes == "old");
            QFile::remove(report);
            ++(told ? written : refused);

            const QString summary = exportSelection(anyTask(), folder);
            const QStringList files = testing::everything(folder);
            QVERIFY2(!summary.isEmpty(), "no message");
            QVERIFY(files.filter(QStringLiteral(".part")).isEmpty());
            for (const QString& made : files) {
                QVERIFY(QFileInfo(folder + QLatin1Char('/') + made).size() > 0);
                QFile::remove(folder + QLatin1Char('/') + made);
            }
            QFile::remove(m_disk->root() + QStringLiteral("filling"));
            pulse.skip();
        });
        qInfo("%d reports written and said to be, %d not written and not said to be", written,
              refused);
        QVERIFY(refused > 0);
    }

    /// The alarm folder and "keep this picture" on a disk that is full or nearly so.
    void fullDiskInLiveMode_data() { disks({Kind::ExFat, Kind::Ext2}); }
    void fullDiskInLiveMode()
    {
        if (!prepare())
            return;
        m_disk->plug();
        const QString folder = m_disk->root() + QStringLiteral("alarms");
        QVERIFY(QDir().mkpath(folder));
        config::replaceAlarmFolder(folder);
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        simulator::SimulatedImager imager;
        imager.setFrameRate(0);
        imager.setCameraPlugged(true);
        m_window->timeout_connect();
        camer_window* page = m_window->liveWindow();
        testing::part<QCheckBox>(page, "checkBox")->setChecked(true);
        testing::part<QCheckBox>(page, "checkBox_3")->setChecked(true);
        excursion(imager);
        keepPicture(page, folder + QStringLiteral("/cap.png"));
        QFile::remove(folder + QStringLiteral("/cap.png"));
        QCOMPARE(live::recordNames(folder).size(), 1);

        int whole = 0;
        int cut = 0;
        repeat([&](testing::Pulse& pulse) {
            QDir(folder).removeRecursively();
            QDir().mkpath(folder);
            fill(m_disk->root(), qint64(m_random() % 120'000));
            pulse.skip();
            excursion(imager);
            keepPicture(page, folder + QStringLiteral("/cap.png"));
            const QString kept = folder + QStringLiteral("/cap.png");
            QVERIFY2(!QFile::exists(kept) || QImage(kept).height() == 640, "half a picture");
            for (const QString& record : live::recordNames(folder)) {
                const bool hasText = !live::recordReadings(folder, record).maximum.isEmpty();
                const int pictures = live::recordPicturePaths(folder, record).size();
                QVERIFY(!hasText || pictures == live::recordPictures);
                ++(hasText ? whole : cut);
                auto* list = testing::part<QListWidget>(page, "listWidget_2");
                page->refreshHistory();
                emit list->itemClicked(list->item(0));
            }
            QFile::remove(m_disk->root() + QStringLiteral("filling"));
            pulse.skip();
        });
        qInfo("%d whole records, %d cut short", whole, cut);
        QVERIFY(cut > 0);
    }

    void readOnlyDisk_data() { disks({Kind::Fat, Kind::Ext2}); }
    void readOnlyDisk()
    {
        if (!begin())
            return;
        m_disk->pullOut();
        m_window.reset();
        m_disk->settle();
        m_disk->plug(true);
        show();
        const QStringList there = testing::everything(m_disk->root());
        open(name(0));
        useEverythingOnce();
        repeat([&](testing::Pulse&) {
            QVERIFY(!saveReport(m_disk->root() + QStringLiteral("report.pdf")));
            for (int task = 0; task < 5; ++task) {
                const QString text = exportSelection(analysis::SelectionTask(task), m_disk->root());
                QVERIFY2(text.contains(QStringLiteral("没有写入任何文件")), qPrintable(text));
            }
            QCOMPARE(testing::everything(m_disk->root()), there);
        });
    }

private:
    static void excursion(simulator::SimulatedImager& imager)
    {
        imager.heatPastThreshold();
        imager.settle();
        for (int i = 0; i < 8; ++i)
            imager.sendFrame();
        imager.coolBelowThreshold();
        imager.settle();
        imager.sendFrame();
    }

    static void keepPicture(camer_window* page, const QString& path)
    {
        const testing::Answer<QFileDialog> answer([&path](QFileDialog& dialog) {
            dialog.selectFile(path);
            static_cast<QDialog&>(dialog).done(QDialog::Accepted);
        });
        testing::part<QPushButton>(page, "pushButton")->click();
        QVERIFY(answer.wasAsked());
    }
};

int main(int argc, char** argv)
{
    return testing::runOnDisks<FullDiskTest>(argc, argv);
}

#include "full_disk_test.moc"
