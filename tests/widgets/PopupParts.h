// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Guards.h"
#include "support/SignalLog.h"

#include <UiElements/widgets/PopupWidget.h>

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

/// What tests of popups share.
namespace PopupParts {

constexpr QRgb bodyColor = 0xffff0000;
constexpr QRgb borderColor = 0xff0000ff;
constexpr QRgb shadowColor = 0xff00ff00;

/// The sets that a popup asks for.
inline OxaColorSetMap store()
{
    OxaColorSetMap sets;
    const std::pair<const char *, QRgb> colors[] = {
        { "background-primary", bodyColor },     { "oxa-default-border", borderColor },
        { "oxa-popupDropShadow", shadowColor },  { "text-primary", 0xff00ffff },
        { "button-hyperlink-text", 0xff808000 }, { "legacy-separator-primary", 0xffff00ff }
    };
    for (const auto &[name, color] : colors)
        sets.emplace(name, OxaColorSet(QString::fromLatin1(name), QColor(color)));
    return sets;
}

/// Returns a record in the application's theme.
inline WidgetData data() { return WidgetData(OxaThemeUtils::AppThemeType::Global); }

/// Returns a content of a fixed size that takes the focus.
inline QWidget *makeContent(const QSize &size = QSize(100, 60))
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("content"));
    content->setFixedSize(size);
    content->setFocusPolicy(Qt::StrongFocus);
    return content;
}

/// A popup with a content, whose window the window manager does not touch.
struct FilledPopup : PopupWidget
{
    QWidget *content = makeContent();

    explicit FilledPopup(const WidgetData &widgetData = PopupParts::data(),
                         QWidget *parent = nullptr)
        : PopupWidget(parent, widgetData)
    {
        setWindowFlag(Qt::X11BypassWindowManagerHint);
        registerWidget(content);
        content->show();
    }
};

const QRect nearMiddle(300, 300, 60, 20); // Of the screen, which is 1280 by 1024.
const QRect nearBottom(300, 990, 60, 20);

/// Returns the room for arrow and corners.
inline QMargins bodyMargins(const PopupWidget &popup)
{
    return popup.getMainWidget()->layout()->contentsMargins();
}

/// Records all signals of \a popup.
inline void record(SignalLog &log, const PopupWidget *popup)
{
    log.record(popup, &PopupWidget::popupDismissed, QStringLiteral("popupDismissed"));
    log.record(popup, &PopupWidget::widgetHidden, QStringLiteral("widgetHidden"));
    log.record(popup, &PopupWidget::widgetShown, QStringLiteral("widgetShown"));
    log.record(popup, &PopupWidget::widgetHoverEntered, QStringLiteral("widgetHoverEntered"));
    log.record(popup, &PopupWidget::widgetHoverLeaved, QStringLiteral("widgetHoverLeaved"));
}

/// A window with a button in its middle.
class SourceWindow : public QWidget
{
public:
    QPushButton button { this };

    explicit SourceWindow(const QRect &place = QRect(200, 200, 300, 200))
    {
        setGeometry(place);
        button.setCheckable(true);
        button.setGeometry(120, 90, 60, 20);
    }

    /// Shows the window and waits until it is active.
    bool activate()
    {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }
};

} // namespace PopupParts
