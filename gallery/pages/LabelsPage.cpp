// SPDX-License-Identifier: Apache-2.0
#include "LabelsPage.h"

#include "Metrics.h"
#include "TintedStar.h"
#include "widgets/Card.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/ControlRow.h"
#include "widgets/Labels.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

namespace {

constexpr int minimumSampleWidth = 64;
constexpr int maximumSampleWidth = 392;
constexpr int wrappedHeight = 88;

/// Makes a label with a visible ground, so that one sees how wide it is.
OxaLabel *makeSample(const QString &text)
{
    OxaLabel *label = Labels::line(text);
    label->setCSS(QStringLiteral("$backgroundColors: gallery-code-background;"
                                 "$borderColors: gallery-card-border;"
                                 "$borderRadius: 4;"
                                 "$textColors: gallery-body-text;"));
    label->setMargin(Metrics::small);
    return label;
}

ControlRow *makeWidthRow(OxaLabel *label, int width)
{
    auto *slider = new Slider(minimumSampleWidth, maximumSampleWidth, width);
    label->setFixedWidth(width);
    QObject::connect(slider, &QSlider::valueChanged, label,
                     [label](int value) { label->setFixedWidth(value); });
    return new ControlRow(LabelsPage::tr("Width"), slider);
}

} // namespace

LabelsPage::LabelsPage(QWidget *parent)
    : Page(tr("Labels"),
           tr("OxaLabel elides and wraps by itself, colours its links by the theme, and can be "
              "clicked."),
           parent)
{
    ColumnsLayout *cards = makeColumns();
    cards->addWidget(makeElisionCard());
    cards->addWidget(makeWrappingCard());
    cards->addWidget(makeLinksCard());
    cards->addWidget(makeClicksCard());
    cards->addWidget(makeDirectionCard());
    cards->addWidget(makePixmapCard());
    body()->addStretch(1);
}

Card *LabelsPage::makeElisionCard()
{
    auto *card = new Card(tr("Elision"), tr("One line, elided where there is no room for it."));
    OxaLabel *label = makeSample(tr("Quarterly review with the design and platform teams"));
    label->setElideMode(Qt::ElideRight);

    // In the order of Qt::TextElideMode.
    auto *mode = new SegmentedControl({ tr("Left"), tr("Right"), tr("Middle"), tr("None") });
    mode->setCurrentIndex(Qt::ElideRight);
    connect(mode, &SegmentedControl::chosen, label,
            [label](int i) { label->setElideMode(static_cast<Qt::TextElideMode>(i)); });
    auto *padding = new Slider(0, 96, 0);
    connect(padding, &QSlider::valueChanged, label, &OxaLabel::setElidePadding);

    card->body()->addWidget(label);
    card->body()->addStretch(1);
    card->body()->addWidget(new ControlRow(tr("Mode"), mode));
    card->body()->addWidget(makeWidthRow(label, 256));
    card->body()->addWidget(new ControlRow(tr("Padding"), padding));
    return card;
}

Card *LabelsPage::makeWrappingCard()
{
    auto *card = new Card(tr("Wrapping"),
                          tr("As many lines as there is room for, then an ellipsis."));
    OxaLabel *label = makeSample(tr(
            "Eliding labels break their lines themselves: at words, anywhere, or not at all. The "
            "last line that fits ends in an ellipsis, as in averyveryverylongwordindeed."));
    label->setWordWrap(true);
    label->setElideMode(Qt::ElideRight);
    label->setFixedHeight(wrappedHeight);

    const QTextOption::WrapMode modes[] = { QTextOption::WordWrap, QTextOption::WrapAnywhere,
                                            QTextOption::WrapAtWordBoundaryOrAnywhere,
                                            QTextOption::NoWrap };
    auto *mode = new SegmentedControl({ tr("Words"), tr("Anywhere"), tr("Either"), tr("None") });
    connect(mode, &SegmentedControl::chosen, label,
            [label, modes](int i) { label->updateWrapMode(modes[i]); });

    card->body()->addWidget(label);
    card->body()->addStretch(1);
    card->body()->addWidget(new ControlRow(tr("Breaks"), mode));
    card->body()->addWidget(makeWidthRow(label, 336));
    return card;
}

Card *LabelsPage::makeLinksCard()
{
    auto *card = new Card(tr("Links"), tr("Rich text, whose links follow the theme."));
    OxaLabel *label = Labels::line(QString());
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    label->setWordWrap(true);
    label->setText(tr("The <a href=\"agenda\">agenda</a> is ready. Add your topics to the "
                      "<a href=\"minutes\">minutes</a> before noon."));
    OxaLabel *last = Labels::caption(tr("No link followed yet"));
    connect(label, &QLabel::linkActivated, last,
            [last](const QString &link) { last->setText(tr("Followed “%1”").arg(link)); });
    card->body()->addWidget(label);
    card->body()->addWidget(last);
    card->body()->addStretch(1);
    return card;
}

Card *LabelsPage::makeClicksCard()
{
    auto *card = new Card(tr("Selection and clicks"),
                          tr("Select the text, right-click to select all of it, or just click."));
    OxaLabel *label = makeSample(tr("Room 3.14, second floor"));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    OxaLabel *counter = Labels::caption(tr("Not clicked yet"));
    connect(label, &OxaLabel::clicked, counter, [counter, clicks = 0]() mutable {
        counter->setText(tr("Clicked %1 times").arg(++clicks));
    });
    card->body()->addWidget(label);
    card->body()->addWidget(counter);
    card->body()->addStretch(1);
    return card;
}

Card *LabelsPage::makeDirectionCard()
{
    auto *card = new Card(tr("Right to left"), tr("Arabic and Hebrew, whole and elided."));
    const QString texts[] = { QStringLiteral("اجتماع الفريق الأسبوعي غدًا في الساعة العاشرة"),
                              QStringLiteral("פגישת הצוות השבועית מחר בשעה עשר בבוקר") };
    for (const QString &text : texts) {
        card->body()->addWidget(makeSample(text));
        OxaLabel *elided = makeSample(text);
        elided->setElideMode(Qt::ElideRight);
        elided->setFixedWidth(176);
        card->body()->addWidget(elided);
    }
    return card;
}

Card *LabelsPage::makePixmapCard()
{
    auto *card = new Card(tr("Pixmap colour"), tr("One shape, painted over with a colour set."));
    auto *star = new TintedStar;
    auto *colors = new SegmentedControl({ tr("Accent"), tr("Away"), tr("Active"), tr("Busy") });
    const QStringList colorSets = { QStringLiteral("gallery-accent"),
                                    QStringLiteral("presence-away"),
                                    QStringLiteral("presence-active"),
                                    QStringLiteral("presence-busy") };
    star->setColorSetName(colorSets.front());
    connect(colors, &SegmentedControl::chosen, star,
            [star, colorSets](int i) { star->setColorSetName(colorSets[i]); });
    card->body()->addWidget(star, 1);
    card->body()->addWidget(new ControlRow(tr("Colour"), colors));
    return card;
}
