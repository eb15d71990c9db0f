// SPDX-License-Identifier: Apache-2.0
#include "LabelPictures.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

using namespace LabelPictures;

namespace {

/// A window whose label gets the focus by the keyboard or by the mouse.
class FocusWindow : public QWidget
{
public:
    FocusWindow() : label(this)
    {
        resize(200, 100);
        label.setGeometry(50, 30, 100, 40);
        label.setFocusPolicy(Qt::StrongFocus);
    }

    /// Shows the window and gives the label the focus.
    bool focusLabel(Qt::FocusReason reason)
    {
        if (!Windows::activate(*this))
            return false;
        if (reason == Qt::TabFocusReason)
            QTest::keyClick(this, Qt::Key_Tab);
        else
            QTest::mouseClick(&label, Qt::LeftButton);
        return label.hasFocus();
    }

    OxaLabel label;
};

QColor inverse(const QColor &color)
{
    return { 255 - color.red(), 255 - color.green(), 255 - color.blue() };
}

} // namespace

/// How OxaLabel shows the focus, in each of its ways of painting.
class tst_OxaLabelFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void showsAFrameForFocusByKeyboard_data() { addPaths(); }
    void showsAFrameForFocusByKeyboard();
    void showsNoFrameForFocusByMouse_data() { addPaths(); }
    void showsNoFrameForFocusByMouse();
    void paintsTheFrameInTheInverseOfItsBackground_data();
    void paintsTheFrameInTheInverseOfItsBackground();
    void leavesTheFrameToTheApplicationsStyle_data() { addPaths(); }
    void leavesTheFrameToTheApplicationsStyle();
    void keepsTheFrameInPlaceWhereverItsTextBegins();
    void paintsTheTextInTheColorOfFocus_data() { addPaths(); }
    void paintsTheTextInTheColorOfFocus();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaLabelFocus::showsAFrameForFocusByKeyboard()
{
    QFETCH(const Path, path);
    FocusWindow window;
    use(path, window.label);
    window.label.setCSS(QStringLiteral("$backgroundColors: ground;"));
    QVERIFY(window.focusLabel(Qt::TabFocusReason));

    QImage expected = paper(window.label);
    expected.fill(ground);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 100; ++x) {
            const bool isEdge = x == 0 || x == 99 || y == 0 || y == 39;
            if (isEdge && (x + y) % 2 == 1)
                expected.setPixelColor(x, y, inverse(ground));
        }
    }
    QCOMPARE(Pixels::render(window.label), expected);
}

void tst_OxaLabelFocus::showsNoFrameForFocusByMouse()
{
    QFETCH(const Path, path);
    FocusWindow window;
    use(path, window.label);
    window.label.setCSS(QStringLiteral("$backgroundColors: ground;"));
    QVERIFY(window.focusLabel(Qt::MouseFocusReason));
    QCOMPARE(Pixels::countNear(Pixels::render(window.label), ground, QRect(), 0), 100 * 40);
}

void tst_OxaLabelFocus::paintsTheFrameInTheInverseOfItsBackground_data()
{
    QTest::addColumn<QString>("styleText");
    QTest::addColumn<QColor>("under");
    QTest::newRow("the set's normal colour")
            << QStringLiteral("$backgroundColors: ground;") << ground;
    QTest::newRow("a translucent colour as if it were opaque")
            << QStringLiteral("$backgroundColors: thin ground;") << QColor(0x10, 0x80, 0x30);
    QTest::newRow("the palette's without a set") << QString() << QColor(Qt::darkCyan);
    QTest::newRow("the window's for a background of none")
            << QStringLiteral("$backgroundColors: none;") << QColor(Qt::darkMagenta);
}

void tst_OxaLabelFocus::paintsTheFrameInTheInverseOfItsBackground()
{
    QFETCH(const QString, styleText);
    QFETCH(const QColor, under);
    FocusWindow window;
    window.label.setCSS(styleText);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::darkMagenta);
    window.setPalette(palette);
    palette.setColor(QPalette::Window, Qt::darkCyan);
    window.label.setPalette(palette);
    QVERIFY(window.focusLabel(Qt::TabFocusReason));
    QCOMPARE(Pixels::boundsNear(Pixels::render(window.label), inverse(under), 0),
             QRect(0, 0, 100, 40));
}

void tst_OxaLabelFocus::leavesTheFrameToTheApplicationsStyle()
{
    QFETCH(const Path, path);
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    FocusWindow window;
    use(path, window.label);
    QVERIFY(window.focusLabel(Qt::TabFocusReason));
    const QImage image = Pixels::render(window.label);
    QCOMPARE(image, paper(window.label));
    const RecordingStyle::Call &call = style.calls().back();
    QCOMPARE(call.element, QStyle::PE_FrameFocusRect);
    QCOMPARE(call.rect, QRect(0, 0, 100, 40));
    QCOMPARE(call.widget, &window.label);
    QCOMPARE(window.label.property("hasCustomRect"), QVariant(true));
}

void tst_OxaLabelFocus::keepsTheFrameInPlaceWhereverItsTextBegins()
{
    FocusWindow window;
    use(Path::Lines, window.label);
    window.label.setText(QStringLiteral("text"));
    window.label.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    window.label.setCSS(QStringLiteral("$backgroundColors: ground;"));
    QVERIFY(window.focusLabel(Qt::TabFocusReason));
    QVERIFY(window.label.getTextOffset().y() > 0);
    QCOMPARE(Pixels::boundsNear(Pixels::render(window.label), inverse(ground), 0),
             QRect(0, 0, 100, 40));
}

void tst_OxaLabelFocus::paintsTheTextInTheColorOfFocus()
{
    QFETCH(const Path, path);
    FocusWindow window;
    use(path, window.label);
    window.label.setText(QStringLiteral("text"));
    window.label.setCSS(QStringLiteral("$textColors: ink;"));
    window.label.setFontToken(OxaFont::Token::Display);
    QVERIFY(window.focusLabel(Qt::TabFocusReason));
    const QImage image = Pixels::render(window.label);
    QVERIFY(Pixels::countNear(image, QColor(0xf0, 0x78, 0x00), QRect(), 4) > 0);
    QCOMPARE(Pixels::countNear(image, QColor(0xf0, 0x00, 0xa8), QRect(), 4), 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaLabelFocus)
#include "tst_oxalabel_focus.moc"
