// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: each field is there twice, as a function that sets it and as a value.

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>

/// What a PopupWidget looks like, where it lies, and what hides it.
///
/// A value that is filled by calls in a row: `WidgetData(theme).alignment(...).cornerRadius(8)`.
/// Each of these functions stores its value in the field of its name and returns the record itself.
class UIELEMENTS_EXPORT WidgetData
{
public:
    /// Where a popup above or below its source lies along it.
    enum class Alignment : quint8 {
        Left = 0,   ///< The left edge of the popup's body is at the source's.
        Center = 1, ///< Centred on the source.
        Right = 2,  ///< The right edge of the popup's body is at the source's.
    };

    /// The side of the popup with the arrow, which is the side of the source.
    enum class ArrowPostion : quint8 {
        Top = 0,          ///< The popup lies below its source.
        Left = 1,         ///< The popup lies right of its source.
        Right = 2,        ///< The popup lies left of its source.
        Bottom = 3,       ///< The popup lies above its source.
        NoArrowAbove = 4, ///< The popup lies above its source and has no arrow.
        NoArrowBelow = 5, ///< The popup lies below its source and has no arrow.
    };

    /// Chooses a corner radius.
    enum class PopupSize {
        Small = 0, ///< 8 pixels.
        Large = 1, ///< 12 pixels.
    };

    /// Makes a record with the defaults below, and with the normal colours of the sets
    /// "background-primary", "oxa-default-border" and "oxa-popupDropShadow" of \a theme. Warnings
    /// as in OxaThemeUtils::getColorSet().
    explicit WidgetData(OxaThemeUtils::AppThemeType theme);

    /// Returns the side for \a arrow: Qt::UpArrow gives Top, Qt::DownArrow Bottom, and what is no
    /// arrow NoArrowAbove.
    static ArrowPostion toArrowPosition(Qt::ArrowType arrow);

    /// Where the popup lies along its source. Center by default.
    WidgetData &alignment(Alignment value) { return set(m_alignment, value); }
    /// The wished side of the arrow; the popup takes the other side for want of room. Top by
    /// default.
    WidgetData &arrowPostion(ArrowPostion value) { return set(m_arrowPostion, value); }
    /// Whether the popup may hide when it loses the activation. True by default.
    WidgetData &autoDismiss(bool value) { return set(m_autoDismiss, value); }
    /// Above 0, the popup hides so many milliseconds after it was shown. 0 by default.
    WidgetData &dismissTimerTicks(int value) { return set(m_dismissTimerTicks, value); }
    /// Stored only. False by default.
    WidgetData &arrowAlignmentRect(bool value) { return set(m_arrowAlignmentRect, value); }
    /// Stored only. Null by default.
    WidgetData &arrowPostionRect(QRect value) { return set(m_arrowPostionRect, value); }
    /// Whether the popup hides even if the focus stays in its parent. True by default.
    WidgetData &dismissWithParentFocused(bool value)
    {
        return set(m_dismissWithParentFocused, value);
    }
    /// Whether the popup hides when its parent's window moves. False by default.
    WidgetData &dismissPopupOnSourceMove(bool value)
    {
        return set(m_dismissPopupOnSourceMove, value);
    }
    /// Whether the popup activates itself when it is shown. False by default.
    WidgetData &activateOnShow(bool value) { return set(m_activateOnShow, value); }
    /// Whether the popup stays inside its parent's window, and not on the screen. False by default.
    WidgetData &fitInMainWindowGeometry(bool value)
    {
        return set(m_fitInMainWindowGeometry, value);
    }
    /// Whether the source button gets the focus when the popup hides. True by default.
    WidgetData &focusSourceOnClose(bool value) { return set(m_focusSourceOnClose, value); }
    /// Whether the popup activates itself before a window inside it that takes over from a window
    /// that counted as its own. True by default.
    WidgetData &selfReactivate(bool value) { return set(m_selfReactivate, value); }
    /// Whether the popup stays on the screen of its source, and not on the one that shows most of
    /// the place that it asks for. False by default.
    WidgetData &showOnSourceScreen(bool value) { return set(m_showOnSourceScreen, value); }
    /// Stored only. True by default.
    WidgetData &shouldTakeFocus(bool value) { return set(m_shouldTakeFocus, value); }
    /// Whether the popup stays wherever the focus goes, unless `dismissWithParentFocused` is true.
    /// False by default.
    WidgetData &skipDeepFocusCheck(bool value) { return set(m_skipDeepFocusCheck, value); }
    /// Whether nothing is painted around the body; otherwise the set "background-primary" is. True
    /// by default.
    WidgetData &shouldHaveTransparentBackground(bool value)
    {
        return set(m_shouldHaveTransparentBackground, value);
    }
    /// Whether the content keeps clear of rounded corners. True by default.
    WidgetData &addMariginForCentralWidget(bool value)
    {
        return set(m_addMariginForCentralWidget, value);
    }
    /// The radius of the body's corners in pixels. 0 by default.
    WidgetData &cornerRadius(int value) { return set(m_cornerRadius, value); }
    /// The radius of \a size; other values change nothing.
    WidgetData &cornerRadius(PopupSize size);
    /// The colour of the body.
    WidgetData &widgetColour(const QColor &value) { return set(m_widgetColour, value); }
    /// The normal colour of the set \a name, in the record's theme.
    WidgetData &widgetColour(const QString &name) { return widgetColour(normalColour(name)); }
    /// The colour of the outline.
    WidgetData &widgetBorderColour(const QColor &value) { return set(m_widgetBorderColour, value); }
    /// The normal colour of the set \a name, in the record's theme.
    WidgetData &widgetBorderColour(const QString &name)
    {
        return widgetBorderColour(normalColour(name));
    }
    /// The colour of the shadow.
    WidgetData &widgetBorderBlurColour(const QColor &value)
    {
        return set(m_widgetBorderBlurColour, value);
    }
    /// The normal colour of the set \a name, in the record's theme.
    WidgetData &widgetBorderBlurColour(const QString &name)
    {
        return widgetBorderBlurColour(normalColour(name));
    }
    /// Moves the source rectangle before the popup is placed beside it. (0, 0) by default.
    WidgetData &offset(const QPoint &value) { return set(m_offset, value); }
    /// The title above the content. Empty by default, for none.
    WidgetData &headerText(const QString &value) { return set(m_headerText, value); }

    // The fields, for reading.
    Alignment m_alignment = Alignment::Center;
    ArrowPostion m_arrowPostion = ArrowPostion::Top;
    bool m_autoDismiss = true;
    int m_dismissTimerTicks = 0;
    bool m_arrowAlignmentRect = false;
    QRect m_arrowPostionRect;
    bool m_dismissWithParentFocused = true;
    bool m_dismissPopupOnSourceMove = false;
    bool m_activateOnShow = false;
    bool m_fitInMainWindowGeometry = false;
    bool m_focusSourceOnClose = true;
    bool m_selfReactivate = true;
    bool m_showOnSourceScreen = false;
    bool m_shouldTakeFocus = true;
    bool m_skipDeepFocusCheck = false;
    bool m_shouldHaveTransparentBackground = true;
    bool m_addMariginForCentralWidget = true;
    int m_cornerRadius = 0;
    OxaThemeUtils::AppThemeType m_theme;
    QColor m_widgetColour;
    QColor m_widgetBorderColour;
    QColor m_widgetBorderBlurColour;
    QPoint m_offset;
    QString m_headerText;

private:
    QColor normalColour(const QString &setName) const;

    template <typename Value>
    WidgetData &set(Value &field, const Value &value)
    {
        field = value;
        return *this;
    }
};
