// SPDX-License-Identifier: Apache-2.0
#include "MaskedUpdates_p.h"
#include "OxaLineEdit.h"

#include <QAccessible>

namespace {

QAccessible::UpdateHandler nextHandler = nullptr;

/// Hands \a event on to the next handler, or to the platform.
void handOn(QAccessibleEvent *event)
{
    if (nextHandler) {
        nextHandler(event);
        return;
    }
    // Qt has told the table itself already, and platforms do not look at this one.
    if (event->type() == QAccessible::TableModelChanged)
        return;
    const QAccessible::UpdateHandler installed = QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(installed);
}

/// Returns what \a edit shows of a text as long as \a text.
QString masked(const QString &text, const QLineEdit &edit)
{
    const bool isInvisible = edit.echoMode() == QLineEdit::NoEcho;
    return isInvisible ? QString() : QString(text.size(), QLatin1Char('*'));
}

template <typename Event>
void handOnMasked(Event &&event, const QAccessibleTextCursorEvent &original)
{
    event.setCursorPosition(original.cursorPosition());
    handOn(&event);
}

void maskUpdate(QAccessibleEvent *event)
{
    auto *edit = qobject_cast<OxaLineEdit *>(event->object());
    if (!edit || edit->echoMode() == QLineEdit::Normal) {
        handOn(event);
        return;
    }
    if (event->type() == QAccessible::TextInserted) {
        const auto &insert = static_cast<const QAccessibleTextInsertEvent &>(*event);
        handOnMasked(QAccessibleTextInsertEvent(edit, insert.changePosition(),
                                                masked(insert.textInserted(), *edit)),
                     insert);
    } else if (event->type() == QAccessible::TextRemoved) {
        const auto &removal = static_cast<const QAccessibleTextRemoveEvent &>(*event);
        handOnMasked(QAccessibleTextRemoveEvent(edit, removal.changePosition(),
                                                masked(removal.textRemoved(), *edit)),
                     removal);
    } else if (event->type() == QAccessible::TextUpdated) {
        const auto &update = static_cast<const QAccessibleTextUpdateEvent &>(*event);
        handOnMasked(QAccessibleTextUpdateEvent(edit, update.changePosition(),
                                                masked(update.textRemoved(), *edit),
                                                masked(update.textInserted(), *edit)),
                     update);
    } else {
        handOn(event);
    }
}

} // namespace

void MaskedUpdates::ensureInstalled()
{
    static const bool isInstalled = [] {
        nextHandler = QAccessible::installUpdateHandler(maskUpdate);
        return true;
    }();
    Q_UNUSED(isInstalled)
}
