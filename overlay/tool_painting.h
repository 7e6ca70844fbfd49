// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/label_geometry.h"
#include "overlay/spots.h"
#include "overlay/tools.h"

#include <QImage>
#include <QRect>

class QPainter;

/// Drawing the tools and spots of a picture. Needs Qt Gui and an application object for its fonts,
/// no widget, and may be done in several threads at once.
namespace overlay {

/// What is drawn on.
struct Sheet
{
    Geometry geometry;
    qreal ratio = 1.0;                  ///< pixels a label pixel
    QColor selectColor{0, 255, 0, 255}; ///< of the selected tool
    bool whiteMargins = false;          ///< hide what reaches beyond the picture

    QSize pixels() const;
};

/// The placed tools, then the spots, on a transparent ground of labelWidth × labelHeight. Null
/// where the label has no extent; empty where the picture has none.
QImage paintedTools(const Tools& tools, const Spots& spots, const Sheet& sheet);

/// Only a part of the same, in label pixels: its size, not that of the sheet, is what it costs.
/// Null for an empty part.
QImage paintedTools(const Tools& tools, const Spots& spots, const Sheet& sheet, const QRect& part);

/// The same for somebody who draws again and again while one tool is dragged.
///
/// Many tools are slow to draw antialiased, and of them all only the selected one follows the
/// mouse. So what lies under it and what lies over it are drawn once and kept until either changes.
class ToolLayers
{
public:
    /// Draws on a transparent ground whose pixels are the sheet's, its origin top left.
    void paint(QPainter& painter, const Tools& tools, const Spots& spots, const Sheet& sheet);

private:
    void update(const Tools& tools, const Sheet& sheet, int selected);

    Tools m_tools; ///< what the layers show: all but the selected tool itself
    Sheet m_sheet;
    int m_selected = -1;
    QImage m_under;
    QImage m_over;
};

/// Where what is drawn last begins, and how large it is: the reticle's circle or, where there is
/// no reticle, spot B.
Box lastDrawn(const Spots& spots, const Geometry& geometry);

} // namespace overlay
