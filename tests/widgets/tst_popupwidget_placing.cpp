// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "PopupRules.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

using PopupParts::bodyMargins;
using PopupParts::data;
using PopupParts::FilledPopup;
using PopupParts::nearBottom;
using PopupParts::nearMiddle;
using PopupParts::SourceWindow;
using PopupRules::Side;

/// Showing and placing popups.
class tst_PopupWidgetPlacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void showsItselfWithItsSignalsInOrder();
    void keepsItsSourceForARectangleThatIsNotValid();
    void showsItselfBesideAWidget();
    void staysWhereItIsWhenItIsShownAgain();
    void startsFromTheConfiguredSideAtEachShow();
    void isPaintedOncePerShow();
    void laysItsContentOutAgain();
    void movesOnlyToAnotherSource();
    void alignsItselfByTheMarginsOfItsLayout_data();
    void alignsItselfByTheMarginsOfItsLayout();
    void takesItsDesiredSize_data();
    void takesItsDesiredSize();
    void liesFarAwayForASourceFarAway();
    void changesTheWishedSide();
    void changesItsBodysSizePolicy();
    void fixesItsHeight();
    void followsAContentThatFixesTheBody();
    void liesInsideItsParentsWindow();
    void staysWithoutAWindowToLieIn();
    void keepsItsArrowsRoomInAnotherDirection();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_PopupWidgetPlacing::showsItselfWithItsSignalsInOrder()
{
    FilledPopup popup;
    SignalLog log;
    PopupParts::record(log, &popup);
    connect(&popup, &PopupWidget::widgetShown, &popup, [&] {
        log.note(QStringLiteral("at %1").arg(popup.y()));
        QVERIFY(popup.testAttribute(Qt::WA_Mapped));
    });
    popup.showSmooth(nearMiddle);
    QCOMPARE(log.take(), QStringLiteral("widgetShown | at 319"));
    popup.hide();
    QCOMPARE(log.take(), QStringLiteral("widgetHidden"));
}

void tst_PopupWidgetPlacing::keepsItsSourceForARectangleThatIsNotValid()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    popup.hide();
    popup.showSmooth();
    QCOMPARE(popup.getOriginRect(), nearMiddle);
    popup.showSmooth(QRect(5, 5, 0, 10));
    QCOMPARE(popup.getOriginRect(), nearMiddle);
}

void tst_PopupWidgetPlacing::showsItselfBesideAWidget()
{
    SourceWindow window;
    window.show();
    FilledPopup popup;
    popup.showSmooth(&window.button);
    QCOMPARE(popup.getOriginRect(),
             QRect(window.button.mapToGlobal(QPoint(0, 0)), window.button.size()));
    QCOMPARE(popup.y(), popup.getOriginRect().bottom());
}

void tst_PopupWidgetPlacing::staysWhereItIsWhenItIsShownAgain()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    const QRect before = popup.geometry();
    const QRect other = nearMiddle.translated(-100, 50);
    popup.showSmooth(other); // It is visible: only a show or a new size places it.
    QCOMPARE(popup.geometry(), before);
    QCOMPARE(popup.getOriginRect(), other);
    popup.resizeToContent();
    QCOMPARE(popup.geometry(), before.translated(-100, 50));
    popup.hide();
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.geometry(), before);
}

void tst_PopupWidgetPlacing::startsFromTheConfiguredSideAtEachShow()
{
    FilledPopup popup;
    popup.showSmooth(nearBottom);
    QCOMPARE(popup.geometry().bottom(), nearBottom.top() - 1);
    QCOMPARE(PopupRules::sideOf(popup, Side::NoArrowAbove), Side::Bottom);
    popup.hide();
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.y(), nearMiddle.bottom());
    QCOMPARE(PopupRules::sideOf(popup, Side::NoArrowAbove), Side::Top);
}

