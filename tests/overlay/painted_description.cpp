// SPDX-License-Identifier: MIT
#include "tests/overlay/painted_description.h"

#include "tests/overlay/mouse.h"

#include <QCoreApplication>
#include <QDir>

#include <cmath>

namespace testing {
namespace {

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

/// Empty when the picture is as described, else the first pixel that is not.
QString firstDifference(const QImage& image, double ratio, const Description& description)
{
    const double pixel = 1 / ratio;
    for (int row = 0; row < image.height(); ++row) {
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
    }
    return {};
}

} // namespace

bool alike(const QColor& actual, const QColor& expected)
{
    return std::abs(actual.red() - expected.red()) <= 3 &&
           std::abs(actual.green() - expected.green()) <= 3 &&
           std::abs(actual.blue() - expected.blue()) <= 3;
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

QPixmap plainPicture(const QSize& size, const QColor& colour)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

void prepare(MyLabel& label, const QSize& size, const QSize& picture)
{
    label.resize(size);
    if (!picture.isEmpty())
        label.setPixmap(plainPicture(picture));
    label.markerA = label.markerB = {-20000, -20000};
    label.markerC = {0, 0};
    showAndPaint(label);
}

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

} // namespace testing
