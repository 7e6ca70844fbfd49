// SPDX-License-Identifier: MIT
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "tests/analysis/windows/analysis_window_test.h"
#include "tests/support/parts.h"

#include <QColorDialog>
#include <QHeaderView>
#include <QPointer>
#include <QSet>
#include <QTextDocumentFragment>
#include <QToolTip>

using testing::flat;

/// The analysis window: its form, its buttons, where the focus goes.
class AnalysisWidgetTest : public testing::AnalysisWindowTest
{
    Q_OBJECT

    /// What a button shows next to its icon.
    QColor ground(const char* button)
    {
        const QImage shown = child<QPushButton>(button).grab().toImage();
        return shown.pixelColor(3, shown.height() / 2);
    }

private slots:
    void slotsStandInTheirOrder()
    {
        const QMetaObject& meta = Analysis_Widget::staticMetaObject;
        QStringList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        const QStringList expected{
            QStringLiteral("updat_XY_Temp(int,int)"),
            QStringLiteral("updat_Tool_Temp()"),
            QStringLiteral("setFocus(int)"),
            QStringLiteral("Set_Select(int)"),
            QStringLiteral("on_comboBox_currentIndexChanged(int)"),
            QStringLiteral("on_pushButton_9_clicked()"),
            QStringLiteral("on_pushButton_8_clicked()"),
            QStringLiteral("on_pushButton_7_clicked()"),
            QStringLiteral("on_pushButton_6_clicked()"),
            QStringLiteral("on_pushButton_5_clicked()"),
            QStringLiteral("on_pushButton_4_clicked()"),
            QStringLiteral("on_pushButton_3_clicked()"),
            QStringLiteral("on_pushButton_2_clicked()"),
            QStringLiteral("on_pushButton_clicked()"),
            QStringLiteral("on_tableWidget_itemClicked(QTableWidgetItem*)"),
            QStringLiteral("on_tableWidget_2_itemEntered(QTableWidgetItem*)")};
        QCOMPARE(signatures, expected);
    }

    void theFormBeforeAPhotograph()
    {
        QCOMPARE(window->windowTitle(), QStringLiteral("Therma Desk"));
        QCOMPARE(window->displayUnitState, -1);
        QCOMPARE(window->conversion.scale, 10.0F);
        QCOMPARE(window->conversion.offset, 0.0F);
        QCOMPARE(unit().count(), 2);
        QCOMPARE(unit().itemText(0), QStringLiteral("°C"));
        QCOMPARE(unit().itemText(1), QStringLiteral("°F"));
        QCOMPARE(unit().count(), int(analysis::units.size()));
        for (int index = 0; index < unit().count(); ++index)
            QCOMPARE(unit().itemText(index), analysis::signOf(*analysis::unitAt(index)));
        QCOMPARE(label().text(), QStringLiteral("TextLabel"));
        QCOMPARE(readOut(), QStringLiteral("X:000|Y:000|26.6°C"));
        QCOMPARE(child<QLabel>("label_5").text(), QStringLiteral("温度信息"));
        QCOMPARE(child<QLabel>("label_6").text(), QStringLiteral("图像信息"));
        QVERIFY(child<QWidget>("widget_3").isAncestorOf(&child<QLabel>("label_4")));

        QStringList columns;
        for (int i = 0; i < tools().columnCount(); ++i)
            columns.append(tools().horizontalHeaderItem(i)->text());
        QCOMPARE(columns,
                 QStringList({QStringLiteral("名称"), QStringLiteral("类型"), QStringLiteral("高"),
                              QStringLiteral("低"), QStringLiteral("平均")}));
        const auto& table = child<QTableWidget>("tableWidget_2");
        QStringList captions;
        for (int row = 0; row < table.rowCount(); ++row) {
            captions.append(table.verticalHeaderItem(row)->text());
            QCOMPARE(table.item(row, 0)->text(), captions.last());
        }
        QCOMPARE(captions, QStringList({QStringLiteral("文件名称:"), QStringLiteral("文件大小:"),
                                        QStringLiteral("时间:"), QStringLiteral("发射率:"),
                                        QStringLiteral("大小:"), QStringLiteral("单位:"),
                                        QStringLiteral("中心温度:"), QStringLiteral("最高温度:"),
                                        QStringLiteral("最低温度:"), QStringLiteral("平均温度:")}));
        QCOMPARE(table.columnWidth(0), 100);
        QVERIFY(table.hasMouseTracking());
        QVERIFY(table.editTriggers() == QAbstractItemView::NoEditTriggers);
        QVERIFY(tools().editTriggers() == QAbstractItemView::NoEditTriggers);
        QVERIFY(tools().selectionMode() == QAbstractItemView::SingleSelection);
        QVERIFY(tools().selectionBehavior() == QAbstractItemView::SelectRows);
    }

