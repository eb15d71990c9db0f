// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgAnchorButton.h>

#include <QSignalSpy>

#include <functional>

namespace {

/// Gives access to protected functions.
class OpenAnchorButton : public OxaSvgAnchorButton
{
public:
    using OxaSvgAnchorButton::adjustRect;
    using OxaSvgAnchorButton::isLeading;
    using OxaSvgAnchorButton::OxaSvgAnchorButton;
};

} // namespace

using SetUp = std::function<void(OxaSvgAnchorButton &, const QString &)>;
Q_DECLARE_METATYPE(SetUp)

/// The properties and measures of OxaSvgAnchorButton.
class tst_OxaSvgAnchorButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(OxaColorSetMap()); }
    void cleanup() { m_stores.reset(); }

    void startsCheckableWithoutPictures();
    void takesWhatItsConstructorsAreGiven();
    void emitsASignalForEachPicture();
    void triesPathsThatFailTwice();
    void sharesItsPaddingWithItsOffset();
    void sizesBothPictures();
    void hasNoSizeWhileInvisible();
    void keepsAColorSetThatTheThemeLacks();
    void repaintsForEveryProperty();
    void repaintsForItsPicturesBeforeItLooksAtThemOnceMore();

    void leadsOnTheSideWhereLinesBegin_data();
    void leadsOnTheSideWhereLinesBegin();
    void takesTheAnchorsRoomOffTheRectangle_data();
    void takesTheAnchorsRoomOffTheRectangle();
    void leavesTheRectangleAloneWithoutPictures();
    void hintsTheAnchorsSizeToo_data();
    void hintsTheAnchorsSizeToo();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaSvgAnchorButton::startsCheckableWithoutPictures()
{
    const OxaSvgAnchorButton button;
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    QCOMPARE(button.getAccessibleRole(), QAccessible::PushButton);
    QCOMPARE(button.getAnchorSvgOn(), QString());
    QCOMPARE(button.getAnchorSvgOff(), QString());
    QCOMPARE(button.getAnchorIconSize(), QSize(-1, -1));
    QCOMPARE(button.getAnchorSvgColorSet(), QString());
    QCOMPARE(button.getAnchorPadding(), 0);
    QCOMPARE(button.getAnchorSvgOffset(), QPoint(0, 0));
    QVERIFY(!button.getIsLeftAnchor());
    QVERIFY(!button.getAlignAnchorIconToText());
}

void tst_OxaSvgAnchorButton::takesWhatItsConstructorsAreGiven()
{
    QWidget parent;
    QCOMPARE((new OxaSvgAnchorButton(&parent))->parent(), &parent);
    const auto *button = new OxaSvgAnchorButton(QStringLiteral("abc"), &parent);
    QCOMPARE(button->parent(), &parent);
    QCOMPARE(button->text(), QStringLiteral("abc"));
}

void tst_OxaSvgAnchorButton::emitsASignalForEachPicture()
{
    OxaSvgAnchorButton button;
    const QSignalSpy on(&button, &OxaSvgAnchorButton::anchorSvgOnChanged);
    const QSignalSpy off(&button, &OxaSvgAnchorButton::anchorSvgOffChanged);
    const QString path = m_files.square();
    button.setAnchorSvgOn(path);
    QCOMPARE(button.getAnchorSvgOn(), path);
    QCOMPARE(on.size(), 1);
    QCOMPARE(on.at(0).at(0), QVariant(path));
    QCOMPARE(off.size(), 0);
    button.setAnchorSvgOff(path);
    QCOMPARE(button.getAnchorSvgOff(), path);
    QCOMPARE(off.size(), 1);
    QCOMPARE(off.at(0).at(0), QVariant(path));
    QCOMPARE(on.size(), 1);
}

void tst_OxaSvgAnchorButton::triesPathsThatFailTwice()
{
    const QString on = m_files.path(QStringLiteral("on.svg"));
    const QString off = m_files.path(QStringLiteral("off.svg"));
    OxaSvgAnchorButton button;
    for (int tries = 0; tries < 2; ++tries) {
        SvgFiles::ignoreMissing(on);
        SvgFiles::ignoreMissing(off);
        if (tries == 0) {
            button.setAnchorSvgOn(on);
            button.setAnchorSvgOff(off);
        } else {
            QCoreApplication::processEvents();
        }
    }
    QCOMPARE(button.getAnchorSvgOn(), on);
    QCOMPARE(button.getAnchorSvgOff(), off);
}

