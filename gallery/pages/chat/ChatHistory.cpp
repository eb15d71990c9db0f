// SPDX-License-Identifier: Apache-2.0
#include "ChatHistory.h"

#include <QDateTime>
#include <QFontDatabase>
#include <QLocale>

#include <random>

namespace {

constexpr int minutesOfDay = 24 * 60;
constexpr int dayBegins = 9 * 60;
constexpr int dayEnds = 18 * 60;
constexpr int longestPauseInGroup = 10;

enum Language { English, German, French, Arabic, Hebrew, Japanese };

struct Author
{
    QString name;
    Language language;
};

const std::vector<Author> &authors()
{
    static const std::vector<Author> all = {
        { QStringLiteral("You"), English },   { QStringLiteral("Ada"), English },
        { QStringLiteral("Benno"), German },  { QStringLiteral("نور"), Arabic },
        { QStringLiteral("Hana"), Japanese }, { QStringLiteral("Fatou"), French },
        { QStringLiteral("דנה"), Hebrew },    { QStringLiteral("Ivo"), English },
    };
    return all;
}

const QStringList &textsIn(Language language)
{
    static const QStringList all[] = {
        { QStringLiteral("Morning! \u2615"), QStringLiteral("The build is green again \u2705"),
          QStringLiteral("Could somebody look at the second draft? I moved the pictures to the "
                         "end and shortened the middle."),
          QStringLiteral("On it"), QStringLiteral("Thank you \u2764\uFE0F"),
          QStringLiteral("I am running five minutes late \U0001F622"),
          QStringLiteral("That is the longest list I have ever scrolled \U0001F602"),
          QStringLiteral("\U0001F44D"), QStringLiteral("\U0001F389\U0001F389\U0001F389"),
          QStringLiteral("Room 7\uFE0F\u20E3 is booked from ten, and coffee comes at half past. "
                         "Bring the numbers of last week, please: we want to compare them line by "
                         "line."),
          QStringLiteral("We ship on Thursday \U0001F680"),
          QStringLiteral("See you after lunch \U0001F44B"),
          QStringLiteral("Three things:\n\u2705 notes\n\u2705 pictures\n\U0001F4C5 a date for the "
                         "talk"),
          QStringLiteral("Who is in? \U0001F1E9\U0001F1EA \U0001F1EB\U0001F1EE "
                         "\U0001F1EB\U0001F1F7 \U0001F1EF\U0001F1F5"),
          QStringLiteral("Fixed. It was a missing minus sign, as always.") },
        { QStringLiteral("Guten Morgen zusammen \U0001F44B\U0001F3FD"),
          QStringLiteral(
                  "Das schaue ich mir gleich nach der Besprechung an. Bis dahin bitte nichts "
                  "verschieben."),
          QStringLiteral("Läuft \U0001F525"), QStringLiteral("Schöne Grüße aus dem Zug") },
        { QStringLiteral("À demain, je prends le train de dix-sept heures \U0001F44B"),
          QStringLiteral("Très bien, merci !"), QStringLiteral("C’est noté \U0001F4C5") },
        { QStringLiteral("صباح الخير \u2615"),
          QStringLiteral("شكرًا للجميع \U0001F60D عمل رائع \U0001F525"),
          QStringLiteral("أرسلت لكم النسخة الجديدة من الملف، أرجو مراجعتها قبل اجتماع يوم الخميس"),
          QStringLiteral("نعم، في الساعة العاشرة") },
        { QStringLiteral("בוקר טוב \u2615"), QStringLiteral("תודה רבה \u2764\uFE0F"),
          QStringLiteral("אני מאחרת בחמש דקות, תתחילו בלעדיי בבקשה"),
          QStringLiteral("מצוין \U0001F44D") },
        { QStringLiteral("おはようございます \u2615"), QStringLiteral("了解です \U0001F44D"),
          QStringLiteral(
                  "資料の最新版を共有フォルダーに置きました。木曜日の会議までにご確認をお願い"
                  "します。"),
          QStringLiteral("お疲れさまでした \U0001F389") },
    };
    return all[language];
}

/// Returns the language that \a author writes: one for which there is a font.
Language languageOf(const Author &author)
{
    static const bool hasJapanese = !QFontDatabase().families(QFontDatabase::Japanese).isEmpty();
    return author.language == Japanese && !hasJapanese ? English : author.language;
}

int firstTextIn(Language language)
{
    int first = 0;
    for (int before = English; before < language; ++before)
        first += textsIn(Language(before)).size();
    return first;
}

/// Returns \a minute, or the begin of work after it if nobody works then.
int inWorkingHours(int minute)
{
    const int inDay = minute % minutesOfDay;
    if (inDay >= dayEnds)
        return minute - inDay + minutesOfDay + dayBegins;
    return minute - inDay + qMax(inDay, dayBegins);
}

QDateTime dateTimeOf(const ChatMessage &message)
{
    static const QDateTime firstDay(QDate(2018, 1, 1), QTime(0, 0), Qt::UTC);
    return firstDay.addSecs(60 * qint64(message.minute));
}

} // namespace

