#include "tests/faults/endurance.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMutex>
#include <QSet>
#include <QThread>
#include <QWidget>

#include <cstdlib>
#include <cstring>
#include <unistd.h>

/// Where Qt calls back for every object that comes and goes: how object browsers find them.
// NOLINTNEXTLINE(readability-identifier-naming)
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace testing {
namespace {

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
    return int(QDir(QString::fromLatin1(folder))
                   .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                   .size());
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
            scale().times = std::atoi(argv[++i]);
        else if (hasValue && std::strcmp(argv[i], "--seed") == 0)
            scale().seed = unsigned(std::strtoul(argv[++i], nullptr, 10));
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    argv[argc] = nullptr;
    qputenv("QTEST_FUNCTION_TIMEOUT", "864000000");
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
    now.residentBytes =
        contentOf("/proc/self/statm").split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
    now.openFiles = entriesOf("/proc/self/fd") - 1; // less the one that reads the folder
    now.threads = entriesOf("/proc/self/task");
    now.windows = int(QApplication::topLevelWidgets().size());
    now.widgets = int(QApplication::allWidgets().size());
    const QMutexLocker lock(&objects().mutex);
    for (QObject* object : qAsConst(objects().alive)) {
        ++now.objects[QString::fromLatin1(object->metaObject()->className())];
        if (object->thread() == QThread::currentThread())
            now.timers += int(QAbstractEventDispatcher::instance()->registeredTimers(object).size());
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

QString difference(const Holdings& before, const Holdings& after)
{
    QStringList lines;
    const auto compare = [&lines](const QString& what, int first, int second) {
        if (first != second)
            lines.append(QStringLiteral("%1 %2%3")
                             .arg(what, second > first ? QStringLiteral("+") : QString())
                             .arg(second - first));
    };
    compare(QStringLiteral("files"), before.openFiles, after.openFiles);
    compare(QStringLiteral("threads"), before.threads, after.threads);
    compare(QStringLiteral("windows"), before.windows, after.windows);
    compare(QStringLiteral("widgets"), before.widgets, after.widgets);
    compare(QStringLiteral("timers"), before.timers, after.timers);
    QStringList classes = before.objects.keys() + after.objects.keys();
    classes.removeDuplicates();
    for (const QString& name : qAsConst(classes))
        compare(name, before.objects.value(name), after.objects.value(name));
    return lines.join(QStringLiteral(", "));
}

Pulse::Pulse()
{
    m_clock.start();
    QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
    m_timer.start(5);
    skip();
}

void Pulse::beat()
{
    const double before = m_lastBeat;
    skip();
    m_longest = std::max(m_longest, m_lastBeat - before);
}

void Pulse::skip()
{
    m_lastBeat = double(m_clock.nsecsElapsed()) / 1e9 - waitedForProcessor();
}

} // namespace testing
