#pragma once

#include "overlay/label_geometry.h"
#include "overlay/tool_records.h"

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QVector>

#include <memory>

/// The picture of the analysis window, with the measurement tools drawn and edited on it.
///
/// The host scales the thermal picture to the label's size and sets it as the pixmap; the label
/// shows it centred on white, keeps the tools, and tells by signals where the mouse is, what is
/// selected and that tools have changed. Temperatures are the host's business. Tools and `Point_XY`
/// are in image coordinates (240 × 320, see label_geometry.h), everything named press, mouse, label
/// or image in the label's own pixels.
///
/// The label paints its whole rectangle, so it is opaque: a host may set the pixmap in its own
/// paintEvent, which then repaints the label alone. The size hints do not follow the pixmap,
/// because the pixmap follows the size.
///
/// The lists and the selection are read by the host, which may also set `currentType`,
/// `selectedIndex`, `toolColor` and the markers; they take effect with the next paint.
///
/// To draw the tools for a report at another size: set `frozenGeometry` and the four geometry
/// values, render() the label into a pixmap of its own (or repaint() it, which shows the result for
/// a moment, and does nothing while the label is hidden), take `overlay`, clear `frozenGeometry`,
/// update(). While frozen, `overlay` has exactly labelWidth × labelHeight pixels, whatever the
/// screen, and transparent margins.
class MyLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MyLabel(QWidget* parent = nullptr);
    ~MyLabel() override;

    /// Connects the four signals to the window's slots updat_XY_Temp(int,int), updat_Tool_Temp(),
    /// setFocus(int) and Set_Select(int), in this order. To be called once; the window is not
    /// owned.
    void setOwner(QObject* window);

    /// What a press does from now on: 1 selects, 2 … 5 place a point, line, rectangle or circle;
    /// for those an unplaced tool is prepared at `newIndex`. Earlier unplaced tools go.
    void setToolMode(int mode);

    /// Removes the selected tool, and all unplaced ones. Emits nothing and leaves the selection
    /// where it is, on the tool that moved up.
    void deleteSelected();

    /// Removes all tools and the selection; emits updat_Tool().
    void clearTools();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    int toolMode = 1;
    QVector<overlay::PointTool> pointList; ///< in number order, as all four
    QVector<overlay::LineTool> lineList;
    QVector<overlay::RectTool> rectList;
    QVector<overlay::CircleTool> circleList;
    QString currentType = QStringLiteral("null"); ///< "P", "L", "R", "C", or "null" for none
    int selectedIndex = -1;                       ///< within the list of `currentType`
    overlay::Marker markerA; ///< the photograph's marked spots, shown as "L" and "H"
    overlay::Marker markerB;
    overlay::Marker markerC; ///< its reticle; not shown when x or y is 0
    bool drawing = false;    ///< a new line, rectangle or circle is being dragged out
    int newIndex = 0;        ///< where setToolMode() put the tool it made
    bool frozenGeometry = false;
    QPoint pressPos;
    QPoint mousePos;
    QPixmap overlay; ///< what the last paint drew over the picture
    int labelWidth = 0;
    int imageWidth = 0;
    int labelHeight = 0;
    int imageHeight = 0;
    QColor selectColor{0, 255, 0, 255};
    QColor toolColor{255, 0, 0, 255};

signals:
    void Point_XY(int px, int py); ///< image position under the mouse; 240 and 320 can occur
    void updat_Tool();
    void
    Focus_idev(int bt_st);    ///< the tool mode, on every release; the host prepares the next tool
    void Set_Select(int dev); ///< over all tools: points, lines, rectangles, circles

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Canvas;
    struct Scene;
    struct Layers;

    void refreshGeometry();
    void toImage(int x, int y, int w, int h);
    void toWidget(int x, int y, int w, int h);
    void pruneUnplaced();
    bool isSelected(QChar letter, int index) const;
    void select(QChar letter, int index);
    int overallSelection() const;
    int activeTool() const;
    void emitSelection();
    void selectAt(const QPoint& position);
    template<typename Tool, typename IsHit>
    void selectHits(const QVector<Tool>& list, const QString& message, IsHit isHit);

    void drawOverlay();
    void updateLayers(int active);
    Canvas canvasOn(QPainter& painter);
    void drawTools(const Canvas& canvas, int begin, int end);
    void drawTool(const Canvas& canvas, const overlay::PointTool& point);
    void drawTool(const Canvas& canvas, const overlay::LineTool& line);
    void drawTool(const Canvas& canvas, const overlay::RectTool& rect);
    void drawTool(const Canvas& canvas, const overlay::CircleTool& circle);
    void drawSpot(const Canvas& canvas, const overlay::Marker& marker, const QColor& colour,
                  const QString& letter);
    void drawReticle(const Canvas& canvas);
    void drawMargins(QPainter& painter) const;

    QPointer<QObject> m_owner;
    overlay::Box m_scratch; ///< the last result of either conversion
    const std::unique_ptr<Layers> m_layers;
};
