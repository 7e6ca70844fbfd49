// SPDX-License-Identifier: MIT
// The spoken alarm.
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QFile>
#include <QMediaPlayer>
#include <QPushButton>

using testing::Page;

namespace {

constexpr float over = 50.0F;
constexpr float below = 39.9F;

} // namespace

class CamerWindowSoundTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    void soundOfTheLanguage_data();
    void soundOfTheLanguage();
    void soundPlaysWhileTheAlarmLasts();
    void soundIsNotRestartedWhilePlaying();
    void tickWithoutSoundStopsThePlayer();
    void disablingLeavesThePlayer();
};

void CamerWindowSoundTest::soundOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QUrl>("url");
    for (const char* language : {"CH", "EN", "KO", "RU"})
        QTest::newRow(language)
            << QString::fromLatin1(language)
            << QUrl(QStringLiteral("qrc:/Sound/%1/Alarm.wav").arg(QLatin1String(language)));
    QTest::newRow("unknown") << QStringLiteral("XX") << QUrl();
    QTest::newRow("lower case") << QStringLiteral("en") << QUrl();
    QTest::newRow("none") << QString() << QUrl();
}

void CamerWindowSoundTest::soundOfTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QUrl, url);
    testing::configure(language, m_folder);
    const Page page;
    page.check("checkBox");
    page.check("checkBox_2");
    QCOMPARE(page->player->media().request().url(), QUrl());
    page.frame(over);
    page->timeout_warn();
    QCOMPARE(page->player->media().request().url(), url);
    if (!url.isEmpty())
        QVERIFY(QFile::exists(QLatin1Char(':') + url.path()));
}

void CamerWindowSoundTest::soundPlaysWhileTheAlarmLasts()
{
    const Page page;
    page.check("checkBox");
    page.check("checkBox_2");
    page.frame(over);
    QCOMPARE(page->player->state(), QMediaPlayer::StoppedState);
    page->timeout_warn();
    QTRY_COMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page.frame(over);
    QCOMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page.frame(below);
    QCOMPARE(page->player->state(), QMediaPlayer::StoppedState);

    page.frame(over);
    page->timeout_warn();
    QTRY_COMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page.pressStop();
    QCOMPARE(page->player->state(), QMediaPlayer::StoppedState);
}

void CamerWindowSoundTest::soundIsNotRestartedWhilePlaying()
{
    const Page page;
    page.check("checkBox");
    page.check("checkBox_2");
    page->timeout_warn();
    QTRY_COMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page->languageCode = QStringLiteral("RU"); // would change the sound
    page->timeout_warn();
    QCOMPARE(page->player->media().request().url(),
             QUrl(QStringLiteral("qrc:/Sound/EN/Alarm.wav")));
    page->player->stop(); // it has ended
    page->timeout_warn();
    QCOMPARE(page->player->media().request().url(),
             QUrl(QStringLiteral("qrc:/Sound/RU/Alarm.wav")));
    QTRY_COMPARE(page->player->state(), QMediaPlayer::PlayingState);
}

void CamerWindowSoundTest::tickWithoutSoundStopsThePlayer()
{
    const Page page;
    page.check("checkBox");
    page.check("checkBox_2");
    page->timeout_warn();
    QTRY_COMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page.check("checkBox_2", false);
    QCOMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page->timeout_warn();
    QCOMPARE(page->player->state(), QMediaPlayer::StoppedState);
}

void CamerWindowSoundTest::disablingLeavesThePlayer()
{
    const Page page;
    page.check("checkBox");
    page.check("checkBox_2");
    page.frame(over);
    page->timeout_warn();
    QTRY_COMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page.check("checkBox", false);
    page.frame(over);
    QCOMPARE(page->player->state(), QMediaPlayer::PlayingState);
    page.frame(below);
    QCOMPARE(page->player->state(), QMediaPlayer::StoppedState);
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowSoundTest>(argc, argv);
}

#include "camer_window_sound_test.moc"
