// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/ThemeBlock.h>

#include <QTableView>

class IconDelegate;
class IconModel;
class IconRenderers;

/// A contact sheet: a row for each icon, in the six states of a colour set. It has a current cell,
/// which is an icon in a state.
class IconTable : public QTableView
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QTableView)

public:
    /// Shows \a model with \a renderers; both must outlive the table.
    IconTable(IconModel *model, IconRenderers *renderers, QWidget *parent = nullptr);

    /// Paints the icons in the colours of the set called \a name.
    void setColorSetName(const QString &name);

    /// Paints the icons \a size pixels wide and high.
    void setIconPixels(int size);

    /// Returns the colours of the icons.
    OxaColorSet colorSet() const;

    /// Takes the colours of the theme, and the fonts at the scale of this moment.
    void refresh();

Q_SIGNALS:
    /// Another icon is the current one, or another state.
    void currentIconChanged();

    /// The icons have other colours.
    void colorsChanged();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void applyLook();
    void setUpHeaders();

    IconDelegate *const m_delegate;
    QString m_colorSetName;
};
