// SPDX-License-Identifier: MIT
// The alarm without a window: no application object, no timer, no sound.
#include "live/alarm.h"

#include <QtTest>

#include <cmath>
#include <limits>

using live::AlarmActions;
using live::AlarmState;
using live::Change;

namespace {

constexpr float threshold = 40.0F;
constexpr float above = 50.0F;
constexpr float below = 39.9F;

/// One letter an answer: blinking, sound, record, look; "-" where nothing is asked for.
QString asText(const AlarmActions& actions)
{
    const auto change = [](Change asked) {
        return asked == Change::None ? '-' : asked == Change::Start ? '+' : '0';
    };
    const char look[] = {'-', 'g', 'r', 'Y', 'R'}; // green, red, yellow on red, red on white
    return QString::fromLatin1(QByteArray() + change(actions.blinking) + change(actions.sound) +
                               (actions.writesRecord ? 'w' : '-') + look[int(actions.look)]);
}

AlarmState enabled()
{
    AlarmState alarm;
    alarm.onAlarmEnabled(true);
    alarm.onFilesEnabled(true);
    return alarm;
}

/// The answers to as many frames above.
QString framesAbove(AlarmState& alarm, int count)
{
    QStringList answers;
    for (int i = 0; i < count; ++i)
        answers.append(asText(alarm.onFrame(above, threshold)));
    answers.removeDuplicates();
    return answers.join(QLatin1Char(' '));
}

} // namespace

class AlarmTest : public QObject
{
    Q_OBJECT

private slots:
    void startsQuiet()
    {
        const AlarmState alarm;
        QVERIFY(!alarm.alarmEnabled && !alarm.alarmSilenced && !alarm.alarmFilesEnabled);
        QVERIFY(!alarm.soundEnabled && !alarm.blinkPhase);
        QCOMPARE(alarm.overCount, 0);
        QCOMPARE(alarm.lastAlarmText, QStringLiteral("36.2,34.0,0.97"));
        QVERIFY(alarm.recentFrames.isEmpty());
    }

    void framesWithoutAnAlarm()
    {
        AlarmState alarm;
        QCOMPARE(asText(alarm.onFrame(below, threshold)), QStringLiteral("00-g"));
        QCOMPARE(framesAbove(alarm, 20), QStringLiteral("0--r"));
        QCOMPARE(alarm.overCount, 0);
    }

    void enabledItBlinksAndLeavesTheLookToTheTicks()
    {
        AlarmState alarm;
        alarm.onAlarmEnabled(true);
        QCOMPARE(framesAbove(alarm, 20), QStringLiteral("+---"));
        QCOMPARE(asText(alarm.onTick()), QStringLiteral("-0-R"));
        QCOMPARE(asText(alarm.onTick()), QStringLiteral("-0-Y"));
        alarm.onSoundEnabled(true);
        QCOMPARE(asText(alarm.onTick()), QStringLiteral("-+-R"));
        QCOMPARE(asText(alarm.onFrame(below, threshold)), QStringLiteral("00-g"));
        QCOMPARE(asText(alarm.onTick()), QStringLiteral("-+-Y")); // the phase is kept
    }

    void whatCountsAsAbove_data()
    {
        const float nan = std::numeric_limits<float>::quiet_NaN();
        QTest::addColumn<float>("maximum");
        QTest::addColumn<float>("limit");
        QTest::addColumn<bool>("isAbove");
        QTest::newRow("equal") << threshold << threshold << true;
        QTest::newRow("just below") << std::nextafter(threshold, 0.0F) << threshold << false;
        QTest::newRow("no maximum") << nan << threshold << false;
        QTest::newRow("no threshold") << above << nan << false;
        QTest::newRow("neither") << nan << nan << false;
    }
    void whatCountsAsAbove()
    {
        QFETCH(float, maximum);
        QFETCH(float, limit);
        QFETCH(bool, isAbove);
        AlarmState alarm = enabled();
        QCOMPARE(asText(alarm.onFrame(maximum, limit)),
                 isAbove ? QStringLiteral("+---") : QStringLiteral("00-g"));
        QCOMPARE(alarm.overCount, isAbove ? 1 : 0);
    }

    void theEighthFrameMakesTheOneRecord()
    {
        AlarmState alarm = enabled();
        QCOMPARE(framesAbove(alarm, 7), QStringLiteral("+---"));
        QCOMPARE(alarm.overCount, 7);
        QCOMPARE(framesAbove(alarm, 1), QStringLiteral("+-w-"));
        QCOMPARE(alarm.overCount, 9);
        QCOMPARE(framesAbove(alarm, 100), QStringLiteral("+---"));
        QCOMPARE(alarm.overCount, 9);
        alarm.onFrame(below, threshold);
        QCOMPARE(alarm.overCount, 0);
        QCOMPARE(framesAbove(alarm, 7), QStringLiteral("+---"));
        QCOMPARE(framesAbove(alarm, 1), QStringLiteral("+-w-"));
    }

    void recordsAreCountedOnlyWhileTheyAreWanted()
    {
        AlarmState alarm;
        alarm.onAlarmEnabled(true);
        framesAbove(alarm, 10);
        QCOMPARE(alarm.overCount, 0);
        alarm.onFilesEnabled(true);
        QCOMPARE(framesAbove(alarm, 8), QStringLiteral("+--- +-w-"));
        alarm.onFilesEnabled(false); // and on again: a second record of one excursion
        QCOMPARE(alarm.overCount, 0);
        alarm.onFilesEnabled(true);
        QCOMPARE(framesAbove(alarm, 8), QStringLiteral("+--- +-w-"));
        alarm.onAlarmEnabled(false);
        QCOMPARE(alarm.overCount, 0);
    }

    void stoppedUntilAFrameBelow()
    {
        AlarmState alarm = enabled();
        framesAbove(alarm, 3);
        QCOMPARE(asText(alarm.onStop()), QStringLiteral("00-R"));
        QVERIFY(alarm.alarmSilenced);
        QCOMPARE(framesAbove(alarm, 20), QStringLiteral("----"));
        QCOMPARE(alarm.overCount, 3);
        alarm.onFrame(below, threshold);
        QVERIFY(!alarm.alarmSilenced);
        QCOMPARE(framesAbove(alarm, 1), QStringLiteral("+---"));
    }

    void stoppedUntilTheEnablingBox()
    {
        for (const bool enables : {true, false}) {
            AlarmState alarm = enabled();
            alarm.onStop();
            alarm.onAlarmEnabled(enables);
            QVERIFY(!alarm.alarmSilenced);
            QCOMPARE(framesAbove(alarm, 1),
                     enables ? QStringLiteral("+---") : QStringLiteral("0--r"));
        }
    }

    void stoppedAndNotEnabledItIsRed()
    {
        AlarmState alarm;
        alarm.onStop();
        QCOMPARE(framesAbove(alarm, 2), QStringLiteral("0--r"));
    }

    void theRingHoldsSevenPictures()
    {
        AlarmState alarm;
        for (int i = 1; i <= 10; ++i) {
            QImage picture(1, 1, QImage::Format_RGB888);
            picture.fill(QColor(i, i, i));
            alarm.onPicture(picture);
            QCOMPARE(alarm.recentFrames.size(), qMin(i, 7));
        }
        for (int i = 0; i < 7; ++i)
            QCOMPARE(alarm.recentFrames[i].pixelColor(0, 0).red(), i + 4);
    }
};

QTEST_APPLESS_MAIN(AlarmTest)

#include "alarm_test.moc"
