// SPDX-License-Identifier: Apache-2.0
#include "Words.h"

namespace {

/// The words of \a list, which are separated by bars.
QStringList split(const char *list) { return QString::fromUtf8(list).split(QLatin1Char('|')); }

} // namespace

namespace Words {

const QStringList firstNames[scripts] = {
    split("Ada|Ben|Clara|Dario|Elif|Femi|Greta|Hugo|Ines|Jonas|Katya|Łukasz|Mai|Noé|Ola|Petra"),
    split("ليلى|عمر|سارة|يوسف|نور|كريم"),
    split("נועה|איתן|תמר|יונתן|מאיה|דניאל"),
    split("さくら|健太|美咲|翔太|結衣|大輔"),
    split("आरव|दिया|विवान|अनन्या|रोहन|मीरा"),
};

const QStringList lastNames[scripts] = {
    split("Adeyemi|Berg|Costa|Dvořák|Eriksen|Fischer|García|Hughes|Ivanova|Jensen|Kaya|"
          "Lindqvist"),
    split("حداد|منصور|الخطيب|سليم|ناصر"),
    split("כהן|לוי|מזרחי|פרץ|ברק"),
    split("佐藤|鈴木|高橋|田中|伊藤"),
    split("शर्मा|वर्मा|गुप्ता|सिंह|पटेल"),
};

const QStringList sentences[scripts] = {
    split("Good morning!|The build is green again.|Can somebody look at the second page?|"
          "I have moved the meeting to Thursday, because half of us are away on "
          "Wednesday.|Done.|"
          "Thanks a lot, that helps.|What do we tell the customers?|Let's keep it simple.|"
          "I measured it twice: it takes 12 ms now, and took 90 ms before.|On my way.|"
          "Here is what I found: the list is sorted again at each message, although nothing "
          "moved.|"
          "Who has the key to the meeting room?|Lunch?|I'd rather wait for the review.|"
          "Sounds good to me|Yes|No idea, sorry.|The train is late, start without me.|"
          "Two of the pictures are too dark; I have sent new ones to everybody who needs them.|"
          "Could you write that down somewhere where we find it again next year?|See you "
          "tomorrow."),
    split("صباح الخير!|شكرا جزيلا.|هل يمكننا تأجيل الاجتماع إلى يوم الخميس؟|أنا في الطريق.|"
          "انتهيت من مراجعة الصفحة الثانية، وكل شيء يعمل كما ينبغي.|متى موعد الغداء؟|نعم"),
    split("בוקר טוב!|תודה רבה.|אפשר להזיז את הפגישה ליום חמישי?|אני בדרך.|"
          "סיימתי לעבור על העמוד השני, והכול עובד כמו שצריך.|מתי אוכלים צהריים?|כן"),
    split("おはようございます！|ありがとうございます。|会議を木曜日に変更できますか？|"
          "今向かっています。|"
          "二ページ目を確認しましたが、すべて問題なく動いています。|お昼はどうしますか？|はい"),
    split("सुप्रभात!|बहुत धन्यवाद।|क्या हम बैठक को गुरुवार तक टाल सकते हैं?|मैं रास्ते में हूँ।|"
          "मैंने दूसरा पृष्ठ देख लिया है, सब कुछ ठीक चल रहा है।|दोपहर का खाना कब है?|हाँ"),
};

const QStringList topics = split(
        "Release|Design review|Support|Garden|Choir|Football|Lunch|Travel|Reading circle|"
        "Web site|Translations|Printing|Night shift|New colleagues|Budget|اجتماع الفريق|"
        "מועדון הקריאה|開発チーム|परियोजना|Photos|Workshop|Weekend|Sailing|Books");

const QStringList professions = split("Engineer|Designer|Translator|Support|Product manager|"
                                      "Writer|Sales|Office manager");

} // namespace Words
