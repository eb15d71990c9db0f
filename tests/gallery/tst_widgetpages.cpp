// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QMetaProperty>

#include <looks/ThemeSwitcher.h>
#include <shell/Page.h>
#include <shell/PageRegistry.h>
#include <specimens/PropertyControls.h>
#include <specimens/Specimens.h>
#include <support/Pixels.h>
#include <widgets/CodeEdit.h>
#include <widgets/SegmentedControl.h>

namespace {

/// A card of a page: its widgets and its controls, in a window that is shown.
class Sample
{
public:
    Sample(const QByteArray &page, int index)
        : m_page(findPageEntry(QString::fromLatin1(page))->make(&m_window)),
          m_specimens(m_page->findChildren<Specimens *>().at(index)),
          m_controls(m_specimens->parentWidget()->findChild<PropertyControls *>())
    {
        // No minimum size: the platform does not enforce it.
        m_window.resize(1000, 800);
        m_page->resize(m_window.size());
        m_window.show();
    }

    QWidget &window() { return m_window; }
    QVector<QWidget *> widgets() const { return m_specimens->widgets(); }
    QWidget *inUse() const { return widgets().front(); }
    OxaPushButton *button() const { return qobject_cast<OxaPushButton *>(inUse()); }
    QString log() const { return m_controls->parent()->findChild<CodeEdit *>()->toPlainText(); }

    template <typename Control = QWidget>
    Control *control(const char *name) const
    {
        return Controls::called<Control>(*m_controls, name);
    }

    void choose(const QByteArray &name, const QByteArray &text) const
    {
        Controls::choose(*m_controls, name.constData(), text.constData());
    }

    /// Returns the values that the widgets have of \a property.
    QVariantList values(const QByteArray &property) const
    {
        QVariantList values;
        for (const QWidget *widget : widgets())
            values += widget->property(property.constData());
        return values;
    }

private:
    QWidget m_window;
    Page *m_page;
    Specimens *m_specimens;
    PropertyControls *m_controls;
};

/// Returns the properties that the library declares for \a widget and that a control can set,
/// without those of all themed widgets.
QStringList ownProperties(const QWidget &widget)
{
    const QStringList others = { QStringLiteral("css"),
                                 QStringLiteral("themeType"),
                                 QStringLiteral("styleSheet"),
                                 QStringLiteral("fontToken"),
                                 QStringLiteral("fontType"),
                                 QStringLiteral("icon"),
                                 QStringLiteral("textInteractionFlags") };
    QStringList names;
    const QMetaObject *type = widget.metaObject();
    for (; QByteArray(type->className()).startsWith("Oxa"); type = type->superClass()) {
        for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
            names += QString::fromLatin1(type->property(i).name());
    }
    for (const QString &other : others)
        names.removeAll(other);
    return names;
}

/// Returns the colour of the icon's most opaque pixel.
QColor inkOf(const OxaPushButton &button, QIcon::State state)
{
    const QImage image = button.icon().pixmap(QSize(16, 16), QIcon::Normal, state).toImage();
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > ink.alpha())
                ink = image.pixelColor(x, y);
        }
    }
    return ink;
}

/// True when two colours are the same, except for the error of half-covered pixels.
bool isAlike(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 12;
}

OxaColorSet colors(const char *name)
{
    return OxaThemeUtils::getColorSet(name, OxaThemeUtils::AppThemeType::Global);
}

} // namespace

/// The pages that are made of specimens and property controls.
class tst_WidgetPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void hasAControlForEachProperty_data();
    void hasAControlForEachProperty();
    void beginsWithTheValuesOfTheWidgets();
    void setsAPropertyOfAllWidgets_data();
    void setsAPropertyOfAllWidgets();
    void setsTheCoordinatesOfAPoint();
    void setsThePaddingOfAnArrow();
    void setsTheText();
    void hidesTheIcons();
    void showsWhatAnotherControlChanged();
    void keepsAPillRoundAtAnyHeight();
    void holdsAWidgetInEachOfItsStates_data();
    void holdsAWidgetInEachOfItsStates();
    void makesHeldWidgetsIgnoreMouseAndFocus();
    void logsWhatAWidgetEmits();
    void bringsTheFocusAsTheKeyboardDoes();
    void tintsIconsWithTheTheme();
    void showsAPixmap();
    void leavesTheToolTipToTheApplication();
    void leavesTheApplicationWithItsOwnFocusFrames();
    void givesTheStyleARectangle();
    void tintsALabelsPixmapWithTheTheme();
};

