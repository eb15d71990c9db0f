// SPDX-License-Identifier: Apache-2.0
#include "SignalTriggers.h"

#include <UiElements/app/OxaApplication.h>
#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlHalfPill.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/qml/PopupContextTimer.h>

#include <QColor>
#include <QVariant>

#include <utility>

namespace {

/// Adds a row for the property \a name, which is set to \a value.
template <typename Object>
void addPropertyRow(SignalTriggers &rows, const char *name, const QVariant &value,
                    const QByteArray &signal = QByteArray())
{
    const QByteArray own = name + QByteArray("Changed()");
    rows.push_back({ &Object::staticMetaObject,
                     signal.isEmpty() ? own : signal,
                     name,
                     {},
                     [name, value](QObject *object) { object->setProperty(name, value); } });
}

void addBalloonRows(SignalTriggers &rows)
{
    using Balloon = OxaQmlBalloon;
    addPropertyRow<Balloon>(rows, "arrowAlignment", Balloon::TopAlignment);
    addPropertyRow<Balloon>(rows, "arrowAnchor", Balloon::Left);
    addPropertyRow<Balloon>(rows, "backgroundColor", QColor(Qt::red));
    addPropertyRow<Balloon>(rows, "borderColor", QColor(Qt::red));
    for (const char *length : { "arrowOffset", "arrowSize", "radius", "borderWidth", "topMargin" })
        addPropertyRow<Balloon>(rows, length, 5);
    const SignalTriggers setters = {
        row<Balloon>("arrowSizeChanged()", "its setter",
                     [](Balloon &balloon) { balloon.setArrowSize(5); }),
        row<Balloon>("borderWidthChanged()", "its setter",
                     [](Balloon &balloon) { balloon.setBorderWidth(5); }),
        row<Balloon>("topMarginChanged()", "its setter",
                     [](Balloon &balloon) { balloon.setTopMargin(5); }),
    };
    rows.insert(rows.end(), setters.begin(), setters.end());
}

void addHalfPillRows(SignalTriggers &rows)
{
    using HalfPill = OxaQmlHalfPill;
    addPropertyRow<HalfPill>(rows, "backgroundColor", QColor(Qt::red));
    addPropertyRow<HalfPill>(rows, "borderColor", QColor(Qt::red));
    addPropertyRow<HalfPill>(rows, "edge", HalfPill::None);
    addPropertyRow<HalfPill>(rows, "borderWidth", 5, "borderChanged()");
    for (const char *side : { "borderBottom", "borderLeft", "borderRight", "borderTop" })
        addPropertyRow<HalfPill>(rows, side, false, "borderChanged()");
}

template <typename Controller>
void addModelRows(SignalTriggers &rows)
{
    addPropertyRow<Controller>(rows, "takesModelOwnership", true);
    addPropertyRow<Controller>(rows, "model", 5);
}

void addPopupControllerRows(SignalTriggers &rows)
{
    using Controller = OxaQmlPopupController;
    addPropertyRow<Controller>(rows, "arrowOffset", 5);
    addPropertyRow<Controller>(rows, "arrowSize", 5);
    addPropertyRow<Controller>(rows, "arrowAlignment", OxaQmlBalloon::TopAlignment);
    addPropertyRow<Controller>(rows, "arrowAnchor", OxaQmlBalloon::Left);
    addPropertyRow<Controller>(rows, "themeType", QStringLiteral("dark"));
}

OxaApplication *application() { return static_cast<OxaApplication *>(qApp); }

/// Makes \a engine the application's.
void attach(OxaQmlEngine &engine)
{
    static OxaQmlEngine *next = nullptr;
    next = &engine;
    OxaQmlEngine::setFactory([] { return std::exchange(next, nullptr); });
    application()->getQmlEngine();
    OxaQmlEngine::setFactory(nullptr);
}

void addEngineRows(SignalTriggers &rows)
{
    const SignalTriggers own = {
        row<OxaQmlEngine>(
                "qmlViewStatusChanged(QmlViewStatus,QString,QString)", "a view",
                [](OxaQmlEngine &) {
                    OxaQmlEngine::createQmlWindow(QStringLiteral("View.qml"), nullptr, {}, {});
                },
                &attach),
        row<OxaQmlEngine>("reloadAllQmlViews()", "the application's signal",
                          [](OxaQmlEngine &) {
                              Q_EMIT application()->getAppSignals()->reloadAllQmlViews();
                          }),
        row<OxaQmlEngine>("sceneGraphCriticalError()", "its slot",
                          [](OxaQmlEngine &engine) { engine.onSceneGraphCriticalError(); }),
        row<PopupContextTimer>(
                "stopped()", "stopAndEmit()", [](PopupContextTimer &timer) { timer.stopAndEmit(); },
                [](PopupContextTimer &timer) { timer.setPopupPending(true); }),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}

} // namespace

void addControllerTriggers(SignalTriggers &rows)
{
    addBalloonRows(rows);
    addHalfPillRows(rows);
    addModelRows<OxaQmlDialogController>(rows);
    addModelRows<OxaQmlPopupController>(rows);
    addPopupControllerRows(rows);
    addEngineRows(rows);
}
