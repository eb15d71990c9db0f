// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QSignalSpy>
#include <QTest>

/// Lets some frames of the animated file at \a path pass. Returns whether they did: whatever was
/// animated before the call has shown as many.
inline bool passFrames(const QString &path)
{
    const OxaSvgRenderer renderer(path);
    const QSignalSpy frames(&renderer, &OxaSvgRenderer::repaintNeeded);
    return QTest::qWaitFor([&frames] { return frames.size() >= 2; });
}
