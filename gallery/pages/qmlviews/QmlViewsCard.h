// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/PopupContext.h>

#include <QPointer>

class CodeEdit;
class OxaPushButton;

/// Opens each kind of view, and notes what the engine reports.
class QmlViewsCard : public Card
{
    Q_OBJECT

public:
    explicit QmlViewsCard(QWidget *parent = nullptr);

protected:
    void onThemeChanged() override;

private:
    QWidget *makeButtons();
    QWidget *makeReloading();
    void addButton(QWidget *row, const QString &text, void (QmlViewsCard::*open)());
    void openWindow();
    void openDialog();
    void openPopup();
    void openWithError();
    void note(OxaQmlEngine::QmlViewStatus status, const QString &view, const QString &message);

    PopupContext m_popups;
    DialogContext m_dialogs;
    OxaPushButton *m_popupButton = nullptr;
    CodeEdit *m_log;
    QPointer<OxaQmlDialogController> m_embedded;
};
