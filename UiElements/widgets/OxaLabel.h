// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaNamedColorSet.h>
#include <UiElements/theme/OxaThemeBlock.h>
#include <UiElements/widgets/OxaElementBlock.h>
#include <UiElements/widgets/OxaElisionBlock.h>

#include <QLabel>
#include <QTextOption>

/// A label that takes part in theming, elides its text, colours its links and can be clicked.
///
/// Texts are plain unless setTextFormat() says otherwise. With an elide mode the label paints its
/// text itself: one elided line, or with word wrap, in any mode but Qt::ElideNone, as many lines as
/// fit, the last of them elided at its end. While text is selected it paints as QLabel does,
/// without an ellipsis. The size hints are those of the whole text, so that a layout makes the
/// label narrower only if it has a minimum width. Use margin() to keep such a text off the edges,
/// not a padding of the style text.
///
/// The horizontal alignment follows the layout direction of the application, and each change of
/// that sets it again: an alignment set before, centring included, is then lost. Set it after
/// construction. The order of the virtual functions is part of the binary interface.
class UIELEMENTS_EXPORT OxaLabel : public QLabel
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QLabel)
    UIELEMENTS_FONT_BLOCK
    UIELEMENTS_ELISION_BLOCK
    UIELEMENTS_ELEMENT_ID_BLOCK
    UIELEMENTS_ACCESSIBLE_ROLE_BLOCK
    // QLabel's, declared again so that the property system calls the setters below.
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    Q_PROPERTY(Qt::TextInteractionFlags textInteractionFlags READ textInteractionFlags WRITE
                       setTextInteractionFlags)

public:
    /// Makes an empty label without an accessible role.
    explicit OxaLabel(QWidget *parent = nullptr);

    /// Makes an empty label.
    OxaLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags = {});

    /// Makes a label with \a text.
    explicit OxaLabel(const QString &text, QWidget *parent = nullptr,
                      QAccessible::Role role = QAccessible::NoRole, Qt::WindowFlags flags = {});

    /// Sets how the text is read, Qt::PlainText at first. A change sets the text again, but not
    /// after clear(), setNum() or setPixmap().
    virtual void setTextFormat(Qt::TextFormat format);

    /// Sets what the user can do with the text, QLabel's default at first. Repaints if the text
    /// becomes selectable.
    virtual void setTextInteractionFlags(Qt::TextInteractionFlags flags);

    /// Sets where the lines of an eliding label with word wrap may break, QTextOption::WordWrap at
    /// first. Repaints.
    void updateWrapMode(QTextOption::WrapMode mode);

    /// Paints \a color over the label's pixmap, if it has one, keeping its shape.
    void setPixmapColor(const QColor &color);

    /// Returns the label's width minus the elide padding, in pixels.
    int getLineWidth() const;

    /// Returns \a text elided to the label's width minus \a indent, twice \a margin and the elide
    /// padding; with Qt::ElideNone, \a text itself.
    QString getElidedText(const QString &text, int indent, int margin) const;

public Q_SLOTS:
    /// Sets the text. Rich text with links gets a style element in the colours of the set
    /// "button-hyperlink-text", so that text() returns more than was set. Rich text is set again at
    /// each change of the theme type, and loses its selection then. Calling clear(), setNum() or
    /// setPixmap() ends that.
    virtual void setText(const QString &text);

protected Q_SLOTS:
    /// Colours the links of a rich text again. Runs at each change of the theme type.
    virtual void onThemeChanged();

public:
    /// Returns where subclasses begin the text inside the label, by its vertical alignment.
    virtual QPointF getTextOffset() const;

Q_SIGNALS:
    /// The label was clicked with the left button, or Space, Return or Enter was pressed on it. Not
    /// emitted for a label without text interaction, nor for the mouse while text is selected. A
    /// slot may delete the label.
    void clicked();

    /// The label was shown or hidden. A slot of this signal or of linkHovered() calls deleteLater()
    /// instead of deleting the label: Qt uses the label afterwards.
    void onVisibilityChanged(bool isVisible);

protected:
    /// Returns the set that the style text's "$textColors:" names; not valid when it names none.
    const OxaColorSet &textColors() const;

    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onLayoutDirectionChanged();

private:
    bool isInteractive() const;
    bool showsItsText() const;
    bool emitClicked();
    void selectAllText();
    void paintText(QPainter &painter, const QStyleOptionFrame &option) const;
    void paintElidedLine(QPainter &painter) const;
    void paintWrappedLines(QPainter &painter) const;
    int paintParagraph(QPainter &painter, const QString &paragraph, int y) const;
    QColor frameGround() const;

    OxaColorSet m_textColors;
    OxaColorSet m_backgroundColors;
    OxaNamedColorSet m_linkColors { QStringLiteral("button-hyperlink-text") };
    QString m_rawText;
    QString m_shownText;
    QTextOption::WrapMode m_wrapMode = QTextOption::WordWrap;
};
