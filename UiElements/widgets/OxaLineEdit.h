// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QLineEdit>

/// A one-line field that takes part in theming: its placeholder has a colour set, its context menu
/// the theme's colours, and what AltGr types reaches the text instead of firing a shortcut.
///
/// A masked text stays here: input methods are not told it, and assistive technology hears stars as
/// it changes, from Qt's update events too. For the latter the first line edit installs a handler
/// by QAccessible::installUpdateHandler(). A client that installs one later hears all texts, unless
/// it hands its events on.
///
/// QEvent::PaletteChange, QEvent::HoverEnter and QEvent::HoverLeave end in event(): it updates the
/// placeholder's colour and answers true. QLineEdit does not see them, and neither does
/// changeEvent() of a subclass. To follow them, use hoveredChanged(), an event filter, or event().
///
/// When the layout direction of the application changes, onLayoutDirectionChanged() runs. A field
/// that is made later has not had it.
class UIELEMENTS_EXPORT OxaLineEdit : public QLineEdit
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QLineEdit)
    UIELEMENTS_FONT_BLOCK
    Q_PROPERTY(QString placeholderColorSetName READ getPlaceholderColorSetName WRITE
                       setPlaceholderColorSetName)

public:
    /// Makes an empty field.
    explicit OxaLineEdit(QWidget *parent = nullptr);

    /// Makes a field with \a text.
    explicit OxaLineEdit(const QString &text, QWidget *parent = nullptr);

    /// Returns the name of the placeholder's colour set. Empty by default.
    QString getPlaceholderColorSetName() const;

    /// Colours the placeholder with the set called \a name in the field's theme: hovered under the
    /// pointer, disabled where the field is, else normal. A set that does not exist warns and
    /// leaves the palette alone.
    void setPlaceholderColorSetName(const QString &name);

    /// Has the application's style draw a focus frame while the field has the focus by keyboard. It
    /// cannot be turned off again.
    void enableFocusRing();

    /// Answers an input method as QLineEdit, but tells it nothing of a masked text.
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    Q_INVOKABLE QVariant inputMethodQuery(Qt::InputMethodQuery query,
                                          const QVariant &argument) const;

public Q_SLOTS:
    /// Swaps the left and right contents margins. An alignment other than Qt::AlignCenter and
    /// Qt::AlignHCenter becomes Qt::AlignLeft, or Qt::AlignRight in a right-to-left application
    /// whose property "TextDirection" is 0 or not set. Qt mirrors both for right-to-left texts:
    /// with Qt::AlignLeft, each text is at the side where its language starts.
    void onLayoutDirectionChanged();

Q_SIGNALS:
    /// The pointer came onto the field, or left it.
    void hoveredChanged(bool state);

protected Q_SLOTS:
    /// Looks the placeholder's set up again. Runs at each change of the theme type.
    virtual void onThemeChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void initialise();
    void updatePlaceholderColor();

    OxaColorSet m_placeholderColorSet;
    bool m_isFocusRingEnabled = false;
};
