// SPDX-License-Identifier: Apache-2.0
#include "LabelPictures.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

using namespace LabelPictures;

namespace {

const QColor dots(0x27, 0x0f, 0xef); // The inverse of the background.

/// A window with two labels, one above the other.
class Window : public QWidget
{
public:
    explicit Window(Qt::FocusPolicy focusPolicy = Qt::NoFocus)
        : first(QStringLiteral("first"), this), second(QStringLiteral("second"), this)
    {
        resize(300, 200);
        first.setGeometry(50, 20, 200, 60);
        second.setGeometry(50, 120, 200, 60);
        for (OxaLabel *label : { &first, &second }) {
            label->setFontToken(OxaFont::Token::Display);
            label->setFocusPolicy(focusPolicy);
        }
    }

    /// Shows the window, with the pointer away from it.
    bool appear()
    {
        if (!RealInput::parkPointer())
            return false;
        move(100, 100);
        return Windows::activate(*this);
    }

    OxaLabel first;
    OxaLabel second;
};

bool hasFrame(const OxaLabel &label)
{
    return Pixels::boundsNear(Windows::onScreen(label), dots, 4) == label.rect();
}

} // namespace

/// OxaLabel in a real window, under a real pointer and keyboard.
class tst_OxaLabelInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void isClickedByTheLeftButtonOnly();
    void isClickedByItsKeysOnceItHasTheFocus();
    void isNotClickedWhenTextIsSelectedByDragging();
    void selectsAllTextByTheRightButton();
    void showsItsFrameForFocusByTabOnly_data() { addPaths(); }
    void showsItsFrameForFocusByTabOnly();
    void changesItsTextsColorUnderThePointer_data() { addPaths(); }
    void changesItsTextsColorUnderThePointer();
    void emitsASignalWhenItsWindowIsHidden();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabelInteraction::isClickedByTheLeftButtonOnly()
{
    Window window;
    QVERIFY(window.appear());
    const QSignalSpy firstClicks(&window.first, &OxaLabel::clicked);
    const QSignalSpy secondClicks(&window.second, &OxaLabel::clicked);
    QVERIFY(RealInput::click(window.first, QPoint(20, 30), 3));
    QVERIFY(RealInput::click(window.first, QPoint(20, 30), 2));
    QVERIFY(RealInput::click(window.first, QPoint(20, 30)));
    QTRY_COMPARE(firstClicks.size(), 1);
    QVERIFY(RealInput::click(window.second, QPoint(20, 30)));
    QTRY_COMPARE(secondClicks.size(), 1);
    QCOMPARE(firstClicks.size(), 1);
}

void tst_OxaLabelInteraction::isClickedByItsKeysOnceItHasTheFocus()
{
    Window window(Qt::StrongFocus);
    QVERIFY(window.appear());
    QVERIFY(RealInput::click(window.first, QPoint(20, 30)));
    QTRY_VERIFY(window.first.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.second.hasFocus());
    const QSignalSpy firstClicks(&window.first, &OxaLabel::clicked);
    const QSignalSpy secondClicks(&window.second, &OxaLabel::clicked);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("a"), QStringLiteral("space"),
                                  QStringLiteral("Return"), QStringLiteral("KP_Enter") }));
    QTRY_COMPARE(secondClicks.size(), 3);
    QCOMPARE(firstClicks.size(), 0);
}

void tst_OxaLabelInteraction::isNotClickedWhenTextIsSelectedByDragging()
{
    Window window;
    window.first.setTextInteractionFlags(Qt::TextSelectableByMouse);
    QVERIFY(window.appear());
    const QSignalSpy clicks(&window.first, &OxaLabel::clicked);
    QVERIFY(RealInput::drag(window.first, QPoint(1, 30), QPoint(199, 30)));
    QTRY_COMPARE(window.first.selectedText(), QStringLiteral("first"));
    // A click elsewhere shows that the release of the drag has been handled.
    const QSignalSpy otherClicks(&window.second, &OxaLabel::clicked);
    QVERIFY(RealInput::click(window.second, QPoint(20, 30)));
    QTRY_COMPARE(otherClicks.size(), 1);
    QCOMPARE(clicks.size(), 0);
}

void tst_OxaLabelInteraction::selectsAllTextByTheRightButton()
{
    Window window;
    window.first.setTextInteractionFlags(Qt::TextSelectableByMouse);
    // On this platform a menu opens before the button is released, and would take the release.
    window.first.setContextMenuPolicy(Qt::PreventContextMenu);
    QVERIFY(window.appear());
    QVERIFY(RealInput::click(window.first, QPoint(20, 30), 3));
    QTRY_COMPARE(window.first.selectedText(), QStringLiteral("first"));
}

void tst_OxaLabelInteraction::showsItsFrameForFocusByTabOnly()
{
    QFETCH(const Path, path);
    Window window(Qt::StrongFocus);
    for (OxaLabel *label : { &window.first, &window.second }) {
        use(path, *label);
        label->setCSS(QStringLiteral("$backgroundColors: ground;"));
    }
    QVERIFY(window.appear());
    QVERIFY(RealInput::click(window.first, QPoint(20, 30)));
    QTRY_VERIFY(window.first.hasFocus());
    QTRY_COMPARE(Windows::onScreen(window.first).pixelColor(199, 59), ground);
    QVERIFY(!hasFrame(window.first));

    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(hasFrame(window.second));
    QVERIFY(!hasFrame(window.first));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_VERIFY(hasFrame(window.first));
    QTRY_VERIFY(!hasFrame(window.second));
}

void tst_OxaLabelInteraction::changesItsTextsColorUnderThePointer()
{
    QFETCH(const Path, path);
    Window window;
    use(path, window.first);
    window.first.setCSS(QStringLiteral("$textColors: ink;"));
    QVERIFY(window.appear());
    const auto isWritten = [&window](const QColor &color) {
        return Pixels::countNear(Windows::onScreen(window.first), color, QRect(), 4) > 0;
    };
    const QColor normal(0xf0, 0x00, 0xa8);
    const QColor hovered(0x00, 0xa8, 0xf0);
    QTRY_VERIFY(isWritten(normal));
    QVERIFY(RealInput::moveTo(window.first, QPoint(20, 30)));
    QTRY_VERIFY(isWritten(hovered));
    QVERIFY(!isWritten(normal));
    QVERIFY(RealInput::moveTo(window.second, QPoint(20, 30)));
    QTRY_VERIFY(isWritten(normal));
}

void tst_OxaLabelInteraction::emitsASignalWhenItsWindowIsHidden()
{
    Window window;
    const QSignalSpy changes(&window.first, &OxaLabel::onVisibilityChanged);
    QVERIFY(window.appear());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constLast().constFirst(), QVariant(true));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("alt+F4") }));
    QTRY_COMPARE(changes.size(), 2);
    QCOMPARE(changes.constLast().constFirst(), QVariant(false));
}

UIELEMENTS_TEST_MAIN(tst_OxaLabelInteraction)
#include "tst_oxalabel_interaction.moc"
