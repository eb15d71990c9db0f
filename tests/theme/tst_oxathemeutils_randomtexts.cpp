// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/NaiveStyleText.h"
#include "support/RandomSeed.h"
#include "support/TestMain.h"

namespace {

/// The same on every machine, so that a case that fails once fails again.
constexpr unsigned seed = 20240517;

constexpr int cases = 6000;

class Random
{
public:
    Random() : m_generator(seed) { qInfo("The seed is %u.", seed); }

    /// Returns a number from 0 to \a count - 1.
    int below(int count) { return randomFrom(m_generator, 0, count - 1); }

    bool oneIn(int count) { return below(count) == 0; }

    QString pick(const QStringList &from) { return from.at(below(from.size())); }

private:
    std::mt19937 m_generator;
};

/// Takes what is logged as long as it lives, instead of letting it fail the test.
class LogCatcher
{
    Q_DISABLE_COPY_MOVE(LogCatcher)

public:
    LogCatcher() : m_before(qInstallMessageHandler(note)) { messages().clear(); }
    ~LogCatcher() { qInstallMessageHandler(m_before); }

    QStringList take()
    {
        QStringList taken;
        taken.swap(messages());
        return taken;
    }

private:
    static QStringList &messages()
    {
        static QStringList messages;
        return messages;
    }
    static void note(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        messages() += message;
    }

    const QtMessageHandler m_before;
};

OxaColorSetMap referenceStore()
{
    OxaColorSet incomplete(QStringLiteral("b"), Qt::red);
    incomplete.hovered = QColor();
    return ColorSets::storeOf({ ColorSets::make(QStringLiteral("a"), { "#112233", "#445566" }),
                                ColorSets::make(QStringLiteral("ab"), { "#80778899" }),
                                incomplete });
}

QStringList split(const char *words) { return QString::fromUtf8(words).split(QLatin1Char('|')); }

// Names that mean something without a set of that name, or need one of it.
const QStringList specialNames = split(
        "none|red||gradient-primary|theme-gradient-primary-0-background|"
        "theme-gradient-primary-1-background|theme-gradient-secondary-0-background|"
        "theme-gradient-secondary-1-background|theme-gradient-dialog-secondary-0-background|"
        "theme-gradient-dialog-secondary-1-background");

/// A store with all that can be odd about sets, each time another part of it.
OxaColorSetMap randomStore(Random &random)
{
    OxaColorSetMap store;
    const auto addSometimes = [&random, &store](const std::string &key, const OxaColorSet &set) {
        if (!random.oneIn(4))
            store[key] = set;
    };
    for (const QString &name : specialNames)
        addSometimes(name.toStdString(), OxaColorSet(name, QColor(0, 0, random.below(256))));
    for (const char *name : { "x", "y", "states" })
        addSometimes(name, StyleTexts::store().at(name));

    OxaColorSet incomplete = ColorSets::make(QStringLiteral("incomplete"),
                                             { "#aabbcc", "#ddeeff" });
    incomplete.focused = QColor();
    addSometimes("incomplete", incomplete);
    OxaColorSet hollow(QStringLiteral("green"), Qt::yellow);
    hollow.normal = QColor();
    addSometimes("green", hollow);
    addSometimes("key", ColorSets::make(QStringLiteral("y"), { "#123456", "#654321" }));
    return store;
}

// What random texts are made of.
const QStringList tags = split("$backgroundColors:|$borderColors:|$textColors:|$borders:|"
                               "$borderRadius:|$borderWidth:");
const QStringList values = split(
        "x|y|states|incomplete|green|key|nope|none|red|#336699|#12|transparent|x y|| |"
        "gradient-primary|gradient-foo|gradient-primary-dialog|gradient-|$(states)|"
        "$(x.hovered)|all|top|right bottom|left|Top|none top|0|1|4|12|256|300|-1|4px|"
        "99999999999|4 top|4 top-left|7 top-right|9 bottom-left|2 bottom-right|4 middle|"
        "4  top|4 top-left-right|4 topmost");
const QStringList junk = split(
        "$(x.normal)|$(y)|$(nope.normal)|$(x.hover)|$(incomplete)|$(|)|$|;|{|}|\n| |all|"
        "color: $(states.checked);|border-top-left-radius: 3px;|bottom-right-radius|"
        "top-right-radius bottom-left-radius|#bar{padding:1px;}|Radius|Radius:|Colors:|"
        "$borders|$border|\xc3\xa4|\xf0\x9f\x98\x80|top-|-radius|adius");
const QStringList gaps = split("| | |a|\n");
const QStringList blanks = split("| | | |\n|\t ");
const QStringList ends = split(";|;|;|;|;|;|;|| ;|\n;");

// Some of which say what only a radius does, by themselves or after what stands before them.
const QStringList selectors = split("#bar|#bar|#bar|QLabel||#top-left-radius|#Radius|left-radius|"
                                    "adius");

QString randomPart(Random &random)
{
    if (random.oneIn(3))
        return random.pick(junk);
    QString directive;
    for (const QStringList &words : { tags, blanks, values, ends })
        directive += random.pick(words);
    return directive;
}

QString randomText(Random &random)
{
    QString text;
    for (int parts = random.below(9); parts > 0; --parts) {
        text += randomPart(random);
        text += random.pick(gaps);
    }
    return text;
}

const QStringList names = split("|x| y |\n|states");

OxaCSSData randomRecord(Random &random)
{
    OxaCSSData data;
    data.backgroundColorSetName = random.pick(names);
    data.borderColorSetName = random.pick(names);
    data.textColorSetName = random.pick(names);
    data.plainStyleSheet = random.pick(names);
    const bool all = random.oneIn(3);
    data.borderTop = all || random.oneIn(2);
    data.borderRight = all || random.oneIn(2);
    data.borderBottom = all || random.oneIn(2);
    data.borderLeft = all || random.oneIn(2);
    data.noBorder = random.oneIn(2);
    data.borderWidth = quint8(random.below(3) * 127);
    data.borderRadius = quint8(random.below(3) * 127);
    data.radiusCorner = random.below(6);
    return data;
}

} // namespace

