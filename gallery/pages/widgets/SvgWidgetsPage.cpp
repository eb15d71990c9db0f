// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "looks/Metrics.h"
#include "shell/Page.h"
#include "specimens/WidgetCard.h"

#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>

#include <QVBoxLayout>

namespace {

using Choice = PropertyControls::Choice;
using Choices = PropertyControls::Choices;
using WidgetCard::icon;

constexpr int widestPadding = 24;
constexpr int narrowest = 48;
constexpr int widest = 152;
constexpr int widgetHeight = 40;
constexpr int pillHeight = 32;

QString tr(const char *text) { return Page::tr(text); }

/// Gives \a widget, a label or a button, paddings around its icon and its text.
template <typename Widget>
Widget *setUp(Widget *widget, const char *iconName, const char *styleText)
{
    widget->setCSS(QString::fromLatin1(styleText));
    widget->setSvgIcon(icon(iconName));
    widget->setSvgIconSize(QSize(Metrics::spacing, Metrics::spacing));
    widget->setTextLeftPadding(Metrics::small);
    widget->setTextRightPadding(Metrics::small);
    widget->setSvgIconTopLeftPadding(QPoint(Metrics::small, 0));
    widget->setElideMode(Qt::ElideRight);
    widget->setFixedSize(widest, widgetHeight);
    return widget;
}

template <typename ButtonClass>
ButtonClass *makeButton(const QString &text, const char *iconName)
{
    auto *button = new ButtonClass(text);
    button->setCheckable(true);
    button->setFocusRectColorSet(QStringLiteral("gallery-focus-frame-inverse"));
    button->setFontToken(OxaFont::Token::TagLabelPrimary);
    return setUp(button, iconName,
                 "$backgroundColors: gallery-button-background;"
                 "$borderColors: gallery-button-border; $borderRadius: 6;"
                 "$textColors: gallery-button-text;");
}

/// Adds the controls of a widget whose own icon is \a own.
void addControls(PropertyControls *controls, const Choice &own)
{
    const Choices arrows = { { tr("None"), QString() },
                             { tr("Up"), icon("arrow-up_8") },
                             { tr("Down"), icon("arrow-down_8") } };
    controls->offer("ColorSet", WidgetCard::colorSets());
    controls->offer("svgIcon", WidgetCard::icons(own));
    controls->offer("anchorSvgOn", arrows);
    controls->offer("anchorSvgOff", arrows);
    controls->offer("svgIconChecked",
                    { { tr("None"), QString() },
                      { tr("Star"), icon("star-filled_16") },
                      { tr("Check"), icon("check_16") } });
    controls->offer("innerSvgIcon",
                    { { tr("None"), QString() },
                      { tr("Plus"), icon("plus_16") },
                      { tr("Check"), icon("check_12_w") } });
    // Those that a button takes; a label takes all.
    if (qobject_cast<QAbstractButton *>(controls->front()))
        controls->offer("textFormat",
                        { { tr("Plain"), Qt::PlainText }, { tr("Rich"), Qt::RichText } });
    controls->setRange("anchorSvgOffset", -widestPadding, widestPadding);
    controls->addProperty("text");
    controls->addAll();
}

/// Adds a choice for a function that shows and hides an icon.
template <typename ButtonClass>
void addVisibility(PropertyControls *controls, const QString &name,
                   void (ButtonClass::*setVisible)(bool))
{
    controls->addChoice(name, { { tr("Yes"), true }, { tr("No"), false } },
                        [setVisible](QWidget *widget, const QVariant &visible) {
                            (qobject_cast<ButtonClass *>(widget)->*setVisible)(visible.toBool());
                        });
}

void addLabel(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaSvgLabel"),
            tr("A label with an icon. Without a colour set of its own the icon takes the text's."),
            [] {
                auto *label = new OxaSvgLabel(tr("Reminders"));
                label->setFontToken(OxaFont::Token::BodySecondary);
                return setUp(label, "bell_24",
                             "$backgroundColors: gallery-chip-background;"
                             "$borderColors: gallery-chip-border; $borderRadius: 6;"
                             "$textColors: gallery-chip-text;");
            });
    addControls(controls, { tr("Bell"), icon("bell_24") });
    controls->addWidth(narrowest, widest);
}