void tst_WidgetPages::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setAppearance(ThemeSwitcher::Appearance::Light);
}

void tst_WidgetPages::hasAControlForEachProperty_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<int>("card");
    QTest::newRow("OxaLabel") << QByteArray("labels") << 0;
    QTest::newRow("OxaPushButton") << QByteArray("buttons") << 0;
    QTest::newRow("OxaUnderlineButton") << QByteArray("buttons") << 1;
    QTest::newRow("OxaTextInput") << QByteArray("forms") << 0;
    QTest::newRow("OxaLineEdit") << QByteArray("forms") << 1;
    QTest::newRow("OxaComboBox") << QByteArray("forms") << 2;
    QTest::newRow("OxaCheckBox") << QByteArray("forms") << 3;
    QTest::newRow("OxaTextBrowser") << QByteArray("forms") << 6;
    QTest::newRow("OxaProgressBar") << QByteArray("windows") << 1;
    QTest::newRow("OxaSeparator") << QByteArray("windows") << 2;
    QTest::newRow("OxaSvgLabel") << QByteArray("svg-widgets") << 0;
    QTest::newRow("OxaSvgPushButton") << QByteArray("svg-widgets") << 1;
    QTest::newRow("OxaSvgAnchorButton") << QByteArray("svg-widgets") << 2;
    QTest::newRow("OxaPillTabButton") << QByteArray("svg-widgets") << 3;
}

void tst_WidgetPages::hasAControlForEachProperty()
{
    QFETCH(const QByteArray, page);
    QFETCH(const int, card);
    const Sample sample(page, card);
    QCOMPARE(sample.inUse()->metaObject()->className(), QTest::currentDataTag());
    const QStringList properties = ownProperties(*sample.inUse());
    QVERIFY(!properties.isEmpty());
    QStringList missing;
    for (const QString &property : properties) {
        // The font follows the token, which has a control.
        const bool isSetByFunction = property == QLatin1String("accessibleRole")
                || property == QLatin1String("font");
        if (!sample.control(qPrintable(property)) && !isSetByFunction)
            missing += property;
    }
    QCOMPARE(missing, QStringList());
}

void tst_WidgetPages::beginsWithTheValuesOfTheWidgets()
{
    const Sample card("svg-widgets", 2);
    QCOMPARE(card.control<OxaSlider>("anchorPadding")->value(),
             card.inUse()->property("anchorPadding").toInt());
    QCOMPARE(card.control<OxaSlider>("svgIconSize")->value(),
             card.inUse()->property("svgIconSize").toSize().width());
    QCOMPARE(card.control<SegmentedControl>("textHorAlign")->currentIndex(), 1);
    QCOMPARE(card.control<SegmentedControl>("svgIcon")->currentIndex(), 1);
}

