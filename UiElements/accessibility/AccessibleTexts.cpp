// SPDX-License-Identifier: Apache-2.0
#include "AccessibleRelations_p.h"
#include "AccessibleTexts_p.h"

#include <UiElements/emoji/EmojiTextConverter.h>
#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaUnderlineButton.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QTextDocument>

namespace {

struct Translated
{
    Q_DECLARE_TR_FUNCTIONS(AccessibleTexts)
};

/// Returns \a text without the "&" that mark keys, and with one for each "&&".
QString withoutMnemonics(const QString &text)
{
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && ++i == text.size())
            break;
        plain += text.at(i);
    }
    return plain;
}

QString withoutMarkup(const QString &text)
{
    QTextDocument document;
    document.setHtml(EmojiTextConverter::restore(text));
    return document.toPlainText().remove(QChar::ObjectReplacementCharacter).trimmed();
}

bool isMarkup(const QLabel &label)
{
    return label.textFormat() == Qt::RichText
            || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
}

} // namespace

QString AccessibleTexts::ofLabel(const QWidget &label)
{
    const auto &textLabel = static_cast<const QLabel &>(label);
    if (isMarkup(textLabel))
        return withoutMarkup(textLabel.text());
    // Also its plain text may have image tags.
    if (qobject_cast<const OxaEmojiLabel *>(&label))
        return EmojiTextConverter::restore(textLabel.text());
    return textLabel.buddy() ? withoutMnemonics(textLabel.text()) : textLabel.text();
}

QString AccessibleTexts::ofButton(const QWidget &button)
{
    const QString text = static_cast<const QAbstractButton &>(button).text();
    const auto *svgButton = qobject_cast<const OxaSvgPushButton *>(&button);
    const bool isRich = svgButton && svgButton->getTextFormat() == Qt::RichText;
    return isRich ? withoutMarkup(text) : withoutMnemonics(text);
}

QString AccessibleTexts::ofLabelsIn(const QWidget &container)
{
    QStringList texts;
    const auto labels = container.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisibleTo(&container))
            texts += label->accessibleName().isEmpty() ? ofLabel(*label) : label->accessibleName();
    }
    texts.removeAll(QString());
    return texts.join(QLatin1Char(' '));
}

QString AccessibleTexts::ofPopup(const QWidget &popup)
{
    const QWidget *first = static_cast<const PopupWidget &>(popup).getRegisterWidget();
    if (!first || !first->accessibleName().isEmpty())
        return first ? first->accessibleName() : QString();
    return qobject_cast<const QLabel *>(first) ? ofLabel(*first) : QString();
}

QString AccessibleTexts::badgeOf(const QWidget &button)
{
    const auto *dotted = qobject_cast<const OxaUnderlineButton *>(&button);
    const bool isUnread = static_cast<const OxaPushButton &>(button).isBadgeVisible()
            || (dotted && dotted->getShowUnreadIndicator());
    return isUnread ? Translated::tr("Unread") : QString();
}

QString AccessibleTexts::choiceOf(const QWidget &comboBox)
{
    return comboBox.accessibleName().isEmpty()
            ? QString()
            : static_cast<const QComboBox &>(comboBox).currentText();
}

QString AccessibleTexts::counterOf(const QWidget &edit)
{
    const auto *field = qobject_cast<const OxaTextInput *>(edit.parentWidget());
    if (!field || !field->isCounterShown())
        return {};
    return Translated::tr("%1 of %2 characters")
            .arg(field->text().size())
            .arg(field->getDisplayMaxLength());
}

QString AccessibleTexts::errorOf(const QWidget &field)
{
    QStringList messages;
    const QVector<QLabel *> errors = AccessibleRelations::errorsOf(field);
    for (const QLabel *error : errors)
        messages += ofLabel(*error);
    const auto *input = qobject_cast<const OxaTextInput *>(field.parentWidget());
    if (messages.isEmpty() && input && input->isErrorShown() && input->focusProxy() == &field)
        messages += Translated::tr("Invalid entry");
    return messages.join(QLatin1Char(' '));
}
