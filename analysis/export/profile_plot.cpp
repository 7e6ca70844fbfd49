// SPDX-License-Identifier: MIT
#include "analysis/export/profile_plot.h"

#include <QCoreApplication>

namespace analysis {
namespace {

struct ProfileTexts
{
    Q_DECLARE_TR_FUNCTIONS(ProfileTexts)
};

using Points = std::vector<ProfilePoint>;

plots::Curve curveOf(const QString& name, int number, const Points& points)
{
    plots::Curve curve{name, plots::colourOf(number), {}};
    for (const ProfilePoint& point : points)
        curve.points.emplace_back(point.distance, point.value);
    return curve;
}

} // namespace

std::vector<QStringList> profileRows(const QString& name, const Points& points)
{
    std::vector<QStringList> rows;
    for (const ProfilePoint& point : points)
        rows.push_back({name, threeDecimals(point.distance), QString::number(point.x),
                        QString::number(point.y), threeDecimals(point.value)});
    return rows;
}

ProfilePlot profilePlot(const QVector<overlay::LineTool>& lines, const std::vector<int>& plotted,
                        const PlottedReadings& readings)
{
    ProfilePlot profile;
    plots::Plot& plot = profile.plot;
    plot.title = readings.file;
    plot.x = {ProfileTexts::tr("沿直线的距离"), QStringLiteral("px"), 1};
    plot.y = {ProfileTexts::tr("温度"), signOf(readings.unit.unit), 1};
    plot.table.captions =
        QStringLiteral("file,unit,name,distance,x,y,temperature").split(QLatin1Char(','));
    if (readings.corrected)
        plot.table.captions.append(QStringLiteral("corrected"));
    for (const int number : plotted) {
        const overlay::LineTool& line = lines[number];
        const Points stored = profileOf(line, readings.stored, readings.unit.conversion);
        if (stored.empty())
            continue;
        plot.curves.push_back(curveOf(line.name, number, stored));
        profile.pixels.push_back(stored);
        Points corrected;
        if (readings.corrected) {
            corrected = profileOf(line, *readings.corrected, readings.unit.conversion);
            plot.curves.push_back(
                curveOf(QStringLiteral("%1 - %2").arg(line.name, readings.correctionName), number,
                        corrected));
            plot.curves.back().isDashed = true;
            profile.pixels.push_back(corrected);
        }
        const std::vector<QStringList> rows = profileRows(line.name, stored);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            plot.table.rows.push_back(QStringList{readings.file, letterOf(readings.unit.unit)} +
                                      rows[row]);
            if (readings.corrected)
                plot.table.rows.back().append(threeDecimals(corrected[row].value));
        }
    }
    return profile;
}

} // namespace analysis
