// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaLabel.h>

/// The position of OxaLabel's text: measures, alignment and direction.
class tst_OxaLabelPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void measuresItsLineWithoutThePadding();
    void elidesToTheWidthThatIsLeft_data();
    void elidesToTheWidthThatIsLeft();
    void beginsItsTextByItsVerticalAlignment_data();
    void beginsItsTextByItsVerticalAlignment();

    void alignsItsTextByTheDirections_data();
    void alignsItsTextByTheDirections();
    void overwritesTheAlignmentWhenTheDirectionChanges_data()
    {
        alignsItsTextByTheDirections_data();
    }
    void overwritesTheAlignmentWhenTheDirectionChanges();
    void swapsItsMarginsWhenTheDirectionChanges();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabelPlacement::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#112233" }) }));
}

void tst_OxaLabelPlacement::measuresItsLineWithoutThePadding()
{
    OxaLabel label;
    label.resize(200, 30);
    label.setMargin(5);
    label.setContentsMargins(1, 2, 3, 4);
    QCOMPARE(label.getLineWidth(), 200);
    label.setElidePadding(30);
    QCOMPARE(label.getLineWidth(), 170);
}

void tst_OxaLabelPlacement::elidesToTheWidthThatIsLeft_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<int>("padding");
    QTest::addColumn<int>("indent");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("left");
    QTest::newRow("at the right") << Qt::ElideRight << 0 << 0 << 0 << 100;
    QTest::newRow("in the middle") << Qt::ElideMiddle << 0 << 0 << 0 << 100;
    QTest::newRow("at the left") << Qt::ElideLeft << 0 << 0 << 0 << 100;
    QTest::newRow("minus a padding") << Qt::ElideRight << 30 << 0 << 0 << 70;
    QTest::newRow("minus an indent") << Qt::ElideRight << 0 << 30 << 0 << 70;
    QTest::newRow("minus a margin on both sides") << Qt::ElideRight << 0 << 0 << 15 << 70;
    QTest::newRow("minus all of them") << Qt::ElideRight << 10 << 10 << 10 << 60;
    QTest::newRow("QLabel's default indent of -1 adds a pixel")
            << Qt::ElideRight << 0 << -1 << 0 << 101;
    QTest::newRow("nothing is left") << Qt::ElideRight << 99 << 0 << 0 << 1;
}

void tst_OxaLabelPlacement::elidesToTheWidthThatIsLeft()
{
    QFETCH(const Qt::TextElideMode, mode);
    QFETCH(const int, padding);
    QFETCH(const int, indent);
    QFETCH(const int, margin);
    QFETCH(const int, left);
    const QString text = QStringLiteral("a text that is much longer than its label");
    OxaLabel label;
    label.setFontToken(OxaFont::Token::Title);
    label.resize(100, 30);
    label.setElidePadding(padding);
    QCOMPARE(label.getElidedText(text, indent, margin), text);
    label.setElideMode(mode);
    const QString elided = QFontMetrics(label.font()).elidedText(text, mode, left);
    QVERIFY(elided != text);
    QCOMPARE(label.getElidedText(text, indent, margin), elided);
    QCOMPARE(label.getElidedText(QStringLiteral("a"), 0, 0), QStringLiteral("a"));
}

void tst_OxaLabelPlacement::beginsItsTextByItsVerticalAlignment_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<bool>("wrap");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("offset");
    const QFontMetrics metrics { OxaFont(OxaFont::Token::Default) };
    const int line = metrics.height();
    const int twoLines = metrics.boundingRect(QRect(), 0, QStringLiteral("wordy\nwordy")).height();
    const Qt::Alignment top = Qt::AlignTop;
    const Qt::Alignment middle = Qt::AlignVCenter;
    const Qt::Alignment bottom = Qt::AlignBottom;
    QTest::newRow("at the top") << top << false << 100 << 0;
    QTest::newRow("in the middle") << middle << false << 100 << (100 - line) / 2;
    QTest::newRow("at the bottom") << bottom << false << 100 << 100 - line;
    QTest::newRow("at the top, with wrapping") << top << true << 100 << 0;
    QTest::newRow("in the middle, with two lines") << middle << true << 100 << (100 - twoLines) / 2;
    QTest::newRow("at the bottom, with two lines") << bottom << true << 100 << 100 - twoLines;
    QTest::newRow("in the middle, too high") << middle << true << line << 0;
    QTest::newRow("at the bottom, too high") << bottom << true << line << 0;
}

