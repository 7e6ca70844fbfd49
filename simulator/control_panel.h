#pragma once

#include "simulator/simulated_imager.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ControlPanel;
}

namespace simulator {

/// Everything the simulated imager can do, at hand beside the program's own window. A tool for
/// development and demonstration; its texts are in English only.
class ControlPanel : public QWidget
{
    Q_OBJECT

public:
    /// Shows and changes `imager`, which must outlive the panel.
    explicit ControlPanel(SimulatedImager& imager, QWidget* parent = nullptr);
    ~ControlPanel() override;

    /// Shows the panel to the right of a window on the screen, which moves to make room. Where the
    /// screen is too narrow for both, the panel stands before the window's right edge.
    void showBeside(QWidget& window);

private:
    void showSettings();
    void showReachedHotSpot();
    void applyPhotographSettings();
    void takePhotograph();

    SimulatedImager& m_imager;
    std::unique_ptr<Ui::ControlPanel> m_ui;
    bool m_isShowing = false; ///< the fields are being set by the imager, not by the user
};

} // namespace simulator
