// SPDX-License-Identifier: Apache-2.0
#include "PlainFlow.h"
#include "support/Guards.h"
#include "support/TestMain.h"

#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/SmartLayout.h>

#include <QGridLayout>
#include <QProxyStyle>
#include <QTest>

using Blocks::Block;

namespace {

/// A style with given spacings, for the metrics of a layout and between two push buttons.
class SpacingStyle : public QProxyStyle
{
public:
    SpacingStyle(const QPoint &metrics, const QPoint &betweenButtons)
        : m_metrics(metrics), m_betweenButtons(betweenButtons)
    {
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (metric == PM_LayoutHorizontalSpacing)
            return m_metrics.x();
        if (metric == PM_LayoutVerticalSpacing)
            return m_metrics.y();
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    int layoutSpacing(QSizePolicy::ControlType control1, QSizePolicy::ControlType control2,
                      Qt::Orientation orientation, const QStyleOption *,
                      const QWidget *) const override
    {
        if (control1 != QSizePolicy::PushButton || control2 != QSizePolicy::PushButton)
            return 999;
        return orientation == Qt::Horizontal ? m_betweenButtons.x() : m_betweenButtons.y();
    }

private:
    const QPoint m_metrics;
    const QPoint m_betweenButtons;
};

const QPoint nothing(-1, -1);

/// A widget with a style of its own and two columns of blocks.
template <typename LayoutClass>
class Tiles : public QWidget
{
public:
    template <typename... Arguments>
    explicit Tiles(SpacingStyle &style, Arguments... arguments)
        : layout(this, QMargins(), arguments...)
    {
        setStyle(&style);
        for (int i = 0; i < 4; ++i)
            layout.addWidget(new Block(QSize(10, 10)));
    }

    QString placed()
    {
        layout.setGeometry(QRect(0, 0, 45, 100));
        return Blocks::text(layout);
    }

    Blocks::Opened<LayoutClass> layout;
};

} // namespace

/// The spacing between items.
class tst_FlowLayoutSpacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesItsOwnValues();
    void hasNoneWithoutAParent();
    void takesThatOfALayoutAroundIt();
    void takesThatOfAWidgetsStyle();
    void asksTheStyleWithTheWidget();
    void fallsBackToTheStyleOfEachItem();
    void fallsBackInALayoutThatHasNoSpacing();
    void mixesItsOwnValueWithThatOfAStyle();
    void spacesWhatHasNoWidgetAsTheApplicationDoes();
    void spacesByMinusOneWhereNoStyleSays();
    void spacesEachLayoutAlike();
};

void tst_FlowLayoutSpacing::takesItsOwnValues()
{
    const PlainFlow layout(QMargins(), 0, 7);
    QCOMPARE(layout.horizontalSpacing(), 0);
    QCOMPARE(layout.verticalSpacing(), 7);
}

void tst_FlowLayoutSpacing::hasNoneWithoutAParent()
{
    const PlainFlow layout(QMargins(), -1, -5);
    QCOMPARE(layout.horizontalSpacing(), -1);
    QCOMPARE(layout.verticalSpacing(), -1);
}

void tst_FlowLayoutSpacing::takesThatOfALayoutAroundIt()
{
    QGridLayout grid;
    auto *layout = new PlainFlow(QMargins(), -1, -1);
    grid.addLayout(layout, 0, 0);
    grid.setSpacing(13);
    QCOMPARE(layout->horizontalSpacing(), 13);
    QCOMPARE(layout->verticalSpacing(), 13);
    // A grid with two different spacings has no single one.
    grid.setVerticalSpacing(4);
    QCOMPARE(layout->horizontalSpacing(), -1);
    QCOMPARE(layout->verticalSpacing(), -1);
}

void tst_FlowLayoutSpacing::takesThatOfAWidgetsStyle()
{
    SpacingStyle style(QPoint(11, 3), QPoint(99, 99));
    QWidget window;
    window.setStyle(&style);
    const PlainFlow layout(&window, QMargins(), -1, -1);
    QCOMPARE(layout.horizontalSpacing(), 11);
    QCOMPARE(layout.verticalSpacing(), 3);
}

