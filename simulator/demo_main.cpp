// SPDX-License-Identifier: MIT
// The whole product with a simulated imager plugged in, and the imager's panel beside it.

#include "app/main_window.h"
#include "app/startup.h"
#include "resources/resources.h"
#include "simulator/control_panel.h"

#include <QApplication>

int main(int argc, char** argv)
{
    startup::setAttributes();
    QApplication application(argc, argv);
    startup::useLightPalette();
    resources::load();
    const startup::Translators translators(startup::languageCode());

    simulator::SimulatedImager imager;
    imager.setDiskPlugged(true);
    imager.takeSamplePhotographs();
    imager.setDiskPlugged(false);
    imager.setCameraPlugged(true);

    MainWindow window;
    simulator::ControlPanel panel(imager);
    panel.setAttribute(Qt::WA_QuitOnClose, false);
    panel.showBeside(window);
    return QApplication::exec();
}
