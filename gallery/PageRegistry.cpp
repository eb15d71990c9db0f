// SPDX-License-Identifier: Apache-2.0
#include "PageRegistry.h"

#include "pages/ColoursPage.h"
#include "pages/LabelsPage.h"
#include "pages/StyleTextPage.h"
#include "pages/TypographyPage.h"
#include "pages/buttons/ButtonsPage.h"
#include "pages/emoji/EmojiTextPage.h"
#include "pages/focus/FocusPage.h"
#include "pages/icons/IconsPage.h"
#include "pages/layouts/LayoutsPage.h"
#include "pages/lists/ListsPage.h"
#include "pages/signals/SignalsPage.h"
#include "pages/svgwidgets/SvgWidgetsPage.h"

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
    static const std::vector<PageEntry> entries = {
        entry("colours", tr("Colours"), foundations, make<ColoursPage>),
        entry("style-text", tr("Style text"), foundations, make<StyleTextPage>),
        entry("typography", tr("Typography"), foundations, make<TypographyPage>),
        entry("icons", tr("Icons"), foundations, make<IconsPage>),
        entry("labels", tr("Labels"), widgets, make<LabelsPage>),
        entry("buttons", tr("Buttons"), widgets, make<ButtonsPage>),
        entry("svg-widgets", tr("SVG widgets"), widgets, make<SvgWidgetsPage>),
        entry("emoji-text", tr("Emoji text"), widgets, make<EmojiTextPage>),
        entry("lists", tr("Lists"), models, make<ListsPage>),
        entry("layouts", tr("Layouts"), behaviour, make<LayoutsPage>),
        entry("focus", tr("Focus"), behaviour, make<FocusPage>),
        entry("signals", tr("Signals"), behaviour, make<SignalsPage>),
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
