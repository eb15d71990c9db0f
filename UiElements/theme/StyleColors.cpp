// SPDX-License-Identifier: Apache-2.0
#include "FocusFrame_p.h"
#include "StyleColors_p.h"
#include "StyleDirective_p.h"

#include <QDebug>
#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <utility>

using OxaThemeUtils::ColorSetType;

namespace {

/// What a colour directive expands to. Without rules the directive stays in the sheet.
struct Expansion
{
    OxaColorSet set;
    QString rules;
};

/// The property of each ColorSetType, in its order.
constexpr std::array<QStringView, 3> properties = { u"background-color:", u"border-color:",
                                                    u"color:" };

/// Enough for six rules of a selector of usual length. Longer ones take more memory as they grow.
constexpr int expectedRulesLength = 450;

/// A state that has a rule of its own if its colour is not the normal one.
struct State
{
    QStringView pseudoState;
    QColor OxaColorSet::*color;
};

/// The states from weak to strong. The last rule that matches wins: disabled beats pressed, pressed
/// beats hover, and hover beats focus and checked.
constexpr std::array<State, 5> states = { {
        { u":checked", &OxaColorSet::checked },
        { u":focus", &OxaColorSet::focused },
        { u":hover", &OxaColorSet::hovered },
        { u":pressed", &OxaColorSet::pressed },
        { u":disabled", &OxaColorSet::disabled },
} };

const OxaColorSet *findSet(const OxaColorSetMap &colorSets, QStringView name)
{
    const auto found = colorSets.find(name.toUtf8().toStdString());
    return found == colorSets.cend() ? nullptr : &found->second;
}

/// Returns "#aarrggbb", the name of \a color with its alpha first. For the twenty rules of a style
/// text, QColor::name() would take a third of the time of the expansion, mostly to allocate.
std::array<QChar, 9> nameForRule(const QColor &color)
{
    std::array<QChar, 9> name = { QLatin1Char('#') };
    QRgb rgba = color.rgba();
    for (auto digit = name.rbegin(); digit != name.rend() - 1; ++digit, rgba >>= 4)
        *digit = u"0123456789abcdef"[rgba & 0xf];
    return name;
}

/// Returns the end of the reference whose content begins at \a position: its ")", or the end of the
/// line or of the text if that comes first.
int endOfReference(const QString &text, int position)
{
    const auto isEnd = [](QChar character) {
        return character == QLatin1Char(')') || character == QLatin1Char('\n');
    };
    return int(std::find_if(text.begin() + position, text.end(), isEnd) - text.begin());
}

/// Returns the colour that the reference \a inside names, or an invalid one with a warning.
QColor referencedColor(QStringView inside, const OxaColorSetMap &colorSets)
{
    const auto dot = inside.indexOf(QLatin1Char('.'));
    const OxaColorSet *set = findSet(colorSets, dot < 0 ? inside : inside.left(dot));
    if (!set || !set->isValid()) {
        QMessageLogger().warning()
                << "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) found:"
                << inside;
        return {};
    }
    return dot < 0 ? set->normal : set->colorForState(inside.mid(dot + 1));
}

void appendRule(QString &rules, ColorSetType type, const QString &selector, QStringView pseudoState,
                const QColor &color)
{
    const auto name = nameForRule(color);
    rules += selector % pseudoState % u'{' % properties[static_cast<std::size_t>(type)]
            % QStringView(name.data(), qsizetype(name.size())) % u";}";
}

/// Returns the only rule of a directive without states.
QString onlyRule(ColorSetType type, const QString &selector, const QColor &color)
{
    QString rule;
    appendRule(rule, type, selector, u"", color);
    return rule;
}

QString rulesForStates(ColorSetType type, const QString &selector, const OxaColorSet &set)
{
    const auto differs = [&set](const QColor &color) {
        return color.isValid() && color != set.normal;
    };
    QString rules;
    rules.reserve(expectedRulesLength);
    appendRule(rules, type, selector, u"", set.normal);
    for (const State &state : states) {
        if (differs(set.*state.color))
            appendRule(rules, type, selector, state.pseudoState, set.*state.color);
    }
    if (type == ColorSetType::Border && differs(set.focused) && !FocusFrame::areBordersGlobal())
        rules += selector + QLatin1String("{outline:none;}");
    return rules;
}

/// Returns which sets a gradient runs between. A dialog's gradient has no primary form.
QStringView gradientKind(const QString &value, QStringView word)
{
    if (value.contains(QLatin1String("-dialog")))
        return u"dialog-secondary";
    return word == QStringView(u"primary") ? u"primary" : u"secondary";
}

Expansion expandGradient(QStringView kind, const QString &selector, const OxaColorSetMap &colorSets)
{
    const QString name = QStringLiteral("theme-gradient-%1-%2-background").arg(kind);
    const OxaColorSet *start = findSet(colorSets, name.arg(1));
    const OxaColorSet *end = findSet(colorSets, name.arg(0));
    if (!start || !end)
        return {};
    return { OxaThemeUtils::transparentColourSet(),
             selector
                     + QStringLiteral("{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, "
                                      "stop:0 %1, stop:1 %2); }")
                               .arg(start->normal.name(QColor::HexArgb),
                                    end->normal.name(QColor::HexArgb)) };
}

/// Expands a background that is not a colour set: "none" or a gradient.
Expansion expandBackgroundWord(const QString &value, const QString &selector,
                               const OxaColorSetMap &colorSets)
{
    constexpr QStringView marker = u"gradient-";
    if (value == QLatin1String("none")) {
        return { OxaThemeUtils::transparentColourSet(),
                 onlyRule(ColorSetType::Background, selector, Qt::transparent) };
    }
    const int gradient = value.indexOf(marker);
    if (gradient < 0)
        return {};
    const QStringView word = QStringView(value).mid(gradient + marker.size());
    return expandGradient(gradientKind(value, word), selector, colorSets);
}

/// Expands a literal colour, which only a text may have. A border's directive always stays, so that
/// a border without a set has no name in the record and draws no line.
Expansion expandLiteralColor(const QString &value, ColorSetType type, const QString &selector)
{
    const QColor color = type == ColorSetType::Text ? QColor(value) : QColor();
    return { OxaColorSet(value, color),
             color.isValid() ? onlyRule(type, selector, color) : QString() };
}

Expansion expand(const QString &value, ColorSetType type, const QString &selector,
                 const OxaColorSetMap &colorSets)
{
    const OxaColorSet *set = findSet(colorSets, value);
    if (set && set->normal.isValid())
        return { *set, rulesForStates(type, selector, *set) };
    return type == ColorSetType::Background ? expandBackgroundWord(value, selector, colorSets)
                                            : expandLiteralColor(value, type, selector);
}

} // namespace

