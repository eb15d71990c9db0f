// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QFont>
#include <QStyledItemDelegate>

/// Paints the rows of a SignalModel: headings, and signals with their parameters and receivers.
class SignalDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit SignalDelegate(QObject *parent = nullptr);

    /// Takes the colours of \a themeType, and the fonts at the scale of this moment.
    void refresh(OxaThemeUtils::AppThemeType themeType);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintHeading(QPainter *painter, const QRect &rect, const QString &text) const;
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option) const;
    void paintTexts(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                    const QRect &rect) const;
    void paintReceivers(QPainter *painter, const QRect &rect, const QString &count,
                        QStyle::State state) const;

    OxaColorSet m_ground;
    OxaColorSet m_headingText;
    OxaColorSet m_nameText;
    OxaColorSet m_parametersText;
    OxaColorSet m_line;
    OxaColorSet m_focusBorder;
    OxaColorSet m_badgeGround;
    OxaColorSet m_badgeText;
    QFont m_headingFont;
    QFont m_nameFont;
    QFont m_parametersFont;
};
