// SPDX-License-Identifier: Apache-2.0
#include "SvgWidgetsPage.h"

#include "Metrics.h"
#include "PropertyControls.h"
#include "Specimens.h"
#include "widgets/Card.h"

#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>

#include <QVBoxLayout>

namespace {

using Choice = PropertyControls::Choice;

constexpr int widestPadding = 24;
constexpr int smallestIcon = 8;
constexpr int largestIcon = 40;
constexpr int narrowest = 48;
constexpr int widest = 152;
constexpr int widgetHeight = 40;
constexpr int pillHeight = 32;
constexpr int lowestPill = 24;
constexpr int highestPill = 64;

QString tr(const char *text) { return SvgWidgetsPage::tr(text); }

QString icon(const char *name) { return OxaSvgRenderer::resourcePath(QString::fromLatin1(name)); }

/// Returns \a own and other icons.
QVector<Choice> iconChoices(const Choice &own)
{
    return { { tr("None"), QString() },
             own,
             { tr("Camera"), icon("camera_24") },
             { tr("Person"), icon("person_24") } };
}

QVector<Choice> checkedIconChoices()
{
    return { { tr("None"), QString() },
             { tr("Star"), icon("star-filled_16") },
             { tr("Check"), icon("check_16") } };
}

QVector<Choice> innerIconChoices()
{
    return { { tr("None"), QString() },
             { tr("Plus"), icon("plus_16") },
             { tr("Check"), icon("check_12_w") } };
}

QVector<Choice> arrowChoices()
{
    return { { tr("None"), QString() },
             { tr("Up"), icon("arrow-up_8") },
             { tr("Down"), icon("arrow-down_8") } };
}

/// Returns sets for what stands on a card or on a button.
QVector<Choice> colorSetChoices()
{
    return { { tr("The text's"), QString() },
             { tr("Icon"), QStringLiteral("gallery-icon") },
             { tr("Link"), QStringLiteral("button-hyperlink-text") },
             { tr("Busy"), QStringLiteral("presence-busy") } };
}

QVector<Choice> fillChoices()
{
    return { { tr("None"), QString() },
             { tr("Pill"), QStringLiteral("gallery-pill-background") },
             { tr("Checked"), QStringLiteral("gallery-pill-checked-background") },
             { tr("Join"), QStringLiteral("gallery-join-button-background") } };
}

QVector<Choice> pillTextChoices()
{
    return { { tr("Pill"), QStringLiteral("oxa-contentTabViewButton-text") },
             { tr("Checked"), QStringLiteral("oxa-contentTabViewButtonChecked-text") },
             { tr("Busy"), QStringLiteral("presence-busy") } };
}

QVector<Choice> yesAndNo() { return { { tr("Yes"), true }, { tr("No"), false } }; }

QVector<Choice> alignmentChoices()
{
    using OxaEnum::Alignment;
    return { { tr("Left"), QVariant::fromValue(Alignment::Left) },
             { tr("Right"), QVariant::fromValue(Alignment::Right) },
             { tr("Top"), QVariant::fromValue(Alignment::Top) },
             { tr("Bottom"), QVariant::fromValue(Alignment::Bottom) } };
}

QVector<Choice> horAlignChoices()
{
    using OxaEnum::HorAlign;
    return { { tr("Left"), QVariant::fromValue(HorAlign::LeftAlign) },
             { tr("Centre"), QVariant::fromValue(HorAlign::CenterAlign) },
             { tr("Right"), QVariant::fromValue(HorAlign::RightAlign) } };
}

/// Adds the controls that all widgets with an icon have. The widgets have the icon \a own.
void addIconControls(PropertyControls *controls, const Choice &own)
{
    controls->addText("text");
    controls->addChoice("svgIcon", iconChoices(own));
    controls->addChoice("svgIconColorSet", colorSetChoices());
    controls->addSize("svgIconSize", smallestIcon, largestIcon);
    controls->addChoice("svgIconAlignment", alignmentChoices());
    controls->addChoice("textHorAlign", horAlignChoices());
    controls->addNumber("textLeftPadding", 0, widestPadding);
    controls->addNumber("textRightPadding", 0, widestPadding);
    controls->addPoint("svgIconTopLeftPadding", 0, widestPadding);
    controls->addPoint("svgIconBottomRightPadding", 0, widestPadding);
    controls->addChoice("innerSvgIcon", innerIconChoices());
    controls->addChoice("innerSvgIconColorSet", colorSetChoices());
    controls->addSize("innerSvgIconSize", smallestIcon, largestIcon);
}

void addElideControls(PropertyControls *controls)
{
    controls->addChoice("elideMode",
                        { { tr("Left"), Qt::ElideLeft },
                          { tr("Right"), Qt::ElideRight },
                          { tr("Middle"), Qt::ElideMiddle },
                          { tr("None"), Qt::ElideNone } });
    controls->addNumber("elidePadding", 0, widestPadding);
    controls->addNumber(tr("width"), narrowest, widest, widest,
                        [](QWidget *widget, const QVariant &width) {
                            widget->setFixedWidth(width.toInt());
                        });
}

/// Adds the controls that all buttons with an icon have, beside those for the icon.
void addButtonControls(PropertyControls *controls)
{
    controls->addChoice("svgIconChecked", checkedIconChoices());
    controls->addChoice(tr("setSvgIconVisible()"), yesAndNo(),
                        [](QWidget *widget, const QVariant &visible) {
                            qobject_cast<OxaSvgPushButton *>(widget)->setSvgIconVisible(
                                    visible.toBool());
                        });
    controls->addChoice("textFormat",
                        { { tr("Plain"), Qt::PlainText }, { tr("Rich"), Qt::RichText } });
}

void addAnchorControls(PropertyControls *controls)
{
    controls->addChoice("anchorSvgOn", arrowChoices());
    controls->addChoice("anchorSvgOff", arrowChoices());
    controls->addSize("anchorIconSize", smallestIcon, largestIcon);
    controls->addChoice("anchorSvgColorSet", colorSetChoices());
    controls->addNumber("anchorPadding", 0, widestPadding);
    controls->addPoint("anchorSvgOffset", -widestPadding, widestPadding);
    controls->addSwitch("isLeftAnchor");
    controls->addSwitch("alignAnchorIconToText");
    controls->addChoice(tr("setAnchorIconVisible()"), yesAndNo(),
                        [](QWidget *widget, const QVariant &visible) {
                            qobject_cast<OxaSvgAnchorButton *>(widget)->setAnchorIconVisible(
                                    visible.toBool());
                        });
}

void addPillControls(PropertyControls *controls)
{
    controls->addChoice("backgroundColorSet", fillChoices());
    controls->addChoice("backgroundColorSetChecked", fillChoices());
    controls->addChoice("textColorSet", pillTextChoices());
    controls->addChoice("textColorSetChecked", pillTextChoices());
    controls->addChoice("iconColorSet", pillTextChoices());
    controls->addChoice("iconColorSetChecked", pillTextChoices());
    controls->addNumber(tr("height"), lowestPill, highestPill, pillHeight,
                        [](QWidget *widget, const QVariant &height) {
                            widget->setFixedHeight(height.toInt());
                        });
}

/// Gives \a widget, a label or a button, room around its icon and its text.
template <typename Widget>
void setUpIconAndText(Widget *widget)
{
    widget->setSvgIconSize(QSize(Metrics::spacing, Metrics::spacing));
    widget->setTextLeftPadding(Metrics::small);
    widget->setTextRightPadding(Metrics::small);
    widget->setSvgIconTopLeftPadding(QPoint(Metrics::small, 0));
    widget->setElideMode(Qt::ElideRight);
    widget->setFixedSize(widest, widgetHeight);
}

void setUpButton(OxaSvgPushButton *button)
{
    button->setCheckable(true);
    button->setFocusRectColorSet(QStringLiteral("gallery-focus-border"));
    button->setFontToken(OxaFont::Token::TagLabelPrimary);
    button->setCSS(QStringLiteral("$backgroundColors: gallery-button-background;"
                                  "$borderColors: gallery-button-border;"
                                  "$borderRadius: 6;"
                                  "$textColors: gallery-button-text;"));
}

Card *makeCard(const QString &heading, const QString &explanation, Specimens *specimens,
               PropertyControls *controls)
{
    auto *card = new Card(heading, explanation);
    card->body()->addWidget(specimens);
    card->body()->addWidget(controls);
    return card;
}

} // namespace

