// SPDX-License-Identifier: Apache-2.0
#include "TextInputParts.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QHoverEvent>
#include <QPointer>
#include <QSignalSpy>

using namespace TextInputParts;

namespace {

/// A field in a window of its own, behind pointers that tell what is gone.
struct Family
{
    Family()
        : window(new QWidget),
          other(new QPushButton(window)),
          field(makeField(window)),
          lineEdit(&textOf(*field))
    {
        window->resize(200, 100);
        field->setGeometry(0, 40, 200, 40);
        if (!Windows::activate(*window))
            qFatal("The window is not active.");
        other->setFocus();
    }
    ~Family() { delete window; }
    Q_DISABLE_COPY_MOVE(Family)

    const QPointer<QWidget> window;
    const QPointer<QPushButton> other;
    const QPointer<OxaTextInput> field;
    const QPointer<OxaLineEdit> lineEdit;
};

using Step = std::function<void(Family &)>;

/// One signal, or the validator, and what brings it about.
struct Trigger
{
    const char *cause;
    std::function<void(Family &, const std::function<void()> &)> listen;
    Step prepare;
    Step run;
};

template <typename Signal>
auto onField(Signal signal)
{
    return [signal](Family &family, const std::function<void()> &act) {
        QObject::connect(family.field, signal, [act] { act(); });
    };
}

template <typename Signal>
auto onLineEdit(Signal signal)
{
    return [signal](Family &family, const std::function<void()> &act) {
        QObject::connect(family.lineEdit, signal, [act] { act(); });
    };
}

void inValidator(Family &family, const std::function<void()> &act)
{
    family.field->setInputValidator(
            [act](const QString &) {
                act();
                return false;
            },
            true);
}

void nothing(Family &) { }
void focus(Family &family) { family.field->setFocus(); }
void reject(Family &family)
{
    family.field->setInputValidator([](const QString &) { return false; }, true);
}
void fill(Family &family) { family.field->setText(QStringLiteral("abc")); }
void fillAndFocus(Family &family)
{
    fill(family);
    focus(family);
}
void emptyAndFocus(Family &family)
{
    fillAndFocus(family); // Unless it changed, a text is not finished.
    family.field->setText(QString());
}
void fillAndReject(Family &family)
{
    fill(family);
    reject(family);
}
void fillFocusAndReject(Family &family)
{
    fillAndFocus(family);
    reject(family);
}
void type(Family &family) { QTest::keyClick(family.lineEdit.data(), Qt::Key_A); }
void pressReturn(Family &family) { QTest::keyClick(family.lineEdit.data(), Qt::Key_Return); }
void leave(Family &family) { family.other->setFocus(); }
void clear(Family &family) { clearButtonOf(*family.field).click(); }
void truncate(Family &family) { family.field->setMaxLength(1); }
void changeTheme(Family &family) { family.field->setThemeType(QStringLiteral("dark")); }
void changeLineEditsTheme(Family &family) { family.lineEdit->setThemeType(QStringLiteral("dark")); }
void changeLooks(Family &family)
{
    OxaTextInputFactory({ error, normal, focused }).apply(family.field);
}
void hover(Family &family)
{
    QHoverEvent event(QEvent::HoverEnter, QPointF(), QPointF());
    QCoreApplication::sendEvent(family.lineEdit, &event);
}
void ask(Family &family) { family.field->isValidInput(); }
void setValidatorOfEmptyTexts(Family &family)
{
    family.field->setValidateErrorWhenEmpty(true);
    reject(family);
}

/// Where the line edit is inside a signal or an event of its own.
const std::vector<Trigger> &triggersInTheLineEdit()
{
    static const std::vector<Trigger> triggers = {
        { "keyPressed, typing", onField(&OxaTextInput::keyPressed), focus, type },
        { "textEdited, typing", onField(&OxaTextInput::textEdited), focus, type },
        { "cssChanged, typing", onField(&OxaTextInput::cssChanged), focus, type },
        { "textChanged, typing", onField(&OxaTextInput::textChanged), focus, type },
        { "showErrorLabel, typing", onField(&OxaTextInput::showErrorLabel), focus, type },
        { "textChanged, set", onField(&OxaTextInput::textChanged), nothing, fill },
        { "cssChanged, set", onField(&OxaTextInput::cssChanged), nothing, fill },
        { "textChanged, cut off", onField(&OxaTextInput::textChanged), fill, truncate },
        { "keyPressed, Return", onField(&OxaTextInput::keyPressed), focus, pressReturn },
        { "returnPressed", onField(&OxaTextInput::returnPressed), focus, pressReturn },
        { "showErrorLabel, Return", onField(&OxaTextInput::showErrorLabel), focus, pressReturn },
        { "showErrorLabel, Return, rejected", onField(&OxaTextInput::showErrorLabel),
          fillFocusAndReject, pressReturn },
        { "cssChanged, focused", onField(&OxaTextInput::cssChanged), nothing, focus },
        { "showErrorLabel, focused", onField(&OxaTextInput::showErrorLabel), fillAndReject, focus },
        { "textChanged, cleared", onField(&OxaTextInput::textChanged), fillAndFocus, clear },
        { "textChanged, cleared without focus", onField(&OxaTextInput::textChanged), fill, clear },
        { "validator, typing", inValidator, focus, type },
        { "validator, Return", inValidator, fillAndFocus, pressReturn },
        { "validator, focused", inValidator, fill, focus },
    };
    return triggers;
}

/// Where another widget takes the focus. QWidget::setFocus() uses that one after this.
const std::vector<Trigger> &triggersOnLeaving()
{
    static const std::vector<Trigger> triggers = {
        { "cssChanged, left", onField(&OxaTextInput::cssChanged), focus, leave },
        { "showErrorLabel, left", onField(&OxaTextInput::showErrorLabel), emptyAndFocus, leave },
        { "showErrorLabel, left, rejected", onField(&OxaTextInput::showErrorLabel),
          fillFocusAndReject, leave },
        { "validator, left", inValidator, fillAndFocus, leave },
    };
    return triggers;
}

const std::vector<Trigger> &otherTriggers()
{
    static const std::vector<Trigger> triggers = {
        { "textEdited, cleared", onField(&OxaTextInput::textEdited), fillAndFocus, clear },
        { "cssChanged, other looks", onField(&OxaTextInput::cssChanged), nothing, changeLooks },
        { "showErrorLabel, other looks", onField(&OxaTextInput::showErrorLabel), fillAndReject,
          changeLooks },
        { "showErrorLabel, new validator", onField(&OxaTextInput::showErrorLabel), nothing,
          setValidatorOfEmptyTexts },
        { "cssChanged, other theme", onField(&OxaTextInput::cssChanged), nothing, changeTheme },
        { "themeTypeChanged", onField(&OxaTextInput::themeTypeChanged), nothing, changeTheme },
        { "validator, asked", inValidator, fill, ask },
        { "validator, other looks", inValidator, fill, changeLooks },
        { "hoveredChanged", onLineEdit(&OxaLineEdit::hoveredChanged), nothing, hover },
        { "cssChanged of the line edit", onLineEdit(&OxaLineEdit::cssChanged), nothing,
          changeLineEditsTheme },
        { "themeTypeChanged of the line edit", onLineEdit(&OxaLineEdit::themeTypeChanged), nothing,
          changeLineEditsTheme },
    };
    return triggers;
}

/// What a slot deletes.
enum class Victim { Field, Window, LineEdit };

void addRows(const std::vector<Trigger> &triggers, std::initializer_list<Victim> victims)
{
    constexpr const char *names[] = { "the field", "its window", "its line edit" };
    for (const Trigger &trigger : triggers) {
        for (const Victim victim : victims)
            QTest::addRow("%s: %s", trigger.cause, names[int(victim)]) << &trigger << int(victim);
    }
}

/// Calls everything that a field does with its parts.
void useAll(OxaTextInput &field, const QString &icon)
{
    field.setText(QStringLiteral("abc"));
    field.setPlaceholderText(field.placeholderText());
    field.setPlaceholderColorSetName(normal.backgroundColorSetName);
    field.setMaxLength(5);
    field.setReadOnly(true);
    field.setReadOnly(false);
    field.setValidator(nullptr);
    field.setAlignment(Qt::AlignRight);
    field.setCursorPosition(field.cursorPosition());
    field.setFocus();
    field.setIcon(icon);
    field.setSearchIcon(icon);
    field.setPasswordIcons(icon, icon);
    field.setPasswordField(true);
    field.setPasswordField(false);
    field.updateFontToken(OxaFont::Token::Default);
    field.updateIconSizes(10, 10);
    field.toggleClearButtonFocus(false);
    field.setTextInputAccessibleText(QStringLiteral("name"));
    field.setButtonAccessibleText(QStringLiteral("name"));
    field.setInputValidator([](const QString &text) { return text.isEmpty(); }, true);
    field.isValidInput();
    OxaTextInputFactory({ normal, focused, error }).apply(&field);
    for (const char *name : { "clearInputButton", "passwordActionButton" }) {
        if (auto *button = field.findChild<OxaSvgPushButton *>(QLatin1String(name)))
            button->click();
    }
    if (OxaLineEdit *lineEdit = field.getLineEdit())
        QTest::keyClicks(lineEdit, QStringLiteral("abc"));
    if (OxaLineEdit *lineEdit = field.getLineEdit())
        QTest::keyClick(lineEdit, Qt::Key_Return);
}

} // namespace

