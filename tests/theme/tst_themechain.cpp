// SPDX-License-Identifier: Apache-2.0
#include "ThemedWidgets.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QSignalMapper>
#include <QSignalSpy>

using OxaThemeUtils::AppThemeType;

namespace {

QString storedType(const QObject &object) { return object.property("themeType").toString(); }

/// Adds a row for each class that follows the parent that it is made with.
void addFollowers() { addThemedClassesBut(ThemedClass::FollowsNoParent); }

/// A widget that counts the calls to fetch its colours.
class FetchingWidget : public OxaWidget
{
    Q_OBJECT

public:
    using OxaWidget::OxaWidget;
    using OxaWidget::receivers;
    int fetches = 0;

protected Q_SLOTS:
    void onThemeChanged() override { ++fetches; }
};

} // namespace

/// How children follow the theme types of their parents.
class tst_ThemeChain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void defersToTheWindowWhenGlobal_data() { addThemedClassesBut(ThemedClass::IsWindow); }
    void defersToTheWindowWhenGlobal();
    void keepsItsTypeWhenMadeUnderATypedParent_data()
    {
        addThemedClassesBut(ThemedClass::IsWindow);
    }
    void keepsItsTypeWhenMadeUnderATypedParent();
    void takesTheTypeOfAParentItIsAddedTo_data()
    {
        addThemedClassesBut(ThemedClass::WritesItsText);
    }
    void takesTheTypeOfAParentItIsAddedTo();
    void takesTheTypeWithoutAStyleTextToo_data() { addThemedClasses(); }
    void takesTheTypeWithoutAStyleTextToo();
    void followsItsParentsNextChange_data() { addFollowers(); }
    void followsItsParentsNextChange();
    void keepsItsOwnTypeOnlyUntilItsParentsNextChange_data() { addFollowers(); }
    void keepsItsOwnTypeOnlyUntilItsParentsNextChange();
    void staysConnectedToAnEarlierParent_data() { addThemedClasses(); }
    void staysConnectedToAnEarlierParent();
    void comparesTypesAndNotWords_data() { addFollowers(); }
    void comparesTypesAndNotWords();
    void takesTheWindowsTypeWhenItsParentAgreesWithIt_data()
    {
        addThemedClassesBut(ThemedClass::IsWindow);
    }
    void takesTheWindowsTypeWhenItsParentAgreesWithIt();
    void readsAPropertyOfThatNameOnAnyParent_data() { addThemedClasses(); }
    void readsAPropertyOfThatNameOnAnyParent();
    void takesTheWindowsTypeUnderAParentWithoutOne_data() { addThemedClasses(); }
    void takesTheWindowsTypeUnderAParentWithoutOne();
    void keepsItsTypeWhereNoneIsAboveIt_data() { addThemedClasses(); }
    void keepsItsTypeWhereNoneIsAboveIt();

    void changesOneGenerationAfterTheOther();
    void consultsOnlyTheWidgetAndItsWindow();
    void countsNoWidgetAsGlobal();
    void fetchesColorsAtEachChangeOfTheType();
    void leavesAParentWithoutTheSignalAlone();
    void connectsToEachOfItsParentsOnce();
    void stopsAChangeThatRunsInACircle();
    void followsAParentThatASlotChanges_data();
    void followsAParentThatASlotChanges();
    void takesTheWindowsTypeWhenAnEarlierParentChangesLast();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_ThemeChain::init()
{
    m_stores = std::make_unique<StoreGuard>(storeWith("#ff112233"), storeWith("#ff445566"));
}

void tst_ThemeChain::defersToTheWindowWhenGlobal()
{
    FETCH_THEMED_CLASS;
    OxaWidget window;
    window.setThemeType(QStringLiteral("dark"));
    const auto widget = themed.make(&window);
    QCOMPARE(storedType(*widget), QStringLiteral("global"));
    QCOMPARE(themed.themeType(*widget), AppThemeType::Dark);
}

void tst_ThemeChain::keepsItsTypeWhenMadeUnderATypedParent()
{
    FETCH_THEMED_CLASS;
    OxaWidget window;
    OxaWidget parent(&window);
    parent.setThemeType(QStringLiteral("dark"));
    const auto widget = themed.make(&parent);
    QCOMPARE(storedType(*widget), QStringLiteral("global"));
    QCOMPARE(themed.themeType(*widget), AppThemeType::Global);
}

void tst_ThemeChain::takesTheTypeOfAParentItIsAddedTo()
{
    FETCH_THEMED_CLASS;
    OxaWidget window;
    OxaWidget parent(&window);
    parent.setThemeType(QStringLiteral("dark"));
    const auto widget = themed.make(nullptr);
    widget->setObjectName(QStringLiteral("w"));
    widget->setProperty("css", QByteArrayLiteral("$backgroundColors: panel;"));
    widget->setParent(&parent);
    QCOMPARE(storedType(*widget), QStringLiteral("dark"));
    QCOMPARE(widget->styleSheet(),
             QStringLiteral("#w{border:none;}#w{background-color:#ff445566;}"));
}

