// SPDX-License-Identifier: Apache-2.0
#include "GalleryApplication.h"

#include "GalleryQmlEngine.h"
#include "GalleryWindow.h"
#include "PageRegistry.h"
#include "Screenshots.h"
#include "looks/EmojiFiles.h"
#include "looks/FocusFrameStyle.h"
#include "looks/TextSettings.h"
#include "looks/ThemeSwitcher.h"
#include "pages/movies/StagedMovieSource.h"
#include "pages/painted/PaintedItemController.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/qml/OxaQmlTypes.h>
#include <UiElements/widgets/OxaMainWindow.h>

#include <QProcess>
#include <QQuickWindow>
#include <QTextStream>

namespace {

using Task = GalleryOptions::Task;

int print(const QString &text)
{
    QTextStream(stdout) << text;
    return EXIT_SUCCESS;
}

int fail(const QString &reason)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << reason << '\n';
    return EXIT_FAILURE;
}

/// Sets substitutes for the fonts that the library asks for.
void substituteFonts()
{
    QFont::insertSubstitution(QStringLiteral("Segoe UI"), QStringLiteral("Open Sans"));
    QFont::insertSubstitution(QStringLiteral("Consolas"), QStringLiteral("DejaVu Sans Mono"));
}

} // namespace

GalleryApplication::GalleryApplication(int &argc, char **argv)
    : OxaApplication(argc, argv), m_textSettings(new TextSettings(this))
{
    setApplicationName(QStringLiteral("uielements-gallery"));
    setApplicationVersion(QStringLiteral(UIELEMENTS_VERSION));
    setApplicationDisplayName(tr("UiElements Gallery"));
    setStyle(new FocusFrameStyle);
    OxaQmlEngine::setFactory([]() -> OxaQmlEngine * { return new GalleryQmlEngine; });
    substituteFonts();
    // QML among widgets is painted as they are, so that it needs no OpenGL.
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
}

// The base class leaves the engine to the event loop, which has ended.
GalleryApplication::~GalleryApplication() { delete m_engine; }

GalleryApplication *GalleryApplication::get()
{
    return qobject_cast<GalleryApplication *>(instance());
}

bool GalleryApplication::loadDocuments(const DocumentPaths &paths, QString &problem)
{
    const auto ownDocuments = ColorDocuments::read(DocumentPaths(), problem);
    auto documents = ColorDocuments::read(paths, problem);
    if (!documents || !ownDocuments)
        return false;
    documents->addFurniture(*ownDocuments);
    delete m_themeSwitcher;
    m_themeSwitcher = new ThemeSwitcher(*documents, this);
    return true;
}

int GalleryApplication::run(const GalleryOptions &options)
{
    switch (options.task) {
    case Task::PrintHelp:
        return print(options.message);
    case Task::Fail:
        return fail(options.message);
    case Task::ListPages:
        return print(pageNames().join(QLatin1Char('\n')) + QLatin1Char('\n'));
    case Task::ShowWindow:
    case Task::TakeScreenshots:
        break;
    }

    setArtworkFolder(options.artworkFolder);
    EmojiFiles::load(options.artworkFolder);
    QString problem;
    if (!loadDocuments(options.documents, problem))
        return fail(problem);
    if (options.task == Task::ShowWindow)
        return showWindow(options.pages.first());
    return Screenshots::take(options.pages, options.screenshotFolder, problem) ? EXIT_SUCCESS
                                                                               : fail(problem);
}

int GalleryApplication::showWindow(const QString &page)
{
    GalleryWindow window;
    window.showPage(page);
    window.show();
    return exec();
}

IOxaMovieProviderSource *GalleryApplication::getMovieProviderSource()
{
    if (!m_movieSource)
        m_movieSource = new StagedMovieSource(this);
    return m_movieSource;
}

void GalleryApplication::onQmlEngineCreated(OxaQmlEngine *engine)
{
    m_engine = engine;
    OxaQmlTypes::registerQmlTypes();
    qmlRegisterType<PaintedItemController>("Gallery", 1, 0, "PaintedItemController");
}

void GalleryApplication::restart()
{
    QProcess::startDetached(applicationFilePath(), arguments().mid(1));
    quit();
}

void GalleryApplication::registerMainWindowShortcuts(OxaMainWindow *window)
{
    // They work in all windows, and belong to the first.
    if (!getAppSignals()->shortcutExists(OxaAppSignals::Shortcut::OpenGlobalSearch))
        getAppSignals()->registerShortcuts(window, OxaShortcut::All);
}
