// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <UiElements/widgets/OxaMainWindow.h>

#include <QElapsedTimer>
#include <QHash>

class AlertBanner;
class Backend;
class FlowLayout;
class OxaLabel;
class OxaSvgPushButton;
class ParticipantTile;
class PersonCards;
class QVBoxLayout;

/// A call: who is in it and how loud they are. Leaves the call when it is closed, which deletes it.
class CallWindow : public OxaMainWindow
{
    Q_OBJECT

public:
    /// Joins \a call on \a backend.
    CallWindow(Backend *backend, PersonCards *cards, const Call &call, QWidget *parent = nullptr);
    ~CallWindow() override;

private:
    QWidget *makeTop();
    QWidget *makeStage();
    QWidget *makeControls();
    OxaSvgPushButton *addToggle(QLayout *row, const QString &icon, const QString &checkedIcon,
                                const QString &name, const QString &checkedName);
    void connectShortcuts();
    void showLevels(const QHash<QString, int> &levels);
    void add(const QString &person);
    void remove(const QString &person);
    void showTime();
    void showConnection();

    Backend *const m_backend;
    PersonCards *const m_cards;
    const Call m_call;
    QElapsedTimer m_since;
    OxaLabel *m_time = nullptr;
    AlertBanner *m_banner = nullptr;
    QWidget *m_stage = nullptr;
    OxaLabel *m_waiting = nullptr;
    OxaSvgPushButton *m_microphone = nullptr;
    OxaSvgPushButton *m_camera = nullptr;
    OxaSvgPushButton *m_hand = nullptr;
    QHash<QString, ParticipantTile *> m_tiles;
};
