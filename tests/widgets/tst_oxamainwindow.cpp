// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaMainWindow.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QSignalSpy>

namespace {

/// A main window that counts how often it is to look its colours up.
class Window : public OxaMainWindow
{
public:
    using OxaMainWindow::OxaMainWindow;
    int fetches = 0;

protected:
    void onThemeChanged() override { ++fetches; }
};

QString storedType(const QObject &object) { return object.property("themeType").toString(); }

/// Gives new main windows to a test's function while it lives.
class HookGuard
{
    Q_DISABLE_COPY_MOVE(HookGuard)

public:
    explicit HookGuard(const std::function<void(OxaMainWindow *)> &hook)
    {
        application()->mainWindowHook = hook;
    }
    ~HookGuard() { application()->mainWindowHook = nullptr; }

private:
    static TestApplication *application() { return qobject_cast<TestApplication *>(qApp); }
};

} // namespace

/// OxaMainWindow, without the block that it shares with other classes.
class tst_OxaMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesParentAndWindowFlags();
    void neverAnimatesDockWidgetsAndToolBars();
    void isHandedToTheApplicationOnce();
    void isHandedToTheApplicationBeforeItIsSetUpFurther();
    void firesTheShortcutsThatTheApplicationRegisters();
    void takesItsShortcutsWithIt();
    void followsNeitherItsParentNorItsName();
    void looksNoColorsUpByItself();
    void handsItsThemeTypeDown();
    void paintsTheBackgroundOfItsStyleText();
};

void tst_OxaMainWindow::takesParentAndWindowFlags()
{
    const OxaMainWindow window;
    QCOMPARE(window.parent(), nullptr);
    QCOMPARE(window.windowType(), Qt::Window);
    QWidget parent;
    const OxaMainWindow tool(&parent, Qt::Tool);
    QCOMPARE(tool.parentWidget(), &parent);
    QCOMPARE(tool.windowType(), Qt::Tool);
    QVERIFY(tool.isWindow());
}

void tst_OxaMainWindow::neverAnimatesDockWidgetsAndToolBars()
{
    const OxaMainWindow window;
    QVERIFY(!window.isAnimated());
    QVERIFY(QMainWindow().isAnimated());
}

void tst_OxaMainWindow::isHandedToTheApplicationOnce()
{
    QVector<OxaMainWindow *> windows;
    const HookGuard hook([&windows](OxaMainWindow *window) { windows += window; });
    Window first;
    OxaMainWindow second;
    QCOMPARE(windows, QVector<OxaMainWindow *>({ &first, &second }));
}

void tst_OxaMainWindow::isHandedToTheApplicationBeforeItIsSetUpFurther()
{
    QByteArray className;
    QString themeType;
    bool isAnimated = false;
    const HookGuard hook([&](OxaMainWindow *window) {
        className = window->metaObject()->className();
        themeType = storedType(*window);
        isAnimated = window->isAnimated();
        window->setAnimated(true);
    });
    const OxaMainWindow window;
    QCOMPARE(className, QByteArrayLiteral("OxaMainWindow"));
    QCOMPARE(themeType, QStringLiteral("global"));
    QVERIFY(isAnimated);
    QVERIFY(!window.isAnimated());
}

void tst_OxaMainWindow::firesTheShortcutsThatTheApplicationRegisters()
{
    OxaAppSignals *hub = OxaAppSignals::get();
    const HookGuard hook(
            [hub](OxaMainWindow *window) { hub->registerShortcuts(window, OxaShortcut::All); });
    OxaMainWindow window;
    const auto *shortcut = window.findChild<OxaShortcut *>();
    QVERIFY(shortcut);
    QCOMPARE(shortcut->parent(), &window);
    QVERIFY(Windows::activate(window));
    const QSignalSpy activated(shortcut, &QShortcut::activated);
    const int key = shortcut->key()[0];
    QTest::keyClick(&window, Qt::Key(key & ~int(Qt::KeyboardModifierMask)),
                    Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
    QCOMPARE(activated.size(), 1);
}

void tst_OxaMainWindow::takesItsShortcutsWithIt()
{
    OxaAppSignals *hub = OxaAppSignals::get();
    const HookGuard hook(
            [hub](OxaMainWindow *window) { hub->registerShortcuts(window, OxaShortcut::General); });
    const auto count = [hub] { return hub->getGroupShortcuts(OxaShortcut::General).size(); };
    {
        const OxaMainWindow window;
        QVERIFY(count() > 0);
    }
    QCOMPARE(count(), std::size_t(0));
    const OxaMainWindow next;
    QVERIFY(count() > 0);
}

void tst_OxaMainWindow::followsNeitherItsParentNorItsName()
{
    OxaMainWindow parent;
    OxaMainWindow window(&parent);
    window.setCSS(QStringLiteral("color: red;"));
    const QSignalSpy cssChanged(&window, &OxaMainWindow::cssChanged);
    parent.setThemeType(QStringLiteral("dark"));
    window.setObjectName(QStringLiteral("main"));
    QCOMPARE(storedType(window), QStringLiteral("global"));
    QCOMPARE(cssChanged.size(), 0);
}

void tst_OxaMainWindow::looksNoColorsUpByItself()
{
    Window window;
    window.setThemeType(QStringLiteral("dark"));
    QCOMPARE(storedType(window), QStringLiteral("dark"));
    QCOMPARE(window.fetches, 0);
}

void tst_OxaMainWindow::handsItsThemeTypeDown()
{
    OxaMainWindow window;
    auto *child = new OxaWidget;
    window.setCentralWidget(child);
    window.setThemeType(QStringLiteral("dark"));
    QCOMPARE(storedType(*child), QStringLiteral("dark"));
}

void tst_OxaMainWindow::paintsTheBackgroundOfItsStyleText()
{
    const StoreGuard stores(
            ColorSets::storeOf({ ColorSets::make(QStringLiteral("panel"), { "#123456" }) }));
    OxaMainWindow window;
    window.resize(20, 10);
    window.setCSS(QStringLiteral("$backgroundColors: panel;"));
    QCOMPARE(Pixels::countNear(Pixels::render(window), QColor(0x12, 0x34, 0x56), QRect(), 0),
             20 * 10);
}

UIELEMENTS_TEST_MAIN(tst_OxaMainWindow)
#include "tst_oxamainwindow.moc"
