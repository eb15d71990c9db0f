// SPDX-License-Identifier: Apache-2.0
#include "TextInputParts.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QSignalSpy>

using namespace TextInputParts;

namespace {

/// Counts how often Qt computes the style of a widget again.
class StyleChanges : public QObject
{
public:
    explicit StyleChanges(QWidget &watched) { watched.installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(OxaTextInput &)>)

/// When a field asks its validator, how it looks then, and which signals come in which order.
class tst_OxaTextInputLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void changesWithTheFocus_data();
    void changesWithTheFocus();
    void changesWithTheText_data();
    void changesWithTheText();
    void asksAboutAnEmptyTextOnlyAsTheFocusChanges();
    void showsTheAnswerOfANewValidatorAtOnce();
    void keepsItsLookForANewValidatorOtherwise();
    void storesWhetherItValidatesAnEmptyText();
    void checksTheTextAtReturn_data();
    void checksTheTextAtReturn();
    void reportsWhatIsTyped();
    void reportsKeysBeforeTheyAreTyped();
    void movesTheFocusByTab();
    void insertsNoTab();
    void doesNotChangeForTheSameText();
    void looksAsItsValidatorSaysAfterAThemeChange();
    void setsTheSameSheetOnceWhileTyping();
    void setsTheSheetAgainWhereThatCanBeSeen_data();
    void setsTheSheetAgainWhereThatCanBeSeen();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaTextInputLooks::changesWithTheFocus_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("validates");
    QTest::addColumn<bool>("validatesWhenEmpty");
    QTest::addColumn<QString>("asItComes");
    QTest::addColumn<QString>("asItGoes");

    const QString bad = QStringLiteral("bad");
    const QString good = QStringLiteral("good");
    QTest::newRow("empty") << QString() << false << false << "focused"
                           << "normal | hide error";
    QTest::newRow("empty, to be validated without a validator")
            << QString() << false << true << "focused"
            << "normal | hide error";
    QTest::newRow("a text") << bad << false << false << "focused"
                            << "normal";
    QTest::newRow("a text, accepted") << good << true << false << "asked \"good\" | focused"
                                      << "asked \"good\" | normal | asked \"good\" | hide error";
    QTest::newRow("a text, rejected")
            << bad << true << false << "asked \"bad\" | show error | error"
            << "asked \"bad\" | show error | error | asked \"bad\" | show error";
    QTest::newRow("empty, not to be validated") << QString() << true << false << "focused"
                                                << "normal | hide error";
    QTest::newRow("empty, rejected")
            << QString() << true << true << "asked \"\" | show error | error"
            << "asked \"\" | show error | error | hide error";
}

void tst_OxaTextInputLooks::changesWithTheFocus()
{
    QFETCH(const QString, text);
    QFETCH(const bool, validates);
    QFETCH(const bool, validatesWhenEmpty);
    Window window;
    if (validates)
        window.validate(false);
    window.field.setValidateErrorWhenEmpty(validatesWhenEmpty);
    window.field.setText(text);
    QVERIFY(window.open());
    window.field.setFocus();
    QTEST(window.log.take(), "asItComes");
    window.after.setFocus();
    QTEST(window.log.take(), "asItGoes");
}

void tst_OxaTextInputLooks::changesWithTheText_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("whileTyping");
    QTest::addColumn<QString>("expected");

    const QString bad = QStringLiteral("bad");
    const QString good = QStringLiteral("good");
    QTest::newRow("rejected") << good << bad << true
                              << "asked \"bad\" | error | textChanged \"bad\" | show error";
    QTest::newRow("accepted") << bad << good << true
                              << "asked \"good\" | focused | textChanged \"good\" | hide error";
    QTest::newRow("emptied") << bad << QString() << true
                             << "focused | textChanged \"\" | hide error";
    QTest::newRow("rejected, not while typing")
            << good << bad << false << "focused | textChanged \"bad\" | hide error";
    QTest::newRow("emptied, not while typing")
            << bad << QString() << false << "focused | textChanged \"\" | hide error";
}

void tst_OxaTextInputLooks::changesWithTheText()
{
    QFETCH(const bool, whileTyping);
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    Window window;
    window.validate(whileTyping);
    window.field.setText(before);
    QVERIFY(window.open());
    window.field.setText(after);
    QTEST(window.log.take(), "expected");
}

