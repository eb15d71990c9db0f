// SPDX-License-Identifier: Apache-2.0
#include "TextInputParts.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/OxaFont.h>

#include <QHBoxLayout>
#include <QIntValidator>
#include <QProxyStyle>

using namespace TextInputParts;

namespace {

/// Records the reasons for which a widget gets the focus.
class FocusReasons : public QObject
{
public:
    explicit FocusReasons(QObject &watched) { watched.installEventFilter(this); }

    QVector<Qt::FocusReason> reasons;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            reasons += static_cast<QFocusEvent *>(event)->reason();
        return false;
    }
};

/// Counts how often widgets are polished.
class PolishCounter : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget *) override { ++polished; }
    void unpolish(QWidget *) override { ++unpolished; }

    int polished = 0;
    int unpolished = 0;
};

} // namespace

/// The parts of a field, and what it hands on to its line edit.
class tst_OxaTextInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanup() { m_stores.reset(); }

    void placesItsPartsInOrder();
    void startsWithHiddenParts_data();
    void startsWithHiddenParts();
    void makesItsButtonsRound();
    void startsEmptyAndWithoutALimit();
    void isMadeInItsNormalLook();
    void takesTheLooksOfAnotherFactory();
    void stylesItselfAgainForNewLooks();
    void handsOnToItsLineEdit();
    void hasProperties();
    void acceptsAllWithoutAValidator();
    void setsTheTotalOfTheCounterByItself();
    void givesItsLineEditTheFocusForNoReason();
    void mirrorsItsMargins();
    void showsASearchIcon();
    void setsTheSizesOfItsIcons();
    void setsTheClearButtonsIcon();
    void letsTheClearButtonBeAStopOfTab();
    void setsTheFontToken();

private:
    std::unique_ptr<StoreGuard> m_stores;
    SvgFiles m_files;
};

void tst_OxaTextInput::placesItsPartsInOrder()
{
    QWidget parent;
    const OxaTextInput *field = makeField(&parent);
    QCOMPARE(field->parent(), &parent);
    QCOMPARE(field->objectName(), QStringLiteral("OxaTextInput"));
    QCOMPARE(field->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(field->focusProxy(), &textOf(*field));
    const auto *layout = qobject_cast<QHBoxLayout *>(field->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 4);
    QCOMPARE(layout->contentsMargins(), QMargins(5, 3, 12, 3));
    QStringList names;
    for (int i = 0; i < layout->count(); ++i)
        names += layout->itemAt(i)->widget()->objectName();
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("searchIcon textInput textInputCounterLabel clearInputButton "
                            "passwordActionButton"));
    QCOMPARE(field->getLineEdit(), &textOf(*field));
    QCOMPARE(field->getPasswordActionButton().data(), &passwordButtonOf(*field));
    const QSizePolicy policy = textOf(*field).sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(policy.verticalPolicy(), QSizePolicy::Expanding);
}

void tst_OxaTextInput::startsWithHiddenParts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isHidden");
    QTest::addColumn<Qt::FocusPolicy>("focusPolicy");
    QTest::addColumn<QSize>("fixedSize");
    const QSize any;
    QTest::newRow("text") << QStringLiteral("textInput") << false << Qt::StrongFocus << any;
    QTest::newRow("counter") << QStringLiteral("textInputCounterLabel") << true << Qt::NoFocus
                             << any;
    QTest::newRow("clear button") << QStringLiteral("clearInputButton") << true << Qt::StrongFocus
                                  << QSize(14, 14);
    QTest::newRow("password button")
            << QStringLiteral("passwordActionButton") << true << Qt::StrongFocus << QSize(14, 14);
    QTest::newRow("search icon") << QStringLiteral("searchIcon") << true << Qt::NoFocus
                                 << QSize(12, 12);
}

void tst_OxaTextInput::startsWithHiddenParts()
{
    QFETCH(const QString, name);
    QFETCH(const QSize, fixedSize);
    QWidget parent;
    const auto *part = makeField(&parent)->findChild<QWidget *>(name);
    QVERIFY(part);
    QTEST(part->isHidden(), "isHidden");
    QTEST(part->focusPolicy(), "focusPolicy");
    if (fixedSize.isValid()) {
        QCOMPARE(part->minimumSize(), fixedSize);
        QCOMPARE(part->maximumSize(), fixedSize);
    }
}

