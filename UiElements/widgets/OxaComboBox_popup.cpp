// SPDX-License-Identifier: Apache-2.0

// How a combo box opens its list, takes clicks and keys, and paints.

#include "OxaComboBox.h"

#include <UiElements/theme/FocusFrame_p.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QFrame>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

namespace {

/// Turns the platform's animation of combo boxes on or off, for the span of its life.
class AnimationGuard
{
    Q_DISABLE_COPY_MOVE(AnimationGuard)

public:
    explicit AnimationGuard(bool isAnimated)
    {
        QApplication::setEffectEnabled(Qt::UI_AnimateCombo, isAnimated);
    }
    ~AnimationGuard() { QApplication::setEffectEnabled(Qt::UI_AnimateCombo, m_before); }

private:
    const bool m_before = QApplication::isEffectEnabled(Qt::UI_AnimateCombo);
};

} // namespace

void OxaComboBox::showPopup()
{
    if (!m_isShowPopupEnabled)
        return;
    m_isExpanded = true;
    followList();
    if (m_list->accessibleName().isEmpty())
        m_list->setAccessibleName(accessibleName());
    const AnimationGuard animation(m_isAnimated);
    QComboBox::showPopup();
    if (auto *frame = findChild<QFrame *>())
        placePopup(frame);
}

void OxaComboBox::takeList()
{
    m_list = view();
    m_list->installEventFilter(this);
    // Qt has made it for a style that scrolls without a bar; the box's sheet asks for one.
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

/// Follows a list that setView() has set since, of whose current row QComboBox does not tell.
void OxaComboBox::followList()
{
    if (m_list == view())
        return;
    takeList();
    if (const QItemSelectionModel *selection = m_list->selectionModel())
        connect(selection, &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex &current) { highLightedIndex(current.row()); });
}

void OxaComboBox::hidePopup()
{
    m_isExpanded = false;
    QComboBox::hidePopup();
}

/// Moves \a frame from where Qt put it, which may be above the box already.
void OxaComboBox::placePopup(QWidget *frame) const
{
    const QPoint &offset = m_itemViewDropdownOffset;
    if (!m_isOpenedUpwards) {
        frame->move(frame->pos() + offset);
        return;
    }
    const bool isBelow = frame->mapToGlobal(QPoint()).y() >= mapToGlobal(QPoint()).y();
    const int up = isBelow ? frame->height() + height() : 0;
    frame->move(frame->x() + offset.x(), frame->y() - offset.y() - up);
}

bool OxaComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != view())
        return QComboBox::eventFilter(watched, event);
    const QPointer<OxaComboBox> self(this);
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        m_isExpanded = view()->isVisible();
        applyCustomCSS();
        return self.isNull(); // The list is gone too.
    case QEvent::KeyPress:
        return onListKeyPressed(static_cast<QKeyEvent *>(event)->key());
    default:
        return QComboBox::eventFilter(watched, event);
    }
}

/// Answers whether the list must not see the key: it is gone when a slot deleted the box.
bool OxaComboBox::onListKeyPressed(int key)
{
    const QPointer<OxaComboBox> self(this);
    if (!m_isShowPopupEnabled) {
        Q_EMIT contentAreaClicked(nullptr);
    } else if (key == Qt::Key_Space) {
        const int index = m_highlightedIndex;
        setCurrentIndex(index);
        if (self)
            Q_EMIT activated(index);
        if (self)
            hidePopup();
    }
    return self.isNull();
}

void OxaComboBox::mousePressEvent(QMouseEvent *event)
{
    const int arrowWidth = m_isShowPopupEnabled ? dropDownWidth() : 0;
    const QRect contentArea = rect().adjusted(0, 0, -arrowWidth, 0);
    const QPointer<OxaComboBox> self(this);
    if (event->button() == Qt::LeftButton && contentArea.contains(event->pos()))
        Q_EMIT contentAreaClicked(event);
    if (self && m_isShowPopupEnabled)
        QComboBox::mousePressEvent(event);
}

void OxaComboBox::showEvent(QShowEvent *event)
{
    const QPointer<OxaComboBox> self(this);
    applyCustomCSS();
    if (self)
        QComboBox::showEvent(event);
}

void OxaComboBox::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    QPainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    drawDropdownIcon(&painter, option);
    const QStyleOptionFocusRect focusOption = FocusFrame::optionFor(this);
    if (FocusFrame::isShown(focusOption.state))
        FocusFrame::draw(&painter, focusOption, this);
}

void OxaComboBox::drawDropdownIcon(QPainter *painter, const QStyleOptionComboBox &option)
{
    const OxaSvgIcon &icon = m_isExpanded ? m_dropdownIconExpanded : m_dropdownIcon;
    const int x = QGuiApplication::isLeftToRight() ? width() - dropDownWidth()
                                                   : 2 * m_svgDropdownIconPadding;
    const int y = (height() - m_dropdownIcon.getIconSize().height()) / 2;
    painter->save();
    painter->translate(x, y);
    icon.draw(painter, option.state);
    painter->restore();
}