Q_DECLARE_METATYPE(const Trigger *)

/// Slots, validators and clients that delete a field or its parts.
class tst_OxaTextInputDeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store(), store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void survivesItsDeletion_data();
    void survivesItsDeletion();
    void saysNothingAsItIsDeleted();
    void worksWithoutParts_data();
    void worksWithoutParts();
    void survivesValidatorsThatChangeIt_data();
    void survivesValidatorsThatChangeIt();

private:
    std::unique_ptr<StoreGuard> m_stores;
    SvgFiles m_files;
};

void tst_OxaTextInputDeletion::survivesItsDeletion_data()
{
    QTest::addColumn<const Trigger *>("trigger");
    QTest::addColumn<int>("victim");
    addRows(triggersInTheLineEdit(), { Victim::Field, Victim::Window });
    addRows(triggersOnLeaving(), { Victim::Field });
    addRows(otherTriggers(), { Victim::Field, Victim::Window, Victim::LineEdit });
}

void tst_OxaTextInputDeletion::survivesItsDeletion()
{
    QFETCH(const Trigger *, trigger);
    QFETCH(const int, victim);
    Family family;
    const QPointer<QWidget> victims[] = { family.field.data(), family.window,
                                          family.lineEdit.data() };
    const QPointer<QWidget> chosen = victims[victim];
    trigger->prepare(family);
    bool isArmed = false;
    trigger->listen(family, [&] {
        if (std::exchange(isArmed, false)) // Deleting a window makes the field lose the focus.
            delete chosen;
    });
    isArmed = true;
    trigger->run(family);
    QVERIFY(!chosen);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!family.lineEdit);
}

