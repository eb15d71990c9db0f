// SPDX-License-Identifier: Apache-2.0
#include "ConversationView.h"

#include "Composer.h"
#include "ConversationHeader.h"
#include "FileDrop.h"
#include "MessageList.h"
#include "MessagePane.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "data/History.h"
#include "shell/Looks.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

using Role = ConversationModel::Role;

namespace {

constexpr int typingMs = 5000;

} // namespace

ConversationView::ConversationView(Backend *backend, PersonCards *cards, QWidget *parent)
    : Backdrop("window", parent), m_backend(backend)
{
    setObjectName(QStringLiteral("conversationView"));
    setMinimumWidth(280);
    makeParts(cards);
    connect(m_list, &MessageList::menuRequested, this, &ConversationView::openMenu);
    connect(m_list, &MessageList::placeChanged, this, &ConversationView::markRead);
    connect(m_composer->field(), &ComposerField::leftUpwards, m_list,
            [this] { m_list->setFocus(Qt::OtherFocusReason); });
    const auto sendHere = [this](const QStringList &names) { sendFiles(m_conversation, names); };
    connect(m_composer, &Composer::filesDropped, this, sendHere);
    connect(m_composer, &Composer::sent, m_list, &MessageList::goToBottom);
    connect(new FileDrop(m_list->viewport()), &FileDrop::dropped, this, sendHere);
    connect(backend, &Backend::typing, this, &ConversationView::addTyping);
    connect(backend, &Backend::messageArrived, this,
            [this](const QString &conversation, const Message &message) {
                if (conversation == m_conversation && m_typists.remove(message.author) > 0)
                    showTyping();
            });
    m_typingEnds.setInterval(1000);
    connect(&m_typingEnds, &QTimer::timeout, this, &ConversationView::showTyping);
}

void ConversationView::makeParts(PersonCards *cards)
{
    m_header = new ConversationHeader(m_backend, cards, this);
    m_list = new MessageList(m_backend, cards, this);
    m_pane = new MessagePane(m_list, this);
    m_typing = Looks::makeLabel(QString(), OxaFont::Token::RadioButtonLabelSecondary,
                                QStringLiteral("text-secondary"), this);
    m_typing->setMinimumHeight(20); // Also while nobody types: nothing moves then.
    m_typing->setIndent(28);
    m_composer = new Composer(m_backend, this);
    auto *bottom = new QHBoxLayout;
    bottom->setContentsMargins(16, 0, 16, 16);
    bottom->addWidget(m_composer);
    QVBoxLayout *column = Looks::makeColumn(this);
    column->addWidget(m_header);
    column->addWidget(m_pane, 1);
    column->addWidget(m_typing);
    column->addLayout(bottom);
    m_header->hide();
    m_composer->hide();
}

void ConversationView::open(const QString &id)
{
    if (id == m_conversation)
        return;
    m_conversation = id;
    const QModelIndex index = m_backend->conversations()->find(id);
    const QString title = index.data(Role::TitleRole).toString();
    m_header->setConversation(id, title, index.data(Role::PersonRole).toString());
    m_header->setVisible(true);
    m_composer->setConversation(id, title);
    m_composer->show();
    m_typists.clear();
    showTyping();
    m_pane->setHistory(m_backend->open(id));
    markRead();
}

void ConversationView::sendFiles(const QString &conversation, const QStringList &names)
{
    for (const QString &name : names)
        m_backend->send(conversation, Message::Kind::File, name);
    if (conversation == m_conversation)
        m_list->goToBottom();
}

void ConversationView::markRead()
{
    const bool isSeen = isVisible() && isActiveWindow() && m_list->history()
            && m_list->isAtBottom();
    if (isSeen && m_list->history()->count() > 0)
        m_backend->markRead(m_conversation);
}

void ConversationView::showEvent(QShowEvent *event)
{
    Backdrop::showEvent(event);
    markRead();
}

void ConversationView::changeEvent(QEvent *event)
{
    Backdrop::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && m_list)
        markRead();
}

void ConversationView::addTyping(const QString &conversation, const QString &person)
{
    if (conversation != m_conversation || person == m_backend->me())
        return;
    m_typists.insert(person, QDateTime::currentMSecsSinceEpoch() + typingMs);
    showTyping();
}

void ConversationView::showTyping()
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    QStringList names;
    for (auto it = m_typists.begin(); it != m_typists.end();) {
        if (it.value() < now) {
            it = m_typists.erase(it);
            continue;
        }
        // Isolated: a Hebrew name does not turn the sentence.
        names += QStringLiteral("\u2068%1\u2069").arg(m_backend->person(it.key()).name);
        ++it;
    }
    QString text;
    if (names.size() == 1)
        text = tr("%1 is typing\u2026").arg(names.first());
    else if (names.size() == 2)
        text = tr("%1 and %2 are typing\u2026").arg(names.first(), names.last());
    else if (!names.isEmpty())
        text = tr("Several people are typing\u2026");
    if (text != m_typing->text())
        m_typing->setText(text);
    if (names.isEmpty())
        m_typingEnds.stop();
    else
        m_typingEnds.start();
}
