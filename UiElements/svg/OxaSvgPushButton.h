// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgIconBlock.h>
#include <UiElements/widgets/OxaPushButton.h>

#include <QPointer>

class QTextDocument;

/// A button with an icon beside its text, both in the theme's colours, and optionally another icon
/// while it is checked. Its text is elided at its end, or rich.
///
/// Without `$textColors:` in its style text it shows neither text nor icon, except an icon with a
/// set of its own.
class UIELEMENTS_EXPORT OxaSvgPushButton : public OxaPushButton
{
    Q_OBJECT
    UIELEMENTS_SVG_ICON_BLOCK
    Q_PROPERTY(QString svgIconChecked READ getSvgIconChecked WRITE setSvgIconChecked NOTIFY
                       svgIconCheckedChanged)
    Q_PROPERTY(Qt::TextFormat textFormat READ getTextFormat WRITE setTextFormat)
    // QAbstractButton's, declared again so that the property system calls the setters below.
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QFont font READ font WRITE setFont)

public:
    /// Makes a button without a text and an icon.
    explicit OxaSvgPushButton(QWidget *parent = nullptr,
                              const QAccessible::Role &role = QAccessible::PushButton);

    /// Makes a button with \a text and no icon.
    explicit OxaSvgPushButton(const QString &text, QWidget *parent = nullptr,
                              const QAccessible::Role &role = QAccessible::PushButton);
    ~OxaSvgPushButton() override;

    /// Returns the path of the icon of the checked button. Empty by default.
    QString getSvgIconChecked() const;

    /// Loads the icon of the checked button from \a path, in the size and colours of the plain icon
    /// if there is one, and emits svgIconCheckedChanged(). An empty path removes it, without the
    /// signal.
    void setSvgIconChecked(const QString &path);

    /// Shows or hides the icons. Repaints.
    void setSvgIconVisible(bool visible);

    /// Returns the format of the text. Qt::PlainText by default.
    Qt::TextFormat getTextFormat() const;

    /// Sets the format of the text: Qt::PlainText or Qt::RichText; other values change nothing.
    void setTextFormat(Qt::TextFormat format);

    /// Sets the text. Hides QAbstractButton::setText(), which does not update a rich text.
    void setText(const QString &text);

    /// Sets the font. Hides QWidget::setFont(), which does not update a rich text.
    void setFont(const QFont &font);

    /// Returns the size of the text and the paddings. An icon adds its size and padding to the
    /// width and also to the height.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The icon of the checked button was set to \a path, which is not empty.
    void svgIconCheckedChanged(const QString &path);

protected:
    /// Gives the icons their colours after the style text was set: those of the icons' set, or else
    /// those of the text.
    virtual void onCSSChanged();

    /// Returns the icon that the button shows: the checked one, if there is one, while it is
    /// checked.
    const std::unique_ptr<OxaSvgIcon> &currentSvgIcon() const;

    /// Returns the document of a rich text, or null.
    QTextDocument *textDocument() const;

    /// Returns the set called \a name in the button's theme, or else its text colours.
    OxaColorSet colorSetOrText(const QString &name) const;

    /// Loads \a icon from \a path unless it shows that already, and repaints.
    void updateIconPath(const std::unique_ptr<OxaSvgIcon> &icon, const QString &path);

    void initButtonStyleOption(QStyleOptionButton *option) const override;
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    /// Calls the base class; then looks the icon's colours up again if they have a set.
    void onThemeChanged() override;

private Q_SLOTS:
    void onSvgIconColorSetChanged(const OxaColorSet &colorSet);
    void onSvgIconSizeChanged(const QSize &size);

private:
    void matchPlainIcon(OxaSvgIcon &icon) const;

    std::unique_ptr<OxaSvgIcon> m_checkedIcon;
    QPointer<QTextDocument> m_textDocument;
    Qt::TextFormat m_textFormat = Qt::PlainText;
};
