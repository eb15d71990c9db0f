// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/GifFiles.h"
#include "support/Guards.h"
#include "support/RealInput.h"
#include "support/SignalLog.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/movies/OxaGifButton.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QMovie>
#include <QSignalSpy>

namespace {

/// A banner with two links above a button with an animated image.
class Window : public QWidget
{
public:
    Window()
        : banner(this),
          label(*banner.findChild<OxaLabel *>(QStringLiteral("alertLabel"))),
          button(this, QString(), QSize(40, 40), gif, QSize(40, 40))
    {
        resize(400, 200);
        button.setGeometry(50, 100, 80, 60);
        AlertBanner::AlertBannerInfo info;
        info.alertType = AlertBanner::AlertType::Warning;
        info.alertText = QStringLiteral("<a href='one'>wwwwwwww</a> or <a href='two'>two</a>");
        banner.setAlert(info);
        log.record(&banner, &AlertBanner::alertLinkActivated, QStringLiteral("link"));
        QObject::connect(&label, &QLabel::linkActivated, this,
                         [this](const QString &link) { log.note(link); });
    }

    /// Shows the window, with the pointer away from it. Returns whether that worked.
    bool showActive()
    {
        move(100, 100);
        show();
        activateWindow();
        return RealInput::parkPointer() && QTest::qWaitForWindowActive(this);
    }

    /// True while the button's image plays.
    bool isPlaying() const
    {
        const auto *movie = button.findChild<QMovie *>();
        return movie && movie->state() == QMovie::Running;
    }

    const SvgFiles folder;
    const QString gif = folder.write(QStringLiteral("a.gif"),
                                     GifFiles::bytes({ { Qt::red, Qt::blue },
                                                       QSize(16, 16),
                                                       20,
                                                       GifFiles::endless }));
    AlertBanner banner;
    OxaLabel &label;
    OxaGifButton button;
    SignalLog log;
};

} // namespace

/// AlertBanner and OxaGifButton with keys and a pointer that come from the X server.
class tst_NoticesInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void reachesEachLinkByTab();
    void activatesALinkByTheMouse();
    void playsUnderThePointer();
    void playsWithTheFocus();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_NoticesInteraction::initTestCase()
{
    OxaColorSetMap store;
    for (const char *name : { "alertBackground-warning", "alertText-warning",
                              "button-hyperlink-text", "oxa-footer-warning-icon" })
        store.emplace(name, OxaColorSet(QString::fromLatin1(name), Qt::black));
    m_stores = std::make_unique<StoreGuard>(store);
}

void tst_NoticesInteraction::reachesEachLinkByTab()
{
    Window window;
    QVERIFY(window.showActive());
    const QSignalSpy activated(&window.label, &QLabel::linkActivated);
    window.label.setFocus();
    const QString tab = QStringLiteral("Tab");
    const QString enter = QStringLiteral("Return");
    QVERIFY(RealInput::typeKeys({ tab, enter, tab, enter }));
    QTRY_COMPARE(activated.size(), 2);
    QCOMPARE(window.log.take(), QStringLiteral("link | one | link | two"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab"), enter }));
    QTRY_COMPARE(activated.size(), 3);
    QCOMPARE(window.log.take(), QStringLiteral("link | one"));
    QVERIFY(RealInput::typeKeys({ tab, tab }));
    QTRY_VERIFY(window.button.hasFocus());
}

void tst_NoticesInteraction::activatesALinkByTheMouse()
{
    Window window;
    QVERIFY(window.showActive());
    const QSignalSpy activated(&window.label, &QLabel::linkActivated);
    QVERIFY(RealInput::click(window.label, QPoint(20, window.label.height() / 2)));
    QTRY_COMPARE(activated.size(), 1);
    QCOMPARE(window.log.take(), QStringLiteral("link | one"));
}

void tst_NoticesInteraction::playsUnderThePointer()
{
    Window window;
    QVERIFY(window.showActive());
    QVERIFY(!window.isPlaying());
    QVERIFY(RealInput::moveTo(window.button, window.button.rect().center()));
    QTRY_VERIFY(window.isPlaying());
    QVERIFY(RealInput::moveTo(window, QPoint(300, 180)));
    QTRY_VERIFY(!window.isPlaying());
}

void tst_NoticesInteraction::playsWithTheFocus()
{
    Window window;
    QVERIFY(window.showActive());
    window.label.setFocus();
    const QString tab = QStringLiteral("Tab");
    QVERIFY(RealInput::typeKeys({ tab, tab, tab }));
    QTRY_VERIFY(window.isPlaying());
    QVERIFY(RealInput::typeKeys({ tab }));
    QTRY_VERIFY(!window.isPlaying());
}

UIELEMENTS_TEST_MAIN(tst_NoticesInteraction)
#include "tst_notices_interaction.moc"
