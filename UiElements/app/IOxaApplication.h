// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaColorSet.h>

#include <QApplication>
#include <QPointer>

class IOxaMovieProviderSource;
class OxaQmlEngine;

/// The part of the application object that the theme engine and the QML host need: the theme flags
/// and the colour stores.
///
/// Derive from OxaApplication, not from this class.
class UIELEMENTS_EXPORT IOxaApplication : public QApplication
{
    Q_OBJECT

public:
    /// Makes the QApplication of the process and registers the meta-type "OxaColorSet". The stores
    /// start empty, the flags off. \a argc and \a argv must outlive the object.
    IOxaApplication(int &argc, char **argv);
    ~IOxaApplication() override;

    /// Returns the source of the movies that OxaMovieProvider asks for.
    virtual IOxaMovieProviderSource *getMovieProviderSource() = 0;

    /// Called once for each new QML engine, so that the outer application can set \a engine up.
    /// getQmlEngine() returns that engine already.
    virtual void onQmlEngineCreated(OxaQmlEngine *engine) = 0;

    /// Returns the QML engine, which has no parent. Makes one if there is none, also where the
    /// earlier one was deleted, and calls onQmlEngineCreated(). OxaQmlEngine::setFactory() decides
    /// on its class. It is deleted later when the application is destroyed. Null only where
    /// onQmlEngineCreated() deletes it.
    OxaQmlEngine *getQmlEngine() const;

    /// Returns the ordinary store. The reference is valid until the store is replaced.
    const OxaColorSetMap &getColorSets() const;

    /// Replaces the ordinary store with a copy of \a colorSets and emits colorSetsChanged(), also
    /// when nothing differs.
    void setColorSets(const OxaColorSetMap &colorSets);

    /// Returns the inverted store. The reference is valid until the store is replaced.
    const OxaColorSetMap &getInvertedColorSets() const;

    /// Replaces the inverted store with a copy of \a colorSets and emits colorSetsChanged(), also
    /// when nothing differs.
    void setInvertedColorSets(const OxaColorSetMap &colorSets);

    /// Returns the token map. The reference is valid until the map is replaced.
    const OxaColorTokenMap &getColorTokens() const;

    /// Replaces the token map with a copy of \a colorTokens. Emits nothing.
    void setColorTokens(const OxaColorTokenMap &colorTokens);

    /// True when the application's theme is dark. Off by default.
    bool getIsDarkTheme() const;

    /// True when the application's theme is a high contrast one. Off by default.
    bool getIsHighContrastTheme() const;

Q_SIGNALS:
    /// A store was replaced. Widgets don't react to this signal: they take new colours when their
    /// theme type is set or their style text is applied again.
    void colorSetsChanged();

protected:
    /// Stores the flag. The caller emits the signal of the change.
    void storeIsDarkTheme(bool isDarkTheme);

    /// Stores the flag. The caller emits the signal of the change.
    void storeIsHighContrastTheme(bool isHighContrastTheme);

private:
    bool m_isHighContrastTheme = false;
    bool m_isDarkTheme = false;
    mutable QPointer<OxaQmlEngine> m_qmlEngine;
    OxaColorSetMap m_colorSets;
    OxaColorTokenMap m_colorTokens;
    OxaColorSetMap m_invertedColorSets;
};
