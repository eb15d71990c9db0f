// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QPointer>
#include <QSignalSpy>

namespace {

void deliver(OxaLabel &label, QEvent::Type type, Qt::Key key)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&label, &event);
}

void addInteractionFlags()
{
    QTest::addColumn<Qt::TextInteractionFlags>("flags");
    QTest::addColumn<bool>("isInteractive");
    const std::pair<const char *, Qt::TextInteractionFlags> rows[] = {
        { "links by mouse", Qt::LinksAccessibleByMouse },
        { "links by keyboard", Qt::LinksAccessibleByKeyboard },
        { "text by mouse", Qt::TextSelectableByMouse },
        { "text by keyboard", Qt::TextSelectableByKeyboard },
        { "editable text", Qt::TextEditorInteraction },
        { "nothing", Qt::NoTextInteraction },
    };
    for (const auto &[name, flags] : rows)
        QTest::newRow(name) << flags << (flags != Qt::NoTextInteraction);
}

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

/// Mouse and keys on an OxaLabel.
class tst_OxaLabelClicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void isClickedByTheLeftButtonWhenInteractive_data() { addInteractionFlags(); }
    void isClickedByTheLeftButtonWhenInteractive();
    void isClickedByItsKeysWhenInteractive_data() { addInteractionFlags(); }
    void isClickedByItsKeysWhenInteractive();
    void isClickedByNoOtherButton_data();
    void isClickedByNoOtherButton();
    void isClickedByNoOtherKey_data();
    void isClickedByNoOtherKey();
    void isClickedWhenTheButtonIsReleased();
    void isNotClickedByTheMouseWhileTextIsSelected();
    void isClickedByKeysAlsoWhileTextIsSelected();
    void emitsClickedBeforeItsLinkIsFollowed();
    void emitsClickedBeforeItsLinkIsFollowedByKey();
    void leavesKeysToQtAllTheSame();
    void mayBeDeletedWhenItIsClicked_data();
    void mayBeDeletedWhenItIsClicked();

    void selectsAllTextByTheRightButton_data();
    void selectsAllTextByTheRightButton();
    void keepsAnExistingSelection();
    void selectsNothingWithoutTextOrInteraction_data();
    void selectsNothingWithoutTextOrInteraction();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabelClicks::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#112233" }) }));
}

void tst_OxaLabelClicks::isClickedByTheLeftButtonWhenInteractive()
{
    QFETCH(const Qt::TextInteractionFlags, flags);
    QFETCH(const bool, isInteractive);
    OxaLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(flags);
    const QSignalSpy clicks(&label, &OxaLabel::clicked);
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(clicks.size(), int(isInteractive));
}

void tst_OxaLabelClicks::isClickedByItsKeysWhenInteractive()
{
    QFETCH(const Qt::TextInteractionFlags, flags);
    QFETCH(const bool, isInteractive);
    OxaLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(flags);
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter }) {
        const QSignalSpy clicks(&label, &OxaLabel::clicked);
        deliver(label, QEvent::KeyPress, key);
        QCOMPARE(clicks.size(), int(isInteractive));
        deliver(label, QEvent::KeyRelease, key);
        QCOMPARE(clicks.size(), int(isInteractive));
    }
}

void tst_OxaLabelClicks::isClickedByNoOtherButton_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_OxaLabelClicks::isClickedByNoOtherButton()
{
    QFETCH(const Qt::MouseButton, button);
    OxaLabel label(QStringLiteral("text"));
    const QSignalSpy clicks(&label, &OxaLabel::clicked);
    QTest::mouseClick(&label, button);
    QCOMPARE(clicks.size(), 0);
}

void tst_OxaLabelClicks::isClickedByNoOtherKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("a letter") << Qt::Key_A;
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Select") << Qt::Key_Select;
    QTest::newRow("Escape") << Qt::Key_Escape;
}

void tst_OxaLabelClicks::isClickedByNoOtherKey()
{
    QFETCH(const Qt::Key, key);
    OxaLabel label(QStringLiteral("text"));
    const QSignalSpy clicks(&label, &OxaLabel::clicked);
    deliver(label, QEvent::KeyPress, key);
    QCOMPARE(clicks.size(), 0);
}

void tst_OxaLabelClicks::isClickedWhenTheButtonIsReleased()
{
    OxaLabel label(QStringLiteral("text"));
    const QSignalSpy clicks(&label, &OxaLabel::clicked);
    QTest::mousePress(&label, Qt::LeftButton);
    QCOMPARE(clicks.size(), 0);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

void tst_OxaLabelClicks::isNotClickedByTheMouseWhileTextIsSelected()
{
    OxaLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    const QSignalSpy clicks(&label, &OxaLabel::clicked);
    label.setSelection(1, 2);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clicks.size(), 0);
    label.setSelection(0, 0);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

void tst_OxaLabelClicks::isClickedByKeysAlsoWhileTextIsSelected()
{
    OxaLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setSelection(1, 2);
    const QSignalSpy clicks(&label, &OxaLabel::clicked);
    deliver(label, QEvent::KeyPress, Qt::Key_Return);
    QCOMPARE(clicks.size(), 1);
    QCOMPARE(label.selectedText(), QStringLiteral("ex"));
}

void tst_OxaLabelClicks::emitsClickedBeforeItsLinkIsFollowed()
{
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<a href=\"x\">A link as long as the label</a>"));
    label.resize(label.sizeHint());
    SignalLog log;
    log.record(&label, &OxaLabel::clicked, QStringLiteral("clicked"));
    log.record(&label, &OxaLabel::linkActivated, QStringLiteral("linkActivated"));
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(log.take(), QStringLiteral("clicked | linkActivated"));
}

