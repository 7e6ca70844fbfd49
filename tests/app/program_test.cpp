#include "config/configuration_record.h"
#include "tests/support/test_run.h"

#include <QProcess>

/// The program itself, as it is started from a menu or a shell.
class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { testing::profile().reset(); }

    void startsAndKeepsRunning_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("plain") << QStringList();
        // There are no options: what looks like one changes nothing.
        QTest::newRow("unknown option") << QStringList(QStringLiteral("--tour"));
    }
    void startsAndKeepsRunning()
    {
        QFETCH(QStringList, arguments);
        QProcess program;
        program.start(QStringLiteral(THERMADESK_PROGRAM), arguments);
        QVERIFY(program.waitForStarted());
        // The main window writes nothing at start: this record comes from start-up alone.
        QTRY_COMPARE_WITH_TIMEOUT(config::read().language, QStringLiteral("EN"), 30000);
        QCOMPARE(config::read().alarmFolder, config::folderPath());
        QCOMPARE(program.state(), QProcess::Running);
        program.kill();
        QVERIFY(program.waitForFinished());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ProgramTest>(argc, argv);
}

#include "program_test.moc"
