// SPDX-License-Identifier: MIT
#include "files/paths.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

using files::pathIn;

/// Names that strangers chose.
class PathsTest : public QObject
{
    Q_OBJECT

private slots:
    void joined_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        QTest::newRow("plain") << "/disk/DCIM_100"
                               << "a.bmp"
                               << "/disk/DCIM_100/a.bmp";
        QTest::newRow("folder with its slash") << "/disk/"
                                               << "a.bmp"
                                               << "/disk/a.bmp";
        QTest::newRow("root") << "/"
                              << "a.bmp"
                              << "/a.bmp";
        QTest::newRow("name with a colon") << "/disk"
                                           << ":a.bmp"
                                           << "/disk/:a.bmp";
        QTest::newRow("like a program's picture") << "/disk"
                                                  << ":/photo/logo.png"
                                                  << "/disk/:/photo/logo.png";
        QTest::newRow("current folder") << ""
                                        << "a.bmp"
                                        << "a.bmp";
        QTest::newRow("colon in the current folder") << ""
                                                     << ":a.bmp"
                                                     << "./:a.bmp";
        QTest::newRow("folder with a colon") << ":in"
                                             << "a.bmp"
                                             << "./:in/a.bmp";
        QTest::newRow("colon further on") << "/disk"
                                          << "a:b.bmp"
                                          << "/disk/a:b.bmp";
        QTest::newRow("dots") << "in"
                              << "..bmp"
                              << "in/..bmp";
        QTest::newRow("line break") << "in"
                                    << "a\nb"
                                    << "in/a\nb";
        QTest::newRow("percent") << "%1"
                                 << "%2"
                                 << "%1/%2";
    }
    void joined()
    {
        QFETCH(QString, folder);
        QFETCH(QString, name);
        QTEST(pathIn(folder, name), "path");
    }

    /// What is built into the program is never what a user means.
    void asWritten()
    {
        QCOMPARE(files::localPath(":/photo/logo.png"), QString("./:/photo/logo.png"));
        QCOMPARE(files::localPath("./:a"), QString("./:a"));
        QCOMPARE(files::localPath("/a/:b"), QString("/a/:b"));
        QCOMPARE(files::localPath({}), QString());
    }

    void opensTheFileOfThatName()
    {
        if (testing::onWindows())
            return; // no file has such a name
        const testing::Folder folder;
        folder.write("here", "wrong");
        folder.write(":night.bmp", "right");
        QFile file(pathIn(folder.path(), ":night.bmp"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("right"));
    }

    void toolTips()
    {
        QCOMPARE(files::toolTipOf("IMG001.bmp"), QString("IMG001.bmp"));
        const QString shown = files::toolTipOf("<img src='/etc/secret.png'>");
        QVERIFY(shown.contains("&lt;img"));
        QVERIFY(!shown.contains("<img"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<PathsTest>(argc, argv);
}

#include "paths_test.moc"
