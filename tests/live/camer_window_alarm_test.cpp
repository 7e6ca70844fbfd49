// SPDX-License-Identifier: MIT
#include "tests/live/page.h"
#include "tests/support/test_run.h"

#include <QCheckBox>
#include <QDir>
#include <QPushButton>

#include <cmath>
#include <limits>

using testing::Page;

namespace {

const QString greenStyle =
    QStringLiteral("background-color: rgb(255, 255, 255);\n color: rgb(80, 180, 50);");
const QString steadyRedStyle =
    QStringLiteral("background-color: rgb(255, 255, 255);\n color: rgb(255, 0, 0);");
const QString yellowOnRedStyle =
    QStringLiteral("background-color: rgb(255, 0, 0);\ncolor: rgb(255, 255, 0);");
const QString redOnWhiteStyle =
    QStringLiteral("background-color: rgb(255, 255, 255);\ncolor: rgb(255, 0, 0);");

constexpr float over = 50.0F;
constexpr float below = 39.9F;
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

QString readOutStyle(const Page& page)
{
    return page.style("label_6");
}

} // namespace

class CamerWindowAlarmTest : public testing::PageTest
{
    Q_OBJECT

private slots:
    void readOuts_data();
    void readOuts();
    void aboveWithoutAlarmIsSteadyRed();
    void equalCountsAsAbove();
    void notANumberCountsAsBelow_data();
    void notANumberCountsAsBelow();
    void enabledAlarmBlinks();
    void blinkingRunsByItself();
    void blinkPhaseIsKept();
    void belowEndsTheAlarm();
    void boxesFollowTheEnablingBox();
    void disablingDuringAnExcursion();
    void stopSilencesTheExcursion();
    void stopWhileIdleSilencesTheNextExcursion();
    void enablingBoxEndsTheSilence();
    void disabledAndSilencedIsSteadyRed();

private:
    QStringList recordsOnDisk() const
    {
        return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    }
};

void CamerWindowAlarmTest::readOuts_data()
{
    QTest::addColumn<float>("maximum");
    QTest::addColumn<float>("threshold");
    QTest::addColumn<float>("emissivity");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("usual") << 36.2F << 34.0F << 0.97F << QStringList({"36.2", "34.0", "0.97"});
    QTest::newRow("whole") << 100.0F << 0.0F << 1.0F << QStringList({"100.0", "0.0", "1.00"});
    QTest::newRow("largest") << 6553.5F << 3276.8F << 655.35F
                             << QStringList({"6553.5", "3276.8", "655.35"});
    QTest::newRow("halves away from zero")
        << 30.25F << 0.75F << 0.125F << QStringList({"30.3", "0.8", "0.13"});
    QTest::newRow("not a number") << notANumber << 40.0F << 0.95F
                                  << QStringList({"nan", "40.0", "0.95"});
}

void CamerWindowAlarmTest::readOuts()
{
    QFETCH(float, maximum);
    QFETCH(float, threshold);
    QFETCH(float, emissivity);
    QFETCH(QStringList, texts);
    const Page page;
    page->updat_temp(maximum, threshold, emissivity);
    QCOMPARE(QStringList({page.text("label_6"), page.text("label_7"), page.text("label_8")}),
             texts);
}

void CamerWindowAlarmTest::aboveWithoutAlarmIsSteadyRed()
{
    const Page page;
    page.frames(20, over);
    QCOMPARE(readOutStyle(page), steadyRedStyle);
    QVERIFY(!page->warnTimer->isActive());
    QCOMPARE(page->overCount, 0);
    page.frame(below);
    QCOMPARE(readOutStyle(page), greenStyle);
    QCOMPARE(recordsOnDisk(), QStringList());
}

void CamerWindowAlarmTest::equalCountsAsAbove()
{
    const Page page;
    page.frame(40.0F, 40.0F);
    QCOMPARE(readOutStyle(page), steadyRedStyle);
    page.enableAlarm();
    page.frame(40.0F, 40.0F);
    QVERIFY(page->warnTimer->isActive());
    QCOMPARE(page->overCount, 1);
    page.frame(std::nextafter(40.0F, 0.0F), 40.0F);
    QVERIFY(!page->warnTimer->isActive());
}

void CamerWindowAlarmTest::notANumberCountsAsBelow_data()
{
    QTest::addColumn<float>("maximum");
    QTest::addColumn<float>("threshold");
    QTest::newRow("maximum") << notANumber << 40.0F;
    QTest::newRow("threshold") << 50.0F << notANumber;
    QTest::newRow("both") << notANumber << notANumber;
}

void CamerWindowAlarmTest::notANumberCountsAsBelow()
{
    QFETCH(float, maximum);
    QFETCH(float, threshold);
    const Page page;
    page.enableAlarm();
    page.frames(3, over);
    page.pressStop();
    page.frame(maximum, threshold);
    QCOMPARE(readOutStyle(page), greenStyle);
    QVERIFY(!page->warnTimer->isActive());
    QVERIFY(!page->alarmSilenced);
    QCOMPARE(page->overCount, 0);
}

