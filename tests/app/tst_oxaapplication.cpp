// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/movies/OxaMovieProviderSource.h>

#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>

#include <limits>

namespace {

TestApplication *application() { return static_cast<TestApplication *>(qApp); }

QMetaProperty propertyOf(const char *name)
{
    const QMetaObject &type = OxaApplication::staticMetaObject;
    return type.property(type.indexOfProperty(name));
}

/// Spies on the notify signal of the property \a name.
class NotifySpy : public QSignalSpy
{
public:
    explicit NotifySpy(const char *name)
        : QSignalSpy(qApp,
                     QByteArray(QByteArrayLiteral("2")
                                + propertyOf(name).notifySignal().methodSignature())
                             .constData())
    {
    }
};

/// The members of an OxaApplication, in the required order.
struct Members
{
    QPointer<QObject> appSignals;
    QString themeName;
    float fontScaleFactor;
    QString logoSvgPath;
    QString logoPngPath;
    std::optional<AppPublishing::OxaPublishingInfo> publishingInfo;
    QPointer<QObject> fontManager;
    QPointer<QObject> globalSignalListener;
    QObject *movieProviderSource;
};
static_assert(sizeof(OxaApplication) == sizeof(IOxaApplication) + sizeof(Members));

/// Shows where the record is, which is protected.
class PublishingOutline : public OxaApplication
{
public:
    static std::ptrdiff_t offset(OxaApplication &application)
    {
        auto OxaApplication::*const member = &PublishingOutline::m_publishingInfo;
        return distance(&application, &(application.*member));
    }

    static std::ptrdiff_t distance(const void *from, const void *to)
    {
        return static_cast<const char *>(to) - static_cast<const char *>(from);
    }
};

} // namespace

class tst_OxaApplication : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    /// Notes the value of the property whose signal it is connected to.
    void noteProperty() { m_noted += application()->property(m_property.constData()); }

private Q_SLOTS:
    void startsWithoutThemeLogoAndColors();
    void startsWithoutPublishingInformation();
    void keepsThePublishingInformationBetweenTheLogosAndTheFontManager();
    void startsWithoutQmlEngine();
    void makesItsSourceOfMoviesAtTheFirstCall();
    void makesTheFontManagerAsItsChild();
    void installsTheApplicationFont();
    void registersTheColorSetByName();

    void showsItsProperties_data();
    void showsItsProperties();
    void showsItsSignals_data();
    void showsItsSignals();
    void showsItsInvokables_data();
    void showsItsInvokables();

    void emitsTheSignalOfAPropertyThatIsSet_data();
    void emitsTheSignalOfAPropertyThatIsSet();
    void emitsTheSignalAfterTheValueIsSet_data();
    void emitsTheSignalAfterTheValueIsSet();
    void keepsTheFlagsApart();
    void setsLogoPathsByName();

    void acceptsAFontScaleFactor_data();
    void acceptsAFontScaleFactor();
    void rejectsAFontScaleFactor_data();
    void rejectsAFontScaleFactor();
    void acceptsNanAsFontScaleFactor();

    void handsOutACopyOfThePublishingInformation();
    void isInFocusOnceAWindowIsActive();

private:
    QByteArray m_property;
    QVariantList m_noted;
};

void tst_OxaApplication::startsWithoutThemeLogoAndColors()
{
    QVERIFY(!application()->getIsDarkTheme());
    QVERIFY(!application()->getIsHighContrastTheme());
    QCOMPARE(application()->getThemeName(), QString());
    QCOMPARE(application()->getLogoSvgPath(), QString());
    QCOMPARE(application()->getLogoPngPath(), QString());
    QCOMPARE(application()->getFontScaleFactor(), 1.0F);
    QVERIFY(!application()->animationsDisabled());
    QVERIFY(application()->getColorSets().empty());
    QVERIFY(application()->getInvertedColorSets().empty());
    QVERIFY(application()->getColorTokens().empty());
}

void tst_OxaApplication::startsWithoutPublishingInformation()
{
    QVERIFY(!application()->getPublishingInfo());
}

