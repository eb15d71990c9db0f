// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QScrollArea>

/// A scroll area without a frame whose viewport hands the theme type on to its contents.
class ScrollArea : public QScrollArea
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QScrollArea)

public:
    explicit ScrollArea(QWidget *parent = nullptr);

    /// The width of the border that showFocus() adds.
    static constexpr int focusBorder = 2;

    /// Lets Tab stop at the area while keys can scroll it, and shows a border then.
    void showFocus();

    /// Shows \a contents over the parent's background.
    void setContents(QWidget *contents);

protected Q_SLOTS:
    virtual void onThemeChanged();
};
