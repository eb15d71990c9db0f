// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariantMap>

class QWidget;

/// What QML files of the gallery show, as a model for their controllers.
namespace QmlLooks {

/// Returns a model with \a text, and the colours and the font size of the theme of \a widget.
QVariantMap of(const QString &text, const QWidget *widget);

} // namespace QmlLooks
