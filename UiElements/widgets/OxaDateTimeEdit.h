// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QDateTimeEdit>

/// A field for a date and a time that takes part in theming.
class UIELEMENTS_EXPORT OxaDateTimeEdit : public QDateTimeEdit
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QDateTimeEdit)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes a field that shows the beginning of the year 2000.
    explicit OxaDateTimeEdit(QWidget *parent = nullptr);

    /// Makes a field that shows \a dateTime.
    explicit OxaDateTimeEdit(const QDateTime &dateTime, QWidget *parent = nullptr);

    /// Makes a field for a date alone, which shows \a date.
    explicit OxaDateTimeEdit(const QDate &date, QWidget *parent = nullptr);

    /// Makes a field for a time alone, which shows \a time.
    explicit OxaDateTimeEdit(const QTime &time, QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();
};
