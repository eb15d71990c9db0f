// SPDX-License-Identifier: Apache-2.0
#include "PageRegistry.h"

#include "pages/colours/ColoursPage.h"
#include "pages/focus/FocusPage.h"
#include "pages/icons/IconsPage.h"
#include "pages/layouts/LayoutsPage.h"
#include "pages/popups/PopupsPage.h"
#include "pages/signals/SignalsPage.h"
#include "pages/styletext/StyleTextPage.h"
#include "pages/widgets/Pages.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString tr(const char *text) { return QCoreApplication::translate("PageRegistry", text); }

template <typename PageClass>
Page *make(QWidget *parent)
{
    return new PageClass(parent);
}

PageEntry entry(const char *name, const QString &title, const QString &group,
                std::function<Page *(QWidget *)> makePage)
{
    return { QString::fromLatin1(name), title, group, std::move(makePage) };
}

} // namespace

const std::vector<PageEntry> &pageEntries()
{
    static const QString foundations = tr("Foundations");
    static const QString widgets = tr("Widgets");
    static const QString models = tr("Models");
    static const QString behaviour = tr("Behaviour");
    static const QString qml = tr("QML");
    static const std::vector<PageEntry> entries = {
        entry("colours", tr("Colours"), foundations, make<ColoursPage>),
        entry("style-text", tr("Style text"), foundations, make<StyleTextPage>),
        entry("typography", tr("Typography"), foundations, Pages::makeTypography),
        entry("icons", tr("Icons"), foundations, make<IconsPage>),
        entry("labels", tr("Labels"), widgets, Pages::makeLabels),
        entry("buttons", tr("Buttons"), widgets, Pages::makeButtons),
        entry("svg-widgets", tr("SVG widgets"), widgets, Pages::makeSvgWidgets),
        entry("emoji-text", tr("Emoji text"), widgets, Pages::makeEmojiText),
        entry("forms", tr("Forms"), widgets, Pages::makeForms),
        entry("tabs", tr("Tabs and menus"), widgets, Pages::makeTabs),
        entry("windows", tr("Windows and dialogs"), widgets, Pages::makeWindows),
        entry("popups", tr("Popups"), widgets, make<PopupsPage>),
        entry("notices", tr("Notices"), widgets, Pages::makeNotices),
        entry("long-list", tr("Long list"), widgets, Pages::makeLongList),
        entry("movies", tr("Movies"), widgets, Pages::makeMovies),
        entry("lists", tr("Lists"), models, Pages::makeLists),
        entry("layouts", tr("Layouts"), behaviour, make<LayoutsPage>),
        entry("focus", tr("Focus"), behaviour, make<FocusPage>),
        entry("signals", tr("Signals"), behaviour, make<SignalsPage>),
        entry("painted-items", tr("Painted items"), qml, Pages::makePaintedItems),
        entry("qml-views", tr("QML views"), qml, Pages::makeQmlViews),
        entry("hover-cards", tr("Hover cards"), qml, Pages::makeHoverCards),
    };
    return entries;
}

const PageEntry *findPageEntry(const QString &name)
{
    const auto &entries = pageEntries();
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&name](const PageEntry &entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

QStringList pageNames()
{
    QStringList names;
    for (const PageEntry &entry : pageEntries())
        names.append(entry.name);
    return names;
}
