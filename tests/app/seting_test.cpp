// SPDX-License-Identifier: MIT
#include "app/seting.h"
#include "config/configuration_record.h"
#include "config/language.h"
#include "tests/support/dialogs.h"
#include "tests/support/test_run.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>

namespace {

/// Activates an entry with the keyboard, as a user does.
void activate(seting& dialog, int index)
{
    auto* combo = dialog.findChild<QComboBox*>(QStringLiteral("comboBox"));
    combo->setFocus();
    const int steps = index - combo->currentIndex();
    for (int i = 0; i < qAbs(steps); ++i)
        QTest::keyClick(combo, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(combo->currentIndex(), index);
}

void press(seting& dialog, const char* button)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
}

} // namespace

class SetingTest : public QObject
{
    Q_OBJECT

    /// Presses Confirm and takes in the restart notice; its text.
    static QString confirm(seting& dialog)
    {
        QString text;
        testing::Answer<QMessageBox> notice([&text](QMessageBox& box) {
            text = box.windowTitle() + QLatin1Char('|') + box.text();
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QCOMPARE(box.icon(), QMessageBox::Information);
            const bool isAlone = !box.parentWidget()->isVisible();
            box.button(QMessageBox::Ok)->click();
            QVERIFY(isAlone); // a box that is not answered waits for ever
        });
        press(dialog, "pushButton_2");
        return text;
    }

private slots:
    void init()
    {
        testing::profile().reset();
        config::create(QStringLiteral("EN"));
    }

    void slotsAndSignalsInTheirOrder()
    {
        const QMetaObject& meta = seting::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
        QCOMPARE(methods, QStringList({QStringLiteral("send_addr(QString)"),
                                       QStringLiteral("on_pushButton_3_clicked()"),
                                       QStringLiteral("on_pushButton_2_clicked()"),
                                       QStringLiteral("on_pushButton_clicked()"),
                                       QStringLiteral("on_comboBox_currentIndexChanged(int)"),
                                       QStringLiteral("on_comboBox_activated(int)")}));
    }

