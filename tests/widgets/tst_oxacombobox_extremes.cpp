// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/TestApplication.h"

#include <limits>

using ComboBoxes::Action;
using ComboBoxes::OpenBox;
using ComboBoxes::press;
using ComboBoxes::pressSpace;

namespace {

/// Counts Qt's warnings about sheets that it cannot read, instead of showing them: it repeats them
/// each time that it looks for a rule.
class SheetWarnings
{
    Q_DISABLE_COPY_MOVE(SheetWarnings)

public:
    SheetWarnings()
    {
        count = 0;
        others = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context,
                                           const QString &message) {
            if (message.startsWith(QLatin1String("Could not parse stylesheet of object OxaCombo")))
                ++count;
            else
                others(type, context, message);
        });
    }
    ~SheetWarnings() { qInstallMessageHandler(others); }

    inline static int count = 0;

private:
    inline static QtMessageHandler others = nullptr;
};

} // namespace

/// Combo boxes with many items, and with names and numbers that nobody should give them.
class tst_OxaComboBoxExtremes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(ComboBoxes::store()); }
    void cleanup() { m_stores.reset(); }

    void opensManyItems();
    void keepsToNamesThatSheetsCannotHold_data();
    void keepsToNamesThatSheetsCannotHold();
    void takesAnyNumbers_data();
    void takesAnyNumbers();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaComboBoxExtremes::opensManyItems()
{
    OpenBox box;
    box.setComboBoxAnimationEnabled(false);
    for (int row = box.count(); row < 10000; ++row)
        box.addItem(QString::number(row));
    box.show();
    box.showPopup();
    QVERIFY(box.view()->window()->height() < 400); // Ten rows, and not all of them.
    QTest::keyClick(box.view(), Qt::Key_End);
    pressSpace(box);
    QCOMPARE(box.currentIndex(), 9999);
}

void tst_OxaComboBoxExtremes::keepsToNamesThatSheetsCannotHold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("umlaut") << QStringLiteral("\u00e4") << true;
    QTest::newRow("very long") << QString(100000, QLatin1Char('x')) << true;
    QTest::newRow("blank") << QStringLiteral("a b") << true; // Selects a "b" in it.
    QTest::newRow("brace") << QStringLiteral("a{") << false;
    QTest::newRow("percent sign") << QStringLiteral("%1%2") << true;
}

void tst_OxaComboBoxExtremes::keepsToNamesThatSheetsCannotHold()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isRead);
    const SheetWarnings warnings;
    OpenBox box(nullptr, name);
    box.setComboBoxAnimationEnabled(false);
    box.setItemViewBorderRadius(0);
    ComboBoxes::Field field;
    field.name = name;
    QCOMPARE(box.getCSS(), ComboBoxes::styleTextOf(field));
    box.show();
    box.showPopup();
    box.hidePopup();
    QCOMPARE(SheetWarnings::count == 0, isRead);
}

void tst_OxaComboBoxExtremes::takesAnyNumbers_data()
{
    QTest::addColumn<Action>("set");
    for (const int value : { -1000000, -1, 1000000 }) {
        QTest::addRow("size of the arrow %d", value) << Action([value](OpenBox &box) {
            box.setSvgDropdownIconSize({ value, value });
        });
        QTest::addRow("space around the arrow %d", value)
                << Action([value](OpenBox &box) { box.setSvgDropdownIconPaddingRight(value); });
        QTest::addRow("radius %d", value)
                << Action([value](OpenBox &box) { box.setItemViewBorderRadius(value); });
        QTest::addRow("left padding %d", value)
                << Action([value](OpenBox &box) { box.setLeftPadding(value); });
        QTest::addRow("offset %d", value) << Action([value](OpenBox &box) {
            box.setItemViewDropdownOffset({ value, value });
        });
        QTest::addRow("highlighted row %d", value)
                << Action([value](OpenBox &box) { box.highLightedIndex(value); });
    }
}

void tst_OxaComboBoxExtremes::takesAnyNumbers()
{
    QFETCH(const Action, set);
    for (const bool isUpwards : { false, true }) {
        OpenBox box;
        box.setComboBoxAnimationEnabled(false);
        box.setOpenedUpwards(isUpwards);
        set(box);
        box.resize(120, 30);
        box.show();
        Pixels::render(box);
        press(box);
        QVERIFY(box.view()->isVisible());
        pressSpace(box);
        QVERIFY(!box.view()->isVisible());
        QVERIFY(box.currentIndex() >= -1 && box.currentIndex() < box.count());
    }
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBoxExtremes)
#include "tst_oxacombobox_extremes.moc"
