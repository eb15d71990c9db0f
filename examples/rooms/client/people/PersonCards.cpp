// SPDX-License-Identifier: Apache-2.0
#include "PersonCards.h"

#include "Avatar.h"
#include "data/Backend.h"
#include "protocol/Literal.h"
#include "shell/RoomsApplication.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQuickView.h>

#include <QEvent>
#include <QQmlContext>
#include <QWidget>

namespace {

const QString cardSource = u"rooms/Card.qml"_s;
const QString profileSource = u"rooms/Profile.qml"_s;

/// \a person as QML shows it. The colour is a number.
QVariantMap toQml(const Person &person)
{
    return {
        { u"id"_s, person.id },
        { u"name"_s, person.name },
        { u"title"_s, person.title },
        { u"about"_s, person.about },
        { u"initials"_s, Avatar::initials(person.name) },
        { u"color"_s, Avatar::colorNumber(person.id) },
        { u"presence"_s, nameOf(person.presence) },
        { u"presenceText"_s, presenceText(person.presence) },
    };
}

} // namespace

QString presenceText(Presence presence)
{
    const QString texts[] = { PersonCards::tr("Active"), PersonCards::tr("Away"),
                              PersonCards::tr("Busy"), PersonCards::tr("Offline") };
    return texts[int(presence)];
}

PersonCards::PersonCards(Backend *backend, QObject *parent) : QObject(parent), m_backend(backend)
{
    RoomsApplication::get()->getQmlEngine()->rootContext()->setContextProperty(u"cards"_s, this);
    // What QML calls may not close a view: all is queued.
    connect(this, &PersonCards::messageRequested, this, &PersonCards::closeAll,
            Qt::QueuedConnection);
    connect(this, &PersonCards::profileClosed, this, &PersonCards::closeAll, Qt::QueuedConnection);
    const auto showChosen = [this](const QString &person) {
        closeCard();
        if (m_window)
            showProfile(person, m_window);
    };
    connect(this, &PersonCards::profileRequested, this, showChosen, Qt::QueuedConnection);
    connect(backend, &Backend::personChanged, this, [this](const QString &person) {
        if (m_profile && person == m_person)
            m_profile->setModel(toQml(m_backend->person(person)));
    });
}

QVariantMap PersonCards::nobody() { return toQml({}); }

void PersonCards::watch(QWidget *anchor, const QString &person)
{
    if (person.isEmpty()) {
        if (m_people.remove(anchor) > 0)
            anchor->disconnect(this);
        return;
    }
    if (!m_people.contains(anchor)) {
        anchor->installEventFilter(this);
        connect(anchor, &QObject::destroyed, this,
                [this](QObject *object) { m_people.remove(object); });
    }
    m_people.insert(anchor, person);
}

void PersonCards::showProfile(const QString &person, QWidget *window)
{
    const auto start = [this](OxaQmlController *controller) {
        m_profile = qobject_cast<OxaQmlDialogController *>(controller);
    };
    const QPointer<OxaQuickView> dialog =
            m_dialogs.createQmlDialog(profileSource, window->window()->windowHandle(), {}, start);
    if (!dialog || !m_profile)
        return;
    m_person = person;
    m_profile->setModel(toQml(m_backend->person(person)));
    dialog->setTitle(m_backend->person(person).name);
    dialog->setModality(Qt::WindowModal);
    const QRect above = window->window()->geometry();
    dialog->setPosition(above.center() - QPoint(dialog->width() / 2, dialog->height() / 2));
    dialog->show();
}

bool PersonCards::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter && m_people.contains(watched)) {
        auto *anchor = qobject_cast<QWidget *>(watched);
        showCard(anchor, anchor->rect(), m_people.value(watched));
    }
    return QObject::eventFilter(watched, event);
}

void PersonCards::showCard(QWidget *widget, const QRect &place, const QString &person)
{
    m_window = widget->window();
    const auto fill = [this, person](OxaQmlController *controller) {
        auto *card = qobject_cast<OxaQmlPopupController *>(controller);
        card->setModel(toQml(m_backend->person(person)));
    };
    m_popups.createQmlPopup(cardSource, m_window->windowHandle(), OxaQmlBalloon::Top, {}, fill);
    const QRectF onScreen(widget->mapToGlobal(place.topLeft()), place.size());
    m_popups.showQmlPopup(cardSource, onScreen, true, OxaQmlBalloon::Top, fill);
}

void PersonCards::closeAll()
{
    closeCard();
    m_dialogs.closeAllOxaQuickViews();
}
