// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxPictures.h"
#include "support/Guards.h"
#include "support/RealInput.h"
#include "support/RecordingStyle.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaRadioButton.h>

#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

using namespace CheckBoxPictures;

namespace {

const QColor dots(55, 155, 225); // The inverse of the focus set's colour.

/// A window with two check boxes and a group of three radio buttons.
class Window : public QWidget
{
public:
    Window()
    {
        resize(400, 320);
        int y = 20;
        for (QAbstractButton *button :
             std::initializer_list<QAbstractButton *> { &first, &second, &mail, &phone, &letter }) {
            button->setText(QStringLiteral("abc"));
            button->setGeometry(50, y, 200, 40);
            y += 55;
        }
        first.setCheckboxSize(QSize(24, 14));
    }

    /// Shows the window, with the pointer away from it.
    bool appear()
    {
        if (!RealInput::parkPointer())
            return false;
        move(100, 100);
        return Windows::activate(*this);
    }

    OxaCheckBox first { this };
    OxaCheckBox second { this, true };
    OxaRadioButton mail { this };
    OxaRadioButton phone { this };
    OxaRadioButton letter { this };
};

bool hasFrame(const QWidget &widget)
{
    return Pixels::boundsNear(Windows::onScreen(widget), dots, 4) == widget.rect();
}

/// Returns the faces in which the box of \a checkBox shows the unchecked set.
QString faceOf(const OxaCheckBox &checkBox)
{
    return Faces::facesIn(Windows::onScreen(checkBox), uncheckedColors,
                          insideOfBox(checkBox.width()));
}

} // namespace

/// Check boxes and radio buttons in a real window, under a real pointer and keyboard.
class tst_OxaCheckBoxInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void isClickedAnywhere_data() { addDirections(); }
    void isClickedAnywhere();
    void isToggledByTheSpaceKey_data() { addDirections(); }
    void isToggledByTheSpaceKey();
    void showsItsFrameForFocusByTabOnly();
    void leavesTheFrameToTheApplicationsStyle();
    void changesUnderThePointer_data() { addDirections(); }
    void changesUnderThePointer();
    void isChosenByArrowKeysInItsGroup_data() { addDirections(); }
    void isChosenByArrowKeysInItsGroup();
    void framesTheRadioButtonThatKeysReach();

private:
    static void addDirections();

    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaCheckBoxInteraction::addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_OxaCheckBoxInteraction::isClickedAnywhere()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    Window window;
    QVERIFY(window.appear());
    bool isChecked = false;
    // Box, text, what is behind the text, and corners.
    for (const QPoint &position : { QPoint(8, 12), QPoint(40, 12), QPoint(100, 20), QPoint(190, 12),
                                    QPoint(0, 39), QPoint(199, 0) }) {
        isChecked = !isChecked;
        QVERIFY(RealInput::click(window.first, position));
        QTRY_COMPARE(window.first.isChecked(), isChecked);
    }
    QVERIFY(RealInput::click(window.first, QPoint(210, 12)));
    QVERIFY(RealInput::click(window.second, QPoint(199, 39)));
    QTRY_VERIFY(window.second.isChecked());
    QCOMPARE(window.first.isChecked(), isChecked);
}

void tst_OxaCheckBoxInteraction::isToggledByTheSpaceKey()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    Window window;
    window.second.setTristate(true);
    QVERIFY(window.appear());
    window.first.setFocus();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_VERIFY(window.first.isChecked());
    QTRY_VERIFY(Pixels::countNear(Windows::onScreen(window.first), checkedColors.focused) > 20);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab"), QStringLiteral("space") }));
    QTRY_COMPARE(window.second.checkState(), Qt::PartiallyChecked);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_COMPARE(window.second.checkState(), Qt::Checked);
    QVERIFY(window.first.isChecked());
}

