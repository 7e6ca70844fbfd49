// SPDX-License-Identifier: MIT
#include "analysis/export/picture_export.h"
#include "analysis/photograph/false_colour.h"
#include "analysis/photograph/looking_texts.h"
#include "files/picture_file.h"
#include "overlay/tool_coordinates.h"
#include "overlay/tool_painting.h"
#include "tests/support/test_run.h"

#include <QPainter>

#include <limits>
#include <memory>

using namespace analysis;

namespace {

/// Gray runs from the left to the right edge, the palette from black to red.
std::unique_ptr<Photograph> sample()
{
    auto photograph = std::make_unique<Photograph>();
    for (std::size_t i = 0; i < photograph->gray.size(); ++i)
        photograph->gray[i] = uchar(i % 240);
    for (std::size_t i = 0; i < photograph->palette.size(); ++i)
        photograph->palette[i] = {uchar(i), 0, 0};
    photograph->parameters.maximum10 = 500;
    photograph->parameters.minimum10 = 200;
    photograph->temperatures.fill(25.0F);
    return photograph;
}

overlay::Tools someTools()
{
    overlay::Tools tools;
    for (const overlay::KindRow& row : overlay::toolKinds)
        addTool(tools, row.kind, numbersOfNew(row.kind), Qt::white);
    return tools;
}

int countOf(const QImage& image, const QRect& place, QRgb colour)
{
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

} // namespace

class PictureExportTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Photograph> photograph = sample();

    ShownPicture shown(const overlay::Tools& tools = {}, int start = 0, int end = 255) const
    {
        return shownPicture(*photograph, {}, tools, start, end);
    }

private slots:
    void thePictureAtEachScale_data()
    {
        QTest::addColumn<int>("scale");
        QTest::addColumn<QSize>("size");
        for (int scale = 1; scale <= 4; ++scale)
            QTest::addRow("%d", scale) << scale << QSize(240 * scale, 320 * scale);
        QTest::newRow("none") << 0 << QSize(240, 320);
        QTest::newRow("too large") << 5 << QSize(960, 1280);
    }
    void thePictureAtEachScale()
    {
        QFETCH(const int, scale);
        QFETCH(const QSize, size);
        PictureOptions options;
        options.scale = scale;
        options.hasColourBar = false;
        const QImage picture = exportedPicture(shown(), options);
        QCOMPARE(picture.size(), size);
        QVERIFY(!picture.hasAlphaChannel());
        // The middle of a column has its colour at every scale.
        const int factor = size.width() / 240;
        for (const int column : {20, 100, 200}) {
            const QRgb colour = picture.pixel(column * factor + factor / 2, 200 * factor);
            QVERIFY2(std::abs(qRed(colour) - column) <= 1, qPrintable(QString::number(column)));
        }
    }

    /// At once the picture's own pixels, and on them what the tools' own drawing draws.
    void toolsLieWhereTheyAre()
    {
        PictureOptions options;
        options.scale = 3;
        options.hasColourBar = false;
        const ShownPicture with = shown(someTools());
        const QImage picture = exportedPicture(with, options);
        QImage expected = falseColourPicture(*photograph, 0, 255)
                              .scaled(720, 960, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_RGB32);
        overlay::Sheet sheet;
        sheet.geometry = {721, 720, 960, 960};
        QPainter(&expected).drawImage(0, 0, overlay::paintedTools(with.tools, *photograph, sheet));
        QCOMPARE(picture, expected);
        QVERIFY(picture != exportedPicture(shown(), options));
    }

    /// A label with margins left and right, and one with margins above and below.
    void theSizeThatIsShown()
    {
        for (const overlay::Geometry& geometry :
             {overlay::Geometry{700, 450, 600, 600}, overlay::Geometry{480, 480, 801, 640}}) {
            const ShownPicture with = shown(someTools());
            const QImage picture = pictureWithTools(with, geometry);
            QCOMPARE(picture.size(), QSize(geometry.imageWidth, geometry.imageHeight));
            overlay::Sheet sheet;
            sheet.geometry = geometry;
            const QImage tools = overlay::paintedTools(with.tools, *photograph, sheet)
                                     .copy(geometry.labelWidth / 2 - geometry.imageWidth / 2,
                                           geometry.labelHeight / 2 - geometry.imageHeight / 2,
                                           geometry.imageWidth, geometry.imageHeight);
            // Wherever the tools are drawn without a doubt, the picture shows them.
            int drawn = 0;
            for (int y = 0; y < tools.height(); ++y) {
                for (int x = 0; x < tools.width(); ++x) {
                    if (qAlpha(tools.pixel(x, y)) != 255)
                        continue;
                    ++drawn;
                    QCOMPARE(picture.pixel(x, y), tools.pixel(x, y));
                }
            }
            QVERIFY(drawn > 100);
        }
        QVERIFY(pictureWithTools(shown(), {}).isNull());
    }

