// SPDX-License-Identifier: Apache-2.0
#include "support/FocusLog.h"
#include "support/RealInput.h"
#include "support/TestMain.h"
#include "support/Windows.h"

#include <UiElements/keyboard/TabOrderUtils.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/widgets/OxaPushButton.h>

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

template <typename Class>
Class *make(const char *name)
{
    auto *widget = new Class;
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

/// A window with a column of widgets that records which of them get the focus.
class Window : public QWidget
{
public:
    QWidget *child(const char *name) const
    {
        return findChild<QWidget *>(QString::fromLatin1(name));
    }

    /// Shows the window with the focus on the widget called \a name.
    bool appear(const char *name)
    {
        if (!Windows::activate(*this))
            return false;
        child(name)->setFocus();
        m_visited.clear();
        return true;
    }

    /// Returns the names of the widgets that had the focus since then.
    QString visited() const { return m_visited.names(); }

    QVBoxLayout *const column = new QVBoxLayout(this);

private:
    FocusLog m_visited;
};

/// A row of buttons that is one stop for Tab, and whose buttons are reached by the arrow keys.
class ToolBar : public QWidget
{
public:
    ToolBar()
    {
        for (const char *name : { "cut", "copy", "paste", "find" }) {
            auto *button = make<OxaPushButton>(name);
            button->installEventFilter(this);
            m_items.addWidget(button);
        }
        m_items.widgetAt(1)->setEnabled(false);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QWidget::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Left && key != Qt::Key_Right)
            return false;
        const int index = key == Qt::Key_Left
                ? TabOrderUtils::getPreviousFocusableItemFocusInLayout(&m_items)
                : TabOrderUtils::getNextFocusableItemFocusIndexInLayout(&m_items);
        if (index != -1)
            m_items.widgetAt(index)->setFocus();
        return true;
    }

protected:
    bool focusNextPrevChild(bool next) override
    {
        return TabOrderUtils::focusNextPrevChild(next, this, &m_items);
    }

private:
    SmartLayout m_items { this, QMargins(), 4, 4, Qt::AlignLeft, -1, false };
};

/// A window with all kinds of widgets that Tab stops at, or does not.
class Mixture : public Window
{
public:
    Mixture()
    {
        column->addWidget(make<QLineEdit>("first"));
        column->addWidget(make<QSpinBox>("spin"));
        column->addWidget(make<QLineEdit>("hidden"));
        column->addWidget(make<QPushButton>("disabled"));
        column->addWidget(make<QPushButton>("click"));
        column->addWidget(makeCompound());
        column->addWidget(makeNested());
        auto *combo = make<QComboBox>("combo");
        combo->setEditable(true);
        column->addWidget(combo);
        column->addWidget(make<QPushButton>("last"));
        child("hidden")->hide();
        child("disabled")->setEnabled(false);
        child("click")->setFocusPolicy(Qt::ClickFocus);
    }

    bool isWalkedByUs = true;

protected:
    bool focusNextPrevChild(bool next) override
    {
        return isWalkedByUs ? TabOrderUtils::focusNextPrevChild(next, focusWidget(), nullptr)
                            : QWidget::focusNextPrevChild(next);
    }

private:
    /// A widget that takes the focus and hands it to the first of its fields.
    static QWidget *makeCompound()
    {
        auto *compound = make<QWidget>("compound");
        auto *row = new QHBoxLayout(compound);
        row->addWidget(make<QLineEdit>("compound.a"));
        row->addWidget(make<QLineEdit>("compound.b"));
        compound->setFocusPolicy(Qt::StrongFocus);
        compound->setFocusProxy(row->itemAt(0)->widget());
        return compound;
    }

    /// The same, two levels deep, in a widget that takes no focus itself.
    static QWidget *makeNested()
    {
        auto *outer = make<QWidget>("outer");
        auto *row = new QHBoxLayout(outer);
        auto *middle = make<QWidget>("middle");
        auto *inner = make<QLineEdit>("inner");
        (new QHBoxLayout(middle))->addWidget(inner);
        row->addWidget(middle);
        row->addWidget(make<QLineEdit>("other"));
        middle->setFocusProxy(inner);
        outer->setFocusProxy(middle);
        return outer;
    }
};

/// A window with a tool bar between two fields.
class WithToolBar : public Window
{
public:
    WithToolBar()
    {
        column->addWidget(make<QLineEdit>("before"));
        column->addWidget(new ToolBar);
        column->addWidget(make<QLineEdit>("after"));
    }
};

/// Keeps arrow keys from moving the focus, as an outer application does, and records all keys.
class ArrowKeyFilter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        auto *keyEvent = static_cast<QKeyEvent *>(event);
        lastKey = keyEvent->key();
        return TabOrderUtils::removeArrowKeyTabbingFromSpecificWidgets(watched, keyEvent);
    }

    int lastKey = 0;
};

QStringList repeated(const char *key, int count)
{
    QStringList keys;
    for (int i = 0; i < count; ++i)
        keys += QString::fromLatin1(key);
    return keys;
}

} // namespace

/// Tab, Backtab and arrow keys from the X server, in windows of nested widgets.
class tst_TabOrderUtilsKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walksForwardWithTab_data() { addWalkers(); }
    void walksForwardWithTab();
    void walksBackWithBacktab_data() { addWalkers(); }
    void walksBackWithBacktab();
    void makesOneStopOfARowOfItems();
    void entersARowOfItemsFromBehindAtItsEnd();
    void movesAlongARowOfItemsWithArrowKeys();
    void followsTheOrderOfASortedLayout();
    void followsACompoundTabOrder();
    void keepsArrowKeysByTheTypeOfAButton_data();
    void keepsArrowKeysByTheTypeOfAButton();