void tst_WidgetPages::setsAPropertyOfAllWidgets_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<int>("card");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QVariant>("value");
    const QByteArray svg("svg-widgets");
    QTest::newRow("a path") << svg << 0 << QByteArray("svgIcon") << QByteArray("Camera")
                            << QVariant(OxaSvgRenderer::resourcePath(QStringLiteral("camera_24")));
    QTest::newRow("an enumeration")
            << svg << 1 << QByteArray("svgIconAlignment") << QByteArray("Top")
            << QVariant::fromValue(OxaEnum::Alignment::Top);
    QTest::newRow("a bool") << svg << 2 << QByteArray("isLeftAnchor") << QByteArray("Yes")
                            << QVariant(true);
    QTest::newRow("a format") << svg << 1 << QByteArray("textFormat") << QByteArray("Rich")
                              << QVariant(Qt::RichText);
    QTest::newRow("a colour set") << svg << 3 << QByteArray("backgroundColorSet")
                                  << QByteArray("Join")
                                  << QVariant(QStringLiteral("gallery-join-button-background"));
    QTest::newRow("a dot") << QByteArray("buttons") << 1 << QByteArray("showUnreadIndicator")
                           << QByteArray("No") << QVariant(false);
    QTest::newRow("a badge") << QByteArray("buttons") << 0 << QByteArray("badgeVisible")
                             << QByteArray("Yes") << QVariant(true);
    QTest::newRow("a long press") << QByteArray("buttons") << 0 << QByteArray("longPressEnabled")
                                  << QByteArray("No") << QVariant(false);
    QTest::newRow("a role") << QByteArray("buttons") << 0 << QByteArray("accessibleRole")
                            << QByteArray("Link") << QVariant::fromValue(QAccessible::Link);
    QTest::newRow("a direction") << QByteArray("forms") << 2 << QByteArray("openedUpwards")
                                 << QByteArray("Yes") << QVariant(true);
    QTest::newRow("a tick") << QByteArray("forms") << 3 << QByteArray("svgIcon")
                            << QByteArray("Camera")
                            << QVariant(OxaSvgRenderer::resourcePath(QStringLiteral("camera_24")));
    QTest::newRow("an elision") << QByteArray("labels") << 0 << QByteArray("elideMode")
                                << QByteArray("Middle") << QVariant::fromValue(Qt::ElideMiddle);
}

void tst_WidgetPages::setsAPropertyOfAllWidgets()
{
    QFETCH(const QByteArray, page);
    QFETCH(const int, card);
    QFETCH(const QByteArray, property);
    QFETCH(const QByteArray, choice);
    QFETCH(const QVariant, value);
    const Sample sample(page, card);
    QVERIFY(!sample.values(property).contains(value));
    sample.choose(property, choice);
    for (const QVariant &own : sample.values(property))
        QCOMPARE(own, value);
}

void tst_WidgetPages::setsTheCoordinatesOfAPoint()
{
    const Sample card("svg-widgets", 0);
    card.control<OxaSlider>("svgIconBottomRightPadding, across")->setValue(5);
    card.control<OxaSlider>("svgIconBottomRightPadding, down")->setValue(7);
    for (const QVariant &padding : card.values("svgIconBottomRightPadding"))
        QCOMPARE(padding.toPoint(), QPoint(5, 7));
}

void tst_WidgetPages::setsThePaddingOfAnArrow()
{
    const Sample card("forms", 2);
    QCOMPARE(card.control<OxaSlider>("svgDropdownIconPadding")->value(), 5);
    card.control<OxaSlider>("svgDropdownIconPadding")->setValue(9);
    for (const QVariant &padding : card.values("svgDropdownIconPadding"))
        QCOMPARE(padding.toInt(), 9);
}

void tst_WidgetPages::setsTheText()
{
    const Sample card("svg-widgets", 1);
    card.control<OxaLineEdit>("text")->setText(QStringLiteral("Hi"));
    for (const QVariant &text : card.values("text"))
        QCOMPARE(text.toString(), QStringLiteral("Hi"));
}

void tst_WidgetPages::hidesTheIcons()
{
    const Sample card("svg-widgets", 2);
    card.choose("setSvgIconVisible()", "No");
    card.choose("setAnchorIconVisible()", "No");
    for (const QVariant &size : card.values("svgIconSize") + card.values("anchorIconSize"))
        QCOMPARE(size.toSize(), QSize(-1, -1));
}

void tst_WidgetPages::showsWhatAnotherControlChanged()
{
    const Sample card("svg-widgets", 2);
    card.control<OxaSlider>("anchorPadding")->setValue(17);
    QCOMPARE(card.control<OxaSlider>("anchorSvgOffset, across")->value(), 17);
    card.control<OxaSlider>("anchorSvgOffset, down")->setValue(3);
    QCOMPARE(card.values("anchorSvgOffset").front().toPoint(), QPoint(17, 3));
}

