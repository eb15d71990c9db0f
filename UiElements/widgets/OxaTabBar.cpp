// SPDX-License-Identifier: Apache-2.0
#include "OxaTabBar.h"

#include "FocusStop_p.h"
#include "OxaPushButton.h"
#include "WidgetParts_p.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QDebug>
#include <QHBoxLayout>

#include <memory>

namespace {

constexpr char notAButtonWarning[] =
        "OxaTabBar: invalid parameter for tabItem. Expected 'OxaPushButton'";

/// The type of buttons that keep Left and Right to themselves, see TabOrderUtils.
constexpr auto tabAcceleratorType = RillsAccessible::AcceleratorType(1);

/// Which tab is selected is told to assistive technology independently of the bar's signals, which
/// may be blocked.
void deselect(QPushButton &tab)
{
    tab.setChecked(false);
    WidgetParts::tellAccessibility(&tab, QAccessible::SelectionRemove);
}

} // namespace

OxaTabBar::OxaTabBar(QWidget *parent)
    : ContainerWidget(parent),
      m_layout(new QHBoxLayout(this)),
      m_newTabButtonFunc(
              [](QWidget *bar) { return new OxaPushButton(bar, QAccessible::PushButton); })
{
    setObjectName(QStringLiteral("OxaTabBar"));
    setFocusPolicy(Qt::StrongFocus);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(QMargins());
}

OxaTabBar::~OxaTabBar() = default;

int OxaTabBar::getHorizontalPadding() const { return m_horizontalPadding; }

void OxaTabBar::setHorizontalPadding(int padding)
{
    m_horizontalPadding = padding;
    updateGeometry();
}

int OxaTabBar::addTab(const QString &text, const QString &accessibleName)
{
    const QPointer<OxaTabBar> bar(this); // The function may delete the bar, or replace itself.
    const auto makeButton = m_newTabButtonFunc;
    OxaPushButton *tab = makeButton(this);
    if (!bar || !tab)
        return -1;
    if (!text.isEmpty())
        tab->setMaximumWidth(textWidth(text));
    tab->setText(text);
    tab->setToolTip(text);
    tab->setCheckable(true);
    tab->setAcceleratorType(tabAcceleratorType);
    tab->setFocusPolicy(Qt::ClickFocus);
    tab->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    tab->setElideMode(Qt::ElideRight);
    tab->setElidePadding(m_horizontalPadding);
    tab->setAccessibleName(accessibleName);
    tab->setAccessibleDescription(accessibleName);
    return addTabItem(tab);
}

int OxaTabBar::addTabItem(QWidget *widget)
{
    auto *tab = qobject_cast<OxaPushButton *>(widget);
    if (!tab) {
        QMessageLogger().warning() << notAButtonWarning;
        return -1;
    }
    tab->setObjectName(QStringLiteral("tab_%1_%2").arg(objectName(), QString::number(count())));
    connect(tab, &OxaPushButton::clicked, this, [this, tab] { onTabClicked(tab); });
    m_layout->addWidget(tab);
    TabOrderUtils::fixFocusChainFromLayout(this, m_layout);
    setupEventFilters();
    updateTabStop();
    return count() - 1;
}

void OxaTabBar::removeTab(int index)
{
    const QPointer<QPushButton> current = buttonAt(m_currentIndex);
    const std::unique_ptr<QLayoutItem> item(m_layout->takeAt(index));
    if (!item)
        return;
    const bool hadFocus = item->widget() && window()->focusWidget() == item->widget();
    delete item->widget();
    m_currentIndex = -1;
    if (hadFocus)
        focusFirst();
    if (current && current != buttonAt(0)) {
        current->setFocusPolicy(Qt::ClickFocus);
        deselect(*current);
    }
    if (count() > 0)
        setCurrentIndex(0);
    else
        Q_EMIT currentChanged(-1);
}

void OxaTabBar::removeAllTabs()
{
    blockSignals(true);
    while (count() > 0)
        removeTab(0);
    // Also if the caller had blocked them: that no tab is left is always told.
    blockSignals(false);
    Q_EMIT currentChanged(m_currentIndex);
}