void tst_OxaCheckBoxInteraction::showsItsFrameForFocusByTabOnly()
{
    Window window;
    // As high as a line, so that the frame is not moved.
    for (OxaCheckBox *checkBox : { &window.first, &window.second })
        checkBox->resize(200, checkBox->fontMetrics().height());
    QVERIFY(window.appear());
    QVERIFY(RealInput::click(window.first, QPoint(8, 12)));
    QTRY_VERIFY(window.first.isChecked());
    QVERIFY(window.first.hasFocus());
    QVERIFY(!hasFrame(window.first));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(hasFrame(window.second));
    QVERIFY(!hasFrame(window.first));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_VERIFY(hasFrame(window.first));
    QTRY_VERIFY(!hasFrame(window.second));
}

void tst_OxaCheckBoxInteraction::leavesTheFrameToTheApplicationsStyle()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    Window window;
    QVERIFY(window.appear());
    window.first.setFocus();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.second.hasFocus());
    const auto isFramed = [&style](const QWidget &widget) {
        return std::any_of(style.calls().begin(), style.calls().end(), [&widget](const auto &call) {
            return call.element == QStyle::PE_FrameFocusRect && call.widget == &widget;
        });
    };
    QTRY_VERIFY(isFramed(window.second));
    QCOMPARE(window.second.property("hasCustomRect"), QVariant(true));
}

void tst_OxaCheckBoxInteraction::changesUnderThePointer()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    Window window;
    window.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(window.appear());
    window.setFocus();
    SignalLog log;
    log.record(&window.first, &OxaCheckBox::mouseEntered, QStringLiteral("mouseEntered"));
    log.record(&window.first, &OxaCheckBox::mouseExited, QStringLiteral("mouseExited"));
    QTRY_COMPARE(faceOf(window.first), QStringLiteral("normal"));
    QVERIFY(RealInput::moveTo(window.first, QPoint(100, 30)));
    QTRY_COMPARE(faceOf(window.first), QStringLiteral("hovered"));
    QCOMPARE(log.take(), QStringLiteral("mouseEntered"));
    QVERIFY(RealInput::send({ QStringLiteral("mousedown"), QStringLiteral("1") }));
    QTRY_COMPARE(faceOf(window.first), QStringLiteral("pressed"));
    QVERIFY(RealInput::moveTo(window, QPoint(5, 5)));
    QVERIFY(RealInput::send({ QStringLiteral("mouseup"), QStringLiteral("1") }));
    // The release outside clicks nothing.
    window.setFocus();
    QTRY_COMPARE(faceOf(window.first), QStringLiteral("normal"));
    QCOMPARE(log.take(), QStringLiteral("mouseExited"));
    QVERIFY(!window.first.isChecked());
}

void tst_OxaCheckBoxInteraction::isChosenByArrowKeysInItsGroup()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    Window window;
    QVERIFY(window.appear());
    QVERIFY(RealInput::click(window.mail, QPoint(100, 20)));
    QVERIFY(!window.mail.isChecked()); // Qt's is clicked on its text alone.
    QVERIFY(RealInput::click(window.mail, QPoint(direction == Qt::LeftToRight ? 20 : 180, 20)));
    QTRY_VERIFY(window.mail.isChecked());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Down") }));
    QTRY_VERIFY(window.phone.isChecked());
    QVERIFY(window.phone.hasFocus());
    QVERIFY(!window.mail.isChecked());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Down") }));
    QTRY_VERIFY(window.letter.isChecked());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Up") }));
    QTRY_VERIFY(window.phone.isChecked());
    QVERIFY(!window.first.isChecked());
}

void tst_OxaCheckBoxInteraction::framesTheRadioButtonThatKeysReach()
{
    Window window;
    window.mail.setChecked(true);
    QVERIFY(window.appear());
    window.second.setFocus();
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(hasFrame(window.mail));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Down") }));
    QTRY_VERIFY(hasFrame(window.phone));
    QTRY_VERIFY(!hasFrame(window.mail));
    QVERIFY(RealInput::click(window.letter, QPoint(20, 20)));
    QTRY_VERIFY(window.letter.isChecked());
    QTRY_VERIFY(!hasFrame(window.phone));
}

UIELEMENTS_TEST_MAIN(tst_OxaCheckBoxInteraction)
#include "tst_oxacheckbox_interaction.moc"