    void buttonsHaveIconsAndNames()
    {
        QSet<QString> names;
        const QList<QPushButton*> buttons = window->findChildren<QPushButton*>();
        QCOMPARE(buttons.size(), 9);
        for (const QPushButton* button : buttons) {
            QVERIFY2(!button->icon().pixmap(26).isNull(), qPrintable(button->objectName()));
            QVERIFY2(!button->toolTip().isEmpty(), qPrintable(button->objectName()));
            QCOMPARE(button->accessibleName(), button->toolTip());
            QVERIFY(button->focusPolicy() & Qt::TabFocus);
            names.insert(button->toolTip());
        }
        QCOMPARE(names.size(), 9);
    }

    void iconsAreThoseOfTheResources()
    {
        const QVector<std::pair<const char*, const char*>> icons{
            {"pushButton_9", "Corsor"}, {"pushButton_8", "Poin"},    {"pushButton_7", "Line"},
            {"pushButton_6", "Rect"},   {"pushButton_5", "Ellipse"}, {"pushButton_3", "Delete"},
            {"pushButton_2", "Clear"},  {"pushButton_4", "Color"},   {"pushButton", "save"}};
        for (const auto& [button, name] : icons) {
            const QIcon resource(QStringLiteral(":/photo/%1.png").arg(QLatin1String(name)));
            QCOMPARE(child<QPushButton>(button).icon().pixmap(26).toImage(),
                     resource.pixmap(26).toImage());
        }
    }

    void theSheetsOfButtonsReadOutAndTables()
    {
        show();
        QApplication::setActiveWindow(window.get());
        child<QPushButton>("pushButton_8").setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(child<QPushButton>("pushButton_8").hasFocus());
        QCOMPARE(ground("pushButton_7"), QColor(255, 255, 255));
        // rgb(85, 170, 255) at 150 of 255 over what the button lies on.
        const QColor focused = ground("pushButton_8");
        QVERIFY(focused.red() < 190 && focused.blue() > 240 && focused.green() > focused.red());
        const QString buttons = child<QWidget>("widget_2").styleSheet();
        QVERIFY(buttons.contains(QLatin1String("border: 1px solid rgb(0, 0, 0)")));
        QVERIFY(buttons.contains(QLatin1String("rgba(85, 170, 255, 95)")));
        QVERIFY(buttons.contains(QLatin1String("rgba(85, 170, 255, 150)")));

        auto& framed = child<QWidget>("widget_3");
        const QRect place(framed.mapTo(window.get(), QPoint()), framed.size());
        const QImage readOut = window->grab(place).toImage();
        QCOMPARE(readOut.pixelColor(readOut.width() / 2, 0), QColor(0, 0, 0));
        QCOMPARE(readOut.pixelColor(readOut.width() / 2, 3), QColor(232, 232, 232));
        QVERIFY(readOut.pixelColor(1, 1) != QColor(232, 232, 232)); // outside the round corner
        QVERIFY(readOut.pixelColor(4, 4) == QColor(232, 232, 232));

        for (const char* name : {"tableWidget", "tableWidget_2"}) {
            const QImage table = child<QTableWidget>(name).grab().toImage();
            for (const int y : {0, 1})
                QCOMPARE(table.pixelColor(table.width() / 2, y), QColor(200, 200, 200));
            QVERIFY(table.pixelColor(table.width() / 2, 2) != QColor(200, 200, 200));
            const QString sheet = child<QTableWidget>(name).styleSheet();
            QVERIFY(sheet.contains(QLatin1String("item:hover{color: rgb(255, 255, "
                                                 "255);background-color: rgb(91, 91, 91);}")));
        }
    }

    void theLanguageComesFromTheConfiguration()
    {
        QCOMPARE(window->configurationField, QString());
        config::create(QStringLiteral("RU"));
        QCOMPARE(Analysis_Widget().configurationField, QStringLiteral("RU"));
    }

    void theFileNameHasATooltip()
    {
        QVERIFY(load(flat(255)));
        show();
        auto& table = child<QTableWidget>("tableWidget_2");
        emit table.itemEntered(table.item(0, 1));
        QCOMPARE(QToolTip::text(), QStringLiteral("shot.bmp"));
        for (const auto* other : {table.item(1, 1), table.item(0, 0)}) {
            emit table.itemEntered(table.item(0, 1));
            QTRY_VERIFY(QToolTip::isVisible());
            emit table.itemEntered(table.item(other->row(), other->column()));
            QTRY_VERIFY(!QToolTip::isVisible());
        }
    }

