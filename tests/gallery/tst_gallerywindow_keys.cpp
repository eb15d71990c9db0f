// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"
#include "ShownGallery.h"

#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QAbstractItemView>

#include <shell/NavigationList.h>
#include <widgets/TableView.h>

/// The gallery by keyboard, with keys that come from the X server.
class tst_GalleryWindow_keys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entersASegmentedControlAtItsCurrentMember();
    void goesToTheNextSegmentByAnArrowKey();
    void listsTheStopsThatTabMakes();
    void goesBetweenThePanesByF6();
    void choosesTheFirstAndTheLastPageByHomeAndEnd();
    void clearsASearchByEscape();
    void fillsInAFormByKeys();
    void showsTheCurrentCellOfATable();
};

void tst_GalleryWindow_keys::entersASegmentedControlAtItsCurrentMember()
{
    const ShownGallery shown("labels");
    QVERIFY(shown.isActive);
    shown.control("Theme type").setCurrentIndex(2);
    QCOMPARE(shown.focusedText(), QStringLiteral("Light"));
    QVERIFY(shown.type("Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Dark"));
    QVERIFY(shown.type("Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("LTR"));
    QVERIFY(shown.type("shift+Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Dark"));
}

void tst_GalleryWindow_keys::goesToTheNextSegmentByAnArrowKey()
{
    const ShownGallery shown("labels");
    QVERIFY(shown.isActive);
    QVERIFY(shown.type("Tab"));
    QVERIFY(shown.type("Right"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Light"));
    QCOMPARE(shown.control("Theme type").currentIndex(), 1);
    QVERIFY(shown.type("Left"));
    QCOMPARE(shown.control("Theme type").currentIndex(), 0);
}

void tst_GalleryWindow_keys::listsTheStopsThatTabMakes()
{
    ShownGallery shown("focus");
    QVERIFY(shown.isActive);
    const std::vector<QWidget *> stops = TabOrder::of(&shown.window);
    QVERIFY(stops.size() > 10);
    for (std::size_t i = 1; i <= stops.size(); ++i) {
        const QWidget *expected = stops[i % stops.size()];
        const QWidget *reached = shown.type("Tab");
        QVERIFY2(reached == expected, qPrintable(TabOrder::describe(*reached)));
    }
}

void tst_GalleryWindow_keys::goesBetweenThePanesByF6()
{
    const ShownGallery shown("colours");
    QVERIFY(shown.isActive);
    const QWidget *inHeader = shown.window.focusWidget();
    const auto *navigation = shown.window.findChild<NavigationList *>();
    QVERIFY(navigation->isAncestorOf(shown.type("F6")));
    QCOMPARE(shown.navigation().currentIndex().data().toString(), QStringLiteral("Colours"));
    const QWidget *inPage = shown.type("F6");
    QVERIFY(shown.page()->isAncestorOf(inPage));
    QCOMPARE(shown.type("F6"), inHeader);
    QCOMPARE(shown.type("shift+F6"), inPage);
    QVERIFY(navigation->isAncestorOf(shown.type("shift+F6")));
}

void tst_GalleryWindow_keys::choosesTheFirstAndTheLastPageByHomeAndEnd()
{
    const ShownGallery shown("labels");
    QVERIFY(shown.isActive);
    QCOMPARE(shown.type("F6"), &shown.navigation());
    QVERIFY(shown.titleAfter("End", "Hover cards"));
    QVERIFY(shown.titleAfter("Home", "Colours"));
    QVERIFY(shown.titleAfter("Down", "Style text"));
    QVERIFY(shown.navigation().hasFocus());
}

void tst_GalleryWindow_keys::clearsASearchByEscape()
{
    const ShownGallery shown("colours");
    QVERIFY(shown.isActive);
    auto *search = shown.page()->findChild<OxaTextInput *>();
    search->setText(QStringLiteral("border"));
    search->setFocus();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_COMPARE(search->text(), QString());
    QVERIFY(search->hasFocus());
}

void tst_GalleryWindow_keys::fillsInAFormByKeys()
{
    const ShownGallery shown("forms");
    QVERIFY(shown.isActive);
    const auto typeText = [](const char *text) {
        return RealInput::send({ QStringLiteral("type"), QString::fromLatin1(text) });
    };
    auto *address = Controls::called<OxaTextInput>(*shown.page(), "Mail address");
    address->setFocus();
    QVERIFY(typeText("ada@"));
    QTRY_COMPARE(address->text(), QStringLiteral("ada@"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Clear Input"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Password"));
    QVERIFY(typeText("secret"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Show password"));
    auto *remember = qobject_cast<OxaCheckBox *>(shown.type("Tab"));
    QVERIFY(remember);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(remember->isChecked());
    QVERIFY(shown.type("Tab"));
    QCOMPARE(shown.focusedText(), QStringLiteral("Sign in"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Name"));
    QCOMPARE(shown.type("Tab")->accessibleName(), QStringLiteral("Language"));
    auto *captions = qobject_cast<OxaComboBox *>(shown.type("Tab"));
    QVERIFY(captions);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(captions->view()->isVisible());
    QVERIFY(captions->view()->window()->frameGeometry().bottom()
            < captions->mapToGlobal(QPoint()).y());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Down"), QStringLiteral("space") }));
    QTRY_COMPARE(captions->currentText(), QStringLiteral("In calls"));
    QTRY_VERIFY(!captions->view()->isVisible());
}

void tst_GalleryWindow_keys::showsTheCurrentCellOfATable()
{
    const ShownGallery shown("colours");
    QVERIFY(shown.isActive);
    auto *table = shown.page()->findChild<TableView *>();
    const QColor border = OxaThemeUtils::getColorSet("gallery-focus-border",
                                                     OxaThemeUtils::AppThemeType::Global)
                                  .normal;
    const auto frameIsAt = [table, border](const QModelIndex &index) {
        const QImage image = table->viewport()->grab().toImage();
        return image.pixelColor(table->visualRect(index).topLeft() + QPoint(1, 5)) == border;
    };
    shown.page()->findChild<OxaTextInput *>()->setFocus();
    QCOMPARE(shown.type("Tab"), table);
    const QModelIndex first = table->currentIndex();
    QVERIFY(first.isValid());
    QTRY_VERIFY(frameIsAt(first));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Right") }));
    QTRY_VERIFY(frameIsAt(first.siblingAtColumn(1)));
    QVERIFY(!frameIsAt(first));
}

GALLERY_TEST_MAIN(tst_GalleryWindow_keys)
#include "tst_gallerywindow_keys.moc"
