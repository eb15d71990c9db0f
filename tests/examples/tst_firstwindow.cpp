// SPDX-License-Identifier: Apache-2.0
#include "ClientApplication.h"
#include "FirstWindow.h"
#include "support/Guards.h"
#include "support/Pixels.h"

#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QAbstractButton>
#include <QDirIterator>
#include <QListView>
#include <QTest>

#include <algorithm>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The blocks of code of the tutorial that show the example, shell commands apart.
QVector<QByteArray> quotedBlocks()
{
    QVector<QByteArray> blocks;
    const QByteArray tutorial = contentOf(QStringLiteral(TUTORIAL));
    constexpr char fence[] = "\n```";
    for (int start = tutorial.indexOf(fence); start >= 0; start = tutorial.indexOf(fence, start)) {
        const int code = tutorial.indexOf('\n', start + 1) + 1;
        const int end = tutorial.indexOf(fence, code - 1) + 1;
        if (!tutorial.mid(start).startsWith("\n```sh\n"))
            blocks.append(tutorial.mid(code, end - code));
        start = tutorial.indexOf('\n', end);
    }
    return blocks;
}

QColor normalColor(const char *set)
{
    return OxaThemeUtils::getColorSet(set, OxaThemeUtils::AppThemeType::Global).normal;
}

} // namespace

/// The example of docs/first-window.md.
class tst_FirstWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void standsInTheTutorialWordForWord();
    void takesTheOtherColorsAtTheDarkButton();
    void turnsRoundAtTheDirectionButton();
    void listsPeople();
    void drawsTheEmoji();
    void goesToTheListAtTheSearchKey();

private:
    QAbstractButton *button(const QString &text) const;

    std::unique_ptr<FirstWindow> m_window;
};

void tst_FirstWindow::init()
{
    m_window = std::make_unique<FirstWindow>();
    m_window->resize(360, 320);
    connect(m_window.get(), &FirstWindow::darkChosen, m_window.get(),
            [](bool dark) { qobject_cast<ClientApplication *>(qApp)->setDark(dark); });
}

QAbstractButton *tst_FirstWindow::button(const QString &text) const
{
    const auto buttons = m_window->findChildren<QAbstractButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](const auto *one) { return one->text() == text; });
    return found == buttons.end() ? nullptr : *found;
}

void tst_FirstWindow::standsInTheTutorialWordForWord()
{
    QByteArray example;
    QDirIterator files(QStringLiteral(EXAMPLE), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        example += contentOf(files.next());

    const QVector<QByteArray> blocks = quotedBlocks();
    QVERIFY(blocks.size() >= 6);
    for (const QByteArray &block : blocks)
        QVERIFY2(example.contains(block), block.constData());
}

void tst_FirstWindow::takesTheOtherColorsAtTheDarkButton()
{
    const StoreGuard stores(OxaThemeUtils::getAppOxaColorSets(),
                            OxaThemeUtils::getAppInvertedOxaColorSets());
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
    QVERIFY(shows("action-button", button(QStringLiteral("Dark"))));
}

void tst_FirstWindow::turnsRoundAtTheDirectionButton()
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

void tst_FirstWindow::goesToTheListAtTheSearchKey()
{
    button(QStringLiteral("Dark"))->setFocus();
    Q_EMIT OxaAppSignals::get()->openGlobalSearch();
    QCOMPARE(m_window->focusWidget(), m_window->findChild<QListView *>());
    QCOMPARE(OxaAppSignals::get()->getKeySequence(OxaAppSignals::Shortcut::OpenGlobalSearch),
             QKeySequence(Qt::CTRL | Qt::Key_F));
}

int main(int argc, char **argv)
{
    ClientApplication application(argc, argv);
    tst_FirstWindow test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_firstwindow.moc"
