// SPDX-License-Identifier: Apache-2.0
#include "WidgetTriggers.h"
#include "support/GifFiles.h"

#include <UiElements/app/OxaApplication.h>
#include <UiElements/movies/IOxaMovieProviderSource.h>
#include <UiElements/movies/OxaGifLabel.h>
#include <UiElements/movies/OxaMovieProvider.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaNotification.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QLayout>

namespace {

OxaLabel &labelOf(AlertBanner &banner)
{
    return *banner.findChild<OxaLabel *>(QStringLiteral("alertLabel"));
}

/// Makes the banner's text a link.
void setLink(AlertBanner &banner)
{
    AlertBanner::AlertBannerInfo info;
    info.alertType = AlertBanner::AlertType::Warning;
    info.alertText = QStringLiteral("<a href='x'>%1</a>").arg(QString(100, QLatin1Char('w')));
    info.wordWrap = false;
    banner.setAlert(info);
}

void showLink(AlertBanner &banner)
{
    setLink(banner);
    banner.layout()->activate();
}

void addBannerRows(SignalTriggers &rows)
{
    rows.push_back(row<AlertBanner>(
            "alertLinkActivated()", "a click",
            [](AlertBanner &banner) {
                const QPointer<OxaLabel> label = &labelOf(banner);
                press(*label);
                release(*label);
            },
            &showLink));
    rows.push_back(row<AlertBanner>(
            "alertLinkActivated()", "a key",
            [](AlertBanner &banner) {
                sendKey(labelOf(banner), QEvent::KeyPress, Qt::Key_Tab);
                sendKey(labelOf(banner), QEvent::KeyPress, Qt::Key_Return);
            },
            &showLink));
    rows.push_back(row<AlertBanner>("cssChanged()", "setAlert()", &setLink));
}

void addNotificationRows(SignalTriggers &rows)
{
    rows.push_back(row<OxaNotification>("fadeOutCompleted()", "the end of its times",
                                        [](OxaNotification &notification) {
                                            notification.setShowTimeout(1);
                                            notification.setFadeOutDuration(20);
                                            notification.start();
                                            waitForDeletion(notification);
                                        }));
}

void addPopupRows(SignalTriggers &rows)
{
    const auto makeWindow = [](PopupWidget &popup) { popup.winId(); };
    const SignalTriggers own = {
        row<PopupWidget>("popupDismissed()", "Escape",
                         [](PopupWidget &popup) {
                             sendKey(popup, QEvent::KeyPress, Qt::Key_Escape);
                         }),
        // Sent by hand, since QWidget::setVisible() uses the widget after these events.
        row<PopupWidget>(
                "widgetShown()", "the event of show()",
                [](PopupWidget &popup) { send(popup, QShowEvent()); }, makeWindow),
        row<PopupWidget>("widgetHidden()", "the event of hide()",
                         [](PopupWidget &popup) { send(popup, QHideEvent()); }),
        row<PopupWidget>("widgetHoverEntered()", "the event",
                         [](PopupWidget &popup) {
                             send(popup, QEnterEvent(QPointF(), QPointF(), QPointF()));
                         }),
        row<PopupWidget>("widgetHoverLeaved()", "the event",
                         [](PopupWidget &popup) { send(popup, QEvent(QEvent::Leave)); }),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}

/// Gives the label an image of \a frames frames.
template <int frames>
void setGif(OxaGifLabel &label)
{
    static const SvgFiles folder;
    const GifFiles::Gif gif { std::vector<QColor>(frames, Qt::red) };
    label.setGifPath(folder.write(QString::number(frames), GifFiles::bytes(gif)));
}

IOxaMovieProviderSource *source()
{
    return static_cast<OxaApplication *>(qApp)->getMovieProviderSource();
}

void addMovieRows(SignalTriggers &rows)
{
    rows.push_back(row<OxaGifLabel>(
            "finishedPlaying()", "startPlaying()", [](OxaGifLabel &label) { label.startPlaying(); },
            &setGif<1>));
    rows.push_back(row<OxaGifLabel>(
            "finishedPlaying()", "the last frame's time",
            [](OxaGifLabel &label) {
                label.startPlaying();
                waitForDeletion(label);
            },
            &setGif<2>));
    for (const char *signal : { "movieChanged()", "stackIndexChanged()" }) {
        rows.push_back(row<OxaMovieProvider>(signal, "a movie", [](OxaMovieProvider &provider) {
            Q_EMIT source()->movieFetched(new OxaMovie(&provider), QString());
        }));
    }
    for (const char *signal : { "fallbackSourceChanged()", "stackIndexChanged()" }) {
        rows.push_back(row<OxaMovieProvider>(signal, "a failure", [](OxaMovieProvider &) {
            Q_EMIT source()->movieFetchFailed(QStringLiteral("picture"), QString());
        }));
    }
}

/// Gives the widget the focus, which its window does not have.
void focusIn(OxaQuickWidget &widget)
{
    widget.setCustomAccessibilityEnabled(true);
    widget.window()->winId(); // Makes the window.
    send(widget, QFocusEvent(QEvent::FocusIn));
}

void addQuickWidgetRows(SignalTriggers &rows)
{
    rows.push_back(row<OxaQuickWidget>(
            "focusAboutToChange()", "a change of the focus",
            [](OxaQuickWidget &widget) { send(widget, QEvent(QEvent::FocusAboutToChange)); },
            &focusIn));
}

} // namespace

void addNoticeTriggers(SignalTriggers &rows)
{
    addBannerRows(rows);
    addNotificationRows(rows);
    addPopupRows(rows);
    addMovieRows(rows);
    addQuickWidgetRows(rows);
}
