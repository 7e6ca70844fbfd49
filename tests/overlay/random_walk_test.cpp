// SPDX-License-Identifier: MIT
#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/overlay_host.h"
#include "tests/support/test_run.h"

#include <QSet>

#include <random>

/// Whatever a hand does on the label and the colour bar, in any order: their state stays sound, and
/// under the sanitizers nothing is read or written that does not exist.

namespace {

constexpr int steps = 100'000;
constexpr int stepsPerPaint = 50;

class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// From 0 to before `count`. Not std::uniform_int_distribution, whose results differ between
    /// libraries.
    int roll(int count) { return int(m_engine() % unsigned(count)); }

private:
    std::mt19937 m_engine;
};

template<typename Tool>
QString faultIn(const QVector<Tool>& list)
{
    int last = -1;
    for (const Tool& tool : list) {
        bool isNumber = false;
        const int number = tool.name.mid(1).toInt(&isNumber);
        if (!isNumber || tool.name.at(0) != QLatin1Char(overlay::rowOf(tool.kind).letter) ||
            number <= last)
            return QStringLiteral("%1 after number %2").arg(tool.name).arg(last);
        last = number;
    }
    return {};
}

bool isInPicture(int x, int y)
{
    return x >= -1 && x <= 240 && y >= -1 && y <= 320;
}

/// What a step may do to the selection: a press and a clearing leave it on a tool or on none; a
/// deletion keeps it, so it can then point behind the end of its list.
enum class Selection
{
    OnAToolOrNone,
    MayBeLeftBehind
};

QString faultIn(const MyLabel& label, Selection selection)
{
    QString fault;
    overlay::forEachList(label, [&](const auto& list) { fault += faultIn(list); });
    if (!fault.isEmpty())
        return fault;
    if (label.currentType == QLatin1String("null"))
        return label.selectedIndex == 0 || label.selectedIndex == -1
                   ? QString()
                   : QStringLiteral("nothing selected, but at %1").arg(label.selectedIndex);
    if (!overlay::selectedKind(label) || label.selectedIndex < 0)
        return QStringLiteral("selection %1 %2").arg(label.currentType).arg(label.selectedIndex);
    if (selection == Selection::OnAToolOrNone && overlay::selectedPlace(label) < 0)
        return QStringLiteral("no tool %1 %2").arg(label.currentType).arg(label.selectedIndex);
    return {};
}

QString misplacedTool(const MyLabel& label)
{
    for (const auto& point : label.pointList) {
        if (!isInPicture(point.x, point.y))
            return point.name;
    }
    for (const auto& line : label.lineList) {
        if (!isInPicture(line.x1, line.y1) || !isInPicture(line.x2, line.y2))
            return line.name;
    }
    for (const auto& rect : label.rectList) {
        if (!isInPicture(rect.x1, rect.y1) || !isInPicture(rect.x2, rect.y2))
            return rect.name;
    }
    for (const auto& circle : label.circleList) {
        if (!isInPicture(circle.cx, circle.cy) || !isInPicture(circle.x2, circle.y2) ||
            circle.radius > 160)
            return circle.name;
    }
    return {};
}

} // namespace

class RandomWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Every hit is logged.
        m_previous =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    }
    void cleanupTestCase() { qInstallMessageHandler(m_previous); }

    void overTheLabel_data()
    {
        QTest::addColumn<QSize>("window");
        QTest::addColumn<unsigned>("seed");
        QTest::addColumn<bool>("rearms");
        QTest::newRow("wide") << QSize(500, 500) << 20240611U << true;
        QTest::newRow("tall") << QSize(400, 560) << 7U << false;
    }

    void overTheLabel()
    {
        QFETCH(QSize, window);
        QFETCH(unsigned, seed);
        QFETCH(bool, rearms);
        testing::OverlayHost host;
        host.rearms = rearms;
        host.resize(window);
        testing::showAndPaint(host);
        walk(host, seed, steps / 2, true);
    }

    /// With no margin at all, positions are what the last conversion left: odd, but harmless.
    void overALabelOfThePicturesShape()
    {
        testing::OverlayHost host;
        testing::showAndPaint(host);
        host.label->setFixedSize(240, 320);
        testing::showAndPaint(host);
        QCOMPARE(host.label->labelWidth, host.label->imageWidth);
        QCOMPARE(host.label->labelHeight, host.label->imageHeight);
        walk(host, 99U, steps / 10, false);
    }

    void overALabelWithoutAPicture()
    {
        MyLabel label;
        label.resize(200, 300);
        testing::showAndPaint(label);
        Dice dice(5U);
        for (int step = 0; step < steps / 10; ++step)
            takeStep(label, dice);
    }

    void overTheColourBar()
    {
        testing::OverlayHost host;
        host.resize(400, 500);
        testing::showAndPaint(host);
        My_ColorSlider& bar = *host.bar;
        Dice dice(12U);
        for (int step = 0; step < steps / 10; ++step) {
            const QPointF at(dice.roll(bar.width() + 20) - 10, dice.roll(bar.height() + 40) - 20);
            switch (dice.roll(4)) {
            case 0: {
                const QPoint& marker = dice.roll(2) ? bar.startMarker : bar.endMarker;
                testing::sendMouse(bar, QEvent::MouseButtonPress, marker + QPoint(6, 0),
                                   Qt::LeftButton, Qt::LeftButton);
                break;
            }
            case 1:
                testing::sendMouse(bar, QEvent::MouseButtonRelease, at, Qt::LeftButton,
                                   Qt::NoButton);
                break;
            default:
                testing::sendMouse(bar, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
            }
            QVERIFY(bar.startValue >= 0 && bar.startValue <= bar.endValue && bar.endValue <= 255);
            QVERIFY(bar.startMarker.y() <= bar.endMarker.y());
            if (step % stepsPerPaint == 0)
                QApplication::processEvents();
        }
    }

private:
    static void walk(testing::OverlayHost& host, unsigned seed, int count, bool placesAreSound)
    {
        MyLabel& label = *host.label;
        Dice dice(seed);
        int mostTools = 0;
        QSet<QString> selected;
        for (int step = 0; step < count; ++step) {
            const Selection selection = takeStep(label, dice);
            QString fault = faultIn(label, selection);
            if (fault.isEmpty() && placesAreSound)
                fault = misplacedTool(label);
            if (!fault.isEmpty())
                QFAIL(qPrintable(QStringLiteral("step %1: %2").arg(step).arg(fault)));
            host.heard.clear();
            mostTools = std::max(mostTools, overlay::countOf(label));
            selected.insert(label.currentType);
            if (step % stepsPerPaint == 0)
                QApplication::processEvents();
        }
        // the walk has been somewhere
        QVERIFY2(mostTools > 20, qPrintable(QString::number(mostTools)));
        QCOMPARE(selected.size(), 5);
    }

    static Selection takeStep(MyLabel& label, Dice& dice)
    {
        const QPointF at(dice.roll(label.width() + 40) - 20, dice.roll(label.height() + 40) - 20);
        const Qt::MouseButton button = dice.roll(8) ? Qt::LeftButton : Qt::RightButton;
        const int kind = dice.roll(1000);
        if (kind < 250) {
            testing::sendMouse(label, QEvent::MouseButtonPress, at, button, button);
            // a press that finds no tool prepared leaves the selection of before
            return label.toolMode == 1 ? Selection::OnAToolOrNone : Selection::MayBeLeftBehind;
        }
        if (kind < 550)
            testing::sendMouse(label, QEvent::MouseMove, at, Qt::NoButton, button);
        else if (kind < 800)
            testing::sendMouse(label, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
        else if (kind < 950)
            label.setToolMode(1 + dice.roll(5));
        else if (kind < 998)
            label.deleteSelected();
        else
            label.clearTools();
        return Selection::MayBeLeftBehind;
    }

    QtMessageHandler m_previous = nullptr;
};

int main(int argc, char** argv)
{
    return testing::run<RandomWalkTest>(argc, argv);
}

#include "random_walk_test.moc"
