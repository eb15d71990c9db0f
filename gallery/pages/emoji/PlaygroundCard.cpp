// SPDX-License-Identifier: Apache-2.0
#include "PlaygroundCard.h"

#include "EmojiEdit.h"
#include "PlaygroundLabel.h"
#include "TextAnalysis.h"
#include "looks/Metrics.h"
#include "specimens/ControlPanel.h"
#include "widgets/CodeEdit.h"
#include "widgets/Labels.h"

#include <QVBoxLayout>

namespace {

constexpr int leastWidth = 48;
constexpr int greatestWidth = 392;
constexpr int firstWidth = 360;
constexpr int sampleHeight = 96;
constexpr int textHeight = 64;
constexpr int analysisLines = 5;

constexpr Qt::TextElideMode elideModes[] = { Qt::ElideRight, Qt::ElideMiddle, Qt::ElideLeft,
                                             Qt::ElideNone };

QString firstText()
{
    return QStringLiteral("Hi \U0001F44B\U0001F3FD meet "
                          "\U0001F469\u200D\U0001F680, "
                          "gate 7\uFE0F\u20E3 to \U0001F1EF\U0001F1F5 \U0001F389");
}

} // namespace

PlaygroundCard::PlaygroundCard(QWidget *parent)
    : Card(tr("Playground"), tr("Type, paste, or choose from the artwork below."), parent),
      m_text(new EmojiEdit(this)),
      m_label(new PlaygroundLabel(this)),
      m_state(Labels::caption(QString(), this)),
      m_codePoints(new CodeEdit(this)),
      m_stems(new CodeEdit(this))
{
    m_text->setAccessibleName(tr("Text"));
    m_text->setFixedHeight(textHeight);
    m_label->setFontToken(OxaFont::Token::SubheaderPrimary);
    m_label->setCSS(QStringLiteral("$backgroundColors: gallery-code-background;"
                                   "$borderColors: gallery-card-border;"
                                   "$borderRadius: 4;"
                                   "$textColors: gallery-body-text;"));
    m_label->setTextLeftPadding(Metrics::small);
    m_label->setTextRightPadding(Metrics::small);
    m_label->setFixedSize(firstWidth, sampleHeight);

    body()->addWidget(m_text);
    body()->addWidget(m_label);
    body()->addWidget(m_state);
    body()->addWidget(makeControls());
    body()->addLayout(makeAnalysis(), 1);

    connect(m_text, &QTextEdit::textChanged, this, &PlaygroundCard::showText);
    m_text->setText(firstText());
}

void PlaygroundCard::insert(const QString &text) { m_text->insertPlainText(text); }

QWidget *PlaygroundCard::makeControls()
{
    const Qt::Alignment alignments[] = { Qt::AlignLeft | Qt::AlignTop,
                                         Qt::AlignLeft | Qt::AlignVCenter,
                                         Qt::AlignHCenter | Qt::AlignTop, Qt::AlignCenter };
    m_label->setElideMode(elideModes[0]);
    m_label->setAlignment(alignments[0]);
    auto *controls = new ControlPanel(this);
    const auto showing = [this](auto set) {
        return [this, set](int value) {
            set(*m_label, value);
            showText();
        };
    };
    controls->addNumber(tr("Width"), leastWidth, greatestWidth, firstWidth,
                        showing([](PlaygroundLabel &label, int width) {
                            label.setFixedWidth(width);
                        }));
    controls->addChoice(tr("Elision"), { tr("Right"), tr("Middle"), tr("Left"), tr("None") }, 0,
                        showing([](PlaygroundLabel &label, int i) {
                            label.setElideMode(elideModes[i]);
                        }));
    controls->addChoice(tr("Alignment"),
                        { tr("Top"), tr("Middle"), tr("Top centre"), tr("Centre") }, 0,
                        showing([alignments](PlaygroundLabel &label, int i) {
                            label.setAlignment(alignments[i]);
                        }));
    controls->addChoice(tr("Lines"), { tr("One line"), tr("Word wrap") }, 0,
                        showing([](PlaygroundLabel &label, int i) { label.setWordWrap(i == 1); }));
    controls->addChoice(tr("Selection"), { tr("Fixed"), tr("Selectable") }, 0,
                        showing([](PlaygroundLabel &label, int i) {
                            label.setTextInteractionFlags(i == 1 ? Qt::TextSelectableByMouse
                                                                 : Qt::NoTextInteraction);
                        }));
    return controls;
}

QLayout *PlaygroundCard::makeAnalysis()
{
    m_codePoints->setAccessibleName(tr("Code points and their classes"));
    m_stems->setAccessibleName(tr("Stems of the artwork"));
    auto *column = new QVBoxLayout;
    column->setSpacing(Metrics::small);
    for (CodeEdit *field : { m_codePoints, m_stems }) {
        field->setReadOnly(true);
        field->setLineWrapMode(QPlainTextEdit::NoWrap);
        field->setMinimumLines(analysisLines);
        field->setMaximumHeight(field->minimumHeight());
        column->addWidget(field);
    }
    column->addStretch(1);
    return column;
}

void PlaygroundCard::showText()
{
    const QString text = m_text->text();
    m_label->setText(text);
    m_state->setText(m_label->shouldDrawSvgEmojis() ? tr("Emoji are drawn from artwork.")
                                                    : tr("Emoji are drawn by the font."));
    m_codePoints->setPlainText(TextAnalysis::codePoints(text));
    m_stems->setPlainText(TextAnalysis::stems(text));
}
