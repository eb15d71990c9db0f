// SPDX-License-Identifier: Apache-2.0
#include "EmojiLabelParts.h"
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QAbstractTextDocumentLayout>
#include <QTextFrame>

namespace {

using namespace EmojiLabelParts;

QRectF frameOf(const EmojiLabel &label)
{
    const QTextDocument &document = label.document();
    return document.documentLayout()->frameBoundingRect(document.rootFrame());
}

/// A label that overrides the position of its text.
class PlacedLabel : public EmojiLabel
{
public:
    using EmojiLabel::EmojiLabel;
    QPointF getTextOffset() const override { return { 31, 7 }; }
};

/// A label with a device pixel ratio of 2.5.
class DenseLabel : public EmojiLabel
{
public:
    static constexpr double pixelRatio = 2.5;
    using EmojiLabel::EmojiLabel;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmDevicePixelRatioScaled ? int(pixelRatio * devicePixelRatioFScale())
                                                   : EmojiLabel::metric(metric);
    }
};

/// Returns how many of \a calls ask for \a element.
int count(const std::vector<RecordingStyle::Call> &calls, QStyle::PrimitiveElement element)
{
    return int(std::count_if(calls.begin(), calls.end(),
                             [element](const auto &call) { return call.element == element; }));
}

} // namespace

/// Where OxaEmojiLabel paints its text and emoji, and the size that it asks for.
class tst_OxaEmojiLabelPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_surroundings = std::make_unique<Surroundings>(); }
    void cleanupTestCase() { m_surroundings.reset(); }

    void paintsAnEmojiAsHighAsItsLine_data();
    void paintsAnEmojiAsHighAsItsLine();
    void rendersEmojiForItsPixelRatio();
    void paintsNothingWithoutText();
    void paintsItsFrameAroundItsText();
    void paintsItsTextInTheTextColour();
    void placesItsText_data();
    void placesItsText();
    void paintsItsTextWhereASubclassPlacesIt();
    void placesAnEmptyTextAsALabelDoes();
    void leavesPaddingsEmpty();
    void asksForTheSizeOfItsText();
    void drawsAFrameForKeyboardFocus();
    void drawsNoFrameForOtherFocus();

private:
    std::unique_ptr<Surroundings> m_surroundings;
};

void tst_OxaEmojiLabelPainting::paintsAnEmojiAsHighAsItsLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("one emoji") << face << 1;
    QTest::newRow("the same emoji twice") << face + face << 2;
    QTest::newRow("two different emoji") << face + heart << 2;
}

void tst_OxaEmojiLabelPainting::paintsAnEmojiAsHighAsItsLine()
{
    QFETCH(const QString, text);
    QFETCH(const int, count);
    EmojiLabel label(text);
    label.resize(200, 100);
    const int edge = label.fontMetrics().height();
    const QImage image = Pixels::render(label);
    QCOMPARE(Pixels::countNear(image, Qt::red), count * edge * edge);
    QCOMPARE(Pixels::boundsNear(image, Qt::red), QRect(0, 0, count * edge, edge));
}

void tst_OxaEmojiLabelPainting::rendersEmojiForItsPixelRatio()
{
    DenseLabel label;
    label.setText(face);
    const auto format = label.document().begin().begin().fragment().charFormat().toImageFormat();
    const QVariant picture = label.document().resource(QTextDocument::ImageResource,
                                                       QUrl(format.name()));
    const int height = label.fontMetrics().height();
    QCOMPARE(format.width(), qreal(height));
    const int edge = int(height * DenseLabel::pixelRatio);
    QCOMPARE(picture.value<QImage>().size(), QSize(edge, edge));
}

void tst_OxaEmojiLabelPainting::paintsNothingWithoutText()
{
    EmojiLabel label;
    label.resize(200, 50);
    QImage blank(200, 50, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::white);
    QCOMPARE(Pixels::render(label), blank);
}

void tst_OxaEmojiLabelPainting::paintsItsFrameAroundItsText()
{
    EmojiLabel label(face);
    label.setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    label.setLineWidth(2);
    label.resize(200, 50);
    label.updateTextColor(Qt::magenta);
    const QImage image = Pixels::render(label);
    QCOMPARE(Pixels::boundsNear(image, Qt::magenta), QRect(0, 0, 200, 50));
    QCOMPARE(Pixels::countNear(image, Qt::magenta, QRect(100, 0, 10, 50)), 10 * (2 + 2));
    // The frame does not move the text, which is painted over it.
    QCOMPARE(Pixels::boundsNear(image, Qt::red).topLeft(), QPoint());
}

void tst_OxaEmojiLabelPainting::paintsItsTextInTheTextColour()
{
    EmojiLabel label(QStringLiteral("text \u2588\u2588"));
    label.resize(200, 50);
    label.updateTextColor(Qt::magenta);
    label.updateText();
    QVERIFY(Pixels::countNear(Pixels::render(label), Qt::magenta) > 50);
}