QString StyleColors::substituteReferences(const QString &styleText, const OxaColorSetMap &colorSets)
{
    const QStringView source(styleText);
    QString text;
    int copied = 0; // How much of the source has been copied.
    int end = 0;
    for (int begin = 0; (begin = positionOf(StyleTag::reference, styleText, end)) >= 0;) {
        const int inside = begin + int(StyleTag::reference.size());
        // Without a ")" the rest of the line has no complete reference: the search continues after
        // it.
        end = endOfReference(styleText, inside);
        if (end == source.size() || source[end] != QLatin1Char(')'))
            continue;
        const QColor color = referencedColor(source.mid(inside, end - inside), colorSets);
        if (!color.isValid())
            continue;
        text += styleText.midRef(copied, begin - copied);
        text += color.name(QColor::HexArgb);
        copied = end + 1;
    }
    return text + styleText.midRef(copied);
}

OxaColorSet StyleColors::expandDirective(QString &sheet, ColorSetType type, const QString &selector,
                                         const OxaColorSetMap &colorSets)
{
    const auto directive = StyleDirective::find(sheet, StyleTag::of(type));
    if (!directive)
        return {};
    const QString value = directive->valueIn(sheet);
    Expansion expansion = expand(value, type, selector, colorSets);
    if (!expansion.rules.isEmpty())
        sheet.replace(directive->position, directive->length, expansion.rules);
    return std::move(expansion.set);
}
