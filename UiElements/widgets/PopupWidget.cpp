// SPDX-License-Identifier: Apache-2.0
#include "PopupWidget.h"

#include "CentralWidget_p.h"
#include "PopupPlacement_p.h"

#include <UiElements/app/BoundedPixels_p.h>
#include <UiElements/svg/VisualUtils.h>

#include <QCursor>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

using BoundedPixels::bounded;

namespace {

constexpr int shadowMargin = 4;
constexpr int fixedHeightMargin = 20;

QVector<PopupPlacement::Screen> currentScreens()
{
    QVector<PopupPlacement::Screen> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.append({ screen->geometry(), screen->availableGeometry() });
    return screens;
}

/// Returns \a rect of \a widget on the screen, whose corners are to be where \a first and \a last
/// are.
PopupPlacement::MappedRect mapped(const QWidget &widget, const QRect &rect, const QPoint &first,
                                  const QPoint &last)
{
    QRect byBottomRight = rect;
    byBottomRight.moveBottomRight(bounded(QPointF(widget.mapToGlobal(last))));
    return { QRect(bounded(QPointF(widget.mapToGlobal(first))), rect.size()), byBottomRight };
}

QRect getOriginRectFromPopupRect(const QWidget *parent, const QRect &rect, const QPoint &offset)
{
    PopupPlacement::MappedRect area { rect, rect };
    PopupPlacement::MappedRect frame = area;
    if (parent) {
        area = mapped(*parent, rect, rect.topLeft(), rect.bottomRight());
        frame = mapped(*parent, parent->rect(), QPoint(1, 1),
                       QPoint(parent->width(), parent->height()));
    }
    return PopupPlacement::originAtCursor(frame, area, currentScreens(), QCursor::pos(), offset);
}

void refreshItems(QLayout *layout)
{
    if (!qobject_cast<QBoxLayout *>(layout) && !qobject_cast<QGridLayout *>(layout))
        return;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->layout())
            refreshItems(item->layout());
        else if (item->widget())
            item->widget()->updateGeometry();
        else
            item->invalidate();
    }
}

/// Lays \a widget and all that is in it out again. That resizes widgets, which may delete others.
void refreshLayouts(const QPointer<QWidget> &widget)
{
    QVector<QPointer<QWidget>> children;
    const auto found = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : found)
        children += child;
    for (const QPointer<QWidget> &child : qAsConst(children)) {
        if (child)
            refreshLayouts(child);
    }
    if (!widget || !widget->layout())
        return;
    refreshItems(widget->layout());
    widget->layout()->invalidate();
    widget->layout()->activate();
}

/// Drops the updates that show() has asked for, so that repaint() paints everything, and once.
void dropUpdates(QWidget *shown)
{
    QCoreApplication::removePostedEvents(shown, QEvent::UpdateLater);
    const auto children = shown->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (!child->internalWinId()) // It is painted with the popup.
            QCoreApplication::removePostedEvents(child, QEvent::UpdateLater);
    }
}

/// Tells \a button that its popup is hidden. Slots may delete it.
void release(const QPointer<QPushButton> &button, bool isFocused)
{
    if (button)
        button->setChecked(false);
    if (button && isFocused)
        button->activateWindow();
    if (button && isFocused)
        button->setFocus(Qt::TabFocusReason);
}

} // namespace