void tst_PopupWidgetPlacing::isPaintedOncePerShow()
{
    struct Content : QWidget
    {
        QStringList paints;
        void paintEvent(QPaintEvent *) override { paints += QString::number(y()); }
    };
    // What the window manager says of its last show must not hide it.
    PopupWidget popup(nullptr, data().autoDismiss(false));
    auto *content = new Content;
    content->setFixedSize(100, 60);
    popup.registerWidget(content);
    // Near the bottom it is above its source, with its arrow below the content.
    for (const QRect &source : { nearMiddle, nearBottom, nearBottom, nearMiddle }) {
        const QStringList once(source == nearBottom ? QStringLiteral("1") : QStringLiteral("11"));
        content->paints.clear();
        popup.showSmooth(source);
        QCOMPARE(content->paints, once); // At once, and where it stays.
        QVERIFY(QTest::qWaitForWindowExposed(&popup));
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
        QCOMPARE(content->paints, once);
        popup.hide();
        QVERIFY(Windows::waitForWindowManager());
    }
}

void tst_PopupWidgetPlacing::laysItsContentOutAgain()
{
    FilledPopup popup;
    auto *grid = new QGridLayout(popup.content);
    grid->setContentsMargins(0, 0, 0, 0);
    auto *row = new QHBoxLayout;
    grid->addLayout(row, 0, 0);
    auto *inner = new QWidget;
    row->addWidget(inner);
    row->addSpacerItem(new QSpacerItem(10, 10));
    popup.content->setMinimumSize(0, 0);
    popup.content->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    inner->setFixedSize(90, 50);
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.size(), QSize(100 + 2 + 8, 50 + 12 + 8));
    inner->setFixedSize(190, 80);
    popup.resizeToContent();
    QCOMPARE(popup.geometry(), QRect(329 - 105, 319, 200 + 2 + 8, 80 + 12 + 8));
    QCOMPARE(popup.content->size(), QSize(200, 80));
}

void tst_PopupWidgetPlacing::movesOnlyToAnotherSource()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    const QRect place = popup.geometry();
    popup.move(5, 5);
    popup.repositionWindow(nearMiddle, false);
    QCOMPARE(popup.pos(), QPoint(5, 5));
    popup.repositionWindow(nearMiddle, true);
    QCOMPARE(popup.geometry(), place);
    popup.repositionWindow(nearMiddle.translated(9, 7), false);
    QCOMPARE(popup.geometry(), place.translated(9, 7));
    QCOMPARE(popup.getOriginRect(), nearMiddle.translated(9, 7));
}

void tst_PopupWidgetPlacing::alignsItselfByTheMarginsOfItsLayout_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("left");
    QTest::newRow("left") << int(WidgetData::Alignment::Left) << 300 - 9;
    QTest::newRow("right") << int(WidgetData::Alignment::Right) << 359 - (100 + 2 + 15) + 6;
}

void tst_PopupWidgetPlacing::alignsItselfByTheMarginsOfItsLayout()
{
    QFETCH(const int, alignment);
    FilledPopup popup(data().alignment(WidgetData::Alignment(alignment)));
    popup.layout()->setContentsMargins(9, 4, 6, 4);
    popup.showSmooth(nearMiddle);
    QTEST(popup.x(), "left");
}

void tst_PopupWidgetPlacing::takesItsDesiredSize_data()
{
    QTest::addColumn<QSize>("desired");
    QTest::addColumn<QSize>("size");
    const QSize hint(100 + 2 + 8, 60 + 12 + 8);
    QTest::newRow("none") << QSize(0, 0) << hint;
    QTest::newRow("both") << QSize(300, 200) << QSize(300, 200);
    QTest::newRow("the width") << QSize(300, 0) << QSize(300, hint.height());
    QTest::newRow("the height") << QSize(-1, 200) << QSize(hint.width(), 200);
}

void tst_PopupWidgetPlacing::takesItsDesiredSize()
{
    QFETCH(const QSize, desired);
    QFETCH(const QSize, size);
    FilledPopup popup;
    popup.setDesiredSize(desired);
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.geometry(), QRect(QPoint(329 - size.width() / 2, 319), size));
}

void tst_PopupWidgetPlacing::liesFarAwayForASourceFarAway()
{
    for (const int far : { INT_MAX, INT_MIN }) {
        const QPoint corner(far, far);
        FilledPopup bySource;
        bySource.repositionWindow(QRect(corner, corner), true);
        QCOMPARE(bySource.x() > 0, far > 0);
        QCOMPARE(bySource.getOriginRect(), QRect(corner, corner));
        FilledPopup byOffset(data().offset(corner));
        byOffset.showSmooth(nearMiddle);
        QCOMPARE(byOffset.x() > 0, far > 0);
    }
}