    void isAnApplicationModalDialog()
    {
        const seting dialog;
        QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
        QVERIFY(dialog.windowFlags().testFlag(Qt::Dialog));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Therma Desk"));
        QVERIFY(dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit"))->isReadOnly());
        QCOMPARE(dialog.language, QStringLiteral("CH"));
    }

    void eachPartHasItsOwnStyle()
    {
        const seting dialog;
        QCOMPARE(dialog.styleSheet(),
                 QStringLiteral("QWidget#seting{\nbackground-color: rgb(231, 231, 231);\n}"));
        const std::pair<const char*, const char*> radii[] = {
            {"pushButton", "6px"}, {"pushButton_2", "8px"}, {"pushButton_3", "8px"}};
        for (const auto& [name, radius] : radii) {
            const QString sheet = dialog.findChild<QPushButton*>(QLatin1String(name))->styleSheet();
            for (const char* part : {"rgb(255, 255, 255)", "rgb(91, 91, 91)", "rgb(140, 140, 140)",
                                     "rgb(108, 108, 108)"})
                QVERIFY2(sheet.contains(QLatin1String(part)), part);
            QVERIFY(sheet.contains(QStringLiteral("border-radius: ") + QLatin1String(radius)));
        }
        for (const char* name : {"label", "label_2"}) {
            const auto* label = dialog.findChild<QLabel*>(QLatin1String(name));
            QCOMPARE(label->font().family(), QStringLiteral("Microsoft YaHei"));
        }
    }

    void textsInTheirPlaces()
    {
        const seting dialog;
        const auto text = [&dialog](const char* name) {
            return dialog.findChild<QWidget*>(QLatin1String(name))->property("text").toString();
        };
        QCOMPARE(text("label"), QStringLiteral("语言"));
        QCOMPARE(text("label_2"), QStringLiteral("报警历史路径"));
        QCOMPARE(text("pushButton"), QStringLiteral("···"));
        QCOMPARE(text("pushButton_2"), QStringLiteral("确定"));
        QCOMPARE(text("pushButton_3"), QStringLiteral("取消"));
    }

    /// A language is found by those who do not speak the one that is set.
    void entriesAreTheSameInEveryLanguage_data()
    {
        QTest::addColumn<QString>("catalogue");
        QTest::addColumn<QString>("caption");
        QTest::newRow("English") << "Demo_EN"
                                 << "Language";
        QTest::newRow("Russian") << "Demo_RU"
                                 << "Язык";
        QTest::newRow("Korean") << "Demo_KO"
                                << "언어";
    }
    void entriesAreTheSameInEveryLanguage()
    {
        QFETCH(QString, catalogue);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/%1.qm").arg(catalogue)));
        QCoreApplication::installTranslator(&translator);
        const seting dialog;
        QCoreApplication::removeTranslator(&translator);
        QTEST(dialog.findChild<QLabel*>(QStringLiteral("label"))->text(), "caption");
        const auto* combo = dialog.findChild<QComboBox*>(QStringLiteral("comboBox"));
        QStringList entries;
        for (int i = 0; i < 4; ++i)
            entries.append(combo->itemText(i));
        QCOMPARE(entries, QStringList({QStringLiteral("简体中文"), QStringLiteral("English"),
                                       QStringLiteral("Russian"), QStringLiteral("Korean")}));
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
        auto* widget = dialog.findChild<QWidget*>(focused);
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
        auto* cancel = dialog.findChild<QPushButton*>(QStringLiteral("pushButton_3"));
        cancel->setFocus();
        QTest::keyClick(cancel, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(config::read().language, QStringLiteral("EN"));
    }

    void entriesInTheirOrder()
    {
        const seting dialog;
        const auto* combo = dialog.findChild<QComboBox*>(QStringLiteral("comboBox"));
        QCOMPARE(combo->count(), int(config::languages().size()));
        QCOMPARE(combo->itemText(0), QStringLiteral("简体中文"));
        QCOMPARE(combo->itemText(1), QStringLiteral("English"));
        QCOMPARE(combo->itemText(2), QStringLiteral("Russian"));
        QCOMPARE(combo->itemText(3), QStringLiteral("Korean"));
    }

    void showsTheStoredLanguage_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("index");
        QTest::newRow("CH") << "CH" << 0;
        QTest::newRow("EN") << "EN" << 1;
        QTest::newRow("RU") << "RU" << 2;
        QTest::newRow("KO") << "KO" << 3;
        QTest::newRow("lower case") << "ru" << 0;
        QTest::newRow("unknown") << "XX" << 0;
    }
    void showsTheStoredLanguage()
    {
        QFETCH(QString, code);
        config::replaceLanguage(code);
        const seting dialog;
        QTEST(dialog.findChild<QComboBox*>(QStringLiteral("comboBox"))->currentIndex(), "index");
        QCOMPARE(dialog.language, QStringLiteral("CH"));
    }

    void showsTheStoredFolder()
    {
        config::replaceAlarmFolder(QStringLiteral("D:\\alarms"));
        const seting dialog;
        QCOMPARE(dialog.folder, QStringLiteral("D:\\alarms"));
        QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit"))->text(),
                 QStringLiteral("D:\\alarms"));
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

    void onlyActivationChoosesTheLanguage()
    {
        seting dialog;
        dialog.show();
        dialog.findChild<QComboBox*>(QStringLiteral("comboBox"))->setCurrentIndex(3);
        QCOMPARE(dialog.language, QStringLiteral("CH"));
        activate(dialog, 2);
        QCOMPARE(dialog.language, QStringLiteral("RU"));
    }

    void anEntryThatThereIsNotChangesNoLanguage()
    {
        seting dialog;
        dialog.show();
        activate(dialog, 2);
        for (const int index : {-1, int(config::languages().size())}) {
            QVERIFY(QMetaObject::invokeMethod(&dialog, "on_comboBox_activated", Q_ARG(int, index)));
            QCOMPARE(dialog.language, QStringLiteral("RU"));
        }
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
        QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit"))->text(), expected);
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
    return testing::run<SetingTest>(argc, argv);
}

#include "seting_test.moc"
