// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

#include <QPointer>

class Backend;
class CallWindow;
class OxaListView;
class PersonCards;
struct Call;

/// The calls that were. Activating one calls the same people again.
class CallsPage : public OxaWidget
{
    Q_OBJECT

public:
    /// Shows the calls of \a backend.
    CallsPage(Backend *backend, PersonCards *cards, QWidget *parent = nullptr);

    /// Opens the window of a call as \a call, instead of the one that is open. False if nobody
    /// would be in it.
    bool start(const Call &call);

private:
    Backend *const m_backend;
    PersonCards *const m_cards;
    QPointer<CallWindow> m_window;
};
