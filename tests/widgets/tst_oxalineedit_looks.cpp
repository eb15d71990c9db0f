// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaLineEdit.h>

#include <QProxyStyle>
#include <QStyleOption>

namespace {

/// Records how it is asked for focus frames.
class FrameStyle : public QProxyStyle
{
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_FrameFocusRect)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        ++frames;
        isOnNoDevice = painter && !painter->isActive() && !painter->device();
        rect = option->rect;
        state = option->state;
        frameOf = widget;
    }

    mutable int frames = 0;
    mutable bool isOnNoDevice = false;
    mutable QRect rect;
    mutable QStyle::State state;
    mutable const QWidget *frameOf = nullptr;
};

/// Sets a style for the application, and restores Fusion when it is destroyed.
class FrameStyleGuard
{
    Q_DISABLE_COPY_MOVE(FrameStyleGuard)

public:
    FrameStyleGuard() { QApplication::setStyle(style); }
    ~FrameStyleGuard() { QApplication::setStyle(QStringLiteral("Fusion")); }

    FrameStyle *const style = new FrameStyle;
};

} // namespace

Q_DECLARE_METATYPE(Qt::Alignment)

/// What a line edit looks like: its sides and its focus frame.
class tst_OxaLineEditLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void swapsItsMarginsWithTheLayoutDirection();
    void alignsItsTextWithTheLayoutDirection_data();
    void alignsItsTextWithTheLayoutDirection();
    void drawsNoFocusFrameByItself();
    void drawsAFocusFrameForTheKeyboardAlone();
};

void tst_OxaLineEditLooks::swapsItsMarginsWithTheLayoutDirection()
{
    OxaLineEdit edit;
    edit.setContentsMargins(1, 2, 3, 4);
    {
        const LayoutDirectionGuard direction(Qt::RightToLeft);
        QCOMPARE(edit.contentsMargins(), QMargins(3, 2, 1, 4));
    }
    QCOMPARE(edit.contentsMargins(), QMargins(1, 2, 3, 4));
    edit.onLayoutDirectionChanged();
    QCOMPARE(edit.contentsMargins(), QMargins(3, 2, 1, 4));
}

void tst_OxaLineEditLooks::alignsItsTextWithTheLayoutDirection_data()
{
    QTest::addColumn<Qt::Alignment>("before");
    QTest::addColumn<bool>("isCentred");
    const std::pair<const char *, Qt::Alignment> alignments[] = {
        { "none", {} },
        { "left", Qt::AlignLeft },
        { "left, top", Qt::AlignLeft | Qt::AlignTop },
        { "right, bottom", Qt::AlignRight | Qt::AlignBottom },
        { "justified", Qt::AlignJustify | Qt::AlignVCenter },
        { "absolute", Qt::AlignAbsolute | Qt::AlignRight },
        { "top", Qt::AlignTop },
        { "horizontal centre, top", Qt::AlignHCenter | Qt::AlignTop },
    };
    for (const auto &[name, alignment] : alignments)
        QTest::newRow(name) << alignment << false;
    QTest::newRow("centre") << Qt::Alignment(Qt::AlignCenter) << true;
    QTest::newRow("horizontal centre") << Qt::Alignment(Qt::AlignHCenter) << true;
}

void tst_OxaLineEditLooks::alignsItsTextWithTheLayoutDirection()
{
    QFETCH(const Qt::Alignment, before);
    QFETCH(const bool, isCentred);
    const std::tuple<QVariant, Qt::LayoutDirection, Qt::Alignment> sides[] = {
        { QVariant(), Qt::LeftToRight, Qt::AlignLeft },
        { QVariant(), Qt::RightToLeft, Qt::AlignRight },
        { int(Qt::LeftToRight), Qt::RightToLeft, Qt::AlignRight },
        { int(Qt::RightToLeft), Qt::RightToLeft, Qt::AlignLeft },
        { int(Qt::RightToLeft), Qt::LeftToRight, Qt::AlignLeft },
    };
    for (const auto &[textDirection, layoutDirection, side] : sides) {
        const ApplicationPropertyGuard property("TextDirection", textDirection);
        const LayoutDirectionGuard direction(layoutDirection);
        OxaLineEdit edit;
        edit.setAlignment(before);
        QCOMPARE(edit.alignment(), before);
        edit.onLayoutDirectionChanged();
        QCOMPARE(edit.alignment(), isCentred ? before : (before & Qt::AlignVertical_Mask) | side);
    }
}

void tst_OxaLineEditLooks::drawsNoFocusFrameByItself()
{
    const FrameStyleGuard guard;
    OxaLineEdit edit;
    QVERIFY(Faces::focusByKeyboard(edit));
    edit.repaint();
    QCOMPARE(guard.style->frames, 0);
}

void tst_OxaLineEditLooks::drawsAFocusFrameForTheKeyboardAlone()
{
    const FrameStyleGuard guard;
    OxaLineEdit edit;
    edit.enableFocusRing();
    QVERIFY(Faces::focusByKeyboard(edit));
    guard.style->frames = 0;
    edit.repaint();
    QCOMPARE(guard.style->frames, 1);
    // The painter is on no device: the style draws elsewhere.
    QVERIFY(guard.style->isOnNoDevice);
    QCOMPARE(guard.style->rect, edit.rect());
    QVERIFY(guard.style->state.testFlag(QStyle::State_HasFocus));
    QCOMPARE(guard.style->frameOf, &edit);
    edit.setAttribute(Qt::WA_KeyboardFocusChange, false);
    guard.style->frames = 0;
    edit.repaint();
    QCOMPARE(guard.style->frames, 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaLineEditLooks)
#include "tst_oxalineedit_looks.moc"
