// SPDX-License-Identifier: Apache-2.0
#include "TextEditParts.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaTextEdit.h>

#include <QAccessible>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QShortcut>
#include <QSignalSpy>
#include <QStyleOption>

using namespace TextEditParts;

namespace {

const QColor frameColor(0xd2, 0x1e, 0xc8);

/// Fills the focus frames that it is asked for, and remembers the last one.
class FillingStyle : public QProxyStyle
{
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_FrameFocusRect) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        ++frames;
        rect = option->rect;
        isFocusOption = qstyleoption_cast<const QStyleOptionFocusRect *>(option) != nullptr;
        styleObject = option->styleObject;
        hasCustomRect = styleObject && styleObject->property("hasCustomRect").toBool();
        device = painter->device();
        asker = widget;
        painter->fillRect(rect, frameColor);
    }

    mutable int frames = 0;
    mutable QRect rect;
    mutable bool isFocusOption = false;
    mutable QObject *styleObject = nullptr;
    mutable bool hasCustomRect = false;
    mutable const QPaintDevice *device = nullptr;
    mutable const QWidget *asker = nullptr;
};

/// A window with an edit above a line edit, in a style that fills focus frames.
class Window : public QWidget
{
public:
    Window() : style(new FillingStyle), edit(QStringLiteral("text"), this), other(this)
    {
        QApplication::setStyle(style);
        resize(200, 150);
        edit.setGeometry(10, 10, 150, 80);
        other.setGeometry(10, 100, 150, 30);
        show();
        QApplication::setActiveWindow(this);
        other.setFocus();
    }
    ~Window() override { QApplication::setStyle(QStringLiteral("Fusion")); }

    FillingStyle *const style;
    OxaTextEdit edit;
    QLineEdit other;
};

/// Returns whether \a edit takes a key with \a modifiers that types \a text from shortcuts.
bool takesFromShortcuts(QWidget &edit, Qt::KeyboardModifiers modifiers, const QString &text)
{
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Q, modifiers, text);
    event.ignore();
    QCoreApplication::sendEvent(&edit, &event);
    return event.isAccepted();
}

} // namespace

class tst_OxaTextEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stores = std::make_unique<StoreGuard>(menuStore("#112233"), menuStore("#445566"));
    }
    void cleanup() { m_stores.reset(); }

    void isMadeWithOrWithoutText();
    void movesTheFocusWithTab();
    void takesWhatAltGrTypesFromShortcuts();

    void drawsAFrameForAnyFocus_data();
    void drawsAFrameForAnyFocus();
    void drawsNoFrameWithoutFocus();
    void drawsTheFrameOnItsViewportInItsOwnSize();
    void marksItsViewportForGood();
    void paintsTheTextOverTheFrame();
    void paintsBySlot();

    void opensItsMenuInTheThemesColors_data();
    void opensItsMenuInTheThemesColors();
    void opensItsMenuAtTheEventInASmallerFont();
    void deletesItsMenuWhenItCloses();
    void opensNoMenuWhereQtHasNone();
    void survivesItsDeletionWhileItsMenuIsOpen();

    void takesAPasteOfAMegabyte();
    void takesDroppedText();
    void keepsCandidatesOutOfItsTextUntilTheyAreChosen();
    void isAFieldOfTextForAssistiveTechnology();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaTextEdit::isMadeWithOrWithoutText()
{
    QWidget parent;
    const OxaTextEdit empty;
    QCOMPARE(empty.toPlainText(), QString());
    const auto *under = new OxaTextEdit(&parent);
    QCOMPARE(under->parentWidget(), &parent);
    const auto *rich = new OxaTextEdit(QStringLiteral("<b>rich</b>"), &parent);
    QCOMPARE(rich->toPlainText(), QStringLiteral("rich"));
    QCOMPARE(rich->parentWidget(), &parent);
    for (const OxaTextEdit *edit : { &empty, under, rich }) {
        QVERIFY(edit->tabChangesFocus());
        QCOMPARE(edit->getFontToken(), OxaFont::Token::Default);
        QCOMPARE(edit->font().pixelSize(), 16);
        QVERIFY(!edit->isReadOnly());
    }
}

void tst_OxaTextEdit::movesTheFocusWithTab()
{
    Window window;
    window.edit.setFocus();
    QTest::keyClick(&window.edit, Qt::Key_Tab);
    QVERIFY(window.other.hasFocus());
    QTest::keyClick(&window.other, Qt::Key_Backtab);
    QVERIFY(window.edit.hasFocus());
    QCOMPARE(window.edit.toPlainText(), QStringLiteral("text"));
}

