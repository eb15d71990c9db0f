// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "PopupRules.h"
#include "support/TestApplication.h"

#include <UiElements/svg/VisualUtils.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSeparator.h>

#include <QSignalSpy>
#include <QTimer>

using PopupParts::data;
using PopupParts::makeContent;
using PopupParts::SourceWindow;
using PopupRules::Side;

namespace {

const QRect nearMiddle(300, 300, 60, 20); // Of the screen, which is 1280 by 1024.
const QRect nearBottom(300, 990, 60, 20);

/// A popup with a content, beside a rectangle.
struct FilledPopup : PopupWidget
{
    QWidget *content = makeContent();

    explicit FilledPopup(const WidgetData &widgetData = PopupParts::data(),
                         QWidget *parent = nullptr)
        : PopupWidget(parent, widgetData)
    {
        registerWidget(content);
        content->show();
    }
};

QMargins bodyMargins(const PopupWidget &popup)
{
    return popup.getMainWidget()->layout()->contentsMargins();
}

int timersOf(const QObject &object) { return object.findChildren<QTimer *>().size(); }

} // namespace

Q_DECLARE_METATYPE(QMargins)

class tst_PopupWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void isAFramelessToolWindow();
    void takesTheThemeOfItsData();
    void isTransparentAroundItsBody();
    void paintsABackgroundAroundItsBodyIfAsked();
    void keepsRoomForArrowCornersAndShadow_data();
    void keepsRoomForArrowCornersAndShadow();
    void showsAHeader();
    void hasNoHeaderWithoutAText();
    void givesTheFocusToItsContent();
    void takesAContentOut();

    void isMadeForAButton();
    void isMadeAtThePointer();
    void isShownAtOnceForAButton();
    void isMadeWithoutASource();
    void releasesItsButton_data();
    void releasesItsButton();

    void showsItselfWithItsSignalsInOrder();
    void keepsItsSourceForARectangleThatIsNotValid();
    void showsItselfBesideAWidget();
    void staysWhereItIsWhenItIsShownAgain();
    void startsFromTheConfiguredSideAtEachShow();
    void isPaintedOncePerShow_data();
    void isPaintedOncePerShow();
    void laysItsContentOutAgain();
    void movesOnlyToAnotherSource();
    void takesItsDesiredSize_data();
    void takesItsDesiredSize();
    void changesTheWishedSide();
    void changesItsBodysSizePolicy();
    void fixesItsHeight();
    void followsAContentThatFixesTheBody();
    void liesInsideItsParentsWindow();
    void staysWithoutAWindowToLieIn();
    void keepsItsArrowsRoomInAnotherDirection();

    void hidesOnEscapeWithItsSignalsInOrder();
    void passesOtherKeysOn();
    void ignoresKeysOfOthers();
    void tellsOfThePointer();
    void hidesAfterItsTime();
    void hasNoTimerWithoutATime_data();
    void hasNoTimerWithoutATime();
    void hidesWhenItsSourceMoves();
    void staysWhenItsSourceMoves();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_PopupWidget::isAFramelessToolWindow()
{
    QWidget parent;
    const PopupWidget popup(&parent, data());
    QCOMPARE(popup.windowFlags(), Qt::Tool | Qt::FramelessWindowHint);
    QCOMPARE(popup.parentWidget(), &parent);
    QCOMPARE(popup.objectName(), QStringLiteral("PopupWidget"));
    QCOMPARE(popup.windowTitle(), QStringLiteral("PopupWidgetTitle"));
    QCOMPARE(popup.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(popup.getOriginRect(), QRect());
    QVERIFY(popup.isHidden());
    QVERIFY(qobject_cast<QHBoxLayout *>(popup.layout()));
    QCOMPARE(popup.layout()->spacing(), 0);
    QCOMPARE(popup.layout()->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(popup.layout()->itemAt(0)->widget(), popup.getMainWidget());
    const QWidget *body = popup.getMainWidget();
    QCOMPARE(body->objectName(), QStringLiteral("CentralWidget"));
    QCOMPARE(body->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(qobject_cast<QVBoxLayout *>(body->layout()));
    QCOMPARE(body->layout()->spacing(), 0);
}

void tst_PopupWidget::takesTheThemeOfItsData()
{
    m_stores.reset();
    const StoreGuard stores(PopupParts::store(), PopupParts::store());
    const PopupWidget dark(nullptr, WidgetData(OxaThemeUtils::AppThemeType::Dark));
    QCOMPARE(dark.property("themeType").toString(), QStringLiteral("dark"));
    const PopupWidget global(nullptr, data());
    QCOMPARE(global.property("themeType").toString(), QStringLiteral("global"));
}

void tst_PopupWidget::isTransparentAroundItsBody()
{
    const PopupWidget popup(nullptr, data());
    QVERIFY(popup.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(popup.getCSS(), QString());
}

void tst_PopupWidget::paintsABackgroundAroundItsBodyIfAsked()
{
    const PopupWidget popup(nullptr, data().shouldHaveTransparentBackground(false));
    QVERIFY(!popup.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(popup.getOxaCSS().backgroundColorSetName, QStringLiteral("background-primary"));
    QVERIFY(popup.testAttribute(Qt::WA_StyledBackground));
}

void tst_PopupWidget::keepsRoomForArrowCornersAndShadow_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("top") << int(Side::Top) << QMargins(1, 11, 1, 1);
    QTest::newRow("left") << int(Side::Left) << QMargins(11, 1, 1, 1);
    QTest::newRow("right") << int(Side::Right) << QMargins(1, 1, 11, 1);
    QTest::newRow("bottom") << int(Side::Bottom) << QMargins(1, 1, 1, 11);
    QTest::newRow("no arrow, above") << int(Side::NoArrowAbove) << QMargins(1, 1, 1, 1);
    QTest::newRow("no arrow, below") << int(Side::NoArrowBelow) << QMargins(1, 1, 1, 1);
}

void tst_PopupWidget::keepsRoomForArrowCornersAndShadow()
{
    QFETCH(const int, side);
    QFETCH(const QMargins, margins);
    const auto marginsOf = [side](int radius, bool isAdded) {
        const PopupWidget popup(nullptr,
                                data().arrowPostion(Side(side))
                                        .cornerRadius(radius)
                                        .addMariginForCentralWidget(isAdded));
        return bodyMargins(popup);
    };
    QCOMPARE(marginsOf(0, true), margins);
    QCOMPARE(marginsOf(8, true), margins + 5); // 5.68, truncated.
    QCOMPARE(marginsOf(12, true), margins + 8);
    QCOMPARE(marginsOf(12, false), margins);
}

void tst_PopupWidget::showsAHeader()
{
    FilledPopup popup(data().headerText(QStringLiteral("Title")));
    popup.showSmooth(nearMiddle);
    const QLayout *layout = popup.getMainWidget()->layout();
    const auto *label = qobject_cast<OxaLabel *>(layout->itemAt(0)->widget());
    QVERIFY(label && label->isVisible());
    QCOMPARE(label->text(), QStringLiteral("Title"));
    QCOMPARE(label->height(), 56);
    QCOMPARE(label->minimumHeight(), label->maximumHeight());
    QVERIFY(label->alignment() == Qt::AlignCenter);
    QCOMPARE(label->font().family(), QStringLiteral("Segoe UI"));
    QCOMPARE(label->font().pointSize(), 12);
    QCOMPARE(label->font().weight(), 63);
    QCOMPARE(label->getOxaCSS().textColorSetName, QStringLiteral("text-primary"));
    const auto *separator = qobject_cast<OxaSeparator *>(layout->itemAt(1)->widget());
    QVERIFY(separator && separator->isVisible());
    QCOMPARE(layout->itemAt(2)->widget(), popup.content);
    QCOMPARE(popup.content->y(), 11 + 56 + 1);
    // Known, and kept: the first item is the header.
    QVERIFY(popup.getRegisterWidget() == label);
}

void tst_PopupWidget::hasNoHeaderWithoutAText()
{
    const FilledPopup popup;
    QVERIFY(popup.findChildren<OxaLabel *>().isEmpty());
    QVERIFY(popup.findChildren<OxaSeparator *>().isEmpty());
    QCOMPARE(popup.getRegisterWidget(), popup.content);
}

void tst_PopupWidget::givesTheFocusToItsContent()
{
    PopupWidget popup(nullptr, data());
    QVERIFY(!popup.getRegisterWidget());
    QWidget *content = makeContent();
    popup.registerWidget(content);
    QCOMPARE(popup.focusProxy(), content);
    QCOMPARE(content->parentWidget(), popup.getMainWidget());
    QCOMPARE(popup.getRegisterWidget(), content);
    popup.showSmooth(nearMiddle);
    popup.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&popup));
    popup.setFocus();
    QVERIFY(content->hasFocus());
}

void tst_PopupWidget::takesAContentOut()
{
    FilledPopup popup;
    popup.removeWidget(popup.content);
    QVERIFY(!popup.getRegisterWidget());
    QCOMPARE(popup.content->parentWidget(), popup.getMainWidget());
    QVERIFY(!popup.content->isHidden());
}

void tst_PopupWidget::isMadeForAButton()
{
    SourceWindow window;
    QWidget *content = makeContent();
    const PopupWidget *popup = PopupWidget::create(&window.button, content, data());
    QCOMPARE(popup->parentWidget(), &window);
    QCOMPARE(content->parentWidget(), popup->getMainWidget());
    QCOMPARE(popup->getRegisterWidget(), content);
    QVERIFY(!content->isHidden());
    QVERIFY(popup->isHidden());
    QCOMPARE(popup->getOriginRect(), QRect());
    window.show();
    QVERIFY(popup->isHidden());
}

void tst_PopupWidget::isMadeAtThePointer()
{
    QWidget window;
    window.setGeometry(100, 100, 300, 200);
    QWidget parent(&window);
    parent.setGeometry(50, 50, 200, 100);
    const QRect rect(20, 10, 61, 31); // On the screen from 170, 160.
    QCursor::setPos(180, 170);
    const auto makeAt = [&parent, &rect](const QPoint &offset) {
        return PopupWidget::create(&parent, rect, offset, makeContent(), data());
    };
    QCOMPARE(makeAt(QPoint())->getOriginRect(), QRect(180, 170, 1, 1));
    QCOMPARE(makeAt(QPoint(3, -2))->getOriginRect(), QRect(183, 168, 1, 1));
    QCursor::setPos(10, 10);
    const PopupWidget *popup = makeAt(QPoint());
    QCOMPARE(popup->getOriginRect(), QRect(200, 175, 1, 1));
    QCOMPARE(popup->parentWidget(), &parent);
    QVERIFY(popup->getRegisterWidget());
    QVERIFY(popup->isHidden());
}

void tst_PopupWidget::isShownAtOnceForAButton()
{
    SourceWindow window;
    QVERIFY(window.activate());
    QWidget *content = makeContent();
    PopupWidget *popup = PopupWidget::createAndShow(&window.button, content,
                                                    data().activateOnShow(true));
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->getOriginRect(), QRect(320, 290, 60, 20));
    QVERIFY(QTest::qWaitForWindowActive(popup));
    QTRY_VERIFY(content->hasFocus());
}

void tst_PopupWidget::isMadeWithoutASource()
{
    const std::unique_ptr<PopupWidget> ofNoButton(
            PopupWidget::createAndShow(nullptr, makeContent(), data()));
    QVERIFY(ofNoButton->isVisible());
    QVERIFY(!ofNoButton->parentWidget());
    ofNoButton->hide();

    const std::unique_ptr<PopupWidget> empty(
            PopupWidget::create(nullptr, nearMiddle, QPoint(), nullptr, data()));
    QCOMPARE(empty->getOriginRect().size(), QSize(1, 1));
    QVERIFY(!empty->getRegisterWidget());
    empty->updateFixedHeight(50);
    empty->showSmooth(static_cast<const QWidget *>(nullptr));
    QVERIFY(empty->isVisible());
}

void tst_PopupWidget::releasesItsButton_data()
{
    QTest::addColumn<bool>("isFocused");
    QTest::newRow("with the focus") << true;
    QTest::newRow("without the focus") << false;
}

void tst_PopupWidget::releasesItsButton()
{
    QFETCH(const bool, isFocused);
    SourceWindow window;
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(window.activate());
    other.setFocus();
    window.button.setChecked(true);
    PopupWidget *popup = PopupWidget::create(&window.button, makeContent(),
                                             data().focusSourceOnClose(isFocused));
    popup->showSmooth(&window.button);
    QVERIFY(window.button.isChecked());
    popup->hide();
    QVERIFY(!window.button.isChecked());
    QTRY_COMPARE(window.button.hasFocus(), isFocused);
    QCOMPARE(other.hasFocus(), !isFocused);
}

void tst_PopupWidget::showsItselfWithItsSignalsInOrder()
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

void tst_PopupWidget::keepsItsSourceForARectangleThatIsNotValid()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    popup.hide();
    popup.showSmooth();
    QCOMPARE(popup.getOriginRect(), nearMiddle);
    popup.showSmooth(QRect(5, 5, 0, 10));
    QCOMPARE(popup.getOriginRect(), nearMiddle);
}

