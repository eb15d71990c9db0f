// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "shell/Page.h"

class Card;
class CodeEdit;
class CssDataTable;
class QVBoxLayout;
class StyleTextPreview;

/// An editor for a style text, with its expansion, a preview and its structured form.
class StyleTextPage : public Page
{
    Q_OBJECT

public:
    explicit StyleTextPage(QWidget *parent = nullptr);

protected:
    void onThemeChanged() override;

private:
    Card *makeEditorCard();
    Card *makeSheetCard();
    Card *makePreviewCard();
    Card *makeDataCard();
    QWidget *makeExamples();
    void expand();
    void showFindings(const QString &sheet, const QStringList &warnings);

    CodeEdit *m_editor;
    CodeEdit *m_sheet;
    StyleTextPreview *m_preview;
    CssDataTable *m_data;
    QVBoxLayout *m_findings;
};
