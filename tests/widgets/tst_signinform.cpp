// SPDX-License-Identifier: Apache-2.0
#include "SignInForm.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <QFile>
#include <QPointer>
#include <QSignalSpy>

#include <cstring>

namespace {

OxaColorSetMap formStore()
{
    OxaColorSetMap store;
    for (const char *name :
         { "background-primary", "button-hyperlink-text", "checkbox-checked-background",
           "checkbox-unchecked-background", "field-background", "field-border", "field-error",
           "field-focus-border", "field-text", "oxa-default-text",
           "oxa-reaction-list-item-gradient-background-end-color", "oxa-recorder-comboBox-border" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), Qt::gray));
    return store;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    void tellsOfAWrongAddressWhenItsFieldIsLeft();
    void submitsByItsButtonAndByReturn();
    void mayBeDeletedWhenItSubmits();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_SignInForm::isQuotedWordForWord()
{
    const QByteArray source = contentOf(QStringLiteral(SIGN_IN_FORM));
    const QByteArray guide = contentOf(QStringLiteral(FORMS_GUIDE));
    constexpr char fence[] = "\n```";
    int blocks = 0;
    for (int start = guide.indexOf("\n```cpp\n"); start >= 0;
         start = guide.indexOf("\n```cpp\n", start), ++blocks) {
        const int code = start + int(std::strlen("\n```cpp\n"));
        const int end = guide.indexOf(fence, code);
        const QByteArray block = guide.mid(code, end + 1 - code);
        QVERIFY2(source.contains(block), block.constData());
        start = end + 1;
    }
    QCOMPARE(blocks, 3);
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

void tst_SignInForm::mayBeDeletedWhenItSubmits()
{
    const Window window;
    connect(window.form, &SignInForm::submitted, this, [&window] { delete window.form; });
    window.mail->setText(QStringLiteral("ada@example.org"));
    QTest::keyClick(window.password, Qt::Key_Return);
    QVERIFY(!window.form);
}

UIELEMENTS_TEST_MAIN(tst_SignInForm)
#include "tst_signinform.moc"