PopupWidget::PopupWidget(QWidget *parent, const WidgetData &widgetData)
    : OxaWidget(parent, Qt::Tool | Qt::FramelessWindowHint),
      m_centralWidget(new CentralWidget(this, widgetData)),
      m_data(widgetData)
{
    setObjectName(QStringLiteral("PopupWidget"));
    setWindowTitle(QStringLiteral("PopupWidgetTitle"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setThemeType(OxaThemeUtils::themeTypeToString(widgetData.m_theme));
    if (widgetData.m_shouldHaveTransparentBackground) {
        setAttribute(Qt::WA_TranslucentBackground);
    } else {
        OxaCSSData style;
        style.backgroundColorSetName = QStringLiteral("background-primary");
        setCSS(style);
    }
    installEventFilter(this);

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(shadowMargin, shadowMargin, shadowMargin, shadowMargin);
    layout->addWidget(m_centralWidget);
    hideWhenSourceMoves();
    makeDismissTimer();
}

PopupWidget::~PopupWidget()
{
    delete m_sourceMoveFilter;
    delete m_dismissTimer;
}

void PopupWidget::hideWhenSourceMoves()
{
    if (!m_data.m_dismissPopupOnSourceMove || !parentWidget())
        return;
    const auto hideIt = [this](QEvent *) {
        hide();
        return false;
    };
    m_sourceMoveFilter = new VisualUtils::EventFilter(parentWidget()->window(), { QEvent::Move },
                                                      hideIt);
}

void PopupWidget::makeDismissTimer()
{
    if (m_data.m_dismissTimerTicks < 1)
        return;
    m_dismissTimer = new QTimer(this);
    m_dismissTimer->setSingleShot(true);
    connect(m_dismissTimer, &QTimer::timeout, this, &PopupWidget::hide);
}

PopupWidget *PopupWidget::create(QPushButton *button, QWidget *content,
                                 const WidgetData &widgetData)
{
    auto *popup = new PopupWidget(button ? button->window() : nullptr, widgetData);
    popup->m_sourceButton = button;
    popup->takeContent(content);
    const QPointer<QPushButton> source(button);
    connect(popup, &PopupWidget::widgetHidden, popup,
            [source, isFocused = widgetData.m_focusSourceOnClose] { release(source, isFocused); });
    return popup;
}

PopupWidget *PopupWidget::create(QWidget *parent, const QRect &rect, const QPoint &offset,
                                 QWidget *content, const WidgetData &widgetData)
{
    auto *popup = new PopupWidget(parent, widgetData);
    popup->m_originRect = getOriginRectFromPopupRect(parent, bounded(rect),
                                                     bounded(QPointF(offset)));
    popup->takeContent(content);
    return popup;
}

PopupWidget *PopupWidget::createAndShow(QPushButton *button, QWidget *content,
                                        const WidgetData &widgetData)
{
    const QPointer<QWidget> shown(content);
    const QPointer<PopupWidget> popup = create(button, content, widgetData);
    popup->showSmooth(button);
    if (shown)
        shown->setFocus(Qt::TabFocusReason);
    return popup;
}

void PopupWidget::takeContent(QWidget *content)
{
    if (content) {
        content->setParent(m_centralWidget);
        registerWidget(content);
        content->show();
        connect(content, &QObject::destroyed, this, &QObject::deleteLater);
    }
    hide();
}

void PopupWidget::registerWidget(QWidget *widget)
{
    m_centralWidget->contentLayout()->addWidget(widget);
    setFocusProxy(widget);
}

void PopupWidget::removeWidget(QWidget *widget)
{
    m_centralWidget->contentLayout()->removeWidget(widget);
}

QWidget *PopupWidget::getRegisterWidget() const
{
    QLayoutItem *first = m_centralWidget->contentLayout()->itemAt(0);
    return first ? first->widget() : nullptr;
}

QWidget *PopupWidget::getMainWidget() const { return m_centralWidget; }

QPushButton *PopupWidget::getSourceButton() const { return m_sourceButton; }

void PopupWidget::setArrowPosition(WidgetData::ArrowPostion position)
{
    m_data.arrowPostion(position);
    m_centralWidget->setArrowPosition(position);
}

void PopupWidget::setCentralWidgetSizePolicy(QSizePolicy::Policy horizontal,
                                             QSizePolicy::Policy vertical)
{
    m_centralWidget->setSizePolicy(horizontal, vertical);
}

void PopupWidget::updateFixedHeight(int height)
{
    height = qMin(height, QWIDGETSIZE_MAX - fixedHeightMargin);
    const QPointer<PopupWidget> self(this); // A widget's handler of its size may delete the popup.
    if (QWidget *content = getRegisterWidget())
        content->setFixedHeight(height);
    if (self)
        m_centralWidget->setFixedHeight(height);
    if (self)
        setFixedHeight(height + fixedHeightMargin);
    if (self)
        resizeToContent();
}

void PopupWidget::resizeToContent()
{
    const QPointer<PopupWidget> self(this);
    refreshLayouts(this);
    if (self)
        repositionWindow(m_data.m_alignment, m_data.m_arrowPostion);
}

void PopupWidget::showSmooth(QRect originRect)
{
    if (originRect.isValid())
        m_originRect = originRect;
    const QPointer<PopupWidget> self(this);
    refreshLayouts(this);
    // Some window managers lose track of a window that is made elsewhere and moved as it appears.
    if (self && !testAttribute(Qt::WA_WState_Created))
        repositionWindow(m_data.m_alignment, m_data.m_arrowPostion);
    if (self)
        show();
    if (!self)
        return;
    dropUpdates(this);
    repaint(); // Before the window is exposed: no empty one is seen.
    if (m_data.m_activateOnShow)
        activateWindow();
    if (self && m_dismissTimer)
        m_dismissTimer->start(m_data.m_dismissTimerTicks);
}

void PopupWidget::showSmooth() { showSmooth(QRect()); }

void PopupWidget::showSmooth(const QWidget *originWidget)
{
    if (originWidget)
        showSmooth(QRect(originWidget->mapToGlobal(QPoint(0, 0)), originWidget->rect().size()));
    else
        showSmooth();
}

void PopupWidget::repositionWindow(const QRect &originRect, bool force)
{
    if (originRect == m_originRect && !force)
        return;
    m_originRect = originRect;
    repositionWindow(m_data.m_alignment, m_data.m_arrowPostion);
}

void PopupWidget::repositionWindow(WidgetData::Alignment alignment, WidgetData::ArrowPostion arrow)
{
    const QMargins margins = layout()->contentsMargins();
    const QSize hint = sizeHint();
    const QSize size(m_desiredSize.width() >= 1 ? m_desiredSize.width() : hint.width(),
                     m_desiredSize.height() >= 1 ? m_desiredSize.height() : hint.height());
    const PopupPlacement::Request request { bounded(m_originRect),
                                            bounded(QPointF(m_data.m_offset)),
                                            bounded(QSizeF(size)),
                                            margins.left(),
                                            margins.right(),
                                            alignment,
                                            arrow };
    if (!m_data.m_fitInMainWindowGeometry) {
        const auto placement = PopupPlacement::onScreen(request, currentScreens(),
                                                        m_data.m_showOnSourceScreen);
        if (placement)
            place(*placement);
    } else if (parentWidget()) {
        place(PopupPlacement::inWindow(request, bounded(parentWidget()->window()->geometry())));
    }
}

void PopupWidget::place(const PopupPlacement::Placement &placement)
{
    m_centralWidget->setArrowPosition(placement.arrow);
    m_centralWidget->update(); // The arrow may move even if nothing else does.
    const QPointer<PopupWidget> self(this);
    setGeometry(placement.geometry);
    if (self)
        m_centralWidget->contentLayout()->activate(); // Before the next paint.
}

bool PopupWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != this)
        return OxaWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        const QPointer<PopupWidget> self(this);
        Q_EMIT popupDismissed();
        if (self)
            hide();
        return true;
    }
    if (event->type() == QEvent::LayoutRequest
        && m_centralWidget->contentLayout()->sizeConstraint() == QLayout::SetFixedSize)
        repositionWindow(m_data.m_alignment, m_data.m_arrowPostion);
    return OxaWidget::eventFilter(watched, event);
}

void PopupWidget::enterEvent(QEvent *event)
{
    OxaWidget::enterEvent(event);
    Q_EMIT widgetHoverEntered();
}

void PopupWidget::leaveEvent(QEvent *event)
{
    OxaWidget::leaveEvent(event);
    Q_EMIT widgetHoverLeaved();
}

void PopupWidget::showEvent(QShowEvent *event)
{
    OxaWidget::showEvent(event);
    followWindows();
    repositionWindow(m_data.m_alignment, m_data.m_arrowPostion);
    setAttribute(Qt::WA_Mapped, true); // So that showSmooth() can paint before Qt knows of it.
    Q_EMIT widgetShown();
}

void PopupWidget::hideEvent(QHideEvent *event)
{
    OxaWidget::hideEvent(event);
    Q_EMIT widgetHidden();
}
