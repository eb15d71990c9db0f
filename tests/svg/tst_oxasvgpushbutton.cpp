// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgPushButton.h>

#include <QAbstractTextDocumentLayout>
#include <QSignalSpy>
#include <QTextDocument>

#include <functional>

namespace {

QTextDocument *documentOf(const OxaSvgPushButton &button)
{
    return button.findChild<QTextDocument *>();
}

} // namespace

using SetUp = std::function<void(OxaSvgPushButton &, const QString &)>;
Q_DECLARE_METATYPE(SetUp)

/// OxaSvgPushButton, without the icon block and inherited members.
class tst_OxaSvgPushButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(OxaColorSetMap()); }
    void cleanup() { m_stores.reset(); }

    void startsAsAnElidingPushButton();
    void takesWhatItsConstructorsAreGiven();
    void hintsTheSizeOfTextIconAndPaddings_data();
    void hintsTheSizeOfTextIconAndPaddings();

    void keepsTheCheckedIconsPath();
    void removesTheCheckedIconWithoutASignal();
    void givesTheCheckedIconThePlainIconsSize();
    void triesACheckedPathThatFailsTwice();
    void repaintsForTheCheckedIconOnlyWhenTheEventLoopTurns();
    void hidesAndShowsItsIcons();

    void makesADocumentForRichText_data();
    void makesADocumentForRichText();
    void writesTheDocumentInTheButtonsDirection_data();
    void writesTheDocumentInTheButtonsDirection();
    void keepsItsDocumentWhileTheTextIsRich();
    void dropsTheDocumentForPlainText();
    void ignoresOtherTextFormats_data();
    void ignoresOtherTextFormats();
    void handsTextAndFontToTheDocument();
    void doesNotUpdateTheDocumentThroughItsQtClass();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaSvgPushButton::startsAsAnElidingPushButton()
{
    const OxaSvgPushButton button;
    QCOMPARE(button.getElideMode(), Qt::ElideRight);
    QCOMPARE(button.getAccessibleRole(), QAccessible::PushButton);
    QVERIFY(button.testAttribute(Qt::WA_Hover));
    QVERIFY(button.autoDefault());
    QCOMPARE(button.getSvgIconChecked(), QString());
    QCOMPARE(button.getTextFormat(), Qt::PlainText);
    QVERIFY(!documentOf(button));
}

void tst_OxaSvgPushButton::takesWhatItsConstructorsAreGiven()
{
    QWidget parent;
    const auto *plain = new OxaSvgPushButton(&parent, QAccessible::Link);
    QCOMPARE(plain->parent(), &parent);
    QCOMPARE(plain->getAccessibleRole(), QAccessible::Link);
    const auto *button = new OxaSvgPushButton(QStringLiteral("abc"), &parent,
                                              QAccessible::MenuItem);
    QCOMPARE(button->parent(), &parent);
    QCOMPARE(button->text(), QStringLiteral("abc"));
    QCOMPARE(button->getAccessibleRole(), QAccessible::MenuItem);
}

void tst_OxaSvgPushButton::hintsTheSizeOfTextIconAndPaddings_data()
{
    QTest::addColumn<SetUp>("setUp");
    QTest::addColumn<QSize>("more");
    const auto setText = [](OxaSvgPushButton &button) {
        button.setText(QStringLiteral("abc"));
        button.setTextLeftPadding(3);
        button.setTextRightPadding(4);
    };
    const auto setIcon = [](OxaSvgPushButton &button, const QString &path) {
        button.setSvgIcon(path);
        button.setSvgIconSize(QSize(20, 10));
        button.setSvgIconPadding(QMargins(1, 2, 3, 4));
    };
    QTest::newRow("nothing") << SetUp([](OxaSvgPushButton &, const QString &) {}) << QSize(0, 0);
    QTest::newRow("a text and its paddings")
            << SetUp([=](OxaSvgPushButton &button, const QString &) { setText(button); })
            << QSize(7, 0);
    QTest::newRow("paddings do not count without a text")
            << SetUp([=](OxaSvgPushButton &button, const QString &) {
                   setText(button);
                   button.setText(QString());
               })
            << QSize(0, 0);
    QTest::newRow("an icon adds its height too")
            << SetUp([=](OxaSvgPushButton &button, const QString &path) { setIcon(button, path); })
            << QSize(24, 16);
    QTest::newRow("text and icon") << SetUp([=](OxaSvgPushButton &button, const QString &path) {
        setText(button);
        setIcon(button, path);
    }) << QSize(31, 16);
    QTest::newRow("an icon without a picture does not count") << SetUp(
            [](OxaSvgPushButton &button, const QString &) { button.setSvgIconSize(QSize(20, 10)); })
                                                              << QSize(0, 0);
    QTest::newRow("an invisible icon does not count")
            << SetUp([=](OxaSvgPushButton &button, const QString &path) {
                   setIcon(button, path);
                   button.setSvgIconVisible(false);
               })
            << QSize(0, 0);
}

