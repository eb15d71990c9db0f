// SPDX-License-Identifier: Apache-2.0
#include "StyleTexts.h"
#include "support/RandomSeed.h"
#include "support/TestMain.h"

#include <vector>

namespace {

constexpr int cases = 6000;

/// A construct of the style language and its expansion, which is written by hand.
struct Construct
{
    const char *text;
    const char *sheet;
    const char *set = ""; ///< The name that it leaves in the record.
};

/// Texts between directives. None of them ends in a tag, or has a ")" or ";" that would end one.
const std::vector<Construct> plainTexts = {
    { "#bar{padding:1px}", "#bar{padding:1px}" },
    { "$", "$" },
    { "$$ (x) ", "$$ (x) " },
    { "\n", "\n" },
    { "$(x\n", "$(x\n" },
    { "$unknown: 1;", "$unknown: 1;" },
    { "$(x.hovered)", "#ff445566" },
    { "$(y)", "#ff778899" },
    { "$$(states.checked)", "$#ff000006" },
};

/// A colour directive: variants of the first one in a text, and a second one, which stays.
struct ColorDirective
{
    std::vector<Construct> first;
    const char *second;
};

const std::vector<ColorDirective> colorDirectives = {
    { {
              { "$backgroundColors: y;", "#bar{background-color:#ff778899;}", "y" },
              { "$backgroundColors:x ;",
                "#bar{background-color:#ff112233;}#bar:hover{background-color:#ff445566;}", "x" },
              { "$backgroundColors: none;", "#bar{background-color:#00000000;}", "transparent" },
              { "$backgroundColors: red;", "$backgroundColors: red;" },
              { "$backgroundColors: gradient-primary;", "$backgroundColors: gradient-primary;" },
      },
      "$backgroundColors: y;" },
    { {
              { "$borderColors:\ny;", "#bar{border-color:#ff778899;}", "y" },
              { "$borderColors: red;", "$borderColors: red;" },
              { "$borderColors: $(y);", "$borderColors: #ff778899;" },
      },
      "$borderColors: y;" },
    { {
              { "$textColors: y;", "#bar{color:#ff778899;}", "y" },
              { "$textColors: #336699;", "#bar{color:#ff336699;}", "#336699" },
              { "$textColors: nope;", "$textColors: nope;" },
              { "$textColors: $(y);", "#bar{color:#ff778899;}", "#ff778899" },
      },
      "$textColors: y;" },
};

/// The border directives of a text and the declarations of its border rule, without and with a set
/// for the border.
struct Border
{
    const char *width;
    const char *sides;
    const char *radius;
    const char *declarations;
    const char *declarationsWithSet;
};

const std::vector<Border> borders = {
    { "", "", "", "border:none;", "border-style:solid; border-width:1px;" },
    { "", "", "$borderRadius: 4;", "border-radius:4px;",
      "border-style:solid; border-width:1px;border-radius:4px;" },
    { "$borderWidth: 3;", "", "", "border:none;", "border-style:solid; border-width:3px;" },
    { "", "$borders: all;", "$borderRadius: 4;", "border:none;",
      "border-style:solid; border-width:1px;border-radius:4px;" },
    { "$borderWidth: 3;", "$borders:all;", "", "border-style:solid; border-width:3px;",
      "border-style:solid; border-width:3px;" },
    { "$borderWidth: 300;", "$borders: bottom top;", "$borderRadius: 7 top-right;",
      "border-top-right-radius:7px;",
      "border-style:solid;border-top-width:44px;border-bottom-width:44px;"
      "border-top-right-radius:7px;" },
    { "$borderWidth: 2;", "$borders: left;", "$borderRadius:9 top;",
      "border-top-left-radius:9px; border-top-right-radius:9px;",
      "border-style:solid;border-left-width:2px;"
      "border-top-left-radius:9px; border-top-right-radius:9px;" },
    { "$borderWidth: wide;", "$borders: right;", "", "border-style:solid;border-right-width:1px;",
      "border-style:solid;border-right-width:1px;" },
};

/// Constructs without an end, which are only put at the end of a text.
const std::vector<Construct> unclosedTexts = {
    { "", "" },
    { "$(x.hovered", "$(x.hovered" },
    { "$(x$(y$(", "$(x$(y$(" },
    { "$textColors: x", "$textColors: x" },
    { "$borders: all $borderRadius: 4", "$borders: all $borderRadius: 4" },
};

/// A random text and its expansion.
class RandomText
{
public:
    explicit RandomText(std::mt19937 &generator) : m_generator(generator)
    {
        for (const ColorDirective &kind : colorDirectives)
            addDirective(oneOf(kind.first), kind.second);
        addBorder(oneOf(borders));
        for (int count = randomFrom(m_generator, 0, 5); count > 0; --count)
            insert({ oneOf(plainTexts) });
        m_pieces.push_back({ oneOf(unclosedTexts) });
    }

