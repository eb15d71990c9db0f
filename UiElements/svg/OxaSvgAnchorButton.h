// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgPushButton.h>

/// A checkable OxaSvgPushButton with a second small icon anchored to one of its sides: one picture
/// while it is checked, another while it is not.
class UIELEMENTS_EXPORT OxaSvgAnchorButton : public OxaSvgPushButton
{
    Q_OBJECT
    Q_PROPERTY(
            QString anchorSvgOn READ getAnchorSvgOn WRITE setAnchorSvgOn NOTIFY anchorSvgOnChanged)
    Q_PROPERTY(QString anchorSvgOff READ getAnchorSvgOff WRITE setAnchorSvgOff NOTIFY
                       anchorSvgOffChanged)
    Q_PROPERTY(QSize anchorIconSize READ getAnchorIconSize WRITE setAnchorIconSize)
    Q_PROPERTY(QString anchorSvgColorSet READ getAnchorSvgColorSet WRITE setAnchorSvgColorSet)
    Q_PROPERTY(int anchorPadding READ getAnchorPadding WRITE setAnchorPadding)
    Q_PROPERTY(QPoint anchorSvgOffset READ getAnchorSvgOffset WRITE setAnchorSvgOffset)
    Q_PROPERTY(bool isLeftAnchor READ getIsLeftAnchor WRITE setIsLeftAnchor)
    Q_PROPERTY(
            bool alignAnchorIconToText READ getAlignAnchorIconToText WRITE setAlignAnchorIconToText)

public:
    /// Makes an unchecked button without a text and pictures.
    explicit OxaSvgAnchorButton(QWidget *parent = nullptr);

    /// Makes an unchecked button with \a text and no pictures.
    explicit OxaSvgAnchorButton(const QString &text, QWidget *parent = nullptr);
    ~OxaSvgAnchorButton() override;

    /// Returns the path of the anchor's picture while the button is checked.
    QString getAnchorSvgOn() const;

    /// Loads the anchor's picture for the checked button from \a path and emits
    /// anchorSvgOnChanged(). Repaints.
    void setAnchorSvgOn(const QString &path);

    /// Returns the path of the anchor's picture while the button is not checked.
    QString getAnchorSvgOff() const;

    /// Loads the anchor's picture for the unchecked button from \a path and emits
    /// anchorSvgOffChanged(). Repaints.
    void setAnchorSvgOff(const QString &path);

    /// Returns the size of the anchor's pictures; (-1, -1) before any of their properties was set,
    /// and while they are hidden.
    QSize getAnchorIconSize() const;

    /// Sets the size of the anchor's pictures. Repaints.
    void setAnchorIconSize(const QSize &size);

    /// Shows or hides each of the anchor's pictures of which a property was set. Repaints.
    void setAnchorIconVisible(bool visible);

    /// Returns the name of the anchor's colour set. Empty by default: it takes the text's colours.
    QString getAnchorSvgColorSet() const;

    /// Gives the anchor the colours of the set called \a name, or the text's if the theme lacks
    /// that. Repaints.
    void setAnchorSvgColorSet(const QString &name);

    /// Returns the anchor's distance from its side in pixels: the x of its offset.
    int getAnchorPadding() const;

    /// Sets the x of the anchor's offset. Repaints.
    void setAnchorPadding(int padding);

    /// Returns the anchor's distance from its side and from the middle. (0, 0) by default.
    QPoint getAnchorSvgOffset() const;

    /// Sets the anchor's distance from its side and from the middle. Repaints.
    void setAnchorSvgOffset(const QPoint &offset);

    /// True when the anchor is at the left in a left-to-right application. Off by default.
    bool getIsLeftAnchor() const;

    /// Sets the anchor's side. It is mirrored in a right-to-left application. Repaints.
    void setIsLeftAnchor(bool isLeft);

    /// True when the anchor is beside the icon and text instead of at the button's side. Off by
    /// default.
    bool getAlignAnchorIconToText() const;

    /// Sets what the anchor is placed beside. Repaints.
    void setAlignAnchorIconToText(bool align);

    /// Returns the base class's hint plus, with a picture, the anchor's size and offset.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The anchor's picture for the checked button was set to \a path, also when it is the same.
    void anchorSvgOnChanged(const QString &path);

    /// The anchor's picture for the unchecked button was set to \a path, also when it is the same.
    void anchorSvgOffChanged(const QString &path);

protected:
    /// True when the anchor is at the left side on screen.
    bool isLeading() const;

    /// Takes the anchor's space off \a rect and returns where the anchor is placed. Without a
    /// picture it returns (0, 0) and leaves \a rect unchanged.
    QPoint adjustRect(QRect &rect) const;

    void onCSSChanged() override;
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    /// Calls the base class; then looks the anchor's colours up again if they have a set.
    void onThemeChanged() override;

private:
    QRect paintBlock(QPainter &painter, const QStyleOptionButton &option);
    void paintAnchor(QPainter &painter, QPoint position, const QRect &block,
                     QStyle::State state) const;

    const std::unique_ptr<OxaSvgIcon> m_anchorOn = std::make_unique<OxaSvgIcon>();
    const std::unique_ptr<OxaSvgIcon> m_anchorOff = std::make_unique<OxaSvgIcon>();
    QString m_anchorColorSetName;
    QPoint m_anchorOffset;
    bool m_isLeftAnchor = false;
    bool m_alignAnchorIconToText = false;
};