void tst_PopupWidget::showsItselfBesideAWidget()
{
    SourceWindow window;
    window.show();
    FilledPopup popup;
    popup.showSmooth(&window.button);
    QCOMPARE(popup.getOriginRect(),
             QRect(window.button.mapToGlobal(QPoint(0, 0)), window.button.size()));
    QCOMPARE(popup.y(), popup.getOriginRect().bottom());
}

void tst_PopupWidget::staysWhereItIsWhenItIsShownAgain()
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

void tst_PopupWidget::startsFromTheConfiguredSideAtEachShow()
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

void tst_PopupWidget::isPaintedOncePerShow_data()
{
    QTest::addColumn<QRect>("source");
    QTest::newRow("on the wished side") << nearMiddle;
    QTest::newRow("on the other side") << nearBottom;
}

void tst_PopupWidget::isPaintedOncePerShow()
{
    QFETCH(const QRect, source);
    struct Content : QWidget
    {
        QStringList paints;
        void paintEvent(QPaintEvent *) override { paints += QString::number(y()); }
    };
    for (const int round : { 1, 2 }) {
        PopupWidget popup(nullptr, data());
        auto *content = new Content;
        content->setFixedSize(100, 60);
        popup.registerWidget(content);
        const QString top = QString::number(source == nearBottom ? 1 : 11);
        for (int show = 0; show < round; ++show) {
            content->paints.clear();
            popup.showSmooth(source);
            QCOMPARE(content->paints, QStringList(top)); // At once, and where it stays.
            QVERIFY(QTest::qWaitForWindowExposed(&popup));
            for (int turn = 0; turn < 3; ++turn)
                QCoreApplication::processEvents();
            QCOMPARE(content->paints, QStringList(top));
            popup.hide();
        }
    }
}

