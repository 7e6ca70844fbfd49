// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "tests/analysis/windows/browser_test.h"
#include "tests/support/accessible.h"

#include <QHeaderView>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>

/// Stands in for the main window.
class Owner : public QObject
{
    Q_OBJECT

public:
    QStringList entered;

public slots:
    void Photo_itemEntered(QListWidgetItem* item) { entered.append(item->text()); }
};

/// The browser as a window: its form, its drives, the question, what is heard and seen of it.
class PhotoWindowTest : public testing::BrowserTest
{
    Q_OBJECT

private slots:
    void slotsStandInTheirOrder()
    {
        const QMetaObject& meta = photo_window::staticMetaObject;
        QStringList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        QCOMPARE(signatures,
                 QStringList({QStringLiteral("on_pushButton_3_clicked()"),
                              QStringLiteral("on_pushButton_4_clicked()"),
                              QStringLiteral("table_item_doubleclicked(QTableWidgetItem*)"),
                              QStringLiteral("list_item_doubleclicked(QListWidgetItem*)"),
                              QStringLiteral("on_listWidget_currentRowChanged(int)"),
                              QStringLiteral("on_pushButton_clicked()")}));
    }

    void theForm()
    {
        openWindow();
        QCOMPARE(window->windowTitle(), QStringLiteral("Therma Desk"));
        QCOMPARE(tabs().count(), 2);
        QCOMPARE(tabs().tabText(0), QStringLiteral("移动磁盘"));
        QCOMPARE(tabs().tabText(1), QStringLiteral("图片信息"));
        QCOMPARE(tabs().currentIndex(), 0);
        for (const char* name : {"pushButton", "pushButton_3", "pushButton_4"}) {
            const auto& button = child<QPushButton>(name);
            QVERIFY(!button.icon().pixmap(24).isNull());
            QVERIFY(!button.toolTip().isEmpty());
            QCOMPARE(button.accessibleName(), button.toolTip());
            QVERIFY(button.focusPolicy() & Qt::TabFocus);
        }
        QVERIFY(window->minimumSizeHint().width() <= 1090);
        QVERIFY(window->minimumSizeHint().height() <= 690);
    }

    void iconsAreThoseOfTheResources()
    {
        addDrive(QStringLiteral("disk"));
        openWindow();
        const auto resource = [](const char* name) {
            return QPixmap(QStringLiteral(":/photo/%1.png").arg(QLatin1String(name)));
        };
        const QVector<std::pair<const char*, const char*>> icons{
            {"pushButton", "reroad"}, {"pushButton_3", "list1"}, {"pushButton_4", "list2"}};
        for (const auto& [button, name] : icons)
            QCOMPARE(child<QPushButton>(button).icon().pixmap(24).toImage(),
                     QIcon(resource(name)).pixmap(24).toImage());
        QCOMPARE(driveList().item(0)->icon().pixmap(32).toImage(),
                 resource("save")
                     .scaled(32, 32, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                     .toImage());
    }

    void whatTheSheetsSay()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        QCOMPARE(driveList().styleSheet(), QStringLiteral("border:2px solid rgb(200,200,200);\n"));
        QVERIFY(child<QPushButton>("pushButton").styleSheet().contains("border-radius"));
        for (const char* rule :
             {"QListWidget::item{\nbackground-color: rgb(255, 255, 255);padding:0;border-radius: "
              "8px;\n}",
              "QListWidget::item::hover{\nbackground-color: rgb(91, 91, 91);\ncolor: rgb(255, 255, "
              "255);padding:8;border-radius: 8px;\n}",
              "QListWidget::item::Focus{\ncolor: rgb(255, 255, 255);background-color:  rgb(50, 50, "
              "50);border-radius: 8px;\n}"})
            QVERIFY2(list()->styleSheet().contains(QLatin1String(rule)), rule);
        click("pushButton_3");
        for (const char* rule :
             {"QTableWidget{\nselection-color: rgb(255, 255, 255);\nselection-background-color:  "
              "rgb(91, 91, 91);\n}",
              "QTableWidget::item::hover{\ncolor: rgb(255, 255, 255);background-color: rgb(91, 91, "
              "91);border-radius: 5px;\n}",
              "QHeaderView::section{\nborder:1px groove white;color: rgb(255, 255, "
              "255);background-color: rgb(52, 52, 52);\n}"})
            QVERIFY2(table()->styleSheet().contains(QLatin1String(rule)), rule);
    }

