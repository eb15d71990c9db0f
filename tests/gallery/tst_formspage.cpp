// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QAbstractItemView>
#include <QHoverEvent>
#include <QPainter>
#include <QStyleOption>
#include <QTextBlock>

#include <looks/TextSettings.h>
#include <looks/ThemeSwitcher.h>
#include <shell/Page.h>
#include <shell/PageRegistry.h>
#include <support/PaintCounter.h>
#include <support/Pixels.h>
#include <widgets/Fields.h>

namespace {

/// The page in a window that is shown.
struct FormsWindow
{
    FormsWindow()
    {
        page->resize(window.size());
        window.show();
    }

    template <typename Widget>
    Widget *called(const char *name) const
    {
        return Controls::called<Widget>(*page, name);
    }

    QWidget window;
    Page *page = findPageEntry(QStringLiteral("forms"))->make(&window);
};

/// Returns the colour of the first link in \a area.
QColor linkColor(const QTextEdit &area)
{
    for (QTextBlock block = area.document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isAnchor())
                return it.fragment().charFormat().foreground().color();
        }
    }
    return {};
}

/// Returns the frame that the style draws around a field of 40 by 40 pixels.
QImage focusFrame(const QWidget &field)
{
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QStyleOptionFocusRect option;
    option.rect = image.rect();
    option.state = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    QPainter painter(&image);
    QApplication::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &field);
    return image;
}

QColor colorOf(const char *set)
{
    return OxaThemeUtils::getColorSet(set, OxaThemeUtils::AppThemeType::Global).normal;
}

/// Returns the rectangle around all pixels in which \a a and \a b differ.
QRect differenceOf(const QImage &a, const QImage &b)
{
    QRect rect;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

} // namespace

/// The forms of the page Forms.
class tst_FormsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void tellsOfAnAddressThatIsWrong_data();
    void tellsOfAnAddressThatIsWrong();
    void stylesEachCombo();
    void showsInTheBrowserWhatIsEdited();
    void marksWhatIsSearched();
    void givesLinksTheColorOfTheTheme();
    void putsTextsOnTheSideWhereTheLayoutBegins();
    void keepsACheckBoxOnOneLineInLargerText();
    void framesTheFocusByALineAlone();
    void repaintsALineAsThePointerComesAndGoes();
    void leavesTheFocusOfAnEditorToItsBorder();
    void framesTheHandleOfASlider_data();
    void framesTheHandleOfASlider();
};

void tst_FormsPage::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setAppearance(ThemeSwitcher::Appearance::Light);
    GalleryApplication::get()->textSettings()->setDirection(Qt::LeftToRight);
    GalleryApplication::get()->textSettings()->setFontScale(1.0F);
}

void tst_FormsPage::tellsOfAnAddressThatIsWrong_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isWrong");
    QTest::newRow("none") << QString() << false;
    QTest::newRow("a valid one") << QStringLiteral("ada@example.org") << false;
    QTest::newRow("with a dot and a subdomain") << QStringLiteral("a.b@mail.example.org") << false;
    QTest::newRow("without a domain") << QStringLiteral("ada@") << true;
    QTest::newRow("without a dot") << QStringLiteral("ada@example") << true;
    QTest::newRow("with two ats") << QStringLiteral("ada@b@example.org") << true;
    QTest::newRow("with a space") << QStringLiteral("a da@example.org") << true;
}

void tst_FormsPage::tellsOfAnAddressThatIsWrong()
{
    QFETCH(const QString, address);
    FormsWindow forms;
    forms.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&forms.window));
    auto *field = forms.called<OxaTextInput>("Mail address");
    const auto labels = forms.page->findChildren<OxaLabel *>();
    const auto error = std::find_if(labels.begin(), labels.end(), [](const OxaLabel *label) {
        return label->text() == QLatin1String("Enter an address such as ada@example.org.");
    });
    QVERIFY(error != labels.end());
    QVERIFY(!(*error)->isVisible());
    field->setFocus();
    QTest::keyClicks(field->getLineEdit(), address);
    QVERIFY(!(*error)->isVisible());
    forms.called<OxaTextInput>("Password")->setFocus();
    QTEST((*error)->isVisible(), "isWrong");
    QTEST(field->property("css").toString().contains(QLatin1String("gallery-field-error-border")),
          "isWrong");
}

