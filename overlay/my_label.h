// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/label_geometry.h"
#include "overlay/spots.h"
#include "overlay/tool_editing.h"
#include "overlay/tool_painting.h"

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QPoint>
#include <QPointer>

/// The picture of the analysis window, with the measurement tools drawn and edited on it.
///
/// The host scales the thermal picture to the label's size and sets it as the pixmap; the label
/// shows it centred on white, keeps the tools, and tells by signals where the mouse is, what is
/// selected and that tools have changed. Temperatures are the host's business. Tools and `Point_XY`
/// are in image coordinates (240 × 320, see label_geometry.h), everything named press, mouse, label
/// or image in the label's own pixels.
///
/// What a hand does to the tools is in tool_editing.h, how they look in tool_painting.h; the label
/// forwards its events, repaints and tells. It is the values that it shows, the tools, the spots of
/// the photograph and the geometry of the last paint, and can be handed to whoever works on these.
///
/// The label paints its whole rectangle, so it is opaque: a host may set the pixmap in its own
/// paintEvent, which then repaints the label alone. The size hints do not follow the pixmap,
/// because the pixmap follows the size.
///
/// The lists and the selection are read by the host, which may also set `currentType`,
/// `selectedIndex`, `toolColor` and the markers; they take effect with the next paint.
///
/// With `frozenGeometry` set, painting takes the four geometry values as they are, and `overlay`
/// has exactly labelWidth × labelHeight pixels, whatever the screen, and transparent margins. Who
/// only wants the picture asks overlay::paintedTools() for it.
class MyLabel : public QLabel,
                public overlay::ToolEditing,
                public overlay::Spots,
                public overlay::Geometry
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

    bool frozenGeometry = false;
    QPoint pressPos;
    QPoint mousePos;
    QPixmap overlay; ///< what the last paint drew over the picture
    QColor selectColor{0, 255, 0, 255};

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
    void refreshGeometry();
    overlay::Box toImage(const QPoint& position);
    void emitSelection();
    void drawOverlay();

    QPointer<QObject> m_owner;
    overlay::Box m_scratch; ///< the last result of either conversion
    overlay::ToolLayers m_layers;
};
