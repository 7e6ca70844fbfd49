// SPDX-License-Identifier: MIT
#include "analysis/photograph/file_buffer.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using analysis::FileBuffer;

/// Files in a buffer of fixed size, which keeps what a shorter one does not cover.
class FileBufferTest : public QObject
{
    Q_OBJECT

private slots:
    void aNewBufferIsZero()
    {
        const FileBuffer buffer;
        QVERIFY(std::all_of(buffer.bytes(), buffer.bytes() + FileBuffer::size,
                            [](uchar byte) { return byte == 0; }));
    }

    void aShortFileLeavesTheRestOfTheBuffer()
    {
        FileBuffer buffer;
        QCOMPARE(buffer.read(m_folder.write(QStringLiteral("long"), "abcdefgh")), 8);
        QCOMPARE(buffer.read(m_folder.write(QStringLiteral("short"), "xyz")), 3);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(buffer.bytes()), 10),
                 QByteArray("xyzdefgh\0\0", 10));
        QCOMPARE(buffer.read(m_folder.write(QStringLiteral("empty"), "")), 0);
        QCOMPARE(int(buffer.bytes()[0]), int('x'));
        buffer.clear();
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(buffer.bytes()), 10),
                 QByteArray(10, '\0'));
    }

    void noMoreThanTwoMillionBytesAreRead_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::newRow("exactly") << Q_INT64_C(2000000);
        QTest::newRow("one more") << Q_INT64_C(2000001);
        QTest::newRow("4 GB") << (Q_INT64_C(1) << 32);
    }
    void noMoreThanTwoMillionBytesAreRead()
    {
        QFETCH(qint64, size);
        const QString path = m_folder.write(QStringLiteral("large"), "abc");
        QFile large(path);
        QVERIFY(large.open(QIODevice::ReadWrite));
        QVERIFY(large.resize(size)); // sparse: takes no room
        large.close();
        FileBuffer buffer;
        QCOMPARE(buffer.read(path), 2000000);
        QCOMPARE(int(buffer.bytes()[2]), int('c'));
        QVERIFY(large.remove());
    }

    void whatCannotBeReadCountsMinusOne()
    {
        FileBuffer buffer;
        QCOMPARE(buffer.read(m_folder / QStringLiteral("missing.bmp")), -1);
        QCOMPARE(buffer.read(QString()), -1);
        const QString folder = m_folder / QStringLiteral("folder.bmp");
        QVERIFY(QDir().mkpath(folder));
        QCOMPARE(buffer.read(folder), -1);
        if (!testing::onWindows()) { // where a link is an ordinary file
            const QString dangling = m_folder / QStringLiteral("dangling.bmp");
            QFile::remove(dangling);
            QVERIFY(QFile::link(m_folder / QStringLiteral("nowhere"), dangling));
            QCOMPARE(buffer.read(dangling), -1);
        }
        QVERIFY(std::all_of(buffer.bytes(), buffer.bytes() + FileBuffer::size,
                            [](uchar byte) { return byte == 0; }));
    }

    void unusualFileNames_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"热像.bmp", "Снимок №1.bmp", "사진.bmp", "a#b.bmp", "100%.bmp",
                                 "%41.bmp", "blank .bmp ", " .bmp", "a&b.bmp"})
            QTest::newRow(name) << QString::fromUtf8(name);
        if (!testing::onWindows()) // where no name may hold them
            QTest::newRow("a?b\\c.bmp") << QStringLiteral("a?b\\c.bmp");
    }
    void unusualFileNames()
    {
        QFETCH(QString, name);
        FileBuffer buffer;
        QCOMPARE(buffer.read(m_folder.write(name, "abc")), 3);
    }

private:
    testing::Folder m_folder;
};

int main(int argc, char** argv)
{
    return testing::run<FileBufferTest>(argc, argv);
}

#include "file_buffer_test.moc"
