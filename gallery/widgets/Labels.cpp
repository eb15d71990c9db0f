// SPDX-License-Identifier: Apache-2.0
#include "Labels.h"

#include "AlignedLabel.h"

namespace {

OxaLabel *make(const QString &text, QWidget *parent, OxaFont::Token token, const char *styleText)
{
    auto *label = new AlignedLabel(text, parent);
    label->setFontToken(token);
    label->setCSS(QString::fromLatin1(styleText));
    return label;
}

} // namespace

OxaLabel *Labels::title(const QString &text, QWidget *parent)
{
    OxaLabel *label = make(text, parent, OxaFont::Token::Title,
                           "$textColors: gallery-heading-text;");
    label->setAccessibleRole(QAccessible::Heading);
    return label;
}

OxaLabel *Labels::heading(const QString &text, QWidget *parent)
{
    OxaLabel *label = make(text, parent, OxaFont::Token::SubheaderPrimary,
                           "$textColors: gallery-heading-text;");
    label->setAccessibleRole(QAccessible::Heading);
    return label;
}

OxaLabel *Labels::line(const QString &text, QWidget *parent)
{
    return make(text, parent, OxaFont::Token::BodySecondary, "$textColors: gallery-body-text;");
}

OxaLabel *Labels::elidedLine(const QString &text, QWidget *parent)
{
    OxaLabel *label = line(text, parent);
    label->setElideMode(Qt::ElideRight);
    label->setMinimumWidth(1);
    return label;
}

OxaLabel *Labels::paragraph(const QString &text, QWidget *parent)
{
    OxaLabel *label = make(text, parent, OxaFont::Token::BodySecondary,
                           "$textColors: gallery-caption-text;");
    label->setWordWrap(true);
    return label;
}

OxaLabel *Labels::caption(const QString &text, QWidget *parent)
{
    return make(text, parent, OxaFont::Token::RadioButtonLabelSecondary,
                "$textColors: gallery-caption-text;");
}

OxaLabel *Labels::chip(const QString &text, QWidget *parent)
{
    OxaLabel *label = make(text, parent, OxaFont::Token::RadioButtonLabelSecondary,
                           "$backgroundColors: gallery-chip-background;"
                           "$borderColors: gallery-chip-border;"
                           "$borderRadius: 8;"
                           "$textColors: gallery-chip-text;"
                           "OxaLabel { padding: 1px 8px; }");
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return label;
}
