// SPDX-License-Identifier: MIT
#include "analysis/export/picture_export.h"

#include "analysis/photograph/area.h"
#include "analysis/photograph/details.h"
#include "analysis/photograph/false_colour.h"
#include "analysis/photograph/looking_texts.h"
#include "analysis/report/report_font.h"
#include "overlay/colour_bar_scale.h"
#include "overlay/tool_painting.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <array>

using overlay::Geometry;

namespace analysis {
namespace {

// Extents at a scale of 1, in pixels.
constexpr int textSize = 9;
constexpr int gap = 6;
constexpr int stripWidth = 14;
constexpr int markerWidth = 8;
constexpr int markerHalfHeight = 5;
constexpr int barMargin = 16; ///< above the strip, where the unit stands, and below it
constexpr int rowHeight = 14;

/// The widest temperature that the bar has room for.
const QLatin1String widestTemperature("-8888.8");

/// The one pixel more makes margins, without which a conversion to the sheet rounds differently.
Geometry geometryAt(int scale)
{
    const int width = overlay::imageColumns * scale;
    const int height = overlay::imageRows * scale;
    return {width + 1, width, height, height};
}

QString headingOf(const ShownPicture& shown)
{
    return QCoreApplication::translate("Analysis_Widget", "测温信息") +
           QStringLiteral("(%1)").arg(signOf(shown.unit));
}

/// One picture on its way to the sheet.
class Composition
{
public:
    Composition(const ShownPicture& shown, const PictureOptions& options)
        : m_shown(shown), m_scale(std::clamp(options.scale, 1, PictureOptions::largestScale)),
          m_picture(overlay::imageColumns * m_scale, overlay::imageRows * m_scale),
          m_font(reportFont(textSize * m_scale, QFont::Normal, shown.language)),
          m_boldFont(reportFont(textSize * m_scale, QFont::Bold, shown.language)),
          m_hasColourBar(options.hasColourBar),
          m_hasIsotherm(options.hasColourBar && !shown.isothermName.isEmpty()),
          m_hasValues(options.hasValues && !shown.measured.empty())
    {
    }

    QSize size() const
    {
        QSize size = m_picture;
        if (m_hasColourBar)
            size.rwidth() += barWidth();
        int rows = m_hasIsotherm ? 1 : 0;
        if (m_hasIsotherm)
            size.setWidth(std::max(size.width(), isothermWidth()));
        if (m_hasValues) {
            size.setWidth(std::max(size.width(), valuesWidth()));
            for (const auto* table : {&m_shown.measured, &m_shown.corrected})
                rows += table->empty() ? 0 : int(table->size()) + 2;
        }
        if (rows > 0)
            size.rheight() += at(rowHeight) * rows + at(gap);
        return size;
    }

    QImage paint() const
    {
        QImage sheet(size(), QImage::Format_RGB32);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawImage(0, 0, pictureWithTools(m_shown, geometryAt(m_scale)));
        if (m_hasColourBar)
            paintColourBar(painter);
        int top = m_picture.height() + at(gap) / 2;
        if (m_hasIsotherm)
            paintIsotherm(painter, top);
        if (m_hasValues)
            paintValues(painter, top, headingOf(m_shown), m_shown.measured);
        if (m_hasValues && !m_shown.corrected.empty())
            paintValues(painter, top, m_shown.correctionName, m_shown.corrected);
        return sheet;
    }

private:
    int at(int extent) const { return extent * m_scale; }

    int barWidth() const
    {
        return at(2 * gap + stripWidth + markerWidth + gap) +
               QFontMetrics(m_font).horizontalAdvance(widestTemperature);
    }

    QRect stripPlace() const
    {
        return {m_picture.width() + at(gap), at(barMargin), at(stripWidth),
                m_picture.height() - 2 * at(barMargin)};
    }

    void paintColourBar(QPainter& painter) const
    {
        const QRect strip = stripPlace();
        painter.drawImage(strip, m_shown.colourStrip);
        painter.setFont(m_font);
        painter.setPen(Qt::black);
        const int left = strip.left() + strip.width() + at(markerWidth + gap);
        const auto text = [&](int middle, const QString& words) {
            painter.drawText(
                QRect(left, middle - at(rowHeight) / 2, m_picture.width(), at(rowHeight)),
                Qt::AlignLeft | Qt::AlignVCenter, words);
        };
        text(strip.top() / 2 - m_scale, signOf(m_shown.unit));
        const auto temperatures =
            overlay::scaleTemperatures(m_shown.topTemperature, m_shown.bottomTemperature);
        for (std::size_t k = 0; k < temperatures.size(); ++k)
            text(strip.top() + strip.height() * int(k) / (overlay::scaleLabels - 1),
                 oneDecimal(double(temperatures[k])));
        for (const int value : {m_shown.startValue, m_shown.endValue})
            paintMarker(painter, overlay::paletteStep(value));
    }

    /// A triangle that points at its step of the strip and has its colour.
    void paintMarker(QPainter& painter, int step) const
    {
        const QRect strip = stripPlace();
        const QPoint tip(strip.left() + strip.width(),
                         strip.top() + strip.height() * step / (overlay::paletteSteps - 1));
        painter.setBrush(m_shown.colourStrip.pixelColor(0, step));
        painter.drawPolygon(QPolygon({tip, tip + QPoint(at(markerWidth), -at(markerHalfHeight)),
                                      tip + QPoint(at(markerWidth), at(markerHalfHeight))}));
    }

    int isothermWidth() const
    {
        return at(gap + stripWidth + gap + gap) +
               QFontMetrics(m_font).horizontalAdvance(m_shown.isothermName);
    }

