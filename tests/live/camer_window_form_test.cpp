// SPDX-License-Identifier: MIT
// What the live page looks like, and what it says to those who do not see it.
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QAccessible>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>

using testing::Page;

namespace {

/// The opaque pixels of a resource as they must show inside `shown`, at any place.
bool shows(const QImage& shown, const QImage& icon)
{
    for (int top = 0; top + icon.height() <= shown.height(); ++top) {
        for (int left = 0; left + icon.width() <= shown.width(); ++left) {
            bool same = true;
            for (int i = 0; same && i < icon.width() * icon.height(); ++i) {
                const int x = i % icon.width();
                const int y = i / icon.width();
                same =
                    qAlpha(icon.pixel(x, y)) != 255 ||
                    (icon.pixel(x, y) & 0xFFFFFFU) == (shown.pixel(left + x, top + y) & 0xFFFFFFU);
            }
            if (same)
                return true;
        }
    }
    return false;
}

QImage resource(const char* name)
{
    const QImage image(QStringLiteral(":/photo/") + QLatin1String(name));
    if (image.isNull())
        qFatal("no resource %s", name);
    return image;
}

} // namespace

class CamerWindowFormTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    void allLabelsHaveTheirFont()
    {
        const Page page;
        const QList<QLabel*> labels = page->findChildren<QLabel*>();
        QVERIFY(labels.size() >= 18);
        for (const QLabel* const label : labels) {
            QCOMPARE(label->font().family(), QStringLiteral("Microsoft YaHei"));
            label->ensurePolished();
            QCOMPARE(label->font().family(), QStringLiteral("Microsoft YaHei"));
        }
    }

    void buttonsShowTheirIcons_data()
    {
        QTest::addColumn<QString>("icon");
        QTest::newRow("pushButton") << QStringLiteral("camaer.png");
        QTest::newRow("pushButton_2") << QStringLiteral("stop.png");
    }
    void buttonsShowTheirIcons()
    {
        QFETCH(QString, icon);
        const Page page;
        page->show();
        auto* const button = page.get<QPushButton>(QTest::currentDataTag());
        const QSize size = button->iconSize();
        const QImage expected = QIcon(QStringLiteral(":/photo/") + icon)
                                    .pixmap(size)
                                    .toImage()
                                    .convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!expected.isNull());
        QVERIFY(shows(button->grab().toImage(), expected));
    }

    void recordsShowAFolder()
    {
        QVERIFY(QDir(m_folder).mkdir(QStringLiteral("20240101120000")));
        const Page page;
        page->show();
        const QImage folder = resource("folder.png");
        for (const auto& [name, size] :
             {std::pair("listWidget", 20), std::pair("listWidget_2", 30)}) {
            page.get<QTabWidget>("tabWidget")->setCurrentIndex(size == 20 ? 0 : 1);
            const QImage expected =
                folder.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                    .convertToFormat(QImage::Format_ARGB32);
            QVERIFY(shows(page.get<QListWidget>(name)->grab().toImage(), expected));
        }
    }

    void buttonsAreDark_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("at rest") << int(QStyle::State_Raised) << QColor(91, 91, 91);
        QTest::newRow("under the mouse")
            << int(QStyle::State_Raised | QStyle::State_MouseOver) << QColor(140, 140, 140);
        QTest::newRow("pressed") << int(QStyle::State_Sunken | QStyle::State_MouseOver)
                                 << QColor(108, 108, 108);
    }
    void buttonsAreDark()
    {
        QFETCH(int, state);
        QFETCH(QColor, colour);
        const Page page;
        page->show();
        for (const char* name : {"pushButton", "pushButton_2"}) {
            const auto* const button = page.get<QPushButton>(name);
            QStyleOptionButton option;
            option.initFrom(button);
            option.state |= QStyle::State(state);
            QImage shown(button->size(), QImage::Format_RGB32);
            QPainter painter(&shown);
            button->style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, button);
            QCOMPARE(shown.pixelColor(shown.width() / 2, 3), colour);
        }
    }

    void panelsAreWhiteWithGreyBorders()
    {
        const Page page;
        page->show();
        auto* const tabs = page.get<QTabWidget>("tabWidget");
        for (const char* name :
             {"pictureFrame", "settingsFrame", "informationFrame", "historyFrame", "recordsFrame",
              "readingsFrame", "recordPictureFrame", "recordPicturesFrame"}) {
            auto* const frame = page.get<QWidget>(name);
            tabs->setCurrentIndex(tabs->widget(0)->isAncestorOf(frame) ? 0 : 1);
            const QImage shown = frame->grab().toImage();
            for (const int depth : {0, 1})
                QCOMPARE(shown.pixelColor(depth, shown.height() / 2), QColor(200, 200, 200));
            QCOMPARE(shown.pixelColor(3, shown.height() / 2), QColor(255, 255, 255));
            QVERIFY(shown.pixelColor(0, 0) != QColor(200, 200, 200)); // rounded
        }
    }

    void chosenRecordsAreDark()
    {
        QVERIFY(QDir(m_folder).mkdir(QStringLiteral("20240101120000")));
        const Page page;
        page->show();
        auto* const list = page.get<QListWidget>("listWidget");
        const QPoint inside = list->visualItemRect(list->item(0)).topRight() - QPoint(4, -4);
        QCOMPARE(list->viewport()->grab().toImage().pixelColor(inside), QColor(Qt::white));
        list->setCurrentRow(0);
        QCOMPARE(list->viewport()->grab().toImage().pixelColor(inside), QColor(91, 91, 91));
    }

    void tabsAreGreyAndTheCurrentOneBlack_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("EN") << QStringLiteral("EN");
        QTest::newRow("RU") << QStringLiteral("RU");
    }
    void tabsAreGreyAndTheCurrentOneBlack()
    {
        QFETCH(QString, language);
        testing::configure(language, m_folder);
        const Page page;
        page->show();
        auto* const bar = page.get<QTabWidget>("tabWidget")->tabBar();
        const QImage shown = bar->grab().toImage();
        const auto colour = [&](int tab) {
            return shown.pixelColor(bar->tabRect(tab).left() + 12, bar->tabRect(tab).bottom() - 3);
        };
        QCOMPARE(colour(0), QColor(0x30, 0x30, 0x30));
        QCOMPARE(colour(1), QColor(0x92, 0x96, 0x97));
    }

    void tabsShowTheFocus_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* language : {"CH", "EN", "RU", "KO"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
    void tabsShowTheFocus()
    {
        QFETCH(QString, language);
        testing::configure(language, m_folder);
        const Page page;
        page->show();
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page.window()));
        auto* const bar = page.get<QTabWidget>("tabWidget")->tabBar();
        page.get<QPushButton>("pushButton")->setFocus();
        const QRect before = bar->tabRect(0);
        const auto below = [bar] {
            const QRect tab = bar->tabRect(0);
            return bar->grab().toImage().pixelColor(tab.center().x(), tab.bottom());
        };
        QVERIFY(below() != QColor(85, 170, 255));
        for (int presses = 0; presses < 20 && !bar->hasFocus(); ++presses)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(bar->hasFocus());
        QCOMPARE(below(), QColor(85, 170, 255));
        QCOMPARE(bar->tabRect(0), before); // nothing moves
    }

    void everythingHasAName_data()
    {
        QTest::addColumn<QString>("spoken");
        QTest::newRow("label_17") << QStringLiteral("实时图像");
        QTest::newRow("label_18") << QStringLiteral("报警图像");
        QTest::newRow("listWidget") << QStringLiteral("报警历史");
        QTest::newRow("listWidget_2") << QStringLiteral("报警历史");
        QTest::newRow("listWidget_3") << QStringLiteral("记录的图像");
        QTest::newRow("checkBox") << QStringLiteral("启用报警");
        QTest::newRow("pushButton_2") << QStringLiteral("停止当前报警");
    }
    void everythingHasAName()
    {
        QFETCH(QString, spoken);
        const Page page;
        QAccessibleInterface* const spokenWidget =
            QAccessible::queryAccessibleInterface(page.get<QWidget>(QTest::currentDataTag()));
        QVERIFY(spokenWidget);
        QCOMPARE(spokenWidget->text(QAccessible::Name), spoken);
    }

    void readOutsBelongToTheirCaptions_data()
    {
        QTest::addColumn<QString>("readOut");
        QTest::newRow("label_3") << QStringLiteral("label_6");
        QTest::newRow("label_4") << QStringLiteral("label_7");
        QTest::newRow("label_5") << QStringLiteral("label_8");
        QTest::newRow("label_11") << QStringLiteral("label_12");
        QTest::newRow("label_13") << QStringLiteral("label_14");
        QTest::newRow("label_15") << QStringLiteral("label_16");
    }
    void readOutsBelongToTheirCaptions()
    {
        QFETCH(QString, readOut);
        const Page page;
        const auto* const buddy = page.get<QLabel>(QTest::currentDataTag())->buddy();
        QVERIFY(buddy);
        QCOMPARE(buddy->objectName(), readOut);
    }
};

int main(int argc, char** argv)
{
    return testing::run<CamerWindowFormTest>(argc, argv);
}

#include "camer_window_form_test.moc"
