#include "analysis/report.h"

#include "config/language.h"
#include "files/whole_file.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QHash>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QRawFont>
#include <QRegularExpression>

#include <algorithm>

namespace analysis {
namespace {

constexpr int resolution = 1200;
constexpr qreal marginPoints = 10;

constexpr QSize canvasSize(930, 960);
constexpr QSize pictureSize(720, 960);
constexpr QSize stripSize(60, 960);
constexpr QPoint picturePlace(210, 0);
constexpr QPoint stripPlace(80, 0);
constexpr int scaleTextSize = 23;
constexpr int scaleSteps = 10;
constexpr int scaleStepHeight = 96;

constexpr int textSize = 150;
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

struct Place
{
    int captionX;
    int valueX;
};

struct Field
{
    const char* caption;
    InformationRow row;
    Place place;
    Place widePlace; ///< behind wide captions
    int y;
};

/// What stands where on the first page, line by line. Values behind wide captions stand as far
/// behind their captions as these are long, unevenly; the last caption makes way for the value in
/// front of it.
constexpr std::array<Field, 10> fields{{
    {QT_TRANSLATE_NOOP("Analysis_Widget", "时间:"),
     InformationRow::Created,
     {600, 1700},
     {600, 2300},
     1200},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "文件名称:"),
     InformationRow::FileName,
     {600, 1700},
     {600, 2300},
     1500},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "文件大小:"),
     InformationRow::FileSize,
     {4100, 5200},
     {4100, 6100},
     1500},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "大小:"),
     InformationRow::Resolution,
     {600, 1700},
     {600, 2300},
     1800},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "发射率:"),
     InformationRow::Emissivity,
     {4100, 5200},
     {4100, 8000},
     1800},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "单位:"),
     InformationRow::Unit,
     {600, 1700},
     {600, 2300},
     2100},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "中心温度:"),
     InformationRow::Centre,
     {600, 2300},
     {600, 3300},
     2700},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "平均温度:"),
     InformationRow::Mean,
     {4100, 5800},
     {4100, 7400},
     2700},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "最高温度:"),
     InformationRow::Maximum,
     {600, 2300},
     {600, 4300},
     3000},
    {QT_TRANSLATE_NOOP("Analysis_Widget", "最低温度:"),
     InformationRow::Minimum,
     {4100, 5800},
     {5000, 7800},
     3000},
}};

constexpr std::array<const char*, std::tuple_size_v<ToolCells>> toolHeader{
    QT_TRANSLATE_NOOP("Analysis_Widget", "名称"), QT_TRANSLATE_NOOP("Analysis_Widget", "类型"),
    QT_TRANSLATE_NOOP("Analysis_Widget", "高"), QT_TRANSLATE_NOOP("Analysis_Widget", "低"),
    QT_TRANSLATE_NOOP("Analysis_Widget", "平均")};

QString translated(const char* text)
{
    return QCoreApplication::translate(context, text);
}

