// SPDX-License-Identifier: MIT
#include "analysis/photograph/kept_measurements.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#ifndef Q_OS_WIN
#include "tests/support/full_disk.h"
#endif

using analysis::KeptMeasurements;
using analysis::Measurements;

namespace {

/// A hash has 64 digits.
QString key(int number)
{
    return QStringLiteral("%1").arg(number, 64, 16, QLatin1Char('0'));
}

Measurements sample(int x)
{
    Measurements measurements;
    measurements.tools.pointList = {{"P0", x, 2}, {"P4", 3, 4, 9, QColor(0, 0, 255)}};
    measurements.tools.circleList = {{"C0", 120, 160, 125, 160, 5}};
    measurements.startValue = 10;
    measurements.endValue = 200;
    measurements.unit = analysis::Unit::Fahrenheit;
    return measurements;
}

const char* const sampleText = R"({
    "version": 1,
    "span": [10, 200],
    "unit": "F",
    "tools": {
        "version": 1,
        "points": [[1, 2], [3, 4]],
        "circles": [[120, 160, 5]],
        "names": ["P0", "P4", "C0"],
        "colours": {"P4": "#0000ff"}
    }
}
)";

QString fileOf(int number)
{
    return key(number) + QStringLiteral(".json");
}

/// As if it had been written so long ago.
void age(const testing::Folder& folder, int number, int hours)
{
    QFile file(folder / fileOf(number));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime then = QDateTime::currentDateTime().addSecs(-3600 * hours);
    QVERIFY(file.setFileTime(then, QFileDevice::FileModificationTime));
}

} // namespace

class KeptMeasurementsTest : public QObject
{
    Q_OBJECT

private slots:
    void liesInTheUsersData()
    {
#ifdef Q_OS_LINUX
        QCOMPARE(KeptMeasurements::usualFolder(),
                 testing::profile().home() + "/.local/share/thermadesk/measurements");
#endif
        KeptMeasurements().find(key(1));
        QVERIFY(!QFile::exists(KeptMeasurements::usualFolder()));
        QCOMPARE(KeptMeasurements::mostPhotographs, 10000);
    }

    void everyByteOfAPhotographCounts()
    {
        const auto keyOf = [](const QByteArray& bytes) {
            return KeptMeasurements::keyOf(reinterpret_cast<const uchar*>(bytes.constData()),
                                           bytes.size());
        };
        // The first is the hash of nothing, as others give it.
        QCOMPARE(keyOf(""), QStringLiteral("e3b0c44298fc1c149afbf4c8996fb924"
                                           "27ae41e4649b934ca495991b7852b855"));
        QCOMPARE(keyOf("abc"), QStringLiteral("ba7816bf8f01cfea414140de5dae2223"
                                              "b00361a396177a9cb410ff61f20015ad"));
        QCOMPARE(KeptMeasurements::keyOf(nullptr, -1), keyOf(""));
    }

    void whatIsKeptComesBack()
    {
        const testing::Folder folder;
        const KeptMeasurements kept(folder / "made/when/needed");
        QVERIFY(!kept.find(key(1)));
        QVERIFY(kept.keep(key(1), sample(1)).isGood());
        QVERIFY(kept.keep(key(2), sample(2)).isGood());
        QVERIFY(kept.find(key(1)) == sample(1));
        QVERIFY(kept.find(key(2)) == sample(2));
        QVERIFY(!kept.find(key(3)));
        QVERIFY(kept.keep(key(1), sample(7)).isGood());
        QVERIFY(kept.find(key(1)) == sample(7));
        QCOMPARE(folder.files(),
                 (QStringList{"made/when/needed/" + fileOf(1), "made/when/needed/" + fileOf(2)}));
    }

    void isReadableAsText()
    {
        const testing::Folder folder;
        QVERIFY(KeptMeasurements(folder.path()).keep(key(1), sample(1)).isGood());
        QCOMPARE(folder.read(fileOf(1)), QByteArray(sampleText));
    }

