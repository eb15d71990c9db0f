// SPDX-License-Identifier: Apache-2.0
#include "support/NaiveStyleText.h"

#include <QCoreApplication>
#include <QDebug>
#include <QRegularExpression>
#include <QVariant>

namespace {

/// A directive as it is cut out of a text; one that isn't there has no position.
struct Cut
{
    int position = -1;
    int length = 0;
    QString value;
};

/// Finds the first directive whose tag, less its "$" and ":", is \a word.
Cut find(const QString &text, const QString &word)
{
    const QRegularExpression directive(QStringLiteral("\\$%1:([^;]*);").arg(word));
    const QRegularExpressionMatch match = directive.match(text);
    return { match.capturedStart(), match.capturedLength(), match.captured(1).trimmed() };
}

Cut take(QString &text, const QString &word)
{
    const Cut cut = find(text, word);
    if (cut.position >= 0)
        text.remove(cut.position, cut.length);
    return cut;
}

bool has(const QString &text, const QString &word)
{
    return text.contains(QRegularExpression(word));
}

OxaColorSet lookUp(const QString &name, const OxaColorSetMap &colorSets)
{
    const auto found = colorSets.find(name.toStdString());
    return found == colorSets.end() ? OxaColorSet() : found->second;
}

QString resolve(const QString &reference, const OxaColorSetMap &colorSets)
{
    const QStringList parts = reference.split(QStringLiteral("."));
    const OxaColorSet set = lookUp(parts.first(), colorSets);
    if (!set.isValid()) {
        qWarning() << "OxaThemeUtils: format is invalid! expected: $(colorSetName.state) found:"
                   << reference;
        return QString();
    }
    const QString state = parts.size() == 1 ? QStringLiteral("normal")
                                            : reference.section(QLatin1Char('.'), 1);
    const QColor color = set.colorForState(state);
    return color.isValid() ? color.name(QColor::HexArgb) : QString();
}

QString block(const QString &property, const QColor &color)
{
    return QStringLiteral("{%1%2;}").arg(property, color.name(QColor::HexArgb));
}

/// The rules of a set in the store.
QString rulesOf(const OxaColorSet &set, const QString &property, const QString &selector,
                bool isBorder)
{
    QString rules = selector + block(property, set.normal);
    const QVector<QPair<QString, QColor>> states = {
        { QStringLiteral(":checked"), set.checked },   { QStringLiteral(":focus"), set.focused },
        { QStringLiteral(":hover"), set.hovered },     { QStringLiteral(":pressed"), set.pressed },
        { QStringLiteral(":disabled"), set.disabled },
    };
    for (const auto &state : states) {
        if (state.second.isValid() && state.second != set.normal)
            rules += selector + state.first + block(property, state.second);
    }
    const bool globalFocus = QCoreApplication::instance()
            && QCoreApplication::instance()->property("useGlobalFocusBorders").toBool();
    if (isBorder && set.focused.isValid() && set.focused != set.normal && !globalFocus)
        rules += selector + QStringLiteral("{outline:none;}");
    return rules;
}

/// The rule of a gradient, or nothing where the store lacks one of its two sets.
QString gradientOf(const QString &value, const QString &selector, const OxaColorSetMap &colorSets)
{
    const QString rest = value.section(QStringLiteral("gradient-"), 1);
    QString kind = rest == QStringLiteral("primary") ? QStringLiteral("primary")
                                                     : QStringLiteral("secondary");
    if (has(value, QStringLiteral("-dialog")))
        kind = QStringLiteral("dialog-secondary");
    const std::string first =
            QStringLiteral("theme-gradient-%1-1-background").arg(kind).toStdString();
    const std::string last =
            QStringLiteral("theme-gradient-%1-0-background").arg(kind).toStdString();
    if (colorSets.count(first) == 0 || colorSets.count(last) == 0)
        return QString();
    return selector
            + QStringLiteral("{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 %1, "
                             "stop:1 %2); }")
                      .arg(colorSets.at(first).normal.name(QColor::HexArgb),
                           colorSets.at(last).normal.name(QColor::HexArgb));
}

OxaColorSet expand(QString &text, const QString &word, const QString &property,
                   const QString &selector, const OxaColorSetMap &colorSets)
{
    const Cut cut = find(text, word);
    if (cut.position < 0)
        return OxaColorSet();
    const bool isBackground = property == QStringLiteral("background-color:");
    const bool isText = property == QStringLiteral("color:");

    const OxaColorSet set = lookUp(cut.value, colorSets);
    if (set.normal.isValid()) {
        text.replace(cut.position, cut.length,
                     rulesOf(set, property, selector, !isBackground && !isText));
        return set;
    }
    if (isBackground) {
        QString rule;
        if (cut.value == QStringLiteral("none"))
            rule = selector + block(property, QColor(Qt::transparent));
        else if (has(cut.value, QStringLiteral("gradient-")))
            rule = gradientOf(cut.value, selector, colorSets);
        if (rule.isEmpty())
            return OxaColorSet();
        text.replace(cut.position, cut.length, rule);
        return OxaColorSet(QStringLiteral("transparent"), QColor(Qt::transparent));
    }
    const QColor color(cut.value);
    if (!isText || !color.isValid())
        return OxaColorSet(cut.value, QColor());
    text.replace(cut.position, cut.length, selector + block(property, color));
    return OxaColorSet(cut.value, color);
}

QString cornerOf(int corner)
{
    switch (corner) {
    case 1:
        return QStringLiteral("top-left");
    case 2:
        return QStringLiteral("top-right");
    case 3:
        return QStringLiteral("bottom-left");
    case 4:
        return QStringLiteral("bottom-right");
    default:
        return QString();
    }
}

QString radiusDeclarations(const OxaCSSData &data)
{
    const QString length = QString::number(data.borderRadius) + QStringLiteral("px;");
    if (data.borderRadius == 0)
        return QString();
    if (data.radiusCorner == 5)
        return QStringLiteral("border-top-left-radius:") + length
                + QStringLiteral(" border-top-right-radius:") + length;
    if (!cornerOf(data.radiusCorner).isEmpty())
        return QStringLiteral("border-%1-radius:").arg(cornerOf(data.radiusCorner)) + length;
    return QStringLiteral("border-radius:") + length;
}

QString borderDeclarations(const OxaCSSData &data)
{
    const bool all = data.borderTop && data.borderRight && data.borderBottom && data.borderLeft;
    const bool any = data.borderTop || data.borderRight || data.borderBottom || data.borderLeft;
    if (all && data.borderWidth == 0)
        return QStringLiteral("border:none;");
    if (!any && !data.noBorder)
        return QStringLiteral("border:none;");
    if (data.noBorder)
        return radiusDeclarations(data);

    const QString width = QStringLiteral("width:%1px;").arg(data.borderWidth);
    if (all)
        return QStringLiteral("border-style:solid; border-") + width + radiusDeclarations(data);
    QString text = QStringLiteral("border-style:solid;");
    if (data.borderTop)
        text += QStringLiteral("border-top-") + width;
    if (data.borderRight)
        text += QStringLiteral("border-right-") + width;
    if (data.borderBottom)
        text += QStringLiteral("border-bottom-") + width;
    if (data.borderLeft)
        text += QStringLiteral("border-left-") + width;
    return text + radiusDeclarations(data);
}

void readWidth(QString &text, OxaCSSData &data)
{
    const Cut cut = take(text, QStringLiteral("borderWidth"));
    if (cut.value.isEmpty())
        return;
    bool isNumber = false;
    const int width = cut.value.toInt(&isNumber, 10);
    data.borderWidth = !isNumber || width < 1 ? 1 : static_cast<quint8>(width & 0xff);
}

void readSides(QString &text, OxaCSSData &data, int &position)
{
    const Cut cut = take(text, QStringLiteral("borders"));
    if (cut.value.isEmpty())
        return;
    const bool all = has(cut.value, QStringLiteral("all"));
    data.borderTop = all || has(cut.value, QStringLiteral("top"));
    data.borderRight = all || has(cut.value, QStringLiteral("right"));
    data.borderBottom = all || has(cut.value, QStringLiteral("bottom"));
    data.borderLeft = all || has(cut.value, QStringLiteral("left"));
    position = cut.position;

    int mask = 0;
    for (int corner = 1; corner <= 4; ++corner) {
        if (!has(text, cornerOf(corner) + QStringLiteral("-radius")))
            mask += 1 << (corner - 1);
    }
    if (mask == 15 && has(text, QStringLiteral("Radius")))
        mask = 0;
    data.rectangularCornerMask = static_cast<quint8>(mask);
}

int cornerIn(const QString &word)
{
    const int parts = word.split(QStringLiteral("-")).size();
    if (parts == 1 && word == QStringLiteral("top"))
        return 5;
    for (int corner = 1; parts == 2 && corner <= 4; ++corner) {
        if (has(word, cornerOf(corner)))
            return corner;
    }
    return 0;
}

void readRadius(QString &text, OxaCSSData &data, int &position)
{
    const Cut cut = take(text, QStringLiteral("borderRadius"));
    if (cut.value.isEmpty())
        return;
    const QStringList parts = cut.value.split(QStringLiteral(" "), Qt::KeepEmptyParts);
    QString number = cut.value;
    if (parts.size() == 2) {
        number = parts.at(0);
        data.radiusCorner = cornerIn(parts.at(1));
    }
    data.borderRadius = static_cast<quint8>(number.toUInt(nullptr, 10) & 0xff);
    position = cut.position;
}

void insertBorderRule(QString &text, OxaCSSData &data, const QString &selector)
{
    const bool hasBorderSet = !data.borderColorSetName.isEmpty();
    data.borderTop = data.borderRight = data.borderBottom = data.borderLeft = hasBorderSet;
    data.borderWidth = hasBorderSet ? 1 : 0;
    int position = data.backgroundColorSetName.isEmpty() && !hasBorderSet
                    && data.textColorSetName.isEmpty()
            ? -1
            : 0;
    readWidth(text, data);
    readSides(text, data, position);
    readRadius(text, data, position);
    data.noBorder = !hasBorderSet && data.borderRadius != 0;
    if (position >= 0)
        text.insert(position,
                    selector + QStringLiteral("{") + borderDeclarations(data)
                            + QStringLiteral("}"));
}

} // namespace

