// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/details_window.h"
#include "analysis/windows/histogram_window.h"
#include "analysis/windows/profile_window.h"
#include "analysis/windows/spots_window.h"
#include "analysis/windows/tool_commands.h"
#include "overlay/my_label.h"
#include "plots/plot_view.h"
#include "tests/support/dialogs.h"
#include "tests/support/test_run.h"
#include "tests/tools/thermaphoto.h"

#include <QComboBox>
#include <QJsonObject>
#include <QPushButton>
#include <QTableWidget>

#include <cmath>

using testing::Folder;
using testing::thermaphoto;

namespace {

const QByteArray toolFile = R"({"points": [[7, 9]], "lines": [[10, 300, 200, 20]],
    "rectangles": [[100, 100, 30, 60]], "circles": [[150, 200, 40]]})";

/// The window has two decimals, the program three: they agree to half of the window's last one.
bool isShownAs(double number, const QString& shown)
{
    constexpr double roundedTwice = 0.0056;
    bool isNumber = false;
    const double window = shown.toDouble(&isNumber);
    if (isNumber && std::abs(window - number) <= roundedTwice)
        return true;
    qWarning() << number << "is shown as" << shown;
    return false;
}

bool isNear(double one, double other)
{
    return std::abs(one - other) <= 0.000501;
}

} // namespace

/// What windows beside the picture show, beside what the program prints of the same photograph.
class LookingTest : public QObject
{
    Q_OBJECT

    Folder folder;
    QString unit;
    std::unique_ptr<Analysis_Widget> window;

    QJsonObject printed(const QStringList& arguments) const
    {
        return thermaphoto(arguments + QStringList{"--format", "json", "--unit", unit, "a.bmp"},
                           folder.path())
            .json()[0]
            .toObject();
    }

    MyLabel& label() const { return *window->findChild<MyLabel*>(); }

    template<typename Beside>
    Beside& opened() const
    {
        return analysis::BesideWindow::open<Beside>(window->commands().viewed());
    }

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<int>("sample");
        QTest::addColumn<QString>("shownUnit");
        for (const int sample : {0, 1, 2, 4}) {
            for (const char* name : {"C", "F"})
                QTest::addRow("%s in %s", testing::samples()[std::size_t(sample)].name, name)
                    << sample << QString(name);
        }
    }
    void init();
    void cleanup() { window.reset(); }

    void details();
    void profile();
    void histogram();
    void spots();
    void savedSpots();
};

void LookingTest::init()
{
    QFETCH_GLOBAL(int, sample);
    QFETCH_GLOBAL(QString, shownUnit);
    const testing::Sample& kind = testing::samples()[std::size_t(sample)];
    unit = shownUnit;
    const QString path = folder.write("a.bmp", kind.bytes());
    folder.write("tools.json", toolFile);
    window = std::make_unique<Analysis_Widget>();
    QVERIFY(window->set_Image_addr(path, kind.settings.modelIndex));
    window->show();
    label().pointList = {{"P0", 7, 9}};
    label().lineList = {{"L0", 10, 300, 200, 20}};
    label().rectList = {{"R0", 100, 100, 30, 60}};
    label().circleList = {{"C0", 150, 200, 190, 200, 40}};
    window->updat_Tool_Temp();
    testing::part<QComboBox>(window.get(), "comboBox")->setCurrentIndex(unit == "F" ? 1 : 0);
}

