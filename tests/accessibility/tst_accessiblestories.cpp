// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "models/LetterListModel.h"
#include "qml/FocusScenes.h"
#include "qml/PopupTrace.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/Windows.h"
#include "theme/ThemedWidgets.h"
#include "widgets/TabBars.h"

#include <QAbstractItemView>
#include <QQmlProperty>
#include <QVBoxLayout>

namespace {

/// A list of letters with a text for views.
class ShownLetters : public LetterListModel
{
public:
    using LetterListModel::LetterListModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        return LetterListModel::data(index, role == Qt::DisplayRole ? int(Letter) : role);
    }
};

/// Closes \a popup by key, which deletes it: at once, for Qt would ask the window manager for a
/// frame that is gone.
void leave(QWidget *popup)
{
    QTest::keyClick(popup, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

/// What assistive technology is told in the course of what users do, and nothing else.
class tst_AccessibleStories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void typesIntoAFieldUntilItErrs();
    void opensAComboBoxAndCancels();
    void stepsThroughAComboBox();
    void showsABannerAndChangesIt();
    void hasANotificationFade();
    void tellsOfABadgeOnce();
    void movesASlider();
    void switchesTabsByKey();
    void opensAMenuAndLeavesIt();
    void opensADialogAndLeavesIt();
    void showsAPasswordAndMasksIt();
    void goesIntoQmlAndOut();
    void hasAHoverCardComeAndGo();
    void checksABoxAndARadioButton();
    void replacesAListByRuns();
    void findsEachOfManyRows();

private:
    std::unique_ptr<const StoreGuard> m_stores;
};

void tst_AccessibleStories::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(storeWith("#102030"), storeWith("#102030"));
    // Qt asks for the window there when a dialog closes, whose frame the window manager deletes.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
}

void tst_AccessibleStories::cleanupTestCase() { m_stores.reset(); }

void tst_AccessibleStories::typesIntoAFieldUntilItErrs()
{
    QWidget window;
    OxaPushButton first(&window); // Has the focus.
    OxaTextInput *field = OxaTextInputFactory({}).make(&window);
    OxaLabel error(QStringLiteral("too long"), &window, QAccessible::AlertMessage);
    error.setBuddy(field);
    error.hide();
    connect(field, &OxaTextInput::showErrorLabel, &error, &OxaLabel::setVisible);
    field->setInputValidator([](const QString &text) { return text.size() < 2; }, true);
    field->setTextInputAccessibleText(QStringLiteral("field"));
    field->setButtonAccessibleText(QStringLiteral("clear"));
    QVERIFY(Windows::activate(window));
    Told::Events events;
    field->setFocus();
    QCOMPARE(events.take(), QStringLiteral("Focus field"));
    QTest::keyClick(field->getLineEdit(), Qt::Key_A);
    QCOMPARE(events.take(),
             QStringLiteral("TextInserted field | ObjectShow clear | TextCaretMoved field"));
    QTest::keyClick(field->getLineEdit(), Qt::Key_B);
    QCOMPARE(events.take(),
             QStringLiteral("TextInserted field | ObjectShow too long | DescriptionChanged field | "
                            "TextCaretMoved field"));
    QTest::keyClick(field->getLineEdit(), Qt::Key_Backspace);
    QCOMPARE(events.take(),
             QStringLiteral("TextRemoved field | ObjectHide too long | DescriptionChanged field | "
                            "TextCaretMoved field"));
}

void tst_AccessibleStories::opensAComboBoxAndCancels()
{
    QWidget window;
    OxaComboBox box(&window);
    box.setObjectName(QStringLiteral("box"));
    box.setAccessibleName(QStringLiteral("box"));
    box.setComboBoxAnimationEnabled(false);
    box.addItems({ QStringLiteral("a"), QStringLiteral("b") });
    QVERIFY(Windows::activate(window));
    box.setFocus();
    const QAccessibleInterface *list = Told::of(box.view());
    QVERIFY(list->state().invisible);
    Told::Events events;
    QTest::keyClick(&box, Qt::Key_F4);
    QTRY_VERIFY(box.view()->isVisible());
    QVERIFY(!list->state().invisible);
    QCOMPARE(events.take(),
             QStringLiteral("NameChanged box | SelectionAdd a | Focus a | ObjectShow  | ObjectShow "
                            "box | ObjectShow  | Focus box"));
    QTest::keyClick(box.view(), Qt::Key_Escape);
    QTRY_VERIFY(!box.view()->isVisible());
    QVERIFY(list->state().invisible);
    QCOMPARE(events.take(),
             QStringLiteral("Focus box | ObjectHide  | ObjectHide box | ObjectHide "));
}

