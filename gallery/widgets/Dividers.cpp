// SPDX-License-Identifier: Apache-2.0
#include "Dividers.h"

#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSplitter.h>

OxaSeparator *Dividers::line(QWidget *parent)
{
    auto *line = new OxaSeparator(parent);
    line->setColorSetName(QStringLiteral("gallery-divider"));
    line->onThemeChanged();
    return line;
}

OxaSplitter *Dividers::splitter(QWidget *parent)
{
    auto *splitter = new OxaSplitter(parent);
    splitter->setCSS(QStringLiteral("OxaSplitter::handle { background: $(gallery-divider); }"));
    splitter->setHandleWidth(1);
    splitter->setChildrenCollapsible(false);
    return splitter;
}
