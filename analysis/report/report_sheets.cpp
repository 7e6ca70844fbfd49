// SPDX-License-Identifier: MIT
#include "analysis/report/report_sheets.h"

#include "analysis/report/report_canvas.h"
#include "analysis/report/report_font.h"
#include "config/language.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace analysis {
namespace {

constexpr int smallestTextSize = 100; ///< a text longer than its room gets no smaller than this
constexpr int textGap = 45;           ///< what stays free at least between two texts of a line
constexpr int left = 600;             ///< also kept free on the right and at the bottom
constexpr int titleBaseline = 800;
constexpr int ruleTop = 900;
constexpr int pictureRuleTop = 3300;
constexpr QPoint canvasPlace(left, 3400);

constexpr int tableLeft = 1400;
constexpr int columnWidth = 466; ///< more where a text needs it
constexpr int rowHeight = 300;
constexpr int gridTop = 1275;
constexpr int headerBaseline = 1500;
constexpr int columnGap = 90; ///< at least, between a text and the next column

constexpr const char* context = "Analysis_Widget";

using Row = InformationRow;

struct Field
{
    const char* caption;
    Row row;
    int captionX, valueX;
    int wideCaptionX, wideValueX; ///< in languages with wide captions
    int y;
};

/// What stands where on the first page, line by line. Values behind wide captions stand as far
/// behind their captions as these are long, unevenly; the last caption makes way for the value in
/// front of it.
constexpr std::array<Field, 10> fields{{
    {QT_TRANSLATE_NOOP("Analysis_Widget", "时间:"), Row::Created, 600, 1700, 600, 2300, 1200},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "文件名称:"), Row::FileName, 600, 1700, 600, 2300, 1500},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "文件大小:"), Row::FileSize, 4100, 5200, 4100, 6100,
     1500},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "大小:"), Row::Resolution, 600, 1700, 600, 2300, 1800},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "发射率:"), Row::Emissivity, 4100, 5200, 4100, 8000,
     1800},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "单位:"), Row::Unit, 600, 1700, 600, 2300, 2100},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "中心温度:"), Row::Centre, 600, 2300, 600, 3300, 2700},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "平均温度:"), Row::Mean, 4100, 5800, 4100, 7400, 2700},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "最高温度:"), Row::Maximum, 600, 2300, 600, 4300, 3000},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "最低温度:"), Row::Minimum, 4100, 5800, 5000, 7800, 3000},
}};

QString translated(const char* text)
{
    return QCoreApplication::translate(context, text);
}

/// One report on its way to paper.
class Sheets
{
public:
    Sheets(const Report& report, QPagedPaintDevice& device)
        : m_report(report), m_device(device), m_painter(&device), m_right(device.width() - left),
          m_bottom(device.height() - left)
    {
        m_painter.setRenderHint(QPainter::LosslessImageRendering);
    }

    /// Returns every character that went onto the pages.
    QString paint()
    {
        paintInformation();
        auto first = m_report.tools.begin();
        do {
            m_device.newPage();
            const auto rest = m_report.tools.end() - first;
            const auto last = first + std::min<std::ptrdiff_t>(rest, rowsOnPage());
            paintTools(first, last);
            first = last;
        } while (first != m_report.tools.end());
        return m_drawn;
    }

private:
    using Cells = std::vector<ToolCells>::const_iterator;
    /// Where each column's texts start, and at last where a further column's would.
    using Edges = std::array<int, std::tuple_size_v<ToolCells> + 1>;

