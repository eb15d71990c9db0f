// SPDX-License-Identifier: Apache-2.0
#include "Specimens.h"

#include "looks/Metrics.h"
#include "widgets/Labels.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMouseEvent>

namespace {

constexpr int stageHeight = 80;

/// Makes \a widget look as under the pointer. It gets no events of the real one, which end that.
void holdHovered(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UnderMouse);
    // A style decides while polishing whether a widget reacts to the pointer.
    widget->ensurePolished();
    // A push button with mouse tracking needs the position.
    widget->setMouseTracking(true);
    const QPointF somewhere(widget->rect().center());
    QMouseEvent move(QEvent::MouseMove, somewhere, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    // A slider asks what of it is under the pointer.
    QHoverEvent hover(QEvent::HoverMove, somewhere, somewhere);
    QCoreApplication::sendEvent(widget, &hover);
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

Specimens::Specimens(const std::function<QWidget *()> &make, States states, QWidget *parent)
    : OxaWidget(parent)
{
    new WrapLayout(Metrics::spacing, this);
    add(make(), tr("in use"));
    const bool isButton = qobject_cast<QAbstractButton *>(m_widgets.front()) != nullptr;
    const QVector<HeldState> held = states == States::All ? heldStates() : QVector<HeldState>();
    for (const HeldState &state : held) {
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
    auto *specimen = new OxaWidget(this);
    // The widget may become narrower; the ones after it keep their positions.
    specimen->setMinimumWidth(widget->minimumSize()
                                      .expandedTo(widget->sizeHint())
                                      .boundedTo(widget->maximumSize())
                                      .width());
    auto *stage = new QHBoxLayout;
    stage->addStrut(stageHeight);
    stage->addWidget(widget, 0, Qt::AlignLeft | Qt::AlignVCenter);
    auto *column = new QVBoxLayout(specimen);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::tight);
    column->addWidget(Labels::caption(caption, this));
    column->addLayout(stage);
    layout()->addWidget(specimen);
    m_widgets += widget;
}
