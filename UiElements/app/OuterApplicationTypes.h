// SPDX-License-Identifier: Apache-2.0
#pragma once

/// \file
/// The types of the outer application that the signals of OxaAppSignals carry. The library passes
/// them on and never looks inside.
///
/// An outer application with types of its own replaces all of these: it sets the CMake option
/// UIELEMENTS_OUTER_APPLICATION_TYPES to the name of a header with its brackets, such as
/// "<client/SignalTypes.h>", which declares every name below as a copyable type. The library and
/// everything that links to its CMake target are compiled with that header; other builds define a
/// macro of the same name themselves.

#ifdef UIELEMENTS_OUTER_APPLICATION_TYPES
#include UIELEMENTS_OUTER_APPLICATION_TYPES
#else

#include <array>
#include <cstdint>
#include <string>

/// The outer application's identifiers.
namespace fenn {

/// Identifies a space, a rill, a meeting room or a call.
struct guid
{
    std::array<std::uint8_t, 16> bytes {};
};

/// True when both identify the same thing.
inline bool operator==(const guid &left, const guid &right) { return left.bytes == right.bytes; }

/// True when they identify different things.
inline bool operator!=(const guid &left, const guid &right) { return !(left == right); }

} // namespace fenn

/// The enumerations of the outer application's view models. They are complete types without
/// enumerators: a client that has the values may define them in a header of its own.
namespace dolmCore::viewModels {

enum class AudioDeviceAvailableStatus : int;
enum class CallControlMainItemType : int;
enum class CallControlMenuItemType : int;
enum class ECMProvider : int;
enum class HomeTabCoachMark : int;
enum class OAuthProvider : int;
enum class SetWidgetVisibilityOrigin : int;
enum class ShareSourcesSelectionWindowTab : int;
enum class ShowCallAssistantWindowOrigin : int;

} // namespace dolmCore::viewModels

/// The outer application's whiteboards.
namespace uiWhiteboard {

/// What a new whiteboard is made from.
struct CreateWhiteboardInfo
{
    std::string conversationId; ///< The space that it is made in.
    std::string callId;         ///< The call that it is shared in; empty without one.
};

} // namespace uiWhiteboard

/// An entry of the outer application's main menu.
enum class ApplicationMenuItem : int;

#endif
