// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaToggleButton.h>

namespace {

const QString on = QStringLiteral("switch off");
const QString off = QStringLiteral("switch on");
const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);
const OxaColorSet groundColors = Faces::colors(QStringLiteral("ground"), 220);

} // namespace

class tst_OxaToggleButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void startsFlatCheckableAndWithoutABorder();
    void replacesItsFirstStyleTextByTheNext();
    void showsTheToolTipOfItsState_data();
    void showsTheToolTipOfItsState();
    void changesToolTipAndNameWhenItIsSet();
    void changesNeitherWhenItIsClicked();
    void paintsNoBorder();
    void paintsEachState_data() { Faces::addRows(); }
    void paintsEachState();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaToggleButton::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf({ textColors, groundColors }));
}

void tst_OxaToggleButton::startsFlatCheckableAndWithoutABorder()
{
    QWidget parent;
    const auto *button = new OxaToggleButton(&parent);
    QCOMPARE(button->parent(), &parent);
    QCOMPARE(button->getAccessibleRole(), QAccessible::PushButton);
    QVERIFY(button->isCheckable());
    QVERIFY(!button->isChecked());
    QVERIFY(button->isFlat());
    QCOMPARE(button->styleSheet(), QStringLiteral("QPushButton{ border: none; }"));
    QCOMPARE(button->getCSS(), QStringLiteral("QPushButton{ border: none; }"));
    QCOMPARE(button->toolTip(), QString());
    QCOMPARE(button->accessibleName(), QString());
}

void tst_OxaToggleButton::replacesItsFirstStyleTextByTheNext()
{
    OxaToggleButton button;
    button.setCSS(QStringLiteral("$textColors: text;"));
    QCOMPARE(button.getCSS(), QStringLiteral("$textColors: text;"));
}

void tst_OxaToggleButton::showsTheToolTipOfItsState_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::newRow("checked") << true;
    QTest::newRow("unchecked") << false;
}

void tst_OxaToggleButton::showsTheToolTipOfItsState()
{
    QFETCH(const bool, isChecked);
    OxaToggleButton button;
    button.setChecked(isChecked);
    button.setToolTip(on, off);
    QCOMPARE(button.toolTip(), isChecked ? on : off);
    QCOMPARE(button.accessibleName(), QString());
}

void tst_OxaToggleButton::changesToolTipAndNameWhenItIsSet()
{
    OxaToggleButton button;
    button.setToolTip(on, off);
    for (const bool isChecked : { true, false, false, true }) {
        button.setChecked(isChecked);
        QCOMPARE(button.isChecked(), isChecked);
        QCOMPARE(button.toolTip(), isChecked ? on : off);
        QCOMPARE(button.accessibleName(), isChecked ? on : off);
    }
}

void tst_OxaToggleButton::changesNeitherWhenItIsClicked()
{
    OxaToggleButton button;
    button.setToolTip(on, off);
    button.setChecked(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(button.isChecked());
    QCOMPARE(button.toolTip(), off);
    QCOMPARE(button.accessibleName(), off);
    // Not through its Qt class either.
    QAbstractButton &qtButton = button;
    qtButton.setChecked(false);
    qtButton.setChecked(true);
    QCOMPARE(button.toolTip(), off);
}

void tst_OxaToggleButton::paintsNoBorder()
{
    OxaToggleButton button;
    button.resize(60, 40);
    QImage paper(60, 40, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QCOMPARE(Pixels::render(button), paper);
}

void tst_OxaToggleButton::paintsEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaToggleButton button;
    button.setText(QStringLiteral("abc"));
    button.setCSS(QStringLiteral("$textColors: text; $backgroundColors: ground;"));
    button.resize(120, 40);
    QVERIFY(Faces::put(button, face));
    button.resize(120, 40);
    const QImage image = Pixels::render(button);
    QVERIFY(Pixels::countNear(image, Faces::colorOf(groundColors, face)) > 3000);
    QCOMPARE(Faces::facesIn(image, groundColors), Faces::nameOf(face));
    QCOMPARE(Faces::facesIn(image, textColors), Faces::nameOf(face));
}

UIELEMENTS_TEST_MAIN(tst_OxaToggleButton)
#include "tst_oxatogglebutton.moc"
