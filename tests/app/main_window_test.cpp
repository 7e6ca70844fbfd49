// SPDX-License-Identifier: MIT
#include "app/seting.h"
#include "tests/app/devices_test.h"
#include "tests/support/dialogs.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSet>

using testing::part;

/// The main window itself: its form, its menus, its record and its settings dialogs.
class MainWindowTest : public testing::DevicesTest
{
    Q_OBJECT

private slots:
    void slotsInTheirOrderAndNoSignals()
    {
        const QMetaObject& meta = MainWindow::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(methods.join(QLatin1Char(' ')),
                 QStringLiteral("Get_Addr(QString) Action_photo() Action_camer() Action_chose() "
                                "Action_connect() Action_Disconnect() Action_Close() Action_Doc() "
                                "Photo_itemEntered(QListWidgetItem*) fullscr(bool) "
                                "timeout_connect()"));
    }

    void startsWaiting()
    {
        const MainWindow window;
        QCOMPARE(window.windowTitle(), QStringLiteral("Therma Desk"));
        QCOMPARE(statusText(window), waitingText);
        QCOMPARE(pathText(window), QString());
        QCOMPARE(window.deviceState(), -1);
        QCOMPARE(window.mode(), -1);
        QCOMPARE(window.alarmFolder(), config::folderPath());
        QCOMPARE(modeArea(window)->count(), 0);
        QVERIFY(window.isPolling());
    }

    void menus()
    {
        const MainWindow window;
        const QList<QAction*> menus = window.menuBar()->actions();
        QCOMPARE(menus.size(), 2);
        QCOMPARE(menus.at(0)->text(), QStringLiteral("文件"));
        QCOMPARE(menus.at(1)->text(), QStringLiteral("帮助"));
        QStringList texts;
        for (const QAction* action : menus.at(0)->menu()->actions()) {
            texts.append(action->text());
            QVERIFY(!action->icon().isNull());
        }
        QCOMPARE(texts, QStringList({QStringLiteral("连接"), QStringLiteral("断开"),
                                     QStringLiteral("选项"), QStringLiteral("关闭")}));
        QCOMPARE(menus.at(1)->menu()->actions().at(0)->text(), QStringLiteral("用户手册"));
        QVERIFY(fileAction(window, Connect)->isEnabled());
        QVERIFY(!fileAction(window, Disconnect)->isEnabled());
    }

    void menuEntriesShowTheirIcons()
    {
        const MainWindow window;
        const QList<QAction*> menus = window.menuBar()->actions();
        QList<QAction*> entries = menus.at(0)->menu()->actions();
        entries.append(menus.at(1)->menu()->actions());
        const char* const icons[] = {"connect", "Disconnect", "setting", "colse", "doc"};
        QCOMPARE(entries.size(), 5);
        for (int i = 0; i < entries.size(); ++i) {
            const QIcon expected(QStringLiteral(":/photo/%1.png").arg(QLatin1String(icons[i])));
            const QImage shown = entries.at(i)->icon().pixmap(32).toImage();
            QVERIFY2(!shown.isNull(), icons[i]);
            QVERIFY2(shown == expected.pixmap(32).toImage(), icons[i]);
        }
    }

    void theWindowKeepsItsStyle()
    {
        const MainWindow window;
        QCOMPARE(window.styleSheet(), QStringLiteral("QMainWindow#MainWindow{\n"
                                                     "/*background-color: rgb(255, 255, 255);*/\n"
                                                     "}"));
        for (const char* name : {"label", "label_2"}) {
            const auto* label = part<QLabel>(&window, name);
            QCOMPARE(label->font().family(), QStringLiteral("微软雅黑"));
            QCOMPARE(label->styleSheet(), QString());
        }
    }

