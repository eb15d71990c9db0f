// SPDX-License-Identifier: Apache-2.0
#include "StyleDraft_p.h"
#include "StyleTag_p.h"
#include "StyleText_p.h"
#include "TextWriter_p.h"

#include <QCoreApplication>
#include <QDebug>
#include <QVariant>

#include <algorithm>
#include <array>

using OxaThemeUtils::ColorSetType;

namespace {

constexpr char invalidReferenceWarning[] =
        "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) found:";

/// One row for each ColorSetType, in its order.
constexpr std::array<QStringView, 3> blockBegins = { u"{background-color:", u"{border-color:",
                                                     u"{color:" };

constexpr QStringView gradientMarker = u"gradient-";

/// Room for what the longest rule of a state needs besides its selector.
constexpr int blockLength = 40;
constexpr int colorNameLength = 9;
/// A directive has a rule for each of six states at most, and one for the outline.
constexpr int ruleCount = 7;

/// Finds the set that a style text calls \a name.
const OxaColorSet *findSet(const OxaColorSetMap &colorSets, QStringView name)
{
    std::string key(static_cast<std::size_t>(name.size()), '\0');
    char16_t bits = 0;
    std::transform(name.begin(), name.end(), key.begin(), [&bits](QChar character) {
        bits |= character.unicode();
        return static_cast<char>(character.unicode());
    });
    // Names are ASCII but for a user's own, and then nothing needs converting.
    if (bits >= 0x80)
        key = name.toUtf8().toStdString();

    const auto found = colorSets.find(key);
    return found == colorSets.cend() ? nullptr : &found->second;
}

/// Writes the rules of one colour directive.
class RuleWriter
{
public:
    RuleWriter(TextWriter &text, const QString &selector, ColorSetType type)
        : m_selector(selector),
          m_blockBegin(blockBegins[static_cast<std::size_t>(type)]),
          m_writer(text)
    {
    }

    void addRule(QStringView pseudoState, const QColor &color)
    {
        m_writer << m_selector << pseudoState << m_blockBegin << color << u";}";
    }

    /// A set's rules in order of rising strength: the last one that matches wins, so disabled beats
    /// pressed, pressed beats hover, and hover beats focus and checked.
    void addRules(const OxaColorSet &set)
    {
        addRule({}, set.normal);
        addStateRule(u":checked", set.checked, set.normal);
        addStateRule(u":focus", set.focused, set.normal);
        addStateRule(u":hover", set.hovered, set.normal);
        addStateRule(u":pressed", set.pressed, set.normal);
        addStateRule(u":disabled", set.disabled, set.normal);
    }

    void addOutlineRule() { m_writer << m_selector << u"{outline:none;}"; }

private:
    void addStateRule(QStringView pseudoState, const QColor &color, const QColor &normal)
    {
        if (color.isValid() && color != normal)
            addRule(pseudoState, color);
    }

