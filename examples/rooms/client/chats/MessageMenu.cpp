// SPDX-License-Identifier: Apache-2.0
#include "MessageMenu.h"

#include "MessageText.h"
#include "shell/Looks.h"

#include <UiElements/widgets/OxaMenu.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>

namespace {

constexpr int longestQuote = 200;

QString tr(const char *text) { return QCoreApplication::translate("MessageMenu", text); }

struct UsualReaction
{
    QString emoji;
    QString name;
};

QVector<UsualReaction> usualReactions()
{
    return { { QStringLiteral("\U0001F44D"), tr("Thumbs up") },
             { QStringLiteral("\u2764\uFE0F"), tr("Heart") },
             { QStringLiteral("\U0001F602"), tr("Laughter") },
             { QStringLiteral("\U0001F389"), tr("Party") },
             { QStringLiteral("\U0001F62E"), tr("Surprise") },
             { QStringLiteral("\U0001F622"), tr("Tears") } };
}

void addReactions(OxaMenu *menu, const MessageMenu::Actions &actions)
{
    OxaMenu *reactions = Looks::makeMenu(menu);
    reactions->setTitle(tr("React"));
    const QVector<UsualReaction> usual = usualReactions();
    for (const UsualReaction &one : usual) {
        const QAction *action = reactions->addAction(one.emoji + QStringLiteral("  ") + one.name);
        QObject::connect(action, &QAction::triggered, menu,
                         [react = actions.react, emoji = one.emoji] { react(emoji); });
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
