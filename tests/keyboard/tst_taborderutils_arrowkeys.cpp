// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/keyboard/TabOrderUtils.h>
#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaToggleButton.h>

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QQuickWidget>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <QTreeWidget>

namespace {

/// Returns which arrow keys are taken away from \a object, as "left up right down".
QString takenKeys(QObject *object)
{
    const std::pair<Qt::Key, QString> keys[] = { { Qt::Key_Left, QStringLiteral("left") },
                                                 { Qt::Key_Up, QStringLiteral("up") },
                                                 { Qt::Key_Right, QStringLiteral("right") },
                                                 { Qt::Key_Down, QStringLiteral("down") } };
    QStringList taken;
    for (const auto &[key, name] : keys) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        if (TabOrderUtils::removeArrowKeyTabbingFromSpecificWidgets(object, &event))
            taken += name;
    }
    return taken.join(QLatin1Char(' '));
}

const QString all = QStringLiteral("left up right down");

using Make = std::function<QObject *()>;

template <typename Class>
Make make()
{
    return [] { return new Class; };
}

} // namespace

Q_DECLARE_METATYPE(Make)

/// Which widgets use the arrow keys themselves.
class tst_TabOrderUtilsArrowKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesArrowKeysByTheKindOfWidget_data();
    void takesArrowKeysByTheKindOfWidget();
    void takesArrowKeysFromNothing();
    void takesArrowKeysByTheAcceleratorTypeOfAButton_data();
    void takesArrowKeysByTheAcceleratorTypeOfAButton();
    void takesNoOtherKey_data();
    void takesNoOtherKey();
};

void tst_TabOrderUtilsArrowKeys::takesArrowKeysByTheKindOfWidget_data()
{
    QTest::addColumn<Make>("makeObject");
    QTest::addColumn<QString>("taken");
    QTest::newRow("list view") << make<QListView>() << QString();
    QTest::newRow("list widget, which is a list view") << make<QListWidget>() << QString();
    QTest::newRow("combo box") << make<QComboBox>() << QString();
    QTest::newRow("radio button") << make<QRadioButton>() << QString();
    QTest::newRow("line edit") << make<QLineEdit>() << QString();
    QTest::newRow("slider") << make<QSlider>() << QString();
    QTest::newRow("QML widget") << make<QQuickWidget>() << QString();
    QTest::newRow("tree widget") << make<QTreeWidget>() << QString();
    QTest::newRow("tree view, which is no tree widget") << make<QTreeView>() << all;
    QTest::newRow("check box") << make<QCheckBox>() << all;
    QTest::newRow("plain button") << make<QPushButton>() << all;
    QTest::newRow("plain widget") << make<QWidget>() << all;
    QTest::newRow("no widget at all") << make<QObject>() << all;
}

void tst_TabOrderUtilsArrowKeys::takesArrowKeysByTheKindOfWidget()
{
    QFETCH(const Make, makeObject);
    const std::unique_ptr<QObject> object(makeObject());
    QTEST(takenKeys(object.get()), "taken");
}

void tst_TabOrderUtilsArrowKeys::takesArrowKeysFromNothing() { QCOMPARE(takenKeys(nullptr), all); }

void tst_TabOrderUtilsArrowKeys::takesArrowKeysByTheAcceleratorTypeOfAButton_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("taken");
    const QString vertical = QStringLiteral("up down");
    const QString horizontal = QStringLiteral("left right");
    QTest::newRow("0, the default") << 0 << all;
    QTest::newRow("1") << 1 << vertical;
    QTest::newRow("2") << 2 << horizontal;
    QTest::newRow("3") << 3 << vertical;
    QTest::newRow("4") << 4 << horizontal;
    QTest::newRow("5") << 5 << QString();
    QTest::newRow("6, which has no meaning") << 6 << all;
    QTest::newRow("a negative number") << -1 << all;
}

void tst_TabOrderUtilsArrowKeys::takesArrowKeysByTheAcceleratorTypeOfAButton()
{
    QFETCH(const int, type);
    OxaPushButton button;
    OxaToggleButton derived;
    for (OxaPushButton *each : { &button, static_cast<OxaPushButton *>(&derived) }) {
        each->setAcceleratorType(static_cast<RillsAccessible::AcceleratorType>(type));
        QTEST(takenKeys(each), "taken");
    }
}

void tst_TabOrderUtilsArrowKeys::takesNoOtherKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("tab") << int(Qt::Key_Tab);
    QTest::newRow("backtab") << int(Qt::Key_Backtab);
    QTest::newRow("the key before left") << int(Qt::Key_Left) - 1;
    QTest::newRow("the key after down") << int(Qt::Key_Down) + 1;
    QTest::newRow("a letter") << int(Qt::Key_A);
    QTest::newRow("an unknown key") << int(Qt::Key_unknown);
}

void tst_TabOrderUtilsArrowKeys::takesNoOtherKey()
{
    QFETCH(const int, key);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QWidget widget;
    OxaPushButton button;
    QLineEdit field;
    for (QObject *object : { &widget, static_cast<QWidget *>(&button),
                             static_cast<QWidget *>(&field), static_cast<QWidget *>(nullptr) })
        QVERIFY(!TabOrderUtils::removeArrowKeyTabbingFromSpecificWidgets(object, &event));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_TabOrderUtilsArrowKeys)
#include "tst_taborderutils_arrowkeys.moc"