void tst_OxaSvgPushButton::hintsTheSizeOfTextIconAndPaddings()
{
    QFETCH(const SetUp, setUp);
    QFETCH(const QSize, more);
    OxaSvgPushButton button;
    setUp(button, m_files.square());
    QCOMPARE(button.sizeHint(), button.QPushButton::sizeHint() + more);
}

void tst_OxaSvgPushButton::keepsTheCheckedIconsPath()
{
    OxaSvgPushButton button;
    const QSignalSpy changed(&button, &OxaSvgPushButton::svgIconCheckedChanged);
    const QString path = m_files.square();
    button.setSvgIconChecked(path);
    QCOMPARE(button.getSvgIconChecked(), path);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0), QVariant(path));
    QCOMPARE(button.getSvgIcon(), QString());
}

void tst_OxaSvgPushButton::removesTheCheckedIconWithoutASignal()
{
    OxaSvgPushButton button;
    button.setSvgIconChecked(m_files.square());
    PaintCounter paints(button);
    const QSignalSpy changed(&button, &OxaSvgPushButton::svgIconCheckedChanged);
    button.setSvgIconChecked(QString());
    QCOMPARE(button.getSvgIconChecked(), QString());
    QCOMPARE(paints.take(), 1);
    QCOMPARE(changed.size(), 0);
}

void tst_OxaSvgPushButton::givesTheCheckedIconThePlainIconsSize()
{
    const OxaColorSet colors = Faces::colors(QStringLiteral("icon"), 220);
    const StoreGuard stores(ColorSets::storeOf({ colors }));
    const auto checkedWidth = [&](const SetUp &setUp) {
        OxaSvgPushButton button;
        button.setCheckable(true);
        button.setChecked(true);
        setUp(button, m_files.square());
        button.setSvgIconColorSet(colors.name);
        button.resize(80, 60);
        return Pixels::boundsNear(Pixels::render(button), colors.checked).width();
    };
    const QSize size(30, 30);
    QCOMPARE(checkedWidth([&](OxaSvgPushButton &button, const QString &path) {
                 button.setSvgIconChecked(path); // Without a plain icon: 16 by 16.
             }),
             16);
    QCOMPARE(checkedWidth([&](OxaSvgPushButton &button, const QString &path) {
                 button.setSvgIconSize(size);
                 button.setSvgIconChecked(path);
             }),
             30);
    QCOMPARE(checkedWidth([&](OxaSvgPushButton &button, const QString &path) {
                 button.setSvgIconChecked(path);
                 button.setSvgIconSize(size);
             }),
             30);
    // An invisible icon has the size (-1, -1), which paints one pixel.
    QCOMPARE(checkedWidth([&](OxaSvgPushButton &button, const QString &path) {
                 button.setSvgIconSize(size);
                 button.setSvgIconVisible(false);
                 button.setSvgIconChecked(path);
             }),
             1);
}

void tst_OxaSvgPushButton::triesACheckedPathThatFailsTwice()
{
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    OxaSvgPushButton button;
    SvgFiles::ignoreMissing(missing);
    button.setSvgIconChecked(missing);
    SvgFiles::ignoreMissing(missing);
    QCoreApplication::processEvents();
    QCOMPARE(button.getSvgIconChecked(), missing);
    // A removed icon is not tried again.
    SvgFiles::ignoreMissing(missing);
    button.setSvgIconChecked(missing);
    button.setSvgIconChecked(QString());
    QCoreApplication::processEvents();
    QCOMPARE(button.getSvgIconChecked(), QString());
}

void tst_OxaSvgPushButton::repaintsForTheCheckedIconOnlyWhenTheEventLoopTurns()
{
    OxaSvgPushButton button;
    PaintCounter paints(button);
    button.setSvgIconChecked(m_files.square());
    // An update by the setter would be sent now.
    QCoreApplication::sendPostedEvents(&button, QEvent::UpdateRequest);
    QCOMPARE(paints.count(), 0);
    QCOMPARE(paints.take(), 1);
}

void tst_OxaSvgPushButton::hidesAndShowsItsIcons()
{
    OxaSvgPushButton button;
    PaintCounter paints(button);
    button.setSvgIconVisible(false); // There is none yet.
    QCOMPARE(paints.take(), 0);
    button.setSvgIcon(m_files.square());
    paints.take();
    button.setSvgIconVisible(false);
    QCOMPARE(button.getSvgIconSize(), QSize(-1, -1));
    QCOMPARE(paints.take(), 1);
    button.setSvgIconVisible(true);
    QCOMPARE(button.getSvgIconSize(), QSize(16, 16));
    QCOMPARE(paints.take(), 1);
}

void tst_OxaSvgPushButton::makesADocumentForRichText_data()
{
    QTest::addColumn<OxaEnum::HorAlign>("align");
    QTest::addColumn<int>("alignment");
    // The value of the alignment is used, not its meaning.
    QTest::newRow("left is no alignment") << OxaEnum::HorAlign::LeftAlign << 0;
    QTest::newRow("centre is left") << OxaEnum::HorAlign::CenterAlign << int(Qt::AlignLeft);
    QTest::newRow("right") << OxaEnum::HorAlign::RightAlign << int(Qt::AlignRight);
}

