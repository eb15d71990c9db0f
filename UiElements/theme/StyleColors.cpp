// SPDX-License-Identifier: Apache-2.0
#include "StyleColors_p.h"
#include "StyleDirective_p.h"

#include <QCoreApplication>
#include <QDebug>
#include <QStringBuilder>
#include <QVariant>

#include <algorithm>
#include <array>
#include <optional>

using OxaThemeUtils::ColorSetType;

namespace {

/// A colour reference in a style text: "$(inside)", all of it on one line.
struct Reference
{
    int begin = 0; ///< Where its "$" stands.
    int end = 0;   ///< Behind its ")".
    QString inside;
};

/// What a colour directive expands to. Without rules it stays in the sheet.
struct Expansion
{
    OxaColorSet set;
    QString rules;
};

/// The property of each ColorSetType, in its order.
constexpr std::array<QStringView, 3> properties = { u"background-color:", u"border-color:",
                                                    u"color:" };

/// A state that has a rule of its own where its colour is not the normal one.
struct State
{
    QStringView pseudoState;
    QColor OxaColorSet::*color;
};

/// The states in order of rising strength. The last rule that matches wins: disabled beats pressed,
/// pressed beats hover, and hover beats focus and checked.
constexpr std::array<State, 5> states = { {
        { u":checked", &OxaColorSet::checked },
        { u":focus", &OxaColorSet::focused },
        { u":hover", &OxaColorSet::hovered },
        { u":pressed", &OxaColorSet::pressed },
        { u":disabled", &OxaColorSet::disabled },
} };

const OxaColorSet *findSet(const OxaColorSetMap &colorSets, const QString &name)
{
    const auto found = colorSets.find(name.toStdString());
    return found == colorSets.cend() ? nullptr : &found->second;
}

QString nameOf(const QColor &color) { return color.name(QColor::HexArgb); }

/// Finds the first reference in \a text that begins at \a from or later.
std::optional<Reference> findReference(const QString &text, int from)
{
    constexpr QStringView opening = u"$(";
    const auto isEnd = [](QChar character) {
        return character == QLatin1Char(')') || character == QLatin1Char('\n');
    };
    int end = from;
    for (int begin = 0; (begin = text.indexOf(opening, end)) >= 0;) {
        const int inside = begin + int(opening.size());
        end = int(std::find_if(text.begin() + inside, text.end(), isEnd) - text.begin());
        if (end < text.size() && text[end] == QLatin1Char(')'))
            return Reference { begin, end + 1, text.mid(inside, end - inside) };
        // No "$(" up to the end of this line has a ")": the search goes on behind it.
    }
    return std::nullopt;
}

/// Returns the colour that a reference names by \a inside, or an invalid one and a warning.
QColor referencedColor(const QString &inside, const OxaColorSetMap &colorSets)
{
    const int dot = inside.indexOf(QLatin1Char('.'));
    const OxaColorSet *set = findSet(colorSets, inside.left(dot));
    if (!set || !set->isValid()) {
        QMessageLogger().warning()
                << "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) found:"
                << inside;
        return {};
    }
    return dot < 0 ? set->normal : set->colorForState(QStringView(inside).mid(dot + 1));
}

QString ruleFor(ColorSetType type, const QString &selector, const QColor &color)
{
    const QStringView property = properties[static_cast<std::size_t>(type)];
    return selector % u'{' % property % nameOf(color) % u";}";
}

bool usesGlobalFocusBorders()
{
    const QCoreApplication *app = QCoreApplication::instance();
    return app && app->property("useGlobalFocusBorders").toBool();
}

QString rulesForStates(ColorSetType type, const QString &selector, const OxaColorSet &set)
{
    const auto differs = [&set](const QColor &color) {
        return color.isValid() && color != set.normal;
    };
    QString rules = ruleFor(type, selector, set.normal);
    for (const State &state : states) {
        if (differs(set.*state.color))
            rules += ruleFor(type, selector % state.pseudoState, set.*state.color);
    }
    if (type == ColorSetType::Border && differs(set.focused) && !usesGlobalFocusBorders())
        rules += selector % u"{outline:none;}";
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
    const OxaColorSet *start = findSet(colorSets, u"theme-gradient-" % kind % u"-1-background");
    const OxaColorSet *end = findSet(colorSets, u"theme-gradient-" % kind % u"-0-background");
    if (!start || !end)
        return {};
    return { OxaThemeUtils::transparentColourSet(),
             selector % u"{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 "
                     % nameOf(start->normal) % u", stop:1 " % nameOf(end->normal) % u"); }" };
}

/// Expands a background that is no set: "none" or a gradient.
Expansion expandBackgroundWord(const QString &value, const QString &selector,
                               const OxaColorSetMap &colorSets)
{
    constexpr QStringView marker = u"gradient-";
    if (value == QLatin1String("none")) {
        return { OxaThemeUtils::transparentColourSet(),
                 ruleFor(ColorSetType::Background, selector, Qt::transparent) };
    }
    const int gradient = value.indexOf(marker);
    if (gradient < 0)
        return {};
    const QStringView word = QStringView(value).mid(gradient + marker.size());
    return expandGradient(gradientKind(value, word), selector, colorSets);
}

/// Expands a literal colour, which only a text may have. The directive of a border stays in any
/// case, so that a border without a set keeps no name in the record and draws no line.
Expansion expandLiteralColor(const QString &value, ColorSetType type, const QString &selector)
{
    const QColor color = type == ColorSetType::Text ? QColor(value) : QColor();
    return { OxaColorSet(value, color),
             color.isValid() ? ruleFor(type, selector, color) : QString() };
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
    QString text;
    int copied = 0; // How much of the style text is in the new one.
    for (auto reference = findReference(styleText, 0); reference;
         reference = findReference(styleText, reference->end)) {
        const QColor color = referencedColor(reference->inside, colorSets);
        if (!color.isValid())
            continue;
        text += styleText.midRef(copied, reference->begin - copied) % nameOf(color);
        copied = reference->end;
    }
    return text + styleText.midRef(copied);
}

OxaColorSet StyleColors::expandDirective(QString &sheet, ColorSetType type, const QString &selector,
                                         const OxaColorSetMap &colorSets)
{
    const auto directive = StyleDirective::find(sheet, StyleTag::of(type));
    if (!directive)
        return {};
    const Expansion expansion = expand(directive->value, type, selector, colorSets);
    if (!expansion.rules.isEmpty())
        sheet.replace(directive->position, directive->length, expansion.rules);
    return expansion.set;
}
