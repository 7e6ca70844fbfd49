// SPDX-License-Identifier: MIT
#include "analysis/windows/correction_dialog.h"
#include "analysis/windows/isotherm_dialog.h"
#include "analysis/windows/looking_menu.h"
#include "tests/analysis/windows/tool_keys_test.h"

#include <QDialogButtonBox>

/// The entries of the context menus that open the dialogs.
class LookingMenuTest : public testing::ToolKeysTest
{
    Q_OBJECT

    analysis::ViewedPhotograph& viewed() const { return window->commands().viewed(); }
    /// "x" for a checked entry, "-" for another, nothing where there is none.
    QString checks(QWidget& where)
    {
        QMenu* menu = rightClick(where, QPoint(5, 5));
        if (!menu)
            return QStringLiteral("no menu");
        QString marks;
        for (const char* text : {"等温线...", "校正发射率..."}) {
            if (const QAction* entry = entryOf(*menu, text))
                marks += entry->isChecked() ? QLatin1Char('x') : QLatin1Char('-');
        }
        menu->close();
        return marks;
    }
    template<typename Dialog>
    void openAndClose(const char* entry, QDialog::DialogCode code)
    {
        choose(rightClick(label(), QPoint(5, 5)), entry);
        auto* dialog = window->findChild<Dialog*>();
        QVERIFY(dialog && dialog->isVisible());
        dialog->done(code);
        QTRY_VERIFY(!window->findChild<Dialog*>());
        QApplication::setActiveWindow(window.get()); // as a window manager does
    }

private slots:
    void entriesAreCheckedWhileThereIsOne()
    {
        begin();
        click("pushButton_9");
        QCOMPARE(checks(label()), QStringLiteral("--"));
        QCOMPARE(checks(*tools().viewport()), QStringLiteral("-"));
        openAndClose<analysis::IsothermDialog>("等温线...", QDialog::Rejected);
        QTRY_COMPARE(checks(label()), QStringLiteral("--"));
        openAndClose<analysis::IsothermDialog>("等温线...", QDialog::Accepted);
        QTRY_COMPARE(checks(label()), QStringLiteral("x-"));
        openAndClose<analysis::CorrectionDialog>("校正发射率...", QDialog::Rejected);
        QTRY_COMPARE(checks(label()), QStringLiteral("x-"));
        viewed().setCorrection(analysis::Correction{0.95, 0.6, 20});
        QTRY_COMPARE(checks(label()), QStringLiteral("xx"));
        openAndClose<analysis::CorrectionDialog>("校正发射率...", QDialog::Rejected);
        QCOMPARE(checks(label()), QStringLiteral("xx"));
        viewed().setIsotherm(std::nullopt);
        QTRY_COMPARE(checks(label()), QStringLiteral("-x"));
    }

    /// The established contents show stored temperatures, whatever is corrected.
    void theWindowGoesOnShowingWhatIsStored()
    {
        begin();
        drawOneOfEach();
        const QStringList row = toolRow(2);
        const QString mean = information(9);
        const QImage picture = window->falseColourImage.copy();
        viewed().setCorrection(analysis::Correction{0.95, 0.3, 20});
        window->updat_Tool_Temp();
        window->updat_XY_Temp(50, 60);
        unit().setCurrentIndex(1);
        unit().setCurrentIndex(0);
        QCoreApplication::processEvents();
        QCOMPARE(toolRow(2), row);
        QCOMPARE(information(9), mean);
        QVERIFY(readOut().endsWith(row.at(2) + QStringLiteral("°C")));
        QCOMPARE(window->falseColourImage, picture);
    }
};

int main(int argc, char** argv)
{
    return testing::run<LookingMenuTest>(argc, argv);
}

#include "looking_menu_test.moc"