void LookingTest::details()
{
    const QJsonArray tools =
        printed({"measure", "--more", "--tools", "tools.json"})["tools"].toArray();
    QCOMPARE(tools.size(), 4);
    auto& beside = opened<analysis::DetailsWindow>();
    const auto* table = testing::part<QTableWidget>(&beside, "numbers");
    const auto cell = [table](int row, int column) {
        return table->item(row, column)->text();
    };
    auto* const rows = testing::part<QTableWidget>(window.get(), "tableWidget");
    for (int row = 0; row < tools.size(); ++row) {
        const QJsonObject tool = tools[row].toObject();
        const QString name = tool["name"].toString();
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                          rows->visualItemRect(rows->item(row, 0)).center());
        QTRY_VERIFY(testing::part<QLabel>(&beside, "subject")->text().startsWith(name));
        // The rows: highest, lowest, average, deviation, median, pixels.
        QCOMPARE(cell(0, 2), QString::number(tool["high_x"].toInt()));
        QCOMPARE(cell(0, 3), QString::number(tool["high_y"].toInt()));
        QCOMPARE(cell(1, 2), QString::number(tool["low_x"].toInt()));
        QCOMPARE(cell(1, 3), QString::number(tool["low_y"].toInt()));
        QVERIFY(isShownAs(tool["deviation"].toDouble(), cell(3, 1)));
        QVERIFY(isShownAs(tool["median"].toDouble(), cell(4, 1)));
        QCOMPARE(cell(5, 1), QString::number(tool["pixels"].toInt()));
    }
}

void LookingTest::profile()
{
    const QJsonArray pixels = printed({"profile", "--tools", "tools.json"})["pixels"].toArray();
    const auto& beside = opened<analysis::ProfileWindow>();
    const plots::Plot& plot = beside.findChild<plots::PlotView*>()->plot();
    QCOMPARE(plot.curves.size(), std::size_t(1));
    QCOMPARE(int(plot.curves.front().points.size()), pixels.size());
    for (int i = 0; i < pixels.size(); ++i) {
        const QPointF point = plot.curves.front().points[std::size_t(i)];
        QVERIFY(isNear(point.x(), pixels[i].toObject()["distance"].toDouble()));
        QVERIFY(isNear(point.y(), pixels[i].toObject()["temperature"].toDouble()));
    }
}

/// Of the whole picture, with bins that both choose by themselves.
void LookingTest::histogram()
{
    const QJsonArray bins = printed({"histogram"})["bins"].toArray();
    const auto& beside = opened<analysis::HistogramWindow>();
    const plots::Plot& plot = beside.findChild<plots::PlotView*>()->plot();
    QCOMPARE(plot.bars.size(), std::size_t(1));
    QCOMPARE(int(plot.bars.front().bars.size()), bins.size());
    for (int i = 0; i < bins.size(); ++i) {
        const plots::Bar& bar = plot.bars.front().bars[std::size_t(i)];
        QVERIFY(isNear(bar.from, bins[i].toObject()["from"].toDouble()));
        QVERIFY(isNear(bar.to, bins[i].toObject()["to"].toDouble()));
        QCOMPARE(bar.height, bins[i].toObject()["pixels"].toDouble());
    }
}

/// As many and as far from each other as both choose by themselves.
void LookingTest::spots()
{
    const QJsonArray spots = printed({"spots"})["spots"].toArray();
    const auto& beside = opened<analysis::SpotsWindow>();
    const auto* table = testing::part<QTableWidget>(&beside, "spots");
    QTRY_COMPARE(table->rowCount(), spots.size());
    for (int i = 0; i < spots.size(); ++i) {
        const auto cell = [table, i](int column) {
            return table->item(i, column)->text();
        };
        const QJsonObject spot = spots[i].toObject();
        QCOMPARE(cell(2), QString::number(spot["x"].toInt()));
        QCOMPARE(cell(3), QString::number(spot["y"].toInt()));
        QVERIFY(isShownAs(spot["temperature"].toDouble(), cell(4)));
    }
}

/// Byte for byte.
void LookingTest::savedSpots()
{
    testing::part<QPushButton>(&opened<analysis::SpotsWindow>(), "save")->click();
    testing::choose(*window->findChild<QFileDialog*>(), folder / "spots.csv");
    const testing::Ended ended =
        thermaphoto({"spots", "--format", "csv", "--unit", unit, "a.bmp"}, folder.path());
    QVERIFY(ended.output.count('\n') > 2);
    QCOMPARE(folder.read("spots.csv"), ended.output);
    QVERIFY(QFile::remove(folder / "spots.csv")); // the next dialog would ask about it
}

int main(int argc, char** argv)
{
    return testing::run<LookingTest>(argc, argv);
}

#include "looking_test.moc"