void tst_OxaApplication::keepsThePublishingInformationBetweenTheLogosAndTheFontManager()
{
    const Members members {};
    QCOMPARE(PublishingOutline::offset(*application()),
             std::ptrdiff_t(sizeof(IOxaApplication))
                     + PublishingOutline::distance(&members, &members.publishingInfo));
}

void tst_OxaApplication::startsWithoutQmlEngine() { QVERIFY(!application()->getQmlEngine()); }

void tst_OxaApplication::makesItsSourceOfMoviesAtTheFirstCall()
{
    QVERIFY(!application()->findChild<IOxaMovieProviderSource *>());
    IOxaMovieProviderSource *source = application()->getMovieProviderSource();
    QVERIFY(qobject_cast<OxaMovieProviderSource *>(source));
    QCOMPARE(source->parent(), application());
    QCOMPARE(application()->getMovieProviderSource(), source);
}

void tst_OxaApplication::makesTheFontManagerAsItsChild()
{
    OxaFontManager *manager = application()->getOxaFontManager();
    QVERIFY(manager);
    QCOMPARE(manager->parent(), application());
}

void tst_OxaApplication::installsTheApplicationFont()
{
    const QFont font = QApplication::font();
    const OxaFont token(OxaFont::Token::Default, false);
    QCOMPARE(font.family(), QStringLiteral("Segoe UI"));
    QCOMPARE(font.families(), QStringList());
    QCOMPARE(font.pixelSize(), token.pixelSize());
    QCOMPARE(font.weight(), token.weight());
}

void tst_OxaApplication::registersTheColorSetByName()
{
    QVERIFY(QMetaType::type("OxaColorSet") != QMetaType::UnknownType);
}

void tst_OxaApplication::showsItsProperties_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("notifySignal");
    QTest::newRow("isDarkTheme") << "bool"
                                 << "isDarkThemeChanged";
    QTest::newRow("isHighContrastTheme") << "bool"
                                         << "isHighContrastThemeChanged";
    QTest::newRow("theme") << "QString"
                           << "themeChanged";
    QTest::newRow("logoSvgPath") << "QString"
                                 << "logoSvgPathChanged";
    QTest::newRow("logoPngPath") << "QString"
                                 << "logoPngPathChanged";
    QTest::newRow("fontScaleFactor") << "float"
                                     << "fontScaleFactorChanged";
}

void tst_OxaApplication::showsItsProperties()
{
    QFETCH(const QString, type);
    QFETCH(const QString, notifySignal);
    const QMetaProperty property = propertyOf(QTest::currentDataTag());
    QCOMPARE(QLatin1String(property.typeName()), type);
    QCOMPARE(QString::fromLatin1(property.notifySignal().name()), notifySignal);
    QVERIFY(property.isReadable());
    QVERIFY(property.isWritable());
}

void tst_OxaApplication::showsItsSignals_data()
{
    QTest::addColumn<QString>("parameter");
    QTest::newRow("colorSetsChanged()") << "";
    QTest::newRow("themeChanged(QString)") << "themeName";
    QTest::newRow("isDarkThemeChanged(bool)") << "isDarkTheme";
    QTest::newRow("isHighContrastThemeChanged(bool)") << "isHighContrastTheme";
    QTest::newRow("fontScaleFactorChanged(float)") << "scale";
    QTest::newRow("logoSvgPathChanged(QString)") << "isDarkTheme";
    QTest::newRow("logoPngPathChanged(QString)") << "isDarkTheme";
}

void tst_OxaApplication::showsItsSignals()
{
    QFETCH(const QString, parameter);
    const QMetaObject &type = OxaApplication::staticMetaObject;
    const QMetaMethod signal = type.method(type.indexOfSignal(QTest::currentDataTag()));
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(QString::fromLatin1(signal.parameterNames().value(0)), parameter);
}

