// SPDX-License-Identifier: Apache-2.0
#include "LoadedList.h"
#include "support/TestApplication.h"

#include <QStyledItemDelegate>

namespace {

/// Counts the rows that are laid out: Qt asks for the size of each.
class CountingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        ++sizes;
        return QStyledItemDelegate::sizeHint(option, index);
    }

    mutable int sizes = 0;
};

/// A widget that does something when it is shown or resized.
class ActingLabel : public QLabel
{
public:
    ActingLabel(QEvent::Type type, std::function<void()> act) : m_type(type), m_act(std::move(act))
    {
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == m_type)
            m_act();
        return QLabel::event(event);
    }

private:
    const QEvent::Type m_type;
    const std::function<void()> m_act;
};

using Ask = void (*)(LoadedList &list, QListWidgetItem *item);

/// Asks for a layout while a row widget is made.
struct Request
{
    const char *name;
    Ask makeWidget;
    int topOfRow4; ///< After the layout.
};

void makeLabel(LoadedList &list, QListWidgetItem *item) { list.setItemWidget(item, new QLabel); }

void makeActing(LoadedList &list, QListWidgetItem *item, QEvent::Type type)
{
    list.setItemWidget(item, new ActingLabel(type, [item] { item->setSizeHint(QSize(10, 30)); }));
}

const Request requests[] = {
    { "none", &makeLabel, 80 },
    { "the row's size before",
      [](LoadedList &list, QListWidgetItem *item) {
          item->setSizeHint(QSize(10, 30));
          makeLabel(list, item);
      },
      90 },
    { "the row's size after",
      [](LoadedList &list, QListWidgetItem *item) {
          makeLabel(list, item);
          item->setSizeHint(QSize(10, 30));
      },
      90 },
    { "the row's size when the widget is shown",
      [](LoadedList &list, QListWidgetItem *item) { makeActing(list, item, QEvent::Show); }, 90 },
    { "the row's size when the widget is resized",
      [](LoadedList &list, QListWidgetItem *item) { makeActing(list, item, QEvent::Resize); }, 90 },
    { "another row hidden before",
      [](LoadedList &list, QListWidgetItem *item) {
          list.item(2)->setHidden(true);
          makeLabel(list, item);
      },
      60 },
    { "another row hidden after",
      [](LoadedList &list, QListWidgetItem *item) {
          makeLabel(list, item);
          list.item(2)->setHidden(true);
      },
      60 },
    { "space between rows before",
      [](LoadedList &list, QListWidgetItem *item) {
          list.setSpacing(1);
          makeLabel(list, item);
      },
      89 },
    { "space between rows after",
      [](LoadedList &list, QListWidgetItem *item) {
          makeLabel(list, item);
          list.setSpacing(1);
      },
      89 },
    { "the row itself hidden before",
      [](LoadedList &list, QListWidgetItem *item) {
          item->setHidden(true);
          makeLabel(list, item);
      },
      60 },
    { "Qt's own function",
      [](LoadedList &list, QListWidgetItem *item) {
          list.QListWidget::setItemWidget(item, new QLabel);
      },
      80 },
    { "Qt's own function and another row hidden after",
      [](LoadedList &list, QListWidgetItem *item) {
          list.QListWidget::setItemWidget(item, new QLabel);
          list.item(2)->setHidden(true);
      },
      60 },
};

/// Shows lists of the same rows as a user sees them, with the same widgets.
template <typename List>
QImage pictureOf(List &list, const std::function<void(List &)> &prepare)
{
    list.setAttribute(Qt::WA_DontShowOnScreen);
    list.setObjectName(QStringLiteral("list"));
    for (int row = 0; row < 10; ++row)
        list.insertItem(row, LoadedList::makeItem(QString::number(row), 15 + 3 * row));
    list.resize(200, 200);
    list.show();
    prepare(list);
    for (int row = 0; row < 10; row += 2) {
        auto *label = new QLabel(QString::number(row));
        label->setStyleSheet(QStringLiteral("background: red"));
        list.setItemWidget(list.item(row), label);
    }
    return list.grab().toImage();
}

} // namespace

Q_DECLARE_METATYPE(const Request *)
Q_DECLARE_METATYPE(std::function<void(QListWidget &)>)

/// How a list gets by without Qt's layout of all rows, and looks the same.
class tst_OxaListWidgetLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laysOutNoRowsToScroll();
    void laysOutNoRowsWhileRowsAreInserted();
    void laysOutOnceForManyStyles();
    void obeysOtherRequests_data();
    void obeysOtherRequests();
    void looksLikeAQListWidget_data();
    void looksLikeAQListWidget();
    void loadsWhenAllBatchesAreLaidOut();
    void replacesAWidget();
    void takesNoWidgetForNoRow();
};

void tst_OxaListWidgetLayout::laysOutNoRowsToScroll()
{
    LoadedList list(10000);
    CountingDelegate delegate;
    list.setItemDelegate(&delegate);
    list.show();
    QVERIFY(delegate.sizes > 10000);
    QCoreApplication::processEvents();
    delegate.sizes = 0;
    for (int page = 1; page <= 100; ++page) {
        list.scrollToValue(page * 100);
        list.grab();
        QCoreApplication::processEvents();
    }
    QCOMPARE(list.rowsWithWidgets(), QStringLiteral("500 501 502 503 504"));
    QVERIFY2(delegate.sizes < 100 * 100, qPrintable(QString::number(delegate.sizes)));
}

