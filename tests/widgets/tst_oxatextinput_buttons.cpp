// SPDX-License-Identifier: Apache-2.0
#include "TextInputParts.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <QAccessible>

using namespace TextInputParts;

/// The counter, and the buttons that clear a field and show a password.
class tst_OxaTextInputButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void showsPartsByTextAndFocus_data();
    void showsPartsByTextAndFocus();
    void changesPartsWithItsProperties();
    void showsNoCounterWithoutALimit();
    void countsTheTextInUtf16Units();
    void showsANewTotalWithTheNextText();
    void countsWhenTheCounterComes();
    void clearsTheTextWithTheFocus();
    void clearsTheTextWithoutTheFocus();
    void hidesTheClearButtonBeforeItClears();
    void givesItsPasswordButtonTwoFaces();
    void showsAndHidesAPassword();
    void keepsTheEchoModeOfAnEmptyPassword();
    void namesThePasswordButtonByWhatItDoes();
    void colorsItsIconsLikeItsText();
    void masksTheTextOfAPasswordField();
    void givesTheTextTheFocusAfterThePasswordButton();
    void namesItsPartsForAssistiveTechnology();
    void hasItsRoleForAssistiveTechnology_data();
    void hasItsRoleForAssistiveTechnology();

private:
    std::unique_ptr<StoreGuard> m_stores;
    SvgFiles m_files;
};

void tst_OxaTextInputButtons::showsPartsByTextAndFocus_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("expected");
    const std::pair<const char *, const char *> rows[] = {
        { "", "" },
        { "focus", "" },
        { "text", "clear" },
        { "text focus", "clear" },
        { "limit", "counter" },
        { "limit focus", "counter" },
        { "limit text", "clear" },
        { "limit text focus", "counter" },
        { "read-only", "" },
        { "read-only text focus", "" },
        { "read-only limit", "" },
        { "read-only limit text focus", "" },
        { "password", "" },
        { "password focus", "" },
        { "password text", "password" },
        { "password text focus", "password" },
        { "password limit", "counter" },
        { "password limit text", "password" },
        { "password limit text focus", "counter password" },
        { "password read-only text", "password" },
    };
    for (const auto &[state, expected] : rows)
        QTest::addRow("%s", *state ? state : "empty")
                << QString::fromLatin1(state) << QString::fromLatin1(expected);
}

void tst_OxaTextInputButtons::showsPartsByTextAndFocus()
{
    QFETCH(const QString, state);
    Window window;
    const auto apply = [&] {
        if (state.contains(QLatin1String("limit")))
            window.field.setMaxLength(10);
        if (state.contains(QLatin1String("read-only")))
            window.field.setReadOnly(true);
        if (state.contains(QLatin1String("password")))
            window.field.setPasswordField(true);
    };
    const auto fill = [&] {
        if (state.contains(QLatin1String("text")))
            window.field.setText(QStringLiteral("abc"));
    };
    apply();
    fill();
    QVERIFY(window.open());
    if (state.contains(QLatin1String("focus")))
        window.field.setFocus();
    QTEST(partsShownBy(window.field), "expected");
    window.field.setText(QString());
    fill();
    apply();
    QTEST(partsShownBy(window.field), "expected");
    window.after.setFocus();
    if (state.contains(QLatin1String("focus")))
        window.field.setFocus();
    QTEST(partsShownBy(window.field), "expected");
}

void tst_OxaTextInputButtons::changesPartsWithItsProperties()
{
    Window window;
    window.field.setText(QStringLiteral("abc"));
    QVERIFY(window.open());
    window.field.setFocus();
    QCOMPARE(partsShownBy(window.field), QStringLiteral("clear"));
    window.field.setMaxLength(10);
    QCOMPARE(partsShownBy(window.field), QStringLiteral("counter"));
    window.field.setReadOnly(true);
    QCOMPARE(partsShownBy(window.field), QString());
    window.field.setReadOnly(false);
    QCOMPARE(partsShownBy(window.field), QStringLiteral("counter"));
    window.after.setFocus();
    QCOMPARE(partsShownBy(window.field), QStringLiteral("clear"));
    window.field.setPasswordField(true);
    QCOMPARE(partsShownBy(window.field), QStringLiteral("password"));
    window.field.setPasswordField(false);
    QCOMPARE(partsShownBy(window.field), QStringLiteral("clear"));
}

void tst_OxaTextInputButtons::showsNoCounterWithoutALimit()
{
    Window window;
    window.field.setDisplayMaxLength(10);
    QVERIFY(window.open());
    window.field.setFocus();
    window.field.setText(QStringLiteral("abc"));
    QCOMPARE(partsShownBy(window.field), QStringLiteral("clear"));
    window.field.setMaxLength(32767);
    QCOMPARE(partsShownBy(window.field), QStringLiteral("clear"));
}

void tst_OxaTextInputButtons::countsTheTextInUtf16Units()
{
    Window window;
    window.field.setMaxLength(10);
    QVERIFY(window.open());
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("0/10"));
    window.field.setFocus();
    QTest::keyClicks(&textOf(window.field), QStringLiteral("abc"));
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("3/10"));
    window.field.setText(QString::fromUtf8("a\xf0\x9f\x98\x80"));
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("3/10"));
    window.field.setText(QStringLiteral("0123456789abc"));
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("10/10"));
}

