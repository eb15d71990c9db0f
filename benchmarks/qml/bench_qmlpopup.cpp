// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <UiElements/app/OxaApplication.h>
#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlTypes.h>
#include <UiElements/qml/PopupContext.h>

#include <QDeadlineTimer>
#include <QImage>
#include <QQuickItem>
#include <QQuickView>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace {

const QString source = QStringLiteral("Popup.qml");
const QRect place(300, 100, 60, 20);
const QRect otherPlace(500, 200, 60, 20);

/// Without a window manager a window is active when the X server says so. Qt believes a window
/// manager earlier, and what closes a popup in between leaves the application inactive.
constexpr Qt::WindowType unmanaged = Qt::X11BypassWindowManagerHint;

/// The window that popups belong to. While it is active, a popup may open.
class Parent : public QWidget
{
public:
    Parent()
    {
        OxaQmlTypes::registerQmlTypes();
        m_heartbeat.start(heartbeatMs);
        setWindowFlag(unmanaged);
        resize(200, 80);
        show();
        waitUntilActive();
    }

    /// Waits without using the processor, for \a condition.
    template <typename Condition>
    void waitUntil(const Condition &condition) const
    {
        const QDeadlineTimer deadline(longestWaitMs);
        while (!condition()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            if (deadline.hasExpired())
                qFatal("A window is not shown or not activated.");
        }
    }

    /// Takes the focus from a popup, which hides or closes.
    void waitUntilActive()
    {
        activateWindow();
        waitUntil([this] { return isActiveWindow(); });
        QGuiApplication::sync();
    }

private:
    static constexpr int heartbeatMs = 100;
    static constexpr int longestWaitMs = 10000;

    QTimer m_heartbeat; ///< Wakes who waits.
};

/// Calls \a show, and waits until \a view is painted and active.
template <typename Show>
void showAndSettle(const Parent &parent, QQuickView &view, const Show &show)
{
    bool isPainted = false;
    const auto swapped = QObject::connect(&view, &QQuickWindow::frameSwapped, &view,
                                          [&isPainted] { isPainted = true; });
    show();
    parent.waitUntil([&] { return isPainted && view.isActive(); });
    QObject::disconnect(swapped);
}

/// The popup of a context.
class Ours
{
public:
    explicit Ours(const Parent &parent)
        : m_view(
                m_context.createQmlPopup(source, parent.windowHandle(), OxaQmlBalloon::Top, {}, {}))
    {
        ViewOptions options = m_view->getViewOptions();
        options.deleteOnClose = false; // What only hides can be shown again.
        m_view->setViewOptions(options);
        m_view->setFlag(unmanaged);
    }
    ~Ours() { delete m_view; }

    QQuickView &view() const { return *m_view; }
    void showAt(const QRect &rect)
    {
        m_context.showQmlPopup(source, QRectF(rect), false, OxaQmlBalloon::Top, {});
    }

private:
    PopupContext m_context;
    const QPointer<OxaPopupQuickView> m_view;
};

/// A view of the same file with the same engine, flags, size and place.
class Peer
{
public:
    explicit Peer(const Parent &)
        : m_view(static_cast<OxaApplication *>(qApp)->getQmlEngine(), nullptr)
    {
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.setColor(Qt::transparent);
        m_view.setFlags(Qt::Tool | Qt::FramelessWindowHint | unmanaged);
        m_view.setSource(QUrl(QStringLiteral("qrc:/Qml/") + source));
        const QSize size = m_view.rootObject()->size().toSize();
        m_view.setMinimumSize(size);
        m_view.setMaximumSize(size);
        m_view.resize(size);
    }

    QQuickView &view() { return m_view; }
    void showAt(const QRect &rect)
    {
        m_view.setPosition(QRectF(rect).center().toPoint().x() - m_view.width() / 2,
                           rect.bottom() + 1);
        m_view.show();
        m_view.requestActivate();
    }

private:
    QQuickView m_view;
};

template <typename Popup>
void showAndSettle(const Parent &parent, Popup &popup, const QRect &rect)
{
    showAndSettle(parent, popup.view(), [&] { popup.showAt(rect); });
}

/// What a popup of the class looks like, and where it is.
template <typename Popup>
std::pair<QImage, QRect> look(Parent &parent)
{
    Popup popup(parent);
    showAndSettle(parent, popup, place);
    const QImage picture = popup.view().grabWindow();
    parent.waitUntilActive();
    return { picture, popup.view().geometry() };
}

bool lookAlike(benchmark::State &state, Parent &parent)
{
    if (look<Ours>(parent) == look<Peer>(parent))
        return true;
    state.SkipWithError("The popups differ.");
    return false;
}

template <typename Popup>
std::unique_ptr<Popup> makeAndShow(const Parent &parent)
{
    auto popup = std::make_unique<Popup>(parent);
    showAndSettle(parent, *popup, place);
    return popup;
}

void making(benchmark::State &state)
{
    Parent parent;
    if (!lookAlike(state, parent))
        return;
    std::unique_ptr<Ours> ours;
    std::unique_ptr<Peer> peer;
    const auto close = [&] {
        parent.waitUntilActive();
        ours.reset();
        peer.reset();
    };
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { ours = makeAndShow<Ours>(parent); },
                         [&] { peer = makeAndShow<Peer>(parent); }, close);
    comparison.ratioAtMost(1.10);
}
BENCHMARK(making)
        ->Name("a popup with QML, made, shown and painted/a QQuickView by hand")
        ->Iterations(200)
        ->UseManualTime();

void showing(benchmark::State &state)
{
    Parent parent;
    if (!lookAlike(state, parent))
        return;
    Ours ours(parent);
    Peer peer(parent);
    const auto hide = [&] {
        parent.waitUntilActive();
        ours.view().hide();
        peer.view().hide();
    };
    bool isOther = false;
    Comparison comparison(state);
    for (auto _ : state) {
        isOther = !isOther;
        const QRect &rect = isOther ? otherPlace : place;
        comparison.round([&] { showAndSettle(parent, ours, rect); },
                         [&] { showAndSettle(parent, peer, rect); }, hide);
    }
    comparison.ratioAtMost(1.10);
}
BENCHMARK(showing)
        ->Name("a popup with QML, shown elsewhere and painted/a QQuickView by hand")
        ->Iterations(200)
        ->UseManualTime();

} // namespace
