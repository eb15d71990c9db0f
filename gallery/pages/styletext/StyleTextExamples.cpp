// SPDX-License-Identifier: Apache-2.0
#include "StyleTextExamples.h"

#include <QCoreApplication>

namespace {

struct Entry
{
    const char *title;
    const char *styleText;
};

constexpr Entry entries[] = {
    { QT_TRANSLATE_NOOP("StyleTextExamples", "Button"),
      "$backgroundColors: gallery-accent-button-background;\n"
      "$textColors: gallery-accent-button-text;\n"
      "$borderRadius: 6;\n"
      "#preview { padding: 8px 16px; }\n"
      "#preview:focus { border: 2px solid $(gallery-accent-button-text); }" },
    { QT_TRANSLATE_NOOP("StyleTextExamples", "Field"),
      "$backgroundColors: gallery-field-background;\n"
      "$borderColors: gallery-field-border;\n"
      "$borderRadius: 6;\n"
      "$textColors: gallery-field-text;" },
    { QT_TRANSLATE_NOOP("StyleTextExamples", "Two sides"),
      "$backgroundColors: gallery-note-background;\n"
      "$borderColors: gallery-note-border;\n"
      "$borders: top bottom; $borderWidth: 3;\n"
      "$textColors: gallery-note-text;" },
    { QT_TRANSLATE_NOOP("StyleTextExamples", "One corner"),
      "$backgroundColors: message-outgoing-background;\n"
      "$textColors: message-text;\n"
      "$borderRadius: 16 top-left;" },
    { QT_TRANSLATE_NOOP("StyleTextExamples", "Gradient"),
      "$backgroundColors: gradient-primary;\n"
      "$borderRadius: 8;\n"
      "$textColors: text-primary;" },
    { QT_TRANSLATE_NOOP("StyleTextExamples", "References"),
      "#preview {\n"
      "  color: $(presence-busy);\n"
      "  border: 2px dashed $(presence-busy.normal);\n"
      "}\n"
      "#preview:hover { color: $(presence-active); }" },
    { QT_TRANSLATE_NOOP("StyleTextExamples", "Unknown reference"),
      "$backgroundColors: gallery-note-background;\n"
      "#preview { color: $(no-such-set.normal); }" },
    { QT_TRANSLATE_NOOP("StyleTextExamples", "Unknown set"),
      "$backgroundColors: no-such-set;\n"
      "$textColors: presence-busy;\n"
      "$borderColors: red;" },
};

} // namespace

std::vector<StyleTextExample> styleTextExamples()
{
    std::vector<StyleTextExample> examples;
    for (const Entry &entry : entries) {
        examples.push_back({ QCoreApplication::translate("StyleTextExamples", entry.title),
                             QString::fromLatin1(entry.styleText) });
    }
    return examples;
}
