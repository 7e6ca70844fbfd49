// SPDX-License-Identifier: MIT
#include "analysis/windows/viewed_photograph.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QSignalSpy>

#include <cmath>
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

    void hasTheColoursOfTheWindow()
    {
        begin();
        settle();
        const QImage before = viewed().colours();
        QCOMPARE(before, window->falseColourImage);
        QVERIFY(!recolours([this] { window->update(); }));
        QVERIFY(!recolours([this] { drawOneOfEach(); }));
        QVERIFY(recolours([this] {
            bar().endValue = 100;
            bar().update();
        }));
        QVERIFY(viewed().colours() != before);
        QCOMPARE(viewed().colours(), window->falseColourImage);
        // At once, without a paint.
        bar().endValue = 255;
        QVERIFY(recolours([&] { QCOMPARE(viewed().colours(), before); }));
        QVERIFY(recolours([this] { load(testing::flat(7)); }));
        QCOMPARE(viewed().colours(), window->falseColourImage);
    }

    void pointsInsideThePicture()
    {
        begin();
        QCOMPARE(viewed().pointedAt(), QPoint(120, 160));
        const QSignalSpy pointed(&viewed(), &analysis::ViewedPhotograph::pointed);
        moveTo(at(17, 201), Qt::NoButton);
        QCOMPARE(pointed.last(), (QVariantList{17, 201}));
        moveTo({label().width() - 1, label().height() - 1}, Qt::NoButton);
        QCOMPARE(pointed.last(), (QVariantList{239, 319}));
        QCOMPARE(viewed().pointedAt(), QPoint(239, 319));
        moveTo({0, 0}, Qt::NoButton);
        QCOMPARE(pointed.last(), (QVariantList{0, 0}));
    }

    void correctedTemperaturesStandBesideTheStoredOnes()
    {
        QVERIFY(load(testing::flat(255, 600)));
        QVERIFY(!viewed().correction());
        QVERIFY(!viewed().corrected());
        QCOMPARE(viewed().correctionName(), QString());
        QVERIFY(tells([this] { viewed().setCorrection(toSixty); }));
        QVERIFY(viewed().correction() == toSixty);
        QVERIFY(std::abs(double(viewed().corrected()->front()) - 78.8) < 0.05);
        QCOMPARE(viewed().photograph().temperatures.front(), 60.0F);
        QVERIFY(viewed().correctionName().contains(QStringLiteral("0.95 → 0.60")));
        QVERIFY(viewed().correctionName().contains(QStringLiteral("20.0 °C")));
        unit().setCurrentIndex(1);
        QVERIFY(viewed().correctionName().contains(QStringLiteral("68.0 °F")));
        QVERIFY(!tells([this] { viewed().setCorrection(toSixty); }));
        QVERIFY(tells([this] { viewed().setCorrection(std::nullopt); }));
        QVERIFY(!viewed().corrected());
        QCOMPARE(viewed().correctionName(), QString());
    }

    void fahrenheitIsCorrectedAsFahrenheit()
    {
        testing::Shot shot = testing::flat(255, 1400, 700);
        shot.unit = 1;
        QVERIFY(load(shot));
        QVERIFY(viewed().scale() == analysis::Unit::Fahrenheit);
        viewed().setCorrection(toSixty);
        QVERIFY(std::abs(double(viewed().corrected()->front()) - (78.8 * 1.8 + 32)) < 0.1);
        shot.raw = [](int, int) {
            return 16 * 333 + 2; // 60 °C, a little less
        };
        QVERIFY(load(shot));
        QVERIFY(viewed().scale() == analysis::Unit::Celsius);
        QVERIFY(std::abs(double(viewed().corrected()->front()) - 78.8) < 0.1);
    }

    void withoutAScaleNothingIsCorrected()
    {
        testing::Shot shot = testing::flat(255, 600);
        shot.unit = 2;
        QVERIFY(load(shot));
        QVERIFY(!viewed().scale());
        viewed().setCorrection(toSixty);
        QVERIFY(!viewed().correction() && !viewed().corrected());
    }

    void aCorrectionThatMakesNoSenseIsNone()
    {
        QVERIFY(load(testing::flat(255, 600)));
        viewed().setCorrection(analysis::Correction{0, 0.6, 20});
        QVERIFY(!viewed().correction() && !viewed().corrected());
    }

    /// What is corrected and coloured belongs to one photograph.
    void anotherPhotographBeginsAsItIsStored()
    {
        QVERIFY(load(testing::flat(255, 600)));
        viewed().setCorrection(toSixty);
        viewed().setIsotherm(analysis::Isotherm());
        QVERIFY(load(testing::flat(255, 500))); // the same file, written anew
        QVERIFY(viewed().correction() && viewed().isotherm());
        QVERIFY(std::abs(double(viewed().corrected()->front()) - 64.69) < 0.01);
        QVERIFY(window->set_Image_addr(
            file(QStringLiteral("other.bmp"), photographBytes(testing::flat(255, 600))), 0));
        QVERIFY(!viewed().correction() && !viewed().corrected() && !viewed().isotherm());
    }

    void anIsothermColoursThePicture()
    {
        testing::Shot shot;
        shot.gray = [](int x, int) {
            return x < 120 ? 100 : 200; // 31.8 and 43.5
        };
        QVERIFY(load(shot));
        show();
        const QImage without = window->falseColourImage.copy();
        analysis::Isotherm above;
        above.from = 40;
        QVERIFY(tells([&] { viewed().setIsotherm(above); }));
        QTRY_COMPARE(window->falseColourImage.pixel(200, 100), analysis::isothermColour);
        QCOMPARE(shownColour(200, 100), analysis::isothermColour);
        QCOMPARE(window->falseColourImage.copy(0, 0, 120, 320), without.copy(0, 0, 120, 320));
        // It stays on the same pixels in another unit.
        unit().setCurrentIndex(1);
        QTRY_COMPARE(window->falseColourImage.pixel(200, 100), analysis::isothermColour);
        QVERIFY(tells([&] { viewed().setIsotherm(std::nullopt); }));
        QTRY_COMPARE(window->falseColourImage, without);
    }

    /// As readings are shown, the limit lies between the two units' readings of one temperature.
    void anIsothermFollowsTheUnit()
    {
        QVERIFY(load(testing::flat(255, 1000)));
        show();
        analysis::Isotherm atLeast;
        atLeast.side = analysis::Isotherm::Side::Inside;
        atLeast.from = 100;
        atLeast.to = 1000;
        viewed().setIsotherm(atLeast);
        QTRY_COMPARE(shownColour(100, 100), analysis::isothermColour);
        unit().setCurrentIndex(1); // 211.986 °F, below 212
        QTRY_VERIFY(shownColour(100, 100) != analysis::isothermColour);
        unit().setCurrentIndex(0);
        QTRY_COMPARE(shownColour(100, 100), analysis::isothermColour);
    }

    void correctedReadingsColourNothing()
    {
        QVERIFY(load(testing::flat(255, 600)));
        show();
        analysis::Isotherm above;
        above.from = 70;
        viewed().setCorrection(toSixty);
        QVERIFY(tells([&] { viewed().setIsotherm(above); }));
        QCoreApplication::processEvents();
        QVERIFY(shownColour(100, 100) != analysis::isothermColour);
    }

private:
    static constexpr analysis::Correction toSixty{0.95, 0.6, 20.0};

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

    template<typename Signal, typename Do>
    int timesTold(Signal told, Do something)
    {
        settle();
        const QSignalSpy spy(&viewed(), told);
        something();
        settle();
        return spy.count();
    }
    template<typename Do>
    bool tells(Do something)
    {
        return timesTold(&analysis::ViewedPhotograph::changed, something) == 1;
    }
    template<typename Do>
    bool recolours(Do something)
    {
        return timesTold(&analysis::ViewedPhotograph::recoloured, something) == 1;
    }
};

int main(int argc, char** argv)
{
    return testing::run<ViewedPhotographTest>(argc, argv);
}

#include "viewed_photograph_test.moc"
