// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/beside_window.h"

class MyLabel;
class QLabel;

namespace Ui {
class Analysis_Widget;
}

namespace analysis {

class PictureView;
class ReadingSet;
class ToolCommands;

/// The whole picture with its tools in a window of its own, at any size, with a read-out of the
/// pixel under the mouse. To look at only: nothing is edited here. GUI thread only.
class LargePicture : public BesideWindow
{
    Q_OBJECT

public:
    explicit LargePicture(ViewedPhotograph& photograph);

    /// The entry of the context menu; and Ctrl with the wheel over the picture, which goes on to
    /// zoom the window at that pixel.
    static void addTo(ToolCommands& commands, const Ui::Analysis_Widget& form);

    PictureView& view() const { return *m_view; }

protected:
    void refresh() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showReadOut();
    void copy() const;

    PictureView* m_view;
    QLabel* m_readOut;
    QLabel* m_zoom;
    ReadingSet* m_set;
    std::optional<QPoint> m_pixel; ///< under the mouse
};

} // namespace analysis
