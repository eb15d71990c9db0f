// SPDX-License-Identifier: Apache-2.0
#include "MessageMenu.h"

#include "MessageText.h"
#include "shell/Looks.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/widgets/OxaMenu.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>

namespace {

constexpr int longestQuote = 200;

QString tr(const char *text) { return QCoreApplication::translate("MessageMenu", text); }

QStringList usualReactions()
{
    return { QStringLiteral("\U0001F44D"), QStringLiteral("\u2764\uFE0F"),
             QStringLiteral("\U0001F602"), QStringLiteral("\U0001F389"),
             QStringLiteral("\U0001F62E"), QStringLiteral("\U0001F622") };
}

QIcon pictureOf(const QString &emoji)
{
    const QString stem = EmojiTextConverter::sequences(emoji).value(0).stem;
    return QIcon(QStringLiteral(":/emojis/%1.svg").arg(stem));
}

void addReactions(OxaMenu *menu, const MessageMenu::Actions &actions)
{
    OxaMenu *reactions = Looks::makeMenu(menu);
    reactions->setTitle(tr("React"));
    const QStringList emojis = usualReactions();
    for (const QString &emoji : emojis) {
        QAction *action = reactions->addAction(emoji);
        action->setIcon(pictureOf(emoji));
        QObject::connect(action, &QAction::triggered, menu,
                         [react = actions.react, emoji] { react(emoji); });
    }
    QObject::connect(reactions->addAction(tr("Others\u2026")), &QAction::triggered, menu,
                     actions.chooseReaction);
    menu->addMenu(reactions);
}

void addLinks(OxaMenu *menu, const QString &text)
{
    const QList<QUrl> links = MessageText::links(text);
    for (const QUrl &url : links) {
        const QString shown = menu->fontMetrics().elidedText(MessageText::safeText(url),
                                                             Qt::ElideMiddle, 320);
        QAction *action = menu->addAction(
                tr("Open %1").arg(QString(shown).replace(QLatin1Char('&'), QLatin1String("&&"))));
        QObject::connect(action, &QAction::triggered, menu,
                         [url] { QDesktopServices::openUrl(url); });
    }
}

} // namespace

void MessageMenu::open(QWidget *parent, const Message &message, const QPoint &position,
                       const Actions &actions)
{
    OxaMenu *menu = Looks::makeMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(menu->addAction(tr("Copy")), &QAction::triggered, menu,
                     [text = message.text] { QGuiApplication::clipboard()->setText(text); });
    if (message.kind == Message::Kind::Text) {
        const QString quote = message.text.simplified().left(longestQuote);
        QObject::connect(menu->addAction(tr("Reply")), &QAction::triggered, menu,
                         [reply = actions.reply, quote] { reply(quote); });
    }
    if (message.seq >= 0)
        addReactions(menu, actions);
    if (message.state == Message::State::Failed)
        QObject::connect(menu->addAction(tr("Try again")), &QAction::triggered, menu,
                         actions.retry);
    if (message.kind == Message::Kind::Text)
        addLinks(menu, message.text);
    menu->popupAt(position);
}