void addButton(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaSvgPushButton"),
            tr("A button with an icon, and another one while it is checked. Its text may be "
               "rich: try <b>bold</b>."),
            [] {
                auto *button = makeButton<OxaSvgPushButton>(tr("Favourite"), "star_16");
                button->setSvgIconChecked(icon("star-filled_16"));
                return button;
            });
    addControls(controls, { tr("Star"), icon("star_16") });
    addVisibility(controls, tr("setSvgIconVisible()"), &OxaSvgPushButton::setSvgIconVisible);
    controls->addWidth(narrowest, widest);
}

void addAnchorButton(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaSvgAnchorButton"),
            tr("A button with a second icon at one of its sides, which tells whether it is "
               "checked."),
            [] {
                auto *button = makeButton<OxaSvgAnchorButton>(tr("Filter"), "filter_16");
                button->setAnchorSvgOn(icon("arrow-up_8"));
                button->setAnchorSvgOff(icon("arrow-down_8"));
                button->setAnchorIconSize(QSize(8, 8));
                button->setAnchorPadding(Metrics::small);
                return button;
            });
    addControls(controls, { tr("Filter"), icon("filter_16") });
    addVisibility(controls, tr("setSvgIconVisible()"), &OxaSvgPushButton::setSvgIconVisible);
    addVisibility(controls, tr("setAnchorIconVisible()"),
                  &OxaSvgAnchorButton::setAnchorIconVisible);
    controls->addWidth(narrowest, widest);
}

void addPill(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaPillTabButton"),
            tr("A pill that restyles itself when it is toggled, round at any height. Its maximum "
               "width is calculated when the icon changes, not when the text does."),
            [] {
                auto *pill = new OxaPillTabButton(tr("Mentions"));
                pill->setBackgroundColorSet(QStringLiteral("gallery-pill-background"));
                pill->setBackgroundColorSetChecked(
                        QStringLiteral("gallery-pill-checked-background"));
                pill->setFocusRectColorSet(QStringLiteral("gallery-focus-frame-inverse"));
                pill->setSvgIcon(icon("mention_16"));
                pill->setFixedHeight(pillHeight);
                return pill;
            });
    const Choices texts = { { tr("Pill"), QStringLiteral("oxa-contentTabViewButton-text") },
                            { tr("Checked"),
                              QStringLiteral("oxa-contentTabViewButtonChecked-text") },
                            { tr("Busy"), QStringLiteral("presence-busy") } };
    const Choices fills = { { tr("None"), QString() },
                            { tr("Pill"), QStringLiteral("gallery-pill-background") },
                            { tr("Checked"), QStringLiteral("gallery-pill-checked-background") },
                            { tr("Join"), QStringLiteral("gallery-join-button-background") } };
    for (const char *name : { "backgroundColorSet", "backgroundColorSetChecked" })
        controls->offer(name, fills);
    for (const char *name :
         { "textColorSet", "textColorSetChecked", "iconColorSet", "iconColorSetChecked" })
        controls->offer(name, texts);
    addControls(controls, { tr("Mention"), icon("mention_16") });
    addVisibility(controls, tr("setSvgIconVisible()"), &OxaSvgPushButton::setSvgIconVisible);
    controls->addHeight(24, 64);
}

} // namespace

Page *Pages::makeSvgWidgets(QWidget *parent)
{
    auto *page = new Page(
            tr("SVG widgets"),
            tr("Widgets with an icon beside their text, both in the theme's colours. A control is "
               "named after the property that it sets; Tab shows the focus."),
            parent);
    addLabel(*page);
    addButton(*page);
    addAnchorButton(*page);
    addPill(*page);
    page->body()->addStretch(1);
    return page;
}
