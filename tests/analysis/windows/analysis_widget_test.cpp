#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/picture_frame.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"
#include "resources/resources.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/test_run.h"

#include <QColorDialog>
#include <QComboBox>
#include <QHeaderView>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QTranslator>

#include <memory>

using testing::photographBytes;
using testing::Shot;

namespace {

/// Counts the paint events of a window and everything in it.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* window) : m_window(window) { qApp->installEventFilter(this); }
    int count = 0;

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Paint && widget && widget->window() == m_window)
            ++count;
        return false;
    }

private:
    QWidget* m_window;
};

Shot flat(int gray, int maximum10 = 500, int minimum10 = 200)
{
    Shot shot;
    shot.gray = [gray](int, int) {
        return gray;
    };
    shot.maximum10 = maximum10;
    shot.minimum10 = minimum10;
    return shot;
}

overlay::PointTool placedPoint(const QString& name, int x, int y)
{
    overlay::PointTool point;
    point.name = name;
    point.x = x;
    point.y = y;
    return point;
}

} // namespace

class AnalysisWidgetTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Analysis_Widget> window;

    template<typename T>
    T& child(const char* name) const
    {
        auto* found = window->findChild<T*>(QLatin1String(name));
        if (!found)
            qFatal("no child named %s", name);
        return *found;
    }
    MyLabel& label() const { return child<MyLabel>("label"); }
    My_ColorSlider& bar() const { return child<My_ColorSlider>("widget"); }
    QComboBox& unit() const { return child<QComboBox>("comboBox"); }
    QTableWidget& tools() const { return child<QTableWidget>("tableWidget"); }
    void click(const char* button) const { child<QPushButton>(button).click(); }

    QString information(int row) const
    {
        return child<QTableWidget>("tableWidget_2").item(row, 1)->text();
    }
    QStringList toolRow(int row) const
    {
        QStringList texts;
        for (int column = 0; column < tools().columnCount(); ++column)
            texts.append(tools().item(row, column)->text());
        return texts;
    }
    QString readOut() const
    {
        QStringList texts;
        for (const char* name : {"label_2", "label_3", "label_4"})
            texts.append(child<QLabel>(name).text());
        return texts.join(QLatin1Char('|'));
    }

    static QString file(const QString& name, const QByteArray& bytes)
    {
        const QString path = testing::profile().home() + QLatin1Char('/') + name;
        QFile out(path);
        if (!out.open(QIODevice::WriteOnly))
            qFatal("%s", qPrintable(path));
        out.write(bytes);
        return path;
    }
    bool load(const Shot& shot)
    {
        return window->set_Image_addr(file(QStringLiteral("shot.bmp"), photographBytes(shot)),
                                      shot.model);
    }
    void show()
    {
        window->resize(1060, 660);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QCoreApplication::processEvents();
    }
    QRgb shownColour(int x, int y) const
    {
        const QImage picture = label().pixmap(Qt::ReturnByValue).toImage();
        return picture.pixel(x * picture.width() / 240, y * picture.height() / 320);
    }
    /// Where an image position is on the label.
    QPoint at(int x, int y) const
    {
        const QSize picture = label().pixmap(Qt::ReturnByValue).size();
        return {label().width() / 2 - picture.width() / 2 + (2 * x + 1) * picture.width() / 480,
                (2 * y + 1) * picture.height() / 640};
    }
    void drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(&label(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&label(), &move);
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, to);
    }

