// SPDX-License-Identifier: MIT
#include "files/picture_file.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

class PictureFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString path() const { return m_folder.filePath(QStringLiteral("picture.bmp")); }

    void put(const QByteArray& bytes) const { testing::putFile(path(), bytes); }

    static QImage black(const QSize& size)
    {
        QImage image(size, QImage::Format_Grayscale8);
        image.fill(Qt::black);
        return image;
    }

    /// With enough in it that each format has something to say.
    static QPixmap picture()
    {
        QImage image(60, 80, QImage::Format_RGB888);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixelColor(x, y, QColor(x * 4, y * 3, (x * y) % 256));
        }
        return QPixmap::fromImage(image);
    }

    static QByteArray encoded(const QImage& image, const QByteArray& format)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        const bool progressive = format == "progressive";
        QImageWriter writer(&buffer, progressive ? "jpg" : format);
        writer.setProgressiveScanWrite(progressive);
        writer.write(image);
        return buffer.data();
    }

    static QByteArray bigEndian(quint32 number)
    {
        const quint32 turned = qToBigEndian(number);
        return {reinterpret_cast<const char*>(&turned), int(sizeof turned)};
    }

    /// The check sum that closes a chunk of a PNG.
    static quint32 crcOf(const QByteArray& bytes)
    {
        quint32 sum = 0xFFFFFFFF;
        for (const char byte : bytes) {
            sum ^= uchar(byte);
            for (int bit = 0; bit < 8; ++bit)
                sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320 : 0);
        }
        return ~sum;
    }

