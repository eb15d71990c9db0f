// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QTest>

#include <pages/popups/DragSource.h>
#include <pages/popups/PopupsPage.h>
#include <shell/GalleryWindow.h>

/// The page of popups, in the gallery's window on a real desktop.
class tst_PopupsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void showsAndHidesThePopupByAClick();
    void movesThePopupWithItsSource();
    void keepsTheSourceInItsArea();
    void changesAVisiblePopup();
    void hidesThePopupWithThePage();
    void showsThePopupInPictures();

private:
    PopupWidget *popup() const { return m_window->findChild<PopupWidget *>(); }
    QString value(const char *name) const
    {
        return Controls::called<OxaLabel>(*m_page, name)->text();
    }

    std::unique_ptr<GalleryWindow> m_window;
    PopupsPage *m_page = nullptr;
    DragSource *m_source = nullptr;
};

void tst_PopupsPage::init()
{
    m_window = std::make_unique<GalleryWindow>();
    m_window->setGeometry(10, 10, 1100, 900);
    m_window->show();
    m_window->showPage(QStringLiteral("popups"));
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_page = m_window->findChild<PopupsPage *>();
    m_source = m_page->findChild<DragSource *>();
    m_source->moveInside(QPoint(200, 40));
}

void tst_PopupsPage::showsAndHidesThePopupByAClick()
{
    QVERIFY(!popup());
    QCOMPARE(value("Popup"), QStringLiteral("Hidden"));
    QTest::mouseClick(m_source, Qt::LeftButton);
    QVERIFY(popup() && popup()->isVisible());
    QCOMPARE(value("Arrow in use"), QStringLiteral("Top"));
    QCOMPARE(value("Last signal"), QStringLiteral("widgetShown"));
    QVERIFY(value("Popup") != QLatin1String("Hidden"));
    QTest::mouseClick(m_source, Qt::LeftButton);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(value("Last signal"), QStringLiteral("widgetHidden"));
    QCOMPARE(value("Popup"), QStringLiteral("Hidden"));
}

void tst_PopupsPage::movesThePopupWithItsSource()
{
    QTest::mouseClick(m_source, Qt::LeftButton);
    const QRect before = popup()->getOriginRect();
    QTest::keyClick(m_source, Qt::Key_Right);
    QCOMPARE(popup()->getOriginRect(), before.translated(16, 0));
    QTest::mousePress(m_source, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QMouseEvent move(QEvent::MouseMove, QPointF(55, 25), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(m_source, &move);
    QTest::mouseRelease(m_source, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(popup()->getOriginRect(), before.translated(16 + 50, 20));
    QVERIFY(popup()->isVisible()); // A drag is no click.
}

void tst_PopupsPage::keepsTheSourceInItsArea()
{
    m_source->moveInside(QPoint(-500, -500));
    QCOMPARE(m_source->pos(), QPoint(0, 0));
    m_source->moveInside(QPoint(5000, 5000));
    QCOMPARE(m_source->geometry().bottomRight(), m_source->parentWidget()->rect().bottomRight());
}

void tst_PopupsPage::changesAVisiblePopup()
{
    QTest::mouseClick(m_source, Qt::LeftButton);
    auto *arrow = Controls::called<OxaComboBox>(*m_page, "Arrow");
    for (int side = 1; side < 6; ++side) {
        arrow->setCurrentIndex(side);
        QVERIFY(popup()->isVisible());
        QCOMPARE(value("Arrow in use"), arrow->currentText());
    }
    arrow->setCurrentIndex(0);
    const int height = popup()->height();
    Controls::choose(*m_page, "Header", "No");
    QVERIFY(popup()->height() < height);
}

void tst_PopupsPage::hidesThePopupWithThePage()
{
    QTest::mouseClick(m_source, Qt::LeftButton);
    m_window->showPage(QStringLiteral("labels"));
    QVERIFY(!popup()->isVisible());
}

void tst_PopupsPage::showsThePopupInPictures()
{
    m_page->showForPicture();
    QVERIFY(popup()->isVisible());
    QVERIFY(!popup()->isWindow());
    const QPoint source = m_source->mapTo(m_window.get(), m_source->rect().bottomLeft());
    QCOMPARE(popup()->y(), source.y());
}

GALLERY_TEST_MAIN(tst_PopupsPage)
#include "tst_popupspage.moc"
