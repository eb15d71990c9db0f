// SPDX-License-Identifier: Apache-2.0
#include "ConversationHeader.h"

#include "data/Backend.h"
#include "data/History.h"
#include "people/Avatar.h"
#include "people/PersonCards.h"
#include "shell/Looks.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>

#include <QVBoxLayout>

ConversationHeader::ConversationHeader(Backend *backend, PersonCards *cards, QWidget *parent)
    : OxaWidget(parent), m_backend(backend), m_cards(cards)
{
    setObjectName(QStringLiteral("conversationHeader"));
    setCSS(QStringLiteral("$borderColors: divider; $borders: bottom; $borderWidth: 1;"));
    m_avatar = new Avatar(40, this);
    m_title = new OxaEmojiLabel(this, QAccessible::Heading);
    m_title->setFontToken(OxaFont::Token::SubheaderPrimary);
    m_title->setCSS(QStringLiteral("$textColors: text-primary;"));
    m_title->setElideMode(Qt::ElideRight);
    m_title->setMinimumWidth(1);
    m_title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_state = Looks::makeLabel(QString(), OxaFont::Token::RadioButtonLabelSecondary,
                               QStringLiteral("text-secondary"), this);
    m_day = Looks::makeIconButton(QStringLiteral("calendar"), tr("Jump to a date"), this);
    auto *call = Looks::makeIconButton(QStringLiteral("calls"), tr("Call"), this);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch(1);
    texts->addWidget(m_title);
    texts->addWidget(m_state);
    texts->addStretch(1);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 16, 8);
    row->setSpacing(12);
    row->addWidget(m_avatar);
    row->addLayout(texts, 1);
    row->addWidget(m_day);
    row->addWidget(call);
    connect(m_day, &OxaSvgPushButton::clicked, this, &ConversationHeader::askForDay);
    connect(call, &OxaSvgPushButton::clicked, OxaAppSignals::get(), &OxaAppSignals::startAudioCall);
    connect(backend, &Backend::personChanged, this, [this](const QString &person) {
        if (person == m_person)
            showPerson();
    });
}

void ConversationHeader::setConversation(const QString &id, const QString &title,
                                         const QString &person)
{
    m_id = id;
    m_person = person;
    m_title->setText(title);
    m_title->setToolTip(title);
    m_cards->watch(m_avatar, person);
    m_cards->watch(m_title, person);
    if (person.isEmpty()) {
        Person all;
        all.id = id;
        all.name = title;
        m_avatar->setPerson(all, false);
        m_state->setText(tr("Several people"));
    } else {
        showPerson();
    }
}

void ConversationHeader::showPerson()
{
    const Person person = m_backend->person(m_person);
    m_avatar->setPerson(person);
    const QString presence = presenceText(person.presence);
    m_state->setText(person.title.isEmpty() ? presence
                                            : tr("%1 \u00B7 %2").arg(presence, person.title));
}

void ConversationHeader::askForDay()
{
    auto *content = new OxaWidget;
    auto *day = new OxaDateTimeEdit(QDate::currentDate(), content);
    day->setAccessibleName(tr("Date"));
    day->setFontToken(OxaFont::Token::BodySecondary);
    day->setMaximumDate(QDate::currentDate());
    day->setButtonSymbols(QAbstractSpinBox::NoButtons); // The arrow keys do that.
    day->setMinimumSize(day->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 32,
                        32);
    day->setAlignment(Qt::AlignCenter);
    day->setCSS(QStringLiteral("$textColors: field-text; $backgroundColors: field-background; "
                               "$borderColors: field-border; $borders: all; $borderWidth: 1; "
                               "$borderRadius: 6;"));
    auto *go = Looks::makeButton(tr("Jump"), Looks::Button::Accent, content);
    auto *row = new QHBoxLayout(content);
    row->setContentsMargins(12, 12, 12, 12);
    row->addWidget(day);
    row->addWidget(go);
    content->setFocusProxy(day);
    Looks::popUp(m_day, content, false);
    connect(go, &OxaSvgPushButton::clicked, this, [this, day] {
        m_backend->open(m_id)->loadBackTo(day->date());
        day->window()->hide();
    });
}
