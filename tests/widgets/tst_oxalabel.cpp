// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QScreen>
#include <QSignalSpy>

namespace {

using Change = std::function<void(OxaLabel &)>;

/// Returns a picture of three columns: solid, half transparent and transparent.
QPixmap shape()
{
    QImage image(3, 4, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        image.setPixelColor(0, y, Qt::red);
        image.setPixelColor(1, y, QColor(0, 255, 0, 128));
    }
    return QPixmap::fromImage(image);
}

} // namespace

Q_DECLARE_METATYPE(Change)

/// The members of OxaLabel, its pixmap and its visibility.
class tst_OxaLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void startsEmptyPlainAndWithoutEllipsis();
    void takesItsArguments();
    void storesWhatItsPropertiesAreSetTo();
    void repaintsWhenWhatItPaintsWithChanges_data();
    void repaintsWhenWhatItPaintsWithChanges();
    void repaintsWhenItsTextIsMadeSelectable_data();
    void repaintsWhenItsTextIsMadeSelectable();
    void doesNotRepaintForWhatItDoesNotPaintWith();
    void repaintsItsMarginsTooForAnotherText_data();
    void repaintsItsMarginsTooForAnotherText();

    void recolorsItsPixmapKeepingTheShape();
    void recolorsAPixmapOfTwoPixelsForOne();
    void recolorsNothingWithoutAPixmap();

    void emitsSignalsWhenItIsShownAndHidden();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabel::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#112233" }) }));
}

void tst_OxaLabel::startsEmptyPlainAndWithoutEllipsis()
{
    const OxaLabel label;
    QCOMPARE(label.text(), QString());
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.getElideMode(), Qt::ElideNone);
    QCOMPARE(label.getElidePadding(), 0);
    QCOMPARE(label.getUniqueElementId(), QString());
    QCOMPARE(label.getAccessibleRole(), QAccessible::NoRole);
    QCOMPARE(label.property("focusBorderRadius"), QVariant(4));
    QCOMPARE(label.textInteractionFlags(), QLabel().textInteractionFlags());
}

void tst_OxaLabel::takesItsArguments()
{
    QWidget parent;
    const OxaLabel child(&parent);
    QCOMPARE(child.parentWidget(), &parent);
    QVERIFY(!child.isWindow());

    const OxaLabel link(&parent, QAccessible::Link, Qt::ToolTip);
    QCOMPARE(link.parentWidget(), &parent);
    QCOMPARE(link.getAccessibleRole(), QAccessible::Link);
    QCOMPARE(link.windowType(), Qt::ToolTip);
    QCOMPARE(link.text(), QString());

    const OxaLabel heading(QStringLiteral("<b>"), &parent, QAccessible::Heading, Qt::Tool);
    QCOMPARE(heading.text(), QStringLiteral("<b>"));
    QCOMPARE(heading.textFormat(), Qt::PlainText);
    QCOMPARE(heading.parentWidget(), &parent);
    QCOMPARE(heading.getAccessibleRole(), QAccessible::Heading);
    QCOMPARE(heading.windowType(), Qt::Tool);
}

void tst_OxaLabel::storesWhatItsPropertiesAreSetTo()
{
    OxaLabel label;
    QVERIFY(label.setProperty("elideMode", QVariant::fromValue(Qt::ElideMiddle)));
    QCOMPARE(label.getElideMode(), Qt::ElideMiddle);
    label.setElideMode(Qt::ElideLeft);
    QCOMPARE(label.property("elideMode").value<Qt::TextElideMode>(), Qt::ElideLeft);

    QVERIFY(label.setProperty("elidePadding", 7));
    QCOMPARE(label.getElidePadding(), 7);
    label.setElidePadding(8);
    QCOMPARE(label.property("elidePadding").toInt(), 8);

    QVERIFY(label.setProperty("elementUniqueId", QStringLiteral("first")));
    QCOMPARE(label.getUniqueElementId(), QStringLiteral("first"));
    label.setUniqueElementId(QStringLiteral("second"));
    QCOMPARE(label.property("elementUniqueId").toString(), QStringLiteral("second"));
    QCOMPARE(label.objectName(), QString());

    QVERIFY(label.setProperty("accessibleRole", QVariant::fromValue(QAccessible::Heading)));
    QCOMPARE(label.getAccessibleRole(), QAccessible::Heading);
    label.setAccessibleRole(QAccessible::Link);
    QCOMPARE(label.property("accessibleRole").value<QAccessible::Role>(), QAccessible::Link);
}

void tst_OxaLabel::repaintsWhenWhatItPaintsWithChanges_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("elide mode") << Change(
            [](OxaLabel &label) { label.setElideMode(Qt::ElideRight); });
    QTest::newRow("the same elide mode")
            << Change([](OxaLabel &label) { label.setElideMode(Qt::ElideNone); });
    QTest::newRow("elide padding") << Change([](OxaLabel &label) { label.setElidePadding(9); });
    QTest::newRow("the same elide padding")
            << Change([](OxaLabel &label) { label.setElidePadding(0); });
    QTest::newRow("wrap mode") << Change(
            [](OxaLabel &label) { label.updateWrapMode(QTextOption::WrapAnywhere); });
    QTest::newRow("the same wrap mode")
            << Change([](OxaLabel &label) { label.updateWrapMode(QTextOption::WordWrap); });
}

