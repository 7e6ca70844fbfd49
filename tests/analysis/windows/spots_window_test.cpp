// SPDX-License-Identifier: MIT
#include "analysis/windows/area_box.h"
#include "analysis/windows/spots_window.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/accessible.h"
#include "tests/support/dialogs.h"
#include "tests/support/paint_counter.h"

#include <QClipboard>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QSpinBox>

using analysis::AreaBox;
using analysis::SpotsWindow;

namespace {

/// 100 °C with three hot pixels, two of them near each other, and two cold ones.
testing::Shot spotted()
{
    testing::Shot shot = testing::flat(0, 2550, 0);
    shot.gray = [](int x, int y) {
        static const std::map<std::pair<int, int>, int> spots{{{50, 60}, 250},
                                                              {{56, 60}, 245},
                                                              {{150, 200}, 240},
                                                              {{100, 100}, 10},
                                                              {{200, 300}, 20}};
        const auto found = spots.find({x, y});
        return found != spots.end() ? found->second : 100;
    };
    return shot;
}

} // namespace

/// The list of hot and cold spots, and what is made of it.
class SpotsWindowTest : public testing::ToolKeysTest
{
    Q_OBJECT

private slots:
    void listsHotAndColdSpots()
    {
        openOn(spotted());
        QCOMPARE(spots()->windowTitle(), QStringLiteral("热点和冷点 - shot.bmp"));
        QCOMPARE(header(), QStringLiteral("类型|序号|X|Y|温度 (°C)"));
        QCOMPARE(rows(), QStringList({"热点|1|50|60|250.00", "热点|2|150|200|240.00",
                                      "冷点|1|100|100|10.00", "冷点|2|200|300|20.00"}));
    }

    void asManyAndAsFarAsIsAskedFor()
    {
        openOn(spotted());
        part<QSpinBox>("distance")->setValue(5);
        QCOMPARE(rows().size(), 5);
        QCOMPARE(rows().at(1), QStringLiteral("热点|2|56|60|245.00"));
        part<QSpinBox>("distance")->setValue(6); // not further than that
        QCOMPARE(rows().size(), 4);
        part<QSpinBox>("count")->setValue(1);
        QCOMPARE(rows(), QStringList({"热点|1|50|60|250.00", "冷点|1|100|100|10.00"}));
        part<QComboBox>("kinds")->setCurrentIndex(1);
        QCOMPARE(rows(), QStringList({"热点|1|50|60|250.00"}));
        part<QComboBox>("kinds")->setCurrentIndex(2);
        QCOMPARE(rows(), QStringList({"冷点|1|100|100|10.00"}));
    }

    /// The area of the tool that was selected, as it is now.
    void looksIntoAnArea()
    {
        begin();
        QVERIFY(load(spotted()));
        click("pushButton_6");
        drag(at(45, 50), at(53, 70));
        open();
        QCOMPARE(part<AreaBox>("area")->currentText(), QStringLiteral("R0"));
        QCOMPARE(rows().first(), QStringLiteral("热点|1|50|60|250.00"));
        QVERIFY(rows().at(1).startsWith(QStringLiteral("冷点|1|")));
        part<QComboBox>("kinds")->setCurrentIndex(1);
        toPicture();
        key(Qt::Key_Right, Qt::ShiftModifier);
        QTRY_COMPARE(rows(), QStringList({"热点|1|56|60|245.00"}));
        key(Qt::Key_Delete);
        QTRY_COMPARE(part<AreaBox>("area")->currentText(), QStringLiteral("整幅图像"));
        QTRY_COMPARE(rows().size(), 2);
        unit().setCurrentIndex(1);
        QTRY_VERIFY(header().endsWith(QStringLiteral("(°F)")));
        QVERIFY(rows().first().startsWith(QStringLiteral("热点|1|50|60|48"))); // 250 °C
    }