void tst_AccessibleStories::stepsThroughAComboBox()
{
    QWidget window;
    OxaComboBox box(&window);
    box.addItems({ QStringLiteral("a"), QStringLiteral("b") });
    QVERIFY(Windows::activate(window));
    Told::Events events;
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(events.take(), QStringLiteral("ValueChanged b"));
    box.setAccessibleName(QStringLiteral("box"));
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(events.take(),
             QStringLiteral("NameChanged box | DescriptionChanged box | ValueChanged box"));
}

void tst_AccessibleStories::showsABannerAndChangesIt()
{
    QWidget window;
    window.show();
    AlertBanner banner(&window);
    Told::Events events;
    AlertBanner::AlertBannerInfo info;
    info.alertText = QStringLiteral("first");
    banner.setAlert(info);
    QCOMPARE(events.take(), QStringLiteral("NameChanged first"));
    banner.show();
    QCOMPARE(events.take(),
             QStringLiteral("TextRemoved first | TextInserted first | TextUpdated first | "
                            "ObjectShow  | ObjectShow first | Alert first | ObjectShow first"));
    info.alertText = QStringLiteral("second");
    banner.setAlert(info);
    QCOMPARE(events.take(), QStringLiteral("NameChanged second | Alert second"));
}

void tst_AccessibleStories::hasANotificationFade()
{
    QWidget window;
    QVERIFY(Windows::activate(window));
    OxaNotification notification(&window);
    OxaLabel text(QStringLiteral("Sent"), &notification);
    notification.setShowTimeout(1);
    notification.setFadeOutDuration(1);
    connect(&notification, &OxaNotification::fadeOutCompleted, &notification, &QWidget::hide);
    Told::Events events;
    notification.show();
    QCOMPARE(events.take(), QStringLiteral("ObjectShow Sent | Alert Sent | ObjectShow Sent"));
    notification.start();
    QTRY_VERIFY(!notification.isVisible());
    QCOMPARE(events.take(), QStringLiteral("ObjectHide Sent | ObjectHide Sent"));
}

void tst_AccessibleStories::tellsOfABadgeOnce()
{
    OxaPushButton button(QStringLiteral("mail"));
    Told::Events events;
    button.setBadgeVisible(true);
    QCOMPARE(events.take(), QStringLiteral("DescriptionChanged mail"));
    button.setBadgeVisible(true);
    QCOMPARE(events.take(), QString());
    OxaUnderlineButton tab;
    tab.setText(QStringLiteral("chats"));
    events.take();
    tab.setShowUnreadIndicator(true);
    tab.setShowUnreadIndicator(true);
    QCOMPARE(events.take(), QStringLiteral("DescriptionChanged chats"));
}

void tst_AccessibleStories::movesASlider()
{
    OxaSlider slider;
    slider.setAccessibleName(QStringLiteral("volume"));
    SignalLog log;
    log.record(&slider, &QSlider::actionTriggered, QStringLiteral("action"));
    log.record(&slider, &QSlider::valueChanged, QStringLiteral("value"));
    Told::Events events;
    QTest::keyClick(&slider, Qt::Key_Up);
    const QString byKey = log.take();
    QCOMPARE(events.take(), QStringLiteral("ValueChanged volume"));
    Told::of(&slider)->actionInterface()->doAction(QStringLiteral("Increase"));
    QCOMPARE(log.take(), byKey);
    QCOMPARE(slider.value(), 2);
    QCOMPARE(events.take(), QStringLiteral("ValueChanged volume"));
    Told::of(&slider)->actionInterface()->doAction(QStringLiteral("Decrease"));
    QCOMPARE(slider.value(), 1);
}

