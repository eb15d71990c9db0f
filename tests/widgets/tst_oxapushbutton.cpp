// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaPushButton.h>

#include <QPainter>

namespace {

/// Gives access to protected functions.
class OpenButton : public OxaPushButton
{
public:
    using OxaPushButton::getElidedText;
    using OxaPushButton::getLineWidth;
    using OxaPushButton::OxaPushButton;
};

QRect halfOf(QIcon::State state) { return { state == QIcon::Off ? 0 : 8, 0, 8, 16 }; }

/// Returns an icon of 16 by 16 whose left half is black for "off" and whose right half is black for
/// "on". The other halves are empty.
QIcon halfIcon()
{
    QIcon icon;
    for (const QIcon::State state : { QIcon::Off, QIcon::On }) {
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::transparent);
        QPainter(&pixmap).fillRect(halfOf(state), Qt::black);
        icon.addPixmap(pixmap, QIcon::Normal, state);
    }
    return icon;
}

/// Returns the colour of the painted half; invalid unless exactly that half is painted.
QColor colorOf(const OxaPushButton &button, QIcon::Mode mode, QIcon::State state)
{
    const QImage image = button.icon().pixmap(QSize(16, 16), mode, state).toImage();
    const QColor color = image.pixelColor(halfOf(state).center());
    QImage expected(image.size(), image.format());
    expected.fill(Qt::transparent);
    QPainter(&expected).fillRect(halfOf(state), color);
    return image == expected ? color : QColor();
}

} // namespace

/// The members of OxaPushButton, without painting and input.
class tst_OxaPushButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(OxaColorSetMap()); }
    void cleanup() { m_stores.reset(); }

    void startsPlain();
    void takesWhatItsConstructorsAreGiven();
    void storesWhatItIsGiven();
    void hasAnIdentityOfItsOwn();
    void repaintsForElisionOnly();
    void repaintsAtOnceForItsBadge();

    void elidesTextsByItsWidth_data();
    void elidesTextsByItsWidth();
    void measuresItsLine();

    void tintsAnIconInBothStates();
    void tintsAnIconInOneState();
    void tintsAnIconInTheButtonsIconSize();
    void addsNoIconToAButtonWithoutOne();

    void looksItsFocusColorsUp();
    void forgetsFocusColorsThatTheThemeLacks();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaPushButton::startsPlain()
{
    const OxaPushButton button;
    QCOMPARE(button.getElideMode(), Qt::ElideNone);
    QCOMPARE(button.getElidePadding(), 0);
    QCOMPARE(button.getUniqueElementId(), QString());
    QCOMPARE(button.getFocusRectColorSet(), QString());
    QVERIFY(!button.isLongPressEnabled());
    QVERIFY(!button.isBadgeVisible());
    QVERIFY(button.icon().isNull());
    QVERIFY(button.getAcceleratorType() == RillsAccessible::AcceleratorType());
    QVERIFY(button.getAccessibleMode() == RillsAccessible::AccessibleMode());
    QVERIFY(button.children().isEmpty());
}

void tst_OxaPushButton::takesWhatItsConstructorsAreGiven()
{
    QWidget parent;
    const OxaPushButton *buttons[] = {
        new OxaPushButton(&parent, QAccessible::Link),
        new OxaPushButton(QStringLiteral("abc"), &parent, QAccessible::Link),
        new OxaPushButton(halfIcon(), QStringLiteral("abc"), &parent, QAccessible::Link),
    };
    for (const OxaPushButton *button : buttons) {
        QCOMPARE(button->parent(), &parent);
        QCOMPARE(button->getAccessibleRole(), QAccessible::Link);
        QVERIFY(button->autoDefault());
    }
    QCOMPARE(buttons[0]->text(), QString());
    QCOMPARE(buttons[1]->text(), QStringLiteral("abc"));
    QCOMPARE(buttons[2]->text(), QStringLiteral("abc"));
    QVERIFY(buttons[1]->icon().isNull());
    QVERIFY(!buttons[2]->icon().isNull());
}

