// SPDX-License-Identifier: Apache-2.0
#include "qml/EngineFixture.h"
#include "support/RealInput.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQmlTypes.h>
#include <UiElements/qml/PopupContext.h>
#include <UiElements/qml/PopupContextTimer.h>

#include <QElapsedTimer>
#include <QSignalSpy>

namespace {

const QString source = QStringLiteral("Popup.qml");

/// A window with two anchors that ask for the popup when the pointer enters them, as a client's.
class People : public QWidget
{
public:
    explicit People(PopupContext *context) : m_context(context)
    {
        setGeometry(200, 200, 400, 300);
        ada.setGeometry(50, 20, 60, 20);
        grace.setGeometry(250, 20, 60, 20);
        for (QWidget *const anchor : { &ada, &grace })
            anchor->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Enter) {
            auto *const anchor = static_cast<QWidget *>(watched);
            m_context->createQmlPopup(source, windowHandle(), OxaQmlBalloon::Top, {}, {});
            m_context->showQmlPopup(source, rectOf(*anchor), true, OxaQmlBalloon::Top,
                                    [this, anchor](OxaQmlController *) {
                                        log += anchor == &ada ? QStringLiteral("Ada")
                                                              : QStringLiteral("Grace");
                                    });
            record();
        }
        return false;
    }

    static QRectF rectOf(const QWidget &anchor)
    {
        return { anchor.mapToGlobal(QPoint()), QSizeF(anchor.size()) };
    }

    QWidget ada { this };
    QWidget grace { this };
    QStringList log; // What was shown, hidden and deleted.

private:
    /// Notes what becomes of a new popup.
    void record()
    {
        const OxaQuickView *const popup = m_context->findOxaQuickView(source.toStdString());
        if (popup == m_recorded)
            return;
        m_recorded = popup;
        connect(popup, &QWindow::visibleChanged, this, [this](bool isVisible) {
            log += isVisible ? QStringLiteral("shown") : QStringLiteral("hidden");
        });
        connect(popup, &OxaQuickView::aboutToClose, this,
                [this] { log += QStringLiteral("closing"); });
        connect(popup, &QObject::destroyed, this, [this] { log += QStringLiteral("gone"); });
    }

    PopupContext *const m_context;
    QPointer<const OxaQuickView> m_recorded;
};

/// A window of another application, which gets the keyboard.
class OtherApplication
{
    Q_DISABLE_COPY_MOVE(OtherApplication)

public:
    OtherApplication()
    {
        m_process.start(QStringLiteral("xmessage"),
                        { QStringLiteral("-geometry"), QStringLiteral("+900+700"),
                          QStringLiteral("other") });
    }
    ~OtherApplication()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

} // namespace

/// PopupContext with a real pointer and real time.
class tst_PopupContext_Hover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void opensAfterTheDelayAndClosesWhenThePointerLeaves();
    void opensOnlyWhereThePointerRests();
    void doesNotOpenWhereThePointerHasLeft();
    void staysWhileThePointerIsOverIt();
    void movesToAnotherAnchor();
    void closesAtEscape();
    void opensAgainWhileTheKeyIsStillDown();
    void opensNothingWhileAnotherApplicationIsActive();
    void closesLaterWhileAnotherApplicationIsActive();
    void staysWithoutPollingWhenTheViewChanges();
    void opensBesideAWindowUnderThePointer();

private:
    /// Moves the pointer to the middle of \a anchor.
    bool enter(const QWidget &anchor) const
    {
        return RealInput::moveTo(anchor, anchor.rect().center());
    }
    /// Moves the pointer out of the window.
    bool leave() const { return RealInput::moveTo(*m_people, QPoint(-100, -100)); }

    OxaPopupQuickView *popup() const
    {
        return static_cast<OxaPopupQuickView *>(
                m_context->findOxaQuickView(source.toStdString()).data());
    }
    QString log() const { return m_people->log.join(QLatin1Char(' ')); }

    std::unique_ptr<EngineFixture> m_engine;
    std::unique_ptr<PopupContext> m_context;
    std::unique_ptr<People> m_people;
};

void tst_PopupContext_Hover::initTestCase() { OxaQmlTypes::registerQmlTypes(); }

void tst_PopupContext_Hover::init()
{
    m_engine = std::make_unique<EngineFixture>();
    m_context = std::make_unique<PopupContext>();
    m_people = std::make_unique<People>(m_context.get());
    m_people->show();
    QVERIFY(QTest::qWaitForWindowActive(m_people.get()));
    QVERIFY(leave());
}

void tst_PopupContext_Hover::cleanup()
{
    delete popup();
    m_people.reset();
    m_context.reset();
    m_engine.reset();
}

void tst_PopupContext_Hover::opensAfterTheDelayAndClosesWhenThePointerLeaves()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup());
    QElapsedTimer time;
    time.start();
    QTRY_VERIFY(popup()->isVisible());
    QVERIFY(time.elapsed() > 300); // A part of the delay passed before.
    const QRectF anchor = People::rectOf(m_people->ada);
    QCOMPARE(popup()->position(), QPoint(int(anchor.center().x()) - 60, int(anchor.bottom())));
    QVERIFY(leave());
    time.restart();
    QTRY_COMPARE(log(), QStringLiteral("Ada shown closing hidden gone"));
    QVERIFY(time.elapsed() > 450);
    QVERIFY(!m_context->findDelayOpenTimer(source));
}

void tst_PopupContext_Hover::opensOnlyWhereThePointerRests()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup());
    QVERIFY(enter(m_people->grace));
    QTRY_COMPARE(log(), QStringLiteral("Grace shown"));
}