int OxaTabBar::count() const { return m_layout->count(); }

int OxaTabBar::currentIndex() const { return m_currentIndex; }

void OxaTabBar::setCurrentIndex(int index)
{
    QPushButton *const tab = buttonAt(index);
    if (!tab)
        return;
    tab->setFocusPolicy(Qt::StrongFocus);
    moveTabStop(*tab);
    tab->setChecked(true);
    // A slot of toggled() may have removed other tabs, and made one of them current.
    QPushButton *const previous = buttonAt(m_currentIndex);
    m_currentIndex = m_layout->indexOf(tab);
    if (previous == tab)
        return;
    if (previous)
        previous->setFocusPolicy(Qt::ClickFocus);
    moveTabStop(*tab);
    if (previous)
        deselect(*previous);
    if (QPushButton *current = buttonAt(m_currentIndex))
        WidgetParts::tellAccessibility(current, QAccessible::Selection);
    Q_EMIT currentChanged(m_currentIndex);
}

int OxaTabBar::selectFirstTab()
{
    for (int i = 0; i < count(); ++i) {
        const OxaPushButton *tab = getTab(i);
        if (!tab || !tab->isEnabled() || !tab->isVisibleTo(this))
            continue;
        setCurrentIndex(i);
        return i;
    }
    return -1;
}

OxaPushButton *OxaTabBar::getTab(int index) const
{
    return qobject_cast<OxaPushButton *>(buttonAt(index));
}

void OxaTabBar::setTabsSpacing(int spacing) { m_layout->setSpacing(spacing); }

void OxaTabBar::setNewTabButtonFunc(const std::function<OxaPushButton *(QWidget *)> &makeButton)
{
    if (makeButton)
        m_newTabButtonFunc = makeButton;
}

void OxaTabBar::createAndShowTabMenu(int index, const std::function<void(QPushButton *)> &showMenu)
{
    if (showMenu)
        showMenu(getTab(index));
}

QSize OxaTabBar::sizeHint() const
{
    int width = 0;
    for (int i = 0; i < count(); ++i)
        width += textWidth(tabText(i));
    return { width, height() };
}

bool OxaTabBar::eventFilter(QObject *watched, QEvent *event)
{
    if (FocusStop::isAffectedBy(*event))
        updateTabStop();
    return ContainerWidget::eventFilter(watched, event);
}

QPushButton *OxaTabBar::buttonAt(int index) const
{
    QLayoutItem *item = m_layout->itemAt(index);
    return item ? qobject_cast<QPushButton *>(item->widget()) : nullptr;
}

/// Returns the width of a tab with \a text.
int OxaTabBar::textWidth(const QString &text) const
{
    return fontMetrics().horizontalAdvance(text) + 2 * m_horizontalPadding;
}

void OxaTabBar::onTabClicked(QWidget *tab)
{
    const int previous = m_currentIndex;
    const QPointer<OxaTabBar> bar(this); // A slot of currentChanged() may delete the bar.
    setCurrentIndex(m_layout->indexOf(tab));
    if (bar)
        Q_EMIT tabClicked(previous, m_currentIndex);
}

void OxaTabBar::focusFirst()
{
    QWidget *first = FocusStop::firstIn(*m_layout);
    (first ? first : this)->setFocus(Qt::OtherFocusReason);
}

void OxaTabBar::updateTabStop()
{
    if (QPushButton *current = buttonAt(m_currentIndex))
        moveTabStop(*current);
}

/// Makes Tab reach \a current, or, while that takes no focus, the first tab that does. Without one
/// the bar takes it.
void OxaTabBar::moveTabStop(QPushButton &current)
{
    QPushButton *const stop = FocusStop::canBe(current) ? &current : FocusStop::firstIn(*m_layout);
    QWidget *const before = focusProxy();
    if (before && before != stop && before != &current)
        before->setFocusPolicy(Qt::ClickFocus);
    if (stop)
        stop->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(stop);
}
