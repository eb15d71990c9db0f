// SPDX-License-Identifier: Apache-2.0
#include "SignInForm.h"
#include "support/CodeBlocks.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgPushButton.h>

#include <QPointer>
#include <QSignalSpy>

namespace {

OxaColorSetMap formStore()
{
    OxaColorSetMap store;
    for (const char *name :
         { "background-primary", "button-hyperlink-text", "checkbox-checked-background",
           "checkbox-unchecked-background", "field-background", "field-border", "field-error",
           "field-focus-border", "field-placeholder", "field-text", "oxa-default-text",
           "oxa-reaction-list-item-gradient-background-end-color", "oxa-recorder-comboBox-border" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), Qt::gray));
    return store;
}

/// A window with the form, and the form's parts.
struct Window : QWidget
{
    Window()
    {
        form->resize(300, 300);
        resize(form->size());
        show();
        QApplication::setActiveWindow(this);
    }

    /// Returns whether the label of the error is there.
    bool showsError() const
    {
        return form->findChild<OxaLabel *>(QString(), Qt::FindDirectChildrenOnly)->isVisible();
    }

    const QPointer<SignInForm> form = new SignInForm(this);
    const QList<OxaTextInput *> fields = form->findChildren<OxaTextInput *>();
    OxaLineEdit *const mail = fields.at(0)->getLineEdit();
    OxaLineEdit *const password = fields.at(1)->getLineEdit();
    OxaCheckBox *const remember = form->findChild<OxaCheckBox *>();
    OxaPushButton *const signIn = form->findChild<OxaPushButton *>(QString(),
                                                                   Qt::FindDirectChildrenOnly);
};

} // namespace

/// The form of docs/forms.md.
class tst_SignInForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(formStore()); }
    void cleanup() { m_stores.reset(); }

    void isQuotedWordForWord();
    void paintsIconsInTheColorOfTheText();
    void keepsItsFieldsAsHighAsTheirTexts();
    void tellsOfAWrongAddressWhenItsFieldIsLeft();
    void submitsByItsButtonAndByReturn();
    void returnsToAWrongAddress();
    void mayBeDeletedWhenItSubmits();
    void showsAnIconInItsSearchField();
    void countsTheUnitsOfATitle();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_SignInForm::isQuotedWordForWord()
{
    const QByteArrayList blocks = CodeBlocks::blocksOf(QStringLiteral(FORMS_GUIDE));
    QVERIFY(blocks.size() > 1);
    // All of it, so that a reader's copy compiles.
    QCOMPARE(blocks.join('\n'), CodeBlocks::codeOf(QStringLiteral(SIGN_IN_FORM)));
}

void tst_SignInForm::paintsIconsInTheColorOfTheText()
{
    const Window window;
    for (const OxaTextInput *field : window.fields) {
        for (const auto *part : field->findChildren<OxaSvgPushButton *>())
            QCOMPARE(part->getSvgIconColorSet(), QStringLiteral("field-text"));
    }
}

void tst_SignInForm::keepsItsFieldsAsHighAsTheirTexts()
{
    const Window window;
    window.form->resize(300, 600);
    for (const OxaTextInput *field : window.fields)
        QCOMPARE(field->height(), field->sizeHint().height());
}

void tst_SignInForm::tellsOfAWrongAddressWhenItsFieldIsLeft()
{
    const Window window;
    window.mail->setFocus();
    QTest::keyClicks(window.mail, QStringLiteral("ada"));
    QVERIFY(!window.showsError());
    window.password->setFocus();
    QVERIFY(window.showsError());
    window.mail->setFocus();
    QTest::keyClicks(window.mail, QStringLiteral("@example.org"));
    window.password->setFocus();
    QVERIFY(!window.showsError());
}

void tst_SignInForm::submitsByItsButtonAndByReturn()
{
    const Window window;
    QSignalSpy submitted(window.form, &SignInForm::submitted);
    window.signIn->click();
    QCOMPARE(submitted.size(), 0);
    window.mail->setText(QStringLiteral("ada@example.org"));
    window.password->setText(QStringLiteral("secret"));
    window.remember->click();
    window.signIn->click();
    QCOMPARE(submitted.size(), 1);
    QCOMPARE(submitted.at(0),
             QVariantList({ QStringLiteral("ada@example.org"), QStringLiteral("secret"), true }));
    QTest::keyClick(window.password, Qt::Key_Return);
    QCOMPARE(submitted.size(), 2);
}

void tst_SignInForm::returnsToAWrongAddress()
{
    const Window window;
    window.mail->setText(QStringLiteral("ada"));
    window.password->setFocus();
    QTest::keyClick(window.password, Qt::Key_Return);
    QVERIFY(window.mail->hasFocus());
    QVERIFY(window.showsError());
}

void tst_SignInForm::mayBeDeletedWhenItSubmits()
{
    const Window window;
    connect(window.form, &SignInForm::submitted, this, [&window] { delete window.form; });
    window.mail->setText(QStringLiteral("ada@example.org"));
    QTest::keyClick(window.password, Qt::Key_Return);
    QVERIFY(!window.form);
}

void tst_SignInForm::showsAnIconInItsSearchField()
{
    QWidget window;
    OxaTextInput *search = makeSearchField(&window);
    window.show();
    const auto *icon = search->findChild<OxaPushButton *>(QStringLiteral("searchIcon"));
    QVERIFY(icon->isVisible());
    QVERIFY(icon->geometry().right() < search->getLineEdit()->x());
}

void tst_SignInForm::countsTheUnitsOfATitle()
{
    QWidget window;
    OxaTextInput *title = makeTitleField(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    title->setFocus();
    QTest::keyClicks(title->getLineEdit(), QStringLiteral("Tea"));
    QCOMPARE(title->findChild<OxaLabel *>(QStringLiteral("textInputCounterLabel"))->text(),
             QStringLiteral("3/80"));
}

UIELEMENTS_TEST_MAIN(tst_SignInForm)
#include "tst_signinform.moc"
