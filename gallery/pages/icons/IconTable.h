// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/TableView.h"

class IconDelegate;
class IconModel;
class IconRenderers;

/// A contact sheet: a row for each icon, in the six states of a colour set. Its current cell is an
/// icon in a state.
class IconTable : public TableView
{
    Q_OBJECT

public:
    /// Shows \a model with \a renderers; both must outlive the table.
    IconTable(IconModel *model, IconRenderers *renderers, QWidget *parent = nullptr);

    /// Paints the icons in the colours of the set called \a name.
    void setColorSetName(const QString &name);

    /// Paints the icons \a size pixels wide and high.
    void setIconPixels(int size);

    /// Returns the colours of the icons.
    OxaColorSet colorSet() const;

    void refresh() override;

Q_SIGNALS:
    /// The current icon or state changed.
    void currentIconChanged();

    /// The colours of the icons changed.
    void colorsChanged();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    IconTable(IconModel *model, IconRenderers *renderers, IconDelegate *delegate, QWidget *parent);

    IconDelegate *const m_delegate;
    QString m_colorSetName;
};