void tst_FlowLayoutSpacing::asksTheStyleWithTheWidget()
{
    class PickyStyle : public QProxyStyle
    {
    public:
        int pixelMetric(PixelMetric metric, const QStyleOption *option,
                        const QWidget *widget) const override
        {
            return option || !widget ? 99 : int(metric);
        }
    };
    PickyStyle style;
    QWidget window;
    window.setStyle(&style);
    const PlainFlow layout(&window, QMargins(), -1, -1);
    QCOMPARE(layout.smartSpacing(QStyle::PM_LayoutHorizontalSpacing),
             int(QStyle::PM_LayoutHorizontalSpacing));
    QCOMPARE(layout.verticalSpacing(), int(QStyle::PM_LayoutVerticalSpacing));
}

void tst_FlowLayoutSpacing::fallsBackToTheStyleOfEachItem()
{
    SpacingStyle style(nothing, QPoint(5, 2));
    SpacingStyle other(nothing, QPoint(8, 4));
    Tiles<AutoGridLayout> tiles(style, -1, -1);
    for (int i = 0; i < 4; ++i)
        tiles.layout.widgetAt(i)->setStyle(i % 2 == 0 ? &style : &other);
    QCOMPARE(tiles.placed(), QStringLiteral("0,0 10x10 | 15,0 10x10 | 33,0 10x10 | 0,14 10x10"));
}

void tst_FlowLayoutSpacing::fallsBackInALayoutThatHasNoSpacing()
{
    SpacingStyle style(QPoint(99, 99), QPoint(5, 2));
    QWidget window;
    auto *grid = new QGridLayout(&window);
    grid->setHorizontalSpacing(13);
    grid->setVerticalSpacing(4);
    auto *layout = new AutoGridLayout(QMargins(), -1, -1);
    grid->addLayout(layout, 0, 0);
    for (int i = 0; i < 3; ++i) {
        auto *block = new Block(QSize(10, 10));
        block->setStyle(&style);
        layout->addWidget(block);
    }
    QCOMPARE(layout->horizontalSpacing(), -1);
    layout->setGeometry(QRect(0, 0, 30, 100));
    QCOMPARE(Blocks::text(*layout), QStringLiteral("0,0 10x10 | 15,0 10x10 | 0,12 10x10"));
}

void tst_FlowLayoutSpacing::mixesItsOwnValueWithThatOfAStyle()
{
    SpacingStyle style(nothing, QPoint(5, 2));
    Tiles<AutoGridLayout> tiles(style, 20, -1);
    for (int i = 0; i < 4; ++i)
        tiles.layout.widgetAt(i)->setStyle(&style);
    QCOMPARE(tiles.placed(), QStringLiteral("0,0 10x10 | 30,0 10x10 | 0,12 10x10 | 30,12 10x10"));
}

void tst_FlowLayoutSpacing::spacesWhatHasNoWidgetAsTheApplicationDoes()
{
    const int expected = QApplication::style()->layoutSpacing(QSizePolicy::PushButton,
                                                              QSizePolicy::PushButton,
                                                              Qt::Horizontal);
    Blocks::Opened<AutoGridLayout> layout(QMargins(), -1, -1);
    Blocks::fill(layout, { { 10, 10 }, { 10, 10 } });
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(layout.itemAt(1)->geometry().x(), 10 + expected);
}

void tst_FlowLayoutSpacing::spacesByMinusOneWhereNoStyleSays()
{
    SpacingStyle style(nothing, nothing);
    Tiles<AutoGridLayout> tiles(style, -1, -1);
    for (int i = 0; i < 4; ++i)
        tiles.layout.widgetAt(i)->setStyle(&style);
    QCOMPARE(tiles.placed(), QStringLiteral("0,0 10x10 | 9,0 10x10 | 18,0 10x10 | 27,0 10x10"));
}

void tst_FlowLayoutSpacing::spacesEachLayoutAlike()
{
    SpacingStyle style(QPoint(6, 1), QPoint(99, 99));
    Tiles<AutoGridLayout> grid(style, -1, -1);
    Tiles<SmartLayout> smart(style, -1, -1, Qt::AlignLeft, -1, false);
    const QString expected = QStringLiteral("0,0 10x10 | 16,0 10x10 | 32,0 10x10 | 0,11 10x10");
    QCOMPARE(grid.placed(), expected);
    QCOMPARE(smart.placed(), expected);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_FlowLayoutSpacing)
#include "tst_flowlayout_spacing.moc"