void tst_PopupContext_Hover::doesNotOpenWhereThePointerHasLeft()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup());
    QVERIFY(leave());
    QTRY_VERIFY(m_context->findDelayCloseTimer(source)->isActive());
    QTRY_VERIFY(!m_context->findDelayCloseTimer(source)->isActive());
    QVERIFY(!m_context->findDelayOpenTimer(source)->isActive());
    QCOMPARE(log(), QString());
    QVERIFY(enter(m_people->ada));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown"));
}

void tst_PopupContext_Hover::staysWhileThePointerIsOverIt()
{
    QVERIFY(enter(m_people->ada));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown"));
    const QPoint inPopup = popup()->geometry().center();
    QVERIFY(RealInput::moveTo(*m_people, m_people->mapFromGlobal(inPopup)));
    QSignalSpy polls(m_context->findDelayOpenTimer(source).data(), &QTimer::timeout);
    QTRY_COMPARE(polls.size(), 3);
    QVERIFY(!m_context->findDelayCloseTimer(source)->isActive());
    QCOMPARE(log(), QStringLiteral("Ada shown"));

    QVERIFY(leave());
    QTRY_VERIFY(m_context->findDelayCloseTimer(source)->isActive());
    QVERIFY(RealInput::moveTo(*m_people, m_people->mapFromGlobal(inPopup)));
    QTRY_VERIFY(!m_context->findDelayCloseTimer(source)->isActive());
    QCOMPARE(log(), QStringLiteral("Ada shown"));
    QVERIFY(leave());
    QTRY_COMPARE(log(), QStringLiteral("Ada shown closing hidden gone"));
}

void tst_PopupContext_Hover::movesToAnotherAnchor()
{
    QVERIFY(enter(m_people->ada));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown"));
    const QPointer<OxaPopupQuickView> first = popup();
    QVERIFY(enter(m_people->grace));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown hidden Grace shown"));
    QCOMPARE(popup(), first.data());
    QCOMPARE(popup()->activationRect(), People::rectOf(m_people->grace));
    QVERIFY(leave());
    QTRY_COMPARE(log(), QStringLiteral("Ada shown hidden Grace shown closing hidden gone"));
}

void tst_PopupContext_Hover::closesAtEscape()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup() && popup()->isActive());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown closing hidden gone"));
}

void tst_PopupContext_Hover::opensAgainWhileTheKeyIsStillDown()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup() && popup()->isActive());
    QVERIFY(RealInput::send({ QStringLiteral("keydown"), QStringLiteral("Escape") }));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown closing hidden gone"));
    const QPoint next = People::rectOf(m_people->grace).center().toPoint();
    QVERIFY(RealInput::send({ QStringLiteral("mousemove"), QString::number(next.x()),
                              QString::number(next.y()), QStringLiteral("keyup"),
                              QStringLiteral("Escape") }));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown closing hidden gone Grace shown"));
}

void tst_PopupContext_Hover::opensNothingWhileAnotherApplicationIsActive()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup() && popup()->isActive());
    {
        const OtherApplication other;
        QTRY_COMPARE(log(), QStringLiteral("Ada shown hidden closing gone"));
        QVERIFY(enter(m_people->grace));
        QTRY_VERIFY(popup());
        QSignalSpy closeTimes(m_context->findDelayCloseTimer(source).data(), &QTimer::timeout);
        QTRY_COMPARE(closeTimes.size(), 2);
        QCOMPARE(log(), QStringLiteral("Ada shown hidden closing gone"));
    }
    QTRY_COMPARE(log(), QStringLiteral("Ada shown hidden closing gone Grace shown"));
}

void tst_PopupContext_Hover::closesLaterWhileAnotherApplicationIsActive()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup() && popup()->isActive());
    popup()->setViewOptions({}); // It stays when it is inactive.
    const OtherApplication other;
    QTRY_VERIFY(m_context->findDelayCloseTimer(source)->isActive());
    QSignalSpy closeTimes(m_context->findDelayCloseTimer(source).data(), &QTimer::timeout);
    QTRY_COMPARE(closeTimes.size(), 2); // The pointer is still there.
    QCOMPARE(log(), QStringLiteral("Ada shown"));
    QVERIFY(leave());
    QTRY_COMPARE(log(), QStringLiteral("Ada shown closing hidden gone"));
}

void tst_PopupContext_Hover::staysWithoutPollingWhenTheViewChanges()
{
    QVERIFY(enter(m_people->ada));
    QTRY_COMPARE(log(), QStringLiteral("Ada shown"));
    m_context->requestingViewChanged();
    QVERIFY(leave());
    const QSignalSpy polls(m_context->findDelayOpenTimer(source).data(), &QTimer::timeout);
    QTest::qWait(3 * PopupContext::DELAY_POPUP_DURATION); // Nothing happens in this time.
    QCOMPARE(polls.size(), 0);
    QCOMPARE(log(), QStringLiteral("Ada shown"));
}

void tst_PopupContext_Hover::opensBesideAWindowUnderThePointer()
{
    QVERIFY(enter(m_people->ada));
    QTRY_VERIFY(popup());
    QVERIFY(RealInput::moveTo(*m_people, QPoint(20, 250)));
    m_context->showQmlPopup(source, m_people.get(), true, OxaQmlBalloon::Left, {});
    QTRY_COMPARE(log(), QStringLiteral("shown"));
    QCOMPARE(popup()->position(),
             QPoint(m_people->geometry().right() + 1,
                    QRectF(m_people->geometry()).center().toPoint().y() - 40));
    QVERIFY(leave());
    QTRY_COMPARE(log(), QStringLiteral("shown closing hidden gone"));
}

UIELEMENTS_TEST_MAIN(tst_PopupContext_Hover)
#include "tst_popupcontext_hover.moc"
