// SPDX-License-Identifier: Apache-2.0
#include "EmojiLabelParts.h"
#include "support/TestApplication.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>

#include <QKeyEvent>
#include <QPointer>
#include <QSignalSpy>

namespace {

/// Counts the key presses that it gets.
class KeyCounter : public QWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

void press(QWidget &widget, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

/// Clicks on OxaEmojiLabel and OxaEmojiPushButton.
class tst_OxaEmojiLabelClicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_surroundings.reset(); }

    void labelIsClickedWhenInteractive_data();
    void labelIsClickedWhenInteractive();
    void labelIsNotClickedByTheMouseWhileTextIsSelected();
    void labelIsClickedByNothingElse();
    void labelPassesKeysOn();
    void labelMayBeDeletedWhenItIsClicked_data();
    void labelMayBeDeletedWhenItIsClicked();
    void buttonIsClickedWithoutInteraction_data();
    void buttonIsClickedWithoutInteraction();
    void buttonIsClickedByNothingElse();
    void buttonSwallowsAllKeys();
    void buttonStartsAsALabel();

private:
    std::unique_ptr<EmojiLabelParts::Surroundings> m_surroundings;
};

void tst_OxaEmojiLabelClicks::initTestCase()
{
    m_surroundings = std::make_unique<EmojiLabelParts::Surroundings>();
}

void tst_OxaEmojiLabelClicks::labelIsClickedWhenInteractive_data()
{
    QTest::addColumn<Qt::TextInteractionFlags>("flags");
    QTest::addColumn<int>("clicks");
    QTest::newRow("none") << Qt::TextInteractionFlags() << 0;
    QTest::newRow("links") << Qt::TextInteractionFlags(Qt::LinksAccessibleByMouse) << 1;
    QTest::newRow("selection") << Qt::TextInteractionFlags(Qt::TextSelectableByMouse) << 1;
}

void tst_OxaEmojiLabelClicks::labelIsClickedWhenInteractive()
{
    QFETCH(const Qt::TextInteractionFlags, flags);
    OxaEmojiLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(flags);
    const QSignalSpy clicks(&label, &OxaEmojiLabel::clicked);
    const QSignalSpy clicksOfTheBase(&label, &OxaLabel::clicked);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QTEST(clicks.size(), "clicks");
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter }) {
        const int before = clicks.size();
        press(label, key);
        QTEST(clicks.size() - before, "clicks");
    }
    QCOMPARE(clicksOfTheBase.size(), clicks.size());
}

void tst_OxaEmojiLabelClicks::labelIsNotClickedByTheMouseWhileTextIsSelected()
{
    OxaEmojiLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setSelection(1, 2);
    const QSignalSpy clicks(&label, &OxaEmojiLabel::clicked);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clicks.size(), 0);
    press(label, Qt::Key_Space);
    QCOMPARE(clicks.size(), 1);
}

void tst_OxaEmojiLabelClicks::labelIsClickedByNothingElse()
{
    OxaEmojiLabel label(QStringLiteral("text"));
    const QSignalSpy clicks(&label, &OxaEmojiLabel::clicked);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::RightButton);
    QTest::mouseRelease(&label, Qt::MiddleButton);
    press(label, Qt::Key_A);
    press(label, Qt::Key_Tab);
    QCOMPARE(clicks.size(), 0);
}

void tst_OxaEmojiLabelClicks::labelPassesKeysOn()
{
    KeyCounter parent;
    OxaEmojiLabel label(QStringLiteral("text"), &parent);
    press(label, Qt::Key_A);
    press(label, Qt::Key_Space);
    QCOMPARE(parent.keys, 2);
}

void tst_OxaEmojiLabelClicks::labelMayBeDeletedWhenItIsClicked_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by the mouse") << false;
    QTest::newRow("by a key") << true;
}

void tst_OxaEmojiLabelClicks::labelMayBeDeletedWhenItIsClicked()
{
    QFETCH(const bool, byKey);
    QPointer<OxaEmojiLabel> label = new OxaEmojiLabel(QStringLiteral("text"));
    connect(label.data(), &OxaEmojiLabel::clicked, this, [&label] { delete label; });
    if (byKey)
        press(*label, Qt::Key_Return);
    else
        QTest::mouseRelease(label, Qt::LeftButton);
    QVERIFY(!label);
}

void tst_OxaEmojiLabelClicks::buttonIsClickedWithoutInteraction_data()
{
    QTest::addColumn<Qt::TextInteractionFlags>("flags");
    QTest::newRow("without interaction") << Qt::TextInteractionFlags();
    QTest::newRow("with links") << Qt::TextInteractionFlags(Qt::LinksAccessibleByMouse);
}

void tst_OxaEmojiLabelClicks::buttonIsClickedWithoutInteraction()
{
    QFETCH(const Qt::TextInteractionFlags, flags);
    OxaEmojiPushButton button(QStringLiteral("text"));
    button.setTextInteractionFlags(flags);
    const QSignalSpy clicks(&button, &OxaEmojiLabel::clicked);
    const QSignalSpy clicksOfTheBase(&button, &OxaLabel::clicked);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter })
        press(button, key);
    QCOMPARE(clicks.size(), 4);
    QCOMPARE(clicksOfTheBase.size(), 0);
}

void tst_OxaEmojiLabelClicks::buttonIsClickedByNothingElse()
{
    OxaEmojiPushButton button(QStringLiteral("text"));
    const QSignalSpy clicks(&button, &OxaEmojiLabel::clicked);
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::RightButton);
    QTest::mouseRelease(&button, Qt::MiddleButton);
    press(button, Qt::Key_A);
    QCOMPARE(clicks.size(), 0);
}

void tst_OxaEmojiLabelClicks::buttonSwallowsAllKeys()
{
    // A button accepts every key, also those that it does not use.
    KeyCounter parent;
    OxaEmojiPushButton button(QStringLiteral("text"), &parent);
    for (const Qt::Key key : { Qt::Key_A, Qt::Key_Escape, Qt::Key_Space })
        press(button, key);
    QCOMPARE(parent.keys, 0);
}

void tst_OxaEmojiLabelClicks::buttonStartsAsALabel()
{
    QWidget parent;
    const OxaEmojiPushButton button(QStringLiteral("text"), &parent, QAccessible::PushButton);
    QCOMPARE(button.text(), QStringLiteral("text"));
    QCOMPARE(button.getAccessibleRole(), QAccessible::PushButton);
    QCOMPARE(button.getElidedText(), QStringLiteral("text"));
    QCOMPARE(OxaEmojiPushButton(&parent).text(), QString());
}

UIELEMENTS_TEST_MAIN(tst_OxaEmojiLabelClicks)
#include "tst_oxaemojilabel_clicks.moc"
