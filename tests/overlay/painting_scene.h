#pragma once

#include "overlay/label_geometry.h"
#include "overlay/tool_records.h"

#include <QImage>
#include <QString>
#include <QVector>

namespace testing {

/// Tools, spots and the picture they lie on, made up.
struct PaintingScene
{
    QVector<overlay::PointTool> pointList;
    QVector<overlay::LineTool> lineList;
    QVector<overlay::RectTool> rectList;
    QVector<overlay::CircleTool> circleList;
    QString currentType;
    int selectedIndex;
    overlay::Marker markerA;
    overlay::Marker markerB;
    overlay::Marker markerC;
    overlay::Geometry geometry;
};

/// The same for the same number on every machine: tools of all kinds, many on top of each other,
/// some unplaced or reaching out of the picture, sometimes one selected; labels of all shapes,
/// margins on some sides or none.
PaintingScene madeUpScene(unsigned number);

/// The scene drawn stroke by stroke from a description of it, in the order in which things lie over
/// each other; `ratio` pixels a label pixel, white margins if asked for. Drawn by other code than
/// the product's, with the same paint engine and fonts, so that the two must agree in every pixel.
QImage drawnByDescription(const PaintingScene& scene, double ratio, bool margins);

} // namespace testing