    QString text() const { return joined(&Construct::text); }

    QString sheet() const
    {
        QString sheet;
        for (const Piece &piece : m_pieces) {
            if (piece.isPlaceOfBorder)
                sheet += m_borderRule;
            sheet += QLatin1String(piece.construct.sheet);
        }
        return m_hasPlaceOfBorder || m_names.join(QString()).isEmpty() ? sheet
                                                                       : m_borderRule + sheet;
    }

    QString plainText() const
    {
        QString text;
        for (const Piece &piece : m_pieces) {
            if (!piece.isDirective)
                text += QLatin1String(piece.construct.text);
        }
        return text.trimmed();
    }

    /// The names of the background, border and text set.
    QStringList names() const { return m_names; }

private:
    struct Piece
    {
        Construct construct;
        bool isDirective = false;
        bool isPlaceOfBorder = false;
    };

    template <typename Item>
    const Item &oneOf(const std::vector<Item> &items)
    {
        return items[std::size_t(randomFrom(m_generator, 0, int(items.size()) - 1))];
    }

    bool oneIn(int count) { return randomFrom(m_generator, 1, count) == 1; }

    void insert(const Piece &piece)
    {
        m_pieces.insert(m_pieces.begin() + randomFrom(m_generator, 0, int(m_pieces.size())), piece);
    }

    /// Adds a directive, and sometimes \a second behind it, which stays.
    void addDirective(const Construct &construct, const char *second)
    {
        const bool isThere = !oneIn(3);
        m_names += QLatin1String(isThere ? construct.set : "");
        if (isThere)
            insert({ construct, true });
        if (isThere && oneIn(3))
            m_pieces.push_back({ { second, second } });
    }

    void addBorder(const Border &border)
    {
        const bool hasSet = !m_names[1].isEmpty();
        m_borderRule = QStringLiteral("#bar{%1}")
                               .arg(QLatin1String(hasSet ? border.declarationsWithSet
                                                         : border.declarations));
        const bool hasRadius = *border.radius != 0;
        const bool hasSides = *border.sides != 0;
        m_hasPlaceOfBorder = hasRadius || hasSides;
        insert({ { border.width, "" }, true });
        insert({ { border.sides, "" }, true, hasSides && !hasRadius });
        insert({ { border.radius, "" }, true, hasRadius });
    }

    QString joined(const char *Construct::*field) const
    {
        QString text;
        for (const Piece &piece : m_pieces)
            text += QLatin1String(piece.construct.*field);
        return text;
    }

    std::mt19937 &m_generator;
    std::vector<Piece> m_pieces;
    QStringList m_names;
    QString m_borderRule;
    bool m_hasPlaceOfBorder = false;
};

} // namespace

/// Puts random texts together from constructs whose expansions are known.
class tst_OxaThemeUtilsRandomTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expandsEachConstructWhereItStands();
};

void tst_OxaThemeUtilsRandomTexts::expandsEachConstructWhereItStands()
{
    std::mt19937 generator = seededGenerator();
    for (int i = 0; i < cases; ++i) {
        const RandomText random(generator);
        const auto result = StyleTexts::parse(random.text());
        const QString input = random.text() + QLatin1Char('\n');
        QCOMPARE(input + result.expandedStyleSheet, input + random.sheet());
        QCOMPARE(input + result.oxaCSS.plainStyleSheet, input + random.plainText());
        const QStringList names = { result.oxaCSS.backgroundColorSetName,
                                    result.oxaCSS.borderColorSetName,
                                    result.oxaCSS.textColorSetName };
        QCOMPARE(names, random.names());
    }
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaThemeUtilsRandomTexts)
#include "tst_oxathemeutils_randomtexts.moc"
