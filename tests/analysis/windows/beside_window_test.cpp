// SPDX-License-Identifier: MIT
#include "analysis/windows/beside_window.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QPointer>
#include <QScreen>
#include <QSpinBox>

namespace {

/// Shows how many tools there are.
class CountWindow : public analysis::BesideWindow
{
    Q_OBJECT

public:
    explicit CountWindow(analysis::ViewedPhotograph& photograph)
        : BesideWindow(photograph, QStringLiteral("Count")), box(new QSpinBox(this))
    {
        resize(200, 100);
    }

    int refreshed = 0;
    int tools = -1;
    QSpinBox* box;

protected:
    void refresh() override
    {
        ++refreshed;
        tools = overlay::countOf(viewed().tools());
    }
};

class OtherWindow : public CountWindow
{
    Q_OBJECT

public:
    using CountWindow::CountWindow;
};

/// Knows only with the photograph how wide it has to be.
class WideWindow : public CountWindow
{
    Q_OBJECT

public:
    using CountWindow::CountWindow;

protected:
    void refresh() override { setMinimumWidth(500); }
};

} // namespace

/// What all windows beside the picture have in common.
class BesideWindowTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void aPhotographHasOneOfEach()
    {
        begin();
        CountWindow& count = open<CountWindow>();
        QVERIFY(count.isVisible());
        QVERIFY(count.isWindow());
        QCOMPARE(count.windowTitle(), QStringLiteral("Count - shot.bmp"));
        QCOMPARE(&open<CountWindow>(), &count);
        const OtherWindow& other = open<OtherWindow>();
        QVERIFY(&other != &count);
        QVERIFY(other.pos() != count.pos());
    }

    void followsThePhotograph()
    {
        begin();
        const CountWindow& count = open<CountWindow>();
        QCOMPARE(count.tools, 0);
        drawOneOfEach();
        QTRY_COMPARE(count.tools, 4);
        click("pushButton_9");
        QApplication::setActiveWindow(window.get());
        undo();
        QTRY_COMPARE(count.tools, 3);
        window->fileName = QStringLiteral("next.bmp");
        unit().setCurrentIndex(1);
        QTRY_COMPARE(count.windowTitle(), QStringLiteral("Count - next.bmp"));
    }

    /// One that is hidden takes in what has changed when it is shown again.
    void hiddenOnesRest()
    {
        begin();
        CountWindow& count = open<CountWindow>();
        count.hide();
        const int before = count.refreshed;
        drawOneOfEach();
        QCoreApplication::processEvents();
        QCOMPARE(count.refreshed, before);
        count.show();
        QCOMPARE(count.tools, 4);
    }

    void closesAndIsGone()
    {
        begin();
        QPointer<CountWindow> count = &open<CountWindow>();
        QTest::keyClick(count.data(), Qt::Key_A);
        QVERIFY(count->isVisible());
        QTest::keyClick(count.data(), Qt::Key_Escape);
        QTRY_VERIFY(!count);
        QVERIFY(window->isVisible());
        QCOMPARE(open<CountWindow>().tools, 0);
    }

    void goesWithThePhotograph()
    {
        begin();
        const QPointer<CountWindow> count = &open<CountWindow>();
        window.reset();
        QVERIFY(!count);
    }

    /// What is typed in it is not done to the picture's tools.
    void itsKeysAreItsOwn()
    {
        begin();
        drawOneOfEach();
        CountWindow& count = open<CountWindow>();
        QTest::keyClick(count.box, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(count.box, Qt::Key_Delete);
        QCOMPARE(names(), QStringLiteral("P0 L0 R0 C0"));
        QCOMPARE(rightClick(*count.box, count.box->rect().center()), nullptr);
    }

    void staysOnTheScreen()
    {
        begin();
        const QRect room = window->screen()->availableGeometry();
        window->move(room.right() - 50, room.bottom() - 50);
        QVERIFY(room.contains(open<CountWindow>().geometry().topLeft()));
        const WideWindow& wide = open<WideWindow>();
        QVERIFY(wide.width() >= 500);
        QVERIFY(room.contains(wide.geometry().topRight()));
    }

private:
    template<typename Window>
    Window& open() const
    {
        return Window::template open<Window>(window->commands().viewed());
    }
};

int main(int argc, char** argv)
{
    return testing::run<BesideWindowTest>(argc, argv);
}

#include "beside_window_test.moc"
