// SPDX-License-Identifier: MIT
#include "plots/plot_view.h"
#include "tests/overlay/mouse.h"
#include "tests/plots/sample_plots.h"
#include "tests/support/paint_counter.h"
#include "tests/support/test_run.h"

#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QWheelEvent>

#include <memory>

using namespace plots;
using testing::Mouse;

/// Mouse and keyboard on a plot, through the window.
class PlotViewTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<PlotView> view;
    std::optional<Place> announced;
    int announcements = 0;

    void wheel(const QPointF& value, int notches) const
    {
        auto* canvas = view->findChild<QWidget*>(QStringLiteral("canvas"));
        const QPoint at = canvas->mapFrom(view.get(), view->pixelOf(value));
        QWheelEvent event(at, canvas->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas, &event);
    }
    void drag(const QPointF& from, const QPointF& to) const
    {
        Mouse(*view).drag(view->pixelOf(from), view->pixelOf(to));
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(view.get(), Qt::Key(key), modifiers);
    }
    /// Within what two pixels are.
    static bool isAbout(const QRectF& shown, const QRectF& wanted)
    {
        const auto near = [](double a, double b, double reach) {
            return std::abs(a - b) <= reach;
        };
        return near(shown.left(), wanted.left(), 0.05) &&
               near(shown.right(), wanted.right(), 0.05) && near(shown.top(), wanted.top(), 0.2) &&
               near(shown.bottom(), wanted.bottom(), 0.2);
    }

