// SPDX-License-Identifier: Apache-2.0
#include "TextInputParts.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RealInput.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

using namespace TextInputParts;

namespace {

const QString left = QStringLiteral("1");

/// Shows \a window, with the pointer away from it. Returns whether that worked.
bool showWindow(Window &window)
{
    if (!RealInput::parkPointer())
        return false;
    window.move(100, 100);
    return window.open();
}

/// Returns how many pixels of \a field on the screen are near \a color.
int pixelsOnScreen(const OxaTextInput &field, const QColor &color)
{
    return Pixels::countNear(Windows::onScreen(field), color);
}

/// Drops \a text on \a widget as another program does.
void drop(QWidget &widget, const QString &text)
{
    QMimeData data;
    data.setText(text);
    const QPoint position = widget.rect().center();
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &enter);
    QDropEvent event(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Drags the left button from \a from to \a to without waiting in between, since Qt's drag waits
/// itself. Returns whether that worked.
bool dragText(const QWidget &from, const QPoint &start, const QWidget &to)
{
    const auto at = [](const QPoint &position) {
        return QStringList { QStringLiteral("mousemove"), QString::number(position.x()),
                             QString::number(position.y()) };
    };
    const QStringList pause = { QStringLiteral("sleep"), QStringLiteral("0.2") };
    const QPoint first = from.mapToGlobal(start);
    const QPoint last = to.mapToGlobal(to.rect().center());
    QStringList steps = at(first) + QStringList { QStringLiteral("mousedown"), left } + pause;
    for (int step = 1; step <= 4; ++step)
        steps += at(first + (last - first) * step / 4) + pause;
    return RealInput::send(steps + QStringList { QStringLiteral("mouseup"), left });
}

} // namespace

/// Text inputs in a real window, under a real pointer and keyboard.
class tst_OxaTextInputInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }
    void cleanup() { QGuiApplication::clipboard()->clear(); }

    void takesTheFocusByTabAndByClicks();
    void showsItsLooks();
    void isTypedIntoAndClearedByThePointer();
    void isClearedByKeysAndUndone();
    void showsAPasswordByPointerAndKeys();
    void takesTextsOfInputMethods();
    void commitsNoCandidateAsTheFocusLeaves();
    void takesAPasteOfAMegabyte();
    void keepsPairsWholeWhereItCan();
    void takesDroppedTexts();
    void dragsNoMaskedText();
    void selectsAMaskedTextForNobody();

private:
    std::unique_ptr<StoreGuard> m_stores;
    SvgFiles m_files;
};

void tst_OxaTextInputInteraction::takesTheFocusByTabAndByClicks()
{
    Window window;
    window.field.setText(QStringLiteral("abc"));
    QVERIFY(showWindow(window));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.field.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(clearButtonOf(window.field).hasFocus());
    window.field.toggleClearButtonFocus(false);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_VERIFY(window.field.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.after.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_VERIFY(window.field.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_VERIFY(window.before.hasFocus());
    QVERIFY(RealInput::click(textOf(window.field), QPoint(20, 10)));
    QTRY_VERIFY(window.field.hasFocus());
    window.before.setFocus();
    QVERIFY(RealInput::click(window.field, QPoint(2, 2)));
    QTRY_VERIFY(window.field.hasFocus());
    QCOMPARE(window.field.text(), QStringLiteral("abc"));
}

void tst_OxaTextInputInteraction::showsItsLooks()
{
    Window window;
    window.validate(true);
    QVERIFY(showWindow(window));
    QTRY_VERIFY(pixelsOnScreen(window.field, normalColor) > 500);
    QVERIFY(RealInput::click(textOf(window.field), QPoint(20, 10)));
    QTRY_VERIFY(pixelsOnScreen(window.field, focusedColor) > 500);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("d") }));
    QTRY_VERIFY(pixelsOnScreen(window.field, errorColor) > 500);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("x") }));
    QTRY_VERIFY(pixelsOnScreen(window.field, focusedColor) > 500);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab"), QStringLiteral("Tab") }));
    QTRY_VERIFY(pixelsOnScreen(window.field, normalColor) > 500);
}

