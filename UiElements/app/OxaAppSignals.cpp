// SPDX-License-Identifier: Apache-2.0
#include "OxaAppSignals.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>
#include <UiElements/app/ShortcutTable_p.h>

#include <QDebug>

#include <utility>

namespace {

/// A warning that names a shortcut by its number.
struct IdWarning
{
    const char *before;
    const char *after;
};

constexpr char noWindowWarning[] = "Unable to register shortcuts, MainWindow must not be null!";
constexpr char registeredWarning[] =
        "Shortcuts are already registred on another MainWindow! This should never happen.";
constexpr IdWarning sameIdWarning {
    "This ShortcutId(", ") is already registered in the application. This should never happen!"
};
constexpr IdWarning notFoundWarning { "Did not find shortcut with id (", ")" };
constexpr IdWarning notRegisteredWarning { "ShortcutId (",
                                           ") is not registered! This should never happen" };
constexpr IdWarning nullWarning { "ShortcutId (", ") is null! This should never happen" };

void warn(const IdWarning &warning, OxaAppSignals::Shortcut id)
{
    QMessageLogger().warning() << warning.before << static_cast<int>(id) << warning.after;
}

} // namespace

OxaAppSignals::OxaAppSignals(QObject *parent) : OxaObject(parent) { }

OxaAppSignals *OxaAppSignals::get()
{
    const OxaApplication *app = ApplicationObject::findOrWarn();
    return app ? app->getAppSignals() : nullptr;
}

void OxaAppSignals::registerShortcuts(QWidget *mainWindow, OxaShortcut::ShortcutGroup groups)
{
    if (!mainWindow) {
        QMessageLogger().warning() << noWindowWarning;
        return;
    }
    if (!m_shortcuts.empty()) {
        QMessageLogger().warning() << registeredWarning;
        return;
    }
    // The window of an earlier registration may still exist, but no longer owns the entries.
    disconnect(m_windowConnection);
    m_windowConnection = connect(mainWindow, &QObject::destroyed, this,
                                 [this] { m_shortcuts.clear(); });
    _registerShortcuts(mainWindow, groups);
}

QKeySequence OxaAppSignals::getKeySequence(OxaAppSignals::Shortcut id) const
{
    const auto entry = m_shortcuts.find(id);
    if (entry == m_shortcuts.end()) {
        warn(notRegisteredWarning, id);
        return {};
    }
    if (!entry->second) {
        warn(nullWarning, id);
        return {};
    }
    return entry->second->key();
}

std::unordered_map<OxaAppSignals::Shortcut, QPointer<OxaShortcut>> OxaAppSignals::getGroupShortcuts(
        OxaShortcut::ShortcutGroup group) const
{
    std::unordered_map<Shortcut, QPointer<OxaShortcut>> found;
    for (const auto &entry : m_shortcuts) {
        if (entry.second && entry.second->getShortcutGroup() == group)
            found.insert(entry);
    }
    return found;
}

bool OxaAppSignals::shortcutExists(OxaAppSignals::Shortcut id) const
{
    return m_shortcuts.find(id) != m_shortcuts.end();
}

void OxaAppSignals::disableShortcut(OxaAppSignals::Shortcut id)
{
    const auto entry = m_shortcuts.find(id);
    if (entry == m_shortcuts.end()) {
        warn(notFoundWarning, id);
        return;
    }
    const QPointer<OxaAppSignals> self = this;
    delete entry->second.data();
    // Erased by its id: a slot may have changed the map.
    if (self)
        m_shortcuts.erase(id);
}

void OxaAppSignals::disableAll()
{
    disconnect(m_windowConnection);
    // The map is emptied first: a slot may change it.
    for (const auto &entry : std::exchange(m_shortcuts, {}))
        delete entry.second.data();
}

void OxaAppSignals::_registerShortcuts(QWidget *mainWindow, OxaShortcut::ShortcutGroup groups)
{
    for (const ShortcutRow &row : shortcutRows) {
        if (groups & row.registeredWith)
            registerShortcut(mainWindow, row);
    }
}

void OxaAppSignals::_registerDebugShortcuts(QWidget *mainWindow)
{
    registerShortcut(mainWindow, debugShortcutRow);
}

void OxaAppSignals::registerShortcut(QWidget *mainWindow, const ShortcutRow &row)
{
    const QKeySequence key = row.key.sequence();
    auto *shortcut = new OxaShortcut(key, mainWindow, nullptr, nullptr, Qt::WindowShortcut);
    shortcut->setContext(Qt::ApplicationShortcut);

    if (shortcutExists(row.id))
        warn(sameIdWarning, row.id);
    m_shortcuts[row.id] = shortcut;

    connect(shortcut, &QShortcut::activated, this, row.signal);
    if (row.description) {
        shortcut->setShortcutDescription(
                QCoreApplication::translate("OxaAppSignals", row.description));
    }
    shortcut->setShortcutGroup(row.group);
}
