// SPDX-License-Identifier: Apache-2.0
#include "FocusScenes.h"
#include "support/FocusLog.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"

#include <QAccessible>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>

namespace {

/// The names of what a screen reader is told to have the focus.
QStringList accessibleFocus;

void recordFocus(QAccessibleEvent *event)
{
    const QAccessibleInterface *accessible = event->accessibleInterface();
    if (event->type() == QAccessible::Focus && accessible)
        accessibleFocus += accessible->text(QAccessible::Name);
}

/// Records what a screen reader hears, until it is destroyed.
class AccessibleFocusGuard
{
    Q_DISABLE_COPY_MOVE(AccessibleFocusGuard)

public:
    AccessibleFocusGuard() : m_handler(QAccessible::installUpdateHandler(&recordFocus))
    {
        setActive(true);
        accessibleFocus.clear();
    }
    ~AccessibleFocusGuard()
    {
        QAccessible::installUpdateHandler(m_handler);
        setActive(false);
    }

private:
    /// As a screen reader that starts.
    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }

    const QAccessible::UpdateHandler m_handler;
};

} // namespace

/// The way of the keyboard focus through a window with QML in it, by real keys.
class tst_OxaQuickWidget_interaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<OxaQmlEngine>(nullptr); }

    void tabGoesThroughTheWholeWindow();
    void shiftTabGoesThroughTheWholeWindow();
    void turnsRoundAnywhere();
    void passesTwoQmlWidgets();
    void tellsWidgetsOfTheFocusInOrder();
    void tellsAScreenReaderOfTheFocusInOrder();
    void findsItsFocusAgainWhenTheWindowComesBack();
    void keepsTabWithoutCustomAccessibility();

private:
    void press(FocusScene &scene, const char *key, const char *expected);

    std::unique_ptr<OxaQmlEngine> m_engine;
};

/// Presses \a key and waits for the focus.
void tst_OxaQuickWidget_interaction::press(FocusScene &scene, const char *key, const char *expected)
{
    QVERIFY(RealInput::typeKeys({ QString::fromLatin1(key) }));
    QTRY_COMPARE(scene.focus(), QString::fromLatin1(expected));
}

void tst_OxaQuickWidget_interaction::tabGoesThroughTheWholeWindow()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    for (int round = 0; round < 2; ++round) {
        press(scene, "Tab", "first");
        press(scene, "Tab", "second");
        press(scene, "Tab", "after");
        press(scene, "Tab", "before");
    }
}

void tst_OxaQuickWidget_interaction::shiftTabGoesThroughTheWholeWindow()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    for (int round = 0; round < 2; ++round) {
        press(scene, "shift+Tab", "after");
        press(scene, "shift+Tab", "first");
        press(scene, "shift+Tab", "before");
    }
}

void tst_OxaQuickWidget_interaction::turnsRoundAnywhere()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    press(scene, "Tab", "first");
    press(scene, "shift+Tab", "before");
    press(scene, "Tab", "first");
    press(scene, "Tab", "second");
    press(scene, "shift+Tab", "first");
    press(scene, "Tab", "second");
    press(scene, "Tab", "after");
    press(scene, "shift+Tab", "first");
}

void tst_OxaQuickWidget_interaction::passesTwoQmlWidgets()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    auto *other = new OxaQuickWidget(m_engine.get(), nullptr);
    other->setObjectName(QStringLiteral("other"));
    other->setCustomAccessibilityEnabled(true);
    QuickViews::load(*other, FocusScene::twoItems);
    static_cast<QBoxLayout *>(scene.window.layout())->insertWidget(2, other);
    QWidget::setTabOrder(scene.quick, other);
    QWidget::setTabOrder(other, scene.after);
    QVERIFY(scene.show());
    press(scene, "Tab", "first");
    press(scene, "Tab", "second");
    press(scene, "Tab", "other");
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab"), QStringLiteral("Tab") }));
    QTRY_COMPARE(scene.focus(), QStringLiteral("after"));
    press(scene, "shift+Tab", "other");
    press(scene, "shift+Tab", "first");
}

void tst_OxaQuickWidget_interaction::tellsWidgetsOfTheFocusInOrder()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    FocusLog log;
    for (const char *expected : { "first", "second", "after" })
        press(scene, "Tab", expected);
    press(scene, "shift+Tab", "first");
    press(scene, "shift+Tab", "before");
    QCOMPARE(log.names(), QStringLiteral("quick after quick before"));
}

void tst_OxaQuickWidget_interaction::tellsAScreenReaderOfTheFocusInOrder()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    const AccessibleFocusGuard guard;
    for (const char *expected : { "first", "second", "after" })
        press(scene, "Tab", expected);
    press(scene, "shift+Tab", "first");
    press(scene, "shift+Tab", "before");
    // The widget around the QML has no name, and Qt tells of an item more than once.
    accessibleFocus.removeAll(QString());
    accessibleFocus.erase(std::unique(accessibleFocus.begin(), accessibleFocus.end()),
                          accessibleFocus.end());
    // Qt Quick gives the focus back to the item that had it, before it goes to the first.
    QCOMPARE(accessibleFocus.join(QLatin1Char(' ')),
             QStringLiteral("first second after second first before"));
}

void tst_OxaQuickWidget_interaction::findsItsFocusAgainWhenTheWindowComesBack()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    press(scene, "Tab", "first");
    press(scene, "Tab", "second");
    {
        QWindow other;
        other.setGeometry(600, 600, 50, 50);
        QVERIFY(QuickViews::showActive(other));
        QTRY_COMPARE(scene.focus(), QStringLiteral("nowhere"));
    }
    QVERIFY(QuickViews::showActive(scene.window));
    QTRY_COMPARE(scene.focus(), QStringLiteral("second"));
    press(scene, "Tab", "after");
}

void tst_OxaQuickWidget_interaction::keepsTabWithoutCustomAccessibility()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    scene.quick->setCustomAccessibilityEnabled(false);
    QVERIFY(scene.show());
    press(scene, "Tab", "quick");
    for (const char *expected : { "first", "second", "breakQmlFocus", "first" })
        press(scene, "Tab", expected);
    press(scene, "shift+Tab", "breakQmlFocus");
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickWidget_interaction)
#include "tst_oxaquickwidget_interaction.moc"