    void aBrokenFileIsAsIfItWereNotThere_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto row = [](const char* name, const char* from, const char* to) {
            QTest::newRow(name) << QByteArray(from) << QByteArray(to);
        };
        row("empty", sampleText, "");
        row("a list", sampleText, "[]");
        row("cut off", "}\n}", "}");
        row("a later version", "\"version\": 1,\n    \"span\"", "\"version\": 2,\n    \"span\"");
        row("no version", "\"version\": 1,\n    \"span\"", "\"span\"");
        row("no span", "\"span\"", "\"width\"");
        row("half a span", "[10, 200]", "[10]");
        row("three ends", "[10, 200]", "[10, 200, 210]");
        row("above the span", "[10, 200]", "[-1, 200]");
        row("under the span", "[10, 200]", "[10, 256]");
        row("crossed", "[10, 200]", "[200, 10]");
        row("half an entry", "[10, 200]", "[10.5, 200]");
        row("an unknown unit", "\"F\"", "\"K\"");
        row("no unit", "\"F\"", "1");
        row("tools outside", "[1, 2]", "[1, 999]");
        row("no tools", "\"tools\"", "\"others\"");
        row("tools of no object", "\"tools\": {", "\"tools\": 3, \"x\": {");
    }
    void aBrokenFileIsAsIfItWereNotThere()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const testing::Folder folder;
        const KeptMeasurements kept(folder.path());
        folder.write(fileOf(1), sampleText);
        QVERIFY(kept.find(key(1)) == sample(1));
        const QByteArray broken = QByteArray(sampleText).replace(from, to);
        QVERIFY(broken != sampleText);
        folder.write(fileOf(1), broken);
        QVERIFY(!kept.find(key(1)));
        QVERIFY(kept.keep(key(2), sample(2)).isGood());
        QVERIFY(kept.find(key(2)) == sample(2));
        QVERIFY(kept.keep(key(1), sample(1)).isGood());
        QVERIFY(kept.find(key(1)) == sample(1));
    }

    void theOldestGo()
    {
        const testing::Folder folder;
        const KeptMeasurements kept(folder.path(), 3);
        for (const int number : {1, 2, 3}) {
            QVERIFY(kept.keep(key(number), sample(number)).isGood());
            age(folder, number, 10 * number);
        }
        // changed again, it is the newest, and no other has to go
        QVERIFY(kept.keep(key(3), sample(30)).isGood());
        QCOMPARE(folder.files().size(), 3);
        QVERIFY(kept.keep(key(4), sample(4)).isGood());
        QCOMPARE(folder.files(), (QStringList{fileOf(1), fileOf(3), fileOf(4)}));
        QVERIFY(kept.keep(key(5), sample(5)).isGood());
        QCOMPARE(folder.files(), (QStringList{fileOf(3), fileOf(4), fileOf(5)}));
    }

    void theClockMayBeWrong()
    {
        const testing::Folder folder;
        const KeptMeasurements kept(folder.path(), 2);
        for (const int number : {1, 2}) {
            QVERIFY(kept.keep(key(number), sample(number)).isGood());
            age(folder, number, -1000 * number);
        }
        QVERIFY(kept.keep(key(3), sample(3)).isGood());
        QCOMPARE(folder.files(), (QStringList{fileOf(2), fileOf(3)}));
    }

    void ofTooManyAllGo()
    {
        const testing::Folder folder;
        for (int number = 1; number <= 9; ++number) {
            folder.write(fileOf(number), sampleText);
            age(folder, number, number);
        }
        QVERIFY(KeptMeasurements(folder.path(), 2).keep(key(10), sample(1)).isGood());
        QCOMPARE(folder.files(), (QStringList{fileOf(1), fileOf(10)}));
    }

    void othersFilesAreNoPhotographs()
    {
        const testing::Folder folder;
        folder.write("notes.txt", "mine");
        folder.write("notes.json", "mine");
        const KeptMeasurements kept(folder.path(), 1);
        QVERIFY(kept.keep(key(1), sample(1)).isGood());
        age(folder, 1, 1);
        QVERIFY(kept.keep(key(2), sample(2)).isGood());
        QCOMPARE(folder.files(), (QStringList{fileOf(2), "notes.json", "notes.txt"}));
    }

    void withoutAFolderItSaysWhy()
    {
        const testing::Folder folder;
        folder.write("file", "in the way");
        const files::Outcome outcome =
            KeptMeasurements(folder / "file/below").keep(key(1), sample(1));
        QCOMPARE(int(outcome.problem), int(files::Problem::CannotWrite));
        QVERIFY(!outcome.detail.isEmpty());
        QCOMPARE(folder.files(), QStringList{"file"});
    }

#ifndef Q_OS_WIN
    void aFullDiskLeavesWhatWasKept()
    {
        const testing::Folder folder;
        const KeptMeasurements kept(folder.path(), 1);
        QVERIFY(kept.keep(key(1), sample(1)).isGood());
        {
            const testing::FullDisk full(50);
            for (const int number : {1, 2}) {
                const files::Outcome outcome = kept.keep(key(number), sample(9));
                QCOMPARE(int(outcome.problem), int(files::Problem::CannotWrite));
                QVERIFY(!outcome.detail.isEmpty());
            }
        }
        QVERIFY(kept.find(key(1)) == sample(1));
        QCOMPARE(folder.files(), QStringList{fileOf(1)});
    }
#endif
};

int main(int argc, char** argv)
{
    return testing::run<KeptMeasurementsTest>(argc, argv);
}

#include "kept_measurements_test.moc"
