// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>

#ifndef Q_OS_WIN
#include "tests/support/full_disk.h"
#endif

namespace {

/// The bytes of a record, put together by hand: big-endian byte count, then UTF-16 big-endian.
QByteArray serialised(const QString& text)
{
    QByteArray bytes;
    const int count = text.size() * 2;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(char((count >> shift) & 0xFF));
    for (const QChar unit : text) {
        bytes.append(char(unit.unicode() >> 8));
        bytes.append(char(unit.unicode() & 0xFF));
    }
    return bytes;
}

/// The bytes as text mode stores them on Windows.
QByteArray asWindowsStoresThem(QByteArray bytes)
{
    return bytes.replace("\n", "\r\n");
}

/// The bytes as text mode stores them here.
QByteArray asThisSystemStoresThem(const QByteArray& bytes)
{
    return testing::onWindows() ? asWindowsStoresThem(bytes) : bytes;
}

void putFile(const QByteArray& bytes)
{
    testing::putFile(config::filePath(), bytes);
}

QByteArray fileBytes()
{
    return testing::fileBytes(config::filePath());
}

} // namespace

class ConfigurationRecordTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { testing::profile().reset(); }

    void liesUnderTheDocumentsLocation()
    {
        const QString documents = testing::profile().home() + QStringLiteral("/Documents");
        QCOMPARE(config::documentsPath(), documents);
        QCOMPARE(config::folderPath(), documents + QStringLiteral("/Tepla Imaging Suite"));
        QCOMPARE(config::filePath(), documents + QStringLiteral("/Tepla Imaging Suite/cofnig.ini"));
    }

    void creationWritesOneSerialisedText()
    {
        testing::LogRecorder log;
        config::create(QStringLiteral("EN"));
        QCOMPARE(fileBytes(), serialised(QStringLiteral("000,EN,") + config::documentsPath() +
                                         QStringLiteral("/Tepla Imaging Suite")));
        QVERIFY(log.contains(QStringLiteral("文件夹创建成功")));
    }

    void creationWithoutTheRightToWriteDoesNothing()
    {
        QVERIFY(QDir().rmdir(config::documentsPath()));
        QFile blocker(config::documentsPath());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        testing::LogRecorder log;
        config::create(QStringLiteral("EN"));
        QVERIFY(!config::exists());
        QCOMPARE(config::read().language, QString());
        QVERIFY(blocker.remove());
    }

    void creationMakesTheDocumentsFolderToo()
    {
        QVERIFY(QDir().rmdir(config::documentsPath()));
        config::create(QStringLiteral("EN"));
        QCOMPARE(config::read().language, QStringLiteral("EN"));
        QCOMPARE(config::read().alarmFolder, config::folderPath());
    }

#ifndef Q_OS_WIN
    /// Nothing is left behind either: an empty file would count as there for good.
    void creationIsWholeOrNotAtAll_data()
    {
        QTest::addColumn<int>("room");
        QTest::newRow("nothing fits") << 0;
        QTest::newRow("the count fits") << 4;
        QTest::newRow("half of the text fits") << 40;
    }
    void creationIsWholeOrNotAtAll()
    {
        QFETCH(int, room);
        {
            const testing::FullDisk full(room);
            config::create(QStringLiteral("EN"));
        }
        QVERIFY(!config::exists());
        const QDir folder(config::folderPath());
        QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
        config::create(QStringLiteral("EN"));
        QCOMPARE(config::read().language, QStringLiteral("EN"));
    }
