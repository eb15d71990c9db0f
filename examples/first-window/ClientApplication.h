// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaApplication.h>

/// The application object of the client: it reads the colour documents and switches between them.
class ClientApplication : public OxaApplication
{
    Q_OBJECT

public:
    ClientApplication(int &argc, char **argv);

    /// Shows all windows in the dark colours, or in the light ones.
    void setDark(bool dark);

    /// Shows all windows in high contrast, or in the colours that setDark() chose.
    void setHighContrast(bool highContrast);

    // What the library may ask of its client. This one has no QML, and cannot restart.
    void onQmlEngineCreated(OxaQmlEngine *) override { }
    void restart() override { }
    void registerMainWindowShortcuts(OxaMainWindow *) override { }

private:
    void showColors();

    OxaColorSetMap m_light;
    OxaColorSetMap m_dark;
    OxaColorSetMap m_highContrast;
    bool m_isDark = false;
    bool m_isHighContrast = false;
};
