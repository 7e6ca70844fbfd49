// SPDX-License-Identifier: MIT
#include "analysis/report/report_canvas.h"
#include "tests/support/test_run.h"

#include <QPainter>

using analysis::Report;

namespace {

QStringList scaleTexts(qint16 maximum10, qint16 minimum10, analysis::Conversion conversion)
{
    QStringList texts;
    for (const analysis::ScaleText& text : analysis::reportScale(maximum10, minimum10, conversion))
        texts.append(text.text);
    return texts;
}

/// The part of the picture that is not transparent.
QRect inked(const QImage& picture, const QRect& within)
{
    QRect ink;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            if (picture.rect().contains(x, y) && qAlpha(picture.pixel(x, y)) > 127)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace

/// The picture of a report with its scale.
class ReportCanvasTest : public QObject
{
    Q_OBJECT

private slots:
    void canvasPutsEverythingTogether()
    {
        Report report;
        report.maximum10 = 1523;
        report.minimum10 = -104;
        report.picture = QImage(240, 320, QImage::Format_RGB888);
        report.picture.fill(Qt::blue);
        report.overlay = QImage(721, 960, QImage::Format_ARGB32_Premultiplied);
        report.overlay.fill(QColor(255, 0, 0));
        report.colourStrip = QImage(30, 256, QImage::Format_RGB32);
        report.colourStrip.fill(Qt::green);
        report.colourStrip.setPixel(0, 0, qRgb(255, 255, 0));
        const QImage canvas = analysis::reportCanvas(report);
        QCOMPARE(canvas.size(), QSize(930, 960));

        // The overlay is a little wider than three times the picture; fitted into the same box it
        // leaves the picture's last two lines free.
        QCOMPARE(canvas.pixel(210, 957), qRgb(255, 0, 0));
        QCOMPARE(canvas.pixel(929, 0), qRgb(255, 0, 0));
        QCOMPARE(canvas.pixel(210, 958), qRgb(0, 0, 255));
        QCOMPARE(canvas.pixel(929, 959), qRgb(0, 0, 255));
        QCOMPARE(qAlpha(canvas.pixel(209, 500)), 0);

        QCOMPARE(canvas.pixel(80, 0), qRgb(255, 255, 0));
        QCOMPARE(canvas.pixel(81, 3), qRgb(255, 255, 0));
        QCOMPARE(canvas.pixel(82, 0), qRgb(0, 255, 0));
        QCOMPARE(canvas.pixel(139, 959), qRgb(0, 255, 0));
        QCOMPARE(qAlpha(canvas.pixel(140, 500)), 0);
        QCOMPARE(qAlpha(canvas.pixel(2, 60)), 0);

        // Digits are about 17 high on a baseline at 20, then at every 96th line and at 955; ticks
        // stand a little above 96, 192, … and 965. Above 100 texts start ten pixels further left.
        const auto textInk = [&](int baseline) {
            return inked(canvas, QRect(0, baseline - 22, 64, 28));
        };
        const QRect top = textInk(20);
        QVERIFY(top.left() < 5);
        QVERIFY(std::abs(top.bottom() - 19) <= 1);
        QVERIFY(std::abs(top.height() - 17) <= 1);
        for (int k = 1; k <= 9; ++k) {
            const QRect ink = textInk(96 * k);
            QVERIFY(std::abs(ink.bottom() - (96 * k - 1)) <= 1);
            // 152.3 less 16.27 each: the fifth, 70.95, is the first below 100 after 87.22
            QCOMPARE(ink.left() >= 10, k > 3);
        }
        QVERIFY(std::abs(textInk(955).bottom() - 954) <= 1);
        const int below = inked(canvas, QRect(68, 81, 4, 15)).bottom() - 96;
        QVERIFY(below < -3);
        for (const int y : {96, 480, 864, 965}) {
            const QRect ink = inked(canvas, QRect(68, y - 15, 4, 15));
            QVERIFY(ink.isValid());
            QVERIFY(ink.height() <= 4);
            QCOMPARE(ink.bottom(), y + below);
        }
        QVERIFY(!inked(canvas, QRect(68, 866, 4, 80)).isValid());
    }

    void theScaleIsSetInBoldOf23Pixels()
    {
        Report report;
        report.maximum10 = 525; // 52.5, 49.25, 46, …
        report.minimum10 = 200;
        QImage expected(930, 960, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        QFont font;
        font.setFamilies({"Microsoft YaHei", "Noto Sans CJK SC"});
        font.setStyleStrategy(QFont::PreferNoShaping);
        font.setPixelSize(23);
        font.setWeight(75);
        painter.setFont(font);
        painter.drawText(10, 20, "52.5");
        painter.drawText(10, 955, "20.0");
        painter.drawText(65, 0, "-");
        painter.drawText(65, 965, "-");
        const QStringList texts{"49.3", "46.0", "42.8", "39.5", "36.3",
                                "33.0", "29.8", "26.5", "23.3"};
        for (int k = 1; k <= 9; ++k) {
            painter.drawText(10, 96 * k, texts[k - 1]);
            painter.drawText(65, 96 * k, "-");
        }
        painter.end();
        QCOMPARE(analysis::reportCanvas(report), expected);
    }

    void canvasOfAnEmptyReportHoldsOnlyTheScale()
    {
        testing::LogRecorder log;
        const QImage canvas = analysis::reportCanvas(Report());
        QCOMPARE(canvas.size(), QSize(930, 960));
        QVERIFY(!inked(canvas, QRect(85, 0, 845, 960)).isValid());
        QCOMPARE(log.messages(), QStringList());
    }

    void scale_data()
    {
        QTest::addColumn<int>("maximum10");
        QTest::addColumn<int>("minimum10");
        QTest::addColumn<float>("scale");
        QTest::addColumn<float>("offset");
        QTest::addColumn<QString>("texts");
        // 52.5 less 3.25 each; halves go up
        QTest::newRow("°C") << 525 << 200 << 10.0F << 0.0F
                            << "52.5 49.3 46.0 42.8 39.5 36.3 33.0 29.8 26.5 23.3 20.0";
        // 100 and 0 °C: 211.9856 less 21.19856 each, for the offset is part of the step
        QTest::newRow("°F") << 1000 << 0 << 5.556F << 32.0F
                            << "212.0 190.8 169.6 148.4 127.2 106.0 84.8 63.6 42.4 21.2 32.0";
        // 212 and 32 °F: 100.0 less (100.0 - 17.78) / 10 = 8.222 each; 320 / 18 is 17.7778
        QTest::newRow("°F file in °C") << 2120 << 320 << 18.0F << -17.78F
                                       << "100.0 91.8 83.6 75.3 67.1 58.9 50.7 42.4 34.2 26.0 -0.0";
        // 10.5 is exact; a tenth of 2.1 is not, and 2.1 - 5 × 0.21 falls just short of 1.05
        QTest::newRow("single precision")
            << 21 << 0 << 10.0F << 0.0F << "2.1 1.9 1.7 1.5 1.3 1.0 0.8 0.6 0.4 0.2 0.0";
        QTest::newRow("flat") << 300 << 300 << 10.0F << 0.0F
                              << "30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0";
        QTest::newRow("wide") << 30000 << -30000 << 10.0F << 0.0F
                              << "3000.0 2400.0 1800.0 1200.0 600.0 0.0 -600.0 -1200.0 -1800.0 "
                                 "-2400.0 -3000.0";
    }

    void scale()
    {
        QFETCH(int, maximum10);
        QFETCH(int, minimum10);
        QFETCH(float, scale);
        QFETCH(float, offset);
        QFETCH(QString, texts);
        QCOMPARE(scaleTexts(qint16(maximum10), qint16(minimum10), {scale, offset}).join(' '),
                 texts);
    }

    void scalePlaces()
    {
        // 100.0, then 99.96 and less: "100.0" twice, but only the first is a hundred.
        const auto texts = analysis::reportScale(1000, 996, analysis::unchanged);
        QCOMPARE(texts.size(), std::size_t(11));
        QCOMPARE(texts[0].text, QString("100.0"));
        QCOMPARE(texts[1].text, QString("100.0"));
        QCOMPARE(texts[0].x, 0);
        for (std::size_t k = 1; k < texts.size(); ++k)
            QCOMPARE(texts[k].x, 10);
        QCOMPARE(texts[0].y, 20);
        for (std::size_t k = 1; k < 10; ++k)
            QCOMPARE(texts[k].y, int(96 * k));
        QCOMPARE(texts[10].y, 955);
    }
};

int main(int argc, char** argv)
{
    return testing::run<ReportCanvasTest>(argc, argv);
}

#include "report_canvas_test.moc"