void tst_OxaTextInput::makesItsButtonsRound()
{
    QWidget parent;
    const OxaTextInput *field = makeField(&parent);
    for (const OxaSvgPushButton *button : { &clearButtonOf(*field), &passwordButtonOf(*field) })
        QCOMPARE(button->getCSS(),
                 QStringLiteral("$borders: all; $borderWidth:1;"
                                "$borderRadius:7;"));
    QCOMPARE(searchIconOf(*field).getCSS(), QString());
    QCOMPARE(searchIconOf(*field).getSvgIconSize(), QSize(12, 12));
    QCOMPARE(textOf(*field).getFontToken(), OxaFont::Token::Default);
    QCOMPARE(counterOf(*field).getFontToken(), OxaFont::Token::Default);
}

void tst_OxaTextInput::startsEmptyAndWithoutALimit()
{
    QWidget parent;
    const OxaTextInput *field = makeField(&parent);
    QCOMPARE(field->text(), QString());
    QCOMPARE(field->placeholderText(), QString());
    QCOMPARE(field->maxLength(), 32767);
    QCOMPARE(field->getDisplayMaxLength(), 0);
    QVERIFY(!field->isReadOnly());
    QVERIFY(!field->getValidateErrorWhenEmpty());
    QCOMPARE(field->cursorPosition(), 0);
    QCOMPARE(textOf(*field).echoMode(), QLineEdit::Normal);
    QCOMPARE(counterOf(*field).text(), QString());
}

void tst_OxaTextInput::isMadeInItsNormalLook()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    QCOMPARE(lookOf(*field), QStringLiteral("normal"));
    QCOMPARE(field->styleSheet(),
             QStringLiteral("#OxaTextInput{border:none;}"
                            "#OxaTextInput{background-color:#ff00c800;}"));
}

void tst_OxaTextInput::takesTheLooksOfAnotherFactory()
{
    Window window;
    OxaTextInputFactory({ error, normal, focused }).apply(&window.field);
    QCOMPARE(lookOf(window.field), QStringLiteral("error"));
    QVERIFY(window.open());
    window.field.setFocus();
    QCOMPARE(lookOf(window.field), QStringLiteral("normal"));
    window.validate(true);
    window.field.setText(QStringLiteral("bad"));
    QCOMPARE(lookOf(window.field), QStringLiteral("focused"));
    OxaTextInputFactory({ normal, focused, error }).apply(&window.field);
    QCOMPARE(lookOf(window.field), QStringLiteral("error"));
    window.field.setText(QStringLiteral("good"));
    OxaTextInputFactory({ error, normal, focused }).apply(&window.field);
    QCOMPARE(lookOf(window.field), QStringLiteral("normal"));
}

void tst_OxaTextInput::stylesItselfAgainForNewLooks()
{
    PolishCounter style;
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->setStyle(&style);
    field->setCSS(normal);
    style.polished = style.unpolished = 0;
    field->setCSS(normal);
    const int polishedByTheSheet = style.polished;
    const int unpolishedByTheSheet = style.unpolished;
    style.polished = style.unpolished = 0;
    OxaTextInputFactory({ normal, focused, error }).apply(field);
    QCOMPARE(style.polished, polishedByTheSheet + 1);
    QCOMPARE(style.unpolished, unpolishedByTheSheet + 1);
    field->setStyle(nullptr);
}

void tst_OxaTextInput::handsOnToItsLineEdit()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    const OxaLineEdit &text = textOf(*field);
    field->setText(QStringLiteral("12345"));
    QCOMPARE(text.text(), QStringLiteral("12345"));
    field->setCursorPosition(2);
    QCOMPARE(text.cursorPosition(), 2);
    QCOMPARE(field->cursorPosition(), 2);
    field->setPlaceholderText(QStringLiteral("number"));
    QCOMPARE(text.placeholderText(), QStringLiteral("number"));
    QCOMPARE(field->placeholderText(), QStringLiteral("number"));
    field->setAlignment(Qt::AlignRight);
    QCOMPARE(text.alignment(), Qt::AlignRight);
    const QIntValidator validator;
    field->setValidator(&validator);
    QCOMPARE(text.validator(), &validator);
    field->setReadOnly(true);
    QVERIFY(text.isReadOnly());
    QVERIFY(field->isReadOnly());
    field->setPlaceholderColorSetName(focused.backgroundColorSetName);
    QCOMPARE(text.getPlaceholderColorSetName(), focused.backgroundColorSetName);
    QCOMPARE(text.palette().color(QPalette::PlaceholderText), focusedColor);
}

void tst_OxaTextInput::hasProperties()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    const std::pair<const char *, QVariant> values[] = {
        { "maxLength", 7 },
        { "displayMaxLength", 5 },
        { "text", QStringLiteral("abc") },
        { "placeholderText", QStringLiteral("letters") },
        { "readOnly", true },
        { "validateErrorWhenEmpty", true },
    };
    for (const auto &[name, value] : values) {
        QVERIFY2(field->metaObject()->indexOfProperty(name) >= 0, name);
        QVERIFY2(field->property(name) != value, name);
        QVERIFY2(field->setProperty(name, value), name);
        QCOMPARE(field->property(name), value);
    }
}

