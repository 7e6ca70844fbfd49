// SPDX-License-Identifier: MIT
#include "app/main_window.h"
#include "app/startup.h"
#include "resources/resources.h"

#include <QApplication>

int main(int argc, char** argv)
{
    startup::setAttributes();
    QApplication application(argc, argv);
    startup::useLightPalette();
    resources::load();
    const startup::Translators translators(startup::languageCode());

    MainWindow window;
    window.show();
    return QApplication::exec();
}