void CamerWindowAlarmTest::enabledAlarmBlinks()
{
    const Page page;
    page.frame(below);
    page.check("checkBox");
    page.frame(over);
    QVERIFY(page->warnTimer->isActive());
    QCOMPARE(page->warnTimer->interval(), 500);
    QCOMPARE(readOutStyle(page), greenStyle); // until the first tick
    page->timeout_warn();
    QCOMPARE(readOutStyle(page), redOnWhiteStyle);
    page->timeout_warn();
    QCOMPARE(readOutStyle(page), yellowOnRedStyle);
    page.frame(over);
    QCOMPARE(readOutStyle(page), yellowOnRedStyle); // frames leave the style to the ticks
    page->timeout_warn();
    QCOMPARE(readOutStyle(page), redOnWhiteStyle);
}

void CamerWindowAlarmTest::blinkingRunsByItself()
{
    const Page page;
    page.check("checkBox");
    page.frame(over);
    for (const QString& style : {redOnWhiteStyle, yellowOnRedStyle, redOnWhiteStyle})
        QTRY_COMPARE(readOutStyle(page), style);
}

void CamerWindowAlarmTest::blinkPhaseIsKept()
{
    const Page page;
    page.check("checkBox");
    page.frame(over);
    page->timeout_warn();
    QVERIFY(page->blinkPhase);
    page.frame(below);
    page.pressStop();
    page.check("checkBox", false);
    QVERIFY(page->blinkPhase);
    page.check("checkBox");
    page.frame(over);
    page->timeout_warn();
    QCOMPARE(readOutStyle(page), yellowOnRedStyle);
}

void CamerWindowAlarmTest::belowEndsTheAlarm()
{
    const Page page;
    page.enableAlarm();
    page.frames(5, over);
    page->timeout_warn();
    page.frame(below);
    QVERIFY(!page->warnTimer->isActive());
    QCOMPARE(page->overCount, 0);
    QCOMPARE(readOutStyle(page), greenStyle);
}

void CamerWindowAlarmTest::boxesFollowTheEnablingBox()
{
    const Page page;
    auto* const sound = page.get<QCheckBox>("checkBox_2");
    auto* const files = page.get<QCheckBox>("checkBox_3");
    page.check("checkBox");
    QVERIFY(page->alarmEnabled && sound->isEnabled() && files->isEnabled());
    QVERIFY(!sound->isChecked() && !files->isChecked());
    sound->setChecked(true);
    files->setChecked(true);
    QVERIFY(page->soundEnabled && page->alarmFilesEnabled);
    page.frames(3, over);
    page.check("checkBox", false);
    QVERIFY(!page->alarmEnabled && !page->soundEnabled && !page->alarmFilesEnabled);
    QVERIFY(!sound->isEnabled() && !files->isEnabled());
    QVERIFY(!sound->isChecked() && !files->isChecked());
    QCOMPARE(page->overCount, 0);
}

void CamerWindowAlarmTest::disablingDuringAnExcursion()
{
    const Page page;
    page.enableAlarm();
    page.frames(3, over);
    page->timeout_warn();
    page.check("checkBox", false);
    QVERIFY(page->warnTimer->isActive()); // the next frame ends it
    page.frame(over);
    QVERIFY(!page->warnTimer->isActive());
    QCOMPARE(readOutStyle(page), steadyRedStyle);
}

void CamerWindowAlarmTest::stopSilencesTheExcursion()
{
    const Page page;
    page.enableAlarm();
    page.frames(3, over);
    page->timeout_warn();
    page->timeout_warn();
    page.pressStop();
    QVERIFY(page->alarmSilenced);
    QVERIFY(!page->warnTimer->isActive());
    QCOMPARE(readOutStyle(page), redOnWhiteStyle);
    page.frames(20, over);
    QVERIFY(!page->warnTimer->isActive());
    QCOMPARE(page->overCount, 3);
    QCOMPARE(readOutStyle(page), redOnWhiteStyle);
    QCOMPARE(page.text("label_6"), QStringLiteral("50.0"));
    page.frame(below);
    QVERIFY(!page->alarmSilenced);
    page.frame(over);
    QVERIFY(page->warnTimer->isActive());
    QCOMPARE(page->overCount, 1);
}

void CamerWindowAlarmTest::stopWhileIdleSilencesTheNextExcursion()
{
    const Page page;
    page.enableAlarm();
    page.frame(below);
    page.pressStop();
    page.frames(10, over);
    QVERIFY(!page->warnTimer->isActive());
    QCOMPARE(page->overCount, 0);
}

void CamerWindowAlarmTest::enablingBoxEndsTheSilence()
{
    const Page page;
    for (const bool checked : {true, false}) {
        page.check("checkBox", !checked);
        page.pressStop();
        QVERIFY(page->alarmSilenced);
        page.check("checkBox", checked);
        QVERIFY(!page->alarmSilenced);
    }
}

void CamerWindowAlarmTest::disabledAndSilencedIsSteadyRed()
{
    const Page page;
    page.pressStop();
    page.frame(over);
    QCOMPARE(readOutStyle(page), steadyRedStyle);
    QVERIFY(!page->warnTimer->isActive());
}

int main(int argc, char** argv)
{
    return testing::run<CamerWindowAlarmTest>(argc, argv);
}

#include "camer_window_alarm_test.moc"
