// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/plots_test.h"
#include "tests/overlay/mouse.h"
#include "tests/support/translation.h"

#include <QClipboard>
#include <QMimeData>

using analysis::ProfileWindow;

/// Profiles of lines, as somebody at the window asks for them.
class ProfileWindowTest : public testing::PlotsTest
{
    Q_OBJECT

    plots::PlotView& plot() const { return view<ProfileWindow>(); }
    const std::vector<plots::Curve>& curves() const { return plot().plot().curves; }
    QString curveNames() const
    {
        QStringList names;
        for (const plots::Curve& curve : curves())
            names.append(curve.name);
        return names.join(QLatin1Char(' '));
    }
    QComboBox& choice() const
    {
        return *testing::part<QComboBox>(shownWindow<ProfileWindow>(), "lines");
    }
    void openOnTwoLines()
    {
        beginOn(ramp());
        drawLine({10, 50}, {30, 50});
        drawLine({100, 80}, {140, 110});
        open<ProfileWindow>("温度曲线...", 1);
    }
    /// Temperatures are in single precision.
    static bool isAbout(const QPointF& point, const QPointF& wanted)
    {
        return (point - wanted).manhattanLength() < 0.001;
    }
    QRgb onTheLabel(int x, int y) const { return label().grab().toImage().pixel(at(x, y)); }

private slots:
    void isPossibleWithALine()
    {
        beginOn(ramp());
        QMenu* menu = rightClick(label(), at(120, 310));
        QVERIFY(greyed(*menu).contains(QStringLiteral("温度曲线...")));
        menu->close();
        drawLine({10, 50}, {30, 50});
        menu = rightClick(label(), at(120, 310));
        QVERIFY(!greyed(*menu).contains(QStringLiteral("温度曲线...")));
        menu->close();
    }

