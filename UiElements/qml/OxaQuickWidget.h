// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QPointer>
#include <QQuickWidget>

#include <memory>
#include <utility>

class OxaQmlEngine;
class QElapsedTimer;
class QQuickItem;
class QWindow;

/// QML inside a widget, which the keyboard focus can leave and enter by Tab and Shift+Tab.
///
/// With setCustomAccessibilityEnabled() the QML says where it ends, by an item with the id
/// "breakQmlFocus" and `activeFocusOnTab: true`. A Tab or Shift+Tab that would move the focus to
/// that item moves it to the next or previous widget of the window. When the focus comes back, from
/// either side, it goes to the item after "breakQmlFocus". Give each item that can have the focus
/// an id: from an item without one, the focus goes on to the next item when it comes back.
///
/// Without it, Tab stays within the QML.
class UIELEMENTS_EXPORT OxaQuickWidget : public QQuickWidget
{
    Q_OBJECT

public:
    /// Makes a widget with an engine of its own.
    explicit OxaQuickWidget(QWidget *parent = nullptr);

    /// Makes a widget of \a engine, which must outlive it.
    OxaQuickWidget(OxaQmlEngine *engine, QWidget *parent);

    ~OxaQuickWidget() override;

    /// True while the widget measures the time of its rendering. Off by default.
    bool getPerformanceWatcherEnabled() const;

    /// Turns finishedRendering() on or off. Off ends all connections of the beforeRendering() and
    /// afterRendering() of quickWindow() to that window itself, a client's too.
    void setPerformanceWatcherEnabled(bool enabled);

    /// True when the keyboard focus can leave the QML. Off by default.
    bool isCustomAccessibilityEnabled() const;

    /// Lets the keyboard focus leave the QML and come back.
    void setCustomAccessibilityEnabled(bool enabled);

Q_SIGNALS:
    /// The widget called \a source was rendered within \a nanosecs milliseconds, whatever the name
    /// says. Emitted in the widget's thread. A slot calls deleteLater() instead of deleting the
    /// widget. Needs setPerformanceWatcherEnabled().
    void finishedRendering(QString source, qlonglong nanosecs);

    /// The focus is about to change, and the widget got it while its window was not the focus
    /// window. A slot may delete the widget.
    void focusAboutToChange();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private Q_SLOTS:
    void onFocusAboutToChange();

private:
    void initialise();
    void tellFocusOfItem();
    bool leavesQml(int key);
    void restoreItemFocus(Qt::FocusReason reason);
    std::pair<QString, QQuickItem *> getNextFocusItem(bool forward) const;
    QString getActiveFocusItem() const;
    QPointer<QWindow> getWindowHandle() const;

    std::unique_ptr<QElapsedTimer> m_renderTimer;
    bool m_customAccessibilityEnabled = false;
    bool m_focusRetryPending = false;
    QPointer<QQuickItem> m_breakFocusItem;
};
