// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/details_test.h"

using analysis::AreaBox;
using analysis::TemperatureBox;

/// What the window of details says beyond the plain figures: shares, differences, and where the
/// tool table says otherwise.
class DetailsComparisonTest : public testing::DetailsTest
{
    Q_OBJECT

private slots:
    void sharesOfAThreshold()
    {
        openOnSmallRectangle();
        typeInto(*part<TemperatureBox>("threshold"), QStringLiteral("52.5"));
        QCOMPARE(texts(Above), QStringLiteral("高于 52.50 °C (%)|16.67||"));
        QCOMPARE(texts(Below), QStringLiteral("低于 52.50 °C (%)|83.33||"));
    }

    /// A threshold stays the same temperature, however often the unit changes.
    void followsTheUnit()
    {
        openOnSmallRectangle();
        auto& threshold = *part<TemperatureBox>("threshold");
        typeInto(threshold, QStringLiteral("52.51"));
        unit().setCurrentIndex(1);
        QTRY_VERIFY(texts(High).startsWith(QStringLiteral("最高 (°F)|127.3"))); // 53 °C, as shown
        QCOMPARE(threshold.value(), 126.52);
        QCOMPARE(threshold.suffix(), QStringLiteral(" °F"));
        QCOMPARE(value(Above), QStringLiteral("16.67"));
        unit().setCurrentIndex(0);
        QTRY_COMPARE(threshold.value(), 52.51);
        QCOMPARE(value(High), QStringLiteral("53.00"));
    }

