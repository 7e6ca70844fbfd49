// SPDX-License-Identifier: MIT
#include "tests/analysis/sample_report.h"

#include "analysis/photograph/false_colour.h"
#include "analysis/report/report_overlay.h"
#include "tests/overlay/overlay_host.h"

#include <QHash>
#include <QStringList>

#include <cmath>

namespace testing {

SampleTools::SampleTools()
{
    pointList = {{QStringLiteral("P0"), 120, 190}};
    lineList = {{QStringLiteral("L0"), 30, 60, 100, 130}};
    rectList = {{QStringLiteral("R0"), 140, 200, 200, 260}};
    circleList = {{QStringLiteral("C0"), 80, 240, 80, 270, 30}};
    markerA = {85, 110};
    markerB = {170, 230};
    markerC = {120, 160};
}

analysis::Report sampleReport(const QString& language, int unitIndex, int toolCount)
{
    const auto degrees = [unitIndex](double celsius) {
        return QString::number(unitIndex == 0 ? celsius : celsius * 1.8 + 32, 'f', 1);
    };
    analysis::Report report;
    report.language = language;
    report.unitIndex = unitIndex;
    report.conversion = unitIndex == 0 ? analysis::unchanged : analysis::toFahrenheit;
    report.maximum10 = 525;
    report.minimum10 = 200;
    report.information = {QStringLiteral("IR_00042.bmp"),
                          QStringLiteral("301.3 KB"),
                          QStringLiteral("2024/05/17 09:41"),
                          QStringLiteral("0.95"),
                          QStringLiteral("240×320"),
                          unitIndex == 0 ? QStringLiteral("°C") : QStringLiteral("°F"),
                          degrees(31.4),
                          degrees(52.5),
                          degrees(20.0),
                          degrees(27.3)};

    // Sensor noise is what makes pictures large.
    quint32 noise = 1;
    QImage picture = grayPicture();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            noise = noise * 1664525U + 1013904223U;
            uchar& pixel = picture.scanLine(y)[x];
            pixel = uchar(qBound(0, pixel + int(noise >> 30U) - 2, 255));
        }
    }
    const std::array<QRgb, 256> iron = ironPalette();
    picture.reinterpretAsFormat(QImage::Format_Indexed8);
    picture.setColorTable(QVector<QRgb>(iron.begin(), iron.end()));
    report.picture = picture.convertToFormat(QImage::Format_RGB888);

    analysis::Palette palette;
    for (std::size_t i = 0; i < palette.size(); ++i)
        palette[i] = {uchar(qRed(iron[i])), uchar(qGreen(iron[i])), uchar(qBlue(iron[i]))};
    report.colourStrip = analysis::colourStrip(palette);

    const SampleTools tools;
    report.overlay = analysis::reportOverlay(tools, tools, report.picture.size());

    const QHash<QString, QStringList> kinds{
        {"CH", {"点", "线", "矩形", "圆"}},
        {"EN", {"Point", "Line", "Rectangle", "Circle"}},
        {"RU", {"Точка", "Линия", "Прямоугольник", "Круг"}},
        {"KO", {"점", "선", "사각형", "원"}},
    };
    const std::array<QString, 4> letters{QStringLiteral("P"), QStringLiteral("L"),
                                         QStringLiteral("R"), QStringLiteral("C")};
    for (int k = 0; k < toolCount; ++k) {
        const auto kind = std::size_t(k * 4 / std::max(toolCount, 1));
        report.tools.push_back({letters[kind] + QString::number(k), kinds[language].at(int(kind)),
                                degrees(50.0 - 0.1 * k), degrees(21.0 + 0.1 * k),
                                degrees(30.0 + 0.1 * k)});
    }
    return report;
}

} // namespace testing
