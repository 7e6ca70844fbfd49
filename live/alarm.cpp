// SPDX-License-Identifier: MIT
#include "live/alarm.h"

#include "live/alarm_records.h"

#include <array>

namespace live {

QString styleSheetOf(Look look)
{
    constexpr std::array<const char*, 5> sheets{
        "", "background-color: rgb(255, 255, 255);\n color: rgb(80, 180, 50);",
        "background-color: rgb(255, 255, 255);\n color: rgb(255, 0, 0);",
        "background-color: rgb(255, 0, 0);\ncolor: rgb(255, 255, 0);",
        "background-color: rgb(255, 255, 255);\ncolor: rgb(255, 0, 0);"};
    return QLatin1String(sheets.at(std::size_t(look)));
}

void AlarmState::onPicture(const QImage& picture)
{
    if (recentFrames.size() >= recordPictures)
        recentFrames.removeFirst();
    recentFrames.append(picture);
}

AlarmActions AlarmState::onFrame(float maximum, float threshold)
{
    AlarmActions actions;
    const bool isAbove = maximum >= threshold; // false for what is not a number
    if (!isAbove) {
        overCount = 0;
        alarmSilenced = false;
        actions.blinking = Change::Stop;
        actions.sound = Change::Stop;
        actions.look = Look::Below;
    } else if (!alarmEnabled) {
        actions.blinking = Change::Stop;
        actions.look = Look::Above;
    } else if (!alarmSilenced) {
        actions.blinking = Change::Start;
        actions.writesRecord = alarmFilesEnabled && countToRecord();
    }
    return actions;
}

/// One record per excursion, whatever comes of it.
bool AlarmState::countToRecord()
{
    if (overCount < frameOfRecord)
        ++overCount;
    if (overCount != frameOfRecord)
        return false;
    overCount = parked;
    return true;
}

AlarmActions AlarmState::onTick()
{
    AlarmActions actions;
    actions.look = blinkPhase ? Look::BlinkOn : Look::BlinkOff;
    actions.sound = soundEnabled ? Change::Start : Change::Stop;
    blinkPhase = !blinkPhase;
    return actions;
}

AlarmActions AlarmState::onStop()
{
    alarmSilenced = true;
    AlarmActions actions;
    actions.blinking = Change::Stop;
    actions.sound = Change::Stop;
    actions.look = Look::BlinkOff;
    return actions;
}

void AlarmState::onAlarmEnabled(bool enabled)
{
    alarmEnabled = enabled;
    alarmSilenced = false;
    if (!enabled)
        overCount = 0;
}

void AlarmState::onSoundEnabled(bool enabled)
{
    soundEnabled = enabled;
}

void AlarmState::onFilesEnabled(bool enabled)
{
    alarmFilesEnabled = enabled;
    if (!enabled)
        overCount = 0;
}

} // namespace live
