// SPDX-License-Identifier: Apache-2.0
#include "ShortcutsDialog.h"

#include "widgets/Fields.h"
#include "widgets/Labels.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QVBoxLayout>

namespace {

constexpr QSize firstSize(480, 560);

/// Returns the heading of \a group and a row for each of its shortcuts whose description contains
/// \a text, or nothing if there is none.
QString sectionOf(OxaShortcut::ShortcutGroup group, const QString &text)
{
    const auto shortcuts = OxaAppSignals::get()->getGroupShortcuts(group);
    QString heading;
    QStringList rows;
    for (const auto &[id, shortcut] : shortcuts) {
        const QString description = shortcut->getShortcutDescription();
        if (!description.contains(text, Qt::CaseInsensitive))
            continue;
        heading = shortcut->getShortcutGroupName();
        rows += QStringLiteral("<tr><td>%1</td><td>%2</td></tr>")
                        .arg(description.toHtmlEscaped(),
                             shortcut->key().toString(QKeySequence::NativeText).toHtmlEscaped());
    }
    rows.sort(Qt::CaseInsensitive);
    return rows.isEmpty() ? QString()
                          : QStringLiteral("<h4>%1</h4><table width=\"100%\">%2</table>")
                                    .arg(heading, rows.join(QString()));
}

QString listOf(const QString &text)
{
    const QString list = sectionOf(OxaShortcut::General, text)
            + sectionOf(OxaShortcut::Messaging, text)
            + sectionOf(OxaShortcut::CallingAndMeeting, text);
    return list.isEmpty() ? ShortcutsDialog::tr("Nothing matches “%1”").arg(text.toHtmlEscaped())
                          : list;
}

} // namespace

ShortcutsDialog::ShortcutsDialog(QWidget *parent) : Dialog(tr("Keyboard shortcuts"), parent)
{
    setWindowModality(Qt::WindowModal);
    resize(firstSize);
    OxaTextInput *search = Fields::search(tr("Search the shortcuts"), this);
    OxaTextBrowser *list = Fields::browser(windowTitle(), this);
    const auto showList = [list, search] { list->setHtml(listOf(search->text().trimmed())); };
    connect(search, &OxaTextInput::textChanged, list, showList);
    showList();
    body()->addWidget(Labels::paragraph(
            tr("Each emits a signal, which the page Signals shows. F6 goes from one part of the "
               "window to the next."),
            this));
    body()->addWidget(search);
    body()->addWidget(list, 1);
    addButton(tr("Close"), &QDialog::reject);
}
