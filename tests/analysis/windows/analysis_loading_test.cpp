// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/analysis_window_test.h"

using testing::flat;
using testing::photographBytes;
using testing::placedPoint;
using testing::Shot;

/// What the analysis window says of a photograph, in either unit.
class AnalysisLoadingTest : public testing::AnalysisWindowTest
{
    Q_OBJECT

private slots:
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
};

int main(int argc, char** argv)
{
    return testing::run<AnalysisLoadingTest>(argc, argv);
}

#include "analysis_loading_test.moc"
