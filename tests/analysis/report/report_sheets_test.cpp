// SPDX-License-Identifier: MIT
#include "analysis/report/report.h"
#include "analysis/report/report_canvas.h"
#include "analysis/report/report_sheets.h"
#include "tests/analysis/report/report_pages.h"
#include "tests/analysis/sample_report.h"
#include "tests/support/folder.h"
#include "tests/support/test_run.h"

#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>
#include <memory>
#include <tuple>

using analysis::Report;
using testing::halfMillimetre;
using testing::points;
using testing::words;

namespace {

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

/// The sheets of a report: rules, table, picture, and how many there are.
class ReportSheetsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    /// The file that a printer makes of the same pages holds the same bytes, but for its dates.
    void aPrinterPaintsTheSamePages()
    {
        const Report report = testing::sampleReport("CH", 0, 20);
        {
            QPrinter printer(QPrinter::HighResolution);
            printer.setPageSize(QPrinter::A4);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(m_folder->filePath("printed.pdf"));
            printer.setCreator("Therma Desk");
            printer.setDocName("IR_00042.bmp");
            analysis::paintReport(report, printer);
        }
        QVERIFY(analysis::writeReport(report, m_folder->filePath("written.pdf")));
        const QRegularExpression names("(?s)(/CreationDate \\(.*?\\))|(beginbfrange.*?endbfrange)");
        const auto bare = [&](const QString& name) {
            const QByteArray bytes = testing::fileBytes(m_folder->filePath(name));
            return QString::fromLatin1(bytes.constData(), bytes.size()).remove(names);
        };
        QVERIFY(bare("printed.pdf").size() > 100'000);
        QVERIFY(bare("printed.pdf") == bare("written.pdf"));
    }

    void linesUnderTheTitleAndInTheTable()
    {
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(testing::sampleReport("CH", 0, 3), path));
        constexpr int resolution = 300;
        const auto dark = [&](const QImage& page, int x, int y) {
            const int px = qRound(points(x) / 72 * resolution);
            const int py = qRound(points(y) / 72 * resolution);
            int darkest = 255;
            for (int dy = -2; dy <= 2; ++dy)
                darkest = std::min(darkest, qGray(page.pixel(px, py + dy)));
            return darkest < 160;
        };
        const QImage first = testing::pdfPage(path, 1, resolution);
        QVERIFY(!dark(first, 560, 900));
        QVERIFY(dark(first, 610, 900));
        QVERIFY(dark(first, 5000, 900));
        const QImage second = testing::pdfPage(path, 2, resolution);
        for (int y = 1275; y <= 2475; y += 300) {
            QVERIFY(dark(second, 1410, y));
            QVERIFY(dark(second, 1820, y));
        }
        QVERIFY(!dark(second, 1820, 975));
        QVERIFY(!dark(second, 1820, 2775));
    }

