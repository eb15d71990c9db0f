// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QSignalSpy>
#include <QTest>

/// Waits for some frames of the animated file at \a path, which widgets with an animation have
/// shown then as well. Returns whether they came.
inline bool passFrames(const QString &path)
{
    const OxaSvgRenderer renderer(path);
    const QSignalSpy frames(&renderer, &OxaSvgRenderer::repaintNeeded);
    return QTest::qWaitFor([&frames] { return frames.size() >= 2; });
}