void tst_OxaSvgAnchorButton::sharesItsPaddingWithItsOffset()
{
    OxaSvgAnchorButton button;
    button.setAnchorSvgOffset(QPoint(1, 5));
    button.setAnchorPadding(7);
    QCOMPARE(button.getAnchorSvgOffset(), QPoint(7, 5));
    button.setAnchorSvgOffset(QPoint(3, 4));
    QCOMPARE(button.getAnchorPadding(), 3);
}

void tst_OxaSvgAnchorButton::sizesBothPictures()
{
    OxaSvgAnchorButton button;
    button.setAnchorIconSize(QSize(3, 4));
    QCOMPARE(button.getAnchorIconSize(), QSize(3, 4));
    // Setting the size made both pictures: they can be hidden now.
    button.setAnchorIconVisible(false);
    QCOMPARE(button.getAnchorIconSize(), QSize(-1, -1));
}

void tst_OxaSvgAnchorButton::hasNoSizeWhileInvisible()
{
    OxaSvgAnchorButton button;
    button.setAnchorIconVisible(false); // Ignored: there is nothing to hide yet.
    button.setAnchorSvgOn(m_files.square());
    QCOMPARE(button.getAnchorIconSize(), QSize(16, 16));
    button.setAnchorIconVisible(false);
    QCOMPARE(button.getAnchorIconSize(), QSize(-1, -1));
    button.setAnchorIconVisible(true);
    QCOMPARE(button.getAnchorIconSize(), QSize(16, 16));
}

void tst_OxaSvgAnchorButton::keepsAColorSetThatTheThemeLacks()
{
    OxaSvgAnchorButton button;
    const char warning[] = "ColorSet name does not exist!  \"late\"";
    QTest::ignoreMessage(QtWarningMsg, warning);
    button.setAnchorSvgColorSet(QStringLiteral("late"));
    QCOMPARE(button.getAnchorSvgColorSet(), QStringLiteral("late"));
    QTest::ignoreMessage(QtWarningMsg, warning); // Tried again.
    button.setThemeType(QStringLiteral("dark"));
}

void tst_OxaSvgAnchorButton::repaintsForEveryProperty()
{
    const OxaColorSet colors = Faces::colors(QStringLiteral("icon"), 220);
    const StoreGuard stores(ColorSets::storeOf({ colors }));
    OxaSvgAnchorButton button;
    PaintCounter paints(button);
    const std::pair<const char *, QVariant> values[] = {
        { "anchorIconSize", QSize(3, 4) },
        { "anchorSvgColorSet", colors.name },
        { "anchorPadding", 2 },
        { "anchorSvgOffset", QPoint(2, 3) },
        { "isLeftAnchor", true },
        { "alignAnchorIconToText", true },
        { "anchorSvgOn", m_files.square() },
        { "anchorSvgOff", m_files.square() },
    };
    for (const auto &[name, value] : values) {
        QVERIFY2(button.setProperty(name, value), name);
        QCOMPARE(button.property(name), value);
        QVERIFY2(paints.take() > 0, name);
    }
    button.setAnchorIconVisible(false);
    QCOMPARE(paints.take(), 1);
}

void tst_OxaSvgAnchorButton::repaintsForItsPicturesBeforeItLooksAtThemOnceMore()
{
    OxaSvgAnchorButton button;
    PaintCounter paints(button);
    for (const char *name : { "anchorSvgOn", "anchorSvgOff" }) {
        button.setProperty(name, m_files.square());
        QCoreApplication::sendPostedEvents(&button, QEvent::UpdateRequest);
        QVERIFY2(paints.take() == 2, name);
    }
}

void tst_OxaSvgAnchorButton::leadsOnTheSideWhereLinesBegin_data()
{
    QTest::addColumn<bool>("isLeftAnchor");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isLeading");
    QTest::newRow("left") << true << Qt::LeftToRight << true;
    QTest::newRow("right") << false << Qt::LeftToRight << false;
    QTest::newRow("left, right to left") << true << Qt::RightToLeft << false;
    QTest::newRow("right, right to left") << false << Qt::RightToLeft << true;
}

void tst_OxaSvgAnchorButton::leadsOnTheSideWhereLinesBegin()
{
    QFETCH(const bool, isLeftAnchor);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OpenAnchorButton button;
    button.setIsLeftAnchor(isLeftAnchor);
    QTEST(button.isLeading(), "isLeading");
    // The application's direction is used, not the button's.
    button.setLayoutDirection(direction == Qt::LeftToRight ? Qt::RightToLeft : Qt::LeftToRight);
    QTEST(button.isLeading(), "isLeading");
}

