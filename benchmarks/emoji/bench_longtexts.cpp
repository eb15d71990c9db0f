// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/EmojiArtwork.h"
#include "support/Stores.h"

#include <UiElements/emoji/OxaEmojiLabel.h>

#include <QImage>
#include <QPainter>

namespace {

constexpr int shortBytes = 4 * 1024;
constexpr int longBytes = 64 * 1024;
const QSize labelSize(280, 60);

/// Returns \a unit repeated up to \a bytes in UTF-8.
QString repeated(const QString &unit, int bytes)
{
    return unit.repeated(bytes / unit.toUtf8().size());
}

template <typename Label>
void setPaintAndResize(const QString &text, bool wraps, Qt::TextElideMode mode)
{
    Label label;
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label.setWordWrap(wraps);
    label.setElideMode(mode);
    label.resize(labelSize);
    QImage image(labelSize, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    label.render(&painter); // Hidden widgets are resized when they are painted.

    label.setText(text);
    label.render(&painter);
    label.resize(labelSize + QSize(10, 0));
    label.render(&painter);
    label.sizeHint();
    label.heightForWidth(labelSize.width());
}

void inAllModes(const QString &text)
{
    for (const bool wraps : { false, true }) {
        for (const auto mode : { Qt::ElideNone, Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight }) {
            setPaintAndResize<OxaLabel>(text, wraps, mode);
            setPaintAndResize<OxaEmojiLabel>(text, wraps, mode);
        }
    }
}

void longText(benchmark::State &state, const char *unit)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(1));
    const EmojiArtwork artwork({ QStringLiteral("1f600"), QStringLiteral("1f1eb-1f1ee"),
                                 QStringLiteral("1f468-200d-1f4bb") });
    const QString shortText = repeated(QString::fromUtf8(unit), shortBytes);
    const QString longText = repeated(QString::fromUtf8(unit), longBytes);
    inAllModes(shortText);
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { inAllModes(longText); }, [&] { inAllModes(shortText); });
    comparison.ratioAtMost(20);
}

/// Adds a row for texts of \a what, which repeat \a unit.
void add(const char *what, const char *unit)
{
    benchmark::RegisterBenchmark((std::string("labels with 64 kB of ") + what
                                  + ", set, painted and resized/4 kB")
                                         .c_str(),
                                 longText, unit)
            ->Iterations(5)
            ->UseManualTime();
}

const bool isAdded = [] {
    add("smileys", "\U0001F600");
    add("words", "lorem ipsum dolor ");
    add("words and smileys", "hi \U0001F600 ");
    add("one word", "x");
    add("newlines", "\n");
    add("flags", "\U0001F1EB\U0001F1EE");
    add("joined emoji", "\U0001F468\u200D\U0001F4BB");
    add("right-to-left words", "\u0634\u0627\u0639 ");
    add("markup", "<b>x</b>");
    return true;
}();

} // namespace
