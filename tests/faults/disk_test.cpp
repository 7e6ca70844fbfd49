// SPDX-License-Identifier: MIT
#include "tests/faults/disk_test.h"

#include "analysis/windows/photo_window.h"
#include "analysis/windows/selection_job.h"
#include "config/configuration_record.h"
#include "platform/removable_drives.h"
#include "simulator/simulated_imager.h"
#include "tests/support/folder.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace testing {
namespace {

QString whyNoMounts;

constexpr int warmUp = 4;
constexpr int megabytes = 24;

QString dismissMessage()
{
    const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return {};
    QString text = box->text();
    box->reject();
    QTest::qWait(0);
    return text;
}

} // namespace

QStringList everything(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void goWhereMountsArePrivate()
{
    whyNoMounts = enterPrivateMounts();
}

void DiskTest::initTestCase()
{
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openReport");
    simulator::SimulatedImager imager;
    imager.setFrameRate(0);
    imager.setDiskPlugged(true);
    imager.takeSamplePhotographs();
    const QDir folder(imager.disk().root() + QStringLiteral("DCIM_100"));
    for (const QString& name : folder.entryList(QDir::Files)) {
        m_photographs.append(fileBytes(folder.filePath(name)));
        QVERIFY(!m_photographs.last().isEmpty());
    }
    QCOMPARE(m_photographs.size(), 5);
}

void DiskTest::init()
{
    profile().reset();
    config::create(QStringLiteral("EN"));
    m_random.seed(scale().seed);
}

void DiskTest::cleanup()
{
    m_window.reset();
    m_disk.reset();
    platform::setDriveProvider({});
}

void DiskTest::disks(std::initializer_list<Kind> kinds)
{
    QTest::addColumn<int>("kind");
    for (const Kind kind : kinds) {
        const char* const names[] = {"folder", "FAT image", "exFAT image", "ext2 image",
                                     "faulty disk"};
        QTest::newRow(names[int(kind)]) << int(kind);
    }
}

bool DiskTest::prepare()
{
    prepareDisk();
    return m_disk != nullptr;
}

void DiskTest::prepareDisk()
{
    QFETCH(int, kind);
    const QString missing =
        Kind(kind) == Kind::Folder ? QString() : whyNoMounts + MountedDisk::missing(Kind(kind));
    if (!missing.isEmpty())
        QSKIP(qPrintable(QStringLiteral("NOT TESTED: cannot mount this disk here: ") + missing),
              "");
    m_disk = std::make_unique<MountedDisk>(Kind(kind), megabytes);
    const bool direct = Kind(kind) == Kind::Folder || Kind(kind) == Kind::Faulty;
    if (!direct)
        m_disk->plug();
    const QString folder = (direct ? m_disk->source() + QLatin1Char('/') : m_disk->root()) +
                           QStringLiteral("DCIM_100");
    QVERIFY(QDir().mkpath(folder));
    for (int i = 0; i < photographs; ++i)
        putFile(folder + QLatin1Char('/') + name(i), m_photographs.at(i % m_photographs.size()));
    if (!direct) {
        m_disk->pullOut();
        m_disk->settle();
    }
}

bool DiskTest::begin()
{
    if (!prepare())
        return false;
    m_disk->plug();
    show();
    return true;
}

void DiskTest::show()
{
    platform::setDriveProvider([this] { return QStringList(m_disk->root()); });
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->timeout_connect();
    QTest::qWait(1);
    QVERIFY(m_window->browser());
    QCOMPARE(m_window->browser()->fileNames.size(), photographs);
}

void DiskTest::leaveAndEnter()
{
    m_window->Action_Disconnect();
    m_window->Action_connect();
    m_window->timeout_connect();
    QVERIFY(m_window->browser());
}

void DiskTest::repeat(const std::function<void(Pulse&)>& once)
{
    const int times = scale().times;
    Pulse pulse;
    Holdings before;
    MemoryPeaks memory(times);
    for (int i = -warmUp; i < times && !QTest::currentTestFailed(); ++i) {
        if (i == 0)
            before = holdings();
        if (i >= 0)
            memory.sample();
        once(pulse);
    }
    if (QTest::currentTestFailed())
        return;
    const double gap = pulse.longestGap();
    QTRY_COMPARE(leftOver(before, holdings()), QString());
    qInfo("%d times, seed %u, longest gap %.0f ms", times, scale().seed, gap * 1000);
    qInfo("after: %s", qPrintable(holdings().text()));
    QVERIFY(gap < hang);
    memory.verify();
}

QString DiskTest::open(const QString& photograph)
{
    QListWidgetItem item(photograph);
    m_window->browser()->list_item_doubleclicked(&item);
    return dismissMessage();
}

bool DiskTest::saveReport(const QString& path)
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
    part<QPushButton>(part<QWidget>(m_window->browser(), "Analysis_Widget"), "pushButton")->click();
    return told;
}

QString DiskTest::exportSelection(analysis::SelectionTask task, const QString& target)
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

void DiskTest::useEverythingOnce()
{
    const QTemporaryDir folder;
    QVERIFY(saveReport(folder.filePath(QStringLiteral("report.pdf"))));
    for (int task = 0; task < 5; ++task)
        QVERIFY(!exportSelection(analysis::SelectionTask(task), folder.path()).isEmpty());
}

} // namespace testing