void tst_OxaLabel::repaintsWhenWhatItPaintsWithChanges()
{
    QFETCH(const Change, change);
    OxaLabel label(QStringLiteral("text"));
    PaintCounter paints(label);
    change(label);
    QCOMPARE(paints.take(), 1);
}

void tst_OxaLabel::repaintsWhenItsTextIsMadeSelectable_data()
{
    QTest::addColumn<Qt::TextInteractionFlags>("flags");
    QTest::addColumn<bool>("repaints");
    const std::pair<const char *, Qt::TextInteractionFlags> rows[] = {
        { "not at all", Qt::NoTextInteraction },
        { "links only", Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard },
        { "by mouse", Qt::TextSelectableByMouse },
        { "by keyboard", Qt::TextSelectableByKeyboard },
        { "by mouse and links", Qt::TextBrowserInteraction },
    };
    for (const auto &[name, flags] : rows) {
        QTest::newRow(name) << flags
                            << bool(flags
                                    & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard));
    }
}

void tst_OxaLabel::repaintsWhenItsTextIsMadeSelectable()
{
    QFETCH(const Qt::TextInteractionFlags, flags);
    QFETCH(const bool, repaints);
    OxaLabel label(QStringLiteral("text"));
    label.setTextInteractionFlags(flags);
    PaintCounter paints(label);
    // Once more, because Qt may repaint the first time by itself.
    label.setTextInteractionFlags(flags);
    QCOMPARE(label.textInteractionFlags(), flags);
    QCOMPARE(paints.take(), int(repaints));
}

void tst_OxaLabel::doesNotRepaintForWhatItDoesNotPaintWith()
{
    OxaLabel label(QStringLiteral("text"));
    PaintCounter paints(label);
    label.setUniqueElementId(QStringLiteral("id"));
    label.setAccessibleRole(QAccessible::Heading);
    QCOMPARE(paints.take(), 0);
}

void tst_OxaLabel::repaintsItsMarginsTooForAnotherText_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<bool>("wrap");
    QTest::newRow("as QLabel does") << Qt::ElideNone << false;
    QTest::newRow("in one line") << Qt::ElideRight << false;
    QTest::newRow("in wrapped lines") << Qt::ElideRight << true;
}

void tst_OxaLabel::repaintsItsMarginsTooForAnotherText()
{
    QFETCH(const Qt::TextElideMode, mode);
    QFETCH(const bool, wrap);
    OxaLabel label;
    label.setElideMode(mode);
    label.setWordWrap(wrap);
    // An eliding label paints into its contents margins, a QLabel does not.
    label.setContentsMargins(20, 2, 20, 2);
    label.resize(200, 60);
    PaintCounter paints(label);
    const QImage empty = Windows::onScreen(label);
    label.setText(QStringLiteral("A text that is much longer than its label is wide"));
    paints.take();
    const QImage written = Windows::onScreen(label);
    QVERIFY(written != empty);
    label.update();
    paints.take();
    QCOMPARE(written, Windows::onScreen(label));
    label.setText(QString());
    paints.take();
    QCOMPARE(Windows::onScreen(label), empty);
}

void tst_OxaLabel::recolorsItsPixmapKeepingTheShape()
{
    OxaLabel label;
    label.setPixmap(shape());
    label.setPixmapColor(Qt::blue);
    const QImage image = label.pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(image.size(), QSize(3, 4));
    for (int y = 0; y < image.height(); ++y) {
        QCOMPARE(image.pixelColor(0, y), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(1, y), QColor(0, 0, 255, 128));
        QCOMPARE(image.pixelColor(2, y).alpha(), 0);
    }
}

void tst_OxaLabel::recolorsAPixmapOfTwoPixelsForOne()
{
    QPixmap pixmap(6, 4);
    pixmap.fill(Qt::red);
    pixmap.setDevicePixelRatio(2.0);
    OxaLabel label;
    label.setPixmap(pixmap);
    label.setPixmapColor(Qt::blue);
    const QPixmap recolored = label.pixmap(Qt::ReturnByValue);
    QCOMPARE(recolored.devicePixelRatio(), 2.0);
    QCOMPARE(recolored.size(), QSize(6, 4));
    QCOMPARE(Pixels::countNear(recolored.toImage(), Qt::blue, QRect(), 0), 6 * 4);
}

void tst_OxaLabel::recolorsNothingWithoutAPixmap()
{
    OxaLabel label(QStringLiteral("text"));
    label.setPixmapColor(Qt::blue);
    QVERIFY(label.pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(label.text(), QStringLiteral("text"));
}

void tst_OxaLabel::emitsSignalsWhenItIsShownAndHidden()
{
    QWidget parent;
    OxaLabel label(&parent);
    const QSignalSpy changes(&label, &OxaLabel::onVisibilityChanged);
    label.show();
    QCOMPARE(changes.size(), 0);
    parent.show();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.last().constFirst(), QVariant(true));
    label.hide();
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes.last().constFirst(), QVariant(false));
}

UIELEMENTS_TEST_MAIN(tst_OxaLabel)
#include "tst_oxalabel.moc"
