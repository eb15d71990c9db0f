// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgIconBlock.h>
#include <UiElements/widgets/OxaPushButton.h>

#include <QPointer>

class QTextDocument;

/// A button with an icon beside its text, both in the theme's colours, and another icon while it is
/// checked if wanted. Its text is elided at its end, or rich.
class UIELEMENTS_EXPORT OxaSvgPushButton : public OxaPushButton
{
    Q_OBJECT
    UIELEMENTS_SVG_ICON_BLOCK
    Q_PROPERTY(QString svgIconChecked READ getSvgIconChecked WRITE setSvgIconChecked NOTIFY
                       svgIconCheckedChanged)
    Q_PROPERTY(Qt::TextFormat textFormat READ getTextFormat WRITE setTextFormat)
    // Qt's, once more, so that the property system calls the setters below.
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
    /// where there is one, and emits svgIconCheckedChanged(). An empty path removes it, without the
    /// signal.
    void setSvgIconChecked(const QString &path);

    /// Shows or hides the icons. Repaints.
    void setSvgIconVisible(bool visible);

    /// Returns how the text is read. Qt::PlainText by default.
    Qt::TextFormat getTextFormat() const;

    /// Sets how the text is read: Qt::PlainText or Qt::RichText; any other value changes nothing.
    void setTextFormat(Qt::TextFormat format);

    /// Sets the text. Hides QAbstractButton::setText(), which does not reach a rich text.
    void setText(const QString &text);

    /// Sets the font. Hides QWidget::setFont(), which does not reach a rich text.
    void setFont(const QFont &font);

    /// The text's size and the paddings, and with an icon its size and padding too, side by side
    /// and one above the other at once.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The icon of the checked button was set to \a path, which is not empty.
    void svgIconCheckedChanged(const QString &path);

protected:
    /// Gives the icons their colours after the style text was set: those of the icons' set, else
    /// those of the text.
    virtual void onCSSChanged();

    /// Returns the icon that the button shows: the checked one while it is checked, where it has
    /// one.
    const std::unique_ptr<OxaSvgIcon> &currentSvgIcon() const;

    /// Returns the document of a rich text, or null.
    QTextDocument *textDocument() const;

    /// Returns the set called \a name in the button's theme, or its text colours.
    OxaColorSet colorSetOrText(const QString &name) const;

    /// Loads \a icon from \a path unless it shows that already, and repaints.
    void updateIconPath(const std::unique_ptr<OxaSvgIcon> &icon, const QString &path);

    void initButtonStyleOption(QStyleOptionButton *option) const override;
    void paintEvent(QPaintEvent *event) override;

protected Q_SLOTS:
    /// The base class's; then looks the icon's colours up anew where they have a set.
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