QString NaiveStyleText::substituteReferences(const QString &text, const OxaColorSetMap &colorSets)
{
    QString result = text;
    int offset = 0;
    QRegularExpressionMatchIterator matches = QRegularExpression(QStringLiteral("\\$\\(.*?\\)"))
                                                      .globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString reference = match.captured().mid(2).chopped(1);
        const QString color = resolve(reference, colorSets);
        if (color.isEmpty())
            continue;
        result.replace(match.capturedStart() + offset, match.capturedLength(), color);
        offset += color.length() - match.capturedLength();
    }
    return result;
}

OxaThemeUtils::CSSParserResult NaiveStyleText::parse(const QString &selector, const QString &text,
                                                     const OxaColorSetMap &colorSets)
{
    OxaThemeUtils::CSSParserResult result;
    result.expandedStyleSheet = text;
    if (text.isEmpty() || selector.isEmpty() || colorSets.empty())
        return result;

    QString working = substituteReferences(text, colorSets);
    result.backgroundColorSet = expand(working, QStringLiteral("backgroundColors"),
                                       QStringLiteral("background-color:"), selector, colorSets);
    result.borderColorSet = expand(working, QStringLiteral("borderColors"),
                                   QStringLiteral("border-color:"), selector, colorSets);
    result.textColorSet = expand(working, QStringLiteral("textColors"), QStringLiteral("color:"),
                                 selector, colorSets);
    if (result.backgroundColorSet.isValid())
        result.oxaCSS.backgroundColorSetName = result.backgroundColorSet.name;
    if (result.borderColorSet.isValid())
        result.oxaCSS.borderColorSetName = result.borderColorSet.name;
    if (result.textColorSet.isValid())
        result.oxaCSS.textColorSetName = result.textColorSet.name;
    insertBorderRule(working, result.oxaCSS, selector);

    QString plain = text;
    for (const char *word : { "backgroundColors", "borderColors", "textColors", "borders",
                              "borderRadius", "borderWidth" })
        take(plain, QLatin1String(word));
    result.oxaCSS.plainStyleSheet = plain.trimmed();
    result.expandedStyleSheet = working;
    return result;
}