    /// 53, 51.5 and 50 °C here, 210 °C there; the whole picture reaches 255 °C.
    void differenceToAnotherTool()
    {
        openOnSmallRectangle();
        toPicture();
        click("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, at(100, 110));
        toPicture();
        key(Qt::Key_PageDown);
        QTRY_COMPARE(subject(), QStringLiteral("R0 - 矩形"));
        auto& other = *part<AreaBox>("other");
        QTRY_COMPARE(other.count(), 5);
        other.setCurrentText(QStringLiteral("P0"));
        QCOMPARE(value(Difference), QStringLiteral("-157.00"));
        part<QComboBox>("figure")->setCurrentIndex(1);
        QCOMPARE(value(Difference), QStringLiteral("-158.50"));
        part<QComboBox>("figure")->setCurrentIndex(2);
        QCOMPARE(value(Difference), QStringLiteral("-160.00"));
        other.setCurrentText(QStringLiteral("R0")); // its own span
        part<QComboBox>("figure")->setCurrentIndex(0);
        part<QComboBox>("otherFigure")->setCurrentIndex(2);
        QCOMPARE(value(Difference), QStringLiteral("3.00"));
        other.setCurrentText(QStringLiteral("整幅图像"));
        part<QComboBox>("otherFigure")->setCurrentIndex(0);
        QCOMPARE(value(Difference), QStringLiteral("-202.00"));
    }

    /// It goes with the tool and comes back with it.
    void differenceToAToolThatGoes()
    {
        openOnSmallRectangle();
        toPicture();
        drag(at(60, 60), at(61, 61));
        QTRY_COMPARE(subject(), QStringLiteral("R1 - 矩形"));
        part<AreaBox>("other")->setCurrentText(QStringLiteral("R0"));
        QCOMPARE(value(Difference), QStringLiteral("69.00"));
        toPicture();
        key(Qt::Key_PageUp);
        key(Qt::Key_Delete);
        QTRY_COMPARE(part<AreaBox>("other")->currentText(), QStringLiteral("无"));
        QTRY_COMPARE(value(Difference), QString());
        undo();
        QTRY_COMPARE(part<AreaBox>("other")->currentText(), QStringLiteral("R0"));
        key(Qt::Key_PageDown);
        QTRY_COMPARE(value(Difference), QStringLiteral("69.00"));
        part<AreaBox>("other")->setCurrentIndex(0);
        QCOMPARE(value(Difference), QString());
    }

    void differenceToATypedTemperature()
    {
        openOnSmallRectangle();
        auto& reference = *part<TemperatureBox>("reference");
        QVERIFY(!reference.isVisible());
        part<AreaBox>("other")->setCurrentText(QStringLiteral("输入的温度"));
        QVERIFY(reference.isVisible());
        QVERIFY(!part<QComboBox>("otherFigure")->isVisible());
        typeInto(reference, QStringLiteral("20.25"));
        QCOMPARE(value(Difference), QStringLiteral("32.75"));
        part<QComboBox>("figure")->setCurrentIndex(1);
        QCOMPARE(value(Difference), QStringLiteral("31.25"));
    }

    void saysWhereTheTableIsNotExact()
    {
        beginOn(testing::flat(100, -200, -400));
        click("pushButton_6");
        drag(at(20, 30), at(40, 50));
        open();
        QCOMPARE(toolRow(0).at(2), QStringLiteral("-10.0"));
        QCOMPARE(value(High), QStringLiteral("-32.16")); // -40 + 20 × 100 / 255
        QVERIFY(notes().contains(QStringLiteral("-10.0")));
        click("pushButton_2");
        QTRY_VERIFY(notes().isEmpty());
    }

    void aToolWithoutAPixel()
    {
        openOnSmallRectangle();
        window->commands().change([](overlay::ToolEditing& edited) {
            edited.rectList.first().x1 = edited.rectList.first().x2 = 240;
        });
        QTRY_COMPARE(value(Pixels), QStringLiteral("0"));
        QCOMPARE(texts(High), QStringLiteral("最高 (°C)|||"));
        QVERIFY(!notes().isEmpty());
        part<AreaBox>("other")->setCurrentText(QStringLiteral("整幅图像"));
        QCOMPARE(value(Difference), QString());
    }

    void aPictureWithoutReadings()
    {
        testing::Shot shot = ramp();
        shot.grayMinimum = shot.grayMaximum;
        beginOn(shot);
        open();
        QCOMPARE(value(High), QString());
        QCOMPARE(value(Pixels), QStringLiteral("0"));
    }

    /// The second set of readings stands beside the stored one, as long as there is one.
    void correctedReadings()
    {
        beginOn(testing::flat(255, 600, 200));
        open();
        QCOMPARE(part<QTableWidget>("numbers")->columnCount(), 4);
        analysis::ViewedPhotograph& viewed = window->commands().viewed();
        viewed.setCorrection(analysis::Correction{0.95, 0.6, 20.0});
        const auto* numbers = part<QTableWidget>("numbers");
        QTRY_COMPARE(numbers->columnCount(), 7);
        QCOMPARE(numbers->horizontalHeaderItem(1)->text(), QStringLiteral("存储的读数"));
        QCOMPARE(numbers->horizontalHeaderItem(4)->text(), viewed.correctionName());
        QCOMPARE(value(High), QStringLiteral("60.00"));
        QVERIFY(std::abs(numbers->item(High, 4)->text().toDouble() - 78.8) < 0.05);
        part<AreaBox>("other")->setCurrentText(QStringLiteral("输入的温度"));
        typeInto(*part<TemperatureBox>("reference"), QStringLiteral("20"));
        QCOMPARE(value(Difference), QStringLiteral("40.00"));
        QVERIFY(std::abs(numbers->item(Difference, 4)->text().toDouble() - 58.8) < 0.05);
        viewed.setCorrection(std::nullopt);
        QTRY_COMPARE(numbers->columnCount(), 4);
    }

    /// What is colder than the surroundings has no corrected reading; another pixel is the coldest
    /// then.
    void correctedReadingsHavePlacesOfTheirOwn()
    {
        testing::Shot shot = testing::flat(0, 600, 0);
        shot.gray = [](int x, int y) {
            return x == 5 && y == 6 ? 0 : x == 7 && y == 8 ? 200 : 255;
        };
        beginOn(shot);
        open();
        window->commands().viewed().setCorrection(analysis::Correction{0.95, 0.2, 20.0});
        const auto* numbers = part<QTableWidget>("numbers");
        QTRY_COMPARE(numbers->columnCount(), 7);
        QCOMPARE(texts(Low).section(QLatin1Char('|'), 1, 3), QStringLiteral("0.00|5|6"));
        QCOMPARE(texts(Low).section(QLatin1Char('|'), 5, 6), QStringLiteral("7|8"));
        QCOMPARE(numbers->item(Pixels, 4)->text(), QStringLiteral("76799"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<DetailsComparisonTest>(argc, argv);
}

#include "details_comparison_test.moc"
