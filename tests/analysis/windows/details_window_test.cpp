// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/details_test.h"
#include "tests/support/accessible.h"
#include "tests/support/paint_counter.h"

#include <QClipboard>
#include <QMimeData>
#include <QPointer>

using analysis::DetailsWindow;

/// The details of tools, as somebody at the window asks for them.
class DetailsWindowTest : public testing::DetailsTest
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

    void comesToRest()
    {
        openOnSmallRectangle();
        const testing::PaintCounter paints(*details(), testing::PaintCounter::Of::WidgetAndParts);
        const testing::PaintCounter picture(label());
        QVERIFY(testing::comeToRest(paints));
        QVERIFY(testing::comeToRest(picture));
    }

    void theNumbersAreCopied()
    {
        openOnSmallRectangle();
        QTest::keyClick(part<QTableWidget>("numbers"), Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.at(0), QStringLiteral("项目\t存储的读数\tX\tY"));
        QCOMPARE(lines.at(1), QStringLiteral("最高 (°C)\t53.00\t22\t31"));
        QCOMPARE(lines.size(), 11);
        QVERIFY(QGuiApplication::clipboard()->mimeData()->html().contains(
            QStringLiteral("<th>存储的读数</th>")));
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
};

int main(int argc, char** argv)
{
    return testing::run<DetailsWindowTest>(argc, argv);
}

#include "details_window_test.moc"
