// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/widgets/OxaWidget.h>
#include <UiElements/widgets/WidgetData.h>

#include <QPointer>

class CentralWidget;
class QPushButton;
class QTimer;
class QWindow;

namespace VisualUtils {
class EventFilter;
}
namespace PopupPlacement {
struct Placement;
struct Request;
} // namespace PopupPlacement

/// A frameless window with any content beside a source: a rounded body with an arrow towards a
/// button, a widget or a rectangle on the screen.
///
/// It is made hidden, and showSmooth() places and shows it. Where there is no room it goes to the
/// other side of its source, or is shifted; each show starts from the configured side again. It
/// hides on Escape and when it loses the activation, as its WidgetData says. Hiding does not delete
/// it: show it again, or delete its content or its parent, with which it dies.
///
/// What ends the popup in a slot of widgetShown() or widgetHidden(), or while it moves and its
/// content is laid out, must use deleteLater(), because Qt still uses a window after these events.
class UIELEMENTS_EXPORT PopupWidget : public OxaWidget
{
    Q_OBJECT

public:
    /// Makes a popup without content. Its window is kept above \a parent's.
    PopupWidget(QWidget *parent, const WidgetData &widgetData);
    ~PopupWidget() override;

    /// Makes a hidden popup for \a button, as a child of its window, which takes over \a content.
    /// When it hides, the button is no longer checked, and gets the focus if the data says so.
    static PopupWidget *create(QPushButton *button, QWidget *content, const WidgetData &widgetData);

    /// Makes a hidden popup at the pointer, if that is inside \a rect of \a parent, or else in the
    /// middle of what is seen of it; moved by \a offset. Without a parent, \a rect is on the
    /// screen.
    static PopupWidget *create(QWidget *parent, const QRect &rect, const QPoint &offset,
                               QWidget *content, const WidgetData &widgetData);

    /// Makes a popup for \a button, shows it beside it and gives \a content the focus.
    static PopupWidget *createAndShow(QPushButton *button, QWidget *content,
                                      const WidgetData &widgetData);

    /// Adds \a widget to the body, and makes it the popup's focus proxy.
    void registerWidget(QWidget *widget);

    /// Takes \a widget out of the body's layout; it stays a child of the body.
    void removeWidget(QWidget *widget);

    /// Returns the body's first widget or null: with a header, its label.
    QWidget *getRegisterWidget() const;

    /// Returns the body.
    QWidget *getMainWidget() const;

    /// Returns the button that the popup was made for. Null without one, and once it is deleted.
    QPushButton *getSourceButton() const;

    /// Returns the source on the screen; null at first.
    QRect getOriginRect() const { return m_originRect; }

    /// Stores the source and places the popup beside it. Does nothing if it is the same, unless
    /// \a force is true.
    void repositionWindow(const QRect &originRect, bool force);

    /// Sets the wished side of the arrow. The popup stays where it is until it is placed again.
    void setArrowPosition(WidgetData::ArrowPostion position);

    /// Sets the size policy of the body. Fixed in both directions by default.
    void setCentralWidgetSizePolicy(QSizePolicy::Policy horizontal, QSizePolicy::Policy vertical);

    /// Sets the popup's size for the next time that it is placed. A side below 1 takes that of the
    /// size hint, as both do by default.
    void setDesiredSize(const QSize &size) { m_desiredSize = size; }

    /// Fixes the heights of the content and the body to \a height and that of the popup to 20 more,
    /// and places it.
    ///
    /// The body's margins are part of its height, so that it shows less of the content: nothing of
    /// what lies in the lowest 1, or 11 with the arrow on top, plus 0.71 corner radii. A caller
    /// adds as much to \a height, and as much again for the same distance below, and leaves it
    /// empty.
    void updateFixedHeight(int height);

public Q_SLOTS:
    /// Lays the content out again and places the popup, for a content that has changed its size.
    void resizeToContent();

    /// Shows the popup beside \a originRect, a rectangle on the screen; beside the last one if that
    /// is not valid. A popup that is visible is painted again but stays where it is.
    void showSmooth(QRect originRect);

    /// Shows the popup beside its last source.
    void showSmooth();

    /// Shows the popup beside \a originWidget; beside its last source if null.
    void showSmooth(const QWidget *originWidget);

Q_SIGNALS:
    /// Escape is about to hide the popup. A slot may delete it.
    void popupDismissed();

    /// The popup was hidden, by whatever.
    void widgetHidden();

    /// The popup is placed and about to appear.
    void widgetShown();

    /// The pointer came into the popup's window.
    void widgetHoverEntered();

    /// The pointer left the popup's window.
    void widgetHoverLeaved();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void takeContent(QWidget *content);
    void hideWhenSourceMoves();
    void makeDismissTimer();

    void repositionWindow(WidgetData::Alignment alignment, WidgetData::ArrowPostion arrow);
    void place(const PopupPlacement::Placement &placement);

    void onActiveChanged();
    void onCurrentActiveWindowChanged();
    void followWindows();
    bool isActiveWindowInside() const;
    QWindow *windowToTrack() const;
    void dismissUnlessParentHasFocus();

    CentralWidget *const m_centralWidget;
    WidgetData m_data;
    QPointer<QPushButton> m_sourceButton;
    QRect m_originRect;
    QSize m_desiredSize { 0, 0 };
    QPointer<VisualUtils::EventFilter> m_sourceMoveFilter;
    QTimer *m_dismissTimer = nullptr;
    QPointer<QWindow> m_trackedWindow;
};
