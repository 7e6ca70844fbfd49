#pragma once

#include <QColor>
#include <QString>

/// The measurement tools a user places on a photograph.
///
/// All coordinates are image coordinates of the thermal frame: x 0 … 239 across, y 0 … 319 down,
/// never label pixels. −1 means "made, but not placed yet"; such records are painted and measured
/// by nobody. 240 and 320 can occur (see the conversions of the label), so whoever reads a
/// temperature at a tool's position guards the read.
namespace overlay {

constexpr int imageColumns = 240;
constexpr int imageRows = 320;

struct PointTool
{
    QString name; ///< "P%1"
    int x = -1;
    int y = -1;
    int size = 9; ///< extent of the drawn cross, image pixels
    QColor colour = QColor(255, 0, 0, 255);
};

inline bool operator==(const PointTool& left, const PointTool& right)
{
    return left.name == right.name && left.x == right.x && left.y == right.y &&
           left.size == right.size && left.colour == right.colour;
}

struct LineTool
{
    QString name; ///< "L%1"
    int x1 = -1;  ///< start: where the press was
    int y1 = -1;
    int x2 = -1; ///< end: where the drag is
    int y2 = -1;
    QColor colour = QColor(255, 0, 0, 255);
};

inline bool operator==(const LineTool& left, const LineTool& right)
{
    return left.name == right.name && left.x1 == right.x1 && left.y1 == right.y1 &&
           left.x2 == right.x2 && left.y2 == right.y2 && left.colour == right.colour;
}

/// Corners stay as the user dragged them: x2 may be less than x1, y2 less than y1.
struct RectTool
{
    QString name; ///< "R%1"
    int x1 = -1;  ///< press corner
    int y1 = -1;
    int x2 = -1; ///< drag corner
    int y2 = -1;
    QColor colour = QColor(255, 0, 0, 255);
};

inline bool operator==(const RectTool& left, const RectTool& right)
{
    return left.name == right.name && left.x1 == right.x1 && left.y1 == right.y1 &&
           left.x2 == right.x2 && left.y2 == right.y2 && left.colour == right.colour;
}

struct CircleTool
{
    QString name; ///< "C%1"
    int cx = -1;  ///< centre: where the press was
    int cy = -1;
    int x2 = -1; ///< last accepted drag point
    int y2 = -1;
    int radius = -1; ///< image pixels; negative until dragged
    QColor colour = QColor(255, 0, 0, 255);
};

inline bool operator==(const CircleTool& left, const CircleTool& right)
{
    return left.name == right.name && left.cx == right.cx && left.cy == right.cy &&
           left.x2 == right.x2 && left.y2 == right.y2 && left.radius == right.radius &&
           left.colour == right.colour;
}

/// A spot that the photograph itself carries: A and B are the marked ones, C the reticle. The
/// file's words are unsigned; they are kept modulo 2^16, so a spot can lie outside the picture.
struct Marker
{
    qint16 x = -1;
    qint16 y = -1;
};

} // namespace overlay