void tst_OxaTextInputLooks::asksAboutAnEmptyTextOnlyAsTheFocusChanges()
{
    Window window;
    window.validate(true);
    window.field.setValidateErrorWhenEmpty(true);
    window.field.setText(QStringLiteral("good"));
    QVERIFY(window.open());
    window.field.setText(QString());
    QCOMPARE(window.log.take(), QStringLiteral("focused | textChanged \"\" | hide error"));
    Q_EMIT textOf(window.field).editingFinished();
    QCOMPARE(window.log.take(), QStringLiteral("hide error"));
    window.field.setFocus();
    QCOMPARE(window.log.take(), QStringLiteral("asked \"\" | show error | error"));
}

void tst_OxaTextInputLooks::showsTheAnswerOfANewValidatorAtOnce()
{
    Window window;
    window.field.setValidateErrorWhenEmpty(true);
    QVERIFY(window.open());
    window.validate(false);
    QCOMPARE(window.log.take(), QStringLiteral("asked \"\" | show error | error"));
    window.field.setInputValidator({}, false);
    QCOMPARE(window.log.take(), QStringLiteral("normal"));
    window.field.setFocus();
    window.log.take();
    window.validate(false);
    window.field.setInputValidator({}, false);
    QCOMPARE(window.log.take(), QStringLiteral("asked \"\" | show error | error | focused"));
}

void tst_OxaTextInputLooks::keepsItsLookForANewValidatorOtherwise()
{
    Window window;
    window.field.setText(QStringLiteral("bad"));
    QVERIFY(window.open());
    window.validate(true);
    QCOMPARE(window.log.take(), QString());
}

void tst_OxaTextInputLooks::storesWhetherItValidatesAnEmptyText()
{
    Window window;
    window.validate(true);
    QVERIFY(window.open());
    window.field.setValidateErrorWhenEmpty(true);
    QVERIFY(window.field.getValidateErrorWhenEmpty());
    QCOMPARE(window.log.take(), QString());
    QCOMPARE(lookOf(window.field), QStringLiteral("normal"));
}

void tst_OxaTextInputLooks::checksTheTextAtReturn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("validates");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << QString() << true << "hide error";
    QTest::newRow("accepted") << QStringLiteral("good") << true << "asked \"good\" | hide error";
    QTest::newRow("rejected") << QStringLiteral("bad") << true << "asked \"bad\" | show error";
    QTest::newRow("a text without a validator") << QStringLiteral("bad") << false << "";
}

void tst_OxaTextInputLooks::checksTheTextAtReturn()
{
    QFETCH(const QString, text);
    QFETCH(const bool, validates);
    QFETCH(const QString, expected);
    Window window;
    if (validates)
        window.validate(false);
    window.field.setText(text);
    QVERIFY(window.open());
    window.field.setFocus();
    window.log.take();
    QTest::keyClick(&textOf(window.field), Qt::Key_Return);
    const QString start = QStringLiteral("key 1000004 | returnPressed");
    QCOMPARE(window.log.take(),
             expected.isEmpty() ? start : start + QStringLiteral(" | ") + expected);
}

void tst_OxaTextInputLooks::reportsWhatIsTyped()
{
    Window window;
    window.validate(true);
    QVERIFY(window.open());
    window.field.setFocus();
    window.log.take();
    QTest::keyClick(&textOf(window.field), Qt::Key_A);
    QCOMPARE(window.log.take(),
             QStringLiteral("key 41 | textEdited | asked \"a\" | focused | textChanged \"a\" | "
                            "hide error"));
}

void tst_OxaTextInputLooks::reportsKeysBeforeTheyAreTyped()
{
    Window window;
    QVERIFY(window.open());
    window.field.setFocus();
    QStringList texts;
    connect(&window.field, &OxaTextInput::keyPressed, this, [&] { texts += window.field.text(); });
    QTest::keyClicks(&textOf(window.field), QStringLiteral("ab"));
    QTest::keyClick(&textOf(window.field), Qt::Key_Escape);
    QCOMPARE(texts, QStringList({ QString(), QStringLiteral("a"), QStringLiteral("ab") }));
}

