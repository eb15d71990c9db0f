// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaPushButton.h>

#include <QImage>
#include <QPen>

#include <memory>

class OxaSvgIcon;

/// A tab-like button that paints itself: a text, underlined while the button is checked or held
/// down, with an optional unread dot, image on the left and small icon on the right.
class UIELEMENTS_EXPORT OxaUnderlineButton : public OxaPushButton
{
    Q_OBJECT
    Q_PROPERTY(int borderWidth READ getBorderWidth WRITE setBorderWidth)
    Q_PROPERTY(int bottomPadding READ getBottomPadding WRITE setBottomPadding)
    Q_PROPERTY(bool showUnreadIndicator READ getShowUnreadIndicator WRITE setShowUnreadIndicator)
    Q_PROPERTY(QImage leftIcon READ getLeftIcon WRITE setLeftIcon)
    Q_PROPERTY(QString anchorIcon READ getAnchorIcon WRITE setAnchorIcon)

public:
    /// Makes a button in the colours of the sets "oxa-underlineButton-background" and
    /// "oxa-underlineButton-text".
    explicit OxaUnderlineButton(QWidget *parent = nullptr);
    ~OxaUnderlineButton() override;

    /// Returns the width of the underline in pixels. 2 by default.
    int getBorderWidth() const;

    /// Sets the width of the underline in pixels, which takes effect with the next colour set.
    void setBorderWidth(int width);

    /// Returns the space under the text in pixels. 2 by default.
    int getBottomPadding() const;

    /// Sets the space under the text in pixels. Repaints.
    void setBottomPadding(int padding);

    /// True when the unread dot shows. Off by default.
    bool getShowUnreadIndicator() const;

    /// Shows or hides the unread dot. Repaints.
    void setShowUnreadIndicator(bool show);

    /// Returns the image on the left.
    QImage getLeftIcon() const;

    /// Sets the image on the left, which the unread dot replaces. Repaints.
    void setLeftIcon(const QImage &image);

    /// Returns the path of the icon on the right; empty without one.
    QString getAnchorIcon() const;

    /// Loads the icon on the right from \a path, 8 by 8 pixels in the colours of the set
    /// "oxa-spaceTabs-text". Repaints.
    void setAnchorIcon(const QString &path);

    /// Sets the fill under the pointer: the set's hovered colour. Does not repaint.
    void setBackgroundColorSet(const QString &name);

    /// Sets the colours of the text, and the underline to the set's pressed colour. Does not
    /// repaint.
    void setTextColorSet(const QString &name);

    /// Sets the underline to the set's normal colour. Does not repaint.
    void setUnderlineColorSet(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    /// Calls the base class; then looks up all colours. The underline takes its own set's again.
    void onThemeChanged() override;

private:
    OxaColorSet colorSet(const QString &name) const;
    QPen penOf(const QColor &color) const;
    QColor paintGround(QPainter &painter, const QStyleOptionButton &option) const;
    QRect paintIcons(QPainter &painter, const QStyleOptionButton &option) const;
    void drawUnreadDot(QPainter &painter, const QRect &rect) const;

    OxaNamedColorSet m_backgroundColorSet;
    OxaNamedColorSet m_textColorSet;
    OxaNamedColorSet m_underlineColorSet;
    QPen m_underlinePen;
    QImage m_leftIcon;
    std::unique_ptr<OxaSvgIcon> m_anchorIcon;
    int m_borderWidth = 2;
    int m_bottomPadding = 2;
    bool m_showUnreadIndicator = false;
};
