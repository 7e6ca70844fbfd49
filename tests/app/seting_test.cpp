// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "config/language.h"
#include "tests/app/seting_dialog.h"
#include "tests/support/test_run.h"
#include "tests/support/translation.h"

#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>

using testing::activate;
using testing::part;

/// The settings dialog as it opens: its form, its languages and what it shows of the record.
class SetingTest : public QObject
{
    Q_OBJECT

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
        QVERIFY(part<QLineEdit>(&dialog, "lineEdit")->isReadOnly());
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
            const QString sheet = part<QPushButton>(&dialog, name)->styleSheet();
            for (const char* part : {"rgb(255, 255, 255)", "rgb(91, 91, 91)", "rgb(140, 140, 140)",
                                     "rgb(108, 108, 108)"})
                QVERIFY2(sheet.contains(QLatin1String(part)), part);
            QVERIFY(sheet.contains(QStringLiteral("border-radius: ") + QLatin1String(radius)));
        }
        for (const char* name : {"label", "label_2"}) {
            const auto* label = part<QLabel>(&dialog, name);
            QCOMPARE(label->font().family(), QStringLiteral("Microsoft YaHei"));
        }
    }

    void textsInTheirPlaces()
    {
        const seting dialog;
        const auto text = [&dialog](const char* name) {
            return part<QWidget>(&dialog, name)->property("text").toString();
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
        const testing::Translation translation(QStringLiteral(":/%1.qm").arg(catalogue));
        QVERIFY(translation.isLoaded());
        const seting dialog;
        QTEST(part<QLabel>(&dialog, "label")->text(), "caption");
        const auto* combo = part<QComboBox>(&dialog, "comboBox");
        QStringList entries;
        for (int i = 0; i < 4; ++i)
            entries.append(combo->itemText(i));
        QCOMPARE(entries, QStringList({QStringLiteral("简体中文"), QStringLiteral("English"),
                                       QStringLiteral("Russian"), QStringLiteral("Korean")}));
    }

    void entriesInTheirOrder()
    {
        const seting dialog;
        const auto* combo = part<QComboBox>(&dialog, "comboBox");
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
        QTEST(part<QComboBox>(&dialog, "comboBox")->currentIndex(), "index");
        QCOMPARE(dialog.language, QStringLiteral("CH"));
    }

    void showsTheStoredFolder()
    {
        config::replaceAlarmFolder(QStringLiteral("D:\\alarms"));
        const seting dialog;
        QCOMPARE(dialog.folder, QStringLiteral("D:\\alarms"));
        QCOMPARE(part<QLineEdit>(&dialog, "lineEdit")->text(), QStringLiteral("D:\\alarms"));
    }

    void onlyActivationChoosesTheLanguage()
    {
        seting dialog;
        dialog.show();
        part<QComboBox>(&dialog, "comboBox")->setCurrentIndex(3);
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
};

int main(int argc, char** argv)
{
    return testing::run<SetingTest>(argc, argv);
}

#include "seting_test.moc"
