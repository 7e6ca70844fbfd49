// SPDX-License-Identifier: MIT
#include "analysis/windows/coordinates_dialog.h"
#include "dialogs/dialogs.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <memory>

using namespace overlay;

namespace {

CircleTool circleAt(int cx, int cy, int radius)
{
    CircleTool circle;
    setNumbers(circle, {cx, cy, radius});
    circle.name = QStringLiteral("C0");
    return circle;
}

PointTool pointAt(int x, int y)
{
    PointTool point;
    point.name = QStringLiteral("P0");
    setNumbers(point, {x, y});
    return point;
}

} // namespace

/// What a user does in the dialog, and what whoever opened it hears.
class CoordinatesDialogTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> page;
    QPointer<CoordinatesDialog> dialog;
    Tools before;
    QVector<Tools> heard;

    void open(const Tools& tools, ToolKind kindOfNew = ToolKind::Point,
              CoordinatesDialog::Of of = CoordinatesDialog::Of::Selection)
    {
        before = tools;
        heard.clear();
        dialog = new CoordinatesDialog(tools, of, kindOfNew, Qt::cyan, page.get());
        connect(dialog, &CoordinatesDialog::changed, this,
                [this](const Tools& changed) { heard.append(changed); });
        dialogs::open(dialog);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
    }
    QSpinBox& box(int number) const
    {
        return *testing::part<QSpinBox>(dialog, qPrintable(QStringLiteral("number%1").arg(number)));
    }
    QString limits(int number) const
    {
        return testing::part<QLabel>(dialog, qPrintable(QStringLiteral("limits%1").arg(number)))
            ->text();
    }
    QPushButton& button(QDialogButtonBox::StandardButton which) const
    {
        return *dialog->findChild<QDialogButtonBox*>()->button(which);
    }
    void type(int number, const QString& text) const
    {
        box(number).setFocus();
        box(number).selectAll();
        QTest::keyClicks(&box(number), text);
    }
    int shownNumbers() const
    {
        int count = 0;
        for (const QSpinBox* each : dialog->findChildren<QSpinBox*>())
            count += each->isVisible() ? 1 : 0;
        return count;
    }

