// SPDX-License-Identifier: Apache-2.0
#include "data/Backend.h"
#include "shell/MainWindow.h"
#include "shell/RoomsApplication.h"
#include "shell/Scenes.h"
#include "shell/ServerProcess.h"
#include "shell/Soak.h"

#include <QCommandLineParser>
#include <QDir>
#include <QResource>
#include <QSettings>
#include <QStandardPaths>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <memory>

namespace {

/// Options that the client hands on to its own server.
const QStringList serverOptions { QStringLiteral("seed"), QStringLiteral("rate"),
                                  QStringLiteral("mailbox") };

void addOptions(QCommandLineParser &parser)
{
    const auto add = [&parser](const char *name, const char *description, const char *value) {
        parser.addOption({ QLatin1String(name), QLatin1String(description), QLatin1String(value) });
    };
    parser.addHelpOption();
    add("socket", "Talk to the server NAME, instead of one of its own.", "NAME");
    add("folder", "Keep settings, drafts and unsent messages in DIR.", "DIR");
    add("theme", "Show system, light, dark or high-contrast colours.", "THEME");
    parser.addOption({ QStringLiteral("right-to-left"), QStringLiteral("Mirror the windows.") });
    add("font-scale", "Show all text at PERCENT, 50 to 150.", "PERCENT");
    add("screenshots", "Take pictures of ten scenes into DIR, and end.", "DIR");
    add("artwork", "Draw emoji from the file emojis.rcc in DIR, which ./dev artwork fetches.",
        "DIR");
    add("seed", "Make the conversations from NUMBER.", "NUMBER");
    add("rate", "Let so many messages arrive in a second.", "NUMBER");
    add("soak", "Do anything for MINUTES, and print what grows.", "MINUTES");
    add("mailbox", "Show the mails of the mbox FILE as conversations.", "FILE");
}

/// What is stored, changed by the options.
Settings settingsOf(const QCommandLineParser &parser)
{
    Settings settings = Settings::load();
    const QStringList themes { QStringLiteral("system"), QStringLiteral("light"),
                               QStringLiteral("dark"), QStringLiteral("high-contrast") };
    const int theme = themes.indexOf(parser.value(QStringLiteral("theme")));
    if (theme >= 0)
        settings.theme = Settings::Theme(theme);
    if (parser.isSet(QStringLiteral("right-to-left")))
        settings.direction = Settings::Direction::RightToLeft;
    if (parser.isSet(QStringLiteral("font-scale")))
        settings.fontScale = qBound(50, parser.value(QStringLiteral("font-scale")).toInt(), 150);
    return settings;
}

QString folderOf(const QCommandLineParser &parser)
{
    const QString folder = parser.value(QStringLiteral("folder"));
    return folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                            : folder;
}

std::unique_ptr<ServerProcess> startServer(const QCommandLineParser &parser, const QString &socket)
{
    QStringList options { QStringLiteral("--typing") };
    for (const QString &name : serverOptions) {
        if (parser.isSet(name))
            options << QStringLiteral("--") + name << parser.value(name);
    }
    if (parser.isSet(QStringLiteral("soak")) && !parser.isSet(QStringLiteral("rate")))
        options << QStringLiteral("--rate") << QStringLiteral("200");
    return std::make_unique<ServerProcess>(socket, options);
}

} // namespace

int main(int argc, char **argv)
{
#ifdef __GLIBC__
    // Pictures of their own pages, which go back to the system. By itself, the C library puts all
    // that are smaller than any freed before between the small blocks, where they leave gaps.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    // These must be set before the application object is made.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);

    RoomsApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);

    if (parser.isSet(QStringLiteral("artwork"))) {
        const QDir artwork(parser.value(QStringLiteral("artwork")));
        if (!QResource::registerResource(artwork.filePath(QStringLiteral("emojis.rcc"))))
            qWarning("There is no artwork in %s", qUtf8Printable(artwork.path()));
    }
    const QString folder = folderOf(parser);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
    application.apply(settingsOf(parser), true);

    QString socket = parser.value(QStringLiteral("socket"));
    std::unique_ptr<ServerProcess> server;
    if (socket.isEmpty()) {
        socket = QStringLiteral("rooms-%1").arg(QCoreApplication::applicationPid());
        server = startServer(parser, socket);
    }
    Backend backend(socket, folder);
    MainWindow window(&backend);
    window.show();
    if (parser.isSet(QStringLiteral("screenshots"))) {
        Scenes scenes(&window, &backend, parser.value(QStringLiteral("screenshots")), [&server] {
            if (server)
                server->stop();
        });
        return scenes.takeAll() ? 0 : 1;
    }
    if (parser.isSet(QStringLiteral("soak")))
        return Soak(&window, &backend).run(parser.value(QStringLiteral("soak")).toInt());
    return QApplication::exec();
}