void tst_OxaTextInputDeletion::saysNothingAsItIsDeleted()
{
    Family family;
    fillFocusAndReject(family);
    type(family);
    QSignalSpy errors(family.field, &OxaTextInput::showErrorLabel);
    int asked = 0;
    family.field->setInputValidator(
            [&asked](const QString &) {
                ++asked;
                return false;
            },
            true);
    delete family.field; // Its line edit loses the focus.
    QCOMPARE(errors.size(), 0);
    QCOMPARE(asked, 0);
    QVERIFY(!family.lineEdit);
}

void tst_OxaTextInputDeletion::worksWithoutParts_data()
{
    QTest::addColumn<QStringList>("names");
    const QStringList all = { QStringLiteral("textInput"), QStringLiteral("textInputCounterLabel"),
                              QStringLiteral("clearInputButton"),
                              QStringLiteral("passwordActionButton"),
                              QStringLiteral("searchIcon") };
    for (const QString &name : all)
        QTest::addRow("%s", qPrintable(name)) << QStringList { name };
    QTest::newRow("all") << all;
}

void tst_OxaTextInputDeletion::worksWithoutParts()
{
    QFETCH(const QStringList, names);
    const Family family;
    useAll(*family.field, m_files.square());
    for (const QString &name : names)
        delete family.field->findChild<QWidget *>(name);
    useAll(*family.field, m_files.square());
    QCOMPARE(family.field->getLineEdit(), family.lineEdit.data());
    if (!family.lineEdit) {
        QCOMPARE(family.field->text(), QString());
        QCOMPARE(family.field->maxLength(), 32767);
        QVERIFY(!family.field->isReadOnly());
        QVERIFY(!family.field->hasFocus());
    }
}

void tst_OxaTextInputDeletion::survivesValidatorsThatChangeIt_data()
{
    QTest::addColumn<QString>("replacement");
    QTest::newRow("cut short") << QStringLiteral("ab");
    QTest::newRow("emptied") << QString();
}

void tst_OxaTextInputDeletion::survivesValidatorsThatChangeIt()
{
    QFETCH(const QString, replacement);
    Family family;
    int asked = 0;
    family.field->setInputValidator(
            [&](const QString &) {
                ++asked;
                family.field->setInputValidator({}, true); // And so is gone itself.
                family.field->setText(replacement);
                return false;
            },
            true);
    fillAndFocus(family);
    leave(family);
    QCOMPARE(asked, 1);
    QCOMPARE(family.field->text(), replacement);
    family.field->setInputValidator(
            [&](const QString &) {
                family.field->setText(replacement);
                return true;
            },
            true);
    fillAndFocus(family);
    type(family);
    leave(family);
    QCOMPARE(family.field->text(), replacement);
}

UIELEMENTS_TEST_MAIN(tst_OxaTextInputDeletion)
#include "tst_oxatextinput_deletion.moc"
