// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QPointer>
#include <QUuid>

#include <set>

class OxaPushButton;
class QBoxLayout;
class QKeyEvent;

/// A row or column of buttons that is one stop for Tab: the arrow keys along its direction move the
/// focus from button to button, past hidden and disabled ones, and stop at both ends. Those across
/// it do nothing.
///
/// Left goes to the button before, also in a right-to-left application.
///
/// The widget also stores what a screen reader says of it, and whether that is due: when the focus
/// comes in, but not when it moves inside.
class UIELEMENTS_EXPORT ContainerWidget : public OxaWidget
{
    Q_OBJECT

public:
    /// Makes an empty container that takes no focus itself.
    explicit ContainerWidget(QWidget *parent = nullptr);

    /// Watches the buttons of the widget's own layout if that is a QBoxLayout; otherwise it does
    /// nothing.
    void setupEventFilters();

    /// Watches the buttons in \a layout, which stays the caller's, from now on. A QVBoxLayout takes
    /// Up and Down to move and ignores Left and Right; a QHBoxLayout the other way round. Buttons
    /// that are added later need another call.
    void setupEventFilters(QBoxLayout *layout);

    /// Returns the stored text for screen readers. Empty by default.
    QString getAccessibleMessage() const;

    /// Stores a text for screen readers. Nothing in the library speaks it.
    void setAccessibleMessage(const QString &message);

    /// True unless the focus has moved from one OxaPushButton to another since it came in. Tab and
    /// Backtab out of the container make it true again; leaving in another way does not.
    bool sayAcceleratorInfo() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Leaves the container: the focus goes to the next widget, or with \a next false to the one
    /// before, that is not in the layout.
    bool focusNextPrevChild(bool next) override;

private:
    bool handleKey(QKeyEvent *event);
    bool moveFocus(QKeyEvent *event);
    int getNextIndex(int current, QKeyEvent *event) const;
    void noteFocus(const OxaPushButton &button);

    QPointer<QBoxLayout> m_layout;
    int m_previousKey = Qt::Key_Up;
    int m_nextKey = Qt::Key_Down;
    std::set<int> m_swallowedKeys;
    bool m_sayAcceleratorInfo = true;
    QUuid m_lastFocusedButton; ///< Null until the focus comes in.
    QString m_accessibleMessage;
};
