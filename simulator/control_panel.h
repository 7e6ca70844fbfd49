// SPDX-License-Identifier: MIT
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

    /// Shows a window in the middle of its screen and the panel to its right; a window that leaves
    /// no room becomes smaller. Where even that is not enough, the panel stands over its right
    /// edge.
    void showBeside(QWidget& window);

private:
    void followImager();
    template<typename Value>
    auto user(void (SimulatedImager::*setter)(Value));
    void passOnChanges();
    void showSettings();
    void showReachedHotSpot();
    void applyPhotographSettings();
    void takePhotograph();

    SimulatedImager& m_imager;
    std::unique_ptr<Ui::ControlPanel> m_ui;
    bool m_isShowing = false; ///< the fields are being set by the imager, not by the user
};

} // namespace simulator
