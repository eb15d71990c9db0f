// SPDX-License-Identifier: Apache-2.0
#include "WidgetCard.h"

#include "EmissionLog.h"
#include "shell/Page.h"
#include "widgets/Card.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QVBoxLayout>

namespace {

QString tr(const char *text) { return Page::tr(text); }

/// Adds the choice of where the keyboard focus is.
void addFocus(PropertyControls *controls, QWidget *widget)
{
    if (widget->focusPolicy() == Qt::NoFocus)
        return;
    const QStringList places = { tr("Elsewhere"), tr("In use") };
    const auto focus = [widget](int i) {
        // A reason of the keyboard, so that the focus is shown as if a key had been pressed.
        i == 1 ? widget->setFocus(Qt::ShortcutFocusReason) : widget->clearFocus();
    };
    controls->ControlPanel::addChoice(tr("setFocus()"), places, 0, focus);
}

/// Adds a card with \a stage, controls for \a widgets, and a log of what the first of them emits.
PropertyControls *addCard(Page &page, const QString &heading, const QString &explanation,
                          const QVector<QWidget *> &widgets, QWidget *stage)
{
    auto *controls = new PropertyControls(widgets);
    auto *log = new EmissionLog;
    log->follow(widgets.front());
    QObject::connect(log, &EmissionLog::noted, controls, &PropertyControls::refresh);
    auto *card = new Card(heading, explanation);
    card->body()->addWidget(stage);
    card->body()->addWidget(controls);
    card->body()->addWidget(log);
    page.body()->addWidget(card);
    return controls;
}

} // namespace

PropertyControls *WidgetCard::add(Page &page, const QString &heading, const QString &explanation,
                                  const std::function<QWidget *()> &make, Specimens::States states)
{
    auto *specimens = new Specimens(make, states);
    PropertyControls *controls = addCard(page, heading, explanation, specimens->widgets(),
                                         specimens);
    addFocus(controls, controls->front());
    return controls;
}

PropertyControls *WidgetCard::addOne(Page &page, const QString &heading, const QString &explanation,
                                     QWidget *widget, QWidget *stage)
{
    return addCard(page, heading, explanation, { widget }, stage);
}

PropertyControls::Choices WidgetCard::icons(const PropertyControls::Choice &own)
{
    return { { tr("None"), QString() },
             own,
             { tr("Camera"), icon("camera_24") },
             { tr("Person"), icon("person_24") } };
}

PropertyControls::Choices WidgetCard::colorSets()
{
    return { { tr("None"), QString() },
             { tr("Icon"), QStringLiteral("gallery-icon") },
             { tr("Link"), QStringLiteral("button-hyperlink-text") },
             { tr("Busy"), QStringLiteral("presence-busy") } };
}

QString WidgetCard::icon(const char *name)
{
    return OxaSvgRenderer::resourcePath(QString::fromLatin1(name));
}

QPixmap WidgetCard::pixmap(const char *name, const QSize &size)
{
    constexpr int pixelRatio = 2;
    const OxaSvgRenderer renderer(icon(name), nullptr);
    return renderer.renderPixmap(QRectF(QPointF(), size), size * pixelRatio, pixelRatio, Qt::black,
                                 Qt::transparent);
}
