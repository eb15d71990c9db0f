// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "looks/Metrics.h"
#include "shell/Page.h"
#include "specimens/WidgetCard.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"

#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QIcon>
#include <QVBoxLayout>

namespace {

using Choices = PropertyControls::Choices;

constexpr QSize iconSize(16, 16);
constexpr QSize pictureSize(17, 17);
constexpr int narrowest = 48;
constexpr int widest = 208;
constexpr int firstWidth = 144;
constexpr int customInset = 5;

QString tr(const char *text) { return Page::tr(text); }

/// Gives \a button an icon with a picture for the checked state, in the colours of its set.
void tint(OxaPushButton *button)
{
    const std::string name = button->property("iconColorSet").toString().toStdString();
    const OxaColorSet colors = OxaThemeUtils::getColorSet(name, button->getThemeType());
    QIcon icon;
    icon.addPixmap(WidgetCard::pixmap("star_16", iconSize), QIcon::Normal, QIcon::Off);
    icon.addPixmap(WidgetCard::pixmap("star-filled_16", iconSize), QIcon::Normal, QIcon::On);
    button->setIcon(icon);
    button->setIconColor(colors.normal, QIcon::Normal, QIcon::Off);
    button->setIconColor(colors.checked, QIcon::Normal, QIcon::On);
}

QWidget *makePushButton()
{
    OxaPushButton *button = Buttons::make(tr("Favourite"));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setCheckable(true);
    button->setIconSize(iconSize);
    button->setElideMode(Qt::ElideRight);
    button->setElidePadding(Metrics::margin);
    button->setLongPressEnabled(true);
    button->setFixedWidth(firstWidth);
    button->setUniqueElementId(QStringLiteral("message.favourite"));
    button->setProperty("iconColorSet", QStringLiteral("gallery-icon"));
    QObject::connect(button, &OxaPushButton::themeTypeChanged, button, [button] { tint(button); });
    tint(button);
    return button;
}

void addTexts(PropertyControls *controls, const QString &shortText)
{
    controls->addChoice(tr("setText()"),
                        { { tr("Short"), shortText },
                          { tr("Long"), tr("Invite the whole platform team to this space") },
                          { tr("Arabic"), QStringLiteral("انضم إلى الاجتماع الأسبوعي للفريق") },
                          { tr("Hebrew"), QStringLiteral("הצטרפות לפגישת הצוות השבועית") } },
                        [](QWidget *widget, const QVariant &text) {
                            widget->setProperty("text", text);
                        });
    controls->addProperty("text");
}

void addLooks(PropertyControls *controls)
{
    controls->addChoice(tr("setCSS()"),
                        { { tr("Plain"), Buttons::plain() },
                          { tr("Accent"), Buttons::accent() },
                          { tr("Quiet"), Buttons::quiet() },
                          { tr("Leave"), Buttons::leave() },
                          { tr("Toggle"), Buttons::toggle() } },
                        [](QWidget *widget, const QVariant &look) {
                            qobject_cast<OxaPushButton *>(widget)->setCSS(look.toString());
                        });
    controls->addProperty("flat");
}

void addPictures(PropertyControls *controls)
{
    controls->addChoice(tr("setIconColor()"),
                        { { tr("Text"), QStringLiteral("gallery-icon") },
                          { tr("Accent"), QStringLiteral("gallery-accent") },
                          { tr("Busy"), QStringLiteral("presence-busy") } },
                        [](QWidget *widget, const QVariant &name) {
                            widget->setProperty("iconColorSet", name);
                            tint(qobject_cast<OxaPushButton *>(widget));
                        });
    const auto setPixmap = [](QWidget *widget, const QVariant &isShown) {
        const QPixmap bell = WidgetCard::pixmap("bell_24", { 28, 28 });
        qobject_cast<OxaPushButton *>(widget)->setPixmap(isShown.toBool() ? bell : QPixmap());
        widget->update();
    };
    controls->addChoice(tr("setPixmap()"), { { tr("None"), false }, { tr("Bell"), true } },
                        setPixmap);
    const auto show = [](QWidget *widget, const QVariant &isShown) {
        qobject_cast<OxaPushButton *>(widget)->setPixmapIconVisibility(isShown.toBool());
        widget->update();
    };
    controls->addChoice(tr("setPixmapIconVisibility()"),
                        { { tr("Yes"), true }, { tr("No"), false } }, show);
}

void addRoles(PropertyControls *controls)
{
    controls->offer("accessibleRole",
                    { { tr("PushButton"), QAccessible::PushButton },
                      { tr("Link"), QAccessible::Link },
                      { tr("MenuItem"), QAccessible::MenuItem } });
}

void addPushButton(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaPushButton"),
            tr("Click it, hold it down for half a second, click with the right button, or tab "
               "through. The icon has a picture for each state, painted over with a colour set; a "
               "pixmap lies under the background, and shows in the quiet look."),
            makePushButton);
    controls->offer("ColorSet", WidgetCard::colorSets());
    controls->setRange("elidePadding", 0, 96);
    addTexts(controls, tr("Favourite"));
    addLooks(controls);
    addPictures(controls);
    addRoles(controls);
    controls->addAll();
    controls->addWidth(narrowest, widest);
}

