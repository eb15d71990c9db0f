// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"
#include "FirstWindow.h"

int main(int argc, char **argv)
{
    // These must be set before the application object is made.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);

    ClientApplication application(argc, argv);
    FirstWindow window;
    QObject::connect(&window, &FirstWindow::darkChosen, &application, &ClientApplication::setDark);
    QObject::connect(&window, &FirstWindow::highContrastChosen, &application,
                     &ClientApplication::setHighContrast);
    window.resize(400, 360);
    window.show();
    return QApplication::exec();
}
