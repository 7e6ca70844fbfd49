#include "platform/picture_file.h"
#include "tests/support/test_run.h"

#include <QFile>
#include <QImage>
#include <QtEndian>

class PictureFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString path() const { return m_folder.filePath(QStringLiteral("picture.bmp")); }

    void put(const QByteArray& bytes) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

private slots:
    void cleanup() { QFile::remove(path()); }

    void theContentTellsTheFormat()
    {
        for (const char* format : {"bmp", "png", "jpg"}) {
            QImage picture(240, 320, QImage::Format_RGB888);
            picture.fill(Qt::red);
            QVERIFY(picture.save(path(), format));
            QCOMPARE(platform::pictureInFile(path()).size(), QSize(240, 320));
        }
    }

    void whatIsNoPictureIsNull()
    {
        QVERIFY(platform::pictureInFile(path()).isNull());
        put({});
        QVERIFY(platform::pictureInFile(path()).isNull());
        put("no picture");
        QVERIFY(platform::pictureInFile(path()).isNull());
    }

    void aPictureHasItsLimit()
    {
        QImage picture(4096, 4096, QImage::Format_Mono);
        picture.fill(1);
        QVERIFY(picture.save(path(), "png"));
        QCOMPARE(platform::pictureInFile(path()).size(), picture.size());
        QImage larger(4096, 4097, QImage::Format_Mono);
        larger.fill(1);
        QVERIFY(larger.save(path(), "png"));
        QVERIFY(platform::pictureInFile(path()).isNull());
    }

    void aLyingHeaderIsNotBelieved_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("a gigabyte") << 16000 << 16000;
        QTest::newRow("product of 32 bits is small") << 65536 << 65537;
        QTest::newRow("upside down") << 16000 << -16000;
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
        set(18, qint32(width));
        set(22, qint32(height));
        set(26, quint16(1));
        set(28, quint16(24));
        put(bitmap);
        QVERIFY(platform::pictureInFile(path()).isNull());
    }
};

int main(int argc, char** argv)
{
    return testing::run<PictureFileTest>(argc, argv);
}

#include "picture_file_test.moc"