    const QStringView m_selector;
    const QStringView m_blockBegin;
    TextWriter &m_writer;
};

bool usesGlobalFocusBorders()
{
    // Asked for by name only where it is there: a property that isn't is looked for the longest.
    const QCoreApplication *app = QCoreApplication::instance();
    const auto name = QByteArrayLiteral("useGlobalFocusBorders");
    return app && app->dynamicPropertyNames().contains(name)
            && app->property(name.constData()).toBool();
}

bool needsOutlineRule(ColorSetType type, const OxaColorSet &set)
{
    return type == ColorSetType::Border && set.focused.isValid() && set.focused != set.normal
            && !usesGlobalFocusBorders();
}

/// The two sets of a gradient, the one at its start first. A dialog gradient has no primary form.
std::pair<const char *, const char *> gradientSetNames(QStringView value)
{
    if (value.contains(QStringView(u"-dialog")))
        return { "theme-gradient-dialog-secondary-1-background",
                 "theme-gradient-dialog-secondary-0-background" };
    if (value.mid(value.indexOf(gradientMarker) + gradientMarker.size()) == u"primary")
        return { "theme-gradient-primary-1-background", "theme-gradient-primary-0-background" };
    return { "theme-gradient-secondary-1-background", "theme-gradient-secondary-0-background" };
}

OxaColorSet expandGradient(StyleDraft &draft, const StyleDraft::Span &directive,
                           const QString &selector, const OxaColorSetMap &colorSets)
{
    const auto [startName, endName] = gradientSetNames(directive.value);
    const auto start = colorSets.find(startName);
    const auto end = colorSets.find(endName);
    if (start == colorSets.cend() || end == colorSets.cend())
        return {};

    const QColor &startColor = start->second.normal;
    const QColor &endColor = end->second.normal;
    draft.replace(directive, [&](TextWriter &text) {
        text << selector << u"{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 "
             << startColor << u", stop:1 " << endColor << u"); }";
    });
    return OxaThemeUtils::transparentColourSet();
}

/// Replaces \a directive by one rule, which holds for all states.
void replaceByColor(StyleDraft &draft, const StyleDraft::Span &directive, ColorSetType type,
                    const QString &selector, const QColor &color)
{
    draft.replace(directive,
                  [&](TextWriter &text) { RuleWriter(text, selector, type).addRule({}, color); });
}

/// A background that names no set: "none", or a gradient.
OxaColorSet expandSpecialBackground(StyleDraft &draft, const StyleDraft::Span &directive,
                                    const QString &selector, const OxaColorSetMap &colorSets)
{
    if (directive.value == u"none") {
        replaceByColor(draft, directive, ColorSetType::Background, selector, Qt::transparent);
        return OxaThemeUtils::transparentColourSet();
    }
    if (directive.value.contains(gradientMarker))
        return expandGradient(draft, directive, selector, colorSets);
    return {};
}

/// A literal colour, which only a text may have: a border's stays in the sheet on purpose.
OxaColorSet expandLiteralColor(StyleDraft &draft, const StyleDraft::Span &directive,
                               ColorSetType type, const QString &selector)
{
    const QString name = directive.value.toString();
    const QColor color(name);
    if (type != ColorSetType::Text || !color.isValid())
        return { name, QColor() };

    replaceByColor(draft, directive, type, selector, color);
    return { name, color };
}

/// Returns the colour that the inside of a "$(…)" names, or an invalid one and a warning.
QColor referencedColor(QStringView reference, const OxaColorSetMap &colorSets)
{
    const auto dot = reference.indexOf(QLatin1Char('.'));
    const OxaColorSet *set = findSet(colorSets, dot < 0 ? reference : reference.left(dot));
    if (!set || !set->isValid()) {
        QMessageLogger().warning() << invalidReferenceWarning << reference;
        return {};
    }
    return dot < 0 ? set->normal : set->colorForState(reference.mid(dot + 1));
}

} // namespace

int StyleText::roomFor(const StyleDraft &draft, const QString &selector)
{
    return draft.pieceCount() * colorNameLength
            + int(blockBegins.size()) * ruleCount * (selector.size() + blockLength);
}

void StyleText::substituteColorReferences(StyleDraft &draft, const OxaColorSetMap &colorSets)
{
    for (int piece = 0; piece < draft.pieceCount(); ++piece) {
        const auto reference = draft.reference(piece);
        if (!reference)
            continue;
        const QColor color = referencedColor(reference->value, colorSets);
        if (color.isValid())
            draft.replace(*reference, [&color](TextWriter &text) { text << color; });
        else
            piece = reference->last; // What it encloses is no reference of its own.
    }
}

OxaColorSet StyleText::expandColorDirective(StyleDraft &draft, ColorSetType type,
                                            const QString &selector,
                                            const OxaColorSetMap &colorSets)
{
    const auto directive = draft.findDirective(tagOf(type));
    if (!directive)
        return {};

    const OxaColorSet *set = findSet(colorSets, directive->value);
    if (!set || !set->normal.isValid()) {
        return type == ColorSetType::Background
                ? expandSpecialBackground(draft, *directive, selector, colorSets)
                : expandLiteralColor(draft, *directive, type, selector);
    }

    draft.replace(*directive, [&](TextWriter &text) {
        RuleWriter writer(text, selector, type);
        writer.addRules(*set);
        if (needsOutlineRule(type, *set))
            writer.addOutlineRule();
    });
    return *set;
}