void tst_OxaApplication::showsItsInvokables_data()
{
    QTest::addColumn<QString>("returnType");
    QTest::newRow("getColorSet(QString,QString)") << "OxaColorSet";
    QTest::newRow("getColorSet(QString)") << "OxaColorSet";
    QTest::newRow("getKeySequence(OxaAppSignals::Shortcut)") << "QKeySequence";
    QTest::newRow("animationsDisabled()") << "bool";
}

void tst_OxaApplication::showsItsInvokables()
{
    QFETCH(const QString, returnType);
    const QMetaObject &type = OxaApplication::staticMetaObject;
    const QMetaMethod method = type.method(type.indexOfMethod(QTest::currentDataTag()));
    QCOMPARE(QLatin1String(method.typeName()), returnType);
    QCOMPARE(method.access(), QMetaMethod::Public);
}

void tst_OxaApplication::emitsTheSignalOfAPropertyThatIsSet_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("tellsOfTwo");
    const auto row = [](const char *title, const char *name, const QVariant &value,
                        int tellsOfTwo) {
        QTest::newRow(title) << QByteArray(name) << value << tellsOfTwo;
    };
    row("a dark theme, once", "isDarkTheme", true, 1);
    row("the theme that was not dark before, never", "isDarkTheme", false, 0);
    row("a high contrast theme, once", "isHighContrastTheme", true, 1);
    row("no high contrast as before, never", "isHighContrastTheme", false, 0);
    row("a theme's name, once", "theme", QStringLiteral("dusk"), 1);
    row("the empty name as before, never", "theme", QString(), 0);
    row("an SVG path, each time", "logoSvgPath", QStringLiteral(":/logo.svg"), 2);
    row("the empty SVG path as before, each time", "logoSvgPath", QString(), 2);
    row("a PNG path, each time", "logoPngPath", QStringLiteral(":/logo.png"), 2);
    row("the empty PNG path as before, each time", "logoPngPath", QString(), 2);
    row("a scale factor, each time", "fontScaleFactor", 1.25F, 2);
    row("the scale factor as before, each time", "fontScaleFactor", 1.0F, 2);
}

void tst_OxaApplication::emitsTheSignalOfAPropertyThatIsSet()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QVariant, value);
    QFETCH(const int, tellsOfTwo);
    const char *const property = name.constData();
    const ApplicationPropertyGuard guard(property, application()->property(property));
    const NotifySpy notified(property);
    QVERIFY(application()->setProperty(property, value));
    QVERIFY(application()->setProperty(property, value));
    QCOMPARE(application()->property(property), value);
    QCOMPARE(notified.size(), tellsOfTwo);
    for (const QVariantList &arguments : notified)
        QCOMPARE(arguments, QVariantList { value });
}

void tst_OxaApplication::emitsTheSignalAfterTheValueIsSet_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("isDarkTheme") << QVariant(true);
    QTest::newRow("isHighContrastTheme") << QVariant(true);
    QTest::newRow("theme") << QVariant(QStringLiteral("dusk"));
    QTest::newRow("logoSvgPath") << QVariant(QStringLiteral(":/logo.svg"));
    QTest::newRow("logoPngPath") << QVariant(QStringLiteral(":/logo.png"));
    QTest::newRow("fontScaleFactor") << QVariant(1.25F);
}

void tst_OxaApplication::emitsTheSignalAfterTheValueIsSet()
{
    QFETCH(const QVariant, value);
    m_property = QTest::currentDataTag();
    m_noted.clear();
    const ApplicationPropertyGuard guard(m_property.constData(),
                                         application()->property(m_property.constData()));
    const QMetaMethod note = metaObject()->method(metaObject()->indexOfSlot("noteProperty()"));
    QVERIFY(note.isValid());
    const auto connection = connect(application(),
                                    propertyOf(m_property.constData()).notifySignal(), this, note);
    application()->setProperty(m_property.constData(), value);
    disconnect(connection);
    QCOMPARE(m_noted, QVariantList { value });
}