void tst_OxaTextInputButtons::showsANewTotalWithTheNextText()
{
    Window window;
    window.field.setMaxLength(10);
    QVERIFY(window.open());
    window.field.setFocus();
    window.field.setDisplayMaxLength(8);
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("0/10"));
    QTest::keyClick(&textOf(window.field), Qt::Key_A);
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("1/8"));
}

void tst_OxaTextInputButtons::countsWhenTheCounterComes()
{
    Window window;
    window.field.setMaxLength(10);
    window.field.setText(QStringLiteral("abc"));
    QCOMPARE(counterOf(window.field).text(), QString());
    QVERIFY(window.open());
    window.field.setText(QStringLiteral("abcd"));
    QCOMPARE(counterOf(window.field).text(), QString());
    window.field.setFocus();
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("4/10"));
    window.after.setFocus();
    window.field.setText(QStringLiteral("ab"));
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("4/10"));
    window.field.setFocus();
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("2/10"));
}

void tst_OxaTextInputButtons::clearsTheTextWithTheFocus()
{
    Window window;
    window.validate(true);
    window.field.setText(QStringLiteral("bad"));
    QVERIFY(window.open());
    window.field.setFocus();
    window.log.take();
    clearButtonOf(window.field).click();
    QCOMPARE(window.field.text(), QString());
    QCOMPARE(window.log.take(),
             QStringLiteral("focused | textChanged \"\" | hide error | focused | textEdited | "
                            "hide error"));
    QVERIFY(window.field.hasFocus());
}

void tst_OxaTextInputButtons::clearsTheTextWithoutTheFocus()
{
    Window window;
    window.validate(true);
    window.field.setValidateErrorWhenEmpty(true);
    window.field.setText(QStringLiteral("bad"));
    QVERIFY(window.open());
    clearButtonOf(window.field).click();
    QCOMPARE(window.log.take(),
             QStringLiteral("focused | textChanged \"\" | hide error | asked \"\" | show error | "
                            "error | focused | textEdited | hide error"));
    QVERIFY(window.field.hasFocus());
    QCOMPARE(lookOf(window.field), QStringLiteral("focused"));
    QCOMPARE(partsShownBy(window.field), QString());
}

void tst_OxaTextInputButtons::hidesTheClearButtonBeforeItClears()
{
    Window window;
    window.field.setText(QStringLiteral("abc"));
    QVERIFY(window.open());
    window.field.setFocus();
    // Without the signals of the text, nothing but the clearing hides the button.
    textOf(window.field).blockSignals(true);
    clearButtonOf(window.field).click();
    QVERIFY(clearButtonOf(window.field).isHidden());
    QCOMPARE(window.field.text(), QString());
}

void tst_OxaTextInputButtons::givesItsPasswordButtonTwoFaces()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    const QString shown = m_files.square(QStringLiteral("shown.svg"));
    const QString masked = m_files.square(QStringLiteral("masked.svg"));
    const OxaSvgPushButton &button = passwordButtonOf(*field);
    field->setPasswordField(true);
    field->setPasswordIcons(shown, masked);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(button.accessibleName(), QStringLiteral("Show password"));
        QCOMPARE(button.getSvgIcon(), masked);
        QCOMPARE(button.iconSize(), QSize(13, 8));
        QCOMPARE(button.getSvgIconSize(), QSize(13, 8));
        passwordButtonOf(*field).click();
        QCOMPARE(button.accessibleName(), QStringLiteral("Hide password"));
        QCOMPARE(button.getSvgIcon(), shown);
        QCOMPARE(button.iconSize(), QSize(13, 13));
        QCOMPARE(button.getSvgIconSize(), QSize(13, 13));
        passwordButtonOf(*field).click();
    }
}

void tst_OxaTextInputButtons::showsAndHidesAPassword()
{
    Window window;
    window.field.setPasswordField(true);
    window.field.setText(QStringLiteral("secret"));
    QVERIFY(window.open());
    QCOMPARE(textOf(window.field).displayText().count(QLatin1Char('s')), 0);
    passwordButtonOf(window.field).click();
    QCOMPARE(textOf(window.field).echoMode(), QLineEdit::Normal);
    QCOMPARE(textOf(window.field).displayText(), QStringLiteral("secret"));
    passwordButtonOf(window.field).click();
    QCOMPARE(textOf(window.field).echoMode(), QLineEdit::Password);
    QCOMPARE(window.field.text(), QStringLiteral("secret"));
}

void tst_OxaTextInputButtons::namesThePasswordButtonByWhatItDoes()
{
    Window window;
    window.field.setPasswordField(true);
    window.field.setText(QStringLiteral("secret"));
    const OxaSvgPushButton &button = passwordButtonOf(window.field);
    QCOMPARE(button.accessibleName(), QStringLiteral("Show password"));
    passwordButtonOf(window.field).click();
    QCOMPARE(button.accessibleName(), QStringLiteral("Hide password"));
    window.field.setPasswordField(true);
    QCOMPARE(textOf(window.field).echoMode(), QLineEdit::Password);
    QCOMPARE(button.accessibleName(), QStringLiteral("Show password"));
}

