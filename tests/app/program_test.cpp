// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "tests/support/test_run.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

constexpr int patience = 60'000; // ms; only a program that hangs takes it

/// The program itself, as it is started from a menu or a shell, and looked at by the onlooker
/// plugin, which ends it once it shows a window.
class Program
{
public:
    explicit Program(const QString& desktop = {}, const QStringList& arguments = {})
    {
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        const QString others = surroundings.value("QT_PLUGIN_PATH");
        surroundings.insert("QT_PLUGIN_PATH",
                            others.isEmpty()
                                ? QStringLiteral(PLUGINS)
                                : QStringLiteral(PLUGINS) + QDir::listSeparator() + others);
        surroundings.insert("QT_QPA_GENERIC_PLUGINS", "onlooker:" + desktop);
        // For the leak checker: Qt's offscreen platform never frees its screen.
        surroundings.insert("LSAN_OPTIONS", "print_suppressions=0:suppressions=" QT_LEAKS);
        m_process.setProcessEnvironment(surroundings);
        m_process.start(QStringLiteral(THERMADESK_PROGRAM), arguments);
        const bool ended = m_process.waitForFinished(patience);
        endedWell =
            ended && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
        seen = QJsonDocument::fromJson(m_process.readAllStandardOutput()).object();
    }

    QJsonArray windows() const { return seen["windows"].toArray(); }
    QJsonObject window() const { return windows().at(0).toObject(); }

    bool endedWell = false;
    QJsonObject seen;

private:
    QProcess m_process;
};

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { testing::profile().reset(); }

    void theFirstStartIsEnglish_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("plain") << QStringList();
        // There are no options: what looks like one changes nothing.
        QTest::newRow("unknown option") << QStringList("--tour");
    }
    void theFirstStartIsEnglish()
    {
        QFETCH(QStringList, arguments);
        const Program program({}, arguments);
        QVERIFY(program.endedWell);
        QCOMPARE(config::read().language, QString("EN"));
        QCOMPARE(config::read().alarmFolder, config::folderPath());
        QCOMPARE(program.window()["status"].toString(), QString("Waiting for a connection..."));
    }

    void showsOneWindowInItsLanguage_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("menus");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("cancel");
        QTest::newRow("CH") << "CH"
                            << "文件 连接 断开 选项 关闭|帮助 用户手册"
                            << "正在等待连接..."
                            << "取消";
        QTest::newRow("EN") << "EN"
                            << "File Connect Disconnect Option Close|Help User's manual"
                            << "Waiting for a connection..."
                            << "Cancel";
        QTest::newRow("RU")
            << "RU"
            << "Файл Подключить Отключить Параметры Закрыть|Справка Руководство пользователя"
            << "Ожидание подключения..."
            << "Отмена";
        QTest::newRow("KO") << "KO"
                            << "파일 연결 연결 끊기 옵션 닫기|도움말 사용 설명서"
                            << "연결 대기 중..."
                            << "취소";
    }
    void showsOneWindowInItsLanguage()
    {
        QFETCH(QString, code);
        config::create(code);
        config::replaceAlarmFolder("/kept");
        const Program program;
        QVERIFY(program.endedWell);
        QCOMPARE(program.windows().size(), 1);
        const QJsonObject window = program.window();
        QCOMPARE(window["class"].toString(), QString("MainWindow"));
        QCOMPARE(window["title"].toString(), QString("Therma Desk"));
        QVERIFY(!window["fullScreen"].toBool(true));
        QVERIFY(!window["maximized"].toBool(true));
        QStringList menus;
        for (const QJsonValue menu : window["menuBar"].toObject()["menus"].toArray())
            menus.append(menu.toVariant().toStringList().join(' '));
        QTEST(menus.join('|'), "menus");
        QTEST(window["status"].toString(), "status");
        QTEST(program.seen["qtText"].toString(), "cancel");
        QVERIFY2(window["menuBar"].toObject()["icons"].toBool(), "resources");
        QVERIFY(program.seen["scales"].toBool());
        QVERIFY(program.seen["sharpIcons"].toBool());
        QCOMPARE(config::read().language, code);
        QCOMPARE(config::read().alarmFolder, QString("/kept"));
    }

    /// Its forms are light, so their texts must be dark on every desktop.
    void isLightOnADarkDesktop()
    {
        const Program onDark("dark");
        QVERIFY(onDark.endedWell);
        const QColor background(onDark.window()["background"].toString());
        const QColor text(onDark.window()["text"].toString());
        QVERIFY(background.isValid() && text.isValid());
        QVERIFY2(background.lightness() > 200, qPrintable(background.name()));
        QVERIFY2(text.lightness() < 50, qPrintable(text.name()));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ProgramTest>(argc, argv);
}

#include "program_test.moc"
