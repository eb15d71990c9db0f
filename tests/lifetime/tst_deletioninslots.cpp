// SPDX-License-Identifier: Apache-2.0
#include "SignalTriggers.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/fonts/OxaScaledFonts.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QDirIterator>
#include <QPointer>
#include <QRegularExpression>

namespace {

enum class Victim { Sender, Parent, Window };

constexpr const char *victimNames[] = { "sender", "parent", "window" };

/// Deletes an object in a slot.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(QObject *victim) : m_victim(victim) { }

    /// Deletes the victim at the next \a signal of \a sender.
    void listenTo(QObject *sender, const QMetaMethod &signal)
    {
        connect(sender, signal, this,
                metaObject()->method(metaObject()->indexOfSlot("deleteVictim()")));
    }

public Q_SLOTS:
    void deleteVictim() { delete m_victim; }

private:
    const QPointer<QObject> m_victim;
};

/// A window with a themed widget in it, and that widget's child.
struct Family
{
    explicit Family(const Subject &subject)
        : window(new QWidget), parent(new OxaWidget(window)), sender(subject.make(parent))
    {
    }
    ~Family() { delete window; }
    Q_DISABLE_COPY_MOVE(Family)

    QObject *member(Victim victim) const
    {
        return victim == Victim::Sender    ? sender.data()
                : victim == Victim::Parent ? static_cast<QObject *>(parent.data())
                                           : window.data();
    }

    const QPointer<QWidget> window;
    const QPointer<QWidget> parent;
    const QPointer<QObject> sender;
};

/// The sets that the library's classes ask for by themselves.
OxaColorSetMap storeOfAllSets()
{
    OxaColorSetMap store;
    for (const char *name : { "alertBackground-warning",
                              "alertText-warning",
                              "background-primary",
                              "button-hyperlink-text",
                              "checkbox-checked-background",
                              "checkbox-unchecked-background",
                              "icon",
                              "legacy-separator-primary",
                              "oxa-contentTabViewButton-text",
                              "oxa-contentTabViewButtonChecked-text",
                              "oxa-default-border",
                              "oxa-default-text",
                              "oxa-footer-warning-icon",
                              "oxa-percentage-indicator-possessive",
                              "oxa-popupDropShadow",
                              "oxa-progressbar",
                              "oxa-reaction-list-item-gradient-background-end-color",
                              "oxa-recorder-comboBox-border",
                              "oxa-rills-combobox-background",
                              "oxa-rills-combobox-border",
                              "oxa-rills-combobox-dropdown-arrow",
                              "oxa-rills-combobox-text",
                              "oxa-underlineButton-background",
                              "oxa-underlineButton-text" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), Qt::red));
    return store;
}

/// Returns the classes of the library that are QObjects, as its headers declare them.
QStringList classesInHeaders()
{
    static const QRegularExpression declaration(
            QStringLiteral("class UIELEMENTS_EXPORT (\\w+)[^;{]*\\{\\s*Q_OBJECT\\b"));
    QStringList names;
    QDirIterator headers(QStringLiteral(HEADER_FOLDER), { QStringLiteral("*.h") }, QDir::Files,
                         QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        QFile file(headers.next());
        if (!file.open(QFile::ReadOnly))
            qFatal("Cannot read %s.", qPrintable(file.fileName()));
        auto matches = declaration.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            names += matches.next().captured(1);
    }
    return names;
}

} // namespace

Q_DECLARE_METATYPE(Victim)

/// A slot may delete the sender, the sender's parent, or their window.
class tst_DeletionInSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { m_application.reset(); }

    void knowsEveryClassWithSignals();
    void hasATriggerForEverySignal();
    void survivesTheDeletionOfTheApplication_data();
    void survivesTheDeletionOfTheApplication();
    void survivesDeletions_data();
    void survivesDeletions();
    void makesFontsAgainThatASlotDeleted();
    void followsNoFontsThatWereDeleted();
    void asksNothingOfATextInputThatGoesWithTheFocus();

private:
    void ensureApplication();

    int m_argc = 0;
    std::unique_ptr<TestApplication> m_application;
};