std::vector<ChatMessage> ChatHistory::make(int count, quint32 seed, int minute)
{
    // The distributions of the standard library are not the same everywhere.
    std::minstd_rand random(seed);
    const auto below = [&random](int end) { return int(random() % quint32(end)); };
    std::vector<ChatMessage> messages;
    messages.reserve(std::size_t(count));
    int author = 0;
    int text = 0;
    for (int left = 0; count > 0; --count, --left) {
        if (left == 0) {
            left = 1 + below(4);
            author = (author + 1 + below(int(authors().size()) - 1)) % int(authors().size());
            minute += 1 + below(20);
        }
        minute = inWorkingHours(minute + below(2));
        const Language language = languageOf(authors()[std::size_t(author)]);
        // Nobody says the same twice in a row.
        text += 1 + below(textsIn(language).size() - 1);
        const int textNumber = firstTextIn(language) + text % textsIn(language).size();
        const int reactions = below(5) == 0 ? 1 + below(4) : 0;
        messages.push_back({ minute, quint8(author), quint8(textNumber), quint8(reactions) });
    }
    return messages;
}

ChatStart ChatHistory::startOf(const ChatMessage &message, const ChatMessage *before)
{
    if (!before || before->minute / minutesOfDay != message.minute / minutesOfDay)
        return ChatStart::Day;
    const bool continues = before->author == message.author
            && message.minute - before->minute < longestPauseInGroup;
    return continues ? ChatStart::Nothing : ChatStart::Group;
}

const QStringList &ChatHistory::texts()
{
    static const QStringList all = textsIn(English) + textsIn(German) + textsIn(French)
            + textsIn(Arabic) + textsIn(Hebrew) + textsIn(Japanese);
    return all;
}

const QString &ChatHistory::authorOf(const ChatMessage &message)
{
    return authors()[message.author].name;
}

const std::vector<Reaction> &ChatHistory::reactionsOf(const ChatMessage &message)
{
    static const std::vector<std::vector<Reaction>> all = {
        {},
        { { QStringLiteral("\U0001F44D"), 3 } },
        { { QStringLiteral("\U0001F389"), 4 }, { QStringLiteral("\u2764\uFE0F"), 2 } },
        { { QStringLiteral("\U0001F602"), 1 } },
        { { QStringLiteral("\U0001F44D\U0001F3FD"), 2 },
          { QStringLiteral("\U0001F680"), 1 },
          { QStringLiteral("\u2705"), 1 } },
    };
    return all[message.reactions];
}

QString ChatHistory::timeOf(const ChatMessage &message)
{
    return dateTimeOf(message).toString(QStringLiteral("hh:mm"));
}

QString ChatHistory::dayOf(const ChatMessage &message)
{
    return QLocale::c().toString(dateTimeOf(message).date(), QStringLiteral("dddd, d MMMM yyyy"));
}
