// SPDX-License-Identifier: MIT
#include "analysis/report/report.h"
#include "tests/analysis/report/report_pages.h"
#include "tests/analysis/sample_report.h"
#include "tests/support/test_run.h"
#include "tests/support/translation.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <memory>

using analysis::Report;
using testing::asPrinted;
using testing::dotsPerPoint;
using testing::halfMillimetre;
using testing::overlapping;
using testing::points;
using testing::Text;
using testing::words;

/// The texts of a report: which, where, and that they stand beside each other and are found.
class ReportTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void languagesAndUnits_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("unitIndex");
        for (const char* language : {"CH", "EN", "RU", "KO"}) {
            for (const int unitIndex : {0, 1})
                QTest::addRow("%s %s", language, unitIndex == 0 ? "°C" : "°F")
                    << language << unitIndex;
        }
    }
    void languagesAndUnits()
    {
        QFETCH(QString, language);
        QFETCH(int, unitIndex);
        const testing::Translation installed(":/Demo_" + language + ".qm"); // Chinese has none
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
        const QVector<Text> first = testing::firstPage(language, report);
        const auto printed = asPrinted(first, language, m_folder->filePath("printed.pdf"));
        for (int i = 0; i < first.size(); ++i) {
            QVERIFY2(std::abs(printed[i].first().box.left() - points(first[i].x)) < halfMillimetre,
                     qPrintable(first[i].text));
            QVERIFY2(testing::stands(pages[0], first[i].text, printed[i].first().box),
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
            QVERIFY2(testing::stands(pages[1], second[i].text, printedTable[i].first().box),
                     qPrintable(second[i].text));
        QVector<double> lefts;
        for (int row = -1; row < 20; ++row) {
            const QRectF start = printedTable[row + 2].first().box;
            QVector<testing::PdfWord> line;
            for (const testing::PdfWord& word : pages[1]) {
                if (std::abs(word.box.bottom() - start.bottom()) < halfMillimetre)
                    line.append(word);
            }
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

    void titlesAreBold()
    {
        const testing::Translation installed(":/Demo_EN.qm");
        const QString path = m_folder->filePath("report.pdf");
        QVERIFY(analysis::writeReport(testing::sampleReport("EN", 0, 3), path));
        const auto pages = testing::pdfWords(path);
        const testing::Words w = words("EN");
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
        const testing::Translation installed(":/Demo_EN.qm");
        Report report = testing::sampleReport("EN", 0, 3);
        const QString path = m_folder->filePath("report.pdf");
        for (const int index : {-1, 2}) {
            report.unitIndex = index;
            QVERIFY(analysis::writeReport(report, path));
            QVERIFY(testing::pdfText(path).contains(words("EN").measurements + "(°F)"));
        }
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
        const testing::Translation installed(":/Demo_" + language + ".qm"); // Chinese has none
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
};

int main(int argc, char** argv)
{
    return testing::run<ReportTest>(argc, argv);
}

#include "report_test.moc"
