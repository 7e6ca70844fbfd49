// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "tests/analysis/windows/browser_test.h"

#include <QHeaderView>
#include <QTabBar>
#include <QTextDocumentFragment>

/// The photographs as thumbnails with names, and as a table.
class PhotographViewsTest : public testing::BrowserTest
{
    Q_OBJECT

    /// What an item with this name shows, its picture apart.
    QImage shownName(const QString& name)
    {
        addPhotographs(addDrive(name), {name});
        openWindow();
        driveList().setCurrentRow(drives.size() - 1);
        list()->clearSelection();
        const QRect item = list()->visualItemRect(list()->item(0));
        return list()->viewport()->grab(item).toImage().copy(0, 190, item.width(), 30);
    }

private slots:
    void theThumbnailList()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, names(2));
        openWindow();
        QVERIFY(list()->hasMouseTracking());
        QVERIFY(list()->contextMenuPolicy() == Qt::CustomContextMenu);
        QVERIFY(list()->viewMode() == QListView::IconMode);
        QVERIFY(list()->selectionMode() == QAbstractItemView::ExtendedSelection);
        QVERIFY(list()->frameShape() == QFrame::NoFrame);
        QVERIFY(!list()->dragEnabled());
        QCOMPARE(list()->iconSize(), QSize(195, 195));
        QVERIFY(list()->uniformItemSizes());
        QCOMPARE(list()->spacing(), 13);
        QCOMPARE(list()->font().pixelSize(), 15);
        const QListWidgetItem* item = list()->item(0);
        QCOMPARE(item->sizeHint(), QSize(165, 220));
        QVERIFY(item->textAlignment() == int(Qt::AlignHCenter | Qt::AlignBottom));
        QVERIFY(!(item->flags() & Qt::ItemIsEditable));
    }

    /// A name that loses a part shows the same as another one that differs only there.
    void theImagersNamesAreShownWhole()
    {
        const QString name = QStringLiteral("M26112109301500.bmp"); // 19 characters, wide ones
        const QImage shown = shownName(name);
        for (int i = 0; i < name.size(); ++i) {
            QString other = name;
            other[i] = name.at(i) == QLatin1Char('8') ? QLatin1Char('9') : QLatin1Char('8');
            if (!other.endsWith(QLatin1String(".bmp")))
                continue;
            QVERIFY2(shownName(other) != shown, qPrintable(other));
        }
    }

    void namesHaveToolTips()
    {
        const QString name = testing::onWindows() // where no name may look like mark-up
                                 ? QStringLiteral("a name that is too long to be shown.bmp")
                                 : QStringLiteral("a name that is too long, <b>and mark-up.bmp");
        addPhotographs(addDrive(QStringLiteral("disk")), {name, QStringLiteral("plain.bmp")});
        openWindow();
        const auto plain = [](const QString& tip) {
            return QTextDocumentFragment::fromHtml(tip).toPlainText();
        };
        QCOMPARE(plain(list()->item(0)->toolTip()), name);
        QCOMPARE(list()->item(1)->toolTip(), QStringLiteral("plain.bmp"));
        click("pushButton_3");
        QCOMPARE(plain(table()->item(0, 2)->toolTip()), name);
        QCOMPARE(table()->item(1, 2)->toolTip(), QStringLiteral("plain.bmp"));
    }

    void selectedNamesAreLegible()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(3));
        openWindow();
        list()->setCurrentRow(1);
        list()->item(2)->setSelected(true);
        const QImage shown = list()->viewport()->grab().toImage();
        const auto ground = [&](int row) {
            const QRect place = list()->visualItemRect(list()->item(row));
            return shown.pixelColor(place.left() + 6, place.center().y());
        };
        QCOMPARE(ground(0), QColor(Qt::white));
        QVERIFY(ground(1).lightness() < 128); // names of selected photographs are white
        QVERIFY(ground(2).lightness() < 128);
    }

    void theTable()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, names(3));
        openWindow();
        click("pushButton_3");
        QVERIFY(!list());
        QCOMPARE(table()->rowCount(), 3);
        QStringList titles;
        for (int i = 0; i < table()->columnCount(); ++i)
            titles.append(table()->horizontalHeaderItem(i)->text());
        QCOMPARE(titles, QStringList({QStringLiteral("编号"), QStringLiteral("图像"),
                                      QStringLiteral("名称"), QStringLiteral("时间"),
                                      QStringLiteral("大小")}));
        QCOMPARE(table()->item(1, 0)->text(), QStringLiteral("2"));
        QCOMPARE(table()->item(1, 2)->text(), QStringLiteral("IMG00001.bmp"));
        QCOMPARE(table()->item(1, 3)->text(), window->fileDates.at(1));
        QCOMPARE(table()->item(1, 4)->text(), QStringLiteral("300.7"));
        for (int column = 0; column < 5; ++column) {
            QVERIFY(!(table()->item(1, column)->flags() & Qt::ItemIsEditable));
            QVERIFY(table()->item(1, column)->textAlignment() & Qt::AlignVCenter);
        }
        QCOMPARE(table()->rowHeight(1), 50);
        QCOMPARE(table()->font().pixelSize(), 13);
        QVERIFY(table()->selectionBehavior() == QAbstractItemView::SelectRows);
        QVERIFY(table()->horizontalHeader()->stretchLastSection());
        QVERIFY(table()->horizontalHeader()->sectionResizeMode(0) == QHeaderView::Fixed);
        QTRY_VERIFY(!window->thumbnails.at(1).isNull());
        QVERIFY(!table()->item(1, 1)->icon().isNull());
        click("pushButton_4");
        QVERIFY(!table());
        QCOMPARE(list()->count(), 3);
    }

    void russianNeedsMoreRoom()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(1));
        openWindow();
        click("pushButton_3");
        QVector<int> widths;
        for (int column = 0; column < 4; ++column)
            widths.append(table()->columnWidth(column));
        QVERIFY(tabs().tabBar()->tabRect(0).width() < 150);

        config::create(QStringLiteral("RU"));
        openWindow();
        click("pushButton_3");
        for (int column = 0; column < 4; ++column)
            QVERIFY(table()->columnWidth(column) > widths.at(column));
        QVERIFY(tabs().tabBar()->tabRect(0).width() >= 150);
        QCOMPARE(tabs().styleSheet(),
                 QStringLiteral("QTabWidget#tabWidget{border-color:rgb(255,0,0);}"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotographViewsTest>(argc, argv);
}

#include "photograph_views_test.moc"
