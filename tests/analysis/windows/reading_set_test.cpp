// SPDX-License-Identifier: MIT
#include "analysis/windows/reading_set.h"
#include "analysis/windows/viewed_photograph.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>

using analysis::ReadingSet;

class ReadingSetTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void isHiddenWithoutACorrection()
    {
        begin();
        QWidget around;
        ReadingSet set(viewed(), &around);
        around.show();
        QVERIFY(!set.isVisible());
        QCOMPARE(set.texts().at(5, 6), stored());
    }

    void offersTheCorrectedSet()
    {
        begin();
        viewed().setCorrection(analysis::Correction{0.95, 0.5, 20});
        QWidget around;
        ReadingSet set(viewed(), &around);
        QVERIFY(!set.isWindow());
        around.show();
        QVERIFY(set.isVisible());
        QCOMPARE(name(set), QStringLiteral("存储的读数"));
        QCOMPARE(set.texts().at(5, 6), stored());
        const QSignalSpy chosen(&set, &ReadingSet::chosen);
        testing::part<QCheckBox>(&set, "corrected")->click();
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(name(set), viewed().correctionName());
        const QString corrected =
            QString::number(double((*viewed().corrected())[5 * 320 + 6]), 'f', 1);
        QVERIFY(corrected != stored());
        QCOMPARE(set.texts().at(5, 6), corrected);
        // It stays chosen for another correction, and there is nothing to choose without one.
        viewed().setCorrection(analysis::Correction{0.95, 0.7, 20});
        set.refresh();
        QCOMPARE(name(set), viewed().correctionName());
        viewed().setCorrection({});
        set.refresh();
        QVERIFY(!set.isVisible());
        QCOMPARE(set.texts().at(5, 6), stored());
    }

private:
    analysis::ViewedPhotograph& viewed() const { return window->commands().viewed(); }
    static QString name(const ReadingSet& set)
    {
        return testing::part<QLabel>(&set, "set")->text();
    }
    /// Gray 100 of 255 between 20 °C and 50 °C.
    static QString stored() { return QStringLiteral("31.8"); }
};

int main(int argc, char** argv)
{
    return testing::run<ReadingSetTest>(argc, argv);
}

#include "reading_set_test.moc"
