// SPDX-License-Identifier: MIT
// The imager's disk, really mounted, and everything that happens to disks: it is full, it is
// read-only, it goes in the middle of listing and opening, it answers with errors, late or not at
// all. The program goes on, tells what it has to tell, and leaves nothing half done.
//
// Where mounting is not allowed, the rows that need it are skipped with the reason, and the rows of
// the ordinary folder remain.
#include "analysis/windows/photo_window.h"
#include "analysis/windows/selection_job.h"
#include "app/main_window.h"
#include "config/configuration_record.h"
#include "live/alarm_records.h"
#include "live/camer_window.h"
#include "platform/removable_drives.h"
#include "simulator/simulated_imager.h"
#include "tests/faults/endurance.h"
#include "tests/faults/mounted_disk.h"
#include "tests/support/dialogs.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QUrl>

#include <chrono>
#include <random>
#include <thread>

using Kind = testing::MountedDisk::Kind;

namespace {

QString whyNoMounts;

/// So many times more at first, until Qt and the heap have what they keep.
constexpr int warmUp = 4;
constexpr int megabytes = 24;
constexpr int photographs = 24; ///< on the disk, of about 300 to 500 KB

const QString warningText = QStringLiteral("该图片解析失败，请确认型号是否正确!");

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

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

QStringList everything(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class DiskFaultsTest : public QObject
{
    Q_OBJECT

public slots:
    void openReport(const QUrl&) {} ///< in a viewer's place

private slots:
    void initTestCase()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openReport");
        simulator::SimulatedImager imager;
        imager.setFrameRate(0);
        imager.setDiskPlugged(true);
        imager.takeSamplePhotographs();
        const QDir folder(imager.disk().root() + QStringLiteral("DCIM_100"));
        for (const QString& name : folder.entryList(QDir::Files)) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            m_photographs.append(file.readAll());
        }
        QCOMPARE(m_photographs.size(), 5);
    }

    void init()
    {
        testing::profile().reset();
        config::create(QStringLiteral("EN"));
        m_random.seed(testing::scale().seed);
    }

    void cleanup()
    {
        m_window.reset();
        m_disk.reset();
        platform::setDriveProvider({});
    }

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
        testing::Pulse pulse;
        testing::Holdings before;
        testing::MemoryPeaks memory(times());
        int written = 0;
        int refused = 0;
        for (int i = -warmUp; i < times(); ++i) {
            if (i == 0)
                before = testing::holdings();
            if (i >= 0)
                memory.sample();
            const QString report = folder + QStringLiteral("/report.pdf");
            write(report, "old"); // must stay whole, whichever it is
            fill(m_disk->root(), qint64(m_random() % 600'000));
            pulse.skip();

            const bool told = saveReport(report);
            QFile file(report);
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            QVERIFY(told ? bytes.startsWith("%PDF") && bytes.contains("%%EOF") : bytes == "old");
            file.remove();
            ++(told ? written : refused);

            const auto task = analysis::SelectionTask(m_random() % 5);
            const QString summary = exportSelection(task, folder);
            const QStringList files = everything(folder);
            QVERIFY2(summary.isEmpty() == false, "no message");
            QVERIFY(files.filter(QStringLiteral(".part")).isEmpty());
            for (const QString& made : files) {
                QVERIFY(QFileInfo(folder + QLatin1Char('/') + made).size() > 0);
                QFile::remove(folder + QLatin1Char('/') + made);
            }
            QFile::remove(m_disk->root() + QStringLiteral("filling"));
            pulse.skip();
        }
        qInfo("%d reports written and said to be, %d not written and not said to be", written,
              refused);
        QVERIFY(refused > 0);
        end(before, pulse, memory);
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

        testing::Pulse pulse;
        testing::Holdings before;
        testing::MemoryPeaks memory(times());
        int whole = 0;
        int cut = 0;
        for (int i = -warmUp; i < times(); ++i) {
            if (i == 0)
                before = testing::holdings();
            if (i >= 0)
                memory.sample();
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
        }
        qInfo("%d whole records, %d cut short", whole, cut);
        QVERIFY(cut > 0);
        end(before, pulse, memory);
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
        const QStringList there = everything(m_disk->root());
        open(name(0));
        useEverythingOnce();
        testing::Pulse pulse;
        testing::Holdings before;
        testing::MemoryPeaks memory(times());
        for (int i = -warmUp; i < times(); ++i) {
            if (i == 0)
                before = testing::holdings();
            if (i >= 0)
                memory.sample();
            QVERIFY(!saveReport(m_disk->root() + QStringLiteral("report.pdf")));
            for (int task = 0; task < 5; ++task) {
                const QString text = exportSelection(analysis::SelectionTask(task), m_disk->root());
                QVERIFY2(text.contains(QStringLiteral("没有写入任何文件")), qPrintable(text));
            }
            QCOMPARE(everything(m_disk->root()), there);
        }
        end(before, pulse, memory);
    }

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
            const QString text = exportSelection(analysis::SelectionTask(m_random() % 5), target);
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
        testing::Pulse pulse;
        testing::Holdings before;
        testing::MemoryPeaks memory(times());
        for (int i = -warmUp; i < times(); ++i) {
            if (i == 0)
                before = testing::holdings();
            if (i >= 0)
                memory.sample();
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
                QCOMPARE(open(name(int(m_random() % photographs))), warningText);
                const QString text =
                    exportSelection(analysis::SelectionTask(m_random() % 5), target);
                QVERIFY2(text.contains(QStringLiteral("没有写入任何文件")), qPrintable(text));
                QCOMPARE(everything(target), QStringList());
            }
            m_disk->setFault("middle");
            open(name(int(m_random() % photographs)));
            const QString text = exportSelection(analysis::SelectionTask(m_random() % 5), target);
            QVERIFY2(text.contains(QStringLiteral("没有写入任何文件")), qPrintable(text));

            m_disk->setFault("");
            QCOMPARE(open(name(int(m_random() % photographs))), QString());
            leaveAndEnter();
        }
        end(before, pulse, memory);
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
    static int times() { return testing::scale().times; }
    static QString name(int i)
    {
        return QStringLiteral("IMG%1.bmp").arg(i, 3, 10, QLatin1Char('0'));
    }

