// SPDX-License-Identifier: Apache-2.0
#include "PlaygroundCard.h"

#include "EmojiEdit.h"
#include "Metrics.h"
#include "PlaygroundLabel.h"
#include "TextAnalysis.h"
#include "widgets/CodeEdit.h"
#include "widgets/ControlRow.h"
#include "widgets/Labels.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"

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
    body()->addWidget(makeWidthRow());
    body()->addWidget(makeElisionRow());
    body()->addWidget(makeAlignmentRow());
    body()->addWidget(makeSwitches());
    body()->addLayout(makeAnalysis(), 1);

    connect(m_text, &QTextEdit::textChanged, this, &PlaygroundCard::showText);
    m_text->setText(firstText());
}

void PlaygroundCard::insert(const QString &text) { m_text->insertPlainText(text); }

QWidget *PlaygroundCard::makeWidthRow()
{
    auto *width = new Slider(leastWidth, greatestWidth, firstWidth, this);
    connect(width, &Slider::valueChanged, this, [this](int value) {
        m_label->setFixedWidth(value);
        showText();
    });
    return new ControlRow(tr("Width"), width, this);
}

QWidget *PlaygroundCard::makeElisionRow()
{
    auto *elision = new SegmentedControl({ tr("Right"), tr("Middle"), tr("Left"), tr("None") },
                                         this);
    m_label->setElideMode(elideModes[0]);
    connect(elision, &SegmentedControl::chosen, this, [this](int index) {
        m_label->setElideMode(elideModes[index]);
        showText();
    });
    return new ControlRow(tr("Elision"), elision, this);
}

QWidget *PlaygroundCard::makeAlignmentRow()
{
    const Qt::Alignment alignments[] = { Qt::AlignLeft | Qt::AlignTop,
                                         Qt::AlignLeft | Qt::AlignVCenter,
                                         Qt::AlignHCenter | Qt::AlignTop, Qt::AlignCenter };
    auto *alignment = new SegmentedControl({ tr("Top"), tr("Middle"), tr("Top centre"),
                                             tr("Centre") },
                                           this);
    m_label->setAlignment(alignments[0]);
    connect(alignment, &SegmentedControl::chosen, this, [this, alignments](int index) {
        m_label->setAlignment(alignments[index]);
        showText();
    });
    return new ControlRow(tr("Alignment"), alignment, this);
}

QWidget *PlaygroundCard::makeSwitches()
{
    auto *wrap = new SegmentedControl({ tr("One line"), tr("Word wrap") }, this);
    connect(wrap, &SegmentedControl::chosen, this, [this](int index) {
        m_label->setWordWrap(index == 1);
        showText();
    });
    wrap->setAccessibleName(tr("Lines"));
    auto *selection = new SegmentedControl({ tr("Fixed"), tr("Selectable") }, this);
    connect(selection, &SegmentedControl::chosen, this, [this](int index) {
        m_label->setTextInteractionFlags(index == 1 ? Qt::TextSelectableByMouse
                                                    : Qt::NoTextInteraction);
        showText();
    });
    selection->setAccessibleName(tr("Selection"));

    auto *switches = new OxaWidget(this);
    auto *row = new QHBoxLayout(switches);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    row->addWidget(new ControlRow(tr("Lines"), wrap, this));
    row->addWidget(selection);
    row->addStretch(1);
    return switches;
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
                                                    : tr("Emoji go out in the font."));
    m_codePoints->setPlainText(TextAnalysis::codePoints(text));
    m_stems->setPlainText(TextAnalysis::stems(text));
}
