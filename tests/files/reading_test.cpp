// SPDX-License-Identifier: MIT
#include "files/reading.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using files::Outcome;
using files::Problem;
using files::readWhole;
using testing::Folder;

namespace {

constexpr qint64 most = 4096;

/// A socket with a name of its own in the file system.
class Socket
{
public:
    explicit Socket(const QString& path) : m_number(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, qPrintable(path), sizeof address.sun_path);
        isGood = bind(m_number, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    }
    ~Socket() { close(m_number); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    bool isGood = false;

private:
    int m_number;
};

} // namespace

/// Only files, and links to them, are opened, and no more is read than is wanted.
class ReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void files()
    {
        const Folder folder;
        QByteArray bytes;
        QVERIFY(readWhole(folder.write("a", "content"), most, bytes).isGood());
        QCOMPARE(bytes, QByteArray("content"));
        QVERIFY(QFile::link(folder / "a", folder / "link"));
        QVERIFY(readWhole(folder / "link", most, bytes).isGood());
        QCOMPARE(bytes, QByteArray("content"));
        QVERIFY(readWhole(folder.write("empty", {}), most, bytes).isGood());
        QCOMPARE(bytes, QByteArray());
    }

    void others_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"folder", "pipe", "socket", "device"}) {
            QTest::newRow(name) << QString(name);
            QTest::addRow("link to a %s", name) << "link to " + QString(name);
        }
    }
    /// Nothing waits: a pipe without a writer would otherwise be for ever.
    void others()
    {
        QFETCH(QString, name);
        const Folder folder;
        QVERIFY(QDir(folder.path()).mkdir("folder"));
        QCOMPARE(mkfifo(qPrintable(folder / "pipe"), 0600), 0);
        const Socket socket(folder / "socket");
        QVERIFY(socket.isGood);
        QVERIFY(QFile::link("/dev/zero", folder / "device"));
        for (const char* kind : {"folder", "pipe", "socket", "device"})
            QVERIFY(QFile::link(folder / kind, folder / ("link to " + QString(kind))));
        QByteArray bytes("as before");
        QCOMPARE(readWhole(folder / name, most, bytes).problem, Problem::NotAFile);
        QCOMPARE(bytes, QByteArray("as before"));
    }

    void missing()
    {
        const Folder folder;
        QByteArray bytes;
        const Outcome outcome = readWhole(folder / "none", most, bytes);
        QCOMPARE(outcome.problem, Problem::CannotRead);
        QCOMPARE(outcome.detail, QString("No such file or directory"));
    }

    void largest()
    {
        const Folder folder;
        QByteArray bytes;
        QVERIFY(readWhole(folder.write("a", QByteArray(most, 'x')), most, bytes).isGood());
        QCOMPARE(bytes.size(), int(most));
        const Outcome outcome =
            readWhole(folder.write("b", QByteArray(most + 1, 'x')), most, bytes);
        QCOMPARE(outcome.problem, Problem::TooLarge);
        QCOMPARE(outcome.detail, QString("4097/4096"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ReadingTest>(argc, argv);
}

#include "reading_test.moc"
