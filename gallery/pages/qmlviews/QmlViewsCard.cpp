// SPDX-License-Identifier: Apache-2.0
#include "QmlViewsCard.h"

#include "QmlLooks.h"
#include "looks/Metrics.h"
#include "shell/GalleryApplication.h"
#include "shell/GalleryQmlEngine.h"
#include "widgets/Buttons.h"
#include "widgets/CodeEdit.h"
#include "widgets/Fields.h"
#include "widgets/WrapLayout.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QMetaEnum>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr int logLines = 10;
constexpr int linesToKeep = 200;

const QString viewSource = QStringLiteral("views/View.qml");
const QString cardSource = QStringLiteral("views/Card.qml");

/// Returns a callback that gives a dialog's controller \a text in the colours of \a widget.
OxaQmlEngine::ControllerCallback showing(const QString &text, const QWidget *widget)
{
    return [text, guard = QPointer<const QWidget>(widget)](OxaQmlController *controller) {
        auto *dialog = qobject_cast<OxaQmlDialogController *>(controller);
        if (dialog && guard)
            dialog->setModel(QmlLooks::of(text, guard));
    };
}

/// The place of \a widget on the screen.
QRectF onScreen(const QWidget *widget)
{
    return { widget->mapToGlobal(QPoint()), QSizeF(widget->size()) };
}

} // namespace

QmlViewsCard::QmlViewsCard(QWidget *parent)
    : Card(tr("Views"),
           tr("A window, a dialog and a popup are made from a file of QML and deleted when they "
              "are "
              "closed; a context keeps one dialog and one popup. The lower part of this card is "
              "QML, too."),
           parent),
      m_log(new CodeEdit)
{
    body()->addWidget(makeButtons());
    body()->addWidget(makeReloading());
    m_log->setReadOnly(true);
    m_log->setAccessibleName(tr("What the engine reports"));
    m_log->setPlaceholderText(tr("What the engine reports appears here"));
    m_log->setMaximumBlockCount(linesToKeep);
    m_log->setMinimumLines(logLines);
    body()->addWidget(m_log);
    // The log is the receiver: it dies before the QML of this card, whose end is reported, too.
    connect(GalleryApplication::get()->getQmlEngine(), &OxaQmlEngine::qmlViewStatusChanged, m_log,
            [this](OxaQmlEngine::QmlViewStatus status, const QString &view,
                   const QString &message) { note(status, view, message); });

    const QPointer<OxaQuickWidget> view =
            OxaQmlEngine::createQmlWidget(viewSource, this, {},
                                          [this](OxaQmlController *controller) {
                                              m_embedded = qobject_cast<OxaQmlDialogController *>(
                                                      controller);
                                              onThemeChanged();
                                          });
    view->setFixedHeight(view->sizeHint().height());
    view->setFocusPolicy(Qt::NoFocus);
    body()->addWidget(view);
}

void QmlViewsCard::onThemeChanged()
{
    Card::onThemeChanged();
    if (m_embedded)
        m_embedded->setModel(QmlLooks::of(tr("QML among widgets"), this));
}

QWidget *QmlViewsCard::makeButtons()
{
    auto *row = new OxaWidget;
    row->setLayout(new WrapLayout(Metrics::spacing));
    addButton(row, tr("Open window"), &QmlViewsCard::openWindow);
    addButton(row, tr("Open dialog"), &QmlViewsCard::openDialog);
    addButton(row, tr("Open popup"), &QmlViewsCard::openPopup);
    addButton(row, tr("Open file with an error"), &QmlViewsCard::openWithError);
    return row;
}

void QmlViewsCard::addButton(QWidget *row, const QString &text, void (QmlViewsCard::*open)())
{
    auto *button = Buttons::make(text, row);
    connect(button, &QAbstractButton::clicked, this, open);
    row->layout()->addWidget(button);
    if (open == &QmlViewsCard::openPopup)
        m_popupButton = button;
}

QWidget *QmlViewsCard::makeReloading()
{
    auto *row = new OxaWidget;
    row->setLayout(new WrapLayout(Metrics::spacing));
    auto *fromDisk = Fields::checkBox(tr("Read new views from the source tree"), row);
    auto *engine = static_cast<GalleryQmlEngine *>(GalleryApplication::get()->getQmlEngine());
    fromDisk->setChecked(engine->isReadingQmlFromDisk());
    connect(fromDisk, &QAbstractButton::toggled, engine, &GalleryQmlEngine::setReadQmlFromDisk);
    row->layout()->addWidget(fromDisk);
    auto *reload = Buttons::make(tr("Reload all views (F5)"), row);
    row->layout()->addWidget(reload);
    auto *shortcut = new QShortcut(QKeySequence(Qt::Key_F5), this);
    OxaAppSignals *const hub = OxaAppSignals::get();
    connect(reload, &QAbstractButton::clicked, hub, &OxaAppSignals::reloadAllQmlViews);
    connect(shortcut, &QShortcut::activated, hub, &OxaAppSignals::reloadAllQmlViews);
    return row;
}

void QmlViewsCard::openWindow()
{
    const auto view =
            OxaQmlEngine::createQmlWindow(viewSource, nullptr, {},
                                          showing(tr("A window. Each click opens another."), this));
    if (!view)
        return;
    view->setTitle(tr("Window"));
    view->resize(360, 160);
    view->show();
}

void QmlViewsCard::openDialog()
{
    const auto dialog = m_dialogs.createQmlDialog(
            viewSource, window()->windowHandle(), {},
            showing(tr("A dialog of fixed size, above the gallery. There is only one."), this));
    if (!dialog)
        return;
    dialog->setTitle(tr("Dialog"));
    dialog->show();
    dialog->requestActivate();
}

void QmlViewsCard::openPopup()
{
    m_popups.createQmlPopup(cardSource, window()->windowHandle(), OxaQmlBalloon::Top, {}, {});
    const QVariantMap model =
            QmlLooks::of(tr("A popup. Escape closes it, and so does a click elsewhere."), this);
    m_popups.showQmlPopup(cardSource, onScreen(m_popupButton), false, OxaQmlBalloon::Top,
                          [model](OxaQmlController *controller) {
                              qobject_cast<OxaQmlPopupController *>(controller)->setModel(model);
                          });
}

void QmlViewsCard::openWithError()
{
    // An empty window would say nothing: what the engine reports is the answer.
    delete OxaQmlEngine::createQmlWindow(QStringLiteral("views/WithError.qml"), nullptr, {}, {});
}

void QmlViewsCard::note(OxaQmlEngine::QmlViewStatus status, const QString &view,
                        const QString &message)
{
    const auto statuses = QMetaEnum::fromType<OxaQmlEngine::QmlViewStatus>();
    const QString key = QLatin1String(statuses.valueToKey(static_cast<int>(status)));
    m_log->appendPlainText(QStringLiteral("%1 %2 %3").arg(key, view, message).trimmed());
}