void tst_OxaTextInputInteraction::isTypedIntoAndClearedByThePointer()
{
    Window window;
    window.field.setMaxLength(3);
    QVERIFY(showWindow(window));
    QVERIFY(RealInput::click(textOf(window.field), QPoint(20, 10)));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                                  QStringLiteral("d") }));
    QTRY_COMPARE(window.field.text(), QStringLiteral("abc"));
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("3/3"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.after.hasFocus());
    QTRY_VERIFY(clearButtonOf(window.field).isVisible());
    window.log.take();
    QVERIFY(RealInput::click(clearButtonOf(window.field), QPoint(7, 7)));
    QTRY_COMPARE(window.field.text(), QString());
    QTRY_VERIFY(window.field.hasFocus());
    QVERIFY(window.log.take().endsWith(QLatin1String("focused | textEdited | hide error")));
    QCOMPARE(partsShownBy(window.field), QStringLiteral("counter"));
}

void tst_OxaTextInputInteraction::isClearedByKeysAndUndone()
{
    Window window;
    window.field.setFocus();
    QVERIFY(showWindow(window));
    window.field.setFocus();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("a"), QStringLiteral("b") }));
    QTRY_COMPARE(window.field.text(), QStringLiteral("ab"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab"), QStringLiteral("space") }));
    QTRY_COMPARE(window.field.text(), QString());
    QTRY_VERIFY(window.field.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+z") }));
    QTRY_COMPARE(window.field.text(), QStringLiteral("ab"));
    QCOMPARE(partsShownBy(window.field), QStringLiteral("clear"));
}

void tst_OxaTextInputInteraction::showsAPasswordByPointerAndKeys()
{
    Window window;
    window.field.setPasswordField(true);
    window.field.setPasswordIcons(m_files.square(QStringLiteral("shown.svg")),
                                  m_files.square(QStringLiteral("masked.svg")));
    QVERIFY(showWindow(window));
    window.field.setFocus();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("a"), QStringLiteral("b") }));
    QTRY_VERIFY(passwordButtonOf(window.field).isVisible());
    QVERIFY(RealInput::click(passwordButtonOf(window.field), QPoint(7, 7)));
    QTRY_COMPARE(textOf(window.field).displayText(), QStringLiteral("ab"));
    QTRY_VERIFY(window.field.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab"), QStringLiteral("space") }));
    QTRY_COMPARE(textOf(window.field).echoMode(), QLineEdit::Password);
    QTRY_VERIFY(window.field.hasFocus());
}

void tst_OxaTextInputInteraction::takesTextsOfInputMethods()
{
    Window window;
    window.field.setMaxLength(3);
    QVERIFY(showWindow(window));
    window.field.setFocus();
    window.log.take();
    QInputMethodEvent candidate(QStringLiteral("ni"), {});
    QCoreApplication::sendEvent(&textOf(window.field), &candidate);
    QCOMPARE(window.field.text(), QString());
    QCOMPARE(window.log.take(), QString());
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("abcde"));
    QCoreApplication::sendEvent(&textOf(window.field), &commit);
    QCOMPARE(window.field.text(), QStringLiteral("abc"));
    QCOMPARE(window.log.take(),
             QStringLiteral("textEdited | focused | textChanged \"abc\" | hide error"));
    QCoreApplication::sendEvent(&textOf(window.field), &commit);
    QCOMPARE(window.field.text(), QStringLiteral("abc"));
}

void tst_OxaTextInputInteraction::commitsNoCandidateAsTheFocusLeaves()
{
    Window window;
    window.validate(true);
    QVERIFY(showWindow(window));
    window.field.setFocus();
    QInputMethodEvent candidate(QStringLiteral("ni"), {});
    QCoreApplication::sendEvent(&textOf(window.field), &candidate);
    window.after.setFocus();
    QVERIFY(window.after.hasFocus());
    QCOMPARE(window.field.text(), QString());
    QCOMPARE(lookOf(window.field), QStringLiteral("normal"));
    window.field.setFocus();
    QTest::keyClick(&textOf(window.field), Qt::Key_A);
    QCOMPARE(window.field.text(), QStringLiteral("a"));
}

