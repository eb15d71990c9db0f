// SPDX-License-Identifier: Apache-2.0
#include "PeopleWindow.h"

#include "RenameController.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QVBoxLayout>

namespace {

const QString cardSource = QStringLiteral("people/Card.qml");
const QString actionsSource = QStringLiteral("people/Actions.qml");

/// The place of \a widget on the screen, where popups open.
QRectF onScreen(const QWidget *widget)
{
    return { widget->mapToGlobal(QPoint()), QSizeF(widget->size()) };
}

} // namespace

PeopleWindow::PeopleWindow(QWidget *parent) : QWidget(parent)
{
    new QVBoxLayout(this);
    m_ada = addPerson(tr("Ada"));
    m_grace = addPerson(tr("Grace"));
    m_actions = new QPushButton(tr("Actions"), this);
    m_rename = new QPushButton(tr("Rename Ada"), this);
    connect(m_actions, &QAbstractButton::clicked, this, &PeopleWindow::showActions);
    connect(m_rename, &QAbstractButton::clicked, this, &PeopleWindow::rename);
    layout()->addWidget(m_actions);
    layout()->addWidget(m_rename);

    const QPointer<OxaQuickWidget> summary =
            OxaQmlEngine::createQmlWidget(QStringLiteral("people/Summary.qml"), this, {}, {});
    if (summary)
        layout()->addWidget(summary);
}

QLabel *PeopleWindow::addPerson(const QString &name)
{
    auto *person = new QLabel(name, this);
    person->installEventFilter(this);
    layout()->addWidget(person);
    return person;
}

bool PeopleWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter)
        showCard(qobject_cast<QLabel *>(watched));
    return QWidget::eventFilter(watched, event);
}

void PeopleWindow::showCard(const QLabel *person)
{
    m_popups.createQmlPopup(cardSource, windowHandle(), OxaQmlBalloon::Top, {}, {});
    m_popups.showQmlPopup(cardSource, onScreen(person), true, OxaQmlBalloon::Top,
                          [name = person->text()](OxaQmlController *controller) {
                              if (auto *popup = qobject_cast<OxaQmlPopupController *>(controller))
                                  popup->setModel(name);
                          });
}

void PeopleWindow::showActions()
{
    m_popups.createQmlPopup(actionsSource, windowHandle(), OxaQmlBalloon::Left, {}, {});
    m_popups.showQmlPopup(actionsSource, onScreen(m_actions), false, OxaQmlBalloon::Left, {});
}

void PeopleWindow::rename()
{
    const QVariantMap properties { { QStringLiteral("name"), m_ada->text() } };
    const QPointer<OxaQuickView> dialog =
            m_dialogs.createQmlDialog(QStringLiteral("people/Rename.qml"), windowHandle(),
                                      properties, [this](OxaQmlController *controller) {
                                          auto *const rename = qobject_cast<RenameController *>(
                                                  controller);
                                          connect(rename, &RenameController::accepted, this,
                                                  [this](const QString &newName) {
                                                      m_ada->setText(newName);
                                                      m_dialogs.closeAllOxaQuickViews();
                                                  });
                                      });
    if (dialog)
        dialog->show();
}
