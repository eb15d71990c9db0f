// SPDX-License-Identifier: Apache-2.0
#include "Specimens.h"

#include "Metrics.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGridLayout>
#include <QMouseEvent>

namespace {

constexpr int stageHeight = 80;

/// Lets \a widget believe that the pointer is over it. It sees no pointer, which would take that
/// away again.
void holdHovered(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UnderMouse);
    // A push button that tracks the pointer wants to be told where it is.
    widget->setMouseTracking(true);
    const QPointF somewhere(widget->rect().center());
    QMouseEvent move(QEvent::MouseMove, somewhere, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

void holdPressed(QWidget *widget) { qobject_cast<QAbstractButton *>(widget)->setDown(true); }

void holdChecked(QWidget *widget)
{
    auto *button = qobject_cast<QAbstractButton *>(widget);
    button->setCheckable(true);
    button->setChecked(true);
}

void holdDisabled(QWidget *widget) { widget->setEnabled(false); }

struct HeldState
{
    QString caption;
    void (*hold)(QWidget *);
    bool isForButtons;
};

QVector<HeldState> heldStates()
{
    return { { Specimens::tr("hovered"), holdHovered, false },
             { Specimens::tr("pressed"), holdPressed, true },
             { Specimens::tr("checked"), holdChecked, true },
             { Specimens::tr("disabled"), holdDisabled, false } };
}

} // namespace

Specimens::Specimens(const std::function<QWidget *()> &make, QWidget *parent) : OxaWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::tight);
    grid->setRowMinimumHeight(1, stageHeight);
    const QVector<HeldState> states = heldStates();
    for (int column = 0; column <= states.size(); ++column)
        grid->setColumnStretch(column, 1);

    add(make(), tr("in use"));
    const bool isButton = qobject_cast<QAbstractButton *>(m_widgets.front()) != nullptr;
    for (const HeldState &state : states) {
        if (state.isForButtons && !isButton)
            continue;
        QWidget *widget = make();
        widget->setAttribute(Qt::WA_TransparentForMouseEvents);
        widget->setFocusPolicy(Qt::NoFocus);
        state.hold(widget);
        add(widget, state.caption);
    }
}

void Specimens::add(QWidget *widget, const QString &caption)
{
    auto *grid = static_cast<QGridLayout *>(layout());
    const int column = m_widgets.size();
    grid->addWidget(Labels::caption(caption, this), 0, column);
    grid->addWidget(widget, 1, column, Qt::AlignLeft | Qt::AlignVCenter);
    m_widgets += widget;
}