void tst_OxaTextInputLooks::movesTheFocusByTab()
{
    Window window;
    window.field.setMaxLength(5);
    QVERIFY(window.open());
    window.field.setFocus();
    window.log.take();
    QTest::keyClick(&textOf(window.field), Qt::Key_Tab);
    QVERIFY(window.after.hasFocus());
    window.field.setFocus();
    QTest::keyClick(&textOf(window.field), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(window.before.hasFocus());
    QVERIFY(!window.log.take().contains(QLatin1String("key 100000"))); // Other than Shift.
}

void tst_OxaTextInputLooks::insertsNoTab()
{
    SignalLog log;
    QWidget window; // Where Tab has nowhere else to go.
    OxaTextInput *field = makeField(&window);
    record(log, field);
    QVERIFY(Windows::activate(window));
    field->setFocus();
    log.take();
    QTest::sendKeyEvent(QTest::Click, &textOf(*field), Qt::Key_Tab, QStringLiteral("\t"),
                        Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Click, &textOf(*field), Qt::Key_Backtab, QStringLiteral("\t"),
                        Qt::ShiftModifier);
    QCOMPARE(field->text(), QString());
    QVERIFY(!log.take().contains(QLatin1String("key 100000"))); // Other than Shift.
}

void tst_OxaTextInputLooks::doesNotChangeForTheSameText()
{
    Window window;
    window.field.setText(QStringLiteral("good"));
    QVERIFY(window.open());
    window.field.setText(QStringLiteral("good"));
    QCOMPARE(window.log.take(), QString());
}

void tst_OxaTextInputLooks::looksAsItsValidatorSaysAfterAThemeChange()
{
    Window window;
    window.validate(true);
    window.field.setText(QStringLiteral("bad"));
    QVERIFY(window.open());
    const StoreGuard others(
            ColorSets::storeOf({ OxaColorSet(error.backgroundColorSetName, Qt::magenta),
                                 OxaColorSet(QStringLiteral("button-hyperlink-text"), Qt::blue) }));
    window.field.setThemeType(QStringLiteral("light"));
    QCOMPARE(lookOf(window.field), QStringLiteral("error"));
    QVERIFY(window.field.styleSheet().contains(QColor(Qt::magenta).name(QColor::HexArgb)));
}

void tst_OxaTextInputLooks::setsTheSameSheetOnceWhileTyping()
{
    Window window;
    QVERIFY(window.open());
    window.field.setFocus();
    QTest::keyClick(&textOf(window.field), Qt::Key_A);
    StyleChanges changes(window.field);
    const QSignalSpy cssChanged(&window.field, &OxaTextInput::cssChanged);
    QTest::keyClicks(&textOf(window.field), QStringLiteral("bc"));
    QCOMPARE(changes.count, 0);
    QCOMPARE(cssChanged.size(), 2);
    QCOMPARE(window.field.text(), QStringLiteral("abc"));
}

using Change = std::function<void(OxaTextInput &)>;

void tst_OxaTextInputLooks::setsTheSheetAgainWhereThatCanBeSeen_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("palette") << Change([](OxaTextInput &field) {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::cyan);
        field.setPalette(palette);
    });
    QTest::newRow("another sheet") << Change(
            [](OxaTextInput &field) { field.setStyleSheet(QStringLiteral("color: red;")); });
    QTest::newRow("another name") << Change([](OxaTextInput &field) {
        const QSignalBlocker blocker(field);
        field.setObjectName(QStringLiteral("renamed"));
    });
    QTest::newRow("other colours") << Change([](OxaTextInput &) {
        OxaColorSetMap sets = store();
        sets[focused.backgroundColorSetName.toStdString()].normal = Qt::cyan;
        OxaThemeUtils::setAppOxaColorSets(sets);
    });
    QTest::newRow("a style text of its own") << Change([](OxaTextInput &field) {
        OxaCSSData own = focused;
        own.plainStyleSheet = QStringLiteral("OxaTextInput[invalid=true] { color: red; }");
        OxaTextInputFactory({ normal, own, error }).apply(&field);
        QTest::keyClick(&textOf(field), Qt::Key_B);
    });
}

void tst_OxaTextInputLooks::setsTheSheetAgainWhereThatCanBeSeen()
{
    QFETCH(const Change, change);
    const StoreGuard stores(store());
    Window window;
    QVERIFY(window.open());
    window.field.setFocus();
    QTest::keyClick(&textOf(window.field), Qt::Key_A);
    change(window.field);
    StyleChanges changes(window.field);
    QTest::keyClick(&textOf(window.field), Qt::Key_C);
    QVERIFY(changes.count > 0);
    const auto expected = OxaThemeUtils::parseCSS(&window.field, window.field.getCSS(),
                                                  OxaThemeUtils::getAppOxaColorSets());
    QCOMPARE(window.field.styleSheet(), expected.expandedStyleSheet);
}

UIELEMENTS_TEST_MAIN(tst_OxaTextInputLooks)
#include "tst_oxatextinput_looks.moc"
