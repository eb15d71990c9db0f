// SPDX-License-Identifier: Apache-2.0
#include "OxaShortcut.h"

OxaShortcut::OxaShortcut(QWidget *parent) : QShortcut(parent) { }

OxaShortcut::OxaShortcut(const QKeySequence &key, QWidget *parent, const char *member,
                         const char *ambiguousMember, Qt::ShortcutContext context)
    : QShortcut(key, parent, member, ambiguousMember, context)
{
}

OxaShortcut::OxaShortcut(const QKeySequence &key, QWidget *parent, const QString &description,
                         OxaShortcut::ShortcutGroup group)
    : QShortcut(key, parent, nullptr, nullptr, Qt::WindowShortcut),
      m_description(description),
      m_group(group)
{
}

OxaShortcut *OxaShortcut::setShortcutKey(const QKeySequence &key)
{
    setKey(key);
    return this;
}

OxaShortcut *OxaShortcut::setShortcutDescription(const QString &text)
{
    m_description = text;
    return this;
}

OxaShortcut *OxaShortcut::setShortcutGroup(OxaShortcut::ShortcutGroup group)
{
    m_group = group;
    return this;
}

QString OxaShortcut::getShortcutDescription() const { return m_description; }

OxaShortcut::ShortcutGroup OxaShortcut::getShortcutGroup() const { return m_group; }

QString OxaShortcut::getShortcutGroupName() const
{
    switch (m_group) {
    case General:
        return tr("General");
    case Messaging:
        return tr("Messaging");
    case CallingAndMeeting:
        return tr("Meetings and calling");
    case Tool:
    case All:
        break;
    }
    return {};
}

void OxaShortcut::temporarilyDisable(bool disable)
{
    if (!disable) {
        setEnabled(m_wasEnabled);
        return;
    }
    m_wasEnabled = isEnabled();
    setEnabled(false);
}