void tst_OxaSvgAnchorButton::takesTheAnchorsRoomOffTheRectangle_data()
{
    QTest::addColumn<SetUp>("setUp");
    QTest::addColumn<bool>("isLeading");
    QTest::addColumn<QPoint>("anchor");
    QTest::addColumn<QRect>("left");
    // Of the rectangle from (10, 20) to (109, 59), whose middle is 39.
    const SetUp on = [](OxaSvgAnchorButton &button, const QString &path) {
        button.setAnchorSvgOn(path);
        button.setAnchorIconSize(QSize(12, 9));
        button.setAnchorSvgOffset(QPoint(5, 2));
    };
    const SetUp off = [](OxaSvgAnchorButton &button, const QString &path) {
        button.setAnchorSvgOff(path);
        button.setAnchorIconSize(QSize(12, 9));
        button.setAnchorSvgOffset(QPoint(5, 2));
    };
    const SetUp hidden = [on](OxaSvgAnchorButton &button, const QString &path) {
        on(button, path);
        button.setAnchorIconVisible(false);
    };
    // The new left is 5 + 12, not counted from the rectangle's own.
    QTest::newRow("leading") << on << true << QPoint(15, 36) << QRect(17, 20, 93, 40);
    QTest::newRow("leading, only the picture for off")
            << off << true << QPoint(15, 36) << QRect(17, 20, 93, 40);
    QTest::newRow("trailing") << on << false << QPoint(92, 36) << QRect(10, 20, 83, 40);
    QTest::newRow("leading, hidden: a size of -1")
            << hidden << true << QPoint(15, 41) << QRect(4, 20, 106, 40);
    QTest::newRow("trailing, hidden: a size of -1")
            << hidden << false << QPoint(105, 41) << QRect(10, 20, 96, 40);
}

void tst_OxaSvgAnchorButton::takesTheAnchorsRoomOffTheRectangle()
{
    QFETCH(const SetUp, setUp);
    QFETCH(const bool, isLeading);
    for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        const LayoutDirectionGuard layoutDirection(direction);
        OpenAnchorButton button;
        setUp(button, m_files.square());
        button.setIsLeftAnchor(isLeading == (direction == Qt::LeftToRight));
        QRect rect(10, 20, 100, 40);
        QTEST(button.adjustRect(rect), "anchor");
        QTEST(rect, "left");
    }
}

void tst_OxaSvgAnchorButton::leavesTheRectangleAloneWithoutPictures()
{
    OpenAnchorButton button;
    button.setAnchorIconSize(QSize(12, 9));
    button.setAnchorSvgOffset(QPoint(5, 2));
    QRect rect(10, 20, 100, 40);
    QCOMPARE(button.adjustRect(rect), QPoint(0, 0));
    QCOMPARE(rect, QRect(10, 20, 100, 40));
}

void tst_OxaSvgAnchorButton::hintsTheAnchorsSizeToo_data()
{
    QTest::addColumn<SetUp>("setUp");
    QTest::addColumn<QSize>("more");
    const auto measure = [](OxaSvgAnchorButton &button) {
        button.setAnchorIconSize(QSize(12, 9));
        button.setAnchorSvgOffset(QPoint(5, 2));
    };
    QTest::newRow("without pictures")
            << SetUp([=](OxaSvgAnchorButton &button, const QString &) { measure(button); })
            << QSize(0, 0);
    QTest::newRow("with a picture for on")
            << SetUp([=](OxaSvgAnchorButton &button, const QString &path) {
                   button.setAnchorSvgOn(path);
                   measure(button);
               })
            << QSize(17, 11);
    QTest::newRow("only with a picture for off")
            << SetUp([=](OxaSvgAnchorButton &button, const QString &path) {
                   button.setAnchorSvgOff(path);
                   measure(button);
               })
            << QSize(0, 0);
    QTest::newRow("while hidden") << SetUp([=](OxaSvgAnchorButton &button, const QString &path) {
        button.setAnchorSvgOn(path);
        measure(button);
        button.setAnchorIconVisible(false);
    }) << QSize(0, 0);
}

void tst_OxaSvgAnchorButton::hintsTheAnchorsSizeToo()
{
    QFETCH(const SetUp, setUp);
    QFETCH(const QSize, more);
    OxaSvgAnchorButton button(QStringLiteral("abc"));
    button.setSvgIcon(m_files.square());
    setUp(button, m_files.square());
    QCOMPARE(button.sizeHint(), button.OxaSvgPushButton::sizeHint() + more);
}

UIELEMENTS_TEST_MAIN(tst_OxaSvgAnchorButton)
#include "tst_oxasvganchorbutton.moc"
