// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "PopupRules.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/svg/VisualUtils.h>
#include <UiElements/widgets/CentralWidget_p.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSeparator.h>

using PopupParts::bodyMargins;
using PopupParts::data;
using PopupParts::FilledPopup;
using PopupParts::makeContent;
using PopupParts::nearMiddle;
using PopupParts::SourceWindow;
using PopupRules::Side;

Q_DECLARE_METATYPE(QMargins)

/// What a popup is made of, and how it is made.
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
    void hidesItsHeaderForAnEmptyText();
    void givesTheFocusToItsContent();
    void takesAContentOut();
    void isMadeForAButton();
    void isMadeAtThePointer();
    void isMadeAtThePointerInItsParent_data();
    void isMadeAtThePointerInItsParent();
    void isShownAtOnceForAButton();
    void givesTheFocusAsTabDoes();
    void isMadeWithoutASource();
    void releasesItsButton_data();
    void releasesItsButton();

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

void tst_PopupWidget::hidesItsHeaderForAnEmptyText()
{
    const FilledPopup popup(data().headerText(QStringLiteral("Title")));
    auto *body = static_cast<CentralWidget *>(popup.getMainWidget());
    const auto *label = popup.findChild<OxaLabel *>();
    const auto *separator = popup.findChild<OxaSeparator *>();
    body->setHeaderText(QString());
    QVERIFY(label->isHidden() && separator->isHidden());
    QCOMPARE(label->text(), QStringLiteral("Title"));
    body->setHeaderText(QStringLiteral("Other"));
    QVERIFY(!label->isHidden() && !separator->isHidden());
    QCOMPARE(label->text(), QStringLiteral("Other"));
    QCOMPARE(popup.findChildren<OxaLabel *>().size(), 1);
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

void tst_PopupWidget::isMadeAtThePointerInItsParent_data()
{
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<QPoint>("origin");
    // As far as the pointer is concerned, a parent reaches from its second pixel to the one after
    // its last.
    QTest::newRow("first pixel") << QPoint(150, 150) << QPoint(250, 200);
    QTest::newRow("second pixel") << QPoint(151, 151) << QPoint(151, 151);
    QTest::newRow("after the last pixel") << QPoint(350, 250) << QPoint(350, 250);
    QTest::newRow("two after the last pixel") << QPoint(351, 251) << QPoint(250, 200);
}

void tst_PopupWidget::isMadeAtThePointerInItsParent()
{
    QFETCH(const QPoint, cursor);
    QWidget window;
    window.setGeometry(150, 150, 200, 100);
    QCursor::setPos(cursor);
    const QRect rect(-20, -20, 300, 300);
    const PopupWidget *popup = PopupWidget::create(&window, rect, QPoint(), makeContent(), data());
    QTEST(popup->getOriginRect().topLeft(), "origin");
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

void tst_PopupWidget::givesTheFocusAsTabDoes()
{
    SourceWindow window;
    QVERIFY(Windows::activate(window));
    QWidget *content = makeContent();
    content->setFocusPolicy(Qt::ClickFocus); // So that it is not focused with its window.
    QVector<Qt::FocusReason> reasons;
    const auto note = [&reasons](QEvent *event) {
        reasons += static_cast<QFocusEvent *>(event)->reason();
        return false;
    };
    const VisualUtils::EventFilter ofContent(content, { QEvent::FocusIn }, note);
    const VisualUtils::EventFilter ofButton(&window.button, { QEvent::FocusIn }, note);
    // Its window is active by then, as on a desktop that is quicker than this one.
    const VisualUtils::EventFilter activator(content, { QEvent::Paint }, [content](QEvent *) {
        QApplication::setActiveWindow(content->window());
        return false;
    });
    PopupWidget *popup = PopupWidget::createAndShow(&window.button, content,
                                                    data().autoDismiss(false));
    QCOMPARE(reasons, QVector<Qt::FocusReason>({ Qt::TabFocusReason }));
    QApplication::setActiveWindow(&window);
    window.setFocus();
    reasons.clear();
    popup->hide();
    QCOMPARE(reasons, QVector<Qt::FocusReason>({ Qt::TabFocusReason }));
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

UIELEMENTS_TEST_MAIN(tst_PopupWidget)
#include "tst_popupwidget.moc"
