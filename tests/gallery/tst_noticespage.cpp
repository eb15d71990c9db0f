// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaNotification.h>
#include <UiElements/widgets/OxaSlider.h>

#include <pages/notices/BannerCard.h>
#include <shell/Page.h>
#include <shell/PageRegistry.h>
#include <shell/TabOrder.h>
#include <specimens/EmissionLog.h>
#include <support/Guards.h>

namespace {

/// The page in a window that is shown and active.
struct NoticesWindow
{
    NoticesWindow()
    {
        window.resize(1000, 800);
        page->resize(window.size());
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("The window is not active.");
    }

    QString log(int index) const
    {
        return page->findChildren<EmissionLog *>().at(index)->toPlainText();
    }
    AlertBanner *banner() const { return card->findChild<AlertBanner *>(); }
    OxaLabel *label() const
    {
        return banner()->findChild<OxaLabel *>(QStringLiteral("alertLabel"));
    }
    bool showsIcon() const
    {
        return banner()->findChild<OxaSvgLabel *>(QStringLiteral("alertIcon"))->isVisible();
    }
    void choose(const char *name, const char *text) const { Controls::choose(*card, name, text); }
    OxaPushButton *button(const char *text) const { return Controls::withText(*page, text); }

    QWidget window;
    Page *page = findPageEntry(QStringLiteral("notices"))->make(&window);
    BannerCard *card = page->findChild<BannerCard *>();
};

} // namespace

/// The page Notices.
class tst_NoticesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsInTheBannerWhatIsChosen();
    void growsWithALongText();
    void takesANewBannerAfterAnIconWasHidden();
    void givesTheFocusOnWhenABannerIsClosed();
    void reachesANewBannerBeforeTheButtonThatClosesIt();
    void logsThatALinkWasFollowed();
    void putsTheTextBesideTheIcon_data();
    void putsTheTextBesideTheIcon();
    void setsTheTimesOfANotification();
    void hidesANotificationThatHasFaded();
    void deletesNotificationsThatHaveFaded();
};

void tst_NoticesPage::showsInTheBannerWhatIsChosen()
{
    const NoticesWindow shown;
    QCOMPARE(shown.banner()->getOxaCSS().textColorSetName, QStringLiteral("alertText-error"));
    shown.choose("alertType", "Warning");
    QCOMPARE(shown.banner()->getOxaCSS().textColorSetName, QStringLiteral("alertText-warning"));
    shown.choose("alertText", "Long");
    QVERIFY(shown.label()->text().contains(QLatin1String("stop the recording")));
    shown.choose("wordWrap", "No");
    QVERIFY(!shown.label()->wordWrap());
}

void tst_NoticesPage::growsWithALongText()
{
    const NoticesWindow shown;
    shown.page->resize(600, 800);
    const int before = shown.banner()->height();
    shown.choose("alertText", "Long");
    QTRY_VERIFY(shown.banner()->height() > before);
    const OxaLabel *label = shown.label();
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
}

void tst_NoticesPage::takesANewBannerAfterAnIconWasHidden()
{
    const NoticesWindow shown;
    QVERIFY(shown.showsIcon());
    shown.choose("showIcon", "No");
    shown.choose("showIcon", "Yes");
    QVERIFY(!shown.showsIcon());
    shown.button("New banner")->click();
    QTRY_VERIFY(shown.showsIcon());
    QCOMPARE(shown.card->findChildren<AlertBanner *>().size(), 1);
}

void tst_NoticesPage::givesTheFocusOnWhenABannerIsClosed()
{
    const NoticesWindow shown;
    shown.button("Close")->setFocus();
    shown.button("Close")->click();
    QVERIFY(!shown.banner());
    QVERIFY(!shown.button("Close")->isEnabled());
    QVERIFY(shown.button("New banner")->hasFocus());
    shown.choose("alertText", "Hebrew"); // Of a banner that is to come.
    shown.button("New banner")->click();
    QVERIFY(shown.label()->text().contains(QStringLiteral("אין חיבור")));
    QVERIFY(shown.button("Close")->isEnabled());
}

