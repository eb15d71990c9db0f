// SPDX-License-Identifier: Apache-2.0
#include "ThemedWidgets.h"
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QFrame>
#include <QPointer>
#include <QSignalSpy>

namespace {

const QString styleText = QStringLiteral("$backgroundColors: panel;");

QString storedType(const QObject &object) { return object.property("themeType").toString(); }

/// True when \a widget shows \a color.
bool shows(const QWidget &widget, const char *color)
{
    return widget.styleSheet().contains(QLatin1String(color));
}

void replaceStores()
{
    OxaThemeUtils::setAppOxaColorSets(storeWith("#ff778899"));
    OxaThemeUtils::setAppInvertedOxaColorSets(storeWith("#ffaabbcc"));
}

/// A window that is no widget of the library, with its own theme type property and signal.
class ForeignWindow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString themeType READ themeType WRITE setThemeType NOTIFY themeTypeChanged)

public:
    QString themeType() const { return m_themeType; }
    void setThemeType(const QString &themeType)
    {
        m_themeType = themeType;
        Q_EMIT themeTypeChanged();
    }

Q_SIGNALS:
    void themeTypeChanged();

private:
    QString m_themeType = QStringLiteral("dark");
};

} // namespace

namespace client {

/// A client's themed widget in the client's own namespace.
class Tag : public QFrame
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QFrame)

public:
    explicit Tag(QWidget *parent = nullptr) : QFrame(parent) { m_themeBlock.followTheme(); }

protected Q_SLOTS:
    virtual void onThemeChanged() { }
};

} // namespace client

/// OxaThemeUtils::refreshThemedWidgets().
class tst_ThemeRefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stores = std::make_unique<StoreGuard>(storeWith("#ff112233"), storeWith("#ff445566"));
    }
    void cleanup() { m_stores.reset(); }

    void bringsNewColorsToEachClass_data() { addThemedClasses(); }
    void bringsNewColorsToEachClass();
    void emitsSignalsOfEachWidgetOnce();
    void reachesParentsFirst();
    void reachesOneWidgetAndThoseBelowIt();
    void changesNoThemeType();
    void changesNoThemeTypeUnderAForeignWindow();
    void setsTheTypeOfAForeignWidgetAgain();
    void handsOnATypeThatASlotSets();
    void handsOnATypeThatASlotSetsOnAForeignWindow();
    void refreshesAWidgetInANamespace();
    void takesTheTypeOfAParentThatASlotGives();
    void survivesWidgetsThatASlotDeletes();
    void survivesWidgetsThatASlotAdds();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_ThemeRefresh::bringsNewColorsToEachClass()
{
    FETCH_THEMED_CLASS;
    QWidget unthemedWindow;
    const auto widget = themed.make(&unthemedWindow);
    widget->setProperty("css", styleText.toUtf8());
    replaceStores();
    OxaThemeUtils::refreshThemedWidgets();
    QVERIFY2(shows(*widget, "#ff778899"), qPrintable(widget->styleSheet()));
    QCOMPARE(storedType(*widget), QStringLiteral("global"));
}

void tst_ThemeRefresh::emitsSignalsOfEachWidgetOnce()
{
    OxaWidget window;
    OxaWidget child(&window);
    const QSignalSpy cssChanged(&child, &OxaWidget::cssChanged);
    const QSignalSpy themeTypeChanged(&child, &OxaWidget::themeTypeChanged);
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(cssChanged.size(), 1);
    QCOMPARE(themeTypeChanged.size(), 1);
}

void tst_ThemeRefresh::reachesParentsFirst()
{
    OxaWidget window;
    QWidget between(&window);
    OxaWidget first(&between);
    OxaWidget firstsChild(&first);
    OxaWidget second(&window);
    SignalLog log;
    for (const auto &[widget, name] : std::vector<std::pair<OxaWidget *, QString>> {
                 { &second, QStringLiteral("second") },
                 { &firstsChild, QStringLiteral("first's child") },
                 { &first, QStringLiteral("first") },
                 { &window, QStringLiteral("window") } })
        log.record(widget, &OxaWidget::cssChanged, name);
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(log.take(), QStringLiteral("window | first | first's child | second"));
}

void tst_ThemeRefresh::reachesOneWidgetAndThoseBelowIt()
{
    OxaWidget window;
    OxaWidget section(&window);
    OxaWidget inside(&section);
    OxaWidget beside(&window);
    for (OxaWidget *widget : { &window, &section, &inside, &beside })
        widget->setCSS(styleText);
    replaceStores();
    OxaThemeUtils::refreshThemedWidgets(&section);
    QVERIFY(shows(section, "#ff778899"));
    QVERIFY(shows(inside, "#ff778899"));
    QVERIFY(shows(window, "#ff112233"));
    QVERIFY(shows(beside, "#ff112233"));
}

