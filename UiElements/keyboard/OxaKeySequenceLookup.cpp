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

} // namespace

OxaKeySequenceLookup::OxaKeySequenceLookup(QObject *parent) : OxaObject(parent)
{
    qRegisterMetaType<OxaKeySequenceLookup::Shortcut>("OxaKeySequenceLookup::Shortcut");
}

OxaKeySequenceInfo *OxaKeySequenceLookup::getKeySequence(
        OxaKeySequenceLookup::Shortcut shortcutType, const QString &fallbackKeySequence)
{
    // Made before it is known to be needed: each call leaves one object behind.
    auto *info = new OxaKeySequenceInfo(this);
    if (m_managerEnabled) {
        const auto entry = m_keySequenceMap.constFind(shortcutType);
        return entry == m_keySequenceMap.constEnd() ? info : entry->data();
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
