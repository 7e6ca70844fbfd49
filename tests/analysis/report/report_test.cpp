// SPDX-License-Identifier: MIT
#include "analysis/report/report.h"
#include "analysis/report/report_canvas.h"
#include "analysis/report/report_sheets.h"
#include "tests/analysis/pdf_reader.h"
#include "tests/analysis/sample_report.h"
#include "tests/support/test_run.h"

#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QTranslator>

#include <cmath>
#include <memory>
#include <tuple>

using analysis::Report;

namespace {

constexpr double halfMillimetre = 0.5 / 25.4 * 72.0; // points
constexpr double dotsPerPoint = 1200.0 / 72.0;
constexpr double margin = 10.0; // points

/// Device pixels of the page's painter to points of the page.
double points(double device)
{
    return margin + device / dotsPerPoint;
}

/// The texts of one language as its users read them.
struct Words
{
    QString imageInformation, time, fileName, fileSize, size, emissivity, unit, centre, average,
        maximum, minimum, measurements;
    QStringList header;
};

Words words(const QString& language)
{
    if (language == QLatin1String("EN"))
        return {"Image information",
                "Time:",
                "File name:",
                "File size:",
                "Size:",
                "Emissivity:",
                "Unit:",
                "Centre temperature:",
                "Average temperature:",
                "Maximum temperature:",
                "Minimum temperature:",
                "Measurement information",
                {"Name", "Type", "High", "Low", "Average"}};
    if (language == QLatin1String("RU"))
        return {"Данные снимка",
                "Время:",
                "Имя файла:",
                "Размер файла:",
                "Размер:",
                "Коэф. излучения:",
                "Единицы:",
                "Температура в центре:",
                "Средняя температура:",
                "Макс. температура:",
                "Мин. температура:",
                "Результаты измерений",
                {"Имя", "Тип", "Макс.", "Мин.", "Средн."}};
    if (language == QLatin1String("KO"))
        return {"이미지 정보",
                "시간:",
                "파일 이름:",
                "파일 크기:",
                "크기:",
                "방사율:",
                "단위:",
                "중심 온도:",
                "평균 온도:",
                "최고 온도:",
                "최저 온도:",
                "측정 정보",
                {"이름", "유형", "최고", "최저", "평균"}};
    return {"图像信息",
            "时间:",
            "文件名称:",
            "文件大小:",
            "大小:",
            "发射率:",
            "单位:",
            "中心温度:",
            "平均温度:",
            "最高温度:",
            "最低温度:",
            "测温信息",
            {"名称", "类型", "高", "低", "平均"}};
}

/// Installs the catalogue of a language while it lives; Chinese is the source language.
class Language
{
public:
    explicit Language(const QString& code)
    {
        if (code != QLatin1String("CH") && m_translator.load(":/Demo_" + code + ".qm"))
            QCoreApplication::installTranslator(&m_translator);
    }
    ~Language() { QCoreApplication::removeTranslator(&m_translator); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

private:
    QTranslator m_translator;
};

struct Text
{
    QString text;
    int x;
    int y;
    int weight = 50;
};

/// What stands on the first page, and where its baseline starts.
QVector<Text> firstPage(const QString& language, const Report& report)
{
    const Words w = words(language);
    const bool russian = language == QLatin1String("RU");
    const auto x = [russian](int standard, int inRussian) {
        return russian ? inRussian : standard;
    };
    return {
        {w.imageInformation, 600, 800, 75},
        {w.time, 600, 1200},
        {report.information[2], x(1700, 2300), 1200},
        {w.fileName, 600, 1500},
        {report.information[0], x(1700, 2300), 1500},
        {w.fileSize, 4100, 1500},
        {report.information[1], x(5200, 6100), 1500},
        {w.size, 600, 1800},
        {report.information[4], x(1700, 2300), 1800},
        {w.emissivity, 4100, 1800},
        {report.information[3], x(5200, 8000), 1800},
        {w.unit, 600, 2100},
        {report.information[5], x(1700, 2300), 2100},
        {w.centre, 600, 2700},
        {report.information[6], x(2300, 3300), 2700},
        {w.average, 4100, 2700},
        {report.information[9], x(5800, 7400), 2700},
        {w.maximum, 600, 3000},
        {report.information[7], x(2300, 4300), 3000},
        {w.minimum, x(4100, 5000), 3000}, // the maximum's value stands at 4300
        {report.information[8], x(5800, 7800), 3000},
    };
}

/// One text after another on pages of their own, by a printer: where a printer puts them.
QVector<QVector<testing::PdfWord>> asPrinted(const QVector<Text>& texts, const QString& language,
                                             const QString& path)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPrinter::A4);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    QPainter painter(&printer);
    for (const Text& text : texts) {
        QFont font;
        font.setFamilies(
            {"Microsoft YaHei", language == "KO" ? "Noto Sans CJK KR" : "Noto Sans CJK SC"});
        font.setStyleStrategy(QFont::PreferNoShaping);
        font.setPixelSize(150);
        font.setWeight(text.weight);
        painter.setFont(font);
        painter.drawText(text.x, text.y, text.text);
        printer.newPage();
    }
    painter.end();
    return testing::pdfWords(path);
}

