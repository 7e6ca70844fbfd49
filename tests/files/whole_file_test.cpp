// SPDX-License-Identifier: MIT
#include "files/paths.h"
#include "files/whole_file.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <atomic>
#include <sys/stat.h>
#include <thread>

using files::Existing;
using files::Outcome;
using files::Problem;
using files::writeWholeFile;
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
        QVERIFY(writeWholeFile(path, "content", Existing::Refuse).isGood());
        QCOMPARE(folder.read("a"), QByteArray("content"));
        QCOMPARE(folder.files(), QStringList("a"));
        // Like any new file: what the user's mask leaves of read and write for all.
        QFile::Permissions expected = QFileInfo(folder.write("b", {})).permissions();
        QCOMPARE(QFileInfo(path).permissions(), expected);
    }

    void emptyFile()
    {
        const Folder folder;
        QVERIFY(writeWholeFile(folder / "a", {}, Existing::Refuse).isGood());
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void existingFileStays()
    {
        const Folder folder;
        const QString path = folder.write("a", "mine");
        const Outcome outcome = writeWholeFile(path, "content", Existing::Refuse);
        QCOMPARE(outcome.problem, Problem::AlreadyThere);
        QCOMPARE(folder.read("a"), QByteArray("mine"));
        QCOMPARE(folder.files(), QStringList("a"));
    }

    /// A link to nowhere is a name that is taken.
    void linkStays()
    {
        const Folder folder;
        QVERIFY(QFile::link(folder / "nowhere", folder / "a"));
        QCOMPARE(writeWholeFile(folder / "a", "content", Existing::Refuse).problem,
                 Problem::AlreadyThere);
        QCOMPARE(QFileInfo(folder / "a").symLinkTarget(), folder / "nowhere");
        QVERIFY(!QFile::exists(folder / "nowhere"));
    }

    void overwriting()
    {
        const Folder folder;
        const QString path = folder.write("a", "mine");
        QVERIFY(writeWholeFile(path, "content", Existing::Replace).isGood());
        QCOMPARE(folder.read("a"), QByteArray("content"));
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void pipeStays()
    {
        const Folder folder;
        const QString path = folder / "a";
        QCOMPARE(mkfifo(path.toUtf8().constData(), 0600), 0);
        QCOMPARE(writeWholeFile(path, "content", Existing::Replace).problem, Problem::CannotWrite);
        QVERIFY(!QFileInfo(path).isFile());
        QCOMPARE(folder.files(), QStringList("a"));
    }

    /// As much as the name leads on to: the link stays a link.
    void linkedFileIsReplaced()
    {
        const Folder folder;
        folder.write("a", "mine");
        QVERIFY(QFile::link(folder / "a", folder / "link"));
        QVERIFY(writeWholeFile(folder / "link", "content", Existing::Replace).isGood());
        QVERIFY(QFileInfo(folder / "link").isSymLink());
        QCOMPARE(folder.read("a"), QByteArray("content"));
        QCOMPARE(folder.files(), (QStringList{"a", "link"}));
    }

    void permissionsStay()
    {
        const Folder folder;
        const QString path = folder.write("a", "mine");
        const QFile::Permissions mine =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QVERIFY(QFile::setPermissions(path, mine));
        QVERIFY(writeWholeFile(path, "content", Existing::Replace).isGood());
        QCOMPARE(QFileInfo(path).permissions(), mine);
    }

    /// Programs that were killed left these behind, and one of them had our number.
    void leftOversAreInNobodysWay()
    {
        const Folder folder;
        const auto leftOver = [](int i) {
            return QStringLiteral(".thermadesk-%1-%2.part")
                .arg(QCoreApplication::applicationPid())
                .arg(i);
        };
        constexpr int many = 100;
        for (int i = 0; i < many; ++i)
            folder.write(leftOver(i), "left over");
        QVERIFY(writeWholeFile(folder / "a", "content", Existing::Refuse).isGood());
        QCOMPARE(folder.read("a"), QByteArray("content"));
        for (int i = 0; i < many; ++i)
            QCOMPARE(folder.read(leftOver(i)), QByteArray("left over"));
        QCOMPARE(folder.files().size(), many + 1);
    }

    void namesWithAColon()
    {
        const Folder folder;
        const Folder elsewhere;
        const QString before = QDir::currentPath();
        QDir::setCurrent(elsewhere.path());
        QVERIFY(writeWholeFile(files::pathIn(folder.path(), ":a"), "1", Existing::Refuse).isGood());
        QVERIFY(writeWholeFile(":b", "2", Existing::Refuse).isGood());
        QVERIFY(writeWholeFile(":b", "3", Existing::Replace).isGood());
        QCOMPARE(writeWholeFile(":b", "4", Existing::Refuse).problem, Problem::AlreadyThere);
        QDir::setCurrent(before);
        QCOMPARE(folder.files(), QStringList(":a"));
        QCOMPARE(elsewhere.files(), QStringList(":b"));
        QCOMPARE(elsewhere.read(":b"), QByteArray("3"));
    }

    /// What is not finished was never there.
    void givenUpHalfWay()
    {
        const Folder folder;
        folder.write("a", "mine");
        {
            files::WholeFile file(folder / "a", Existing::Replace);
            QVERIFY(file.open().isGood());
            QVERIFY(file.write("content").isGood());
        }
        QCOMPARE(folder.read("a"), QByteArray("mine"));
        QCOMPARE(folder.files(), QStringList("a"));
    }

    void noFolder()
    {
        const Folder folder;
        const Outcome outcome = writeWholeFile(folder / "none/a", "content", Existing::Replace);
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
                if (writeWholeFile(path, bytes, Existing::Refuse).isGood())
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