void tst_FormsPage::stylesEachCombo()
{
    const FormsWindow forms;
    const auto combos = forms.page->findChildren<OxaComboBox *>();
    QVERIFY(combos.size() > 3);
    for (const OxaComboBox *combo : combos)
        QVERIFY2(!combo->styleSheet().isEmpty(), qPrintable(combo->accessibleName()));
    const auto *language = forms.called<OxaComboBox>("Language");
    QVERIFY(language->count() > 100);
    QCOMPARE(language->view()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QVERIFY(forms.called<OxaComboBox>("Captions")->isOpenedUpwards());
    QVERIFY(!forms.called<OxaComboBox>("First day")->isComboBoxAnimationEnabled());
}

void tst_FormsPage::showsInTheBrowserWhatIsEdited()
{
    const FormsWindow forms;
    auto *editor = forms.called<OxaTextEdit>("Editor");
    const auto *browser = forms.called<OxaTextBrowser>("Browser");
    QCOMPARE(browser->toPlainText(), editor->toPlainText());
    editor->setHtml(QStringLiteral("One <b>two</b>"));
    QCOMPARE(browser->toPlainText(), QStringLiteral("One two"));
}

void tst_FormsPage::marksWhatIsSearched()
{
    const FormsWindow forms;
    const auto *browser = forms.called<OxaTextBrowser>("Browser");
    auto *search = Controls::called<OxaTextInput>(*browser->parentWidget(), "Search");
    search->setText(QStringLiteral("the"));
    const auto marks = browser->extraSelections();
    QCOMPARE(marks.size(), 6);
    for (const auto &mark : marks)
        QCOMPARE(mark.cursor.selectedText().toLower(), QStringLiteral("the"));
    search->setText(QString());
    QVERIFY(browser->extraSelections().isEmpty());
}

void tst_FormsPage::givesLinksTheColorOfTheTheme()
{
    const FormsWindow forms;
    for (const auto appearance :
         { ThemeSwitcher::Appearance::Dark, ThemeSwitcher::Appearance::HighContrast }) {
        GalleryApplication::get()->themeSwitcher()->setAppearance(appearance);
        for (const char *name : { "Editor", "Browser", "OxaTextEdit", "OxaTextBrowser" })
            QCOMPARE(linkColor(*forms.called<QTextEdit>(name)), colorOf("button-hyperlink-text"));
    }
}

void tst_FormsPage::putsTextsOnTheSideWhereTheLayoutBegins()
{
    const FormsWindow forms;
    const auto *field = forms.called<OxaTextInput>("Mail address")->getLineEdit();
    QVERIFY(field->alignment().testFlag(Qt::AlignLeft));
    GalleryApplication::get()->textSettings()->setDirection(Qt::RightToLeft);
    QVERIFY(field->alignment().testFlag(Qt::AlignRight));
    QVERIFY(field->alignment().testFlag(Qt::AlignAbsolute));
}

void tst_FormsPage::keepsACheckBoxOnOneLineInLargerText()
{
    const FormsWindow forms;
    auto *box = Controls::withText<OxaCheckBox>(*forms.page, "Remember me");
    GalleryApplication::get()->textSettings()->setFontScale(1.5F);
    QTRY_VERIFY(box->width() >= box->fontMetrics().horizontalAdvance(box->text()));
    QVERIFY(box->height() < 2 * box->fontMetrics().height());
}

void tst_FormsPage::framesTheFocusByALineAlone()
{
    const FormsWindow forms;
    const QImage frame = focusFrame(*forms.called<OxaComboBox>("Language"));
    QCOMPARE(frame.pixelColor(0, 20), colorOf("gallery-focus-border"));
    QCOMPARE(frame.pixelColor(1, 20), colorOf("gallery-focus-border"));
    QCOMPARE(frame.pixelColor(2, 20).alpha(), 0);
    // The corners are as round as the field's.
    QCOMPARE(frame.pixelColor(0, 0).alpha(), 0);
}

void tst_FormsPage::repaintsALineAsThePointerComesAndGoes()
{
    const std::unique_ptr<OxaLineEdit> field(Fields::line());
    field->setText(QStringLiteral("Text"));
    PaintCounter counter(*field);
    for (const auto type : { QEvent::HoverEnter, QEvent::HoverLeave }) {
        QHoverEvent event(type, QPointF(5, 5), QPointF());
        QCoreApplication::sendEvent(field.get(), &event);
        QCOMPARE(counter.take(), 1);
    }
}

void tst_FormsPage::leavesTheFocusOfAnEditorToItsBorder()
{
    const FormsWindow forms;
    const QImage frame = focusFrame(*forms.called<OxaTextEdit>("Editor"));
    QCOMPARE(frame.pixelColor(0, 20).alpha(), 0);
}

void tst_FormsPage::framesTheHandleOfASlider_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("value");
    for (const int value : { 0, 3, 10 }) {
        QTest::addRow("%d, from left to right", value) << Qt::LeftToRight << value;
        QTest::addRow("%d, from right to left", value) << Qt::RightToLeft << value;
    }
}

void tst_FormsPage::framesTheHandleOfASlider()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, value);
    GalleryApplication::get()->textSettings()->setDirection(direction);
    OxaWidget window;
    window.resize(200, 40);
    OxaSlider *slider = Fields::slider(0, 10, value, &window);
    slider->resize(160, 24);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    slider->clearFocus();
    const QImage without = Pixels::render(*slider, Qt::red);
    const QRect handle = Pixels::boundsNear(without, colorOf("gallery-slider-handle"), 0);
    QVERIFY(!handle.isNull());
    slider->setFocus(Qt::ShortcutFocusReason);
    const QRect frame = differenceOf(without, Pixels::render(*slider, Qt::red));
    QCOMPARE(frame.size(), QSize(18, 18));
    QCOMPARE(frame.center(), handle.center());
}

GALLERY_TEST_MAIN(tst_FormsPage)
#include "tst_formspage.moc"
