// SPDX-License-Identifier: MIT
#include "tests/live/camera.h"
#include "tests/live/owner.h"
#include "tests/support/test_run.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMetaMethod>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

using testing::deliver;
using testing::Owner;
using testing::Page;

class CamerWindowTest : public testing::CameraPageTest
{
    Q_OBJECT

private slots:
    void signalsAndSlotsInTheirOrder();
    void formTextsAndRoles_data();
    void formTextsAndRoles();
    void startsQuiet();
    void listsAndButtons();
    void tabWidths_data();
    void tabWidths();
    void withoutConfiguration();
    void reachesTheOwner();
};

void CamerWindowTest::signalsAndSlotsInTheirOrder()
{
    const QMetaObject& meta = camer_window::staticMetaObject;
    const QByteArrayList expected{"fullscr(bool)",
                                  "dis()",
                                  "display_cap(QImage)",
                                  "updat_temp(float,float,float)",
                                  "timeout_warn()",
                                  "timeout_connect()",
                                  "on_pushButton_clicked()",
                                  "on_checkBox_stateChanged(int)",
                                  "on_pushButton_2_clicked()",
                                  "on_checkBox_3_stateChanged(int)",
                                  "on_listWidget_itemClicked(QListWidgetItem*)",
                                  "on_listWidget_2_itemClicked(QListWidgetItem*)",
                                  "on_listWidget_3_currentRowChanged(int)",
                                  "on_checkBox_2_stateChanged(int)",
                                  "on_listWidget_itemDoubleClicked(QListWidgetItem*)"};
    QCOMPARE(meta.methodCount() - meta.methodOffset(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), expected[i]);
        QCOMPARE(method.methodType(), i < 2 ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
    const auto names = [&page = meta](int i) {
        return page.method(page.methodOffset() + i).parameterNames();
    };
    QCOMPARE(names(0), QByteArrayList({"sta"}));
    QCOMPARE(names(2), QByteArrayList({"cap_image"}));
    QCOMPARE(names(3), QByteArrayList({"maxTem", "warn", "fsl"}));
}

void CamerWindowTest::formTextsAndRoles_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text) {
        QTest::newRow(name) << QString::fromUtf8(text);
    };
    row("pushButton", "拍照");
    row("label", "报警设置");
    row("checkBox", "启用报警");
    row("checkBox_2", "声音报警");
    row("checkBox_3", "产生报警文件");
    row("label_2", "报警信息");
    row("label_3", "最大温度");
    row("label_4", "报警阈值");
    row("label_5", "发射率");
    row("label_6", "36.9");
    row("label_7", "35.2");
    row("label_8", "0.95");
    row("pushButton_2", "停止当前报警");
    row("label_9", "报警历史");
    row("label_10", "报警历史");
    row("label_11", "最大温度");
    row("label_12", "36.9");
    row("label_13", "报警阈值");
    row("label_14", "35.2");
    row("label_15", "发射率");
    row("label_16", "0.95");
    row("label_17", "");
    row("label_18", "");
}

void CamerWindowTest::formTextsAndRoles()
{
    QFETCH(QString, text);
    const Page page;
    QCOMPARE(page.get<QWidget>(QTest::currentDataTag())->property("text").toString(), text);
}

