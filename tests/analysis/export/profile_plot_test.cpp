// SPDX-License-Identifier: MIT
#include "analysis/export/profile_plot.h"
#include "tests/analysis/photograph/placed_tools.h"
#include "tests/support/test_run.h"

#include <memory>

using namespace analysis;
using testing::line;

/// Lines over temperatures of x + y / 4 °C, corrected ones a degree more.
class ProfilePlotTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Temperatures> stored;
    std::unique_ptr<Temperatures> corrected;
    QVector<overlay::LineTool> lines;

    PlottedReadings readings(bool withCorrection = false) const
    {
        return {QStringLiteral("IMG001.bmp"),
                {},
                *stored,
                withCorrection ? corrected.get() : nullptr,
                QStringLiteral("ε 0.95")};
    }

private slots:
    void init()
    {
        stored = std::make_unique<Temperatures>();
        corrected = std::make_unique<Temperatures>();
        for (int x = 0; x < 240; ++x) {
            for (int y = 0; y < 320; ++y) {
                (*stored)[std::size_t(x * 320 + y)] = float(x) + float(y) / 4;
                (*corrected)[std::size_t(x * 320 + y)] = float(x) + float(y) / 4 + 1;
            }
        }
        lines = {line(10, 20, 13, 20), line(50, 40, 50, 42)};
        lines[1].name = QStringLiteral("L1");
    }

    void aCurveForEachLineWithItsNameAndUnits()
    {
        const ProfilePlot profile = profilePlot(lines, {0, 1}, readings());
        QCOMPARE(profile.plot.title, QStringLiteral("IMG001.bmp"));
        QCOMPARE(profile.plot.x.unit, QStringLiteral("px"));
        QCOMPARE(profile.plot.y.unit, QStringLiteral("°C"));
        QCOMPARE(profile.plot.curves.size(), std::size_t(2));
        QCOMPARE(profile.plot.curves[0].name, QStringLiteral("L0"));
        QCOMPARE(profile.plot.curves[1].name, QStringLiteral("L1"));
        QCOMPARE(profile.plot.curves[0].points.size(), std::size_t(4));
        QCOMPARE(profile.plot.curves[0].points[3], QPointF(3, 18));
        QCOMPARE(profile.plot.curves[1].points[2], QPointF(2, 60.5));
        QVERIFY(profile.plot.curves[0].colour != profile.plot.curves[1].colour);
        QCOMPARE(profile.pixels[1][2].x, 50);
        QCOMPARE(profile.pixels[1][2].y, 42);
    }

    void theTableHasThermaphotosColumns()
    {
        QCOMPARE(plots::csvOf(profilePlot(lines, {0, 1}, readings()).plot.table),
                 QByteArray("file,unit,name,distance,x,y,temperature\n"
                            "IMG001.bmp,C,L0,0.000,10,20,15.000\n"
                            "IMG001.bmp,C,L0,1.000,11,20,16.000\n"
                            "IMG001.bmp,C,L0,2.000,12,20,17.000\n"
                            "IMG001.bmp,C,L0,3.000,13,20,18.000\n"
                            "IMG001.bmp,C,L1,0.000,50,40,60.000\n"
                            "IMG001.bmp,C,L1,1.000,50,41,60.250\n"
                            "IMG001.bmp,C,L1,2.000,50,42,60.500\n"));
    }

    void aLineKeepsItsColourWithoutTheOthers()
    {
        const QColor inBoth = profilePlot(lines, {0, 1}, readings()).plot.curves[1].colour;
        const ProfilePlot alone = profilePlot(lines, {1}, readings());
        QCOMPARE(alone.plot.curves.size(), std::size_t(1));
        QCOMPARE(alone.plot.curves[0].colour, inBoth);
        QCOMPARE(alone.plot.table.rows.size(), std::size_t(3));
    }

    void correctedReadingsAreDashedUnderTheirName()
    {
        const ProfilePlot profile = profilePlot(lines, {1}, readings(true));
        QCOMPARE(profile.plot.curves.size(), std::size_t(2));
        QCOMPARE(profile.pixels.size(), std::size_t(2));
        const plots::Curve& curve = profile.plot.curves[1];
        QCOMPARE(curve.name, QStringLiteral("L1 - ε 0.95"));
        QVERIFY(curve.isDashed && !profile.plot.curves[0].isDashed);
        QCOMPARE(curve.colour, profile.plot.curves[0].colour);
        QCOMPARE(curve.points[1], QPointF(1, 61.25));
        QVERIFY(plots::csvOf(profile.plot.table)
                    .endsWith("temperature,corrected\n"
                              "IMG001.bmp,C,L1,0.000,50,40,60.000,61.000\n"
                              "IMG001.bmp,C,L1,1.000,50,41,60.250,61.250\n"
                              "IMG001.bmp,C,L1,2.000,50,42,60.500,61.500\n"));
    }

    void fahrenheitEverywhere()
    {
        PlottedReadings inFahrenheit = readings();
        inFahrenheit.unit = {Unit::Fahrenheit, toFahrenheit};
        const ProfilePlot profile = profilePlot(lines, {0}, inFahrenheit);
        QCOMPARE(profile.plot.y.unit, QStringLiteral("°F"));
        // 10 × 15 / 5.556 + 32 as the window shows it
        QVERIFY(std::abs(profile.plot.curves[0].points[0].y() - 58.998) < 0.001);
        QCOMPARE(profile.plot.table.rows[0].at(1), QStringLiteral("F"));
        QCOMPARE(profile.plot.table.rows[0].at(6), QStringLiteral("58.998"));
    }

    void aLineWithoutExtentHasNoCurve()
    {
        lines[0] = line(10, 20, 10, 20);
        const ProfilePlot profile = profilePlot(lines, {0, 1}, readings());
        QCOMPARE(profile.plot.curves.size(), std::size_t(1));
        QCOMPARE(profile.plot.curves[0].name, QStringLiteral("L1"));
        QCOMPARE(profile.pixels.size(), std::size_t(1));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ProfilePlotTest>(argc, argv);
}

#include "profile_plot_test.moc"