void tst_OxaTextEdit::takesWhatAltGrTypesFromShortcuts()
{
    for (OxaTextEdit *edit : { new OxaTextEdit, new OxaTextEdit(QStringLiteral("text")) }) {
        const std::unique_ptr<OxaTextEdit> owner(edit);
        const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
        QVERIFY(takesFromShortcuts(*edit, altGr, QStringLiteral("@")));
        QVERIFY(!takesFromShortcuts(*edit, altGr, QString(QChar(0x11))));
        QVERIFY(!takesFromShortcuts(*edit, altGr, QString()));
        QVERIFY(!takesFromShortcuts(*edit, Qt::ControlModifier, QStringLiteral("@")));
        QVERIFY(!takesFromShortcuts(*edit, Qt::AltModifier, QStringLiteral("@")));
    }

    // The text has the character, and the shortcut with the same keys does not fire.
    Window window;
    const QShortcut shortcut(QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_Q), &window);
    const QSignalSpy fired(&shortcut, &QShortcut::activated);
    window.edit.setFocus();
    window.edit.moveCursor(QTextCursor::End);
    QTest::sendKeyEvent(QTest::Click, &window.edit, Qt::Key_Q, QStringLiteral("@"),
                        Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(window.edit.toPlainText(), QStringLiteral("text@"));
    QCOMPARE(fired.size(), 0);
}

void tst_OxaTextEdit::drawsAFrameForAnyFocus_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::newRow("by mouse") << Qt::MouseFocusReason;
    QTest::newRow("by Tab") << Qt::TabFocusReason;
    QTest::newRow("by a call") << Qt::OtherFocusReason;
}

void tst_OxaTextEdit::drawsAFrameForAnyFocus()
{
    QFETCH(const Qt::FocusReason, reason);
    Window window;
    window.edit.setFocus(reason);
    Pixels::render(window.edit);
    QCOMPARE(window.style->frames, 1);
}

void tst_OxaTextEdit::drawsNoFrameWithoutFocus()
{
    Window window;
    Pixels::render(window.edit);
    QCOMPARE(window.style->frames, 0);
    QCOMPARE(window.edit.viewport()->property("hasCustomRect"), QVariant());
}

void tst_OxaTextEdit::drawsTheFrameOnItsViewportInItsOwnSize()
{
    Window window;
    window.edit.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    window.edit.setFocus();
    Pixels::render(window.edit);
    QVERIFY(window.edit.viewport()->size() != window.edit.size());
    QCOMPARE(window.style->rect, QRect(0, 0, 150, 80));
    QVERIFY(window.style->isFocusOption);
    QCOMPARE(window.style->styleObject, window.edit.viewport());
    QVERIFY(window.style->hasCustomRect);
    QCOMPARE(window.style->device, window.edit.viewport());
    QCOMPARE(window.style->asker, &window.edit);
}

void tst_OxaTextEdit::marksItsViewportForGood()
{
    Window window;
    QWidget &viewport = *window.edit.viewport();
    window.edit.setFocus();
    Pixels::render(window.edit);
    QCOMPARE(viewport.property("hasCustomRect"), QVariant(true));
    window.other.setFocus();
    Pixels::render(window.edit);
    QCOMPARE(viewport.property("hasCustomRect"), QVariant(true));
    // It is set at each paint with the focus.
    viewport.setProperty("hasCustomRect", QVariant());
    window.edit.setFocus();
    Pixels::render(window.edit);
    QCOMPARE(viewport.property("hasCustomRect"), QVariant(true));
}

void tst_OxaTextEdit::paintsTheTextOverTheFrame()
{
    Window window;
    window.edit.setTextColor(Qt::green);
    window.edit.setPlainText(QStringLiteral("WWWW"));
    const int painted = Pixels::countNear(Pixels::render(window.edit), Qt::green);
    QVERIFY(painted > 20);
    window.edit.setFocus();
    const QImage image = Pixels::render(window.edit);
    QVERIFY(Pixels::countNear(image, frameColor) > 1000);
    QVERIFY(Pixels::countNear(image, Qt::green) > 20);
}

void tst_OxaTextEdit::paintsBySlot()
{
    const QMetaObject &type = OxaTextEdit::staticMetaObject;
    const int index = type.indexOfMethod("paintEvent(QPaintEvent*)");
    QVERIFY(index >= type.methodOffset());
    QCOMPARE(type.method(index).methodType(), QMetaMethod::Slot);
}

void tst_OxaTextEdit::opensItsMenuInTheThemesColors_data()
{
    QTest::addColumn<QString>("themeType");
    QTest::addColumn<QString>("color");
    QTest::newRow("the ordinary store's where it is global")
            << QStringLiteral("global") << QStringLiteral("#ff112233");
    QTest::newRow("the inverted store's where it is inverted")
            << QStringLiteral("inverted") << QStringLiteral("#ff445566");
    QTest::newRow("the other theme's where it names that")
            << QStringLiteral("dark") << QStringLiteral("#ff445566");
    QTest::newRow("the application's where it names its theme")
            << QStringLiteral("light") << QStringLiteral("#ff112233");
}