void tst_ThemeChain::takesTheTypeWithoutAStyleTextToo()
{
    FETCH_THEMED_CLASS;
    OxaWidget parent;
    parent.setThemeType(QStringLiteral("dark"));
    const auto widget = themed.make(nullptr);
    const QSignalSpy cssChanged(widget.get(), SIGNAL(cssChanged()));
    const QSignalSpy themeTypeChanged(widget.get(), SIGNAL(themeTypeChanged()));
    widget->setParent(&parent);
    QCOMPARE(cssChanged.size(), 1);
    QCOMPARE(themeTypeChanged.size(), 1);
}

void tst_ThemeChain::followsItsParentsNextChange()
{
    FETCH_THEMED_CLASS;
    OxaWidget parent;
    const auto widget = themed.make(&parent);
    parent.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(storedType(*widget), QStringLiteral("inverted"));
    parent.setThemeType(QStringLiteral("global"));
    QCOMPARE(storedType(*widget), QStringLiteral("global"));
}

void tst_ThemeChain::keepsItsOwnTypeOnlyUntilItsParentsNextChange()
{
    FETCH_THEMED_CLASS;
    OxaWidget parent;
    const auto widget = themed.make(&parent);
    widget->setProperty("themeType", QStringLiteral("light"));
    QCOMPARE(themed.themeType(*widget), AppThemeType::Light);
    parent.setThemeType(QStringLiteral("dark"));
    QCOMPARE(themed.themeType(*widget), AppThemeType::Dark);
}

void tst_ThemeChain::staysConnectedToAnEarlierParent()
{
    FETCH_THEMED_CLASS;
    OxaWidget first;
    OxaWidget second;
    const auto widget = themed.make(nullptr);
    widget->setParent(&first);
    widget->setParent(&second);
    for (OxaWidget *parent : { &first, &second }) {
        QVERIFY(QObject::disconnect(parent, SIGNAL(themeTypeChanged()), widget.get(),
                                    SLOT(onParentThemeTypeChanged())));
    }
}

void tst_ThemeChain::comparesTypesAndNotWords()
{
    FETCH_THEMED_CLASS;
    OxaWidget parent;
    const auto widget = themed.make(&parent);
    const QSignalSpy themeTypeChanged(widget.get(), SIGNAL(themeTypeChanged()));
    parent.setThemeType(QStringLiteral("no such type"));
    QCOMPARE(themeTypeChanged.size(), 0);
    QCOMPARE(storedType(*widget), QStringLiteral("global"));
}

void tst_ThemeChain::takesTheWindowsTypeWhenItsParentAgreesWithIt()
{
    FETCH_THEMED_CLASS;
    OxaWidget window;
    window.setThemeType(QStringLiteral("light"));
    OxaWidget parent(&window);
    const auto widget = themed.make(&parent);
    for (QWidget *under : { static_cast<QWidget *>(&parent), widget.get() })
        under->setProperty("themeType", QStringLiteral("dark"));
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "onParentThemeTypeChanged"));
    QCOMPARE(storedType(*widget), QStringLiteral("light"));
}

void tst_ThemeChain::readsAPropertyOfThatNameOnAnyParent()
{
    FETCH_THEMED_CLASS;
    QWidget window;
    window.setProperty("themeType", QStringLiteral("dark"));
    const auto widget = themed.make(nullptr);
    widget->setParent(&window);
    QCOMPARE(storedType(*widget), QStringLiteral("dark"));
}

void tst_ThemeChain::takesTheWindowsTypeUnderAParentWithoutOne()
{
    FETCH_THEMED_CLASS;
    OxaWidget window;
    window.setThemeType(QStringLiteral("dark"));
    QWidget parent(&window);
    const auto widget = themed.make(nullptr);
    widget->setParent(&parent);
    QCOMPARE(storedType(*widget), QStringLiteral("dark"));
}

void tst_ThemeChain::keepsItsTypeWhereNoneIsAboveIt()
{
    FETCH_THEMED_CLASS;
    QWidget window;
    QWidget parent(&window);
    const auto widget = themed.make(nullptr);
    widget->setProperty("themeType", QStringLiteral("dark"));
    widget->setParent(&parent);
    QCOMPARE(storedType(*widget), QStringLiteral("dark"));
}

void tst_ThemeChain::changesOneGenerationAfterTheOther()
{
    OxaWidget window;
    OxaWidget first(&window);
    OxaLabel firstsChild(&first);
    OxaWidget second(&window);

    SignalLog log;
    const auto record = [&log](const auto &widget, const QString &name) {
        using Widget = std::decay_t<decltype(widget)>;
        log.record(&widget, &Widget::cssChanged, name + QLatin1String(" css"));
        log.record(&widget, &Widget::themeTypeChanged, name + QLatin1String(" type"));
    };
    record(window, QStringLiteral("window"));
    record(first, QStringLiteral("first"));
    record(firstsChild, QStringLiteral("first's child"));
    record(second, QStringLiteral("second"));

    window.setThemeType(QStringLiteral("dark"));
    // The children are connected before the log.
    QCOMPARE(log.take(),
             QStringLiteral("window css | first css | first's child css | first's child type | "
                            "first type | second css | second type | window type"));
}

