// SPDX-License-Identifier: MIT
#include "analysis/export/details_text.h"
#include "tests/analysis/photograph/placed_tools.h"
#include "tests/support/test_run.h"

#include <limits>
#include <memory>

using analysis::Area;
using analysis::areaOf;
using analysis::detailsOf;
using analysis::DetailsText;
using analysis::Figure;
using analysis::Temperatures;

namespace {

/// A row of pixels with these readings.
Area row(const std::vector<double>& values)
{
    Area area;
    for (const double value : values)
        area.readings.push_back({int(area.readings.size()), 7, value});
    return area;
}

/// What the table says of a tool in a picture, and why it is not what the details say.
template<typename Tool>
QStringList reasons(const Tool& tool, const Temperatures& temperatures)
{
    overlay::Tools tools;
    std::get<QVector<Tool>&>(overlay::listsOf(tools)) = {tool};
    const auto table = analysis::toolRows(tools, temperatures, analysis::unchanged);
    const Area area = areaOf(tool, temperatures, analysis::unchanged);
    return DetailsText::otherInTable(table.at(0), area, detailsOf(area));
}

} // namespace

class DetailsTextTest : public QObject
{
    Q_OBJECT

    const std::unique_ptr<Temperatures> m_temperatures = std::make_unique<Temperatures>();

private slots:
    void init() { m_temperatures->fill(20.0F); }

    void aCaptionForEachRow()
    {
        const QStringList captions = DetailsText::captions(QStringLiteral("°C"), 45.5);
        QCOMPARE(captions.size(), int(DetailsText::rowCount));
        QCOMPARE(captions.at(DetailsText::High), QStringLiteral("最高 (°C)"));
        QCOMPARE(captions.at(DetailsText::Median), QStringLiteral("中位数 (°C)"));
        QCOMPARE(captions.at(DetailsText::Pixels), QStringLiteral("像素"));
        QCOMPARE(captions.at(DetailsText::Above), QStringLiteral("高于 45.50 °C (%)"));
        QCOMPARE(captions.at(DetailsText::Below), QStringLiteral("低于 45.50 °C (%)"));
        QCOMPARE(captions.at(DetailsText::Difference), QStringLiteral("温差 ΔT (°C)"));
        QCOMPARE(DetailsText::captionOf(Figure::Average), QStringLiteral("平均"));
    }

    /// Mean 3, squared deviations 9, 4, 4 and 9 of the median's four: √6.5 = 2.5495.
    void aNumberForEachRow()
    {
        const Area area = row({0, 1, 5, 6});
        const QStringList values = DetailsText::values(area, detailsOf(area), 5, 12.345678);
        QCOMPARE(values, QStringList({"6.00", "0.00", "3.00", "2.55", "3.00", "4", "25.00", "50.00",
                                      "12.35"}));
        QCOMPARE(values.size(), int(DetailsText::rowCount));
    }

    void nothingWhereThereIsNone()
    {
        const QStringList values = DetailsText::values(row({}), std::nullopt, 5, std::nullopt);
        QCOMPARE(values, QStringList({"", "", "", "", "", "0", "", "", ""}));
    }

    void theTableSaysTheSame()
    {
        for (const float temperature : {-9.96F, 20.0F, 1999.9F}) {
            m_temperatures->fill(temperature);
            QCOMPARE(reasons(testing::rect(10, 20, 30, 40), *m_temperatures), QStringList());
            QCOMPARE(reasons(testing::point(10, 20), *m_temperatures), QStringList());
        }
    }

    void theTableStartsFromFixedValues()
    {
        m_temperatures->fill(-20.0F);
        const auto cold = reasons(testing::rect(10, 20, 30, 40), *m_temperatures);
        QCOMPARE(cold.size(), 1);
        QVERIFY(cold.front().startsWith(QStringLiteral("表格中的最高值为 -10.0：")));
        QCOMPARE(reasons(testing::circle(100, 100, 5), *m_temperatures), QStringList());
        QCOMPARE(reasons(testing::point(100, 100), *m_temperatures), QStringList());
        m_temperatures->fill(2100.0F);
        const auto hot = reasons(testing::circle(100, 100, 5), *m_temperatures);
        QCOMPARE(hot.size(), 1);
        QVERIFY(hot.front().startsWith(QStringLiteral("表格中的最低值为 2000.0：")));
    }

    /// The last digits of a large sum are too coarse for what is added.
    void theTableAddsUpInSinglePrecision()
    {
        m_temperatures->fill(100.1F);
        const auto found = reasons(testing::rect(0, 0, 239, 319), *m_temperatures);
        QCOMPARE(found.size(), 1);
        QVERIFY(found.front().startsWith(QStringLiteral("表格中的平均值为 100.0：")));
    }

    void noPixelAtAll()
    {
        const auto found = reasons(testing::rect(240, 20, 240, 40), *m_temperatures);
        QCOMPARE(found, QStringList("此工具不含任何像素：表格显示的是计算的起始值。"));
    }

    void pixelsWithoutAReading()
    {
        const float nothing = std::numeric_limits<float>::quiet_NaN();
        (*m_temperatures)[analysis::temperatureIndex(10, 20)] = nothing;
        const auto some = reasons(testing::rect(10, 20, 30, 40), *m_temperatures);
        QVERIFY(some.front().contains(QStringLiteral("：1。")));
        m_temperatures->fill(nothing);
        const auto all = reasons(testing::rect(10, 20, 11, 21), *m_temperatures);
        QCOMPARE(all.size(), 1);
        QVERIFY(all.front().contains(QStringLiteral("：4。")));
    }
};

int main(int argc, char** argv)
{
    return testing::run<DetailsTextTest>(argc, argv);
}

#include "details_text_test.moc"