private:
    static void addWalkers();
};

void tst_TabOrderUtilsKeys::addWalkers()
{
    QTest::addColumn<bool>("isWalkedByUs");
    QTest::newRow("by Qt") << false;
    QTest::newRow("by us") << true;
}

void tst_TabOrderUtilsKeys::walksForwardWithTab()
{
    QFETCH(const bool, isWalkedByUs);
    Mixture window;
    window.isWalkedByUs = isWalkedByUs;
    QVERIFY(window.appear("first"));
    QVERIFY(RealInput::typeKeys(repeated("Tab", 8)));
    QTRY_COMPARE(window.visited(),
                 QStringLiteral("spin compound.a compound.b inner other combo last first"));
}

void tst_TabOrderUtilsKeys::walksBackWithBacktab()
{
    QFETCH(const bool, isWalkedByUs);
    Mixture window;
    window.isWalkedByUs = isWalkedByUs;
    QVERIFY(window.appear("first"));
    QVERIFY(RealInput::typeKeys(repeated("shift+Tab", 8)));
    QTRY_COMPARE(window.visited(),
                 QStringLiteral("last combo other inner compound.b compound.a spin first"));
}

void tst_TabOrderUtilsKeys::makesOneStopOfARowOfItems()
{
    WithToolBar window;
    QVERIFY(window.appear("before"));
    QVERIFY(RealInput::typeKeys(repeated("Tab", 4)));
    QTRY_COMPARE(window.visited(), QStringLiteral("cut after before cut"));
}

void tst_TabOrderUtilsKeys::entersARowOfItemsFromBehindAtItsEnd()
{
    WithToolBar window;
    QVERIFY(window.appear("after"));
    QVERIFY(RealInput::typeKeys(repeated("shift+Tab", 3)));
    QTRY_COMPARE(window.visited(), QStringLiteral("find before after"));
}

void tst_TabOrderUtilsKeys::movesAlongARowOfItemsWithArrowKeys()
{
    WithToolBar window;
    QVERIFY(window.appear("cut"));
    QVERIFY(RealInput::typeKeys(repeated("Right", 3) + repeated("Left", 3)));
    // The disabled button is passed over, and neither end leads to the other.
    QTRY_COMPARE(window.visited(), QStringLiteral("paste find paste cut"));
}

void tst_TabOrderUtilsKeys::followsTheOrderOfASortedLayout()
{
    Window window;
    auto *layout = new SmartLayout(nullptr, QMargins(), 4, 4, Qt::AlignLeft, -1, false);
    window.column->addLayout(layout);
    for (const char *name : { "d", "b", "a", "c" })
        layout->addWidget(make<QPushButton>(name));
    layout->sort([](QLayoutItem *a, QLayoutItem *b) {
        return a->widget()->objectName() < b->widget()->objectName();
    });
    QVERIFY(window.appear("a"));
    QVERIFY(RealInput::typeKeys(repeated("Tab", 4)));
    QTRY_COMPARE(window.visited(), QStringLiteral("b c d a"));
}

void tst_TabOrderUtilsKeys::followsACompoundTabOrder()
{
    Window window;
    auto *first = make<QLineEdit>("first");
    auto *last = make<QLineEdit>("last");
    window.column->addWidget(last);
    auto *row = new QHBoxLayout;
    window.column->addLayout(row);
    for (const char *name : { "c", "hidden", "b", "a" })
        row->insertWidget(0, make<QPushButton>(name));
    row->insertSpacing(1, 10);
    window.child("hidden")->hide();
    window.column->addWidget(first);
    window.column->addWidget(make<QLineEdit>("beyond"));
    TabOrderUtils::setCompoundTabOrder(first, row, last);
    QVERIFY(window.appear("first"));
    QVERIFY(RealInput::typeKeys(repeated("Tab", 6) + repeated("shift+Tab", 3)));
    QTRY_COMPARE(window.visited(), QStringLiteral("a b c last beyond first beyond last c"));
}

void tst_TabOrderUtilsKeys::keepsArrowKeysByTheTypeOfAButton_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("visited");
    const QString horizontal = QStringLiteral("Right Left");
    const QString vertical = QStringLiteral("Down Up");
    const QString moves = QStringLiteral("b a");
    QTest::newRow("0, to the sides") << 0 << horizontal << QString();
    QTest::newRow("0, up and down") << 0 << vertical << QString();
    QTest::newRow("1, to the sides") << 1 << horizontal << moves;
    QTest::newRow("1, up and down") << 1 << vertical << QString();
    QTest::newRow("2, to the sides") << 2 << horizontal << QString();
    QTest::newRow("2, up and down") << 2 << vertical << moves;
    QTest::newRow("5, to the sides") << 5 << horizontal << moves;
    QTest::newRow("5, up and down") << 5 << vertical << moves;
}

void tst_TabOrderUtilsKeys::keepsArrowKeysByTheTypeOfAButton()
{
    QFETCH(const int, type);
    QFETCH(const QString, keys);
    Window window;
    ArrowKeyFilter filter;
    for (const char *name : { "a", "b" }) {
        auto *button = make<OxaPushButton>(name);
        button->setAcceleratorType(static_cast<RillsAccessible::AcceleratorType>(type));
        button->installEventFilter(&filter);
        window.column->addWidget(button);
    }
    QVERIFY(window.appear("a"));
    QVERIFY(RealInput::typeKeys(keys.split(QLatin1Char(' ')) + repeated("F5", 1)));
    QTRY_COMPARE(filter.lastKey, int(Qt::Key_F5));
    QTEST(window.visited(), "visited");
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_TabOrderUtilsKeys)
#include "tst_taborderutils_keys.moc"