void tst_WidgetPages::keepsAPillRoundAtAnyHeight()
{
    const Sample card("svg-widgets", 3);
    card.control<OxaSlider>("setFixedHeight()")->setValue(48);
    QTRY_COMPARE(card.inUse()->height(), 48);
    QVERIFY2(card.inUse()->styleSheet().contains(QLatin1String("border-radius:24px")),
             qPrintable(card.inUse()->styleSheet()));
}

void tst_WidgetPages::holdsAWidgetInEachOfItsStates_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<int>("card");
    QTest::addColumn<int>("count");
    QTest::newRow("a push button") << QByteArray("buttons") << 0 << 5;
    QTest::newRow("a toggle button") << QByteArray("buttons") << 2 << 5;
    QTest::newRow("an SVG label") << QByteArray("svg-widgets") << 0 << 3;
    QTest::newRow("an SVG button") << QByteArray("svg-widgets") << 1 << 5;
    QTest::newRow("an anchor button") << QByteArray("svg-widgets") << 2 << 5;
    QTest::newRow("a pill") << QByteArray("svg-widgets") << 3 << 5;
    QTest::newRow("a text input") << QByteArray("forms") << 0 << 3;
    QTest::newRow("a line edit") << QByteArray("forms") << 1 << 3;
    QTest::newRow("a combo box") << QByteArray("forms") << 2 << 3;
    QTest::newRow("a check box") << QByteArray("forms") << 3 << 5;
    QTest::newRow("a radio button") << QByteArray("forms") << 4 << 5;
    QTest::newRow("a text edit") << QByteArray("forms") << 5 << 3;
    QTest::newRow("a text browser") << QByteArray("forms") << 6 << 3;
    QTest::newRow("a slider") << QByteArray("windows") << 0 << 3;
    QTest::newRow("a progress bar") << QByteArray("windows") << 1 << 1;
    QTest::newRow("a field for a date and a time") << QByteArray("windows") << 3 << 3;
    QTest::newRow("a field for a time") << QByteArray("windows") << 4 << 3;
}

void tst_WidgetPages::holdsAWidgetInEachOfItsStates()
{
    QFETCH(const QByteArray, page);
    QFETCH(const int, card);
    QFETCH(const int, count);
    const Sample sample(page, card);
    QCOMPARE(sample.widgets().size(), count);
    QVector<QImage> pictures;
    for (QWidget *widget : sample.widgets()) {
        const QImage picture = Pixels::render(*widget);
        QVERIFY2(!pictures.contains(picture), qPrintable(QString::number(pictures.size())));
        pictures += picture;
    }
}

void tst_WidgetPages::makesHeldWidgetsIgnoreMouseAndFocus()
{
    const Sample card("svg-widgets", 1);
    QTest::mouseClick(card.inUse(), Qt::LeftButton);
    QVERIFY(card.button()->isChecked());
    for (const QWidget *held : card.widgets().mid(1))
        QVERIFY(held->testAttribute(Qt::WA_TransparentForMouseEvents)
                && held->focusPolicy() == Qt::NoFocus);
}

void tst_WidgetPages::logsWhatAWidgetEmits()
{
    const Sample card("buttons", 0);
    QTest::mouseClick(card.inUse(), Qt::LeftButton);
    QTest::mouseClick(card.inUse(), Qt::RightButton);
    QVERIFY2(card.log().contains(QLatin1String("toggled(true)\nreleased()\nclicked(true)")),
             qPrintable(card.log()));
    QVERIFY2(card.log().contains(QLatin1String("rightClick()")), qPrintable(card.log()));
    QTest::mousePress(card.inUse(), Qt::LeftButton);
    QTRY_VERIFY(card.log().contains(QLatin1String("longPressed()")));
    QTest::mouseRelease(card.inUse(), Qt::LeftButton);
    QVERIFY(!card.log().contains(QLatin1String("themeTypeChanged")));
}