    void theSpanChangesColours()
    {
        PictureOptions options;
        options.scale = 1;
        options.hasColourBar = false;
        const QImage picture = exportedPicture(shown({}, 155, 255), options);
        QCOMPARE(qRed(picture.pixel(200, 200)), 100);
        QCOMPARE(qRed(picture.pixel(50, 200)), 50);
    }

    /// Beside the picture: the whole strip hottest at the top, and the two markers.
    void theColourBar()
    {
        PictureOptions options;
        options.scale = 2;
        options.hasColourBar = true;
        const QImage picture = exportedPicture(shown({}, 64, 192), options);
        QCOMPARE(picture.height(), 640);
        QVERIFY(picture.width() > 480 + 60 && picture.width() < 700);
        const int strip = 480 + 2 * 6 + 10; // in the strip
        QVERIFY(qRed(picture.pixel(strip, 2 * 16 + 4)) > 250);
        QVERIFY(qRed(picture.pixel(strip, 640 - 2 * 16 - 4)) < 5);
        const QRect beside(picture.width() - 2, 0, 2, 640);
        QCOMPARE(countOf(picture, beside, qRgb(255, 255, 255)), 2 * 640);
        // A marker has the colour of its step: 255 − 64 and 255 − 192.
        const int markers = 480 + 2 * (6 + 14) + 8;
        const int travel = 640 - 4 * 16;
        QCOMPARE(picture.pixel(markers, 32 + travel * 64 / 255), qRgb(191, 0, 0));
        QCOMPARE(picture.pixel(markers, 32 + travel * 192 / 255), qRgb(63, 0, 0));
    }

    /// The scale is the one of the colour bar in the window: other ends, other texts.
    void theTemperaturesFollowTheUnit()
    {
        const ShownPicture celsius = shown();
        QCOMPARE(celsius.topTemperature, 50.0F);
        QCOMPARE(celsius.bottomTemperature, 20.0F);
        const ShownPicture fahrenheit =
            shownPicture(*photograph, {Unit::Fahrenheit, toFahrenheit}, someTools(), 0, 255);
        QVERIFY(std::abs(fahrenheit.topTemperature - 122.0F) < 0.05F);
        QCOMPARE(fahrenheit.measured.size(), std::size_t(4));
        QCOMPARE(fahrenheit.measured.front()[2], QStringLiteral("77.0"));
        QCOMPARE(shown(someTools()).measured.front()[2], QStringLiteral("25.0"));
        PictureOptions options;
        QVERIFY(exportedPicture(celsius, options) != exportedPicture(fahrenheit, options));
    }

    void valuesStandBelow()
    {
        PictureOptions options;
        options.scale = 2;
        options.hasColourBar = false;
        const QImage without = exportedPicture(shown(someTools()), options);
        options.hasValues = true;
        const QImage with = exportedPicture(shown(someTools()), options);
        QVERIFY(with.height() >= 640 + 6 * 2 * 14);
        QCOMPARE(with.copy(0, 0, 480, 640), without);
        QVERIFY(countOf(with, {0, 642, with.width(), with.height() - 642}, qRgb(0, 0, 0)) > 200);
        // Nothing was measured: nothing stands below.
        QCOMPARE(exportedPicture(shown(), options).size(), QSize(480, 640));
    }

    void itsSizeIsKnownBefore()
    {
        for (const int scale : {0, 1, 2, 4, 9}) {
            for (const bool hasColourBar : {false, true}) {
                for (const bool hasValues : {false, true}) {
                    const PictureOptions options{scale, hasColourBar, hasValues};
                    QCOMPARE(exportedSize(shown(someTools()), options),
                             exportedPicture(shown(someTools()), options).size());
                }
            }
        }
    }

