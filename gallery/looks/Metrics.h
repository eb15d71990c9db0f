// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The gallery's spacing, in pixels on a grid of eight.
namespace Metrics {

constexpr int tight = 4;    ///< Between a caption and its control.
constexpr int small = 8;    ///< Between things that belong together.
constexpr int spacing = 16; ///< Between cards, and inside them.
constexpr int gap = 24;     ///< Between groups.
constexpr int margin = 32;  ///< Around a page.

constexpr int scrollBar = 12;
constexpr int leastListHeight = 256; ///< Of a list that takes the remaining room of a page.
constexpr int sidebarWidth = 216;
constexpr int windowWidth = 1200;
constexpr int windowHeight = 800;
constexpr int smallestWindowWidth = 900;
constexpr int smallestWindowHeight = 600;

} // namespace Metrics