void tst_OxaTextInputInteraction::takesAPasteOfAMegabyte()
{
    Window window;
    window.field.setMaxLength(1 << 21);
    QVERIFY(showWindow(window));
    window.field.setFocus();
    QGuiApplication::clipboard()->setText(QString(1 << 20, QLatin1Char('x')));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+v") }));
    QTRY_COMPARE(window.field.text().size(), 1 << 20);
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("1048576/2097152"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+z") }));
    QTRY_COMPARE(window.field.text(), QString());
}

void tst_OxaTextInputInteraction::keepsPairsWholeWhereItCan()
{
    const QString face = QString::fromUtf8("\xf0\x9f\x98\x80");
    Window window;
    window.field.setMaxLength(4);
    QVERIFY(showWindow(window));
    window.field.setFocus();
    QGuiApplication::clipboard()->setText(face + face + face);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("ctrl+v") }));
    QTRY_COMPARE(window.field.text(), face + face);
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("4/4"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("BackSpace") }));
    QTRY_COMPARE(window.field.text(), face);
    // The limit counts units: Qt cuts the pair that does not fit whole.
    window.field.setMaxLength(3);
    window.field.setText(face + face);
    QCOMPARE(window.field.text().size(), 3);
    QVERIFY(RealInput::typeKeys(
            { QStringLiteral("End"), QStringLiteral("BackSpace"), QStringLiteral("BackSpace") }));
    QTRY_COMPARE(window.field.text(), QString());
}

void tst_OxaTextInputInteraction::takesDroppedTexts()
{
    Window window;
    window.field.setMaxLength(4);
    window.validate(true);
    QVERIFY(showWindow(window));
    drop(textOf(window.field), QStringLiteral("bad"));
    QCOMPARE(window.field.text(), QStringLiteral("bad"));
    QCOMPARE(lookOf(window.field), QStringLiteral("error"));
    window.field.setReadOnly(true);
    drop(textOf(window.field), QStringLiteral("x"));
    QCOMPARE(window.field.text(), QStringLiteral("bad"));
}

void tst_OxaTextInputInteraction::dragsNoMaskedText()
{
    Window window;
    OxaTextInput *target = makeField(&window);
    target->setGeometry(window.after.geometry());
    window.after.hide();
    window.field.setText(QStringLiteral("secret"));
    window.field.setPasswordField(true);
    textOf(window.field).setDragEnabled(true);
    QVERIFY(showWindow(window));
    window.field.setFocus();
    textOf(window.field).selectAll();
    QVERIFY(dragText(textOf(window.field), QPoint(15, 10), textOf(*target)));
    QCOMPARE(target->text(), QString());
    QCOMPARE(window.field.text(), QStringLiteral("secret"));
}

void tst_OxaTextInputInteraction::selectsAMaskedTextForNobody()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    QVERIFY(clipboard->supportsSelection());
    Window window;
    window.field.setPasswordField(true);
    window.field.setText(QStringLiteral("secret"));
    QVERIFY(showWindow(window));
    clipboard->setText(QStringLiteral("before"), QClipboard::Selection);
    window.field.setFocus();
    QVERIFY(RealInput::typeKeys(
            { QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c"), QStringLiteral("ctrl+x") }));
    QVERIFY(RealInput::drag(textOf(window.field), QPoint(3, 10), QPoint(100, 10)));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(!window.field.hasFocus());
    QCOMPARE(clipboard->text(QClipboard::Selection), QStringLiteral("before"));
    QCOMPARE(clipboard->text(), QString());
}

UIELEMENTS_TEST_MAIN(tst_OxaTextInputInteraction)
#include "tst_oxatextinput_interaction.moc"
