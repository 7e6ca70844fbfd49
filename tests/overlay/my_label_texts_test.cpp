// SPDX-License-Identifier: MIT
#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/painted_description.h"
#include "tests/support/test_run.h"

#include <QPainter>

#include <array>
#include <cmath>

using namespace testing;

/// Where names, letters, spots and reticle stand, and that texts are whole.
class MyLabelTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void namesStandBesideTheirTools_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QPoint>("name");
        // Nine image pixels are 18. Column x stands at 20 + 2x, row y at 2y.
        const auto row = [](const char* title, QPoint from, QPoint to, QPoint name) {
            QTest::newRow(title) << QString(QLatin1Char(*title)) << from << to << name;
        };
        // Up to the middle: 3 right, 2 below. Beyond: 24 left, 21 above.
        row("P, left, above", {120, 160}, {}, {260 + 3, 320 + 2});
        row("P, right, above", {121, 160}, {}, {262 - 24, 320 + 2});
        row("P, left, below", {120, 161}, {}, {260 + 3, 322 - 21});
        row("P, right, below", {121, 161}, {}, {262 - 24, 322 - 21});
        // At a line's end; up to the middle without a distance.
        row("L, left, above", {200, 300}, {120, 160}, {260, 320});
        row("L, right, above", {20, 300}, {121, 160}, {262 - 24, 320});
        row("L, left, below", {200, 20}, {120, 161}, {260, 322 - 21});
        row("L, right, below", {20, 20}, {121, 161}, {262 - 24, 322 - 21});
        // At a rectangle's drag corner and a circle's centre; up to the label's middle: 4, 4.
        row("R, left, above", {200, 300}, {120, 160}, {260 + 4, 320 + 4});
        row("R, right, above", {20, 300}, {121, 160}, {262 - 24, 320 + 4});
        row("R, left, below", {200, 20}, {120, 161}, {260 + 4, 322 - 21});
        row("R, right, below", {20, 20}, {121, 161}, {262 - 24, 322 - 21});
        row("C, left, above", {120, 160}, {140, 160}, {260 + 4, 320 + 4});
        row("C, right, above", {121, 160}, {141, 160}, {262 - 24, 320 + 4});
        row("C, left, below", {120, 161}, {140, 161}, {260 + 4, 322 - 21});
        row("C, right, below", {121, 161}, {141, 161}, {262 - 24, 322 - 21});
    }

    void namesStandBesideTheirTools()
    {
        QFETCH(QString, kind);
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QPoint, name);
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        const auto place = [&](const QString& text) {
            if (kind == QLatin1String("P"))
                label.pointList = {{text, from.x(), from.y(), 9, red}};
            else if (kind == QLatin1String("L"))
                label.lineList = {{text, from.x(), from.y(), to.x(), to.y(), red}};
            else if (kind == QLatin1String("R"))
                label.rectList = {{text, from.x(), from.y(), to.x(), to.y(), red}};
            else
                label.circleList = {{text, from.x(), from.y(), to.x(), to.y(), 20, red}};
            return label.grab().toImage();
        };
        const QImage nameless = place({});
        const QImage named = place(kind + QStringLiteral("12"));
        QVERIFY(!changedArea(nameless, named).isEmpty());
        QFont font(QStringLiteral("Microsoft YaHei"));
        font.setWeight(50);
        font.setPixelSize(16); // nine tenths of 18
        const QImage expected =
            withText(nameless, label.devicePixelRatioF(), name, kind + QStringLiteral("12"), font);
        QCOMPARE(differingPixels(named, expected, named.rect()), 0);
    }

    /// On tall pictures names are larger than the box they are placed by: drawn whole all the same.
    void longNamesAreDrawnWhole_data()
    {
        QTest::addColumn<int>("scale");
        QTest::addColumn<QString>("name");
        QTest::newRow("P100 at four times") << 4 << QStringLiteral("P100");
        QTest::newRow("wide") << 2 << QStringLiteral("P10000000");
    }

    void longNamesAreDrawnWhole()
    {
        QFETCH(int, scale);
        QFETCH(QString, name);
        MyLabel label;
        const QSize picture(240 * scale, 320 * scale);
        prepare(label, picture + QSize(40, 0), picture);
        const auto drawn = [&](const QString& text) {
            label.lineList = {{text, 30, 30, 60, 50, red}};
            return label.grab().toImage();
        };
        const QImage nameless = drawn({});
        const QImage named = drawn(name);
        QFont font(QStringLiteral("Microsoft YaHei"));
        font.setWeight(50);
        font.setPixelSize(int(0.9 * 9 * scale));
        const QPoint place(20 + 60 * scale, 50 * scale);
        const double ratio = label.devicePixelRatioF();
        const QImage expected = withText(nameless, ratio, place, name, font);
        const QRect area = changedArea(nameless, expected);
        QVERIFY(area.right() >= int((place.x() + 60) * ratio) ||
                area.bottom() >= int((place.y() + 30) * ratio)); // the case is one
        QCOMPARE(differingPixels(named, expected, named.rect()), 0);
    }

    // Markers

    /// Each of the spots has its own letter, whole at every size.
    void theLettersOfTallPictures_data()
    {
        QTest::addColumn<QString>("letter");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("A") << QStringLiteral("L") << QColor(0, 255, 0);
        QTest::newRow("B") << QStringLiteral("H") << QColor(255, 0, 0);
    }

    void theLettersOfTallPictures()
    {
        QFETCH(QString, letter);
        QFETCH(QColor, colour);
        MyLabel label;
        prepare(label, {1000, 1280}, {960, 1280});
        const QImage plain = label.grab().toImage();
        (letter == QLatin1String("L") ? label.markerA : label.markerB) = {60, 50};
        QFont font(QStringLiteral("Microsoft YaHei"));
        font.setWeight(75);
        font.setPixelSize(41); // 2.6 times 16, cut off
        // column 60 stands at 260, row 50 at 200; the cross, 8 to each side, is not looked at
        const QPoint place(260 + 16 + 2, 200 - 2);
        const double ratio = label.devicePixelRatioF();
        const QImage expected = withText(plain, ratio, place, letter, font, colour);
        const QRect area(int(272 * ratio), int(150 * ratio), int(300 * ratio), int(200 * ratio));
        QVERIFY(differingPixels(plain, expected, area) > 100);
        QCOMPARE(differingPixels(label.grab().toImage(), expected, area), 0);
    }

    void theTwoSpots()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        label.markerA = {60, 50};
        label.markerB = {180, 250};
        Description description;
        description.picture = QRect(20, 0, 480, 640);
        // 4 image pixels are 8 of the label: arms from 4 to a pen's width away, two strokes each, a
        // pen's width to either side
        addSpot(description, {140, 100}, QColor(0, 255, 0));
        addSpot(description, {380, 500}, QColor(255, 0, 0));
        // letters of 20 pixels: 10 right of A; B lies in the right half, so 20 left of it
        description.unknown = {QRect(140 + 10, 100 - 2, 60, 30), QRect(380 - 20, 500 - 2, 16, 30)};
        const QImage image = label.grab().toImage();
        compare(image, label.devicePixelRatioF(), description);
        QVERIFY(holdsColour(image, label.devicePixelRatioF(), QRect(150, 98, 20, 30),
                            QColor(0, 255, 0)));
        QVERIFY(holdsColour(image, label.devicePixelRatioF(), QRect(360, 498, 16, 30),
                            QColor(255, 0, 0)));
    }

    void theLettersOfTheSpots_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("letter");
        QTest::addColumn<QRect>("area");
        // Four image pixels are 8, so letters have 20. Where the cross is, is not looked at.
        QTest::newRow("right") << 120 << 260 + 10 << QRect(266, 90, 60, 50);
        QTest::newRow("left") << 121 << 262 - 20 << QRect(230, 90, 26, 50);
    }

    void theLettersOfTheSpots()
    {
        QFETCH(int, column);
        QFETCH(int, letter);
        QFETCH(QRect, area);
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        const QImage plain = label.grab().toImage();
        QFont font(QStringLiteral("Microsoft YaHei"));
        font.setWeight(75);
        font.setPixelSize(20);
        const double ratio = label.devicePixelRatioF();
        const QRect pixels(int(area.x() * ratio), int(area.y() * ratio), int(area.width() * ratio),
                           int(area.height() * ratio));
        label.markerB = {qint16(column), 50};
        QImage expected = withText(plain, ratio, {letter, 98}, QStringLiteral("H"), font);
        QVERIFY(differingPixels(plain, expected, pixels) > 20);
        QCOMPARE(differingPixels(label.grab().toImage(), expected, pixels), 0);
    }

    void theReticle()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        label.markerC = {120, 160};
        Description description;
        description.picture = QRect(20, 0, 480, 640);
        // 13 image pixels are 26 of the label: strokes from 13 to 6 away; a circle 20 across
        const QPointF centre(260, 320);
        for (const QPointF& arm : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
            description.strokes.push_back({{centre + 13 * arm, centre + 6 * arm}, Qt::white});
        description.rings.push_back({centre, 10, QColor(220, 220, 220)});
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
    }

    void theReticleIsHiddenOnTheFirstRowAndColumn()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        Description empty;
        empty.picture = QRect(20, 0, 480, 640);
        for (const overlay::Marker& marker :
             {overlay::Marker{0, 100}, overlay::Marker{100, 0}, overlay::Marker{0, 0}}) {
            label.markerC = marker;
            compare(label.grab().toImage(), label.devicePixelRatioF(), empty);
        }
    }

    /// Never set, they stand just outside the corner, and a part of them shows.
    void unsetSpotsAreDrawnToo()
    {
        MyLabel label;
        prepare(label, {480, 640}, {480, 640});
        label.markerA = {-1, -1};
        QVERIFY(holdsColour(label.grab().toImage(), label.devicePixelRatioF(), QRect(0, 0, 8, 8),
                            QColor(0, 255, 0)));
        label.markerA = {-25536, 32767};
        Description empty;
        empty.picture = QRect(0, 0, 480, 640);
        compare(label.grab().toImage(), label.devicePixelRatioF(), empty);
    }