void tst_PopupWidgetPlacing::changesTheWishedSide()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    const QRect before = popup.geometry();
    popup.setArrowPosition(Side::Left);
    QCOMPARE(popup.geometry(), before);
    QCOMPARE(bodyMargins(popup), QMargins(11, 1, 1, 1));
    popup.resizeToContent();
    QCOMPARE(popup.geometry(), QRect(359, 309 - 35, 100 + 12 + 8, 60 + 2 + 8));
}

void tst_PopupWidgetPlacing::changesItsBodysSizePolicy()
{
    FilledPopup popup;
    popup.setCentralWidgetSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    QCOMPARE(popup.getMainWidget()->sizePolicy(),
             QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    popup.setDesiredSize(QSize(300, 0));
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.getMainWidget()->width(), 292);
}

void tst_PopupWidgetPlacing::fixesItsHeight()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    popup.updateFixedHeight(200);
    QCOMPARE(popup.content->height(), 200);
    QCOMPARE(popup.getMainWidget()->height(), 200);
    QCOMPARE(popup.geometry(), QRect(329 - 55, 319, 110, 220));
    // Of the content, as much as the margin above it is not seen.
    QCOMPARE(popup.content->visibleRegion().boundingRect().height(), 200 - 11);

    FilledPopup endless;
    endless.updateFixedHeight(INT_MAX);
    QCOMPARE(endless.content->minimumHeight(), QWIDGETSIZE_MAX - 20);
}

void tst_PopupWidgetPlacing::followsAContentThatFixesTheBody()
{
    struct Popup : FilledPopup
    {
        int requests = 0;
        bool event(QEvent *event) override
        {
            requests += event->type() == QEvent::LayoutRequest;
            return FilledPopup::event(event);
        }
    };
    Popup popup;
    popup.showSmooth(nearMiddle);
    popup.content->setFixedSize(160, 80);
    QCoreApplication::processEvents();
    QCOMPARE(popup.x(), 329 - 55); // It stays: its layout does not fix the body's size.
    popup.getMainWidget()->layout()->setSizeConstraint(QLayout::SetFixedSize);
    popup.content->setFixedSize(200, 100);
    popup.requests = 0;
    QTRY_COMPARE(popup.geometry(), QRect(329 - 105, 319, 210, 120));
    QCoreApplication::processEvents();
    QVERIFY(popup.requests > 0); // They pass.
    popup.requests = 0;
    for (int turn = 0; turn < 10; ++turn)
        QCoreApplication::processEvents();
    QCOMPARE(popup.requests, 0); // It comes to rest.
}

void tst_PopupWidgetPlacing::liesInsideItsParentsWindow()
{
    SourceWindow window(QRect(100, 100, 300, 200));
    window.show();
    FilledPopup popup(data().fitInMainWindowGeometry(true), &window.button);
    popup.showSmooth(QRect(380, 150, 60, 20)); // Partly outside: shifted to the right edge.
    QCOMPARE(popup.geometry(), QRect(290, 169, 110, 80));
    popup.repositionWindow(QRect(150, 260, 60, 20), true);
    QCOMPARE(popup.geometry(), QRect(124, 180, 110, 80)); // Above.
    QCOMPARE(PopupRules::sideOf(popup, Side::NoArrowAbove), Side::Bottom);
}

void tst_PopupWidgetPlacing::staysWithoutAWindowToLieIn()
{
    FilledPopup popup(data().fitInMainWindowGeometry(true).arrowPostion(Side::Left));
    popup.setGeometry(30, 40, 200, 150);
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.geometry(), QRect(30, 40, 200, 150));
    QCOMPARE(bodyMargins(popup), QMargins(11, 1, 1, 1));
    QVERIFY(popup.isVisible());
}

void tst_PopupWidgetPlacing::keepsItsArrowsRoomInAnotherDirection()
{
    FilledPopup popup(data().arrowPostion(Side::Left));
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(bodyMargins(popup), QMargins(11, 1, 1, 1));
    const FilledPopup another(data().arrowPostion(Side::Left));
    QCOMPARE(bodyMargins(another), QMargins(11, 1, 1, 1));
}

UIELEMENTS_TEST_MAIN(tst_PopupWidgetPlacing)
#include "tst_popupwidget_placing.moc"
