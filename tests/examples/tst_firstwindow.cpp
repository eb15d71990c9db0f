// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"
#include "FirstWindow.h"
#include "Tutorial.h"
#include "support/Guards.h"
#include "support/Pixels.h"

#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QAbstractButton>
#include <QListView>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

QColor normalColor(const char *set)
{
    return OxaThemeUtils::getColorSet(set, OxaThemeUtils::AppThemeType::Global).normal;
}

/// Returns the contrast of \a a and \a b, from 1 to 21, as accessibility guidelines define it.
double contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double channel) {
            return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
                + 0.0722 * linear(color.blueF());
    };
    const auto [low, high] = std::minmax({ luminance(a), luminance(b) });
    return (high + 0.05) / (low + 0.05);
}

ClientApplication &application() { return *qobject_cast<ClientApplication *>(qApp); }

} // namespace

/// The example of docs/first-window.md.
class tst_FirstWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void matchesTheTutorialWordForWord();
    void switchesColorsAtTheDarkButton();
    void mirrorsTheLayoutAtTheDirectionButton();
    void listsPeople();
    void drawsTheEmoji();
    void focusesTheListAtTheSearchKey();
    void showsFocusInEachAppearance_data() { addAppearances(); }
    void showsFocusInEachAppearance();
    void looksCheckedUnderThePointerToo_data() { addAppearances(); }
    void looksCheckedUnderThePointerToo();
    void keepsTextsReadable_data() { addAppearances(); }
    void keepsTextsReadable();
    void takesTheSelectionFromTheDocuments_data() { addAppearances(); }
    void takesTheSelectionFromTheDocuments();
    void makesButtonsHighEnoughToHit();

private:
    static void addAppearances();
    static void showAppearance();
    QAbstractButton *button(const QString &text) const;

    std::unique_ptr<FirstWindow> m_window;
};

void tst_FirstWindow::init()
{
    m_window = std::make_unique<FirstWindow>();
    m_window->resize(360, 320);
    connect(m_window.get(), &FirstWindow::darkChosen, m_window.get(),
            [](bool dark) { application().setDark(dark); });
    connect(m_window.get(), &FirstWindow::highContrastChosen, m_window.get(),
            [](bool highContrast) { application().setHighContrast(highContrast); });
}

void tst_FirstWindow::cleanup()
{
    m_window.reset();
    application().setDark(false);
    application().setHighContrast(false);
}

void tst_FirstWindow::addAppearances()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("highContrast");
    QTest::newRow("light") << false << false;
    QTest::newRow("dark") << true << false;
    QTest::newRow("high contrast") << false << true;
}

void tst_FirstWindow::showAppearance()
{
    QFETCH(const bool, dark);
    QFETCH(const bool, highContrast);
    application().setDark(dark);
    application().setHighContrast(highContrast);
}

QAbstractButton *tst_FirstWindow::button(const QString &text) const
{
    const auto buttons = m_window->findChildren<QAbstractButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](const auto *one) { return one->text() == text; });
    return found == buttons.end() ? nullptr : *found;
}

void tst_FirstWindow::matchesTheTutorialWordForWord()
{
    const QByteArray example = Tutorial::filesOf(QStringLiteral(EXAMPLE));
    const QVector<QByteArray> blocks = Tutorial::quotedBlocks(QStringLiteral(TUTORIAL));
    QVERIFY(blocks.size() >= 6);
    for (const QByteArray &block : blocks)
        QVERIFY2(example.contains(block), block.constData());
}

void tst_FirstWindow::switchesColorsAtTheDarkButton()
{
    const QColor lightGround = normalColor("window-background");
    button(QStringLiteral("Dark"))->click();
    QVERIFY(normalColor("window-background") != lightGround);

    const QImage picture = m_window->grab().toImage();
    const auto shows = [&](const char *set, const QWidget *widget) {
        return Pixels::countNear(picture, normalColor(set), widget->geometry()) > 0;
    };
    QCOMPARE(picture.pixelColor(2, 2), normalColor("window-background"));
    QVERIFY(shows("text-primary", m_window->findChild<OxaLabel *>()));
    QVERIFY(shows("panel", m_window->findChild<OxaEmojiLabel *>()));
    QVERIFY(shows("panel", m_window->findChild<QListView *>()));
    QVERIFY(shows("chosen-button", button(QStringLiteral("Dark"))));
    QVERIFY(shows("action-button", button(QStringLiteral("High contrast"))));
}

