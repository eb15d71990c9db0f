// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/widgets/OxaLineEdit.h>

#include <QHoverEvent>
#include <QSignalSpy>
#include <QStyleOption>

namespace {

const QString hint = QStringLiteral("hint");
const OxaColorSet hintColors = ColorSets::make(hint,
                                               { "#ff010101", "#ff020202", "#ff030303", "#ff040404",
                                                 "#ff050505", "#ff060606" });
const OxaColorSet invertedHintColors = ColorSets::make(hint, { "#ff111111", "#ff121212" });

QColor hintColorOf(const QWidget &edit) { return edit.palette().color(QPalette::PlaceholderText); }

/// Sends a hover event of the type \a type to \a edit as Qt does. Returns whether it was answered
/// with true.
bool hover(QWidget &edit, QEvent::Type type)
{
    edit.setAttribute(Qt::WA_UnderMouse, type != QEvent::HoverLeave);
    QHoverEvent event(type, QPointF(1, 1), QPointF());
    return QCoreApplication::sendEvent(&edit, &event);
}

/// Counts events of one type that reach a widget.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget &watched, QEvent::Type type) : m_type(type)
    {
        watched.installEventFilter(this);
    }

    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    const QEvent::Type m_type;
};

/// Tells which changes reach its Qt class.
class ChangeLog : public OxaLineEdit
{
public:
    QVector<QEvent::Type> changes;

protected:
    void changeEvent(QEvent *event) override
    {
        changes += event->type();
        OxaLineEdit::changeEvent(event);
    }
};

} // namespace

class tst_OxaLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf({ hintColors }),
                                                ColorSets::storeOf({ invertedHintColors }));
    }
    void cleanupTestCase() { m_stores.reset(); }

    void startsWithATextOrWithout();
    void colorsItsPlaceholder_data();
    void colorsItsPlaceholder();
    void followsThePointerWithItsPlaceholder();
    void setsNoPaletteForTheSameColor();
    void putsItsColorIntoAnotherPalette();
    void leavesThePaletteAloneForAMissingSet();
    void looksItsPlaceholderUpAgainInAnotherTheme();
    void keepsThePlaceholderOfATypeWithoutTheSet();
    void answersThreeEventsItself();
    void handsOtherEventsToItsQtClass();
    void reportsThePointer();
    void keepsWhatAltGrTypesFromShortcuts_data();
    void keepsWhatAltGrTypesFromShortcuts();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLineEdit::startsWithATextOrWithout()
{
    QWidget parent;
    const auto *empty = new OxaLineEdit(&parent);
    QCOMPARE(empty->parent(), &parent);
    QCOMPARE(empty->text(), QString());
    const auto *filled = new OxaLineEdit(QStringLiteral("abc"), &parent);
    QCOMPARE(filled->parent(), &parent);
    QCOMPARE(filled->text(), QStringLiteral("abc"));
    for (const OxaLineEdit *edit : { empty, filled }) {
        QCOMPARE(edit->getFontToken(), OxaFont::Token::Default);
        QCOMPARE(edit->font(), QFont(OxaFont(OxaFont::Token::Default)));
        QCOMPARE(edit->getPlaceholderColorSetName(), QString());
        QCOMPARE(hintColorOf(*edit), hintColorOf(QLineEdit()));
        QVERIFY(edit->testAttribute(Qt::WA_Hover));
    }
}

void tst_OxaLineEdit::colorsItsPlaceholder_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isUnderPointer");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("normal") << true << false << hintColors.normal;
    QTest::newRow("under the pointer") << true << true << hintColors.hovered;
    QTest::newRow("disabled") << false << false << hintColors.disabled;
    QTest::newRow("disabled, under the pointer") << false << true << hintColors.disabled;
}

void tst_OxaLineEdit::colorsItsPlaceholder()
{
    QFETCH(const bool, isEnabled);
    QFETCH(const bool, isUnderPointer);
    OxaLineEdit edit;
    edit.setEnabled(isEnabled);
    edit.setAttribute(Qt::WA_UnderMouse, isUnderPointer);
    QVERIFY(edit.setProperty("placeholderColorSetName", hint));
    QCOMPARE(edit.property("placeholderColorSetName").toString(), hint);
    QTEST(hintColorOf(edit), "expected");
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled })
        QTEST(edit.palette().color(group, QPalette::PlaceholderText), "expected");
}

void tst_OxaLineEdit::followsThePointerWithItsPlaceholder()
{
    OxaLineEdit edit;
    edit.setPlaceholderColorSetName(hint);
    hover(edit, QEvent::HoverEnter);
    QCOMPARE(hintColorOf(edit), hintColors.hovered);
    hover(edit, QEvent::HoverLeave);
    QCOMPARE(hintColorOf(edit), hintColors.normal);
}

void tst_OxaLineEdit::setsNoPaletteForTheSameColor()
{
    OxaLineEdit edit;
    edit.ensurePolished();
    const EventCounter changes(edit, QEvent::PaletteChange);
    edit.setPlaceholderColorSetName(hint);
    QCOMPARE(changes.count, 1);
    edit.setPlaceholderColorSetName(hint);
    QCOMPARE(changes.count, 1);
    hover(edit, QEvent::HoverLeave);
    QCOMPARE(changes.count, 1);
    OxaLineEdit other; // Where the palette has the colour already, it is not set either.
    const StoreGuard stores(ColorSets::storeOf({ OxaColorSet(hint, hintColorOf(other)) }));
    other.setPlaceholderColorSetName(hint);
    QVERIFY(!other.testAttribute(Qt::WA_SetPalette));
}

