// SPDX-License-Identifier: Apache-2.0
#include "WidgetCard.h"

#include "Specimens.h"
#include "pages/signals/SignalWatcher.h"
#include "shell/Page.h"
#include "widgets/Card.h"
#include "widgets/CodeEdit.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QVBoxLayout>

namespace {

constexpr int logLines = 3;
constexpr int linesToKeep = 200;

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

} // namespace

PropertyControls *WidgetCard::add(Page &page, const QString &heading, const QString &explanation,
                                  const std::function<QWidget *()> &make)
{
    auto *specimens = new Specimens(make);
    QWidget *inUse = specimens->widgets().front();
    auto *controls = new PropertyControls(specimens->widgets());
    auto *card = new Card(heading, explanation);
    card->body()->addWidget(specimens);
    card->body()->addWidget(controls);
    card->body()->addWidget(makeLog(inUse, QWidget::staticMetaObject.methodCount(), controls));
    page.body()->addWidget(card);
    addFocus(controls, inUse);
    return controls;
}

QWidget *WidgetCard::makeLog(QObject *object, int firstMethod, PropertyControls *controls)
{
    auto *log = new CodeEdit;
    log->setReadOnly(true);
    log->setAccessibleName(tr("What it emits"));
    log->setPlaceholderText(tr("What it emits appears here"));
    log->setMaximumBlockCount(linesToKeep);
    log->setMinimumLines(logLines);
    log->setMaximumHeight(log->minimumHeight());
    const auto note = [log, controls](const QMetaMethod &signal, const QStringList &arguments) {
        const QString name = QString::fromLatin1(signal.name());
        if (name == QLatin1String("cssChanged") || name == QLatin1String("themeTypeChanged"))
            return;
        log->appendPlainText(
                QStringLiteral("%1(%2)").arg(name, arguments.join(QStringLiteral(", "))));
        controls->refresh();
    };
    new SignalWatcher(object, note, log, firstMethod);
    return log;
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
