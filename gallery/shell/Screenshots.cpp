// SPDX-License-Identifier: Apache-2.0
#include "Screenshots.h"

#include "GalleryApplication.h"
#include "GalleryWindow.h"
#include "Page.h"
#include "PageStack.h"
#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "looks/ThemeSwitcher.h"
#include "widgets/ScrollArea.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QTextStream>

#include <algorithm>

namespace {

using Appearance = ThemeSwitcher::Appearance;

struct AppearanceName
{
    Appearance appearance;
    const char *name;
};
constexpr AppearanceName appearances[] = {
    { Appearance::Light, "light" },
    { Appearance::Dark, "dark" },
    { Appearance::HighContrast, "high-contrast" },
};

struct DirectionName
{
    Qt::LayoutDirection direction;
    const char *name;
};
constexpr DirectionName directions[] = {
    { Qt::LeftToRight, "ltr" },
    { Qt::RightToLeft, "rtl" },
};

constexpr int scales[] = { 1, 2 };

/// Writes with little compression: pictures of long pages have millions of pixels.
constexpr int quickly = 80;

QImage pictureOf(QWidget &window, int scale)
{
    QImage image(window.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    // A painter on an image has no direction, and would put texts on the wrong side.
    QPainter painter(&image);
    painter.setLayoutDirection(QGuiApplication::layoutDirection());
    window.render(&painter);
    return image;
}

/// Writes the pictures of one page in one look, at all scales.
bool takeScales(QWidget &window, const QDir &folder, const QString &name, QString &problem)
{
    for (const int scale : scales) {
        const QString path = folder.filePath(QStringLiteral("%1@%2x.png").arg(name).arg(scale));
        if (!pictureOf(window, scale).save(path, "PNG", quickly)) {
            problem = QCoreApplication::translate("Screenshots", "cannot write %1").arg(path);
            return false;
        }
        QTextStream(stdout) << path << '\n';
    }
    return true;
}

/// Makes \a window high enough for its whole page.
void showWholePage(GalleryWindow &window)
{
    window.resize(Metrics::windowWidth, Metrics::windowHeight);
    // A new layout may make the page higher: cards that fitted its height then fit its width.
    constexpr int tries = 4;
    for (int i = 0; i < tries; ++i) {
        QCoreApplication::processEvents();
        const auto *area = window.findChild<PageStack *>()
                                   ->currentWidget()
                                   ->findChild<ScrollArea *>(QString(), Qt::FindDirectChildrenOnly);
        if (area->verticalScrollBar()->maximum() == 0)
            return;
        window.resize(window.width(), window.height() + area->verticalScrollBar()->maximum());
    }
    QCoreApplication::processEvents();
}

/// Writes the pictures of \a pages in one look, whose name is \a look.
bool takePages(GalleryWindow &window, const QStringList &pages, const QDir &folder,
               const QString &look, QString &problem)
{
    for (const QString &page : pages) {
        window.showPage(page);
        showWholePage(window);
        static_cast<Page *>(window.findChild<PageStack *>()->currentWidget())->showForPicture();
        if (!takeScales(window, folder, page + QLatin1Char('-') + look, problem))
            return false;
    }
    return true;
}

/// Writes the pictures of \a pages in one direction, in all appearances.
bool takeAppearances(GalleryWindow &window, const QStringList &pages, const QDir &folder,
                     const DirectionName &direction, QString &problem)
{
    const GalleryApplication *application = GalleryApplication::get();
    application->textSettings()->setDirection(direction.direction);
    for (const auto &[appearance, name] : appearances) {
        application->themeSwitcher()->setAppearance(appearance);
        const QString look = QStringLiteral("%1-%2").arg(QLatin1String(name),
                                                         QLatin1String(direction.name));
        if (!takePages(window, pages, folder, look, problem))
            return false;
    }
    return true;
}

} // namespace

bool Screenshots::take(const QStringList &pages, const QString &folder, QString &problem)
{
    const QDir directory(folder);
    if (!directory.mkpath(QStringLiteral("."))) {
        problem = QCoreApplication::translate("Screenshots", "cannot make the folder %1")
                          .arg(folder);
        return false;
    }

    GalleryWindow window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    return std::all_of(std::begin(directions), std::end(directions),
                       [&window, &pages, &directory, &problem](const DirectionName &direction) {
                           return takeAppearances(window, pages, directory, direction, problem);
                       });
}