void tst_OxaLineEdit::putsItsColorIntoAnotherPalette()
{
    OxaLineEdit edit;
    edit.setPlaceholderColorSetName(hint);
    QPalette other;
    other.setColor(QPalette::PlaceholderText, Qt::red);
    other.setColor(QPalette::Base, Qt::green);
    edit.setPalette(other);
    QCOMPARE(hintColorOf(edit), hintColors.normal);
    QCOMPARE(edit.palette().color(QPalette::Base), QColor(Qt::green));
}

void tst_OxaLineEdit::leavesThePaletteAloneForAMissingSet()
{
    OxaLineEdit edit;
    edit.ensurePolished();
    const EventCounter changes(edit, QEvent::PaletteChange);
    const QPalette before = edit.palette();
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"missing\"");
    edit.setPlaceholderColorSetName(QStringLiteral("missing"));
    QCOMPARE(edit.palette(), before);
    QCOMPARE(edit.palette().resolve(), before.resolve());
    QCOMPARE(changes.count, 0);
    hover(edit, QEvent::HoverEnter);
    QCOMPARE(changes.count, 0);
}

void tst_OxaLineEdit::looksItsPlaceholderUpAgainInAnotherTheme()
{
    OxaLineEdit edit;
    edit.setPlaceholderColorSetName(hint);
    edit.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(hintColorOf(edit), invertedHintColors.normal);
    edit.setThemeType(QStringLiteral("global"));
    QCOMPARE(hintColorOf(edit), hintColors.normal);
}

void tst_OxaLineEdit::keepsThePlaceholderOfATypeWithoutTheSet()
{
    OxaLineEdit edit;
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"late\"");
    edit.setPlaceholderColorSetName(QStringLiteral("late"));
    // A set that was not valid is not looked up again.
    const StoreGuard stores(
            ColorSets::storeOf({ OxaColorSet(QStringLiteral("late"), Qt::magenta) }));
    edit.setThemeType(QStringLiteral("global"));
    QVERIFY(hintColorOf(edit) != QColor(Qt::magenta));
    edit.setPlaceholderColorSetName(QStringLiteral("late"));
    QCOMPARE(hintColorOf(edit), QColor(Qt::magenta));
}

void tst_OxaLineEdit::answersThreeEventsItself()
{
    ChangeLog edit;
    edit.ensurePolished();
    edit.changes.clear();
    QEvent paletteChange(QEvent::PaletteChange);
    QVERIFY(QCoreApplication::sendEvent(&edit, &paletteChange));
    QVERIFY(!edit.changes.contains(QEvent::PaletteChange));
    // QWidget would repaint, and answer false where nothing can be hovered.
    edit.setAttribute(Qt::WA_Hover, false);
    QVERIFY(hover(edit, QEvent::HoverEnter));
    QVERIFY(hover(edit, QEvent::HoverLeave));
}

void tst_OxaLineEdit::handsOtherEventsToItsQtClass()
{
    ChangeLog edit;
    edit.changes.clear();
    QEvent fontChange(QEvent::FontChange);
    QCoreApplication::sendEvent(&edit, &fontChange);
    QVERIFY(edit.changes.contains(QEvent::FontChange));
    QTest::keyClick(&edit, Qt::Key_A);
    QCOMPARE(edit.text(), QStringLiteral("a"));
    const QSignalSpy hovered(&edit, &OxaLineEdit::hoveredChanged);
    hover(edit, QEvent::HoverMove);
    QCOMPARE(hovered.size(), 0);
}

void tst_OxaLineEdit::reportsThePointer()
{
    OxaLineEdit edit;
    edit.setPlaceholderColorSetName(hint);
    QVector<QPair<bool, QColor>> seen; // The colour has changed when the signal comes.
    connect(&edit, &OxaLineEdit::hoveredChanged, this,
            [&](bool state) { seen += qMakePair(state, hintColorOf(edit)); });
    hover(edit, QEvent::HoverEnter);
    hover(edit, QEvent::HoverLeave);
    QEvent paletteChange(QEvent::PaletteChange);
    QCoreApplication::sendEvent(&edit, &paletteChange);
    QCOMPARE(seen.size(), 2);
    QCOMPARE(seen.at(0), qMakePair(true, hintColors.hovered));
    QCOMPARE(seen.at(1), qMakePair(false, hintColors.normal));
}

void tst_OxaLineEdit::keepsWhatAltGrTypesFromShortcuts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isText");
    QTest::newRow("a character") << QStringLiteral("@") << true;
    QTest::newRow("no character") << QString() << false;
    QTest::newRow("a control character") << QStringLiteral("\x11") << false;
}

void tst_OxaLineEdit::keepsWhatAltGrTypesFromShortcuts()
{
    QFETCH(const QString, text);
    OxaLineEdit edit;
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier,
                    text);
    event.ignore();
    QCoreApplication::sendEvent(&edit, &event);
    QTEST(event.isAccepted(), "isText");
}

UIELEMENTS_TEST_MAIN(tst_OxaLineEdit)
#include "tst_oxalineedit.moc"
