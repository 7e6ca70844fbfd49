// SPDX-License-Identifier: MIT
#include "tests/resources/embedded_files.h"
#include "tests/support/test_run.h"

#include <QHash>
#include <QImage>
#include <QPixmap>

#include <cstdlib>

using testing::addRows;
using testing::fileBytes;
using testing::icons;

/// The pictures on buttons and in menus, and the strip of the palette.
class IconsTest : public QObject
{
    Q_OBJECT

private slots:
    void iconIsSquareAndTransparentAround_data() { addRows(icons); }
    void iconIsSquareAndTransparentAround()
    {
        QFETCH(QString, path);
        const QImage icon(path);
        QVERIFY(!icon.isNull());
        QCOMPARE(icon.width(), icon.height());
        QVERIFY(icon.hasAlphaChannel());
        const int last = icon.width() - 1;
        for (const QPoint corner :
             {QPoint(0, 0), QPoint(last, 0), QPoint(0, last), QPoint(last, last)})
            QCOMPARE(qAlpha(icon.pixel(corner)), 0);
    }

    void iconShowsOnLightAndOnDark_data() { addRows(icons); }
    // A tenth of the area must differ clearly from the ground, whichever the ground is: white, the
    // dark buttons, a dark desktop. Lines alone cover that much.
    void iconShowsOnLightAndOnDark()
    {
        QFETCH(QString, path);
        const QImage icon = QImage(path).convertToFormat(QImage::Format_ARGB32);
        for (const int ground : {255, 91, 40}) {
            int clear = 0;
            for (int y = 0; y < icon.height(); ++y) {
                for (int x = 0; x < icon.width(); ++x) {
                    const QRgb pixel = icon.pixel(x, y);
                    const int alpha = qAlpha(pixel);
                    const int shown = (qGray(pixel) * alpha + ground * (255 - alpha)) / 255;
                    clear += std::abs(shown - ground) >= 80;
                }
            }
            QVERIFY2(clear >= icon.width() * icon.height() / 10,
                     qPrintable(QString("on gray %1: %2 of %3 pixels")
                                    .arg(ground)
                                    .arg(clear)
                                    .arg(icon.width() * icon.height())));
        }
    }

    void iconsDiffer()
    {
        QHash<QByteArray, QString> seen;
        for (const QString& path : icons) {
            const QByteArray bytes = fileBytes(path);
            QVERIFY2(!seen.contains(bytes), qPrintable(path + " is " + seen.value(bytes)));
            seen.insert(bytes, path);
        }
    }

    void folderIconAnswersToItsDoubleSlash() { QVERIFY(!QPixmap("://photo/folder.png").isNull()); }

    void arrowIsSharpOnDenseScreens()
    {
        const QImage plain(":/photo/arro.png");
        const QImage dense(":/photo/arro@2x.png");
        QCOMPARE(dense.size(), 2 * plain.size());
    }

    void paletteStripIsHottestAtTheTop()
    {
        const QImage strip(":/photo/colormap_Iron.png");
        QCOMPARE(strip.size(), QSize(30, 256));
        int above = 256;
        for (int y = 0; y < strip.height(); ++y) {
            const int gray = qGray(strip.pixel(15, y));
            QVERIFY2(gray <= above, qPrintable(QString("row %1").arg(y)));
            above = gray;
        }
        QVERIFY(qGray(strip.pixel(15, 0)) > 230);
        QVERIFY(qGray(strip.pixel(15, 255)) < 20);
    }
};

int main(int argc, char** argv)
{
    return testing::run<IconsTest>(argc, argv);
}

#include "icons_test.moc"
