// SPDX-License-Identifier: Apache-2.0
#include "data/Backend.h"
#include "shell/MainWindow.h"
#include "shell/RoomsApplication.h"

#include <QCommandLineParser>
#include <QStandardPaths>

int main(int argc, char **argv)
{
    // These must be set before the application object is made.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);

    RoomsApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({
            { QStringLiteral("socket"), QStringLiteral("Talks to the server NAME."),
              QStringLiteral("NAME"), QStringLiteral("rooms") },
            { QStringLiteral("folder"), QStringLiteral("Keeps its state in DIR."),
              QStringLiteral("DIR"),
              QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) },
    });
    parser.process(application);

    Backend backend(parser.value(QStringLiteral("socket")), parser.value(QStringLiteral("folder")));
    MainWindow window(&backend);
    window.show();
    return QApplication::exec();
}
