// SPDX-License-Identifier: Apache-2.0
#include "PeopleRow.h"

#include "QmlLooks.h"
#include "looks/Metrics.h"
#include "widgets/Labels.h"
#include "widgets/WrapLayout.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/PopupContextTimer.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QEvent>

namespace {

const QString cardSource = QStringLiteral("views/Card.qml");

bool isActive(const QPointer<PopupContextTimer> &timer) { return timer && timer->isActive(); }

} // namespace

PeopleRow::PeopleRow(QWidget *parent) : OxaWidget(parent)
{
    setLayout(new WrapLayout(Metrics::spacing));
    for (const QString &name : { tr("Ada"), tr("Grace"), tr("Hedy"), tr("Katherine") }) {
        OxaLabel *const person = Labels::chip(name, this);
        person->setMinimumSize(96, 40);
        person->installEventFilter(this);
        layout()->addWidget(person);
    }
}

PeopleRow::State PeopleRow::state() const
{
    if (isActive(m_popups.findDelayCloseTimer(cardSource)))
        return State::Closing;
    if (m_popups.isVisible(cardSource))
        return State::Shown;
    return isActive(m_popups.findDelayOpenTimer(cardSource)) ? State::Waiting : State::Hidden;
}

bool PeopleRow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        showCard(qobject_cast<OxaLabel *>(watched));
    return OxaWidget::eventFilter(watched, event);
}

void PeopleRow::showCard(const OxaLabel *person)
{
    const QRectF place(person->mapToGlobal(QPoint()), QSizeF(person->size()));
    const QVariantMap model = QmlLooks::of(tr("This is the card of %1.").arg(person->text()), this);
    m_popups.createQmlPopup(cardSource, window()->windowHandle(), OxaQmlBalloon::Top, {}, {});
    m_popups.showQmlPopup(cardSource, place, true, OxaQmlBalloon::Top,
                          [model](OxaQmlController *controller) {
                              qobject_cast<OxaQmlPopupController *>(controller)->setModel(model);
                          });
}