QWidget *makeUnderlineButton()
{
    auto *button = new OxaUnderlineButton;
    button->setText(tr("Messages"));
    button->setFontToken(OxaFont::Token::TagLabelPrimary);
    button->setCheckable(true);
    button->setElideMode(Qt::ElideRight);
    button->setFixedSize(128, 36);
    button->setUnderlineColorSet(QStringLiteral("gallery-accent"));
    button->setShowUnreadIndicator(true);
    button->setAnchorIcon(WidgetCard::icon("arrow-down_8"));
    return button;
}

void offerPictures(PropertyControls *controls)
{
    const QImage picture = QImage(QStringLiteral(":/emojis/1f600.svg"))
                                   .scaled(2 * pictureSize, Qt::KeepAspectRatio,
                                           Qt::SmoothTransformation);
    controls->offer("leftIcon", { { tr("None"), QImage() }, { tr("A face"), picture } });
    controls->offer("anchorIcon",
                    { { tr("None"), QString() },
                      { tr("Down"), WidgetCard::icon("arrow-down_8") },
                      { tr("Up"), WidgetCard::icon("arrow-up_8") } });
}

void addUnderlineButton(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaUnderlineButton"),
            tr("A tab that is underlined while it is checked or held down, with room for a dot or "
               "an image before its text and a small icon after it. The dot wins over the image."),
            makeUnderlineButton);
    addTexts(controls, tr("Messages"));
    addRoles(controls);
    controls->offer("ColorSet", WidgetCard::colorSets());
    offerPictures(controls);
    controls->setRange("borderWidth", 1, 8);
    controls->setRange("bottomPadding", 0, 16);
    controls->addAll();
    const auto underline = [](QWidget *widget, const QVariant &name) {
        qobject_cast<OxaUnderlineButton *>(widget)->setUnderlineColorSet(name.toString());
        widget->update();
    };
    // Setting the colours applies the line's width.
    controls->addChoice(tr("setUnderlineColorSet()"),
                        { { tr("Accent"), QStringLiteral("gallery-accent") },
                          { tr("Busy"), QStringLiteral("presence-busy") } },
                        underline);
    controls->addWidth(narrowest, widest);
}

void addToggleButton(Page &page)
{
    const auto make = [] {
        auto *button = new OxaToggleButton;
        button->setText(tr("Microphone"));
        Buttons::setUp(*button);
        button->setCSS(Buttons::toggle());
        button->setToolTip(tr("Mute"), tr("Unmute"));
        return button;
    };
    auto *controls = WidgetCard::add(
            page, tr("OxaToggleButton"),
            tr("A flat button with a tool tip for each state. A click toggles it and leaves the "
               "tool tip alone: the application sets what its new state is called."),
            make);
    const auto setChecked = [](QWidget *widget, const QVariant &isChecked) {
        qobject_cast<OxaToggleButton *>(widget)->setChecked(isChecked.toBool());
    };
    auto *inUse = controls->front();
    controls->addChoice(tr("setChecked()"), PropertyControls::noAndYes(), setChecked);
    controls->addReading(tr("toolTip"), [inUse] { return inUse->toolTip(); });
    controls->addReading(tr("accessibleName"), [inUse] { return inUse->accessibleName(); });
}

/// Adds a button for an application whose style draws the focus frames: a button checks this once,
/// when it is made.
void addGlobalFocus(Page &page)
{
    const auto make = [] {
        constexpr char property[] = "useGlobalFocusBorders";
        const QVariant before = qApp->property(property);
        qApp->setProperty(property, true);
        QWidget *button = Buttons::make(tr("The style's frame"));
        qApp->setProperty(property, before);
        return button;
    };
    auto *controls = WidgetCard::add(
            page, tr("Focus frames of the style"),
            tr("With the application's property useGlobalFocusBorders the style draws the frame "
               "that shows the keyboard's focus. Press Tab, or give the button the focus below."),
            make);
    const auto setRect = [](QWidget *widget, const QVariant &isSmaller) {
        const QRect rect = widget->rect().adjusted(customInset, customInset, -customInset,
                                                   -customInset);
        widget->setProperty("customFocusRect", isSmaller.toBool() ? QVariant(rect) : QVariant());
        widget->update();
    };
    controls->addChoice(tr("customFocusRect"),
                        { { tr("The button's"), false }, { tr("A smaller one"), true } }, setRect);
}

} // namespace

Page *Pages::makeButtons(QWidget *parent)
{
    auto *page = new Page(
            tr("Buttons"),
            tr("OxaPushButton takes its colours from the theme, elides its text, and tells more "
               "than clicks; OxaUnderlineButton and OxaToggleButton are made from it."),
            parent);
    addPushButton(*page);
    addUnderlineButton(*page);
    addToggleButton(*page);
    addGlobalFocus(*page);
    page->body()->addStretch(1);
    return page;
}