void CamerWindowTest::startsQuiet()
{
    const Page page;
    QCOMPARE(page->windowTitle(), QStringLiteral("Therma Desk"));
    const auto* const tabs = page.get<QTabWidget>("tabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(tabs->widget(0)->objectName(), QStringLiteral("tab"));
    QCOMPARE(tabs->widget(1)->objectName(), QStringLiteral("tab_2"));
    QCOMPARE(tabs->tabText(0), QStringLiteral("图像"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("报警历史"));
    for (const char* box : {"checkBox", "checkBox_2", "checkBox_3"})
        QVERIFY(!page.get<QCheckBox>(box)->isChecked());
    QVERIFY(page.get<QCheckBox>("checkBox")->isEnabled());
    QVERIFY(!page.get<QCheckBox>("checkBox_2")->isEnabled());
    QVERIFY(!page.get<QCheckBox>("checkBox_3")->isEnabled());
    QVERIFY(!page->alarmEnabled && !page->alarmSilenced && !page->alarmFilesEnabled);
    QVERIFY(!page->soundEnabled && !page->blinkPhase && !page->isFull);
    QCOMPARE(page->overCount, 0);
    QCOMPARE(page->historyRow, -1);
    QCOMPARE(page->lastAlarmText, QStringLiteral("36.2,34.0,0.97"));
    QVERIFY(page->recentFrames.isEmpty() && page->historyPixmaps.isEmpty());
    QVERIFY(page->isOpen());
    QCOMPARE(page->languageCode, QStringLiteral("EN"));
    QCOMPARE(page->historyFolder, m_folder);
}

void CamerWindowTest::listsAndButtons()
{
    const Page page;
    for (const char* name : {"listWidget", "listWidget_2", "listWidget_3"}) {
        const auto* const list = page.get<QListWidget>(name);
        QVERIFY(!list->dragEnabled());
        QCOMPARE(list->movement(), QListView::Static);
        QCOMPARE(list->resizeMode(), QListView::Adjust);
    }
    QVERIFY(page.get<QListWidget>("listWidget")->uniformItemSizes());
    QVERIFY(page.get<QListWidget>("listWidget_2")->uniformItemSizes());
    QCOMPARE(page.get<QListWidget>("listWidget")->iconSize(), QSize(20, 20));
    QCOMPARE(page.get<QListWidget>("listWidget_2")->iconSize(), QSize(30, 30));
    const auto* const pictures = page.get<QListWidget>("listWidget_3");
    QCOMPARE(pictures->viewMode(), QListView::IconMode);
    QCOMPARE(pictures->iconSize(), QSize(70, 70));
    QCOMPARE(pictures->spacing(), 30);
    for (const char* name : {"pushButton", "pushButton_2"})
        QVERIFY(!page.get<QPushButton>(name)->icon().isNull());
    QCOMPARE(page.get<QPushButton>("pushButton")->iconSize(), QSize(20, 20));
    for (const char* name : {"label_17", "label_18"}) {
        QCOMPARE(page.get<QLabel>(name)->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
        QCOMPARE(page.get<QLabel>(name)->sizePolicy().verticalPolicy(), QSizePolicy::Ignored);
    }
}

void CamerWindowTest::tabWidths_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("width");
    QTest::newRow("Russian") << QStringLiteral("RU") << 150;
    for (const char* language : {"EN", "CH", "KO", "ru", "XX", ""})
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(QLatin1String(language))))
            << QString::fromLatin1(language) << 85;
}

void CamerWindowTest::tabWidths()
{
    QFETCH(QString, language);
    QFETCH(int, width);
    testing::configure(language, m_folder);
    const Page page;
    page->show();
    auto* const tabs = page.get<QTabWidget>("tabWidget");
    // The text between 5 of padding on either side, and a margin of 10 on the right.
    QCOMPARE(tabs->tabBar()->tabRect(0).width(), width + 5 + 5 + 10);
    if (language == QLatin1String("RU"))
        QCOMPARE(tabs->styleSheet(),
                 QStringLiteral("QTabWidget#tabWidget{border-color:rgb(255,0,0);}"
                                "QTabBar::tab {color: rgb(255, 255, 255); border-top-left-radius: "
                                "5px;border-top-right-radius: 5px;padding: 5px;margin-right:10;"
                                "width: 150;}QTabBar::tab:!selected {background-color: #929697;}"
                                "QTabBar::tab:selected {background-color:#303030;}"));
}

void CamerWindowTest::withoutConfiguration()
{
    testing::profile().reset();
    const Page page;
    QCOMPARE(page->languageCode, QString());
    QCOMPARE(page->historyFolder, QString());
    QCOMPARE(page.rows("listWidget"), QStringList());
    for (int i = 0; i < 7; ++i)
        QVERIFY(deliver());
    const QDir::Filters all = QDir::AllEntries | QDir::NoDotAndDotDot;
    const QStringList before = QDir::current().entryList(all);
    page->saveAlarmRecord();
    QCOMPARE(page.rows("listWidget"), QStringList());
    QCOMPARE(QDir::current().entryList(all), before);
}

void CamerWindowTest::reachesTheOwner()
{
    Page page;
    const Owner owner(page);
    emit page->dis();
    QCOMPARE(owner.disconnects, 1);
    emit page->fullscr(false);
    QCOMPARE(owner.heard, QList<bool>({false}));
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowTest>(argc, argv);
}

#include "camer_window_test.moc"
