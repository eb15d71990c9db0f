// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "specimens/PropertyControls.h"
#include "widgets/Card.h"

#include <QPointer>

#include <functional>

class PaintedItemController;

/// A card for an item that paints itself: the item in a view, controls for its properties, and a
/// log of its signals.
class PaintedItemCard : public Card
{
    Q_OBJECT

public:
    /// Prepares the controls before those of the item's class are added to them.
    using Prepare = std::function<void(PropertyControls &controls)>;

    /// Shows the item of the QML file \a source.
    PaintedItemCard(const QString &heading, const QString &explanation, const QString &source,
                    const Prepare &prepare, QWidget *parent = nullptr);

protected:
    void onThemeChanged() override;

private:
    void showItem(PaintedItemController *controller);
    void addColor(PropertyControls *controls, const char *property, QString *setName,
                  const PropertyControls::Choices &choices);
    QColor color(const QString &setName) const;

    const Prepare m_prepare;
    QString m_background = QStringLiteral("gallery-note-background");
    QString m_border = QStringLiteral("gallery-note-border");
    QPointer<PaintedItemController> m_controller;
    QPointer<QWidget> m_panel;
};
