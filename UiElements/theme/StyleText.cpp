// SPDX-License-Identifier: Apache-2.0
#include "StyleText_p.h"

#include <QCoreApplication>
#include <QDebug>
#include <QVariant>

#include <array>

using OxaThemeUtils::ColorSetType;

namespace {

constexpr char invalidReferenceWarning[] =
        "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) found:";

/// One row for each ColorSetType, in its order.
struct ColorDirective
{
    const char *tag;
    const char *property;
};
constexpr std::array<ColorDirective, 3> colorDirectives = { {
        { "$backgroundColors:", "background-color:" },
        { "$borderColors:", "border-color:" },
        { "$textColors:", "color:" },
} };

constexpr char gradientMarker[] = "gradient-";

/// Room for the longest block that a state can need besides its selector.
constexpr int blockLength = 48;
constexpr int stateCount = 6;

const ColorDirective &directiveOf(ColorSetType type)
{
    return colorDirectives[static_cast<std::size_t>(type)];
}

/// Appends "#aarrggbb". QColor::name() builds the same text through two temporary strings, and
/// colours are most of what an expansion writes.
void appendColor(QString &text, const QColor &color)
{
    constexpr char digits[] = "0123456789abcdef";
    std::array<QChar, 9> name = { QLatin1Char('#') };
    QRgb rgba = color.rgba();
    for (std::size_t i = name.size() - 1; i > 0; --i, rgba >>= 4)
        name[i] = QLatin1Char(digits[rgba & 0xf]);
    text.append(name.data(), static_cast<int>(name.size()));
}

/// The rules of one colour directive, written one after the other.
class RuleWriter
{
public:
    RuleWriter(const QString &selector, ColorSetType type)
        : m_selector(selector), m_property(directiveOf(type).property)
    {
        m_rules.reserve((stateCount + 1) * (selector.size() + blockLength));
    }

    void addRule(QLatin1String pseudoState, const QColor &color)
    {
        m_rules += m_selector;
        m_rules += pseudoState;
        m_rules += QLatin1Char('{');
        m_rules += m_property;
        appendColor(m_rules, color);
        m_rules += QLatin1String(";}");
    }

    /// A set's rules in order of rising strength: the last one that matches wins, so disabled beats
    /// pressed, pressed beats hover, and hover beats focus and checked.
    void addRules(const OxaColorSet &set)
    {
        addRule(QLatin1String(), set.normal);
        addStateRule(QLatin1String(":checked"), set.checked, set.normal);
        addStateRule(QLatin1String(":focus"), set.focused, set.normal);
        addStateRule(QLatin1String(":hover"), set.hovered, set.normal);
        addStateRule(QLatin1String(":pressed"), set.pressed, set.normal);
        addStateRule(QLatin1String(":disabled"), set.disabled, set.normal);
    }

    void addOutlineRule()
    {
        m_rules += m_selector;
        m_rules += QLatin1String("{outline:none;}");
    }

    void addGradientRule(const QColor &start, const QColor &end)
    {
        m_rules += m_selector;
        m_rules += QLatin1String("{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 ");
        appendColor(m_rules, start);
        m_rules += QLatin1String(", stop:1 ");
        appendColor(m_rules, end);
        m_rules += QLatin1String("); }");
    }

    const QString &rules() const { return m_rules; }

private:
    void addStateRule(QLatin1String pseudoState, const QColor &color, const QColor &normal)
    {
        if (color.isValid() && color != normal)
            addRule(pseudoState, color);
    }

