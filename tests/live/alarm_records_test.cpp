// SPDX-License-Identifier: MIT
#include "live/alarm_records.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QImageReader>

namespace {

const QDateTime moment(QDate(2024, 3, 9), QTime(7, 5, 2, 999));
const QString momentName = QStringLiteral("20240309070502");
const QString readOuts = QStringLiteral("36.2,34.0,0.97");

QList<QImage> grays(int count)
{
    QList<QImage> pictures;
    for (int i = 0; i < count; ++i) {
        QImage picture(240, 320, QImage::Format_RGB888);
        picture.fill(QColor(30 * i, 30 * i, 30 * i));
        pictures.append(picture);
    }
    return pictures;
}

QStringList everythingIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

class AlarmRecordsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void writesSevenPicturesAndTheTextBeside()
    {
        QCOMPARE(live::writeRecord(path(), moment, grays(7), readOuts), momentName);
        QCOMPARE(everythingIn(path()),
                 QStringList({momentName, momentName + QStringLiteral(".ini")}));
        QCOMPARE(testing::fileBytes(path(momentName + QStringLiteral(".ini"))),
                 QByteArray("36.2,34.0,0.97"));
        const QStringList oldestFirst{"F1.JPG", "F2.JPG", "F3.JPG", "Alarm.JPG",
                                      "L1.JPG", "L2.JPG", "L3.JPG"};
        QCOMPARE(everythingIn(path(momentName)).size(), 7);
        for (int i = 0; i < 7; ++i) {
            QImageReader reader(path(momentName + QLatin1Char('/') + oldestFirst[i]));
            QCOMPARE(reader.format(), QByteArray("jpeg"));
            const QImage picture = reader.read();
            QCOMPARE(picture.size(), QSize(240, 320));
            QVERIFY(qAbs(picture.pixelColor(120, 160).green() - 30 * i) <= 2);
        }
    }

    void picturesHaveTheDefaultQuality()
    {
        QList<QImage> pictures = grays(7);
        for (int x = 0; x < 240; ++x) {
            for (int y = 0; y < 320; ++y)
                pictures[0].setPixelColor(x, y, QColor(x, y & 0xFF, (x * y) & 0xFF));
        }
        live::writeRecord(path(), moment, pictures, readOuts);
        QVERIFY(pictures[0].save(path(QStringLiteral("expected.jpg")), "jpg", -1));
        QCOMPARE(testing::fileBytes(path(momentName + QStringLiteral("/F1.JPG"))),
                 testing::fileBytes(path(QStringLiteral("expected.jpg"))));
    }

    void textIsUtf8()
    {
        live::writeRecord(path(), moment, grays(7), QStringLiteral("36,2,°"));
        QCOMPARE(testing::fileBytes(path(momentName + QStringLiteral(".ini"))),
                 QByteArray("36,2,\xC2\xB0"));
    }

    void oneSecondHoldsManyRecords()
    {
        const QList<QImage> pictures = grays(7);
        for (const char* name : {"20240309070502", "20240309070502-2", "20240309070502-3"})
            QCOMPARE(live::writeRecord(path(), moment, pictures, QLatin1String(name)),
                     QLatin1String(name));
        for (const char* name : {"20240309070502", "20240309070502-2", "20240309070502-3"}) {
            QCOMPARE(testing::fileBytes(path(QLatin1String(name) + QStringLiteral(".ini"))),
                     QByteArray(name));
            QCOMPARE(live::recordPicturePaths(path(), QLatin1String(name)).size(), 7);
        }
        QCOMPARE(live::recordNames(path()).size(), 3);
    }

    void aStrayTextIsNotOverwritten()
    {
        testing::putFile(path(momentName + QStringLiteral(".ini")), "older and longer than ours");
        QCOMPARE(live::writeRecord(path(), moment, grays(7), readOuts),
                 momentName + QStringLiteral("-2"));
        QCOMPARE(testing::fileBytes(path(momentName + QStringLiteral(".ini"))),
                 QByteArray("older and longer than ours"));
    }

    void aFileInTheFoldersPlaceIsNotOverwritten()
    {
        testing::putFile(path(momentName), "a file");
        QCOMPARE(live::writeRecord(path(), moment, grays(7), readOuts),
                 momentName + QStringLiteral("-2"));
        QCOMPARE(testing::fileBytes(path(momentName)), QByteArray("a file"));
    }

    void onlySevenPicturesMakeARecord()
    {
        for (const int count : {0, 6, 8}) {
            QCOMPARE(live::writeRecord(path(), moment, grays(count), readOuts), QString());
            QCOMPARE(everythingIn(path()), QStringList());
        }
    }

    void noHistoryFolderNoRecord()
    {
        const QDir before = QDir::current();
        const QTemporaryDir elsewhere;
        QVERIFY(QDir::setCurrent(elsewhere.path()));
        for (const QString& folder : {QString(), path(QStringLiteral("missing"))})
            QCOMPARE(live::writeRecord(folder, moment, grays(7), readOuts), QString());
        // Nothing is left in the working directory either.
        QCOMPARE(everythingIn(elsewhere.path()), QStringList());
        QCOMPARE(everythingIn(path()), QStringList());
        QVERIFY(QDir::setCurrent(before.path()));
    }

    void pictureThatCannotBeSavedLeavesNoText()
    {
        QList<QImage> pictures = grays(7);
        pictures[4] = QImage();
        QCOMPARE(live::writeRecord(path(), moment, pictures, readOuts), QString());
        QCOMPARE(everythingIn(path()), QStringList({momentName}));
        QCOMPARE(everythingIn(path(momentName)),
                 QStringList({"Alarm.JPG", "F1.JPG", "F2.JPG", "F3.JPG", "L2.JPG", "L3.JPG"}));
    }

