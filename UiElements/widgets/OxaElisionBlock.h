// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QString>

class QWidget;

/// Elides a widget's text: the behaviour behind UIELEMENTS_ELISION_BLOCK.
///
/// A member of the widget that it serves.
class UIELEMENTS_EXPORT OxaElisionBlock
{
    Q_DISABLE_COPY_MOVE(OxaElisionBlock)

public:
    /// Serves \a widget, which must outlive the block.
    explicit OxaElisionBlock(QWidget *widget) : m_widget(widget) { }
    ~OxaElisionBlock() = default;

    /// Returns where the text is elided. Qt::ElideNone by default.
    Qt::TextElideMode mode() const { return m_mode; }

    /// Sets where the text is elided. Repaints the widget.
    void setMode(Qt::TextElideMode mode);

    /// Returns the width in pixels that an elided text leaves free. 0 by default.
    int padding() const { return m_padding; }

    /// Sets the width in pixels that an elided text leaves free. Repaints the widget.
    void setPadding(int padding);

    /// Returns the widget's width minus the padding, in pixels.
    int lineWidth() const;

    /// Returns \a text elided to the line width minus \a usedWidth; with Qt::ElideNone, \a text
    /// itself.
    QString elidedText(const QString &text, int usedWidth) const;

private:
    QWidget *const m_widget;
    Qt::TextElideMode m_mode = Qt::ElideNone;
    int m_padding = 0;
};

/// Declares the elision members of a widget class, as `m_elision`. Place it after
/// UIELEMENTS_FONT_BLOCK, without a semicolon; it leaves the access at private.
///
/// Properties: `elideMode`, where the text is elided (Qt::ElideNone), and `elidePadding`, the width
/// in pixels that an elided text leaves free (0). The setters repaint.
#define UIELEMENTS_ELISION_BLOCK                                                                   \
    Q_PROPERTY(Qt::TextElideMode elideMode READ getElideMode WRITE setElideMode)                   \
    Q_PROPERTY(int elidePadding READ getElidePadding WRITE setElidePadding)                        \
                                                                                                   \
public:                                                                                            \
    Qt::TextElideMode getElideMode() const { return m_elision.mode(); }                            \
    void setElideMode(Qt::TextElideMode mode) { m_elision.setMode(mode); }                         \
    int getElidePadding() const { return m_elision.padding(); }                                    \
    void setElidePadding(int padding) { m_elision.setPadding(padding); }                           \
                                                                                                   \
private:                                                                                           \
    OxaElisionBlock m_elision { this };