void tst_AccessibleStories::checksABoxAndARadioButton()
{
    OxaCheckBox box;
    box.setText(QStringLiteral("box"));
    SignalLog log;
    log.record(&box, &QCheckBox::pressed, QStringLiteral("pressed"));
    log.record(&box, &QCheckBox::stateChanged, QStringLiteral("state"));
    log.record(&box, &QCheckBox::clicked, QStringLiteral("clicked"));
    Told::Events events;
    QTest::keyClick(&box, Qt::Key_Space);
    const QString byKey = log.take();
    QCOMPARE(events.take(), QStringLiteral("StateChanged box"));
    Told::of(&box)->actionInterface()->doAction(QStringLiteral("Toggle"));
    QTRY_VERIFY(!box.isChecked());
    QCOMPARE(log.take(), byKey);
    QCOMPARE(events.take(), QStringLiteral("StateChanged box"));
    OxaRadioButton button(QStringLiteral("button"));
    const QSignalSpy clicked(&button, &QRadioButton::clicked);
    Told::of(&button)->actionInterface()->doAction(QStringLiteral("Toggle"));
    QTRY_COMPARE(clicked.size(), 1);
}

void tst_AccessibleStories::replacesAListByRuns()
{
    QWidget window;
    OxaListView view(&window);
    view.setAccessibleName(QStringLiteral("list"));
    ShownLetters letters(QStringLiteral("abcdefgh"));
    view.setModel(&letters);
    window.show();
    Told::Events events;
    letters.replace(LetterListModel::rowsOf(QStringLiteral("aBCdefGhij")));
    QCOMPARE(events.take(),
             QStringLiteral("TableModelChanged list inserted 8-9 | TableModelChanged list changed "
                            "1-2 | TableModelChanged list changed 6-6"));
    letters.replace(LetterListModel::rowsOf(QStringLiteral("aBCdefGhij")));
    QCOMPARE(events.take(), QString());
}

void tst_AccessibleStories::findsEachOfManyRows()
{
    OxaListView view;
    ShownLetters letters;
    letters.appendRows(LetterListModel::numberedRows(1000));
    view.setModel(&letters);
    QAccessibleInterface *list = Told::of(&view);
    QCOMPARE(list->childCount(), 1000);
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(list->indexOfChild(list->child(i)), i);
}

void tst_AccessibleStories::switchesTabsByKey()
{
    QWidget window;
    TabBars::Bar bar(3, &window);
    QVERIFY(Windows::activate(window));
    bar.setCurrentIndex(0);
    bar.getTab(0)->setFocus();
    Told::Events events;
    QTest::keyClick(bar.getTab(0), Qt::Key_Right);
    QCOMPARE(events.take(), QStringLiteral("Focus b"));
    QTest::keyClick(bar.getTab(1), Qt::Key_Space);
    QCOMPARE(events.take(),
             QStringLiteral("StateChanged b | StateChanged a | SelectionRemove a | Selection b"));
}

