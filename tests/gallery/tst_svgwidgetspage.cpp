// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>

#include <QMetaProperty>

#include <pages/svgwidgets/PropertyControls.h>
#include <pages/svgwidgets/Specimens.h>
#include <pages/svgwidgets/SvgWidgetsPage.h>
#include <support/Pixels.h>
#include <widgets/LineEdit.h>
#include <widgets/SegmentedControl.h>
#include <widgets/Slider.h>
#include <widgets/ToggleButton.h>

namespace {

enum CardIndex { LabelCard, ButtonCard, AnchorCard, PillCard };

/// One card of the page: its widgets and its controls.
class Sample
{
public:
    Sample(const QWidget &page, int index)
        : m_specimens(page.findChildren<Specimens *>().at(index)),
          m_controls(page.findChildren<PropertyControls *>().at(index))
    {
    }

    QVector<QWidget *> widgets() const { return m_specimens->widgets(); }

    QWidget *control(const QString &name) const
    {
        const auto widgets = m_controls->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->accessibleName() == name)
                return widget;
        }
        return nullptr;
    }

    Slider *slider(const char *name) const
    {
        return qobject_cast<Slider *>(control(QString::fromLatin1(name)));
    }

    /// Presses the segment called \a text of the control called \a name.
    void choose(const char *name, const char *text) const
    {
        const auto segments = control(QString::fromLatin1(name))->findChildren<ToggleButton *>();
        for (ToggleButton *segment : segments) {
            if (segment->text() == QLatin1String(text))
                return segment->click();
        }
        QFAIL(text);
    }

    /// Returns the values that the widgets have of \a property.
    QVariantList values(const char *property) const
    {
        QVariantList values;
        for (const QWidget *widget : widgets())
            values += widget->property(property);
        return values;
    }

private:
    Specimens *m_specimens;
    PropertyControls *m_controls;
};

/// A page that is shown, in a window that asks for no least size: the platform cannot keep one.
struct Shown
{
    Shown()
    {
        window.resize(1000, 800);
        page.resize(window.size());
        window.show();
    }

    QWidget window;
    SvgWidgetsPage &page = *new SvgWidgetsPage(&window);
};

/// Returns the names of the properties that \a type declares itself.
QStringList ownProperties(const QMetaObject &type)
{
    QStringList names;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        names += QString::fromLatin1(type.property(i).name());
    return names;
}

} // namespace

/// The page SVG widgets.
class tst_SvgWidgetsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAControlForEachProperty_data();
    void hasAControlForEachProperty();
    void beginsWithTheValuesOfTheWidgets();
    void setsAPropertyOfAllWidgets_data();
    void setsAPropertyOfAllWidgets();
    void setsTheCoordinatesOfAPoint();
    void setsTheText();
    void hidesTheIcons();
    void showsWhatAnotherControlChanged();
    void keepsAPillRoundAtAnyHeight();
    void holdsAWidgetInEachOfItsStates_data();
    void holdsAWidgetInEachOfItsStates();
    void leavesHeldWidgetsToThemselves();
};

void tst_SvgWidgetsPage::hasAControlForEachProperty_data()
{
    QTest::addColumn<int>("card");
    QTest::addColumn<QStringList>("properties");
    const QStringList button = ownProperties(OxaSvgPushButton::staticMetaObject);
    QTest::newRow("OxaSvgLabel") << int(LabelCard) << ownProperties(OxaSvgLabel::staticMetaObject);
    QTest::newRow("OxaSvgPushButton") << int(ButtonCard) << button;
    QTest::newRow("OxaSvgAnchorButton")
            << int(AnchorCard) << button + ownProperties(OxaSvgAnchorButton::staticMetaObject);
    QTest::newRow("OxaPillTabButton")
            << int(PillCard) << button + ownProperties(OxaPillTabButton::staticMetaObject);
}

void tst_SvgWidgetsPage::hasAControlForEachProperty()
{
    QFETCH(const int, card);
    QFETCH(const QStringList, properties);
    const SvgWidgetsPage page;
    QVERIFY(properties.size() > 10);
    QStringList missing;
    for (const QString &property : properties) {
        if (!Sample(page, card).control(property))
            missing += property;
    }
    QCOMPARE(missing, QStringList());
}

void tst_SvgWidgetsPage::beginsWithTheValuesOfTheWidgets()
{
    const SvgWidgetsPage page;
    const Sample card(page, AnchorCard);
    const QWidget *widget = card.widgets().front();
    QCOMPARE(card.slider("anchorPadding")->value(), widget->property("anchorPadding").toInt());
    QCOMPARE(card.slider("svgIconSize")->value(), widget->property("svgIconSize").toSize().width());
    const auto *align = qobject_cast<SegmentedControl *>(
            card.control(QStringLiteral("textHorAlign")));
    QCOMPARE(align->currentIndex(), 1);
}

