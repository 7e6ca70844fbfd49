// SPDX-License-Identifier: MIT
#include "analysis/report/report_canvas.h"

#include "analysis/report/report_font.h"

#include <QPainter>

namespace analysis {
namespace {

constexpr QSize pictureSize(720, 960);
constexpr QSize stripSize(60, 960);
constexpr QPoint picturePlace(210, 0);
constexpr QPoint stripPlace(80, 0);
constexpr int scaleTextSize = 23;
constexpr int scaleSteps = 10;
constexpr int scaleStepHeight = 96;

void drawScaled(QPainter& painter, const QPoint& place, const QImage& image, const QSize& size,
                Qt::AspectRatioMode aspect, Qt::TransformationMode mode)
{
    if (!image.isNull())
        painter.drawImage(place, image.scaled(size, aspect, mode));
}

} // namespace

std::vector<ScaleText> reportScale(qint16 maximum10, qint16 minimum10, Conversion conversion)
{
    const float maximum = shownTenths(maximum10, conversion);
    const float minimum = shownTenths(minimum10, conversion);
    const float span = float(maximum10 - minimum10) / conversion.scale + conversion.offset;
    const float step = span / float(scaleSteps);
    std::vector<ScaleText> texts;
    const auto add = [&texts](float value, int y) {
        texts.push_back({value < 100.0F ? 10 : 0, y, oneDecimal(double(value))});
    };
    add(maximum, 20);
    for (int k = 1; k < scaleSteps; ++k) {
        const float below = float(k) * step;
        add(maximum - below, scaleStepHeight * k);
    }
    add(minimum, 955);
    return texts;
}

QImage reportCanvas(const Report& report)
{
    QImage canvas(canvasSize, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    drawScaled(painter, picturePlace, report.picture, pictureSize, Qt::KeepAspectRatio,
               Qt::SmoothTransformation);
    drawScaled(painter, picturePlace, report.overlay, pictureSize, Qt::KeepAspectRatio,
               Qt::SmoothTransformation);
    drawScaled(painter, stripPlace, report.colourStrip, stripSize, Qt::IgnoreAspectRatio,
               Qt::FastTransformation);
    painter.setFont(reportFont(scaleTextSize, QFont::Bold, report.language));
    const QString tick = QStringLiteral("-");
    for (int k = 0; k < scaleSteps; ++k)
        painter.drawText(65, scaleStepHeight * k, tick);
    painter.drawText(65, 965, tick);
    for (const ScaleText& text : reportScale(report.maximum10, report.minimum10, report.conversion))
        painter.drawText(text.x, text.y, text.text);
    return canvas;
}

} // namespace analysis
