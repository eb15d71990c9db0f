// SPDX-License-Identifier: Apache-2.0
#include "TextEditParts.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaTextBrowser.h>

#include <QAccessible>
#include <QSignalSpy>

using namespace TextEditParts;

namespace {

const QUrl address(QStringLiteral("https://example.org/"));

} // namespace

class tst_OxaTextBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmptyInTheDefaultFont();
    void storesAnAccessibleRole();
    void leavesWhatAltGrTypesToShortcuts();
    void drawsNoFrameOfItsOwn();
    void opensQtsOwnMenu();
    void followsLinks();
    void takesTheColorsOfItsStyleText();
    void isAReaderForAssistiveTechnology();
};

void tst_OxaTextBrowser::startsEmptyInTheDefaultFont()
{
    QWidget parent;
    const auto *browser = new OxaTextBrowser(&parent);
    QCOMPARE(browser->parentWidget(), &parent);
    QCOMPARE(browser->toPlainText(), QString());
    QCOMPARE(browser->getFontToken(), OxaFont::Token::Default);
    QCOMPARE(browser->font().pixelSize(), 16);
}

void tst_OxaTextBrowser::storesAnAccessibleRole()
{
    OxaTextBrowser browser;
    QCOMPARE(browser.getAccessibleRole(), QAccessible::NoRole);
    browser.setAccessibleRole(QAccessible::Document);
    QCOMPARE(browser.getAccessibleRole(), QAccessible::Document);
    QVERIFY(browser.setProperty("accessibleRole", QVariant::fromValue(QAccessible::Note)));
    QCOMPARE(browser.getAccessibleRole(), QAccessible::Note);
}

void tst_OxaTextBrowser::leavesWhatAltGrTypesToShortcuts()
{
    OxaTextBrowser browser;
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier,
                    QStringLiteral("@"));
    event.ignore();
    QCoreApplication::sendEvent(&browser, &event);
    QVERIFY(!event.isAccepted());
}

void tst_OxaTextBrowser::drawsNoFrameOfItsOwn()
{
    const ApplicationStyleGuard style;
    OxaTextBrowser browser;
    browser.setPlainText(QStringLiteral("text"));
    browser.show();
    QApplication::setActiveWindow(&browser);
    browser.setFocus(Qt::TabFocusReason);
    QVERIFY(browser.hasFocus());
    Pixels::render(browser);
    for (const RecordingStyle::Call &call : style.calls())
        QVERIFY(call.element != QStyle::PE_FrameFocusRect);
    QCOMPARE(browser.viewport()->property("hasCustomRect"), QVariant());
}

void tst_OxaTextBrowser::opensQtsOwnMenu()
{
    const StoreGuard stores(menuStore("#112233"));
    OxaTextBrowser browser;
    browser.setPlainText(QStringLiteral("text"));
    browser.show();
    QMenu *menu = menuOf(*browser.viewport());
    QVERIFY(menu);
    QCOMPARE(menu->styleSheet(), QString());
    menu->close();
}

void tst_OxaTextBrowser::followsLinks()
{
    OxaTextBrowser browser;
    browser.setOpenLinks(false);
    browser.resize(200, 60);
    browser.setHtml(QStringLiteral("<a href='https://example.org/'>WWWWWWWW</a>"));
    browser.show();
    const QSignalSpy clicked(&browser, &QTextBrowser::anchorClicked);
    QTest::mouseClick(browser.viewport(), Qt::LeftButton, {},
                      browser.cursorRect(QTextCursor(browser.document())).center() + QPoint(20, 0));
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.at(0).at(0).toUrl(), address);
}

void tst_OxaTextBrowser::takesTheColorsOfItsStyleText()
{
    const StoreGuard stores(
            ColorSets::storeOf({ ColorSets::make(QStringLiteral("ground"), { "#c81ed2" }),
                                 ColorSets::make(QStringLiteral("ink"), { "#1ed25a" }) }));
    OxaTextBrowser browser;
    browser.setPlainText(QStringLiteral("WWWW"));
    browser.setCSS(QStringLiteral("$backgroundColors: ground; $textColors: ink;"));
    browser.resize(120, 60);
    const QImage image = Pixels::render(browser);
    QVERIFY(Pixels::countNear(image, QColor(0xc8, 0x1e, 0xd2)) > 3000);
    QVERIFY(Pixels::countNear(image, QColor(0x1e, 0xd2, 0x5a)) > 20);
}

void tst_OxaTextBrowser::isAReaderForAssistiveTechnology()
{
    OxaTextBrowser browser;
    browser.setPlainText(QStringLiteral("text"));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&browser);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::StaticText);
    browser.setAccessibleRole(QAccessible::Document);
    QCOMPARE(accessible->role(), QAccessible::Document);
    QVERIFY(accessible->state().readOnly);
}

UIELEMENTS_TEST_MAIN(tst_OxaTextBrowser)
#include "tst_oxatextbrowser.moc"