SvgWidgetsPage::SvgWidgetsPage(QWidget *parent)
    : Page(tr("SVG widgets"),
           tr("Widgets with an icon beside their text, both in the theme's colours. A control is "
              "called by the property that it sets; Tab shows the focus."),
           parent)
{
    body()->addWidget(makeLabelCard());
    body()->addWidget(makeButtonCard());
    body()->addWidget(makeAnchorCard());
    body()->addWidget(makePillCard());
    body()->addStretch(1);
}

Card *SvgWidgetsPage::makeLabelCard()
{
    auto *specimens = new Specimens([]() -> QWidget * {
        auto *label = new OxaSvgLabel(tr("Reminders"));
        label->setFontToken(OxaFont::Token::BodySecondary);
        label->setCSS(QStringLiteral("$backgroundColors: gallery-chip-background;"
                                     "$borderColors: gallery-chip-border;"
                                     "$borderRadius: 6;"
                                     "$textColors: gallery-chip-text;"));
        label->setSvgIcon(icon("bell_24"));
        setUpIconAndText(label);
        return label;
    });
    auto *controls = new PropertyControls(specimens->widgets());
    addIconControls(controls, { tr("Bell"), icon("bell_24") });
    addElideControls(controls);
    return makeCard(tr("OxaSvgLabel"),
                    tr("A label with an icon. Without a colour set of its own the icon takes the "
                       "text's."),
                    specimens, controls);
}