/// True when the page holds the text with its first word's left edge and baseline at the place that
/// the printer gave it, within half a millimetre, and as wide as there: in its size and weight.
bool stands(const QVector<testing::PdfWord>& page, const QString& text, const QRectF& printed)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    for (int i = 0; i + parts.size() <= page.size(); ++i) {
        const QRectF box = page[i].box;
        if (std::abs(box.left() - printed.left()) > halfMillimetre ||
            std::abs(box.bottom() - printed.bottom()) > halfMillimetre ||
            std::abs(box.width() - printed.width()) > 0.2)
            continue;
        bool same = true;
        for (int k = 0; k < parts.size(); ++k)
            same = same && page[i + k].text == parts[k];
        if (same)
            return true;
    }
    return false;
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

class ReportTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void languagesAndUnits_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("unitIndex");
        for (const char* language : {"CH", "EN", "RU", "KO"})
            for (const int unitIndex : {0, 1})
                QTest::addRow("%s %s", language, unitIndex == 0 ? "°C" : "°F")
                    << language << unitIndex;
    }

    void languagesAndUnits()
    {
        QFETCH(QString, language);
        QFETCH(int, unitIndex);
        const Language installed(language);
        const Report report = testing::sampleReport(language, unitIndex, 20);
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(report, path));

        QCOMPARE(testing::pdfInfo(path, "Pages"), QString("2"));
        QVERIFY(testing::pdfInfo(path, "Page size").endsWith("(A4)"));
        QCOMPARE(testing::pdfInfo(path, "Title"), QString("IR_00042.bmp"));
        QVERIFY2(QFileInfo(path).size() <= 2'000'000, "a report is easy to send");

        const QStringList fonts = testing::pdfFonts(path);
        QVERIFY(!fonts.isEmpty());
        for (const QString& font : fonts) {
            const QStringList columns = font.simplified().split(' ');
            const QStringList flags = columns.mid(columns.size() - 5, 3); // emb, sub, uni
            QVERIFY2(flags.at(0) == "yes" && flags.at(2) == "yes", qPrintable(font));
        }

        const auto pages = testing::pdfWords(path);
        QCOMPARE(pages.size(), 2);
        const QVector<Text> first = firstPage(language, report);
        const auto printed = asPrinted(first, language, m_folder->filePath("printed.pdf"));
        for (int i = 0; i < first.size(); ++i) {
            QVERIFY2(std::abs(printed[i].first().box.left() - points(first[i].x)) < halfMillimetre,
                     qPrintable(first[i].text));
            QVERIFY2(stands(pages[0], first[i].text, printed[i].first().box),
                     qPrintable(first[i].text));
        }

        // The table: title, header and the first column where they belong, the others in order.
        QVector<Text> second{
            {words(language).measurements + (unitIndex == 0 ? "(°C)" : "(°F)"), 600, 800, 75}};
        second.append({words(language).header[0], 1400, 1500, 75});
        for (int row = 0; row < 20; ++row)
            second.append({report.tools[std::size_t(row)][0], 1400, 1800 + 300 * row});
        const auto printedTable =
            asPrinted(second, language, m_folder->filePath("printedTable.pdf"));
        for (int i = 0; i < second.size(); ++i)
            QVERIFY2(stands(pages[1], second[i].text, printedTable[i].first().box),
                     qPrintable(second[i].text));
        QVector<double> lefts;
        for (int row = -1; row < 20; ++row) {
            const QRectF start = printedTable[row + 2].first().box;
            QVector<testing::PdfWord> line;
            for (const testing::PdfWord& word : pages[1])
                if (std::abs(word.box.bottom() - start.bottom()) < halfMillimetre)
                    line.append(word);
            std::sort(line.begin(), line.end(),
                      [](const auto& a, const auto& b) { return a.box.left() < b.box.left(); });
            QCOMPARE(line.size(), 5);
            for (int column = 0; column < 5; ++column) {
                QCOMPARE(line[column].text,
                         row < 0 ? words(language).header[column]
                                 : report.tools[std::size_t(row)][std::size_t(column)]);
                if (lefts.size() == column)
                    lefts.append(line[column].box.left());
                QVERIFY(std::abs(line[column].box.left() - lefts[column]) < halfMillimetre);
            }
            QVERIFY(line.last().box.right() < points(8983));
        }
        for (int column = 1; column < 5; ++column)
            QVERIFY((lefts[column] - lefts[column - 1]) * dotsPerPoint > 466 - 24);

        QVERIFY(!overlapping(pages[0]));
        QVERIFY(!overlapping(pages[1]));
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
            const QByteArray bytes = fileBytes(m_folder->filePath(name));
            return QString::fromLatin1(bytes.constData(), bytes.size()).remove(names);
        };
        QVERIFY(bare("printed.pdf").size() > 100'000);
        QVERIFY(bare("printed.pdf") == bare("written.pdf"));
    }

    void textIsFoundAsItWasWritten()
    {
        // 大, 小, 文, 高 and 车, 长, 门 share their shapes with radicals in fonts for Chinese.
        Report report = testing::sampleReport("CH", 0, 20);
        report.information[0] = QStringLiteral("车间大门长风-2023高小.bmp");
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(report, path));
        const QString text = testing::pdfText(path);
        for (const QString& word : {QStringLiteral("文件名称:"), QStringLiteral("文件大小:"),
                                    QStringLiteral("最高温度:"), report.information[0]})
            QVERIFY2(text.contains(word), qPrintable(word));
        QCOMPARE(testing::pdfInfo(path, "Title"), report.information[0]);
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

    void titlesAreBold()
    {
        const Language installed("EN");
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(testing::sampleReport("EN", 0, 3), path));
        const auto pages = testing::pdfWords(path);
        const Words w = words("EN");
        const auto printed = asPrinted({{w.imageInformation, 600, 800, 75},
                                        {w.measurements, 600, 800, 75},
                                        {w.imageInformation, 600, 800, 50},
                                        {w.measurements, 600, 800, 50}},
                                       "EN", m_folder->filePath("printed.pdf"));
        for (int page = 0; page < 2; ++page) {
            const auto width = [](const testing::PdfWord& word) {
                return word.box.width();
            };
            const double bold = width(printed[page].first());
            QVERIFY(std::abs(width(printed[page + 2].first()) - bold) > 0.5);
            QVERIFY(std::abs(width(pages[page].first()) - bold) < 0.2);
        }
    }

    void withoutAChoiceOfUnitTheTableIsInFahrenheit()
    {
        const Language installed("EN");
        Report report = testing::sampleReport("EN", 0, 3);
        const QString path = m_folder->filePath("report.pdf");
        for (const int index : {-1, 2}) {
            report.unitIndex = index;
            QVERIFY(analysis::writeReport(report, path));
            QVERIFY(testing::pdfText(path).contains(words("EN").measurements + "(°F)"));
        }
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
        for (int y = 0; y < 960; ++y)
            for (int x = 210; x < 930; ++x)
                QCOMPARE(images[0].pixel(x, y), canvas.pixel(x, y));

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
            for (int row = 0; row < rows[page]; ++row, ++tool)
                for (const QString& cell : report.tools[tool])
                    expected.append(cell);
            QCOMPARE(found, expected);
        }
        QCOMPARE(tool, report.tools.size());
    }

    void longTextsKeepToTheirPlace_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("valueX");
        QTest::newRow("EN") << "EN" << 1700;
        QTest::newRow("RU") << "RU" << 2300;
    }

    void longTextsKeepToTheirPlace()
    {
        QFETCH(QString, language);
        QFETCH(int, valueX);
        const Language installed(language);
        Report report = testing::sampleReport(language, 1, 1);
        report.information[0] = QString("W").repeated(200) + ".bmp";
        report.tools[0][1] = QString("M").repeated(100);
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(report, path));
        const auto pages = testing::pdfWords(path);
        const auto name = std::find_if(pages[0].begin(), pages[0].end(),
                                       [](const auto& w) { return w.text.startsWith("WWW"); });
        QVERIFY(name != pages[0].end());
        QVERIFY(name->text.endsWith(".bmp"));
        QVERIFY(std::abs(name->box.left() - points(valueX)) < halfMillimetre);
        QVERIFY(name->box.right() < points(4100));
        QVERIFY(!overlapping(pages[0]));
        QVERIFY(!overlapping(pages[1]));
        for (const testing::PdfWord& word : pages[1])
            QVERIFY(word.box.right() < points(8983));
        QCOMPARE(testing::pdfInfo(path, "Title"), report.information[0]);

        // A little too long is only set smaller.
        report.information[0] = QString("W").repeated(17);
        QVERIFY(analysis::writeReport(report, path));
        QVERIFY(testing::pdfText(path).contains(report.information[0]));
        QVERIFY(!overlapping(testing::pdfWords(path)[0]));
    }

    void unknownLanguagesStandAsTheStandardDoes()
    {
        const Report report = testing::sampleReport("CH", 0, 4);
        const QString standard = m_folder->filePath("standard.pdf");
        QVERIFY(analysis::writeReport(report, standard));
        for (const QString& code : {QStringLiteral("ru"), QString(), QStringLiteral("XX")}) {
            Report other = report;
            other.language = code;
            const QString path = m_folder->filePath("other.pdf");
            QVERIFY(analysis::writeReport(other, path));
            const auto expected = testing::pdfWords(standard);
            const auto found = testing::pdfWords(path);
            QCOMPARE(found.size(), expected.size());
            for (int page = 0; page < found.size(); ++page) {
                QCOMPARE(found[page].size(), expected[page].size());
                for (int i = 0; i < found[page].size(); ++i)
                    QCOMPARE(found[page][i].box, expected[page][i].box);
            }
        }
    }

private:
    /// True when two words of a page lie over each other.
    static bool overlapping(const QVector<testing::PdfWord>& page)
    {
        for (int i = 0; i < page.size(); ++i)
            for (int k = i + 1; k < page.size(); ++k) {
                // The boxes include the font's line spacing; letters reach only about that far.
                const QRectF a = page[i].box.adjusted(0, 3, 0, -2);
                const QRectF b = page[k].box.adjusted(0, 3, 0, -2);
                if (a.intersects(b)) {
                    qWarning().noquote() << page[i].text << "over" << page[k].text;
                    return true;
                }
            }
        return false;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char** argv)
{
    return testing::run<ReportTest>(argc, argv);
}
#include "report_test.moc"
