// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QObject>

/// Holds the enumerations of the font manager for C++ and QML alike.
class UIELEMENTS_EXPORT FontManagerEnum : public QObject
{
    Q_OBJECT

public:
    /// The view whose scaled fonts a widget follows.
    enum class FontType {
        Default = 0,       ///< None: the widget keeps its token's font.
        MessagingView = 1, ///< The messaging view.
        MeetingView = 2,   ///< The meeting view.
    };
    Q_ENUM(FontType)

    /// How much a view is enlarged.
    enum class FontScalingFactor {
        Small = -1,  ///< Body text of 14 pixels.
        Regular = 0, ///< Body text of 16 pixels, times the application's font scale factor.
        Medium = 1,  ///< Body text of 20 pixels.
        Large = 2,   ///< Body text of 26 pixels.
    };
    Q_ENUM(FontScalingFactor)
};