/// Holds the library against a plain, slow reading of the style language over random texts.
class tst_OxaThemeUtilsRandomTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void substitutesReferencesAsARegularExpressionDoes();
    void expandsAsThePlainReadingDoes();
    void writesRecordsAsThePlainReadingDoes();
};

void tst_OxaThemeUtilsRandomTexts::substitutesReferencesAsARegularExpressionDoes()
{
    Random random;
    const OxaColorSetMap store = referenceStore();
    // Of the characters that end a line somewhere, only the line feed ends one here.
    const QString alphabet = QStringLiteral("$$(()).ab\n;{\r\u0085\u2028");
    int substituted = 0;
    int left = 0;
    for (int i = 0; i < cases; ++i) {
        QString text;
        for (int length = random.below(40); length > 0; --length)
            text += random.oneIn(40) ? QStringLiteral("$(a.hovered)")
                                     : QString(alphabet[random.below(alphabet.size())]);
        LogCatcher log;
        const QString sheet = StyleTexts::sheetOf(text, store);
        const QStringList messages = log.take();
        const QString expected = NaiveStyleText::substituteReferences(text, store);
        QCOMPARE(sheet, expected);
        QCOMPARE(messages, log.take());
        substituted += sheet != text;
        left += !messages.isEmpty();
    }
    qInfo("%d texts changed, %d left a reference.", substituted, left);
    QVERIFY(substituted > cases / 4);
    QVERIFY(left > cases / 10);
}

void tst_OxaThemeUtilsRandomTexts::expandsAsThePlainReadingDoes()
{
    Random random;
    int expanded = 0;
    int left = 0;
    for (int i = 0; i < cases; ++i) {
        const OxaColorSetMap store = randomStore(random);
        const QString text = randomText(random);
        const QString selector = random.pick(selectors);
        LogCatcher log;
        const auto result = OxaThemeUtils::parseCSS(selector, text, store);
        const QStringList messages = log.take();
        const auto expected = NaiveStyleText::parse(selector, text, store);
        const QString input = selector + QLatin1Char('\n') + text + QLatin1Char('\n');
        QCOMPARE(input + StyleRecords::describe(result), input + StyleRecords::describe(expected));
        QCOMPARE(messages, log.take());
        QCOMPARE(OxaThemeUtils::convertToOxaCSS(result.oxaCSS),
                 NaiveStyleText::toStyleText(result.oxaCSS));
        expanded += result.expandedStyleSheet != text;
        left += result.expandedStyleSheet.contains(QLatin1String("Colors:"));
    }
    qInfo("%d texts changed, %d left a colour directive.", expanded, left);
    QVERIFY(expanded > cases / 2);
    QVERIFY(left > cases / 4);
}

void tst_OxaThemeUtilsRandomTexts::writesRecordsAsThePlainReadingDoes()
{
    Random random;
    for (int i = 0; i < cases; ++i) {
        const OxaCSSData data = randomRecord(random);
        QCOMPARE(OxaThemeUtils::convertToOxaCSS(data), NaiveStyleText::toStyleText(data));
    }
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsRandomTexts)
#include "tst_oxathemeutils_randomtexts.moc"
