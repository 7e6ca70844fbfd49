// SPDX-License-Identifier: MIT
#include "config/choices.h"
#include "config/configuration_record.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#ifndef Q_OS_WIN
#include "tests/support/full_disk.h"

#include <sys/stat.h>
#endif

namespace {

QStringList namesInTheFolder()
{
    const QDir folder(config::folderPath());
    return folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

class ChoicesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { testing::profile().reset(); }

    void liesBesideTheRecord()
    {
        QCOMPARE(config::choicesPath(), config::folderPath() + QStringLiteral("/choices.json"));
    }

    void askingMakesNoFile()
    {
        QVERIFY(!config::keepMeasurements());
        QVERIFY(!QFile::exists(config::folderPath()));
    }

    void whatWasChosenIsRemembered()
    {
        QVERIFY(config::setKeepMeasurements(true));
        QVERIFY(config::keepMeasurements());
        QCOMPARE(testing::fileBytes(config::choicesPath()),
                 QByteArray("{\n    \"keepMeasurements\": true\n}\n"));
        QVERIFY(config::setKeepMeasurements(false));
        QVERIFY(!config::keepMeasurements());
    }

    void theRecordKeepsItsBytes()
    {
        config::create(QStringLiteral("EN"));
        const QByteArray record = testing::fileBytes(config::filePath());
        QVERIFY(config::setKeepMeasurements(true));
        QCOMPARE(testing::fileBytes(config::filePath()), record);
        QCOMPARE(namesInTheFolder(), QStringList({"choices.json", "cofnig.ini"}));
    }

    void whatOthersHavePutThereStays()
    {
        testing::putFile(config::choicesPath(), R"({"later": [1, 2], "keepMeasurements": false})");
        QVERIFY(config::setKeepMeasurements(true));
        const QByteArray bytes = testing::fileBytes(config::choicesPath());
        const QJsonObject choices = QJsonDocument::fromJson(bytes).object();
        QCOMPARE(choices.value("later"), QJsonValue(QJsonArray{1, 2}));
        QCOMPARE(choices.value("keepMeasurements"), QJsonValue(true));
    }

    void damagedReadsAsTheUsual_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("keepMeasurements=true");
        QTest::newRow("cut off") << QByteArray(R"({"keepMeasurements": true)");
        QTest::newRow("a list") << QByteArray("[true]");
        QTest::newRow("a text") << QByteArray(R"({"keepMeasurements": "true"})");
        QTest::newRow("a number") << QByteArray(R"({"keepMeasurements": 1})");
        QTest::newRow("huge") << QByteArray(R"({"keepMeasurements": true, "x": ")") +
                                     QByteArray(200'000, 'x') + "\"}";
    }
    void damagedReadsAsTheUsual()
    {
        QFETCH(QByteArray, file);
        testing::putFile(config::choicesPath(), file);
        QVERIFY(!config::keepMeasurements());
        QCOMPARE(testing::fileBytes(config::choicesPath()), file);
        QVERIFY(config::setKeepMeasurements(true));
        QVERIFY(config::keepMeasurements());
    }

#ifndef Q_OS_WIN
    void aFullDiskLeavesTheOldFileWhole()
    {
        QVERIFY(config::setKeepMeasurements(true));
        const QByteArray before = testing::fileBytes(config::choicesPath());
        {
            const testing::FullDisk full(8);
            QVERIFY(!config::setKeepMeasurements(false));
        }
        QCOMPARE(testing::fileBytes(config::choicesPath()), before);
        QCOMPARE(namesInTheFolder(), QStringList{"choices.json"});
    }

    /// A folder, or a pipe, at which reading would wait for ever.
    void noFileReadsAsTheUsual()
    {
        QVERIFY(QDir().mkpath(config::choicesPath()));
        QVERIFY(!config::keepMeasurements());
        QVERIFY(!config::setKeepMeasurements(true));
        QVERIFY(QDir().rmdir(config::choicesPath()));
        QCOMPARE(mkfifo(config::choicesPath().toUtf8().constData(), 0600), 0);
        QVERIFY(!config::keepMeasurements());
    }
#endif

    void withoutAFolderNothingIsRemembered()
    {
        QVERIFY(QDir().rmdir(config::documentsPath()));
        testing::putFile(config::documentsPath(), "in the way");
        QVERIFY(!config::setKeepMeasurements(true));
        QVERIFY(!config::keepMeasurements());
        QVERIFY(QFile::remove(config::documentsPath()));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ChoicesTest>(argc, argv);
}

#include "choices_test.moc"
