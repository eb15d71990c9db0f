// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/widgets/OxaLineEdit.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

/// Records how it is asked for focus frames.
class FrameStyle : public QProxyStyle
{
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_FrameFocusRect)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        ++frames;
        isOnNoDevice = painter && !painter->isActive() && !painter->device();
        rect = option->rect;
        state = option->state;
        frameOf = widget;
    }

    mutable int frames = 0;
    mutable bool isOnNoDevice = false;
    mutable QRect rect;
    mutable QStyle::State state;
    mutable const QWidget *frameOf = nullptr;
};

/// Sets a style for the application, and restores Fusion when it is destroyed.
class FrameStyleGuard
{
    Q_DISABLE_COPY_MOVE(FrameStyleGuard)

public:
    FrameStyleGuard() { QApplication::setStyle(style); }
    ~FrameStyleGuard() { QApplication::setStyle(QStringLiteral("Fusion")); }

    FrameStyle *const style = new FrameStyle;
};

/// Opens the context menu of \a edit at \a position in it, and returns it.
QMenu *openMenu(QWidget &edit, const QPoint &position)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, edit.mapToGlobal(position));
    QCoreApplication::sendEvent(&edit, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

/// Returns the finished sheet of context menus, for sets whose colours are those below plus
/// \a shade.
QString menuSheet(int shade)
{
    const QString sheet = QStringLiteral(
            "QMenu {     background-color: #ff0000%1; } QMenu::item {     color: #ff0001%1;     "
            "background-color: #ff0002%1;     height: 32px;     width: 238px;     "
            "padding-top: 5px;     padding-bottom: 5px;     padding-left: 12px;     "
            "padding-right: 12px; } QMenu::item:hover {     color: #ff0101%1;     "
            "background-color: #ff0102%1; } QMenu::item:selected {     color: #ff0101%1;     "
            "background-color: #ff0102%1; } QMenu::item:disabled {     color: #ff0201%1;     "
            "background-color: #ff0202%1; } QMenu::separator {     height: 1px;     "
            "background: #ff0003%1;     margin-left: 12px;     margin-right: 12px; } ");
    return sheet.arg(shade, 2, 16, QLatin1Char('0'));
}

/// Returns the sets of context menus: the red part of a colour tells its state, the green one its
/// set.
OxaColorSetMap menuStore(int shade)
{
    OxaColorSetMap store;
    int number = 0;
    for (const char *name : { "menulistbackground-secondary-background", "listitem-textprimary",
                              "listitem-background", "separator-primary" }) {
        OxaColorSet set(QString::fromLatin1(name), QColor(0, number, shade));
        set.hovered = QColor(1, number, shade);
        set.disabled = QColor(2, number, shade);
        ++number;
        store.emplace(name, set);
    }
    return store;
}

} // namespace

Q_DECLARE_METATYPE(Qt::Alignment)

/// What a line edit looks like: its sides, its focus frame, and its context menu.
class tst_OxaLineEditLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void swapsItsMarginsWithTheLayoutDirection();
    void alignsItsTextWithTheLayoutDirection_data();
    void alignsItsTextWithTheLayoutDirection();
    void drawsNoFocusFrameByItself();
    void drawsAFocusFrameForTheKeyboardAlone();
    void opensAContextMenuInTheColorsOfItsTheme_data();
    void opensAContextMenuInTheColorsOfItsTheme();
    void deletesItsContextMenuAsItCloses();
    void opensNoContextMenuWhereNoneIsWanted();
};

void tst_OxaLineEditLooks::swapsItsMarginsWithTheLayoutDirection()
{
    OxaLineEdit edit;
    edit.setContentsMargins(1, 2, 3, 4);
    {
        const LayoutDirectionGuard direction(Qt::RightToLeft);
        QCOMPARE(edit.contentsMargins(), QMargins(3, 2, 1, 4));
    }
    QCOMPARE(edit.contentsMargins(), QMargins(1, 2, 3, 4));
    edit.onLayoutDirectionChanged();
    QCOMPARE(edit.contentsMargins(), QMargins(3, 2, 1, 4));
}

void tst_OxaLineEditLooks::alignsItsTextWithTheLayoutDirection_data()
{
    QTest::addColumn<Qt::Alignment>("before");
    QTest::addColumn<bool>("isCentred");
    const std::pair<const char *, Qt::Alignment> alignments[] = {
        { "none", {} },
        { "left", Qt::AlignLeft },
        { "left, top", Qt::AlignLeft | Qt::AlignTop },
        { "right, bottom", Qt::AlignRight | Qt::AlignBottom },
        { "justified", Qt::AlignJustify | Qt::AlignVCenter },
        { "absolute", Qt::AlignAbsolute | Qt::AlignRight },
        { "top", Qt::AlignTop },
        { "horizontal centre, top", Qt::AlignHCenter | Qt::AlignTop },
    };
    for (const auto &[name, alignment] : alignments)
        QTest::newRow(name) << alignment << false;
    QTest::newRow("centre") << Qt::Alignment(Qt::AlignCenter) << true;
    QTest::newRow("horizontal centre") << Qt::Alignment(Qt::AlignHCenter) << true;
}