void tst_OxaPushButton::storesWhatItIsGiven()
{
    OxaPushButton button;
    const std::pair<const char *, QVariant> values[] = {
        { "elideMode", QVariant::fromValue(Qt::ElideMiddle) },
        { "elidePadding", 7 },
        { "elementUniqueId", QStringLiteral("id") },
        { "longPressEnabled", true },
        { "badgeVisible", true },
    };
    for (const auto &[name, value] : values) {
        QVERIFY2(button.setProperty(name, value), name);
        QCOMPARE(button.property(name), value);
    }
    button.setAccessibleRole(QAccessible::Link);
    QCOMPARE(button.getAccessibleRole(), QAccessible::Link);
    constexpr auto accelerator = RillsAccessible::AcceleratorType(3);
    constexpr auto mode = RillsAccessible::AccessibleMode(4);
    button.setAcceleratorType(accelerator);
    button.setAccessibleMode(mode);
    QVERIFY(button.getAcceleratorType() == accelerator);
    QVERIFY(button.getAccessibleMode() == mode);
}

void tst_OxaPushButton::hasAnIdentityOfItsOwn()
{
    const OxaPushButton one;
    const OxaPushButton other;
    QVERIFY(!one.getObjectId().isNull());
    QCOMPARE(one.getObjectId(), one.getObjectId());
    QVERIFY(one.getObjectId() != other.getObjectId());
}

void tst_OxaPushButton::repaintsForElisionOnly()
{
    const OxaColorSet colors(QStringLiteral("focus"), Qt::red);
    const StoreGuard stores(ColorSets::storeOf({ colors }));
    OxaPushButton button(QStringLiteral("abc"));
    PaintCounter paints(button);
    button.setElideMode(Qt::ElideRight);
    QCOMPARE(paints.take(), 1);
    button.setElidePadding(3);
    QCOMPARE(paints.take(), 1);
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    button.setPixmap(pixmap);
    button.setPixmapIconVisibility(false);
    button.setFocusRectColorSet(colors.name);
    button.setLongPressEnabled(true);
    button.setUniqueElementId(QStringLiteral("id"));
    button.setAccessibleRole(QAccessible::Link);
    QCOMPARE(paints.take(), 0);
}

void tst_OxaPushButton::repaintsAtOnceForItsBadge()
{
    const StoreGuard stores(
            ColorSets::storeOf({ OxaColorSet(QStringLiteral("badge-background"), Qt::red) }));
    OxaPushButton button;
    PaintCounter paints(button);
    button.setBadgeVisible(true);
    QCOMPARE(paints.count(), 1);
    button.setBadgeVisible(true);
    QCOMPARE(paints.count(), 2);
}

void tst_OxaPushButton::elidesTextsByItsWidth_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<int>("extraWidth");
    QTest::addColumn<int>("sideMargin");
    QTest::addColumn<int>("room");
    QTest::newRow("none") << Qt::ElideNone << 10 << 5 << -1;
    QTest::newRow("right") << Qt::ElideRight << 0 << 0 << 93;
    QTest::newRow("left") << Qt::ElideLeft << 0 << 0 << 93;
    QTest::newRow("middle") << Qt::ElideMiddle << 0 << 0 << 93;
    QTest::newRow("minus an extra width") << Qt::ElideRight << 11 << 0 << 82;
    QTest::newRow("minus two margins") << Qt::ElideRight << 0 << 12 << 69;
    QTest::newRow("minus all of it") << Qt::ElideRight << 11 << 12 << 58;
}

void tst_OxaPushButton::elidesTextsByItsWidth()
{
    QFETCH(const Qt::TextElideMode, mode);
    QFETCH(const int, extraWidth);
    QFETCH(const int, sideMargin);
    QFETCH(const int, room);
    const QString text = QStringLiteral("A text that is too long for its button");
    OpenButton button;
    button.resize(100, 30);
    button.setElideMode(mode);
    button.setElidePadding(7);
    const QString elided = button.getElidedText(text, extraWidth, sideMargin);
    QCOMPARE(elided, room < 0 ? text : button.fontMetrics().elidedText(text, mode, room));
    QCOMPARE(elided == text, mode == Qt::ElideNone);
}