    /// All by their numbers in red and blue, the current one in yellow.
    void marksThemInThePicture()
    {
        begin();
        QVERIFY(load(spotted()));
        QCoreApplication::processEvents();
        const QImage before = label().grab().toImage();
        open();
        QTRY_VERIFY(label().grab().toImage() != before);
        QVERIFY(ring(150, 200).red() > 200 && ring(150, 200).green() < 120);
        QVERIFY(ring(200, 300).blue() > 200 && ring(200, 300).red() < 140);
        table().setCurrentCell(1, 0);
        QTRY_VERIFY(ring(150, 200).red() > 200 && ring(150, 200).green() > 200);
        QTest::keyClick(&table(), Qt::Key_Down);
        QTRY_VERIFY(ring(150, 200).green() < 120);
        QVERIFY(ring(100, 100).green() > 200);
        QTest::keyClick(&table(), Qt::Key_Escape);
        QTRY_VERIFY(!spots());
        QTRY_COMPARE(label().grab().toImage(), before);
    }

    /// Hottest first, in one step, where no point stands yet.
    void becomePointTools()
    {
        begin();
        QVERIFY(load(spotted()));
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(150, 200));
        click("pushButton_9");
        open();
        part<QPushButton>("place")->click();
        QCOMPARE(names(), QStringLiteral("P0 P1 P2 P3"));
        QCOMPARE(toolRow(0), QStringList({"P0", "点", "240.0", "240.0", "240.0"}));
        QCOMPARE(toolRow(1).at(2), QStringLiteral("250.0"));
        QCOMPARE(toolRow(2).at(2), QStringLiteral("10.0"));
        QCOMPARE(toolRow(3).at(2), QStringLiteral("20.0"));
        QCOMPARE(label().pointList.last().x, 200);
        QCOMPARE(label().pointList.last().y, 300);
        part<QPushButton>("place")->click();
        QCOMPARE(names(), QStringLiteral("P0 P1 P2 P3"));
        toPicture();
        undo();
        QCOMPARE(names(), QStringLiteral("P0"));
        redo();
        QCOMPARE(names(), QStringLiteral("P0 P1 P2 P3"));
    }

    void noMoreToolsThanAPhotographBears()
    {
        openOn(spotted());
        const auto fill = [this](int count) {
            window->commands().change([count](overlay::ToolEditing& tools) {
                for (int i = overlay::countOf(tools); i < count; ++i)
                    tools.pointList.append(
                        testing::placedPoint(QStringLiteral("P%1").arg(i), 3, 4));
            });
        };
        fill(analysis::ToolCommands::mostTools - 3);
        part<QPushButton>("place")->click();
        auto* box = window->findChild<QMessageBox*>();
        QVERIFY(box);
        QVERIFY2(box->text().contains(QStringLiteral("1001")), qPrintable(box->text()));
        QCOMPARE(overlay::countOf(window->commands().state().tools), 997);
        box->accept();
        part<QSpinBox>("count")->setValue(1);
        part<QPushButton>("place")->click();
        QCOMPARE(overlay::countOf(window->commands().state().tools), 999);
    }

    void comesToRest()
    {
        openOn(spotted());
        const testing::PaintCounter paints(*spots(), testing::PaintCounter::Of::WidgetAndParts);
        const testing::PaintCounter picture(label());
        QVERIFY(testing::comeToRest(paints));
        QVERIFY(testing::comeToRest(picture));
    }

    void areCopied()
    {
        openOn(spotted());
        QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY(text.startsWith(QStringLiteral("类型\t序号\tX\tY\t温度 (°C)\n"
                                               "热点\t1\t50\t60\t250.00\n")));
        QCOMPARE(text.count(QLatin1Char('\n')), 5);
        QGuiApplication::clipboard()->clear();
        part<QPushButton>("copy")->click();
        QCOMPARE(QGuiApplication::clipboard()->text(), text);
    }

    /// The columns and digits of `thermaphoto spots --format csv`.
    void areSaved()
    {
        openOn(spotted());
        part<QComboBox>("kinds")->setCurrentIndex(1);
        part<QPushButton>("save")->click();
        auto* dialog = window->findChild<QFileDialog*>();
        QVERIFY(dialog);
        QCOMPARE(QFileInfo(dialog->selectedFiles().value(0)).fileName(),
                 QStringLiteral("shot.spots.csv"));
        const QString path = testing::profile().home() + QStringLiteral("/hot.csv");
        testing::choose(*dialog, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("file,unit,name,type,x,y,temperature\n"
                                            "shot.bmp,C,picture,hot,50,60,250.000\n"
                                            "shot.bmp,C,picture,hot,150,200,240.000\n"));
    }

    void correctedReadingsStandBeside()
    {
        openOn(testing::flat(255, 600, 200));
        window->commands().viewed().setCorrection(analysis::Correction{0.95, 0.6, 20.0});
        QTRY_COMPARE(table().columnCount(), 6);
        QVERIFY(header().endsWith(window->commands().viewed().correctionName()));
        QVERIFY(rows().first().startsWith(QStringLiteral("热点|1|119|159|60.00|")));
        QVERIFY(std::abs(table().item(0, 5)->text().toDouble() - 78.8) < 0.05);
        part<QPushButton>("save")->click();
        const QString path = testing::profile().home() + QStringLiteral("/corrected.csv");
        testing::choose(*window->findChild<QFileDialog*>(), path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readLine().endsWith(",temperature,corrected\n"));
        const QByteArrayList saved = file.readLine().trimmed().split(',');
        QCOMPARE(saved.mid(0, 7).join(','), QByteArray("shot.bmp,C,picture,hot,119,159,60.000"));
        QVERIFY(std::abs(saved.at(7).toDouble() - 78.8) < 0.05);
    }

    void aDialogEndsWithIt()
    {
        openOn(spotted());
        part<QPushButton>("save")->click();
        const QPointer<QFileDialog> dialog = window->findChild<QFileDialog*>();
        QVERIFY(dialog);
        spots()->close();
        QTRY_VERIFY(!dialog);
        open();
        part<QPushButton>("save")->click();
        const QPointer<SpotsWindow> again = spots();
        window.reset();
        QVERIFY(!again);
    }

    /// A picture without a gray span has no temperatures.
    void nothingToList()
    {
        testing::Shot shot = spotted();
        shot.grayMinimum = shot.grayMaximum;
        openOn(shot);
        QCOMPARE(rows(), QStringList());
        QVERIFY(!part<QPushButton>("place")->isEnabled());
    }

    void worksByKeyboard()
    {
        openOn(spotted());
        QCOMPARE(testing::namelessWidgets(spots()), QStringList());
        QTRY_VERIFY(table().hasFocus());
        QStringList met;
        for (int tabs = 0; tabs < 8; ++tabs) {
            met.append(spots()->focusWidget()->objectName());
            QTest::keyClick(spots()->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(met, QStringList({"spots", "place", "save", "copy", "area", "kinds", "count",
                                   "distance"}));
    }

private:
    SpotsWindow* spots() const { return window->findChild<SpotsWindow*>(); }
    template<typename Part>
    Part* part(const char* name) const
    {
        return testing::part<Part>(spots(), name);
    }
    QTableWidget& table() const { return *part<QTableWidget>("spots"); }
    void open() const
    {
        toPicture();
        key(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(spots());
        QVERIFY(QTest::qWaitForWindowExposed(spots()));
        QApplication::setActiveWindow(spots());
    }
    void openOn(const testing::Shot& shot)
    {
        begin();
        QVERIFY(load(shot));
        open();
    }
    void toPicture() const
    {
        QApplication::setActiveWindow(window.get());
        window->setFocus(-1);
    }
    QString header() const
    {
        QStringList captions;
        for (int column = 0; column < table().columnCount(); ++column)
            captions.append(table().horizontalHeaderItem(column)->text());
        return captions.join(QLatin1Char('|'));
    }
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < table().rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < table().columnCount(); ++column)
                texts.append(table().item(row, column)->text());
            rows.append(texts.join(QLatin1Char('|')));
        }
        return rows;
    }
    QColor ring(int x, int y) const
    {
        return label().grab().toImage().pixel(at(x, y) - QPoint(0, 8));
    }
};

int main(int argc, char** argv)
{
    return testing::run<SpotsWindowTest>(argc, argv);
}

#include "spots_window_test.moc"
