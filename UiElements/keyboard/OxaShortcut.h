// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QShortcut>

/// A keyboard shortcut with the description and the group that a list of shortcuts shows.
class UIELEMENTS_EXPORT OxaShortcut : public QShortcut
{
    Q_OBJECT

public:
    /// What a shortcut is about. The values are bits, so that several can be combined.
    enum ShortcutGroup {
        General = 1,
        Messaging = 2,
        CallingAndMeeting = 4,
        Tool = 8,
        All = 15,
    };
    Q_FLAG(ShortcutGroup)

    /// Makes a shortcut without a key, in the group All, on \a parent.
    explicit OxaShortcut(QWidget *parent = nullptr);

    /// Makes a shortcut for \a key in the group All. \a member and \a ambiguousMember are slots or
    /// signals of \a parent, or null, as in QShortcut.
    OxaShortcut(const QKeySequence &key, QWidget *parent, const char *member,
                const char *ambiguousMember, Qt::ShortcutContext context);

    /// Makes a shortcut for \a key that works in the window of \a parent, with nothing connected.
    OxaShortcut(const QKeySequence &key, QWidget *parent, const QString &description,
                OxaShortcut::ShortcutGroup group);

    /// Sets the key. Returns this object, so that calls can be chained.
    OxaShortcut *setShortcutKey(const QKeySequence &key);

    /// Sets the translated text for the list of shortcuts. Returns this object.
    OxaShortcut *setShortcutDescription(const QString &text);

    /// Sets the group. Returns this object.
    OxaShortcut *setShortcutGroup(OxaShortcut::ShortcutGroup group);

    /// Returns the text for the list of shortcuts. Empty by default.
    QString getShortcutDescription() const;

    /// Returns the group. All by default.
    OxaShortcut::ShortcutGroup getShortcutGroup() const;

    /// Returns the translated name of the group; empty for Tool, All and combined groups.
    QString getShortcutGroupName() const;

    /// With \a disable, remembers whether the shortcut is enabled, and disables it; without,
    /// restores the remembered state, which is disabled at first.
    ///
    /// Calls come in pairs: a second call with \a disable remembers that the shortcut is disabled.
    void temporarilyDisable(bool disable);

private:
    QString m_description;
    ShortcutGroup m_group = All;
    bool m_wasEnabled = false;
};

/// Returns the bits of both groups.
constexpr OxaShortcut::ShortcutGroup operator|(OxaShortcut::ShortcutGroup left,
                                               OxaShortcut::ShortcutGroup right)
{
    return static_cast<OxaShortcut::ShortcutGroup>(static_cast<int>(left)
                                                   | static_cast<int>(right));
}
