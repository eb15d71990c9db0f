// SPDX-License-Identifier: Apache-2.0
#include "StatusBox.h"

#include "AlignedLabel.h"
#include "looks/Metrics.h"

#include <QVBoxLayout>

namespace {

QString wordOf(StatusBox::Kind kind)
{
    switch (kind) {
    case StatusBox::Kind::Note:
        return QStringLiteral("note");
    case StatusBox::Kind::Success:
        return QStringLiteral("success");
    case StatusBox::Kind::Warning:
        return QStringLiteral("warning");
    case StatusBox::Kind::Error:
        break;
    }
    return QStringLiteral("error");
}

OxaLabel *makeLine(const QString &text, OxaFont::Token token, const QString &colorSet,
                   QWidget *parent)
{
    auto *label = new AlignedLabel(text, parent);
    label->setWordWrap(true);
    label->setFontToken(token);
    label->setCSS(QStringLiteral("$textColors: %1;").arg(colorSet));
    return label;
}

} // namespace

StatusBox::StatusBox(Kind kind, const QString &summary, const QString &explanation, QWidget *parent)
    : OxaWidget(parent)
{
    const QString word = wordOf(kind);
    setCSS(QStringLiteral("$backgroundColors: gallery-%1-background;"
                          "$borderColors: gallery-%1-border;"
                          "$borderRadius: 6;")
                   .arg(word));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Metrics::spacing, Metrics::small, Metrics::spacing, Metrics::small);
    column->setSpacing(2);
    column->addWidget(makeLine(summary, OxaFont::Token::TagLabelPrimary,
                               QStringLiteral("gallery-%1-text").arg(word), this));
    column->addWidget(makeLine(explanation, OxaFont::Token::BodySecondary,
                               QStringLiteral("gallery-body-text"), this));
}

void StatusBox::clear(QLayout *layout)
{
    while (QLayoutItem *item = layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
}