    static void disks(std::initializer_list<Kind> kinds)
    {
        QTest::addColumn<int>("kind");
        for (const Kind kind : kinds) {
            const char* const names[] = {"folder", "FAT image", "exFAT image", "ext2 image",
                                         "faulty disk"};
            QTest::newRow(names[int(kind)]) << int(kind);
        }
    }

    /// The row's disk with photographs on it, unplugged. False when it was skipped.
    bool prepare()
    {
        prepareDisk();
        return m_disk != nullptr;
    }
    void prepareDisk()
    {
        QFETCH(int, kind);
        const QString missing = Kind(kind) == Kind::Folder
                                    ? QString()
                                    : whyNoMounts + testing::MountedDisk::missing(Kind(kind));
        if (!missing.isEmpty())
            QSKIP(qPrintable(QStringLiteral("NOT TESTED: cannot mount this disk here: ") + missing),
                  "");
        m_disk = std::make_unique<testing::MountedDisk>(Kind(kind), megabytes);
        const bool direct = Kind(kind) == Kind::Folder || Kind(kind) == Kind::Faulty;
        if (!direct)
            m_disk->plug();
        const QString folder = (direct ? m_disk->source() + QLatin1Char('/') : m_disk->root()) +
                               QStringLiteral("DCIM_100");
        QVERIFY(QDir().mkpath(folder));
        for (int i = 0; i < photographs; ++i)
            write(folder + QLatin1Char('/') + name(i), m_photographs.at(i % m_photographs.size()));
        if (!direct) {
            m_disk->pullOut();
            m_disk->settle();
        }
    }

    /// The same, plugged in and shown by the program.
    bool begin()
    {
        if (!prepare())
            return false;
        m_disk->plug();
        show();
        return true;
    }

    void show()
    {
        platform::setDriveProvider([this] { return QStringList(m_disk->root()); });
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        m_window->timeout_connect();
        QTest::qWait(1);
        QVERIFY(m_window->browser());
        QCOMPARE(m_window->browser()->fileNames.size(), photographs);
    }

    void leaveAndEnter()
    {
        m_window->Action_Disconnect();
        m_window->Action_connect();
        m_window->timeout_connect();
        QVERIFY(m_window->browser());
    }