    void nothingSavedLeavesNothing()
    {
        const QList<QImage> pictures{QImage(), QImage(), QImage(), QImage(),
                                     QImage(), QImage(), QImage()};
        QCOMPARE(live::writeRecord(path(), moment, pictures, readOuts), QString());
        QCOMPARE(everythingIn(path()), QStringList());
    }

    void listingRule_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("listed");
        QTest::newRow("a record") << momentName << true;
        QTest::newRow("a second one") << momentName + QStringLiteral("-2") << true;
        QTest::newRow("one more letter") << QStringLiteral("20240101120000x") << true;
        QTest::newRow("digits not required") << QStringLiteral("20 holiday pictures") << true;
        QTest::newRow("13 characters") << QStringLiteral("2024010112000") << false;
        QTest::newRow("a year") << QStringLiteral("2023") << false;
        QTest::newRow("backup") << QStringLiteral("backup") << false;
        QTest::newRow("another century") << QStringLiteral("19990101120000") << false;
    }
    void listingRule()
    {
        QFETCH(QString, name);
        QFETCH(bool, listed);
        QVERIFY(QDir(path()).mkdir(name));
        QCOMPARE(live::recordNames(path()), listed ? QStringList({name}) : QStringList());
    }

    void filesAreNotListed()
    {
        testing::putFile(path(momentName), "a file");
        QCOMPARE(live::recordNames(path()), QStringList());
    }

    void aMissingFolderListsNothing()
    {
        QCOMPARE(live::recordNames(path(QStringLiteral("missing"))), QStringList());
        QCOMPARE(live::recordNames(QString()), QStringList());
    }

    void readsTheLastLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("parts");
        QTest::newRow("as written")
            << QByteArray("36.2,34.0,0.97") << QStringList({"36.2", "34.0", "0.97"});
        QTest::newRow("line end") << QByteArray("36.2,34.0,0.97\r\n")
                                  << QStringList({"36.2", "34.0", "0.97"});
        QTest::newRow("last of two") << QByteArray("1,2,3\n4,5,6") << QStringList({"4", "5", "6"});
        QTest::newRow("two parts") << QByteArray("36.2,34.0") << QStringList({"36.2", "34.0", ""});
        QTest::newRow("one part") << QByteArray("36.2") << QStringList({"36.2", "", ""});
        QTest::newRow("empty parts are kept")
            << QByteArray(",34.0,") << QStringList({"", "34.0", ""});
        QTest::newRow("four parts") << QByteArray("1,2,3,4") << QStringList({"1", "2", "3"});
        QTest::newRow("empty") << QByteArray() << QStringList({"", "", ""});
        QTest::newRow("not text") << QByteArray("\xFF\xFE,\x80")
                                  << QStringList({"\uFFFD\uFFFD", "\uFFFD", ""});
    }
    void readsTheLastLine()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, parts);
        testing::putFile(path(QStringLiteral("r.ini")), text);
        const live::RecordReadings readings = live::recordReadings(path(), QStringLiteral("r"));
        QCOMPARE(QStringList({readings.maximum, readings.threshold, readings.emissivity}), parts);
    }

    void aMissingTextGivesNothing()
    {
        const live::RecordReadings readings = live::recordReadings(path(), momentName);
        QCOMPARE(readings.maximum + readings.threshold + readings.emissivity, QString());
    }

    void picturesAreSortedByName()
    {
        for (const char* name : {"b.JPG", "a.png", "C.BMP", "notes.txt", "d.jpeg", "e.jpg"})
            testing::putFile(path(QLatin1String(name)), "x");
        QVERIFY(QDir(path()).mkdir(QStringLiteral("folder.png")));
        QStringList names;
        const QFileInfo folder(path());
        for (const QString& file : live::recordPicturePaths(folder.path(), folder.fileName()))
            names.append(QFileInfo(file).fileName());
        QCOMPARE(names, QStringList({"C.BMP", "a.png", "b.JPG", "e.jpg"}));
        QCOMPARE(live::recordPicturePaths(path(), QStringLiteral("missing")), QStringList());
    }

    void aPictureNamedWithAColonIsInItsFolder()
    {
        // On Windows there is no such name.
        const QString name =
            testing::onWindows() ? QStringLiteral("a.png") : QStringLiteral(":a.png");
        QVERIFY(QDir(path()).mkdir(momentName));
        const QString picture = path() + QLatin1Char('/') + momentName + QLatin1Char('/') + name;
        testing::putFile(picture, "x");
        QCOMPARE(live::recordPicturePaths(path(), momentName), QStringList(picture));
    }

    void foldersOfAnyName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("comma") << QStringLiteral("a,b");
        QTest::newRow("Chinese") << QStringLiteral("报警");
        QTest::newRow("Russian") << QStringLiteral("тревоги");
        QTest::newRow("Korean") << QStringLiteral("경보 기록");
        QTest::newRow("dots and blanks") << QStringLiteral("my alarms v1.2");
    }
    void foldersOfAnyName()
    {
        QFETCH(QString, name);
        QVERIFY(QDir(path()).mkdir(name));
        QCOMPARE(live::writeRecord(path(name), moment, grays(7), readOuts), momentName);
        QCOMPARE(live::recordNames(path(name)), QStringList({momentName}));
        QCOMPARE(live::recordPicturePaths(path(name), momentName).size(), 7);
        QCOMPARE(live::recordReadings(path(name), momentName).emissivity, QStringLiteral("0.97"));
    }

private:
    QString path() const { return m_folder->path(); }
    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char** argv)
{
    return testing::run<AlarmRecordsTest>(argc, argv);
}

#include "alarm_records_test.moc"
