// SPDX-License-Identifier: Apache-2.0
#include "ButtonsPage.h"

#include "ButtonLooks.h"
#include "FocusCard.h"
#include "IconsCard.h"
#include "Metrics.h"
#include "PressesCard.h"
#include "StatesCard.h"
#include "ToggleCard.h"
#include "UnderlineCard.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/ControlRow.h"
#include "widgets/Labels.h"
#include "widgets/LineEdit.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

namespace {

constexpr int minimumSampleWidth = 64;
constexpr int maximumSampleWidth = 352;
constexpr int elidedWidth = 176;

OxaPushButton *makeSample(const QString &text)
{
    auto *button = new OxaPushButton(text);
    ButtonLooks::apply(*button);
    return button;
}

} // namespace

ButtonsPage::ButtonsPage(QWidget *parent)
    : Page(tr("Buttons"),
           tr("OxaPushButton takes its colours from the theme, elides its text, and tells more "
              "than clicks; OxaUnderlineButton and OxaToggleButton are made from it."),
           parent)
{
    ColumnsLayout *cards = makeColumns();
    cards->addWideWidget(new StatesCard);
    cards->addWidget(makeLooksCard());
    cards->addWidget(makeElisionCard());
    cards->addWidget(new PressesCard);
    cards->addWidget(new IconsCard);
    cards->addWideWidget(new UnderlineCard);
    cards->addWidget(new FocusCard);
    cards->addWidget(new ToggleCard);
    cards->addWidget(makeDirectionCard());
    cards->addWidget(makeRichTextCard());
    cards->addWideWidget(makeIdentityCard());
    body()->addStretch(1);
}

Card *ButtonsPage::makeLooksCard()
{
    auto *card = new Card(tr("Looks"), tr("One button, and the style text that it wears."));
    OxaPushButton *button = makeSample(tr("Start a meeting"));
    const QStringList looks = { ButtonLooks::plain(), ButtonLooks::accent(), ButtonLooks::quiet(),
                                ButtonLooks::leave() };
    auto *look = new SegmentedControl({ tr("Plain"), tr("Accent"), tr("Quiet"), tr("Leave") });
    look->setCurrentIndex(1);
    button->setCSS(looks[1]);
    connect(look, &SegmentedControl::chosen, button,
            [button, looks](int i) { button->setCSS(looks[i]); });
    auto *enabled = new SegmentedControl({ tr("Disabled"), tr("Enabled") });
    enabled->setCurrentIndex(1);
    connect(enabled, &SegmentedControl::chosen, button,
            [button](int i) { button->setEnabled(i == 1); });
    auto *flat = new SegmentedControl({ tr("Raised"), tr("Flat") });
    connect(flat, &SegmentedControl::chosen, button, [button](int i) { button->setFlat(i == 1); });

    card->body()->addWidget(button);
    card->body()->addStretch(1);
    card->body()->addWidget(new ControlRow(tr("Look"), look));
    card->body()->addWidget(new ControlRow(tr("State"), enabled));
    card->body()->addWidget(new ControlRow(tr("Frame"), flat));
    return card;
}

Card *ButtonsPage::makeElisionCard()
{
    auto *card = new Card(tr("Elision"), tr("A text is elided where there is no room for it."));
    OxaPushButton *button = makeSample(tr("Invite the whole platform team to this space"));
    button->setElideMode(Qt::ElideRight);
    button->setElidePadding(32);

    // In the order of Qt::TextElideMode.
    auto *mode = new SegmentedControl({ tr("Left"), tr("Right"), tr("Middle"), tr("None") });
    mode->setCurrentIndex(Qt::ElideRight);
    connect(mode, &SegmentedControl::chosen, button,
            [button](int i) { button->setElideMode(static_cast<Qt::TextElideMode>(i)); });
    auto *width = new Slider(minimumSampleWidth, maximumSampleWidth, 208);
    button->setFixedWidth(width->value());
    connect(width, &QSlider::valueChanged, button,
            [button](int value) { button->setFixedWidth(value); });
    auto *padding = new Slider(0, 96, button->getElidePadding());
    connect(padding, &QSlider::valueChanged, button, &OxaPushButton::setElidePadding);

    card->body()->addWidget(button);
    card->body()->addStretch(1);
    card->body()->addWidget(new ControlRow(tr("Mode"), mode));
    card->body()->addWidget(new ControlRow(tr("Width"), width));
    card->body()->addWidget(new ControlRow(tr("Padding"), padding));
    return card;
}

Card *ButtonsPage::makeRichTextCard()
{
    auto *card = new Card(tr("Rich text"),
                          tr("A button that paints its text itself, OxaSvgPushButton, can read it "
                             "as rich text."));
    auto *button = new OxaSvgPushButton(tr("Join <b>Design</b> or <i>Platform</i>"));
    ButtonLooks::apply(*button);
    button->setFixedSize(256, 36);
    button->setTextFormat(Qt::RichText);
    auto *format = new SegmentedControl({ tr("Plain"), tr("Rich") });
    format->setCurrentIndex(1);
    connect(format, &SegmentedControl::chosen, button,
            [button](int i) { button->setTextFormat(i == 1 ? Qt::RichText : Qt::PlainText); });
    card->body()->addWidget(button);
    card->body()->addStretch(1);
    card->body()->addWidget(new ControlRow(tr("Format"), format));
    return card;
}

Card *ButtonsPage::makeDirectionCard()
{
    auto *card = new Card(tr("Right to left"), tr("Arabic and Hebrew, whole and elided."));
    const QString texts[] = { QStringLiteral("انضم إلى الاجتماع الأسبوعي للفريق"),
                              QStringLiteral("הצטרפות לפגישת הצוות השבועית") };
    for (const QString &text : texts) {
        card->body()->addWidget(makeSample(text));
        OxaPushButton *elided = makeSample(text);
        elided->setElideMode(Qt::ElideRight);
        elided->setElidePadding(32);
        elided->setFixedWidth(elidedWidth);
        card->body()->addWidget(elided);
    }
    card->body()->addStretch(1);
    return card;
}

Card *ButtonsPage::makeIdentityCard()
{
    auto *card = new Card(tr("Identity"),
                          tr("What a button carries for automation and assistive technology."));
    OxaPushButton *button = makeSample(tr("Send"));
    button->setUniqueElementId(QStringLiteral("compose.send"));
    auto *id = new LineEdit;
    id->setText(button->getUniqueElementId());
    connect(id, &QLineEdit::textChanged, button, &OxaPushButton::setUniqueElementId);
    const QAccessible::Role roles[] = { QAccessible::PushButton, QAccessible::Link,
                                        QAccessible::MenuItem };
    auto *role = new SegmentedControl({ tr("PushButton"), tr("Link"), tr("MenuItem") });
    connect(role, &SegmentedControl::chosen, button,
            [button, roles](int i) { button->setAccessibleRole(roles[i]); });

    OxaLabel *objectId = Labels::line(button->getObjectId().toString());
    objectId->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    card->body()->addWidget(button);
    card->body()->addWidget(new ControlRow(tr("Element id"), id));
    card->body()->addWidget(new ControlRow(tr("Role"), role));
    card->body()->addWidget(new ControlRow(tr("Object id"), objectId));
    return card;
}