    void paintInformation()
    {
        heading(translated(QT_TRANSLATE_NOOP("Analysis_Widget", "图像信息")));
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            const auto [captionX, valueX] = place(*field);
            const auto next = field + 1;
            const bool shared = next != fields.end() && next->y == field->y;
            const int end = shared ? place(*next).first - textGap : m_right;
            text(captionX, field->y, translated(field->caption), valueX - captionX - textGap);
            text(valueX, field->y, m_report.information[std::size_t(field->row)], end - valueX);
        }
        rule(pictureRuleTop);
        const QSize room(m_right - canvasPlace.x(), m_bottom - canvasPlace.y());
        m_painter.drawImage(QRect(canvasPlace, canvasSize.scaled(room, Qt::KeepAspectRatio)),
                            reportCanvas(m_report));
    }

    /// Where caption and value start.
    std::pair<int, int> place(const Field& field) const
    {
        if (config::languageOf(m_report.language).hasWideCaptions)
            return {field.wideCaptionX, field.wideValueX};
        return {field.captionX, field.valueX};
    }

    void paintTools(Cells first, Cells last)
    {
        heading(translated(QT_TRANSLATE_NOOP("Analysis_Widget", "测温信息")) +
                QStringLiteral("(%1)").arg(
                    signOf(unitAt(m_report.unitIndex).value_or(Unit::Fahrenheit))));
        const ToolCells header = toolCaptions();
        const Edges edges = columns(header);
        row(headerBaseline, header, edges, QFont::Bold);
        int baseline = headerBaseline;
        for (auto cells = first; cells != last; ++cells)
            row(baseline += rowHeight, *cells, edges, QFont::Normal);

        for (int y = gridTop; y <= baseline + rowHeight; y += rowHeight)
            m_painter.drawLine(edges.front(), y, edges.back(), y);
    }

    /// The same on every page of the table.
    Edges columns(const ToolCells& header) const
    {
        const QFontMetrics metrics(font(reportTextSize, QFont::Normal), &m_device);
        const QFontMetrics headerMetrics(font(reportTextSize, QFont::Bold), &m_device);
        const int widest = (m_right - tableLeft) / int(header.size());
        Edges edges{tableLeft};
        for (std::size_t column = 0; column < header.size(); ++column) {
            int width = headerMetrics.horizontalAdvance(header[column]);
            for (const ToolCells& cells : m_report.tools)
                width = std::max(width, metrics.horizontalAdvance(cells[column]));
            edges[column + 1] = edges[column] + std::clamp(width + columnGap, columnWidth, widest);
        }
        return edges;
    }

    int rowsOnPage() const { return (m_bottom - gridTop) / rowHeight - 1; }

    void row(int baseline, const ToolCells& cells, const Edges& edges, int weight)
    {
        for (std::size_t column = 0; column < cells.size(); ++column)
            text(edges[column], baseline, cells[column],
                 edges[column + 1] - edges[column] - columnGap, weight);
    }

    /// Leaves the rule's pen set, which draws all lines.
    void heading(const QString& title)
    {
        text(left, titleBaseline, title, m_right - left, QFont::Bold);
        m_painter.setPen(QPen(Qt::black, 5, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        rule(ruleTop);
    }

    void rule(int y) { m_painter.drawLine(left, y, m_right, y); }

    /// A text that is longer than its room gets smaller and, if need be, loses its middle.
    void text(int x, int y, QString text, int room, int weight = QFont::Normal)
    {
        QFont fitting = font(reportTextSize, weight);
        const int width = QFontMetrics(fitting, &m_device).horizontalAdvance(text);
        if (width > room) {
            fitting.setPixelSize(std::max(reportTextSize * room / width, smallestTextSize));
            text = QFontMetrics(fitting, &m_device).elidedText(text, Qt::ElideMiddle, room);
        }
        m_painter.setFont(fitting);
        m_painter.drawText(x, y, text);
        m_drawn += text;
    }

    QFont font(int pixelSize, int weight) const
    {
        return reportFont(pixelSize, weight, m_report.language);
    }

    const Report& m_report;
    QPagedPaintDevice& m_device;
    QPainter m_painter;
    const int m_right; ///< where texts and lines end
    const int m_bottom;
    QString m_drawn;
};

} // namespace

QString paintReport(const Report& report, QPagedPaintDevice& device)
{
    return Sheets(report, device).paint();
}

} // namespace analysis
