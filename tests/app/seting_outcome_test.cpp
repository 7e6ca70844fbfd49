// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "tests/app/seting_dialog.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>

using testing::activate;
using testing::confirm;
using testing::part;
using testing::press;

/// What comes of the settings: by Confirm, by Cancel, by keys and by the button of the folder.
class SetingOutcomeTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        testing::profile().reset();
        config::create(QStringLiteral("EN"));
    }

    void escapeCancels()
    {
        seting dialog;
        dialog.show();
        activate(dialog, 2);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(config::read().language, QStringLiteral("EN"));
    }

    void returnConfirms_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("focused");
        for (const char* focused : {"comboBox", "lineEdit", "pushButton_2"}) {
            QTest::addRow("Return in %s", focused) << int(Qt::Key_Return) << focused;
            QTest::addRow("Enter in %s", focused) << int(Qt::Key_Enter) << focused;
        }
    }
    void returnConfirms()
    {
        QFETCH(int, key);
        QFETCH(QString, focused);
        seting dialog;
        dialog.show();
        activate(dialog, 3);
        auto* widget = part<QWidget>(&dialog, qPrintable(focused));
        widget->setFocus();
        const testing::Answer<QMessageBox> notice([](QMessageBox& box) { box.accept(); });
        QTest::keyClick(widget, Qt::Key(key));
        QVERIFY(notice.wasAsked());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(config::read().language, QStringLiteral("KO"));
    }

    void returnOnCancelCancels()
    {
        seting dialog;
        dialog.show();
        activate(dialog, 3);
        auto* cancel = part<QPushButton>(&dialog, "pushButton_3");
        cancel->setFocus();
        QTest::keyClick(cancel, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(config::read().language, QStringLiteral("EN"));
    }

    void confirmUntouchedWritesChinese()
    {
        config::replaceLanguage(QStringLiteral("RU"));
        seting dialog;
        dialog.show();
        testing::LogRecorder log;
        QCOMPARE(confirm(dialog), QStringLiteral("提示|改动将在应用重启后生效!"));
        QCOMPARE(config::read().language, QStringLiteral("CH"));
        QVERIFY(log.contains(QStringLiteral("写入了 000,CH,") + config::folderPath()));
        QVERIFY(!dialog.isVisible());
    }

    void confirmWritesTheActivatedLanguage()
    {
        config::replaceAlarmFolder(QStringLiteral("X"));
        seting dialog;
        dialog.show();
        activate(dialog, 3);
        QSignalSpy sent(&dialog, &seting::send_addr);
        QCOMPARE(confirm(dialog), QStringLiteral("提示|改动将在应用重启后生效!"));
        QCOMPARE(config::read().language, QStringLiteral("KO"));
        QCOMPARE(config::read().alarmFolder, QStringLiteral("X"));
        QCOMPARE(sent.count(), 1);
        QCOMPARE(sent.at(0).at(0).toString(), QStringLiteral("X"));
    }

    void confirmSendsTheFolderFirst()
    {
        seting dialog;
        dialog.show();
        QString storedThen;
        connect(&dialog, &seting::send_addr, this,
                [&storedThen] { storedThen = config::read().language; });
        confirm(dialog);
        QCOMPARE(storedThen, QStringLiteral("EN"));
        QCOMPARE(config::read().language, QStringLiteral("CH"));
    }

    void confirmWithoutAFileStillGivesNotice()
    {
        seting dialog;
        dialog.show();
        QVERIFY(QFile::remove(config::filePath()));
        QCOMPARE(confirm(dialog), QStringLiteral("提示|改动将在应用重启后生效!"));
        QVERIFY(!config::exists());
    }

    void cancelWritesNoLanguage()
    {
        seting dialog;
        dialog.show();
        activate(dialog, 2);
        press(dialog, "pushButton_3");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(config::read().language, QStringLiteral("EN"));
    }

    void theChosenFolderIsSentWithBackSlashes()
    {
        const QString chosen = testing::profile().home() + QStringLiteral("/Documents/тревоги");
        QVERIFY(QDir().mkpath(chosen));
        seting dialog;
        dialog.show();
        QSignalSpy sent(&dialog, &seting::send_addr);
        QString caption;
        testing::Answer<QFileDialog> answer([&](QFileDialog& box) {
            caption = box.windowTitle();
            QVERIFY(box.testOption(QFileDialog::ShowDirsOnly));
            box.selectFile(chosen);
            testing::choose(box, chosen);
        });
        press(dialog, "pushButton");
        QVERIFY(answer.wasAsked());
        QCOMPARE(caption, QStringLiteral("选择一个目录"));
        const QString expected = QString(chosen).replace(QLatin1Char('/'), QStringLiteral("\\"));
        QCOMPARE(dialog.folder, expected);
        QCOMPARE(part<QLineEdit>(&dialog, "lineEdit")->text(), expected);
        QCOMPARE(sent.count(), 1);
        QCOMPARE(sent.at(0).at(0).toString(), expected);
    }

    void cancelAfterChoosingAFolderKeepsIt()
    {
        const QString chosen = testing::profile().home() + QStringLiteral("/Documents/chosen");
        QVERIFY(QDir().mkpath(chosen));
        seting dialog;
        dialog.show();
        activate(dialog, 2);
        const QSignalSpy sent(&dialog, &seting::send_addr);
        testing::Answer<QFileDialog> answer([&](QFileDialog& box) {
            box.selectFile(chosen);
            testing::choose(box, chosen);
        });
        press(dialog, "pushButton");
        QVERIFY(answer.wasAsked());
        press(dialog, "pushButton_3");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(sent.count(), 1); // nothing takes it back
        QCOMPARE(sent.at(0).at(0).toString(), dialog.folder);
        QCOMPARE(dialog.folder, QString(chosen).replace(QLatin1Char('/'), QLatin1Char('\\')));
        QCOMPARE(config::read().language, QStringLiteral("EN"));
    }

    void cancellingTheChoiceSendsTheFolderAgain()
    {
        config::replaceAlarmFolder(QStringLiteral("D:/kept"));
        seting dialog;
        dialog.show();
        QSignalSpy sent(&dialog, &seting::send_addr);
        QString proposed;
        testing::Answer<QFileDialog> answer([&proposed](QFileDialog& box) {
            proposed = box.selectedFiles().value(0);
            box.reject();
        });
        press(dialog, "pushButton");
        QVERIFY(answer.wasAsked());
        QCOMPARE(proposed, config::filePath());
        QCOMPARE(dialog.folder, QStringLiteral("D:/kept"));
        QCOMPARE(sent.count(), 1);
        QCOMPARE(sent.at(0).at(0).toString(), QStringLiteral("D:/kept"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<SetingOutcomeTest>(argc, argv);
}

#include "seting_outcome_test.moc"
