// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/photographs.h"
#include "tests/tools/thermaphoto.h"

#include <QJsonObject>

#include <csignal>
#include <sys/ioctl.h>
#include <sys/stat.h>

using testing::anyPhotograph;
using testing::Folder;

namespace {

/// Whether a process still waits for a signal, as the system tells.
bool catches(qint64 process, int signal)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = status.readAll();
    const QByteArray mask = text.mid(text.indexOf("SigCgt:") + 7, 20).trimmed().left(16);
    return (mask.toULongLong(nullptr, 16) >> (signal - 1) & 1) != 0;
}

/// An export that waits: nobody reads its error output, and every second photograph has more to
/// complain about than a pipe holds. By then others are written, and some are begun.
class Stalled : public Folder
{
public:
    /// `shellWords` come before the program in the shell.
    explicit Stalled(const QString& shellWords)
    {
        const QString good = write(QStringLiteral("good"), anyPhotograph());
        QStringList names;
        for (int i = 0; i < pairs; ++i) {
            const QString number = QString::number(i);
            names.append(write(number + QString(200, QLatin1Char('x')), "broken"));
            names.append(*this / number);
            QFile::link(good, names.last());
        }
        mkfifo(qPrintable(*this / QStringLiteral("errors")), 0600);
        process.setProcessEnvironment(testing::bareEnvironment());
        process.setWorkingDirectory(path());
        const QString command =
            shellWords + QStringLiteral(R"(exec "$thermaphoto" export --format npy --jobs 2 )"
                                        R"(-o out "$@" 2> errors)");
        process.start(QStringLiteral("sh"), QStringList{"-c", command, "sh"} + names);
        // Opening one end of a pipe waits for the other: the program starts now.
        reader.setFileName(*this / QStringLiteral("errors"));
        isWaiting = reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
                    QTest::qWaitFor([this] { return unread() > 60000; }, 60000);
    }
    ~Stalled()
    {
        process.kill();
        process.waitForFinished();
    }
    Stalled(const Stalled&) = delete;
    Stalled& operator=(const Stalled&) = delete;

    /// Reads the error output until the program has ended.
    QList<QByteArray> goOn()
    {
        QList<QByteArray> lines = reader.readAll().trimmed().split('\n');
        process.waitForFinished();
        return lines;
    }

    QStringList written() const { return files().filter(QStringLiteral("out/")); }

    static constexpr int pairs = 300;
    QProcess process;
    bool isWaiting = false;

private:
    int unread() const
    {
        int bytes = 0;
        return ioctl(reader.handle(), FIONREAD, &bytes) == 0 ? bytes : 0;
    }

    QFile reader;
};

} // namespace

/// Runs that are asked to end.
class InterruptionTest : public QObject
{
    Q_OBJECT

private slots:
    void interrupted_data();
    void interrupted();
    void ignoredRequestStaysIgnored();
};

void InterruptionTest::interrupted_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("asked to end") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
}

/// What was begun is finished, nothing else is, no file is half there, and what is told of is what
/// is on the disk.
void InterruptionTest::interrupted()
{
    QFETCH(int, signal);
    Stalled stalled{QString()};
    QVERIFY(stalled.isWaiting);
    QVERIFY(catches(stalled.process.processId(), signal));
    QCOMPARE(kill(pid_t(stalled.process.processId()), signal), 0);
    QTRY_VERIFY(
        !catches(stalled.process.processId(), signal)); // the second one would end it at once
    const QList<QByteArray> errors = stalled.goOn();
    QCOMPARE(stalled.process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(stalled.process.exitCode(), signal);
    const QStringList written = stalled.written();
    QVERIFY(!written.isEmpty() && written.size() < Stalled::pairs);
    QCOMPARE(errors.last(), "thermaphoto: interrupted: " + QByteArray::number(written.size()) +
                                " of 600 files are written");
    // Those of the broken photographs before the last one written, and perhaps of one behind it.
    QVERIFY(qAbs(errors.size() - 1 - written.size()) <= 2);
    for (const QString& file : written)
        QCOMPARE(stalled.read(file).size(), 128 + 240 * 320 * 4);
}

/// As under nohup: the terminal may be closed, the work goes on.
void InterruptionTest::ignoredRequestStaysIgnored()
{
    Stalled stalled(QStringLiteral("trap '' HUP; "));
    QVERIFY(stalled.isWaiting);
    QVERIFY(!catches(stalled.process.processId(), SIGHUP));
    QCOMPARE(kill(pid_t(stalled.process.processId()), SIGHUP), 0);
    QCOMPARE(stalled.goOn().size(), Stalled::pairs);
    QCOMPARE(stalled.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(stalled.process.exitCode(), 1);
    QCOMPARE(stalled.written().size(), Stalled::pairs);
}

int main(int argc, char** argv)
{
    return testing::run<InterruptionTest>(argc, argv);
}

#include "interruption_test.moc"
