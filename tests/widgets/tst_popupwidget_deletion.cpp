// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "support/TestApplication.h"

#include <UiElements/svg/VisualUtils.h>

#include <QResizeEvent>

#include <functional>

using PopupParts::data;
using PopupParts::makeContent;

namespace {

const QRect source(300, 300, 60, 20);

/// A content that does something as soon as its size changes.
struct ResizedContent : QWidget
{
    std::function<void()> onResize;

    void resizeEvent(QResizeEvent *) override
    {
        if (onResize)
            std::exchange(onResize, {})();
    }
};

/// A popup for a button of a window, and all that may die.
struct Parts
{
    QPointer<QWidget> window = new QWidget;
    QPointer<QPushButton> button = new QPushButton(window);
    QPointer<QWidget> content = makeContent();
    QPointer<PopupWidget> popup;

    explicit Parts(const WidgetData &widgetData = data())
        : popup(PopupWidget::create(button, content, widgetData))
    {
        popup->setWindowFlag(Qt::X11BypassWindowManagerHint);
        window->setGeometry(200, 200, 300, 200);
        button->setCheckable(true);
        window->show();
    }
    ~Parts() { delete window; }

    Q_DISABLE_COPY_MOVE(Parts)
};

void sendEscape(QWidget &widget)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &escape);
}

} // namespace

using Killer = std::function<void(Parts &)>;
Q_DECLARE_METATYPE(Killer)

/// A popup and what belongs to it may die at any time.
class tst_PopupWidgetDeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void diesWithItsContent_data();
    void diesWithItsContent();
    void diesWithItsParentsWindow_data();
    void diesWithItsParentsWindow();
    void leavesNoFilterBehind();
    void survivesTheDeathOfItsButton();
    void survivesDeletionsInSlots_data();
    void survivesDeletionsInSlots();
    void survivesDeletionsInItsButtonsSlots_data();
    void survivesDeletionsInItsButtonsSlots();
    void mayBeDeletedLaterWhenItIsShownOrHidden_data();
    void mayBeDeletedLaterWhenItIsShownOrHidden();
    void survivesWhatItsContentDeletes_data();
    void survivesWhatItsContentDeletes();
    void hidesByTimeWithoutItsContent();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_PopupWidgetDeletion::diesWithItsContent_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("hidden") << false;
    QTest::newRow("shown") << true;
}

void tst_PopupWidgetDeletion::diesWithItsContent()
{
    QFETCH(const bool, isShown);
    Parts parts(data().dismissTimerTicks(1000).dismissPopupOnSourceMove(true));
    if (isShown)
        parts.popup->showSmooth(parts.button);
    delete parts.content;
    QVERIFY(parts.popup);
    QTRY_VERIFY(!parts.popup);
}

void tst_PopupWidgetDeletion::diesWithItsParentsWindow_data() { diesWithItsContent_data(); }

void tst_PopupWidgetDeletion::diesWithItsParentsWindow()
{
    QFETCH(const bool, isShown);
    Parts parts(data().dismissTimerTicks(1000).dismissPopupOnSourceMove(true));
    if (isShown)
        parts.popup->showSmooth(parts.button);
    delete parts.window;
    QVERIFY(!parts.popup);
    QVERIFY(!parts.content);
}

void tst_PopupWidgetDeletion::leavesNoFilterBehind()
{
    const Parts parts(data().dismissPopupOnSourceMove(true));
    const int before = parts.window->findChildren<QObject *>().size();
    delete parts.popup;
    parts.window->move(parts.window->pos() + QPoint(10, 0));
    QCoreApplication::processEvents();
    QVERIFY(parts.window->findChildren<QObject *>().size() < before);
    QVERIFY(!parts.window->findChild<VisualUtils::EventFilter *>());
}

void tst_PopupWidgetDeletion::survivesTheDeathOfItsButton()
{
    const Parts parts;
    parts.popup->showSmooth(parts.button);
    delete parts.button;
    QVERIFY(parts.popup->isVisible());
    parts.popup->hide();
    parts.popup->showSmooth();
    QVERIFY(parts.popup->isVisible());
}

void tst_PopupWidgetDeletion::survivesDeletionsInSlots_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<Killer>("kill");
    const std::pair<const char *, Killer> victims[] = {
        { "the popup", [](Parts &parts) { delete parts.popup; } },
        { "the content", [](Parts &parts) { delete parts.content; } },
        { "the button", [](Parts &parts) { delete parts.button; } },
        { "the window", [](Parts &parts) { delete parts.window; } },
    };
    for (const char *signal : { "popupDismissed", "widgetHoverEntered", "widgetHoverLeaved" }) {
        for (const auto &[victim, kill] : victims)
            QTest::addRow("%s deletes %s", signal, victim) << QByteArray(signal) << kill;
    }
    for (const char *signal : { "widgetShown", "widgetHidden" }) {
        QTest::addRow("%s deletes the content", signal) << QByteArray(signal) << victims[1].second;
        QTest::addRow("%s deletes the button", signal) << QByteArray(signal) << victims[2].second;
    }
}

