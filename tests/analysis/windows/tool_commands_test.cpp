// SPDX-License-Identifier: MIT
#include "analysis/windows/tool_commands.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QMenu>

using testing::flat;
using testing::placedPoint;

/// Undo and redo, keys and context menus of the analysis window.
class ToolCommandsTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void eachGestureIsOneStep()
    {
        begin();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(50, 60));
        QCOMPARE(names(), QStringLiteral("P0"));
        click("pushButton_7");
        drag(at(10, 200), at(100, 250));
        click("pushButton_6");
        drag(at(100, 10), at(200, 60));
        click("pushButton_5");
        drag(at(150, 100), at(170, 100));
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        click("pushButton_9");
        drag(at(48, 58), at(80, 90)); // moves the point
        QCOMPARE(label().pointList.first().x, 80);
        click("pushButton_2");
        QCOMPARE(names(), QString());

        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QCOMPARE(label().pointList.first().x, 80);
        undo();
        QCOMPARE(label().pointList.first().x, 50);
        for (const char* left : {"P0 L0 R0", "P0 L0", "P0", "", ""}) {
            undo();
            QCOMPARE(names(), QString::fromLatin1(left));
        }
        for (const char* there : {"P0", "P0 L0", "P0 L0 R0", "P0 L0 R0 C0"}) {
            redo();
            QCOMPARE(names(), QString::fromLatin1(there));
        }
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(label().pointList.first().x, 80);
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(names(), QString());
        redo();
        QCOMPARE(names(), QString());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ToolCommandsTest>(argc, argv);
}

#include "tool_commands_test.moc"
