// SPDX-License-Identifier: MIT
#include "app/startup.h"
#include "config/configuration_record.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>

class StartupTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { testing::profile().reset(); }

    void theFirstStartIsEnglish()
    {
        testing::LogRecorder log;
        QCOMPARE(startup::languageCode(), QStringLiteral("EN"));
        QVERIFY(log.contains(QStringLiteral("文件夹创建成功")));
        const config::Record record = config::read();
        QCOMPARE(record.reserved, QStringLiteral("000"));
        QCOMPARE(record.language, QStringLiteral("EN"));
        QCOMPARE(record.alarmFolder,
                 testing::profile().home() + QStringLiteral("/Documents/Tepla Imaging Suite"));
    }

    void theStoredLanguageIsTakenAsItStands_data()
    {
        QTest::addColumn<QString>("code");
        for (const char* code : {"CH", "EN", "RU", "KO", "XX", "en", ""})
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    void theStoredLanguageIsTakenAsItStands()
    {
        QFETCH(QString, code);
        config::create(code);
        QCOMPARE(startup::languageCode(), code);
        QCOMPARE(config::read().language, code);
    }

    void withoutTheRightToWriteThisRunIsEnglish()
    {
        QVERIFY(QDir().rmdir(config::documentsPath()));
        QFile blocker(config::documentsPath());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        QCOMPARE(startup::languageCode(), QStringLiteral("EN"));
        QVERIFY(!config::exists());
        QVERIFY(blocker.remove());
    }

    void catalogues_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("connectText");
        QTest::addColumn<QString>("cancelText");
        const QString chinese = QStringLiteral("连接");
        QTest::newRow("CH") << "CH" << chinese << QStringLiteral("取消");
        QTest::newRow("EN") << "EN"
                            << "Connect"
                            << "Cancel";
        QTest::newRow("RU") << "RU" << QStringLiteral("Подключить") << QStringLiteral("Отмена");
        QTest::newRow("KO") << "KO" << QStringLiteral("연결") << QStringLiteral("취소");
        QTest::newRow("empty") << "" << chinese << QStringLiteral("取消");
        QTest::newRow("XX") << "XX" << chinese << QStringLiteral("取消");
        for (const char* code : {"en", "ru", "ko", "Ru"})
            QTest::newRow(code) << code << chinese << QStringLiteral("取消");
    }
    void catalogues()
    {
        QFETCH(QString, code);
        const startup::Translators translators(code);
        QTEST(QCoreApplication::translate("MainWindow", "连接"), "connectText");
        QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "cancelText");
    }

    void attributesForSharpScreens()
    {
        startup::setAttributes();
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
    }
};

int main(int argc, char** argv)
{
    return testing::run<StartupTest>(argc, argv);
}

#include "startup_test.moc"
