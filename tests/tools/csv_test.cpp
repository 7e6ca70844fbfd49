// SPDX-License-Identifier: MIT
#include "tests/support/test_run.h"
#include "tests/tools/exported.h"

#include <cstring>

using testing::columns;
using testing::Exported;
using testing::grayAt;
using testing::option;
using testing::Shot;
using testing::slope;
using testing::stored;

/// Temperatures as text.
class CsvTest : public QObject
{
    Q_OBJECT

private slots:
    void csvIsExact();
    void csvDecimals_data();
    void csvDecimals();
    void csvSeparators_data();
    void csvSeparators();
    void csvHeader();
    void csvOfNonsense();
};

/// Nine digits: what is read back is the very number, and no digit is made up.
void CsvTest::csvIsExact()
{
    const Exported csv(photographBytes(slope()), QStringLiteral("csv"),
                       {option("unit", QStringLiteral("F"))});
    int different = 0;
    for (int x = 0; x < columns; ++x) {
        const float expected = 10.0F * stored(grayAt(x, 5)) / 5.556F + 32.0F;
        char text[32];
        std::snprintf(text, sizeof text, "%.9g", double(expected));
        QCOMPARE(csv.cells(5)[x], QByteArray(text));
        different += int(std::strlen(text) >= 9);
    }
    QVERIFY(different > 100);
}

void CsvTest::csvDecimals_data()
{
    QTest::addColumn<QString>("decimals");
    QTest::addColumn<QByteArray>("tie");
    QTest::addColumn<QByteArray>("negative");
    QTest::newRow("none") << "0" << QByteArray("30") << QByteArray("-0");
    // As the windows round: halves away from zero, and the sign of a small number stays.
    QTest::newRow("one") << "1" << QByteArray("30.3") << QByteArray("-0.0");
    QTest::newRow("two") << "2" << QByteArray("30.25") << QByteArray("-0.03");
    QTest::newRow("nine") << "9" << QByteArray("30.250000000") << QByteArray("-0.031250000");
}

void CsvTest::csvDecimals()
{
    QFETCH(QString, decimals);
    Shot shot;
    shot.maximum10 = 400;
    shot.minimum10 = 205;
    shot.grayMaximum = 200;
    shot.grayMinimum = 0;
    shot.gray = [](int, int) {
        return 100;
    }; // half way from 40 to 20.5: 30.25
    const QStringList options{option("decimals", decimals)};
    QTEST(Exported(photographBytes(shot), QStringLiteral("csv"), options).cells(0)[0], "tie");

    shot.maximum10 = 0;
    shot.minimum10 = -10;
    shot.grayMaximum = 32;
    shot.gray = [](int, int) {
        return 31;
    }; // a 32nd of the way from 0 to −1: −0.03125
    QTEST(Exported(photographBytes(shot), QStringLiteral("csv"), options).cells(0)[0], "negative");
}

void CsvTest::csvSeparators_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<char>("separator");
    QTest::newRow("semicolon") << ";" << ';';
    QTest::newRow("blank") << " " << ' ';
    QTest::newRow("tab itself") << "\t" << '\t';
    QTest::newRow("tab by name") << "tab" << '\t';
    QTest::newRow("tab escaped") << "\\t" << '\t';
}

void CsvTest::csvSeparators()
{
    QFETCH(QString, given);
    QFETCH(char, separator);
    const Exported csv(photographBytes(slope()), QStringLiteral("csv"),
                       {QStringLiteral("--separator"), given});
    QCOMPARE(csv.cells(0, separator).size(), columns);
    QCOMPARE(csv.cells(0, separator)[0].toDouble(), 20.0);
}

void CsvTest::csvHeader()
{
    const QByteArray photograph = photographBytes(slope());
    const Exported plain(photograph, QStringLiteral("csv"));
    const Exported titled(photograph, QStringLiteral("csv"), {QStringLiteral("--header")});
    QCOMPARE(titled.file, "# unit=C columns=240 rows=320\n" + plain.file);
    const Exported inF(photograph, QStringLiteral("csv"),
                       {QStringLiteral("--header"), option("unit", QStringLiteral("F"))});
    QVERIFY(inF.file.startsWith("# unit=F columns=240 rows=320\n"));
}

/// Without a gray span there are no temperatures, only what a division by nothing gives.
void CsvTest::csvOfNonsense()
{
    Shot shot = slope();
    shot.grayMinimum = shot.grayMaximum = 100;
    shot.gray = [](int x, int) {
        return 99 + x % 3;
    };
    for (const QStringList& options : {QStringList(), {option("decimals", QStringLiteral("1"))}}) {
        const Exported csv(photographBytes(shot), QStringLiteral("csv"), options);
        QCOMPARE(csv.ended.status, 0);
        QVERIFY(csv.file.startsWith("-inf,nan,inf,-inf,"));
        QVERIFY(!csv.file.contains("-nan"));
    }
}

int main(int argc, char** argv)
{
    return testing::run<CsvTest>(argc, argv);
}

#include "csv_test.moc"