void tst_ThemeRefresh::changesNoThemeType()
{
    OxaWidget window;
    OxaWidget parent(&window);
    OxaLabel child(&parent);
    window.setThemeType(QStringLiteral("dark"));
    parent.setThemeType(QStringLiteral("light"));
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(storedType(window), QStringLiteral("dark"));
    QCOMPARE(storedType(parent), QStringLiteral("light"));
    QCOMPARE(storedType(child), QStringLiteral("light"));
}

void tst_ThemeRefresh::changesNoThemeTypeUnderAForeignWindow()
{
    ForeignWindow window;
    OxaLabel child(&window);
    child.setThemeType(QStringLiteral("light"));
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(storedType(child), QStringLiteral("light"));
    // Without a refresh the child follows.
    window.setThemeType(QStringLiteral("dark"));
    QCOMPARE(storedType(child), QStringLiteral("dark"));
}

void tst_ThemeRefresh::setsTheTypeOfAForeignWidgetAgain()
{
    ForeignWindow window;
    const QSignalSpy themeTypeChanged(&window, &ForeignWindow::themeTypeChanged);
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(themeTypeChanged.size(), 1);
    QCOMPARE(window.themeType(), QStringLiteral("dark"));
}

void tst_ThemeRefresh::handsOnATypeThatASlotSets()
{
    OxaWidget window;
    OxaWidget child(&window);
    const QMetaObject::Connection connection =
            connect(&window, &OxaWidget::cssChanged, &window, [&] {
                if (storedType(window) != QStringLiteral("dark"))
                    window.setThemeType(QStringLiteral("dark"));
            });
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(storedType(child), QStringLiteral("dark"));
    disconnect(connection);
}

void tst_ThemeRefresh::takesTheTypeOfAParentThatASlotGives()
{
    OxaWidget window;
    OxaWidget other;
    other.setThemeType(QStringLiteral("dark"));
    OxaWidget child;
    connect(&window, &OxaWidget::themeTypeChanged, &child, [&] { child.setParent(&other); });
    OxaThemeUtils::refreshThemedWidgets(&window);
    QCOMPARE(storedType(child), QStringLiteral("dark"));
}

void tst_ThemeRefresh::survivesWidgetsThatASlotDeletes()
{
    for (const auto signal : { &OxaWidget::cssChanged, &OxaWidget::themeTypeChanged }) {
        const QPointer<OxaWidget> window = new OxaWidget;
        const QPointer<OxaWidget> child = new OxaWidget(window);
        OxaWidget other;
        other.setCSS(styleText);
        connect(child.data(), signal, this, [&window] { delete window.data(); });
        replaceStores();
        OxaThemeUtils::refreshThemedWidgets();
        QVERIFY(!window);
        QVERIFY(!child);
        QVERIFY(shows(other, "#ff778899"));
    }
}

void tst_ThemeRefresh::survivesWidgetsThatASlotAdds()
{
    OxaWidget window;
    OxaWidget old(&window);
    std::vector<OxaWidget *> made;
    connect(&window, &OxaWidget::themeTypeChanged, &window, [&] {
        for (int i = 0; i < 100; ++i) {
            made.push_back(new OxaWidget(&window));
            made.back()->setCSS(styleText);
        }
    });
    old.setCSS(styleText);
    replaceStores();
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(int(made.size()), 100);
    QVERIFY(shows(old, "#ff778899"));
    QVERIFY(std::all_of(made.begin(), made.end(),
                        [](const OxaWidget *one) { return shows(*one, "#ff778899"); }));
}

void tst_ThemeRefresh::handsOnATypeThatASlotSetsOnAForeignWindow()
{
    ForeignWindow window;
    OxaLabel label(&window);
    const auto typeOf = [](const QWidget &widget) {
        return widget.property("themeType").toString();
    };
    const auto connection = connect(&label, &OxaLabel::themeTypeChanged, &window, [&window] {
        if (window.themeType() != QLatin1String("inverted"))
            window.setThemeType(QStringLiteral("inverted"));
    });
    label.setThemeType(QStringLiteral("light"));
    QCOMPARE(typeOf(label), QStringLiteral("inverted"));

    window.setThemeType(QStringLiteral("dark"));
    QCOMPARE(typeOf(label), QStringLiteral("inverted"));
    disconnect(connection);
    connect(&label, &OxaLabel::cssChanged, &window, [&window] {
        if (window.themeType() != QLatin1String("light"))
            window.setThemeType(QStringLiteral("light"));
    });
    OxaThemeUtils::refreshThemedWidgets();
    QCOMPARE(typeOf(label), QStringLiteral("light"));
}

void tst_ThemeRefresh::refreshesAWidgetInANamespace()
{
    client::Tag tag;
    tag.setObjectName(QStringLiteral("tag"));
    tag.setCSS(QStringLiteral("$backgroundColors: panel;"));
    const QString before = tag.styleSheet();
    replaceStores();
    OxaThemeUtils::refreshThemedWidgets(&tag);
    QVERIFY(tag.styleSheet() != before);
}

UIELEMENTS_TEST_MAIN(tst_ThemeRefresh)
#include "tst_themerefresh.moc"
