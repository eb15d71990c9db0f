// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/widgets/PopupWidget.h>

#include <QApplication>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr int rowCount = 12;
constexpr int radius = 8;
constexpr int arrowHalf = 10;
const QRect source(300, 100, 60, 20);
const QRect otherSource(500, 200, 60, 20);
const QColor bodyColor(Qt::white);
const QColor lineColor(Qt::gray);
const QColor shadowColor(Qt::darkGray);

/// What both windows show, and how often it was painted.
class Content : public QWidget
{
public:
    int paints = 0;

    Content()
    {
        auto *column = new QVBoxLayout(this);
        for (int row = 0; row < rowCount; ++row)
            column->addWidget(new QLabel(QStringLiteral("row %1 of the content").arg(row)));
    }

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

/// A body with an arrow at its top, drawn by a path.
class Body : public QWidget
{
public:
    explicit Body(QWidget *parent) : QWidget(parent)
    {
        auto *shadow = new QGraphicsDropShadowEffect(this);
        shadow->setColor(shadowColor);
        shadow->setOffset(0, 0);
        shadow->setBlurRadius(4);
        setGraphicsEffect(shadow);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainterPath path;
        path.addRoundedRect(rect().adjusted(0, arrowHalf, 0, 0), radius, radius);
        const int tip = width() / 2;
        path.moveTo(tip + arrowHalf, arrowHalf);
        path.lineTo(tip, 0);
        path.lineTo(tip - arrowHalf, arrowHalf);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(lineColor);
        painter.setBrush(bodyColor);
        painter.drawPath(path.simplified());
    }
};

/// A translucent tool window that looks like a popup.
class PlainPopup : public QWidget
{
public:
    explicit PlainPopup(QWidget *content) : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(4, 4, 4, 4);
        auto *body = new Body(this);
        row->addWidget(body);
        auto *column = new QVBoxLayout(body);
        column->setContentsMargins(6, 16, 6, 6);
        column->addWidget(content);
    }

    void showBelow(const QRect &rect)
    {
        const QSize size = sizeHint();
        setGeometry(QRect(QPoint(rect.center().x() - size.width() / 2, rect.bottom()), size));
        show();
    }
};

WidgetData popupData()
{
    return WidgetData(OxaThemeUtils::AppThemeType::Global)
            .cornerRadius(radius)
            .widgetColour(bodyColor)
            .widgetBorderColour(lineColor)
            .widgetBorderBlurColour(shadowColor);
}

/// Waits until \a window is on the screen and \a content is painted.
void settle(const QWidget &window, const Content &content)
{
    while (!window.windowHandle()->isExposed() || content.paints == 0)
        QCoreApplication::processEvents();
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

/// Returns how often the content is painted.
template <typename Window, typename Show>
int makeAndShow(const Show &show)
{
    auto *content = new Content;
    const std::unique_ptr<Window> window(show(content));
    settle(*window, *content);
    return content->paints;
}

PopupWidget *showOurs(Content *content)
{
    auto *popup = PopupWidget::create(nullptr, source, QPoint(), content, popupData());
    popup->setWindowFlag(Qt::X11BypassWindowManagerHint);
    popup->showSmooth(source);
    return popup;
}

PlainPopup *showPeer(Content *content)
{
    auto *popup = new PlainPopup(content);
    popup->setWindowFlag(Qt::X11BypassWindowManagerHint);
    popup->showBelow(source);
    return popup;
}

void making(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    int most = 0;
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&most] { most = qMax(most, makeAndShow<PopupWidget>(showOurs)); },
                         [] { makeAndShow<PlainPopup>(showPeer); });
    if (most != 1)
        state.SkipWithError("the content is not painted once");
    comparison.ratioAtMost(1.15);
}
BENCHMARK(making)
        ->Name("a popup of 12 rows, made, shown and painted/a tool window that paints the same")
        ->Iterations(200)
        ->UseManualTime();

/// Hides \a window and shows it again with \a show; returns how often \a content is painted.
template <typename Show>
int showAgain(QWidget &window, Content &content, const Show &show)
{
    window.hide();
    content.paints = 0;
    show();
    settle(window, content);
    return content.paints;
}

void showing(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    auto *ourContent = new Content;
    const std::unique_ptr<PopupWidget> ours(showOurs(ourContent));
    settle(*ours, *ourContent);
    auto *peerContent = new Content;
    const std::unique_ptr<PlainPopup> peer(showPeer(peerContent));
    settle(*peer, *peerContent);

    int most = 0;
    bool isOther = false;
    Comparison comparison(state);
    for (auto _ : state) {
        isOther = !isOther;
        const QRect &rect = isOther ? otherSource : source;
        comparison.round(
                [&] {
                    most = qMax(most,
                                showAgain(*ours, *ourContent, [&] { ours->showSmooth(rect); }));
                },
                [&] { showAgain(*peer, *peerContent, [&] { peer->showBelow(rect); }); });
    }
    if (most != 1)
        state.SkipWithError("the content is not painted once");
    comparison.ratioAtMost(1.08);
}
BENCHMARK(showing)
        ->Name("a popup of 12 rows, shown again/a tool window that paints the same")
        ->Iterations(200)
        ->UseManualTime();

} // namespace
