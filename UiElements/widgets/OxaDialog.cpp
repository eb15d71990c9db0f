// SPDX-License-Identifier: Apache-2.0
#include "OxaDialog.h"

#include <UiElements/app/AppUtils.h>

#include <QCloseEvent>
#include <QPointer>

OxaDialog::OxaDialog(QWidget *parent, Qt::WindowFlags flags) : QDialog(parent, flags)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(AppUtils::getDialogIcon(parent != nullptr));
    m_themeBlock.followTheme();
    // Unlike setWindowFlag() it always sends the event by which the dialog takes its parent's type.
    setParent(parent, windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

void OxaDialog::onThemeChanged() { }

void OxaDialog::closeEvent(QCloseEvent *event)
{
    const QPointer<OxaDialog> dialog(this);
    Q_EMIT onClose();
    if (dialog)
        QDialog::closeEvent(event);
}
