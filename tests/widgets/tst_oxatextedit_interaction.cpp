// SPDX-License-Identifier: Apache-2.0
#include "TextEditParts.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaTextEdit.h>

#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalSpy>

using namespace TextEditParts;

namespace {

constexpr int wheelDown = 5; // As X numbers its buttons.

const QColor menuColor(0xc8, 0x1e, 0xd2);

/// Two edits in a window that is in front.
class Window : public QWidget
{
public:
    Window() : first(QStringLiteral("first"), this), second(QStringLiteral("second"), this)
    {
        resize(400, 300);
        first.setGeometry(20, 20, 200, 100);
        second.setGeometry(20, 150, 200, 100);
        move(100, 100);
    }

    bool comesToTheFront() { return Windows::activate(*this); }

    OxaTextEdit first;
    OxaTextEdit second;
};

/// Returns how much of \a menu the X server shows in the menu's colour.
int countMenuColor(const QMenu &menu)
{
    return Pixels::countNear(Windows::onScreen(menu), menuColor);
}

} // namespace

/// Text edits in a real window, under a real pointer and keyboard.
class tst_OxaTextEditInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(menuStore("#c81ed2")); }
    void cleanup() { m_stores.reset(); }

    void movesTheFocusByTab();
    void takesWhatAltGrTypes();
    void scrollsUnderTheWheel();
    void opensItsMenuUnderThePointer();
    void opensItsMenuByKey();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaTextEditInteraction::movesTheFocusByTab()
{
    Window window;
    QVERIFY(window.comesToTheFront());
    QVERIFY(RealInput::click(window.first, QPoint(50, 50)));
    QTRY_VERIFY(window.first.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.second.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_VERIFY(window.first.hasFocus());
    QCOMPARE(window.first.toPlainText(), QStringLiteral("first"));
    QCOMPARE(window.second.toPlainText(), QStringLiteral("second"));
}

void tst_OxaTextEditInteraction::takesWhatAltGrTypes()
{
    const RealInput::KeyboardLayoutGuard layout(QStringLiteral("de"));
    Window window;
    const QShortcut shortcut(QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_E), &window);
    const QSignalSpy fired(&shortcut, &QShortcut::activated);
    QVERIFY(window.comesToTheFront());
    QVERIFY(RealInput::click(window.first, QPoint(150, 50)));
    QTRY_VERIFY(window.first.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ISO_Level3_Shift+e") }));
    QTRY_COMPARE(window.first.toPlainText(), QStringLiteral("first€"));
    QCOMPARE(fired.size(), 0);
}

void tst_OxaTextEditInteraction::scrollsUnderTheWheel()
{
    Window window;
    window.first.setPlainText(QStringLiteral("line\n").repeated(50));
    QVERIFY(window.comesToTheFront());
    QVERIFY(RealInput::click(window.first, QPoint(60, 40), wheelDown));
    QTRY_VERIFY(window.first.verticalScrollBar()->value() > 0);
}

void tst_OxaTextEditInteraction::opensItsMenuUnderThePointer()
{
    Window window;
    QVERIFY(window.comesToTheFront());
    QVERIFY(RealInput::click(window.first, QPoint(60, 40), 3));
    QTRY_VERIFY(openMenu());
    const QPointer<QMenu> menu = openMenu();
    QCOMPARE(menu->pos(), window.first.mapToGlobal(QPoint(60, 40)));
    // Most of it, since the texts have the same colour.
    QTRY_VERIFY(countMenuColor(*menu) > menu->width() * menu->height() / 2);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(!menu);
}

void tst_OxaTextEditInteraction::opensItsMenuByKey()
{
    Window window;
    QVERIFY(window.comesToTheFront());
    QVERIFY(RealInput::click(window.first, QPoint(60, 40)));
    QTRY_VERIFY(window.first.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Menu") }));
    QTRY_VERIFY(openMenu());
    const QPointer<QMenu> menu = openMenu();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(!menu);
    QVERIFY(window.first.hasFocus());
}

UIELEMENTS_TEST_MAIN(tst_OxaTextEditInteraction)
#include "tst_oxatextedit_interaction.moc"
