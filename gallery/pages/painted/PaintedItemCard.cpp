// SPDX-License-Identifier: Apache-2.0
#include "PaintedItemCard.h"

#include "PaintedItemController.h"
#include "looks/Metrics.h"
#include "specimens/EmissionLog.h"

#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QVBoxLayout>

namespace {

constexpr int viewHeight = 176;
constexpr int widestItem = 320;
constexpr int highestItem = 160;

} // namespace

PaintedItemCard::PaintedItemCard(const QString &heading, const QString &explanation,
                                 const QString &source, const Prepare &prepare, QWidget *parent)
    : Card(heading, explanation, parent), m_prepare(prepare)
{
    // Called again with another controller when the file is reloaded.
    const auto show = [this](OxaQmlController *controller) {
        showItem(qobject_cast<PaintedItemController *>(controller));
    };
    auto *view = OxaQmlEngine::createQmlWidget(source, this, QVariantMap(), show).data();
    view->setFixedHeight(viewHeight);
    view->setMinimumWidth(widestItem);
    view->setFocusPolicy(Qt::NoFocus);
    body()->insertWidget(0, view);
}

void PaintedItemCard::onThemeChanged()
{
    Card::onThemeChanged();
    if (m_controller)
        m_controller->setColors(color(QStringLiteral("gallery-card-background")),
                                color(m_background), color(m_border));
}

void PaintedItemCard::showItem(PaintedItemController *controller)
{
    delete m_panel;
    m_controller = controller;
    onThemeChanged();

    m_panel = new OxaWidget;
    auto *column = new QVBoxLayout(m_panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::spacing);
    auto *controls = new PropertyControls(controller->item());
    column->addWidget(controls);
    auto *log = new EmissionLog;
    log->follow(controller->item());
    connect(log, &EmissionLog::noted, controls, &PropertyControls::refresh);
    column->addWidget(log);
    body()->addWidget(m_panel);

    addColor(controls, "backgroundColor", &m_background,
             { { tr("Note"), QStringLiteral("gallery-note-background") },
               { tr("Accent"), QStringLiteral("gallery-accent") },
               { tr("None"), QString() } });
    addColor(controls, "borderColor", &m_border,
             { { tr("Note"), QStringLiteral("gallery-note-border") },
               { tr("Accent"), QStringLiteral("gallery-accent") },
               { tr("None"), QString() } });
    m_prepare(*controls);
    controls->addAll();
    controls->setRange("width", 0, widestItem);
    controls->setRange("height", 0, highestItem);
    controls->addProperty("width");
    controls->addProperty("height");
}

void PaintedItemCard::addColor(PropertyControls *controls, const char *property, QString *setName,
                               const PropertyControls::Choices &choices)
{
    controls->addChoice(QString::fromLatin1(property), choices,
                        [this, setName](QWidget *, const QVariant &name) {
                            *setName = name.toString();
                            onThemeChanged();
                        });
}

QColor PaintedItemCard::color(const QString &setName) const
{
    return setName.isEmpty() ? QColor(Qt::transparent)
                             : OxaThemeUtils::getColorSet(setName.toStdString(), this).normal;
}
