// SPDX-License-Identifier: Apache-2.0
#pragma once

// An outer application's own types, of other kinds than the library's defaults.

#include <QUuid>

#include <map>
#include <string>

namespace fenn {

using guid = QUuid;

} // namespace fenn

namespace dolmCore::viewModels {

enum class AudioDeviceAvailableStatus { Available, Unavailable };
enum class CallControlMainItemType : unsigned char { Mute };
enum class CallControlMenuItemType { Hold };
enum class ECMProvider { None };
enum HomeTabCoachMark { Welcome };
enum class OAuthProvider { None };
enum class SetWidgetVisibilityOrigin { User };
enum class ShareSourcesSelectionWindowTab { Screens };
enum class ShowCallAssistantWindowOrigin { User };

} // namespace dolmCore::viewModels

namespace uiWhiteboard {

using CreateWhiteboardInfo = std::map<std::string, std::string>;

} // namespace uiWhiteboard

struct ApplicationMenuItem
{
    std::string name;
};
