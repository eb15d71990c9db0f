// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/OxaQuickViewContext.h>

/// Keeps one dialog for each source.
class UIELEMENTS_EXPORT DialogContext : public OxaQuickViewContext
{
    Q_OBJECT

public:
    /// Makes a context without dialogs.
    explicit DialogContext(QObject *parent = nullptr);
    ~DialogContext() override;

    /// Returns the dialog of \a source, or makes a hidden one with a fixed size above \a parent,
    /// see OxaQmlEngine::createQmlDialog(). A dialog that exists gets neither the initial
    /// properties nor the callback.
    QPointer<OxaQuickView> createQmlDialog(const QString &source, QWindow *parent,
                                           const QVariantMap &initialProperties,
                                           const ControllerCallback &controllerCallback);

protected:
    QPointer<OxaQuickView> instantiateOxaQuickView(
            const QString &source, QWindow *parent, const QVariantMap &initialProperties,
            const ControllerCallback &controllerCallback) override;
};
