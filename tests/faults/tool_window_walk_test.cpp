// SPDX-License-Identifier: MIT
#include "analysis/windows/tool_commands.h"
#include "overlay/tool_file.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/faults/endurance.h"
#include "tests/support/dialogs.h"

#include <QColorDialog>

#include <array>
#include <random>

using namespace overlay;

/// Mouse, keyboard, buttons, table and menus of the analysis window in any order, undo and redo in
/// between: each does as much as one step, undoing everything leads back to the start and redoing
/// everything to the end, the selection included.
class ToolWindowWalkTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void everythingUndoneIsTheStart()
    {
        const auto previous = // every hit is logged
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        m_random.seed(testing::scale().seed);
        for (int left = testing::scale().times; left > 0 && !QTest::currentTestFailed();) {
            // No more than the history keeps.
            const int steps = std::min(left, 1 + roll(ToolHistory::mostSteps));
            walk(steps);
            left -= steps;
        }
        qInstallMessageHandler(previous);
        QVERIFY2(m_most > 5 && m_undone > 0 && m_redone > 0,
                 qPrintable(QStringLiteral("%1 tools").arg(m_most)));
    }

private:
    int roll(int count) { return int(m_random() % unsigned(count)); }
    template<typename T, std::size_t Size>
    T oneOf(const std::array<T, Size>& all)
    {
        return all[std::size_t(roll(int(Size)))];
    }
    ToolsState now() const { return window->commands().state(); }

    void walk(int steps)
    {
        window = std::make_unique<Analysis_Widget>();
        begin();
        m_states = {now()};
        m_present = 0;
        for (int step = 0; step < steps && !QTest::currentTestFailed(); ++step) {
            takeStep();
            verifyTools();
            if (roll(20) == 0)
                QCoreApplication::processEvents();
            QApplication::setActiveWindow(window.get()); // as a window manager does
        }
        while (m_present > 0 && !QTest::currentTestFailed())
            undoOne();
        QVERIFY(countOf(now().tools) == 0);
        while (m_present + 1 < m_states.size() && !QTest::currentTestFailed())
            redoOne();
    }

    void takeStep()
    {
        const int kind = roll(100);
        if (kind < 10)
            return undoOne();
        if (kind < 18)
            return redoOne();
        if (kind < 55)
            drawSomething();
        else if (kind < 70)
            moveSomething();
        else if (kind < 85)
            pressKey(oneOf(m_keys));
        else if (kind < 92)
            useButtons();
        else if (kind < 96)
            useTable();
        else
            useMenu();
        note();
    }

    void undoOne()
    {
        undo();
        if (m_present > 0) {
            --m_present;
            ++m_undone;
        }
        QVERIFY(now() == m_states.at(m_present));
    }
    void redoOne()
    {
        redo();
        if (m_present + 1 < m_states.size()) {
            ++m_present;
            ++m_redone;
        }
        QVERIFY(now() == m_states.at(m_present));
    }

    /// In a list beside the history, in which each step is one at most.
    void note()
    {
        const ToolsState state = now();
        const ToolsState& before = m_states.at(m_present);
        const bool isStep = !(listsOf(state.tools) == listsOf(before.tools)) || //
                            state.colour != before.colour;
        if (isStep) {
            m_states.resize(m_present + 1);
            m_states.append(state);
            ++m_present;
        } else {
            m_states[m_present] = state;
        }
        m_most = std::max(m_most, countOf(state.tools));
    }

    void verifyTools() const
    {
        const Tools tools = now().tools;
        QCOMPARE(wrongWith(tools), QString());
        QCOMPARE(this->tools().rowCount(), countOf(tools));
    }

    QPoint anywhere() { return {roll(label().width()), roll(label().height())}; }

    /// A gesture of either button, in whichever mode, with keys pressed meanwhile.
    void drawSomething()
    {
        if (roll(2) == 0) {
            click(oneOf(m_modeButtons));
            note(); // where a tool that was only prepared goes, the selection can move on
        }
        const Qt::MouseButton button = roll(8) == 0 ? Qt::RightButton : Qt::LeftButton;
        QTest::mousePress(&label(), button, {}, anywhere());
        QPoint place;
        for (int moves = roll(4); moves > 0; --moves) {
            place = anywhere();
            QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, button, {});
            QCoreApplication::sendEvent(&label(), &move);
            if (roll(6) == 0)
                key(oneOf(m_keys), roll(3) == 0 ? Qt::ControlModifier : Qt::NoModifier);
        }
        QTest::mouseRelease(&label(), button, {}, place);
    }

    void moveSomething()
    {
        const Qt::Key arrow = oneOf(m_arrows);
        Qt::KeyboardModifiers modifiers;
        modifiers.setFlag(Qt::ShiftModifier, roll(3) == 0);
        modifiers.setFlag(Qt::AltModifier, roll(3) == 0);
        QTest::keyPress(window->focusWidget(), arrow, modifiers);
        for (int repeats = roll(3) == 0 ? roll(20) : 0; repeats > 0; --repeats) {
            QKeyEvent repeat(QEvent::KeyPress, arrow, modifiers, {}, true);
            QCoreApplication::sendEvent(window->focusWidget(), &repeat);
        }
        QTest::keyRelease(window->focusWidget(), arrow, modifiers);
    }

    void useButtons()
    {
        const int kind = roll(8);
        if (kind == 0) {
            click("pushButton_2");
        } else if (kind == 1) {
            const QColor colour(roll(256), roll(256), roll(256));
            const testing::Answer<QColorDialog> answer([colour](QColorDialog& dialog) {
                dialog.setCurrentColor(colour);
                dialog.accept();
            });
            click("pushButton_4");
        } else if (kind == 2) {
            unit().setCurrentIndex(roll(2));
        } else {
            click("pushButton_3");
        }
    }

    void useTable()
    {
        if (tools().rowCount() == 0)
            return;
        const QRect row = tools().visualItemRect(tools().item(roll(tools().rowCount()), 0));
        tools().setFocus(Qt::MouseFocusReason);
        QTest::mouseClick(tools().viewport(), Qt::LeftButton, {}, row.center());
        note();
        for (int keys = roll(4); keys > 0; --keys)
            key(oneOf(m_arrows));
        if (roll(3) == 0)
            pressKey(Qt::Key_Delete);
    }

    /// In the table, Delete first selects the tool that is marked there, and undo selects it again.
    void pressKey(Qt::Key pressed)
    {
        if (pressed == Qt::Key_Delete && window->focusWidget() == &tools()) {
            Tools& present = m_states[m_present].tools;
            forEachList(present, [&](const auto& list) {
                for (int index = 0; index < list.size(); ++index) {
                    if (list.at(index).name == marked())
                        select(present, kindOf(list), index);
                }
            });
        }
        key(pressed);
    }

    void useMenu()
    {
        QWidget& widget = roll(2) == 0 ? static_cast<QWidget&>(label()) : *tools().viewport();
        QMenu* menu = rightClick(widget, {roll(widget.width()), roll(widget.height())});
        if (!menu) { // in a mode that places tools
            QTest::mouseRelease(&widget, Qt::RightButton, {}, anywhere());
            return;
        }
        note(); // the press has selected
        const char* text = oneOf(m_entries);
        QAction* entry = entryOf(*menu, text);
        if (entry && entry->isEnabled() &&
            (countOf(now().tools) < 40 || entry->text() != QStringLiteral("粘贴"))) {
            const bool undoes = entry->text() == QStringLiteral("撤销");
            const bool redoes = entry->text() == QStringLiteral("重做");
            choose(menu, text);
            m_present += int(redoes) - int(undoes);
            if (undoes || redoes)
                QVERIFY(now() == m_states.at(m_present));
        } else {
            menu->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    static constexpr std::array<Qt::Key, 4> m_arrows{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                                     Qt::Key_Down};
    static constexpr std::array<Qt::Key, 12> m_keys{
        Qt::Key_1,      Qt::Key_2,      Qt::Key_3,        Qt::Key_4,      Qt::Key_5,   Qt::Key_6,
        Qt::Key_Escape, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Tab, Qt::Key_Z};
    static constexpr std::array<const char*, 5> m_modeButtons{
        "pushButton_9", "pushButton_8", "pushButton_7", "pushButton_6", "pushButton_5"};
    static constexpr std::array<const char*, 11> m_entries{
        "撤销",        "重做",   "删除所选工具", "粘贴",          "复制测量", "应用上次的测量",
        "详细数据...", "放大镜", "定格放大镜",   "热点和冷点...", "大图"};

    std::mt19937 m_random;
    QVector<ToolsState> m_states;
    int m_present = 0; ///< in m_states
    int m_most = 0;    ///< tools at a time
    int m_undone = 0;
    int m_redone = 0;
};

int main(int argc, char** argv)
{
    return testing::runScaled<ToolWindowWalkTest>(argc, argv, 1500);
}

#include "tool_window_walk_test.moc"
