// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaObject.h>

#include <QPointer>
#include <QVariantMap>

#include <functional>
#include <map>
#include <string>

class OxaQmlController;
class OxaQuickView;
class QWindow;

/// Keeps at most one live view for each source.
///
/// It does not own its views: they delete themselves when they are closed, and live on without the
/// context.
class UIELEMENTS_EXPORT OxaQuickViewContext : public OxaObject
{
    Q_OBJECT

public:
    /// Gets the controller of a view.
    using ControllerCallback = std::function<void(OxaQmlController *)>;

    /// Makes a context without views.
    explicit OxaQuickViewContext(QObject *parent = nullptr);
    ~OxaQuickViewContext() override;

    /// Returns the live view of \a source, or null.
    QPointer<OxaQuickView> findOxaQuickView(const std::string &source) const;

    /// True when \a source has a live view.
    bool oxaQuickViewExists(const std::string &source) const;

    /// Closes all views, and deletes them later. A view that refuses is hidden.
    void closeAllOxaQuickViews();

protected:
    /// Called when the view of \a source was destroyed. Forgets it.
    virtual void removeOxaQuickView(const std::string &source);

    /// Makes the view of \a source, or returns null.
    virtual QPointer<OxaQuickView> instantiateOxaQuickView(
            const QString &source, QWindow *parent, const QVariantMap &initialProperties,
            const ControllerCallback &controllerCallback) = 0;

    /// Returns the live view of \a source, without using the other arguments, or makes one. Null
    /// where none can be made.
    QPointer<OxaQuickView> createOxaQuickView(const QString &source, QWindow *parent,
                                              const QVariantMap &initialProperties,
                                              const ControllerCallback &controllerCallback);

    /// True when there is no view.
    bool oxaQuickViewsMapEmpty() const;

    /// Returns the number of views.
    std::size_t oxaQuickViewsMapSize() const;

private:
    void addOxaQuickView(const std::string &source, const QPointer<OxaQuickView> &view);

    std::map<std::string, QPointer<OxaQuickView>> m_views;
};
