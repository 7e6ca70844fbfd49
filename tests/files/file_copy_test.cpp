// SPDX-License-Identifier: MIT
#include "files/file_copy.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QDateTime>

#include <sys/stat.h>

using files::FileCopy;
using files::Outcome;
using files::Problem;
using testing::Folder;

namespace {

/// Bytes of three pieces and a bit, no two thousand of them alike.
QByteArray manyBytes()
{
    QByteArray bytes;
    while (bytes.size() < 3 * FileCopy::piece)
        bytes += QByteArray::number(bytes.size()) + ' ';
    return bytes;
}

Outcome copied(const QString& from, const QString& to)
{
    FileCopy copy(from, to);
    while (!copy.isDone())
        copy.step();
    return copy.outcome();
}

} // namespace

/// Copies that are complete or absent, made in pieces.
class FileCopyTest : public QObject
{
    Q_OBJECT

private slots:
    void wholeCopy()
    {
        const Folder folder;
        const QByteArray bytes = manyBytes();
        const QString from = folder.write("a", bytes);
        const QDateTime changed(QDate(2019, 5, 6), QTime(7, 8, 9), Qt::UTC);
        {
            QFile file(from);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(changed, QFileDevice::FileModificationTime));
        }
        FileCopy copy(from, folder / "b");
        int steps = 0;
        for (; !copy.isDone(); ++steps) {
            QVERIFY(!folder.files().contains("b"));
            copy.step();
        }
        QVERIFY(copy.outcome().isGood());
        QVERIFY(steps >= 4);
        QVERIFY(folder.read("b") == bytes);
        QCOMPARE(folder.files(), (QStringList{"a", "b"}));
        QCOMPARE(QFileInfo(folder / "b").lastModified().toUTC(), changed);
    }

    void emptyFile()
    {
        const Folder folder;
        QVERIFY(copied(folder.write("a", {}), folder / "b").isGood());
        QCOMPARE(folder.files(), (QStringList{"a", "b"}));
    }

    void givenUpHalfWay()
    {
        const Folder folder;
        folder.write("a", manyBytes());
        {
            FileCopy copy(folder / "a", folder / "b");
            copy.step();
            copy.step();
            QVERIFY(!copy.isDone());
        }
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void whatIsThereStays()
    {
        const Folder folder;
        folder.write("a", "content");
        folder.write("b", "mine");
        QCOMPARE(copied(folder / "a", folder / "b").problem, Problem::AlreadyThere);
        QCOMPARE(folder.read("b"), QByteArray("mine"));
        QCOMPARE(folder.files(), (QStringList{"a", "b"}));
    }

    /// Someone else makes it while we copy.
    void whatComesMeanwhileStays()
    {
        const Folder folder;
        folder.write("a", manyBytes());
        FileCopy copy(folder / "a", folder / "b");
        copy.step();
        folder.write("b", "mine");
        while (!copy.isDone())
            copy.step();
        QCOMPARE(copy.outcome().problem, Problem::AlreadyThere);
        QCOMPARE(folder.read("b"), QByteArray("mine"));
    }

    void fileThatShrinksMeanwhile()
    {
        const Folder folder;
        folder.write("a", manyBytes());
        {
            FileCopy copy(folder / "a", folder / "b");
            copy.step();
            QVERIFY(QFile::resize(folder / "a", FileCopy::piece + 5));
            while (!copy.isDone())
                copy.step();
            QCOMPARE(copy.outcome().problem, Problem::TooShort);
        }
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void noFile()
    {
        const Folder folder;
        QCOMPARE(copied(folder / "none", folder / "b").problem, Problem::CannotRead);
        QCOMPARE(mkfifo(qPrintable(folder / "pipe"), 0600), 0);
        QCOMPARE(copied(folder / "pipe", folder / "b").problem, Problem::NotAFile);
        QCOMPARE(folder.files(), QStringList("pipe"));
    }

    void noFolder()
    {
        const Folder folder;
        folder.write("a", "content");
        QCOMPARE(copied(folder / "a", folder / "none/b").problem, Problem::CannotWrite);
        QCOMPARE(folder.files(), QStringList("a"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<FileCopyTest>(argc, argv);
}

#include "file_copy_test.moc"
