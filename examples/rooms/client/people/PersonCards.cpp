// SPDX-License-Identifier: Apache-2.0
#include "PersonCards.h"

#include "PersonControllers.h"
#include "data/Backend.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQuickView.h>

#include <QEvent>
#include <QQmlEngine>
#include <QWidget>

namespace {

const QString cardSource = QStringLiteral("rooms/Card.qml");
const QString profileSource = QStringLiteral("rooms/Profile.qml");

} // namespace

PersonCards::PersonCards(Backend *backend, QObject *parent) : QObject(parent), m_backend(backend)
{
    qmlRegisterType<CardController>("Rooms", 1, 0, "CardController");
    qmlRegisterType<ProfileController>("Rooms", 1, 0, "ProfileController");
}

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
        m_profile = qobject_cast<ProfileController *>(controller);
        connect(m_profile, &ProfileController::closed, &m_dialogs,
                &DialogContext::closeAllOxaQuickViews, Qt::QueuedConnection);
        connect(m_profile, &ProfileController::messageRequested, this, &PersonCards::requestMessage,
                Qt::QueuedConnection);
    };
    const QPointer<OxaQuickView> dialog =
            m_dialogs.createQmlDialog(profileSource, window->window()->windowHandle(), {}, start);
    if (!dialog || !m_profile)
        return;
    auto *model = new ProfileModel(m_backend, person, m_profile);
    m_profile->setModel(QVariant::fromValue(model));
    delete m_model; // Of a dialog that was open already.
    m_model = model;
    dialog->setTitle(m_backend->person(person).name);
    dialog->setModality(Qt::WindowModal);
    const QRect above = window->window()->geometry();
    dialog->setPosition(above.center() - QPoint(dialog->width() / 2, dialog->height() / 2));
    dialog->show();
}

bool PersonCards::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter && m_people.contains(watched))
        showCard(qobject_cast<QWidget *>(watched), m_people.value(watched));
    return QObject::eventFilter(watched, event);
}

void PersonCards::showCard(QWidget *anchor, const QString &person)
{
    const auto connectCard =
            [this, window = QPointer<QWidget>(anchor->window())](OxaQmlController *controller) {
                auto *card = qobject_cast<CardController *>(controller);
                connect(card, &CardController::messageRequested, this, &PersonCards::requestMessage,
                        Qt::QueuedConnection);
                connect(
                        card, &CardController::profileRequested, this,
                        [this, window](const QString &chosen) {
                            m_popups.closeAllOxaQuickViews();
                            if (window)
                                showProfile(chosen, window);
                        },
                        Qt::QueuedConnection);
            };
    m_popups.createQmlPopup(cardSource, anchor->window()->windowHandle(), OxaQmlBalloon::Top, {},
                            connectCard);
    const QRectF place(anchor->mapToGlobal(QPoint()), QSizeF(anchor->size()));
    m_popups.showQmlPopup(cardSource, place, true, OxaQmlBalloon::Top,
                          [this, person](OxaQmlController *controller) {
                              auto *card = qobject_cast<CardController *>(controller);
                              card->setModel(toQml(m_backend->person(person)));
                          });
}

void PersonCards::requestMessage(const QString &person)
{
    m_popups.closeAllOxaQuickViews();
    m_dialogs.closeAllOxaQuickViews();
    Q_EMIT messageRequested(person);
}