/// Makes the application for the tests that delete something else.
void tst_DeletionInSlots::ensureApplication()
{
    if (!m_application)
        m_application = std::make_unique<TestApplication>(m_argc, nullptr);
}

void tst_DeletionInSlots::knowsEveryClassWithSignals()
{
    QStringList known;
    for (const Subject &subject : subjects())
        known += QString::fromLatin1(subject.name);
    // The application's two classes and those for QML have tests of their own, a source of movies
    // is one of a derived class, and the others have no signals.
    known += { QStringLiteral("OxaApplication"),
               QStringLiteral("IOxaApplication"),
               QStringLiteral("IOxaMovieProviderSource"),
               QStringLiteral("AutoGridLayout"),
               QStringLiteral("DialogContext"),
               QStringLiteral("EventFilter"),
               QStringLiteral("FixedItemRatioLayoutNotSupportScroll"),
               QStringLiteral("FlowLayout"),
               QStringLiteral("FontManagerEnum"),
               QStringLiteral("OxaFontManager"),
               QStringLiteral("OxaKeyboardShortcutsManager"),
               QStringLiteral("OxaKeySequenceLookup"),
               QStringLiteral("OxaObject"),
               QStringLiteral("OxaPopupQuickView"),
               QStringLiteral("OxaQmlController"),
               QStringLiteral("OxaQuickView"),
               QStringLiteral("OxaQuickViewContext"),
               QStringLiteral("OxaShortcut"),
               QStringLiteral("PopupContext"),
               QStringLiteral("SmartLayout") };
    const QStringList declared = classesInHeaders();
    QVERIFY(declared.size() > 20);
    for (const QString &name : declared)
        QVERIFY2(known.contains(name), qPrintable(name));
}

void tst_DeletionInSlots::hasATriggerForEverySignal()
{
    QStringList missing;
    const auto look = [&missing](const QMetaObject *metaObject) {
        for (const QMetaMethod &signal : librarySignals(metaObject)) {
            if (!isHub(metaObject) && !isLeftOut(metaObject, signal)
                && triggersOf(metaObject, signal).empty())
                missing += QLatin1String(metaObject->className()) + QLatin1String("::")
                        + QString::fromLatin1(signal.methodSignature());
        }
    };
    for (const Subject &subject : subjects())
        look(subject.metaObject);
    look(&OxaApplication::staticMetaObject);
    QCOMPARE(missing.join(QLatin1Char('\n')), QString());
}

void tst_DeletionInSlots::survivesTheDeletionOfTheApplication_data()
{
    QTest::addColumn<int>("signalIndex");
    QTest::addColumn<int>("trigger");
    const QMetaObject *metaObject = &OxaApplication::staticMetaObject;
    for (const QMetaMethod &signal : librarySignals(metaObject)) {
        const auto triggers = triggersOf(metaObject, signal);
        for (std::size_t i = 0; i < triggers.size(); ++i)
            QTest::addRow("%s by %s", signal.methodSignature().constData(), triggers[i]->cause)
                    << signal.methodIndex() << int(i);
    }
}

void tst_DeletionInSlots::survivesTheDeletionOfTheApplication()
{
    QFETCH(const int, signalIndex);
    QFETCH(const int, trigger);
    m_application.reset();
    const QPointer<QObject> application = new TestApplication(m_argc, nullptr);
    const QMetaMethod signal = application->metaObject()->method(signalIndex);
    Deleter deleter(application);
    deleter.listenTo(application, signal);
    triggersOf(application->metaObject(), signal).at(std::size_t(trigger))->run(application);
    QVERIFY(!application);
}

