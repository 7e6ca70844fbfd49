// SPDX-License-Identifier: MIT
#include "tests/faults/endurance.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QMutex>
#include <QSet>
#include <QThread>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

/// Where Qt calls back for every object that comes and goes: how object browsers find them.
// NOLINTNEXTLINE(readability-identifier-naming)
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace testing {
namespace {

/// Under the address sanitizer resident memory goes on growing where it does not without: the
/// sanitizer keeps books of its own. What is lost is then for its leak checker to tell.
#ifdef __SANITIZE_ADDRESS__
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// GLib and Qt keep a few idle threads in pools, now and then one more, for some seconds. A thread
/// left over by something done again and again would soon be more.
constexpr int pooledThreads = 4;

constexpr int objectAdded = 3; // places in qtHookData
constexpr int objectRemoved = 4;

struct Objects
{
    QMutex mutex;
    QSet<QObject*> alive;
};

/// Never destroyed: objects go until the very end.
Objects& objects()
{
    static auto* const instance = new Objects; // NOLINT(cppcoreguidelines-owning-memory)
    return *instance;
}

void added(QObject* object)
{
    const QMutexLocker lock(&objects().mutex);
    objects().alive.insert(object);
}

void removed(QObject* object)
{
    const QMutexLocker lock(&objects().mutex);
    objects().alive.remove(object);
}

QByteArray contentOf(const char* path)
{
    QFile file(QString::fromLatin1(path));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", path);
    return file.readAll();
}

int entriesOf(const char* folder)
{
    return QDir(QString::fromLatin1(folder))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

qint64 residentBytes()
{
    return contentOf("/proc/self/statm").split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

/// Seconds for which this thread was ready to run, but another one ran.
double waitedForProcessor()
{
    return contentOf("/proc/thread-self/schedstat").split(' ').value(1).toDouble() / 1e9;
}

} // namespace

Scale& scale()
{
    static Scale instance;
    return instance;
}

void takeScale(int& argc, char** argv, int usualTimes)
{
    scale().times = usualTimes;
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (hasValue && std::strcmp(argv[i], "--times") == 0)
            scale().times = int(std::strtol(argv[++i], nullptr, 10));
        else if (hasValue && std::strcmp(argv[i], "--seed") == 0)
            scale().seed = unsigned(std::strtoul(argv[++i], nullptr, 10));
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    argv[argc] = nullptr;
    qputenv("QTEST_FUNCTION_TIMEOUT", "864000000");
    // Thousands of lines that each time are the same; QtTest would stop listening.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\ndefault.warning=false"));
    countObjects();
}

void countObjects()
{
    qtHookData[objectAdded] = reinterpret_cast<quintptr>(&added);
    qtHookData[objectRemoved] = reinterpret_cast<quintptr>(&removed);
}

Holdings holdings()
{
    Holdings now;
    now.residentBytes = residentBytes();
    now.openFiles = entriesOf("/proc/self/fd") - 1; // less the one that reads the folder
    now.threads = entriesOf("/proc/self/task");
    now.windows = QApplication::topLevelWidgets().size();
    now.widgets = QApplication::allWidgets().size();
    const QMutexLocker lock(&objects().mutex);
    for (QObject* object : qAsConst(objects().alive)) {
        const auto kind = QString::fromLatin1(object->metaObject()->className());
        // Qt keeps those of views that are gone until it next looks after its gestures, idle
        // threads of its pool for half a minute (they are counted as threads), and what makes drags
        // for ever.
        if (kind == QLatin1String("QPanGesture") || kind == QLatin1String("QThreadPoolThread") ||
            kind == QLatin1String("QDragManager"))
            continue;
        ++now.objects[kind];
        if (object->thread() == QThread::currentThread())
            now.timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    }
    return now;
}

QString Holdings::text() const
{
    int count = 0;
    for (const int ofClass : objects)
        count += ofClass;
    return QStringLiteral("%1 MB resident, %2 files, %3 threads, %4 windows, %5 widgets, %6 "
                          "timers, %7 objects")
        .arg(double(residentBytes) / 1e6, 0, 'f', 2)
        .arg(openFiles)
        .arg(threads)
        .arg(windows)
        .arg(widgets)
        .arg(timers)
        .arg(count);
}

QString leftOver(const Holdings& before, const Holdings& after)
{
    QStringList lines;
    const auto compare = [&lines](const QString& what, int first, int second) {
        if (second > first)
            lines.append(QStringLiteral("%1 +%2").arg(what).arg(second - first));
    };
    compare(QStringLiteral("files"), before.openFiles, after.openFiles);
    compare(QStringLiteral("threads"), before.threads + pooledThreads, after.threads);
    compare(QStringLiteral("windows"), before.windows, after.windows);
    compare(QStringLiteral("widgets"), before.widgets, after.widgets);
    compare(QStringLiteral("timers"), before.timers, after.timers);
    for (auto kind = after.objects.begin(); kind != after.objects.end(); ++kind)
        compare(kind.key(), before.objects.value(kind.key()), kind.value());
    return lines.join(QStringLiteral(", "));
}

void MemoryPeaks::sample()
{
    qint64& peak = m_peaks[m_samples++ < m_times / 2 ? 0 : 1];
    peak = std::max(peak, residentBytes());
}

void MemoryPeaks::verify() const
{
    const double growth = 100.0 * double(m_peaks[1] - m_peaks[0]) / double(m_peaks[0]);
    qInfo("resident memory at most %.2f MB in the first half, %.2f MB in the second (%+.2f %%)",
          double(m_peaks[0]) / 1e6, double(m_peaks[1]) / 1e6, growth);
    QVERIFY2(isSanitized || m_peaks[1] <= m_peaks[0] + m_peaks[0] / 50 + 8'000'000,
             "memory has grown");
}

Pulse::Pulse()
{
    m_clock.start();
    QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
    m_timer.start(5);
    skip();
}

double Pulse::now() const
{
    return double(m_clock.nsecsElapsed()) / 1e9 - waitedForProcessor();
}

double Pulse::longestGap() const
{
    return std::max(m_longest, now() - m_lastBeat);
}

void Pulse::beat()
{
    m_longest = longestGap();
    skip();
}

void Pulse::skip()
{
    m_lastBeat = now();
}

} // namespace testing
