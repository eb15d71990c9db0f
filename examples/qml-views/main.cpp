// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"
#include "PeopleWindow.h"

int main(int argc, char **argv)
{
    ClientApplication application(argc, argv);
    PeopleWindow window;
    window.show();
    return QApplication::exec();
}