private:
    static void addSpot(Description& description, const QPointF& centre, const QColor& colour)
    {
        for (const QPointF& arm : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)}) {
            for (const double side : {-2.0, 2.0}) {
                const QPointF across(side * arm.y(), side * arm.x());
                description.strokes.push_back(
                    {{centre + across + 4 * arm, centre + across + 2 * arm}, colour});
            }
        }
    }

    /// The picture with a text whose upper left corner is `place`, in the label's pixels.
    static QImage withText(QImage image, double ratio, const QPoint& place, const QString& text,
                           const QFont& font, const QColor& colour = red)
    {
        QPixmap layer(image.size());
        layer.setDevicePixelRatio(ratio);
        layer.fill(Qt::transparent);
        QPainter painter(&layer);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(QRect(place, QSize(60, 30)), Qt::TextDontClip, text);
        painter.end();
        image.setDevicePixelRatio(ratio);
        QPainter(&image).drawPixmap(0, 0, layer);
        return image;
    }

    /// Layers that are put together in another order round a little differently.
    static int differingPixels(const QImage& actual, const QImage& expected, const QRect& area)
    {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (!alike(actual.pixelColor(x, y), expected.pixelColor(x, y)))
                    ++count;
            }
        }
        return count;
    }

    static QRect changedArea(const QImage& before, const QImage& after)
    {
        QRect area;
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x) {
                if (before.pixel(x, y) != after.pixel(x, y))
                    area |= QRect(x, y, 1, 1);
            }
        }
        return area;
    }

    static bool holdsColour(const QImage& image, double ratio, const QRect& area,
                            const QColor& colour)
    {
        for (int y = int(area.top() * ratio); y < area.bottom() * ratio; ++y) {
            for (int x = int(area.left() * ratio); x < area.right() * ratio; ++x) {
                if (alike(image.pixelColor(x, y), colour))
                    return true;
            }
        }
        return false;
    }
};

int main(int argc, char** argv)
{
    return testing::run<MyLabelTextsTest>(argc, argv);
}

#include "my_label_texts_test.moc"
