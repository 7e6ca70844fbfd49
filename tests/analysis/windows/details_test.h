// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/area_box.h"
#include "analysis/windows/details_window.h"
#include "analysis/windows/temperature_box.h"
#include "tests/analysis/windows/tool_keys_test.h"

namespace testing {

/// The analysis window with the window of details beside it.
class DetailsTest : public ToolKeysTest
{
    Q_OBJECT

protected:
    /// The rows of the window's table.
    enum Row
    {
        High,
        Low,
        Average,
        Deviation,
        Median,
        Pixels,
        Above,
        Below,
        Difference
    };

    /// Temperature = x + y, from 0 °C on and above 255 °C from 0 on again.
    static Shot ramp()
    {
        Shot shot = flat(0, 2550, 0);
        shot.gray = [](int x, int y) {
            return (x + y) % 256;
        };
        return shot;
    }

    analysis::DetailsWindow* details() const
    {
        return window->findChild<analysis::DetailsWindow*>();
    }
    template<typename Part>
    Part* part(const char* name) const
    {
        return testing::part<Part>(details(), name);
    }
    void beginOn(const testing::Shot& shot)
    {
        begin();
        QVERIFY(load(shot));
    }
    void open() const
    {
        QApplication::setActiveWindow(window.get());
        window->setFocus(-1);
        key(Qt::Key_I, Qt::ControlModifier);
        QVERIFY(details());
        QVERIFY(QTest::qWaitForWindowExposed(details()));
        QApplication::setActiveWindow(details());
    }
    void openOnSmallRectangle()
    {
        beginOn(ramp());
        click("pushButton_6");
        drag(at(20, 30), at(22, 31));
        open();
    }
    void toPicture() const
    {
        QApplication::setActiveWindow(window.get());
        window->setFocus(-1);
    }
    QString subject() const { return part<QLabel>("subject")->text(); }
    QString notes() const
    {
        const auto* label = part<QLabel>("notes");
        return label->isVisible() ? label->text() : QString();
    }
    QString value(int row) const { return part<QTableWidget>("numbers")->item(row, 1)->text(); }
    QString texts(int row) const
    {
        const auto* table = part<QTableWidget>("numbers");
        QStringList texts;
        for (int column = 0; column < table->columnCount(); ++column)
            texts.append(table->item(row, column)->text());
        return texts.join(QLatin1Char('|'));
    }
    static void typeInto(analysis::TemperatureBox& box, const QString& text)
    {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
};

} // namespace testing