void tst_OxaLineEditLooks::alignsItsTextWithTheLayoutDirection()
{
    QFETCH(const Qt::Alignment, before);
    QFETCH(const bool, isCentred);
    const std::tuple<QVariant, Qt::LayoutDirection, Qt::Alignment> sides[] = {
        { QVariant(), Qt::LeftToRight, Qt::AlignLeft },
        { QVariant(), Qt::RightToLeft, Qt::AlignRight },
        { int(Qt::LeftToRight), Qt::RightToLeft, Qt::AlignRight },
        { int(Qt::RightToLeft), Qt::RightToLeft, Qt::AlignLeft },
        { int(Qt::RightToLeft), Qt::LeftToRight, Qt::AlignLeft },
    };
    for (const auto &[textDirection, layoutDirection, side] : sides) {
        const ApplicationPropertyGuard property("TextDirection", textDirection);
        const LayoutDirectionGuard direction(layoutDirection);
        OxaLineEdit edit;
        edit.setAlignment(before);
        QCOMPARE(edit.alignment(), before);
        edit.onLayoutDirectionChanged();
        QCOMPARE(edit.alignment(), isCentred ? before : (before & Qt::AlignVertical_Mask) | side);
    }
}

void tst_OxaLineEditLooks::drawsNoFocusFrameByItself()
{
    const FrameStyleGuard guard;
    OxaLineEdit edit;
    QVERIFY(Faces::focusByKeyboard(edit));
    edit.repaint();
    QCOMPARE(guard.style->frames, 0);
}

void tst_OxaLineEditLooks::drawsAFocusFrameForTheKeyboardAlone()
{
    const FrameStyleGuard guard;
    OxaLineEdit edit;
    edit.enableFocusRing();
    QVERIFY(Faces::focusByKeyboard(edit));
    guard.style->frames = 0;
    edit.repaint();
    QCOMPARE(guard.style->frames, 1);
    // The painter is on no device: the style draws elsewhere.
    QVERIFY(guard.style->isOnNoDevice);
    QCOMPARE(guard.style->rect, edit.rect());
    QVERIFY(guard.style->state.testFlag(QStyle::State_HasFocus));
    QCOMPARE(guard.style->frameOf, &edit);
    edit.setAttribute(Qt::WA_KeyboardFocusChange, false);
    guard.style->frames = 0;
    edit.repaint();
    QCOMPARE(guard.style->frames, 0);
}

void tst_OxaLineEditLooks::opensAContextMenuInTheColorsOfItsTheme_data()
{
    QTest::addColumn<QString>("themeType");
    QTest::addColumn<int>("shade");
    QTest::newRow("ordinary theme") << QStringLiteral("global") << 16;
    QTest::newRow("inverted theme") << QStringLiteral("inverted") << 32;
}

void tst_OxaLineEditLooks::opensAContextMenuInTheColorsOfItsTheme()
{
    QFETCH(const QString, themeType);
    QFETCH(const int, shade);
    const StoreGuard stores(menuStore(16), menuStore(32));
    OxaLineEdit edit(QStringLiteral("abc"));
    edit.setThemeType(themeType);
    edit.move(50, 60);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    const QMenu *menu = openMenu(edit, QPoint(5, 7));
    QVERIFY(menu);
    QCOMPARE(menu->styleSheet(), menuSheet(shade));
    QCOMPARE(menu->font(), QFont(OxaFont(OxaFont::Token::BodySecondary)));
    QVERIFY(menu->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(menu->pos(), edit.mapToGlobal(QPoint(5, 7)));
    QVERIFY(menu->actions().size() > 5);
}

void tst_OxaLineEditLooks::deletesItsContextMenuAsItCloses()
{
    const StoreGuard stores(menuStore(0));
    OxaLineEdit edit(QStringLiteral("abc"));
    edit.show();
    const QPointer<QMenu> menu = openMenu(edit, QPoint());
    QVERIFY(menu);
    menu->close();
    QTRY_VERIFY(!menu);
}

void tst_OxaLineEditLooks::opensNoContextMenuWhereNoneIsWanted()
{
    OxaLineEdit edit;
    edit.setContextMenuPolicy(Qt::PreventContextMenu);
    edit.show();
    QVERIFY(!openMenu(edit, QPoint()));
}

UIELEMENTS_TEST_MAIN(tst_OxaLineEditLooks)
#include "tst_oxalineedit_looks.moc"