private slots:
    void cleanup() { QFile::remove(path()); }

    void theContentTellsTheFormat()
    {
        for (const char* format : {"bmp", "png", "jpg"}) {
            QImage picture(240, 320, QImage::Format_RGB888);
            picture.fill(Qt::red);
            QVERIFY(picture.save(path(), format));
            QCOMPARE(files::pictureInFile(path()).size(), QSize(240, 320));
        }
    }

    void whatIsNoPictureIsNull()
    {
        QVERIFY(files::pictureInFile(path()).isNull());
        put({});
        QVERIFY(files::pictureInFile(path()).isNull());
        put("no picture");
        QVERIFY(files::pictureInFile(path()).isNull());
    }

    void otherFormatsAreNoPictures()
    {
        put("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><rect width=\"9\" "
            "height=\"9\"/></svg>");
        QVERIFY(files::pictureInFile(path()).isNull());
        put("P6 1 1 255 abc");
        QVERIFY(files::pictureInFile(path()).isNull());
        QImage picture(16, 16, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path(), "ico")); // one that holds a PNG
        QVERIFY(files::pictureInFile(path()).isNull());
    }

    void aPictureHasItsLimit_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QSize>("largest");
        QTest::addColumn<QSize>("tooLarge");
        QTest::newRow("bitmap") << QByteArray("bmp") << QSize(4096, 4096) << QSize(4096, 4097);
        QTest::newRow("wide bitmap") << QByteArray("bmp") << QSize(4096, 1) << QSize(4097, 1);
        QTest::newRow("png") << QByteArray("png") << QSize(2000, 2000) << QSize(2000, 2001);
        QTest::newRow("jpeg") << QByteArray("jpg") << QSize(2000, 2000) << QSize(2000, 2001);
        QTest::newRow("progressive")
            << QByteArray("progressive") << QSize(1000, 1000) << QSize(1000, 1001);
    }
    void aPictureHasItsLimit()
    {
        QFETCH(QByteArray, format);
        QFETCH(QSize, largest);
        QFETCH(QSize, tooLarge);
        put(encoded(black(largest), format));
        QCOMPARE(files::pictureInFile(path()).size(), largest);
        put(encoded(black(tooLarge), format));
        QVERIFY(files::pictureInFile(path()).isNull());
    }

    void upsideDownBitmapsAreRead()
    {
        QByteArray bitmap = encoded(picture().toImage(), "bmp");
        const auto height = qFromLittleEndian<qint32>(bitmap.constData() + 22);
        bitmap.replace(22, 4, bigEndian(qbswap(quint32(-height))));
        put(bitmap);
        QCOMPARE(files::pictureInFile(path()).toImage(), picture().toImage().mirrored(false, true));
    }

    void whatFollowsAPictureDoesNotMatter()
    {
        for (const char* format : {"bmp", "png", "jpg", "progressive"}) {
            put(encoded(picture().toImage(), format) + QByteArray(175000, '\xFF'));
            QCOMPARE(files::pictureInFile(path()).size(), picture().size());
        }
    }

    /// The last bytes of a PNG or a JPEG are its end mark; of a bitmap they are pixels.
    void aTruncatedPictureIsNone_data()
    {
        QTest::addColumn<QByteArray>("whole");
        for (const char* format : {"bmp", "png", "jpg", "progressive"})
            QTest::newRow(format) << encoded(picture().toImage(), format);
        for (const QImage::Format format : {QImage::Format_Mono, QImage::Format_Indexed8})
            QTest::addRow("bitmap of %d bits", picture().toImage().convertToFormat(format).depth())
                << encoded(picture().toImage().convertToFormat(format), "bmp");
    }
    void aTruncatedPictureIsNone()
    {
        QFETCH(QByteArray, whole);
        put(whole);
        QCOMPARE(files::pictureInFile(path()).size(), picture().size());
        for (int length = 0; length < whole.size(); length += length < 150 ? 9 : 479) {
            put(whole.left(length));
            QVERIFY2(files::pictureInFile(path()).isNull(), qPrintable(QString::number(length)));
        }
        put(whole.chopped(1));
        QVERIFY(files::pictureInFile(path()).isNull());
    }

    /// Run lengths have no size that a header could tell.
    void aBitmapIsNotUnfolded()
    {
        QByteArray bitmap =
            encoded(picture().toImage().convertToFormat(QImage::Format_Indexed8), "bmp");
        bitmap[30] = 1; // says run lengths of eight bits
        put(bitmap);
        QVERIFY(files::pictureInFile(path()).isNull());
    }

    void aProgressivePictureHasFewScans()
    {
        const QByteArray picture = encoded(black({1000, 1000}), "progressive");
        const int scan = picture.lastIndexOf("\xFF\xDA");
        const QByteArray last = picture.mid(scan).chopped(2);
        put(picture.left(scan) + last.repeated(5000) + QByteArray("\xFF\xD9"));
        QVERIFY(files::pictureInFile(path()).isNull());
    }

    void textsInAPictureAreNotUnfolded()
    {
        const QByteArray packed = qCompress(QByteArray(7'000'000, 'x')).mid(4);
        const QByteArray text = "zTXtComment" + QByteArray(2, '\0') + packed;
        const QByteArray chunk =
            bigEndian(quint32(text.size() - 4)) + text + bigEndian(crcOf(text));
        const QByteArray plain = encoded(picture().toImage(), "png");
        put(plain.left(33) + chunk + plain.mid(33));
        const QPixmap shown = files::pictureInFile(path());
        QCOMPARE(shown.size(), picture().size());
        QVERIFY(shown.toImage().textKeys().isEmpty());
    }

    void onlyFilesArePictures()
    {
        QVERIFY(files::pictureInFile(m_folder.path()).isNull());
#ifndef Q_OS_WIN
        const QString pipe = m_folder.filePath(QStringLiteral("pipe.bmp"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(files::pictureInFile(pipe).isNull()); // would wait for ever
        put(encoded(picture().toImage(), "png"));
        const QString link = m_folder.filePath(QStringLiteral("link.bmp"));
        QVERIFY(QFile::link(path(), link));
        QCOMPARE(files::pictureInFile(link).size(), picture().size());
#endif
    }

    void aLyingHeaderIsNotBelieved_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("a gigabyte") << 16000 << 16000;
        QTest::newRow("product of 32 bits is small") << 65536 << 65537;
        QTest::newRow("upside down") << 16000 << -16000;
        QTest::newRow("within the limit, but not there") << 4096 << 4096;
        QTest::newRow("one row more than there are") << 240 << 321;
        QTest::newRow("the same, upside down") << 240 << -321;
        QTest::newRow("negative width") << -240 << 320;
        QTest::newRow("smallest number") << 16000 << INT_MIN;
        QTest::newRow("empty") << 0 << 320;
    }
    void aLyingHeaderIsNotBelieved()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QByteArray bitmap(54 + 240 * 320 * 3, '\0');
        const auto set = [&bitmap](int offset, auto value) {
            qToLittleEndian(value, bitmap.data() + offset);
        };
        bitmap.replace(0, 2, "BM");
        set(2, quint32(bitmap.size()));
        set(10, quint32(54));
        set(14, quint32(40));
        set(18, width);
        set(22, height);
        set(26, quint16(1));
        set(28, quint16(24));
        put(bitmap);
        QVERIFY(files::pictureInFile(path()).isNull());
    }
};

int main(int argc, char** argv)
{
    return testing::run<PictureFileTest>(argc, argv);
}

#include "picture_file_test.moc"
