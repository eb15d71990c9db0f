// SPDX-License-Identifier: Apache-2.0
#include "OxaKeySequenceLookup.h"

#include <algorithm>
#include <array>

namespace {

using Shortcut = OxaKeySequenceLookup::Shortcut;

/// The shortcuts that work while another application is in front.
constexpr std::array globalShortcuts {
    Shortcut::ShareContent,
    Shortcut::ToggleMultiCall,
    Shortcut::StopSharing,
    Shortcut::ToggleSharing,
    Shortcut::StartRemoteControl,
    Shortcut::ToggleRemoteControl,
    Shortcut::StartAnnotation,
    Shortcut::CallFloatingWindowFocus,
    Shortcut::DeclineCall,
    Shortcut::EndCall,
    Shortcut::AnswerCall,
    Shortcut::AnswerWithMessage,
    Shortcut::MeetingNotificationKey,
    Shortcut::ToggleShowFloatingWindow,
};

bool isGlobal(Shortcut shortcutType)
{
    return std::find(globalShortcuts.begin(), globalShortcuts.end(), shortcutType)
            != globalShortcuts.end();
}

/// Keeps QML's garbage collector from deleting \a info, as it does with an object that a method
/// returned and that has no parent. This parent lives as long as the process; whoever made the
/// object still has to delete it.
void keepFromCollector(OxaKeySequenceInfo *info)
{
    static auto *const keeper = new QObject;
    if (info && !info->parent())
        info->setParent(keeper);
}

} // namespace

OxaKeySequenceLookup::OxaKeySequenceLookup(QObject *parent) : OxaObject(parent)
{
    // Moc registers the types of parameters, but not those of return values.
    qRegisterMetaType<OxaKeySequenceInfo *>();
    qRegisterMetaType<OxaKeySequenceLookup::Shortcut>("OxaKeySequenceLookup::Shortcut");
}

OxaKeySequenceInfo *OxaKeySequenceLookup::getKeySequence(
        OxaKeySequenceLookup::Shortcut shortcutType, const QString &fallbackKeySequence)
{
    // Made even if it is not needed: each call makes one object, as the header says.
    auto *info = new OxaKeySequenceInfo(this);
    if (m_managerEnabled) {
        const auto entry = m_keySequenceMap.constFind(shortcutType);
        if (entry == m_keySequenceMap.constEnd())
            return info;
        keepFromCollector(*entry);
        return *entry;
    }
    info->setKeySequence(fallbackKeySequence);
    info->setEnabled(true);
    if (::isGlobal(shortcutType))
        info->setIsGlobal(true);
    return info;
}

void OxaKeySequenceLookup::setManagerEnabled(bool enabled) { m_managerEnabled = enabled; }

void OxaKeySequenceLookup::updateKeySequenceMap(
        const std::vector<std::pair<Shortcut, QPointer<OxaKeySequenceInfo>>> &entries)
{
    for (const auto &[shortcutType, info] : entries)
        m_keySequenceMap[shortcutType] = info;
}

bool OxaKeySequenceLookup::shortcutExists(OxaKeySequenceLookup::Shortcut shortcutType) const
{
    return m_keySequenceMap.contains(shortcutType);
}