    void showsTheSelectedLineOrAllOfThem()
    {
        openOnTwoLines();
        QCOMPARE(shownWindow<ProfileWindow>()->windowTitle(),
                 QStringLiteral("温度曲线 - shot.bmp"));
        QCOMPARE(curveNames(), QStringLiteral("L1"));
        choice().setCurrentIndex(1);
        QCOMPARE(curveNames(), QStringLiteral("L0 L1"));
        QCOMPARE(curves()[0].points.size(), std::size_t(21));
        QVERIFY(isAbout(curves()[0].points[20], {20, 30}));
        QCOMPARE(curves()[1].points.size(), std::size_t(41));
        QVERIFY(isAbout(curves()[1].points[40], {50, 140})); // 40 to the right, 30 down
        choice().setCurrentIndex(0);
        QCOMPARE(curveNames(), QStringLiteral("L1"));
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(20, 50));
        QTRY_COMPARE(curveNames(), QStringLiteral("L0"));
        // Without a selected line, all there are.
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(200, 250));
        QTRY_COMPARE(curveNames(), QStringLiteral("L0 L1"));
    }

    void followsALineThatMoves()
    {
        openOnTwoLines();
        QApplication::setActiveWindow(window.get());
        label().setFocus();
        QVERIFY(isAbout(curves()[0].points[0], {0, 100}));
        key(Qt::Key_Right, Qt::ShiftModifier);
        QTRY_VERIFY(isAbout(curves()[0].points[0], {0, 110}));
        undo();
        QTRY_VERIFY(isAbout(curves()[0].points[0], {0, 100}));
        key(Qt::Key_Delete);
        QTRY_COMPARE(curveNames(), QStringLiteral("L0"));
        key(Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(curveNames(), QStringLiteral("L1"));
    }

    /// While the mouse still holds it.
    void followsALineThatIsDrawn()
    {
        openOnTwoLines();
        choice().setCurrentIndex(1);
        click("pushButton_7");
        QTest::mousePress(&label(), Qt::LeftButton, {}, at(20, 200));
        QMouseEvent move(QEvent::MouseMove, at(50, 200), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&label(), &move);
        QTRY_COMPARE(curves().size(), std::size_t(3));
        const std::size_t before = curves()[2].points.size();
        QMouseEvent further(QEvent::MouseMove, at(90, 200), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&label(), &further);
        QTRY_VERIFY(curves()[2].points.size() > before + 30);
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, at(90, 200));
    }

    void theCursorMarksItsPixelInThePicture()
    {
        openOnTwoLines();
        choice().setCurrentIndex(1);
        QVERIFY(!isMarking());
        const QRgb before = onTheLabel(20, 50);
        testing::Mouse(plot()).move(plot().pixelOf({10, 20})); // of L0: (20, 50)
        QVERIFY((plot().cursor() == plots::Place{0, 10}));
        QVERIFY(isMarking());
        int changed = 0;
        for (int dx = -8; dx <= 8; ++dx)
            changed += onTheLabel(20 + dx, 50) != before ? 1 : 0;
        QVERIFY(changed > 0);
        plot().setCursor(std::optional<plots::Place>());
        QVERIFY(!isMarking());
        const QImage unmarked = label().grab().toImage();
        plot().setCursor(plots::Place{1, 5}); // of L1: (105, 84)
        QVERIFY(isMarking());
        const QImage marked = label().grab().toImage();
        changed = 0;
        for (int dx = -8; dx <= 8; ++dx)
            changed += marked.pixel(at(105 + dx, 84)) != unmarked.pixel(at(105 + dx, 84)) ? 1 : 0;
        QVERIFY(changed > 0);
        shownWindow<ProfileWindow>()->close();
        QTRY_VERIFY(!shownWindow<ProfileWindow>());
        QVERIFY(!isMarking());
    }

    void theUnitIsTheWindows()
    {
        openOnTwoLines();
        QCOMPARE(plot().plot().y.unit, QStringLiteral("°C"));
        unit().setCurrentIndex(1);
        QTRY_COMPARE(plot().plot().y.unit, QStringLiteral("°F"));
        QVERIFY(std::abs(curves()[0].points[0].y() - 212) < 0.1);
    }

    void correctedReadingsStandBesideTheStoredOnes()
    {
        openOnTwoLines();
        window->commands().viewed().setCorrection(analysis::Correction{0.95, 0.5, 20});
        QTRY_COMPARE(curves().size(), std::size_t(2));
        QVERIFY(curves()[1].isDashed);
        QVERIFY(curves()[1].name.startsWith(QStringLiteral("L1 - ")));
        QVERIFY(curves()[1].points[0].y() > curves()[0].points[0].y() + 10);
        QVERIFY(isAbout(curves()[0].points[0], {0, 100}));
        window->commands().viewed().setCorrection({});
        QTRY_COMPARE(curves().size(), std::size_t(1));
    }

    void theLastLineGone()
    {
        beginOn(ramp());
        drawLine({10, 50}, {30, 50});
        open<ProfileWindow>("温度曲线...");
        window->commands().change([](overlay::ToolEditing& tools) { tools.lineList.clear(); });
        QTRY_VERIFY(curves().empty());
        QVERIFY(plot().plot().title.contains(QStringLiteral("没有直线")));
    }

    void copiesBothByItsButton()
    {
        openOnTwoLines();
        testing::part<QPushButton>(shownWindow<ProfileWindow>(), "copy")->click();
        const QMimeData* contents = QGuiApplication::clipboard()->mimeData();
        QVERIFY(contents->hasImage());
        QVERIFY(contents->text().startsWith(
            QStringLiteral("file\tunit\tname\tdistance\tx\ty\ttemperature\n"
                           "shot.bmp\tC\tL1\t0.000\t100\t80\t100.000\n")));
    }

    void escapeGoesBackFromAZoomAndThenCloses()
    {
        openOnTwoLines();
        plot().zoomTo(QRectF(5, 110, 10, 10));
        QVERIFY(plot().isZoomed());
        QTest::keyClick(&plot(), Qt::Key_Escape);
        QVERIFY(!plot().isZoomed());
        QVERIFY(shownWindow<ProfileWindow>());
        QTest::keyClick(&plot(), Qt::Key_Escape);
        QTRY_VERIFY(!shownWindow<ProfileWindow>());
    }

    void anIdleSecondPaintsNothing()
    {
        openOnTwoLines();
        plot().setCursor(plots::Place{0, 5});
        testing::PaintCounter beside(*shownWindow<ProfileWindow>(),
                                     testing::PaintCounter::Of::WidgetAndParts);
        testing::PaintCounter picture(*window, testing::PaintCounter::Of::WidgetAndParts);
        QVERIFY(testing::comeToRest(beside) && testing::comeToRest(picture));
        beside.count = picture.count = 0;
        QTest::qWait(1000);
        QCOMPARE(beside.count, 0);
        QCOMPARE(picture.count, 0);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ProfileWindowTest>(argc, argv);
}

#include "profile_window_test.moc"