void tst_OxaSvgPushButton::makesADocumentForRichText()
{
    QFETCH(const OxaEnum::HorAlign, align);
    QFETCH(const int, alignment);
    OxaSvgPushButton button(QStringLiteral("a <b>b</b>"));
    button.setTextHorAlign(align);
    PaintCounter paints(button);
    button.setTextFormat(Qt::RichText);
    QCOMPARE(button.getTextFormat(), Qt::RichText);
    QCOMPARE(paints.take(), 1);
    const QTextDocument *document = documentOf(button);
    QVERIFY(document);
    QCOMPARE(document->parent(), &button);
    QCOMPARE(document->toPlainText(), QStringLiteral("a b"));
    QVERIFY(!document->isUndoRedoEnabled());
    QCOMPARE(document->documentMargin(), 0.0);
    QCOMPARE(document->defaultFont(), button.font());
    QCOMPARE(int(document->defaultTextOption().alignment()), alignment | int(Qt::AlignVCenter));
}

void tst_OxaSvgPushButton::writesTheDocumentInTheButtonsDirection_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_OxaSvgPushButton::writesTheDocumentInTheButtonsDirection()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setTextFormat(Qt::RichText);
    QCOMPARE(documentOf(button)->defaultTextOption().textDirection(), direction);
    button.setLayoutDirection(Qt::RightToLeft); // The button's own direction is used.
    button.setTextFormat(Qt::RichText);
    QCOMPARE(documentOf(button)->defaultTextOption().textDirection(), Qt::RightToLeft);
}

void tst_OxaSvgPushButton::keepsItsDocumentWhileTheTextIsRich()
{
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setTextFormat(Qt::RichText);
    const QTextDocument *document = documentOf(button);
    button.setTextHorAlign(OxaEnum::HorAlign::RightAlign);
    button.setTextFormat(Qt::RichText);
    QCOMPARE(button.findChildren<QTextDocument *>().size(), 1);
    QCOMPARE(documentOf(button), document);
    QVERIFY(document->defaultTextOption().alignment().testFlag(Qt::AlignRight));
}

void tst_OxaSvgPushButton::dropsTheDocumentForPlainText()
{
    OxaSvgPushButton button(QStringLiteral("abc"));
    PaintCounter paints(button);
    button.setTextFormat(Qt::RichText);
    QPointer<QTextDocument> document = documentOf(button);
    paints.take();
    button.setTextFormat(Qt::PlainText);
    QCOMPARE(button.getTextFormat(), Qt::PlainText);
    QVERIFY(document);
    QCOMPARE(paints.take(), 1);
    QTRY_VERIFY(!document);
    button.setTextFormat(Qt::PlainText);
    QVERIFY(!documentOf(button));
    // A document that waits for its deletion is not used again.
    for (const Qt::TextFormat format : { Qt::RichText, Qt::PlainText, Qt::RichText })
        button.setTextFormat(format);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(documentOf(button));
}

void tst_OxaSvgPushButton::ignoresOtherTextFormats_data()
{
    QTest::addColumn<Qt::TextFormat>("before");
    QTest::addColumn<Qt::TextFormat>("other");
    QTest::newRow("automatic after plain") << Qt::PlainText << Qt::AutoText;
    QTest::newRow("automatic after rich") << Qt::RichText << Qt::AutoText;
    QTest::newRow("Markdown") << Qt::PlainText << Qt::MarkdownText;
}

void tst_OxaSvgPushButton::ignoresOtherTextFormats()
{
    QFETCH(const Qt::TextFormat, before);
    QFETCH(const Qt::TextFormat, other);
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setTextFormat(before);
    const QTextDocument *document = documentOf(button);
    PaintCounter paints(button);
    button.setTextFormat(other);
    QCOMPARE(button.getTextFormat(), before);
    QCOMPARE(documentOf(button), document);
    QCOMPARE(paints.take(), 0);
}

void tst_OxaSvgPushButton::handsTextAndFontToTheDocument()
{
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setTextFormat(Qt::RichText);
    button.setText(QStringLiteral("<i>d</i>e"));
    QCOMPARE(button.text(), QStringLiteral("<i>d</i>e"));
    QCOMPARE(documentOf(button)->toPlainText(), QStringLiteral("de"));
    QVERIFY(button.setProperty("text", QStringLiteral("<u>f</u>")));
    QCOMPARE(documentOf(button)->toPlainText(), QStringLiteral("f"));
    QFont font = button.font();
    font.setPixelSize(31);
    button.setFont(font);
    QCOMPARE(button.font().pixelSize(), 31);
    QCOMPARE(documentOf(button)->defaultFont().pixelSize(), 31);
}

void tst_OxaSvgPushButton::doesNotUpdateTheDocumentThroughItsQtClass()
{
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setTextFormat(Qt::RichText);
    QPushButton &qtButton = button;
    qtButton.setText(QStringLiteral("def"));
    QCOMPARE(button.text(), QStringLiteral("def"));
    QCOMPARE(documentOf(button)->toPlainText(), QStringLiteral("abc"));
}

UIELEMENTS_TEST_MAIN(tst_OxaSvgPushButton)
#include "tst_oxasvgpushbutton.moc"
