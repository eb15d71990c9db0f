// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "models/LetterListModel.h"
#include "support/Guards.h"
#include "support/TestApplication.h"
#include "support/Windows.h"
#include "theme/ThemedWidgets.h"

#include <QAbstractItemView>
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
    void opensAPopupAndLeavesIt();
    void showsABannerAndChangesIt();
    void hasANotificationFade();
    void tellsOfABadgeOnce();
    void movesASlider();
    void checksABox();
    void replacesAListByRuns();
    void findsEachOfManyRows();

private:
    std::unique_ptr<const StoreGuard> m_stores;
};

void tst_AccessibleStories::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(storeWith("#102030"), storeWith("#102030"));
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
    Told::Events events;
    QTest::keyClick(&box, Qt::Key_F4);
    QTRY_VERIFY(box.view()->isVisible());
    QCOMPARE(events.take(),
             QStringLiteral("NameChanged box | SelectionAdd a | Focus a | ObjectShow  | ObjectShow "
                            "box | ObjectShow  | Focus box"));
    QTest::keyClick(box.view(), Qt::Key_Escape);
    QTRY_VERIFY(!box.view()->isVisible());
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
}

void tst_AccessibleStories::opensAPopupAndLeavesIt()
{
    QWidget window;
    OxaPushButton button(QStringLiteral("more"), &window);
    auto *content = new OxaPushButton(QStringLiteral("content"));
    QVERIFY(Windows::activate(window));
    Told::Events events(QAccessible::Focus);
    PopupWidget *popup = PopupWidget::createAndShow(&button, content,
                                                    WidgetData(OxaThemeUtils::AppThemeType::Global)
                                                            .activateOnShow(true));
    QTRY_VERIFY(content->hasFocus());
    QCOMPARE(events.take(), QStringLiteral("Focus content"));
    QTest::keyClick(popup, Qt::Key_Escape);
    QVERIFY(!popup->isVisible());
    QCOMPARE(window.focusWidget(), &button); // It has the focus when its window is active again.
}

void tst_AccessibleStories::showsABannerAndChangesIt()
{
    QWidget window;
    window.show();
    AlertBanner banner(&window);
    Told::Events events(QAccessible::Alert);
    AlertBanner::AlertBannerInfo info;
    info.alertText = QStringLiteral("first");
    banner.setAlert(info);
    QCOMPARE(events.take(), QString());
    banner.show();
    QCOMPARE(events.take(), QStringLiteral("Alert first"));
    info.alertText = QStringLiteral("second");
    banner.setAlert(info);
    QCOMPARE(events.take(), QStringLiteral("Alert second"));
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
}

void tst_AccessibleStories::movesASlider()
{
    OxaSlider slider;
    slider.setAccessibleName(QStringLiteral("volume"));
    SignalLog log;
    log.record(&slider, &QSlider::actionTriggered, QStringLiteral("action"));
    log.record(&slider, &QSlider::valueChanged, QStringLiteral("value"));
    QTest::keyClick(&slider, Qt::Key_Up);
    const QString byKey = log.take();
    Told::Events events;
    Told::of(&slider)->actionInterface()->doAction(QStringLiteral("Increase"));
    QCOMPARE(log.take(), byKey);
    QCOMPARE(slider.value(), 2);
    QCOMPARE(events.take(), QStringLiteral("ValueChanged volume"));
    Told::of(&slider)->actionInterface()->doAction(QStringLiteral("Decrease"));
    QCOMPARE(slider.value(), 1);
}

void tst_AccessibleStories::checksABox()
{
    OxaCheckBox box;
    box.setText(QStringLiteral("box"));
    SignalLog log;
    log.record(&box, &QCheckBox::pressed, QStringLiteral("pressed"));
    log.record(&box, &QCheckBox::stateChanged, QStringLiteral("state"));
    log.record(&box, &QCheckBox::clicked, QStringLiteral("clicked"));
    QTest::keyClick(&box, Qt::Key_Space);
    const QString byKey = log.take();
    Told::Events events;
    Told::of(&box)->actionInterface()->doAction(QStringLiteral("Toggle"));
    QTRY_VERIFY(!box.isChecked());
    QCOMPARE(log.take(), byKey);
    QCOMPARE(events.take(), QStringLiteral("StateChanged box"));
}

void tst_AccessibleStories::replacesAListByRuns()
{
    QWidget window;
    OxaListView view(&window);
    view.setAccessibleName(QStringLiteral("list"));
    ShownLetters letters(QStringLiteral("abcdefgh"));
    view.setModel(&letters);
    window.show();
    Told::Events events(QAccessible::TableModelChanged);
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

UIELEMENTS_TEST_MAIN(tst_AccessibleStories)
#include "tst_accessiblestories.moc"
