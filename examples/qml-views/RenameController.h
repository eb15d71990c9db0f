// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/OxaQmlController.h>
#include <UiElements/qml/OxaQmlControllerHelpers.h>

/// What the dialog Rename.qml shows, and what comes of it.
class RenameController : public OxaQmlController
{
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged)

public:
    using OxaQmlController::OxaQmlController;

    void init(const QVariantMap &initialProperties) override
    {
        OxaQmlControllerHelpers::applyInitialStringPropertyToController(this, initialProperties,
                                                                        QStringLiteral("name"));
    }

Q_SIGNALS:
    void nameChanged();

    /// The user has agreed to \a newName.
    void accepted(const QString &newName);

private:
    QString m_name;
};
