// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_widget.h"
#include "tests/analysis/windows/selection_test.h"

#include <QDesktopServices>

/// The browser's context menu, and what opens from it.
class BrowserMenuTest : public testing::SelectionTest
{
    Q_OBJECT

    QList<QUrl> shownUrls;

    QPoint placeOf(int row) const
    {
        return view().visualRect(view().model()->index(row, 0)).center();
    }
    static QString enabledEntries(const QMenu& menu)
    {
        QString text;
        for (const QAction* action : entries(menu))
            text += QLatin1Char(action->isEnabled() ? '1' : '0');
        return text;
    }

public slots:
    void show(const QUrl& url) { shownUrls.append(url); }

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "show"); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    void theEntries()
    {
        openBrowser();
        QStringList texts;
        for (const QAction* action : entries(*menu()))
            texts.append(action->text());
        QCOMPARE(
            texts,
            QStringList({QStringLiteral("打开"), QStringLiteral("导出温度 (CSV)..."),
                         QStringLiteral("导出温度 (TIFF)..."), QStringLiteral("导出图片 (PNG)..."),
                         QStringLiteral("导出报告 (PDF)..."), QStringLiteral("复制到文件夹..."),
                         QStringLiteral("在文件管理器中显示")}));
    }

    void whatCanBeChosen_data()
    {
        QTest::addColumn<bool>("asTable");
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<QString>("enabled");
        for (const bool asTable : {false, true}) {
            const char* kind = asTable ? "table" : "thumbnails";
            QTest::addRow("%s, none", kind) << asTable << QVector<int>() << "0000001";
            QTest::addRow("%s, one", kind) << asTable << QVector<int>{1} << "1111111";
            QTest::addRow("%s, many", kind) << asTable << QVector<int>{0, 2} << "0111111";
        }
    }
    void whatCanBeChosen()
    {
        QFETCH(bool, asTable);
        QFETCH(QVector<int>, rows);
        QFETCH(QString, enabled);
        addPhotographs(3);
        openBrowser(asTable);
        choose(rows);
        QPointer<BrowserMenu> shown = menu();
        QVERIFY(shown && shown->isVisible());
        QCOMPARE(enabledEntries(*shown), enabled);
        shown->close();
        QTRY_VERIFY(!shown);
    }

    void withoutADiskNothingCanBeChosen()
    {
        platform::setDriveProvider([] { return QStringList(); });
        openBrowser();
        QCOMPARE(enabledEntries(*menu()), QStringLiteral("0000000"));
    }

    void theTableSelectsAsTheThumbnailsDo()
    {
        addPhotographs(4);
        openBrowser(true);
        QVERIFY(view().selectionMode() == QAbstractItemView::ExtendedSelection);
        QVERIFY(view().selectionBehavior() == QAbstractItemView::SelectRows);
        QVERIFY(view().contextMenuPolicy() == Qt::CustomContextMenu);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, placeOf(0));
        QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf(2));
        QCOMPARE(view().selectionModel()->selectedRows().size(), 2);
        // The right button keeps a selection that it meets, and takes what it meets otherwise.
        QTest::mousePress(view().viewport(), Qt::RightButton, {}, placeOf(2));
        QCOMPARE(view().selectionModel()->selectedRows().size(), 2);
        QTest::mouseRelease(view().viewport(), Qt::RightButton, {}, placeOf(2));
        QTest::mousePress(view().viewport(), Qt::RightButton, {}, placeOf(3));
        QCOMPARE(view().selectionModel()->selectedRows().size(), 1);
    }

    void theMenuKeyOpensItOnTheCurrentPhotograph_data()
    {
        QTest::addColumn<bool>("asTable");
        QTest::newRow("thumbnails") << false;
        QTest::newRow("table") << true;
    }
    void theMenuKeyOpensItOnTheCurrentPhotograph()
    {
        QFETCH(bool, asTable);
        addPhotographs(3);
        openBrowser(asTable);
        view().setCurrentIndex(view().model()->index(1, 0));
        QContextMenuEvent event(QContextMenuEvent::Keyboard, view().rect().center());
        QCoreApplication::sendEvent(&view(), &event);
        auto* shown = page->findChild<BrowserMenu*>();
        QVERIFY(shown);
        QCOMPARE(page->findChildren<BrowserMenu*>().size(), 1);
        QCOMPARE(enabledEntries(*shown), QStringLiteral("1111111"));
        QCOMPARE(shown->pos(), view().viewport()->mapToGlobal(placeOf(1)));
    }

    void theMenuKeyOpensItWithoutPhotographs()
    {
        openBrowser();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
        QCoreApplication::sendEvent(&view(), &event);
        auto* shown = page->findChild<BrowserMenu*>();
        QVERIFY(shown);
        QCOMPARE(enabledEntries(*shown), QStringLiteral("0000001"));
    }

    void openShowsThePhotograph()
    {
        addPhotographs(3);
        openBrowser();
        choose({2});
        entries(*menu()).at(Open)->trigger();
        const auto* opened = page->findChild<Analysis_Widget*>();
        QVERIFY(opened);
        QCOMPARE(opened->fileName, name(2));
    }

    void theFolderIsShown()
    {
        openBrowser();
        entries(*menu()).at(Show)->trigger();
        QCOMPARE(shownUrls, QList<QUrl>({QUrl::fromLocalFile(root + QStringLiteral("DCIM_100"))}));
        QVERIFY(QDir(root).removeRecursively());
        QPointer<BrowserMenu>(page->findChild<BrowserMenu*>())->close();
        QTRY_VERIFY(!page->findChild<BrowserMenu*>());
        entries(*menu()).at(Show)->trigger();
        QCOMPARE(messageText(), QStringLiteral("无法打开文件夹“%1”。")
                                    .arg(QDir::toNativeSeparators(page->imageFolder)));
        QCOMPARE(shownUrls.size(), 1);
    }

    void noFolderNoWork()
    {
        addPhotographs(1);
        openBrowser();
        choose({0});
        entries(*menu()).at(Csv)->trigger();
        frame->findChild<QFileDialog*>()->reject();
        QTRY_VERIFY(!frame->findChild<QFileDialog*>());
        QVERIFY(!job());
        QVERIFY(!message());
    }

    void thePageMayGoWhileTheMenuIsUp()
    {
        openBrowser();
        const QPointer<BrowserMenu> shown = menu();
        delete page;
        QVERIFY(!shown);
    }

    void thePageMayGoWhileTheFolderIsAskedFor()
    {
        addPhotographs(1);
        openBrowser();
        choose({0});
        entries(*menu()).at(Csv)->trigger();
        QVERIFY(frame->findChild<QFileDialog*>()->isVisible());
        delete page;
        QTRY_VERIFY(!frame->findChild<QFileDialog*>());
        QVERIFY(!job());
    }

    /// A box that nobody waits for must not be the page's own: whoever ends a page waits for those.
    void thePageMayGoWhileAWarningIsUp()
    {
        write(name(0), "x");
        openBrowser();
        choose({0});
        entries(*menu()).at(Open)->trigger();
        QVERIFY(message() && message()->isVisible());
        QCOMPARE(message()->text(), QStringLiteral("该图片解析失败，请确认型号是否正确!"));
        QCOMPARE(message()->parentWidget(), frame.get());
        delete page;
        QTRY_VERIFY(!message());
    }
};

int main(int argc, char** argv)
{
    return testing::run<BrowserMenuTest>(argc, argv);
}

#include "browser_menu_test.moc"
