// SPDX-License-Identifier: MIT
// Records of a program that is killed in between, and pipes that would make one wait for ever.
#include "live/alarm_records.h"
#include "tests/live/page.h"
#include "tests/live/seven_pictures.h"
#include "tests/support/test_run.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>

#include <csignal>
#include <ctime>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using testing::Page;
using testing::sevenPictures;

namespace {

const QString recordName = QStringLiteral("20240101120000");

/// A program that does nothing but write records until it is killed.
class Writer
{
public:
    explicit Writer(const QString& folder) : m_process(fork())
    {
        if (m_process != 0)
            return;
        const QList<QImage> pictures = sevenPictures();
        for (int second = 0;; ++second)
            live::writeRecord(folder, QDateTime({2024, 1, 1}, {0, 0}).addSecs(second), pictures,
                              QStringLiteral("1,2,3"));
    }
    ~Writer()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

private:
    pid_t m_process;
};

void makePipe(const QString& path)
{
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
}

} // namespace

class AlarmKillTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    /// Killed at another picture each time: what is listed is whole, what is not whole is gone with
    /// the next record.
    void killedAtAnyPicture_data()
    {
        QTest::addColumn<int>("pictures");
        for (int pictures = 0; pictures <= live::recordPictures; ++pictures)
            QTest::newRow(qPrintable(QString::number(pictures))) << pictures;
    }
    void killedAtAnyPicture()
    {
        QFETCH(int, pictures);
        {
            const Writer writer(m_folder);
            // The moment is short: looked for without a pause.
            QElapsedTimer waited;
            waited.start();
            while (!makingHas(pictures))
                QVERIFY(!waited.hasExpired(60000));
        }
        verifyAllWhole();
        QVERIFY(!live::writeRecord(m_folder, QDateTime({2025, 1, 1}, {0, 0}), sevenPictures(),
                                   QStringLiteral("4,5,6"))
                     .isEmpty());
        verifyAllWhole();
        QCOMPARE(QDir(m_folder).entryList({QStringLiteral(".*")},
                                          QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
    }

    /// What somebody else is just making is left alone.
    void twoProgramsWriteIntoOneFolder()
    {
        {
            const Writer writer(m_folder);
            QTRY_VERIFY_WITH_TIMEOUT(!live::recordNames(m_folder).isEmpty(), 30000);
            for (int i = 0; i < 50; ++i)
                QVERIFY(!live::writeRecord(m_folder, QDateTime({2024, 1, 1}, {0, 0}).addSecs(i),
                                           sevenPictures(), QStringLiteral("4,5,6"))
                             .isEmpty());
        }
        verifyAllWhole();
        int ours = 0;
        for (const QString& name : live::recordNames(m_folder))
            ours += live::recordReadings(m_folder, name).maximum == QLatin1String("4") ? 1 : 0;
        QCOMPARE(ours, 50);
    }

    void aPipeIsNoText()
    {
        QVERIFY(QDir(m_folder).mkdir(recordName));
        makePipe(path(recordName + QStringLiteral(".ini")));
        QCOMPARE(live::recordReadings(m_folder, recordName).maximum, QString());
    }

    void aLinkToATextIsOne()
    {
        testing::putFile(path(QStringLiteral("elsewhere")), "1,2,3");
        QVERIFY(QFile::link(path(QStringLiteral("elsewhere")),
                            path(recordName + QStringLiteral(".ini"))));
        QCOMPARE(live::recordReadings(m_folder, recordName).maximum, QStringLiteral("1"));
    }

    void pipesAreNoPictures()
    {
        QVERIFY(QDir(m_folder).mkdir(recordName));
        const QString record = path(recordName) + QLatin1Char('/');
        makePipe(path(QStringLiteral("pipe")));
        makePipe(record + QStringLiteral("a.png"));
        QVERIFY(QFile::link(path(QStringLiteral("pipe")), record + QStringLiteral("b.png")));
        QVERIFY(QFile::link(path(QStringLiteral("nothing")), record + QStringLiteral("c.png")));
        QImage picture(24, 32, QImage::Format_RGB888);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path(QStringLiteral("real.png"))));
        QVERIFY(QFile::link(path(QStringLiteral("real.png")), record + QStringLiteral("d.png")));
        const Page page;
        auto* const list = page.get<QListWidget>("listWidget_2");
        emit list->itemClicked(list->item(0));
        QCOMPARE(page.rows("listWidget_3"), QStringList(QStringLiteral("d.png")));
        QCOMPARE(page->historyPixmaps.value(0).size(), QSize(24, 32));
    }

    void recordsAreNamedInLocalTime_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<int>("hours");
        QTest::newRow("nine hours east") << QByteArray("EAST-9") << 9;
        QTest::newRow("ten hours west") << QByteArray("WEST10") << -10;
    }
    void recordsAreNamedInLocalTime()
    {
        QFETCH(QByteArray, zone);
        QFETCH(int, hours);
        const QByteArray before = qgetenv("TZ");
        qputenv("TZ", zone);
        tzset();
        const Page page;
        const auto nameNow = [hours] {
            return QLocale::c().toString(QDateTime::currentDateTimeUtc().addSecs(hours * 3600),
                                         QStringLiteral("yyyyMMddhhmmss"));
        };
        const QString earliest = nameNow();
        page.frames(7, 20);
        page->saveAlarmRecord();
        const QString latest = nameNow();
        before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
        tzset();
        const QString name = live::recordNames(m_folder).value(0);
        QVERIFY(earliest <= name && name <= latest);
    }

private:
    /// True when a record in the making has that many files.
    bool makingHas(int files) const
    {
        const QDir making(path(QStringLiteral(".making")));
        for (const QString& record : making.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (QDir(making.filePath(record)).entryList(QDir::Files).size() >= files)
                return true;
        }
        return false;
    }

    void verifyAllWhole() const
    {
        for (const QString& name : live::recordNames(m_folder)) {
            const QStringList pictures = live::recordPicturePaths(m_folder, name);
            QCOMPARE(pictures.size(), live::recordPictures);
            for (const QString& picture : pictures)
                QCOMPARE(QImage(picture).size(), QSize(240, 320));
            QVERIFY(!live::recordReadings(m_folder, name).emissivity.isEmpty());
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<AlarmKillTest>(argc, argv);
}

#include "alarm_kill_test.moc"