    void everyMenuEntryHasAShortcutOfItsOwn()
    {
        const MainWindow window;
        QSet<QString> shortcuts;
        int entries = 0;
        for (const QAction* menu : window.menuBar()->actions()) {
            for (const QAction* action : menu->menu()->actions()) {
                QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->text()));
                shortcuts.insert(action->shortcut().toString());
                ++entries;
            }
        }
        QCOMPARE(shortcuts.size(), entries);
    }

    void theKeyboardOpensTheMenus()
    {
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_F10);
        const QMenu* menu = window.menuBar()->actions().at(0)->menu();
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!menu->isVisible());
        testing::LogRecorder log;
        QTest::keyClick(&window, Qt::Key_F1);
        QVERIFY(log.contains(QStringLiteral("点击了用户手册")));
    }

    void theUserManualIsOnlyLogged()
    {
        const MainWindow window;
        testing::LogRecorder log;
        window.menuBar()->actions().at(1)->menu()->actions().at(0)->trigger();
        QVERIFY(log.contains(QStringLiteral("点击了用户手册")));
    }

    void makesTheConfigurationWhenItIsGone()
    {
        QVERIFY(QDir(config::folderPath()).removeRecursively());
        const MainWindow window;
        QCOMPARE(config::read().reserved, QStringLiteral("000"));
        QCOMPARE(config::read().language, QStringLiteral("CH"));
        QCOMPARE(config::read().alarmFolder, config::folderPath());
        QCOMPARE(window.alarmFolder(), config::folderPath());
    }

    void writesTheAlarmFolderBackOnExit()
    {
        config::replaceAlarmFolder(QStringLiteral("/kept"));
        {
            const MainWindow window;
            config::replaceAlarmFolder(QStringLiteral("/changed/meanwhile"));
        }
        QCOMPARE(config::read().alarmFolder, QStringLiteral("/kept"));
        QCOMPARE(config::read().language, QStringLiteral("CH"));
    }

    void closingTheMainWindowEndsTheLooking()
    {
        MainWindow window;
        window.show();
        window.close();
        QVERIFY(!window.isPolling());
    }

    void closeFromTheMenu()
    {
        MainWindow window;
        becomeLive(window);
        fileAction(window, Close)->trigger();
        QVERIFY(!window.isVisible());
        // Whatever still arrives finds no form and does no harm.
        window.timeout_connect();
        window.Action_camer();
        window.Action_photo();
        window.Action_Disconnect();
        window.fullscr(false);
        window.Get_Addr(QStringLiteral("/late"));
        QListWidgetItem item(QStringLiteral("a.bmp"));
        window.Photo_itemEntered(&item);
        QCOMPARE(config::read().alarmFolder, QStringLiteral("/late"));
    }

    void settingsDialogIsModalAndKnowsTheFolder()
    {
        MainWindow window;
        window.Get_Addr(QStringLiteral("D:\\alarms"));
        fileAction(window, Options)->trigger();
        const QPointer<seting> first = window.settingsDialog();
        QVERIFY(first->isVisible());
        QCOMPARE(first->windowTitle(), QStringLiteral("选项"));
        QCOMPARE(first->windowModality(), Qt::ApplicationModal);
        QCOMPARE(first->folder, QStringLiteral("D:\\alarms"));
        emit first->send_addr(QStringLiteral("E:\\other"));
        QCOMPARE(window.alarmFolder(), QStringLiteral("E:\\other"));
        QCOMPARE(config::read().alarmFolder, QStringLiteral("E:\\other"));
        QCOMPARE(first->folder, QStringLiteral("E:\\other"));
        first->close();
        fileAction(window, Options)->trigger();
        QVERIFY(first);
        QVERIFY(window.settingsDialog() != first);
    }

    void theSettingsDialogIsToldTheFolderInUse()
    {
        config::replaceAlarmFolder(QStringLiteral("/in/use"));
        MainWindow window;
        config::replaceAlarmFolder(QStringLiteral("/changed/meanwhile"));
        fileAction(window, Options)->trigger();
        const seting* dialog = window.settingsDialog();
        QCOMPARE(dialog->folder, QStringLiteral("/in/use"));
        QCOMPARE(part<QLineEdit>(dialog, "lineEdit")->text(), QStringLiteral("/in/use"));
    }

    void oldSettingsDialogsGo()
    {
        MainWindow window;
        QPointer<seting> dialogs[4];
        for (QPointer<seting>& dialog : dialogs) {
            fileAction(window, Options)->trigger();
            dialog = window.settingsDialog();
            dialog->close();
        }
        QVERIFY(!dialogs[0] && !dialogs[1]);
        QVERIFY(dialogs[2]);
        QCOMPARE(window.settingsDialog(), dialogs[3].data());
    }

    void anOldSettingsDialogWaitsForItsAnswer()
    {
        MainWindow window;
        fileAction(window, Options)->trigger();
        QPointer<seting> waiting = window.settingsDialog();
        testing::Answer<QMessageBox> answer([&](QMessageBox& box) {
            for (int i = 0; i < 3; ++i) {
                fileAction(window, Options)->trigger();
                window.settingsDialog()->close();
            }
            QVERIFY(waiting);
            box.accept();
        });
        QTest::mouseClick(part<QPushButton>(waiting, "pushButton_2"), Qt::LeftButton);
        QVERIFY(answer.wasAsked());
        QVERIFY(waiting);
        fileAction(window, Options)->trigger();
        QVERIFY(!waiting);
        window.settingsDialog()->close();
    }
};

int main(int argc, char** argv)
{
    return testing::run<MainWindowTest>(argc, argv);
}

#include "main_window_test.moc"