#endif

    void exactBytes()
    {
        putFile(QByteArray::fromHex("00000012"
                                    "003000300030002C0045004E002C002F0061"));
        const config::Record record = config::read();
        QCOMPARE(record.reserved, QStringLiteral("000"));
        QCOMPARE(record.language, QStringLiteral("EN"));
        QCOMPARE(record.alarmFolder, QStringLiteral("/a"));
    }

    void replacesTheLanguageAlone()
    {
        putFile(serialised(QStringLiteral("000,EN,X")));
        QCOMPARE(config::replaceLanguage(QStringLiteral("KO")), QStringLiteral("000,KO,X"));
        QCOMPARE(fileBytes(), serialised(QStringLiteral("000,KO,X")));
    }

    void carriesTheReservedFieldAlong()
    {
        putFile(serialised(QStringLiteral("abc,EN,X")));
        config::replaceAlarmFolder(QStringLiteral("Y"));
        QCOMPARE(fileBytes(), serialised(QStringLiteral("abc,EN,Y")));
    }

    void aShorterRecordLeavesTheOldTail()
    {
        const QByteArray longer = serialised(QStringLiteral("000,EN,D:/a/very/long/folder"));
        putFile(longer);
        config::replaceAlarmFolder(QStringLiteral("D:/b"));
        const QByteArray shorter = serialised(QStringLiteral("000,EN,D:/b"));
        QCOMPARE(fileBytes(), shorter + longer.mid(shorter.size()));
        QCOMPARE(config::read().alarmFolder, QStringLiteral("D:/b"));
    }

    void aCommaCutsTheFolder()
    {
        putFile(serialised(QStringLiteral("000,EN,C:/a,b")));
        QCOMPARE(config::read().alarmFolder, QStringLiteral("C:/a"));
        config::replaceLanguage(QStringLiteral("EN"));
        QCOMPARE(fileBytes().left(26), serialised(QStringLiteral("000,EN,C:/a")));
    }

    void aFolderWithACommaIsWrittenWhole()
    {
        putFile(serialised(QStringLiteral("000,EN,X")));
        config::replaceAlarmFolder(QStringLiteral("C:/a,b"));
        QCOMPARE(fileBytes(), serialised(QStringLiteral("000,EN,C:/a,b")));
    }

    void replacingWithoutAFileWritesNothing()
    {
        QCOMPARE(config::replaceLanguage(QStringLiteral("KO")), QString());
        config::replaceAlarmFolder(QStringLiteral("X"));
        QVERIFY(!config::exists());
    }

    /// Opening for reading and writing would make one.
    void whereOnlyTheFileIsMissingNoneIsMade()
    {
        QVERIFY(QDir().mkpath(config::folderPath()));
        QCOMPARE(config::read().language, QString());
        QVERIFY(!config::exists());
        QCOMPARE(config::replaceLanguage(QStringLiteral("KO")), QString());
        QVERIFY(!config::exists());
        config::replaceAlarmFolder(QStringLiteral("X"));
        QVERIFY(!config::exists());
    }

    void exchangesRecordsWithOtherSystems_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("line feed inside a code unit") << QStringLiteral("C:/\u0A05\u010A");
        // 133 code units are 0x10A bytes and 261 are 0x20A: the count itself holds a line feed.
        QTest::newRow("133 units") << QString(133 - 7, QLatin1Char('x'));
        QTest::newRow("261 units") << QString(261 - 7, QLatin1Char('x'));
        QTest::newRow("Cyrillic") << QStringLiteral("C:/Пользователи/тревоги");
        QTest::newRow("Korean") << QStringLiteral("C:/경보");
        QTest::newRow("back-slashes") << QStringLiteral("D:\\тревоги\\\u0A05");
    }
    void exchangesRecordsWithOtherSystems()
    {
        QFETCH(QString, folder);
        const QByteArray bytes = serialised(QStringLiteral("000,RU,") + folder);
        for (const QByteArray& file : {bytes, asWindowsStoresThem(bytes)}) {
            putFile(file);
            QCOMPARE(config::read().language, QStringLiteral("RU"));
            QCOMPARE(config::read().alarmFolder, folder);
        }
        putFile(serialised(QStringLiteral("000,RU,")));
        config::replaceAlarmFolder(folder);
        QCOMPARE(fileBytes(), asThisSystemStoresThem(bytes));
    }

    void aCarriageReturnByteDoesNotSurvive()
    {
        // U+4E0D: its low byte is dropped on reading, the text ends early and counts as damaged.
        putFile(serialised(QStringLiteral("000,CH,C:/\u4E0D")));
        QCOMPARE(config::read().language, QString());
        // With an older tail behind it the same read succeeds, shifted by one byte.
        putFile(serialised(QStringLiteral("000,CH,C:/\u4E0D")) + QByteArray("\x41\x00", 2));
        QCOMPARE(config::read().alarmFolder, QStringLiteral("C:/\u4E41"));
    }

    void damagedFilesGiveEmptyFields_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("half a count") << QByteArray::fromHex("0000");
        QTest::newRow("count only") << QByteArray::fromHex("00000012");
        QTest::newRow("cut text") << serialised(QStringLiteral("000,EN,X")).left(9);
        QTest::newRow("odd count") << QByteArray::fromHex("00000003003000");
        QTest::newRow("null text") << QByteArray::fromHex("FFFFFFFF0030");
        QTest::newRow("2 GB in 10 bytes") << QByteArray::fromHex("7FFFFFFE003000300030");
        QTest::newRow("4 GB in 10 bytes") << QByteArray::fromHex("FFFFFFFE003000300030");
    }
    void damagedFilesGiveEmptyFields()
    {
        QFETCH(QByteArray, bytes);
        putFile(bytes);
        const config::Record record = config::read();
        QCOMPARE(record.reserved, QString());
        QCOMPARE(record.language, QString());
        QCOMPARE(record.alarmFolder, QString());
    }

    void shortRecordsGiveEmptyFields()
    {
        putFile(serialised(QStringLiteral("000")));
        QCOMPARE(config::read().reserved, QStringLiteral("000"));
        QCOMPARE(config::read().language, QString());
        putFile(serialised(QStringLiteral("000,KO")));
        QCOMPARE(config::read().language, QStringLiteral("KO"));
        QCOMPARE(config::read().alarmFolder, QString());
    }

    void aFolderInPlaceOfTheFileGivesEmptyFields()
    {
        QVERIFY(QDir().mkpath(config::filePath()));
        QCOMPARE(config::read().language, QString());
        QCOMPARE(config::read().alarmFolder, QString());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ConfigurationRecordTest>(argc, argv);
}

#include "configuration_record_test.moc"
