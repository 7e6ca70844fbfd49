// SPDX-License-Identifier: MIT
// The history by keyboard, and records that are not what the program writes.
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

using testing::Page;

namespace {

const QStringList names{QStringLiteral("20240101120000"), QStringLiteral("20240202120000"),
                        QStringLiteral("20240303120000")};

} // namespace

class HistoryKeysTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        PageTest::init();
        for (int i = 0; i < names.size(); ++i) {
            const QColor colour = QColor::fromHsv(60 * i, 255, 255).toRgb();
            putRecord(names[i], QByteArray::number(i) + ",x,y", {{"a.png", colour}});
            m_colours[names[i]] = colour;
        }
    }

    void arrowsOpenTheRecordTheyReach()
    {
        const Page page;
        auto& list = historyOf(page);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                          list.visualItemRect(list.item(0)).center());
        verifyOpen(page, 0);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.currentRow(), 1);
        verifyOpen(page, 1);
        QTest::keyClick(&list, Qt::Key_End);
        QCOMPARE(list.currentRow(), 2);
        verifyOpen(page, 2);
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(list.currentRow(), 1);
        verifyOpen(page, 1);
    }

    void returnOpensTheRecord_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }
    void returnOpensTheRecord()
    {
        QFETCH(int, key);
        const Page page;
        auto& list = historyOf(page);
        list.setCurrentRow(1); // by code: opens nothing
        QCOMPARE(page->historyRow, -1);
        QTest::keyClick(&list, Qt::Key(key));
        verifyOpen(page, 1);
    }

    /// As a double-click does: the list beside the picture is only a way into the history.
    void returnBesideThePictureOpensTheFirstRecord()
    {
        const Page page;
        page->show();
        auto& list = *page.get<QListWidget>("listWidget");
        list.setCurrentRow(2);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(page.get<QTabWidget>("tabWidget")->currentIndex(), 1);
        QCOMPARE(page.get<QListWidget>("listWidget_2")->currentRow(), 0);
        verifyOpen(page, 0);
    }

    void arrowsBesideThePictureOpenNothing()
    {
        const Page page;
        page->show();
        auto& list = *page.get<QListWidget>("listWidget");
        list.setCurrentRow(0);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.currentRow(), 1);
        QCOMPARE(page.get<QTabWidget>("tabWidget")->currentIndex(), 0);
        QCOMPARE(page->historyRow, -1);
    }

    void returnWithoutARecordOpensNothing()
    {
        QVERIFY(QDir(m_folder).removeRecursively());
        const Page page;
        QTest::keyClick(&historyOf(page), Qt::Key_Return);
        QTest::keyClick(&historyOf(page), Qt::Key_Down);
        QCOMPARE(page->historyRow, -1);
    }

    void refreshingOpensNothing()
    {
        const Page page;
        auto& list = historyOf(page);
        list.setCurrentRow(0);
        QTest::keyClick(&list, Qt::Key_Return);
        verifyOpen(page, 0);
        const QString open = list.item(0)->text();
        QVERIFY(QDir(path(open)).removeRecursively());
        page->refreshHistory(); // the row is gone, and another one is current
        QCOMPARE(list.count(), 2);
        QCOMPARE(page.text("label_12"), QString::number(names.indexOf(open)));
    }

    void keysOfOthersReachThePage()
    {
        const Page page;
        const testing::LogRecorder log;
        QTest::keyClick(&historyOf(page), Qt::Key_Escape);
        QVERIFY(log.contains(QStringLiteral("您按下了ESC")));
    }

    void rubbishDoesNotWidenThePage_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("long") << QByteArray(3000, 'W');
        QTest::newRow("long parts")
            << QByteArray(900, 'W') + ',' + QByteArray(900, 'W') + ',' + QByteArray(900, 'W');
        QTest::newRow("many lines") << QByteArray(300, '\r') + "1,2,3";
        QTest::newRow("separators") << QByteArray("\xE2\x80\xA8").repeated(300) + ",2,3";
    }
    void rubbishDoesNotWidenThePage()
    {
        QFETCH(QByteArray, text);
        testing::putFile(path(names[0] + QStringLiteral(".ini")), text);
        const Page page;
        auto& list = historyOf(page);
        const auto* const readings = page.get<QWidget>("readingsFrame");
        const QSize before = readings->minimumSizeHint();
        emit list.itemClicked(list.findItems(names[0], Qt::MatchExactly).first());
        QCOMPARE(readings->minimumSizeHint(), before);
        QVERIFY(!page.text("label_12").isEmpty());
    }

    void cutOffPicturesAreNotShown()
    {
        QImage picture(240, 320, QImage::Format_RGB888);
        picture.fill(Qt::red);
        for (const char* name : {"b.jpg", "c.bmp", "d.png"}) {
            const QString file = path(names[0] + QLatin1Char('/') + QLatin1String(name));
            QVERIFY(picture.save(file));
            QVERIFY(QFile::resize(file, QFileInfo(file).size() * 3 / 4));
        }
        const Page page;
        auto& list = historyOf(page);
        emit list.itemClicked(list.findItems(names[0], Qt::MatchExactly).first());
        QCOMPARE(page->historyPixmaps.size(), 4);
        QVERIFY(!page->historyPixmaps[0].isNull());
        for (int i = 1; i < 4; ++i)
            QVERIFY(page->historyPixmaps[i].isNull());
    }

    void picturesTakeABoundedAmountOfMemory()
    {
        QImage picture(4096, 4096, QImage::Format_Mono);
        picture.fill(0);
        for (int i = 0; i < 7; ++i)
            QVERIFY(picture.save(path(names[0] + QStringLiteral("/%1.bmp").arg(i))));
        const Page page;
        auto& list = historyOf(page);
        emit list.itemClicked(list.findItems(names[0], Qt::MatchExactly).first());
        QCOMPARE(page->historyPixmaps.size(), 8);
        qint64 pixels = 0;
        for (const QPixmap& pixmap : page->historyPixmaps)
            pixels += qint64(pixmap.width()) * pixmap.height();
        QVERIFY(pixels >= 4096LL * 4096);
        QVERIFY(pixels <= 5 * 4096LL * 4096);
    }

    void pictureIsScaledSmoothly()
    {
        QImage stripes(240, 320, QImage::Format_RGB888);
        for (int y = 0; y < stripes.height(); ++y) {
            for (int x = 0; x < stripes.width(); ++x)
                stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
        }
        QVERIFY(stripes.save(path(names[0] + QStringLiteral("/a.png"))));
        const Page page;
        page->resize(1100, 760);
        auto& list = historyOf(page);
        QCoreApplication::processEvents();
        emit list.itemClicked(list.findItems(names[0], Qt::MatchExactly).first());
        const QImage picture = page.get<QLabel>("label_18")->pixmap()->toImage();
        QVERIFY(picture.width() != 240);
        int between = 0;
        for (int x = 0; x < picture.width(); ++x) {
            const int gray = picture.pixelColor(x, picture.height() / 2).red();
            between += gray > 60 && gray < 195;
        }
        QVERIFY(between > picture.width() / 10);
    }

private:
    /// The list of the history tab, which comes to the front.
    static QListWidget& historyOf(const Page& page)
    {
        page->show();
        page.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
        return *page.get<QListWidget>("listWidget_2");
    }

    void verifyOpen(const Page& page, int row) const
    {
        const QString name = page.get<QListWidget>("listWidget_2")->item(row)->text();
        QCOMPARE(page.text("label_12"), QString::number(names.indexOf(name)));
        QCOMPARE(page.rows("listWidget_3"), QStringList(QStringLiteral("a.png")));
        QCOMPARE(page.shownRecordColour(), m_colours[name]);
    }

    QMap<QString, QColor> m_colours;
};

int main(int argc, char** argv)
{
    return testing::run<HistoryKeysTest>(argc, argv);
}

#include "history_keys_test.moc"
