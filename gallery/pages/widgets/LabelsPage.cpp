// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "looks/Metrics.h"
#include "shell/Page.h"
#include "specimens/WidgetCard.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

namespace {

constexpr int narrowest = 64;
constexpr int widest = 392;
constexpr int firstWidth = 232;
constexpr int highest = 120;
constexpr int firstHeight = 40;

QString tr(const char *text) { return Page::tr(text); }

QWidget *makeSample()
{
    auto *label = new OxaLabel(tr("Quarterly review with the design and platform teams"));
    label->setFontToken(OxaFont::Token::BodySecondary);
    // With a background that shows its width.
    label->setCSS(QStringLiteral("$backgroundColors: gallery-code-background;"
                                 "$borderColors: gallery-card-border; $borderRadius: 4;"
                                 "$textColors: gallery-body-text;"
                                 "OxaLabel:focus { border: 2px solid $(gallery-focus-border); }"));
    label->setMargin(Metrics::small);
    label->setElideMode(Qt::ElideRight);
    label->setFixedSize(firstWidth, firstHeight);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    return label;
}

PropertyControls::Choices texts()
{
    return { { tr("One line"), tr("Quarterly review with the design and platform teams") },
             { tr("Lines"),
               tr("Eliding labels break their lines themselves: at words, anywhere, or not at all. "
                  "The last line that fits ends in an ellipsis, as in "
                  "averyveryverylongwordindeed.") },
             { tr("Links"),
               tr("The <a href=\"agenda\">agenda</a> is ready. Add your topics to the "
                  "<a href=\"minutes\">minutes</a> before noon.") },
             { tr("Arabic"), QStringLiteral("اجتماع الفريق الأسبوعي غدًا في الساعة العاشرة") },
             { tr("Hebrew"), QStringLiteral("פגישת הצוות השבועית מחר בשעה עשר בבוקר") } };
}

void addText(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaLabel"),
            tr("Select the text, right-click to select all of it, follow a link, or just click. "
               "Links have the colours of the theme."),
            makeSample);
    controls->addChoice(tr("setText()"), texts(), [](QWidget *widget, const QVariant &text) {
        widget->setProperty("text", text);
    });
    controls->addProperty("text");
    controls->addProperty("wordWrap");
    controls->addChoice(tr("updateWrapMode()"),
                        { { tr("Words"), QTextOption::WordWrap },
                          { tr("Anywhere"), QTextOption::WrapAnywhere },
                          { tr("Either"), QTextOption::WrapAtWordBoundaryOrAnywhere },
                          { tr("None"), QTextOption::NoWrap } },
                        [](QWidget *widget, const QVariant &mode) {
                            qobject_cast<OxaLabel *>(widget)->updateWrapMode(
                                    static_cast<QTextOption::WrapMode>(mode.toInt()));
                        });
    controls->setRange("elidePadding", 0, 96);
    controls->addAll();
    controls->addWidth(narrowest, widest);
    controls->addHeight(firstHeight, highest);
}

/// Colours the star of \a widget with its colour set.
void tint(QWidget *widget)
{
    auto *label = qobject_cast<OxaLabel *>(widget);
    const std::string name = label->property("pixmapColorSet").toString().toStdString();
    label->setPixmapColor(OxaThemeUtils::getColorSet(name, label->getThemeType()).normal);
}

void addPixmap(Page &page)
{
    const PropertyControls::Choices colors = {
        { tr("Accent"), QStringLiteral("gallery-accent") },
        { tr("Away"), QStringLiteral("presence-away") },
        { tr("Active"), QStringLiteral("presence-active") },
        { tr("Busy"), QStringLiteral("presence-busy") },
    };
    const auto make = [colors] {
        auto *label = new OxaLabel;
        label->setPixmap(WidgetCard::pixmap("star-filled_16", QSize(72, 72)));
        label->setProperty("pixmapColorSet", colors.front().value);
        QObject::connect(label, &OxaLabel::themeTypeChanged, label, [label] { tint(label); });
        tint(label);
        return label;
    };
    auto *controls = WidgetCard::add(page, tr("Pixmap"),
                                     tr("One shape, painted over with a colour set."), make);
    const auto apply = [](QWidget *widget, const QVariant &name) {
        widget->setProperty("pixmapColorSet", name);
        tint(widget);
    };
    controls->addChoice(tr("setPixmapColor()"), colors, apply);
}

} // namespace

Page *Pages::makeLabels(QWidget *parent)
{
    auto *page = new Page(
            tr("Labels"),
            tr("OxaLabel elides and wraps by itself, colours its links by the theme, and can be "
               "clicked."),
            parent);
    addText(*page);
    addPixmap(*page);
    page->body()->addStretch(1);
    return page;
}