void tst_OxaTextInput::acceptsAllWithoutAValidator()
{
    Window window;
    QVERIFY(window.field.isValidInput());
    window.field.setInputValidator({}, true);
    window.field.setText(QStringLiteral("bad"));
    QVERIFY(window.field.isValidInput());
    window.validate(false);
    window.log.take();
    QVERIFY(!window.field.isValidInput());
    QCOMPARE(window.log.take(), QStringLiteral("asked \"bad\""));
    window.field.setText(QString());
    window.log.take();
    QVERIFY(!window.field.isValidInput());
    QCOMPARE(window.log.take(), QStringLiteral("asked \"\""));
}

void tst_OxaTextInput::setsTheTotalOfTheCounterByItself()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->setMaxLength(10);
    QCOMPARE(field->maxLength(), 10);
    QCOMPARE(textOf(*field).maxLength(), 10);
    QCOMPARE(field->getDisplayMaxLength(), 10);
    field->setDisplayMaxLength(8);
    QCOMPARE(field->maxLength(), 10);
    QCOMPARE(field->getDisplayMaxLength(), 8);
}

void tst_OxaTextInput::givesItsLineEditTheFocusForNoReason()
{
    Window window;
    QVERIFY(window.open());
    QVERIFY(!window.field.hasFocus());
    const FocusReasons focus(textOf(window.field));
    window.field.setFocus();
    QVERIFY(window.field.hasFocus());
    QVERIFY(textOf(window.field).hasFocus());
    QCOMPARE(focus.reasons, { Qt::OtherFocusReason });
}

void tst_OxaTextInput::mirrorsItsMargins()
{
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QWidget parent;
    QCOMPARE(makeField(&parent)->layout()->contentsMargins(), QMargins(12, 3, 5, 3));
}

void tst_OxaTextInput::showsASearchIcon()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->setSearchIcon(m_files.square());
    QCOMPARE(field->layout()->contentsMargins(), QMargins(12, 3, 12, 3));
    QVERIFY(!searchIconOf(*field).isHidden());
    QCOMPARE(searchIconOf(*field).getSvgIcon(), m_files.square());
    QCOMPARE(searchIconOf(*field).getSvgIconSize(), QSize(12, 12));
}

void tst_OxaTextInput::setsTheSizesOfItsIcons()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->setSearchIcon(m_files.square());
    field->setIcon(m_files.square());
    field->updateIconSizes(20, 24);
    QCOMPARE(searchIconOf(*field).minimumSize(), QSize(20, 20));
    QCOMPARE(searchIconOf(*field).maximumSize(), QSize(20, 20));
    QCOMPARE(searchIconOf(*field).getSvgIconSize(), QSize(20, 20));
    QCOMPARE(clearButtonOf(*field).minimumSize(), QSize(24, 24));
    QCOMPARE(clearButtonOf(*field).maximumSize(), QSize(24, 24));
    QCOMPARE(clearButtonOf(*field).getSvgIconSize(), QSize(24, 24));
}

void tst_OxaTextInput::setsTheClearButtonsIcon()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->setIcon(m_files.square());
    QCOMPARE(clearButtonOf(*field).getSvgIcon(), m_files.square());
    QCOMPARE(clearButtonOf(*field).iconSize(), QSize(14, 14));
    QCOMPARE(clearButtonOf(*field).getSvgIconSize(), QSize(14, 14));
    QVERIFY(clearButtonOf(*field).isHidden());
}

void tst_OxaTextInput::letsTheClearButtonBeAStopOfTab()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->toggleClearButtonFocus(false);
    QCOMPARE(clearButtonOf(*field).focusPolicy(), Qt::NoFocus);
    field->toggleClearButtonFocus(true);
    QCOMPARE(clearButtonOf(*field).focusPolicy(), Qt::StrongFocus);
}

void tst_OxaTextInput::setsTheFontToken()
{
    QWidget parent;
    OxaTextInput *field = makeField(&parent);
    field->updateFontToken(OxaFont::Token::BodySecondary);
    QCOMPARE(textOf(*field).getFontToken(), OxaFont::Token::BodySecondary);
    QCOMPARE(textOf(*field).font(), QFont(OxaFont(OxaFont::Token::BodySecondary)));
    QCOMPARE(counterOf(*field).getFontToken(), OxaFont::Token::Default);
}

UIELEMENTS_TEST_MAIN(tst_OxaTextInput)
#include "tst_oxatextinput.moc"
