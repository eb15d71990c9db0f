// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "theme/ThemedWidgets.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>

using Token = OxaFont::Token;
using FontType = FontManagerEnum::FontType;
using Factor = FontManagerEnum::FontScalingFactor;

namespace {

void addClassesWithFont() { addThemedClassesBut(ThemedClass::NoFont | ThemedClass::StartsStyled); }

void setToken(QWidget &widget, Token token)
{
    widget.setProperty("fontToken", QVariant::fromValue(token));
}

void setType(QWidget &widget, FontType type)
{
    widget.setProperty("fontType", QVariant::fromValue(type));
}

void scale(FontType type, Factor factor) { OxaFontManager::get()->setScalingFactor(type, factor); }

/// Deletes a widget when its font changes, before the widget gets the event.
class FontChangeDeleter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::FontChange)
            return false;
        delete watched;
        return true;
    }
};

} // namespace

/// How a widget's font follows a token and the scaled fonts of a view: a row for each class.
class tst_OxaFontBlock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void takesTheTokensFontAtOnce_data() { addClassesWithFont(); }
    void takesTheTokensFontAtOnce();
    void followsTheFontsOfItsView_data() { addClassesWithFont(); }
    void followsTheFontsOfItsView();
    void followsOnlyTheViewThatWasSetLast_data() { addClassesWithFont(); }
    void followsOnlyTheViewThatWasSetLast();
    void followsWithItsCurrentToken_data() { addClassesWithFont(); }
    void followsWithItsCurrentToken();
    void followsAFontThatIsWrittenIntoTheTable_data() { addClassesWithFont(); }
    void followsAFontThatIsWrittenIntoTheTable();
    void stopsFollowingBackAtTheDefaultType_data() { addClassesWithFont(); }
    void stopsFollowingBackAtTheDefaultType();
    void doesNothingForTheSameType_data() { addClassesWithFont(); }
    void doesNothingForTheSameType();

    void survivesAFontThatDeletesTheWidget_data();
    void survivesAFontThatDeletesTheWidget();
    void keepsItsFontWhenTheTableIsDeleted();
    void takesTheFallbackFamiliesWhenAsked();
    void fetchesTheFontAgainWhenUpdated();
    void asksForNoTableOfTheDefaultType();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaFontBlock::init() { m_stores = std::make_unique<StoreGuard>(storeWith("#112233")); }

void tst_OxaFontBlock::cleanup()
{
    scale(FontType::MessagingView, Factor::Regular);
    scale(FontType::MeetingView, Factor::Regular);
    m_stores.reset();
}

void tst_OxaFontBlock::takesTheTokensFontAtOnce()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    QCOMPARE(widget->font(), OxaFont(Token::Default, false));
    setToken(*widget, Token::HyperlinkSecondary);
    QCOMPARE(widget->font(), OxaFont(Token::HyperlinkSecondary, false));
}

void tst_OxaFontBlock::followsTheFontsOfItsView()
{
    FETCH_THEMED_CLASS;
    scale(FontType::MessagingView, Factor::Large);
    const auto widget = themed.make(nullptr);
    setToken(*widget, Token::BodyPrimary);
    QCOMPARE(widget->font().pixelSize(), 16);
    setType(*widget, FontType::MessagingView);
    QCOMPARE(widget->font().pixelSize(), 26);
    scale(FontType::MessagingView, Factor::Small);
    QCOMPARE(widget->font().pixelSize(), 14);
    scale(FontType::MessagingView, Factor::Regular);
    QCOMPARE(widget->font().pixelSize(), 16);
}

void tst_OxaFontBlock::followsOnlyTheViewThatWasSetLast()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    setToken(*widget, Token::BodyPrimary);
    setType(*widget, FontType::MessagingView);
    setType(*widget, FontType::MeetingView);
    scale(FontType::MessagingView, Factor::Large);
    QCOMPARE(widget->font().pixelSize(), 16);
    scale(FontType::MeetingView, Factor::Small);
    QCOMPARE(widget->font().pixelSize(), 14);
}

void tst_OxaFontBlock::followsWithItsCurrentToken()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    setType(*widget, FontType::MessagingView);
    setToken(*widget, Token::BodySecondary);
    scale(FontType::MessagingView, Factor::Large);
    QCOMPARE(widget->font().pixelSize(), 20);
    setToken(*widget, Token::HighlightPrimary);
    QCOMPARE(widget->font().pixelSize(), 26);
    QCOMPARE(widget->font().weight(), 75);
    scale(FontType::MessagingView, Factor::Small);
    QCOMPARE(widget->font().pixelSize(), 14);
    QCOMPARE(widget->font().weight(), 75);
}

