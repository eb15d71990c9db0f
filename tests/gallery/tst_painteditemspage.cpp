// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQmlHalfPill.h>
#include <UiElements/qml/OxaQuickWidget.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QMetaProperty>
#include <QQuickItem>

#include <looks/ThemeSwitcher.h>
#include <pages/widgets/Pages.h>
#include <shell/Page.h>
#include <specimens/PropertyControls.h>
#include <widgets/CodeEdit.h>

namespace {

/// A card of the page in a window that is shown.
class Sample
{
public:
    explicit Sample(int index) : m_page(Pages::makePaintedItems(&m_window)), m_index(index)
    {
        m_window.resize(1000, 1400);
        m_page->resize(m_window.size());
        m_window.show();
        QCoreApplication::processEvents();
    }

    OxaQuickWidget &view() const { return *m_page->findChildren<OxaQuickWidget *>().at(m_index); }
    PropertyControls &controls() const
    {
        return *m_page->findChildren<PropertyControls *>().at(m_index);
    }
    QString log() const { return m_page->findChildren<CodeEdit *>().at(m_index)->toPlainText(); }

    template <typename Item = QQuickPaintedItem>
    Item &item() const
    {
        return *view().rootObject()->findChild<Item *>();
    }

    OxaSlider &slider(const char *name) const
    {
        return *Controls::called<OxaSlider>(controls(), name);
    }
    void choose(const char *name, const char *text) const
    {
        Controls::choose(controls(), name, text);
    }

private:
    QWidget m_window;
    Page *const m_page;
    const int m_index;
};

QColor color(const char *setName)
{
    return OxaThemeUtils::getColorSet(setName, OxaThemeUtils::AppThemeType::Global).normal;
}

} // namespace

/// The page of items that paint themselves.
class tst_PaintedItemsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void hasAControlForEachProperty_data();
    void hasAControlForEachProperty();
    void showsEachChange_data();
    void showsEachChange();
    void paintsInTheThemesColors();
    void choosesColors();
    void logsWhatTheItemEmits();
    void controlsTheNewItemAfterAReload();
};

void tst_PaintedItemsPage::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setAppearance(ThemeSwitcher::Appearance::Light);
}

void tst_PaintedItemsPage::hasAControlForEachProperty_data()
{
    QTest::addColumn<int>("card");
    QTest::newRow("OxaQmlBalloon") << 0;
    QTest::newRow("OxaQmlHalfPill") << 1;
}

void tst_PaintedItemsPage::hasAControlForEachProperty()
{
    QFETCH(const int, card);
    const Sample sample(card);
    const QMetaObject *type = sample.item().metaObject();
    while (type->superClass() != &QQuickPaintedItem::staticMetaObject)
        type = type->superClass(); // QML derives a class of its own for a file's item.
    QCOMPARE(type->className(), QTest::currentDataTag());
    QStringList missing;
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        if (!Controls::called<QWidget>(sample.controls(), type->property(i).name()))
            missing += QString::fromLatin1(type->property(i).name());
    }
    QCOMPARE(missing, QStringList());
}

void tst_PaintedItemsPage::showsEachChange_data()
{
    QTest::addColumn<int>("card");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("value");
    for (const auto &[name, value] :
         { std::pair("arrowOffset", 40), std::pair("arrowSize", 20), std::pair("radius", 0),
           std::pair("borderWidth", 6), std::pair("topMargin", 30), std::pair("width", 120),
           std::pair("height", 60) })
        QTest::addRow("%s of a balloon", name) << 0 << QByteArray(name) << value;
    for (const auto &[name, value] : { std::pair("borderWidth", 6), std::pair("height", 80) })
        QTest::addRow("%s of a half pill", name) << 1 << QByteArray(name) << value;
}

void tst_PaintedItemsPage::showsEachChange()
{
    QFETCH(const int, card);
    QFETCH(const QByteArray, name);
    QFETCH(const int, value);
    const Sample sample(card);
    const QImage before = sample.view().grabFramebuffer();
    sample.slider(name.constData()).setValue(value);
    QCOMPARE(sample.item().property(name.constData()).toInt(), value);
    QVERIFY(sample.view().grabFramebuffer() != before);
}

void tst_PaintedItemsPage::paintsInTheThemesColors()
{
    const Sample sample(0);
    const auto &balloon = sample.item<OxaQmlBalloon>();
    for (const auto appearance :
         { ThemeSwitcher::Appearance::Dark, ThemeSwitcher::Appearance::HighContrast }) {
        GalleryApplication::get()->themeSwitcher()->setAppearance(appearance);
        QCOMPARE(balloon.backgroundColor(), color("gallery-note-background"));
        QCOMPARE(balloon.borderColor(), color("gallery-note-border"));
        QCOMPARE(sample.view().rootObject()->property("color").value<QColor>(),
                 color("gallery-card-background"));
    }
}

void tst_PaintedItemsPage::choosesColors()
{
    const Sample sample(1);
    const auto &pill = sample.item<OxaQmlHalfPill>();
    sample.choose("backgroundColor", "Accent");
    sample.choose("borderColor", "None");
    QCOMPARE(pill.backgroundColor(), color("gallery-accent"));
    QCOMPARE(pill.borderColor(), QColor(Qt::transparent));
}

void tst_PaintedItemsPage::logsWhatTheItemEmits()
{
    const Sample sample(1);
    sample.choose("edge", "None");
    sample.choose("borderTop", "No");
    QCOMPARE(sample.log(), QStringLiteral("edgeChanged()\nborderChanged()"));
    QCOMPARE(sample.item<OxaQmlHalfPill>().property("edge").toInt(), int(OxaQmlHalfPill::None));
}

void tst_PaintedItemsPage::controlsTheNewItemAfterAReload()
{
    const Sample sample(0);
    const QPointer<OxaQmlBalloon> before = &sample.item<OxaQmlBalloon>();
    sample.slider("radius").setValue(20);
    const QUrl source = sample.view().source();
    sample.view().setSource(QUrl());
    sample.view().setSource(source);
    QVERIFY(!before);
    QCOMPARE(sample.slider("radius").value(), 8);
    sample.slider("radius").setValue(12);
    QCOMPARE(sample.item<OxaQmlBalloon>().radius(), 12);
    QCOMPARE(sample.item<OxaQmlBalloon>().backgroundColor(), color("gallery-note-background"));
}

GALLERY_TEST_MAIN(tst_PaintedItemsPage)
#include "tst_painteditemspage.moc"