void tst_OxaApplication::keepsTheFlagsApart()
{
    StoreGuard stores({});
    stores.setFlags(true, false);
    QVERIFY(application()->getIsDarkTheme());
    QVERIFY(!application()->getIsHighContrastTheme());
    stores.setFlags(false, true);
    QVERIFY(!application()->getIsDarkTheme());
    QVERIFY(application()->getIsHighContrastTheme());
}

void tst_OxaApplication::setsLogoPathsByName()
{
    const ApplicationPropertyGuard svg("logoSvgPath", QString());
    const ApplicationPropertyGuard png("logoPngPath", QString());
    application()->setLogoSvgPath(QStringLiteral(":/logo.svg"));
    application()->setLogoPngPath(QStringLiteral(":/logo.png"));
    QCOMPARE(application()->getLogoSvgPath(), QStringLiteral(":/logo.svg"));
    QCOMPARE(application()->getLogoPngPath(), QStringLiteral(":/logo.png"));
}

void tst_OxaApplication::acceptsAFontScaleFactor_data()
{
    QTest::addColumn<float>("factor");
    QTest::newRow("the lowest") << 0.5F;
    QTest::newRow("between them") << 0.9F;
    QTest::newRow("the highest") << 1.5F;
}

void tst_OxaApplication::acceptsAFontScaleFactor()
{
    QFETCH(const float, factor);
    const ApplicationPropertyGuard guard("fontScaleFactor", 1.0F);
    const QSignalSpy changed(application(), &OxaApplication::fontScaleFactorChanged);
    application()->setFontScaleFactor(factor);
    QCOMPARE(application()->getFontScaleFactor(), factor);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first(), QVariantList { factor });
}

void tst_OxaApplication::rejectsAFontScaleFactor_data()
{
    QTest::addColumn<float>("factor");
    QTest::addColumn<QString>("text");
    QTest::newRow("below the lowest") << 0.49F << "0.49";
    QTest::newRow("above the highest") << 1.51F << "1.51";
    QTest::newRow("none") << 0.0F << "0";
    QTest::newRow("below zero") << -1.0F << "-1";
    QTest::newRow("infinity") << std::numeric_limits<float>::infinity() << "inf";
}

void tst_OxaApplication::rejectsAFontScaleFactor()
{
    QFETCH(const float, factor);
    QFETCH(const QString, text);
    const QString warning =
            QStringLiteral("OxaApplication::setFontScaleFactor - Invalid fontScaleFactor  %1")
                    .arg(text);
    const QSignalSpy changed(application(), &OxaApplication::fontScaleFactorChanged);
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(warning));
    application()->setFontScaleFactor(factor);
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(warning));
    QVERIFY(application()->setProperty("fontScaleFactor", factor));
    QCOMPARE(application()->getFontScaleFactor(), 1.0F);
    QCOMPARE(changed.size(), 0);
}

void tst_OxaApplication::acceptsNanAsFontScaleFactor()
{
    const ApplicationPropertyGuard guard("fontScaleFactor", 1.0F);
    const QSignalSpy changed(application(), &OxaApplication::fontScaleFactorChanged);
    application()->setFontScaleFactor(std::numeric_limits<float>::quiet_NaN());
    QVERIFY(qIsNaN(application()->getFontScaleFactor()));
    QCOMPARE(changed.size(), 1);
}

void tst_OxaApplication::handsOutACopyOfThePublishingInformation()
{
    AppPublishing::OxaPublishingInfo info;
    info.productName = QStringLiteral("Product");
    application()->setPublishingInfo(info);
    auto copy = application()->getPublishingInfo();
    QVERIFY(copy);
    QCOMPARE(copy->productName, QStringLiteral("Product"));
    copy->productName.clear();
    QCOMPARE(application()->getPublishingInfo()->productName, QStringLiteral("Product"));
}

void tst_OxaApplication::isInFocusOnceAWindowIsActive()
{
    QVERIFY(!OxaApplication::isInFocus());
    QWidget window;
    QVERIFY(Windows::activate(window));
    QVERIFY(OxaApplication::isInFocus());
}

UIELEMENTS_TEST_MAIN(tst_OxaApplication)
#include "tst_oxaapplication.moc"
