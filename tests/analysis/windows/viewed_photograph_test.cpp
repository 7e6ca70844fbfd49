// SPDX-License-Identifier: MIT
#include "analysis/windows/viewed_photograph.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QSignalSpy>

#include <optional>

/// What windows beside an analysis window are told of its photograph, and when.
class ViewedPhotographTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void isTheWindowsPhotograph()
    {
        begin();
        drawOneOfEach();
        QCOMPARE(viewed().name(), QStringLiteral("shot.bmp"));
        QCOMPARE(&viewed().photograph(), &window->photograph);
        QCOMPARE(viewed().unit().unit, analysis::Unit::Celsius);
        QCOMPARE(overlay::countOf(viewed().tools()), 4);
        QCOMPARE(viewed().tools().currentType, QStringLiteral("C"));
        unit().setCurrentIndex(1);
        QCOMPARE(viewed().unit().unit, analysis::Unit::Fahrenheit);
        QCOMPARE(viewed().unit().conversion.offset, window->conversion.offset);
    }

    void tellsOfEachChange()
    {
        begin();
        QVERIFY(tells([this] { drawOneOfEach(); }));
        QVERIFY(tells([this] { key(Qt::Key_PageUp); }));
        QVERIFY(tells([this] { key(Qt::Key_Left); }));
        QVERIFY(tells([this] { undo(); }));
        QVERIFY(tells([this] { redo(); }));
        QVERIFY(tells([this] { load(testing::flat(120)); }));
        QVERIFY(tells([this] { unit().setCurrentIndex(1); }));
        QVERIFY(tells([this] { key(Qt::Key_Delete); }));
        QVERIFY(tells([this] { click("pushButton_2"); }));
        QVERIFY(tells([this] {
            window->commands().change([](overlay::ToolEditing& tools) {
                overlay::insertNew(tools, overlay::ToolKind::Point, Qt::red);
                tools.pointList.first().x = 5;
                tools.pointList.first().y = 6;
            });
        }));
    }

    /// A preview of a dialog, which is not a step yet.
    void tellsOfWhatIsNotDone()
    {
        begin();
        drawOneOfEach();
        QVERIFY(tells([this] {
            window->commands().beginStep();
            window->commands().edit(
                [](overlay::ToolEditing& tools) { overlay::removeSelectedTool(tools); });
        }));
        QCOMPARE(overlay::countOf(viewed().tools()), 3);
        window->commands().endStep();
    }

    void followsADrag()
    {
        begin();
        click("pushButton_6");
        QTest::mousePress(&label(), Qt::LeftButton, {}, at(20, 30));
        for (const int x : {60, 80}) {
            QVERIFY(tells([this, x] { moveTo(at(x, 90), Qt::LeftButton); }));
            QCOMPARE(viewed().tools().rectList.first().x2, x);
        }
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, at(80, 90));
    }

    void tellsOnceForAll()
    {
        begin();
        settle();
        const QSignalSpy told(&viewed(), &analysis::ViewedPhotograph::changed);
        drawOneOfEach();
        unit().setCurrentIndex(1);
        QCOMPARE(told.count(), 0);
        settle();
        QCOMPARE(told.count(), 1);
    }

    void isSilentWhileNothingChanges()
    {
        begin();
        drawOneOfEach();
        QVERIFY(!tells([this] { moveTo(at(3, 4), Qt::NoButton); }));
        QVERIFY(!tells([this] { window->update(); }));
        QVERIFY(!tells([this] { key(Qt::Key_Escape); }));
    }

    void pointsInsideThePicture()
    {
        begin();
        const QSignalSpy pointed(&viewed(), &analysis::ViewedPhotograph::pointed);
        moveTo(at(17, 201), Qt::NoButton);
        QCOMPARE(pointed.last(), (QVariantList{17, 201}));
        moveTo({label().width() - 1, label().height() - 1}, Qt::NoButton);
        QCOMPARE(pointed.last(), (QVariantList{239, 319}));
        moveTo({0, 0}, Qt::NoButton);
        QCOMPARE(pointed.last(), (QVariantList{0, 0}));
    }

private:
    analysis::ViewedPhotograph& viewed() const { return window->commands().viewed(); }

    void moveTo(const QPoint& place, Qt::MouseButtons buttons)
    {
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, buttons, {});
        QCoreApplication::sendEvent(&label(), &move);
    }

    /// Everything that waits for the event loop is done; a further timer of no time is the last.
    static void settle()
    {
        for (int turn = 0; turn < 2; ++turn) {
            bool isOver = false;
            QTimer::singleShot(0, [&isOver] { isOver = true; });
            QTRY_VERIFY(isOver);
        }
    }

    template<typename Do>
    bool tells(Do something)
    {
        settle();
        const QSignalSpy told(&viewed(), &analysis::ViewedPhotograph::changed);
        something();
        settle();
        return told.count() == 1;
    }
};

int main(int argc, char** argv)
{
    return testing::run<ViewedPhotographTest>(argc, argv);
}

#include "viewed_photograph_test.moc"
