// SPDX-License-Identifier: Apache-2.0
#include "ThemedWidgets.h"
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QPointer>

namespace {

const QByteArray backgroundText = QByteArrayLiteral("$backgroundColors: panel;");
const QByteArray textText = QByteArrayLiteral("$textColors: panel;");

/// Calls a function for a signal of a widget of any class.
class Listener : public QObject
{
    Q_OBJECT

public:
    Listener(QWidget *widget, const QByteArray &signal, const std::function<void()> &listen)
        : m_listen(listen)
    {
        connect(widget, signal.constData(), this, SLOT(hear()));
    }

private Q_SLOTS:
    void hear() { m_listen(); }

private:
    const std::function<void()> m_listen;
};

/// Returns the theme of \a widget, called "w": "dark | $textColors: x; | #w{…}".
QString stateOf(const QWidget &widget)
{
    return widget.property("themeType").toString() + QLatin1String(" | ")
            + QString::fromUtf8(widget.property("css").toByteArray()) + QLatin1String(" | ")
            + widget.styleSheet();
}

QString stateWith(const char *themeType, const char *color)
{
    return QStringLiteral("%1 | $backgroundColors: panel; | "
                          "#w{border:none;}#w{background-color:%2;}")
            .arg(QLatin1String(themeType), QLatin1String(color));
}

std::unique_ptr<QWidget> makeNamed(const ThemedClass &themed, QWidget *parent = nullptr)
{
    auto widget = themed.make(parent);
    widget->setObjectName(QStringLiteral("w"));
    return widget;
}

} // namespace

/// What slots of a themed widget's signals find, and what they may do: a row for each class.
class tst_OxaThemeBlockListeners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stores = std::make_unique<StoreGuard>(storeWith("#ff112233"), storeWith("#ff445566"));
    }
    void cleanup() { m_stores.reset(); }

    void findTheNewStyleTextInForce_data() { addThemedClasses(); }
    void findTheNewStyleTextInForce();
    void findTheNewTypeInForce_data() { addThemedClassesBut(ThemedClass::WritesItsText); }
    void findTheNewTypeInForce();
    void maySetAnotherStyleTextWhenTheTypeChanges_data() { addThemedClasses(); }
    void maySetAnotherStyleTextWhenTheTypeChanges();
    void maySetAnotherTypeWhenTheStyleTextChanges_data()
    {
        addThemedClassesBut(ThemedClass::WritesItsText);
    }
    void maySetAnotherTypeWhenTheStyleTextChanges();
    void mayReplaceTheStoresWhenTheTypeChanges_data()
    {
        addThemedClassesBut(ThemedClass::WritesItsText);
    }
    void mayReplaceTheStoresWhenTheTypeChanges();

    void mayDeleteTheWidgetWhenItsStyleTextIsSet_data() { addThemedClasses(); }
    void mayDeleteTheWidgetWhenItsStyleTextIsSet();
    void mayDeleteTheWidgetWhenItsNameIsSet_data()
    {
        addThemedClassesBut(ThemedClass::FollowsNoName);
    }
    void mayDeleteTheWidgetWhenItsNameIsSet();
    void mayDeleteTheWidgetWhenItsTypeIsSet_data() { addWaysToHear(); }
    void mayDeleteTheWidgetWhenItsTypeIsSet();
    void mayDeleteTheWidgetWhenItsParentsTypeIsSet_data()
    {
        addWaysToHear(ThemedClass::FollowsNoParent);
    }
    void mayDeleteTheWidgetWhenItsParentsTypeIsSet();
    void mayDeleteTheParentWhenItsTypeIsSet_data() { addWaysToHear(ThemedClass::FollowsNoParent); }
    void mayDeleteTheParentWhenItsTypeIsSet();

private:
    static void addWaysToHear(int butTraits = ThemedClass::NoTraits);

    std::unique_ptr<StoreGuard> m_stores;
};

/// Adds a row for each themed class without any of \a butTraits and each of its two signals.
void tst_OxaThemeBlockListeners::addWaysToHear(int butTraits)
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("signal");
    int row = -1;
    for (const ThemedClass &themed : themedClasses()) {
        ++row;
        if ((themed.traits & butTraits) != 0)
            continue;
        QTest::addRow("%s by its style text", themed.name)
                << row << QByteArray(SIGNAL(cssChanged()));
        QTest::addRow("%s by its type", themed.name)
                << row << QByteArray(SIGNAL(themeTypeChanged()));
    }
}

void tst_OxaThemeBlockListeners::findTheNewStyleTextInForce()
{
    FETCH_THEMED_CLASS;
    const auto widget = makeNamed(themed);
    QString heard;
    const Listener listener(widget.get(), SIGNAL(cssChanged()), [&] {
        heard = stateOf(*widget) + QLatin1String(" | ")
                + themed.cssData(*widget).backgroundColorSetName;
    });
    widget->setProperty("css", backgroundText);
    QCOMPARE(heard, stateWith("global", "#ff112233") + QLatin1String(" | panel"));
}

