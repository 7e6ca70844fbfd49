// SPDX-License-Identifier: MIT
#include "overlay/my_label.h"
#include "tests/overlay/mouse.h"
#include "tests/overlay/painted_description.h"
#include "tests/support/test_run.h"

#include <QPainter>

#include <array>
#include <cmath>

using namespace testing;

namespace {

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
        const int column = int(200 * ratio);
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
        const overlay::Tools& tools = label;
        static_cast<overlay::Tools&>(fresh) = tools;
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
};

int main(int argc, char** argv)
{
    return testing::run<MyLabelPaintingTest>(argc, argv);
}

#include "my_label_painting_test.moc"