void tst_PopupWidget::laysItsContentOutAgain()
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

void tst_PopupWidget::movesOnlyToAnotherSource()
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

void tst_PopupWidget::takesItsDesiredSize_data()
{
    QTest::addColumn<QSize>("desired");
    QTest::addColumn<QSize>("size");
    const QSize hint(100 + 2 + 8, 60 + 12 + 8);
    QTest::newRow("none") << QSize(0, 0) << hint;
    QTest::newRow("both") << QSize(300, 200) << QSize(300, 200);
    QTest::newRow("the width") << QSize(300, 0) << QSize(300, hint.height());
    QTest::newRow("the height") << QSize(-1, 200) << QSize(hint.width(), 200);
}

void tst_PopupWidget::takesItsDesiredSize()
{
    QFETCH(const QSize, desired);
    QFETCH(const QSize, size);
    FilledPopup popup;
    popup.setDesiredSize(desired);
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.geometry(), QRect(QPoint(329 - size.width() / 2, 319), size));
}

void tst_PopupWidget::changesTheWishedSide()
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

void tst_PopupWidget::changesItsBodysSizePolicy()
{
    FilledPopup popup;
    popup.setCentralWidgetSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    QCOMPARE(popup.getMainWidget()->sizePolicy(),
             QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    popup.setDesiredSize(QSize(300, 0));
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.getMainWidget()->width(), 292);
}