void tst_AccessibleStories::opensAMenuAndLeavesIt()
{
    QWidget window;
    window.setWindowTitle(QStringLiteral("window"));
    OxaPushButton button(QStringLiteral("more"), &window);
    auto *menu = new OxaVMenu;
    menu->setAccessibleName(QStringLiteral("menu"));
    for (const char *text : { "first", "second" })
        menu->addMenuItem({})->setText(QString::fromLatin1(text));
    QVERIFY(Windows::activate(window));
    Told::Events events;
    PopupWidget *popup = PopupWidget::createAndShow(&button, menu,
                                                    WidgetData(OxaThemeUtils::AppThemeType::Global)
                                                            .activateOnShow(true));
    QTRY_VERIFY(popup->isActiveWindow());
    QCOMPARE(events.take(),
             QStringLiteral(
                     "ObjectShow first | ObjectShow second | ObjectShow menu | ObjectShow  | "
                     "ObjectShow menu | StateChanged window | StateChanged menu | Focus first"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(events.take(), QStringLiteral("Focus second"));
    leave(popup);
    QCOMPARE(events.take(),
             QStringLiteral(
                     "ObjectHide first | ObjectHide second | ObjectHide menu | ObjectHide  | "
                     "ObjectHide menu"));
    QCOMPARE(window.focusWidget(), &button); // It has the focus when its window is active again.
}

void tst_AccessibleStories::opensADialogAndLeavesIt()
{
    QWidget window;
    window.setWindowTitle(QStringLiteral("window"));
    OxaPushButton button(QStringLiteral("open"), &window);
    QVERIFY(Windows::activate(window));
    auto *dialog = new OxaDialog(&window);
    dialog->setWindowTitle(QStringLiteral("dialog"));
    const auto *ok = new OxaPushButton(QStringLiteral("ok"), dialog);
    Told::Events events;
    dialog->open();
    QTRY_VERIFY(ok->hasFocus());
    QCOMPARE(events.take(),
             QStringLiteral("ObjectShow ok | ObjectShow dialog | StateChanged ok | DialogStart "
                            "dialog | StateChanged window | StateChanged dialog | Focus ok"));
    leave(dialog);
    QVERIFY(Windows::showActive(window));
    QCOMPARE(events.take(),
             QStringLiteral(
                     "DialogEnd dialog | StateChanged ok | StateChanged ok | ObjectHide ok | "
                     "ObjectHide dialog | StateChanged window | Focus open"));
}

void tst_AccessibleStories::showsAPasswordAndMasksIt()
{
    QWidget window;
    OxaTextInput *field = OxaTextInputFactory({}).make(&window);
    field->setPasswordField(true);
    field->setTextInputAccessibleText(QStringLiteral("password"));
    field->setText(QStringLiteral("secret"));
    QVERIFY(Windows::activate(window));
    QWidget *const button = field->getPasswordActionButton();
    Told::Events events;
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(events.take(),
             QStringLiteral("Focus Show password | NameChanged Hide password | Focus password"));
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(events.take(),
             QStringLiteral("Focus Hide password | NameChanged Show password | Focus password"));
}

void tst_AccessibleStories::goesIntoQmlAndOut()
{
    const EngineFixture engine;
    FocusScene scene(engine.engine(), FocusScene::twoItems);
    scene.quick->setAccessibleName(QStringLiteral("quick"));
    QVERIFY(scene.show());
    Told::Events events;
    const auto press = [&scene](Qt::Key key) {
        QTest::keyClick(scene.window.windowHandle(), key);
        QCoreApplication::processEvents();
    };
    press(Qt::Key_Tab);
    // Qt tells of the widget in between, and so of the item too early.
    QCOMPARE(events.take(),
             QStringLiteral("TextCaretMoved before | Focus first | Focus quick | Focus first"));
    press(Qt::Key_Tab);
    QCOMPARE(events.take(), QStringLiteral("Focus second"));
    press(Qt::Key_Tab);
    QCOMPARE(events.take(),
             QStringLiteral("TextSelectionChanged after | TextCaretMoved after | Focus after"));
    press(Qt::Key_Backtab);
    QCOMPARE(events.take(),
             QStringLiteral("Focus second | Focus first | Focus quick | Focus first"));
}

void tst_AccessibleStories::hasAHoverCardComeAndGo()
{
    PopupTrace trace;
    trace.create();
    // So that the window manager does not activate it at some time or other.
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^requestActivate\\(\\) called for ")));
    trace.popup()->setFlag(Qt::WindowDoesNotAcceptFocus);
    trace.popup()->setTitle(QStringLiteral("popup"));
    QObject *const balloon = trace.popup()->rootObject();
    QQmlProperty::write(balloon, QStringLiteral("Accessible.name"), QStringLiteral("card"),
                        qmlContext(balloon));
    Told::Events events;
    trace.point(trace.a.center().toPoint());
    trace.showDelayed(trace.a);
    QCOMPARE(events.take(), QString());
    trace.poll();
    QCOMPARE(trace.state(), QStringLiteral("shown open"));
    QCOMPARE(events.take(), QStringLiteral("ObjectShow card"));
    trace.point(QPoint(790, 10));
    trace.poll();
    trace.passCloseTime();
    QCOMPARE(trace.state(), QStringLiteral("none"));
    QCOMPARE(events.take(), QStringLiteral("ObjectHide card"));
}

UIELEMENTS_TEST_MAIN(tst_AccessibleStories)
#include "tst_accessiblestories.moc"