    /// Where it is 40 °C and more: in the lower half.
    void anIsothermIsColouredAndNamed()
    {
        const auto colder = sample();
        for (int x = 0; x < 240; ++x)
            std::fill_n(colder->temperatures.begin() + x * 320 + 160, 160, 40.0F);
        Isotherm isotherm;
        isotherm.side = Isotherm::Side::Inside;
        isotherm.from = 40;
        isotherm.to = 50;
        ShownPicture with = shownPicture(*colder, {}, {}, 0, 255);
        const QImage before = with.falseColours;
        addIsotherm(with, isotherm, colder->temperatures, {});
        QCOMPARE(with.falseColours.copy(0, 0, 240, 160), before.copy(0, 0, 240, 160));
        QCOMPARE(countOf(with.falseColours, {0, 160, 240, 160}, isothermColour), 240 * 160);
        QCOMPARE(with.isothermName, LookingTexts::nameOf(isotherm));
        PictureOptions options;
        options.scale = 1;
        const QImage picture = exportedPicture(with, options);
        QCOMPARE(picture.height(), 320 + 14 + 6);
        QVERIFY(countOf(picture, {0, 320, 40, 20}, isothermColour) > 40); // its key
        options.hasColourBar = false;
        QCOMPARE(exportedPicture(with, options).size(), QSize(240, 320));
        // In the unit that is shown.
        addIsotherm(with, isotherm, colder->temperatures, {Unit::Fahrenheit, toFahrenheit});
        QVERIFY(with.isothermName.contains(QStringLiteral("104.0 °F")));
    }

    /// A second table below the first, under its name.
    void correctedValuesStandBelowTheStoredOnes()
    {
        const auto corrected = sample();
        corrected->temperatures.fill(99.96F);
        std::fill_n(corrected->temperatures.begin(), 120 * 320, // the left half
                    std::numeric_limits<float>::quiet_NaN());
        overlay::Tools tools;
        addTool(tools, overlay::ToolKind::Point, {5, 5}, Qt::white);
        addTool(tools, overlay::ToolKind::Rect, {0, 0, 239, 319}, Qt::white);
        ShownPicture both = shown(tools);
        const QString name = QString(60, QLatin1Char('W'));
        addCorrected(both, name, corrected->temperatures, unchanged);
        QCOMPARE(both.corrected.size(), std::size_t(2));
        QCOMPARE(both.measured, shown(tools).measured);
        QCOMPARE(both.corrected[0], (ToolCells{"P0", both.measured[0][1], "-", "-", "-"}));
        QCOMPARE(both.corrected[1],
                 (ToolCells{"R0", both.measured[1][1], "100.0", "100.0", "100.0"}));
        PictureOptions options;
        options.scale = 1;
        options.hasColourBar = false;
        QCOMPARE(exportedPicture(both, options), exportedPicture(shown(tools), options));
        options.hasValues = true;
        const QImage without = exportedPicture(shown(tools), options);
        const QImage with = exportedPicture(both, options);
        QCOMPARE(with.height(), without.height() + 4 * 14);
        QCOMPARE(with.copy(0, 0, 240, 320), without.copy(0, 0, 240, 320));
        QVERIFY(with.width() > without.width()); // the name is not cut
        const QRect edge(with.width() - 3, 0, 3, with.height());
        QCOMPARE(countOf(with, edge, qRgb(255, 255, 255)), 3 * with.height());
    }

    /// A word that is longer than the picture is wide is not cut.
    void longTextsWidenTheSheet()
    {
        ShownPicture wide = shown(someTools());
        wide.measured.front()[1] = QString(80, QLatin1Char('W'));
        PictureOptions options;
        options.scale = 1;
        options.hasValues = true;
        const QImage picture = exportedPicture(wide, options);
        QVERIFY(picture.width() > 400);
        const QRect edge(picture.width() - 3, 0, 3, picture.height());
        QCOMPARE(countOf(picture, edge, qRgb(255, 255, 255)), 3 * picture.height());
    }

    void theBytesAreThePicture()
    {
        const QImage picture = exportedPicture(shown(someTools()), {});
        const QByteArray bytes = files::encoded(picture, "png");
        QVERIFY(bytes.startsWith("\x89PNG"));
        QCOMPARE(QImage::fromData(bytes).convertToFormat(picture.format()), picture);
    }
};

int main(int argc, char** argv)
{
    return testing::run<PictureExportTest>(argc, argv);
}

#include "picture_export_test.moc"
