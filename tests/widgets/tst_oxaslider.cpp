// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaSlider.h>

#include <QStyleFactory>

#include <limits>

namespace {

/// A window with a slider whose own style is Fusion, whatever the application's is.
class SliderWindow : public QWidget
{
public:
    explicit SliderWindow(Qt::Orientation orientation = Qt::Horizontal)
        : m_style(QStyleFactory::create(QStringLiteral("Fusion"))), slider(orientation, this)
    {
        resize(300, 300);
        slider.setStyle(m_style.get());
        slider.setFocusPolicy(Qt::StrongFocus);
        slider.setRange(0, 100);
        slider.setGeometry(20, 20, 200, 40);
    }

    /// Shows the window and gives the slider the focus.
    bool focusSlider(Qt::FocusReason reason)
    {
        if (!Windows::activate(*this))
            return false;
        if (reason == Qt::TabFocusReason)
            QTest::keyClick(this, Qt::Key_Tab);
        else
            QTest::mouseClick(&slider, Qt::LeftButton);
        return slider.hasFocus();
    }

private:
    const std::unique_ptr<QStyle> m_style;

public:
    OxaSlider slider;
};

constexpr int highest = std::numeric_limits<int>::max();

} // namespace

/// OxaSlider, without the block that it shares with other classes.
class tst_OxaSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesItsOrientation();
    void isPaintedAsQtsSlider();
    void showsNoFrameWithoutTheFocus();
    void showsNoFrameAfterAClick();
    void hasTheApplicationsStyleDrawItsFrameAfterTab();
    void tellsTheStyleThatItsRectangleIsItsOwn();
    void placesTheFrameAsIfNothingWereMirrored_data();
    void placesTheFrameAsIfNothingWereMirrored();
};

void tst_OxaSlider::takesItsOrientation()
{
    QWidget parent;
    const OxaSlider byDefault(&parent);
    QCOMPARE(byDefault.parentWidget(), &parent);
    QCOMPARE(byDefault.orientation(), Qt::Vertical);
    const OxaSlider horizontal(Qt::Horizontal, &parent);
    QCOMPARE(horizontal.parentWidget(), &parent);
    QCOMPARE(horizontal.orientation(), Qt::Horizontal);
}

void tst_OxaSlider::isPaintedAsQtsSlider()
{
    OxaSlider slider(Qt::Horizontal);
    QSlider plain(Qt::Horizontal);
    for (QSlider *each : { static_cast<QSlider *>(&slider), &plain }) {
        each->resize(200, 40);
        each->setValue(30);
    }
    QCOMPARE(Pixels::render(slider), Pixels::render(plain));
}

void tst_OxaSlider::showsNoFrameWithoutTheFocus()
{
    const ApplicationStyleGuard style;
    SliderWindow window;
    window.slider.setFocusPolicy(Qt::NoFocus);
    QVERIFY(!window.focusSlider(Qt::TabFocusReason));
    Pixels::render(window.slider);
    QCOMPARE(style.calls().size(), std::size_t(0));
    QVERIFY(!window.slider.property("hasCustomRect").isValid());
}

void tst_OxaSlider::showsNoFrameAfterAClick()
{
    const ApplicationStyleGuard style;
    SliderWindow window;
    QVERIFY(window.focusSlider(Qt::MouseFocusReason));
    Pixels::render(window.slider);
    QCOMPARE(style.calls().size(), std::size_t(0));
    QVERIFY(!window.slider.property("hasCustomRect").isValid());
}

void tst_OxaSlider::hasTheApplicationsStyleDrawItsFrameAfterTab()
{
    SliderWindow window;
    QVERIFY(window.focusSlider(Qt::TabFocusReason));
    const ApplicationStyleGuard style;
    Pixels::render(window.slider);
    QCOMPARE(style.calls().size(), std::size_t(1));
    const RecordingStyle::Call &call = style.calls().front();
    QCOMPARE(call.element, QStyle::PE_FrameFocusRect);
    QCOMPARE(call.optionType, int(QStyleOption::SO_FocusRect));
    QCOMPARE(call.widget, &window.slider);
    QVERIFY(call.state.testFlag(QStyle::State_HasFocus));
    QVERIFY(call.state.testFlag(QStyle::State_KeyboardFocusChange));
}

void tst_OxaSlider::tellsTheStyleThatItsRectangleIsItsOwn()
{
    SliderWindow window;
    QVERIFY(window.focusSlider(Qt::TabFocusReason));
    Pixels::render(window.slider);
    QCOMPARE(window.slider.property("hasCustomRect"), QVariant(true));
}

void tst_OxaSlider::placesTheFrameAsIfNothingWereMirrored_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QVector<int>>("values"); // Minimum, maximum and value.
    QTest::addColumn<bool>("isMirrored");
    QTest::addColumn<QPoint>("corner");
    const auto add = [](const char *name, Qt::Orientation orientation, QSize size,
                        const QVector<int> &values, QPoint corner, bool isMirrored = false) {
        QTest::newRow(name) << orientation << size << values << isMirrored << corner;
    };
    const QSize wide(200, 40);
    add("at the left end", Qt::Horizontal, wide, { 0, 100, 0 }, { 0, 11 });
    add("in the middle", Qt::Horizontal, wide, { 0, 100, 50 }, { 91, 11 });
    add("at the right end", Qt::Horizontal, wide, { 0, 100, 100 }, { 182, 11 });
    add("right to left", Qt::Horizontal, wide, { 0, 100, 0 }, { 0, 11 }, true);
    add("at the top for the least value", Qt::Vertical, { 40, 200 }, { 0, 100, 0 }, { 11, 0 });
    add("at the bottom for the greatest", Qt::Vertical, { 40, 200 }, { 0, 100, 100 }, { 11, 182 });
    add("upright, with an inverted appearance", Qt::Vertical, { 40, 200 }, { 0, 100, 100 },
        { 11, 182 }, true);
    add("an odd height", Qt::Horizontal, { 201, 41 }, { 0, 100, 100 }, { 183, 11 });
    add("from below zero", Qt::Horizontal, wide, { -100, 100, 0 }, { 91, 11 });
    add("a range of nothing", Qt::Horizontal, wide, { 5, 5, 5 }, { 0, 11 });
    add("half of all numbers", Qt::Horizontal, wide, { 0, highest, highest }, { 182, 11 });
    add("smaller than a handle", Qt::Horizontal, { 10, 10 }, { 0, 100, 100 }, { 0, -4 });
    add("upright, smaller than a handle", Qt::Vertical, { 1, 1 }, { 0, 100, 100 }, { -9, 0 });
}

void tst_OxaSlider::placesTheFrameAsIfNothingWereMirrored()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QSize, size);
    QFETCH(const QVector<int>, values);
    QFETCH(const bool, isMirrored);
    QFETCH(const QPoint, corner);
    SliderWindow window(orientation);
    if (isMirrored)
        window.slider.setLayoutDirection(Qt::RightToLeft);
    window.slider.setInvertedAppearance(isMirrored && orientation == Qt::Vertical);
    window.slider.resize(size);
    window.slider.setRange(values[0], values[1]);
    window.slider.setValue(values[2]);
    QVERIFY(window.focusSlider(Qt::TabFocusReason));
    const ApplicationStyleGuard style;
    Pixels::render(window.slider);
    QCOMPARE(style.calls().size(), std::size_t(1));
    QCOMPARE(style.calls().front().rect, QRect(corner, QSize(18, 18)));
}

UIELEMENTS_TEST_MAIN(tst_OxaSlider)
#include "tst_oxaslider.moc"
