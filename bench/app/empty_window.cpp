// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1120, 800); // as the main window: memory for its picture counts
    window.show();
    return QApplication::exec();
}
