// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"
#include "PeopleWindow.h"
#include "Tutorial.h"
#include "support/RealInput.h"
#include "support/TestMain.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QAccessible>
#include <QQuickItem>

namespace {

template <typename View>
View *findView(const char *name)
{
    for (QWindow *const window : QGuiApplication::topLevelWindows()) {
        if (window->objectName() == QLatin1String(name) && window->isVisible())
            return qobject_cast<View *>(window);
    }
    return nullptr;
}

/// Returns the text that \a view shows.
QString textIn(const QQuickView *view)
{
    const auto items = view->rootObject()->childItems();
    for (const QQuickItem *const item : items) {
        if (item->property("text").isValid())
            return item->property("text").toString();
    }
    return {};
}

/// Returns what a screen reader says of \a view.
QString toldOf(const QQuickView *view)
{
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(view->rootObject());
    return QLatin1String(qAccessibleRoleString(told->role())) + QLatin1Char(' ')
            + told->text(QAccessible::Name);
}

} // namespace

/// The example of docs/qml-views.md.
class tst_QmlViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void matchesThePageWordForWord();
    void opensACardUnderThePointer();
    void opensAPopupAtAButton();
    void renamesInADialog();
    void showsQmlInTheWindow();

private:
    template <typename Child>
    Child *find(const QString &text) const
    {
        for (Child *const child : m_window->findChildren<Child *>()) {
            if (child->text() == text)
                return child;
        }
        return nullptr;
    }

    std::unique_ptr<PeopleWindow> m_window;
};

void tst_QmlViews::init()
{
    m_window = std::make_unique<PeopleWindow>();
    m_window->move(300, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(RealInput::moveTo(*m_window, QPoint(-100, -100)));
}

void tst_QmlViews::cleanup()
{
    m_window.reset();
    for (QWindow *const window : QGuiApplication::topLevelWindows()) {
        if (qobject_cast<OxaQuickView *>(window))
            delete window;
    }
    delete static_cast<ClientApplication *>(qApp)->getQmlEngine();
}

void tst_QmlViews::matchesThePageWordForWord()
{
    const QByteArray example = Tutorial::filesOf(QStringLiteral(EXAMPLE));
    const QVector<QByteArray> blocks = Tutorial::quotedBlocks(QStringLiteral(TUTORIAL));
    QVERIFY(blocks.size() >= 10);
    for (const QByteArray &block : blocks)
        QVERIFY2(example.contains(block), block.constData());
}

void tst_QmlViews::opensACardUnderThePointer()
{
    const auto *const ada = find<QLabel>(QStringLiteral("Ada"));
    QVERIFY(RealInput::moveTo(*ada, ada->rect().center()));
    QTRY_VERIFY(findView<OxaPopupQuickView>("Card"));
    QCOMPARE(textIn(findView<OxaPopupQuickView>("Card")), QStringLiteral("Ada is here"));
    QCOMPARE(toldOf(findView<OxaPopupQuickView>("Card")), QStringLiteral("ToolTip Ada is here"));
    const auto *const grace = find<QLabel>(QStringLiteral("Grace"));
    QVERIFY(RealInput::moveTo(*grace, QPoint(2, 2)));
    QTRY_VERIFY(findView<OxaPopupQuickView>("Card")
                && textIn(findView<OxaPopupQuickView>("Card")) == QStringLiteral("Grace is here"));
    QVERIFY(RealInput::moveTo(*m_window, QPoint(-100, -100)));
    QTRY_VERIFY(!findView<OxaPopupQuickView>("Card"));
}

void tst_QmlViews::opensAPopupAtAButton()
{
    auto *const button = find<QPushButton>(QStringLiteral("Actions"));
    QVERIFY(RealInput::click(*button, button->rect().center()));
    QTRY_VERIFY(findView<OxaPopupQuickView>("Actions"));
    QCOMPARE(findView<OxaPopupQuickView>("Actions")->x(),
             button->mapToGlobal(QPoint(button->width(), 0)).x());
    QTRY_VERIFY(findView<OxaPopupQuickView>("Actions")->isActive());
    QCOMPARE(toldOf(findView<OxaPopupQuickView>("Actions")),
             QStringLiteral("Dialog Nothing to do"));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(!findView<OxaPopupQuickView>("Actions"));
}

void tst_QmlViews::renamesInADialog()
{
    auto *const button = find<QPushButton>(QStringLiteral("Rename Ada"));
    QVERIFY(RealInput::click(*button, button->rect().center()));
    QTRY_VERIFY(findView<OxaQuickView>("Rename") && findView<OxaQuickView>("Rename")->isActive());
    QVERIFY(RealInput::typeKeys(
            { QStringLiteral("End"), QStringLiteral("m"), QStringLiteral("Return") }));
    QTRY_VERIFY(find<QLabel>(QStringLiteral("Adam")));
    QTRY_VERIFY(!findView<OxaQuickView>("Rename"));
}

void tst_QmlViews::showsQmlInTheWindow()
{
    const auto *const widget = m_window->findChild<OxaQuickWidget *>();
    QVERIFY(widget);
    QCOMPARE(widget->status(), QQuickWidget::Ready);
    QVERIFY(widget->isVisible());
}

UIELEMENTS_TEST_MAIN_WITH(ClientApplication, tst_QmlViews)
#include "tst_qmlviews.moc"
