// SPDX-License-Identifier: MIT
#include "analysis/windows/isotherm_dialog.h"
#include "dialogs/dialogs.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/dialogs.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>

using analysis::Isotherm;
using Side = Isotherm::Side;

/// What somebody chooses in the dialog, and what the picture shows of it.
class IsothermDialogTest : public testing::ToolKeysTest
{
    Q_OBJECT

    QPointer<analysis::IsothermDialog> dialog;

    analysis::ViewedPhotograph& viewed() const { return window->commands().viewed(); }
    /// Warmer to the right: 20.0 °C and a tenth more with each pixel, and a tool of each kind.
    void open()
    {
        testing::Shot shot;
        shot.gray = [](int x, int) {
            return x;
        };
        shot.maximum10 = 455;
        QVERIFY(load(shot));
        show();
        if (names().isEmpty())
            drawOneOfEach();
        dialog = new analysis::IsothermDialog(viewed(), window.get());
        dialogs::open(dialog, window.get());
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
    }
    void close(QDialog::DialogCode code)
    {
        dialog->done(code);
        QTRY_VERIFY(!dialog);
    }
    QDoubleSpinBox& limit(const char* name) const
    {
        return *testing::part<QDoubleSpinBox>(dialog, name);
    }
    QString result() const { return testing::part<QLabel>(dialog, "result")->text(); }
    void chooseSide(Side side) const
    {
        testing::part<QComboBox>(dialog, "side")->setCurrentIndex(int(side));
    }
    void takeFrom(const char* name, const QString& source) const
    {
        auto* sources = testing::part<QComboBox>(dialog, name);
        const int index = sources->findText(source);
        QVERIFY2(index > 0, qPrintable(source));
        sources->setCurrentIndex(index);
        emit sources->activated(index);
        QCOMPARE(sources->currentIndex(), 0);
    }
    QPushButton& button(QDialogButtonBox::StandardButton which) const
    {
        return *dialog->findChild<QDialogButtonBox*>()->button(which);
    }
    /// The first and the last coloured column of row 160.
    QPoint coloured()
    {
        window->update();
        QCoreApplication::processEvents();
        QPoint ends(-1, -1);
        for (int x = 0; x < 240; ++x) {
            if (window->falseColourImage.pixel(x, 160) != viewed().isotherm()->colour.rgb())
                continue;
            ends = {ends.x() < 0 ? x : ends.x(), x};
        }
        return ends;
    }

private slots:
    void theHotterHalfIsColouredAtFirst()
    {
        open();
        QVERIFY(viewed().isotherm()->side == Side::Above);
        QCOMPARE(limit("from").value(), 31.95); // the middle of 20.0 and 43.9
        QVERIFY(limit("from").isEnabled() && !limit("to").isEnabled());
        QCOMPARE(coloured(), QPoint(120, 239));
        QVERIFY2(result().contains(QStringLiteral("38400")) &&
                     result().contains(QStringLiteral("50.0 %")),
                 qPrintable(result()));
        close(QDialog::Accepted);
        QCOMPARE(coloured(), QPoint(120, 239));
    }

    void thePictureFollows()
    {
        open();
        limit("from").setValue(30.05);
        limit("to").setValue(35.05);
        QCOMPARE(coloured(), QPoint(101, 239));
        chooseSide(Side::Inside);
        QVERIFY(limit("from").isEnabled() && limit("to").isEnabled());
        QCOMPARE(coloured(), QPoint(101, 150));
        chooseSide(Side::Below);
        QVERIFY(!limit("from").isEnabled() && limit("to").isEnabled());
        QCOMPARE(coloured(), QPoint(0, 150));
        chooseSide(Side::Outside);
        QCOMPARE(coloured(), QPoint(0, 239));
        QVERIFY(result().contains(QString::number(76800 - 50 * 320)));
        close(QDialog::Accepted);
        QVERIFY(viewed().isotherm()->side == Side::Outside);
    }

