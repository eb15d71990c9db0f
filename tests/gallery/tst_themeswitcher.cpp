// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QSignalSpy>

#include <looks/ThemeSwitcher.h>

using Appearance = ThemeSwitcher::Appearance;

Q_DECLARE_METATYPE(ThemeSwitcher::Appearance)

namespace {

ThemeSwitcher *switcher() { return GalleryApplication::get()->themeSwitcher(); }

QColor inOrdinaryStore(const char *name)
{
    return OxaThemeUtils::getAppOxaColorSets().at(name).normal;
}

QColor inInvertedStore(const char *name)
{
    return OxaThemeUtils::getAppInvertedOxaColorSets().at(name).normal;
}

} // namespace

/// ThemeSwitcher, which switches the colours of the application.
class tst_ThemeSwitcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void setsTheApplicationsTheme_data();
    void setsTheApplicationsTheme();
    void swapsTheStores();
    void bringsNewColorsToEveryWidget();
    void bringsNewLinkColorsToLabels();
    void survivesWidgetsThatASlotDeletes();
    void setsTheThemeTypeOfWindows();
    void paintsWhatQtPaintsInTheThemesColors();
};

void tst_ThemeSwitcher::cleanup()
{
    switcher()->setAppearance(Appearance::Light);
    switcher()->setThemeType(QStringLiteral("global"));
}

void tst_ThemeSwitcher::setsTheApplicationsTheme_data()
{
    QTest::addColumn<Appearance>("appearance");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<bool>("isHighContrast");
    QTest::addColumn<QString>("name");
    QTest::newRow("light") << Appearance::Light << false << false << "Light";
    QTest::newRow("dark") << Appearance::Dark << true << false << "Dark";
    QTest::newRow("high contrast") << Appearance::HighContrast << true << true << "HighContrast";
}

void tst_ThemeSwitcher::setsTheApplicationsTheme()
{
    QFETCH(const Appearance, appearance);
    QFETCH(const bool, isDark);
    QFETCH(const bool, isHighContrast);
    QFETCH(const QString, name);
    const QSignalSpy switched(switcher(), &ThemeSwitcher::switched);
    switcher()->setAppearance(appearance);
    const GalleryApplication *application = GalleryApplication::get();
    QCOMPARE(application->getIsDarkTheme(), isDark);
    QCOMPARE(application->getIsHighContrastTheme(), isHighContrast);
    QCOMPARE(application->getThemeName(), name);
    QCOMPARE(switched.count(), 1);
}

void tst_ThemeSwitcher::swapsTheStores()
{
    const QColor light = inOrdinaryStore("gallery-card-background");
    const QColor dark = inInvertedStore("gallery-card-background");
    QVERIFY(light != dark);
    switcher()->setAppearance(Appearance::Dark);
    QCOMPARE(inOrdinaryStore("gallery-card-background"), dark);
    QCOMPARE(inInvertedStore("gallery-card-background"), light);
}

void tst_ThemeSwitcher::bringsNewColorsToEveryWidget()
{
    QWidget unthemedWindow;
    OxaLabel label(&unthemedWindow);
    label.setCSS(QStringLiteral("$textColors: gallery-heading-text;"));
    switcher()->setAppearance(Appearance::Dark);
    const QString color = inOrdinaryStore("gallery-heading-text").name(QColor::HexArgb);
    QVERIFY2(label.styleSheet().contains(color), qUtf8Printable(label.styleSheet()));
}

void tst_ThemeSwitcher::bringsNewLinkColorsToLabels()
{
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<a href=\"x\">x</a>"));
    switcher()->setAppearance(Appearance::Dark);
    QVERIFY(label.text().contains(inOrdinaryStore("button-hyperlink-text").name()));
}

void tst_ThemeSwitcher::survivesWidgetsThatASlotDeletes()
{
    // The order is undefined: of so many, some come after the one that deletes all others.
    constexpr int count = 200;
    std::vector<QPointer<OxaWidget>> widgets(count);
    for (auto &widget : widgets)
        widget = new OxaWidget;
    const auto deleteOthers = [&widgets](const OxaWidget *first) {
        for (auto &widget : widgets) {
            if (widget != first)
                delete widget;
        }
    };
    for (const auto &widget : widgets) {
        connect(widget.data(), &OxaWidget::themeTypeChanged, this,
                [deleteOthers, first = widget.data()] { deleteOthers(first); });
    }
    switcher()->setAppearance(Appearance::Dark);
    const auto left = std::count_if(widgets.begin(), widgets.end(),
                                    [](const auto &widget) { return !widget.isNull(); });
    QCOMPARE(int(left), 1);
    deleteOthers(nullptr);
}

void tst_ThemeSwitcher::setsTheThemeTypeOfWindows()
{
    OxaWidget window;
    auto *child = new OxaLabel(&window);
    child->setCSS(QStringLiteral("$textColors: gallery-heading-text;"));
    switcher()->setThemeType(QStringLiteral("dark"));
    QCOMPARE(switcher()->themeType(), QStringLiteral("dark"));
    QCOMPARE(child->property("themeType").toString(), QStringLiteral("dark"));
    const QString color = inInvertedStore("gallery-heading-text").name(QColor::HexArgb);
    QVERIFY2(child->styleSheet().contains(color), qUtf8Printable(child->styleSheet()));
}

void tst_ThemeSwitcher::paintsWhatQtPaintsInTheThemesColors()
{
    switcher()->setThemeType(QStringLiteral("inverted"));
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             inInvertedStore("gallery-window-background"));
    QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::Text),
             OxaThemeUtils::getAppInvertedOxaColorSets().at("gallery-field-text").disabled);
}

GALLERY_TEST_MAIN(tst_ThemeSwitcher)
#include "tst_themeswitcher.moc"
