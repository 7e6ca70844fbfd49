// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/histogram_window.h"
#include "analysis/windows/picture_marks.h"
#include "analysis/windows/profile_window.h"
#include "plots/plot_view.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/paint_counter.h"

namespace testing {

/// The analysis window with a window with a plot beside it.
class PlotsTest : public ToolKeysTest
{
    Q_OBJECT

protected:
    /// Temperature = x, from 0 °C on.
    static Shot ramp()
    {
        Shot shot = flat(0, 2550, 0);
        shot.gray = [](int x, int) {
            return x;
        };
        return shot;
    }
    void beginOn(const Shot& shot)
    {
        begin();
        QVERIFY(load(shot));
    }
    void draw(const char* button, const QPoint& from, const QPoint& to)
    {
        click(button);
        drag(from, to);
        click("pushButton_9");
    }
    void drawLine(const QPoint& from, const QPoint& to)
    {
        draw("pushButton_7", at(from.x(), from.y()), at(to.x(), to.y()));
    }
    template<typename Window>
    Window* shownWindow() const
    {
        return window->findChild<Window*>();
    }
    /// From the context menu of the table, in the row of a tool; of the picture, on nothing, for no
    /// row.
    template<typename Window>
    void open(const char* entry, int row = -1)
    {
        if (row < 0)
            choose(rightClick(label(), at(120, 310)), entry);
        else
            choose(rightClick(*tools().viewport(),
                              tools().visualItemRect(tools().item(row, 0)).center()),
                   entry);
        QVERIFY(shownWindow<Window>());
        QVERIFY(QTest::qWaitForWindowExposed(shownWindow<Window>()));
        QCoreApplication::processEvents();
    }
    template<typename Window>
    plots::PlotView& view() const
    {
        return *shownWindow<Window>()->template findChild<plots::PlotView*>();
    }
    bool isMarking() const
    {
        const auto* marks = label().findChild<analysis::PictureMarks*>();
        return marks && marks->isVisible();
    }
};

} // namespace testing
