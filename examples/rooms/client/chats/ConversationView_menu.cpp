// SPDX-License-Identifier: Apache-2.0
// The context menu of a message, and what it does.
#include "ConversationView.h"

#include "Composer.h"
#include "EmojiPicker.h"
#include "MessageText.h"
#include "data/Backend.h"
#include "protocol/Literal.h"
#include "shell/Looks.h"

#include <UiElements/widgets/OxaMenu.h>

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>

namespace {

constexpr int longestQuote = 200;

QStringList usualReactions()
{
    return { u"\U0001F44D  "_s + ConversationView::tr("Thumbs up"),
             u"\u2764\uFE0F  "_s + ConversationView::tr("Heart"),
             u"\U0001F602  "_s + ConversationView::tr("Laughter"),
             u"\U0001F389  "_s + ConversationView::tr("Party"),
             u"\U0001F62E  "_s + ConversationView::tr("Surprise"),
             u"\U0001F622  "_s + ConversationView::tr("Tears") };
}

} // namespace

void ConversationView::openMenu(const Message &message, const QPoint &position)
{
    OxaMenu *menu = Looks::makeMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Copy")), &QAction::triggered, this,
            [text = message.text] { QGuiApplication::clipboard()->setText(text); });
    if (message.kind == Message::Kind::Text) {
        const QString quote = message.text.simplified().left(longestQuote);
        connect(menu->addAction(tr("Reply")), &QAction::triggered, this,
                [this, author = message.author, quote] {
                    m_composer->quote(m_backend->person(author).name, quote);
                });
    }
    if (message.seq >= 0)
        menu->addMenu(makeReactions(menu, message.seq, position));
    if (message.state == Message::State::Failed)
        connect(menu->addAction(tr("Try again")), &QAction::triggered, this,
                [this, conversation = m_conversation, key = message.key] {
                    m_backend->retry(conversation, key);
                });
    if (message.kind == Message::Kind::Text)
        addLinks(menu, message.text);
    menu->popupAt(position);
}

/// A menu of emoji to put below the message \a seq.
OxaMenu *ConversationView::makeReactions(QWidget *parent, int seq, const QPoint &position)
{
    OxaMenu *menu = Looks::makeMenu(parent);
    menu->setTitle(tr("React"));
    const auto react = [this, seq, conversation = m_conversation](const QString &emoji) {
        m_backend->react(conversation, seq, emoji);
    };
    const QStringList usual = usualReactions();
    for (const QString &text : usual)
        connect(menu->addAction(text), &QAction::triggered, this,
                [react, text] { react(text.section(u' ', 0, 0)); });
    connect(menu->addAction(tr("Others\u2026")), &QAction::triggered, this,
            [this, react, position] { pickEmoji(position, react); });
    return menu;
}

/// Calls \a use with an emoji that the user picks from a popup, which opens once the menus have
/// given the activation back: a popup hides as its parent is activated.
void ConversationView::pickEmoji(const QPoint &position,
                                 const std::function<void(const QString &)> &use)
{
    auto *opening = new QObject(this);
    const auto open = [this, opening, position, use](const QWindow *active) {
        if (active != window()->windowHandle())
            return;
        delete opening;
        auto *picker = new EmojiPicker;
        Looks::popUp(this, QRect(position, QSize(1, 1)), picker);
        connect(picker, &EmojiPicker::picked, this, use);
        connect(picker, &EmojiPicker::picked, picker, [picker] { picker->window()->hide(); });
    };
    connect(qApp, &QGuiApplication::focusWindowChanged, opening, open, Qt::QueuedConnection);
    open(QGuiApplication::focusWindow());
}

void ConversationView::addLinks(OxaMenu *menu, const QString &text)
{
    const QList<QUrl> links = MessageText::links(text);
    for (const QUrl &url : links) {
        QString shown = menu->fontMetrics().elidedText(MessageText::safeText(url), Qt::ElideMiddle,
                                                       320);
        connect(menu->addAction(tr("Open %1").arg(shown.replace(u'&', u"&&"_s))),
                &QAction::triggered, this, [url] { QDesktopServices::openUrl(url); });
    }
}
