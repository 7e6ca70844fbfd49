// SPDX-License-Identifier: MIT
#include "plots/plot_files.h"

#include "plots/chart.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <qwt_plot_renderer.h>

namespace plots {
namespace {

constexpr int scale = 2;
constexpr double inch = 0.0254; // m
constexpr int pointsPerInch = 72;
constexpr int pdfResolution = 1200; // dots per inch

/// Takes the cursor away for as long as it is drawn for others.
class WithoutCursor
{
public:
    explicit WithoutCursor(Chart& chart) : m_chart(chart), m_place(chart.cursor())
    {
        m_chart.setCursor({});
    }
    ~WithoutCursor() { m_chart.setCursor(m_place); }
    WithoutCursor(const WithoutCursor&) = delete;
    WithoutCursor& operator=(const WithoutCursor&) = delete;

private:
    Chart& m_chart;
    std::optional<Place> m_place;
};

void render(Chart& chart, QPaintDevice& device, const QSizeF& size)
{
    const WithoutCursor hidden(chart);
    QPainter painter(&device);
    painter.fillRect(QRectF(QPointF(), size), Qt::white);
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.render(&chart, &painter, QRectF(QPointF(), size));
}

} // namespace

QImage pictureOf(Chart& chart)
{
    if (chart.size().isEmpty())
        return {};
    QImage picture(chart.size() * scale, QImage::Format_RGB32);
    picture.setDotsPerMeterX(qRound(chart.logicalDpiX() * scale / inch));
    picture.setDotsPerMeterY(qRound(chart.logicalDpiY() * scale / inch));
    render(chart, picture, picture.size());
    return picture;
}

QByteArray pdfOf(Chart& chart)
{
    if (chart.size().isEmpty())
        return {};
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(chart.plot().title);
    writer.setResolution(pdfResolution);
    const QSizeF inches(double(chart.width()) / chart.logicalDpiX(),
                        double(chart.height()) / chart.logicalDpiY());
    writer.setPageSize(
        QPageSize(inches * pointsPerInch, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    render(chart, writer, inches * pdfResolution);
    return bytes;
}

} // namespace plots