void tst_FirstWindow::mirrorsTheLayoutAtTheDirectionButton()
{
    const LayoutDirectionGuard direction(Qt::LeftToRight);
    const auto *heading = m_window->findChild<OxaLabel *>();
    QCOMPARE(heading->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    button(QStringLiteral("Right to left"))->click();
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QCOMPARE(heading->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
}

void tst_FirstWindow::listsPeople()
{
    const auto *model = m_window->findChild<QListView *>()->model();
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(model->index(1, 0).data().toString(), QStringLiteral("Grace"));
}

void tst_FirstWindow::drawsTheEmoji()
{
    const auto *greeting = m_window->findChild<OxaEmojiLabel *>();
    const QColor hand(0xff, 0xcb, 0x3d);
    QVERIFY(Pixels::countNear(Pixels::render(*m_window), hand) > 20);
    QVERIFY(greeting->getElidedText().contains(QStringLiteral("Ada waves")));
}

void tst_FirstWindow::focusesTheListAtTheSearchKey()
{
    button(QStringLiteral("Dark"))->setFocus();
    Q_EMIT OxaAppSignals::get()->openGlobalSearch();
    QCOMPARE(m_window->focusWidget(), m_window->findChild<QListView *>());
    QCOMPARE(OxaAppSignals::get()->getKeySequence(OxaAppSignals::Shortcut::OpenGlobalSearch),
             QKeySequence(Qt::CTRL | Qt::Key_F));
}

void tst_FirstWindow::showsFocusInEachAppearance()
{
    showAppearance();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    button(QStringLiteral("Right to left"))->setFocus(Qt::TabFocusReason);
    const QImage before = m_window->grab().toImage();
    const QList<QWidget *> controls = { m_window->findChild<QListView *>(),
                                        button(QStringLiteral("Dark")),
                                        button(QStringLiteral("High contrast")) };
    for (QWidget *control : controls) {
        const QPoint onTheFrame = control->geometry().topLeft() + QPoint(control->width() / 2, 0);
        control->setFocus(Qt::TabFocusReason);
        const QColor focused = m_window->grab().toImage().pixelColor(onTheFrame);
        QVERIFY(contrast(focused, before.pixelColor(onTheFrame)) >= 3.0);
        QVERIFY(contrast(focused, normalColor("window-background")) >= 3.0);
    }
}

void tst_FirstWindow::looksCheckedUnderThePointerToo()
{
    showAppearance();
    auto *rightToLeft = button(QStringLiteral("Right to left"));
    const LayoutDirectionGuard direction(Qt::LeftToRight);
    const auto background = [&] {
        const QImage picture = rightToLeft->grab().toImage();
        return picture.pixelColor(6, picture.height() / 2);
    };
    const QColor unchecked = background();
    rightToLeft->setChecked(true);
    QVERIFY(background() != unchecked);
    rightToLeft->setAttribute(Qt::WA_UnderMouse);
    const QColor checkedAndHovered = background();
    rightToLeft->setChecked(false);
    QVERIFY(checkedAndHovered != background());
}

void tst_FirstWindow::keepsTextsReadable()
{
    showAppearance();
    const std::pair<const char *, const char *> pairs[] = {
        { "text-primary", "window-background" }, { "text-primary", "panel" },
        { "action-text", "action-button" },      { "chosen-text", "chosen-button" },
        { "selection-text", "selection" },       { "button-hyperlink-text", "panel" },
    };
    for (const auto &[text, background] : pairs)
        QVERIFY2(contrast(normalColor(text), normalColor(background)) >= 4.5, text);
}

void tst_FirstWindow::takesTheSelectionFromTheDocuments()
{
    showAppearance();
    auto *list = m_window->findChild<QListView *>();
    list->setCurrentIndex(list->model()->index(1, 0));
    const QImage picture = m_window->grab().toImage();
    QVERIFY(Pixels::countNear(picture, normalColor("selection"), list->geometry()) > 100);
}

void tst_FirstWindow::makesButtonsHighEnoughToHit()
{
    m_window->grab(); // Lays the window out.
    for (const char *text : { "Dark", "High contrast", "Right to left" })
        QVERIFY(button(QLatin1String(text))->height() >= 32);
}

int main(int argc, char **argv)
{
    ClientApplication application(argc, argv);
    tst_FirstWindow test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_firstwindow.moc"
