// SPDX-License-Identifier: Apache-2.0
#include "StyleDirective_p.h"

std::optional<StyleDirective> StyleDirective::find(const QString &text, QStringView tag)
{
    const int position = text.indexOf(tag);
    if (position < 0)
        return std::nullopt;
    const int valuePosition = position + int(tag.size());
    const int end = text.indexOf(QLatin1Char(';'), valuePosition);
    if (end < 0)
        return std::nullopt;
    const QString value = text.mid(valuePosition, end - valuePosition).trimmed();
    return StyleDirective { position, end + 1 - position, value };
}

std::optional<StyleDirective> StyleDirective::take(QString &text, QStringView tag)
{
    const auto directive = find(text, tag);
    if (directive)
        text.remove(directive->position, directive->length);
    return directive;
}
