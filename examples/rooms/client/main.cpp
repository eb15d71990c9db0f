// SPDX-License-Identifier: Apache-2.0
#include "data/Backend.h"
#include "protocol/Literal.h"
#include "shell/MainWindow.h"
#include "shell/RoomsApplication.h"
#include "shell/Scenes.h"
#include "shell/Soak.h"

#include <QCommandLineParser>
#include <QDir>
#include <QProcess>
#include <QResource>
#include <QSettings>
#include <QStandardPaths>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#ifdef Q_OS_LINUX
#include <sys/prctl.h>

#include <csignal>
#endif

namespace {

/// The server of a client that was given none: the program "rooms-server" beside the client's. It
/// ends with this object, and on Linux also with a client that is killed.
class ServerProcess : public QProcess
{
public:
    ~ServerProcess() override { stop(); }

    void stop()
    {
        terminate();
        waitForFinished(2000);
    }

protected:
    void setupChildProcess() override
    {
#ifdef Q_OS_LINUX
        prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
    }
};

void addOptions(QCommandLineParser &parser)
{
    parser.addHelpOption();
    parser.addOptions({
            { u"socket"_s, u"Talk to the server NAME, instead of one of its own."_s, u"NAME"_s },
            { u"folder"_s, u"Keep settings, drafts and unsent messages in DIR."_s, u"DIR"_s,
              QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) },
            { u"theme"_s, u"Show system, light, dark or high-contrast colours."_s, u"THEME"_s },
            { u"right-to-left"_s, u"Mirror the windows."_s },
            { u"font-scale"_s, u"Show all text at PERCENT, 50 to 150."_s, u"PERCENT"_s },
            { u"screenshots"_s, u"Take pictures of ten scenes into DIR, and end."_s, u"DIR"_s },
            { u"artwork"_s, u"Draw emoji from emojis.rcc in DIR, which ./dev artwork fetches."_s,
              u"DIR"_s },
            { u"seed"_s, u"Make the conversations from NUMBER."_s, u"NUMBER"_s },
            { u"rate"_s, u"Let so many messages arrive in a second."_s, u"NUMBER"_s },
            { u"soak"_s, u"Do anything for MINUTES, and print what grows."_s, u"MINUTES"_s },
            { u"mailbox"_s, u"Show the mails of the mbox FILE as conversations."_s, u"FILE"_s },
    });
}

/// What is stored, changed by the options.
Settings settingsOf(const QCommandLineParser &parser)
{
    Settings settings = Settings::load();
    const QStringList themes { u"system"_s, u"light"_s, u"dark"_s, u"high-contrast"_s };
    const int theme = themes.indexOf(parser.value(u"theme"_s));
    if (theme >= 0)
        settings.theme = Settings::Theme(theme);
    if (parser.isSet(u"right-to-left"_s))
        settings.direction = Settings::Direction::RightToLeft;
    if (parser.isSet(u"font-scale"_s))
        settings.fontScale = qBound(50, parser.value(u"font-scale"_s).toInt(), 150);
    return settings;
}

/// Starts \a server with the socket called \a socket, and hands its options on to it.
void start(ServerProcess &server, const QString &socket, const QCommandLineParser &parser)
{
    QStringList options { u"--typing"_s, u"--socket"_s, socket };
    for (const QString &name : { u"seed"_s, u"rate"_s, u"mailbox"_s }) {
        if (parser.isSet(name))
            options << u"--"_s + name << parser.value(name);
    }
    if (parser.isSet(u"soak"_s) && !parser.isSet(u"rate"_s))
        options << u"--rate"_s << u"200"_s;
    server.setProcessChannelMode(QProcess::ForwardedChannels);
    server.start(QCoreApplication::applicationDirPath() + u"/rooms-server"_s, options);
    if (!server.waitForStarted())
        qWarning("There is no rooms-server beside the client: %s",
                 qUtf8Printable(server.errorString()));
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

    if (parser.isSet(u"artwork"_s)) {
        const QDir artwork(parser.value(u"artwork"_s));
        if (!QResource::registerResource(artwork.filePath(u"emojis.rcc"_s)))
            qWarning("There is no artwork in %s", qUtf8Printable(artwork.path()));
    }
    const QString folder = parser.value(u"folder"_s);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
    application.apply(settingsOf(parser), true);

    QString socket = parser.value(u"socket"_s);
    ServerProcess server;
    if (socket.isEmpty()) {
        socket = u"rooms-%1"_s.arg(QCoreApplication::applicationPid());
        start(server, socket, parser);
    }
    Backend backend(socket, folder);
    MainWindow window(&backend);
    window.show();
    if (parser.isSet(u"screenshots"_s)) {
        const auto stopServer = [&server] { server.stop(); };
        return takeScenes(&window, &backend, parser.value(u"screenshots"_s), stopServer) ? 0 : 1;
    }
    if (parser.isSet(u"soak"_s))
        return Soak(&window, &backend).run(parser.value(u"soak"_s).toInt());
    return QApplication::exec();
}