void tst_SvgWidgetsPage::setsAPropertyOfAllWidgets_data()
{
    QTest::addColumn<int>("card");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a path") << int(LabelCard) << QByteArray("svgIcon") << QByteArray("Camera")
                            << QVariant(OxaSvgRenderer::resourcePath(QStringLiteral("camera_24")));
    QTest::newRow("an enumeration")
            << int(ButtonCard) << QByteArray("svgIconAlignment") << QByteArray("Top")
            << QVariant::fromValue(OxaEnum::Alignment::Top);
    QTest::newRow("a truth") << int(AnchorCard) << QByteArray("isLeftAnchor") << QByteArray("Yes")
                             << QVariant(true);
    QTest::newRow("a format") << int(ButtonCard) << QByteArray("textFormat") << QByteArray("Rich")
                              << QVariant(Qt::RichText);
    QTest::newRow("a colour set") << int(PillCard) << QByteArray("backgroundColorSet")
                                  << QByteArray("Join")
                                  << QVariant(QStringLiteral("gallery-join-button-background"));
}

void tst_SvgWidgetsPage::setsAPropertyOfAllWidgets()
{
    QFETCH(const int, card);
    QFETCH(const QByteArray, property);
    QFETCH(const QByteArray, choice);
    QFETCH(const QVariant, value);
    const SvgWidgetsPage page;
    const Sample sample(page, card);
    QVERIFY(!sample.values(property.constData()).contains(value));
    sample.choose(property.constData(), choice.constData());
    for (const QVariant &own : sample.values(property.constData()))
        QCOMPARE(own, value);
}

void tst_SvgWidgetsPage::setsTheCoordinatesOfAPoint()
{
    const SvgWidgetsPage page;
    const Sample card(page, LabelCard);
    card.slider("svgIconBottomRightPadding, across")->setValue(5);
    card.slider("svgIconBottomRightPadding, down")->setValue(7);
    for (const QVariant &padding : card.values("svgIconBottomRightPadding"))
        QCOMPARE(padding.toPoint(), QPoint(5, 7));
}

void tst_SvgWidgetsPage::setsTheText()
{
    const SvgWidgetsPage page;
    const Sample card(page, ButtonCard);
    qobject_cast<LineEdit *>(card.control(QStringLiteral("text")))->setText(QStringLiteral("Hi"));
    for (const QVariant &text : card.values("text"))
        QCOMPARE(text.toString(), QStringLiteral("Hi"));
}

void tst_SvgWidgetsPage::hidesTheIcons()
{
    const SvgWidgetsPage page;
    const Sample card(page, AnchorCard);
    card.choose("setSvgIconVisible()", "No");
    card.choose("setAnchorIconVisible()", "No");
    for (const QVariant &size : card.values("svgIconSize") + card.values("anchorIconSize"))
        QCOMPARE(size.toSize(), QSize(-1, -1));
}

void tst_SvgWidgetsPage::showsWhatAnotherControlChanged()
{
    const SvgWidgetsPage page;
    const Sample card(page, AnchorCard);
    card.slider("anchorPadding")->setValue(17);
    QCOMPARE(card.slider("anchorSvgOffset, across")->value(), 17);
    card.slider("anchorSvgOffset, down")->setValue(3);
    QCOMPARE(card.values("anchorSvgOffset").front().toPoint(), QPoint(17, 3));
}

void tst_SvgWidgetsPage::keepsAPillRoundAtAnyHeight()
{
    const Shown shown;
    const SvgWidgetsPage &page = shown.page;
    const Sample card(page, PillCard);
    card.slider("height")->setValue(48);
    QWidget *pill = card.widgets().front();
    QTRY_COMPARE(pill->height(), 48);
    QVERIFY2(pill->styleSheet().contains(QLatin1String("border-radius:24px")),
             qPrintable(pill->styleSheet()));
}

void tst_SvgWidgetsPage::holdsAWidgetInEachOfItsStates_data()
{
    QTest::addColumn<int>("card");
    QTest::addColumn<int>("count");
    QTest::newRow("a label") << int(LabelCard) << 3;
    QTest::newRow("a button") << int(ButtonCard) << 5;
    QTest::newRow("an anchor button") << int(AnchorCard) << 5;
    QTest::newRow("a pill") << int(PillCard) << 5;
}

void tst_SvgWidgetsPage::holdsAWidgetInEachOfItsStates()
{
    QFETCH(const int, card);
    QFETCH(const int, count);
    const Shown shown;
    const SvgWidgetsPage &page = shown.page;
    const QVector<QWidget *> widgets = Sample(page, card).widgets();
    QCOMPARE(widgets.size(), count);
    QVector<QImage> pictures;
    for (QWidget *widget : widgets) {
        const QImage picture = Pixels::render(*widget);
        QVERIFY2(!pictures.contains(picture), qPrintable(QString::number(pictures.size())));
        pictures += picture;
    }
}

void tst_SvgWidgetsPage::leavesHeldWidgetsToThemselves()
{
    const Shown shown;
    const SvgWidgetsPage &page = shown.page;
    const QVector<QWidget *> widgets = Sample(page, ButtonCard).widgets();
    auto *inUse = qobject_cast<QAbstractButton *>(widgets.front());
    QTest::mouseClick(inUse, Qt::LeftButton);
    QVERIFY(inUse->isChecked());
    for (const QWidget *held : widgets.mid(1))
        QVERIFY(held->testAttribute(Qt::WA_TransparentForMouseEvents)
                && held->focusPolicy() == Qt::NoFocus);
}

GALLERY_TEST_MAIN(tst_SvgWidgetsPage)
#include "tst_svgwidgetspage.moc"