void tst_OxaThemeBlockListeners::findTheNewTypeInForce()
{
    FETCH_THEMED_CLASS;
    const auto widget = makeNamed(themed);
    widget->setProperty("css", backgroundText);
    SignalLog heard;
    const Listener cssListener(widget.get(), SIGNAL(cssChanged()),
                               [&] { heard.note(QLatin1String("css: ") + stateOf(*widget)); });
    const Listener typeListener(widget.get(), SIGNAL(themeTypeChanged()),
                                [&] { heard.note(QLatin1String("type: ") + stateOf(*widget)); });
    widget->setProperty("themeType", QStringLiteral("dark"));
    const QString dark = stateWith("dark", "#ff445566");
    QCOMPARE(heard.take(), QLatin1String("css: ") + dark + QLatin1String(" | type: ") + dark);
}

void tst_OxaThemeBlockListeners::maySetAnotherStyleTextWhenTheTypeChanges()
{
    FETCH_THEMED_CLASS;
    const auto widget = makeNamed(themed);
    widget->setProperty("css", textText);
    const Listener listener(widget.get(), SIGNAL(themeTypeChanged()),
                            [&] { widget->setProperty("css", backgroundText); });
    widget->setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(stateOf(*widget), stateWith("dark", "#ff445566"));
}

void tst_OxaThemeBlockListeners::maySetAnotherTypeWhenTheStyleTextChanges()
{
    FETCH_THEMED_CLASS;
    const auto widget = makeNamed(themed);
    widget->setProperty("css", backgroundText);
    SignalLog heard;
    const Listener typeListener(widget.get(), SIGNAL(themeTypeChanged()),
                                [&] { heard.note(widget->property("themeType").toString()); });
    const Listener listener(widget.get(), SIGNAL(cssChanged()), [&] {
        if (widget->property("themeType") == QStringLiteral("dark"))
            widget->setProperty("themeType", QStringLiteral("light"));
    });
    widget->setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(heard.take(), QStringLiteral("light | light"));
    QCOMPARE(stateOf(*widget), stateWith("light", "#ff112233"));
}

void tst_OxaThemeBlockListeners::mayReplaceTheStoresWhenTheTypeChanges()
{
    FETCH_THEMED_CLASS;
    const auto widget = makeNamed(themed);
    widget->setProperty("css", backgroundText);
    const Listener listener(widget.get(), SIGNAL(themeTypeChanged()), [] {
        OxaThemeUtils::setAppOxaColorSets(storeWith("#ff778899"));
        OxaThemeUtils::setAppInvertedOxaColorSets(storeWith("#ffaabbcc"));
    });
    widget->setProperty("themeType", QStringLiteral("dark"));
    QCOMPARE(stateOf(*widget), stateWith("dark", "#ff445566"));
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "refreshCSS"));
    QCOMPARE(stateOf(*widget), stateWith("dark", "#ffaabbcc"));
}

void tst_OxaThemeBlockListeners::mayDeleteTheWidgetWhenItsStyleTextIsSet()
{
    FETCH_THEMED_CLASS;
    const QPointer<QWidget> widget = themed.make(nullptr).release();
    const Listener listener(widget, SIGNAL(cssChanged()), [&] { delete widget; });
    widget->setProperty("css", backgroundText);
    QVERIFY(!widget);
}

void tst_OxaThemeBlockListeners::mayDeleteTheWidgetWhenItsNameIsSet()
{
    FETCH_THEMED_CLASS;
    const QPointer<QWidget> widget = themed.make(nullptr).release();
    widget->setProperty("css", backgroundText);
    const Listener listener(widget, SIGNAL(cssChanged()), [&] { delete widget; });
    widget->setObjectName(QStringLiteral("w"));
    QVERIFY(!widget);
}

void tst_OxaThemeBlockListeners::mayDeleteTheWidgetWhenItsTypeIsSet()
{
    FETCH_THEMED_CLASS;
    QFETCH(const QByteArray, signal);
    const QPointer<QWidget> widget = themed.make(nullptr).release();
    const Listener listener(widget, signal, [&] { delete widget; });
    widget->setProperty("themeType", QStringLiteral("dark"));
    QVERIFY(!widget);
}

void tst_OxaThemeBlockListeners::mayDeleteTheWidgetWhenItsParentsTypeIsSet()
{
    FETCH_THEMED_CLASS;
    QFETCH(const QByteArray, signal);
    OxaWidget parent;
    const QPointer<QWidget> widget = themed.make(&parent).release();
    const OxaWidget sibling(&parent);
    const Listener listener(widget, signal, [&] { delete widget; });
    parent.setThemeType(QStringLiteral("dark"));
    QVERIFY(!widget);
    QCOMPARE(sibling.property("themeType").toString(), QStringLiteral("dark"));
}

void tst_OxaThemeBlockListeners::mayDeleteTheParentWhenItsTypeIsSet()
{
    FETCH_THEMED_CLASS;
    QFETCH(const QByteArray, signal);
    const QPointer<OxaWidget> parent = new OxaWidget;
    const QPointer<QWidget> widget = themed.make(parent).release();
    const Listener listener(widget, signal, [&] { delete parent; });
    parent->setThemeType(QStringLiteral("dark"));
    QVERIFY(!parent);
    QVERIFY(!widget);
}

UIELEMENTS_TEST_MAIN(tst_OxaThemeBlockListeners)
#include "tst_oxathemeblock_listeners.moc"
