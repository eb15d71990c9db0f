// SPDX-License-Identifier: Apache-2.0
#include "BannerCard.h"
#include "looks/Metrics.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"
#include "specimens/EmissionLog.h"
#include "specimens/WidgetCard.h"
#include "widgets/Buttons.h"
#include "widgets/Labels.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaNotification.h>

#include <QVBoxLayout>

namespace {

constexpr int showTimeoutMs = 2000;
constexpr int fadeOutDurationMs = 1000;
constexpr int longestTimeMs = 5000;
constexpr int stackHeight = 48;

QString tr(const char *text) { return Page::tr(text); }

OxaNotification *makeNotification(const QString &text, QWidget *parent)
{
    auto *notification = new OxaNotification(parent);
    notification->setCSS(QStringLiteral("$backgroundColors: gallery-tooltip-background;"
                                        "$borderColors: gallery-tooltip-border;"
                                        "$borderRadius: 6;"));
    notification->setShowTimeout(showTimeoutMs);
    notification->setFadeOutDuration(fadeOutDurationMs);
    OxaLabel *label = Labels::line(text);
    label->setCSS(QStringLiteral("$textColors: gallery-tooltip-text;"));
    auto *row = new QHBoxLayout(notification);
    row->setContentsMargins(Metrics::spacing, Metrics::small, Metrics::spacing, Metrics::small);
    row->addWidget(label);
    return notification;
}

void addBannerTypes(Page &page)
{
    auto *card = new Card(tr("Types of banners"));
    using Type = AlertBanner::AlertType;
    const auto add = [card](Type type, const QString &text, bool showIcon = true) {
        AlertBanner *banner = BannerCard::make();
        AlertBanner::AlertBannerInfo info;
        info.alertType = type;
        info.alertText = text;
        info.showIcon = showIcon;
        banner->setAlert(info);
        banner->setMinimumHeight(info.bannerSize.height());
        card->body()->addWidget(banner);
    };
    add(Type::Error, tr("Your microphone does not work. <a href=\"audio\">Audio settings</a>"));
    add(Type::Warning, QStringLiteral("اتصالك بطيء. <a href=\"camera\">إيقاف الكاميرا</a>"));
    add(Type::Info,
        tr("This meeting is recorded, and so are its captions. Those who were invited can see both "
           "for thirty days, unless the host deletes them earlier. <a href=\"notice\">Read the "
           "notice</a>"));
    add(Type(3), tr("Another type, without an icon. <a href=\"more\">Learn more</a>"), false);
    page.body()->addWidget(card);
}

/// Adds buttons that start, hide and show \a notification to \a row.
void addButtons(QLayout *row, OxaNotification *notification)
{
    const auto add = [row, notification](const QString &text, auto operation) {
        auto *button = Buttons::make(text);
        QObject::connect(button, &OxaPushButton::clicked, notification, operation);
        row->addWidget(button);
    };
    add(tr("Start"), &OxaNotification::start);
    add(tr("Hide"), &QWidget::hide);
    add(tr("Show"), &QWidget::show);
}

void addNotification(Page &page)
{
    auto *stage = new OxaWidget;
    auto *row = new WrapLayout(Metrics::spacing, stage);
    OxaNotification *notification = makeNotification(tr("The recording was saved."), stage);
    QSizePolicy policy = notification->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    notification->setSizePolicy(policy);
    row->addWidget(notification);
    addButtons(row, notification);
    auto *controls = WidgetCard::addOne(
            page, tr("OxaNotification"),
            tr("It waits and then fades, also while it is hidden, and is opaque again after that. "
               "Start it again while it waits, or while it fades."),
            notification, stage);
    controls->setRange("showTimeout", 0, longestTimeMs);
    controls->setRange("fadeOutDuration", 0, longestTimeMs);
    controls->addProperty("showTimeout");
    controls->addProperty("fadeOutDuration");
    controls->addChoice(tr("fadeOutCompleted()"), { { tr("Stays"), false }, { tr("Hides"), true } },
                        [notification](QWidget *, const QVariant &hides) {
                            QObject::disconnect(notification, &OxaNotification::fadeOutCompleted,
                                                notification, &QWidget::hide);
                            if (hides.toBool())
                                QObject::connect(notification, &OxaNotification::fadeOutCompleted,
                                                 notification, &QWidget::hide);
                        });
}

void addNotifications(Page &page)
{
    auto *card = new Card(tr("Deleted when faded"),
                          tr("Each notification is made when it is needed, and deleted by what "
                             "fadeOutCompleted() calls."));
    auto *notify = Buttons::make(tr("Notify"));
    auto *stack = new OxaWidget;
    stack->setAccessibleName(tr("Notifications"));
    stack->setMinimumHeight(stackHeight);
    auto *row = new WrapLayout(Metrics::small, stack);
    auto *log = new EmissionLog;
    QObject::connect(notify, &OxaPushButton::clicked, stack, [stack, row, log] {
        OxaNotification *notification = makeNotification(tr("A message was sent."), stack);
        log->follow(notification);
        QObject::connect(notification, &OxaNotification::fadeOutCompleted, notification,
                         &QObject::deleteLater);
        row->addWidget(notification);
        notification->start();
    });
    card->addToHeading(notify);
    card->body()->addWidget(stack);
    card->body()->addWidget(log);
    page.body()->addWidget(card);
}

} // namespace

Page *Pages::makeNotices(QWidget *parent)
{
    auto *page = new Page(tr("Notices"),
                          tr("Banners that stay until they are closed, and notifications that fade "
                             "by themselves."),
                          parent);
    page->body()->addWidget(new BannerCard);
    addBannerTypes(*page);
    addNotification(*page);
    addNotifications(*page);
    page->body()->addStretch(1);
    return page;
}
