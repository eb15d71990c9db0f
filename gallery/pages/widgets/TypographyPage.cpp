// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "shell/GalleryApplication.h"
#include "shell/Page.h"
#include "widgets/Card.h"
#include "widgets/Labels.h"
#include "widgets/ScalingControl.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QGridLayout>
#include <QMetaEnum>
#include <QMetaProperty>

namespace {

using Factor = FontManagerEnum::FontScalingFactor;
using View = FontManagerEnum::FontType;

constexpr Factor factors[] = { Factor::Small, Factor::Regular, Factor::Medium, Factor::Large };
constexpr View views[] = { View::MessagingView, View::MeetingView };

QString tr(const char *text) { return Page::tr(text); }

/// Adds a card with a grid, in which the columns of samples take the remaining room.
QGridLayout *addGrid(Card *card, std::initializer_list<int> sampleColumns)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::small);
    for (const int column : sampleColumns)
        grid->setColumnStretch(column, 1);
    card->body()->addLayout(grid);
    return grid;
}

/// Calls \a show now and whenever fonts have other sizes, for \a label.
template <typename Show>
void followSizes(OxaLabel *label, Show show)
{
    QObject::connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, label,
                     show);
    show();
}

/// Returns \a font's weight with Qt's number and name.
QString weightText(const QFont &font)
{
    const char *name = QMetaEnum::fromType<QFont::Weight>().valueToKey(font.weight());
    return name ? QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(font.weight())
                : QString::number(font.weight());
}

/// Returns a caption that is elided first if there is little room.
OxaLabel *elidedCaption(const QString &text)
{
    OxaLabel *label = Labels::caption(text);
    label->setElideMode(Qt::ElideRight);
    label->setMinimumWidth(1);
    return label;
}

void addToken(QGridLayout *grid, const QString &name, OxaFont::Token token)
{
    OxaLabel *sample = Labels::elidedLine(tr("The quick brown fox jumps"));
    sample->setFontToken(token);
    OxaLabel *weight = Labels::caption(weightText(OxaFont(token)));
    OxaLabel *size = Labels::caption(QString());
    followSizes(size,
                [size, token] { size->setText(tr("%1 px").arg(OxaFont(token).pixelSize())); });
    const int row = grid->rowCount();
    grid->addWidget(elidedCaption(name), row, 0);
    grid->addWidget(sample, row, 1);
    grid->addWidget(weight, row, 2);
    grid->addWidget(size, row, 3);
}

Card *makeTokens()
{
    auto *card = new Card(tr("Font tokens"));
    QGridLayout *grid = addGrid(card, { 1 });
    const auto tokens = QMetaEnum::fromType<OxaFont::Token>();
    for (int i = 0; i < tokens.keyCount(); ++i)
        addToken(grid, QString::fromLatin1(tokens.key(i)),
                 static_cast<OxaFont::Token>(tokens.value(i)));
    return card;
}

QFont fontOf(const OxaScaledFonts &fonts, const char *name)
{
    return fonts.property(name).value<QFont>();
}

void addScaledFont(QGridLayout *grid, const char *name)
{
    const int row = grid->rowCount();
    int column = 0;
    grid->addWidget(elidedCaption(QString::fromLatin1(name)), row, column++);
    for (const View view : views) {
        OxaLabel *label = Labels::elidedLine(tr("Good day"));
        grid->addWidget(label, row, column++);
        followSizes(label, [label, view, name] {
            label->setFont(fontOf(*OxaFontManager::get()->getFont(view), name));
        });
    }
    for (const Factor factor : factors) {
        OxaLabel *label = Labels::caption(QString());
        grid->addWidget(label, row, column++);
        followSizes(label, [label, factor, name] {
            // A table of its own, so that the figure says what the factor gives to a regular view.
            OxaScaledFonts fonts;
            fonts.setScalingFactor(factor);
            label->setText(QString::number(fontOf(fonts, name).pixelSize()));
        });
    }
}

Card *makeScaledFonts()
{
    auto *card = new Card(
            tr("Scaled fonts"),
            tr("Two views have fonts that the user can enlarge. The samples follow the factor of "
               "their view; the figures are the sizes in pixels at each factor."));
    auto *factor = new ScalingControl(GalleryApplication::get()->textSettings(), View::MeetingView,
                                      card);
    factor->setAccessibleName(tr("Meeting view"));
    card->addToHeading(factor);
    QGridLayout *grid = addGrid(card, { 1, 2 });
    int column = 0;
    for (const QString &heading : { tr("Font"), tr("Messaging view"), tr("Meeting view"),
                                    tr("Small"), tr("Regular"), tr("Medium"), tr("Large") })
        grid->addWidget(elidedCaption(heading), 0, column++);
    // The fonts are the properties of the class that holds them.
    const QMetaObject &type = OxaScaledFonts::staticMetaObject;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        addScaledFont(grid, type.property(i).name());
    return card;
}

} // namespace

Page *Pages::makeTypography(QWidget *parent)
{
    auto *page = new Page(
            tr("Typography"),
            tr("Widgets ask for a step of the type scale, not for a size. Move the font scale in "
               "the header to see all of them follow."),
            parent);
    page->body()->addWidget(makeTokens());
    page->body()->addWidget(makeScaledFonts());
    page->body()->addStretch(1);
    return page;
}