void tst_PopupWidget::fixesItsHeight()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    popup.updateFixedHeight(200);
    QCOMPARE(popup.content->height(), 200);
    QCOMPARE(popup.getMainWidget()->height(), 200);
    QCOMPARE(popup.geometry(), QRect(329 - 55, 319, 110, 220));
    // Of the content, as much as the margin above it is not seen.
    QCOMPARE(popup.content->visibleRegion().boundingRect().height(), 200 - 11);
}

void tst_PopupWidget::followsAContentThatFixesTheBody()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    QVERIFY(QTest::qWaitForWindowActive(&popup));
    popup.content->setFixedSize(160, 80);
    QCoreApplication::processEvents();
    QTRY_COMPARE(popup.x(), 329 - 55); // It stays: its layout does not fix the body's size.
    popup.getMainWidget()->layout()->setSizeConstraint(QLayout::SetFixedSize);
    popup.content->setFixedSize(200, 100);
    QTRY_COMPARE(popup.geometry(), QRect(329 - 105, 319, 210, 120));
    QCoreApplication::processEvents();
    int requests = 0;
    VisualUtils::EventFilter counter(&popup, { QEvent::LayoutRequest }, [&requests](QEvent *) {
        ++requests;
        return false;
    });
    for (int turn = 0; turn < 10; ++turn)
        QCoreApplication::processEvents();
    QCOMPARE(requests, 0); // It comes to rest.
}

void tst_PopupWidget::liesInsideItsParentsWindow()
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

void tst_PopupWidget::staysWithoutAWindowToLieIn()
{
    FilledPopup popup(data().fitInMainWindowGeometry(true).arrowPostion(Side::Left));
    popup.setGeometry(30, 40, 200, 150);
    popup.showSmooth(nearMiddle);
    QCOMPARE(popup.geometry(), QRect(30, 40, 200, 150));
    QCOMPARE(bodyMargins(popup), QMargins(11, 1, 1, 1));
    QVERIFY(popup.isVisible());
}

