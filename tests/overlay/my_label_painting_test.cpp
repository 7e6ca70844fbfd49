#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/overlay_host.h"
#include "tests/support/test_run.h"

#include <QCoreApplication>
#include <QDir>
#include <QLineF>
#include <QPainter>

#include <array>
#include <cmath>
#include <vector>

/// What is drawn, checked pixel by pixel against a plain description of it: every pixel well inside
/// a stroke has the stroke's colour, every pixel well away from all strokes the background's.
/// Nothing depends on fonts (the names are empty) or on how edges are smoothed, and the same
/// description holds at every device pixel ratio: CTest runs this program at several.

namespace {

const QColor background(90, 110, 130);
const QColor red(255, 0, 0);
const QColor blue(0, 0, 255);
const QColor selected(0, 255, 0);

struct Stroke
{
    QLineF line;
    QColor colour;
};

struct Ring
{
    QPointF centre;
    double radius;
    QColor colour;
};

/// In the label's pixels.
struct Description
{
    double penWidth = 2;
    std::vector<Stroke> strokes;
    std::vector<Ring> rings;
    QRect picture;
    std::vector<QRect> unknown; ///< not looked at: letters
};

/// How far a spot is from a line, and whether its nearest point on it is clear of the line's ends,
/// where the joins of the pen leave things to the paint engine.
struct Nearness
{
    double distance;
    bool clearOfEnds;
};

Nearness nearness(const QLineF& line, const QPointF& from, double pixel)
{
    const QPointF along = line.p2() - line.p1();
    const double square = QPointF::dotProduct(along, along);
    const double part = square > 0 ? QPointF::dotProduct(from - line.p1(), along) / square : -1;
    const double margin = square > 0 ? 0.75 * pixel / std::sqrt(square) : 0;
    return {QLineF(line.p1() + qBound(0.0, part, 1.0) * along, from).length(),
            part >= margin && part <= 1 - margin};
}

bool isUpright(const QLineF& line)
{
    return qFuzzyIsNull(line.dx()) || qFuzzyIsNull(line.dy());
}

/// True when nothing lies over this spot but the one stroke.
enum class Verdict
{
    Is,
    IsNot,
    CannotTell
};

Verdict judge(double away, double penWidth, bool upright, double pixel)
{
    // A pixel is a square, a cap reaches half a pen beyond the end and is a square too.
    if (away <= penWidth / 2 - (upright ? 0.5 : 0.72) * pixel + 1e-6)
        return Verdict::Is;
    return away > penWidth / 2 * 1.42 + 0.75 * pixel ? Verdict::IsNot : Verdict::CannotTell;
}

bool alike(const QColor& actual, const QColor& expected)
{
    return std::abs(actual.red() - expected.red()) <= 3 &&
           std::abs(actual.green() - expected.green()) <= 3 &&
           std::abs(actual.blue() - expected.blue()) <= 3;
}

/// Empty when the picture is as described, else the first pixel that is not.
QString firstDifference(const QImage& image, double ratio, const Description& description)
{
    const double pixel = 1 / ratio;
    for (int row = 0; row < image.height(); ++row)
        for (int column = 0; column < image.width(); ++column) {
            const QPointF at((column + 0.5) * pixel, (row + 0.5) * pixel);
            const auto hides = [&](const QRect& area) {
                return QRectF(area).adjusted(-pixel, -pixel, pixel, pixel).contains(at);
            };
            if (std::any_of(description.unknown.begin(), description.unknown.end(), hides))
                continue;
            QColor expected = background;
            bool known = true;
            const auto look = [&](Verdict verdict, const QColor& colour) {
                if (verdict == Verdict::Is) {
                    expected = colour;
                    known = true;
                } else if (verdict == Verdict::CannotTell) {
                    known = false;
                }
            };
            for (const Stroke& stroke : description.strokes) {
                const Nearness near = nearness(stroke.line, at, pixel);
                const Verdict verdict =
                    judge(near.distance, description.penWidth, isUpright(stroke.line), pixel);
                look(verdict == Verdict::Is && !near.clearOfEnds ? Verdict::CannotTell : verdict,
                     stroke.colour);
            }
            for (const Ring& ring : description.rings)
                look(judge(std::abs(QLineF(ring.centre, at).length() - ring.radius),
                           description.penWidth, false, pixel),
                     ring.colour);
            const QRectF picture(description.picture);
            if (!picture.adjusted(-pixel, -pixel, pixel, pixel).contains(at)) {
                expected = Qt::white;
                known = true;
            } else if (!picture.adjusted(pixel, pixel, -pixel, -pixel).contains(at)) {
                known = false;
            }
            const QColor actual = image.pixelColor(column, row);
            if (known && !alike(actual, expected))
                return QStringLiteral("at (%1, %2): %3 instead of %4")
                    .arg(at.x())
                    .arg(at.y())
                    .arg(actual.name(), expected.name());
        }
    return {};
}

void compare(const QImage& image, double ratio, const Description& description)
{
    const QString difference = firstDifference(image, ratio, description);
    if (difference.isEmpty())
        return;
    const QString file = QDir(QCoreApplication::applicationDirPath())
                             .filePath(QStringLiteral("my_label_%1_at_%2.png")
                                           .arg(QTest::currentTestFunction())
                                           .arg(ratio));
    image.save(file);
    QFAIL(qPrintable(difference + QStringLiteral(", see ") + file));
}

QPixmap plainPicture(const QSize& size, const QColor& colour = background)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

/// With all markers out of sight.
void prepare(MyLabel& label, const QSize& size, const QSize& picture)
{
    label.resize(size);
    if (!picture.isEmpty())
        label.setPixmap(plainPicture(picture));
    label.markerA = label.markerB = {-20000, -20000};
    label.markerC = {0, 0};
    testing::showAndPaint(label);
}

/// A tool of every kind, none selected; two label pixels each image pixel.
void placeTools(MyLabel& label)
{
    label.pointList = {{QString(), 50, 60, 9, red}, {QString(), -1, -1, 9, red}};
    label.lineList = {{QString(), 20, 200, 90, 250, blue}, {QString(), -1, -1, -1, -1, red}};
    label.rectList = {{QString(), 200, 100, 140, 20, red}};
    label.circleList = {{QString(), 170, 220, 180, 220, 30, blue}};
}

void addPoint(Description& description, const QPointF& centre, const QColor& colour)
{
    // 9 image pixels are 18 of the label: arms from 9 away to a pen's width away
    for (const QPointF& arm : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
        description.strokes.push_back({{centre + 9 * arm, centre + 2 * arm}, colour});
}

void addRect(Description& description, const QRectF& rect, const QColor& colour)
{
    description.strokes.push_back({{rect.topLeft(), rect.topRight()}, colour});
    description.strokes.push_back({{rect.topRight(), rect.bottomRight()}, colour});
    description.strokes.push_back({{rect.bottomRight(), rect.bottomLeft()}, colour});
    description.strokes.push_back({{rect.bottomLeft(), rect.topLeft()}, colour});
}

/// The tools of placeTools() on a label of 520 × 640 with a picture of 480 × 640: x is 20.5 + 2x
/// cut off, y is 2y.
Description toolsOnWideLabel(const QColor& ofPoint = red, const QColor& ofLine = blue,
                             const QColor& ofRect = red, const QColor& ofCircle = blue)
{
    Description description;
    description.picture = QRect(20, 0, 480, 640);
    addPoint(description, {120, 120}, ofPoint);
    description.strokes.push_back({{60, 400, 200, 500}, ofLine});
    addRect(description, {300, 40, 120, 160}, ofRect);
    description.rings.push_back({{360, 440}, 60, ofCircle});
    return description;
}

} // namespace

class MyLabelPaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void everyKindOfTool()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        placeTools(label);
        compare(label.grab().toImage(), label.devicePixelRatioF(), toolsOnWideLabel());
        QCOMPARE(label.labelWidth, 520);
        QCOMPARE(label.imageWidth, 480);
        QCOMPARE(label.labelHeight, 640);
        QCOMPARE(label.imageHeight, 640);
    }

    void theSelectedToolIsGreen_data()
    {
        QTest::addColumn<QString>("type");
        for (const char* type : {"P", "L", "R", "C"})
            QTest::addRow("%s", type) << QString::fromLatin1(type);
    }

    void theSelectedToolIsGreen()
    {
        QFETCH(QString, type);
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        placeTools(label);
        label.grab();
        label.currentType = type;
        label.selectedIndex = 0;
        const auto colour = [&](const char* kind, const QColor& own) {
            return type == QLatin1String(kind) ? selected : own;
        };
        compare(label.grab().toImage(), label.devicePixelRatioF(),
                toolsOnWideLabel(colour("P", red), colour("L", blue), colour("R", red),
                                 colour("C", blue)));
        label.selectColor = Qt::yellow;
        label.selectedIndex = 1; // unplaced, or none at all
        compare(label.grab().toImage(), label.devicePixelRatioF(), toolsOnWideLabel());
    }

    void withMarginsAboveAndBelow()
    {
        MyLabel label;
        prepare(label, {480, 700}, {480, 640});
        placeTools(label);
        Description description;
        description.picture = QRect(0, 30, 480, 640);
        // x is 2x + 0.5 cut off, y is 2y + 30.5 cut off
        addPoint(description, {100, 150}, red);
        description.strokes.push_back({{40, 430, 180, 530}, blue});
        addRect(description, {280, 70, 120, 160}, red);
        description.rings.push_back({{340, 470}, 60, blue});
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
    }

    void withoutMargins()
    {
        MyLabel label;
        prepare(label, {480, 640}, {480, 640});
        placeTools(label);
        Description description;
        description.picture = QRect(0, 0, 480, 640);
        addPoint(description, {100, 120}, red);
        description.strokes.push_back({{40, 400, 180, 500}, blue});
        addRect(description, {280, 40, 120, 160}, red);
        description.rings.push_back({{340, 440}, 60, blue});
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
    }

    /// Below 500 pixels of picture the pen is one pixel wide, from 500 on two, from 1000 on three.
    void thePenFollowsThePicturesHeight_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("penWidth");
        QTest::newRow("499") << 499 << 1;
        QTest::newRow("500") << 500 << 2;
        QTest::newRow("999") << 999 << 2;
        QTest::newRow("1000") << 1000 << 3;
    }

    void thePenFollowsThePicturesHeight()
    {
        QFETCH(int, height);
        QFETCH(int, penWidth);
        MyLabel label;
        prepare(label, {400, height}, {240, height});
        label.lineList = {{QString(), 20, 160, 220, 160, red}};
        const QImage image = label.grab().toImage();
        const double ratio = label.devicePixelRatioF();
        // How much of the column in the line's middle is red, in label pixels.
        double extent = 0;
        const int column = static_cast<int>(200 * ratio);
        for (int row = 0; row < image.height(); ++row) {
            const QColor colour = image.pixelColor(column, row);
            extent += double(background.green() - colour.green()) / background.green() / ratio;
        }
        QVERIFY2(std::abs(extent - penWidth) < 0.05, qPrintable(QString::number(extent)));
    }

    void whateverReachesIntoTheMarginIsHidden()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        label.pointList = {{QString(), 0, 100, 9, red}, {QString(), 240, 200, 9, red}};
        Description description;
        description.picture = QRect(20, 0, 480, 640);
        addPoint(description, {20, 200}, red);
        addPoint(description, {500, 400}, red);
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
    }

    void aPictureLargerThanTheLabelIsShownFromItsMiddle()
    {
        MyLabel label;
        prepare(label, {200, 100}, {480, 640});
        Description description;
        description.picture = QRect(-140, -270, 480, 640);
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
    }

    void withoutAPictureAllIsWhite()
    {
        MyLabel label;
        label.setText(QStringLiteral("TextLabel"));
        prepare(label, {520, 640}, {});
        placeTools(label);
        Description description;
        description.picture = QRect(-100, -100, 1, 1);
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
        label.setPixmap(plainPicture({480, 640}));
        label.setPixmap(QPixmap());
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
    }

    void everyResizeIsFollowed()
    {
        MyLabel label;
        prepare(label, {300, 300}, {225, 300});
        placeTools(label);
        label.grab();
        label.resize(520, 640);
        label.setPixmap(plainPicture({480, 640}));
        compare(label.grab().toImage(), label.devicePixelRatioF(), toolsOnWideLabel());
    }

    /// A host may set its picture as fine as the screen; on the label it has the same size.
    void finePictures()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        placeTools(label);
        const qreal ratio = label.devicePixelRatioF();
        QPixmap pixmap = plainPicture(QSize(480, 640) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        label.setPixmap(pixmap);
        compare(label.grab().toImage(), ratio, toolsOnWideLabel());
        QCOMPARE(label.imageWidth, 480);
    }

    /// Only the selected tool is drawn anew while it is dragged; the result must be the same as if
    /// everything were, whichever lies over which.
    void draggingLeavesNoTraces()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        placeTools(label);
        label.rectList.append({QString(), 50, 60, 70, 80, blue}); // over the point's arms
        label.currentType = QStringLiteral("P");
        label.selectedIndex = 0;
        label.toolMode = 1;
        testing::Mouse mouse(label);
        mouse.press({120, 120});
        for (const QPoint& to :
             {QPoint(400, 300), QPoint(30, 500), QPoint(340, 30), QPoint(140, 141)}) {
            mouse.move(to);
            label.repaint();
        }
        QCOMPARE(label.pointList.at(0).x, 60);
        const QImage dragged = label.grab().toImage();

        MyLabel fresh;
        prepare(fresh, {520, 640}, {480, 640});
        static_cast<overlay::Tools&>(fresh) = label;
        QCOMPARE(dragged, fresh.grab().toImage());
        mouse.release({140, 141});

        label.lineList[0].colour = red; // a host may change what it likes
        label.rectList.removeLast();
        label.currentType = QStringLiteral("null");
        label.pointList[0] = {QString(), 50, 60, 9, red};
        compare(label.grab().toImage(), label.devicePixelRatioF(), toolsOnWideLabel(red, red));
    }

    /// A picture that is stretched to twice its height makes no ovals.
    void circlesFollowTheVerticalScale()
    {
        MyLabel label;
        prepare(label, {300, 640}, {240, 640});
        label.circleList = {{QString(), 110, 150, 140, 150, 30, blue}};
        Description description;
        description.picture = QRect(30, 0, 240, 640);
        description.rings.push_back({{140, 300}, 60, blue});
        compare(label.grab().toImage(), label.devicePixelRatioF(), description);
    }

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

    /// Points under lines under rectangles under circles under the spots under the reticle, and
    /// within a list the later over the earlier: where strokes cross, the later one's colour shows.
    void whatLiesOverWhat()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        const std::array<QColor, 8> colours{
            QColor(10, 0, 0),  QColor(40, 0, 0),  QColor(70, 0, 0),    QColor(100, 0, 0),
            QColor(0, 0, 130), QColor(0, 0, 160), QColor(0, 190, 190), QColor(0, 220, 220)};
        const int x = 100; // every upright stroke runs through here
        label.pointList = {{QString(), x, 100, 60, colours[0]},
                           {QString(), x, 108, 60, colours[1]}};
        label.lineList = {{QString(), x, 96, x, 160, colours[2]},
                          {QString(), x, 104, x, 160, colours[3]}};
        label.rectList = {{QString(), x, 116, 150, 200, colours[4]},
                          {QString(), x, 124, 150, 208, colours[5]}};
        label.circleList = {{QString(), x + 30, 140, x + 60, 140, 30, colours[6]},
                            {QString(), x + 60, 140, x + 90, 140, 30, colours[7]}};
        const auto at = [&](const QImage& image, const QPoint& position) {
            const double ratio = label.devicePixelRatioF();
            return image.pixelColor(int(position.x() * ratio), int(position.y() * ratio));
        };
        const int column = 20 + 2 * x; // a stroke of two pixels lies to either side of it
        const QImage tools = label.grab().toImage();
        QCOMPARE(at(tools, {column, 2 * 88}), colours[1]);  // point over point
        QCOMPARE(at(tools, {column, 2 * 100}), colours[2]); // line over points
        QCOMPARE(at(tools, {column, 2 * 112}), colours[3]); // line over line
        QCOMPARE(at(tools, {column, 2 * 120}), colours[4]); // rectangle over lines
        QCOMPARE(at(tools, {column, 2 * 128}), colours[5]); // rectangle over rectangle
        QCOMPARE(at(tools, {column, 2 * 140}), colours[6]); // circle over rectangles
        label.circleList[1] = {QString(), x + 30, 140, x + 60, 140, 30, colours[7]};
        QCOMPARE(at(label.grab().toImage(), {column, 2 * 140}), colours[7]); // circle over circle

        // The spots' strokes lie a pen's width beside their centre.
        label.markerA = {qint16(x - 1), 143};
        QCOMPARE(at(label.grab().toImage(), {column, 2 * 143 + 3}), QColor(0, 255, 0));
        label.markerB = label.markerA;
        QCOMPARE(at(label.grab().toImage(), {column, 2 * 143 + 3}), QColor(255, 0, 0));
        label.markerC = {qint16(x), 138}; // its lower stroke ends 6.5 rows below
        QCOMPARE(at(label.grab().toImage(), {column, 2 * 138 + 12}), QColor(Qt::white));
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
        const QRect pixels(static_cast<int>(area.x() * ratio), static_cast<int>(area.y() * ratio),
                           static_cast<int>(area.width() * ratio),
                           static_cast<int>(area.height() * ratio));
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

    // Overlay

    void theOverlayIsKept()
    {
        MyLabel label;
        prepare(label, {520, 640}, {480, 640});
        placeTools(label);
        label.repaint();
        const double ratio = label.devicePixelRatioF();
        QCOMPARE(label.overlay.size(), QSize(static_cast<int>(std::ceil(520 * ratio)),
                                             static_cast<int>(std::ceil(640 * ratio))));
        QCOMPARE(label.overlay.devicePixelRatio(), ratio);
        QImage image = label.overlay.toImage();
        QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2).alpha(), 0);
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white)); // a margin
    }

    void aLabelWithoutRoomHasNoOverlay_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("no width") << QSize(0, 960);
        QTest::newRow("no height") << QSize(721, 0);
    }
    void aLabelWithoutRoomHasNoOverlay()
    {
        QFETCH(QSize, size);
        MyLabel label;
        prepare(label, {300, 330}, {240, 320});
        placeTools(label);
        label.repaint();
        QVERIFY(!label.overlay.isNull());
        label.frozenGeometry = true;
        label.labelWidth = size.width();
        label.labelHeight = size.height();
        QPixmap elsewhere(10, 10);
        label.render(&elsewhere);
        QVERIFY(label.overlay.isNull());
    }

    /// As the report asks for it: three times the picture, one pixel wider, whatever the label's
    /// size and the screen.
    void frozenForAReport()
    {
        MyLabel label;
        prepare(label, {300, 330}, {240, 320});
        placeTools(label);
        label.frozenGeometry = true;
        label.labelWidth = 721;
        label.imageWidth = 720;
        label.labelHeight = 960;
        label.imageHeight = 960;
        QPixmap elsewhere(10, 10);
        label.render(&elsewhere);
        const QPixmap report = label.overlay;
        QCOMPARE(label.labelWidth, 721);
        label.frozenGeometry = false;
        label.repaint();
        QCOMPARE(label.labelWidth, 300);
        QCOMPARE(label.overlay.devicePixelRatio(), label.devicePixelRatioF());

        QCOMPARE(report.size(), QSize(721, 960));
        QCOMPARE(report.devicePixelRatio(), 1.0);
        QImage image(report.size(), QImage::Format_RGB32);
        image.fill(background);
        QPainter(&image).drawPixmap(0, 0, report);
        Description description;
        description.picture = QRect(0, 0, 721, 960);
        // x is 3x + 0.5 + 0.5, y is 3y; 9 image pixels are 27, arms of 13
        const QPointF centre(151, 180);
        for (const QPointF& arm : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
            description.strokes.push_back({{centre + 13 * arm, centre + 2 * arm}, red});
        description.strokes.push_back({{61, 600, 271, 750}, blue});
        addRect(description, {421, 60, 180, 240}, red);
        description.rings.push_back({{511, 660}, 90, blue});
        compare(image, 1.0, description);
    }

    void aHiddenLabelRendersItsOverlayToo()
    {
        MyLabel label;
        label.resize(300, 330);
        label.setPixmap(plainPicture({240, 320}));
        QPixmap elsewhere(10, 10);
        label.render(&elsewhere);
        QCOMPARE(label.overlay.isNull(), false);
    }

private:
    static void addSpot(Description& description, const QPointF& centre, const QColor& colour)
    {
        for (const QPointF& arm : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
            for (const double side : {-2.0, 2.0}) {
                const QPointF across(side * arm.y(), side * arm.x());
                description.strokes.push_back(
                    {{centre + across + 4 * arm, centre + across + 2 * arm}, colour});
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
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (!alike(actual.pixelColor(x, y), expected.pixelColor(x, y)))
                    ++count;
        return count;
    }

    static QRect changedArea(const QImage& before, const QImage& after)
    {
        QRect area;
        for (int y = 0; y < after.height(); ++y)
            for (int x = 0; x < after.width(); ++x)
                if (before.pixel(x, y) != after.pixel(x, y))
                    area |= QRect(x, y, 1, 1);
        return area;
    }

    static bool holdsColour(const QImage& image, double ratio, const QRect& area,
                            const QColor& colour)
    {
        for (int y = static_cast<int>(area.top() * ratio); y < area.bottom() * ratio; ++y)
            for (int x = static_cast<int>(area.left() * ratio); x < area.right() * ratio; ++x)
                if (alike(image.pixelColor(x, y), colour))
                    return true;
        return false;
    }
};

int main(int argc, char** argv)
{
    return testing::run<MyLabelPaintingTest>(argc, argv);
}

#include "my_label_painting_test.moc"
