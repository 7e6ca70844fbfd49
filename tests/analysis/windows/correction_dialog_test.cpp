// SPDX-License-Identifier: MIT
#include "analysis/windows/correction_dialog.h"
#include "dialogs/dialogs.h"
#include "overlay/tool_coordinates.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>

using analysis::Correction;

/// What somebody types in the dialog, and what comes of it. Numbers are those of the tables in
/// docs/correction.md.
class CorrectionDialogTest : public testing::ToolKeysTest
{
    Q_OBJECT

    QPointer<analysis::CorrectionDialog> dialog;

    analysis::ViewedPhotograph& viewed() const { return window->commands().viewed(); }
    /// 60 °C, and 100 °C in the right half.
    static testing::Shot twoHalves()
    {
        testing::Shot shot;
        shot.gray = [](int x, int) {
            return x < 120 ? 0 : 255;
        };
        shot.minimum10 = 600;
        shot.maximum10 = 1000;
        return shot;
    }
    void open()
    {
        dialog = new analysis::CorrectionDialog(viewed(), window.get());
        dialogs::open(dialog, window.get());
    }
    void open(const testing::Shot& shot)
    {
        QVERIFY(load(shot));
        show();
        open();
    }
    void close(QDialog::DialogCode code)
    {
        dialog->done(code);
        QTRY_VERIFY(!dialog);
    }
    QDoubleSpinBox& box(const char* name) const
    {
        return *testing::part<QDoubleSpinBox>(dialog, name);
    }
    QString text(const char* name) const { return testing::part<QLabel>(dialog, name)->text(); }
    bool canAccept() const
    {
        return dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled();
    }

private slots:
    void beginsWithWhatThePhotographHolds()
    {
        open(twoHalves());
        QCOMPARE(text("inFile"), QStringLiteral("0.95"));
        QCOMPARE(box("stored").value(), 0.95);
        QCOMPARE(box("emissivity").value(), 0.95);
        QCOMPARE(box("reflected").value(), 20.0);
        QCOMPARE(box("reflected").suffix(), QStringLiteral(" °C"));
        QVERIFY(text("result").contains(QStringLiteral("100.0 → 100.0 °C")));
        QVERIFY(canAccept());
        QVERIFY(!viewed().correction());
        close(QDialog::Accepted); // nothing was typed
        QVERIFY(!viewed().correction());
    }

    void thePhotographFollows()
    {
        open(twoHalves());
        box("emissivity").setValue(0.6);
        QVERIFY(viewed().correction() == (Correction{0.95, 0.6, 20}));
        QVERIFY2(text("result").contains(QStringLiteral("100.0 → 133.6 °C")),
                 qPrintable(text("result")));
        box("reflected").setValue(40); // 133.6 less about 6.2
        QVERIFY(text("result").contains(QStringLiteral("100.0 → 127.3 °C")));
        box("stored").setValue(0.6);
        QVERIFY(text("result").contains(QStringLiteral("100.0 → 100.0 °C")));
        close(QDialog::Accepted);
        QVERIFY(viewed().correction() == (Correction{0.6, 0.6, 40}));
    }

    void theHottestPixelOfTheSelectedTool()
    {
        open(twoHalves());
        QVERIFY(text("result").startsWith(QStringLiteral("整幅图像")));
        close(QDialog::Rejected);
        window->commands().change([](overlay::ToolEditing& tools) {
            overlay::addTool(tools, overlay::ToolKind::Rect, {10, 10, 90, 90}, Qt::white);
        });
        open();
        box("emissivity").setValue(0.6);
        QVERIFY2(text("result").startsWith(QStringLiteral("R0")) &&
                     text("result").contains(QStringLiteral("60.0 → 78.8 °C")),
                 qPrintable(text("result")));
        close(QDialog::Rejected);
    }

    void cancelAndOff()
    {
        open(twoHalves());
        QVERIFY(!testing::part<QPushButton>(dialog, "off")->isEnabled());
        box("emissivity").setValue(0.6);
        close(QDialog::Rejected);
        QVERIFY(!viewed().correction());
        viewed().setCorrection(Correction{0.9, 0.3, 25});
        open();
        QCOMPARE(text("inFile"), QStringLiteral("0.95"));
        QCOMPARE(box("stored").value(), 0.9);
        QCOMPARE(box("reflected").value(), 25.0);
        box("emissivity").setValue(0.6);
        close(QDialog::Rejected);
        QVERIFY(viewed().correction() == (Correction{0.9, 0.3, 25}));
        open();
        testing::part<QPushButton>(dialog, "off")->click();
        QTRY_VERIFY(!dialog);
        QVERIFY(!viewed().correction());
    }

