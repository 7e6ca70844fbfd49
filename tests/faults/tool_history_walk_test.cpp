// SPDX-License-Identifier: MIT
#include "overlay/tool_history.h"
#include "tests/faults/endurance.h"

#include <random>

using namespace overlay;

/// Whatever mouse and keyboard do to the tools, in any order: undoing everything leads back to the
/// start and redoing everything to the end, to the last number, and the history never holds more
/// than it should.
class ToolHistoryWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Every hit is logged.
        m_previous =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        m_random.seed(testing::scale().seed);
    }
    void cleanupTestCase() { qInstallMessageHandler(m_previous); }

    void everythingUndoneIsTheStart()
    {
        int longest = 0;
        int mostTools = 0;
        for (int left = testing::scale().times; left > 0;) {
            startAnew();
            // Some walks are too short for the history to forget, most are not.
            const int steps = std::min(left, 1 + roll(roll(3) == 0 ? 200 : 2000));
            for (int step = 0; step < steps; ++step) {
                takeStep();
                if (QTest::currentTestFailed())
                    return;
                mostTools = std::max(mostTools, countOf(m_states.last().tools));
            }
            longest = std::max(longest, m_states.size());
            undoAndRedoEverything();
            if (QTest::currentTestFailed())
                return;
            left -= steps;
        }
        // The walk has been somewhere.
        QVERIFY2(mostTools > 10, qPrintable(QString::number(mostTools)));
        QVERIFY2(longest > ToolHistory::mostSteps, qPrintable(QString::number(longest)));
        QVERIFY2(m_undone > 0 && m_redone > 0, "no undo or no redo");
    }

private:
    int roll(int count) { return int(m_random() % unsigned(count)); }

    void startAnew()
    {
        m_tools = {};
        m_history.restart(stateOf(m_tools));
        m_states = {stateOf(m_tools)};
        m_present = m_first = 0;
    }

    void takeStep()
    {
        const int kind = roll(100);
        if (kind < 12)
            return undo();
        if (kind < 22)
            return redo();
        if (kind < 55)
            drawSomething();
        else if (kind < 70)
            moveSelected(m_tools, roll(41) - 20, roll(41) - 20);
        else if (kind < 80)
            moveSelectedEnd(m_tools, roll(41) - 20, roll(41) - 20);
        else if (kind < 88)
            selectNext(m_tools, roll(5) - 2);
        else if (kind < 95)
            removeSelectedTool(m_tools);
        else if (kind < 97)
            m_tools.toolColor = QColor(roll(256), roll(256), roll(256));
        else if (kind < 99)
            setMode(m_tools, 1 + roll(5));
        else
            static_cast<Tools&>(m_tools) = {};
        record();
    }

    /// A gesture with the mouse in any mode; afterwards the window prepares the next tool.
    void drawSomething()
    {
        if (roll(3) == 0)
            setMode(m_tools, 1 + roll(5));
        press(m_tools, {roll(241), roll(321), 6, 8}, [] {});
        for (int moves = roll(4); moves > 0; --moves)
            dragTo(m_tools, roll(241), roll(321));
        m_tools.drawing = false;
        setMode(m_tools, m_tools.toolMode);
    }

    static bool isStep(const ToolsState& from, const ToolsState& to)
    {
        return !(listsOf(from.tools) == listsOf(to.tools) && from.colour == to.colour);
    }

    /// In the history, and in a list beside it that forgets nothing.
    void record()
    {
        const ToolsState now = stateOf(m_tools);
        m_history.record({static_cast<const Tools&>(m_tools), m_tools.toolColor});
        if (isStep(m_states.at(m_present), now)) {
            m_states.resize(m_present + 1);
            m_states.append(now);
            m_first = std::max(m_first, ++m_present - ToolHistory::mostSteps);
        } else {
            m_states[m_present] = now;
        }
        verifyPlace();
    }

    void undo()
    {
        m_present = std::max(m_present - 1, m_first);
        restore(m_tools, m_history.undo());
        verifyPlace();
        ++m_undone;
    }

    void redo()
    {
        m_present = std::min(m_present + 1, m_states.size() - 1);
        restore(m_tools, m_history.redo());
        verifyPlace();
        ++m_redone;
    }

    void verifyPlace()
    {
        QVERIFY(stateOf(m_tools) == m_states.at(m_present));
        QCOMPARE(m_history.canUndo(), m_present > m_first);
        QCOMPARE(m_history.canRedo(), m_present + 1 < m_states.size());
    }

    void undoAndRedoEverything()
    {
        while (m_history.canRedo() && !QTest::currentTestFailed())
            redo();
        const ToolsState end = stateOf(m_tools);
        int steps = 0;
        for (; m_history.canUndo() && !QTest::currentTestFailed(); ++steps)
            undo();
        QVERIFY(steps <= ToolHistory::mostSteps);
        if (m_states.size() <= ToolHistory::mostSteps)
            QCOMPARE(countOf(stateOf(m_tools).tools), 0);
        for (; m_history.canRedo() && !QTest::currentTestFailed(); --steps)
            redo();
        QCOMPARE(steps, 0);
        QVERIFY(stateOf(m_tools) == end);
    }

    std::mt19937 m_random;
    ToolEditing m_tools;
    ToolHistory m_history;
    QVector<ToolsState> m_states; ///< all since the start, but for those that were undone for good
    int m_present = 0;            ///< in m_states
    int m_first = 0;              ///< the oldest one that is not forgotten
    int m_undone = 0;
    int m_redone = 0;
    QtMessageHandler m_previous = nullptr;
};

int main(int argc, char** argv)
{
    return testing::runScaled<ToolHistoryWalkTest>(argc, argv, 100'000);
}

#include "tool_history_walk_test.moc"
