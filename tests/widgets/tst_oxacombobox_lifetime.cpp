// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/TestApplication.h"

#include <QListView>
#include <QPointer>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>

#include <memory>

using ComboBoxes::Action;
using ComboBoxes::OpenBox;
using ComboBoxes::press;
using ComboBoxes::pressSpace;

namespace {

/// Calls \a slot at the signal's emission number \a emission, counted from 1.
template <typename Signal>
void connectOnce(OpenBox &box, Signal signal, int emission, const std::function<void()> &slot)
{
    auto countdown = std::make_shared<int>(emission);
    QObject::connect(&box, signal, qApp, [countdown, slot] {
        if (--*countdown == 0)
            slot();
    });
}

} // namespace

using Connect = std::function<void(OpenBox &, const std::function<void()> &)>;
Q_DECLARE_METATYPE(Connect)

/// Combo boxes that die in slots, and that lose their list or model.
class tst_OxaComboBoxLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stores = std::make_unique<StoreGuard>(ComboBoxes::store(), ComboBoxes::store());
    }
    void cleanup() { m_stores.reset(); }

    void mayBeDeletedInASlot_data();
    void mayBeDeletedInASlot();
    void mayBeDeletedSoonAfterASlot_data();
    void mayBeDeletedSoonAfterASlot();

    void followsAnotherView_data();
    void followsAnotherView();
    void staysUsableWithoutItsModel();
    void isClearedWhileTheListShows();
    void isHiddenWhileTheListShows();
    void changesItsThemeWhileTheListShows();
    void losesItsListInASlot();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

namespace {

template <typename Signal>
Connect at(Signal signal, int emission = 1)
{
    return [signal, emission](OpenBox &box, const std::function<void()> &slot) {
        connectOnce(box, signal, emission, slot);
    };
}

void addRow(const char *name, const Connect &connect, const Action &trigger)
{
    QTest::newRow(name) << connect << trigger;
}

void addSetters()
{
    const QString path = QStringLiteral(":/Resources/arrow-up_8.svg");
    const Action setSize = [](OpenBox &box) { box.setSvgDropdownIconSize({ 3, 4 }); };
    addRow("file of the arrow", at(&OxaComboBox::svgDropdownIconChanged),
           [path](OpenBox &box) { box.setSvgDropdownIcon(path); });
    addRow("file of the other arrow", at(&OxaComboBox::svgDropdownIconExpandedChanged),
           [path](OpenBox &box) { box.setSvgDropDownIconExpanded(path); });
    addRow("space around the arrow", at(&OxaComboBox::svgDropdownIconPaddingChanged),
           [](OpenBox &box) { box.setSvgDropdownIconPaddingRight(3); });
    addRow("size of the arrow", at(&OxaComboBox::svgDropdownIconSizeChanged), setSize);
    addRow("style text", at(&OxaComboBox::cssChanged), setSize);
    addRow("style text, told again", at(&OxaComboBox::cssChanged, 2), setSize);
    addRow("style text of a configuration", at(&OxaComboBox::cssChanged),
           [](OpenBox &box) { box.updateStyle({}); });
    addRow("style text of an editable box", at(&OxaComboBox::cssChanged),
           [](OpenBox &box) { box.setEditable(true); });
    const Action setTheme = [](OpenBox &box) { box.setThemeType(QStringLiteral("global")); };
    for (int emission = 1; emission <= 3; ++emission)
        QTest::addRow("style text %d of a theme", emission)
                << at(&OxaComboBox::cssChanged, emission) << setTheme;
    addRow("theme", at(&OxaComboBox::themeTypeChanged), setTheme);
    addRow(
            "style text of a new name",
            [](OpenBox &box, const std::function<void()> &slot) {
                box.setItemViewBorderRadius(0);
                connectOnce(box, &OxaComboBox::cssChanged, 1, slot);
            },
            [](OpenBox &box) { box.setObjectName(QStringLiteral("new")); });
    addRow(
            "name of the list",
            [](OpenBox &box, const std::function<void()> &slot) {
                QObject::connect(box.view(), &QObject::objectNameChanged, qApp, slot);
            },
            setSize);
}

void addInput()
{
    const auto activated = QOverload<int>::of(&QComboBox::activated);
    addRow("press", at(&OxaComboBox::contentAreaClicked), press);
    addRow("press without a popup", at(&OxaComboBox::contentAreaClicked), [](OpenBox &box) {
        box.setShowPopupEnabled(false);
        press(box);
    });
    addRow("key without a popup", at(&OxaComboBox::contentAreaClicked), [](OpenBox &box) {
        box.setShowPopupEnabled(false);
        pressSpace(box);
    });
    const Action choose = [](OpenBox &box) {
        box.highLightedIndex(2);
        pressSpace(box);
    };
    addRow("row that Space activates", at(activated), choose);
    const Action chooseInTheList = [choose](OpenBox &box) {
        box.show();
        box.showPopup();
        choose(box);
    };
    addRow("row that Space activates in the list", at(activated), chooseInTheList);
}

} // namespace

void tst_OxaComboBoxLifetime::mayBeDeletedInASlot_data()
{
    QTest::addColumn<Connect>("connectSlot");
    QTest::addColumn<Action>("trigger");
    addSetters();
    addInput();
}

void tst_OxaComboBoxLifetime::mayBeDeletedInASlot()
{
    QFETCH(const Connect, connectSlot);
    QFETCH(const Action, trigger);
    auto *box = new OpenBox;
    const QPointer<OpenBox> watch(box);
    box->setComboBoxAnimationEnabled(false);
    connectSlot(*box, [box] { delete box; });
    trigger(*box);
    QVERIFY(!watch);
}

