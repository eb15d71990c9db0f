// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaMainWindow.h>

#include <QElapsedTimer>
#include <QHash>

class Backend;
class OxaLabel;
class OxaSvgPushButton;
class ParticipantTile;
class PersonCards;

/// A call: who is in it and how loud they are. Leaves the call when it is closed, which deletes it.
class CallWindow : public OxaMainWindow
{
    Q_OBJECT

public:
    /// Joins the call \a title on \a backend.
    CallWindow(Backend *backend, PersonCards *cards, const QString &title,
               QWidget *parent = nullptr);
    ~CallWindow() override;

private:
    QWidget *makeTop(const QString &text);
    QWidget *makeStage();
    QWidget *makeControls();
    OxaSvgPushButton *addToggle(QLayout *row, const QString &icon, const QString &checkedIcon,
                                const QString &name, const QString &checkedName);
    void connectShortcuts();
    void showLevels(const QVariantHash &levels);
    void add(const QString &id);
    void remove(const QString &id);
    void showTime();

    Backend *const m_backend;
    PersonCards *const m_cards;
    QElapsedTimer m_since;
    OxaLabel *m_time = nullptr;
    QWidget *m_stage = nullptr;
    OxaLabel *m_waiting = nullptr;
    OxaSvgPushButton *m_microphone = nullptr;
    OxaSvgPushButton *m_camera = nullptr;
    OxaSvgPushButton *m_hand = nullptr;
    QHash<QString, ParticipantTile *> m_tiles;
};
