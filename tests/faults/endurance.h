// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QElapsedTimer>
#include <QMap>
#include <QTimer>
#include <QWidget>

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
    int windows = 0;            ///< QApplication::topLevelWidgets(), shown or not
    int widgets = 0;            ///< QApplication::allWidgets()
    int timers = 0;             ///< running in the GUI thread
    QMap<QString, int> objects; ///< QObjects alive, counted by class

    /// One line for a log.
    QString text() const;
};

/// GUI thread, while no other thread of ours makes or deletes objects. Counts the objects that were
/// made since countObjects().
Holdings holdings();

/// What there is more of, memory aside: "files +1, QTimer +2"; empty when there is nothing.
/// A few threads more are let pass: pools keep them for a while.
QString leftOver(const Holdings& before, const Holdings& after);

/// Resident memory while something is done so many times over: its peak in the second half must not
/// lie more than 2 % and 8 MB above that in the first. Where it stands at one moment says little:
/// the heap and the arenas of Qt's threads breathe by a few megabytes.
class MemoryPeaks
{
public:
    explicit MemoryPeaks(int times) : m_times(times) {}
    void sample();       ///< after each time
    void verify() const; ///< fails the running test, except under the address sanitizer

private:
    int m_times;
    int m_samples = 0;
    qint64 m_peaks[2] = {0, 0};
};

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
    double longestGap() const; ///< seconds, the time since the last beat included
    void skip();

private:
    void beat();
    double now() const;

    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_lastBeat = 0;
    double m_longest = 0;
};

/// What counts as a hang, in seconds.
constexpr double hang = 1.0;

} // namespace testing