/// In these slots Qt goes on with the box or its list, so that deleteLater() is needed.
void tst_OxaComboBoxLifetime::mayBeDeletedSoonAfterASlot_data()
{
    QTest::addColumn<Connect>("connectSlot");
    QTest::addColumn<Action>("trigger");
    const Action open = [](OpenBox &box) {
        box.show();
        box.showPopup();
    };
    addRow("style text of a box that is shown", at(&OxaComboBox::cssChanged),
           [](OpenBox &box) { box.show(); });
    addRow("style text of a list that is shown", at(&OxaComboBox::cssChanged, 3), open);
    addRow("style text of a list that Space hides", at(&OxaComboBox::cssChanged, 7),
           [open](OpenBox &box) {
               open(box);
               pressSpace(box);
           });
    addRow("row that Space makes current", at(QOverload<int>::of(&QComboBox::currentIndexChanged)),
           [](OpenBox &box) {
               box.highLightedIndex(2);
               pressSpace(box);
           });
    addRow("highlighted row", at(QOverload<int>::of(&QComboBox::highlighted)),
           [open](OpenBox &box) {
               open(box);
               QTest::keyClick(box.view(), Qt::Key_Down);
           });
}

void tst_OxaComboBoxLifetime::mayBeDeletedSoonAfterASlot()
{
    QFETCH(const Connect, connectSlot);
    QFETCH(const Action, trigger);
    auto *box = new OpenBox;
    const QPointer<OpenBox> watch(box);
    box->setComboBoxAnimationEnabled(false);
    connectSlot(*box, [box] { box->deleteLater(); });
    trigger(*box);
    QTRY_VERIFY(!watch);
}

void tst_OxaComboBoxLifetime::followsAnotherView_data()
{
    QTest::addColumn<Action>("change");
    QTest::newRow("own view deleted") << Action([](OpenBox &box) {
        delete box.view(); // Qt makes another one, but gives it no model.
        box.setView(new QListView);
    });
    QTest::newRow("list") << Action([](OpenBox &box) { box.setView(new QListView); });
    QTest::newRow("table") << Action([](OpenBox &box) { box.setView(new QTableView); });
    QTest::newRow("twice") << Action([](OpenBox &box) {
        box.setView(new QListView);
        box.setView(new QListView);
    });
    QTest::newRow("while the list shows") << Action([](OpenBox &box) {
        box.show();
        box.showPopup();
        box.setView(new QListView);
        QCoreApplication::processEvents(); // The list's layout shows the view later.
        box.hidePopup();
    });
}

void tst_OxaComboBoxLifetime::followsAnotherView()
{
    QFETCH(const Action, change);
    OpenBox box;
    box.setComboBoxAnimationEnabled(false);
    change(box);
    box.show();
    box.showPopup();
    QVERIFY(box.view()->isVisible());
    QCOMPARE(box.view()->styleSheet(), ComboBoxes::sheetOf({}));
    QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Space);
    QCOMPARE(box.currentIndex(), 1);
    QVERIFY(!box.view()->isVisible());
}

void tst_OxaComboBoxLifetime::staysUsableWithoutItsModel()
{
    OpenBox box;
    auto *model = new QStandardItemModel(2, 1);
    box.setModel(model);
    QTest::ignoreMessage(QtWarningMsg,
                         "QItemSelectionModel: Selecting when no model has been set "
                         "will result in a no-op.");
    delete model;
    box.showPopup();
    QVERIFY(!box.view()->isVisible());
    box.highLightedIndex(1);
    pressSpace(box);
    box.setModel(new QStandardItemModel(2, 1, &box));
    QCOMPARE(box.count(), 2);
}

void tst_OxaComboBoxLifetime::isClearedWhileTheListShows()
{
    OpenBox box;
    box.setComboBoxAnimationEnabled(false);
    box.show();
    box.showPopup();
    QTest::keyClick(box.view(), Qt::Key_Down);
    box.clear();
    pressSpace(box); // The highlighted row is gone.
    QCOMPARE(box.currentIndex(), -1);
    QVERIFY(!box.view()->isVisible());
}

void tst_OxaComboBoxLifetime::isHiddenWhileTheListShows()
{
    OpenBox box;
    box.setComboBoxAnimationEnabled(false);
    box.show();
    box.showPopup();
    box.hide();
    pressSpace(box);
    QVERIFY(!box.view()->isVisible());
    box.showPopup();
    QVERIFY(box.view()->isVisible());
    box.hidePopup();
}

void tst_OxaComboBoxLifetime::changesItsThemeWhileTheListShows()
{
    OpenBox box;
    box.setComboBoxAnimationEnabled(false);
    box.show();
    box.showPopup();
    box.setThemeType(QStringLiteral("inverted"));
    QVERIFY(box.view()->isVisible());
    connect(&box, &OxaComboBox::themeTypeChanged, &box, &QComboBox::hidePopup);
    box.setThemeType(QStringLiteral("global"));
    QVERIFY(!box.view()->isVisible());
}

void tst_OxaComboBoxLifetime::losesItsListInASlot()
{
    OpenBox box;
    const auto connection = connect(&box, &OxaComboBox::cssChanged, &box,
                                    [&box] { delete box.view(); });
    box.setItemViewBorderRadius(1);
    disconnect(connection);
    connect(box.view(), &QObject::objectNameChanged, &box, [&box] { delete box.view(); });
    box.setItemViewBorderRadius(2);
    box.setItemViewBorderRadius(2);
    ComboBoxes::List list;
    list.radius = 2;
    QCOMPARE(box.view()->styleSheet(), ComboBoxes::sheetOf(list));
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBoxLifetime)
#include "tst_oxacombobox_lifetime.moc"
