// SPDX-License-Identifier: Apache-2.0
#include "StyleTextPage.h"

#include "CssDataTable.h"
#include "Leftovers.h"
#include "StyleTextExamples.h"
#include "StyleTextPreview.h"
#include "looks/Metrics.h"
#include "looks/WarningCollector.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/CodeEdit.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/StatusBox.h"
#include "widgets/WrapLayout.h"

#include <QVBoxLayout>

namespace {

constexpr int editorLines = 6;
constexpr int sheetLines = 10;

/// Returns \a sheet with a rule on each line, for display only.
QString ruleByRule(QString sheet)
{
    sheet.replace(QLatin1Char('}'), QStringLiteral("}\n"));
    QStringList lines = sheet.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (QString &line : lines)
        line = line.trimmed();
    return lines.join(QLatin1Char('\n'));
}

StatusBox *makeFinding(const Leftover &leftover, QWidget *parent)
{
    switch (leftover.effect) {
    case Leftover::Effect::LosesRuleAndRest:
        return new StatusBox(
                StatusBox::Kind::Error, leftover.text,
                StyleTextPage::tr("Left inside a rule. Qt warns, and drops this rule and all that "
                                  "follow it; with the first rule the whole sheet is gone."),
                parent);
    case Leftover::Effect::LosesRest:
        return new StatusBox(
                StatusBox::Kind::Warning, leftover.text,
                StyleTextPage::tr(
                        "Left before a rule. Qt takes it for the beginning of a selector, "
                        "and drops all rules that follow without a message."),
                parent);
    case Leftover::Effect::Harmless:
        break;
    }
    return new StatusBox(StatusBox::Kind::Note, leftover.text,
                         StyleTextPage::tr("Left behind the last rule, where it does no harm."),
                         parent);
}

/// Puts two cards one above the other; the lower one takes the remaining room.
QWidget *stacked(Card *upper, Card *lower)
{
    auto *stack = new OxaWidget;
    auto *column = new QVBoxLayout(stack);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::spacing);
    column->addWidget(upper);
    column->addWidget(lower, 1);
    return stack;
}

} // namespace

StyleTextPage::StyleTextPage(QWidget *parent)
    : Page(tr("Style text"),
           tr("A style text names colour sets instead of colours. Expanded, it is a style sheet "
              "with a rule for each state."),
           parent),
      m_editor(new CodeEdit),
      m_sheet(new CodeEdit),
      m_preview(new StyleTextPreview),
      m_data(new CssDataTable),
      m_findings(new QVBoxLayout)
{
    ColumnsLayout *columns = makeColumns();
    columns->addWidget(stacked(makeEditorCard(), makeSheetCard()));
    columns->addWidget(stacked(makePreviewCard(), makeDataCard()));

    connect(m_editor, &QPlainTextEdit::textChanged, this, &StyleTextPage::expand);
    m_editor->setPlainText(styleTextExamples().front().styleText);
}

void StyleTextPage::onThemeChanged() { expand(); }

Card *StyleTextPage::makeEditorCard()
{
    auto *card = new Card(tr("Style text"));
    m_editor->setAccessibleName(tr("Style text"));
    m_editor->setMinimumLines(editorLines);
    card->body()->addWidget(makeExamples());
    card->body()->addWidget(m_editor);
    return card;
}

Card *StyleTextPage::makeSheetCard()
{
    auto *card = new Card(tr("Expanded style sheet"));
    m_sheet->setAccessibleName(tr("Expanded style sheet"));
    m_sheet->setReadOnly(true);
    m_sheet->setMinimumLines(sheetLines);
    card->body()->addWidget(m_sheet);
    return card;
}

Card *StyleTextPage::makePreviewCard()
{
    auto *card = new Card(tr("Preview"), tr("Move the pointer over it, or the focus to it."));
    card->body()->addWidget(m_preview);
    m_findings->setSpacing(Metrics::small);
    card->body()->addLayout(m_findings);
    card->body()->addStretch(1);
    return card;
}

Card *StyleTextPage::makeDataCard()
{
    auto *card = new Card(tr("Structured form"));
    card->body()->addWidget(m_data);
    card->body()->addStretch(1);
    return card;
}

QWidget *StyleTextPage::makeExamples()
{
    auto *examples = new OxaWidget;
    auto *row = new WrapLayout(Metrics::small, examples);
    for (const StyleTextExample &example : styleTextExamples()) {
        auto *button = Buttons::make(example.title, examples);
        button->setFontToken(OxaFont::Token::TagLabelSecondary);
        connect(button, &OxaPushButton::clicked, m_editor,
                [editor = m_editor, text = example.styleText] { editor->setPlainText(text); });
        row->addWidget(button);
    }
    return examples;
}

void StyleTextPage::expand()
{
    const QString styleText = m_editor->toPlainText();
    const WarningCollector warnings;
    const OxaThemeUtils::CSSParserResult result =
            OxaThemeUtils::parseCSS(StyleTextPreview::selector(), styleText,
                                    OxaThemeUtils::getOxaColorSetsByThemeType(getThemeType()));
    m_sheet->setPlainText(ruleByRule(result.expandedStyleSheet));
    m_data->showData(result.oxaCSS);
    m_preview->setStyleText(styleText);
    showFindings(result.expandedStyleSheet, warnings.texts());
}

void StyleTextPage::showFindings(const QString &sheet, const QStringList &warnings)
{
    StatusBox::clear(m_findings);
    for (const Leftover &leftover : findLeftovers(sheet))
        m_findings->addWidget(makeFinding(leftover, this));
    for (const QString &warning : warnings) {
        m_findings->addWidget(new StatusBox(StatusBox::Kind::Warning, tr("Warning while expanding"),
                                            warning, this));
    }
    if (m_findings->count() == 0) {
        m_findings->addWidget(new StatusBox(StatusBox::Kind::Success, tr("Nothing is left over"),
                                            tr("All references and directives were expanded."),
                                            this));
    }
}