    void rulesAreFivePixelsWide()
    {
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(testing::sampleReport("CH", 0, 3), path));
        constexpr int resolution = 2400; // ten rows of dots
        const auto thickness = [&](int page, int x, int y) {
            const QImage strip =
                testing::pdfPage(path, page, resolution,
                                 {qRound(points(x) / 72 * resolution),
                                  qRound(points(y) / 72 * resolution) - 30, 3, 60});
            int dark = 0;
            for (int row = 0; row < strip.height(); ++row)
                dark += qGray(strip.pixel(1, row)) < 128;
            return dark;
        };
        for (const auto& [page, x, y] :
             {std::tuple(1, 5000, 900), std::tuple(2, 5000, 900), std::tuple(2, 1410, 1275)}) {
            const int dots = thickness(page, x, y);
            QVERIFY2(std::abs(dots - 10) <= 1, qPrintable(QString::number(dots)));
        }
    }

    void chineseColumnsAreAsWideAsTheyAlwaysWere()
    {
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(testing::sampleReport("CH", 1, 4), path));
        const auto page = testing::pdfWords(path).at(1);
        for (int column = 0; column < 5; ++column) {
            const QString text = words("CH").header[column];
            const auto word = std::find_if(page.begin(), page.end(),
                                           [&](const auto& w) { return w.text == text; });
            QVERIFY(word != page.end());
            QVERIFY(std::abs(word->box.left() - points(1400 + 466 * column)) < halfMillimetre);
        }
    }

    void manyToolsGoOnToFurtherPages_data()
    {
        QTest::addColumn<int>("tools");
        QTest::addColumn<QVector<int>>("rows");
        QTest::newRow("none") << 0 << QVector<int>{0};
        QTest::newRow("a full page") << 38 << QVector<int>{38};
        QTest::newRow("one more") << 39 << QVector<int>{38, 1};
        QTest::newRow("60") << 60 << QVector<int>{38, 22};
        QTest::newRow("200") << 200 << QVector<int>{38, 38, 38, 38, 38, 10};
    }
    void manyToolsGoOnToFurtherPages()
    {
        QFETCH(int, tools);
        QFETCH(QVector<int>, rows);
        const QString path = m_folder->filePath("report.pdf");
        const Report report = testing::sampleReport("CH", 0, tools);
        QVERIFY(analysis::writeReport(report, path));
        const auto pages = testing::pdfWords(path);
        QCOMPARE(pages.size(), 1 + rows.size());
        std::size_t tool = 0;
        for (int page = 0; page < rows.size(); ++page) {
            QStringList found;
            for (const testing::PdfWord& word : pages[page + 1]) {
                found.append(word.text);
                QVERIFY(word.box.bottom() < points(13699 - 300));
            }
            QStringList expected{"测温信息(°C)"};
            expected += words("CH").header;
            for (int row = 0; row < rows[page]; ++row, ++tool) {
                for (const QString& cell : report.tools[tool])
                    expected.append(cell);
            }
            QCOMPARE(found, expected);
        }
        QCOMPARE(tool, report.tools.size());
    }

    void pictureStandsInItsPlaceWithItsShape()
    {
        const Report report = testing::sampleReport("EN", 0, 20);
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(report, path));

        // Inside the file it is the canvas, to the bit.
        const QVector<QImage> images = testing::pdfImages(path);
        QCOMPARE(images.size(), 1);
        const QImage canvas = analysis::reportCanvas(report).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(images[0].size(), QSize(930, 960));
        for (int y = 0; y < 960; ++y) {
            for (int x = 210; x < 930; ++x)
                QCOMPARE(images[0].pixel(x, y), canvas.pixel(x, y));
        }

        // On the page its corner is at (600, 3400) and both directions have one scale, which takes
        // the canvas to the end of the rule.
        constexpr int resolution = 300;
        const QImage page = testing::pdfPage(path, 1, resolution);
        const double scale = (9583 - 2 * 600) / 930.0;
        const auto onPage = [&](double x, double y) {
            return page.pixel(int(points(600 + x * scale) / 72 * resolution),
                              int(points(3400 + y * scale) / 72 * resolution));
        };
        for (const QPoint at : {QPoint(230, 20), QPoint(600, 300), QPoint(400, 700),
                                QPoint(910, 940), QPoint(100, 100), QPoint(100, 900)})
            QVERIFY2(difference(onPage(at.x(), at.y()), canvas.pixel(at)) < 12,
                     qPrintable(QString("%1 %2").arg(at.x()).arg(at.y())));
        // Its edges, within half a millimetre (2.2 pixels of the canvas).
        const QRgb white = qRgb(255, 255, 255);
        for (const int y : {300, 600}) {
            QVERIFY(difference(onPage(210 - 2.2, y), white) < 4);
            QVERIFY(difference(onPage(210 + 2.2, y), white) > 40);
            QVERIFY(difference(onPage(930 - 2.2, y), white) > 40);
            QVERIFY(difference(onPage(930 + 2.2, y), white) < 4);
        }
        QVERIFY(difference(onPage(500, -2.2), white) < 4);
        QVERIFY(difference(onPage(500, 2.2), white) > 40);
        QVERIFY(difference(onPage(500, 960 - 2.2), white) > 40);
        QVERIFY(difference(onPage(500, 960 + 2.2), white) < 4);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ReportSheetsTest>(argc, argv);
}

#include "report_sheets_test.moc"