void tst_OxaListWidgetLayout::laysOutNoRowsWhileRowsAreInserted()
{
    LoadedList list(1000);
    CountingDelegate delegate;
    list.setItemDelegate(&delegate);
    list.show();
    delegate.sizes = 0;
    list.fill(1000);
    QVERIFY2(delegate.sizes < 3 * 2000, qPrintable(QString::number(delegate.sizes)));
    QCOMPARE(list.verticalScrollBar()->maximum(), 2000 * 20 - 100);
}

void tst_OxaListWidgetLayout::laysOutOnceForManyStyles()
{
    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    auto *list = new LoadedList(1000);
    list->setParent(&window);
    CountingDelegate delegate;
    list->setItemDelegate(&delegate);
    window.show();
    QCoreApplication::processEvents();
    delegate.sizes = 0;
    for (const char *color : { "red", "green", "blue" }) {
        const QString sheet = QStringLiteral("* { color: %1 }").arg(QLatin1String(color));
        window.setStyleSheet(sheet);
        list->setStyleSheet(sheet);
    }
    QCOMPARE(delegate.sizes, 0);
    QCOMPARE(list->visualItemRect(list->item(4)).top(), 80);
    QVERIFY2(delegate.sizes < 2 * 1000, qPrintable(QString::number(delegate.sizes)));
    QCOMPARE(list->rowsWithWidgets(), QStringLiteral("0 1 2 3 4"));
}

void tst_OxaListWidgetLayout::obeysOtherRequests_data()
{
    QTest::addColumn<const Request *>("request");
    for (const Request &request : requests)
        QTest::newRow(request.name) << &request;
}

void tst_OxaListWidgetLayout::obeysOtherRequests()
{
    QFETCH(const Request *const, request);
    LoadedList list(20, false);
    list.show();
    QCOMPARE(list.visualItemRect(list.item(4)).top(), 80);
    request->makeWidget(list, list.item(1));
    QTRY_COMPARE(list.visualItemRect(list.item(4)).top(), request->topOfRow4);
    QCoreApplication::processEvents();
    const QWidget *widget = list.itemWidget(list.item(1));
    QCOMPARE(widget->isHidden(), list.item(1)->isHidden());
    if (!widget->isHidden())
        QCOMPARE(widget->geometry(), list.visualItemRect(list.item(1)));
}

void tst_OxaListWidgetLayout::looksLikeAQListWidget_data()
{
    QTest::addColumn<std::function<void(QListWidget &)>>("prepare");
    using Prepare = std::function<void(QListWidget &)>;
    QTest::newRow("as it is") << Prepare([](QListWidget &) {});
    QTest::newRow("with a sheet") << Prepare([](QListWidget &list) {
        list.setStyleSheet(QStringLiteral("QListWidget::item { padding: 4px; margin: 2px }"));
    });
    QTest::newRow("with space between rows")
            << Prepare([](QListWidget &list) { list.setSpacing(3); });
    QTest::newRow("with a hidden row")
            << Prepare([](QListWidget &list) { list.item(2)->setHidden(true); });
    QTest::newRow("with check boxes and icons") << Prepare([](QListWidget &list) {
        list.item(0)->setCheckState(Qt::Checked);
        list.item(2)->setIcon(list.style()->standardIcon(QStyle::SP_ArrowUp));
    });
    QTest::newRow("from right to left")
            << Prepare([](QListWidget &list) { list.setLayoutDirection(Qt::RightToLeft); });
    QTest::newRow("as icons") << Prepare(
            [](QListWidget &list) { list.setViewMode(QListView::IconMode); });
    QTest::newRow("scrolled") << Prepare([](QListWidget &list) { list.scrollToBottom(); });
}

void tst_OxaListWidgetLayout::looksLikeAQListWidget()
{
    QFETCH(const std::function<void(QListWidget &)>, prepare);
    OxaListWidget ours(nullptr, false);
    QListWidget peer;
    peer.setFont(ours.font());
    const QImage picture = pictureOf<OxaListWidget>(ours, prepare);
    QCOMPARE(picture, pictureOf<QListWidget>(peer, prepare));
    QVERIFY(picture.pixelColor(100, 100).isValid());
}

void tst_OxaListWidgetLayout::loadsWhenAllBatchesAreLaidOut()
{
    LoadedList list;
    list.setLayoutMode(QListView::Batched);
    list.setBatchSize(3);
    list.fill(1000);
    list.show();
    QTRY_COMPARE(list.verticalScrollBar()->maximum(), 1000 * 20 - 100);
    QCOMPARE(list.rowsWithWidgets(), QStringLiteral("0 1 2 3 4"));
    QCOMPARE(list.takeLog(), QStringLiteral("visible 0 1 2 3 4"));
}

void tst_OxaListWidgetLayout::replacesAWidget()
{
    LoadedList list(20);
    list.show();
    const QPointer<QWidget> first(list.itemWidget(list.item(1)));
    auto *second = new QLabel;
    list.setItemWidget(list.item(1), second);
    QCOMPARE(list.itemWidget(list.item(1)), second);
    QCOMPARE(second->geometry(), list.visualItemRect(list.item(1)));
    QTRY_VERIFY(!first);
    list.setItemWidget(list.item(1), nullptr);
    QVERIFY(!list.itemWidget(list.item(1)));
}

void tst_OxaListWidgetLayout::takesNoWidgetForNoRow()
{
    LoadedList list(2);
    QLabel label;
    list.setItemWidget(nullptr, &label);
    QVERIFY(!label.parent());
}

UIELEMENTS_TEST_MAIN(tst_OxaListWidgetLayout)
#include "tst_oxalistwidget_layout.moc"