void tst_PopupWidget::keepsItsArrowsRoomInAnotherDirection()
{
    FilledPopup popup(data().arrowPostion(Side::Left));
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    QCOMPARE(bodyMargins(popup), QMargins(11, 1, 1, 1));
    const FilledPopup another(data().arrowPostion(Side::Left));
    QCOMPARE(bodyMargins(another), QMargins(11, 1, 1, 1));
}

void tst_PopupWidget::hidesOnEscapeWithItsSignalsInOrder()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    SignalLog log;
    PopupParts::record(log, &popup);
    connect(&popup, &PopupWidget::popupDismissed, &popup, [&] { QVERIFY(popup.isVisible()); });
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(QCoreApplication::sendEvent(&popup, &escape));
    QCOMPARE(log.take(), QStringLiteral("popupDismissed | widgetHidden"));
    QVERIFY(!popup.isVisible());
    popup.showSmooth();
    log.take();
    QTest::keyClick(popup.content, Qt::Key_Escape); // The content passes it on.
    QCOMPARE(log.take(), QStringLiteral("popupDismissed | widgetHidden"));
}

void tst_PopupWidget::passesOtherKeysOn()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    SignalLog log;
    PopupParts::record(log, &popup);
    QTest::keyClick(&popup, Qt::Key_Return);
    QTest::keyRelease(&popup, Qt::Key_Escape);
    QCOMPARE(log.take(), QString());
    QVERIFY(popup.isVisible());
}

void tst_PopupWidget::ignoresKeysOfOthers()
{
    FilledPopup popup;
    QWidget other;
    other.installEventFilter(&popup);
    popup.showSmooth(nearMiddle);
    QTest::keyClick(&other, Qt::Key_Escape);
    QVERIFY(popup.isVisible());
}

void tst_PopupWidget::tellsOfThePointer()
{
    FilledPopup popup;
    SignalLog log;
    PopupParts::record(log, &popup);
    const QPointF place;
    QEnterEvent enter(place, place, place);
    QCoreApplication::sendEvent(&popup, &enter);
    QCOMPARE(log.take(), QStringLiteral("widgetHoverEntered"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&popup, &leave);
    QCOMPARE(log.take(), QStringLiteral("widgetHoverLeaved"));
}

void tst_PopupWidget::hidesAfterItsTime()
{
    FilledPopup popup(data().dismissTimerTicks(20));
    QTimer *timer = popup.findChild<QTimer *>();
    QVERIFY(timer && timer->isSingleShot() && !timer->isActive());
    popup.showSmooth(nearMiddle);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 20);
    QTRY_VERIFY(!popup.isVisible());
    popup.showSmooth();
    QVERIFY(timer->isActive()); // Again.
    popup.hide();
    popup.show();
    QTRY_VERIFY(!timer->isActive());
}

void tst_PopupWidget::hasNoTimerWithoutATime_data()
{
    QTest::addColumn<int>("ticks");
    QTest::newRow("0") << 0;
    QTest::newRow("below 0") << -5;
}

void tst_PopupWidget::hasNoTimerWithoutATime()
{
    QFETCH(const int, ticks);
    FilledPopup popup(data().dismissTimerTicks(ticks));
    QCOMPARE(timersOf(popup), 0);
    popup.showSmooth(nearMiddle);
    QCOMPARE(timersOf(popup), 0);
}

void tst_PopupWidget::hidesWhenItsSourceMoves()
{
    SourceWindow window;
    window.show();
    FilledPopup popup(data().dismissPopupOnSourceMove(true), &window.button);
    popup.showSmooth(&window.button);
    window.button.move(5, 5); // Its window counts.
    QVERIFY(popup.isVisible());
    window.move(window.pos() + QPoint(10, 0));
    QTRY_VERIFY(!popup.isVisible());
}

void tst_PopupWidget::staysWhenItsSourceMoves()
{
    SourceWindow window;
    window.show();
    FilledPopup popup(data().autoDismiss(false), &window.button);
    // Nothing to watch.
    FilledPopup orphan(data().autoDismiss(false).dismissPopupOnSourceMove(true));
    popup.showSmooth(&window.button);
    orphan.showSmooth(&window.button);
    window.move(window.pos() + QPoint(10, 0));
    QCoreApplication::processEvents();
    QVERIFY(popup.isVisible());
    QVERIFY(orphan.isVisible());
}

UIELEMENTS_TEST_MAIN(tst_PopupWidget)
#include "tst_popupwidget.moc"
