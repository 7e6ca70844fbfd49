// SPDX-License-Identifier: MIT
// Records beside what others have put into the history folder, and in every country.
#include "live/alarm_records.h"
#include "tests/live/seven_pictures.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>

using testing::sevenPictures;

namespace {

/// The argument with which this program stands in for the product in another country.
const char* const writeRecordAndEnd = "--write-record-and-end";

const QDateTime moment(QDate(2024, 3, 9), QTime(7, 5, 2, 999));
const QString momentName = QStringLiteral("20240309070502");
const QString readOuts = QStringLiteral("36.2,34.0,0.97");

/// Hidden ones, too.
QStringList everythingIn(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

class AlarmRecordsLimitsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void namesHaveLatinDigitsEverywhere_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char* locale :
             {"ar_EG", "fa_IR", "mr_IN", "bn_BD", "ne_NP", "my_MM", "ckb_IQ", "th_TH", "de_DE"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }
    /// A program reads the system's locale when it starts, so this is one of its own.
    void namesHaveLatinDigitsEverywhere()
    {
        QFETCH(QString, locale);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), locale + QStringLiteral(".UTF-8"));
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationFilePath(),
                      {QString::fromLatin1(writeRecordAndEnd), path()});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);
        const QStringList listed = live::recordNames(path());
        QCOMPARE(listed, QStringList(momentName));
        QCOMPARE(live::recordReadings(path(), momentName).emissivity, QStringLiteral("0.97"));
    }

    void nothingHiddenIsLeft()
    {
        live::writeRecord(path(), moment, sevenPictures(), readOuts);
        QCOMPARE(everythingIn(path()),
                 QStringList({momentName, momentName + QStringLiteral(".ini")}));
        QCOMPARE(everythingIn(path(momentName)).size(), live::recordPictures);
    }

    void aRecordInTheMakingIsNotListed()
    {
        QVERIFY(QDir(path()).mkpath(QStringLiteral(".making/") + momentName));
        QCOMPARE(live::recordNames(path()), QStringList());
    }

    /// What a program leaves behind that dies between any two of its steps.
    void leftOversGoAtTheNextRecord()
    {
        const QString inTheMaking = QStringLiteral(".making/20230101000000");
        testing::putFile(path(inTheMaking + QStringLiteral("/F1.JPG")), "half a pict");
        testing::putFile(path(inTheMaking + QStringLiteral("/text")), "1,2");
        testing::putFile(path(inTheMaking + QStringLiteral(".lock")), "");
        testing::putFile(path(QStringLiteral(".making/20230101000001.lock")), "");
        // Locks of nobody, and old enough for it to be certain.
        for (const char* lock : {"20230101000000", "20230101000001"}) {
            QFile file(path(QStringLiteral(".making/%1.lock").arg(QLatin1String(lock))));
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                     QFileDevice::FileModificationTime));
        }
        QCOMPARE(live::writeRecord(path(), moment, sevenPictures(), readOuts), momentName);
        QCOMPARE(everythingIn(path()),
                 QStringList({momentName, momentName + QStringLiteral(".ini")}));
    }

    void aWholeRecordThatOnlyLacksItsNameGetsIt()
    {
        const QString whole = QStringLiteral("20230101000000");
        testing::putFile(path(QStringLiteral(".making/") + whole + QStringLiteral("/F1.JPG")),
                         "a picture");
        testing::putFile(path(whole + QStringLiteral(".ini")), "1,2,3");
        QCOMPARE(live::writeRecord(path(), moment, sevenPictures(), readOuts), momentName);
        QCOMPARE(testing::fileBytes(path(whole + QStringLiteral("/F1.JPG"))),
                 QByteArray("a picture"));
        QCOMPARE(live::recordReadings(path(), whole).threshold, QStringLiteral("2"));
        QVERIFY(!QFile::exists(path(QStringLiteral(".making"))));
    }

    void whatOthersHavePutThereStays()
    {
        const QString theirs = path(QStringLiteral(".making/20230101000000/holiday.jpg"));
        testing::putFile(theirs, "theirs");
        QCOMPARE(live::writeRecord(path(), moment, sevenPictures(), readOuts), momentName);
        QCOMPARE(testing::fileBytes(theirs), QByteArray("theirs"));
    }

    void theTextIsTheLastLineOfTheFirstFourKilobytes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("maximum");
        const QByteArray line("1,2,3\n");
        QTest::newRow("ends with them") << QByteArray(4090, '\n') + line << QStringLiteral("1");
        QTest::newRow("goes on") << QByteArray(4090, '\n') + line + "4,5,6" << QStringLiteral("1");
        QTest::newRow("one endless line")
            << QByteArray(100'000, '7') << QString(4096, QLatin1Char('7'));
        QTest::newRow("cut off") << QByteArray(4094, '\n') + "89,5,6" << QStringLiteral("89");
    }
    void theTextIsTheLastLineOfTheFirstFourKilobytes()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, maximum);
        testing::putFile(path(QStringLiteral("r.ini")), text);
        QCOMPARE(live::recordReadings(path(), QStringLiteral("r")).maximum, maximum);
    }

    void aFolderIsNoText()
    {
        QVERIFY(QDir(path()).mkdir(QStringLiteral("r.ini")));
        QCOMPARE(live::recordReadings(path(), QStringLiteral("r")).maximum, QString());
    }

    void sixtyFourPicturesAreEnough()
    {
        for (int i = 0; i < 70; ++i)
            testing::putFile(path(QStringLiteral("r/%1.png").arg(i, 3, 10, QLatin1Char('0'))), "x");
        const QStringList paths = live::recordPicturePaths(path(), QStringLiteral("r"));
        QCOMPARE(paths.size(), 64);
        QCOMPARE(paths.first(), path(QStringLiteral("r/000.png")));
        QCOMPARE(paths.last(), path(QStringLiteral("r/063.png")));
    }

private:
    QString path() const { return m_folder->path(); }
    QString path(const QString& name) const { return path() + QLatin1Char('/') + name; }

    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], writeRecordAndEnd) == 0) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const QGuiApplication application(argc, argv);
        return live::writeRecord(QFile::decodeName(argv[2]), moment, sevenPictures(), readOuts)
                       .isEmpty()
                   ? 1
                   : 0;
    }
    return testing::run<AlarmRecordsLimitsTest>(argc, argv);
}

#include "alarm_records_limits_test.moc"