void tst_ThemeChain::consultsOnlyTheWidgetAndItsWindow()
{
    QWidget window;
    QWidget between(&window);
    QWidget widget(&between);
    between.setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(OxaThemeUtils::getThemeTypeOfWidget(&widget), AppThemeType::Global);
    window.setProperty("themeType", QStringLiteral("inverted"));
    QCOMPARE(OxaThemeUtils::getThemeTypeOfWidget(&widget), AppThemeType::Inverted);
    widget.setProperty("themeType", QStringLiteral("light"));
    QCOMPARE(OxaThemeUtils::getThemeTypeOfWidget(&widget), AppThemeType::Light);
    widget.setProperty("themeType", QStringLiteral("global"));
    QCOMPARE(OxaThemeUtils::getThemeTypeOfWidget(&widget), AppThemeType::Inverted);
}

void tst_ThemeChain::countsNoWidgetAsGlobal()
{
    QCOMPARE(OxaThemeUtils::getThemeTypeOfWidget(nullptr), AppThemeType::Global);
}

void tst_ThemeChain::fetchesColorsAtEachChangeOfTheType()
{
    OxaWidget parent;
    FetchingWidget widget(&parent);
    QCOMPARE(widget.fetches, 0);
    widget.setThemeType(QStringLiteral("dark"));
    QCOMPARE(widget.fetches, 1);
    parent.setThemeType(QStringLiteral("light"));
    QCOMPARE(widget.fetches, 2);
}

void tst_ThemeChain::leavesAParentWithoutTheSignalAlone()
{
    QWidget parent;
    OxaWidget madeUnderIt(&parent);
    OxaWidget added;
    added.setParent(&parent);
    QCOMPARE(storedType(madeUnderIt), QStringLiteral("global"));
    QCOMPARE(storedType(added), QStringLiteral("global"));
}

void tst_ThemeChain::connectsToEachOfItsParentsOnce()
{
    FetchingWidget first;
    FetchingWidget second;
    OxaWidget widget(&first);
    const auto receivers = [](const FetchingWidget &parent) {
        return parent.receivers(SIGNAL(themeTypeChanged()));
    };
    const int before = receivers(first);
    QCOMPARE(receivers(second), before - 1);
    for (int i = 0; i < 100; ++i) {
        widget.setParent(&second);
        widget.setParent(&first);
    }
    QCOMPARE(receivers(first), before);
    QCOMPARE(receivers(second), before);
}

void tst_ThemeChain::stopsAChangeThatRunsInACircle()
{
    // Each of the two follows the other, and their parent and window always disagree.
    QWidget window;
    OxaWidget parent(&window);
    OxaWidget a;
    OxaWidget b(&parent);
    a.setParent(&b);
    a.setParent(&parent);
    b.setParent(&a);
    parent.setThemeType(QStringLiteral("dark"));
    window.setProperty("themeType", QStringLiteral("inverted"));
    SignalLog log;
    log.record(&a, &OxaWidget::themeTypeChanged, QStringLiteral("a"));
    log.record(&b, &OxaWidget::themeTypeChanged, QStringLiteral("b"));

    a.setThemeType(QStringLiteral("light"));
    QCOMPARE(log.take(), QStringLiteral("b | a"));
    QCOMPARE(storedType(a), QStringLiteral("light"));
    QCOMPARE(storedType(b), QStringLiteral("light"));
}

void tst_ThemeChain::followsAParentThatASlotChanges_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("at the style text") << QByteArray(SIGNAL(cssChanged()));
    QTest::newRow("at the type") << QByteArray(SIGNAL(themeTypeChanged()));
}

void tst_ThemeChain::followsAParentThatASlotChanges()
{
    QFETCH(const QByteArray, signal);
    OxaWidget parent;
    OxaWidget child(&parent);
    QSignalMapper slot;
    slot.setMapping(&child, 0);
    connect(&child, signal.constData(), &slot, SLOT(map()));
    connect(&slot, &QSignalMapper::mappedInt, this, [&] {
        if (storedType(parent) == QStringLiteral("dark"))
            parent.setThemeType(QStringLiteral("light"));
    });
    parent.setThemeType(QStringLiteral("dark"));
    QCOMPARE(storedType(parent), QStringLiteral("light"));
    QCOMPARE(storedType(child), QStringLiteral("light"));
}

void tst_ThemeChain::takesTheWindowsTypeWhenAnEarlierParentChangesLast()
{
    OxaWidget window;
    window.setThemeType(QStringLiteral("light"));
    OxaWidget above(&window);
    OxaWidget parent(&above);
    OxaWidget earlierParent(&above);
    OxaWidget widget(&earlierParent);
    widget.setParent(&parent);
    above.setThemeType(QStringLiteral("dark"));
    // It took "dark" from its parent first. When the earlier parent changed, its parent had that
    // type already, so that it took the window's.
    QCOMPARE(storedType(parent), QStringLiteral("dark"));
    QCOMPARE(storedType(widget), QStringLiteral("light"));
}

UIELEMENTS_TEST_MAIN(tst_ThemeChain)
#include "tst_themechain.moc"