    /// Its colour, and what it colours.
    void paintIsotherm(QPainter& painter, int& top) const
    {
        painter.setPen(Qt::black);
        painter.setFont(m_font);
        painter.fillRect(at(gap), top + at(rowHeight) / 4, at(stripWidth), at(rowHeight) / 2,
                         m_shown.isothermColour);
        painter.drawText(QRect(at(gap + stripWidth + gap), top, isothermWidth(), at(rowHeight)),
                         Qt::AlignLeft | Qt::AlignVCenter, m_shown.isothermName);
        top += at(rowHeight);
    }

    int valuesWidth() const
    {
        return std::max(columnEdges().back(),
                        at(gap) +
                            QFontMetrics(m_boldFont).horizontalAdvance(m_shown.correctionName)) +
               at(gap);
    }

    /// Where each column's texts start, and at last where a further column's would.
    std::array<int, std::tuple_size_v<ToolCells> + 1> columnEdges() const
    {
        std::array<int, std::tuple_size_v<ToolCells> + 1> edges{at(gap)};
        for (std::size_t column = 0; column + 1 < edges.size(); ++column) {
            int width = QFontMetrics(m_boldFont).horizontalAdvance(m_captions[column]);
            for (const auto* table : {&m_shown.measured, &m_shown.corrected}) {
                for (const ToolCells& row : *table)
                    width = std::max(width, QFontMetrics(m_font).horizontalAdvance(row[column]));
            }
            edges[column + 1] = edges[column] + width + at(2 * gap);
        }
        return edges;
    }

    void paintValues(QPainter& painter, int& top, const QString& heading,
                     const std::vector<ToolCells>& table) const
    {
        const auto edges = columnEdges();
        const auto row = [&](const ToolCells& cells, const QFont& font) {
            painter.setFont(font);
            for (std::size_t column = 0; column < cells.size(); ++column)
                painter.drawText(
                    QRect(edges[column], top, edges[column + 1] - edges[column], at(rowHeight)),
                    Qt::AlignLeft | Qt::AlignVCenter, cells[column]);
            painter.drawLine(edges.front(), top + at(rowHeight), edges.back() - at(gap),
                             top + at(rowHeight));
            top += at(rowHeight);
        };
        painter.setPen(Qt::black);
        painter.setFont(m_boldFont);
        painter.drawText(QRect(edges.front(), top, painter.window().width(), at(rowHeight)),
                         Qt::AlignLeft | Qt::AlignVCenter, heading);
        top += at(rowHeight);
        row(m_captions, m_boldFont);
        for (const ToolCells& cells : table)
            row(cells, m_font);
    }

    const ShownPicture& m_shown;
    const int m_scale;
    const QSize m_picture; ///< within the sheet
    const QFont m_font;
    const QFont m_boldFont;
    const ToolCells m_captions = toolCaptions();
    const bool m_hasColourBar;
    const bool m_hasIsotherm;
    const bool m_hasValues;
};

} // namespace

ShownPicture shownPicture(const Photograph& photograph, const ShownUnit& unit,
                          const overlay::Tools& tools, int startValue, int endValue)
{
    ShownPicture shown;
    shown.falseColours = falseColourPicture(photograph, startValue, endValue);
    shown.tools = tools;
    const overlay::Spots& spots = photograph;
    shown.spots = spots;
    shown.colourStrip = colourStrip(photograph.palette);
    shown.startValue = startValue;
    shown.endValue = endValue;
    shown.topTemperature = shownTenths(photograph.parameters.maximum10, unit.conversion);
    shown.bottomTemperature = shownTenths(photograph.parameters.minimum10, unit.conversion);
    shown.unit = unit.unit;
    for (const ToolRow& row : toolRows(tools, photograph.temperatures, unit.conversion))
        shown.measured.push_back(toolCells(row));
    return shown;
}

void addIsotherm(ShownPicture& shown, const Isotherm& isotherm, const Temperatures& temperatures,
                 const ShownUnit& unit)
{
    paint(isotherm, temperatures, unit, shown.falseColours);
    shown.isothermName = LookingTexts::nameOf(inUnit(isotherm, unit.unit));
    shown.isothermColour = isotherm.colour;
}

void addCorrected(ShownPicture& shown, const QString& correctionName, const Temperatures& corrected,
                  Conversion conversion)
{
    shown.correctionName = correctionName;
    shown.corrected = shown.measured;
    const std::vector<Area> areas = areasOf(shown.tools, corrected, conversion);
    for (std::size_t row = 0; row < areas.size(); ++row) {
        const std::optional<Details> details = detailsOf(areas[row]);
        const auto text = [&details](double value) {
            return details ? oneDecimal(value) : QStringLiteral("-");
        };
        const Details numbers = details.value_or(Details());
        ToolCells& cells = shown.corrected[row];
        cells[2] = text(numbers.high.value);
        cells[3] = text(numbers.low.value);
        cells[4] = text(numbers.mean);
    }
}

/// Where the picture lies on the label is how the label centres it.
QImage pictureWithTools(const ShownPicture& shown, const Geometry& geometry)
{
    const QSize size(geometry.imageWidth, geometry.imageHeight);
    if (size.isEmpty())
        return {};
    QImage picture =
        shown.falseColours.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    overlay::Sheet sheet;
    sheet.geometry = geometry;
    QPainter painter(&picture);
    painter.drawImage(geometry.imageWidth / 2 - geometry.labelWidth / 2,
                      geometry.imageHeight / 2 - geometry.labelHeight / 2,
                      overlay::paintedTools(shown.tools, shown.spots, sheet));
    return picture;
}

QImage exportedPicture(const ShownPicture& shown, const PictureOptions& options)
{
    return Composition(shown, options).paint();
}

QSize exportedSize(const ShownPicture& shown, const PictureOptions& options)
{
    return Composition(shown, options).size();
}

} // namespace analysis