    /// While the user does something, the disk is pulled out at a random moment; then it comes
    /// back.
    void pullOutDuring(const std::function<void()>& work)
    {
        if (!begin())
            return;
        const auto once = [&] {
            const auto moment = std::chrono::microseconds(m_random() % 40'000);
            std::thread hand([this, moment] {
                std::this_thread::sleep_for(moment);
                m_disk->pullOut();
            });
            work();
            QTest::qWait(1);
            hand.join();
            open(name(int(m_random() % photographs)));
        };
        const auto comeBack = [this] {
            m_disk->settle();
            m_disk->plug();
        };
        open(name(0));
        useEverythingOnce();
        testing::Pulse pulse;
        testing::Holdings before;
        testing::MemoryPeaks memory(times());
        for (int i = -warmUp; i < times() && !QTest::currentTestFailed(); ++i) {
            if (i == 0)
                before = testing::holdings();
            if (i >= 0)
                memory.sample();
            once();
            pulse.skip();
            comeBack();
            pulse.skip();
            leaveAndEnter();
            QCOMPARE(m_window->browser()->fileNames.size(), photographs);
            QCOMPARE(open(name(0)), QString());
        }
        leaveAndEnter();
        end(before, pulse, memory);
    }

    void end(const testing::Holdings& before, const testing::Pulse& pulse,
             const testing::MemoryPeaks& memory)
    {
        const double gap = pulse.longestGap();
        QTRY_COMPARE(testing::leftOver(before, testing::holdings()), QString());
        const testing::Holdings after = testing::holdings();
        qInfo("%d times, seed %u, longest gap %.0f ms", times(), testing::scale().seed, gap * 1000);
        qInfo("after: %s", qPrintable(after.text()));
        QVERIFY(gap < testing::hang);
        memory.verify();
    }

    /// Opens a photograph; returns the message that came instead, if one did.
    QString open(const QString& photograph)
    {
        QListWidgetItem item(photograph);
        m_window->browser()->list_item_doubleclicked(&item);
        return dismissMessage();
    }

    static QString dismissMessage()
    {
        const QPointer<QMessageBox> box =
            qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return {};
        QString text = box->text();
        box->reject();
        QTest::qWait(0);
        return text;
    }

    /// True when the program says that the report was written.
    bool saveReport(const QString& path)
    {
        bool told = false;
        QTimer answers;
        connect(&answers, &QTimer::timeout, this, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (auto* file = qobject_cast<QFileDialog*>(dialog)) {
                file->selectFile(path);
                static_cast<QDialog*>(file)->done(QDialog::Accepted);
            } else if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
                told = true;
                box->accept();
            }
        });
        answers.start(1);
        testing::part<QPushButton>(testing::part<QWidget>(m_window->browser(), "Analysis_Widget"),
                                   "pushButton")
            ->click();
        return told;
    }

    /// Exports some of the photographs; returns the message in the end.
    QString exportSelection(analysis::SelectionTask task, const QString& target)
    {
        analysis::SelectionOrder order;
        order.task = task;
        order.folder = m_window->browser()->imageFolder;
        for (int i = 0; i < 3; ++i)
            order.names.append(name(i));
        order.modelIndex = 0;
        order.target = target;
        order.language = QStringLiteral("EN");
        const QPointer<SelectionJob> job = new SelectionJob(order, m_window.get());
        while (job)
            QTest::qWait(1);
        return dismissMessage();
    }

    /// For the threads and caches that Qt makes with the first dialog and the first report.
    void useEverythingOnce()
    {
        const QTemporaryDir folder;
        QVERIFY(saveReport(folder.filePath(QStringLiteral("report.pdf"))));
        for (int task = 0; task < 5; ++task)
            QVERIFY(!exportSelection(analysis::SelectionTask(task), folder.path()).isEmpty());
    }

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

    QList<QByteArray> m_photographs;
    std::mt19937 m_random;
    std::unique_ptr<testing::MountedDisk> m_disk;
    std::unique_ptr<MainWindow> m_window;
};

int main(int argc, char** argv)
{
    whyNoMounts = testing::enterPrivateMounts();
    return testing::runScaled<DiskFaultsTest>(argc, argv, 6);
}

#include "disk_faults_test.moc"