void tst_OxaFontBlock::followsAFontThatIsWrittenIntoTheTable()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    setToken(*widget, Token::Display);
    setType(*widget, FontType::MeetingView);
    QFont font = widget->font();
    font.setPixelSize(33);
    font.setItalic(true);
    OxaFontManager::get()->getFont(FontType::MeetingView)->setProperty("Display", font);
    QCOMPARE(widget->font(), font);
}

void tst_OxaFontBlock::stopsFollowingBackAtTheDefaultType()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    setToken(*widget, Token::BodyPrimary);
    setType(*widget, FontType::MessagingView);
    scale(FontType::MessagingView, Factor::Large);
    setType(*widget, FontType::Default);
    scale(FontType::MessagingView, Factor::Small);
    // It keeps its font until a token is set again.
    QCOMPARE(widget->font().pixelSize(), 26);
    setToken(*widget, Token::BodyPrimary);
    QCOMPARE(widget->font().pixelSize(), 16);
}

void tst_OxaFontBlock::doesNothingForTheSameType()
{
    FETCH_THEMED_CLASS;
    const auto widget = themed.make(nullptr);
    QFont font = widget->font();
    font.setPixelSize(33);
    for (const FontType type : { FontType::Default, FontType::MessagingView }) {
        setType(*widget, type);
        widget->setFont(font);
        setType(*widget, type);
        QCOMPARE(widget->font().pixelSize(), 33);
    }
}

void tst_OxaFontBlock::survivesAFontThatDeletesTheWidget_data()
{
    QTest::addColumn<bool>("byToken");
    QTest::newRow("of its token") << true;
    QTest::newRow("of its view") << false;
}

void tst_OxaFontBlock::survivesAFontThatDeletesTheWidget()
{
    QFETCH(const bool, byToken);
    scale(FontType::MessagingView, Factor::Large);
    FontChangeDeleter deleter;
    const QPointer<OxaWidget> widget = new OxaWidget;
    widget->setFontToken(Token::BodyPrimary);
    widget->installEventFilter(&deleter);
    if (byToken)
        widget->setFontToken(Token::Display);
    else
        widget->setFontType(FontType::MessagingView);
    QVERIFY(!widget);
    scale(FontType::MessagingView, Factor::Small);
}

void tst_OxaFontBlock::keepsItsFontWhenTheTableIsDeleted()
{
    OxaWidget widget;
    widget.setFontToken(Token::BodyPrimary);
    widget.setFontType(FontType::MessagingView);
    scale(FontType::MessagingView, Factor::Large);
    delete OxaFontManager::get()->getFont(FontType::MessagingView);
    QCOMPARE(widget.font().pixelSize(), 26);
    widget.updateFont();
    QCOMPARE(widget.font().pixelSize(), 16);
    scale(FontType::MessagingView, Factor::Small);
    QCOMPARE(widget.font().pixelSize(), 14);
}

void tst_OxaFontBlock::takesTheFallbackFamiliesWhenAsked()
{
    OxaWidget widget;
    widget.setFontToken(Token::Title, true);
    QCOMPARE(widget.font(), OxaFont(Token::Title, true));
    widget.setFontToken(Token::Title);
    QCOMPARE(widget.font(), OxaFont(Token::Title, false));
}

void tst_OxaFontBlock::fetchesTheFontAgainWhenUpdated()
{
    OxaWidget widget;
    QFont font = widget.font();
    font.setPixelSize(33);
    widget.setFont(font);
    widget.updateFont();
    QCOMPARE(widget.font().pixelSize(), 33);

    widget.setFontType(FontType::MeetingView);
    widget.setFont(font);
    widget.updateFont();
    QCOMPARE(widget.font().pixelSize(), 16);
}

void tst_OxaFontBlock::asksForNoTableOfTheDefaultType()
{
    OxaFontManager::get()->getFont(FontType::MeetingView);
    const QList<QObject *> before = OxaFontManager::get()->children();
    OxaWidget widget;
    widget.setFontToken(Token::Title);
    widget.setFontType(FontType::MeetingView);
    widget.setFontType(FontType::Default);
    widget.updateFont();
    QCOMPARE(OxaFontManager::get()->children(), before);
}

UIELEMENTS_TEST_MAIN(tst_OxaFontBlock)
#include "tst_oxafontblock.moc"
