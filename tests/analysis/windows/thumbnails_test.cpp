// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/browser_test.h"

using testing::photographBytes;
using testing::Shot;

/// Which pictures are read, when, and how they look.
class ThumbnailsTest : public testing::BrowserTest
{
    Q_OBJECT

private slots:
    void thumbnailsInViewAreRead()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        Shot shot;
        shot.gray = [](int, int) {
            return 200;
        };
        addPhotographs(root, names(40), shot);
        openWindow();
        QTRY_VERIFY(!window->thumbnails.first().isNull());
        const QPixmap shown = window->thumbnails.first();
        QCOMPARE(shown.toImage().pixelColor(shown.width() / 2, shown.height() / 2),
                 QColor(0, 0, 200)); // as the file's bitmap has it
        QVERIFY(window->thumbnails.last().isNull());
        QVERIFY(readThumbnails() < 40);
        QCOMPARE(list()->item(0)->icon().pixmap(195, 195).toImage(), shown.toImage());

        list()->scrollToBottom();
        QTRY_VERIFY(!window->thumbnails.last().isNull());
    }

    void roundedThumbnails()
    {
        QPixmap picture(240, 320);
        picture.fill(Qt::red);
        const QImage rounded =
            photo_window::roundedThumbnail(picture, QSize(195, 195), 15).toImage();
        QCOMPARE(rounded.size(), QSize(195, 195));
        for (const QPoint& corner :
             {QPoint(0, 0), QPoint(194, 0), QPoint(0, 194), QPoint(194, 194)})
            QCOMPARE(rounded.pixelColor(corner).alpha(), 0);
        QCOMPARE(rounded.pixelColor(97, 0), QColor(Qt::red));
        QCOMPARE(rounded.pixelColor(5, 5), QColor(Qt::red));
        QVERIFY(photo_window::roundedThumbnail(QPixmap(), QSize(195, 195), 15).isNull());
    }

    /// A corner of radius 15: what is 16 from its centre is transparent, what is 14 away is not.
    void thumbnailsAreSmoothAndRound()
    {
        Shot stripes;
        stripes.gray = [](int x, int) {
            return x % 2 == 0 ? 0 : 255;
        };
        addPhotographs(addDrive(QStringLiteral("disk")), names(1), stripes);
        openWindow();
        QTRY_VERIFY(!window->thumbnails.first().isNull());
        const QImage shown = window->thumbnails.first().toImage();
        for (const auto& [x, y] : {std::pair(3, 3), std::pair(0, 8), std::pair(128, 172)})
            QVERIFY2(qAlpha(shown.pixel(x, y)) < 64, qPrintable(QStringLiteral("%1").arg(x)));
        for (const auto& [x, y] : {std::pair(5, 5), std::pair(1, 14), std::pair(126, 170)})
            QVERIFY2(qAlpha(shown.pixel(x, y)) > 192, qPrintable(QStringLiteral("%1").arg(x)));
        // 240 stripes on 132 pixels: taken one by one they would be black or blue.
        for (int x = 20; x < 110; ++x) {
            const int blue = qRed(shown.pixel(x, 88)) + qBlue(shown.pixel(x, 88));
            QVERIFY2(blue > 40 && blue < 215, qPrintable(QString::number(blue)));
        }
    }

    void memoryDoesNotGrowWithThePhotographs()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, {QStringLiteral("0.bmp")});
        const QString folder = root + QStringLiteral("DCIM_100/");
        const auto multiply = testing::onWindows()
                                  ? qOverload<const QString&, const QString&>(&QFile::copy)
                                  : qOverload<const QString&, const QString&>(&QFile::link);
        for (int i = 1; i < 700; ++i)
            QVERIFY(multiply(folder + QStringLiteral("0.bmp"),
                             folder + QStringLiteral("%1.bmp").arg(i)));
        openWindow();
        QCOMPARE(window->thumbnails.size(), 700);
        for (int i = 0; i < 700; i += 8) {
            list()->scrollToItem(list()->item(i));
            QTRY_VERIFY(!window->thumbnails.at(i).isNull());
        }
        QCOMPARE(readThumbnails(), 256);
        // What was dropped is read again.
        list()->scrollToTop();
        QTRY_VERIFY(!window->thumbnails.first().isNull());
    }

    void aThumbnailIsNotMadeOfAnEndlessPicture()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        QByteArray bytes = photographBytes(Shot());
        testing::put(bytes, 18, 16000, 4);
        testing::put(bytes, 22, 16000, 4);
        testing::putFile(root + QStringLiteral("DCIM_100/a.bmp"), bytes);
        addPhotographs(root, {QStringLiteral("b.bmp")});
        openWindow();
        QTRY_VERIFY(!window->thumbnails.at(1).isNull());
        QVERIFY(window->thumbnails.at(0).isNull());
    }

    void damagedPicturesHaveNoThumbnail()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        const QString folder = root + QStringLiteral("DCIM_100/");
        testing::putFile(folder + QStringLiteral("a.bmp"), "no picture");
        testing::putFile(folder + QStringLiteral("b.bmp"), {});
        testing::putFile(folder + QStringLiteral("c.bmp"), photographBytes(Shot()).left(3000));
        QFile huge(folder + QStringLiteral("d.bmp"));
        QVERIFY(huge.open(QIODevice::WriteOnly));
        QVERIFY(huge.resize(Q_INT64_C(1) << 32));
        addPhotographs(root, {QStringLiteral("e.bmp")});
        openWindow();
        QCOMPARE(list()->count(), 5);
        QCOMPARE(window->fileSizes.at(3), QStringLiteral("4194304.0"));
        QTRY_VERIFY(!window->thumbnails.at(4).isNull());
        QVERIFY(window->thumbnails.at(0).isNull());
        QVERIFY(window->thumbnails.at(1).isNull());
        QVERIFY(window->thumbnails.at(3).isNull());
        QTRY_VERIFY(list()->item(0)->icon().isNull());
        click("pushButton_3");
        QTRY_VERIFY(table()->item(4, 1)->icon().pixmap(44).toImage().pixelColor(16, 22) ==
                    QColor(0, 0, 0));
    }

    void theDiskMayGoWhileThumbnailsAreRead()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, names(30));
        openWindow();
        QVERIFY(QDir(root).removeRecursively());
        list()->scrollToBottom();
        QTRY_VERIFY(list()->item(29)->icon().isNull());
        QVERIFY(window->thumbnails.at(29).isNull());
        window.reset();
    }

    void theWindowMayGoWhileThumbnailsAreRead()
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names(30));
        openWindow();
        window->grab();
        window.reset();
        QCoreApplication::processEvents();
    }
};

int main(int argc, char** argv)
{
    return testing::run<ThumbnailsTest>(argc, argv);
}

#include "thumbnails_test.moc"
