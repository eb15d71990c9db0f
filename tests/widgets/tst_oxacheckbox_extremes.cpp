// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxPictures.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaRadioButton.h>

#include <QPointer>

using namespace CheckBoxPictures;

namespace {

/// Far beyond any screen. Sums of a few of them are still in range.
constexpr int huge = 100000000;

/// Sets \a checkBox up with a text and a tick to paint.
void setUp(OxaCheckBox &checkBox)
{
    checkBox.setText(QStringLiteral("one two three"));
    checkBox.setChecked(true);
    checkBox.resize(120, 40);
}

/// Paints \a checkBox in each form, which the sanitizers watch.
void paintInAllForms(OxaCheckBox &checkBox)
{
    for (const bool wordWrap : { true, false }) {
        for (const Qt::TextElideMode mode : { Qt::ElideNone, Qt::ElideRight, Qt::ElideMiddle }) {
            checkBox.setWordWrap(wordWrap);
            checkBox.setElideMode(mode);
            checkBox.sizeHint();
            Pixels::render(checkBox);
        }
    }
}

} // namespace

/// Check boxes with values that nobody means.
class tst_OxaCheckBoxExtremes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanup() { m_stores.reset(); }

    void paintsABoxOfAnySize_data();
    void paintsABoxOfAnySize();
    void paintsWithAnyPadding_data();
    void paintsWithAnyPadding();
    void paintsInAWidgetOfAnySize_data();
    void paintsInAWidgetOfAnySize();
    void paintsAnyText_data();
    void paintsAnyText();
    void paintsWithoutATick_data();
    void paintsWithoutATick();
    void isDeletedWithItsParentInASlot();
    void isDeletedByItsClick();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaCheckBoxExtremes::paintsABoxOfAnySize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("none") << QSize(0, 0);
    QTest::newRow("negative") << QSize(-20, -30);
    QTest::newRow("flat") << QSize(14, 0);
    QTest::newRow("wider than the widget") << QSize(500, 14);
    QTest::newRow("higher than the widget") << QSize(14, 500);
    QTest::newRow("wide beyond painting") << QSize(40000, 40000);
    QTest::newRow("huge") << QSize(huge, huge);
    QTest::newRow("huge and negative") << QSize(-huge, -huge);
}

void tst_OxaCheckBoxExtremes::paintsABoxOfAnySize()
{
    QFETCH(const QSize, size);
    for (const bool isRounded : { false, true }) {
        OxaCheckBox checkBox(nullptr, isRounded);
        setUp(checkBox);
        checkBox.setCheckboxSize(size);
        QCOMPARE(checkBox.getCheckboxSize(), size);
        paintInAllForms(checkBox);
        checkBox.setText(QString());
        paintInAllForms(checkBox);
    }
}

void tst_OxaCheckBoxExtremes::paintsWithAnyPadding_data()
{
    QTest::addColumn<int>("padding");
    QTest::newRow("negative") << -50;
    QTest::newRow("wider than the widget") << 500;
    QTest::newRow("huge") << huge;
    QTest::newRow("huge and negative") << -huge;
}

void tst_OxaCheckBoxExtremes::paintsWithAnyPadding()
{
    QFETCH(const int, padding);
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setSvgIconPadding(QMargins(padding, padding, padding, padding));
    paintInAllForms(checkBox);
    checkBox.setTextLeftPadding(padding);
    checkBox.setTextRightPadding(padding);
    checkBox.setElidePadding(padding);
    paintInAllForms(checkBox);
}

void tst_OxaCheckBoxExtremes::paintsInAWidgetOfAnySize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("none") << QSize(0, 0);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("narrow") << QSize(3, 200);
    QTest::newRow("flat") << QSize(200, 3);
}

void tst_OxaCheckBoxExtremes::paintsInAWidgetOfAnySize()
{
    QFETCH(const QSize, size);
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.resize(size);
    QCOMPARE(checkBox.size(), size);
    checkBox.sizeHint();
    // Through the function itself: Qt does not paint a widget of no size.
    drawing(checkBox, [&checkBox](QPainter *painter) {
        drawCheckbox(painter, checkBox, {}, makeTick(checkBox));
    });
    if (size.isEmpty())
        return;
    OxaRadioButton radioButton(QStringLiteral("abc"));
    radioButton.resize(size);
    Pixels::render(radioButton);
}

void tst_OxaCheckBoxExtremes::paintsAnyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("of 64 kB in one word") << QString(65536, QLatin1Char('x'));
    QTest::newRow("of 64 kB in words") << QStringLiteral("word ").repeated(13107);
    QTest::newRow("of line breaks") << QString(4096, QLatin1Char('\n'));
    QTest::newRow("with a null character") << QString::fromLatin1("a\0b", 3);
    QTest::newRow("of half a surrogate pair") << QString(QChar(0xd83d));
    QTest::newRow("of marks alone") << QString(200, QChar(0x0301));
}

void tst_OxaCheckBoxExtremes::paintsAnyText()
{
    QFETCH(const QString, text);
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setText(text);
    for (const int width : { 30, 120 }) {
        checkBox.resize(width, 40);
        Pixels::render(checkBox);
    }
    checkBox.setElideMode(Qt::ElideRight);
    checkBox.setWordWrap(false);
    Pixels::render(checkBox);
    QCOMPARE(checkBox.text(), text);
}

void tst_OxaCheckBoxExtremes::paintsWithoutATick_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no path") << QString();
    QTest::newRow("a folder") << m_files.folder();
    QTest::newRow("a missing file") << m_files.path(QStringLiteral("missing.svg"));
    QTest::newRow("not a picture") << m_files.write(QStringLiteral("text.svg"), "text");
}

void tst_OxaCheckBoxExtremes::paintsWithoutATick()
{
    QFETCH(const QString, path);
    OxaCheckBox checkBox;
    setUp(checkBox);
    const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &) {});
    checkBox.setSvgIcon(path);
    QCoreApplication::processEvents(); // The widget checks the path once more.
    qInstallMessageHandler(before);
    QCOMPARE(checkBox.getSvgIcon(), path);
    const QImage image = Pixels::render(checkBox);
    QCOMPARE(Pixels::countNear(image, iconColors.checked, QRect(3, 8, 8, 8), 2), 0);
    checkBox.setSvgIcon(squareTick);
    QVERIFY(Pixels::countNear(Pixels::render(checkBox), iconColors.checked) > 50);
}

void tst_OxaCheckBoxExtremes::isDeletedWithItsParentInASlot()
{
    auto *parent = new QWidget;
    auto *checkBox = new OxaCheckBox(parent);
    const QPointer<OxaCheckBox> alive(checkBox);
    connect(checkBox, &OxaCheckBox::mouseEntered, parent, [parent] { delete parent; });
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(checkBox, &enter);
    QVERIFY(!alive);
}

void tst_OxaCheckBoxExtremes::isDeletedByItsClick()
{
    const QPointer<OxaCheckBox> checkBox(new OxaCheckBox);
    connect(checkBox, &QCheckBox::stateChanged, checkBox, [checkBox] { delete checkBox; });
    QTest::mousePress(checkBox, Qt::LeftButton);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(checkBox, &release);
    QVERIFY(!checkBox);
}

UIELEMENTS_TEST_MAIN(tst_OxaCheckBoxExtremes)
#include "tst_oxacheckbox_extremes.moc"
