// SPDX-License-Identifier: Apache-2.0
#include "ThemedWidgets.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

namespace {

const QColor newColor(0xc8, 0x1e, 0xd2);

/// Returns two sets that fill a widget. The second one is to be visible.
OxaColorSetMap twoGrounds()
{
    return ColorSets::storeOf({ ColorSets::make(QStringLiteral("old"), { "#112233" }),
                                ColorSets::make(QStringLiteral("new"), { "#c81ed2" }) });
}

QColor middleOf(QWidget &widget)
{
    widget.window()->show();
    const QImage picture = widget.grab().toImage();
    return picture.pixelColor(picture.rect().center());
}

} // namespace

/// The appearance of themed widgets when they are shown.
class tst_OxaThemeBlockPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(twoGrounds(), twoGrounds()); }
    void cleanup() { m_stores.reset(); }

    void showsANewStyleTextOfAWindowThatWasNeverShown();
    void showsANewStyleTextOfAChildThatWasNeverShown();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaThemeBlockPainting::showsANewStyleTextOfAWindowThatWasNeverShown()
{
    OxaWidget window;
    window.setCSS(QStringLiteral("$backgroundColors: old;"));
    OxaWidget child(&window);
    child.setCSS(QStringLiteral("$borderColors: old;"));
    child.ensurePolished();
    window.setCSS(QStringLiteral("$backgroundColors: new;"));
    QCOMPARE(middleOf(window), newColor);
}

void tst_OxaThemeBlockPainting::showsANewStyleTextOfAChildThatWasNeverShown()
{
    OxaWidget window;
    OxaWidget child(&window);
    child.setCSS(QStringLiteral("$backgroundColors: old;"));
    OxaWidget grandchild(&child);
    grandchild.setCSS(QStringLiteral("$borderColors: old;"));
    grandchild.ensurePolished();
    child.setCSS(QStringLiteral("$backgroundColors: new;"));
    QCOMPARE(middleOf(child), newColor);
}

UIELEMENTS_TEST_MAIN(tst_OxaThemeBlockPainting)
#include "tst_oxathemeblock_painting.moc"