/// The established family first, then one that covers all four languages where that is missing.
/// Shaping would only swap digits for others of the same look, which no search finds any more.
QFont reportFont(int pixelSize, int weight, const QString& language)
{
    QFont font;
    font.setFamilies({QStringLiteral("Microsoft YaHei"), config::languageOf(language).font});
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

void drawScaled(QPainter& painter, const QPoint& place, const QImage& image, const QSize& size,
                Qt::AspectRatioMode aspect, Qt::TransformationMode mode)
{
    if (!image.isNull())
        painter.drawImage(place, image.scaled(size, aspect, mode));
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

    void paint()
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
    }

    /// Every character that went onto the pages.
    const QString& drawnText() const { return m_drawn; }

private:
    using Row = std::vector<ToolCells>::const_iterator;
    /// Where each column's texts start, and at last where a further column's would.
    using Edges = std::array<int, std::tuple_size_v<ToolCells> + 1>;

    void paintInformation()
    {
        heading(translated(QT_TRANSLATE_NOOP("Analysis_Widget", "图像信息")));
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            const auto [captionX, valueX] = place(*field);
            const auto next = field + 1;
            const bool shared = next != fields.end() && next->y == field->y;
            const int end = shared ? place(*next).captionX - textGap : m_right;
            text(captionX, field->y, translated(field->caption), valueX - captionX - textGap);
            text(valueX, field->y, m_report.information[std::size_t(field->row)], end - valueX);
        }
        rule(pictureRuleTop);
        const QSize room(m_right - canvasPlace.x(), m_bottom - canvasPlace.y());
        m_painter.drawImage(QRect(canvasPlace, canvasSize.scaled(room, Qt::KeepAspectRatio)),
                            reportCanvas(m_report));
    }

    const Place& place(const Field& field) const
    {
        return config::languageOf(m_report.language).hasWideCaptions ? field.widePlace
                                                                     : field.place;
    }

    void paintTools(Row first, Row last)
    {
        heading(translated(QT_TRANSLATE_NOOP("Analysis_Widget", "测温信息")) +
                (m_report.unitIndex == 0 ? QStringLiteral("(°C)") : QStringLiteral("(°F)")));
        ToolCells header;
        std::transform(toolHeader.begin(), toolHeader.end(), header.begin(), translated);
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
        const QFontMetrics metrics(font(textSize, QFont::Normal), &m_device);
        const QFontMetrics headerMetrics(font(textSize, QFont::Bold), &m_device);
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
        QFont fitting = font(textSize, weight);
        const int width = QFontMetrics(fitting, &m_device).horizontalAdvance(text);
        if (width > room) {
            fitting.setPixelSize(std::max(textSize * room / width, smallestTextSize));
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

quint32 glyphOf(const QRawFont& font, QChar character)
{
    quint32 glyph = 0;
    int count = 1;
    return font.glyphIndexesForChars(&character, 1, &glyph, &count) ? glyph : 0;
}

/// Qt's PDF engine names every embedded glyph after the first character that has it. Fonts for
/// Chinese share glyphs between words and radicals, so a reader that searches for 大小 would find
/// nothing: the file says ⼤⼩ (U+2F24, U+2F29). This names them as they were written. All names
/// have four digits, so nothing in the file moves. Where Qt writes its tables in another way one
/// day, they stay as Qt writes them.
void nameGlyphsAsWritten(QByteArray& pdf, const QString& written, const QFont& font)
{
    const QRawFont rawFont = QRawFont::fromFont(font);
    QHash<quint32, QChar> byGlyph;
    for (const QChar character : written)
        byGlyph.insert(glyphOf(rawFont, character), character);

    // One glyph after another: <first> <last> [<name> <name> …], or <glyph> <glyph> <name>.
    static const QRegularExpression ranges(QStringLiteral(
        R"(<[0-9A-F]{4}> <[0-9A-F]{4}> \[[^]]*\]|<([0-9A-F]{4})> <\1> <[0-9A-F]{4}>)"));
    static const QRegularExpression name(QStringLiteral("<([0-9A-F]{4})>"));
    constexpr int twoGlyphs = 14; // "<0001> <0004> "

    const QByteArray begin("beginbfrange");
    const QByteArray end("endbfrange");
    for (int from = pdf.indexOf(begin); from >= 0; from = pdf.indexOf(begin, from + 1)) {
        const int to = pdf.indexOf(end, from);
        if (to < 0)
            return;
        const QString table = QString::fromLatin1(pdf.mid(from, to - from));
        for (auto range = ranges.globalMatch(table); range.hasNext();) {
            const QRegularExpressionMatch entry = range.next();
            for (auto names = name.globalMatch(entry.captured().mid(twoGlyphs)); names.hasNext();) {
                const QRegularExpressionMatch old = names.next();
                const QChar first(ushort(old.captured(1).toUShort(nullptr, 16)));
                if (written.contains(first))
                    continue;
                const QChar character = byGlyph.value(glyphOf(rawFont, first), first);
                pdf.replace(from + entry.capturedStart() + twoGlyphs + old.capturedStart(1), 4,
                            QByteArray::number(character.unicode(), 16).rightJustified(4, '0'));
            }
        }
    }
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

void paintReport(const Report& report, QPagedPaintDevice& device)
{
    Sheets(report, device).paint();
}

QByteArray reportPdf(const Report& report)
{
    QByteArray pdf;
    QString written;
    {
        QBuffer buffer(&pdf);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(resolution);
        writer.setPageLayout(
            QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                        QMarginsF(marginPoints, marginPoints, marginPoints, marginPoints)));
        writer.setTitle(report.information[std::size_t(InformationRow::FileName)]);
        writer.setCreator(QStringLiteral("Therma Desk"));
        Sheets sheets(report, writer);
        sheets.paint();
        written = sheets.drawnText();
    }
    nameGlyphsAsWritten(pdf, written, reportFont(textSize, QFont::Normal, report.language));
    return pdf;
}

bool writeReport(const Report& report, const QString& path)
{
    files::WholeFile file(path, files::Existing::Replace);
    return file.open().isGood() && file.write(reportPdf(report)).isGood() && file.finish().isGood();
}

} // namespace analysis
