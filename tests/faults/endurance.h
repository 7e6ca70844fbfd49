#pragma once

#include "tests/support/test_run.h"

#include <QElapsedTimer>
#include <QMap>
#include <QTimer>

/// What the tests share that do the same thing over and over: how often, in which random order,
/// what the process holds before and after, and how long the GUI thread stood still meanwhile.
namespace testing {

/// How long a test goes on and what its random choices start from. "--times N" and "--seed N" on
/// the command line replace the usual numbers.
struct Scale
{
    int times = 0;
    unsigned seed = 1;
};
Scale& scale();

/// Takes "--times" and "--seed" out of the arguments, which are QtTest's otherwise.
void takeScale(int& argc, char** argv, int usualTimes);

/// run() for a test that reads scale(). QtTest's own limit of five minutes a function is lifted.
template<typename T>
int runScaled(int argc, char** argv, int usualTimes)
{
    takeScale(argc, argv, usualTimes);
    return run<T>(argc, argv);
}

/// What this process holds at a moment.
struct Holdings
{
    qint64 residentBytes = 0;
    int openFiles = 0; ///< descriptors, of sockets and pipes too
    int threads = 0;
    int windows = 0;             ///< QApplication::topLevelWidgets(), shown or not
    int widgets = 0;             ///< QApplication::allWidgets()
    int timers = 0;              ///< running in the GUI thread
    QMap<QString, int> objects; ///< every QObject alive, counted by class

    /// One line for a log.
    QString text() const;
};

/// GUI thread, while no other thread of ours makes or deletes objects. Counts the objects that were
/// made since countObjects().
Holdings holdings();

/// What there is more or less of, memory aside: "files +1, QTimer +2"; empty when all is the same.
QString difference(const Holdings& before, const Holdings& after);

/// From here on every QObject is counted. Done by takeScale().
void countObjects();

/// The GUI thread's pulse: how long it stayed away from its event loop at most while this lives.
/// Time in which the thread was ready to run and others had the processor does not count, so that
/// a busy machine is not taken for a hang. Blocking and computing do count, the test's own as well,
/// unless skip() is called after it.
class Pulse
{
public:
    Pulse();
    double longestGap() const { return m_longest; } ///< seconds
    void skip();

private:
    void beat();

    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_lastBeat = 0;
    double m_longest = 0;
};

/// What counts as a hang, in seconds.
constexpr double hang = 1.0;

} // namespace testing