void tst_WidgetPages::bringsTheFocusAsTheKeyboardDoes()
{
    Sample card("buttons", 0);
    card.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&card.window()));
    const QImage without = card.inUse()->grab().toImage();
    card.choose("setFocus()", "In use");
    QVERIFY(card.inUse()->hasFocus());
    QVERIFY(card.window().testAttribute(Qt::WA_KeyboardFocusChange));
    QVERIFY(card.inUse()->grab().toImage() != without);
    card.choose("setFocus()", "Elsewhere");
    QVERIFY(!card.inUse()->hasFocus());
}

void tst_WidgetPages::tintsIconsWithTheTheme()
{
    const Sample card("buttons", 0);
    for (const auto appearance :
         { ThemeSwitcher::Appearance::Dark, ThemeSwitcher::Appearance::Light }) {
        GalleryApplication::get()->themeSwitcher()->setAppearance(appearance);
        QVERIFY(isAlike(inkOf(*card.button(), QIcon::On), colors("gallery-icon").checked));
        QVERIFY(isAlike(inkOf(*card.button(), QIcon::Off), colors("gallery-icon").normal));
    }
    card.choose("setIconColor()", "Busy");
    QVERIFY(isAlike(inkOf(*card.button(), QIcon::On), colors("presence-busy").checked));
}

void tst_WidgetPages::showsAPixmap()
{
    const Sample card("buttons", 0);
    card.choose("setCSS()", "Quiet");
    const QImage without = Pixels::render(*card.inUse());
    card.choose("setPixmap()", "Bell");
    QVERIFY(Pixels::render(*card.inUse()) != without);
    card.choose("setPixmapIconVisibility()", "No");
    QCOMPARE(Pixels::render(*card.inUse()), without);
}

void tst_WidgetPages::leavesTheToolTipToTheApplication()
{
    const Sample card("buttons", 2);
    const auto *toolTip = card.control<OxaLabel>("toolTip");
    card.choose("setChecked()", "Yes");
    QCOMPARE(toolTip->text(), QStringLiteral("Mute"));
    card.button()->click();
    QVERIFY(!card.button()->isChecked());
    QCOMPARE(toolTip->text(), QStringLiteral("Mute"));
    card.choose("setChecked()", "No");
    QCOMPARE(toolTip->text(), QStringLiteral("Unmute"));
    QCOMPARE(card.control<OxaLabel>("accessibleName")->text(), QStringLiteral("Unmute"));
}

void tst_WidgetPages::leavesTheApplicationWithItsOwnFocusFrames()
{
    const Sample card("buttons", 3);
    QVERIFY(!qApp->property("useGlobalFocusBorders").isValid());
}

void tst_WidgetPages::givesTheStyleARectangle()
{
    const Sample card("buttons", 3);
    card.choose("customFocusRect", "A smaller one");
    QCOMPARE(card.inUse()->property("customFocusRect").toRect(),
             card.inUse()->rect().adjusted(5, 5, -5, -5));
    card.choose("customFocusRect", "The button's");
    QVERIFY(card.inUse()->property("customFocusRect").toRect().isNull());
}

void tst_WidgetPages::tintsALabelsPixmapWithTheTheme()
{
    const Sample card("labels", 1);
    const auto starIs = [&card](const QColor &color) {
        return Pixels::countNear(Pixels::render(*card.inUse()), color, QRect(), 0) > 100;
    };
    QVERIFY(starIs(colors("gallery-accent").normal));
    for (const auto appearance :
         { ThemeSwitcher::Appearance::Dark, ThemeSwitcher::Appearance::Light }) {
        GalleryApplication::get()->themeSwitcher()->setAppearance(appearance);
        QVERIFY(starIs(colors("gallery-accent").normal));
    }
    card.choose("setPixmapColor()", "Busy");
    QVERIFY(starIs(colors("presence-busy").normal));
}

GALLERY_TEST_MAIN(tst_WidgetPages)
#include "tst_widgetpages.moc"
