// SPDX-License-Identifier: Apache-2.0
#include "BusReader.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/Windows.h"
#include "theme/ThemedWidgets.h"

#include <QVBoxLayout>

namespace {

/// A window with a form and what is around one.
class Form : public OxaWidget
{
public:
    Form()
    {
        setWindowTitle(QStringLiteral("Account"));
        auto *column = new QVBoxLayout(this);
        column->addWidget(new OxaLabel(QStringLiteral("Account"), this, QAccessible::Heading));
        auto *caption = new OxaLabel(QStringLiteral("Mail"), this);
        auto *field = OxaTextInputFactory({}).make(this);
        field->setTextInputAccessibleText(QStringLiteral("mail"));
        field->setButtonAccessibleText(QStringLiteral("clear"));
        field->setInputValidator([](const QString &text) { return text.size() > 3; }, true);
        auto *error = new OxaLabel(QStringLiteral("No @ in it"), this, QAccessible::AlertMessage);
        error->hide();
        caption->setBuddy(field);
        error->setBuddy(field);
        connect(field, &OxaTextInput::showErrorLabel, error, &OxaLabel::setVisible);
        auto *bell = new OxaPushButton(this);
        bell->setToolTip(QStringLiteral("News"));
        bell->setBadgeVisible(true);
        auto *box = new OxaCheckBox(this);
        box->setText(QStringLiteral("&Remember"));
        box->setChecked(true);
        for (QWidget *each : { static_cast<QWidget *>(caption), static_cast<QWidget *>(field),
                               static_cast<QWidget *>(error), static_cast<QWidget *>(bell),
                               static_cast<QWidget *>(box) })
            column->addWidget(each);
        field->setText(QStringLiteral("a"));
    }
};

} // namespace

/// What arrives on the accessibility bus.
class tst_AccessibilityBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfAForm();
};

void tst_AccessibilityBus::tellsOfAForm()
{
    OxaColorSetMap colors = storeWith("#102030");
    colors.emplace("badge-background",
                   ColorSets::make(QStringLiteral("badge-background"), { "red" }));
    const StoreGuard stores(colors, colors);
    Form form;
    QVERIFY(Windows::activate(form));
    const BusReader reader;
    QVERIFY(reader.isConnected());
    QVector<BusReader::Node> applications;
    QVERIFY(QTest::qWaitFor([&] { return !(applications = reader.applications()).isEmpty(); }));
    QCOMPARE(applications.size(), 1);
    QCOMPARE(reader.childrenOf(applications.first()).size(), 1);
    const QStringList told = reader.tree(reader.childrenOf(applications.first()).first());
    const char *const expected[] = {
        "frame 'Account' [active]",
        "  heading 'Account' [read-only]",
        "  label 'Mail' [read-only] <label for 'Mail'> <label for 'mail'>",
        ("  panel 'Mail' (No @ in it) {SetFocus} <labelled by 'Mail'>"
         " <controller for 'No @ in it'>"),
        ("    text 'mail' (No @ in it) [editable focusable] {SetFocus}"
         " <labelled by 'Mail'> <controller for 'No @ in it'>"),
        "    label '' [hidden read-only]",
        "    push button 'clear' [focusable] {Press SetFocus}",
        "    push button '' [hidden focusable] {Press SetFocus}",
        "    graphic '' [hidden]",
        "  alert message 'No @ in it' [read-only] <controlled by 'Mail'> <controlled by 'mail'>",
        "  push button 'News' (Unread) [focusable] {Press SetFocus}",
        "  check box 'Remember' [checked focusable] {Toggle SetFocus}",
    };
    for (int i = 0; i < told.size(); ++i)
        QCOMPARE(told.at(i), QString::fromLatin1(i < int(std::size(expected)) ? expected[i] : ""));
    QCOMPARE(told.size(), int(std::size(expected)));
}

UIELEMENTS_TEST_MAIN(tst_AccessibilityBus)
#include "tst_accessibilitybus.moc"
