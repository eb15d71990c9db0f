// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <QClipboard>
#include <QSignalSpy>
#include <QTextDocument>
#include <QUrl>

#include <pages/emoji/EmojiEdit.h>

namespace {

const QString wave = QStringLiteral("\U0001F44B\U0001F3FD");
const QString party = QStringLiteral("\U0001F389");
const QString alien = QStringLiteral("\U0001F47D");

/// Returns how many pictures \a edit has.
int pictureCount(const EmojiEdit &edit)
{
    return edit.toPlainText().count(QChar(QChar::ObjectReplacementCharacter));
}

/// Returns how many of the pictures in \a edit have an image.
int loadedCount(const EmojiEdit &edit)
{
    int count = 0;
    const QVector<QTextFormat> formats = edit.document()->allFormats();
    for (const QTextFormat &format : formats) {
        const QUrl name(format.toImageFormat().name());
        if (!edit.document()->resource(QTextDocument::ImageResource, name).isNull())
            ++count;
    }
    return count;
}

} // namespace

/// EmojiEdit: what it shows, and the text that it returns.
class tst_EmojiEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTextsBackAsTheyWere_data();
    void givesTextsBackAsTheyWere();
    void showsArtworkForWhatIsInserted();
    void continuesAfterAPicture();
    void copiesCharacters();
    void emitsOneSignalForAChange();
};

void tst_EmojiEdit::givesTextsBackAsTheyWere_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("pictures");
    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("words, with two spaces between them") << QStringLiteral("one  two") << 0;
    QTest::newRow("markup") << QStringLiteral("<b>Room</b> & \"seven\"") << 0;
    QTest::newRow("an emoji among words") << QStringLiteral("Hi %1 there").arg(wave) << 1;
    QTest::newRow("the same one in a row") << party + party + party << 3;
    QTest::newRow("on two lines") << QStringLiteral("%1 a\nb %2").arg(wave, party) << 2;
    QTest::newRow("one without artwork") << QStringLiteral("%1 and %2").arg(alien, party) << 1;
}

void tst_EmojiEdit::givesTextsBackAsTheyWere()
{
    QFETCH(const QString, text);
    EmojiEdit edit;
    edit.setText(text);
    QCOMPARE(edit.text(), text);
    QTEST(pictureCount(edit), "pictures");
    QTEST(loadedCount(edit), "pictures");
}

void tst_EmojiEdit::showsArtworkForWhatIsInserted()
{
    EmojiEdit edit;
    edit.setText(QStringLiteral("ab"));
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(1);
    edit.setTextCursor(cursor);
    edit.insertPlainText(wave);
    QCOMPARE(pictureCount(edit), 1);
    QCOMPARE(edit.text(), QStringLiteral("a%1b").arg(wave));
    edit.insertPlainText(party);
    QCOMPARE(edit.text(), QStringLiteral("a%1%2b").arg(wave, party));
}

void tst_EmojiEdit::continuesAfterAPicture()
{
    EmojiEdit edit;
    edit.insertPlainText(party);
    QTest::keyClicks(&edit, QStringLiteral("go"));
    QCOMPARE(edit.text(), party + QStringLiteral("go"));
    QCOMPARE(pictureCount(edit), 1);
}

void tst_EmojiEdit::copiesCharacters()
{
    EmojiEdit edit;
    const QString text = QStringLiteral("Hi %1 there").arg(wave);
    edit.setText(text);
    edit.selectAll();
    edit.copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
    EmojiEdit other;
    other.paste();
    QCOMPARE(other.text(), text);
    QCOMPARE(pictureCount(other), 1);
}

void tst_EmojiEdit::emitsOneSignalForAChange()
{
    EmojiEdit edit;
    QSignalSpy spy(&edit, &QTextEdit::textChanged);
    edit.insertPlainText(party);
    QCOMPARE(spy.size(), 1);
}

GALLERY_TEST_MAIN(tst_EmojiEdit)
#include "tst_emojiedit.moc"
