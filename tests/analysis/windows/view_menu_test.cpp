// SPDX-License-Identifier: MIT
#include "analysis/export/picture_export.h"
#include "analysis/windows/picture_dialog.h"
#include "analysis/windows/tool_commands.h"
#include "analysis/windows/view_menu.h"
#include "analysis/windows/viewed_photograph.h"
#include "tests/analysis/windows/tool_keys_test.h"
#include "tests/support/dialogs.h"

#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>

/// Copying and saving what is seen, by keyboard and from the two menus.
class ViewMenuTest : public testing::ToolKeysTest
{
    Q_OBJECT

    static QClipboard& clipboard() { return *QGuiApplication::clipboard(); }
    QAction* entry(QWidget& where, const QString& text) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                where.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&where, &event);
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return nullptr;
        for (QAction* action : menu->actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    static void closeMenu()
    {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
    }
    void chooseEntry(QWidget& where, const QString& text) const
    {
        QAction* action = entry(where, text);
        QVERIFY(action && action->isEnabled());
        action->trigger();
        closeMenu();
    }
    analysis::ShownPicture seen() const
    {
        return analysis::shownPicture(
            window->photograph,
            {analysis::unitAt(unit().currentIndex()).value(), window->conversion},
            window->commands().state().tools, bar().startValue, bar().endValue);
    }

private slots:
    void copiesThePictureThatIsSeen_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("key") << true;
        QTest::newRow("menu") << false;
    }
    void copiesThePictureThatIsSeen()
    {
        QFETCH(const bool, byKey);
        begin();
        drawOneOfEach();
        bar().startValue = 60;
        bar().endValue = 120;
        bar().update();
        QCoreApplication::processEvents();
        window->setFocus(-1);
        clipboard().clear();
        if (byKey)
            key(Qt::Key_C, Qt::ControlModifier);
        else
            chooseEntry(label(), QStringLiteral("复制图片"));
        const QImage copied = clipboard().image().convertToFormat(QImage::Format_RGB32);
        // Exactly what the label shows where its picture is.
        const QSize size = label().pixmap(Qt::ReturnByValue).size();
        QCOMPARE(copied.size(), size);
        const QImage grabbed =
            label()
                .grab({label().width() / 2 - size.width() / 2,
                       label().height() / 2 - size.height() / 2, size.width(), size.height()})
                .toImage()
                .convertToFormat(QImage::Format_RGB32);
        QCOMPARE(copied, grabbed);
    }

    void copiesThePictureWithItsIsotherm()
    {
        begin();
        drawOneOfEach();
        analysis::Isotherm all;
        all.from = -100;
        window->commands().viewed().setIsotherm(all);
        QCoreApplication::processEvents();
        chooseEntry(label(), QStringLiteral("复制图片"));
        const QImage copied = clipboard().image().convertToFormat(QImage::Format_RGB32);
        const QPoint free(copied.width() / 2, copied.height() * 3 / 4); // no tool is there
        QCOMPARE(copied.pixel(free), analysis::isothermColour);
    }

    void copiesTheTable()
    {
        begin();
        drawOneOfEach();
        tools().setFocus();
        key(Qt::Key_C, Qt::ControlModifier);
        QStringList lines = clipboard().text().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 6);
        QCOMPARE(lines.takeFirst(), QStringLiteral("名称\t类型\t高\t低\t平均"));
        for (int row = 0; row < 4; ++row)
            QCOMPARE(lines.at(row), toolRow(row).join(QLatin1Char('\t')));
        QCOMPARE(clipboard().mimeData()->html().count(QStringLiteral("<th>")), 5);
        QCOMPARE(clipboard().mimeData()->html().count(QStringLiteral("<td>")), 20);
    }

    void copiesTheChosenRow()
    {
        begin();
        drawOneOfEach();
        tools().setFocus();
        tools().selectRow(2);
        chooseEntry(*tools().viewport(), QStringLiteral("复制所选行"));
        QCOMPARE(clipboard().text(), toolRow(2).join(QLatin1Char('\t')) + QLatin1Char('\n'));
        QVERIFY(!clipboard().mimeData()->html().contains(QStringLiteral("<th>")));
    }

    /// Nothing takes the place of what was copied before.
    void anEmptyTableCopiesNothing()
    {
        begin();
        clipboard().setText(QStringLiteral("before"));
        tools().setFocus();
        key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard().text(), QStringLiteral("before"));
        for (const char* text : {"复制表格", "复制所选行"}) {
            const QAction* action = entry(*tools().viewport(), QString::fromUtf8(text));
            QVERIFY(action && !action->isEnabled());
            closeMenu();
        }
    }

    void savesWhatIsSeen()
    {
        begin();
        drawOneOfEach();
        unit().setCurrentIndex(1);
        const testing::Folder target;
        chooseEntry(label(), QStringLiteral("保存图片..."));
        auto* how = window->findChild<PictureDialog*>();
        QVERIFY(how && how->isVisible());
        const QImage expected = analysis::exportedPicture(seen(), how->options());
        how->accept();
        QTRY_VERIFY(window->findChild<QFileDialog*>());
        testing::choose(*window->findChild<QFileDialog*>(), target / QStringLiteral("a.png"));
        QTRY_COMPARE(target.files(), QStringList{QStringLiteral("a.png")});
        QCOMPARE(QImage(target / QStringLiteral("a.png")).convertToFormat(QImage::Format_RGB32),
                 expected);

        QTRY_VERIFY(!window->findChild<QFileDialog*>());
        chooseEntry(label(), QStringLiteral("保存温度..."));
        QTRY_VERIFY(window->findChild<QFileDialog*>());
        testing::choose(*window->findChild<QFileDialog*>(), target / QStringLiteral("a.csv"));
        QTRY_COMPARE(target.files().size(), 2);
        // In the unit that is shown.
        const double first = target.read(QStringLiteral("a.csv")).split(',').first().toDouble();
        QCOMPARE(analysis::oneDecimal(first), toolRow(0).at(2));
    }

    /// 60 °C with an emissivity of 0.60 instead of 0.95 are 78.8 °C, 173.84 °F.
    void savesCorrectedTemperaturesWhenAsked()
    {
        begin();
        QVERIFY(load(testing::flat(255, 600)));
        const QAction* corrected = entry(label(), QStringLiteral("保存校正后的温度..."));
        QVERIFY(corrected && !corrected->isEnabled());
        closeMenu();
        window->commands().viewed().setCorrection(analysis::Correction{0.95, 0.6, 20});
        unit().setCurrentIndex(1);
        const testing::Folder target;
        for (const char* text : {"保存温度...", "保存校正后的温度..."}) {
            chooseEntry(label(), QString::fromUtf8(text));
            QTRY_VERIFY(window->findChild<QFileDialog*>());
            const QString proposed =
                QFileInfo(window->findChild<QFileDialog*>()->selectedFiles().value(0)).fileName();
            for (const char* suffix : {".csv", ".tiff"}) {
                if (!window->findChild<QFileDialog*>())
                    chooseEntry(label(), QString::fromUtf8(text));
                testing::choose(
                    *window->findChild<QFileDialog*>(),
                    target / (QFileInfo(proposed).completeBaseName() + QLatin1String(suffix)));
                QTRY_VERIFY(!window->findChild<QFileDialog*>());
            }
        }
        QCOMPARE(target.files(),
                 (QStringList{QStringLiteral("shot.corrected.csv"),
                              QStringLiteral("shot.corrected.tiff"), QStringLiteral("shot.csv"),
                              QStringLiteral("shot.tiff")}));
        const auto first = [&target](const QString& name) {
            return target.read(name).split(',').first().toDouble();
        };
        QVERIFY(std::abs(first(QStringLiteral("shot.csv")) - 140) < 0.1);
        QVERIFY(std::abs(first(QStringLiteral("shot.corrected.csv")) - 173.84) < 0.1);
        QVERIFY(target.read(QStringLiteral("shot.tiff")).contains("unit=F emissivity=0.95"));
        QVERIFY(target.read(QStringLiteral("shot.corrected.tiff"))
                    .contains("unit=F corrected emissivity=0.60 stored_emissivity=0.95 "
                              "reflected_celsius=20.0"));
    }

    void savesThePictureWithWhatIsCorrected()
    {
        begin();
        drawOneOfEach();
        analysis::Isotherm all;
        all.from = -100;
        window->commands().viewed().setIsotherm(all);
        window->commands().viewed().setCorrection(analysis::Correction{0.95, 0.6, 20});
        chooseEntry(label(), QStringLiteral("保存图片..."));
        auto* how = window->findChild<PictureDialog*>();
        QVERIFY(how);
        testing::part<QCheckBox>(how, "values")->setChecked(true);
        analysis::ShownPicture expected = seen();
        const auto& viewed = window->commands().viewed();
        analysis::addIsotherm(expected, all, viewed.photograph().temperatures, viewed.unit());
        analysis::addCorrected(expected, viewed.correctionName(), *viewed.corrected(),
                               viewed.unit().conversion);
        QCOMPARE(how->picture(), analysis::exportedPicture(expected, how->options()));
        QVERIFY(how->picture().height() >
                analysis::exportedPicture(seen(), how->options()).height());
        how->reject();
        QTRY_VERIFY(!window->findChild<PictureDialog*>());
    }
};

int main(int argc, char** argv)
{
    return testing::run<ViewMenuTest>(argc, argv);
}

#include "view_menu_test.moc"