void tst_PopupWidgetDeletion::survivesDeletionsInSlots()
{
    QFETCH(const QByteArray, signal);
    QFETCH(const Killer, kill);
    Parts parts;
    if (signal != "widgetShown")
        parts.popup->showSmooth(parts.button);
    bool isCalled = false;
    const std::pair<QByteArray, void (PopupWidget::*)()> all[] = {
        { "popupDismissed", &PopupWidget::popupDismissed },
        { "widgetHoverEntered", &PopupWidget::widgetHoverEntered },
        { "widgetHoverLeaved", &PopupWidget::widgetHoverLeaved },
        { "widgetShown", &PopupWidget::widgetShown },
        { "widgetHidden", &PopupWidget::widgetHidden },
    };
    for (const auto &[name, function] : all) {
        if (name == signal)
            connect(parts.popup, function, qApp, [&] {
                isCalled = true;
                kill(parts);
            });
    }
    const QPointF place;
    QEnterEvent enter(place, place, place);
    QEvent leave(QEvent::Leave);
    if (signal == "popupDismissed")
        sendEscape(*parts.popup);
    else if (signal == "widgetHoverEntered")
        QCoreApplication::sendEvent(parts.popup, &enter);
    else if (signal == "widgetHoverLeaved")
        QCoreApplication::sendEvent(parts.popup, &leave);
    else if (signal == "widgetShown")
        parts.popup->showSmooth(parts.button);
    else
        parts.popup->hide();
    QVERIFY(isCalled);
    QCoreApplication::processEvents();
}

void tst_PopupWidgetDeletion::survivesDeletionsInItsButtonsSlots_data()
{
    QTest::addColumn<Killer>("kill");
    const std::pair<const char *, Killer> victims[] = {
        { "the content", [](Parts &parts) { delete parts.content; } },
        { "the button, later", [](Parts &parts) { parts.button->deleteLater(); } },
        { "the popup, later", [](Parts &parts) { parts.popup->deleteLater(); } },
    };
    for (const auto &[victim, kill] : victims)
        QTest::newRow(victim) << kill;
}

void tst_PopupWidgetDeletion::survivesDeletionsInItsButtonsSlots()
{
    QFETCH(const Killer, kill);
    Parts parts;
    parts.button->setChecked(true);
    parts.popup->showSmooth(parts.button);
    connect(parts.button, &QPushButton::toggled, qApp, [&] { kill(parts); });
    parts.popup->hide(); // The button is no longer checked.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!parts.popup || !parts.button || !parts.content);
    QCoreApplication::processEvents();
}

void tst_PopupWidgetDeletion::mayBeDeletedLaterWhenItIsShownOrHidden_data()
{
    QTest::addColumn<bool>("isWhenShown");
    QTest::newRow("shown") << true;
    QTest::newRow("hidden") << false;
}

void tst_PopupWidgetDeletion::mayBeDeletedLaterWhenItIsShownOrHidden()
{
    QFETCH(const bool, isWhenShown);
    const Parts parts(data().dismissTimerTicks(1000).activateOnShow(true));
    connect(parts.popup, isWhenShown ? &PopupWidget::widgetShown : &PopupWidget::widgetHidden,
            parts.popup, &QObject::deleteLater);
    parts.popup->showSmooth(parts.button);
    parts.popup->hide();
    QTRY_VERIFY(!parts.popup);
}

void tst_PopupWidgetDeletion::survivesWhatItsContentDeletes_data()
{
    QTest::addColumn<Killer>("act");
    QTest::newRow("resizeToContent()") << Killer([](Parts &parts) {
        parts.content->setFixedSize(150, 70);
        parts.popup->resizeToContent();
    });
    QTest::newRow("updateFixedHeight()")
            << Killer([](Parts &parts) { parts.popup->updateFixedHeight(150); });
    QTest::newRow("showSmooth()") << Killer([](Parts &parts) {
        parts.content->setFixedSize(150, 70);
        parts.popup->showSmooth();
    });
}

/// A widget of the content deletes the popup as soon as it gets another size.
void tst_PopupWidgetDeletion::survivesWhatItsContentDeletes()
{
    QFETCH(const Killer, act);
    Parts parts;
    auto *inner = new ResizedContent;
    auto *layout = new QVBoxLayout(parts.content);
    layout->addWidget(inner);
    parts.popup->showSmooth(parts.button);
    inner->onResize = [&parts] { parts.popup->deleteLater(); };
    act(parts);
    QTRY_VERIFY(!parts.popup);
}

void tst_PopupWidgetDeletion::hidesByTimeWithoutItsContent()
{
    const Parts parts(data().dismissTimerTicks(1));
    QWidget *content = parts.content;
    parts.popup->removeWidget(content);
    content->setParent(nullptr);
    parts.popup->showSmooth(source);
    QTRY_VERIFY(parts.popup->isHidden());
    delete content;
    QTRY_VERIFY(!parts.popup);
}

UIELEMENTS_TEST_MAIN(tst_PopupWidgetDeletion)
#include "tst_popupwidget_deletion.moc"
