// SPDX-License-Identifier: Apache-2.0
#include "PersonCards.h"

#include "data/Backend.h"

#include <QEvent>
#include <QWidget>

PersonCards::PersonCards(Backend *backend, QObject *parent)
    : QObject(parent), m_backend(backend) { }

void PersonCards::watch(QWidget *anchor, const QString &person)
{
    if (person.isEmpty()) {
        m_people.remove(anchor);
        return;
    }
    if (!m_people.contains(anchor)) {
        anchor->installEventFilter(this);
        connect(anchor, &QObject::destroyed, this,
                [this](QObject *object) { m_people.remove(object); });
    }
    m_people.insert(anchor, person);
}

void PersonCards::showProfile(const QString &, QWidget *) { }

void PersonCards::showCard(QWidget *, const QString &) { }

bool PersonCards::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter && m_people.contains(watched))
        showCard(qobject_cast<QWidget *>(watched), m_people.value(watched));
    return false;
}
