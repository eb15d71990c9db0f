// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/OxaQmlEngine.h>

/// The gallery's QML engine, which can read from disk where the user asks for it.
class GalleryQmlEngine : public OxaQmlEngine
{
    Q_OBJECT

public:
    using OxaQmlEngine::OxaQmlEngine;
    using OxaQmlEngine::setReadQmlFromDisk;
};