Card *SvgWidgetsPage::makeButtonCard()
{
    auto *specimens = new Specimens([]() -> QWidget * {
        auto *button = new OxaSvgPushButton(tr("Favourite"));
        setUpButton(button);
        button->setSvgIcon(icon("star_16"));
        button->setSvgIconChecked(icon("star-filled_16"));
        setUpIconAndText(button);
        return button;
    });
    auto *controls = new PropertyControls(specimens->widgets());
    addIconControls(controls, { tr("Star"), icon("star_16") });
    addButtonControls(controls);
    addElideControls(controls);
    return makeCard(
            tr("OxaSvgPushButton"),
            tr("A button with an icon, and another one while it is checked. Its text may be "
               "rich."),
            specimens, controls);
}

Card *SvgWidgetsPage::makeAnchorCard()
{
    auto *specimens = new Specimens([]() -> QWidget * {
        auto *button = new OxaSvgAnchorButton(tr("Filter"));
        setUpButton(button);
        button->setSvgIcon(icon("filter_16"));
        button->setAnchorSvgOn(icon("arrow-up_8"));
        button->setAnchorSvgOff(icon("arrow-down_8"));
        button->setAnchorIconSize(QSize(8, 8));
        button->setAnchorPadding(Metrics::small);
        setUpIconAndText(button);
        return button;
    });
    auto *controls = new PropertyControls(specimens->widgets());
    addAnchorControls(controls);
    addIconControls(controls, { tr("Filter"), icon("filter_16") });
    addButtonControls(controls);
    addElideControls(controls);
    return makeCard(tr("OxaSvgAnchorButton"),
                    tr("A button with a second icon at one of its sides, which tells whether it is "
                       "checked."),
                    specimens, controls);
}

Card *SvgWidgetsPage::makePillCard()
{
    auto *specimens = new Specimens([]() -> QWidget * {
        auto *pill = new OxaPillTabButton(tr("Mentions"));
        pill->setBackgroundColorSet(QStringLiteral("gallery-pill-background"));
        pill->setBackgroundColorSetChecked(QStringLiteral("gallery-pill-checked-background"));
        pill->setFocusRectColorSet(QStringLiteral("gallery-focus-border"));
        pill->setSvgIcon(icon("mention_16"));
        pill->setFixedHeight(pillHeight);
        return pill;
    });
    auto *controls = new PropertyControls(specimens->widgets());
    addPillControls(controls);
    addIconControls(controls, { tr("Mention"), icon("mention_16") });
    addButtonControls(controls);
    return makeCard(tr("OxaPillTabButton"),
                    tr("A pill that restyles itself when it is toggled, round at any height. Its "
                       "greatest width is worked out when the icon changes, not when the text "
                       "does."),
                    specimens, controls);
}