void tst_OxaLabelPlacement::beginsItsTextByItsVerticalAlignment()
{
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const bool, wrap);
    QFETCH(const int, height);
    QFETCH(const int, offset);
    const QString word = QStringLiteral("wordy");
    OxaLabel label(word + QLatin1Char(' ') + word);
    label.setAlignment(alignment);
    label.setWordWrap(wrap);
    label.resize(label.fontMetrics().horizontalAdvance(word) + 2, height);
    QCOMPARE(label.getTextOffset(), QPointF(0, offset));
}

void tst_OxaLabelPlacement::alignsItsTextByTheDirections_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QVariant>("textDirection");
    QTest::addColumn<Qt::Alignment>("horizontal");
    const Qt::Alignment left = Qt::AlignLeft;
    const Qt::Alignment right = Qt::AlignRight;
    QTest::newRow("left to right") << Qt::LeftToRight << QVariant() << left;
    QTest::newRow("left to right, text left to right") << Qt::LeftToRight << QVariant(0) << left;
    QTest::newRow("left to right, text right to left") << Qt::LeftToRight << QVariant(1) << left;
    QTest::newRow("right to left") << Qt::RightToLeft << QVariant() << right;
    QTest::newRow("right to left, text left to right") << Qt::RightToLeft << QVariant(0) << right;
    QTest::newRow("right to left, text right to left") << Qt::RightToLeft << QVariant(1) << left;
    QTest::newRow("right to left, text automatic") << Qt::RightToLeft << QVariant(2) << left;
    QTest::newRow("right to left, text right to left as an enumerator")
            << Qt::RightToLeft << QVariant::fromValue(Qt::RightToLeft) << left;
    QTest::newRow("right to left, text left to right as an enumerator")
            << Qt::RightToLeft << QVariant::fromValue(Qt::LeftToRight) << right;
}

void tst_OxaLabelPlacement::alignsItsTextByTheDirections()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QVariant, textDirection);
    QFETCH(const Qt::Alignment, horizontal);
    const ApplicationPropertyGuard text("TextDirection", textDirection);
    const LayoutDirectionGuard layout(direction);
    const OxaLabel label;
    QCOMPARE(label.alignment(), horizontal | Qt::AlignVCenter);
}

void tst_OxaLabelPlacement::overwritesTheAlignmentWhenTheDirectionChanges()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QVariant, textDirection);
    QFETCH(const Qt::Alignment, horizontal);
    const LayoutDirectionGuard before(direction == Qt::LeftToRight ? Qt::RightToLeft
                                                                   : Qt::LeftToRight);
    OxaLabel label;
    label.setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    const ApplicationPropertyGuard text("TextDirection", textDirection);
    QCOMPARE(label.alignment(), Qt::AlignHCenter | Qt::AlignBottom);
    const LayoutDirectionGuard after(direction);
    QCOMPARE(label.alignment(), horizontal | Qt::AlignBottom);
}

void tst_OxaLabelPlacement::swapsItsMarginsWhenTheDirectionChanges()
{
    OxaLabel label;
    label.setContentsMargins(1, 2, 3, 4);
    {
        const LayoutDirectionGuard guard(Qt::RightToLeft);
        QCOMPARE(label.contentsMargins(), QMargins(3, 2, 1, 4));
    }
    QCOMPARE(label.contentsMargins(), QMargins(1, 2, 3, 4));
}

UIELEMENTS_TEST_MAIN(tst_OxaLabelPlacement)
#include "tst_oxalabel_placement.moc"
