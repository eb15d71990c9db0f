// SPDX-License-Identifier: Apache-2.0
#include "OxaQuickViewContext.h"

#include <UiElements/qml/OxaQuickView.h>

#include <vector>

OxaQuickViewContext::OxaQuickViewContext(QObject *parent) : OxaObject(parent) { }

OxaQuickViewContext::~OxaQuickViewContext() = default;

QPointer<OxaQuickView> OxaQuickViewContext::findOxaQuickView(const std::string &source) const
{
    const auto found = m_views.find(source);
    return found == m_views.end() ? nullptr : found->second;
}

bool OxaQuickViewContext::oxaQuickViewExists(const std::string &source) const
{
    return !findOxaQuickView(source).isNull();
}

void OxaQuickViewContext::closeAllOxaQuickViews()
{
    // A copy: slots that hear of a view's end may make views, or delete the context.
    std::vector<QPointer<OxaQuickView>> views;
    for (const auto &entry : m_views)
        views.push_back(entry.second);
    for (const QPointer<OxaQuickView> &view : views) {
        const bool isClosed = view && view->close();
        if (view && isClosed)
            view->deleteLater();
        else if (view)
            view->hide();
    }
}

void OxaQuickViewContext::removeOxaQuickView(const std::string &source) { m_views.erase(source); }

QPointer<OxaQuickView> OxaQuickViewContext::createOxaQuickView(
        const QString &source, QWindow *parent, const QVariantMap &initialProperties,
        const ControllerCallback &controllerCallback)
{
    const std::string key = source.toStdString();
    if (QPointer<OxaQuickView> existing = findOxaQuickView(key))
        return existing;

    const QPointer<OxaQuickViewContext> guard = this;
    QPointer<OxaQuickView> view = instantiateOxaQuickView(source, parent, initialProperties,
                                                          controllerCallback);
    if (!guard || !view)
        return view;
    addOxaQuickView(key, view);
    // With the context as receiver, so that a view that outlives it does not call it. A slot that
    // heard of the old view's end before may have made a new view, which stays.
    connect(
            view, &QObject::destroyed, this,
            [this, key] {
                if (!oxaQuickViewExists(key))
                    removeOxaQuickView(key);
            },
            Qt::DirectConnection);
    return view;
}

bool OxaQuickViewContext::oxaQuickViewsMapEmpty() const { return m_views.empty(); }

std::size_t OxaQuickViewContext::oxaQuickViewsMapSize() const { return m_views.size(); }

void OxaQuickViewContext::addOxaQuickView(const std::string &source,
                                          const QPointer<OxaQuickView> &view)
{
    QPointer<OxaQuickView> &entry = m_views[source];
    if (!entry)
        entry = view;
}