    void tabsShowFocus_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("source") << QStringLiteral("CH");
        QTest::newRow("Russian") << QStringLiteral("RU");
    }
    void tabsShowFocus()
    {
        QFETCH(QString, language);
        config::create(language);
        openWindow();
        QApplication::setActiveWindow(window.get());
        const auto framePixels = [this] {
            const QImage bar = tabs().tabBar()->grab().toImage();
            int count = 0;
            for (int x = 0; x < bar.width(); ++x)
                count += bar.pixelColor(x, 0) == QColor(85, 170, 255) ? 1 : 0;
            return count;
        };
        // The frame takes nothing away from the text.
        const auto whitePixels = [this] {
            const QImage bar = tabs().tabBar()->grab(tabs().tabBar()->tabRect(0)).toImage();
            int count = 0;
            for (int y = 3; y < bar.height() - 3; ++y) {
                for (int x = 0; x < bar.width(); ++x)
                    count += bar.pixelColor(x, y).lightness() > 200 ? 1 : 0;
            }
            return count;
        };
        driveList().setFocus();
        QTRY_VERIFY(driveList().hasFocus());
        QCOMPARE(framePixels(), 0);
        const int textPixels = whitePixels();
        tabs().tabBar()->setFocus();
        QTRY_VERIFY(tabs().tabBar()->hasFocus());
        QVERIFY(framePixels() > 30);
        if (language ==
            QLatin1String("CH")) // the words of this test, which Russian has no room for
            QCOMPARE(whitePixels(), textPixels);
    }

    void theTabsOfEachLanguage()
    {
        openWindow();
        QVERIFY(tabs().styleSheet().contains(QLatin1String("color: rgb(255, 255, 255)")));
        QVERIFY(tabs().styleSheet().contains(QLatin1String("border-top-left-radius: 5px")));
        config::create(QStringLiteral("RU"));
        openWindow();
        QCOMPARE(
            tabs().tabBar()->styleSheet(),
            QStringLiteral("QTabBar::tab {color: rgb(255, 255, 255); border-top-left-radius: "
                           "5px;border-top-right-radius: 5px;padding: 5px;margin-right:10;width: "
                           "150;}QTabBar::tab:!selected {background-color: "
                           "#929697;}QTabBar::tab:selected {background-color:#303030;}"));
    }

    void aPhotographDoesNotWidenASmallWindow()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        window->resize(window->minimumSizeHint());
        const QSize before = window->minimumSizeHint();
        QVERIFY(before.width() < 500);
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(opened());
        QTRY_VERIFY(opened()->isVisible());
        QCOMPARE(window->minimumSizeHint().width(), before.width());
        QCOMPARE(window->width(), before.width());
        // All of it can still be reached.
        auto* area = opened()->findChild<QScrollArea*>();
        QVERIFY(area->horizontalScrollBar()->maximum() > 0);
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        auto* selector = testing::part<QWidget>(opened(), "comboBox");
        QVERIFY(selector->width() >= 76);
        QVERIFY(!selector->visibleRegion().isEmpty() ||
                area->widget()->rect().contains(selector->geometry().center()));
    }

    void whatAScreenReaderTells()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        QCOMPARE(testing::namelessWidgets(window.get()).join(QLatin1Char(',')), QString());
        QVERIFY(driveList().accessibleName() != list()->accessibleName());
        click("pushButton_3");
        QCOMPARE(testing::namelessWidgets(window.get()).join(QLatin1Char(',')), QString());
        QVERIFY(driveList().accessibleName() != table()->accessibleName());
        emit table()->itemDoubleClicked(table()->item(0, 0));
        QVERIFY(opened());
        QTRY_VERIFY(opened()->isVisible());
        QCOMPARE(testing::namelessWidgets(window.get()).join(QLatin1Char(',')), QString());
    }

    void hoveringTellsTheOwner()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(3));
        Owner owner;
        openWindow(&owner);
        emit list()->itemEntered(list()->item(1));
        QCOMPARE(owner.entered, QStringList({QStringLiteral("IMG00001.bmp")}));
        // Also in the list made anew.
        click("pushButton_3");
        click("pushButton_4");
        emit list()->itemEntered(list()->item(2));
        QCOMPARE(owner.entered.size(), 2);
    }

    void choosingADriveByMouse()
    {
        addPhotographs(addDrive(QStringLiteral("one")), {QStringLiteral("a.bmp")});
        addPhotographs(addDrive(QStringLiteral("two")), {QStringLiteral("b.bmp")});
        openWindow();
        const QRect place = driveList().visualItemRect(driveList().item(1));
        QTest::mouseClick(driveList().viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(shownNames(), QStringList({QStringLiteral("b.bmp")}));
    }

    void theSameRowDoesNothing()
    {
        const QString root = addDrive(QStringLiteral("one"));
        addPhotographs(root, {QStringLiteral("a.bmp")});
        openWindow();
        addPhotographs(root, {QStringLiteral("b.bmp")});
        const QPointer<QListWidget> shown = list();
        window->on_listWidget_currentRowChanged(0);
        window->on_listWidget_currentRowChanged(-1);
        QCOMPARE(list(), shown.data());
        QCOMPARE(window->driveIndex, 0);
        QCOMPARE(window->fileNames.size(), 1);
    }

    void reloadLooksAtTheDrivesButKeepsTheThumbnails()
    {
        const QString root = addDrive(QStringLiteral("one"));
        addPhotographs(root, {QStringLiteral("a.bmp")});
        openWindow();
        const QPointer<QListWidget> shown = list();
        addPhotographs(root, {QStringLiteral("b.bmp")});
        addDrive(QStringLiteral("two"));
        testing::LogRecorder log;
        click("pushButton");
        QVERIFY(log.contains(QStringLiteral("图片地址")));
        QCOMPARE(driveList().count(), 2);
        QCOMPARE(list(), shown.data());
        QCOMPARE(shownNames(), QStringList({QStringLiteral("a.bmp")}));
    }

    void theDriveInUseMayBeGoneAtReload()
    {
        addPhotographs(addDrive(QStringLiteral("one")), {QStringLiteral("a.bmp")});
        const QString two = addDrive(QStringLiteral("two"));
        addPhotographs(two, {QStringLiteral("b.bmp")});
        openWindow();
        driveList().setCurrentRow(1);
        drives.removeLast();
        click("pushButton");
        QCOMPARE(driveList().count(), 1);
        QCOMPARE(window->imageFolder, two + QStringLiteral("DCIM_100"));
        driveList().setCurrentRow(0);
        QCOMPARE(shownNames(), QStringList({QStringLiteral("a.bmp")}));
        drives.clear();
        click("pushButton");
        QCOMPARE(driveList().count(), 0);
    }

    void bothKindsOfFolders_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<int>("model");
        QTest::addColumn<QString>("logged");
        QTest::newRow("K4710") << true << QStringLiteral("E:/Images") << 1
                               << QStringLiteral("用户选择了“K4710”");
        QTest::newRow("K4715") << false << QStringLiteral("E:/DCIM_100") << 0
                               << QStringLiteral("用户选择了“K4715”");
    }
    void bothKindsOfFolders()
    {
        QFETCH(bool, yes);
        QFETCH(QString, folder);
        QFETCH(int, model);
        QFETCH(QString, logged);
        openWindow();
        QString text;
        bool isQuestion = false;
        QTimer::singleShot(0, window.get(), [&] {
            text = message()->windowTitle() + QLatin1Char('|') + message()->text();
            isQuestion = message()->icon() == QMessageBox::Question && message()->isModal();
            auto* button = message()->button(yes ? QMessageBox::Yes : QMessageBox::No);
            text += QLatin1Char('|') + button->text();
            button->click();
        });
        testing::LogRecorder log;
        QVERIFY(window->chooseFolder(
            QStringLiteral("E:/"),
            {QStringLiteral("DCIM_100"), QStringLiteral("Images"), QStringLiteral("DCIM_100")}));
        QCOMPARE(text,
                 QStringLiteral("提示|检查到U盘中同时含有K4710和K4715的文件\n请选择打开哪一项？|") +
                     (yes ? QStringLiteral("K4710") : QStringLiteral("K4715")));
        QVERIFY(isQuestion);
        QCOMPARE(window->imageFolder, folder);
        QCOMPARE(window->modelIndex, model);
        QVERIFY(log.contains(logged));
        QVERIFY(!message());
    }

    void noQuestionOnAnOrdinaryDisk()
    {
        openWindow();
        QVERIFY(window->chooseFolder(QStringLiteral("E:/"),
                                     {QStringLiteral("Images"), QStringLiteral("DCIM_100")}));
        QCOMPARE(window->imageFolder, QStringLiteral("E:/DCIM_100"));
        QCOMPARE(window->modelIndex, 0);
    }

    void theWindowMayEndWhileTheQuestionIsUp()
    {
        openWindow();
        const QPointer<photo_window> page = window.release();
        QTimer::singleShot(0, this, [page] { dialogs::end(page); });
        QVERIFY(!page->chooseFolder(QStringLiteral("E:/"),
                                    {QStringLiteral("DCIM_100"), QStringLiteral("DCIM_100")}));
        QTRY_VERIFY(!page);
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotoWindowTest>(argc, argv);
}

#include "photo_window_test.moc"
