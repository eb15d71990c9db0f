// SPDX-License-Identifier: Apache-2.0
#include "ReactionButton.h"

#include "looks/Metrics.h"

ReactionButton::ReactionButton(const QString &emoji, int count, QWidget *parent, bool isMine)
    : OxaEmojiPushButton(parent, QAccessible::Button),
      m_emoji(emoji),
      m_count(count + (isMine ? 1 : 0)),
      m_isMine(isMine)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setTextLeftPadding(Metrics::small);
    setTextRightPadding(Metrics::small);
    setFontToken(OxaFont::Token::TagLabelSecondary);
    connect(this, &ReactionButton::clicked, this, &ReactionButton::toggle);
    showCount();
}

QSize ReactionButton::sizeHint() const
{
    return OxaEmojiPushButton::sizeHint() + QSize(0, Metrics::tight);
}

void ReactionButton::toggle()
{
    m_isMine = !m_isMine;
    m_count += m_isMine ? 1 : -1;
    showCount();
}

void ReactionButton::showCount()
{
    const QString colors = m_isMine
            ? QStringLiteral("$backgroundColors: gallery-pill-checked-background;"
                             "$borderColors: gallery-accent-button-border;"
                             "$textColors: oxa-contentTabViewButtonChecked-text;")
            : QStringLiteral("$backgroundColors: gallery-chip-background;"
                             "$borderColors: gallery-chip-border;"
                             "$textColors: gallery-chip-text;");
    setCSS(colors
           + QStringLiteral(
                     "$borderRadius: 8;"
                     "ReactionButton:focus { border: 2px solid $(gallery-focus-border.%1); }")
                     .arg(m_isMine ? QLatin1String("checked") : QLatin1String("normal")));
    setText(QStringLiteral("%1 %2").arg(m_emoji).arg(m_count));
    setAccessibleName(m_isMine ? tr("%1, %2, one of them yours").arg(m_emoji).arg(m_count)
                               : tr("%1, %2").arg(m_emoji).arg(m_count));
}
