// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "IconDiagnosis.h"
#include "widgets/ItemDelegate.h"

class IconModel;
class IconRenderers;

/// Paints the cells of an IconModel: names with diagnoses, and icons in the colours of a set.
class IconDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    /// Paints \a model with \a renderers; both must outlive the delegate.
    IconDelegate(const IconModel *model, IconRenderers *renderers, QObject *parent = nullptr);

    void refresh(OxaThemeUtils::AppThemeType themeType) override;

    /// Paints the icons in the colours of \a colorSet.
    void setColorSet(const OxaColorSet &colorSet) { m_colorSet = colorSet; }

    /// Paints the icons \a size pixels wide and high.
    void setIconSize(int size) { m_iconSize = size; }

    /// Returns the height of a row.
    int rowHeight() const;

    /// Returns the width that the column of any state needs.
    int stateColumnWidth() const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintFrame(QPainter *painter, const QStyleOptionViewItem &option,
                    const QModelIndex &index) const;
    void paintName(QPainter *painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const;
    const OxaColorSet &markColors(IconDiagnosis::Outcome outcome) const;
    void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                    const QModelIndex &index) const;
    void paintIcon(QPainter *painter, const QRect &rect, const QModelIndex &index) const;

    const IconModel *const m_model;
    IconRenderers *const m_renderers;
    int m_iconSize = 16;
    OxaColorSet m_colorSet;
    OxaColorSet m_good;
    OxaColorSet m_other;
    OxaColorSet m_bad;
};