void tst_OxaPushButton::measuresItsLine()
{
    OpenButton button;
    button.resize(100, 30);
    QCOMPARE(button.getLineWidth(), 100);
    button.setElidePadding(7);
    QCOMPARE(button.getLineWidth(), 93);
}

void tst_OxaPushButton::tintsAnIconInBothStates()
{
    OxaPushButton button;
    button.setIcon(halfIcon());
    button.setIconSize(QSize(16, 16));
    button.setIconColor(Qt::red, QIcon::Normal);
    QCOMPARE(colorOf(button, QIcon::Normal, QIcon::On), QColor(Qt::red));
    QCOMPARE(colorOf(button, QIcon::Normal, QIcon::Off), QColor(Qt::red));
    button.setIconColor(Qt::blue, QIcon::Disabled);
    QCOMPARE(colorOf(button, QIcon::Disabled, QIcon::On), QColor(Qt::blue));
    QCOMPARE(colorOf(button, QIcon::Disabled, QIcon::Off), QColor(Qt::blue));
    QCOMPARE(colorOf(button, QIcon::Normal, QIcon::Off), QColor(Qt::red));
}

void tst_OxaPushButton::tintsAnIconInOneState()
{
    OxaPushButton button;
    button.setIcon(halfIcon());
    button.setIconSize(QSize(16, 16));
    button.setIconColor(Qt::red, QIcon::Normal, QIcon::On);
    QCOMPARE(colorOf(button, QIcon::Normal, QIcon::On), QColor(Qt::red));
    QCOMPARE(colorOf(button, QIcon::Normal, QIcon::Off), QColor(Qt::black));
}

void tst_OxaPushButton::tintsAnIconInTheButtonsIconSize()
{
    OxaPushButton button;
    button.setIcon(halfIcon());
    button.setIconSize(QSize(8, 8));
    button.setIconColor(Qt::red, QIcon::Normal, QIcon::On);
    const QSize original(16, 16);
    QCOMPARE(button.icon().availableSizes(QIcon::Normal, QIcon::Off), { original });
    QCOMPARE(button.icon().availableSizes(QIcon::Normal, QIcon::On),
             QList<QSize>({ original, QSize(8, 8) }));
}

void tst_OxaPushButton::addsNoIconToAButtonWithoutOne()
{
    OxaPushButton button;
    button.setIconColor(Qt::red, QIcon::Normal);
    QVERIFY(button.icon().isNull());
}

void tst_OxaPushButton::looksItsFocusColorsUp()
{
    const OxaColorSet colors(QStringLiteral("focus"), Qt::red);
    const StoreGuard stores(ColorSets::storeOf({ colors }));
    OxaPushButton button;
    QVERIFY(button.setProperty("focusRectColorSet", colors.name));
    QCOMPARE(button.property("focusRectColorSet"), QVariant(colors.name));
    button.setFocusRectColorSet(QString());
    QCOMPARE(button.getFocusRectColorSet(), QString());
}

void tst_OxaPushButton::forgetsFocusColorsThatTheThemeLacks()
{
    OxaPushButton button;
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"focus\"");
    button.setFocusRectColorSet(QStringLiteral("focus"));
    QCOMPARE(button.getFocusRectColorSet(), QString());
    button.setThemeType(QStringLiteral("dark")); // Nothing is looked up.
    button.setThemeType(QStringLiteral("global"));

    const StoreGuard stores(ColorSets::storeOf({ OxaColorSet(QStringLiteral("focus"), Qt::red) }));
    button.setFocusRectColorSet(QStringLiteral("focus"));
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"focus\"");
    button.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(button.getFocusRectColorSet(), QString());
}

UIELEMENTS_TEST_MAIN(tst_OxaPushButton)
#include "tst_oxapushbutton.moc"