void tst_NoticesPage::reachesANewBannerBeforeTheButtonThatClosesIt()
{
    NoticesWindow shown;
    for (int i = 0; i < 2; ++i) {
        QTRY_VERIFY(shown.label()->isVisible());
        const std::vector<QWidget *> stops = TabOrder::of(&shown.window);
        const auto place = std::find(stops.begin(), stops.end(), shown.button("New banner"));
        QVERIFY(stops.end() - place > 2);
        QCOMPARE(place[1], shown.label());
        QCOMPARE(place[2], shown.button("Close"));
        shown.button("New banner")->click();
    }
}

void tst_NoticesPage::logsThatALinkWasFollowed()
{
    const NoticesWindow shown;
    Q_EMIT shown.label()->linkActivated(QStringLiteral("retry"));
    QCOMPARE(shown.log(0), QStringLiteral("alertLinkActivated()"));
    shown.button("New banner")->click();
    Q_EMIT shown.label()->linkActivated(QStringLiteral("retry"));
    QCOMPARE(shown.log(0), QStringLiteral("alertLinkActivated()\nalertLinkActivated()"));
}

void tst_NoticesPage::putsTheTextBesideTheIcon_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("from left to right") << Qt::LeftToRight << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("from right to left") << Qt::RightToLeft << Qt::Alignment(Qt::AlignRight);
}

void tst_NoticesPage::putsTheTextBesideTheIcon()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const Qt::Alignment, alignment);
    const NoticesWindow shown;
    const LayoutDirectionGuard guard(direction);
    for (const char *text : { "Short", "Arabic" }) {
        shown.choose("alertText", text);
        QCOMPARE(shown.label()->alignment() & Qt::AlignHorizontal_Mask,
                 alignment | Qt::AlignAbsolute);
    }
}

void tst_NoticesPage::setsTheTimesOfANotification()
{
    const NoticesWindow shown;
    const auto *notification = shown.page->findChild<OxaNotification *>();
    auto *timeout = Controls::called<OxaSlider>(*shown.page, "showTimeout");
    auto *duration = Controls::called<OxaSlider>(*shown.page, "fadeOutDuration");
    QCOMPARE(timeout->value(), notification->getShowTimeout());
    QCOMPARE(duration->value(), notification->getFadeOutDuration());
    timeout->setValue(300);
    duration->setValue(400);
    QCOMPARE(notification->getShowTimeout(), 300);
    QCOMPARE(notification->getFadeOutDuration(), 400);
}

void tst_NoticesPage::hidesANotificationThatHasFaded()
{
    const NoticesWindow shown;
    auto *notification = shown.page->findChild<OxaNotification *>();
    notification->setShowTimeout(1);
    notification->setFadeOutDuration(1);
    shown.button("Start")->click();
    QTRY_COMPARE(shown.log(1), QStringLiteral("fadeOutCompleted()"));
    QVERIFY(notification->isVisible());
    Controls::choose(*shown.page, "fadeOutCompleted()", "Hides");
    shown.button("Start")->click();
    QTRY_VERIFY(!notification->isVisible());
    shown.button("Show")->click();
    QVERIFY(notification->isVisible());
}

void tst_NoticesPage::deletesNotificationsThatHaveFaded()
{
    const NoticesWindow shown;
    const auto notifications = [&shown] { return shown.page->findChildren<OxaNotification *>(); };
    const int before = notifications().size();
    for (int i = 0; i < 3; ++i)
        shown.button("Notify")->click();
    QCOMPARE(notifications().size(), before + 3);
    const auto made = notifications().mid(before);
    for (OxaNotification *notification : made) {
        notification->setShowTimeout(1);
        notification->setFadeOutDuration(1);
        notification->start();
    }
    QTRY_COMPARE(notifications().size(), before);
    QCOMPARE(shown.log(2).count(QLatin1String("fadeOutCompleted()")), 3);
}

GALLERY_TEST_MAIN(tst_NoticesPage)
#include "tst_noticespage.moc"
