// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: what each tab has is reached through the bar, by the tab's index.

#include <UiElements/theme/OxaCSSData.h>
#include <UiElements/widgets/ContainerWidget.h>

#include <functional>

class OxaPushButton;
class QHBoxLayout;
class QPushButton;

/// A row of checkable buttons, the tabs, of which one is current: checked, and the one that Tab
/// reaches. The arrow keys move the focus to the others; a click, by the pointer or Space, makes a
/// tab current.
///
/// Without a current tab, as at first, the bar itself takes the focus. While the current tab is
/// hidden or disabled, Tab reaches the first tab that is neither instead.
///
/// Assistive technology is told of a list of page tabs, in which the tab that is checked is
/// selected; pressing another one there clicks it.
///
/// Tabs are spread over a bar that is wider than they are; the size policy QSizePolicy::Maximum
/// keeps them together. The bar's height is no hint of its tabs': give it a fixed one.
///
/// Where there is no tab at an index, setters do nothing and getters return an empty value.
///
/// A slot may delete the bar, or remove tabs by removeTab(), but not a slot of a tab's toggled(),
/// see OxaPushButton. A tab that is deleted otherwise leaves currentIndex() as it is.
class UIELEMENTS_EXPORT OxaTabBar : public ContainerWidget
{
    Q_OBJECT
    Q_PROPERTY(int horizontalPadding READ getHorizontalPadding WRITE setHorizontalPadding)

public:
    /// Makes a bar without tabs.
    explicit OxaTabBar(QWidget *parent = nullptr);
    ~OxaTabBar() override;

    /// Returns the space at both sides of a tab's text in pixels. 8 by default.
    int getHorizontalPadding() const;

    /// Sets the space at both sides of a tab's text, for the size hint and for tabs added later.
    void setHorizontalPadding(int padding);

    /// Adds a tab with \a text, also as its tool tip, and \a accessibleName, also as its accessible
    /// description. It is at most as wide as the text in the bar's font and the padding. An & marks
    /// a mnemonic, && shows one. Makes no tab current. Returns its index, or -1 if no button was
    /// made for it.
    int addTab(const QString &text, const QString &accessibleName = QString());

    /// Deletes the tab at \a index and makes the first one current, whichever was; without tabs the
    /// index is -1. Emits currentChanged() in either case. The focus of the tab goes to the first
    /// one that takes it, or else to the bar. Remove the tab's page in a stack before, so that
    /// slots find the same indexes there.
    void removeTab(int index);

    /// Deletes all tabs, then emits currentChanged() once. Signals that were blocked are not
    /// blocked afterwards.
    void removeAllTabs();

    /// Returns the number of tabs.
    int count() const;

    /// Returns the index of the current tab, or -1.
    int currentIndex() const;

    /// Makes the tab at \a index current and emits currentChanged() if it was not; without a tab
    /// there it does nothing.
    void setCurrentIndex(int index);

    /// Makes the first tab that is enabled and visible in the bar current. Returns its index, or -1
    /// without one. A tab added to a visible bar becomes visible when events are handled next.
    int selectFirstTab();

    /// Returns the tab at \a index, or null.
    virtual OxaPushButton *getTab(int index) const;

    /// Sets the space between tabs in pixels. 0 by default.
    void setTabsSpacing(int spacing);

    /// Makes addTab() make its buttons by \a makeButton, which returns a child of its argument. An
    /// empty function is ignored.
    void setNewTabButtonFunc(const std::function<OxaPushButton *(QWidget *)> &makeButton);

    /// Calls \a showMenu, unless it is empty, with the tab at \a index, or null.
    void createAndShowTabMenu(int index, const std::function<void(QPushButton *)> &showMenu);

    /// True without a tab, or if it is hidden.
    bool isTabHidden(int index) const;

    /// True if the tab is visible, as QWidget says.
    bool isTabVisible(int index) const;
    /// Shows or hides the tab.
    void setTabVisible(int index, bool visible);

    /// True if the tab is enabled, as QWidget says.
    bool isTabEnabled(int index) const;
    /// Enables or disables the tab.
    void setTabEnabled(int index, bool enabled);

    /// Returns the tab's text.
    QString tabText(int index) const;
    /// Sets the tab's text alone: tool tip and maximum width stay. For a longer text, set the
    /// maximum width of getTab() to QWIDGETSIZE_MAX.
    void setTabText(int index, const QString &text);

    /// Returns the tab's tool tip.
    QString tabToolTip(int index) const;
    /// Sets the tab's tool tip.
    void setTabToolTip(int index, const QString &toolTip);

    /// Returns the tab's accessible name.
    QString accessibleTabName(int index) const;
    /// Sets the tab's accessible name; its accessible description stays.
    void setAccessibleTabName(int index, const QString &name);

    /// Returns the tab's Qt style sheet.
    QString tabStyleSheet(int index) const;
    /// Sets the tab's Qt style sheet, which also becomes the style text of a tab without one.
    void setTabStyleSheet(int index, const QString &styleSheet);

    /// Sets the tab's style text, through its property "css".
    void setTabCSS(int index, const OxaCSSData &cssData);

    /// Returns the width in pixels that the tab's elided text leaves free.
    int tabElidePadding(int index) const;
    /// Sets the width that the tab's elided text leaves free. Repaints the tab.
    void setTabElidePadding(int index, int padding);

    /// Returns the tab's property called \a name; not valid without a tab.
    QVariant tabProperty(int index, const char *name) const;
    /// Sets the tab's property called \a name.
    void setTabProperty(int index, const char *name, const QVariant &value);

    /// Returns the tab's data: its dynamic property "tab_property".
    QVariant tabData(int index) const;
    /// Sets the tab's data.
    void setTabData(int index, const QVariant &value);

    /// Returns the index of the first tab whose data equals \a value, or -1. An empty value finds
    /// the first tab without data.
    int findTabIndexByData(const QVariant &value) const;

    /// Returns the tab's place in the bar; a null rectangle without a tab.
    QRect tabGeometry(int index) const;

    /// Returns the width of all texts in the bar's font with their padding, and the height that the
    /// bar has.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Another tab is current, or none, with an \a index of -1. Also emitted at each removal.
    void currentChanged(int index);

    /// The tab at \a newIndex was clicked, which is current now, while \a prevIndex was. Follows
    /// currentChanged(), which a click on the current tab does not emit.
    void tabClicked(int prevIndex, int newIndex);

protected:
    /// Adds \a widget, which becomes the bar's own, as the last tab and returns its index. Anything
    /// but an OxaPushButton is refused: a warning is logged and -1 returned. Its focus policy stays
    /// the caller's: with Qt::ClickFocus, as addTab() sets it, Tab passes the tab over until it is
    /// current.
    int addTabItem(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPushButton *buttonAt(int index) const;
    int textWidth(const QString &text) const;
    void onTabClicked(QWidget *tab);
    void focusFirst();
    void updateTabStop();
    void moveTabStop(QPushButton &current);

    QHBoxLayout *const m_layout;
    int m_currentIndex = -1;
    int m_horizontalPadding = 8;
    std::function<OxaPushButton *(QWidget *)> m_newTabButtonFunc;
};
