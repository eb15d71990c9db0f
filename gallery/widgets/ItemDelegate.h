// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

#include <QFont>
#include <QStyledItemDelegate>

class QAbstractItemView;

/// The colours and the fonts of items in lists and tables.
struct ItemLook
{
    /// Makes the look of \a themeType, with fonts at the current scale.
    explicit ItemLook(OxaThemeUtils::AppThemeType themeType);

    OxaColorSet ground;
    OxaColorSet headingText;
    OxaColorSet text;
    OxaColorSet captionText;
    OxaColorSet line; ///< Below each item.
    OxaColorSet focusBorder;
    OxaColorSet badgeGround;
    OxaColorSet badgeText;
    QFont headingFont;
    QFont font;
    QFont captionFont;
};

/// The base of the delegates, which paints the common parts of items.
class ItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ItemDelegate(QObject *parent = nullptr);

    /// Takes the colours of \a themeType, and the fonts at the current scale.
    virtual void refresh(OxaThemeUtils::AppThemeType themeType);

    /// Makes the first item of \a view current if there is no current one, so that keys start at a
    /// visible item.
    static void ensureCurrent(QAbstractItemView &view);

    /// Returns the first item of \a model that is enabled, or an invalid index.
    static QModelIndex firstEnabled(const QAbstractItemModel &model);

    /// Returns the height of a heading's row.
    int headingHeight() const;

protected:
    const ItemLook &look() const { return m_look; }

    /// Returns the size of a badge with \a text.
    QSize badgeSize(const QString &text) const;

    /// Fills \a option's rectangle with the background of its state, draws the line below it, and
    /// marks the focus.
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option) const;

    void paintLine(QPainter *painter, const QRect &rect) const;
    void paintFocusFrame(QPainter *painter, const QRect &rect, QStyle::State state) const;
    void paintHeading(QPainter *painter, const QRect &rect, const QString &text) const;
    void paintBadge(QPainter *painter, const QRect &rect, const QString &text,
                    QStyle::State state) const;

    /// Returns the colour of \a colorSet for an item that is chosen, under the pointer, or neither.
    static const QColor &colorFor(const OxaColorSet &colorSet, QStyle::State state);

    /// Draws \a text on one line, aligned to where lines of a layout in \a direction begin, but in
    /// its own direction: the full stop of an English sentence stays at its end.
    static void drawElided(QPainter *painter, const QRect &rect, const QString &text,
                           Qt::LayoutDirection direction, Qt::TextElideMode mode = Qt::ElideRight);

private:
    ItemLook m_look;
};