void tst_OxaLabelClicks::emitsClickedBeforeItsLinkIsFollowedByKey()
{
    OxaLabel label;
    label.setTextFormat(Qt::RichText);
    label.setTextInteractionFlags(Qt::LinksAccessibleByKeyboard);
    label.setText(QStringLiteral("<a href=\"x\">A link</a>"));
    QVERIFY(Windows::activate(label));
    QTest::keyClick(&label, Qt::Key_Tab);
    SignalLog log;
    log.record(&label, &OxaLabel::clicked, QStringLiteral("clicked"));
    log.record(&label, &OxaLabel::linkActivated, QStringLiteral("linkActivated"));
    QTest::keyClick(&label, Qt::Key_Return);
    QCOMPARE(log.take(), QStringLiteral("clicked | linkActivated"));
}

void tst_OxaLabelClicks::leavesKeysToQtAllTheSame()
{
    OxaLabel label(QStringLiteral("some text"));
    label.setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    QTest::keyClick(&label, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(label.selectedText(), QStringLiteral("some text"));
}

void tst_OxaLabelClicks::mayBeDeletedWhenItIsClicked_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by the mouse") << false;
    QTest::newRow("by a key") << true;
}

void tst_OxaLabelClicks::mayBeDeletedWhenItIsClicked()
{
    QFETCH(const bool, byKey);
    QPointer<OxaLabel> label = new OxaLabel(QStringLiteral("text"));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(label.data(), &OxaLabel::clicked, this, [&label] { delete label; });
    if (byKey)
        deliver(*label, QEvent::KeyPress, Qt::Key_Return);
    else
        QTest::mouseRelease(label, Qt::LeftButton);
    QVERIFY(!label);
}

void tst_OxaLabelClicks::selectsAllTextByTheRightButton_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::TextInteractionFlags>("flags");
    QTest::addColumn<QString>("selected");
    const Qt::TextInteractionFlags byMouse = Qt::TextSelectableByMouse;
    QTest::newRow("plain text") << Qt::PlainText << QStringLiteral("some text") << byMouse
                                << QStringLiteral("some text");
    QTest::newRow("plain text with marks") << Qt::PlainText << QStringLiteral("<b>bold</b>")
                                           << byMouse << QStringLiteral("<b>bold</b>");
    QTest::newRow("text of one character")
            << Qt::PlainText << QStringLiteral("x") << byMouse << QStringLiteral("x");
    QTest::newRow("text selectable by keyboard only")
            << Qt::PlainText << QStringLiteral("some text")
            << Qt::TextInteractionFlags(Qt::TextSelectableByKeyboard)
            << QStringLiteral("some text");
    QTest::newRow("rich text, which is longer than what it shows")
            << Qt::RichText << QStringLiteral("<b>bold</b> &amp; thin") << byMouse
            << QStringLiteral("bold & thin");
    QTest::newRow("rich text with links, which is much longer")
            << Qt::RichText << QStringLiteral("<a href=\"x\">a link</a>") << byMouse
            << QStringLiteral("a link");
    QTest::newRow("rich text of two paragraphs")
            << Qt::RichText << QStringLiteral("<p>one</p><p>two</p>") << byMouse
            << QStringLiteral("one\u2029two");
}

void tst_OxaLabelClicks::selectsAllTextByTheRightButton()
{
    QFETCH(const Qt::TextFormat, format);
    QFETCH(const QString, text);
    QFETCH(const Qt::TextInteractionFlags, flags);
    OxaLabel label;
    label.setTextFormat(format);
    label.setTextInteractionFlags(flags);
    label.setText(text);
    QTest::mouseRelease(&label, Qt::RightButton);
    QTEST(label.selectedText(), "selected");
    QCOMPARE(label.selectionStart(), 0);
}

void tst_OxaLabelClicks::keepsAnExistingSelection()
{
    OxaLabel label(QStringLiteral("some text"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.setSelection(1, 2);
    QTest::mouseRelease(&label, Qt::RightButton);
    QCOMPARE(label.selectedText(), QStringLiteral("om"));
}

void tst_OxaLabelClicks::selectsNothingWithoutTextOrInteraction_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::TextInteractionFlags>("flags");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("an empty text")
            << QString() << Qt::TextInteractionFlags(Qt::TextSelectableByMouse) << Qt::RightButton;
    QTest::newRow("no interaction")
            << QStringLiteral("text") << Qt::TextInteractionFlags() << Qt::RightButton;
    QTest::newRow("the left button")
            << QStringLiteral("text") << Qt::TextInteractionFlags(Qt::TextSelectableByMouse)
            << Qt::LeftButton;
    QTest::newRow("the middle button")
            << QStringLiteral("text") << Qt::TextInteractionFlags(Qt::TextSelectableByMouse)
            << Qt::MiddleButton;
}

void tst_OxaLabelClicks::selectsNothingWithoutTextOrInteraction()
{
    QFETCH(const QString, text);
    QFETCH(const Qt::TextInteractionFlags, flags);
    QFETCH(const Qt::MouseButton, button);
    OxaLabel label;
    // With rich text the label has a document, whatever the flags.
    label.setTextFormat(Qt::RichText);
    label.setTextInteractionFlags(flags);
    label.setText(text);
    QTest::mouseRelease(&label, button);
    QVERIFY(!label.hasSelectedText());
}

UIELEMENTS_TEST_MAIN(tst_OxaLabelClicks)
#include "tst_oxalabel_clicks.moc"
