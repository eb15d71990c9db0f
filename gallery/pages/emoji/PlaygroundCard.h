// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class CodeEdit;
class EmojiEdit;
class OxaLabel;
class PlaygroundLabel;

/// A text to edit, a label with settings that shows it, and the converter's analysis.
class PlaygroundCard : public Card
{
    Q_OBJECT

public:
    explicit PlaygroundCard(QWidget *parent = nullptr);

    /// Inserts \a text where the cursor stands.
    void insert(const QString &text);

private:
    QWidget *makeControls();
    QLayout *makeAnalysis();
    void showText();

    EmojiEdit *m_text;
    PlaygroundLabel *m_label;
    OxaLabel *m_state;
    CodeEdit *m_codePoints;
    CodeEdit *m_stems;
};
