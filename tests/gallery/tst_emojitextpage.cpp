// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <UiElements/emoji/EmojiTextConverter.h>

#include <QLayout>
#include <QSignalSpy>

#include <pages/emoji/ArtworkCard.h>
#include <pages/emoji/ArtworkModel.h>
#include <pages/emoji/EmojiEdit.h>
#include <pages/emoji/MessageRow.h>
#include <pages/emoji/Messages.h>
#include <pages/emoji/PlaygroundCard.h>
#include <pages/emoji/PlaygroundLabel.h>
#include <pages/emoji/ReactionButton.h>
#include <pages/emoji/TextAnalysis.h>
#include <pages/widgets/Pages.h>
#include <shell/Page.h>
#include <widgets/Buttons.h>
#include <widgets/ListView.h>

Q_DECLARE_METATYPE(ArtworkKind)

namespace {

/// Returns the files that \a text is shown with.
QVector<QString> filesOf(const QString &text)
{
    EmojiTextConverter converter(20, 1.0);
    converter.convert(text);
    return converter.svgFiles();
}

/// Chooses the segment called \a text in \a parent.
void choose(const QWidget &parent, const char *text)
{
    const auto buttons = parent.findChildren<OxaToggleButton *>();
    for (OxaToggleButton *button : buttons) {
        if (button->text() == QLatin1String(text))
            button->click();
    }
}

} // namespace

/// The page "Emoji text".
class tst_EmojiTextPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasArtworkThatIsFoundByItsName();
    void hasArtworkOfEachKind();
    void hasArtworkForItsMessages();
    void knowsTheKindOfArtwork_data();
    void knowsTheKindOfArtwork();
    void passesOverFilesOfOtherNames();
    void showsTheChosenKind();
    void putsChosenArtworkIntoThePlayground();
    void saysHowEmojiAreShown();
    void analysesWhatIsTyped();
    void countsAReactionOnceAndTakesItBack();
    void givesMessagesTheHeightOfTheirLines();
};

void tst_EmojiTextPage::hasArtworkThatIsFoundByItsName()
{
    const ArtworkModel model;
    QVERIFY(model.rowCount() >= 24);
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        const QString path = index.data(ArtworkModel::PathRole).toString();
        QCOMPARE(filesOf(index.data(ArtworkModel::EmojiRole).toString()),
                 QVector<QString> { path });
    }
}

void tst_EmojiTextPage::hasArtworkOfEachKind()
{
    const ArtworkModel model;
    int count = 0;
    for (const ArtworkKind kind : { ArtworkKind::Single, ArtworkKind::SkinTone, ArtworkKind::Joined,
                                    ArtworkKind::Keycap, ArtworkKind::Flag, ArtworkKind::Region }) {
        QVERIFY(model.count(kind) > 0);
        count += model.count(kind);
    }
    QCOMPARE(count, model.fullCount());
}

void tst_EmojiTextPage::hasArtworkForItsMessages()
{
    for (const Message &message : messages()) {
        QString text = message.author + message.text;
        for (const Reaction &reaction : message.reactions) {
            QCOMPARE(filesOf(reaction.emoji).size(), 1);
            text += reaction.emoji;
        }
        // The number sign and the digit of a room are sequences only until a letter follows.
        QCOMPARE(filesOf(text).size(), EmojiTextConverter::sequences(text).size());
    }
}

void tst_EmojiTextPage::knowsTheKindOfArtwork_data()
{
    QTest::addColumn<QString>("stem");
    QTest::addColumn<ArtworkKind>("kind");
    const auto add = [](const char *name, const char *stem, ArtworkKind kind) {
        QTest::newRow(name) << QString::fromLatin1(stem) << kind;
    };
    add("a face", "1f600", ArtworkKind::Single);
    add("with a selector", "2764-fe0f", ArtworkKind::Single);
    add("with a skin tone", "1f44d-1f3fd", ArtworkKind::SkinTone);
    add("joined", "2764-fe0f-200d-1f525", ArtworkKind::Joined);
    add("joined, with a skin tone", "1f469-1f3fd-200d-1f4bb", ArtworkKind::Joined);
    add("a keycap", "0031-fe0f-20e3", ArtworkKind::Keycap);
    add("a flag", "1f1eb-1f1ee", ArtworkKind::Flag);
    add("a flag of a region", "1f3f4-e0067-e0062-e007f", ArtworkKind::Region);
    add("a black flag", "1f3f4", ArtworkKind::Single);
}