void tst_OxaTextEdit::opensItsMenuInTheThemesColors()
{
    QFETCH(const QString, themeType);
    QFETCH(const QString, color);
    Window window;
    window.edit.setThemeType(themeType);
    const QMenu *menu = menuOf(*window.edit.viewport());
    QVERIFY(menu);
    const QString sheet = menu->styleSheet();
    QVERIFY2(sheet.contains(QStringLiteral("QMenu {     background-color: %1; }").arg(color)),
             qPrintable(sheet));
    QCOMPARE(sheet.count(color), 10);
    QVERIFY(!sheet.contains(QLatin1Char('$')));
}

void tst_OxaTextEdit::opensItsMenuAtTheEventInASmallerFont()
{
    Window window;
    const QMenu *menu = menuOf(*window.edit.viewport(), QPoint(30, 20));
    QVERIFY(menu);
    QCOMPARE(menu->pos(), window.edit.viewport()->mapToGlobal(QPoint(30, 20)));
    QCOMPARE(menu->font().pixelSize(), 14);
    QVERIFY(menu->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!menu->actions().isEmpty());
}

void tst_OxaTextEdit::deletesItsMenuWhenItCloses()
{
    Window window;
    const QPointer<QMenu> menu = menuOf(*window.edit.viewport());
    QVERIFY(menu);
    menu->close();
    QTRY_VERIFY(!menu);
}

void tst_OxaTextEdit::opensNoMenuWhereQtHasNone()
{
    Window window;
    window.edit.setTextInteractionFlags(Qt::NoTextInteraction);
    askForMenu(*window.edit.viewport(), QPoint(5, 5));
    QVERIFY(!openMenu());
}

void tst_OxaTextEdit::survivesItsDeletionWhileItsMenuIsOpen()
{
    QWidget window;
    auto *edit = new OxaTextEdit(QStringLiteral("text"), &window);
    window.show();
    const QPointer<QMenu> menu = menuOf(*edit->viewport());
    QVERIFY(menu);
    delete edit;
    QVERIFY(!menu);
    QVERIFY(!openMenu());
}

void tst_OxaTextEdit::takesAPasteOfAMegabyte()
{
    OxaTextEdit edit;
    const QString line = QStringLiteral("%1\n").arg(QString(1023, QLatin1Char('x')));
    const QString text = line.repeated(1024);
    QMimeData pasted;
    pasted.setText(text);
    struct Paste : OxaTextEdit
    {
        using OxaTextEdit::insertFromMimeData;
    };
    (edit.*(&Paste::insertFromMimeData))(&pasted);
    QCOMPARE(edit.toPlainText().size(), 1024 * 1024);
    QVERIFY(edit.toPlainText() == text);
}

void tst_OxaTextEdit::takesDroppedText()
{
    Window window;
    QMimeData dragged;
    dragged.setText(QStringLiteral("dropped "));
    QWidget &viewport = *window.edit.viewport();
    const QPoint start(1, 5);
    QDragEnterEvent enter(start, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&viewport, &enter);
    QVERIFY(enter.isAccepted());
    QDragMoveEvent move(start, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&viewport, &move);
    QDropEvent drop(start, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&viewport, &drop);
    QCOMPARE(window.edit.toPlainText(), QStringLiteral("dropped text"));
}

void tst_OxaTextEdit::keepsCandidatesOutOfItsTextUntilTheyAreChosen()
{
    Window window;
    window.edit.setFocus();
    window.edit.moveCursor(QTextCursor::End);
    QInputMethodEvent candidate(QStringLiteral("ka"), {});
    QCoreApplication::sendEvent(&window.edit, &candidate);
    QCOMPARE(window.edit.toPlainText(), QStringLiteral("text"));
    // The focus leaves while the candidate is under way; an input method then sends what it has.
    window.other.setFocus();
    QCOMPARE(window.edit.toPlainText(), QStringLiteral("text"));
    QInputMethodEvent chosen;
    chosen.setCommitString(QStringLiteral("か"));
    QCoreApplication::sendEvent(&window.edit, &chosen);
    QCOMPARE(window.edit.toPlainText(), QStringLiteral("textか"));
    QCOMPARE(window.other.text(), QString());
}

void tst_OxaTextEdit::isAFieldOfTextForAssistiveTechnology()
{
    OxaTextEdit edit(QStringLiteral("text"));
    edit.setAccessibleName(QStringLiteral("Notes"));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&edit);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::EditableText);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Notes"));
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("text"));
}

UIELEMENTS_TEST_MAIN(tst_OxaTextEdit)
#include "tst_oxatextedit.moc"
