// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <Qt>

/// What the user has chosen.
struct Settings
{
    enum class Theme { System, Light, Dark, HighContrast };
    enum class Direction { System, LeftToRight, RightToLeft };

    Theme theme = Theme::System;
    Direction direction = Direction::System;
    int fontScale = 100;   ///< Of all text, 50 to 150 per cent.
    int messagingSize = 0; ///< Of the messages, a FontManagerEnum::FontScalingFactor, -1 to 2.
    bool animationsDisabled = false;
    bool previewsShown = true; ///< Of the last message, in the list of conversations.
    QString displayName;       ///< Empty: what the server says.
    QString webAddress;

    /// What was stored, or else the defaults.
    static Settings load();
    void save() const;
};

bool operator==(const Settings &a, const Settings &b);
