// SPDX-License-Identifier: MIT
#include "analysis/export/picture_export.h"
#include "analysis/windows/picture_view.h"
#include "tests/support/paint_counter.h"
#include "tests/support/test_run.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <memory>

using analysis::PictureView;

namespace {

PictureView::Content made()
{
    PictureView::Content content;
    content.colours = QImage(240, 320, QImage::Format_RGB888);
    for (int y = 0; y < 320; ++y) {
        for (int x = 0; x < 240; ++x)
            content.colours.setPixel(x, y, qRgb(x, y % 256, 128 + y / 4));
    }
    content.tools.rectList.append({QStringLiteral("R0"), 30, 40, 100, 200});
    content.tools.pointList.append({QStringLiteral("P0"), 150, 60});
    content.tools.currentType = QStringLiteral("R");
    content.tools.selectedIndex = 0;
    content.spots = {{20, 20}, {200, 300}, {120, 160}};
    return content;
}

} // namespace

/// A picture of any size in a window, by mouse, wheel and keyboard.
class PictureViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_view = std::make_unique<PictureView>();
        m_view->resize(500, 640);
        m_view->show(made());
        m_view->QWidget::show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }
    void cleanup() { m_view.reset(); }

    void showsAllOfItAtFirst()
    {
        QVERIFY(zoom().isFitted());
        QCOMPARE(zoom().factor(), 2.0);
        QCOMPARE(seen(), asExported(made(), 480));
        m_view->resize(900, 320);
        QCOMPARE(zoom().factor(), 1.0);
        QCOMPARE(seen(), asExported(made(), 240));
    }

    /// The same as a label of that size shows, tools and all.
    void smoothPartsAreThoseOfTheWhole()
    {
        m_view->zoomBy(1, {60, 70});
        QCOMPARE(zoom().factor(), 3.0);
        const QRect part = zoom().visible();
        QVERIFY(part.width() < 720 && part.height() < 960);
        const QImage whole = asExported(made(), 720);
        const QImage found = seen();
        QCOMPARE(found.size(), part.size());
        int different = 0;
        for (int y = 0; y < found.height(); ++y) {
            for (int x = 0; x < found.width(); ++x)
                different += int(found.pixel(x, y) != whole.pixel(part.left() + x, part.top() + y));
        }
        QVERIFY2(different < 50, qPrintable(QString::number(different))); // edges at the border
    }

    /// What is made is no larger than the window, however large the picture.
    void theLargestCostsNoMore()
    {
        m_view->zoomBy(100, {239, 319});
        QCOMPARE(zoom().factor(), 32.0);
        QCOMPARE(m_view->seen().size(), m_view->viewport()->size());
        // Sharp cells: the last pixel's corner has its colour everywhere.
        const QImage grabbed = m_view->viewport()->grab().toImage();
        const QPoint corner = grabbed.rect().bottomRight();
        QCOMPARE(grabbed.pixel(corner), made().colours.pixel(239, 319));
        QCOMPARE(grabbed.pixel(corner - QPoint(31, 31)), made().colours.pixel(239, 319));
        QCOMPARE(grabbed.pixel(corner - QPoint(32, 0)), made().colours.pixel(238, 319));
        QCOMPARE(grabbed.pixel(corner - QPoint(0, 32)), made().colours.pixel(239, 318));
    }

    void zoomsAtTheMouse()
    {
        m_view->zoomBy(4);
        const QPoint place(111, 222);
        const QPoint pixel = zoom().pixelAt(place).value();
        wheel(place, 120, Qt::ControlModifier);
        const QPoint now = zoom().pixelAt(place).value();
        QCOMPARE(zoom().factor(), 12.0);
        QVERIFY((now - pixel).manhattanLength() <= 2);
        for (const int part : {-40, -40})
            wheel(place, part, Qt::ControlModifier);
        QCOMPARE(zoom().factor(), 12.0);
        wheel(place, -40, Qt::ControlModifier);
        QCOMPARE(zoom().factor(), 8.0);
        m_view->fit();
        QCOMPARE(zoom().factor(), 2.0);
        QVERIFY(!m_view->verticalScrollBar()->isVisible());
    }

    void isMoved_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"wheel", "keys", "left", "middle", "bars"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }
    void isMoved()
    {
        QFETCH(const QString, way);
        m_view->zoomBy(3, {120, 160}); // 6
        const QPoint before = zoom().offset();
        if (way == QLatin1String("wheel")) {
            wheel({100, 100}, -120, {});
            QVERIFY(zoom().offset().y() > before.y());
            QCOMPARE(zoom().factor(), 6.0);
        } else if (way == QLatin1String("keys")) {
            QTest::keyClick(m_view.get(), Qt::Key_Right);
            QCOMPARE(zoom().offset(), before + QPoint(24, 0));
            QTest::keyClick(m_view.get(), Qt::Key_Up);
            QCOMPARE(zoom().offset(), before + QPoint(24, -24));
        } else if (way == QLatin1String("bars")) {
            m_view->horizontalScrollBar()->setValue(7);
            QCOMPARE(zoom().offset(), QPoint(7, before.y()));
        } else {
            const auto button = way == QLatin1String("left") ? Qt::LeftButton : Qt::MiddleButton;
            QTest::mousePress(m_view->viewport(), button, {}, {200, 200});
            QCOMPARE(m_view->viewport()->cursor().shape(), Qt::ClosedHandCursor);
            move({190, 230});
            move({170, 260});
            QTest::mouseRelease(m_view->viewport(), button, {}, {170, 260});
            QCOMPARE(zoom().offset(), before + QPoint(30, -60));
            move({300, 300}); // not held any more
            QCOMPARE(zoom().offset(), before + QPoint(30, -60));
        }
        QCOMPARE(m_view->verticalScrollBar()->value(), zoom().offset().y());
    }

    void tellsThePixelUnderTheMouse()
    {
        QVector<QPoint> told;
        connect(m_view.get(), &PictureView::pointed, this, [&](const std::optional<QPoint>& pixel) {
            told.append(pixel.value_or(QPoint(-1, -1)));
        });
        move({10, 0}); // 500 wide, 480 of them the picture
        QCOMPARE(told.last(), QPoint(0, 0));
        move({489, 639});
        QCOMPARE(told.last(), QPoint(239, 319));
        move({490, 300});
        QCOMPARE(told.last(), QPoint(-1, -1));
        move({250, 320});
        QCOMPARE(told.last(), QPoint(120, 160));
        // It moves under the mouse, too.
        m_view->zoomBy(3, {50, 60});
        QVERIFY((told.last() - QPoint(50, 60)).manhattanLength() <= 3);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_view->viewport(), &leave);
        QCOMPARE(told.last(), QPoint(-1, -1));
    }

    void paintsOnlyWhatIsOther()
    {
        const testing::PaintCounter paints(*m_view, testing::PaintCounter::Of::WidgetAndParts);
        QVERIFY(testing::comeToRest(paints));
        int before = paints.count;
        m_view->show(made());
        move({30, 40});
        QVERIFY(testing::comeToRest(paints));
        QCOMPARE(paints.count, before);
        PictureView::Content other = made();
        const std::array<std::function<void()>, 4> changes{
            [&] { other.tools.pointList.clear(); },
            [&] { other.tools.selectedIndex = -1; },
            [&] { other.spots.markerC.x = 5; },
            [&] { other.colours.setPixel(3, 4, 0); },
        };
        for (const auto& change : changes) {
            change();
            m_view->show(other);
            QTRY_VERIFY(paints.count > before);
            QVERIFY(testing::comeToRest(paints));
            before = paints.count;
        }
    }

