// SPDX-License-Identifier: MIT
#include "tests/resources/embedded_files.h"
#include "tests/support/test_run.h"

#include <QDirIterator>
#include <QImage>
#include <QResource>
#include <QSet>

#include <algorithm>
#include <cstdlib>

using testing::addRows;
using testing::catalogues;
using testing::fileBytes;
using testing::icons;
using testing::sounds;

namespace {

quint32 littleEndian(const QByteArray& bytes, int offset, int size)
{
    quint32 value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = value << 8 | uchar(bytes[offset + i]);
    return value;
}

} // namespace

/// Which files the program holds, how it stores them, and the recordings among them.
class EmbeddedResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void exists_data()
    {
        addRows(catalogues + sounds + icons +
                QStringList{":/photo/colormap_Iron.png", ":/photo/arro@2x.png"});
    }
    void exists()
    {
        QFETCH(QString, path);
        QVERIFY(!fileBytes(path).isEmpty());
    }

    void staysMissing_data()
    {
        addRows({":/photo/logo.png", "photo/logo.png", ":/qt_zh_EN.qm", ":/Demo_CH.qm"});
    }
    void staysMissing()
    {
        QFETCH(QString, path);
        QVERIFY(!QFile::exists(path));
    }

    void theLogoIsKeptInNestedFolders()
    {
        QStringList logos;
        for (QDirIterator i(":/", {"logo.png"}, QDir::Files, QDirIterator::Subdirectories);
             i.hasNext();)
            logos.append(i.next());
        QCOMPARE(logos.size(), 1);
        QVERIFY(logos.first().count('/') >= 3);
        const QImage logo(logos.first());
        QVERIFY(!logo.isNull());
        QCOMPARE(logo.width(), logo.height());
    }

    void onlyTheRussianQtCatalogueIsCompressed()
    {
        QStringList compressed;
        for (const QString& path : catalogues + sounds + icons) {
            if (QResource(path).compressionAlgorithm() != QResource::NoCompression)
                compressed.append(path);
        }
        QVERIFY2(compressed == QStringList{":/qtbase_ru.qm"}, qPrintable(compressed.join(", ")));
        const QResource russian(compressed.first());
        QCOMPARE(russian.compressionAlgorithm(), QResource::ZlibCompression);
        QVERIFY(russian.size() < russian.uncompressedSize() / 2);
    }

    void loadingTwiceIsHarmless()
    {
        resources::load();
        resources::load();
        QVERIFY(QFile::exists(icons.first()));
    }

    void alarmIsAShortPlainRecording_data() { addRows(sounds); }
    // RIFF/WAVE with a 16-byte "fmt " chunk first, as every player reads it.
    void alarmIsAShortPlainRecording()
    {
        QFETCH(QString, path);
        const QByteArray wave = fileBytes(path);
        QVERIFY(wave.size() > 44);
        QCOMPARE(wave.left(4), QByteArray("RIFF"));
        QCOMPARE(littleEndian(wave, 4, 4), quint32(wave.size() - 8));
        QCOMPARE(wave.mid(8, 8), QByteArray("WAVEfmt "));
        QCOMPARE(littleEndian(wave, 20, 2), 1u); // PCM
        QCOMPARE(littleEndian(wave, 22, 2), 1u); // mono
        QCOMPARE(littleEndian(wave, 24, 4), 22050u);
        QCOMPARE(littleEndian(wave, 34, 2), 16u);
        QCOMPARE(wave.mid(36, 4), QByteArray("data"));

        const int samples = (wave.size() - 44) / 2;
        QVERIFY(samples >= 22050);
        QVERIFY(samples <= 3 * 22050);
        int peak = 0;
        int firstLoud = -1;
        int lastLoud = 0;
        for (int i = 0; i < samples; ++i) {
            const int level = std::abs(int(qint16(littleEndian(wave, 44 + 2 * i, 2))));
            peak = std::max(peak, level);
            if (level > 1000) {
                firstLoud = firstLoud < 0 ? i : firstLoud;
                lastLoud = i;
            }
        }
        QVERIFY2(peak > 32767 / 2 && peak < 32767, qPrintable(QString::number(peak)));
        QVERIFY(firstLoud >= 0 && firstLoud < 22050 / 20);
        QVERIFY(samples - lastLoud < 22050 / 4);
    }

    void everyLanguageHasItsOwnAlarm()
    {
        QSet<QByteArray> recordings;
        for (const QString& path : sounds)
            recordings.insert(fileBytes(path));
        QCOMPARE(recordings.size(), sounds.size());
    }
};

int main(int argc, char** argv)
{
    return testing::run<EmbeddedResourcesTest>(argc, argv);
}

#include "embedded_resources_test.moc"