private slots:
    void initTestCase() { resources::load(); }
    void init()
    {
        testing::profile().reset();
        window = std::make_unique<Analysis_Widget>();
    }
    void cleanup() { window.reset(); }

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

    /// What a button shows next to its icon.
    QColor ground(const char* button)
    {
        const QImage shown = child<QPushButton>(button).grab().toImage();
        return shown.pixelColor(3, shown.height() / 2);
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

    void kindsOfToolsAreTranslated()
    {
        QTranslator english;
        QVERIFY(english.load(QStringLiteral(":/Demo_EN.qm")));
        QVERIFY(QCoreApplication::installTranslator(&english));
        QVERIFY(load(flat(255)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        overlay::LineTool line;
        line.x1 = line.y1 = 1;
        line.x2 = line.y2 = 9;
        label().lineList = {line};
        overlay::RectTool rect;
        rect.x1 = rect.y1 = 1;
        rect.x2 = rect.y2 = 9;
        label().rectList = {rect};
        overlay::CircleTool circle;
        circle.cx = circle.cy = 50;
        circle.radius = 5;
        label().circleList = {circle};
        window->updat_Tool_Temp();
        QStringList kinds;
        for (int row = 0; row < 4; ++row)
            kinds.append(toolRow(row).at(1));
        QCOMPARE(kinds.join(QLatin1Char(' ')), QStringLiteral("Point Line Rectangle Circle"));
    }

    void theLanguageComesFromTheConfiguration()
    {
        QCOMPARE(window->configurationField, QString());
        config::create(QStringLiteral("RU"));
        QCOMPARE(Analysis_Widget().configurationField, QStringLiteral("RU"));
    }

    void aPhotographFillsTheInformationTable()
    {
        Shot shot;
        shot.gray = [](int x, int) {
            return x < 120 ? 0 : 255;
        };
        shot.maximum10 = 1000;
        shot.minimum10 = -55;
        shot.centre10 = 351;
        shot.emissivity100 = 95;
        testing::LogRecorder log;
        QVERIFY(load(shot));
        QCOMPARE(window->displayUnitState, 0);
        QCOMPARE(information(0), QStringLiteral("shot.bmp"));
        QCOMPARE(information(1), QStringLiteral("300.7 KB")); // 307,966 bytes
        const QFileInfo info(window->path);
        const QDateTime birth = info.birthTime();
        QCOMPARE(information(2),
                 QLocale::c().toString(birth.isValid() ? birth : info.metadataChangeTime(),
                                       QStringLiteral("yyyy/MM/dd HH:mm")));
        QCOMPARE(information(3), QStringLiteral("0.95"));
        QCOMPARE(information(4), QStringLiteral("240×320"));
        QCOMPARE(information(5), QStringLiteral("°C"));
        QCOMPARE(information(6), QStringLiteral("35.1"));
        QCOMPARE(information(7), QStringLiteral("100.0"));
        QCOMPARE(information(8), QStringLiteral("-5.5"));
        QCOMPARE(information(9), QStringLiteral("47.3")); // (100 − 5.5) / 2 = 47.25
        const auto& table = child<QTableWidget>("tableWidget_2");
        QVERIFY(table.item(0, 1)->textAlignment() == 0); // names stand left
        for (int row = 1; row < 10; ++row)
            QVERIFY(table.item(row, 1)->textAlignment() == int(Qt::AlignRight | Qt::AlignVCenter));

        QVERIFY(log.contains(window->path + QStringLiteral(" ---------Anlyxix-set_Image_addr")));
        QVERIFY(log.contains(QStringLiteral("输出实际读取的字节数: 307966")));
        QVERIFY(log.contains(QStringLiteral("单位: 0")));
        QVERIFY(log.contains(QStringLiteral("Max温度: 1000")));
        QVERIFY(log.contains(QStringLiteral("机器ID: 5 --------Analysis_Widget::set_Image_addr")));
        QVERIFY(log.contains(QStringLiteral("中心灰度: 100")));
        QVERIFY(log.contains(QStringLiteral("最大灰度 255 最小灰度 0")));
    }

    void modelIndexOneLogsItsVersion()
    {
        Shot shot;
        shot.model = 1;
        shot.firmware10 = 23;
        testing::LogRecorder log;
        QVERIFY(load(shot));
        QVERIFY(log.contains(QStringLiteral("版本号: 2.3")));
        QCOMPARE(information(1), QStringLiteral("225.8 KB")); // 231,169 bytes
    }

    void markersGoToTheLabel()
    {
        Shot shot;
        shot.markers = {10, 20, 30, 40, 50, 60};
        QVERIFY(load(shot));
        QCOMPARE(int(label().markerA.x), 10);
        QCOMPARE(int(label().markerA.y), 20);
        QCOMPARE(int(label().markerB.x), 30);
        QCOMPARE(int(label().markerC.x), 49);
        QCOMPARE(int(label().markerC.y), 59);
    }

    void theColourBarTakesPaletteAndScale()
    {
        Shot shot = flat(0, 500, 200);
        shot.palette = [](int v) {
            return v == 0 ? 0xF800 : v == 254 ? 0x001F : 0;
        };
        QVERIFY(load(shot));
        const auto& table = bar().paletteTable;
        QCOMPARE(int(table[255][0]), 248);
        QCOMPARE(int(table[1][2]), 248);
        QCOMPARE(int(table[0][0]), 0);
        QCOMPARE(bar().topTemperature, 50.0F);
        QCOMPARE(bar().bottomTemperature, 20.0F);
        const auto scale = [this] {
            QStringList texts;
            for (const auto* text : bar().findChildren<QLabel*>())
                texts.append(text->text());
            return texts;
        };
        QVERIFY(scale().contains(QStringLiteral("50.0")));
        QVERIFY(scale().contains(QStringLiteral("20.0")));
        show();
        QVERIFY(!bar().paletteStrip.isNull());
        QCOMPARE(bar().paletteStrip.toImage(), window->colourStrip.toImage());
        QCOMPARE(bar().paletteStrip.toImage().pixel(5, 255), qRgb(248, 0, 0));
        unit().setCurrentIndex(1);
        QCOMPARE(bar().topTemperature, 500.0F / 5.556F + 32.0F);
        QCOMPARE(bar().bottomTemperature, 200.0F / 5.556F + 32.0F);
        QVERIFY(scale().contains(QStringLiteral("122.0")));
        QVERIFY(scale().contains(QStringLiteral("68.0")));
    }

    void aRejectedPhotographChangesOnlyWhatPrecedesTheMachine()
    {
        QVERIFY(load(flat(255)));
        const qint64 pixmap = label().pixmap(Qt::ReturnByValue).cacheKey();
        Shot other = flat(9, 900);
        other.machineId = 0x105;
        other.unit = 1;
        other.markers = {1, 2, 3, 4, 5, 6};
        QVERIFY(!load(other));
        QCOMPARE(unit().currentIndex(), 1);
        QCOMPARE(int(window->photograph.gray[0]), 9);
        QCOMPARE(int(window->photograph.parameters.maximum10), 900);
        QCOMPARE(int(label().markerA.x), 0);
        QCOMPARE(window->photograph.mean, 50.0);
        QCOMPARE(label().pixmap(Qt::ReturnByValue).cacheKey(), pixmap);
        // Refilled by the selector, from the values before.
        QCOMPARE(information(7), QStringLiteral("50.0"));
    }

    void aMissingFileIsNotNoticed()
    {
        QVERIFY(!window->set_Image_addr(QStringLiteral("/nowhere/a.bmp"), 0));
        QCOMPARE(window->readCount, -1);
        QVERIFY(load(flat(255)));
        QVERIFY(window->set_Image_addr(QStringLiteral("/nowhere/b.bmp"), 0));
        QCOMPARE(information(0), QStringLiteral("b.bmp"));
        QCOMPARE(information(1), QStringLiteral("-0.0 KB"));
        QCOMPARE(information(2), QString());
        QCOMPARE(information(7), QStringLiteral("50.0"));
    }

    void aFolderIsNoPhotograph()
    {
        const QString folder = testing::profile().home() + QStringLiteral("/folder.bmp");
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(!window->set_Image_addr(folder, 0));
    }

    void aShortFileShowsTheRestOfThePhotographBefore()
    {
        QVERIFY(load(flat(255, 500)));
        const QByteArray cut = photographBytes(flat(0, 700)).left(307766 + 3);
        QVERIFY(window->set_Image_addr(file(QStringLiteral("cut.bmp"), cut), 0));
        QCOMPARE(information(7), QStringLiteral("70.0"));
        QCOMPARE(information(8), QStringLiteral("20.0"));
        QCOMPARE(information(9), QStringLiteral("20.0"));
    }

    void unusualNames_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"热像#1.bmp", "Снимок 100%.bmp", "사진.bmp", " blanks .bmp ", "%41.bmp"})
            QTest::newRow(name) << QString::fromUtf8(name);
    }
    void unusualNames()
    {
        QFETCH(QString, name);
        QVERIFY(window->set_Image_addr(file(name, photographBytes(flat(255))), 0));
        QCOMPARE(information(0), name);
    }

    void thereAndBackShowsTheSameValues()
    {
        QVERIFY(load(flat(255, 250)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        window->updat_Tool_Temp();
        QCOMPARE(toolRow(0),
                 QStringList({QStringLiteral("P0"), QStringLiteral("点"), QStringLiteral("25.0"),
                              QStringLiteral("25.0"), QStringLiteral("25.0")}));
        const QString before = information(6) + information(7) + information(8) + information(9);
        unit().setCurrentIndex(1);
        QCOMPARE(toolRow(0).mid(2), QStringList({QStringLiteral("77.0"), QStringLiteral("77.0"),
                                                 QStringLiteral("77.0")}));
        QCOMPARE(information(5), QStringLiteral("°F"));
        QCOMPARE(information(7), QStringLiteral("77.0"));
        QCOMPARE(information(9), QStringLiteral("77.0"));
        unit().setCurrentIndex(0);
        QCOMPARE(information(6) + information(7) + information(8) + information(9), before);
        QCOMPARE(toolRow(0).at(2), QStringLiteral("25.0"));
    }

    void aFahrenheitPhotographInCelsius()
    {
        Shot shot = flat(255, 2120, 320);
        shot.unit = 1;
        QVERIFY(load(shot));
        QCOMPARE(unit().currentIndex(), 1);
        QCOMPARE(information(7), QStringLiteral("212.0"));
        unit().setCurrentIndex(0);
        QCOMPARE(information(7), QStringLiteral("100.0"));
        QCOMPARE(information(8), QStringLiteral("-0.0"));
        QCOMPARE(information(9), QStringLiteral("100.0"));
        window->updat_XY_Temp(1, 2);
        QCOMPARE(readOut(), QStringLiteral("X: 1|Y: 2|100.0°C"));
    }

    void aRawPhotographIsInCelsiusInside()
    {
        Shot shot = flat(0, 2120, 320);
        shot.unit = 1;
        shot.raw = [](int, int) {
            return 4770;
        }; // 24.975 °C
        QVERIFY(load(shot));
        QCOMPARE(unit().currentIndex(), 1);
        window->updat_XY_Temp(1, 2);
        QCOMPARE(readOut(), QStringLiteral("X: 1|Y: 2|77.0°F"));
        // Rows 6 to 8 come from the parameter block, whose degrees are taken for the raw image's.
        QCOMPARE(information(7), QStringLiteral("413.6"));
        unit().setCurrentIndex(0);
        QCOMPARE(window->conversion.scale, 10.0F);
        QCOMPARE(information(9), QStringLiteral("25.0"));
        QCOMPARE(information(1), QStringLiteral("396.6 KB"));
    }

    void anUnknownUnitLeavesTheSelector()
    {
        unit().setCurrentIndex(1);
        Shot shot = flat(255);
        shot.unit = 2;
        QVERIFY(load(shot));
        QCOMPARE(unit().currentIndex(), 1);
        QCOMPARE(information(5), QStringLiteral("°F"));
        QCOMPARE(information(7), QStringLiteral("50.0"));
        unit().setCurrentIndex(0);
        unit().setCurrentIndex(1);
        QCOMPARE(information(7), QStringLiteral("50.0"));
    }

    void theUnitCellFollowsTheSelectorTheNumbersThePair()
    {
        // The selector stands at °F already, so the second photograph does not change the pair.
        QVERIFY(load(flat(255, 250)));
        unit().setCurrentIndex(1);
        Shot shot = flat(255, 2120);
        shot.unit = 1;
        QVERIFY(load(shot));
        QCOMPARE(information(5), QStringLiteral("°F"));
        QCOMPARE(information(7), QStringLiteral("413.6"));
    }

    void aUnitChangeWhileLoadingShowsTheToolsOfThePhotographBefore()
    {
        QVERIFY(load(flat(255, 250)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        window->updat_Tool_Temp();
        Shot shot = flat(255, 900);
        shot.unit = 1;
        QVERIFY(load(shot));
        QCOMPARE(toolRow(0).at(2), QStringLiteral("25.0"));
        QCOMPARE(information(7), QStringLiteral("90.0"));
    }

    void theFirstPhotographMayBeInFahrenheit()
    {
        testing::LogRecorder log;
        Shot shot = flat(255, 900);
        shot.unit = 1;
        QVERIFY(load(shot));
        QCOMPARE(information(7), QStringLiteral("90.0"));
        QCOMPARE(tools().rowCount(), 0);
        // Between the two log lines of the load, the unit change tells its state.
        const int changed = log.messages().indexOf(QStringLiteral("0"));
        QVERIFY(changed > log.messages().indexOf(QStringLiteral("单位: 1")));
        QVERIFY(changed < log.messages().indexOf(QStringLiteral("Max温度: 900")));
    }

    void theReadOutFollowsTheCursor()
    {
        Shot shot;
        shot.gray = [](int x, int y) {
            return x == 239 && y == 319 ? 255 : 0;
        };
        QVERIFY(load(shot));
        window->updat_XY_Temp(0, 7);
        QCOMPARE(readOut(), QStringLiteral("X: 0|Y: 7|20.0°C"));
        emit label().Point_XY(239, 319);
        QCOMPARE(readOut(), QStringLiteral("X: 239|Y: 319|50.0°C"));
        emit label().Point_XY(240, 320);
        QCOMPARE(readOut(), QStringLiteral("X: 240|Y: 320|50.0°C"));
        emit label().Point_XY(-30000, 100000);
        QCOMPARE(readOut(), QStringLiteral("X: -30000|Y: 100000|20.0°C"));
        unit().setCurrentIndex(-1);
        window->updat_XY_Temp(239, 319);
        QCOMPARE(readOut(), QStringLiteral("X: 239|Y: 319|20.0°C"));
    }

    void toolsPlacedByMouseAppearInTheTable()
    {
        Shot shot;
        shot.gray = [](int x, int y) {
            return x >= 100 && y >= 100 ? 255 : 0;
        };
        QVERIFY(load(shot));
        show();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(50, 60));
        click("pushButton_7");
        drag(at(10, 200), at(200, 200));
        const overlay::LineTool line = label().lineList.first();
        QCOMPARE(QVector<int>({line.x1, line.y1, line.x2, line.y2}),
                 QVector<int>({10, 200, 200, 200}));
        click("pushButton_6");
        drag(at(110, 110), at(150, 160));
        click("pushButton_5");
        drag(at(60, 60), at(80, 60));
        QCOMPARE(tools().rowCount(), 4);
        const auto row = [](const char* name, const char* kind, const char* high, const char* low,
                            const char* average) {
            return QStringList({QString::fromUtf8(name), QString::fromUtf8(kind),
                                QString::fromUtf8(high), QString::fromUtf8(low),
                                QString::fromUtf8(average)});
        };
        QCOMPARE(toolRow(0), row("P0", "点", "20.0", "20.0", "20.0"));
        QCOMPARE(toolRow(1), row("L0", "线", "50.0", "20.0", "35.9")); // 90 cold, 101 hot
        QCOMPARE(toolRow(2), row("R0", "矩形", "50.0", "50.0", "50.0"));
        QCOMPARE(toolRow(3), row("C0", "圆", "20.0", "20.0", "20.0"));
        QVERIFY(tools().item(3, 4)->textAlignment() == int(Qt::AlignHCenter | Qt::AlignVCenter));
        // The tool drawn last stays selected.
        QCOMPARE(window->selectedRow, 3);
        QCOMPARE(tools().selectedItems().size(), 5);
        QCOMPARE(tools().selectedItems().first()->row(), 3);
        click("pushButton_3");
        QCOMPARE(label().circleList.size(), 0);
        QCOMPARE(tools().rowCount(), 3);
        click("pushButton_2");
        QCOMPARE(tools().rowCount(), 0);
    }

    void afterDeletingTheTableListsWhatIsLeft()
    {
        QVERIFY(load(flat(255)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4),
                             placedPoint(QStringLiteral("P1"), 5, 6),
                             placedPoint(QStringLiteral("P2"), 7, 8)};
        window->updat_Tool_Temp();
        window->Set_Select(0);
        const auto marked = [this] {
            const auto items = tools().selectedItems();
            return items.isEmpty() ? QString() : items.first()->text();
        };
        emit tools().itemClicked(tools().item(1, 0));
        click("pushButton_3");
        QCOMPARE(tools().rowCount(), 2);
        QCOMPARE(toolRow(0).first(), QStringLiteral("P0"));
        QCOMPARE(toolRow(1).first(), QStringLiteral("P2"));
        // The tool that moved up is the one that goes next, and the table says so.
        QCOMPARE(marked(), QStringLiteral("P2"));
        click("pushButton_3");
        QCOMPARE(tools().rowCount(), 1);
        QCOMPARE(toolRow(0).first(), QStringLiteral("P0"));
        // None has moved up now, so none is marked, and deleting again removes nothing.
        QCOMPARE(marked(), QString());
        click("pushButton_3");
        QCOMPARE(label().pointList.size(), 1);
        QCOMPARE(tools().rowCount(), 1);
    }

    void theMarkedRowIsThatOfTheToolThatMovedUp()
    {
        QVERIFY(load(flat(255)));
        overlay::CircleTool circle;
        circle.cx = circle.cy = 50;
        circle.radius = 5;
        circle.name = QStringLiteral("C0");
        label().circleList = {circle};
        circle.name = QStringLiteral("C1");
        label().circleList.append(circle);
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        window->updat_Tool_Temp();
        emit tools().itemClicked(tools().item(1, 0)); // C0
        click("pushButton_3");
        QCOMPARE(tools().selectedItems().value(0)->text(), QStringLiteral("C1"));
        QCOMPARE(window->selectedRow, 1);
    }

    void selectingARowThatIsNotThereKeepsTheSelection()
    {
        QVERIFY(load(flat(255)));
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4),
                             placedPoint(QStringLiteral("P1"), 5, 6)};
        window->updat_Tool_Temp();
        window->Set_Select(1);
        QCOMPARE(tools().currentRow(), 1);
        window->Set_Select(2);
        QCOMPARE(window->selectedRow, 2);
        QCOMPARE(tools().currentRow(), 1);
        QCOMPARE(tools().selectedItems().size(), 5);
        window->Set_Select(99);
        QCOMPARE(window->selectedRow, 99);
        QCOMPARE(tools().currentRow(), 1);
        // Refilled, nothing of the old selection is left.
        window->updat_Tool_Temp();
        QCOMPARE(tools().selectedItems().size(), 0);
    }

    void aClickInTheTableSelectsTheTool()
    {
        QVERIFY(load(flat(255)));
        overlay::RectTool rect;
        rect.name = QStringLiteral("R0");
        rect.x1 = rect.y1 = 1;
        rect.x2 = rect.y2 = 9;
        label().rectList = {rect, rect};
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4),
                             placedPoint(QStringLiteral("P1"), -1, -1),
                             placedPoint(QStringLiteral("P2"), 5, 6)};
        window->updat_Tool_Temp();
        QCOMPARE(tools().rowCount(), 4);
        emit tools().itemClicked(tools().item(3, 2));
        QCOMPARE(label().currentType, QStringLiteral("R"));
        QCOMPARE(label().selectedIndex, 1);
        // Rows are counted, and the unplaced tool has none; deleting prunes it first.
        emit tools().itemClicked(tools().item(1, 0));
        QCOMPARE(label().currentType, QStringLiteral("P"));
        QCOMPARE(label().selectedIndex, 1);
        click("pushButton_3");
        QCOMPARE(label().pointList.size(), 1);
        QCOMPARE(label().pointList.first().name, QStringLiteral("P0"));
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

    void deletingWithNothingSelectedGoesBackToTheCursor()
    {
        click("pushButton_6");
        click("pushButton_3");
        QCOMPARE(window->currentTool, 1);
        QCOMPARE(label().toolMode, 1);
        QCOMPARE(label().rectList.size(), 0);
        QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("pushButton_9"));
    }

    void deletingASelectedToolKeepsTheTool()
    {
        click("pushButton_6");
        label().pointList = {placedPoint(QStringLiteral("P0"), 3, 4)};
        label().currentType = QStringLiteral("P");
        label().selectedIndex = 0;
        click("pushButton_3");
        QCOMPARE(label().pointList.size(), 0);
        QCOMPARE(window->currentTool, 4);
        QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("pushButton_9"));
        // The prepared tool was pruned; a press must not reach for it.
        QVERIFY(load(flat(255)));
        show();
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(50, 60));
    }

    void clearingPreparesTheCurrentToolAgain()
    {
        click("pushButton_2");
        QCOMPARE(window->currentTool, 0);
        click("pushButton_8");
        label().pointList.append(placedPoint(QStringLiteral("P1"), 3, 4));
        click("pushButton_2");
        QCOMPARE(label().pointList.size(), 1);
        QCOMPARE(label().pointList.first().x, -1);
        QCOMPARE(label().currentType, QStringLiteral("null"));
        QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("pushButton_8"));
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
        QTest::mouseClick(page->findChild<QPushButton*>("pushButton_4"), Qt::LeftButton);
        QVERIFY(!QApplication::activeModalWidget());
        QTRY_VERIFY(!page);
    }

    void theGrayPictureIsSetWhenLoaded()
    {
        label().resize(600, 700);
        QVERIFY(load(flat(255)));
        const QImage picture = label().pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(picture.size(), QSize(525, 700));
        QCOMPARE(picture.pixel(100, 100), qRgb(255, 255, 255));
        QCOMPARE(window->grayImage.size(), QSize(240, 320));
        QCOMPARE(window->grayImage.constBits(), window->photograph.gray.data());
        QCOMPARE(window->grayMatrix.data, window->photograph.gray.data());
    }

    void colours()
    {
        Shot shot;
        shot.gray = [](int x, int y) {
            return y < 160 ? (x < 120 ? 0 : 100) : 255;
        };
        shot.palette = [](int v) {
            return v == 0 ? 0xF800 : v == 100 ? 0x07E0 : 0x001F;
        };
        QVERIFY(load(shot));
        show();
        QCOMPARE(shownColour(50, 50), qRgb(248, 0, 0));
        QCOMPARE(shownColour(200, 50), qRgb(0, 252, 0));
        QCOMPARE(shownColour(100, 300), qRgb(0, 0, 248));
        QCOMPARE(window->falseColourImage.format(), QImage::Format_RGB888);
        QCOMPARE(window->falseColourImage.size(), QSize(240, 320));
        QCOMPARE(window->colourStrip.size(), QSize(30, 256));
        // Another photograph in the same window shows at once.
        shot.palette = [](int) {
            return 0xFFFF;
        };
        QVERIFY(load(shot));
        QCoreApplication::processEvents();
        QCOMPARE(shownColour(50, 50), qRgb(248, 252, 248));
    }

    /// Between two colours, smooth scaling makes a third.
    void thePictureIsScaledSmoothly()
    {
        Shot shot;
        shot.gray = [](int x, int) {
            return x < 120 ? 0 : 255;
        };
        shot.palette = [](int v) {
            return v == 0 ? 0xF800 : 0x001F;
        };
        label().resize(611, 777);
        QVERIFY(load(shot));
        const auto mixed = [this] {
            const QImage picture = label().pixmap(Qt::ReturnByValue).toImage();
            QSet<QRgb> colours;
            for (int x = 0; x < picture.width(); ++x)
                colours.insert(picture.pixel(x, picture.height() / 2));
            return colours.size();
        };
        QVERIFY(mixed() > 2); // the gray picture
        show();
        QVERIFY(mixed() > 2);
    }

    void draggingAMarkerOfTheColourBarRendersAtOnce()
    {
        Shot shot = flat(200);
        shot.palette = [](int v) {
            return v == 200 ? 0xF800 : 0x001F;
        };
        QVERIFY(load(shot));
        show();
        QCOMPARE(shownColour(100, 100), qRgb(248, 0, 0));
        QTest::mousePress(&bar(), Qt::LeftButton, {}, bar().startMarker + QPoint(5, 0));
        QMouseEvent move(QEvent::MouseMove, QPoint(30, bar().height() / 2), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(&bar(), &move);
        QVERIFY(bar().startValue > 100);
        QCoreApplication::processEvents();
        QCOMPARE(shownColour(100, 100), qRgb(0, 0, 248));
    }

    void anIdleWindowPaintsNothing()
    {
        QVERIFY(load(flat(200)));
        show();
        QTest::mouseMove(&label(), at(30, 30));
        PaintCounter paints(window.get());
        // Come to rest first: no paint in a whole round of events.
        QTRY_VERIFY([&paints] {
            paints.count = 0;
            QTest::qWait(50);
            return paints.count == 0;
        }());
        QTest::qWait(1000);
        QCOMPARE(paints.count, 0);
        // A single paint of the whole window comes to rest as well.
        window->update();
        QTest::qWait(200);
        const int widgets = window->findChildren<QWidget*>().size();
        QVERIFY2(paints.count > 0 && paints.count < 2 * widgets,
                 qPrintable(QString::number(paints.count)));
    }

    void aCursorMoveDoesNotRenderAgain()
    {
        QVERIFY(load(flat(200)));
        show();
        const qint64 before = label().pixmap(Qt::ReturnByValue).cacheKey();
        emit label().Point_XY(5, 6);
        QCoreApplication::processEvents();
        QCOMPARE(label().pixmap(Qt::ReturnByValue).cacheKey(), before);
        window->resize(window->size() + QSize(0, 30));
        QCoreApplication::processEvents();
        QVERIFY(label().pixmap(Qt::ReturnByValue).cacheKey() != before);
    }

    void aWindowWithoutAPhotographShowsBlack()
    {
        show();
        QCOMPARE(shownColour(100, 100), qRgb(0, 0, 0));
        QTest::mouseMove(&label(), QPoint(100, 100));
        QTest::mouseClick(&label(), Qt::LeftButton, {}, QPoint(100, 100));
    }

    void theLabelIsAlwaysWiderThanThePicture()
    {
        PictureFrame frame;
        QWidget inside(&frame);
        for (int width = 1; width < 900; width += 7) {
            for (int height = 1; height < 1300; height += 5) {
                frame.resize(width, height);
                QResizeEvent resized(frame.size(), QSize());
                QCoreApplication::sendEvent(&frame, &resized);
                QCOMPARE(inside.width(), width);
                QVERIFY(inside.height() <= height);
                const QSize picture = QSize(240, 320).scaled(inside.size(), Qt::KeepAspectRatio);
                if (picture.width() >= inside.width())
                    QFAIL(qPrintable(QStringLiteral("%1 x %2").arg(width).arg(height)));
            }
        }
        frame.resize(480, 640);
        QResizeEvent resized(frame.size(), QSize());
        QCoreApplication::sendEvent(&frame, &resized);
        QCOMPARE(inside.height(), 639);
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