QString NaiveStyleText::toStyleText(OxaCSSData data)
{
    const bool all = data.borderTop && data.borderRight && data.borderBottom && data.borderLeft;
    const bool any = data.borderTop || data.borderRight || data.borderBottom || data.borderLeft;
    data.noBorder = !any && data.borderRadius != 0;

    QString radius;
    if (data.borderRadius != 0) {
        const QString corner = data.radiusCorner == 5 ? QStringLiteral("top")
                                                      : cornerOf(data.radiusCorner);
        radius = QStringLiteral("$borderRadius:%1;")
                         .arg(QStringLiteral("%1 %2").arg(data.borderRadius).arg(corner).trimmed());
    }
    const QString width = QStringLiteral("$borderWidth:%1;").arg(data.borderWidth);

    QString text;
    if (data.noBorder) {
        text = radius;
    } else if (all && data.borderWidth != 0) {
        text = QStringLiteral("$borders: all; ") + width + radius;
    } else if (any && !all) {
        text = QStringLiteral("$borders:%1%2%3%4; ")
                        .arg(QLatin1String(data.borderTop ? " top" : ""),
                             QLatin1String(data.borderRight ? " right" : ""),
                             QLatin1String(data.borderBottom ? " bottom" : ""),
                             QLatin1String(data.borderLeft ? " left" : ""))
                + width + radius;
    }
    QStringList parts = { text };
    if (!data.backgroundColorSetName.trimmed().isEmpty())
        parts += QStringLiteral("$backgroundColors: ") + data.backgroundColorSetName.trimmed()
                + QStringLiteral(";");
    if (!data.borderColorSetName.trimmed().isEmpty() && !data.noBorder)
        parts += QStringLiteral("$borderColors: ") + data.borderColorSetName.trimmed()
                + QStringLiteral(";");
    if (!data.textColorSetName.trimmed().isEmpty())
        parts += QStringLiteral("$textColors: ") + data.textColorSetName.trimmed()
                + QStringLiteral(";");
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" ")) + data.plainStyleSheet;
}