private:
    const analysis::PictureZoom& zoom() const { return m_view->zoom(); }
    /// What is on the screen where the picture is; also what seen() says.
    QImage seen() const
    {
        const QImage said = m_view->seen();
        const QRect place(zoom().visible().topLeft() - zoom().offset(), said.size());
        const QImage grabbed =
            m_view->viewport()->grab(place).toImage().convertToFormat(QImage::Format_RGB32);
        return said == grabbed ? grabbed : QImage();
    }
    /// As the picture is copied from a label on which it is so wide.
    static QImage asExported(const PictureView::Content& content, int width)
    {
        analysis::ShownPicture shown;
        shown.falseColours = content.colours;
        shown.tools = content.tools;
        shown.spots = content.spots;
        const int height = width / 3 * 4;
        return analysis::pictureWithTools(shown, {width + 20, width, height, height});
    }
    void move(const QPoint& place) const
    {
        QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(m_view->viewport(), &event);
    }
    void wheel(const QPoint& place, int angle, Qt::KeyboardModifiers modifiers) const
    {
        QWheelEvent turn(place, m_view->viewport()->mapToGlobal(place), {}, {0, angle},
                         Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_view->viewport(), &turn);
    }

    std::unique_ptr<PictureView> m_view;
};

int main(int argc, char** argv)
{
    return testing::run<PictureViewTest>(argc, argv);
}

#include "picture_view_test.moc"