void tst_OxaTextInputButtons::colorsItsIconsLikeItsText()
{
    OxaCSSData look = normal;
    look.textColorSetName = focused.backgroundColorSetName;
    const OxaTextInputFactory fields({ look, look, look });
    const std::unique_ptr<OxaTextInput> field(fields.make(nullptr));
    const QList<OxaSvgPushButton *> buttons = field->findChildren<OxaSvgPushButton *>();
    QCOMPARE(buttons.size(), 3);
    for (OxaSvgPushButton *button : buttons)
        QCOMPARE(button->getSvgIconColorSet(), look.textColorSetName);

    clearButtonOf(*field).setSvgIconColorSet(error.backgroundColorSetName);
    fields.apply(field.get());
    QCOMPARE(clearButtonOf(*field).getSvgIconColorSet(), error.backgroundColorSetName);
}

void tst_OxaTextInputButtons::keepsTheEchoModeOfAnEmptyPassword()
{
    Window window;
    window.field.setPasswordField(true);
    window.field.setText(QStringLiteral("secret"));
    QVERIFY(window.open());
    passwordButtonOf(window.field).click();
    window.field.setText(QString());
    QCOMPARE(partsShownBy(window.field), QString());
    QCOMPARE(textOf(window.field).echoMode(), QLineEdit::Normal);
    window.field.setText(QStringLiteral("again"));
    QCOMPARE(partsShownBy(window.field), QStringLiteral("password"));
    QCOMPARE(textOf(window.field).echoMode(), QLineEdit::Normal);
}

void tst_OxaTextInputButtons::masksTheTextOfAPasswordField()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->setPasswordField(true);
    QCOMPARE(textOf(*field).echoMode(), QLineEdit::Password);
    field->setPasswordField(false);
    QCOMPARE(textOf(*field).echoMode(), QLineEdit::Normal);
}

void tst_OxaTextInputButtons::givesTheTextTheFocusAfterThePasswordButton()
{
    Window window;
    window.field.setPasswordField(true);
    window.field.setText(QStringLiteral("secret"));
    QVERIFY(window.open());
    for (int i = 0; i < 2; ++i) {
        window.after.setFocus();
        window.log.take();
        passwordButtonOf(window.field).click();
        QVERIFY(window.field.hasFocus());
        QCOMPARE(window.log.take(), QStringLiteral("focused"));
    }
}

void tst_OxaTextInputButtons::namesItsPartsForAssistiveTechnology()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    QCOMPARE(textOf(*field).accessibleName(), QStringLiteral("Text input field"));
    QCOMPARE(clearButtonOf(*field).accessibleName(), QStringLiteral("Clear Input"));
    field->setTextInputAccessibleText(QStringLiteral("Name"));
    QCOMPARE(textOf(*field).accessibleName(), QStringLiteral("Name"));
    field->setButtonAccessibleText(QStringLiteral("Remove the name"));
    QCOMPARE(clearButtonOf(*field).accessibleName(), QStringLiteral("Remove the name"));
}

void tst_OxaTextInputButtons::hasItsRoleForAssistiveTechnology_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("accessibleName");
    QTest::addColumn<bool>("isFocusable");
    QTest::newRow("text") << QStringLiteral("textInput") << int(QAccessible::EditableText)
                          << QStringLiteral("Text input field") << true;
    QTest::newRow("counter") << QStringLiteral("textInputCounterLabel")
                             << int(QAccessible::StaticText) << QStringLiteral("3/5") << false;
    QTest::newRow("clear button") << QStringLiteral("clearInputButton") << int(QAccessible::Button)
                                  << QStringLiteral("Clear Input") << true;
    QTest::newRow("password button")
            << QStringLiteral("passwordActionButton") << int(QAccessible::Button)
            << QStringLiteral("Show password") << true;
    QTest::newRow("search icon, a picture")
            << QStringLiteral("searchIcon") << int(QAccessible::Graphic) << QString() << false;
}

void tst_OxaTextInputButtons::hasItsRoleForAssistiveTechnology()
{
    QFETCH(const QString, name);
    Window window;
    window.field.setMaxLength(5);
    window.field.setPasswordIcons(m_files.square(), m_files.square());
    QVERIFY(window.open());
    window.field.setFocus();
    window.field.setText(QStringLiteral("abc"));
    auto *const part = window.field.findChild<QWidget *>(name);
    part->show();
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(part);
    QTEST(int(told->role()), "role");
    QTEST(told->text(QAccessible::Name), "accessibleName");
    QTEST(bool(told->state().focusable), "isFocusable");
    if (told->role() == QAccessible::Graphic)
        QVERIFY(!told->actionInterface() || told->actionInterface()->actionNames().isEmpty());
}

UIELEMENTS_TEST_MAIN(tst_OxaTextInputButtons)
#include "tst_oxatextinput_buttons.moc"