    void cancelBringsBackWhatWasThere()
    {
        open();
        limit("from").setValue(25);
        close(QDialog::Rejected);
        QVERIFY(!viewed().isotherm());
        Isotherm below;
        below.side = Side::Below;
        below.to = 22.05;
        viewed().setIsotherm(below);
        open();
        QCOMPARE(limit("to").value(), 22.05);
        limit("to").setValue(40);
        QCOMPARE(coloured().y(), 199);
        close(QDialog::Rejected);
        QVERIFY(viewed().isotherm() == below);
        QCOMPARE(coloured(), QPoint(0, 20));
    }

    void itCanBeSwitchedOff()
    {
        open();
        auto* off = testing::part<QPushButton>(dialog, "off");
        QVERIFY(!off->isEnabled()); // none was there
        close(QDialog::Accepted);
        open();
        off = testing::part<QPushButton>(dialog, "off");
        QVERIFY(off->isEnabled());
        off->click();
        QTRY_VERIFY(!dialog);
        QVERIFY(!viewed().isotherm());
    }

    void limitsOfATool()
    {
        open();
        const auto* sources = testing::part<QComboBox>(dialog, "toSource");
        // One temperature of the point, three of each area.
        QCOMPARE(sources->count(), 1 + 1 + 3 * 3);
        chooseSide(Side::Inside);
        const overlay::RectTool rect = viewed().tools().rectList.first();
        takeFrom("toSource", QStringLiteral("R0 - 高: %1").arg(20 + rect.x2 / 10.0, 0, 'f', 1));
        takeFrom("fromSource", QStringLiteral("R0 - 低: %1").arg(20 + rect.x1 / 10.0, 0, 'f', 1));
        QCOMPARE(limit("from").value(), 20 + rect.x1 / 10.0);
        QCOMPARE(limit("to").value(), 20 + rect.x2 / 10.0);
        close(QDialog::Accepted);
    }

    void crossedLimitsAreRefused()
    {
        open();
        chooseSide(Side::Inside);
        limit("from").setValue(40);
        limit("to").setValue(30);
        QVERIFY(!button(QDialogButtonBox::Ok).isEnabled());
        QVERIFY(!result().contains(QStringLiteral("%")));
        QCOMPARE(coloured(), QPoint(-1, -1));
        limit("to").setValue(41);
        QVERIFY(button(QDialogButtonBox::Ok).isEnabled());
        close(QDialog::Accepted);
    }

    void anotherColour()
    {
        open();
        testing::part<QPushButton>(dialog, "colour")->click();
        auto* colours = dialog->findChild<QColorDialog*>();
        QVERIFY(colours);
        QCOMPARE(colours->currentColor(), QColor(analysis::isothermColour));
        colours->setCurrentColor(QColor(1, 200, 3));
        colours->accept();
        QVERIFY(viewed().isotherm()->colour == QColor(1, 200, 3));
        QCOMPARE(coloured(), QPoint(120, 239));
        QTRY_VERIFY(!dialog->findChild<QColorDialog*>());
        close(QDialog::Accepted);
    }

    void limitsAreInTheShownUnit()
    {
        open();
        close(QDialog::Accepted);
        unit().setCurrentIndex(1);
        dialog = new analysis::IsothermDialog(viewed(), window.get());
        dialogs::open(dialog, window.get());
        QCOMPARE(limit("from").value(), 89.51); // 31.95 °C
        QCOMPARE(limit("from").suffix(), QStringLiteral(" °F"));
        close(QDialog::Accepted);
    }

    /// An imager is pulled out while the dialog, or the colours above it, are open.
    void thePhotographMayGo()
    {
        QWidget page;
        for (const bool choosesColour : {false, true}) {
            window = std::make_unique<Analysis_Widget>();
            open();
            dialog->setParent(&page, Qt::Dialog);
            dialog->show();
            if (choosesColour)
                testing::part<QPushButton>(dialog, "colour")->click();
            window.reset();
            QTRY_VERIFY(!dialog);
        }
    }
};

int main(int argc, char** argv)
{
    return testing::run<IsothermDialogTest>(argc, argv);
}

#include "isotherm_dialog_test.moc"