void tst_OxaEmojiLabelPainting::placesItsText_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<QPointF>("leftToRight");
    QTest::addColumn<QPointF>("rightToLeft");
    // As fractions of the free space.
    const auto add = [](const char *name, Qt::Alignment alignment, const QPointF &leftToRight,
                        const QPointF &rightToLeft) {
        QTest::newRow(name) << alignment << leftToRight << rightToLeft;
    };
    add("left and top", Qt::AlignLeft | Qt::AlignTop, { 0, 0 }, { 1, 0 });
    add("right is where lines begin", Qt::AlignRight | Qt::AlignTop, { 0, 0 }, { 1, 0 });
    add("centred", Qt::AlignHCenter | Qt::AlignTop, { 0.5, 0 }, { 0.5, 0 });
    add("in the middle", Qt::AlignLeft | Qt::AlignVCenter, { 0, 0.5 }, { 1, 0.5 });
    add("bottom is the top", Qt::AlignLeft | Qt::AlignBottom, { 0, 0 }, { 1, 0 });
    add("centred in the middle", Qt::AlignCenter, { 0.5, 0.5 }, { 0.5, 0.5 });
}

void tst_OxaEmojiLabelPainting::placesItsText()
{
    QFETCH(const Qt::Alignment, alignment);
    QFETCH(const QPointF, leftToRight);
    QFETCH(const QPointF, rightToLeft);
    EmojiLabel label;
    label.resize(201, 101);
    label.setAlignment(alignment);
    label.setText(QStringLiteral("Hi ") + face);
    const QSizeF room = QSizeF(label.size()) - frameOf(label).size();
    const auto expected = [&room](const QPointF &parts) {
        return QPointF(parts.x() * room.width(), parts.y() * room.height());
    };
    QCOMPARE(label.getTextOffset(), expected(leftToRight));
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    label.setAlignment(alignment);
    QCOMPARE(label.getTextOffset(), expected(rightToLeft));
}

void tst_OxaEmojiLabelPainting::paintsItsTextWhereASubclassPlacesIt()
{
    PlacedLabel label(face);
    label.resize(200, 100);
    const int edge = label.fontMetrics().height();
    QCOMPARE(Pixels::boundsNear(Pixels::render(label), Qt::red), QRect(31, 7, edge, edge));
}

void tst_OxaEmojiLabelPainting::placesAnEmptyTextAsALabelDoes()
{
    EmojiLabel label;
    OxaLabel other;
    for (QLabel *each : { static_cast<QLabel *>(&label), static_cast<QLabel *>(&other) }) {
        each->resize(100, 61);
        each->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    }
    QCOMPARE(label.getTextOffset(), other.getTextOffset());
    QCOMPARE(label.getTextOffset().x(), 0.0);
    QVERIFY(label.getTextOffset().y() > 0);
    label.setWordWrap(true);
    label.resize(100, 5);
    QCOMPARE(label.getTextOffset(), QPointF());
}

void tst_OxaEmojiLabelPainting::leavesPaddingsEmpty()
{
    EmojiLabel label;
    label.resize(200, 50);
    label.setTextLeftPadding(17);
    label.setText(face);
    QCOMPARE(Pixels::boundsNear(Pixels::render(label), Qt::red).left(), 17);
    const LayoutDirectionGuard guard(Qt::RightToLeft);
    const int right = Pixels::boundsNear(Pixels::render(label), Qt::red).right();
    QCOMPARE(right, 200 - 1 - 17);
}

void tst_OxaEmojiLabelPainting::asksForTheSizeOfItsText()
{
    EmojiLabel label(QStringLiteral("some text"));
    const auto truncated = [&label] {
        return QSize(int(frameOf(label).width()), int(frameOf(label).height()));
    };
    QCOMPARE(label.sizeHint(), truncated());
    QCOMPARE(label.sizeHint().height(), label.fontMetrics().height());
    label.setText(face + QLatin1String("some text") + face + unknownFace);
    QCOMPARE(label.sizeHint(), truncated() + QSize(6, 0));
    // A tag in the text names its emoji twice, and both count.
    label.setText(EmojiNotation::tag("1f600", face));
    QCOMPARE(label.pictures(), QStringList { face });
    QCOMPARE(label.sizeHint(), truncated() + QSize(6, 0));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    QCOMPARE(label.sizeHint(), truncated());
    QCOMPARE(EmojiLabel().sizeHint().width(), 0);
}

void tst_OxaEmojiLabelPainting::drawsAFrameForKeyboardFocus()
{
    const ApplicationStyleGuard style;
    EmojiLabel label(QStringLiteral("text"));
    label.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(Faces::focusByKeyboard(label));
    const int before = count(style.calls(), QStyle::PE_FrameFocusRect);
    Pixels::render(label);
    QCOMPARE(count(style.calls(), QStyle::PE_FrameFocusRect), before + 1);
    QCOMPARE(style.calls().back().optionType, int(QStyleOption::SO_FocusRect));
    QCOMPARE(style.calls().back().rect, label.rect());
    QCOMPARE(style.calls().back().widget, &label);
}

void tst_OxaEmojiLabelPainting::drawsNoFrameForOtherFocus()
{
    const ApplicationStyleGuard style;
    EmojiLabel label(QStringLiteral("text"));
    label.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(Windows::activate(label));
    label.setFocus(Qt::MouseFocusReason);
    QVERIFY(label.hasFocus());
    label.window()->setAttribute(Qt::WA_KeyboardFocusChange, false);
    const int before = count(style.calls(), QStyle::PE_FrameFocusRect);
    Pixels::render(label);
    QCOMPARE(count(style.calls(), QStyle::PE_FrameFocusRect), before);
}

UIELEMENTS_TEST_MAIN(tst_OxaEmojiLabelPainting)
#include "tst_oxaemojilabel_painting.moc"