private slots:
    void init()
    {
        view = std::make_unique<PlotView>();
        view->resize(640, 400);
        view->setPlot(testing::twoCurves());
        testing::showAndPaint(*view);
        view->setFocus();
        announced.reset();
        announcements = 0;
        connect(view.get(), &PlotView::pointed, this, [this](const std::optional<Place>& place) {
            announced = place;
            ++announcements;
        });
    }
    void cleanup() { view.reset(); }

    void aRubberBandZoomsAndADoubleClickGoesBack()
    {
        const QRectF whole = view->range();
        drag({2, 35}, {6, 25});
        QVERIFY(view->isZoomed());
        QVERIFY(isAbout(view->range(), QRectF(2, 25, 4, 10)));
        // Once more, within it; and the way round does not matter.
        drag({5, 26}, {3, 30});
        QVERIFY(isAbout(view->range(), QRectF(3, 26, 2, 4)));
        QTest::mouseDClick(view->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           view->pixelOf(view->range().center()));
        QVERIFY(!view->isZoomed());
        QCOMPARE(view->range(), whole);
    }

    void aClickDoesNotZoom()
    {
        Mouse(*view).click(view->pixelOf({5, 25}));
        drag({5, 25}, {5.02, 25.1});
        QVERIFY(!view->isZoomed());
    }

    void theWheelZoomsAroundTheMouse()
    {
        const QRectF whole = view->range();
        const QPointF at(2, 25);
        const QPoint before = view->pixelOf(at);
        wheel(at, 3);
        QVERIFY(view->isZoomed());
        const QPoint moved = view->pixelOf(at) - before;
        QVERIFY(moved.manhattanLength() <= 6); // longer numbers at the axes take some
        QVERIFY(std::abs(view->range().width() - whole.width() / std::pow(1.25, 3)) < 0.05);
        wheel(at, -1);
        QVERIFY(view->isZoomed());
        wheel(at, -5);
        QVERIFY(!view->isZoomed());
        QCOMPARE(view->range(), whole);
    }

    void zoomingEndsWhereNumbersWouldRunOutOfDigits()
    {
        for (int step = 0; step < 40; ++step)
            wheel(view->range().center(), 10);
        QVERIFY(view->range().width() > 10 / 200000.0);
        press(Qt::Key_Escape);
        QVERIFY(!view->isZoomed());
    }

    void keysZoomAndGoBack()
    {
        press(Qt::Key_Plus);
        QVERIFY(view->isZoomed());
        press(Qt::Key_Minus);
        QVERIFY(!view->isZoomed());
        for (const int back : {int(Qt::Key_Escape), int(Qt::Key_Backspace)}) {
            press(Qt::Key_Plus);
            press(Qt::Key_Plus);
            press(back);
            QVERIFY(!view->isZoomed());
        }
    }

    /// A window around the plot closes by Esc, once there is nothing to go back from.
    void escapeIsTheWindowsWhenEverythingIsShown()
    {
        view->zoomTo(QRectF(2, 22, 4, 10));
        QKeyEvent zoomed(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(view.get(), &zoomed);
        QVERIFY(zoomed.isAccepted());
        QKeyEvent whole(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(view.get(), &whole);
        QVERIFY(!whole.isAccepted());
    }

    void theMousePointsAtTheNearestPoint()
    {
        Mouse mouse(*view);
        mouse.move(view->pixelOf({2.1, 24.5}));
        QVERIFY((announced == Place{0, 2}));
        QCOMPARE(view->accessibleDescription(), QStringLiteral("L0: 2.0 px, 24.0 °C"));
        mouse.move(view->pixelOf({8.1, 24.5}));
        QVERIFY((announced == Place{1, 8}));
        const int before = announcements;
        mouse.move(view->pixelOf({8.2, 24.5})); // the same point
        QCOMPARE(announcements, before);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view->findChild<QWidget*>(QStringLiteral("canvas")), &leave);
        QVERIFY(!announced);
        QCOMPARE(announcements, before + 1);
        QCOMPARE(view->accessibleDescription(), QString());
    }

    void arrowsWalkAlongACurveAndToAnother()
    {
        press(Qt::Key_Right);
        QVERIFY((announced == Place{0, 0}));
        press(Qt::Key_Right);
        press(Qt::Key_Right);
        QVERIFY((announced == Place{0, 2}));
        press(Qt::Key_Left);
        QVERIFY((announced == Place{0, 1}));
        press(Qt::Key_Down);
        QVERIFY((announced == Place{1, 1}));
        press(Qt::Key_Down);
        QVERIFY((announced == Place{1, 1}));
        press(Qt::Key_End);
        QVERIFY((announced == Place{1, 10}));
        press(Qt::Key_Right);
        QVERIFY((announced == Place{1, 10}));
        press(Qt::Key_Up);
        QVERIFY((announced == Place{0, 10}));
        press(Qt::Key_Home);
        QVERIFY((announced == Place{0, 0}));
    }

    void aWalkSkipsNothingOfACurveThatIsGone()
    {
        view->setCursor(Place{1, 10});
        Plot plot = testing::twoCurves();
        plot.curves.pop_back();
        const int before = announcements;
        view->setPlot(plot);
        QVERIFY(!announced);
        QCOMPARE(announcements, before + 1);
        view->setPlot({});
        press(Qt::Key_Right); // nothing to walk on
        QVERIFY(!view->cursor());
    }

    void otherNumbersAreAnnouncedAtTheSamePlace()
    {
        view->setCursor(Place{0, 3});
        const int before = announcements;
        Plot plot = testing::twoCurves();
        plot.curves[0].points[3].setY(21);
        view->setPlot(plot);
        QCOMPARE(announcements, before + 1);
        QVERIFY((announced == Place{0, 3}));
        QCOMPARE(view->accessibleDescription(), QStringLiteral("L0: 3.0 px, 21.0 °C"));
        view->setCursor({});
        const int gone = announcements;
        view->setPlot(testing::twoCurves());
        QCOMPARE(announcements, gone);
    }

    void limitsAreDragged()
    {
        QSignalSpy moves(view.get(), &PlotView::limitsMoved);
        view->setLimits(Limits{3, 6, 0.5});
        QCOMPARE(moves.size(), 0);
        drag({3, 30}, {4, 22});
        QVERIFY(std::abs(view->limits()->lower - 4) < 0.05);
        QCOMPARE(view->limits()->upper, 6.0);
        QVERIFY(!moves.isEmpty());
        QVERIFY(!view->isZoomed());
        drag({6, 30}, {2, 30}); // not beyond the other one
        QCOMPARE(view->limits()->upper, view->limits()->lower);
        drag({view->limits()->upper + 0.02, 30}, {40, 30}); // nor out of the plot
        QCOMPARE(view->limits()->upper, 10.0);
        const int before = moves.size();
        Mouse(*view).move(view->pixelOf({5, 25})); // let go
        QCOMPARE(moves.size(), before);
    }

    void limitsAreMovedByKeys()
    {
        view->setLimits(Limits{3, 6, 0.5});
        press(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(view->limits()->lower, 3.5);
        press(Qt::Key_Left, Qt::ControlModifier);
        press(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(view->limits()->lower, 2.5);
        press(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(view->limits()->upper, 6.5);
        press(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(view->limits()->upper, 6.0);
        QVERIFY(!view->cursor());
    }

    void withoutLimitsTheSameDragZooms()
    {
        drag({3, 30}, {4, 22});
        QVERIFY(view->isZoomed());
    }

    void copiesPictureAndTable()
    {
        press(Qt::Key_C, Qt::ControlModifier);
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(data->text(), files::tabSeparated(plots::rowsOf(view->plot().table)));
        const QImage copied = qvariant_cast<QImage>(data->imageData());
        QVERIFY(copied.width() >= 2 * view->width() - 2);
    }

    void theContextMenuHasWhatIsPossible()
    {
        const auto menu = [] {
            return qobject_cast<QMenu*>(QApplication::activePopupWidget());
        };
        const auto open = [&] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, {200, 200},
                                    view->mapToGlobal({200, 200}));
            QApplication::sendEvent(view.get(), &event);
        };
        open();
        QVERIFY(menu());
        QCOMPARE(menu()->actions().size(), 3);
        QVERIFY(!menu()->actions().at(0)->isEnabled());
        menu()->close();
        view->zoomTo(QRectF(2, 22, 4, 10));
        open();
        QVERIFY(menu()->actions().at(0)->isEnabled());
        menu()->actions().at(0)->trigger();
        menu()->close();
        QVERIFY(!view->isZoomed());
    }

    void anIdleSecondPaintsNothing()
    {
        view->setLimits(Limits{3, 6, 0.5});
        view->setCursor(Place{0, 3});
        testing::PaintCounter paints(*view, testing::PaintCounter::Of::WidgetAndParts);
        QVERIFY(testing::comeToRest(paints));
        paints.count = 0;
        QTest::qWait(1000);
        QCOMPARE(paints.count, 0);
        view->setCursor(Place{0, 4});
        QVERIFY(testing::comeToRest(paints));
        QVERIFY(paints.count > 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<PlotViewTest>(argc, argv);
}

#include "plot_view_test.moc"
