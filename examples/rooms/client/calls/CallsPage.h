// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QPointer>

class Backend;
class CallWindow;
class OxaLabel;
class OxaListWidget;
class PersonCards;
class QListWidgetItem;

/// The calls that were, newest first. Activating one calls the same people again.
class CallsPage : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows the calls of \a backend.
    CallsPage(Backend *backend, PersonCards *cards, QWidget *parent = nullptr);

    /// Opens the window of the call \a title, instead of the one that is open.
    void start(const QString &title);

private:
    void fill();
    void makeRow(QListWidgetItem *item);

    Backend *const m_backend;
    PersonCards *const m_cards;
    OxaListWidget *m_list;
    OxaLabel *m_empty;
    QPointer<CallWindow> m_window;
};
