// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/FontManagerEnum.h>

#include <QObject>
#include <QPointer>

#include <map>

class OxaScaledFonts;

/// Keeps the scaled fonts of each view that the user can enlarge. OxaApplication makes the only
/// instance of the process.
class UIELEMENTS_EXPORT OxaFontManager : public QObject
{
    Q_OBJECT

public:
    /// Makes a manager without tables.
    explicit OxaFontManager(QObject *parent = nullptr);

    /// Returns the application's manager. Without an OxaApplication it logs a warning and returns
    /// null.
    static OxaFontManager *get();

    /// Returns the fonts of \a type, made at the first request, and again if other code deleted
    /// them. The manager owns them.
    OxaScaledFonts *getFont(FontManagerEnum::FontType type);

    /// Scales the fonts of \a type; OxaScaledFonts::fontTokenChanged() follows.
    void setScalingFactor(FontManagerEnum::FontType type,
                          FontManagerEnum::FontScalingFactor factor);

private:
    std::map<int, QPointer<OxaScaledFonts>> m_fonts;
};