void tst_DeletionInSlots::survivesDeletions_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("signalIndex");
    QTest::addColumn<int>("trigger");
    QTest::addColumn<Victim>("victim");
    for (std::size_t row = 0; row < subjects().size(); ++row) {
        const QMetaObject *metaObject = subjects()[row].metaObject;
        for (int index = 0; index < metaObject->methodCount(); ++index) {
            const QMetaMethod signal = metaObject->method(index);
            const bool isClone = signal.attributes() & QMetaMethod::Cloned;
            if (signal.methodType() != QMetaMethod::Signal || isClone
                || isLeftOut(metaObject, signal))
                continue;
            const auto triggers = triggersOf(metaObject, signal);
            const bool isHubSignal = isHub(signal.enclosingMetaObject());
            for (int i = isHubSignal ? -1 : 0; i < int(triggers.size()); ++i) {
                for (const Victim victim : { Victim::Sender, Victim::Parent, Victim::Window })
                    QTest::addRow("%s: %s of %s by %s, deleting the %s", subjects()[row].name,
                                  signal.methodSignature().constData(),
                                  signal.enclosingMetaObject()->className(),
                                  i < 0 ? "a user" : triggers[std::size_t(i)]->cause,
                                  victimNames[int(victim)])
                            << int(row) << index << i << victim;
            }
        }
    }
}

void tst_DeletionInSlots::survivesDeletions()
{
    QFETCH(const int, row);
    QFETCH(const int, signalIndex);
    QFETCH(const int, trigger);
    QFETCH(const Victim, victim);
    ensureApplication();
    const StoreGuard stores(storeOfAllSets(), storeOfAllSets());
    const Subject &subject = subjects().at(std::size_t(row));
    const Family family(subject);
    const QMetaMethod signal = subject.metaObject->method(signalIndex);
    const auto triggers = triggersOf(subject.metaObject, signal);
    const SignalTrigger *way = trigger < 0 ? nullptr : triggers.at(std::size_t(trigger));
    if (way && way->prepare)
        way->prepare(family.sender);

    Deleter deleter(family.member(victim));
    deleter.listenTo(family.sender, signal);
    if (way)
        way->run(family.sender);
    else
        emitAsHubUser(family.sender, signal);
    QVERIFY(!family.sender);
}

void tst_DeletionInSlots::makesFontsAgainThatASlotDeleted()
{
    ensureApplication();
    OxaFontManager manager;
    const auto view = FontManagerEnum::FontType::MessagingView;
    const QPointer<OxaScaledFonts> fonts = manager.getFont(view);
    Deleter deleter(fonts);
    deleter.listenTo(fonts, QMetaMethod::fromSignal(&OxaScaledFonts::fontTokenChanged));
    manager.setScalingFactor(view, FontManagerEnum::FontScalingFactor::Large);
    QVERIFY(!fonts);

    manager.setScalingFactor(view, FontManagerEnum::FontScalingFactor::Large);
    QCOMPARE(manager.getFont(view)->getFont(OxaFont::Token::BodyPrimary).pixelSize(), 26);
}

void tst_DeletionInSlots::followsNoFontsThatWereDeleted()
{
    ensureApplication();
    const StoreGuard stores(storeOfAllSets(), storeOfAllSets());
    const auto view = FontManagerEnum::FontType::MeetingView;
    OxaLabel label;
    label.setFontType(view);
    delete OxaFontManager::get()->getFont(view);
    label.setFontToken(OxaFont::Token::BodyPrimary);
    OxaFontManager::get()->setScalingFactor(view, FontManagerEnum::FontScalingFactor::Large);
    QCOMPARE(label.font().pixelSize(), 26);
}

void tst_DeletionInSlots::asksNothingOfATextInputThatGoesWithTheFocus()
{
    ensureApplication();
    const StoreGuard stores(storeOfAllSets());
    QWidget window;
    OxaTextInput *field = OxaTextInputFactory({}).make(&window);
    int questions = 0;
    field->setInputValidator(
            [&questions](const QString &) {
                ++questions;
                return false;
            },
            false);
    field->setText(QStringLiteral("text"));
    window.show();
    QApplication::setActiveWindow(&window);
    field->setFocus();
    QVERIFY(field->hasFocus());
    questions = 0;
    // Its line edit loses the focus as the field's widget goes, and then ends its editing.
    delete field;
    QCOMPARE(questions, 0);
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_DeletionInSlots)
#include "tst_deletioninslots.moc"