    void whatMakesNoSenseIsRefusedWithItsReason_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<double>("value");
        QTest::newRow("stored") << QByteArray("stored") << 1.01;
        QTest::newRow("stored, low") << QByteArray("stored") << 0.09;
        QTest::newRow("emissivity") << QByteArray("emissivity") << 0.09;
        QTest::newRow("reflected") << QByteArray("reflected") << -150.1;
    }
    void whatMakesNoSenseIsRefusedWithItsReason()
    {
        QFETCH(QByteArray, name);
        QFETCH(double, value);
        open(twoHalves());
        box("emissivity").setValue(0.6);
        const double before = box(name.constData()).value();
        box(name.constData()).setValue(value);
        QVERIFY(!canAccept());
        QVERIFY(!viewed().correction());
        QVERIFY(!text("result").isEmpty() && !text("result").contains(QStringLiteral("→")));
        box(name.constData()).setValue(before);
        QVERIFY(canAccept());
        QVERIFY(viewed().correction());
        close(QDialog::Rejected);
    }

    /// An imager that stores none: the user knows what it was set to.
    void withoutAStoredEmissivity()
    {
        testing::Shot shot = twoHalves();
        shot.emissivity100 = 0;
        open(shot);
        QCOMPARE(text("inFile"), QStringLiteral("0.00"));
        QVERIFY(!canAccept());
        box("stored").setValue(0.95);
        box("emissivity").setValue(0.6);
        QVERIFY(canAccept());
        QVERIFY(text("result").contains(QStringLiteral("→ 133.6 °C")));
        close(QDialog::Accepted);
        shot.emissivity100 = 255;
        open(shot);
        QCOMPARE(text("inFile"), QStringLiteral("2.55"));
        close(QDialog::Rejected);
    }

    void withoutAScale()
    {
        testing::Shot shot = twoHalves();
        shot.unit = 7;
        open(shot);
        QVERIFY(!canAccept());
        box("emissivity").setValue(0.6);
        QVERIFY(!canAccept());
        QVERIFY(!viewed().correction());
        close(QDialog::Rejected);
    }

    /// −20 °C in a room, with an emissivity of 0.3: less than the room alone.
    void pixelsWithoutATemperature()
    {
        testing::Shot shot = twoHalves();
        shot.minimum10 = -200;
        open(shot);
        box("emissivity").setValue(0.3);
        QVERIFY(text("result").contains(QStringLiteral("→ 207.0 °C")));
        QVERIFY2(text("result").contains(QStringLiteral(": 38400")), qPrintable(text("result")));
        close(QDialog::Rejected);
        shot.maximum10 = -100;
        open(shot);
        box("emissivity").setValue(0.1);
        QVERIFY(!text("result").contains(QStringLiteral("→")));
        QVERIFY(text("result").contains(QStringLiteral(": 76800")));
        QVERIFY(canAccept());
        close(QDialog::Rejected);
    }

    void inDegreesFahrenheit()
    {
        QVERIFY(load(twoHalves()));
        unit().setCurrentIndex(1);
        open();
        QCOMPARE(box("reflected").value(), 68.0);
        box("emissivity").setValue(0.6);
        QVERIFY2(text("result").contains(QStringLiteral("212.0 → 272.")),
                 qPrintable(text("result")));
        QVERIFY(std::abs(viewed().correction()->reflected - 20) < 1e-9);
        close(QDialog::Rejected);
    }

    void thePhotographMayGo()
    {
        QWidget page;
        open(twoHalves());
        dialog->setParent(&page, Qt::Dialog);
        dialog->show();
        box("emissivity").setValue(0.6);
        window.reset();
        QTRY_VERIFY(!dialog);
    }
};

int main(int argc, char** argv)
{
    return testing::run<CorrectionDialogTest>(argc, argv);
}

#include "correction_dialog_test.moc"
