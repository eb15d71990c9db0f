// SPDX-License-Identifier: Apache-2.0
#include "GalleryOptions.h"

#include "PageRegistry.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

const QString colorsOption = QStringLiteral("colors");
const QString setsOption = QStringLiteral("sets");
const QString invertedSetsOption = QStringLiteral("inverted-sets");
const QString pageOption = QStringLiteral("page");
const QString listPagesOption = QStringLiteral("list-pages");
const QString screenshotsOption = QStringLiteral("screenshots");
const QString artworkOption = QStringLiteral("artwork");

QString tr(const char *text) { return QCoreApplication::translate("GalleryOptions", text); }

void declareOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(tr("Shows the elements of the UiElements library at work."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QString file = QStringLiteral("FILE");
    parser.addOptions({
            { colorsOption, tr("Take the palette from FILE."), file },
            { setsOption, tr("Take the colour sets of the light appearance from FILE."), file },
            { invertedSetsOption, tr("Take those of the dark appearance from FILE."), file },
            { pageOption, tr("Open the page called NAME, or write pictures of it alone."),
              QStringLiteral("NAME") },
            { listPagesOption, tr("Print the names of the pages.") },
            { screenshotsOption, tr("Write pictures of the pages to the folder DIR."),
              QStringLiteral("DIR") },
            { artworkOption, tr("Take downloaded pictures from the folder DIR."),
              QStringLiteral("DIR") },
    });
}

GalleryOptions withMessage(GalleryOptions::Task task, const QString &message)
{
    GalleryOptions options;
    options.task = task;
    options.message = message;
    return options;
}

GalleryOptions failure(const QString &message)
{
    return withMessage(GalleryOptions::Task::Fail, message);
}

/// Sets are only valid with their palette, so a user's documents are given together.
bool readDocumentPaths(const QCommandLineParser &parser, DocumentPaths &paths)
{
    const bool isSet = parser.isSet(colorsOption);
    if (parser.isSet(setsOption) != isSet || parser.isSet(invertedSetsOption) != isSet)
        return false;
    if (isSet) {
        paths = DocumentPaths::ofUser(parser.value(colorsOption), parser.value(setsOption),
                                      parser.value(invertedSetsOption));
    }
    return true;
}

GalleryOptions optionsOf(const QCommandLineParser &parser)
{
    GalleryOptions options;
    if (!readDocumentPaths(parser, options.documents))
        return failure(tr("--colors, --sets and --inverted-sets go together"));

    options.pages = parser.isSet(pageOption) ? QStringList(parser.value(pageOption)) : pageNames();
    if (!findPageEntry(options.pages.first()))
        return failure(
                tr("there is no page called %1; see --list-pages").arg(options.pages.first()));

    if (parser.isSet(artworkOption))
        options.artworkFolder = parser.value(artworkOption);
    if (parser.isSet(artworkOption) && !QFileInfo(options.artworkFolder).isDir())
        return failure(tr("there is no folder called %1").arg(options.artworkFolder));

    if (parser.isSet(screenshotsOption)) {
        options.task = GalleryOptions::Task::TakeScreenshots;
        options.screenshotFolder = parser.value(screenshotsOption);
    } else if (parser.isSet(listPagesOption)) {
        options.task = GalleryOptions::Task::ListPages;
    }
    return options;
}

} // namespace

QString GalleryOptions::defaultArtworkFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
            + QStringLiteral("/uielements/artwork");
}

GalleryOptions GalleryOptions::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(arguments))
        return failure(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        return withMessage(Task::PrintHelp, parser.helpText());
    if (parser.isSet(QStringLiteral("version"))) {
        return withMessage(Task::PrintHelp,
                           QCoreApplication::applicationName() + QLatin1Char(' ')
                                   + QCoreApplication::applicationVersion() + QLatin1Char('\n'));
    }
    if (!parser.positionalArguments().isEmpty())
        return failure(tr("unexpected argument %1").arg(parser.positionalArguments().constFirst()));
    return optionsOf(parser);
}

void GalleryOptions::preparePlatform(int argc, const char *const *argv)
{
    const auto opensNoWindow = [](const char *argument) {
        const QByteArray text(argument);
        return text.startsWith("--screenshots") || text == "--list-pages" || text == "--help"
                || text == "-h" || text == "--version" || text == "-v";
    };
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")
        && std::any_of(argv + 1, argv + argc, opensNoWindow))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}
