// SPDX-License-Identifier: MIT
// A long watch, accelerated: every excursion leaves exactly one whole record, and memory stays
// flat. 100 excursions, in long runs 1,500; "alarm_excursions_test --excursions 10000" for as many
// as one likes.
#include "live/alarm_records.h"
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QFile>

#include <cstring>
#include <unistd.h>

using testing::Page;

namespace {

int excursions = testing::isLongRun() ? 1500 : 100;

qint64 residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no /proc/self/statm");
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

} // namespace

class AlarmExcursionsTest : public QObject
{
    Q_OBJECT

private slots:
    void oneRecordPerExcursionAndFlatMemory()
    {
        const QString folder = testing::makeFolder();
        testing::configure(QStringLiteral("EN"), folder);
        const Page page;
        page.check("checkBox");
        page.check("checkBox_3");
        qint64 settled = 0;
        const int warmUp = excursions / 10;
        for (int i = 1; i <= excursions; ++i) {
            page.frames(8, 50.0F + float(i));
            page.frame(20);
            if (i == warmUp)
                settled = residentBytes();
        }
        // The names in the two lists are all that may grow; one picture is 230,400 bytes.
        const qint64 allowed = 8'000'000 + qint64(excursions - warmUp) * 4'000;
        const qint64 growth = residentBytes() - settled;
        qInfo("%d excursions, memory grew by %lld bytes", excursions, growth);
        QVERIFY(growth < allowed);

        QStringList names = live::recordNames(folder);
        names.sort();
        QStringList rows = page.rows("listWidget");
        rows.sort();
        QCOMPARE(names.size(), excursions);
        QCOMPARE(rows, names);
        QSet<QString> maxima;
        for (const QString& name : names) {
            maxima.insert(live::recordReadings(folder, name).maximum);
            QCOMPARE(live::recordPicturePaths(folder, name).size(), live::recordPictures);
        }
        QCOMPARE(maxima.size(), excursions); // nobody's record was lost to another's
    }
};

int main(int argc, char** argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--excursions") == 0) {
        excursions = QByteArray(argv[2]).toInt();
        argc = 1;
        qputenv("QTEST_FUNCTION_TIMEOUT", "3600000");
    }
    return testing::run<AlarmExcursionsTest>(argc, argv);
}

#include "alarm_excursions_test.moc"
