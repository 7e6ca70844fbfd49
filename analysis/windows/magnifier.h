// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/neighbourhood.h"
#include "analysis/windows/beside_window.h"
#include "analysis/windows/wheel_steps.h"

class QCheckBox;
class QLabel;

namespace analysis {

class MagnifiedPixels;
class ReadingSet;
class ToolCommands;

/// The pixels round the mouse in large, in the picture's own colours and with their temperatures.
/// It follows the mouse over the picture, in which it frames what it shows, unless it is frozen:
/// then the arrow keys move it. While the photograph has corrected readings, these can be chosen.
/// GUI thread only.
class Magnifier : public BesideWindow
{
    Q_OBJECT

public:
    explicit Magnifier(ViewedPhotograph& photograph);

    /// The entries of the context menu that open, close and freeze it.
    static void addTo(ToolCommands& commands);

protected:
    void refresh() override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    static Magnifier* openOne(const ToolCommands& commands);
    void showPart();
    void moveTo(const QPoint& pixel);
    void grow(int steps);
    bool moveByKey(const QKeyEvent& event);
    void copy() const;

    Neighbourhood m_part;
    int m_longestText = 0; ///< of all readings in the picture
    WheelSteps m_wheel;
    MagnifiedPixels* m_pixels;
    QLabel* m_readOut;
    QLabel* m_size;
    QCheckBox* m_frozen;
    ReadingSet* m_set;
};

} // namespace analysis
