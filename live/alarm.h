// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace live {

/// How the read-out of the maximum looks.
enum class Look
{
    Unchanged,
    Below,    ///< green on white
    Above,    ///< red on white
    BlinkOn,  ///< yellow on red
    BlinkOff, ///< red on white
};

/// The read-out's style sheet; empty for Unchanged. Those of Below and Above have a blank behind
/// the line break.
QString styleSheetOf(Look look);

enum class Change
{
    None,
    Start, ///< or go on
    Stop,
};

/// What the page has to do, in this order.
struct AlarmActions
{
    Change blinking = Change::None; ///< ticks, every 500 ms
    Change sound = Change::None;
    bool writesRecord = false;
    Look look = Look::Unchanged;
};

/// The alarm: what it knows, and what each event makes of it. Nothing here shows, sounds or writes
/// anything; the answer says what is to be done.
///
/// Idle while the maximum is below the threshold. Above it and enabled, the alarm blinks, and the
/// eighth frame in a row makes the excursion's one record. Stopped, it is silent until a frame
/// below or until the enabling box is used.
struct AlarmState
{
    static constexpr int frameOfRecord = 8;
    static constexpr int parked = 9; ///< overCount behind the record

    bool alarmEnabled = false;
    bool alarmSilenced = false; ///< stop was pressed; until a frame below or the enabling box
    bool alarmFilesEnabled = false;
    bool soundEnabled = false;
    int overCount = 0;          ///< frames towards the record, 0 … 8, then parked at 9
    bool blinkPhase = false;    ///< which of the two blinking looks comes next
    QList<QImage> recentFrames; ///< the last seven pictures, oldest first
    QString lastAlarmText = QStringLiteral("36.2,34.0,0.97"); ///< text of the last record

    void onPicture(const QImage& picture);
    /// The numbers of a frame, whose picture is in the ring already. What is not a number counts as
    /// below.
    AlarmActions onFrame(float maximum, float threshold);
    AlarmActions onTick();
    /// The button that stops the current alarm.
    AlarmActions onStop();
    /// The three boxes. Disabling the alarm unchecks the other two, which is up to the page.
    void onAlarmEnabled(bool enabled);
    void onSoundEnabled(bool enabled);
    void onFilesEnabled(bool enabled);

private:
    bool countToRecord();
};

} // namespace live