    void aFileNameIsNoMarkUp()
    {
        const QString name = QStringLiteral("<b>hot</b>.bmp");
        child<QTableWidget>("tableWidget_2").item(0, 1)->setText(name);
        show();
        auto& table = child<QTableWidget>("tableWidget_2");
        emit table.itemEntered(table.item(0, 1));
        QCOMPARE(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), name);
    }

    void toolButtons_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("tool");
        QTest::newRow("cursor") << QStringLiteral("pushButton_9") << 1;
        QTest::newRow("point") << QStringLiteral("pushButton_8") << 2;
        QTest::newRow("line") << QStringLiteral("pushButton_7") << 3;
        QTest::newRow("rectangle") << QStringLiteral("pushButton_6") << 4;
        QTest::newRow("ellipse") << QStringLiteral("pushButton_5") << 5;
    }
    void toolButtons()
    {
        QFETCH(QString, button);
        QFETCH(int, tool);
        label().toolMode = 0;
        click(button.toLatin1().constData());
        QCOMPARE(window->currentTool, tool);
        QCOMPARE(label().toolMode, tool);
        const int prepared = label().pointList.size() + label().lineList.size() +
                             label().rectList.size() + label().circleList.size();
        QCOMPARE(prepared, tool == 1 ? 0 : 1);

        window->currentTool = 0;
        window->setFocus(tool);
        QCOMPARE(window->currentTool, tool);
        QCOMPARE(label().toolMode, tool);
        QCOMPARE(window->focusWidget()->objectName(), button);
    }

    void otherFocusNumbers_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("focused");
        QTest::newRow("image") << -1 << QStringLiteral("label");
        QTest::newRow("none") << 0 << QStringLiteral("comboBox");
        QTest::newRow("colour") << 6 << QStringLiteral("pushButton_4");
        QTest::newRow("delete") << 7 << QStringLiteral("pushButton_9");
        QTest::newRow("clear") << 8 << QStringLiteral("pushButton_2");
        QTest::newRow("save") << 9 << QStringLiteral("pushButton");
        QTest::newRow("too large") << 10 << QStringLiteral("comboBox");
        QTest::newRow("too small") << -2 << QStringLiteral("comboBox");
    }
    void otherFocusNumbers()
    {
        QFETCH(int, number);
        QFETCH(QString, focused);
        unit().setFocus(Qt::OtherFocusReason);
        window->setFocus(number);
        QCOMPARE(window->focusWidget()->objectName(), focused);
        QCOMPARE(window->currentTool, 0);
        QCOMPARE(label().toolMode, 1);
    }

    void choosingAColour_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("accepted") << true;
        QTest::newRow("cancelled") << false;
    }
    void choosingAColour()
    {
        QFETCH(bool, accept);
        window->setFocus(3);
        QColor first;
        QString title;
        QTimer::singleShot(0, window.get(), [&] {
            auto* dialog = window->findChild<QColorDialog*>();
            first = dialog->currentColor();
            title = dialog->windowTitle();
            dialog->setCurrentColor(QColor(1, 2, 3));
            accept ? dialog->accept() : dialog->reject();
        });
        testing::LogRecorder log;
        click("pushButton_4");
        QCOMPARE(first, QColor(Qt::white));
        QCOMPARE(title, QStringLiteral("颜色选择"));
        QVERIFY(log.contains(QStringLiteral("颜色选择")));
        QCOMPARE(label().toolColor, accept ? QColor(1, 2, 3) : QColor(255, 0, 0));
        QCOMPARE(log.contains(QStringLiteral("rgb==  1 2 3")), accept);
        QCOMPARE(log.contains(QStringLiteral("m_winColor==  #010203")), accept);
        QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("pushButton_7"));
        QVERIFY(!window->findChild<QColorDialog*>());
    }

    void theWindowMayEndWhileAColourIsChosen()
    {
        const QPointer<Analysis_Widget> page = window.release();
        QTimer::singleShot(0, this, [page] { dialogs::end(page); });
        QTest::mouseClick(testing::part<QPushButton>(page, "pushButton_4"), Qt::LeftButton);
        QVERIFY(!QApplication::activeModalWidget());
        QTRY_VERIFY(!page);
    }

    void theWholeWindowFitsASmallScreen()
    {
        QVERIFY(window->minimumSizeHint().width() <= 1080);
        QVERIFY(window->minimumSizeHint().height() <= 660);
    }
};

int main(int argc, char** argv)
{
    return testing::run<AnalysisWidgetTest>(argc, argv);
}

#include "analysis_widget_test.moc"
