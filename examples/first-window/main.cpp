// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"
#include "FirstWindow.h"

int main(int argc, char **argv)
{
    ClientApplication application(argc, argv);
    FirstWindow window;
    QObject::connect(&window, &FirstWindow::darkChosen, &application, &ClientApplication::setDark);
    window.resize(360, 320);
    window.show();
    return QApplication::exec();
}