    const QString &m_selector;
    const QLatin1String m_property;
    QString m_rules;
};

bool usesGlobalFocusBorders()
{
    const QCoreApplication *app = QCoreApplication::instance();
    return app && app->property("useGlobalFocusBorders").toBool();
}

bool needsOutlineRule(ColorSetType type, const OxaColorSet &set)
{
    return type == ColorSetType::Border && set.focused.isValid() && set.focused != set.normal
            && !usesGlobalFocusBorders();
}

void replace(QString &text, const StyleText::Directive &directive, const RuleWriter &writer)
{
    text.replace(directive.position, directive.length, writer.rules());
}

/// The two sets of a gradient, the one at its start first. A dialog gradient has no primary form.
std::pair<const char *, const char *> gradientSetNames(const QString &value)
{
    if (value.contains(QLatin1String("-dialog")))
        return { "theme-gradient-dialog-secondary-1-background",
                 "theme-gradient-dialog-secondary-0-background" };
    const int end = value.indexOf(QLatin1String(gradientMarker)) + int(sizeof gradientMarker) - 1;
    if (QStringView(value).mid(end) == QLatin1String("primary"))
        return { "theme-gradient-primary-1-background", "theme-gradient-primary-0-background" };
    return { "theme-gradient-secondary-1-background", "theme-gradient-secondary-0-background" };
}

/// A background that names no set: "none", or a gradient.
OxaColorSet expandSpecialBackground(QString &text, const StyleText::Directive &directive,
                                    const QString &selector, const OxaColorSetMap &colorSets)
{
    RuleWriter writer(selector, ColorSetType::Background);
    if (directive.value == QLatin1String("none")) {
        writer.addRule(QLatin1String(), Qt::transparent);
    } else if (directive.value.contains(QLatin1String(gradientMarker))) {
        const auto [startName, endName] = gradientSetNames(directive.value);
        const auto start = colorSets.find(startName);
        const auto end = colorSets.find(endName);
        if (start == colorSets.cend() || end == colorSets.cend())
            return {};
        writer.addGradientRule(start->second.normal, end->second.normal);
    } else {
        return {};
    }
    replace(text, directive, writer);
    return OxaThemeUtils::transparentColourSet();
}

/// A literal colour, which only a text may have: a border's stays in the sheet on purpose.
OxaColorSet expandLiteralColor(QString &text, const StyleText::Directive &directive,
                               ColorSetType type, const QString &selector)
{
    const QColor color(directive.value);
    if (type != ColorSetType::Text || !color.isValid())
        return { directive.value, QColor() };

    RuleWriter writer(selector, type);
    writer.addRule(QLatin1String(), color);
    replace(text, directive, writer);
    return { directive.value, color };
}

/// Returns the colour that the inside of a "$(…)" names, or an invalid one and a warning.
QColor referencedColor(QStringView reference, const OxaColorSetMap &colorSets)
{
    const auto dot = reference.indexOf(QLatin1Char('.'));
    const QStringView name = dot < 0 ? reference : reference.left(dot);
    const auto found = colorSets.find(name.toUtf8().toStdString());
    if (found == colorSets.cend() || !found->second.isValid()) {
        QMessageLogger().warning() << invalidReferenceWarning << reference;
        return {};
    }
    return dot < 0 ? found->second.normal : found->second.colorForState(reference.mid(dot + 1));
}

/// Finds the shortest "$(…)" at or after \a from that stays on one line. Returns its position, or
/// -1, and sets \a length.
int findReference(const QString &text, int from, int &length)
{
    while ((from = text.indexOf(QLatin1String("$("), from)) >= 0) {
        int end = from + 2;
        while (end < text.size() && text[end] != QLatin1Char(')') && text[end] != QLatin1Char('\n'))
            ++end;
        if (end < text.size() && text[end] == QLatin1Char(')')) {
            length = end + 1 - from;
            return from;
        }
        from = end;
    }
    return -1;
}

} // namespace

QLatin1String StyleText::colorTag(ColorSetType type)
{
    return QLatin1String(directiveOf(type).tag);
}

std::optional<StyleText::Directive> StyleText::findDirective(const QString &text, QLatin1String tag)
{
    // Hops from "$" to "$": there are few, and looking for one character is the fastest search.
    int position = -1;
    do {
        position = text.indexOf(tag.front(), position + 1);
    } while (position >= 0 && !QStringView(text).mid(position).startsWith(tag));
    if (position < 0)
        return std::nullopt;

    const int valuePosition = position + tag.size();
    const int end = text.indexOf(QLatin1Char(';'), valuePosition);
    if (end < 0)
        return std::nullopt;
    return Directive { position, end + 1 - position,
                       text.mid(valuePosition, end - valuePosition).trimmed() };
}

std::optional<StyleText::Directive> StyleText::takeDirective(QString &text, QLatin1String tag)
{
    auto directive = findDirective(text, tag);
    if (directive)
        text.remove(directive->position, directive->length);
    return directive;
}

void StyleText::substituteColorReferences(QString &text, const OxaColorSetMap &colorSets)
{
    int length = 0;
    int position = 0;
    while ((position = findReference(text, position, length)) >= 0) {
        const QStringView inside = QStringView(text).mid(position + 2, length - 3);
        const QColor color = referencedColor(inside, colorSets);
        if (color.isValid()) {
            QString name;
            appendColor(name, color);
            text.replace(position, length, name);
            length = name.size();
        }
        position += length;
    }
}

OxaColorSet StyleText::expandColorDirective(QString &text, ColorSetType type,
                                            const QString &selector,
                                            const OxaColorSetMap &colorSets)
{
    const auto directive = findDirective(text, colorTag(type));
    if (!directive)
        return {};

    const auto found = colorSets.find(directive->value.toStdString());
    if (found == colorSets.cend() || !found->second.normal.isValid()) {
        return type == ColorSetType::Background
                ? expandSpecialBackground(text, *directive, selector, colorSets)
                : expandLiteralColor(text, *directive, type, selector);
    }

    RuleWriter writer(selector, type);
    writer.addRules(found->second);
    if (needsOutlineRule(type, found->second))
        writer.addOutlineRule();
    replace(text, *directive, writer);
    return found->second;
}