void tst_EmojiTextPage::knowsTheKindOfArtwork()
{
    QFETCH(const QString, stem);
    QTEST(artworkKindOf(emojiOfStem(stem)), "kind");
}

void tst_EmojiTextPage::passesOverFilesOfOtherNames()
{
    QCOMPARE(emojiOfStem(QStringLiteral("1f44d-1f3fd")), QStringLiteral("\U0001F44D\U0001F3FD"));
    QCOMPARE(emojiOfStem(QStringLiteral("preview")), QString());
    QCOMPARE(emojiOfStem(QStringLiteral("1f44d-large")), QString());
    QCOMPARE(emojiOfStem(QString()), QString());
}

void tst_EmojiTextPage::showsTheChosenKind()
{
    const ArtworkCard card;
    const auto *model = card.findChild<ArtworkModel *>();
    QCOMPARE(model->rowCount(), model->fullCount());
    choose(card, qPrintable(QStringLiteral("Keycap %1").arg(model->count(ArtworkKind::Keycap))));
    QCOMPARE(model->rowCount(), model->count(ArtworkKind::Keycap));
    for (int row = 0; row < model->rowCount(); ++row)
        QVERIFY(model->index(row).data().toString().endsWith(QLatin1String("-20e3")));
    choose(card, qPrintable(QStringLiteral("All %1").arg(model->fullCount())));
    QCOMPARE(model->rowCount(), model->fullCount());
}

void tst_EmojiTextPage::putsChosenArtworkIntoThePlayground()
{
    const std::unique_ptr<Page> page(Pages::makeEmojiText(nullptr));
    auto *text = page->findChild<PlaygroundCard *>()->findChild<EmojiEdit *>();
    text->clear();
    const auto *view = page->findChild<ListView *>();
    const QModelIndex first = view->model()->index(0, 0);
    QSignalSpy chosen(page->findChild<ArtworkCard *>(), &ArtworkCard::chosen);
    Q_EMIT page->findChild<ListView *>()->clicked(first);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(text->text(), first.data(ArtworkModel::EmojiRole).toString());
}

void tst_EmojiTextPage::saysHowEmojiAreShown()
{
    const PlaygroundCard card;
    const auto isTold = [&card](const char *state) {
        const auto labels = card.findChildren<OxaLabel *>();
        return std::any_of(labels.begin(), labels.end(), [state](const OxaLabel *label) {
            return label->text() == QLatin1String(state);
        });
    };
    QVERIFY(isTold("Emoji are drawn from artwork."));
    choose(card, "Selectable");
    QVERIFY(isTold("Emoji are drawn by the font."));
    QVERIFY(!card.findChild<PlaygroundLabel *>()->shouldDrawSvgEmojis());
    choose(card, "Fixed");
    QVERIFY(isTold("Emoji are drawn from artwork."));
}

void tst_EmojiTextPage::analysesWhatIsTyped()
{
    const QString text = QStringLiteral("7\U0001F44D\U0001F3FD\U0001F47D");
    QCOMPARE(TextAnalysis::codePoints(text),
             QStringLiteral("U+0037    7 keycap base\n"
                            "U+1F44D   1 emoji\n"
                            "U+1F3FD   4 skin tone\n"
                            "U+1F47D   1 emoji"));
    QCOMPARE(TextAnalysis::stems(text),
             QStringLiteral("artwork  1f44d-1f3fd\n"
                            "text     1f47d"));
    QCOMPARE(TextAnalysis::codePoints(QString()), QString());
    QCOMPARE(TextAnalysis::stems(QString()), QString());
}

void tst_EmojiTextPage::countsAReactionOnceAndTakesItBack()
{
    const QString emoji = QStringLiteral("\U0001F44D");
    ReactionButton button(emoji, 7);
    QCOMPARE(button.text(), emoji + QLatin1String(" 7"));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(button.text(), emoji + QLatin1String(" 8"));
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(button.text(), emoji + QLatin1String(" 7"));
}

void tst_EmojiTextPage::givesMessagesTheHeightOfTheirLines()
{
    const Message message = { QStringLiteral("Ada"),
                              QStringLiteral("09:00"),
                              QStringLiteral("one two three four five six seven"),
                              {} };
    const MessageRow row(message, 0);
    const int wide = row.layout()->heightForWidth(600);
    const int narrow = row.layout()->heightForWidth(160);
    QVERIFY(narrow >= wide + row.fontMetrics().height());
}

GALLERY_TEST_MAIN(tst_EmojiTextPage)
#include "tst_emojitextpage.moc"