private slots:
    void init() { page = std::make_unique<QWidget>(); }
    void cleanup() { page.reset(); }

    void showsTheSelectedToolAndItsLimits()
    {
        Tools tools;
        tools.circleList = {circleAt(120, 160, 40)};
        tools.pointList = {pointAt(1, 2)};
        select(tools, ToolKind::Circle, 0);
        open(tools);
        QVERIFY(!dialog->isForNewTool());
        QVERIFY(dialog->windowTitle().endsWith(QStringLiteral("C0")));
        QVERIFY(!testing::part<QComboBox>(dialog, "kind")->isEnabled());
        QCOMPARE(shownNumbers(), 3);
        QCOMPARE(box(1).value(), 120);
        QCOMPARE(box(1).text(), QStringLiteral("120")); // whatever digits the computer has
        QCOMPARE(box(1).accessibleDescription(), limits(1));
        QCOMPARE(box(2).value(), 160);
        QCOMPARE(box(3).value(), 40);
        QCOMPARE(limits(1), QStringLiteral("41 … 199"));
        QCOMPARE(limits(2), QStringLiteral("41 … 279"));
        QCOMPARE(limits(3), QStringLiteral("1 … 119"));
        QVERIFY(heard.isEmpty());
        QVERIFY(dialog->isModal());
    }

    void whatIsTypedIsShownAtOnce()
    {
        Tools tools;
        tools.pointList = {pointAt(10, 20)};
        select(tools, ToolKind::Point, 0);
        open(tools);
        type(1, QStringLiteral("77"));
        QVERIFY(!heard.isEmpty());
        QCOMPARE(heard.last().pointList.first().x, 77);
        QCOMPARE(heard.last().pointList.first().y, 20);
        QCOMPARE(heard.last().pointList.first().name, QStringLiteral("P0"));
        button(QDialogButtonBox::Ok).click();
        QCOMPARE(heard.last().pointList.first().x, 77);
        QTRY_VERIFY(!dialog);
    }

    /// Typing a radius first and a place afterwards works as well as the other way round.
    void numbersThatMakeNoToolAreNotShownAndNotTaken()
    {
        Tools tools;
        tools.circleList = {circleAt(120, 160, 40)};
        select(tools, ToolKind::Circle, 0);
        open(tools);
        type(1, QStringLiteral("20"));
        QCOMPARE(limits(1), QStringLiteral("41 … 199"));
        QCOMPARE(limits(3), QStringLiteral("1 … 19"));
        QVERIFY(!button(QDialogButtonBox::Ok).isEnabled());
        for (const Tools& each : qAsConst(heard))
            QVERIFY(isInside(each.circleList.first()));
        QTest::keyClick(&box(1), Qt::Key_Return);
        QVERIFY(dialog);
        type(3, QStringLiteral("19"));
        QVERIFY(button(QDialogButtonBox::Ok).isEnabled());
        QCOMPARE(heard.last().circleList.first().cx, 20);
        QCOMPARE(heard.last().circleList.first().radius, 19);
    }

    void cancelRestores_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("button") << 0;
        QTest::newRow("escape") << 1;
        QTest::newRow("close") << 2;
    }
    void cancelRestores()
    {
        QFETCH(const int, way);
        Tools tools;
        tools.pointList = {pointAt(10, 20)};
        select(tools, ToolKind::Point, 0);
        open(tools);
        type(2, QStringLiteral("300"));
        QCOMPARE(heard.last().pointList.first().y, 300);
        if (way == 0)
            button(QDialogButtonBox::Cancel).click();
        else if (way == 1)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else
            dialog->close();
        QVERIFY(heard.last() == before);
        QTRY_VERIFY(!dialog);
    }

    void aNewToolIsThereAtOnceAndGoesWithCancel()
    {
        Tools tools;
        tools.pointList = {pointAt(10, 20)};
        open(tools, ToolKind::Line); // nothing is selected
        QVERIFY(dialog->isForNewTool());
        QCOMPARE(heard.size(), 1);
        QCOMPARE(heard.last().lineList.size(), 1);
        QCOMPARE(heard.last().lineList.first().colour, QColor(Qt::cyan));
        QCOMPARE(heard.last().currentType, QStringLiteral("L"));
        QCOMPARE(shownNumbers(), 4);
        testing::part<QComboBox>(dialog, "kind")->setCurrentIndex(int(ToolKind::Circle));
        QCOMPARE(shownNumbers(), 3);
        QVERIFY(heard.last().lineList.isEmpty());
        QCOMPARE(heard.last().circleList.first().name, QStringLiteral("C0"));
        button(QDialogButtonBox::Cancel).click();
        QVERIFY(heard.last() == before);
    }

    void aNewToolBesideTheSelectedOne()
    {
        Tools tools;
        tools.pointList = {pointAt(10, 20)};
        select(tools, ToolKind::Point, 0);
        open(tools, ToolKind::Point, CoordinatesDialog::Of::NewTool);
        QVERIFY(dialog->isForNewTool());
        QCOMPARE(heard.last().pointList.size(), 2);
        QCOMPARE(heard.last().selectedIndex, 1);
        button(QDialogButtonBox::Cancel).click();
        QVERIFY(heard.last() == before);
    }

    /// The mouse can leave a point one pixel beyond the last; looking at its numbers moves nothing.
    void lookingChangesNothing()
    {
        Tools tools;
        tools.pointList = {pointAt(240, 320)};
        CircleTool circle = circleAt(100, 100, 30);
        circle.x2 = 100;
        circle.y2 = 130; // dragged downwards
        tools.circleList = {circle};
        select(tools, ToolKind::Point, 0);
        open(tools);
        QCOMPARE(box(1).value(), 240);
        button(QDialogButtonBox::Ok).click();
        QVERIFY(heard.isEmpty());
        select(tools, ToolKind::Circle, 0);
        open(tools);
        type(3, QStringLiteral("31"));
        type(3, QStringLiteral("30"));
        button(QDialogButtonBox::Ok).click();
        QVERIFY(heard.last() == before);
    }

    /// A tool that the mouse is about to place, or to drag out, is none yet.
    void anUnfinishedSelectionCountsAsNone()
    {
        Tools tools;
        const int index = insertNew(tools, ToolKind::Point, Qt::red);
        select(tools, ToolKind::Point, index);
        open(tools, ToolKind::Rect);
        QVERIFY(dialog->isForNewTool());
        QCOMPARE(heard.last().rectList.size(), 1);
        QVERIFY(heard.last().pointList.isEmpty());
    }

    void everyNumberHasACaptionAndAName()
    {
        for (const KindRow& row : toolKinds) {
            open({}, row.kind);
            QCOMPARE(shownNumbers(), row.numbers);
            for (int number = 1; number <= row.numbers; ++number)
                QVERIFY(!box(number).accessibleName().isEmpty());
            dialog->reject();
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<CoordinatesDialogTest>(argc, argv);
}

#include "coordinates_dialog_test.moc"
