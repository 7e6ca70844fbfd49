// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/selection_test.h"

#include <QDeadlineTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

using testing::fileBytes;

/// Work on the chosen photographs while it goes on: beside other events, cancelled, and when disk,
/// target, page or window go.
class SelectionJobTest : public testing::SelectionTest
{
    Q_OBJECT

    /// Starts it for all photographs and lets it write some files, but not all.
    void startAndStopHalfWay(Entry entry)
    {
        addPhotographs(40);
        openBrowser();
        view().selectAll();
        start(entry);
        const QDeadlineTimer deadline(30000);
        while (written().size() < 3 && !deadline.hasExpired())
            QCoreApplication::processEvents();
        QVERIFY(written().size() >= 3);
        QVERIFY(written().size() < 40);
    }

private slots:
    /// Other events have their turn all the time, and a copy that is stopped leaves nothing.
    void aLargeFileIsCopiedInPieces_data()
    {
        QTest::addColumn<bool>("stopped");
        QTest::newRow("to its end") << false;
        QTest::newRow("stopped") << true;
    }
    void aLargeFileIsCopiedInPieces()
    {
        QFETCH(bool, stopped);
        constexpr qint64 size = 100'000'000;
        QFile large(photograph(name(0)));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(size));
        openBrowser();
        choose({0});
        int rounds = 0;
        QTimer idle;
        connect(&idle, &QTimer::timeout, this, [&] {
            if (++rounds == 20 && stopped)
                job()->reject();
        });
        start(Copy);
        idle.start(0);
        const QString text = messageText();
        QVERIFY2(rounds >= 20, qPrintable(QString::number(rounds)));
        if (stopped) {
            QVERIFY(text.startsWith(QStringLiteral("没有写入任何文件。")));
            QCOMPARE(written(), QStringList());
        } else {
            QCOMPARE(text, successText(1));
            QCOMPARE(QFileInfo(target + QLatin1Char('/') + name(0)).size(), size);
        }
    }

    void manyFailuresFillTheDetails()
    {
        addPhotographs(11);
        openBrowser();
        QVERIFY(QDir(root + QStringLiteral("DCIM_100")).removeRecursively());
        view().selectAll();
        start(Csv);
        QTRY_VERIFY(message());
        QCOMPARE(message()->detailedText().split(QLatin1Char('\n')).size(), 11);
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 2 + 8 + 1);
        QCOMPARE(lines.first(), QStringLiteral("没有写入任何文件。"));
        QCOMPARE(lines.last(), QStringLiteral("另有 3 张，见详细信息。"));
    }

    void cancellingLeavesWholeFilesOnly_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::newRow("by the button") << true;
        QTest::newRow("by closing the dialog") << false;
    }
    void cancellingLeavesWholeFilesOnly()
    {
        QFETCH(bool, byButton);
        startAndStopHalfWay(Csv);
        QPointer<SelectionJob> running = job();
        QVERIFY(running);
        if (byButton)
            running->findChild<QPushButton*>()->click();
        else
            running->close();
        const int count = written().size();
        const QString text = messageText();
        QVERIFY(!running);
        QCOMPARE(text, successText(count) +
                           QStringLiteral("\n操作已取消，还有 %1 张照片未处理。").arg(40 - count));
        QCOMPARE(written().size(), count);
        for (const QString& file : written()) {
            QVERIFY(file.endsWith(QLatin1String(".csv")));
            QCOMPARE(fileBytes(target + QLatin1Char('/') + file).count('\n'), 320);
        }
    }

    void progressIsShownWhenItTakesAWhile()
    {
        // One file under many names, more than any computer gets done in the meantime.
        constexpr int count = 2000;
        addPhotographs(1);
        for (int i = 1; i < count; ++i)
            QVERIFY(QFile::link(photograph(name(0)), photograph(name(i))));
        openBrowser();
        view().selectAll();
        start(Report);
        QPointer<SelectionJob> running = job();
        QVERIFY(running);
        QVERIFY(!running->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(running && running->isVisible(), 30000);
        QVERIFY(running->isModal());
        const auto* bar = running->findChild<QProgressBar*>();
        QCOMPARE(bar->maximum(), count);
        QCOMPARE(bar->value(), written().size());
        QCOMPARE(running->findChild<QLabel*>()->text(), page->fileNames.at(bar->value()));
        QTest::keyClick(running, Qt::Key_Escape);
        QVERIFY(messageText().contains(QStringLiteral("操作已取消")));
    }

    /// The photographs go, and with them the page; work, progress and message go on without it.
    void theDiskMayBePulledOutHalfWay()
    {
        startAndStopHalfWay(Csv);
        QVERIFY(QDir(root).removeRecursively());
        delete page;
        const int count = written().size();
        QTRY_VERIFY(message());
        QCOMPARE(message()->detailedText().split(QLatin1Char('\n')).size(), 40 - count);
        QVERIFY(messageText().startsWith(successText(count)));
        QCOMPARE(written().size(), count);
    }

    void theWindowMayGoHalfWay()
    {
        startAndStopHalfWay(Csv);
        const int count = written().size();
        frame.reset();
        QCoreApplication::processEvents();
        QCOMPARE(written().size(), count);
    }

    void aTargetThatGoesAway()
    {
        startAndStopHalfWay(Copy);
        const int count = written().size();
        QVERIFY(QDir(target).removeRecursively());
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.at(0), successText(count));
        QCOMPARE(lines.at(1), QStringLiteral("%1 张照片未能处理：").arg(40 - count));
        QVERIFY(lines.at(2).startsWith(name(count) + QStringLiteral("：无法写入（")));
        QVERIFY(!QDir(target).exists());
    }
};

int main(int argc, char** argv)
{
    return testing::run<SelectionJobTest>(argc, argv);
}

#include "selection_job_test.moc"
