// SPDX-License-Identifier: MIT
#include "analysis/windows/area_box.h"
#include "analysis/windows/details_window.h"
#include "analysis/windows/temperature_box.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/accessible.h"

#include <QClipboard>
#include <QMimeData>
#include <QPointer>

using analysis::AreaBox;
using analysis::DetailsWindow;
using analysis::TemperatureBox;

namespace {

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
testing::Shot ramp()
{
    testing::Shot shot = testing::flat(0, 2550, 0);
    shot.gray = [](int x, int y) {
        return (x + y) % 256;
    };
    return shot;
}

} // namespace

/// The details of tools, as somebody at the window asks for them.
class DetailsWindowTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void theKeyOpensIt()
    {
        beginOn(ramp());
        key(Qt::Key_I, Qt::ControlModifier);
        QVERIFY(details() && details()->isVisible());
        QCOMPARE(details()->windowTitle(), QStringLiteral("详细数据 - shot.bmp"));
    }

    void bothMenusHaveIt()
    {
        beginOn(ramp());
        drawOneOfEach();
        choose(rightClick(label(), at(120, 40)), "详细数据...");
        QTRY_VERIFY(details());
        QTRY_COMPARE(subject(), QStringLiteral("R0 - 矩形"));
        const QPointer<DetailsWindow> first = details();
        QApplication::setActiveWindow(window.get());
        choose(rightClick(*tools().viewport(), tools().visualItemRect(tools().item(1, 0)).center()),
               "详细数据...");
        QCOMPARE(details(), first.data());
        QTRY_COMPARE(subject(), QStringLiteral("L0 - 线"));
    }

    /// The keyboard moves the mark in the table without selecting.
    void theKeyInTheTableMeansTheMarkedRow()
    {
        beginOn(ramp());
        drawOneOfEach();
        tools().setFocus();
        tools().selectRow(1);
        key(Qt::Key_I, Qt::ControlModifier);
        QTRY_COMPARE(subject(), QStringLiteral("L0 - 线"));
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
    }

    /// A single click selects, as ever, and nothing else.
    void aDoubleClickOnARowOpensIt()
    {
        beginOn(ramp());
        drawOneOfEach();
        const QPoint row = tools().visualItemRect(tools().item(2, 3)).center();
        QTest::mouseClick(tools().viewport(), Qt::LeftButton, {}, row);
        QCoreApplication::processEvents();
        QVERIFY(!details());
        QCOMPARE(label().currentType, QStringLiteral("R"));
        QCOMPARE(label().selectedIndex, 0);
        QTest::mouseDClick(tools().viewport(), Qt::LeftButton, {}, row);
        QVERIFY(details());
        QTRY_COMPARE(subject(), QStringLiteral("R0 - 矩形"));
        QCOMPARE(marked(), QStringLiteral("R0"));
        QApplication::setActiveWindow(window.get());
        window->setFocus(-1);
        undo();
        QCOMPARE(names(), QStringLiteral("P0 L0 R0"));
    }

    /// 3 × 2 pixels: 50 51 52 / 51 52 53. Squared deviations from 51.5: 2 × 1.5², 4 × 0.5².
    void showsTheSelectedTool()
    {
        openOnSmallRectangle();
        QCOMPARE(subject(), QStringLiteral("R0 - 矩形"));
        QCOMPARE(texts(High), QStringLiteral("最高 (°C)|53.00|22|31"));
        QCOMPARE(texts(Low), QStringLiteral("最低 (°C)|50.00|20|30"));
        QCOMPARE(texts(Average), QStringLiteral("平均 (°C)|51.50||"));
        QCOMPARE(texts(Deviation), QStringLiteral("标准差 (°C)|0.96||"));
        QCOMPARE(texts(Median), QStringLiteral("中位数 (°C)|51.50||"));
        QCOMPARE(texts(Pixels), QStringLiteral("像素|6||"));
        QCOMPARE(texts(Difference), QStringLiteral("温差 ΔT (°C)|||"));
        QVERIFY(notes().isEmpty());
    }

    void theWholePictureWithoutATool()
    {
        beginOn(testing::flat(128, 2550, 0));
        open();
        QCOMPARE(subject(), QStringLiteral("整幅图像"));
        QCOMPARE(value(Pixels), QStringLiteral("76800"));
        QCOMPARE(value(Average), QStringLiteral("128.00"));
        QCOMPARE(texts(High), QStringLiteral("最高 (°C)|128.00|0|0"));
        QCOMPARE(value(Deviation), QStringLiteral("0.00"));
    }

    void followsSelectionAndEdits()
    {
        openOnSmallRectangle();
        toPicture();
        key(Qt::Key_Right);
        QTRY_COMPARE(texts(High), QStringLiteral("最高 (°C)|54.00|23|31"));
        undo();
        QTRY_COMPARE(value(High), QStringLiteral("53.00"));
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(100, 100));
        QTRY_COMPARE(subject(), QStringLiteral("P0 - 点"));
        QCOMPARE(value(Pixels), QStringLiteral("1"));
        QCOMPARE(value(High), QStringLiteral("200.00"));
        QCOMPARE(value(Low), QStringLiteral("200.00"));
        toPicture();
        key(Qt::Key_PageDown);
        QTRY_COMPARE(subject(), QStringLiteral("R0 - 矩形"));
        click("pushButton_2");
        QTRY_COMPARE(subject(), QStringLiteral("整幅图像"));
    }

    void followsADrag()
    {
        beginOn(ramp());
        open();
        QApplication::setActiveWindow(window.get());
        click("pushButton_6");
        QTest::mousePress(&label(), Qt::LeftButton, {}, at(20, 30));
        for (const int x : {60, 40}) {
            QMouseEvent move(QEvent::MouseMove, at(x, 31), Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&label(), &move);
            QTRY_COMPARE(value(Pixels), QString::number(2 * (x - 19)));
            QCOMPARE(value(High), QStringLiteral("%1.00").arg(x + 31));
        }
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, at(40, 31));
    }

    void sharesOfAThreshold()
    {
        openOnSmallRectangle();
        typeInto(*part<TemperatureBox>("threshold"), QStringLiteral("52.5"));
        QCOMPARE(texts(Above), QStringLiteral("高于 52.50 °C (%)|16.67||"));
        QCOMPARE(texts(Below), QStringLiteral("低于 52.50 °C (%)|83.33||"));
    }

    /// A threshold stays the same temperature, however often the unit changes.
    void followsTheUnit()
    {
        openOnSmallRectangle();
        auto& threshold = *part<TemperatureBox>("threshold");
        typeInto(threshold, QStringLiteral("52.51"));
        unit().setCurrentIndex(1);
        QTRY_VERIFY(texts(High).startsWith(QStringLiteral("最高 (°F)|127.3"))); // 53 °C, as shown
        QCOMPARE(threshold.value(), 126.52);
        QCOMPARE(threshold.suffix(), QStringLiteral(" °F"));
        QCOMPARE(value(Above), QStringLiteral("16.67"));
        unit().setCurrentIndex(0);
        QTRY_COMPARE(threshold.value(), 52.51);
        QCOMPARE(value(High), QStringLiteral("53.00"));
    }

    /// 53, 51.5 and 50 °C here, 210 °C there; the whole picture reaches 255 °C.
    void differenceToAnotherTool()
    {
        openOnSmallRectangle();
        toPicture();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(100, 110));
        toPicture();
        key(Qt::Key_PageDown);
        QTRY_COMPARE(subject(), QStringLiteral("R0 - 矩形"));
        auto& other = *part<AreaBox>("other");
        QTRY_COMPARE(other.count(), 5);
        other.setCurrentText(QStringLiteral("P0"));
        QCOMPARE(value(Difference), QStringLiteral("-157.00"));
        part<QComboBox>("figure")->setCurrentIndex(1);
        QCOMPARE(value(Difference), QStringLiteral("-158.50"));
        part<QComboBox>("figure")->setCurrentIndex(2);
        QCOMPARE(value(Difference), QStringLiteral("-160.00"));
        other.setCurrentText(QStringLiteral("R0")); // its own span
        part<QComboBox>("figure")->setCurrentIndex(0);
        part<QComboBox>("otherFigure")->setCurrentIndex(2);
        QCOMPARE(value(Difference), QStringLiteral("3.00"));
        other.setCurrentText(QStringLiteral("整幅图像"));
        part<QComboBox>("otherFigure")->setCurrentIndex(0);
        QCOMPARE(value(Difference), QStringLiteral("-202.00"));
    }

    /// It goes with the tool and comes back with it.
    void differenceToAToolThatGoes()
    {
        openOnSmallRectangle();
        toPicture();
        drag(at(60, 60), at(61, 61));
        QTRY_COMPARE(subject(), QStringLiteral("R1 - 矩形"));
        part<AreaBox>("other")->setCurrentText(QStringLiteral("R0"));
        QCOMPARE(value(Difference), QStringLiteral("69.00"));
        toPicture();
        key(Qt::Key_PageUp);
        key(Qt::Key_Delete);
        QTRY_COMPARE(part<AreaBox>("other")->currentText(), QStringLiteral("无"));
        QTRY_COMPARE(value(Difference), QString());
        undo();
        QTRY_COMPARE(part<AreaBox>("other")->currentText(), QStringLiteral("R0"));
        key(Qt::Key_PageDown);
        QTRY_COMPARE(value(Difference), QStringLiteral("69.00"));
        part<AreaBox>("other")->setCurrentIndex(0);
        QCOMPARE(value(Difference), QString());
    }

    void differenceToATypedTemperature()
    {
        openOnSmallRectangle();
        auto& reference = *part<TemperatureBox>("reference");
        QVERIFY(!reference.isVisible());
        part<AreaBox>("other")->setCurrentText(QStringLiteral("输入的温度"));
        QVERIFY(reference.isVisible());
        QVERIFY(!part<QComboBox>("otherFigure")->isVisible());
        typeInto(reference, QStringLiteral("20.25"));
        QCOMPARE(value(Difference), QStringLiteral("32.75"));
        part<QComboBox>("figure")->setCurrentIndex(1);
        QCOMPARE(value(Difference), QStringLiteral("31.25"));
    }

    void saysWhereTheTableIsNotExact()
    {
        beginOn(testing::flat(100, -200, -400));
        click("pushButton_6");
        drag(at(20, 30), at(40, 50));
        open();
        QCOMPARE(toolRow(0).at(2), QStringLiteral("-10.0"));
        QCOMPARE(value(High), QStringLiteral("-32.16")); // -40 + 20 × 100 / 255
        QVERIFY(notes().contains(QStringLiteral("-10.0")));
        click("pushButton_2");
        QTRY_VERIFY(notes().isEmpty());
    }

    void aToolWithoutAPixel()
    {
        openOnSmallRectangle();
        window->commands().change([](overlay::ToolEditing& edited) {
            edited.rectList.first().x1 = edited.rectList.first().x2 = 240;
        });
        QTRY_COMPARE(value(Pixels), QStringLiteral("0"));
        QCOMPARE(texts(High), QStringLiteral("最高 (°C)|||"));
        QVERIFY(!notes().isEmpty());
        part<AreaBox>("other")->setCurrentText(QStringLiteral("整幅图像"));
        QCOMPARE(value(Difference), QString());
    }

    void aPictureWithoutReadings()
    {
        testing::Shot shot = ramp();
        shot.grayMinimum = shot.grayMaximum;
        beginOn(shot);
        open();
        QCOMPARE(value(High), QString());
        QCOMPARE(value(Pixels), QStringLiteral("0"));
    }

    /// Red and blue, on top of the picture, as long as the window is there.
    void marksTheExtremes()
    {
        beginOn(ramp());
        click("pushButton_6");
        drag(at(60, 60), at(120, 90));
        QCoreApplication::processEvents();
        const QImage before = label().grab().toImage();
        open();
        QTRY_VERIFY(label().grab().toImage() != before);
        const QImage with = label().grab().toImage();
        const auto onRing = [this](int x, int y) {
            return at(x, y) - QPoint(0, 8);
        };
        const QColor hot = with.pixel(onRing(120, 90));
        QVERIFY2(hot.red() > 200 && hot.blue() < 120, qPrintable(hot.name()));
        const QColor cold = with.pixel(onRing(60, 60));
        QVERIFY2(cold.blue() > 200 && cold.red() < 140, qPrintable(cold.name()));
        QTest::keyClick(details(), Qt::Key_Escape);
        QTRY_VERIFY(!details());
        QTRY_COMPARE(label().grab().toImage(), before);
    }

    void theNumbersAreCopied()
    {
        openOnSmallRectangle();
        QTest::keyClick(part<QTableWidget>("numbers"), Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.at(0), QStringLiteral("项目\t数值\tX\tY"));
        QCOMPARE(lines.at(1), QStringLiteral("最高 (°C)\t53.00\t22\t31"));
        QCOMPARE(lines.size(), 11);
        QVERIFY(QGuiApplication::clipboard()->mimeData()->html().contains(
            QStringLiteral("<th>数值</th>")));
        QGuiApplication::clipboard()->clear();
        part<QPushButton>("copy")->click();
        QCOMPARE(QGuiApplication::clipboard()->text().split(QLatin1Char('\n')), lines);
    }

    void goesWithThePhotograph()
    {
        openOnSmallRectangle();
        const QPointer<DetailsWindow> open = details();
        window.reset();
        QVERIFY(!open);
    }

    void showsTheNextPhotograph()
    {
        openOnSmallRectangle();
        QVERIFY(load(testing::flat(7, 2550, 0)));
        QTRY_COMPARE(value(High), QStringLiteral("7.00"));
    }

    void worksByKeyboard()
    {
        openOnSmallRectangle();
        QCOMPARE(testing::namelessWidgets(details()), QStringList());
        QTRY_VERIFY(part<QTableWidget>("numbers")->hasFocus());
        QStringList met;
        for (int tabs = 0; tabs < 6; ++tabs) {
            met.append(details()->focusWidget()->objectName());
            QTest::keyClick(details()->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(met, QStringList({"numbers", "threshold", "figure", "other", "copy", "numbers"}));
    }

private:
    DetailsWindow* details() const { return window->findChild<DetailsWindow*>(); }
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
    static void typeInto(TemperatureBox& box, const QString& text)
    {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
};

int main(int argc, char** argv)
{
    return testing::run<DetailsWindowTest>(argc, argv);
}

#include "details_window_test.moc"
