#include "analysis/whole_file.h"
#include "tests/support/test_run.h"
#include "tests/tools/thermaphoto.h"

#include <atomic>
#include <sys/stat.h>
#include <thread>

using analysis::Outcome;
using analysis::Problem;
using analysis::writeWholeFile;
using testing::Folder;

/// Files that are complete or absent.
class WholeFileTest : public QObject
{
    Q_OBJECT

private slots:
    void newFile()
    {
        const Folder folder;
        const QString path = folder / "a";
        QVERIFY(writeWholeFile(path, "content", false).isGood());
        QCOMPARE(folder.read("a"), QByteArray("content"));
        QCOMPARE(folder.files(), QStringList("a"));
        // Like any new file: what the user's mask leaves of read and write for all.
        QFile::Permissions expected = QFileInfo(folder.write("b", {})).permissions();
        QCOMPARE(QFileInfo(path).permissions(), expected);
    }

    void emptyFile()
    {
        const Folder folder;
        QVERIFY(writeWholeFile(folder / "a", {}, false).isGood());
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void existingFileStays()
    {
        const Folder folder;
        const QString path = folder.write("a", "mine");
        const Outcome outcome = writeWholeFile(path, "content", false);
        QCOMPARE(outcome.problem, Problem::AlreadyThere);
        QCOMPARE(folder.read("a"), QByteArray("mine"));
        QCOMPARE(folder.files(), QStringList("a"));
    }

    /// A link to nowhere is a name that is taken.
    void linkStays()
    {
        const Folder folder;
        QVERIFY(QFile::link(folder / "nowhere", folder / "a"));
        QCOMPARE(writeWholeFile(folder / "a", "content", false).problem, Problem::AlreadyThere);
        QCOMPARE(QFileInfo(folder / "a").symLinkTarget(), folder / "nowhere");
        QVERIFY(!QFile::exists(folder / "nowhere"));
    }

    void overwriting()
    {
        const Folder folder;
        const QString path = folder.write("a", "mine");
        QVERIFY(writeWholeFile(path, "content", true).isGood());
        QCOMPARE(folder.read("a"), QByteArray("content"));
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void pipeStays()
    {
        const Folder folder;
        const QString path = folder / "a";
        QCOMPARE(mkfifo(path.toUtf8().constData(), 0600), 0);
        QCOMPARE(writeWholeFile(path, "content", true).problem, Problem::CannotWrite);
        QVERIFY(!QFileInfo(path).isFile());
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void noFolder()
    {
        const Folder folder;
        const Outcome outcome = writeWholeFile(folder / "none/a", "content", true);
        QCOMPARE(outcome.problem, Problem::CannotWrite);
        QCOMPARE(outcome.detail, QString("No such file or directory"));
        QCOMPARE(folder.files(), QStringList());
    }

    /// Of many who want the same name, one gets it, and nobody's bytes are mixed up.
    void oneOfManyWins()
    {
        const Folder folder;
        const QString path = folder / "a";
        std::atomic<int> winners{0};
        constexpr int many = 8;
        std::vector<std::thread> threads;
        threads.reserve(many);
        for (int i = 0; i < many; ++i)
            threads.emplace_back([&winners, path, i] {
                const QByteArray bytes(100000, char('a' + i));
                if (writeWholeFile(path, bytes, false).isGood())
                    ++winners;
            });
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(winners.load(), 1);
        const QByteArray content = folder.read("a");
        QCOMPARE(content, QByteArray(100000, content[0]));
        QCOMPARE(folder.files(), QStringList("a"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<WholeFileTest>(argc, argv);
}

#include "whole_file_test.moc"
