// SPDX-License-Identifier: Apache-2.0
#include "ShortcutsDialog.h"

#include "GalleryApplication.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QMap>
#include <QVBoxLayout>

namespace {

constexpr QSize firstSize(480, 560);

/// Returns the row of a shortcut. Its columns run as the layout does, which Qt leaves to the text.
QString rowOf(const OxaShortcut &shortcut)
{
    const QString row = QGuiApplication::isRightToLeft()
            ? QStringLiteral("<tr><td>%2</td><td>%1</td></tr>")
            : QStringLiteral("<tr><td>%1</td><td>%2</td></tr>");
    return row.arg(shortcut.getShortcutDescription().toHtmlEscaped(),
                   shortcut.key().toString(QKeySequence::NativeText).toHtmlEscaped());
}

/// Returns the heading of \a group and a row for each of its shortcuts whose description contains
/// \a text, or nothing if there is none.
QString sectionOf(OxaShortcut::ShortcutGroup group, const QString &text)
{
    const auto shortcuts = OxaAppSignals::get()->getGroupShortcuts(group);
    QString heading;
    QMap<QString, QString> rows; // By the description.
    for (const auto &[id, shortcut] : shortcuts) {
        const QString description = shortcut->getShortcutDescription();
        if (!description.contains(text, Qt::CaseInsensitive))
            continue;
        heading = shortcut->getShortcutGroupName();
        rows.insert(description, rowOf(*shortcut));
    }
    const QString direction = QGuiApplication::isRightToLeft() ? QStringLiteral("rtl")
                                                               : QStringLiteral("ltr");
    QString table;
    for (const QString &row : qAsConst(rows))
        table += row;
    return rows.isEmpty() ? QString()
                          : QStringLiteral("<h4 dir=\"%1\">%2</h4>"
                                           "<table dir=\"%1\" width=\"100%\">%3</table>")
                                    .arg(direction, heading, table);
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
    resize(firstSize * GalleryApplication::get()->getFontScaleFactor());
    body()->addWidget(Labels::paragraph(
            tr("Each emits a signal, which the page Signals shows. F6 goes from one part of the "
               "window to the next."),
            this));
    OxaTextInput *search = Fields::search(tr("Search the shortcuts"), this);
    search->setMinimumWidth(0);
    search->setMaximumWidth(QWIDGETSIZE_MAX);
    OxaTextBrowser *list = Fields::browser(windowTitle(), this);
    const auto showList = [list, search] { list->setHtml(listOf(search->text().trimmed())); };
    connect(search, &OxaTextInput::textChanged, list, showList);
    showList();
    body()->addWidget(search);
    body()->addWidget(list, 1);
    addButton(tr("Close"), &QDialog::reject);
}
